#pragma once

// How each kind of control and its widget are kept in step: one row of a table for each kind, no code per screen.

#include <QPoint>
#include <array>
#include <functional>

#include "platform/operator.h"

class QKeyEvent;
class QObject;
class QString;
class QWidget;

namespace vorbano {

/// A gesture of the operator on a control, on its way to the form.
using Gesture = std::function<Refusal(Operator&)>;
/// Hands a gesture to the form and lets the window follow what came of it.
using Act = std::function<void(Control&, const Gesture&)>;

/// A place for the pointer.
struct Spot {
    QWidget* widget = nullptr;
    QPoint at;
};

/// One kind of control. A member that is nullptr has nothing to do for that kind.
struct WidgetBinding {
    Kind kind{};
    /// Classes of widget that can show it; the first one is what a generated window uses.
    std::array<const char*, 2> classes{};
    QWidget* (*make)(QWidget* parent) = nullptr;
    /// Hangs the widget's signals on the form; once.
    void (*hang)(Control&, QWidget&, const Act&) = nullptr;
    /// Brings text, choice and marks from the form to the widget.
    void (*bring)(const Control&, QWidget&) = nullptr;
    /// Brings lines or cells, which may be thousands; done once for many changes.
    void (*bringContent)(const Control&, QWidget&) = nullptr;
    /// What a click at rest or the mnemonic does.
    void (*activate)(Control&, QWidget&, const Act&) = nullptr;
    /// The pointer was pressed at a place of the widget or of a part of it; true when a line, cell or page was met.
    bool (*pressAt)(Control&, QWidget&, const QObject* part, QPoint at, const Act&) = nullptr;
    /// A key that means something of its own for the kind; true when it was used.
    bool (*key)(Control&, QWidget&, const QKeyEvent&, const Act&) = nullptr;
    /// Where the pointer meets a line, cell or page; scrolled into view first.
    Spot (*spot)(QWidget&, int line, int column) = nullptr;
    /// The parts of the widget that receive the pointer in its stead.
    std::array<QWidget*, 2> (*parts)(QWidget&) = nullptr;
    /// The part that holds the keyboard; the widget itself when nullptr.
    QWidget* (*focusPart)(QWidget&) = nullptr;
};

template <class Widget>
QWidget* newWidget(QWidget* parent) {
    return new Widget(parent);
}

/// nullptr for menu entries and timers, which have no widget.
[[nodiscard]] const WidgetBinding* bindingOf(Kind kind);
/// The widget can show a control of that kind.
[[nodiscard]] bool fits(const WidgetBinding& binding, const QWidget& widget);

/// It is meant to be seen, whichever page of a tab panel is open: the toolkit shows and hides the pages by itself.
[[nodiscard]] bool isMeantToShow(const Control& control);

/// UTF-8 of the program as the toolkit's text.
[[nodiscard]] QString shown(const std::string& text);
/// "&Salva modifica:" as it is read: "Salva modifica".
[[nodiscard]] QString withoutMnemonic(QString caption);
/// Sets the property that the style sheet looks at, and lets it look again when it changed.
void setStyleMark(QWidget& widget, const char* property, const QString& value);
/// The tone as the style sheet knows it.
[[nodiscard]] QString toneName(Tone tone);

// The rows for lists (widget_binding_lists.cpp).
extern const WidgetBinding comboBinding;
extern const WidgetBinding listBinding;
extern const WidgetBinding gridBinding;
extern const WidgetBinding tabBinding;

}  // namespace vorbano
