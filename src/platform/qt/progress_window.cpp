#include "platform/qt/progress_window.h"

#include <QCoreApplication>
#include <QPushButton>
#include <limits>

namespace vorbano {

namespace {

constexpr std::chrono::milliseconds longJob{1000};
/// Drawn no oftener than this, so that the window costs the job nothing.
constexpr std::chrono::milliseconds betweenDrawings{40};
constexpr int widthInPixels = 420;

}  // namespace

std::chrono::milliseconds steadyTime() {
    return std::chrono::duration_cast<std::chrono::milliseconds>(std::chrono::steady_clock::now().time_since_epoch());
}

ProgressWindow::ProgressWindow(QWidget* above, const QString& words, StopWatch now)
    : dialog_(above), now_(std::move(now)), begun_(now_()), drawn_(begun_) {
    dialog_.setObjectName("avanzamento");
    dialog_.setWindowTitle(QStringLiteral("Stampa in corso"));
    dialog_.setLabelText(words);
    auto* cancel = new QPushButton(QStringLiteral("&Annulla"));
    cancel->setObjectName("cmdAnnulla");
    dialog_.setCancelButton(cancel);
    dialog_.setWindowModality(Qt::ApplicationModal);
    dialog_.setMinimumWidth(widthInPixels);
    // It shows when this class says so.
    dialog_.setMinimumDuration(std::numeric_limits<int>::max());
    dialog_.setAutoClose(false);
    dialog_.setAutoReset(false);
}

bool ProgressWindow::goesOn(int done, int all) {
    const auto now = now_();
    if (now - begun_ < longJob || now - drawn_ < betweenDrawings) return !canStop_ || !dialog_.wasCanceled();
    drawn_ = now;
    dialog_.setMaximum(all);
    if (!dialog_.wasCanceled()) dialog_.show();
    dialog_.setValue(done);
    QCoreApplication::processEvents();
    return !canStop_ || !dialog_.wasCanceled();
}

void ProgressWindow::cannotStopNow() {
    canStop_ = false;
    if (auto* cancel = dialog_.findChild<QPushButton*>("cmdAnnulla")) cancel->setEnabled(false);
}

std::unique_ptr<JobWatch> progressWindow(QWidget* above, const QString& words) {
    return std::make_unique<ProgressWindow>(above, words);
}

}  // namespace vorbano
