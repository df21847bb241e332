#pragma once

// The panel of one period on the liquidation screen: dates, authorised and paid hours, the figures that bind them, and
// the ways into and out of it. The names of its controls differ from period to period and stand in one table.

#include <array>
#include <cstdint>
#include <string_view>

#include "overtime/liquidation_save.h"
#include "overtime/meirin_periods.h"
#include "platform/form.h"

namespace vorbano {

/// The names of the controls of a period's panel.
struct LiquidationNames {
    std::string_view frame, caption;
    std::string_view dal, al;
    std::array<std::string_view, hourKinds> authorised;
    std::string_view totAut;
    std::array<std::string_view, hourKinds> paid;
    std::string_view totale;
    std::string_view state;
    std::string_view medio, mensile, limite, utilizzato, residuo;
    std::string_view apri, chiudi;
};
extern const std::array<LiquidationNames, maxPeriods> liquidationNames;

class LiquidationPanel {
  public:
    Frame frame;
    Button apri;  ///< opens the period for entry, as a press on the panel does
    TextBox dal;
    TextBox al;
    std::array<TextBox, hourKinds> authorised;  ///< "Autorizzate"
    TextBox totAut;
    std::array<TextBox, hourKinds> paid;  ///< "Pagate"
    TextBox totale;                       ///< always the sum of the paid hours; it can be entered, not changed
    Button chiudi;                        ///< leaves the period, as moving the pointer over the panel does
    Label medio;                          ///< average per employee, hours
    Label mensile;                        ///< pool of the period, hours
    Label limite;                         ///< "Limite massimo individuale", hours
    Label utilizzato;                     ///< authorised hours of all employees
    Label residuo;                        ///< mensile - utilizzato
    HiddenLabel state;                    ///< "0" authorisation, "1" liquidation

    LiquidationPanel(Form& form, const LiquidationNames& names);

    [[nodiscard]] bool isExcluded() const;
    /// The first of the two dates that is not there; nullptr when both are.
    [[nodiscard]] TextBox* missingDate();
    [[nodiscard]] bool inLiquidation() const { return state.text() == "1"; }

    void show(const PeriodBlock& hours);
    void show(const MeirinPeriod& limits, const PeriodFigures& figures);
    /// Empties everything, as before a search.
    void clear();
    [[nodiscard]] PeriodFigures figures() const;

    /// Enables what the state of the period lets the clerk change, and puts the cursor there.
    void open();
    void close();
    /// The fields that `open` enables.
    [[nodiscard]] std::array<TextBox, hourKinds>& openFields() { return inLiquidation() ? paid : authorised; }
    /// The fields hold something else than the stored hours of the state in which the period is.
    [[nodiscard]] bool differsFrom(const PeriodBlock& stored) const;
    /// Takes the stored hours of that state back into the fields.
    void restore(const PeriodBlock& stored);

    [[nodiscard]] std::int64_t authorisedHours() const;
    [[nodiscard]] std::int64_t paidHours() const;

  private:
    void sumAuthorised();
    void sumPaid();
    std::string_view caption_;
};

}  // namespace vorbano
