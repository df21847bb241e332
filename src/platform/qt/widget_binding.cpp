#include "platform/qt/widget_binding.h"

#include <QAbstractButton>
#include <QCheckBox>
#include <QEvent>
#include <QFrame>
#include <QGroupBox>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QStyle>
#include <algorithm>

namespace vorbano {

namespace {

constexpr int anyLength = 32767;

/// The caption that a widget shows for the form's one. The window's own words stay as long as the program has given
/// none, and where they differ in the mnemonic alone: the window knows which letters its other captions have taken.
QString caption(QWidget& widget, const QString& present, const std::string& wanted) {
    constexpr const char* given = "captionGiven";
    const QString text = shown(wanted);
    if (text == present || (text.isEmpty() && !widget.property(given).toBool())) return present;
    widget.setProperty(given, true);
    const bool onlyMnemonic =
        (present.contains('&') || !text.contains('&')) && withoutMnemonic(present) == withoutMnemonic(text);
    return onlyMnemonic ? present : text;
}

// Text box

void hangTextBox(Control& control, QWidget& widget, const Act& act) {
    auto& line = static_cast<QLineEdit&>(widget);
    if (line.property("amount").toBool()) line.setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    QObject::connect(&line, &QLineEdit::textEdited, &line, [&control, act](const QString& text) {
        act(control, [&](Operator& clerk) { return clerk.edit(control, text.toStdString()); });
    });
}

void bringTextBox(const Control& control, QWidget& widget) {
    const auto& box = static_cast<const TextBox&>(control);
    auto& line = static_cast<QLineEdit&>(widget);
    const QString text = shown(box.text());
    // The limit is for what is typed; the program may have assigned more, and that is shown whole.
    const int most = box.maxLength == 0 ? anyLength : std::max(box.maxLength, static_cast<int>(text.size()));
    if (line.maxLength() != most) line.setMaxLength(most);  // even an equal one would take the marking away
    if (line.text() != text) {
        line.setText(text);
        if (!line.hasFocus()) line.setCursorPosition(0);
    }
    if (box.markedFrom() >= 0) {
        const auto before =
            static_cast<int>(shown(box.text().substr(0, static_cast<std::size_t>(box.markedFrom()))).size());
        line.setSelection(before, static_cast<int>(text.size()) - before);
    }
    line.setReadOnly(box.locked());
    setStyleMark(widget, "tone", toneName(box.tone()));
}

// Label

void hangLabel(Control& control, QWidget& widget, const Act& act) {
    (void)control;
    (void)act;
    static_cast<QLabel&>(widget).setTextFormat(Qt::PlainText);
}

void bringLabel(const Control& control, QWidget& widget) {
    const auto& label = static_cast<const Label&>(control);
    auto& shownLabel = static_cast<QLabel&>(widget);
    const QString text = shown(label.text());
    const bool onlyMnemonic =
        shownLabel.buddy() != nullptr && !text.contains('&') && shownLabel.text().remove('&') == text;
    if (shownLabel.text() != text && !onlyMnemonic) shownLabel.setText(text);
    setStyleMark(widget, "tone", toneName(label.tone()));
}

// Button

void clickControl(Control& control, const Act& act) {
    act(control, [&](Operator& clerk) { return clerk.click(control); });
}

void activateByClick(Control& control, QWidget& widget, const Act& act) {
    (void)widget;
    clickControl(control, act);
}

void hangClick(Control& control, QWidget& widget, const Act& act) {
    auto& button = static_cast<QAbstractButton&>(widget);
    button.setAutoExclusive(false);
    QObject::connect(&button, &QAbstractButton::clicked, &button, [&control, act] { clickControl(control, act); });
}

void hangButton(Control& control, QWidget& widget, const Act& act) {
    auto& button = static_cast<QPushButton&>(widget);
    button.setAutoDefault(false);
    button.setDefault(false);
    hangClick(control, widget, act);
}

void bringButton(const Control& control, QWidget& widget) {
    const auto& source = static_cast<const Button&>(control);
    auto& button = static_cast<QPushButton&>(widget);
    const QString text = caption(button, button.text(), source.text());
    if (button.text() != text) button.setText(text);
    setStyleMark(widget, "tone", toneName(source.tone()));
}

/// Arrows go along buttons and marks as Tab does, so that a group of options can be walked through.
bool walkKey(Control& control, QWidget& widget, const QKeyEvent& key, const Act& act) {
    (void)widget;
    const bool forward = key.key() == Qt::Key_Down || key.key() == Qt::Key_Right;
    if (!forward && key.key() != Qt::Key_Up && key.key() != Qt::Key_Left) return false;
    act(control, [&](Operator& clerk) {
        clerk.leave(forward);
        return Refusal::none;
    });
    return true;
}

bool buttonKey(Control& control, QWidget& widget, const QKeyEvent& key, const Act& act) {
    if (key.key() != Qt::Key_Return && key.key() != Qt::Key_Enter) return walkKey(control, widget, key, act);
    if (!key.isAutoRepeat()) clickControl(control, act);
    return true;
}

// Check box and option

void hangCheckBox(Control& control, QWidget& widget, const Act& act) {
    QObject::connect(static_cast<QCheckBox*>(&widget), &QCheckBox::clicked, &widget, [&control, act](bool ticked) {
        act(control, [&](Operator& clerk) { return clerk.tick(control, ticked); });
    });
}

template <class Source>
void bringMark(const Control& control, QWidget& widget) {
    const auto& source = static_cast<const Source&>(control);
    auto& button = static_cast<QAbstractButton&>(widget);
    const QString text = caption(button, button.text(), source.text());
    if (button.text() != text) button.setText(text);
    button.setChecked(source.checked());
}

void turnCheckBox(Control& control, QWidget& widget, const Act& act) {
    (void)widget;
    const bool ticked = !static_cast<const CheckBox&>(control).checked();
    act(control, [&](Operator& clerk) { return clerk.tick(control, ticked); });
}

// Frame

void bringFrame(const Control& control, QWidget& widget) {
    const auto& frame = static_cast<const Frame&>(control);
    if (auto* group = qobject_cast<QGroupBox*>(&widget)) {
        const QString text = caption(*group, group->title(), frame.text());
        if (group->title() != text) group->setTitle(text);
    }
    setStyleMark(widget, "tone", toneName(frame.tone()));
}

constexpr WidgetBinding textBinding{.kind = Kind::textBox,
                                    .classes = {"QLineEdit"},
                                    .make = newWidget<QLineEdit>,
                                    .hang = hangTextBox,
                                    .bring = bringTextBox};
constexpr WidgetBinding labelBinding{
    .kind = Kind::label, .classes = {"QLabel"}, .make = newWidget<QLabel>, .hang = hangLabel, .bring = bringLabel};
constexpr WidgetBinding buttonBinding{.kind = Kind::button,
                                      .classes = {"QPushButton"},
                                      .make = newWidget<QPushButton>,
                                      .hang = hangButton,
                                      .bring = bringButton,
                                      .activate = activateByClick,
                                      .key = buttonKey};
constexpr WidgetBinding checkBinding{.kind = Kind::checkBox,
                                     .classes = {"QCheckBox"},
                                     .make = newWidget<QCheckBox>,
                                     .hang = hangCheckBox,
                                     .bring = bringMark<CheckBox>,
                                     .activate = turnCheckBox,
                                     .key = walkKey};
constexpr WidgetBinding optionBinding{.kind = Kind::option,
                                      .classes = {"QRadioButton"},
                                      .make = newWidget<QRadioButton>,
                                      .hang = hangClick,
                                      .bring = bringMark<Option>,
                                      .activate = activateByClick,
                                      .key = walkKey};
constexpr WidgetBinding frameBinding{
    .kind = Kind::frame, .classes = {"QGroupBox", "QFrame"}, .make = newWidget<QGroupBox>, .bring = bringFrame};

}  // namespace

const WidgetBinding* bindingOf(Kind kind) {
    static const std::array<const WidgetBinding*, 10> all{&textBinding,   &labelBinding, &buttonBinding, &checkBinding,
                                                          &optionBinding, &frameBinding, &comboBinding,  &listBinding,
                                                          &gridBinding,   &tabBinding};
    const auto* const at =
        std::find_if(all.begin(), all.end(), [&](const WidgetBinding* one) { return one->kind == kind; });
    return at == all.end() ? nullptr : *at;
}

bool fits(const WidgetBinding& binding, const QWidget& widget) {
    return std::any_of(binding.classes.begin(), binding.classes.end(),
                       [&](const char* name) { return name != nullptr && widget.inherits(name); });
}

bool isMeantToShow(const Control& control) {
    if (!control.visible()) return false;
    if (const auto* frame = dynamic_cast<const Frame*>(&control.parent())) return isMeantToShow(*frame);
    if (const auto* page = dynamic_cast<const TabPage*>(&control.parent())) return isMeantToShow(page->panel());
    return true;
}

QString shown(const std::string& text) { return QString::fromStdString(text); }

QString withoutMnemonic(QString caption) {
    caption.replace(QStringLiteral("&&"), QStringLiteral("\x01")).remove('&').replace('\x01', '&');
    caption = caption.trimmed();
    if (caption.endsWith(':')) caption.chop(1);
    return caption;
}

QString toneName(Tone tone) {
    switch (tone) {
        case Tone::plain:
            return QStringLiteral("plain");
        case Tone::done:
            return QStringLiteral("done");
        case Tone::active:
            return QStringLiteral("active");
        case Tone::wrong:
            return QStringLiteral("wrong");
        case Tone::oldTariffs:
            return QStringLiteral("oldTariffs");
        case Tone::newTariffs:
            return QStringLiteral("newTariffs");
    }
    return {};
}

void setStyleMark(QWidget& widget, const char* property, const QString& value) {
    if (widget.property(property).toString() == value) return;
    widget.setProperty(property, value);
    widget.style()->unpolish(&widget);
    widget.style()->polish(&widget);
    widget.update();
}

}  // namespace vorbano
