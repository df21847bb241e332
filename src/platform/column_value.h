#pragma once

#include <optional>
#include <string_view>

#include "platform/database.h"

namespace vorbano {

/// A value as a column of the given type keeps it: numbers change their kind, a text in a column of numbers is read as
/// an Italian number ("1.234,50"), a number in a column of texts stands as the clerk reads it. A blank text in a column
/// of numbers is nothing. No value when a text is no number.
[[nodiscard]] std::optional<Value> asColumnKeeps(const Value& value, ColumnType type);

/// An Italian number in units of 1/10,000, further decimals rounded half away from zero; blanks around it are dropped.
[[nodiscard]] std::optional<Amount> italianAmount(std::string_view text);

}  // namespace vorbano
