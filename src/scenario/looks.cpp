#include "scenario/looks.h"

#include "scenario/comparing.h"

namespace vorbano {

namespace {

Verdict judged(bool holds, std::string expected, std::string was) {
    if (holds) return std::nullopt;
    return Mismatch{std::move(expected), std::move(was)};
}

/// A menu entry is shown and usable with all the menus above it.
template <class Test>
bool throughout(const Control& control, Test&& test) {
    if (control.kind() != Kind::menuEntry) return test(control);
    for (const auto* one = static_cast<const MenuEntry*>(&control); one != nullptr; one = one->above()) {
        if (!test(*one)) return false;
    }
    return true;
}

bool isShown(const Control& control) {
    return throughout(control, [](const Control& one) { return one.isVisible() && one.hasWidget(); });
}

/// "enabled", or why the clerk cannot use it. A hidden control can be enabled, and the other way round.
std::string_view usability(const Control& control) {
    if (!throughout(control, [](const Control& one) { return one.isEnabled(); })) return "disabled";
    return control.isLocked() ? "locked" : "enabled";
}

std::string_view mark(const Control& control) {
    if (control.kind() == Kind::checkBox) {
        return static_cast<const CheckBox&>(control).checked() ? "ticked" : "unticked";
    }
    if (control.kind() == Kind::option) return static_cast<const Option&>(control).checked() ? "ticked" : "unticked";
    return "no box and no option";
}

Verdict judgeFocus(const Form& form, const Control& control, const std::string& expected) {
    const Control* focused = form.focused();
    return judged(focused == &control, expected,
                  focused == nullptr ? "no control with the focus" : focused->name() + " focused");
}

Verdict judgeState(const Line& line, const Form& form, const Control& control) {
    const std::string expected = line.name + " " + std::string(inWords(line.state));
    const auto against = [&](std::string_view wanted, std::string_view was) {
        return judged(wanted == was, expected, std::string(was));
    };
    switch (line.state) {
        case State::enabled:
            return against("enabled", usability(control));
        case State::disabled:
            return judged(usability(control) != "enabled", expected, "enabled");
        case State::visible:
        case State::hidden:
            return against(inWords(line.state), isShown(control) ? "visible" : "hidden");
        case State::ticked:
        case State::unticked:
            return against(inWords(line.state), mark(control));
        case State::focused:
            return judgeFocus(form, control, expected);
    }
    return std::nullopt;
}

/// The open page of a tab panel has no text but its number.
std::string shownBy(const Control& control) {
    if (control.kind() == Kind::tabPanel) return std::to_string(static_cast<const TabPanel&>(control).page());
    return control.shownText();
}

Verdict judgeCell(const Line& line, const Control& control) {
    const std::string expected =
        line.name + " " + std::to_string(line.count) + " " + std::to_string(line.column) + " = " + inQuotes(line.text);
    if (control.kind() != Kind::grid) return Mismatch{expected, "no grid"};
    const auto& grid = static_cast<const Grid&>(control);
    const bool there = line.count <= grid.rows() &&
                       line.column < static_cast<int>(grid.cells()[static_cast<std::size_t>(line.count)].size());
    if (!there) return Mismatch{expected, "a grid of " + std::to_string(grid.rows()) + " rows without that cell"};
    const std::string was = grid.cell(line.count, line.column);
    return judged(sameText(line.text, was), expected, inQuotes(was));
}

Verdict judgeItems(const Line& line, const Control& control) {
    const std::string expected = std::to_string(line.count) + " items in " + line.name;
    int items = 0;
    switch (control.kind()) {
        case Kind::comboBox:
        case Kind::listBox:
            items = static_cast<int>(static_cast<const ItemControl&>(control).items().size());
            break;
        case Kind::grid:
            items = static_cast<const Grid&>(control).rows();
            break;
        default:
            return Mismatch{expected, "no list and no grid"};
    }
    return judged(items == line.count, expected, std::to_string(items));
}

}  // namespace

std::string inQuotes(std::string_view text) {
    std::string quoted = "\"";
    for (const char one : oneLineEnd(text)) {
        if (one == '\n') {
            quoted += "\\n";
        } else {
            if (one == '"' || one == '\\') quoted += '\\';
            quoted += one;
        }
    }
    return quoted + "\"";
}

std::string inWords(const Error& error) {
    const auto about = [&](std::string_view what) { return std::string(what) + ": " + error.subject; };
    switch (error.kind) {
        case Failure::notFound:
            return about("not found");
        case Failure::missingFolder:
            return about("without a folder");
        case Failure::refused:
            return about("refused by the system");
        case Failure::device:
            return about("a failing device");
        case Failure::badName:
            return about("no name below the root");
        case Failure::damaged:
            return about("damaged");
        case Failure::full:
            return about("full");
        case Failure::diskFull:
            return about("no room on the disk");
    }
    return error.subject;
}

Verdict lookAtForm(const Line& line, const Form& form) {
    if (line.kind == LineKind::expectCaption) {
        return judged(sameText(line.text, form.caption()), "caption = " + inQuotes(line.text),
                      inQuotes(form.caption()));
    }
    const Control* control = form.find(line.name);
    if (control == nullptr) return Mismatch{"a control " + line.name + " on " + form.name(), "none of that name"};
    switch (line.kind) {
        case LineKind::expectState:
            return judgeState(line, form, *control);
        case LineKind::expectCell:
            return judgeCell(line, *control);
        case LineKind::expectItems:
            return judgeItems(line, *control);
        default: {
            const std::string was = shownBy(*control);
            return judged(sameText(line.text, was), line.name + " = " + inQuotes(line.text), inQuotes(was));
        }
    }
}

}  // namespace vorbano
