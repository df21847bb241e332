#pragma once

#include <string>

#include "platform/qt/layout.h"
#include "platform/qt/layout_data.h"

namespace vorbano {

/// The HTML of a section with its values, escaped. `damaged` with file and line for a tag that names no query and no
/// field, even where no row would show it.
Result<std::string> htmlText(const HtmlSection& section, const LayoutData& data);

}  // namespace vorbano
