// Enter, Esc and the arrows, for hands that stay on the keyboard.

#include "window_fixture.h"

using testing::Contains;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::Not;

namespace {

class Keys : public WindowTest {};

TEST_F(Keys, EnterInAFieldGoesToTheNextOne) {
    key(Qt::Key_Return);
    EXPECT_EQ(keyboard(), "Combo1");
    key(Qt::Key_Enter);
    EXPECT_EQ(keyboard(), "txtIndennità");
    EXPECT_THAT(screen.log, ElementsAre("txtData left"));
}

TEST_F(Keys, EnterOnAButtonClicksIt) {
    screen.form.focus(screen.cmdSalva);
    screen.log.clear();
    key(Qt::Key_Return);
    EXPECT_THAT(screen.log, ElementsAre("cmdSalva clicked"));
    EXPECT_EQ(keyboard(), "cmdSalva");
}

TEST_F(Keys, SpaceOnAButtonClicksIt) {
    screen.form.focus(screen.cmdSalva);
    screen.log.clear();
    key(Qt::Key_Space);
    EXPECT_THAT(screen.log, ElementsAre("cmdSalva clicked"));
}

TEST_F(Keys, SpaceTicksACheckBoxAndEnterLeavesIt) {
    screen.form.focus(screen.Check1);
    key(Qt::Key_Space);
    EXPECT_TRUE(screen.Check1.checked());
    key(Qt::Key_Return);
    EXPECT_TRUE(screen.Check1.checked());
    EXPECT_EQ(keyboard(), "Option1");
}

TEST_F(Keys, ArrowsWalkAlongTheOptions) {
    screen.form.focus(screen.Option1);
    key(Qt::Key_Down);
    EXPECT_EQ(keyboard(), "Option2");
    key(Qt::Key_Up);
    EXPECT_EQ(keyboard(), "Option1");
    EXPECT_FALSE(screen.Option1.checked());
}

TEST_F(Keys, EscDoesNotCloseTheFirstWindow) {
    key(Qt::Key_Escape);
    EXPECT_TRUE(screen.form.isOpen());
    EXPECT_TRUE(window->isVisible());
}

TEST_F(Keys, TheCloseButtonOfTheWindowClosesTheForm) {
    window->close();
    EXPECT_FALSE(screen.form.isOpen());
    EXPECT_FALSE(window->isVisible());
    EXPECT_THAT(screen.log, ElementsAre("closing"));
}

TEST_F(Keys, AFormThatTheProgramClosesTakesItsWindowWithIt) {
    screen.cmdEsci.clicked.calls([this] { screen.form.close(); });
    click(screen.cmdEsci);
    EXPECT_FALSE(window->isVisible());
}

TEST_F(Keys, EscClosesAWindowAboveAnotherOne) {
    frmProva upper;
    vorbano::FormWindow above(upper.form, window.get());
    above.show();
    QApplication::setActiveWindow(&above);
    stack.push(upper.form);
    QApplication::processEvents();
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Escape);
    EXPECT_FALSE(upper.form.isOpen());
    EXPECT_FALSE(above.isVisible());
    EXPECT_THAT(upper.log, Contains("closing"));
    EXPECT_TRUE(screen.form.isOpen());
    stack.pop();
}

TEST_F(Keys, NoKeyPressesAButtonThatHasNotTheFocus) {
    key(Qt::Key_Return);
    EXPECT_THAT(screen.log, Not(Contains("cmdRicerca clicked")));
    EXPECT_THAT(screen.log, Not(Contains("cmdSalva clicked")));
}

}  // namespace
