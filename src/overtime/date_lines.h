#pragma once

// The two lines that a period has on the screen of its dates: the dates to change, and its pool before and after. The
// names of the controls differ from period to period and stand in one table.

#include <array>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "overtime/pools.h"
#include "platform/form.h"

namespace vorbano {

/// The names of the controls of a period.
struct DateLineNames {
    int period;  ///< from 1
    std::string_view check, dal, al;
    std::string_view indi, mens, limite, indiD, mensD, utiD, resD;
};
extern const std::array<DateLineNames, maxPeriods> dateLineNames;

/// A row of "Date da modificare": it shows the stored dates, and its box unlocks them.
class DateRow {
  public:
    const int period;
    CheckBox modifica;
    TextBox dal;
    TextBox al;

    DateRow(Container& parent, const DateLineNames& names);

    /// The period is on this screen for the election named above.
    [[nodiscard]] bool inUse() const { return modifica.visible(); }
    void show(bool visible);
    void unlock(bool unlocked);
    [[nodiscard]] PeriodSpan span() const { return {dal.text(), al.text()}; }
    void setSpan(const PeriodSpan& span);
};

/// A line "Monte ore": figures as stored, and after the change. All are only read.
class PoolLine {
  public:
    const int period;
    TextBox indi;    ///< stored individual average, hours
    TextBox mens;    ///< stored pool, hours
    TextBox limite;  ///< absolute limit of an employee after the change
    TextBox indiD;   ///< "Individuale" after the change
    TextBox mensD;   ///< "Mensile"
    TextBox utiD;    ///< "Utilizzato"
    TextBox resD;    ///< "Residuo": mensD - utiD

    PoolLine(Container& parent, const DateLineNames& names);

    void show(bool visible);
    void showStored(int average, int pool);
    /// The situation after the change. `used`: authorised hours of all employees in the period; nothing for a period
    /// that is excluded, which has zeros everywhere.
    void showAfter(const PeriodFigures& figures, std::optional<std::int64_t> used);
    void clearAfter();
    /// What stands after the change is from now on what is stored.
    void afterBecomesStored();
    /// More hours are authorised than the pool holds. A residual of zero may show nothing, and is none of these.
    [[nodiscard]] bool isExceeded() const;

  private:
    [[nodiscard]] std::array<TextBox*, 5> after() { return {&limite, &indiD, &mensD, &utiD, &resD}; }
    [[nodiscard]] std::string figure(int hours) const;
};

}  // namespace vorbano
