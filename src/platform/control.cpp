#include "platform/control.h"

#include <algorithm>

#include "platform/form.h"

namespace vorbano {

namespace {

std::string_view withoutBlanks(std::string_view text) {
    const auto first = text.find_first_not_of(' ');
    if (first == std::string_view::npos) return {};
    return text.substr(first, text.find_last_not_of(' ') - first + 1);
}

}  // namespace

Control::Control(Container& parent, Kind kind, std::string name)
    : form_(parent.form()), parent_(parent), kind_(kind), name_(std::move(name)) {
    form_.controls_.push_back(this);
}

bool Control::isVisible() const { return visible() && parent_.showsContent(); }

bool Control::isEnabled() const { return enabled() && parent_.enablesContent(); }

bool Control::takesFocus() const {
    switch (kind_) {
        case Kind::textBox:
        case Kind::button:
        case Kind::checkBox:
        case Kind::option:
        case Kind::comboBox:
        case Kind::listBox:
        case Kind::grid:
        case Kind::tabPanel:
            return hasWidget_ && isOperable();
        case Kind::label:
        case Kind::frame:
        case Kind::menuEntry:
        case Kind::timer:
            return false;
    }
    return false;
}

void Control::tell(Aspect aspect) {
    if (FormWatcher* watcher = form_.watcher()) watcher->controlChanged(*this, aspect);
    changed(aspect);
}

TextBox::TextBox(Container& parent, std::string name, int length)
    : Control(parent, Kind::textBox, std::move(name)), maxLength(length) {}

void TextBox::changed(Aspect aspect) {
    if (aspect != Aspect::text) return;
    markedFrom = -1;
    change.fire();
}

void TextBox::typed(std::string words) {
    const bool sameAgain = markedFrom() >= 0 && words == text();
    markedFrom = -1;
    if (sameAgain) {
        change.fire();
    } else {
        text = std::move(words);
    }
}

Label::Label(Container& parent, std::string name, std::string caption)
    : Control(parent, Kind::label, std::move(name)), text(*this, Aspect::text, std::move(caption)) {}

void Label::changed(Aspect aspect) {
    if (aspect == Aspect::text) change.fire();
}

HiddenLabel::HiddenLabel(Container& parent, std::string name, std::string value)
    : Label(parent, std::move(name), std::move(value)) {
    withoutWidget();
}

Button::Button(Container& parent, std::string name, std::string caption)
    : Control(parent, Kind::button, std::move(name)), text(*this, Aspect::text, std::move(caption)) {}

CheckBox::CheckBox(Container& parent, std::string name, std::string caption)
    : Control(parent, Kind::checkBox, std::move(name)), text(*this, Aspect::text, std::move(caption)) {}

void CheckBox::changed(Aspect aspect) {
    if (aspect == Aspect::checked) clicked.fire();
}

Option::Option(Container& parent, std::string name, std::string caption)
    : Control(parent, Kind::option, std::move(name)), text(*this, Aspect::text, std::move(caption)) {}

void Option::changed(Aspect aspect) {
    if (aspect != Aspect::checked || !checked()) return;
    for (Control* other : Control::form().controls()) {
        if (other == this || other->kind() != Kind::option || &other->parent() != &parent()) continue;
        static_cast<Option*>(other)->checked = false;
    }
    clicked.fire();
}

void ItemControl::add(std::string line) {
    Lines lines = items();
    lines.push_back(std::move(line));
    items = std::move(lines);
}

void ItemControl::removeItem(int index) {
    if (index < 0 || index >= static_cast<int>(items().size())) return;
    Lines lines = items();
    lines.erase(lines.begin() + index);
    items = std::move(lines);
    if (selection() >= index) selection = -1;
}

void ItemControl::clear() {
    selection = -1;
    items = Lines{};
}

void ItemControl::choose(int index) {
    if (index < 0 || index >= static_cast<int>(items().size())) return;
    selection = index;
    clicked.fire();
}

int ItemControl::find(std::string_view text) const {
    const auto wanted = withoutBlanks(text);
    const auto at = std::find_if(items().begin(), items().end(),
                                 [&](const std::string& line) { return withoutBlanks(line) == wanted; });
    return at == items().end() ? -1 : static_cast<int>(at - items().begin());
}

ComboBox::ComboBox(Container& parent, std::string name, Lines lines)
    : ItemControl(parent, Kind::comboBox, std::move(name)) {
    items = std::move(lines);
}

void ComboBox::clear() {
    ItemControl::clear();
    text = std::string();
}

void ComboBox::choose(int index) {
    if (index < 0 || index >= static_cast<int>(items().size())) return;
    selection = index;
    text = items()[static_cast<std::size_t>(index)];
    clicked.fire();
}

ListBox::ListBox(Container& parent, std::string name) : ItemControl(parent, Kind::listBox, std::move(name)) {}

std::string ListBox::shownText() const {
    const auto at = static_cast<std::size_t>(selection());
    return selection() >= 0 && at < items().size() ? items()[at] : std::string();
}

Grid::Grid(Container& parent, std::string name, Lines heading)
    : Control(parent, Kind::grid, std::move(name)), heading_(std::move(heading)) {
    clear();
}

std::string Grid::cell(int atRow, int atColumn) const {
    if (atRow < 0 || atColumn < 0 || atRow >= static_cast<int>(cells().size())) return {};
    const Lines& line = cells()[static_cast<std::size_t>(atRow)];
    return atColumn < static_cast<int>(line.size()) ? line[static_cast<std::size_t>(atColumn)] : std::string();
}

void Grid::setRows(std::vector<Lines> rows) {
    std::vector<Lines> lines;
    lines.reserve(rows.size() + 1);
    lines.push_back(heading_);
    for (Lines& line : rows) lines.push_back(std::move(line));
    cells = std::move(lines);
}

Frame::Frame(Container& parent, std::string name, std::string caption)
    : Control(parent, Kind::frame, std::move(name)), text(*this, Aspect::text, std::move(caption)) {}

Form& TabPage::form() { return panel_.form(); }

bool TabPage::showsContent() const { return panel_.isVisible() && panel_.page() == index_; }

bool TabPage::enablesContent() const { return panel_.isEnabled(); }

TabPanel::TabPanel(Container& parent, std::string name) : Control(parent, Kind::tabPanel, std::move(name)) {}

void TabPanel::changed(Aspect aspect) {
    if (aspect == Aspect::selection) turned.fire();
}

MenuEntry::MenuEntry(Form& form, std::string name, std::string caption)
    : Control(form, Kind::menuEntry, std::move(name)), text(*this, Aspect::text, std::move(caption)) {}

MenuEntry::MenuEntry(MenuEntry& above, std::string name, std::string caption)
    : Control(above.form(), Kind::menuEntry, std::move(name)),
      text(*this, Aspect::text, std::move(caption)),
      above_(&above) {}

bool MenuEntry::canBeChosen() const {
    return isVisible() && isEnabled() && (above_ == nullptr || above_->canBeChosen());
}

Timer::Timer(Form& form, std::string name, int interval)
    : Control(form, Kind::timer, std::move(name)), milliseconds(*this, Aspect::interval, interval) {
    enabled = false;
}

}  // namespace vorbano
