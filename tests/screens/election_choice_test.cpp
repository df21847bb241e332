#include "screens/election_choice.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "screen_with_fields.h"

using namespace vorbano;
using namespace vorbano::test;
using testing::IsEmpty;

namespace {

struct TheChoiceOfAnElection : testing::Test, ScreenWithFields {
    void TearDown() override { EXPECT_THAT(desktop.finish(), IsEmpty()); }
};

}  // namespace

TEST_F(TheChoiceOfAnElection, LacksTheTypeFirstAndThenTheDate) {
    EXPECT_EQ(emptyForSearch(Combo1, txtDataEle), &Combo1);
    Combo1.choose(0);
    txtDataEle.text = std::string("  ");
    EXPECT_EQ(emptyForSearch(Combo1, txtDataEle), &txtDataEle);
    txtDataEle.text = std::string("09-06-24");
    EXPECT_EQ(emptyForSearch(Combo1, txtDataEle), nullptr);
}

TEST_F(TheChoiceOfAnElection, TellsWhatIsMissingAndPutsTheCursorThere) {
    form.focus(txtAltro);
    desktop.box("Errore", "Dati incompleti per la ricerca");
    tellIncompleteSearch(txtDataEle, desktop);
    EXPECT_EQ(form.focused(), &txtDataEle);
}

TEST_F(TheChoiceOfAnElection, TakesOnlyADateOfTheCalendar) {
    Combo1.choose(0);
    txtDataEle.text = std::string("09-06-24");
    EXPECT_TRUE(dateOfElectionExists(Combo1, txtDataEle, desktop));
    for (const char* none : {"31-02-24", "9/6", "../..", "domani"}) {
        txtDataEle.text = std::string(none);
        desktop.box("Errore", "Data di Elezione inesistente!");
        EXPECT_FALSE(dateOfElectionExists(Combo1, txtDataEle, desktop)) << none;
        EXPECT_EQ(form.focused(), &txtDataEle);
    }
}

TEST_F(TheChoiceOfAnElection, NeverLeavesTheInstallation) {
    Combo1.choose(1);
    txtDataEle.text = std::string("09-06-24");
    desktop.box("Errore", "Data di Elezione inesistente!");
    EXPECT_FALSE(dateOfElectionExists(Combo1, txtDataEle, desktop));
}

TEST_F(TheChoiceOfAnElection, IsTrimmed) {
    Combo1.text = std::string("Europee   ");
    txtDataEle.text = std::string(" 09-06-24");
    EXPECT_EQ(electionIn(Combo1, txtDataEle).type, "Europee");
    EXPECT_EQ(electionIn(Combo1, txtDataEle).date, "09-06-24");
}
