#include "platform/qt/plain_window.h"

#include <QGridLayout>
#include <QLabel>
#include <QTabWidget>
#include <QWidget>
#include <map>

#include "platform/form.h"
#include "platform/qt/widget_binding.h"

namespace vorbano {

namespace {

class PlainWindow {
  public:
    PlainWindow(const Form& form, QWidget& content) { layouts_[&form] = new QGridLayout(&content); }

    void add(Control& control) {
        const WidgetBinding* binding = bindingOf(control.kind());
        if (binding == nullptr || !control.hasWidget()) return;
        QGridLayout* layout = layoutOf(control.parent());
        QWidget* widget = binding->make(layout->parentWidget());
        widget->setObjectName(shown(control.name()));
        const int row = layout->rowCount();
        auto* name = new QLabel(shown(control.name()));
        name->setBuddy(widget);
        layout->addWidget(name, row, 0);
        layout->addWidget(widget, row, 1);
        if (control.kind() == Kind::frame) layouts_[static_cast<Frame*>(&control)] = new QGridLayout(widget);
        if (control.kind() == Kind::tabPanel) panels_[&control] = static_cast<QTabWidget*>(widget);
    }

  private:
    QGridLayout* layoutOf(Container& container) {
        const auto at = layouts_.find(&container);
        if (at != layouts_.end()) return at->second;
        // Only the pages of a tab panel are not there beforehand.
        const auto& page = dynamic_cast<const TabPage&>(container);
        QTabWidget* panel = panels_.at(&page.panel());
        while (panel->count() <= page.index()) panel->addTab(new QWidget, QString::number(panel->count() + 1));
        auto* layout = new QGridLayout(panel->widget(page.index()));
        layouts_[&container] = layout;
        return layout;
    }

    std::map<const Container*, QGridLayout*> layouts_;
    std::map<const Control*, QTabWidget*> panels_;
};

}  // namespace

void buildPlainWindow(const Form& form, QWidget& content) {
    PlainWindow plain(form, content);
    for (Control* control : form.controls()) plain.add(*control);
}

}  // namespace vorbano
