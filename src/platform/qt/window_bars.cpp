#include "platform/qt/window_bars.h"

#include <QLocale>
#include <QProgressBar>
#include <algorithm>
#include <cmath>
#include <limits>

#include "platform/qt/widget_binding.h"

namespace vorbano {

namespace {

/// "1.234,5" and "1234" as whole hours; what is no number counts as none.
int hoursIn(const Control& control) {
    QString text = shown(control.shownText()).trimmed();
    text.remove('.');
    bool isNumber = false;
    const double hours = QLocale(QLocale::Italian, QLocale::Italy).toDouble(text, &isNumber);
    constexpr double most = std::numeric_limits<int>::max();
    return isNumber ? static_cast<int>(std::trunc(std::clamp(hours, -most, most))) : 0;
}

/// Words longer than the bar make it wider; it keeps that width, so that nothing beside it moves to and fro.
void makeRoomForWords(QProgressBar& bar) {
    constexpr int around = 8;  // frame, and a little air
    const int needed = bar.fontMetrics().horizontalAdvance(bar.text()) + around;
    if (needed > bar.minimumWidth()) bar.setMinimumWidth(needed);
}

}  // namespace

const Control* WindowBars::source(const Form& form, const QProgressBar& bar, const char* property) {
    const std::string name = bar.property(property).toString().toStdString();
    const Control* control = form.find(name);
    if (control != nullptr && (control->kind() == Kind::label || control->kind() == Kind::textBox)) return control;
    unknownNames_.push_back(name);
    return nullptr;
}

WindowBars::WindowBars(const Form& form, const QWidget& window) {
    for (QProgressBar* widget : window.findChildren<QProgressBar*>()) {
        if (!widget->property("valueFrom").isValid() && !widget->property("maximumFrom").isValid()) continue;
        const Control* value = source(form, *widget, "valueFrom");
        const Control* maximum = source(form, *widget, "maximumFrom");
        if (value == nullptr || maximum == nullptr) continue;
        widget->setFocusPolicy(Qt::NoFocus);
        widget->setTextVisible(true);
        bars_.push_back({widget, value, maximum});
    }
    followAll();
}

void WindowBars::draw(const Bar& bar) {
    const int value = hoursIn(*bar.value);
    const int maximum = hoursIn(*bar.maximum);
    // The bar itself is full at its maximum; its words tell the numbers as they are.
    bar.widget->setRange(0, std::max(1, maximum));
    bar.widget->setValue(std::clamp(value, 0, std::max(1, maximum)));
    // Where nothing is to be used yet, there is nothing to say.
    const bool idle = maximum <= 0 && value <= 0;
    bar.widget->setFormat(idle ? QString() : QStringLiteral("%1 di %2 ore").arg(value).arg(maximum));
    setStyleMark(*bar.widget, "tone", value > maximum ? QStringLiteral("over") : QStringLiteral("plain"));
    makeRoomForWords(*bar.widget);
    // A flag without a widget never shows, and says nothing about the bar.
    bar.widget->setVisible(!bar.value->hasWidget() || isMeantToShow(*bar.value));
}

void WindowBars::follow(const Control& control) {
    for (const Bar& bar : bars_) {
        if (bar.value == &control || bar.maximum == &control) draw(bar);
    }
}

void WindowBars::followAll() {
    for (const Bar& bar : bars_) draw(bar);
}

}  // namespace vorbano
