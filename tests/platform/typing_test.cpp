// Typing key by key, with procedures that look at every key.

#include <gmock/gmock.h>

#include "platform/operator.h"
#include "watcher.h"

using testing::ElementsAre;
using testing::IsEmpty;
using namespace vorbano;

namespace {

struct Typing : testing::Test {
    std::vector<std::string> seen;
    Form form{"frmX", "Prova"};
    TextBox field{form, "txtA"};
    TextBox other{form, "txtB"};
    Operator clerk{form};

    Typing() {
        form.open();
        form.focus(other);
        field.change.calls([this] { seen.push_back(field.text()); });
    }
};

TEST_F(Typing, EveryKeyIsAChange) {
    EXPECT_EQ(clerk.type(field, "09/"), Refusal::none);
    EXPECT_THAT(seen, ElementsAre("0", "09", "09/"));
    EXPECT_EQ(form.focused(), &field);
}

/// A field that completes what is typed, as the search for a municipality does.
struct Completing : Typing {
    Completing() {
        field.change.calls([this] {
            if (field.text() != "R" && field.text() != "RO") return;
            const auto typed = static_cast<int>(field.text().size());
            field.text = std::string("ROMA");
            field.markedFrom = typed;
        });
    }
};

TEST_F(Completing, TheNextKeyTakesThePlaceOfWhatIsMarked) {
    EXPECT_EQ(clerk.type(field, "RO"), Refusal::none);
    EXPECT_EQ(field.text(), "ROMA");
    EXPECT_EQ(field.markedFrom(), 2);
    EXPECT_EQ(clerk.type(field, "ROS"), Refusal::none);
    EXPECT_EQ(field.text(), "ROS");
    EXPECT_EQ(field.markedFrom(), -1);
}

TEST_F(Completing, AKeyThatWritesWhatIsMarkedIsAChange) {
    EXPECT_EQ(clerk.type(field, "R"), Refusal::none);
    seen.clear();
    EXPECT_EQ(clerk.edit(field, "ROMA"), Refusal::none);
    EXPECT_THAT(seen, ElementsAre("ROMA"));
    EXPECT_EQ(field.markedFrom(), -1);
}

TEST_F(Completing, AnyChangeOfTheTextEndsTheMark) {
    EXPECT_EQ(clerk.type(field, "R"), Refusal::none);
    field.text = std::string("MILANO");
    EXPECT_EQ(field.markedFrom(), -1);
}

TEST_F(Typing, TheFirstKeyReplacesWhatStoodThere) {
    field.text = std::string("12");
    seen.clear();
    EXPECT_EQ(clerk.type(field, "34"), Refusal::none);
    EXPECT_THAT(seen, ElementsAre("3", "34"));
}

TEST_F(Typing, TypingNothingEmptiesTheField) {
    field.text = std::string("12");
    EXPECT_EQ(clerk.type(field, ""), Refusal::none);
    EXPECT_EQ(field.text(), "");
}

TEST_F(Typing, AnAccentedLetterIsOneKey) {
    EXPECT_EQ(clerk.type(field, "perché"), Refusal::none);
    EXPECT_THAT(seen, ElementsAre("p", "pe", "per", "perc", "perch", "perché"));
}

TEST_F(Typing, WhatAProcedureTakesOutIsGoneForTheNextKey) {
    field.change.calls([this] {
        std::string text = field.text();
        if (!text.empty() && text.back() == '.') field.text = text.substr(0, text.size() - 1);
    });
    EXPECT_EQ(clerk.type(field, "1.2"), Refusal::none);
    EXPECT_EQ(field.text(), "12");
}

TEST_F(Typing, AProcedureMayEmptyTheFieldInTheMiddle) {
    field.change.calls([this] {
        if (field.text() == "12") field.text = std::string();
    });
    EXPECT_EQ(clerk.type(field, "123"), Refusal::none);
    EXPECT_EQ(field.text(), "3");
}

TEST_F(Typing, TypingStopsWhenAProcedureMovesTheFocusAway) {
    field.change.calls([this] {
        if (field.text() == "12") form.focus(other);
    });
    EXPECT_EQ(clerk.type(field, "1234"), Refusal::none);
    EXPECT_EQ(field.text(), "12");
    EXPECT_EQ(form.focused(), &other);
}

TEST_F(Typing, NoMoreIsTypedThanTheFieldHolds) {
    TextBox narrow(form, "txtC", 3);
    EXPECT_EQ(clerk.type(narrow, "èèèè"), Refusal::none);
    EXPECT_EQ(narrow.text(), "èèè");
}

TEST_F(Typing, TheProgramMayAssignMoreThanTheFieldHolds) {
    TextBox narrow(form, "txtC", 3);
    narrow.text = std::string("12345");
    EXPECT_EQ(narrow.text(), "12345");
}

TEST_F(Typing, TypingInADroppedFieldChangesNothing) {
    other.lostFocus.calls([this] { form.focus(other); });
    EXPECT_EQ(clerk.type(field, "1"), Refusal::none);
    EXPECT_THAT(seen, IsEmpty());
}

TEST_F(Typing, APasteIsOneChange) {
    EXPECT_EQ(clerk.edit(field, "09-06-24"), Refusal::none);
    EXPECT_THAT(seen, ElementsAre("09-06-24"));
}

}  // namespace
