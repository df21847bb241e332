#include "random/gesture.h"

#include <algorithm>

namespace vorbano::test {

namespace {

std::string_view wordOf(Verb verb) {
    switch (verb) {
        case Verb::menu:
            return "menu";
        case Verb::type:
        case Verb::paste:
            return "type";
        case Verb::leave:
        case Verb::back:
            return "leave";
        case Verb::click:
            return "click";
        case Verb::tick:
            return "tick";
        case Verb::untick:
            return "untick";
        case Verb::choose:
            return "choose";
        case Verb::pick:
            return "pick";
        case Verb::press:
            return "press";
        case Verb::move:
            return "move";
        case Verb::tab:
            return "tab";
        case Verb::close:
            return "close";
    }
    return {};
}

bool hasControlCharacter(std::string_view text) {
    return std::any_of(text.begin(), text.end(), [](char one) { return static_cast<unsigned char>(one) < ' '; });
}

}  // namespace

Refusal make(const Gesture& gesture, Form& form) {
    Operator clerk(form);
    switch (gesture.verb) {
        case Verb::menu:
            return clerk.menu(*gesture.control);
        case Verb::type:
            return clerk.type(*gesture.control, gesture.text);
        case Verb::paste:
            return clerk.edit(*gesture.control, gesture.text);
        case Verb::leave:
        case Verb::back:
            clerk.leave(gesture.verb == Verb::leave);
            return Refusal::none;
        case Verb::click:
            return clerk.click(*gesture.control);
        case Verb::tick:
        case Verb::untick:
            return clerk.tick(*gesture.control, gesture.verb == Verb::tick);
        case Verb::choose:
            return clerk.chooseIndex(*gesture.control, gesture.row);
        case Verb::pick:
            return clerk.pick(*gesture.control, gesture.row, gesture.column);
        case Verb::press:
            return clerk.press(*gesture.control);
        case Verb::move:
            return clerk.move(*gesture.control);
        case Verb::tab:
            return clerk.turn(*gesture.control, gesture.row);
        case Verb::close:
            clerk.close();
            return Refusal::none;
    }
    return Refusal::wrongKind;
}

std::string asScenarioText(std::string_view text) {
    std::string inQuotes = "\"";
    for (const char one : text) {
        if (one == '"' || one == '\\') inQuotes += '\\';
        inQuotes += one == '\n' ? std::string("\\n") : std::string(1, one);
    }
    return inQuotes + '"';
}

std::string inScenario(const Gesture& gesture) {
    std::string line(wordOf(gesture.verb));
    if (gesture.verb == Verb::back) return "# Shift+Tab";
    if (gesture.control == nullptr) return line;
    line += " " + gesture.control->name();
    if (gesture.verb == Verb::type || gesture.verb == Verb::paste || gesture.verb == Verb::choose) {
        line += " = " + asScenarioText(gesture.text);
    }
    if (gesture.verb == Verb::pick) line += " " + std::to_string(gesture.row) + " " + std::to_string(gesture.column);
    if (gesture.verb == Verb::tab) line += " = " + std::to_string(gesture.row);
    return gesture.verb == Verb::paste && hasControlCharacter(gesture.text) ? "# pasted: " + line : line;
}

}  // namespace vorbano::test
