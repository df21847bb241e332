#pragma once

#include <string>

#include "platform/control.h"
#include "scenario/scenario_reader.h"

namespace vorbano {

class FormWindow;

/// Whether the window shows what an `expect` line found in the form; "" when it does, or what it shows instead.
[[nodiscard]] std::string lookAtWidget(const Line& look, const FormWindow& window, const Control& control);

}  // namespace vorbano
