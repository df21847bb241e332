#include "platform/qt/qt_desktop.h"

#include <QAbstractButton>
#include <QApplication>
#include <QDate>
#include <QEventLoop>
#include <QGridLayout>
#include <QGuiApplication>
#include <QMessageBox>
#include <QPointer>
#include <QPushButton>
#include <QScreen>
#include <QStyle>
#include <QWindow>
#include <algorithm>

#include "platform/qt/form_window.h"
#include "platform/qt/window_icons.h"

namespace vorbano {

namespace {

/// As large as it wants to be, but not larger than the screen; centred above `below`, or on the screen.
void place(QWidget& window, const QWidget* below) {
    const QScreen* screen = below != nullptr ? below->screen() : QGuiApplication::primaryScreen();
    if (screen == nullptr) return;
    const QRect room = screen->availableGeometry();
    const QSize most = room.size() - windowFrame;
    QSize size = window.sizeHint();
    const int bar = window.style()->pixelMetric(QStyle::PM_ScrollBarExtent);
    if (size.height() > most.height()) size.rwidth() += bar;
    size = size.expandedTo(window.minimumSizeHint()).expandedTo(window.minimumSize()).boundedTo(most);
    const QPoint centre = below != nullptr && below->isVisible() ? below->geometry().center() : room.center();
    QRect geometry(QPoint(), size);
    geometry.moveCenter(centre);
    geometry.moveLeft(std::clamp(geometry.left(), room.left(), std::max(room.left(), room.right() - size.width())));
    geometry.moveTop(std::clamp(geometry.top(), room.top() + windowFrame.height() - 8,
                                std::max(room.top() + windowFrame.height() - 8, room.bottom() - size.height())));
    window.setGeometry(geometry);
}

/// The one kind of box; the words of the program come as they are, never as markup.
class Box : public QMessageBox {
  public:
    Box(const Message& message, QWidget* above) : QMessageBox(above) {
        setObjectName(QStringLiteral("messageBox"));
        setTextFormat(Qt::PlainText);
        setIconPixmap(drawnSign(message.icon, 40, devicePixelRatioF()));
        setWindowTitle(shown(message.title));
        setText(shown(message.text));
        // Not by a style sheet: the box would then take it for the width of its text, and cut what is longer.
        constexpr int narrowest = 240;
        if (auto* grid = qobject_cast<QGridLayout*>(layout())) {
            grid->setColumnMinimumWidth(grid->columnCount() - 1, narrowest);
        }
    }

    /// Waits for the answer; the window that was in front then has the keyboard again.
    void wait() {
        QWidget* const active = QApplication::activeWindow();
        const QPointer<QWidget> before = active != nullptr ? active : parentWidget();
        exec();
        if (before != nullptr) before->activateWindow();
    }
};

}  // namespace

class QtDesktop::Announced : public FormWatcher {
  public:
    Announced(Form& form, QtDesktop& desk) : form_(form), desk_(desk), comesFirst_(desk.front() == nullptr) {
        form_.watchedBy(this);
    }
    ~Announced() override {
        if (form_.watcher() == this) form_.watchedBy(nullptr);
    }
    /// No window was there yet: the first one, which comes meanwhile, keeps the keyboard.
    [[nodiscard]] bool comesFirst() const { return comesFirst_; }

    void controlChanged(Control& control, Aspect aspect) override {
        (void)control;
        (void)aspect;
    }
    void focusMoved() override {}
    void captionChanged() override {}
    void closed() override {
        desk_.beside_ = nullptr;
        desk_.announced_.reset();
    }

  private:
    Form& form_;
    QtDesktop& desk_;
    bool comesFirst_;
};

QtDesktop::QtDesktop() {
    // Between two windows there may be none for a moment; that is not the end of the program.
    QGuiApplication::setQuitOnLastWindowClosed(false);
    turn_.setSingleShot(true);
    QObject::connect(&turn_, &QTimer::timeout, &turn_, [this] { buildBeside(); });
}

QtDesktop::~QtDesktop() { closeBeside(); }

FormWindow* QtDesktop::windowOf(const Form& form) const {
    const auto at = windows_.find(&form);
    return at == windows_.end() ? nullptr : at->second;
}

QWidget* QtDesktop::frontWindow() const {
    const Form* form = front();
    return form == nullptr ? nullptr : windowOf(*form);
}

Form* QtDesktop::beside() const { return beside_ != nullptr && beside_->isOpen() ? beside_ : nullptr; }

void QtDesktop::show(Form& form) {
    QWidget* below = frontWindow();
    auto window = std::make_unique<FormWindow>(form, below);
    FormWindow* const earlier = std::exchange(windows_[&form], window.get());
    if (below != nullptr) window->setWindowModality(Qt::ApplicationModal);
    place(*window, below);

    // The window is there before the form comes to the front, so that a box raised by that lies above it.
    window->show();
    QEventLoop loop;
    QObject::connect(window.get(), &FormWindow::shut, &loop, &QEventLoop::quit);
    forms_.push(form);
    window->settle();
    if (form.isOpen()) loop.exec();

    // A box of the window below must find this one gone.
    window.reset();
    if (below != nullptr) below->activateWindow();
    if (earlier == nullptr) {
        windows_.erase(&form);
    } else {
        windows_[&form] = earlier;
    }
    if (forms_.size() == 1) closeBeside();
    forms_.pop();
}

void QtDesktop::showBeside(Form& form) {
    if (beside() == &form) return;
    closeBeside();
    beside_ = &form;
    form.open();
    announced_ = std::make_unique<Announced>(form, *this);
    turn_.start();
}

void QtDesktop::buildBeside() {
    if (announced_ == nullptr) return;
    const bool comesFirst = announced_->comesFirst();
    announced_.reset();
    Form& form = *beside_;
    auto* window = new FormWindow(form, nullptr, FormWindow::Place::beside);
    windows_[&form] = window;
    QObject::connect(window, &FormWindow::shut, window, [this, window, &form] {
        windows_.erase(&form);
        beside_ = nullptr;
        window->deleteLater();
    });
    QWidget* const below = frontWindow();
    if (below != nullptr) {
        // Belongs to the window in front, so that it stays above it and can be used beside it.
        window->winId();
        window->windowHandle()->setTransientParent(below->windowHandle());
    }
    place(*window, below);
    window->show();
    if (comesFirst && below != nullptr) below->activateWindow();
}

void QtDesktop::closeBeside() {
    if (beside_ != nullptr) beside_->close();
}

void QtDesktop::tell(const Message& message) {
    // A box lies above what stands beside.
    buildBeside();
    Box box(message, frontWindow());
    box.addButton(QStringLiteral("OK"), QMessageBox::AcceptRole);
    box.wait();
}

bool QtDesktop::ask(const Message& message) {
    buildBeside();
    Box box(message, frontWindow());
    const QAbstractButton* yes = box.addButton(QStringLiteral("Sì"), QMessageBox::YesRole);
    QPushButton* no = box.addButton(QStringLiteral("No"), QMessageBox::NoRole);
    box.setDefaultButton(static_cast<QPushButton*>(box.buttons().constFirst()));
    box.setEscapeButton(no);
    box.wait();
    return box.clickedButton() == yes;
}

std::chrono::year_month_day QtDesktop::today() const {
    if (today_) return *today_;
    const QDate date = QDate::currentDate();
    return {std::chrono::year(date.year()), std::chrono::month(static_cast<unsigned>(date.month())),
            std::chrono::day(static_cast<unsigned>(date.day()))};
}

}  // namespace vorbano
