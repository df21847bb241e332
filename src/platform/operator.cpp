#include "platform/operator.h"

#include <algorithm>
#include <string>

namespace vorbano {

namespace {

/// Bytes of the UTF-8 character that begins with `first`.
std::size_t characterLength(char first) {
    const auto byte = static_cast<unsigned char>(first);
    if (byte < 0x80) return 1;
    if (byte < 0xE0) return 2;
    return byte < 0xF0 ? 3 : 4;
}

int characters(std::string_view utf8) {
    int count = 0;
    for (const char byte : utf8) count += (static_cast<unsigned char>(byte) & 0xC0U) != 0x80U ? 1 : 0;
    return count;
}

}  // namespace

std::string_view inWords(Refusal refusal) {
    switch (refusal) {
        case Refusal::none:
            return "can be used";
        case Refusal::hidden:
            return "is not visible";
        case Refusal::disabled:
            return "is disabled";
        case Refusal::locked:
            return "is locked";
        case Refusal::wrongKind:
            return "is not of that kind";
        case Refusal::noSuchItem:
            return "has no such item";
    }
    return {};
}

Refusal Operator::refusal(const Control& control) {
    if (!control.isVisible() || !control.hasWidget()) return Refusal::hidden;
    if (!control.isEnabled()) return Refusal::disabled;
    return control.isLocked() ? Refusal::locked : Refusal::none;
}

bool Operator::reaches(Control& control) {
    form_.focus(control);
    return form_.focused() == &control;
}

Refusal Operator::done() {
    form_.settleFocus();
    return dropped();
}

Refusal Operator::dropped() {
    if (form_.isOpen()) form_.gestureEnded.fire();
    return Refusal::none;
}

Refusal Operator::enter(Control& control) {
    if (const Refusal why = refusal(control); why != Refusal::none) return why;
    if (!control.takesFocus()) return Refusal::wrongKind;
    form_.focus(control);
    return done();
}

Refusal Operator::type(Control& control, std::string_view text) {
    if (control.kind() != Kind::textBox) return Refusal::wrongKind;
    if (const Refusal why = refusal(control); why != Refusal::none) return why;
    if (!reaches(control)) return dropped();
    auto& box = static_cast<TextBox&>(control);
    if (text.empty()) box.text = std::string();
    bool first = true;
    while (!text.empty()) {
        const std::size_t length = std::min(characterLength(text.front()), text.size());
        const std::string_view key = text.substr(0, length);
        text.remove_prefix(length);
        std::string before = first ? std::string() : box.text();
        if (!first && box.markedFrom() >= 0) before.resize(static_cast<std::size_t>(box.markedFrom()));
        first = false;
        if (box.maxLength != 0 && characters(before) >= box.maxLength) continue;
        box.typed(before + std::string(key));
        if (form_.focused() != &control) break;
    }
    return done();
}

Refusal Operator::edit(Control& control, std::string_view text) {
    if (control.kind() != Kind::textBox) return Refusal::wrongKind;
    if (const Refusal why = refusal(control); why != Refusal::none) return why;
    if (!reaches(control)) return dropped();
    static_cast<TextBox&>(control).typed(std::string(text));
    return done();
}

void Operator::leave(bool forward) {
    Control* next = forward ? form_.after(form_.focused()) : form_.before(form_.focused());
    if (next == nullptr) return;
    if (next == form_.focused()) {
        // The only control that can be reached: it is left and entered again.
        form_.leaveAndReturn();
    } else {
        form_.focus(*next);
    }
    (void)done();
}

Refusal Operator::click(Control& control) {
    if (control.kind() != Kind::button && control.kind() != Kind::option) return Refusal::wrongKind;
    if (const Refusal why = refusal(control); why != Refusal::none) return why;
    if (!reaches(control)) return dropped();
    if (control.kind() == Kind::button) {
        static_cast<Button&>(control).clicked.fire();
    } else {
        static_cast<Option&>(control).checked = true;
    }
    return done();
}

Refusal Operator::tick(Control& control, bool ticked) {
    if (control.kind() != Kind::checkBox) return Refusal::wrongKind;
    if (const Refusal why = refusal(control); why != Refusal::none) return why;
    if (!reaches(control)) return dropped();
    static_cast<CheckBox&>(control).checked = ticked;
    return done();
}

Refusal Operator::choose(Control& control, std::string_view text) {
    if (control.kind() != Kind::comboBox && control.kind() != Kind::listBox) return Refusal::wrongKind;
    return chooseIndex(control, static_cast<ItemControl&>(control).find(text));
}

Refusal Operator::chooseIndex(Control& control, int index) {
    if (control.kind() != Kind::comboBox && control.kind() != Kind::listBox) return Refusal::wrongKind;
    if (const Refusal why = refusal(control); why != Refusal::none) return why;
    auto& list = static_cast<ItemControl&>(control);
    if (index < 0 || index >= static_cast<int>(list.items().size())) return Refusal::noSuchItem;
    if (!reaches(control)) return dropped();
    list.choose(index);
    return done();
}

Refusal Operator::pick(Control& control, int row, int column) {
    if (control.kind() != Kind::grid) return Refusal::wrongKind;
    if (const Refusal why = refusal(control); why != Refusal::none) return why;
    auto& grid = static_cast<Grid&>(control);
    const bool there = row >= 0 && row <= grid.rows() && column >= 0 &&
                       column < static_cast<int>(grid.cells()[static_cast<std::size_t>(row)].size());
    if (!there) return Refusal::noSuchItem;
    if (!reaches(control)) return dropped();
    grid.row = row;
    grid.column = column;
    grid.picked.fire();
    return done();
}

Refusal Operator::press(Control& control) {
    if (control.kind() != Kind::frame) return Refusal::wrongKind;
    if (const Refusal why = refusal(control); why != Refusal::none) return why;
    static_cast<Frame&>(control).pressed.fire();
    return done();
}

Refusal Operator::move(Control& control) {
    if (control.kind() != Kind::frame) return Refusal::wrongKind;
    if (const Refusal why = refusal(control); why != Refusal::none) return why;
    static_cast<Frame&>(control).moved.fire();
    return done();
}

Refusal Operator::turn(Control& control, int page) {
    if (control.kind() != Kind::tabPanel) return Refusal::wrongKind;
    if (const Refusal why = refusal(control); why != Refusal::none) return why;
    if (!reaches(control)) return dropped();
    static_cast<TabPanel&>(control).page = page;
    return done();
}

Refusal Operator::menu(Control& control) {
    if (control.kind() != Kind::menuEntry) return Refusal::wrongKind;
    auto& entry = static_cast<MenuEntry&>(control);
    for (const MenuEntry* one = &entry; one != nullptr; one = one->above()) {
        if (const Refusal why = refusal(*one); why != Refusal::none) return why;
    }
    entry.clicked.fire();
    return done();
}

void Operator::close() { form_.close(); }

}  // namespace vorbano
