// Each kind of control and its widget, both ways.

#include <QCheckBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QMouseEvent>
#include <QPushButton>
#include <QRadioButton>

#include "window_fixture.h"

using testing::ElementsAre;
using testing::IsEmpty;
using vorbano::Tone;

namespace {

class Kinds : public WindowTest {};

TEST_F(Kinds, TheWindowBearsTheCaptionOfTheForm) {
    EXPECT_EQ(window->windowTitle(), "Vorbano - Prova");
    screen.form.setCaption("Altra cosa");
    EXPECT_EQ(window->windowTitle(), "Altra cosa");
}

TEST_F(Kinds, ATextAssignedByTheProgramIsShown) {
    screen.txtData.text = "09-06-24";
    EXPECT_EQ(widget<QLineEdit>(screen.txtData).text(), "09-06-24");
}

TEST_F(Kinds, ATextTypedByTheClerkReachesTheFormKeyByKey) {
    click(screen.txtData);
    screen.log.clear();
    type("09/");
    EXPECT_EQ(screen.txtData.text(), "09/");
    EXPECT_THAT(screen.log, ElementsAre("txtData changed", "txtData changed", "txtData changed"));
}

TEST_F(Kinds, AccentedNamesAndTextsGoThrough) {
    click(screen.txtIndennita);
    type("perché");
    EXPECT_EQ(screen.txtIndennita.text(), "perché");
    EXPECT_EQ(widget(screen.txtIndennita).objectName(), "txtIndennità");
}

TEST_F(Kinds, NoMoreIsTypedThanTheFieldHolds) {
    click(screen.txtData);
    type("1234567890");
    EXPECT_EQ(screen.txtData.text(), "12345678");
}

TEST_F(Kinds, ALongerTextOfTheProgramIsShownWholeAndTakesNoFurtherKey) {
    screen.txtData.text = "1234567890";
    click(screen.txtData);
    key(Qt::Key_End);
    type("x");
    EXPECT_EQ(widget<QLineEdit>(screen.txtData).text(), "1234567890");
    key(Qt::Key_Backspace);
    EXPECT_EQ(screen.txtData.text(), "123456789");
    type("x");
    EXPECT_EQ(screen.txtData.text(), "123456789");
}

TEST_F(Kinds, WhenAProcedureCorrectsWhatWasTypedTheFieldShowsTheCorrectionWithTheCursorAtItsEnd) {
    screen.txtData.change.calls([this] {
        std::string text = screen.txtData.text();
        const auto at = text.find('.');
        if (at != std::string::npos) screen.txtData.text = text.replace(at, 1, "");
    });
    click(screen.txtData);
    type("09.06");
    EXPECT_EQ(screen.txtData.text(), "0906");
    EXPECT_EQ(widget<QLineEdit>(screen.txtData).text(), "0906");
    EXPECT_EQ(widget<QLineEdit>(screen.txtData).cursorPosition(), 4);
}

TEST_F(Kinds, TheCursorStaysWhereTheClerkTypesInTheMiddle) {
    click(screen.txtData);
    type("19");
    key(Qt::Key_Left);
    type("2");
    EXPECT_EQ(screen.txtData.text(), "129");
    EXPECT_EQ(widget<QLineEdit>(screen.txtData).cursorPosition(), 2);
}

TEST_F(Kinds, ALockedFieldIsLegibleAndTakesNoKey) {
    screen.txtData.locked = true;
    EXPECT_TRUE(widget<QLineEdit>(screen.txtData).isReadOnly());
    EXPECT_TRUE(widget(screen.txtData).isEnabled());
    QTest::keyClicks(&widget(screen.txtData), "x");
    EXPECT_EQ(screen.txtData.text(), "");
    screen.txtData.locked = false;
    EXPECT_FALSE(widget<QLineEdit>(screen.txtData).isReadOnly());
}

TEST_F(Kinds, FiguresAreRightAligned) {
    EXPECT_TRUE(widget<QLineEdit>(screen.txtIndennita).alignment().testFlag(Qt::AlignRight));
    EXPECT_FALSE(widget<QLineEdit>(screen.txtData).alignment().testFlag(Qt::AlignRight));
}

TEST_F(Kinds, ALabelShowsItsTextAsItIs) {
    screen.Label1.text = "<b>Rossi & figli</b>\nriga 2";
    auto& label = widget<QLabel>(screen.Label1);
    EXPECT_EQ(label.text(), "<b>Rossi & figli</b>\nriga 2");
    EXPECT_EQ(label.textFormat(), Qt::PlainText);
}

TEST_F(Kinds, TheToneReachesTheStyleSheet) {
    screen.Label1.tone = Tone::oldTariffs;
    screen.Frame1.tone = Tone::done;
    screen.cmdSalva.tone = Tone::active;
    EXPECT_EQ(widget(screen.Label1).property("tone"), "oldTariffs");
    EXPECT_EQ(widget(screen.Frame1).property("tone"), "done");
    EXPECT_EQ(widget(screen.cmdSalva).property("tone"), "active");
    screen.MSFlexGrid1.tone = Tone::active;
    EXPECT_EQ(widget(screen.MSFlexGrid1).property("tone"), "active");
    screen.Label1.tone = Tone::newTariffs;
    EXPECT_EQ(widget(screen.Label1).property("tone"), "newTariffs");
    screen.Label1.tone = Tone::plain;
    EXPECT_EQ(widget(screen.Label1).property("tone"), "plain");
}

TEST_F(Kinds, AButtonIsClickedWithThePointer) {
    click(screen.cmdSalva);
    EXPECT_THAT(screen.log, ElementsAre("txtData left", "cmdSalva clicked"));
}

TEST_F(Kinds, ACaptionOfTheProgramIsShownOnItsButton) {
    screen.cmdSalva.text = "Memorizza";
    EXPECT_EQ(widget<QPushButton>(screen.cmdSalva).text(), "Memorizza");
}

TEST_F(Kinds, ADisabledButtonTakesNoClick) {
    screen.cmdSalva.enabled = false;
    EXPECT_FALSE(widget(screen.cmdSalva).isEnabled());
    click(screen.cmdSalva);
    EXPECT_THAT(screen.log, IsEmpty());
    EXPECT_EQ(screen.form.focused(), &screen.txtData);
}

TEST_F(Kinds, APressOnADisabledControlIsNoPressOnThePanelAroundIt) {
    screen.txtOre.enabled = false;
    click(screen.txtOre);
    EXPECT_THAT(screen.log, IsEmpty());
}

TEST_F(Kinds, HiddenControlsAndTheirCaptionsAreHidden) {
    auto* caption = window->findChild<QLabel*>("capData");
    screen.txtData.visible = false;
    EXPECT_FALSE(widget(screen.txtData).isVisible());
    EXPECT_FALSE(caption->isVisible());
    screen.txtData.visible = true;
    EXPECT_TRUE(widget(screen.txtData).isVisible());
    EXPECT_TRUE(caption->isVisible());
}

TEST_F(Kinds, ACheckBoxIsTickedBothWays) {
    screen.Check1.checked = true;
    EXPECT_TRUE(widget<QCheckBox>(screen.Check1).isChecked());
    screen.log.clear();
    QTest::mouseClick(&widget(screen.Check1), Qt::LeftButton, Qt::NoModifier,
                      QPoint(8, widget(screen.Check1).height() / 2));
    EXPECT_FALSE(screen.Check1.checked());
    EXPECT_FALSE(widget<QCheckBox>(screen.Check1).isChecked());
    EXPECT_THAT(screen.log, ElementsAre("txtData left", "Check1 clicked"));
}

TEST_F(Kinds, ATickThatAProcedureTakesBackIsTakenBackInTheWindow) {
    screen.Check1.clicked.calls([this] { screen.Check1.checked = false; });
    QTest::mouseClick(&widget(screen.Check1), Qt::LeftButton, Qt::NoModifier,
                      QPoint(8, widget(screen.Check1).height() / 2));
    EXPECT_FALSE(screen.Check1.checked());
    EXPECT_FALSE(widget<QCheckBox>(screen.Check1).isChecked());
}

TEST_F(Kinds, OfTwoOptionsOnlyTheLastChosenIsMarked) {
    const auto press = [&](const vorbano::Control& option) {
        QTest::mouseClick(&widget(option), Qt::LeftButton, Qt::NoModifier, QPoint(8, widget(option).height() / 2));
    };
    press(screen.Option1);
    EXPECT_TRUE(screen.Option1.checked());
    press(screen.Option2);
    EXPECT_FALSE(screen.Option1.checked());
    EXPECT_FALSE(widget<QRadioButton>(screen.Option1).isChecked());
    EXPECT_TRUE(widget<QRadioButton>(screen.Option2).isChecked());
    // A second press on the chosen one does not take it away.
    press(screen.Option2);
    EXPECT_TRUE(screen.Option2.checked());
    EXPECT_TRUE(widget<QRadioButton>(screen.Option2).isChecked());
    EXPECT_THAT(screen.log, ElementsAre("txtData left", "Option1 clicked", "Option2 clicked"));
}

TEST_F(Kinds, TheProgramCanLeaveNoOptionMarked) {
    screen.Option1.checked = true;
    EXPECT_TRUE(widget<QRadioButton>(screen.Option1).isChecked());
    screen.Option1.checked = false;
    EXPECT_FALSE(widget<QRadioButton>(screen.Option1).isChecked());
    EXPECT_FALSE(widget<QRadioButton>(screen.Option2).isChecked());
}

TEST_F(Kinds, APanelHidesAndDisablesWhatStandsInIt) {
    screen.Frame1.visible = false;
    EXPECT_FALSE(widget(screen.Frame1).isVisible());
    EXPECT_FALSE(widget(screen.txtOre).isVisible());
    screen.Frame1.visible = true;
    screen.Frame1.enabled = false;
    EXPECT_TRUE(widget(screen.txtOre).isVisible());
    EXPECT_FALSE(widget(screen.txtOre).isEnabled());
    screen.Frame1.enabled = true;
    EXPECT_TRUE(widget(screen.txtOre).isEnabled());
}

TEST_F(Kinds, APanelThatWasHiddenBesideAHiddenFieldBringsBackOnlyWhatIsVisible) {
    screen.txtOre.visible = false;
    screen.Frame1.visible = false;
    screen.Frame1.visible = true;
    EXPECT_FALSE(widget(screen.txtOre).isVisible());
    EXPECT_TRUE(widget(screen.txtMonte).isVisible());
}

TEST_F(Kinds, WhatBelongsToAPanelFollowsItWhereverItsWidgetStands) {
    vorbano::Form form("frmProva", "Prova");
    vorbano::Frame panel(form, "Frame1", "1° periodo");
    const vorbano::Button save(panel, "cmdSalva", "&Salva");  // designed outside the panel
    const vorbano::FormWindow other(form);
    panel.enabled = false;
    EXPECT_FALSE(other.widgetOf(save)->isEnabled());
    panel.visible = false;
    EXPECT_TRUE(other.widgetOf(save)->isHidden());
    panel.visible = true;
    EXPECT_FALSE(other.widgetOf(save)->isHidden());
}

TEST_F(Kinds, ThePanelHearsThePointer) {
    const QPoint corner(6, widget(screen.Frame1).height() - 4);
    QTest::mouseClick(&widget(screen.Frame1), Qt::LeftButton, Qt::NoModifier, corner);
    EXPECT_THAT(screen.log, ElementsAre("Frame1 pressed"));
    screen.log.clear();
    QTest::mouseMove(&widget(screen.Frame1), corner);
    QApplication::processEvents();
    EXPECT_THAT(screen.log, testing::Contains("Frame1 moved"));
}

TEST_F(Kinds, ThePointerComesToAPanelOnceUntilItHasBeenOutside) {
    QWidget& panel = widget(screen.Frame1);
    const auto moveTo = [&](QPoint at) {
        QMouseEvent move(QEvent::MouseMove, at, panel.mapToGlobal(at), Qt::NoButton, Qt::NoButton, Qt::NoModifier);
        QApplication::sendEvent(&panel, &move);
    };
    screen.log.clear();
    moveTo({3, 3});
    moveTo({4, 3});
    moveTo({5, 3});
    EXPECT_THAT(screen.log, ElementsAre("Frame1 moved"));
    QEvent leave(QEvent::Leave);
    QApplication::sendEvent(&panel, &leave);
    moveTo({3, 3});
    EXPECT_THAT(screen.log, ElementsAre("Frame1 moved", "Frame1 moved"));
}

TEST_F(Kinds, AFieldInAPanelIsNoPressOnThePanel) {
    click(screen.txtOre);
    EXPECT_THAT(screen.log, ElementsAre("txtData left"));
}

TEST_F(Kinds, ThePanelsCaptionFollowsTheProgram) {
    screen.Frame1.text = "2° periodo";
    EXPECT_EQ(widget<QGroupBox>(screen.Frame1).title(), "2° periodo");
}

TEST_F(Kinds, TheWindowsOwnMnemonicStaysWhereTheWordsAreTheSame) {
    EXPECT_EQ(widget<QCheckBox>(screen.Check1).text(), "Politiche &2022");
    screen.Check1.text = "Altro";
    EXPECT_EQ(widget<QCheckBox>(screen.Check1).text(), "Altro");
}

TEST_F(Kinds, TheWindowsOwnCaptionStaysUntilTheProgramGivesOne) {
    vorbano::Form form("frmProva", "Prova");
    vorbano::Button search(form, "cmdRicerca", "");
    vorbano::Frame panel(form, "Frame1", "");
    const vorbano::FormWindow other(form);
    const auto* button = qobject_cast<QPushButton*>(other.widgetOf(search));
    EXPECT_EQ(button->text(), "&Ricerca");
    EXPECT_EQ(qobject_cast<QGroupBox*>(other.widgetOf(panel))->title(), "1° periodo");
    search.text = "Cerca";
    EXPECT_EQ(button->text(), "Cerca");
    search.text = "";
    EXPECT_EQ(button->text(), "");
}

TEST_F(Kinds, EveryFieldHasANameForAScreenReader) {
    EXPECT_EQ(widget(screen.txtData).accessibleName(), "Data elezione");
    EXPECT_EQ(widget(screen.txtOre).accessibleName(), "Ore usate");
    EXPECT_THAT(window->namelessWidgets(), IsEmpty());
}

}  // namespace
