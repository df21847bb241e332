#pragma once

#include "base/result.h"
#include "platform/desktop.h"

namespace vorbano {

/// The procedures that store records go on whatever happens; but what was not stored must not be lost unseen. Tells the
/// clerk of a failure and answers whether all was well.
bool wellDone(const Result<>& result, Desktop& desktop);

}  // namespace vorbano
