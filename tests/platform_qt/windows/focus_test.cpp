// The form says where the focus is, and the window follows.

#include <QLabel>
#include <QLineEdit>

#include "window_fixture.h"

using testing::ElementsAre;
using testing::IsEmpty;

namespace {

class Focus : public WindowTest {};

TEST_F(Focus, TheFirstFieldHasTheKeyboardWhenTheWindowOpens) {
    EXPECT_EQ(screen.form.focused(), &screen.txtData);
    EXPECT_EQ(keyboard(), "txtData");
}

TEST_F(Focus, TabGoesInTheOrderOfTheFormAndSkipsWhatCannotBeUsed) {
    screen.Option1.enabled = false;
    screen.Combo1.visible = false;
    std::vector<std::string> way;
    for (int step = 0; step < 9; ++step) {
        way.push_back(keyboard());
        key(Qt::Key_Tab);
    }
    // txtMonte is locked.
    EXPECT_THAT(way, ElementsAre("txtData", "txtIndennità", "txtTotale", "txtOre", "Check1", "Option2", "SSTab1",
                                 "List1", "cmdRicerca"));
}

TEST_F(Focus, ShiftTabGoesBack) {
    key(Qt::Key_Tab);
    key(Qt::Key_Backtab, Qt::ShiftModifier);
    EXPECT_EQ(keyboard(), "txtData");
    key(Qt::Key_Backtab, Qt::ShiftModifier);
    EXPECT_EQ(keyboard(), "cmdEsci");
}

TEST_F(Focus, APressMovesTheFocusAndMarksTheText) {
    screen.txtTotale.text = "120";
    click(screen.txtTotale);
    EXPECT_EQ(screen.form.focused(), &screen.txtTotale);
    EXPECT_EQ(keyboard(), "txtTotale");
    EXPECT_EQ(widget<QLineEdit>(screen.txtTotale).selectedText(), "120");
    type("7");
    EXPECT_EQ(screen.txtTotale.text(), "7");
    EXPECT_THAT(screen.log, ElementsAre("txtData left"));
}

TEST_F(Focus, TheProgramMovesTheFocus) {
    screen.form.focus(screen.cmdSalva);
    EXPECT_EQ(keyboard(), "cmdSalva");
}

TEST_F(Focus, AFieldThatDisablesItselfOnLeavingHandsTheKeyboardOn) {
    screen.cmdSalva.enabled = false;
    screen.txtOre.lostFocus.calls([this] {
        screen.txtOre.enabled = false;
        screen.cmdSalva.enabled = true;
        screen.form.focus(screen.cmdSalva);
    });
    screen.form.focus(screen.txtOre);
    key(Qt::Key_Tab);
    EXPECT_EQ(screen.form.focused(), &screen.cmdSalva);
    EXPECT_EQ(keyboard(), "cmdSalva");
}

TEST_F(Focus, AButtonThatDisablesItselfHandsTheKeyboardOn) {
    screen.Frame1.visible = false;
    screen.cmdSalva.clicked.calls([this] {
        screen.Frame1.visible = true;
        screen.cmdSalva.enabled = false;
        screen.form.focus(screen.txtOre);
    });
    click(screen.cmdSalva);
    EXPECT_EQ(screen.form.focused(), &screen.txtOre);
    EXPECT_EQ(keyboard(), "txtOre");
}

TEST_F(Focus, AClickAfterALeaveThatTookTheFocusBackIsDropped) {
    screen.txtData.lostFocus.calls([this] { screen.form.focus(screen.txtData); });
    click(screen.cmdSalva);
    EXPECT_EQ(screen.form.focused(), &screen.txtData);
    EXPECT_EQ(keyboard(), "txtData");
    EXPECT_THAT(screen.log, testing::Not(testing::Contains("cmdSalva clicked")));
    EXPECT_EQ(screen.log.front(), "txtData left");
}

TEST_F(Focus, ALeaveThatSendsTheFocusElsewhereDropsTheClickToo) {
    screen.txtData.lostFocus.calls([this] { screen.form.focus(screen.txtTotale); });
    click(screen.Check1);
    EXPECT_EQ(keyboard(), "txtTotale");
    EXPECT_FALSE(screen.Check1.checked());
}

TEST_F(Focus, TabAfterALeaveThatTookTheFocusBackStays) {
    screen.txtData.text = "09";
    screen.txtData.lostFocus.calls([this] { screen.form.focus(screen.txtData); });
    key(Qt::Key_Tab);
    EXPECT_EQ(keyboard(), "txtData");
    EXPECT_EQ(widget<QLineEdit>(screen.txtData).selectedText(), "09");
}

TEST_F(Focus, WhenTheFocusedButtonIsDisabledByItsProcedureTheFocusMovesOn) {
    screen.cmdRicerca.clicked.calls([this] { screen.cmdRicerca.enabled = false; });
    click(screen.cmdRicerca);
    EXPECT_EQ(screen.form.focused(), &screen.cmdSalva);
    EXPECT_EQ(keyboard(), "cmdSalva");
}

TEST_F(Focus, WhenTheFocusedFieldIsHiddenNoLeaveIsFired) {
    screen.txtData.change.calls([this] { screen.txtData.visible = false; });
    type("1");
    EXPECT_EQ(keyboard(), "Combo1");
    EXPECT_THAT(screen.log, ElementsAre("txtData changed"));
}

TEST_F(Focus, TheMnemonicOfACaptionAsksTheForm) {
    key(Qt::Key_I, Qt::AltModifier);
    EXPECT_EQ(screen.form.focused(), &screen.txtIndennita);
    EXPECT_EQ(keyboard(), "txtIndennità");
    EXPECT_THAT(screen.log, ElementsAre("txtData left"));
}

TEST_F(Focus, TheMnemonicOfACaptionIsDroppedWhenTheLeaveTakesTheFocusBack) {
    screen.txtData.lostFocus.calls([this] { screen.form.focus(screen.txtData); });
    key(Qt::Key_I, Qt::AltModifier);
    EXPECT_EQ(keyboard(), "txtData");
}

TEST_F(Focus, TheMnemonicOfAButtonLeavesTheFieldAndClicks) {
    key(Qt::Key_S, Qt::AltModifier);
    EXPECT_THAT(screen.log, ElementsAre("txtData left", "cmdSalva clicked"));
    EXPECT_EQ(keyboard(), "cmdSalva");
}

TEST_F(Focus, AToolThatPutsTheFocusOnAWidgetIsAskedOfTheForm) {
    widget(screen.txtTotale).setFocus(Qt::OtherFocusReason);
    QApplication::processEvents();
    EXPECT_EQ(screen.form.focused(), &screen.txtTotale);
    EXPECT_EQ(keyboard(), "txtTotale");
    EXPECT_THAT(screen.log, ElementsAre("txtData left"));
}

TEST_F(Focus, AWindowThatComesBackToTheFrontKeepsTheFormsPlace) {
    screen.form.focus(screen.txtTotale);
    screen.log.clear();
    QWidget other;
    other.show();
    QApplication::setActiveWindow(&other);
    QApplication::processEvents();
    EXPECT_THAT(screen.log, IsEmpty());
    QApplication::setActiveWindow(window.get());
    QApplication::processEvents();
    EXPECT_EQ(keyboard(), "txtTotale");
    EXPECT_THAT(screen.log, IsEmpty());
}

TEST_F(Focus, APageThatTheProgramTurnsMovesNobodysFocus) {
    screen.SSTab1.page = 1;
    screen.form.focus(screen.MSFlexGrid1);
    screen.log.clear();
    // The toolkit would go to the first field of the page.
    screen.SSTab1.page = 0;
    screen.form.focus(screen.Check1);
    QApplication::processEvents();
    EXPECT_EQ(screen.form.focused(), &screen.Check1);
    EXPECT_EQ(keyboard(), "Check1");
}

TEST_F(Focus, APageThatTheProgramTurnsEntersNothing) {
    screen.SSTab1.page = 1;
    screen.form.focus(screen.MSFlexGrid1);
    screen.note(screen.List1.gotFocus, "List1 entered");
    screen.SSTab1.page = 0;
    QApplication::processEvents();
    EXPECT_EQ(screen.form.focused(), &screen.MSFlexGrid1);
    EXPECT_THAT(screen.log, testing::Not(testing::Contains("List1 entered")));
}

TEST_F(Focus, ALockedFieldIsNotEntered) {
    click(screen.txtMonte);
    EXPECT_EQ(screen.form.focused(), &screen.txtData);
    EXPECT_EQ(keyboard(), "txtData");
}

}  // namespace
