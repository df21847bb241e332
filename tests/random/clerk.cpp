#include "random/clerk.h"

#include <algorithm>
#include <array>

#include "random/vocabulary.h"
#include "storage/codepage.h"

namespace vorbano::test {

namespace {

bool isCommand(Kind kind) { return kind == Kind::button || kind == Kind::checkBox || kind == Kind::option; }

bool endsThings(const Control& control) {
    constexpr std::array names = {"cmdAnnulla", "cmdRiavvia", "cmdDisattiva", "cmdChiudi", "Esci"};
    return std::any_of(names.begin(), names.end(),
                       [&](std::string_view name) { return control.name().find(name) != std::string::npos; });
}

/// A leaf of the menu that can be chosen.
bool isWay(const Control& control) {
    if (control.kind() != Kind::menuEntry) return false;
    const auto& entry = static_cast<const MenuEntry&>(control);
    return entry.canBeChosen() && entry.clicked.hasProcedure();
}

bool canBeUsed(const Control& control) {
    if (control.kind() == Kind::menuEntry) return isWay(control);
    if (control.kind() == Kind::frame) return control.isOperable() && control.hasWidget();
    return control.takesFocus();
}

/// Pages of a tab panel, as far as controls stand on them.
int pagesOf(const TabPanel& panel) {
    int pages = 1;
    for (const Control* control : panel.form().controls()) {
        const auto* page = dynamic_cast<const TabPage*>(&control->parent());
        if (page != nullptr && &page->panel() == &panel) pages = std::max(pages, page->index() + 1);
    }
    return pages;
}

/// As many characters as the field lets be pasted.
std::string cutTo(std::string text, int length) {
    if (length == 0) return text;
    std::size_t at = 0;
    for (; at < text.size(); ++at) {
        const bool begins = (static_cast<unsigned char>(text[at]) & 0xC0U) != 0x80U;
        if (begins && length-- == 0) break;
    }
    text.resize(at);
    return text;
}

}  // namespace

void RandomClerk::opened(const Form& form) {
    Errand errand{someElection(storedElections(files_), chance_), {}};
    if (chance_.percent(75)) {
        for (const Control* control : form.controls()) {
            const bool list = control->kind() == Kind::comboBox;
            if (list || control->name() == "txtDataEle") errand.fields.push_back(control->name());
        }
        for (const char* search : {"txtNumDip", "cmdRicerca", "cmdAnteprima", "cmdAttiva"}) {
            errand.fields.emplace_back(search);
        }
    }
    errands_.push_back(std::move(errand));
}

std::optional<Gesture> RandomClerk::planned(Form& form) {
    auto& fields = errands_.back().fields;
    while (!fields.empty()) {
        Control* control = form.find(fields.front());
        fields.pop_front();
        if (control == nullptr || !canBeUsed(*control)) continue;
        if (auto gesture = on(*control)) return gesture;
    }
    return std::nullopt;
}

Gesture RandomClerk::next(Form& form) {
    if (auto gesture = planned(form)) return *gesture;
    const int mood = chance_.below(1000);
    if (mood < 10) return {Verb::close, nullptr, {}};
    if (mood < 16) return {Verb::back, nullptr, {}};
    Control* control = nullptr;
    if (mood < 430) {
        control = form.focused();
    } else if (mood < 560) {
        return {Verb::leave, nullptr, {}};
    } else {
        control = someOperable(form, mood < 860);
    }
    if (control != nullptr && canBeUsed(*control)) {
        if (auto gesture = on(*control)) return *gesture;
    }
    return {Verb::leave, nullptr, {}};
}

Control* RandomClerk::someOperable(Form& form, bool commandsOnly) {
    std::vector<Control*> offered;
    for (Control* control : form.controls()) {
        const bool wanted = isCommand(control->kind()) || isWay(*control);
        if (canBeUsed(*control) && (wanted || !commandsOnly)) offered.push_back(control);
    }
    if (offered.empty()) return nullptr;
    Control* control = chance_.oneOf(offered);
    return endsThings(*control) && chance_.percent(90) ? nullptr : control;
}

Gesture RandomClerk::typing(TextBox& box) {
    std::string words = wordsFor(box.name(), errands_.back().election, chance_);
    const bool keys =
        std::none_of(words.begin(), words.end(), [](char one) { return static_cast<unsigned char>(one) < ' '; });
    if (keys && (words.size() < 200 || chance_.percent(10))) return {Verb::type, &box, std::move(words)};
    return {Verb::paste, &box, cutTo(std::move(words), box.maxLength)};
}

std::optional<Gesture> RandomClerk::choosing(ItemControl& list) {
    const auto& items = list.items();
    if (items.empty()) return std::nullopt;
    const Election& election = errands_.back().election;
    int row = chance_.below(static_cast<int>(items.size()));
    if (chance_.percent(85)) {
        for (const std::string& wanted : {election.type, election.date}) {
            if (const int there = list.find(wanted); there >= 0) row = there;
        }
    }
    return Gesture{Verb::choose, &list, std::string(trim(items[static_cast<std::size_t>(row)])), row};
}

std::optional<Gesture> RandomClerk::on(Control& control) {
    switch (control.kind()) {
        case Kind::textBox:
            if (control.isLocked()) return std::nullopt;
            return typing(static_cast<TextBox&>(control));
        case Kind::button:
        case Kind::option:
            return Gesture{Verb::click, &control, {}};
        case Kind::checkBox:
            return Gesture{static_cast<CheckBox&>(control).checked() ? Verb::untick : Verb::tick, &control, {}};
        case Kind::comboBox:
        case Kind::listBox:
            return choosing(static_cast<ItemControl&>(control));
        case Kind::grid: {
            const auto& cells = static_cast<Grid&>(control).cells();
            const int row = chance_.below(static_cast<int>(cells.size()));
            const auto columns = static_cast<int>(cells[static_cast<std::size_t>(row)].size());
            if (columns == 0) return std::nullopt;
            return Gesture{Verb::pick, &control, {}, row, chance_.below(columns)};
        }
        case Kind::frame:
            return Gesture{chance_.percent(50) ? Verb::press : Verb::move, &control, {}};
        case Kind::tabPanel:
            return Gesture{Verb::tab, &control, {}, chance_.below(pagesOf(static_cast<TabPanel&>(control)))};
        case Kind::menuEntry:
            return Gesture{Verb::menu, &control, {}};
        case Kind::label:
        case Kind::timer:
            return std::nullopt;
    }
    return std::nullopt;
}

}  // namespace vorbano::test
