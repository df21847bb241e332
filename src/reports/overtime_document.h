#pragma once

// The road that all documents of the overtime of an election go: one row for each employee, the rows that go with them,
// the layout, the clearing. A document says what is its own.

#include <functional>

#include "reports/document.h"
#include "reports/overtime_rows.h"

namespace vorbano {

/// What a document of the overtime has of its own. None of them writes a record file.
struct OvertimeDocument {
    PrintJob job;
    LegalDates dates;
    Clearing clearing;
    /// Adds its fields to the row of an employee, which has those of the record and all five periods.
    std::function<void(Row& row, const Employee& employee)> addToEmployee = {};
    /// Adds its fields to the totals of the election; called once, after the last employee.
    std::function<void(Row& totals, const MeirinRecord& meirin)> addToTotals = {};
    /// Appends rows of its own to further tables; called last.
    std::function<Result<>()> more = {};
};

/// The dates that commitments and determinations have always carried, whatever the election.
inline const LegalDates fixedLegalDates{"01-12-00", "31-12-00"};

/// Fills the tables, shows the document, clears the tables.
[[nodiscard]] Result<> printOvertime(const Workplace& desk, const Election& election, LatePeriods late,
                                     const Heading& heading, const OvertimeDocument& document);

}  // namespace vorbano
