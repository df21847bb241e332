#pragma once

#include <string>

#include "base/result.h"
#include "platform/desktop.h"

namespace vorbano {

/// What a failure of the disk, a database or a layout means to the clerk, in Italian.
[[nodiscard]] std::string inItalian(const Error& error);

/// The procedures that store records go on whatever happens; but what was not stored must not be lost unseen. Tells the
/// clerk of a failure and answers whether all was well.
bool wellDone(const Result<>& result, Desktop& desktop);

}  // namespace vorbano
