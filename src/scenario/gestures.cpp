#include "scenario/gestures.h"

#include <algorithm>

namespace vorbano {

namespace {

bool fits(LineKind gesture, Kind control) {
    switch (gesture) {
        case LineKind::menu:
            return control == Kind::menuEntry;
        case LineKind::type:
            return control == Kind::textBox;
        case LineKind::click:
            return control == Kind::button || control == Kind::option;
        case LineKind::tick:
        case LineKind::untick:
            return control == Kind::checkBox;
        case LineKind::choose:
            return control == Kind::comboBox || control == Kind::listBox;
        case LineKind::pick:
            return control == Kind::grid;
        case LineKind::press:
        case LineKind::move:
            return control == Kind::frame;
        case LineKind::tab:
            return control == Kind::tabPanel;
        default:
            return false;
    }
}

Refusal refusalNow(const Control& control) {
    if (!control.isVisible() || !control.hasWidget()) return Refusal::hidden;
    if (!control.isEnabled()) return Refusal::disabled;
    return control.isLocked() ? Refusal::locked : Refusal::none;
}

bool hasItem(const Line& gesture, const Control& control) {
    switch (gesture.kind) {
        case LineKind::choose:
            return static_cast<const ItemControl&>(control).find(gesture.text) >= 0;
        case LineKind::pick: {
            const auto& cells = static_cast<const Grid&>(control).cells();
            return gesture.count < static_cast<int>(cells.size()) &&
                   gesture.column < static_cast<int>(cells[static_cast<std::size_t>(gesture.count)].size());
        }
        case LineKind::tab:
            return gesture.count < pagesOf(static_cast<const TabPanel&>(control));
        default:
            return true;
    }
}

}  // namespace

bool isGesture(LineKind kind) { return kind <= LineKind::close; }

bool needsControl(LineKind kind) { return isGesture(kind) && kind != LineKind::leave && kind != LineKind::close; }

Refusal refusalOf(const Line& gesture, const Control& control) {
    if (!fits(gesture.kind, control.kind())) return Refusal::wrongKind;
    if (control.kind() == Kind::menuEntry) {
        for (const auto* one = static_cast<const MenuEntry*>(&control); one != nullptr; one = one->above()) {
            if (const Refusal why = refusalNow(*one); why != Refusal::none) return why;
        }
    }
    if (const Refusal why = refusalNow(control); why != Refusal::none) return why;
    return hasItem(gesture, control) ? Refusal::none : Refusal::noSuchItem;
}

int pagesOf(const TabPanel& panel) {
    int pages = 0;
    for (const Control* control : panel.form().controls()) {
        const auto* page = dynamic_cast<const TabPage*>(&control->parent());
        if (page != nullptr && &page->panel() == &panel) pages = std::max(pages, page->index() + 1);
    }
    return pages;
}

}  // namespace vorbano
