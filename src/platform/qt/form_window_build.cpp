// Finding the widgets of a form's controls, and telling what is missing.

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QAbstractSpinBox>
#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QProgressBar>
#include <QScrollArea>
#include <QTabWidget>
#include <QTimer>

#include "platform/qt/form_window.h"
#include "platform/qt/window_bars.h"

namespace vorbano {

namespace {

/// A designed widget into which the clerk could put something; not a part that the toolkit made for another widget.
bool takesInput(const QWidget& widget) {
    if (widget.objectName().isEmpty() || widget.objectName().startsWith(QStringLiteral("qt_"))) return false;
    for (const QWidget* around = widget.parentWidget(); around != nullptr; around = around->parentWidget()) {
        const bool hasParts = around->inherits("QComboBox") || around->inherits("QAbstractItemView") ||
                              around->inherits("QAbstractSpinBox") || around->inherits("QMenuBar") ||
                              around->inherits("QTabBar");
        if (hasParts) return false;
    }
    for (const char* name : {"QLineEdit", "QAbstractButton", "QComboBox", "QAbstractItemView", "QTabWidget",
                             "QAbstractSpinBox", "QTextEdit", "QPlainTextEdit", "QAbstractSlider"}) {
        if (widget.inherits(name)) return !widget.inherits("QScrollBar");
    }
    return false;
}

}  // namespace

void FormWindow::bind() {
    QHash<QString, QWidget*> byName;
    for (QWidget* widget : content_->findChildren<QWidget*>()) byName.insert(widget->objectName(), widget);
    for (QWidget* widget : byName) {
        // Tab and pointer go where the form says, never where the toolkit would.
        if (takesInput(*widget)) widget->setFocusPolicy(Qt::NoFocus);
    }
    for (Control* control : form_.controls()) {
        const WidgetBinding* binding = bindingOf(control->kind());
        if (binding == nullptr || !control->hasWidget()) continue;
        QWidget* widget = byName.value(shown(control->name()), nullptr);
        if (widget != nullptr && fits(*binding, *widget)) bind(*control, *widget);
    }
    bindCaptions();
    bindTimers();
}

void FormWindow::bind(Control& control, QWidget& widget) {
    const WidgetBinding& binding = *bindingOf(control.kind());
    widgets_[&control] = &widget;
    const bool focusable = control.kind() != Kind::label && control.kind() != Kind::frame;
    if (focusable) {
        // Not the pointer's: a press asks the form first.
        QWidget* target = binding.focusPart == nullptr ? &widget : binding.focusPart(widget);
        target->setFocusPolicy(Qt::TabFocus);
        if (target != &widget) widget.setFocusPolicy(Qt::NoFocus);
    }
    if (binding.hang != nullptr) {
        binding.hang(control, widget, [this](Control& acted, const Gesture& gesture) { act(acted, gesture); });
    }
    if (control.kind() == Kind::label) return;
    owners_.insert(&widget, &control);
    widget.installEventFilter(this);
    if (control.kind() == Kind::frame && static_cast<Frame&>(control).moved.hasProcedure()) {
        widget.setMouseTracking(true);
        for (QLabel* label : widget.findChildren<QLabel*>()) label->setMouseTracking(true);
    }
    if (binding.parts == nullptr) return;
    for (QWidget* part : binding.parts(widget)) {
        if (part == nullptr) continue;
        owners_.insert(part, &control);
        part->installEventFilter(this);
    }
}

void FormWindow::bindCaptions() {
    for (QLabel* label : content_->findChildren<QLabel*>()) {
        Control* control = label->buddy() == nullptr ? nullptr : ownerOf(label->buddy());
        if (control == nullptr) continue;
        const bool givesName = widgetOf(*control)->accessibleName().isEmpty();
        const bool ofForm = form_.find(label->objectName().toStdString()) != nullptr;
        captions_.push_back({label, control, givesName, ofForm});
        owners_.insert(label, control);
        label->installEventFilter(this);
    }
}

/// Of several captions the first one that says something.
void FormWindow::giveName(const Control& control) {
    QString name;
    for (const Caption& caption : captions_) {
        if (caption.named == &control && name.isEmpty()) name = withoutMnemonic(caption.label->text());
    }
    QWidget* named = widgetOf(control);
    if (named->accessibleName() != name) named->setAccessibleName(name);
}

void FormWindow::bringCaptions(const Control& control) {
    for (const Caption& caption : captions_) {
        const bool isIt = caption.named == &control || widgetOf(control) == caption.label;
        const bool around = control.kind() == Kind::frame || control.kind() == Kind::tabPanel;
        if (!isIt && !around) continue;
        if (caption.givesName) giveName(*caption.named);
        if (caption.ofForm) continue;
        caption.label->setVisible(isMeantToShow(*caption.named));
        caption.label->setEnabled(caption.named->isEnabled());
    }
}

void FormWindow::bindTimers() {
    for (Control* control : form_.controls()) {
        if (control->kind() != Kind::timer) continue;
        auto* timer = new QTimer(this);
        timer->setObjectName(shown(control->name()));
        timers_[control] = timer;
        connect(timer, &QTimer::timeout, this, [this, control] {
            act(*control, [control](Operator&) {
                static_cast<Timer*>(control)->fired.fire();
                // In the middle of a leave, behind a message box, nobody has the focus, and the leave will go on.
                if (control->form().focused() != nullptr) control->form().settleFocus();
                return Refusal::none;
            });
        });
    }
}

void FormWindow::bringTimer(const Control& control) {
    QTimer* timer = timerOf(control);
    if (timer == nullptr) return;
    const int interval = static_cast<const Timer&>(control).milliseconds();
    const bool runs = control.isEnabled() && interval > 0;
    if (!runs) {
        timer->stop();
    } else if (!timer->isActive() || timer->interval() != interval) {
        timer->start(interval);
    }
}

std::vector<std::string> FormWindow::missingWidgets() const {
    std::vector<std::string> missing;
    for (const Control* control : form_.controls()) {
        const WidgetBinding* binding = bindingOf(control->kind());
        if (binding == nullptr || !control->hasWidget() || widgetOf(*control) != nullptr) continue;
        const auto* other = content_->findChild<QWidget*>(shown(control->name()));
        missing.push_back(control->name() + (other == nullptr
                                                 ? std::string(" has no widget")
                                                 : std::string(" is shown by a ") + other->metaObject()->className()));
    }
    for (const QWidget* widget : content_->findChildren<QWidget*>()) {
        const std::string name = widget->objectName().toStdString();
        if (takesInput(*widget) && form_.find(name) == nullptr) missing.push_back(name + " has no control");
    }
    for (const std::string& name : bars_->unknownNames()) {
        missing.push_back("a bar looks at \"" + name + "\", which is no label or text box");
    }
    if (content_->layout() == nullptr) missing.push_back(form_.name() + " has no layout");
    return missing;
}

std::vector<std::string> FormWindow::namelessWidgets() const {
    std::vector<std::string> nameless;
    for (const Control* control : form_.controls()) {
        const QWidget* widget = widgetOf(*control);
        if (widget == nullptr || control->kind() == Kind::label || control->kind() == Kind::frame) continue;
        if (control->kind() == Kind::tabPanel) continue;  // its tabs are read out
        const auto* button = qobject_cast<const QAbstractButton*>(widget);
        const bool named = !widget->accessibleName().isEmpty() || (button != nullptr && !button->text().isEmpty());
        if (!named) nameless.push_back(control->name());
    }
    return nameless;
}

std::vector<std::string> missingWidgets(Form& form) {
    const FormWindow window(form);
    std::vector<std::string> missing = window.missingWidgets();
    for (const std::string& name : window.namelessWidgets()) missing.push_back(name + " has no name to be read out");
    return missing;
}

}  // namespace vorbano
