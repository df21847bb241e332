// What the clerk does with pointer and keys, on its way to the form.

#include <QApplication>
#include <QFocusEvent>
#include <QHelpEvent>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QMouseEvent>
#include <QScrollArea>
#include <QShortcutEvent>
#include <algorithm>
#include <utility>

#include "platform/qt/form_window.h"
#include "platform/qt/whole_text.h"

namespace vorbano {

bool FormWindow::event(QEvent* event) {
    if (event->type() == QEvent::WindowBlocked) ++timesBlocked_;
    if (event->type() == QEvent::Enter) pointerCame(static_cast<QEnterEvent*>(event)->position().toPoint());
    return QDialog::event(event);
}

bool FormWindow::focusNextPrevChild(bool next) {
    (void)next;
    return false;
}

void FormWindow::keyPressEvent(QKeyEvent* event) {
    switch (event->key()) {
        case Qt::Key_Escape:
            reject();
            break;
        case Qt::Key_Tab:
        case Qt::Key_Backtab:
            // No control has the focus, or none would see this key.
            operator_.leave(event->key() == Qt::Key_Tab);
            break;
        default:
            // The splash window goes away at any key. Enter never presses a button that has not the focus.
            if (place_ == Place::beside) closeByOperator();
    }
}

bool FormWindow::eventFilter(QObject* watched, QEvent* event) {
    if (watched == content_) {
        const bool needsChanged = event->type() == QEvent::LayoutRequest || event->type() == QEvent::Show;
        if (needsChanged) QMetaObject::invokeMethod(this, &FormWindow::grow, Qt::QueuedConnection);
        return false;
    }
    Control* control = ownerOf(watched);
    if (control == nullptr || !form_.isOpen()) return false;
    switch (event->type()) {
        case QEvent::MouseButtonPress:
        case QEvent::MouseButtonDblClick:
        case QEvent::MouseButtonRelease:
        case QEvent::MouseMove:
            return qobject_cast<QLabel*>(watched) == nullptr && mouseEvent(*control, watched, *event);
        case QEvent::Leave:
            if (watched == pointedAt_) pointerLeft(*pointedAt_);
            return false;
        case QEvent::KeyPress:
            return keyPressed(*control, *static_cast<QKeyEvent*>(event));
        case QEvent::Shortcut:
            return shortcut(*control, watched, *event);
        case QEvent::ToolTip:
            return showHiddenText(*static_cast<QWidget*>(watched), static_cast<QHelpEvent*>(event)->pos());
        case QEvent::FocusOut:
            focusWent(watched, *static_cast<QFocusEvent*>(event));
            return false;
        case QEvent::FocusIn:
            focusCame(*control, *static_cast<QFocusEvent*>(event));
            return false;
        case QEvent::Wheel:
            // Scrolling the window must not turn over a choice that the pointer happens to lie on.
            if (control->kind() != Kind::comboBox && control->kind() != Kind::tabPanel) return false;
            event->ignore();
            return true;
        default:
            return false;
    }
}

bool FormWindow::mouseEvent(Control& control, QObject* part, QEvent& event) {
    const auto& mouse = static_cast<const QMouseEvent&>(event);
    const bool pressed = event.type() == QEvent::MouseButtonPress || event.type() == QEvent::MouseButtonDblClick;
    if (control.kind() == Kind::frame) {
        return event.type() != QEvent::MouseButtonRelease && framePointed(static_cast<Frame&>(control), mouse);
    }
    if (pressed && mouse.button() == Qt::LeftButton) {
        dropped_ = mousePressed(control, part, mouse) ? part : nullptr;
        return dropped_ != nullptr;
    }
    if (dropped_ != part) return false;
    if (event.type() == QEvent::MouseButtonRelease) dropped_ = nullptr;
    return true;
}

bool FormWindow::mousePressed(Control& control, QObject* part, const QMouseEvent& event) {
    // What is disabled takes no press, and neither does the panel around it. In a locked field text can be marked.
    if (!control.takesFocus()) return !control.isEnabled();
    const WidgetBinding& binding = *bindingOf(control.kind());
    QWidget& widget = *widgetOf(control);
    const auto hand = [this](Control& acted, const Gesture& gesture) { act(acted, gesture); };
    if (binding.pressAt != nullptr && binding.pressAt(control, widget, part, event.position().toPoint(), hand)) {
        return true;
    }
    if (form_.focused() == &control) return false;
    const unsigned blockedBefore = timesBlocked_;
    act(control, [&](Operator& clerk) { return clerk.enter(control); });
    // The leave of the old field kept the focus: the press never happened.
    if (!form_.isOpen() || form_.focused() != &control) return true;
    if (timesBlocked_ != blockedBefore) {
        // A message box came in between and the release of the button was lost to it; the click is made good here.
        if (binding.activate != nullptr) binding.activate(control, widget, hand);
        return true;
    }
    // The text of a field that is entered stays marked as a whole.
    return control.kind() == Kind::textBox;
}

bool FormWindow::framePointed(Frame& frame, const QMouseEvent& event) {
    if (event.type() == QEvent::MouseMove) {
        if (!frame.moved.hasProcedure() || event.buttons() != Qt::NoButton) return false;
        if (std::exchange(pointedAt_, widgetOf(frame)) == widgetOf(frame)) return true;
        act(frame, [&](Operator& clerk) { return clerk.move(frame); });
        return true;
    }
    if (!frame.pressed.hasProcedure() || event.button() != Qt::LeftButton) return false;
    act(frame, [&](Operator& clerk) { return clerk.press(frame); });
    return true;
}

/// Not when another window has come above this one: then the pointer lies where it was.
void FormWindow::pointerLeft(const QWidget& panel) {
    const QWidget* above = QApplication::activeModalWidget();
    if (pointedAt_ == &panel && (above == nullptr || above == this)) pointedAt_ = nullptr;
}

void FormWindow::pointerCame(QPoint at) {
    if (pointedAt_ != nullptr && !pointedAt_->rect().contains(pointedAt_->mapFrom(this, at))) pointedAt_ = nullptr;
}

bool FormWindow::keyPressed(Control& control, const QKeyEvent& event) {
    const int key = event.key();
    if ((event.modifiers() & (Qt::ControlModifier | Qt::AltModifier)) != 0) return false;
    if (key == Qt::Key_Escape) {
        reject();
        return true;
    }
    if (place_ == Place::beside) {
        closeByOperator();
        return true;
    }
    if (key == Qt::Key_Tab || key == Qt::Key_Backtab) {
        leave(control, key == Qt::Key_Tab && (event.modifiers() & Qt::ShiftModifier) == 0);
        return true;
    }
    const WidgetBinding& binding = *bindingOf(control.kind());
    const auto hand = [this](Control& acted, const Gesture& gesture) { act(acted, gesture); };
    if (binding.key != nullptr && binding.key(control, *widgetOf(control), event, hand)) return true;
    if (key != Qt::Key_Return && key != Qt::Key_Enter) return false;
    leave(control, true);
    return true;
}

bool FormWindow::shortcut(Control& control, QObject* widget, QEvent& event) {
    if (static_cast<const QShortcutEvent&>(event).isAmbiguous() || control.kind() == Kind::tabPanel) return false;
    if (control.kind() == Kind::frame) {
        const auto& controls = form_.controls();
        const auto first = std::find_if(controls.begin(), controls.end(), [&](const Control* inside) {
            return &inside->parent() == static_cast<const Container*>(static_cast<Frame*>(&control)) &&
                   inside->takesFocus();
        });
        if (first != controls.end()) act(**first, [&](Operator& clerk) { return clerk.enter(**first); });
        return true;
    }
    const WidgetBinding& binding = *bindingOf(control.kind());
    const bool ofCaption = qobject_cast<QLabel*>(widget) != nullptr;
    if (!ofCaption && binding.activate != nullptr && control.kind() != Kind::comboBox) {
        binding.activate(control, *widgetOf(control),
                         [this](Control& acted, const Gesture& gesture) { act(acted, gesture); });
    } else {
        act(control, [&](Operator& clerk) { return clerk.enter(control); });
    }
    return true;
}

/// What is longer than its field is left with its beginning in view.
void FormWindow::focusWent(QObject* watched, const QFocusEvent& event) {
    auto* line = qobject_cast<QLineEdit*>(watched);
    const bool comesBack = event.reason() == Qt::ActiveWindowFocusReason || event.reason() == Qt::PopupFocusReason ||
                           event.reason() == Qt::MenuBarFocusReason;
    if (line != nullptr && !comesBack) line->setCursorPosition(0);
}

void FormWindow::focusCame(Control& control, const QFocusEvent& event) {
    if (following_ || form_.focused() == &control) return;
    const bool ownDoing = changing_ > 0 || event.reason() == Qt::ActiveWindowFocusReason ||
                          event.reason() == Qt::PopupFocusReason || event.reason() == Qt::MenuBarFocusReason;
    wandered_ = {&control, focusWidget(), !ownDoing};
    emit focusWandered();
}

/// Where the clerk stands behind a move of the focus, it is asked of the form; where it was only the window coming back
/// to the front, or a page that was turned, the form's own place is taken again.
void FormWindow::answerFocus() {
    const Wandered wandered = std::exchange(wandered_, {});
    if (!form_.isOpen()) return;
    if (wandered.byClerk && focusWidget() == wandered.place) {
        act(*wandered.control, [&](Operator& clerk) { return clerk.enter(*wandered.control); });
    } else {
        followFocus(false);
    }
}

}  // namespace vorbano
