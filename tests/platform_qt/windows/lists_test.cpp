// Combo box, list box, grid and tab panel.

#include <QComboBox>
#include <QHeaderView>
#include <QHelpEvent>
#include <QListWidget>
#include <QTabWidget>
#include <QTableWidget>
#include <QToolTip>

#include "platform/qt/whole_text.h"
#include "window_fixture.h"

using testing::ElementsAre;
using testing::IsEmpty;

namespace {

class Lists : public WindowTest {
  protected:
    QComboBox& combo() { return widget<QComboBox>(screen.Combo1); }
    QListWidget& list() { return widget<QListWidget>(screen.List1); }
    QTableWidget& table() { return widget<QTableWidget>(screen.MSFlexGrid1); }
    /// What shows when the pointer rests there.
    static std::string underPointer(QWidget* part, QPoint at) {
        const QString words = vorbano::hiddenText(*part, at);
        QHelpEvent rest(QEvent::ToolTip, at, part->mapToGlobal(at));
        QApplication::sendEvent(part, &rest);
        if (!words.isEmpty()) {
            EXPECT_EQ(QToolTip::text(), words);
        }
        return words.toStdString();
    }
};

TEST_F(Lists, ALineOfAComboIsChosenWithTheKeys) {
    screen.form.focus(screen.Combo1);
    screen.log.clear();
    key(Qt::Key_Down);
    EXPECT_EQ(screen.Combo1.text(), "Europee");
    key(Qt::Key_Down);
    EXPECT_EQ(screen.Combo1.text(), "Comunali");
    EXPECT_THAT(screen.log, ElementsAre("Combo1 clicked", "Combo1 clicked"));
}

TEST_F(Lists, TheChosenLineOfAComboCanBeChosenAgain) {
    screen.form.focus(screen.Combo1);
    screen.Combo1.choose(1);
    screen.log.clear();
    combo().showPopup();
    QApplication::processEvents();
    const QModelIndex same = combo().view()->currentIndex();
    ASSERT_EQ(same.row(), 1);
    QTest::keyClick(combo().view(), Qt::Key_Return);
    EXPECT_THAT(screen.log, ElementsAre("Combo1 clicked"));
    EXPECT_EQ(screen.Combo1.selection(), 1);
}

TEST_F(Lists, TheComboFollowsTheProgram) {
    screen.Combo1.choose(2);
    EXPECT_EQ(combo().currentText(), "Referendum");
    screen.Combo1.clear();
    window->settle();
    EXPECT_EQ(combo().count(), 0);
    EXPECT_EQ(combo().currentIndex(), -1);
    screen.Combo1.items = vorbano::Lines{"Regionali", "Provinciali"};
    screen.Combo1.choose(1);
    window->settle();
    EXPECT_EQ(combo().count(), 2);
    EXPECT_EQ(combo().currentText(), "Provinciali");
}

TEST_F(Lists, AComboShowsATextOfTheProgramThatIsNoLine) {
    screen.Combo1.text = "Politiche_Regionali";
    EXPECT_EQ(combo().currentIndex(), -1);
    EXPECT_EQ(combo().placeholderText(), "Politiche_Regionali");
    screen.Combo1.choose(0);
    EXPECT_EQ(combo().currentText(), "Europee");
    EXPECT_EQ(combo().placeholderText(), "");
}

TEST_F(Lists, AChoiceThatTheLeaveDropsIsTakenBackInTheCombo) {
    screen.txtData.lostFocus.calls([this] { screen.form.focus(screen.txtData); });
    combo().setCurrentIndex(1);
    emit combo().activated(1);
    EXPECT_EQ(screen.Combo1.selection(), -1);
    EXPECT_EQ(combo().currentIndex(), -1);
}

TEST_F(Lists, ScrollingOverAComboLeavesItAlone) {
    screen.Combo1.choose(0);
    screen.log.clear();
    const QPoint at = combo().rect().center();
    QWheelEvent wheel(at, combo().mapToGlobal(at), QPoint(), QPoint(0, -120), Qt::NoButton, Qt::NoModifier,
                      Qt::NoScrollPhase, false);
    QApplication::sendEvent(&combo(), &wheel);
    EXPECT_EQ(screen.Combo1.selection(), 0);
    EXPECT_THAT(screen.log, IsEmpty());
}

TEST_F(Lists, ALineOfAListIsChosenWithThePointerAlsoTwice) {
    clickSpot(screen.List1, 2);
    EXPECT_EQ(screen.List1.selection(), 2);
    EXPECT_EQ(list().currentRow(), 2);
    clickSpot(screen.List1, 2);
    EXPECT_THAT(screen.log, ElementsAre("txtData left", "List1 clicked", "List1 clicked"));
    EXPECT_EQ(keyboard(), "List1");
}

TEST_F(Lists, ALineOfAListIsChosenWithTheKeys) {
    screen.form.focus(screen.List1);
    key(Qt::Key_Down);
    key(Qt::Key_Down);
    EXPECT_EQ(screen.List1.selection(), 1);
    key(Qt::Key_End);
    EXPECT_EQ(screen.List1.selection(), 2);
    key(Qt::Key_Home);
    EXPECT_EQ(screen.List1.selection(), 0);
    type("c");
    EXPECT_EQ(screen.List1.shownText(), "Comunali 12-06-22");
}

TEST_F(Lists, TheListFollowsTheProgram) {
    screen.List1.add("Provinciali 01-01-20");
    screen.List1.choose(3);
    window->settle();
    EXPECT_EQ(list().count(), 4);
    EXPECT_EQ(list().currentRow(), 3);
    screen.List1.selection = -1;
    EXPECT_THAT(list().selectedItems(), IsEmpty());
    screen.List1.clear();
    QApplication::processEvents();
    EXPECT_EQ(list().count(), 0);
}

TEST_F(Lists, AProcedureMayEmptyTheListThatWasClicked) {
    screen.List1.clicked.calls([this] { screen.List1.clear(); });
    clickSpot(screen.List1, 0);
    EXPECT_EQ(list().count(), 0);
}

TEST_F(Lists, RowZeroOfAGridIsItsHeading) {
    EXPECT_EQ(table().rowCount(), 2);
    EXPECT_EQ(table().columnCount(), 4);
    EXPECT_EQ(table().horizontalHeaderItem(1)->text(), "Cognome e nome");
    EXPECT_EQ(table().item(0, 1)->text(), "Bianchi Anna");
    EXPECT_TRUE(table().item(0, 3)->textAlignment() & Qt::AlignRight);
    EXPECT_FALSE(table().item(0, 1)->textAlignment() & Qt::AlignRight);
}

TEST_F(Lists, TheGridFollowsTheProgram) {
    screen.MSFlexGrid1.setRows({{"1", "Verdi Ugo", "3", "20,00"}});
    window->settle();
    EXPECT_EQ(table().rowCount(), 1);
    EXPECT_EQ(table().item(0, 1)->text(), "Verdi Ugo");
    screen.MSFlexGrid1.clear();
    window->settle();
    EXPECT_EQ(table().rowCount(), 0);
}

TEST_F(Lists, TheLastColumnTakesTheRoomThatIsLeft) {
    screen.SSTab1.page = 1;
    QApplication::processEvents();
    const QHeaderView& header = *table().horizontalHeader();
    EXPECT_EQ(header.length(), table().viewport()->width());
    EXPECT_GT(header.sectionSize(3), header.sectionSize(1));
}

TEST_F(Lists, ANamedColumnTakesTheRoomAndGivesIt) {
    screen.SSTab1.page = 1;
    table().setProperty("stretchColumn", 1);
    for (const std::string& name : {std::string("Bianchi Anna"), std::string(400, 'M')}) {
        screen.MSFlexGrid1.setRows({{"1", name, "3", "20,00"}});
        window->settle();
        QApplication::processEvents();
        const QHeaderView& header = *table().horizontalHeader();
        EXPECT_EQ(header.length(), table().viewport()->width());
        EXPECT_LT(header.sectionSize(3), header.sectionSize(1));
        const bool tooLong = name.size() == 400;
        EXPECT_EQ(underPointer(table().viewport(), table().visualItemRect(table().item(0, 1)).center()),
                  tooLong ? name : "");
    }
}

TEST_F(Lists, ALineThatIsWiderThanItsListIsReadWholeUnderThePointer) {
    const std::string longName(200, 'M');
    screen.List1.items = vorbano::Lines{"Bianchi Anna", longName};
    window->settle();
    QApplication::processEvents();
    EXPECT_EQ(underPointer(list().viewport(), list().visualItemRect(list().item(0)).center()), "");
    EXPECT_EQ(underPointer(list().viewport(), list().visualItemRect(list().item(1)).center()), longName);
    screen.Combo1.items = vorbano::Lines{"Europee", longName};
    screen.Combo1.choose(0);
    window->settle();
    EXPECT_EQ(underPointer(&combo(), combo().rect().center()), "");
    screen.Combo1.choose(1);
    window->settle();
    EXPECT_EQ(underPointer(&combo(), combo().rect().center()), longName);
}

TEST_F(Lists, ACellIsPickedWithThePointer) {
    screen.SSTab1.page = 1;
    QApplication::processEvents();
    screen.log.clear();
    clickSpot(screen.MSFlexGrid1, 2, 1);
    clickSpot(screen.MSFlexGrid1, 0, 2);
    EXPECT_THAT(screen.log, ElementsAre("txtData left", "picked 2 1", "picked 0 2"));
    EXPECT_EQ(keyboard(), "MSFlexGrid1");
}

TEST_F(Lists, ACellIsPickedWithTheKeys) {
    screen.SSTab1.page = 1;
    screen.form.focus(screen.MSFlexGrid1);
    table().setCurrentCell(0, 0);
    screen.log.clear();
    key(Qt::Key_Down);
    EXPECT_THAT(screen.log, IsEmpty());
    key(Qt::Key_Return);
    EXPECT_THAT(screen.log, ElementsAre("picked 2 0"));
}

TEST_F(Lists, ASpotThatIsNotThereHasNoWidget) {
    EXPECT_EQ(window->spotOf(screen.List1, 9).widget, nullptr);
    EXPECT_EQ(window->spotOf(screen.MSFlexGrid1, 3, 0).widget, nullptr);
    EXPECT_EQ(window->spotOf(screen.MSFlexGrid1, 1, 4).widget, nullptr);
    EXPECT_EQ(window->spotOf(screen.SSTab1, 2).widget, nullptr);
    EXPECT_EQ(window->spotOf(screen.txtData, 0).widget, nullptr);
}

TEST_F(Lists, APageIsOpenedWithThePointerAndTheKeys) {
    clickSpot(screen.SSTab1, 1);
    EXPECT_EQ(screen.SSTab1.page(), 1);
    EXPECT_TRUE(table().isVisible());
    EXPECT_FALSE(list().isVisible());
    EXPECT_EQ(keyboard(), "SSTab1");
    key(Qt::Key_Left);
    EXPECT_EQ(screen.SSTab1.page(), 0);
    EXPECT_THAT(screen.log, ElementsAre("txtData left", "SSTab1 turned", "SSTab1 turned"));
}

TEST_F(Lists, TheProgramOpensAPage) {
    screen.SSTab1.page = 1;
    EXPECT_EQ(widget<QTabWidget>(screen.SSTab1).currentIndex(), 1);
    EXPECT_THAT(screen.log, ElementsAre("SSTab1 turned"));
}

TEST_F(Lists, APageThatTheLeaveForbidsStaysClosed) {
    screen.txtData.lostFocus.calls([this] { screen.form.focus(screen.txtData); });
    clickSpot(screen.SSTab1, 1);
    EXPECT_EQ(screen.SSTab1.page(), 0);
    EXPECT_EQ(widget<QTabWidget>(screen.SSTab1).currentIndex(), 0);
}

}  // namespace
