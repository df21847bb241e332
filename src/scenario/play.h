#pragma once

#include <functional>
#include <string>

#include "platform/desktop.h"
#include "platform/print_engine.h"
#include "scenario/looks.h"
#include "scenario/scenario_reader.h"

namespace vorbano {

/// Starts the program on a desk and returns when its main window is closed.
using Start = std::function<void(Desktop&, PrintEngine&)>;

/// Plays a scenario on the bare forms; "" when every line holds, else "FILE:LINE: expected ..., was ...".
[[nodiscard]] std::string playBare(const Scenario& scenario, const Stage& stage, Renderer& renderer,
                                   const Start& start);

}  // namespace vorbano
