#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "platform/operator.h"

namespace vorbano::test {

enum class Verb : std::uint8_t {
    menu,
    type,
    paste,
    leave,
    back,
    click,
    tick,
    untick,
    choose,
    pick,
    press,
    move,
    tab,
    close
};

/// One thing that the operator does to the window in front.
struct Gesture {
    Verb verb = Verb::leave;
    Control* control = nullptr;  ///< none for those that are done to the window
    std::string text;
    int row = 0;  ///< of a list or grid; the page of a tab panel
    int column = 0;
};

[[nodiscard]] Refusal make(const Gesture& gesture, Form& form);
/// The line of a scenario; a comment where its language has no such gesture.
[[nodiscard]] std::string inScenario(const Gesture& gesture);
/// As a text of a scenario.
[[nodiscard]] std::string asScenarioText(std::string_view text);

}  // namespace vorbano::test
