#include "scenario/widget_looks.h"

#include <QAbstractButton>
#include <QAction>
#include <QComboBox>
#include <QLineEdit>
#include <QListWidget>
#include <QTableWidget>

#include "platform/qt/form_window.h"

namespace vorbano {

namespace {

std::string unless(bool same, const std::string& seen) { return same ? std::string() : seen; }

/// An entry with all the menus above it.
template <class Test>
bool throughout(const FormWindow& window, const Control& entry, Test&& test) {
    for (const auto* one = static_cast<const MenuEntry*>(&entry); one != nullptr; one = one->above()) {
        const QAction* action = window.actionOf(*one);
        if (action == nullptr || !test(*action)) return false;
    }
    return true;
}

std::string lookAtEntry(const Line& look, const FormWindow& window, const Control& control) {
    if (look.kind != LineKind::expectState) return {};
    const bool visible = throughout(window, control, [](const QAction& one) { return one.isVisible(); });
    const bool enabled = throughout(window, control, [](const QAction& one) { return one.isEnabled(); });
    switch (look.state) {
        case State::visible:
        case State::hidden:
            return unless(visible == (look.state == State::visible),
                          visible ? "its entry shows" : "its entry is hidden");
        case State::enabled:
        case State::disabled:
            // The window may disable more: an entry that is hidden cannot be used there.
            return unless(enabled == (look.state == State::enabled) || !visible,
                          enabled ? "its entry is enabled" : "its entry is disabled");
        default:
            return {};
    }
}

std::string lookAtMark(const QWidget& widget, bool wanted) {
    const auto* button = qobject_cast<const QAbstractButton*>(&widget);
    if (button == nullptr) return {};
    return unless(button->isChecked() == wanted, wanted ? "it is shown without its mark" : "it is shown with a mark");
}

std::string lookAtState(const Line& look, const FormWindow& window, const Control& control, const QWidget& widget) {
    switch (look.state) {
        case State::enabled:
        case State::disabled:
            return unless(widget.isEnabled() == control.isEnabled(),
                          widget.isEnabled() ? "its widget is enabled" : "its widget is disabled");
        case State::visible:
        case State::hidden: {
            const bool seen = widget.isVisibleTo(&window);
            return unless(seen == (look.state == State::visible), seen ? "its widget shows" : "its widget is hidden");
        }
        case State::ticked:
        case State::unticked:
            return lookAtMark(widget, look.state == State::ticked);
        case State::focused: {
            const QWidget* focused = window.focusWidget();
            const bool same = focused == &widget || (focused != nullptr && widget.isAncestorOf(focused));
            return unless(same, focused == nullptr ? "no widget has the focus"
                                                   : "the focus is on " + focused->objectName().toStdString());
        }
    }
    return {};
}

std::string lookAtText(const Control& control, const QWidget& widget) {
    if (const auto* line = qobject_cast<const QLineEdit*>(&widget)) {
        return unless(line->text().toStdString() == control.shownText(), "\"" + line->text().toStdString() + "\"");
    }
    return {};
}

std::string lookAtItems(const Line& look, const QWidget& widget) {
    int items = look.count;
    if (const auto* combo = qobject_cast<const QComboBox*>(&widget)) items = combo->count();
    if (const auto* list = qobject_cast<const QListWidget*>(&widget)) items = list->count();
    if (const auto* table = qobject_cast<const QTableWidget*>(&widget)) items = table->rowCount();
    return unless(items == look.count, std::to_string(items) + " are shown");
}

std::string lookAtCell(const Line& look, const Control& control, const QWidget& widget) {
    const auto* table = qobject_cast<const QTableWidget*>(&widget);
    if (table == nullptr) return {};
    const QTableWidgetItem* cell =
        look.count == 0 ? table->horizontalHeaderItem(look.column) : table->item(look.count - 1, look.column);
    const std::string shown = cell == nullptr ? std::string() : cell->text().toStdString();
    return unless(shown == static_cast<const Grid&>(control).cell(look.count, look.column), "\"" + shown + "\"");
}

}  // namespace

std::string lookAtWidget(const Line& look, const FormWindow& window, const Control& control) {
    if (control.kind() == Kind::menuEntry) return lookAtEntry(look, window, control);
    const QWidget* widget = window.widgetOf(control);
    // A label that only carries a flag, or a timer.
    if (widget == nullptr) return {};
    switch (look.kind) {
        case LineKind::expectState:
            return lookAtState(look, window, control, *widget);
        case LineKind::expectItems:
            return lookAtItems(look, *widget);
        case LineKind::expectCell:
            return lookAtCell(look, control, *widget);
        case LineKind::expectText:
            return lookAtText(control, *widget);
        default:
            return {};
    }
}

}  // namespace vorbano
