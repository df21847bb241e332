#pragma once

#include "platform/control.h"
#include "platform/desktop.h"
#include "storage/election.h"

namespace vorbano {

/// The election that a screen names by a type and a date, both trimmed.
[[nodiscard]] Election electionIn(const ComboBox& type, const TextBox& date);

/// For the screens on which the clerk picks the type and types the date: the field that is still empty, nullptr when
/// both are there.
[[nodiscard]] Control* emptyForSearch(ComboBox& type, TextBox& date);
/// Tells that the search lacks something, and puts the cursor where it is missing.
void tellIncompleteSearch(Control& missing, Desktop& desktop);
/// The date must be one of the calendar, which also keeps the path of the election inside the installation. Tells when
/// it is not, puts the cursor there, and answers whether all was well.
bool dateOfElectionExists(const ComboBox& type, TextBox& date, Desktop& desktop);

}  // namespace vorbano
