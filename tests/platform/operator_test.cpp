// The clerk's gestures, and what refuses them.

#include "platform/operator.h"

#include <gmock/gmock.h>

#include "watcher.h"

using testing::ElementsAre;
using testing::IsEmpty;
using namespace vorbano;

namespace {

struct Gestures : testing::Test {
    std::vector<std::string> log;
    Form form{"frmX", "Prova"};
    TextBox field{form, "txtA"};
    Button button{form, "cmdB", "B"};
    CheckBox box{form, "Check1", "Sì"};
    Option one{form, "Option1", "1"};
    Option two{form, "Option2", "2"};
    ComboBox combo{form, "Combo1", {"Europee", "Comunali"}};
    ListBox list{form, "List1"};
    Grid grid{form, "Grid1", {"N.", "Nome"}};
    Frame panel{form, "Frame1"};
    TabPanel tabs{form, "SSTab1"};
    MenuEntry file{form, "mnuFile", "&File"};
    MenuEntry entry{file, "mnuEsci", "Esci"};
    Label label{form, "Label1", "x"};
    HiddenLabel flag{form, "Label2"};
    Operator clerk{form};

    Gestures() {
        list.items = Lines{"uno", "due"};
        grid.setRows({{"1", "Rossi"}});
        note(button.clicked, log, "clicked");
        note(box.clicked, log, "ticked");
        note(combo.clicked, log, "chosen");
        note(list.clicked, log, "listed");
        note(grid.picked, log, "picked");
        note(panel.pressed, log, "pressed");
        note(panel.moved, log, "moved");
        note(entry.clicked, log, "menu");
        form.open();
        form.focus(field);
    }

