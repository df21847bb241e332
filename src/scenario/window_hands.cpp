#include "scenario/window_hands.h"

#include <QAbstractItemView>
#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QPixmap>
#include <QPointer>

#include "platform/qt/form_window.h"
#include "scenario/out_folder.h"
#include "scenario/pointer.h"
#include "scenario/widget_looks.h"
#include "storage/system_text.h"

namespace vorbano {

namespace {

/// One gesture in one window.
class WindowGesture {
  public:
    WindowGesture(const Line& gesture, FormWindow& window, Control& control)
        : gesture_(gesture), window_(&window), form_(window.form()), control_(control) {
        window.settle();
    }

    /// What stood in the way, or "".
    std::string make() {
        if (gesture_.kind == LineKind::menu) return chooseEntry();
        widget_ = window_->widgetOf(control_);
        if (widget_ == nullptr) return gesture_.name + " has no widget";
        switch (gesture_.kind) {
            case LineKind::type:
                return type();
            case LineKind::click:
                return clickAt(control_.kind() == Kind::option ? mark() : middle());
            case LineKind::tick:
                return tick(true);
            case LineKind::untick:
                return tick(false);
            case LineKind::choose:
                return control_.kind() == Kind::comboBox ? chooseInCombo() : clickAt(spot(indexOfText()));
            case LineKind::pick:
                return clickAt(spot(gesture_.count, gesture_.column));
            case LineKind::tab:
                return clickAt(spot(gesture_.count));
            default:
                return pointAtFrame();
        }
    }

  private:
    /// The leave of the field before may have kept the focus; then the gesture is dropped.
    [[nodiscard]] bool goesOn() const { return window_ && form_.isOpen() && form_.focused() == &control_; }
    [[nodiscard]] int indexOfText() const { return static_cast<const ItemControl&>(control_).find(gesture_.text); }
    [[nodiscard]] Spot middle() const { return {widget_, widget_->rect().center()}; }
    /// The little square or circle; what lies right of the words belongs to a box or an option no more.
    [[nodiscard]] Spot mark() const { return {widget_, {std::min(8, widget_->width() / 2), widget_->height() / 2}}; }
    Spot spot(int line, int column = 0) { return window_->spotOf(control_, line, column); }

    std::string inTheWay(const Spot& spot) const {
        if (spot.widget == nullptr) return gesture_.name + " does not show it in its window";
        const QString why = reach(*spot.widget, spot.at);
        return why.isEmpty() ? std::string() : gesture_.name + " " + why.toStdString();
    }

    std::string clickAt(const Spot& spot) {
        std::string why = inTheWay(spot);
        if (why.empty()) clickPointer(*spot.widget, spot.at);
        return why;
    }

    std::string chooseEntry() {
        for (const auto* one = static_cast<const MenuEntry*>(&control_); one != nullptr; one = one->above()) {
            const QAction* action = window_->actionOf(*one);
            if (action == nullptr || !action->isVisible()) return gesture_.name + " is not on show in its menu";
            if (!action->isEnabled()) return gesture_.name + " cannot be used in its menu";
        }
        window_->actionOf(control_)->trigger();
        return {};
    }

    std::string type() {
        if (std::string why = clickAt(middle()); !why.empty()) return why;
        if (!goesOn()) return {};
        pressKey(*window_, Qt::Key_A, Qt::ControlModifier);
        if (gesture_.text.empty() && goesOn()) pressKey(*window_, Qt::Key_Delete);
        for (const char32_t one : QString::fromStdString(gesture_.text).toUcs4()) {
            if (!goesOn()) break;
            typeCharacter(*window_, QString::fromUcs4(&one, 1));
        }
        return {};
    }

    [[nodiscard]] bool isTicked() const { return static_cast<const CheckBox&>(control_).checked(); }

    std::string tick(bool wanted) {
        const Spot box = mark();
        if (std::string why = inTheWay(box); !why.empty()) return why;
        pressPointer(*widget_, box.at);
        if (!window_) return {};
        // A box that is as it should be is entered without a change: the button goes up beside it.
        const QPoint up = isTicked() == wanted ? QPoint(-3, -3) : box.at;
        if (up != box.at) movePointer(*widget_, up);
        releasePointer(*widget_, up);
        return goesOn() && isTicked() != wanted ? clickAt(box) : std::string();
    }

    std::string chooseInCombo() {
        auto& combo = static_cast<QComboBox&>(*widget_);
        const QPointer<QWidget> still = widget_;
        if (std::string why = clickAt(middle()); !why.empty()) return why;
        if (!still || !combo.view()->isVisible()) return {};
        QAbstractItemView& list = *combo.view();
        const QModelIndex index = combo.model()->index(indexOfText(), combo.modelColumn(), combo.rootModelIndex());
        list.scrollTo(index);
        const Spot line{list.viewport(), list.visualRect(index).center()};
        if (std::string why = inTheWay(line); !why.empty()) {
            combo.hidePopup();
            return why;
        }
        movePointer(*line.widget, line.at);
        clickPointer(*line.widget, line.at);
        // A line that opens right under the pointer takes no click so soon after; Enter chooses it.
        if (still && list.isVisible()) pressKey(list, Qt::Key_Return);
        return {};
    }

    std::string pointAtFrame() {
        const Spot free{widget_, freePlace()};
        std::string why = inTheWay(free);
        if (!why.empty()) return why;
        if (gesture_.kind == LineKind::press) {
            clickPointer(*widget_, free.at);
        } else {
            movePointer(*widget_, free.at);
        }
        return {};
    }

    /// A place of the panel that no control on it covers; its middle when they cover it all.
    [[nodiscard]] QPoint freePlace() const {
        constexpr int step = 3;
        for (int y = 2; y < widget_->height(); y += step) {
            for (int x = 2; x < widget_->width(); x += step) {
                if (widget_->childAt(x, y) == nullptr) return {x, y};
            }
        }
        return widget_->rect().center();
    }

    const Line& gesture_;
    QPointer<FormWindow> window_;
    Form& form_;
    Control& control_;
    QWidget* widget_ = nullptr;
};

}  // namespace

std::string WindowHands::make(const Line& gesture, Form& form, Control* control) {
    FormWindow* window = desktop_.windowOf(form);
    if (window == nullptr) return form.name() + " has no window";
    if (control != nullptr) return WindowGesture(gesture, *window, *control).make();
    if (gesture.kind == LineKind::leave) {
        pressKey(*window, Qt::Key_Tab);
    } else {
        window->close();
    }
    return {};
}

std::string WindowHands::seenOtherwise(const Line& look, const Form& form, const Control& control) {
    FormWindow* window = desktop_.windowOf(form);
    if (window == nullptr) return form.name() + " has no window";
    window->settle();
    return lookAtWidget(look, *window, control);
}

std::string WindowHands::takePicture(const std::filesystem::path& file, const Form* form) {
    QWidget* top = form == nullptr ? QApplication::activeModalWidget() : desktop_.windowOf(*form);
    if (top == nullptr) top = desktop_.frontWindow();
    if (top == nullptr) return "no window";
    if (auto* window = qobject_cast<FormWindow*>(top)) window->settle();
    return top->grab().save(QString::fromStdString(utf8(file))) ? std::string() : "a picture that cannot be written";
}

}  // namespace vorbano
