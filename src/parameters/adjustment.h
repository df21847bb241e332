#pragma once

// What an employee is still owed when the rates change for a time already paid: which row of the rates is the
// employee's, and what the hours come to at them. Pure rules; adjustment_run.h goes over an election.

#include <string_view>

#include "records/adjustment_records.h"
#include "records/overtime_records.h"
#include "records/tariff_records.h"

namespace vorbano {

/// One of the two runs over an election, by all in which they differ.
struct AdjustmentRun {
    std::string_view file;
    std::string_view companion;
    HoursByKind (*hours)(const EmployeeRecord& employee);   ///< that are priced anew
    Currency (*oldAmount)(const EmployeeRecord& employee);  ///< what was due for them
    bool tellsD3ByRate;                                     ///< false: an employee of grade D3 always has the row of D3
    std::string_view closing;                               ///< said when the run has ended well; empty for none
};
/// All periods, against the amount stored.
extern const AdjustmentRun allPeriods;
/// The second run of a joint election: the hours paid for the first period, against the same hours at the rates stored.
extern const AdjustmentRun firstPeriod;

/// Whether elections of the type have the second run.
[[nodiscard]] bool hasSecondRun(std::string_view type);

/// Index of the employee's row of rates (from 0, in record order); -1 when the grade has none. Grades that were paid at
/// two rates are told apart by the `Day` rate that the record still carries.
[[nodiscard]] int adjustmentRow(const EmployeeRecord& employee, const AdjustmentRun& run);

/// The adjustment of an employee. The amount comes from the rates as typed, which may have four decimals, while the
/// rates stored have two; likewise the difference keeps its decimals, and the contributions are taken on it as it is.
[[nodiscard]] AdjustmentRecord adjusted(const EmployeeRecord& employee, const Rates& asTyped, const AdjustmentRun& run);

}  // namespace vorbano
