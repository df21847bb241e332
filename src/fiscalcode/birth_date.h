#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "storage/dates.h"

namespace vorbano {

/// A date of birth as typed. It lies in the past: two digits of a year are 20yy, and 19yy when that is still to come on
/// the day `today`. Nothing when it is no date of the calendar.
[[nodiscard]] std::optional<Date> birthDate(std::string_view text, Date today);
/// "dd/mm/yyyy"; a text that is no date stays as it is.
[[nodiscard]] std::string reformatBirthDate(std::string_view text, Date today);

}  // namespace vorbano
