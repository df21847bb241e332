#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "platform/qt/layout.h"

namespace vorbano {

/// A line of a layout and where it stands.
struct LayoutLine {
    std::string text;
    Origin origin;
};

/// The lines of a layout, each "[include NAME]" replaced by the lines of "parti/NAME.part". Line ends of any kind are
/// dropped. Fails as the reader does.
Result<std::vector<LayoutLine>> layoutLines(std::string_view name, const LayoutSource& source);

/// Without the blanks at both ends.
[[nodiscard]] std::string_view withoutBlanks(std::string_view text);
/// The words of a text; the text between two separators, blanks dropped, when `separator` is not a blank.
[[nodiscard]] std::vector<std::string> pieces(std::string_view text, char separator = ' ');

}  // namespace vorbano
