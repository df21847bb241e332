#pragma once

// A stored election follows the other version of the tariffs: which row an employee was paid by, and what the hours
// come to at the row's new rates.

#include <array>
#include <optional>

#include "base/result.h"
#include "parameters/dated_rates.h"
#include "records/overtime_records.h"
#include "storage/election.h"
#include "storage/file_system.h"

namespace vorbano {

/// The `Day` rates of the version that the election is paid by so far, in record order; nothing for a row that has none
/// and so is nobody's.
using DayRates = std::array<std::optional<Currency>, tariffRowCount>;

/// The two directions deliberately differ: back to the old tariffs only the first rows are known, so that employees of
/// the rows added later keep the new ones.
struct RewriteDirection {
    std::size_t rows;    ///< rows that are looked at, from the first
    bool looksAtGrades;  ///< the rows of D1 and C4 are for employees of these very grades
};
inline constexpr RewriteDirection toNewTariffs = {tariffRowCount, true};
inline constexpr RewriteDirection toOldTariffs = {22, false};

/// The first row that has the employee's `Day` rate; nothing when none has.
[[nodiscard]] std::optional<std::size_t> rowPaidBy(const EmployeeRecord& employee, const DayRates& paidSoFar,
                                                   const RewriteDirection& direction);

/// The employee at other rates, with the hours and the percentages of the record. Rates and amounts are held to cents,
/// each by itself: the totals are not added up from what their parts show.
[[nodiscard]] EmployeeRecord atRates(EmployeeRecord employee, const Rates& rates);

/// Rewrites the employees of an election in one step; those that no row is found for keep every byte. Given again it
/// finds nobody to change, unless a new rate is the rate that another row had. `missingFolder` when there is no such
/// election.
[[nodiscard]] Result<> rewriteElection(FileSystem& files, const Election& election, const DayRates& paidSoFar,
                                       const RateTable& rates, const RewriteDirection& direction);

}  // namespace vorbano
