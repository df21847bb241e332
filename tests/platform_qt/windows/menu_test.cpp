#include <QAction>
#include <QMenu>
#include <QMenuBar>

#include "window_fixture.h"

using testing::ElementsAre;
using testing::IsEmpty;

namespace {

class Menus : public WindowTest {};

TEST_F(Menus, TheBarIsMadeFromTheEntriesOfTheForm) {
    const auto* bar = window->findChild<QMenuBar*>();
    ASSERT_NE(bar, nullptr);
    ASSERT_EQ(bar->actions().size(), 1);
    EXPECT_EQ(bar->actions().front()->text(), "&File");
    const QMenu* file = bar->actions().front()->menu();
    ASSERT_EQ(file->actions().size(), 2);
    EXPECT_EQ(file->actions().front()->text(), "1°Turno");
    EXPECT_EQ(window->actionOf(screen.mnuTurno), file->actions().front());
    EXPECT_EQ(window->actionOf(screen.txtData), nullptr);
}

TEST_F(Menus, AChosenEntryFiresItsProcedure) {
    window->actionOf(screen.mnuTurno)->trigger();
    window->actionOf(screen.mnuSubA)->trigger();
    EXPECT_THAT(screen.log, ElementsAre("mnuTurno clicked", "mnuSubA clicked"));
    EXPECT_EQ(screen.form.focused(), &screen.txtData);
}

TEST_F(Menus, EntriesAreEnabledAndNamedByTheProgram) {
    screen.mnuTurno.enabled = false;
    EXPECT_FALSE(window->actionOf(screen.mnuTurno)->isEnabled());
    window->actionOf(screen.mnuTurno)->trigger();
    EXPECT_THAT(screen.log, IsEmpty());
    screen.mnuTurno.text = "2°Turno";
    EXPECT_EQ(window->actionOf(screen.mnuTurno)->text(), "2°Turno");
    screen.mnuFile.enabled = false;
    EXPECT_FALSE(window->actionOf(screen.mnuFile)->isEnabled());
}

TEST_F(Menus, AnEntryAllOfWhoseSubEntriesAreHiddenIsHidden) {
    screen.mnuSubA.visible = false;
    EXPECT_TRUE(window->actionOf(screen.mnuSub)->isVisible());
    screen.mnuSubB.visible = false;
    EXPECT_FALSE(window->actionOf(screen.mnuSub)->isVisible());
    EXPECT_TRUE(window->actionOf(screen.mnuFile)->isVisible());
    screen.mnuTurno.visible = false;
    EXPECT_FALSE(window->actionOf(screen.mnuFile)->isVisible());
    screen.mnuSubB.visible = true;
    EXPECT_TRUE(window->actionOf(screen.mnuFile)->isVisible());
}

TEST_F(Menus, AMenuOpensWithItsLetter) {
    key(Qt::Key_F, Qt::AltModifier);
    QApplication::processEvents();
    auto* open = qobject_cast<QMenu*>(QApplication::activePopupWidget());
    ASSERT_NE(open, nullptr);
    QTest::keyClick(open, Qt::Key_Return);
    EXPECT_THAT(screen.log, ElementsAre("mnuTurno clicked"));
}

}  // namespace
