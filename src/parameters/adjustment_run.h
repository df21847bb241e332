#pragma once

#include "base/result.h"
#include "parameters/adjustment.h"
#include "parameters/dated_rates.h"
#include "storage/election.h"
#include "storage/file_system.h"

namespace vorbano {

/// Prices the hours of every employee of the election at `rates` and writes the results under the numbers of the
/// employees. Employees without a row of rates, and records behind the last employee, keep what the file held. The
/// employees' own records do not change. The file is old or new, never half; `missingFolder` when the election is not
/// there.
[[nodiscard]] Result<> runAdjustment(FileSystem& files, const Election& election, const RateTable& rates,
                                     const AdjustmentRun& run);

}  // namespace vorbano
