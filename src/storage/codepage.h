#pragma once

// Texts on file are in Windows code page 1252, in the program they are UTF-8.

#include <string>
#include <string_view>

namespace vorbano {

/// UTF-8 to code page 1252. A character that the page does not have becomes "?".
[[nodiscard]] std::string toCodepage(std::string_view utf8);
/// Code page 1252 to UTF-8. NUL bytes are left out; the five codes that the page leaves open become blanks.
[[nodiscard]] std::string fromCodepage(std::string_view ansi);

/// Without leading and trailing blanks and NULs. This is the only trimming in the program.
[[nodiscard]] std::string_view trim(std::string_view text);
/// Without trailing blanks and NULs.
[[nodiscard]] std::string_view trimRight(std::string_view text);
/// Upper case, also of accented letters, as the office writes names in capitals.
[[nodiscard]] std::string upperCase(std::string_view utf8);

}  // namespace vorbano