    /// The answer to the gesture of its own kind on every control that takes one.
    std::vector<Refusal> allGestures() {
        return {clerk.type(field, "1"),
                clerk.edit(field, "1"),
                clerk.enter(button),
                clerk.click(button),
                clerk.tick(box, true),
                clerk.click(two),
                clerk.choose(combo, "Comunali"),
                clerk.chooseIndex(list, 1),
                clerk.pick(grid, 1, 1),
                clerk.press(panel),
                clerk.move(panel),
                clerk.turn(tabs, 1),
                clerk.menu(entry)};
    }
};

TEST_F(Gestures, EveryGestureWorksOnWhatCanBeUsed) {
    EXPECT_THAT(allGestures(), testing::Each(Refusal::none));
    EXPECT_THAT(log, ElementsAre("clicked", "ticked", "chosen", "listed", "picked", "pressed", "moved", "menu"));
    EXPECT_EQ(field.text(), "1");
    EXPECT_TRUE(box.checked());
    EXPECT_TRUE(two.checked());
    EXPECT_EQ(combo.text(), "Comunali");
    EXPECT_EQ(list.selection(), 1);
    EXPECT_EQ(grid.row, 1);
    EXPECT_EQ(grid.column, 1);
    EXPECT_EQ(tabs.page(), 1);
}

TEST_F(Gestures, EveryGestureIsRefusedOnWhatIsDisabled) {
    for (Control* control : form.controls()) control->enabled = false;
    EXPECT_THAT(allGestures(), testing::Each(Refusal::disabled));
    EXPECT_THAT(log, IsEmpty());
    EXPECT_EQ(field.text(), "");
}

TEST_F(Gestures, EveryGestureIsRefusedOnWhatIsHidden) {
    for (Control* control : form.controls()) control->visible = false;
    EXPECT_THAT(allGestures(), testing::Each(Refusal::hidden));
    EXPECT_THAT(log, IsEmpty());
}

TEST_F(Gestures, ALockedFieldIsNotTypedIntoNorEntered) {
    field.locked = true;
    EXPECT_EQ(clerk.type(field, "1"), Refusal::locked);
    EXPECT_EQ(clerk.edit(field, "1"), Refusal::locked);
    EXPECT_EQ(clerk.enter(field), Refusal::locked);
    EXPECT_EQ(field.text(), "");
}

TEST_F(Gestures, AGestureOfAnotherKindIsRefused) {
    EXPECT_EQ(clerk.type(button, "1"), Refusal::wrongKind);
    EXPECT_EQ(clerk.edit(button, "1"), Refusal::wrongKind);
    EXPECT_EQ(clerk.click(box), Refusal::wrongKind);
    EXPECT_EQ(clerk.tick(one, true), Refusal::wrongKind);
    EXPECT_EQ(clerk.choose(field, "x"), Refusal::wrongKind);
    EXPECT_EQ(clerk.chooseIndex(field, 0), Refusal::wrongKind);
    EXPECT_EQ(clerk.pick(list, 1, 0), Refusal::wrongKind);
    EXPECT_EQ(clerk.press(button), Refusal::wrongKind);
    EXPECT_EQ(clerk.move(button), Refusal::wrongKind);
    EXPECT_EQ(clerk.turn(panel, 0), Refusal::wrongKind);
    EXPECT_EQ(clerk.menu(button), Refusal::wrongKind);
    EXPECT_EQ(clerk.enter(label), Refusal::wrongKind);
    EXPECT_EQ(clerk.enter(flag), Refusal::hidden);
}

TEST_F(Gestures, WhatIsNotInAListOrGridIsRefused) {
    EXPECT_EQ(clerk.choose(combo, "Regionali"), Refusal::noSuchItem);
    EXPECT_EQ(clerk.chooseIndex(list, 2), Refusal::noSuchItem);
    EXPECT_EQ(clerk.pick(grid, 2, 0), Refusal::noSuchItem);
    EXPECT_EQ(clerk.pick(grid, 1, 2), Refusal::noSuchItem);
    EXPECT_EQ(clerk.pick(grid, -1, 0), Refusal::noSuchItem);
    EXPECT_EQ(clerk.pick(grid, 0, 0), Refusal::none);
    EXPECT_THAT(log, ElementsAre("picked"));
}

TEST_F(Gestures, AMenuEntryBelowADisabledOneIsRefused) {
    file.enabled = false;
    EXPECT_EQ(clerk.menu(entry), Refusal::disabled);
    file.enabled = true;
    file.visible = false;
    EXPECT_EQ(clerk.menu(entry), Refusal::hidden);
    EXPECT_THAT(log, IsEmpty());
}

TEST_F(Gestures, AMenuEntryLeavesTheFocusWhereItIs) {
    note(field.lostFocus, log, "left");
    EXPECT_EQ(clerk.menu(entry), Refusal::none);
    EXPECT_THAT(log, ElementsAre("menu"));
    EXPECT_EQ(form.focused(), &field);
}

TEST_F(Gestures, AClickComesAfterTheLeaveOfTheOldField) {
    note(field.lostFocus, log, "left");
    note(button.gotFocus, log, "entered");
    EXPECT_EQ(clerk.click(button), Refusal::none);
    EXPECT_THAT(log, ElementsAre("left", "entered", "clicked"));
}

TEST_F(Gestures, AClickAfterALeaveThatTookTheFocusBackIsDropped) {
    field.lostFocus.calls([this] { form.focus(field); });
    EXPECT_EQ(clerk.click(button), Refusal::none);
    EXPECT_EQ(clerk.tick(box, true), Refusal::none);
    EXPECT_EQ(clerk.choose(combo, "Europee"), Refusal::none);
    EXPECT_EQ(clerk.pick(grid, 1, 0), Refusal::none);
    EXPECT_EQ(clerk.turn(tabs, 1), Refusal::none);
    EXPECT_THAT(log, IsEmpty());
    EXPECT_FALSE(box.checked());
    EXPECT_EQ(combo.selection(), -1);
    EXPECT_EQ(tabs.page(), 0);
    EXPECT_EQ(form.focused(), &field);
}

TEST_F(Gestures, TickingToTheStateThatItHasIsSilent) {
    EXPECT_EQ(clerk.tick(box, false), Refusal::none);
    EXPECT_THAT(log, IsEmpty());
    EXPECT_EQ(form.focused(), &box);
}

TEST_F(Gestures, TheFocusMovesOnWhenAProcedureDisablesItsOwnButton) {
    button.clicked.calls([this] { button.enabled = false; });
    EXPECT_EQ(clerk.click(button), Refusal::none);
    EXPECT_EQ(form.focused(), &box);
}

TEST_F(Gestures, ARefusalHasWords) {
    EXPECT_EQ(inWords(Refusal::hidden), "is not visible");
    EXPECT_EQ(inWords(Refusal::disabled), "is disabled");
    EXPECT_EQ(inWords(Refusal::locked), "is locked");
}

}  // namespace
