#pragma once

// Dates are text on file and in fields: "dd-mm-yy". Years of elections, periods and acts are of this century.

#include <chrono>
#include <optional>
#include <string>
#include <string_view>

namespace vorbano {

using Date = std::chrono::year_month_day;

/// Reads d/m/yy, dd-mm-yy, dd/mm/yyyy and mixtures of them; two digits of a year are 20yy. Nothing when it is no date
/// of the calendar ("31/02/24", "9/6", "../..").
[[nodiscard]] std::optional<Date> parseDate(std::string_view text);
/// "dd-mm-yy".
[[nodiscard]] std::string dateText(Date date);
/// The field's text as "dd-mm-yy"; a text that is no date stays as it is.
[[nodiscard]] std::string reformatDate(std::string_view text);

/// The mark of a period left out.
inline constexpr std::string_view excludedMark = "//";
/// "//" as typed, or "//" and six blanks as it comes back from a record.
[[nodiscard]] bool isExcluded(std::string_view text);

/// Whole days from `from` to `to`; negative when `to` is earlier. Nothing when either is no date.
[[nodiscard]] std::optional<int> daysBetween(std::string_view from, std::string_view to);

}  // namespace vorbano
