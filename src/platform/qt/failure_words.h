#pragma once

#include <string>

#include "base/result.h"
#include "platform/qt/sqlite_database.h"

namespace vorbano {

/// What a failure of a database, a layout or a printed file means to the clerk, in Italian.
[[nodiscard]] std::string describe(const Error& error);

/// The same for a database of which it is known what stands in its place; empty for one that can be used.
[[nodiscard]] std::string describe(DatabaseKind kind, const std::string& fileName);

}  // namespace vorbano
