// A window on show follows what it holds: it grows where the desk has room, and scrolls where it has none.

#include <QLabel>
#include <QScreen>
#include <QScrollArea>
#include <QScrollBar>

#include "window_fixture.h"

namespace {

class Growth : public WindowTest {
  protected:
    /// As narrow as what it holds allows.
    void SetUp() override {
        window->resize(window->minimumSizeHint());
        say(4);
    }
    const QScrollBar& across() { return *area().horizontalScrollBar(); }
    void say(std::size_t letters) {
        screen.lblTitolo.text = std::string(letters, 'M');
        QCoreApplication::processEvents();
    }

  private:
    QScrollArea& area() { return *window->findChild<QScrollArea*>("scrollArea"); }
};

TEST_F(Growth, AWindowGrowsWithALabelThatTakesMoreRoom) {
    const int before = window->width();
    say(30);
    EXPECT_GT(window->width(), before);
    EXPECT_EQ(across().maximum(), 0) << "nothing is left to scroll to";
    EXPECT_GE(widget<QLabel>(screen.lblTitolo).width(), widget<QLabel>(screen.lblTitolo).minimumSizeHint().width());
}

TEST_F(Growth, AWindowKeepsTheRoomThatItHas) {
    say(30);
    const QSize grown = window->size();
    say(4);
    EXPECT_EQ(window->size(), grown) << "a window that shrinks under the pointer is in the way";
}

TEST_F(Growth, AWindowThatTheDeskCannotHoldScrolls) {
    say(400);
    const QRect desk = window->screen()->availableGeometry();
    EXPECT_LE(window->width(), desk.width());
    EXPECT_GE(window->x(), desk.left());
    EXPECT_GT(across().maximum(), 0);
}

}  // namespace
