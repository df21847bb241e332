#pragma once

// What all date fields of all screens do alike.

#include "platform/control.h"
#include "platform/desktop.h"

namespace vorbano {

/// `signum`: a character of ()[]#.,*:;'_\ in the field is refused with a message and taken out. True when the text
/// was in order.
bool signum(TextBox& field, Desktop& desktop);

/// Hangs the common behaviour on a date field: odd separators are refused while typing, and on leaving the text is
/// reformatted with "dd-mm-yy".
void makeDateField(TextBox& field, Desktop& desktop);

}  // namespace vorbano
