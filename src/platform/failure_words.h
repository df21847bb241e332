#pragma once

#include <string>

#include "base/result.h"

namespace vorbano {

/// What a failure of the disk, a database or a layout means to the clerk, in Italian.
[[nodiscard]] std::string inItalian(const Error& error);

}  // namespace vorbano
