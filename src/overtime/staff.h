#pragma once

// The employees of a stored election with all five periods: the first three stand in the employee's record, the fourth
// and fifth of elections before 2014 in files of their own under the same record number.

#include <array>
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "overtime/pools.h"
#include "records/overtime_records.h"
#include "storage/election.h"
#include "storage/file_system.h"

namespace vorbano {

/// Periods four and five, each with a file of its own.
inline constexpr int latePeriods = 2;
static_assert(earlyPeriods + latePeriods == maxPeriods);
/// Which of them the election has on a screen.
using LateInUse = std::array<bool, latePeriods>;
[[nodiscard]] LateInUse lateInUse(const Election& election, PeriodRule rule);

/// The paths of an election's overtime files.
struct OvertimePaths {
    std::string employees, reverse;
    std::string meirin, revMeirin;
    std::string duedate;
    std::array<std::string, latePeriods> late;         ///< Quartum.vbn, Pentium.vbn
    std::array<std::string, latePeriods> lateReverse;  ///< their companions in a removal
    std::array<std::string, latePeriods> lateNew;      ///< and in every other rewrite
};
/// `badName` when type or date name no election.
[[nodiscard]] Result<OvertimePaths> overtimePaths(const Election& election);

/// One employee as stored.
struct StoredEmployee {
    EmployeeRecord record;
    /// Nothing for a period that is not in use, and for one whose file has no record of this number yet.
    std::array<std::optional<LatePeriodRecord>, latePeriods> late;

    /// Dates and hours of period 1 to 5. A late one without a record is excluded and has no hours.
    [[nodiscard]] PeriodBlock period(int period) const;
};
/// Dates of the periods that are in use.
[[nodiscard]] ElectionSpans spansOf(const StoredEmployee& employee, const LateInUse& late);

/// For the search of a screen: ends a removal that was interrupted, and tells the number of employees. `missingFolder`
/// when the election is not there; 0 means the same.
[[nodiscard]] Result<int> searchElection(FileSystem& files, const Election& election);
/// Employee `number` (from 1); `notFound` when there is none.
[[nodiscard]] Result<StoredEmployee> readEmployee(FileSystem& files, const Election& election, const LateInUse& late,
                                                  int number);
/// All employees in order.
[[nodiscard]] Result<std::vector<StoredEmployee>> readStaff(FileSystem& files, const Election& election,
                                                            const LateInUse& late);

/// `ApriQuarto`, `ApriCinque`: makes the records of periods four and five that employees do not have yet, in one step
/// for each file. A new record has the employee's pools, name, grade and rates, the dates of the records that are there
/// (the excluded mark when there are none), and no hours.
[[nodiscard]] Result<> createLateRecords(FileSystem& files, const Election& election, const LateInUse& late);

/// Hours by period, from 0.
using PeriodTotals = std::array<std::int64_t, maxPeriods>;
[[nodiscard]] std::int64_t sumOf(const HoursByKind& hours);
/// `Utili` to `Utili5`, `UtiliD1` to `UtiliD5`: authorised hours by period over all employees; 0 of an empty file. The
/// employee `leftOut` (0: nobody) does not count, and `instead` counts for it.
[[nodiscard]] Result<PeriodTotals> usedHours(FileSystem& files, const Election& election, const LateInUse& late,
                                             int leftOut = 0, const PeriodTotals& instead = {});

enum class HoursShown : std::uint8_t { authorised, paid };
/// A line of the list of employees of a period.
struct HoursLine {
    std::string name;
    std::array<std::int64_t, hourKinds> hours{};
    std::int64_t total = 0;
};
/// `elencami`: a line for each employee and a last one, "Totali".
[[nodiscard]] Result<std::vector<HoursLine>> elencami(FileSystem& files, const Election& election,
                                                      const LateInUse& late, int period, HoursShown shown);

}  // namespace vorbano
