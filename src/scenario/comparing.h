#pragma once

#include <string>
#include <string_view>

namespace vorbano {

/// Every kind of line end becomes "\n".
[[nodiscard]] std::string oneLineEnd(std::string_view text);

/// The text expected is the text shown: as it is, or when both are trimmed. All kinds of line end are alike.
[[nodiscard]] bool sameText(std::string_view expected, std::string_view shown);

/// The same text when trimmed, or the same number in Italian form: "10", "10,00" and "1.234,5", "1234,50" agree.
/// Numbers are compared to two decimals; when both are written with more, they are compared with all.
[[nodiscard]] bool sameValue(std::string_view expected, std::string_view shown);

}  // namespace vorbano
