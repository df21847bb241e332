#include "platform/qt/form_window.h"

#include <QCloseEvent>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QMenuBar>
#include <QPushButton>
#include <QScrollArea>
#include <QScrollBar>
#include <QTimer>
#include <QVBoxLayout>
#include <algorithm>

#include "platform/qt/form_table.h"
#include "platform/qt/plain_window.h"
#include "platform/qt/window_bars.h"
#include "platform/qt/window_icons.h"
#include "platform/qt/window_menu.h"

namespace vorbano {

namespace {

/// Of a panel that scrolls inside the window: how much of it is out of sight from top to bottom, as when a bar that
/// scrolls it sideways has come in under it.
int hiddenHeight(const QWidget& content) {
    int hidden = 0;
    for (const QScrollArea* area : content.findChildren<QScrollArea*>()) {
        if (area->isVisible()) hidden = std::max(hidden, area->verticalScrollBar()->maximum());
    }
    return hidden;
}

}  // namespace

FormWindow::FormWindow(Form& form, QWidget* above) : FormWindow(form, above, above ? Place::above : Place::first) {}

FormWindow::FormWindow(Form& form, QWidget* parent, Place place)
    : QDialog(parent), form_(form), operator_(form), place_(place) {
    build();
    bind();
    form_.watchedBy(this);
    setWindowTitle(shown(form_.caption()));
    // What must not happen inside an event or a procedure waits for the end of it.
    connect(this, &FormWindow::contentChanged, this, &FormWindow::settle, Qt::QueuedConnection);
    connect(this, &FormWindow::focusWandered, this, &FormWindow::answerFocus, Qt::QueuedConnection);
    bringAll();
}

FormWindow::~FormWindow() {
    // Once it has closed, the form may be gone before its window, or be on show in another one.
    if (attached_) form_.watchedBy(nullptr);
}

void FormWindow::build() {
    if (place_ == Place::beside) {
        setWindowFlags(Qt::Dialog | Qt::FramelessWindowHint);
    } else {
        const Qt::WindowFlags kind = place_ == Place::first ? Qt::Window : Qt::Dialog;
        setWindowFlags(kind | Qt::WindowTitleHint | Qt::WindowSystemMenuHint | Qt::WindowMinMaxButtonsHint |
                       Qt::WindowCloseButtonHint);
    }
    layOut();
    if (!buildForm(form_.name(), *content_)) buildPlainWindow(form_, *content_);
    setObjectName(shown(form_.name()));
    content_->setObjectName(QStringLiteral("content"));
    setMinimumSize(content_->minimumSize());
    content_->setMinimumSize(0, 0);
    menu_ = std::make_unique<WindowMenu>(form_, *this,
                                         [this](Control& control, const Gesture& gesture) { act(control, gesture); });
    if (menu_->bar() != nullptr) layout()->setMenuBar(menu_->bar());
    bars_ = std::make_unique<WindowBars>(form_, *this);
    for (QPushButton* button : findChildren<QPushButton*>()) {
        const QString name = button->property("iconName").toString();
        if (!name.isEmpty()) button->setIcon(drawnIcon(name));
    }
}

/// What the .ui holds stands in an area that scrolls where the screen is too small for it. It is built in its place:
/// all that moves there later would be dressed twice.
void FormWindow::layOut() {
    scroll_ = new QScrollArea(this);
    scroll_->setObjectName(QStringLiteral("scrollArea"));
    scroll_->setFrameShape(QFrame::NoFrame);
    scroll_->setWidgetResizable(true);
    scroll_->setFocusPolicy(Qt::NoFocus);
    content_ = new QWidget;
    scroll_->setWidget(content_);
    content_->installEventFilter(this);
    auto* whole = new QVBoxLayout(this);
    whole->setContentsMargins(0, 0, 0, 0);
    whole->addWidget(scroll_);
}

QWidget* FormWindow::widgetOf(const Control& control) const {
    const auto at = widgets_.find(&control);
    return at == widgets_.end() ? nullptr : at->second;
}

QAction* FormWindow::actionOf(const Control& control) const { return menu_->actionOf(control); }

QTimer* FormWindow::timerOf(const Control& control) const {
    const auto at = timers_.find(&control);
    return at == timers_.end() ? nullptr : at->second;
}

Spot FormWindow::spotOf(const Control& control, int line, int column) {
    settle();
    const WidgetBinding* binding = bindingOf(control.kind());
    QWidget* widget = widgetOf(control);
    if (widget == nullptr || binding->spot == nullptr) return {};
    return binding->spot(*widget, line, column);
}

QSize FormWindow::sizeHint() const {
    // What wraps would rather not; no window opens wider for that than the desk of a small office.
    constexpr int widest = 1350;
    QSize wanted = content_->sizeHint();
    wanted.setWidth(std::min(wanted.width(), widest));
    wanted = wanted.expandedTo(content_->minimumSizeHint());
    if (content_->hasHeightForWidth()) {
        wanted.setHeight(std::max(wanted.height(), content_->heightForWidth(wanted.width())));
    }
    if (const QMenuBar* bar = menu_->bar()) {
        wanted.rheight() += bar->sizeHint().height();
        wanted.setWidth(std::max(wanted.width(), bar->sizeHint().width()));
    }
    return wanted;
}

QSize FormWindow::minimumSizeHint() const { return {320, 160}; }

/// What has come to need more room takes it from the desk as far as there is some, and scrolls only then.
void FormWindow::grow() {
    if (!isVisible() || isMaximized() || isFullScreen()) return;
    QSize least = content_->minimumSizeHint();
    if (content_->hasHeightForWidth()) {
        const int width = std::max(least.width(), scroll_->width());
        least.setHeight(std::max(least.height(), content_->heightForWidth(width)));
    }
    const int hidden = hiddenHeight(*content_);
    const QSize lacking = (least - scroll_->size()).expandedTo({0, hidden});
    if (lacking.isNull()) return;
    const QRect desk = screen()->availableGeometry();
    QRect grown(geometry());
    grown.setSize((size() + lacking).boundedTo(desk.size() - windowFrame).expandedTo(size()));
    grown.moveLeft(std::max(desk.left(), std::min(grown.left(), desk.right() - grown.width())));
    grown.moveTop(
        std::max(desk.top() + windowFrame.height() - 8, std::min(grown.top(), desk.bottom() - grown.height())));
    if (grown.size() != size()) setGeometry(grown);
}

// From the form to the window

void FormWindow::bringStanding(Control& control) {
    QWidget* widget = widgetOf(control);
    if (widget == nullptr) return;
    widget->setEnabled(control.isEnabled());
    widget->setVisible(isMeantToShow(control));
}

void FormWindow::bring(Control& control) {
    QWidget* widget = widgetOf(control);
    if (widget == nullptr) return;
    const WidgetBinding* binding = bindingOf(control.kind());
    if (binding->bring != nullptr) binding->bring(control, *widget);
}

void FormWindow::bringAll() {
    for (Control* control : form_.controls()) {
        bringStanding(*control);
        const WidgetBinding* binding = bindingOf(control->kind());
        if (binding != nullptr && binding->bringContent != nullptr) pending_.insert(control);
        bring(*control);
        bringTimer(*control);
        bringCaptions(*control);
    }
    settle();
}

void FormWindow::settle() {
    const std::set<Control*> changed = std::exchange(pending_, {});
    for (Control* control : changed) {
        if (QWidget* widget = widgetOf(*control)) bindingOf(control->kind())->bringContent(*control, *widget);
        bring(*control);
    }
}

void FormWindow::controlChanged(Control& control, Aspect aspect) {
    ++changing_;
    bringAspect(control, aspect);
    --changing_;
}

void FormWindow::bringAspect(Control& control, Aspect aspect) {
    switch (aspect) {
        case Aspect::items:
        case Aspect::cells:
            if (pending_.empty()) emit contentChanged();
            pending_.insert(&control);
            break;
        case Aspect::enabled:
        case Aspect::visible:
            bringStanding(control);
            // What stands in a panel shows and works with it.
            if (control.kind() == Kind::frame || control.kind() == Kind::tabPanel) {
                for (Control* inside : form_.controls()) bringStanding(*inside);
                bars_->followAll();
            }
            bars_->follow(control);
            bringCaptions(control);
            break;
        case Aspect::text:
        case Aspect::locked:
        case Aspect::checked:
        case Aspect::selection:
        case Aspect::tone:
            // While lines are on their way, the choice among them is brought with them.
            if (!pending_.contains(&control)) bring(control);
            break;
        case Aspect::interval:
            break;
    }
    if (aspect == Aspect::text) bars_->follow(control);
    if (control.kind() == Kind::menuEntry) menu_->bring();
    if (control.kind() == Kind::timer) bringTimer(control);
    if (control.kind() == Kind::label && aspect == Aspect::text) bringCaptions(control);
}

void FormWindow::captionChanged() { setWindowTitle(shown(form_.caption())); }

void FormWindow::focusMoved() { followFocus(true); }

void FormWindow::followFocus(bool select) {
    if (following_) return;
    following_ = true;
    const Control* focused = form_.focused();
    QWidget* widget = focused == nullptr ? nullptr : widgetOf(*focused);
    if (widget == nullptr) {
        if (QWidget* old = focusWidget()) old->clearFocus();
    } else {
        const WidgetBinding* binding = bindingOf(focused->kind());
        QWidget* target = binding->focusPart == nullptr ? widget : binding->focusPart(*widget);
        const bool moves = focusWidget() != target || (isActiveWindow() && !target->hasFocus());
        // As with Tab, so that the ring of the focus is drawn on every kind of widget.
        if (moves) target->setFocus(Qt::TabFocusReason);
        // A panel may scroll on its own, inside the window that does.
        for (QWidget* around = target->parentWidget(); around != nullptr; around = around->parentWidget()) {
            if (auto* area = qobject_cast<QScrollArea*>(around)) area->ensureWidgetVisible(target);
        }
        if (auto* line = qobject_cast<QLineEdit*>(widget); line != nullptr && (select || moves)) line->selectAll();
    }
    following_ = false;
}

void FormWindow::closed() {
    form_.watchedBy(nullptr);
    attached_ = false;
    for (const auto& [control, timer] : timers_) timer->stop();
    hide();
    emit shut();
}

// From the operator to the form

void FormWindow::act(Control& control, const Gesture& gesture) {
    // What the form refuses has changed nothing there; bringing the control again takes it back in the window too.
    (void)gesture(operator_);
    if (!form_.isOpen()) return;
    if (!pending_.empty()) settle();
    bring(control);
    followFocus(false);
}

void FormWindow::leave(Control& control, bool forward) {
    act(control, [&](Operator& clerk) {
        clerk.leave(forward);
        return Refusal::none;
    });
}

void FormWindow::closeByOperator() {
    if (form_.isOpen()) operator_.close();
}

void FormWindow::reject() {
    // The first window is the program itself; a stray Esc must not end it.
    if (place_ != Place::first) closeByOperator();
}

void FormWindow::closeEvent(QCloseEvent* event) {
    // The form closes, and hides the window with it.
    event->ignore();
    closeByOperator();
}

}  // namespace vorbano
