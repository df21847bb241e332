#pragma once

// The panel of one period on the overtime screens: dates, the three hour fields, the figures that bind them. The names
// of its controls differ from period to period and stand in one table.

#include <array>
#include <cstdint>
#include <string_view>

#include "overtime/pools.h"
#include "platform/form.h"
#include "records/overtime_records.h"

namespace vorbano {

/// The names of the controls of a period's panel.
struct PeriodNames {
    std::string_view frame, caption;
    std::string_view dal, al;
    std::string_view feriali, festive, nottFest, totale;
    std::string_view medio, mensile, limite, utilizzato, residuo;
};
/// Periods 1 to 3, the ones of every election from 2014 on.
extern const std::array<PeriodNames, 3> periodNames;

class PeriodPanel {
  public:
    Frame frame;
    TextBox dal;  ///< working copy of the first date; the operator changes it elsewhere
    TextBox al;
    TextBox feriali;   ///< authorised hours, "Feriali"
    TextBox festive;   ///< "Festive"
    TextBox nottFest;  ///< "Nott. Fest"
    TextBox totale;
    Label medio;       ///< average per employee, hours
    Label mensile;     ///< pool of the period, hours
    Label limite;      ///< "Limite massimo individuale", hours
    Label utilizzato;  ///< hours of the stored employees and of the one on show
    Label residuo;     ///< mensile - utilizzato

    PeriodPanel(Form& form, const PeriodNames& names);

    [[nodiscard]] bool isExcluded() const;
    [[nodiscard]] std::array<TextBox*, hourKinds> hourFields() { return {&feriali, &festive, &nottFest}; }
    /// The figures as they stand in the labels; an empty label is 0.
    [[nodiscard]] PeriodFigures figures() const;
    void show(const PeriodFigures& figures);
    void clearFigures();
    /// "0" everywhere, hours locked: the period takes no part.
    void exclude();
    void clearHours();
    void unlockHours(bool unlocked);
    /// Sum of the three hour fields by the plain scan.
    [[nodiscard]] std::int64_t hours() const;
};

}  // namespace vorbano
