#pragma once

#include "platform/qt/layout.h"

namespace vorbano {

/// Reads a layout and the parts that it includes. `notFound` when the layout is not there; `damaged` with
/// "file:line: what is wrong" (in Italian) for everything that a layout cannot say.
Result<Layout> readLayout(std::string_view name, const LayoutSource& source);

/// The failure of a layout at a place in it.
[[nodiscard]] Error layoutError(const Origin& origin, const std::string& what);

}  // namespace vorbano
