#pragma once

#include <string_view>

#include "platform/control.h"
#include "platform/desktop.h"

namespace vorbano {

/// Sixteen characters, blanks at its ends left out. Nothing else is tested: codes of people whose data collide are
/// assigned by the tax office and follow no rule.
[[nodiscard]] bool isWholeFiscalCode(std::string_view code);

/// The clerk leaves the field with a code. A whole one is rewritten in capitals; of any other it is told, and the
/// cursor stays in the field. An empty field is neither. True when the code is whole.
bool fiscalCodeLeft(TextBox& field, Desktop& desktop);

}  // namespace vorbano
