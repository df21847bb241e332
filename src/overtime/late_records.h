#pragma once

// The files of periods four and five as a whole, for the commands that change all of their records.

#include <optional>
#include <string>
#include <vector>

#include "overtime/staff.h"
#include "storage/record_list.h"

namespace vorbano {

/// The records of a late period with those added that the staff lacks.
[[nodiscard]] std::vector<LatePeriodRecord> completed(std::vector<LatePeriodRecord> stored,
                                                      const std::vector<EmployeeRecord>& staff);

/// Puts `records` in the place of a late period's file (0: fourth, 1: fifth) in one step.
[[nodiscard]] Result<> replaceLate(FileSystem& files, const OvertimePaths& paths, std::size_t late,
                                   const std::vector<LatePeriodRecord>& records);

/// Whether a figure can be stored.
[[nodiscard]] bool fits(std::int64_t figure);
/// A figure beyond 16 bits leaves what the field held.
void put(Integer& field, std::int64_t figure);

}  // namespace vorbano
