#include "scenario/window_play.h"

#include <QAbstractButton>
#include <QApplication>
#include <QCursor>
#include <QMessageBox>
#include <QPointer>
#include <QProgressDialog>
#include <QScreen>
#include <QTimerEvent>
#include <QWindow>

#include "platform/qt/form_window.h"
#include "platform/qt/preview_window.h"
#include "platform/qt/report_engine.h"
#include "scenario/player.h"
#include "scenario/pointer.h"
#include "scenario/window_faults.h"
#include "scenario/window_hands.h"

namespace vorbano {

namespace {

/// Once the scenario is over, nothing that the program still wants to show comes on the screen.
class PlayedDesktop : public QtDesktop {
  public:
    void playedBy(const Player& player) { player_ = &player; }

    void show(Form& form) override {
        if (!player_->over()) return QtDesktop::show(form);
        // The splash window goes with the last window, or where that was to open.
        if (Form* splash = beside(); splash != nullptr && front() == nullptr) splash->close();
    }
    void tell(const Message& message) override {
        if (!player_->over()) QtDesktop::tell(message);
    }
    bool ask(const Message& message) override { return !player_->over() && QtDesktop::ask(message); }

  private:
    const Player* player_ = nullptr;
};

/// The print engine of the program, but for the printer: what goes to the printer is only looked at.
class PlayedPrintEngine : public PrintEngine, private Printer {
  public:
    PlayedPrintEngine(Player& player, QtRenderer& renderer, const QtDesktop& desktop)
        : player_(player), engine_(renderer, *this, [&desktop] { return desktop.frontWindow(); }) {}

    Result<> run(const PrintJob& job) override {
        if (player_.over()) return {};
        job_ = job;
        auto done = engine_.run(job);
        if (!done) player_.reportFailed(done.error());
        return done;
    }
    Result<> printPage(const PlainPage& page) override {
        page_ = &page;
        auto done = engine_.printPage(page);
        page_ = nullptr;
        return done;
    }
    [[nodiscard]] const PrintJob& job() const { return job_; }

  private:
    Result<> print(Document& document, std::string_view) override {
        if (page_ != nullptr) {
            player_.pagePrinted(*page_, document);
            return {};
        }
        while (!player_.stepAtReport(job_, document)) {
        }
        return {};
    }

    Player& player_;
    QtPrintEngine engine_;
    PrintJob job_;
    /// The plain page on its way to the printer; nullptr while it is a report.
    const PlainPage* page_ = nullptr;
};

QString wordsOn(const QAbstractButton& button) { return button.text().remove(QLatin1Char('&')); }

QAbstractButton* buttonWith(const QMessageBox& box, Answer answer) {
    const std::string_view words = inWords(answer);
    const QString wanted = QString::fromUtf8(words.data(), static_cast<qsizetype>(words.size()));
    for (QAbstractButton* button : box.buttons()) {
        if (wordsOn(*button) == wanted) return button;
    }
    return nullptr;
}

/// Plays step after step. Each step schedules the next one with a timer of its own before it acts, so that the next one
/// also comes inside the loops of windows and boxes that the step opens.
class Steps : public QObject {
  public:
    Steps(Player& player, const QtDesktop& desktop, const PlayedPrintEngine& printing, Pace pace)
        : player_(player), desktop_(desktop), printing_(printing), pause_(pace == Pace::slow ? slowPause : shortest()) {
        schedule(pause_);
    }

  private:
    static constexpr std::chrono::milliseconds slowPause{500};
    static constexpr std::chrono::milliseconds shortWait{1};

    static bool isWindows() { return QGuiApplication::platformName() == QLatin1String("windows"); }

    /// On Windows a timer of no time is an event like any other, and a chain of them would all be played before what
    /// the window system has to say.
    static std::chrono::milliseconds shortest() { return isWindows() ? shortWait : std::chrono::milliseconds::zero(); }

    void schedule(std::chrono::milliseconds pause) { startTimer(pause); }

    /// Each timer fires once; one that fired again would not do so inside its own event.
    void timerEvent(QTimerEvent* event) override {
        killTimer(event->timerId());
        step();
    }

    void step() {
        QWidget* modal = QApplication::activeModalWidget();
        if (mustWait(modal)) {
            schedule(shortWait);
            return;
        }
        schedule(pause_);
        if (player_.over()) {
            putAway(modal);
        } else {
            act(modal);
        }
    }

    /// Windows shows a window, and gives it the keyboard, a moment after it was asked to, and may still take the
    /// keyboard away and give it back; what is clicked or typed meanwhile is lost. The splash window takes it from the
    /// one that it stands beside. Where another program keeps it, it is waited for once.
    bool isAtHand(const QWidget& window) {
        if (!waitsForKeyboard_) return true;
        const Form* beside = desktop_.beside();
        const FormWindow* splash = beside == nullptr ? nullptr : desktop_.windowOf(*beside);
        const QWindow* focused = QGuiApplication::focusWindow();
        const QWindow* handle = window.windowHandle();
        if (splash != nullptr && focused == splash->windowHandle()) handle = focused;
        const bool has = handle != nullptr && handle->isExposed() && focused == handle;
        calm_ = has && handle == at_ ? calm_ + 1 : 0;
        at_ = handle;
        constexpr int longEnough = 10;  // steps of a millisecond
        constexpr int tooLong = 5000;
        if (calm_ < longEnough && ++waited_ < tooLong) return false;
        waitsForKeyboard_ = waited_ < tooLong;
        waited_ = 0;
        return true;
    }

