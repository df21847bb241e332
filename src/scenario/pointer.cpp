#include "scenario/pointer.h"

#include <QPointer>
#include <QScrollArea>
#include <QTest>
#include <QWidget>
#include <QWindow>

namespace vorbano {

namespace {

QWindow* windowHandleOf(const QWidget& widget) { return widget.window()->windowHandle(); }

QPoint inWindow(const QWidget& widget, QPoint at) { return widget.mapTo(widget.window(), at); }

void point(QTest::MouseAction action, QWidget& widget, QPoint at) {
    QWindow* window = windowHandleOf(widget);
    if (window == nullptr || !window->isVisible()) return;
    QTest::mouseEvent(action, window, action == QTest::MouseMove ? Qt::NoButton : Qt::LeftButton, {},
                      inWindow(widget, at));
}

void key(QWidget& widget, Qt::Key code, const QString& text, Qt::KeyboardModifiers modifiers) {
    QWindow* window = windowHandleOf(widget);
    if (window != nullptr && window->isVisible()) {
        QTest::sendKeyEvent(QTest::Click, window, code, text, modifiers);
    }
}

}  // namespace

QString reach(QWidget& widget, QPoint at) {
    const QWidget* window = widget.window();
    if (!widget.isVisible()) return QStringLiteral("is not on show in its window");
    if (!widget.isEnabled()) return QStringLiteral("cannot be used in its window");
    for (QWidget* around = widget.parentWidget(); around != nullptr && around != window;
         around = around->parentWidget()) {
        auto* area = qobject_cast<QScrollArea*>(around);
        if (area == nullptr) continue;
        const QPoint inside = widget.mapTo(area->widget(), at);
        area->ensureVisible(inside.x(), inside.y(), 20, 20);
    }
    const QWidget* met = window->childAt(inWindow(widget, at));
    if (met == &widget || (met != nullptr && widget.isAncestorOf(met))) return {};
    return met == nullptr
               ? QStringLiteral("lies outside its window")
               : QStringLiteral("is covered by ") +
                     (met->objectName().isEmpty() ? QString(met->metaObject()->className()) : met->objectName());
}

void pressPointer(QWidget& widget, QPoint at) { point(QTest::MousePress, widget, at); }

void releasePointer(QWidget& widget, QPoint at) { point(QTest::MouseRelease, widget, at); }

void clickPointer(QWidget& widget, QPoint at) {
    const QPointer<QWidget> still = &widget;
    pressPointer(widget, at);
    if (still) releasePointer(widget, at);
}

void movePointer(QWidget& widget, QPoint at) {
    // A move to where the pointer lies already would be none.
    if (QWindow* window = windowHandleOf(widget)) QTest::mouseMove(window, QPoint(1, 1));
    point(QTest::MouseMove, widget, at);
}

void pressKey(QWidget& window, Qt::Key code, Qt::KeyboardModifiers modifiers) { key(window, code, {}, modifiers); }

void typeCharacter(QWidget& window, const QString& character) {
    // What stands on a key of its own bears its code; for the others the character alone says what was typed.
    const char16_t first = character.front().toUpper().unicode();
    const auto code = character.size() == 1 && first < 0x80 ? static_cast<Qt::Key>(first) : Qt::Key_unknown;
    key(window, code, character, {});
}

}  // namespace vorbano
