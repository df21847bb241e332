#pragma once

#include <map>

#include "platform/control.h"
#include "platform/qt/widget_binding.h"

class QAction;
class QMenu;
class QMenuBar;
class QWidget;

namespace vorbano {

/// The menu bar of a window, made from the menu entries of its form.
class WindowMenu {
  public:
    /// Without entries there is no bar.
    WindowMenu(const Form& form, QWidget& window, const Act& act);

    [[nodiscard]] QMenuBar* bar() const { return bar_; }
    /// nullptr when the control is no menu entry.
    [[nodiscard]] QAction* actionOf(const Control& control) const;
    /// Brings texts and states of all entries from the form. An entry all of whose sub-entries are hidden is hidden.
    void bring();

  private:
    void add(MenuEntry& entry, const Act& act);
    [[nodiscard]] bool hasEntriesBelow(const MenuEntry& entry) const;
    [[nodiscard]] bool isShown(const MenuEntry& entry) const;

    QMenuBar* bar_ = nullptr;
    std::vector<MenuEntry*> entries_;
    std::map<const Control*, QAction*> actions_;
    std::map<const Control*, QMenu*> menus_;
};

}  // namespace vorbano
