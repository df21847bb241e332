#pragma once

#include <QSize>
#include <string>
#include <vector>

namespace vorbano {

class FormWindow;

/// In logical pixels, the smallest desk on which no window may need to be scrolled: 1920 x 1080 at 150 %.
inline constexpr QSize smallestDesk{1280, 720};

/// What a clerk could not see, read or reach in a window as it stands: more than the desk holds, words that are
/// cut off, letters of Alt that two controls share, controls that a screen reader cannot name. Empty when all is well.
[[nodiscard]] std::vector<std::string> windowFaults(const FormWindow& window);

}  // namespace vorbano
