#pragma once

#include <string_view>

#include "platform/operator.h"
#include "scenario/scenario_reader.h"

namespace vorbano {

/// What the clerk does; all but `leave` and `close` is done on a control.
[[nodiscard]] bool isGesture(LineKind kind);
[[nodiscard]] bool needsControl(LineKind kind);

/// Whether the clerk could make this gesture on this control as it stands now. Asked before any hands move, so that a
/// gesture is refused in the same words with windows and without.
[[nodiscard]] Refusal refusalOf(const Line& gesture, const Control& control);

/// Pages of a tab panel, as far as controls stand on them.
[[nodiscard]] int pagesOf(const TabPanel& panel);

}  // namespace vorbano
