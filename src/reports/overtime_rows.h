#pragma once

// What all documents made from the overtime of an election have in common: the reading of its employees with their five
// periods, and the rows of the staging tables. Each document adds what is its own.

#include <array>
#include <string>
#include <vector>

#include "platform/database.h"
#include "records/overtime_records.h"
#include "reports/heading.h"
#include "storage/election.h"

namespace vorbano {

/// Which of the last two periods the reports screen shows for the election (`Check9`, `Check10`).
struct LatePeriods {
    bool fourth = false;
    bool fifth = false;
};

/// An employee as the documents see one.
struct Employee {
    EmployeeRecord record;
    /// The first three from the record. A fourth or fifth one that is not shown has the dates "00/00/00" and no hours;
    /// one that is shown and has no record in its file has empty dates and no hours.
    std::array<PeriodBlock, maxPeriods> periods;
};

/// The employees 1 to `NumDip` of record 1, or to the end of the file if that comes first.
[[nodiscard]] Result<std::vector<Employee>> readEmployees(FileSystem& files, const Election& election,
                                                          LatePeriods late);
/// `NumDip` of record 1; 0 when there is no employee.
[[nodiscard]] int dipendentiOf(const std::vector<Employee>& employees);

/// A row of `Tabella3` with the fields of the employee's record down to `TotaleContr`, periods one to three.
[[nodiscard]] Row Database1(const EmployeeRecord& record);
/// Adds periods four and five to it.
void addLatePeriods(Row& row, const Employee& employee);

/// The row of `Tabella4` that all have in common.
[[nodiscard]] Row totalsFrom(const MeirinRecord& meirin);
/// The same row, read from the election's Meirin.vbn; zeros when that file is empty.
[[nodiscard]] Result<Row> electionTotals(FileSystem& files, const Election& election);

/// The legal dates of `Tabella6`.
struct LegalDates {
    std::string DataA;
    std::string DataB;
};
/// Appends what follows the employees: `totals` to `Tabella4`, the heading, the legal dates, and to `Tabella10` the
/// contribution rates if Conprev.dat has any.
[[nodiscard]] Result<> appendCompanions(FileSystem& files, Database& staging, const Row& totals, const Heading& heading,
                                        const LegalDates& dates);

}  // namespace vorbano
