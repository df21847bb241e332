#pragma once

// The pieces that a line of a scenario is made of.

#include <chrono>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace vorbano {

/// A line cut at its first "=" outside quotes, without its comment. A comment begins with "#" after a blank; behind the
/// "=" a blank must follow it too, so that the clerk can type a "#".
struct LineParts {
    std::string_view left;
    std::optional<std::string_view> right;
};
[[nodiscard]] LineParts cutLine(std::string_view line);

/// One word of the left side: as it is written, quotes taken off.
struct Word {
    std::string text;
    bool quoted = false;
    std::string_view source;
};
/// The words of the left side; nothing when a quoted one is not closed as it should be.
[[nodiscard]] std::optional<std::vector<Word>> wordsOf(std::string_view left);

/// The right side: quoted, or plain without the blanks around it and without its comment.
[[nodiscard]] std::optional<std::string> valueOf(std::string_view right);

/// A whole number from 0 to 2,147,483,647.
[[nodiscard]] std::optional<int> numberOf(std::string_view text);
/// Bytes from pairs of hexadecimal digits, blanks anywhere; nothing when there is not a single one.
[[nodiscard]] std::optional<std::string> bytesOf(std::string_view hex);
/// A date of the calendar, "2024-06-10".
[[nodiscard]] std::optional<std::chrono::year_month_day> isoDate(std::string_view text);

[[nodiscard]] std::string_view stripped(std::string_view text);
[[nodiscard]] bool isUtf8(std::string_view text);

}  // namespace vorbano
