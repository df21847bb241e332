#pragma once

#include <span>

#include "storage/record_fields.h"

namespace vorbano {

/// Every record file of the program. The employee record file of an election, named after its date, stands as
/// "<data>.vbn".
[[nodiscard]] std::span<const RecordInfo> recordFiles();

}  // namespace vorbano
