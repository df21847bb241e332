#pragma once

// The clerk's mouse and keyboard: events handed to a window as the window system would, so that they find their way as
// real ones do, past whatever covers, blocks or grabs.

#include <QPoint>
#include <QString>
#include <Qt>

class QWidget;

namespace vorbano {

/// Brings the widget into view where it can be scrolled. Why the pointer cannot meet it at `at` (in its own
/// coordinates), in words; "" when it can.
[[nodiscard]] QString reach(QWidget& widget, QPoint at);

/// Button down and up; an up alone goes to whoever has taken the down. The window may be gone in between.
void pressPointer(QWidget& widget, QPoint at);
void releasePointer(QWidget& widget, QPoint at);
void clickPointer(QWidget& widget, QPoint at);
/// The pointer comes to lie there, from somewhere else.
void movePointer(QWidget& widget, QPoint at);

/// One key down and up, in the window of the widget; the one with the focus gets it.
void pressKey(QWidget& window, Qt::Key key, Qt::KeyboardModifiers modifiers = {});
/// A key that brings a character.
void typeCharacter(QWidget& window, const QString& character);

}  // namespace vorbano
