// The boxes: what ticking opens and closes, and how many groups are counted.

#include "cancella_desk.h"

namespace vorbano::test {
namespace {

class CancellaSpunte : public CancellaTest {
  protected:
    /// Overtime, normal and special stations, statement.
    void searchFour() {
        for (const std::size_t group : {0U, 2U, 4U, 7U}) layGroup(files, toldGroups()[group]);
        search();
    }
    void expectChosen(bool chosen) {
        EXPECT_EQ(enabled("cmdEsegui"), chosen);
        for (const char* name : {"cmdAnnulla", "cmdRicerca", "Combo1", "Combo2"})
            EXPECT_EQ(enabled(name), !chosen) << name;
    }
};

TEST_F(CancellaSpunte, AreCounted) {
    searchFour();
    expectChosen(false);
    tick("Check4");
    EXPECT_EQ(text("Label2"), "1");
    expectChosen(true);
    tick("Check9");
    EXPECT_EQ(text("Label2"), "2");
    expectChosen(true);
    tick("Check4", false);
    EXPECT_EQ(text("Label2"), "1");
    expectChosen(true);
    tick("Check9", false);
    EXPECT_EQ(text("Label2"), "0");
    expectChosen(false);
    EXPECT_EQ(enabledBoxes(), "2 4 6 9");
}

TEST_F(CancellaSpunte, OfAGroupWithoutFilesAreRefused) {
    searchFour();
    EXPECT_EQ(clerk().tick(control("Check3"), true), Refusal::disabled);
    EXPECT_EQ(text("Label2"), "0");
}

TEST_F(CancellaSpunte, AreSetForAllThatAreEnabledAndTakenOffTogether) {
    searchFour();
    tick("Check1");
    EXPECT_EQ(tickedBoxes(), "1 2 4 6 9");
    EXPECT_EQ(text("Label2"), "4");
    expectChosen(true);
    tick("Check1", false);
    EXPECT_EQ(tickedBoxes(), "");
    EXPECT_EQ(text("Label2"), "0");
    expectChosen(false);
}

TEST_F(CancellaSpunte, TakenOffTogetherTakeOffThoseSetBeforeToo) {
    searchFour();
    tick("Check4");
    tick("Check1");
    EXPECT_EQ(text("Label2"), "4");
    tick("Check1", false);
    EXPECT_EQ(tickedBoxes(), "");
    EXPECT_EQ(text("Label2"), "0");
}

TEST_F(CancellaSpunte, OfAnElectionWithEmptyFilesOpenNoDeletion) {
    layFile(files, "Meirin.vbn", 86);
    search();
    EXPECT_EQ(enabledBoxes(), "");
    EXPECT_EQ(focused(), "Check1");
    tick("Check1");
    EXPECT_EQ(tickedBoxes(), "1");
    EXPECT_EQ(text("Label2"), "0");
    expectChosen(false);
    click("cmdAnnulla");
    EXPECT_EQ(tickedBoxes(), "");
    EXPECT_EQ(text("Label2"), "0");
}

TEST_F(CancellaSpunte, OfAllStayWithoutTheGroupTakenOffAgain) {
    searchFour();
    tick("Check1");
    tick("Check4", false);
    EXPECT_EQ(tickedBoxes(), "1 2 6 9");
    EXPECT_EQ(text("Label2"), "3");
    EXPECT_EQ(text("lblAvviso"),
              "Saranno eliminati TUTTI i file dell'elezione Europee del 09-06-24,\nanche quelli senza spunta.");
}

TEST_F(CancellaSpunte, AreAnnouncedInWords) {
    searchFour();
    EXPECT_EQ(text("lblAvviso"), "");
    tick("Check4");
    EXPECT_EQ(text("lblAvviso"), "Saranno eliminati i file di 1 gruppo dell'elezione Europee del 09-06-24.");
    tick("Check9");
    EXPECT_EQ(text("lblAvviso"), "Saranno eliminati i file di 2 gruppi dell'elezione Europee del 09-06-24.");
    tick("Check1");
    EXPECT_EQ(text("lblAvviso"),
              "Saranno eliminati TUTTI i file dell'elezione Europee del 09-06-24,\nanche quelli senza spunta.");
}

TEST_F(CancellaSpunte, AreEmptiedAndClosedByAnnulla) {
    searchFour();
    click("cmdAnnulla");
    EXPECT_EQ(enabledBoxes(), "");
    for (const char* name : {"Check1", "cmdEsegui", "cmdAnnulla"}) EXPECT_FALSE(enabled(name)) << name;
    for (const char* name : {"cmdRicerca", "Combo1", "Combo2"}) EXPECT_TRUE(enabled(name)) << name;
    EXPECT_EQ(text("Combo1"), "Europee");
    EXPECT_EQ(text("Combo2"), "09-06-24");
    EXPECT_EQ(text("lblElezione"), "");
    EXPECT_EQ(focused(), "Combo1");
    click("cmdRicerca");
    EXPECT_EQ(enabledBoxes(), "2 4 6 9");
}

}  // namespace
}  // namespace vorbano::test
