#include "parameters/adjustment_run.h"

#include <cstddef>
#include <vector>

#include "storage/record_list.h"

namespace vorbano {

Result<> runAdjustment(FileSystem& files, const Election& election, const RateTable& rates, const AdjustmentRun& run) {
    const auto employeeFile = election.employeeFile();
    if (!employeeFile) return employeeFile.error();
    const auto path = election.file(run.file);
    if (!path) return path.error();
    const auto companion = election.file(run.companion);
    if (!companion) return companion.error();

    const auto employees = readAll<EmployeeRecord>(files, *employeeFile);
    if (!employees) return employees.error();
    auto records = readAll<AdjustmentRecord>(files, *path);
    if (!records) return records.error();
    for (std::size_t at = 0; at < employees->size(); ++at) {
        const EmployeeRecord& employee = (*employees)[at];
        const int row = adjustmentRow(employee, run);
        if (row < 0) continue;
        // A gap before it is zero bytes.
        if (at >= records->size()) records->resize(at + 1);
        (*records)[at] = adjusted(employee, rates[static_cast<std::size_t>(row)], run);
    }
    return replaceAll(files, *path, *companion, *records);
}

}  // namespace vorbano
