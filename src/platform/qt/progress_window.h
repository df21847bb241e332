#pragma once

#include <QProgressDialog>
#include <chrono>
#include <functional>
#include <memory>

#include "platform/qt/job_watch.h"

namespace vorbano {

/// What the clock says, counted from anywhere.
using StopWatch = std::function<std::chrono::milliseconds()>;
[[nodiscard]] std::chrono::milliseconds steadyTime();

/// The window of a job that takes longer than a second: a bar and "Annulla". Before the second is over nothing is shown
/// and nothing but the job goes on. The dialog is called "avanzamento".
class ProgressWindow : public JobWatch {
  public:
    /// `above`: the window that waits, which cannot be used meanwhile; may be nullptr.
    ProgressWindow(QWidget* above, const QString& words, StopWatch now = steadyTime);

    [[nodiscard]] bool goesOn(int done, int all) override;
    void cannotStopNow() override;

  private:
    QProgressDialog dialog_;
    StopWatch now_;
    std::chrono::milliseconds begun_;
    std::chrono::milliseconds drawn_;
    bool canStop_ = true;
};

/// Makes the watch of a job: the window that waits, and what the job is.
using MakeWatch = std::function<std::unique_ptr<JobWatch>(QWidget* above, const QString& words)>;
[[nodiscard]] std::unique_ptr<JobWatch> progressWindow(QWidget* above, const QString& words);

}  // namespace vorbano
