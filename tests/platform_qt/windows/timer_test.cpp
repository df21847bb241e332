#include <QTimer>

#include "window_fixture.h"

using testing::ElementsAre;
using testing::IsEmpty;

namespace {

class Timers : public WindowTest {
  protected:
    /// The interval is over.
    void elapse() {
        QTimerEvent over(window->timerOf(screen.Timer1)->timerId());
        QApplication::sendEvent(window->timerOf(screen.Timer1), &over);
    }
};

TEST_F(Timers, ATimerRunsWhileItIsEnabled) {
    QTimer* timer = window->timerOf(screen.Timer1);
    EXPECT_FALSE(timer->isActive());
    screen.Timer1.enabled = true;
    EXPECT_TRUE(timer->isActive());
    EXPECT_EQ(timer->interval(), 5000);
    elapse();
    elapse();
    EXPECT_THAT(screen.log, ElementsAre("Timer1 fired", "Timer1 fired"));
    screen.Timer1.enabled = false;
    EXPECT_FALSE(timer->isActive());
}

TEST_F(Timers, TheIntervalFollowsTheProgram) {
    screen.Timer1.enabled = true;
    screen.Timer1.milliseconds = 10000;
    EXPECT_EQ(window->timerOf(screen.Timer1)->interval(), 10000);
    screen.Timer1.milliseconds = 0;
    EXPECT_FALSE(window->timerOf(screen.Timer1)->isActive());
}

TEST_F(Timers, NoTimerOutlivesItsWindow) {
    screen.Timer1.enabled = true;
    screen.form.close();
    EXPECT_FALSE(window->timerOf(screen.Timer1)->isActive());
}

TEST_F(Timers, ATimerMayCloseItsForm) {
    screen.Timer1.fired.calls([this] { screen.form.close(); });
    screen.Timer1.enabled = true;
    elapse();
    EXPECT_FALSE(screen.form.isOpen());
    EXPECT_FALSE(window->isVisible());
}

}  // namespace
