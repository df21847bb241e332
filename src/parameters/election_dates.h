#pragma once

#include <optional>
#include <string>
#include <vector>

namespace vorbano {

/// Of the dates of a type of election those that end with "04" to "90", compared as text; with `year` (2024) only those
/// of that year.
[[nodiscard]] std::vector<std::string> datesOnOffer(std::vector<std::string> dates, std::optional<int> year);

}  // namespace vorbano
