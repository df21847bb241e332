#pragma once

// "CONGUAGLIO LIQUIDAZIONE PER RENDICONTO": what an adjustment of rates adds to the liquidation of an election,
// employee by employee.

#include "overtime/pay.h"
#include "records/adjustment_records.h"
#include "reports/document.h"
#include "reports/heading.h"
#include "storage/election.h"

namespace vorbano {

/// The part of the adjustment's contribution that the hours of the first period bear: on what they are paid more, at
/// the percentage of the adjustment.
[[nodiscard]] Currency firstPeriodCharge(const EmployeeRecord& employee, const AdjustmentRecord& adjustment);

/// Fills the tables and shows the preview (liqstrc.rpt). The rows deliberately stay: the next document of the same
/// visit shows them too, and the return to the main window empties the tables. Only a document that could not be shown
/// leaves nothing. An employee without an adjustment has zeros. Writes no record file.
[[nodiscard]] Result<> printConguaglio(const Workplace& desk, const Election& election, const Heading& heading);

}  // namespace vorbano