    /// The gesture before is still on its way, and nothing new lies on top yet.
    [[nodiscard]] bool mustWait(QWidget* modal) {
        if (leaving_ || qobject_cast<QProgressDialog*>(modal) != nullptr) return true;
        if (modal != nullptr && qobject_cast<FormWindow*>(modal) == nullptr) return inDialog_ || !isAtHand(*modal);
        const Form* front = desktop_.front();
        if (front == nullptr || !front->isOpen() || desktop_.windowOf(*front) == nullptr) return true;
        if (modal != nullptr && modal != desktop_.windowOf(*front)) return true;
        if (inDialog_ || (!acting_.empty() && acting_.back() == front)) return true;
        return !isAtHand(*desktop_.windowOf(*front));
    }

    void act(QWidget* modal) {
        if (auto* box = qobject_cast<QMessageBox*>(modal)) {
            actAtBox(*box);
        } else if (auto* preview = qobject_cast<PreviewWindow*>(modal)) {
            actAtPreview(*preview);
        } else if (modal != nullptr && qobject_cast<FormWindow*>(modal) == nullptr) {
            player_.failAt("the window " + inQuotes(modal->windowTitle().toStdString()));
        } else if (const std::string fault = faultInFront(); !fault.empty()) {
            player_.failAt(fault);
        } else {
            acting_.push_back(desktop_.front());
            player_.step();
            acting_.pop_back();
        }
    }

    /// Whatever is entered, a window stays whole, legible and at hand.
    [[nodiscard]] std::string faultInFront() const {
        FormWindow* window = desktop_.windowOf(*desktop_.front());
        if (window == nullptr || !window->isVisible()) return {};
        window->settle();
        QApplication::sendPostedEvents(nullptr, QEvent::LayoutRequest);
        const std::vector<std::string> faults = windowFaults(*window);
        return faults.empty() ? std::string() : "the window " + window->form().name() + ", where " + faults.front();
    }

    void actAtBox(QMessageBox& box) {
        const bool question = buttonWith(box, Answer::yes) != nullptr;
        const auto answer = player_.stepAtBox({box.windowTitle().toStdString(), box.text().toStdString(), question});
        if (!answer) return;
        QAbstractButton* button = buttonWith(box, *answer);
        if (button == nullptr) {
            player_.failAt("a box without that button");
        } else {
            press(*button, box);
        }
    }

    void actAtPreview(PreviewWindow& preview) {
        if (!player_.stepAtReport(printing_.job(), preview.document()) || player_.over()) return;
        auto* button = preview.findChild<QAbstractButton*>(QStringLiteral("cmdChiudi"));
        if (button == nullptr) {
            preview.reject();
        } else {
            press(*button, preview);
        }
    }

    /// Answers or closes a box or a preview. Until it is gone altogether, whoever opened it has not gone on.
    void press(QAbstractButton& button, QWidget& dialog) {
        const QPoint middle = button.rect().center();
        if (const QString why = reach(button, middle); !why.isEmpty()) {
            player_.failAt(wordsOn(button).toStdString() + " " + why.toStdString());
            return;
        }
        leaving_ = &dialog;
        inDialog_ = true;
        clickPointer(button, middle);
        inDialog_ = false;
    }

    /// The scenario is over: what is open is closed, from the top down.
    void putAway(QWidget* modal) {
        if (modal != nullptr && qobject_cast<FormWindow*>(modal) == nullptr) {
            if (qobject_cast<QMessageBox*>(modal) != nullptr || qobject_cast<PreviewWindow*>(modal) != nullptr) {
                leaving_ = modal;
            }
            if (auto* dialog = qobject_cast<QDialog*>(modal)) {
                dialog->done(QDialog::Rejected);
            } else {
                modal->close();
            }
            return;
        }
        desktop_.front()->close();
    }

    Player& player_;
    const QtDesktop& desktop_;
    const PlayedPrintEngine& printing_;
    std::chrono::milliseconds pause_;
    /// The forms that were in front when the gestures now on their way began, the innermost last.
    std::vector<const Form*> acting_;
    /// A box or preview that was answered and is not yet gone.
    QPointer<QWidget> leaving_;
    bool inDialog_ = false;
    bool waitsForKeyboard_ = isWindows();
    const QWindow* at_ = nullptr;  ///< never looked into: it may be gone
    int calm_ = 0;
    int waited_ = 0;
};

}  // namespace

std::string playInWindows(const Scenario& scenario, const Stage& stage, QtRenderer& renderer, const Start& start,
                          Pace pace) {
    if (!scenario.errors.empty()) return scenario.errors.front();
    // The machine's own pointer would be a second hand: whatever comes to lie under it is told that it moves there.
    if (const QScreen* screen = QGuiApplication::primaryScreen()) QCursor::setPos(screen->geometry().bottomRight());
    PlayedDesktop desktop;
    WindowHands hands(desktop);
    Player player(scenario, stage, hands);
    desktop.playedBy(player);
    PlayedPrintEngine printing(player, renderer, desktop);
    player.prepare();
    if (!player.over()) {
        const Steps steps(player, desktop, printing, pace);
        start(desktop, printing);
    }
    player.programEnded();
    return player.failure();
}

}  // namespace vorbano
