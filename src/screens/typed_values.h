#pragma once

// What the clerk typed, on its way into a record. A text that cannot be converted leaves what the record held; an empty
// one is 0.

#include <string_view>

#include "storage/fields.h"

namespace vorbano {

void take(Integer& field, std::string_view text);
/// Rounded to cents.
void takeCents(Currency& field, std::string_view text);

}  // namespace vorbano
