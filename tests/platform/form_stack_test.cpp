// Forms one above the other, and when they are activated.

#include <gmock/gmock.h>

#include "platform/desktop.h"
#include "watcher.h"

using testing::ElementsAre;
using namespace vorbano;

namespace {

struct Stack : testing::Test {
    std::vector<std::string> log;
    Form main{"Form1", "Vorbano"};
    TextBox mainField{main, "txtMain"};
    Form upper{"frmX", "Prova"};
    TextBox first{upper, "txtA"};
    TextBox second{upper, "txtB"};
    FormStack stack;

    Stack() {
        note(main.activated, log, "main activated");
        note(upper.activated, log, "upper activated");
    }
};

TEST_F(Stack, AFormThatIsPushedIsOpenAndActivated) {
    stack.push(main);
    EXPECT_TRUE(main.isOpen());
    EXPECT_EQ(stack.front(), &main);
    EXPECT_EQ(main.focused(), &mainField);
    EXPECT_THAT(log, ElementsAre("main activated"));
}

TEST_F(Stack, TheFormBelowIsActivatedAgainWhenItComesBackToTheFront) {
    stack.push(main);
    stack.push(upper);
    EXPECT_EQ(stack.size(), 2U);
    upper.close();
    stack.pop();
    EXPECT_EQ(stack.front(), &main);
    EXPECT_THAT(log, ElementsAre("main activated", "upper activated", "main activated"));
}

TEST_F(Stack, AFormThatHasClosedIsNotActivated) {
    stack.push(main);
    stack.push(upper);
    main.close();
    stack.pop();
    EXPECT_THAT(log, ElementsAre("main activated", "upper activated"));
}

TEST_F(Stack, WhatTheActivationFocusesKeepsTheFocus) {
    upper.activated.calls([this] { upper.focus(second); });
    stack.push(upper);
    EXPECT_EQ(upper.focused(), &second);
}

TEST_F(Stack, WhatTheActivationDisablesIsNotFocused) {
    upper.activated.calls([this] { first.enabled = false; });
    stack.push(upper);
    EXPECT_EQ(upper.focused(), &second);
}

TEST_F(Stack, AFormThatClosesWhileItIsActivatedHasNoFocus) {
    note(first.gotFocus, log, "entered");
    upper.activated.calls([this] { upper.close(); });
    stack.push(upper);
    EXPECT_FALSE(upper.isOpen());
    EXPECT_THAT(log, ElementsAre("upper activated"));
}

TEST_F(Stack, AFormShownAgainBeginsWithoutTheOldFocus) {
    stack.push(upper);
    upper.focus(second);
    upper.close();
    stack.pop();
    stack.push(upper);
    EXPECT_EQ(upper.focused(), &first);
}

}  // namespace
