#pragma once

#include "platform/qt/report_renderer.h"
#include "scenario/play.h"

namespace vorbano {

/// How long a step takes: none, or slowly enough to be watched.
enum class Pace : std::uint8_t { quick, slow };

/// Plays a scenario on real windows with real mouse and key events; answers as `playBare` does. There must be a
/// QApplication.
[[nodiscard]] std::string playInWindows(const Scenario& scenario, const Stage& stage, QtRenderer& renderer,
                                        const Start& start, Pace pace = Pace::quick);

}  // namespace vorbano
