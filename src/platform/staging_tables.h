#pragma once

#include <vector>

#include "platform/database.h"

namespace vorbano {

/// The twelve tables of dbStampa.mdb with all their fields, in the order in which they stand in the file. The delivered
/// database is made from this table, and so is its twin in memory.
[[nodiscard]] const std::vector<TableInfo>& stagingTables();

}  // namespace vorbano
