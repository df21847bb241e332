// Where the focus is, and which procedures run when it moves.

#include <gmock/gmock.h>

#include "platform/operator.h"
#include "watcher.h"

using testing::ElementsAre;
using testing::IsEmpty;
using namespace vorbano;

namespace {

struct FocusRules : testing::Test {
    std::vector<std::string> log;
    Form form{"frmX", "Prova"};
    TextBox a{form, "txtA"};
    TextBox b{form, "txtB"};
    Button c{form, "cmdC", "C"};
    Operator clerk{form};

    FocusRules() {
        form.open();
        form.focus(a);
        for (Control* control : form.controls()) {
            note(control->gotFocus, log, control->name() + " entered");
            note(control->lostFocus, log, control->name() + " left");
        }
    }
};

TEST_F(FocusRules, TheOldControlIsLeftBeforeTheNewOneIsEntered) {
    form.focus(b);
    EXPECT_EQ(form.focused(), &b);
    EXPECT_THAT(log, ElementsAre("txtA left", "txtB entered"));
}

TEST_F(FocusRules, TheFocusedControlIsNotEnteredAgain) {
    form.focus(a);
    EXPECT_THAT(log, IsEmpty());
}

TEST_F(FocusRules, DuringALeaveNobodyHasTheFocus) {
    const Control* during = &a;
    a.lostFocus.calls([&] { during = form.focused(); });
    form.focus(b);
    EXPECT_EQ(during, nullptr);
}

TEST_F(FocusRules, ALeaveCanTakeTheFocusBack) {
    a.lostFocus.calls([this] { form.focus(a); });
    form.focus(b);
    EXPECT_EQ(form.focused(), &a);
    EXPECT_THAT(log, ElementsAre("txtA left", "txtA entered"));
}

TEST_F(FocusRules, ALeaveCanSendTheFocusElsewhere) {
    a.lostFocus.calls([this] { form.focus(c); });
    form.focus(b);
    EXPECT_EQ(form.focused(), &c);
    EXPECT_THAT(log, ElementsAre("txtA left", "cmdC entered"));
}

TEST_F(FocusRules, ALeaveThatDisablesTheGoalGoesOnToTheNextOne) {
    a.lostFocus.calls([this] { b.enabled = false; });
    form.focus(b);
    EXPECT_NE(form.focused(), &b);
    ASSERT_NE(form.focused(), nullptr);
    EXPECT_TRUE(form.focused()->takesFocus());
}

TEST_F(FocusRules, AControlThatCannotTakeTheFocusLeavesItWhereItIs) {
    b.enabled = false;
    form.focus(b);
    EXPECT_EQ(form.focused(), &a);
    EXPECT_THAT(log, IsEmpty());
}

TEST_F(FocusRules, TabGoesInTheOrderOfDeclarationAndRound) {
    clerk.leave();
    EXPECT_EQ(form.focused(), &b);
    clerk.leave();
    EXPECT_EQ(form.focused(), &c);
    clerk.leave();
    EXPECT_EQ(form.focused(), &a);
    clerk.leave(false);
    EXPECT_EQ(form.focused(), &c);
}

TEST_F(FocusRules, TabSkipsWhatCannotBeUsed) {
    b.locked = true;
    clerk.leave();
    EXPECT_EQ(form.focused(), &c);
    a.visible = false;
    clerk.leave();
    EXPECT_EQ(form.focused(), &c);
}

TEST_F(FocusRules, TabInTheOnlyFieldLeavesItAndComesBack) {
    b.enabled = false;
    c.enabled = false;
    clerk.leave();
    EXPECT_EQ(form.focused(), &a);
    EXPECT_THAT(log, ElementsAre("txtA left", "txtA entered"));
}

TEST_F(FocusRules, WhatCanNoLongerHoldTheFocusIsLeftSilently) {
    a.enabled = false;
    form.settleFocus();
    EXPECT_EQ(form.focused(), &b);
    EXPECT_THAT(log, ElementsAre("txtB entered"));
}

TEST_F(FocusRules, WhereNothingTakesTheFocusNobodyHasIt) {
    for (Control* control : form.controls()) control->enabled = false;
    form.settleFocus();
    EXPECT_EQ(form.focused(), nullptr);
}

TEST_F(FocusRules, TheWindowIsToldBeforeTheEnterProcedureRuns) {
    Watcher watcher;
    form.watchedBy(&watcher);
    std::vector<std::string> toldBefore;
    b.gotFocus.calls([&] { toldBefore = watcher.told; });
    form.focus(b);
    EXPECT_THAT(toldBefore, ElementsAre("focus"));
}

TEST_F(FocusRules, ClosingFiresOnceAndTellsTheWindow) {
    Watcher watcher;
    form.watchedBy(&watcher);
    note(form.closing, log, "closing");
    clerk.close();
    clerk.close();
    EXPECT_FALSE(form.isOpen());
    EXPECT_THAT(log, ElementsAre("closing"));
    EXPECT_THAT(watcher.told, ElementsAre("closed"));
}

}  // namespace
