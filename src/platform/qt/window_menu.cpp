#include "platform/qt/window_menu.h"

#include <QAction>
#include <QMenu>
#include <QMenuBar>
#include <algorithm>

#include "platform/form.h"

namespace vorbano {

WindowMenu::WindowMenu(const Form& form, QWidget& window, const Act& act) {
    for (Control* control : form.controls()) {
        if (control->kind() == Kind::menuEntry) entries_.push_back(static_cast<MenuEntry*>(control));
    }
    if (entries_.empty()) return;
    bar_ = new QMenuBar(&window);
    for (MenuEntry* entry : entries_) add(*entry, act);
    bring();
}

bool WindowMenu::hasEntriesBelow(const MenuEntry& entry) const {
    return std::any_of(entries_.begin(), entries_.end(),
                       [&](const MenuEntry* other) { return other->above() == &entry; });
}

void WindowMenu::add(MenuEntry& entry, const Act& act) {
    QWidget* place = bar_;
    if (entry.above() != nullptr) place = menus_.at(entry.above());
    QAction* action = nullptr;
    if (hasEntriesBelow(entry)) {
        auto* menu = new QMenu(place);
        menus_[&entry] = menu;
        action = menu->menuAction();
    } else {
        action = new QAction(place);
        QObject::connect(action, &QAction::triggered, bar_,
                         [&entry, act] { act(entry, [&](Operator& clerk) { return clerk.menu(entry); }); });
    }
    action->setObjectName(QString::fromStdString(entry.name()));
    action->setMenuRole(QAction::NoRole);
    place->addAction(action);
    actions_[&entry] = action;
}

QAction* WindowMenu::actionOf(const Control& control) const {
    const auto at = actions_.find(&control);
    return at == actions_.end() ? nullptr : at->second;
}

bool WindowMenu::isShown(const MenuEntry& entry) const {
    if (!entry.visible()) return false;
    if (!hasEntriesBelow(entry)) return true;
    return std::any_of(entries_.begin(), entries_.end(),
                       [&](const MenuEntry* other) { return other->above() == &entry && isShown(*other); });
}

void WindowMenu::bring() {
    for (const MenuEntry* entry : entries_) {
        QAction* action = actions_.at(entry);
        action->setText(shown(entry->text()));
        action->setEnabled(entry->enabled());
        action->setVisible(isShown(*entry));
    }
}

}  // namespace vorbano
