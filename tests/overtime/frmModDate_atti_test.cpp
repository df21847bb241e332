// The dates of the decree and of the determination.

#include "mod_date_desk.h"

namespace vorbano::test::moddate {
namespace {

class ModDateAtti : public ModDateTest {
  protected:
    void newActs(const char* decreto, const char* determina) {
        if (!ticked("Check6")) tick("Check6");
        type("txtDataDecreto", decreto);
        if (!ticked("Check7")) tick("Check7");
        type("txtDataDetermina", determina);
    }
    std::string duedate() { return file24("Duedate.vbn"); }
};

constexpr const char* tooLate =
    "data autorizzazione oltre i termini di gg 10 dalla data di publicazione del decreto.\n"
    "AUTORIZZARE dalla data della determinazione o successive";

TEST_F(ModDateAtti, ABoxUnlocksItsDateAndGivesItBack) {
    searchElection24();
    EXPECT_EQ(clerk().type(control("txtDataDecreto"), "1"), Refusal::locked);
    tick("Check6");
    EXPECT_EQ(focused(), "txtDataDecreto");
    EXPECT_TRUE(operable("cmdSalva2"));
    EXPECT_FALSE(operable("txtDataDetermina"));
    type("txtDataDecreto", "12/04/24");
    tick("Check6", false);
    EXPECT_EQ(text("txtDataDecreto"), "11-04-24");
    EXPECT_FALSE(operable("txtDataDecreto"));
    EXPECT_FALSE(operable("cmdSalva2"));
    tick("Check7");
    EXPECT_EQ(focused(), "txtDataDetermina");
    EXPECT_TRUE(operable("cmdSalva2"));
}

TEST_F(ModDateAtti, BothDatesMustBeThere) {
    searchElection24();
    newActs("", "18/04/24");
    box("Errore", "Date incomplete");
    click("cmdSalva2");
    EXPECT_EQ(focused(), "txtDataDecreto");
    newActs("11/04/24", "");
    box("Errore", "Date incomplete");
    click("cmdSalva2");
    EXPECT_EQ(focused(), "txtDataDetermina");
    EXPECT_EQ(duedate(), acts24);
}

TEST_F(ModDateAtti, BothMustBeDaysOfTheCalendar) {
    searchElection24();
    newActs("31/04/24", "18/04/24");
    box("data errata", unfinishedDate);
    click("cmdSalva2");
    EXPECT_EQ(focused(), "txtDataDecreto");
    newActs("11/04/24", "18/04");
    box("data errata", unfinishedDate);
    click("cmdSalva2");
    EXPECT_EQ(focused(), "txtDataDetermina");
    EXPECT_EQ(duedate(), acts24);
}

TEST_F(ModDateAtti, TenDaysAfterTheDecreeAreStored) {
    searchElection24();
    newActs("12/4/24", "22/4/24");
    click("cmdSalva2");
    EXPECT_EQ(duedate(), "12-04-2422-04-24");
    EXPECT_FALSE(ticked("Check6"));
    EXPECT_FALSE(ticked("Check7"));
    EXPECT_EQ(text("txtDataDecreto") + " " + text("txtDataDetermina"), "12-04-24 22-04-24");
    for (const char* name : {"txtDataDecreto", "txtDataDetermina", "cmdSalva2"}) EXPECT_FALSE(operable(name)) << name;
    EXPECT_EQ(file24("09-06-24.vbn"), staff24());
    EXPECT_EQ(file24("Meirin.vbn"), limits24());
    // From here on these are the stored ones.
    tick("Check7");
    type("txtDataDetermina", "19/04/24");
    tick("Check7", false);
    EXPECT_EQ(text("txtDataDetermina"), "22-04-24");
}

TEST_F(ModDateAtti, ElevenDaysAreRefused) {
    searchElection24();
    newActs("12/04/24", "23/04/24");
    box("Errore", tooLate);
    click("cmdSalva2");
    EXPECT_EQ(duedate(), acts24);
    EXPECT_EQ(focused(), "txtDataDetermina");
    EXPECT_TRUE(ticked("Check6"));
    EXPECT_TRUE(ticked("Check7"));
    tick("Check7", false);
    tick("Check6", false);
    // With the determination as it is, the decree is what can be mended.
    tick("Check6");
    type("txtDataDecreto", "07/04/24");
    box("Errore", tooLate);
    click("cmdSalva2");
    EXPECT_EQ(focused(), "txtDataDecreto");
    type("txtDataDecreto", "08/04/24");
    click("cmdSalva2");
    EXPECT_EQ(duedate(), "08-04-2418-04-24");
}

TEST_F(ModDateAtti, TheDaysAreCountedAcrossTheMonthAndTheLeapDay) {
    searchElection24();
    newActs("20/02/24", "01/03/24");
    click("cmdSalva2");
    EXPECT_EQ(duedate(), "20-02-2401-03-24");
    newActs("19/02/24", "01/03/24");
    box("Errore", tooLate);
    click("cmdSalva2");
    // In 2023 there was no 29th.
    newActs("19/02/23", "01/03/23");
    click("cmdSalva2");
    EXPECT_EQ(duedate(), "19-02-2301-03-23");
}

TEST_F(ModDateAtti, ADeterminationBeforeTheDecreeIsWithinTheTime) {
    searchElection24();
    newActs("18/04/24", "11/04/24");
    click("cmdSalva2");
    EXPECT_EQ(duedate(), "18-04-2411-04-24");
}

TEST_F(ModDateAtti, AnElectionWithoutActsGetsThem) {
    layElection24(files);
    ASSERT_TRUE(files.remove(today24 + "Duedate.vbn").ok());
    search("Europee", "09/06/24");
    newActs("12/04/24", "22/04/24");
    click("cmdSalva2");
    EXPECT_EQ(duedate(), "12-04-2422-04-24");
}

TEST_F(ModDateAtti, CharactersThatAreNoPartOfADateAreRefused) {
    searchElection24();
    tick("Check6");
    box("formato data", "Il formato ( _ ) non è esatto. Inserire il simbolo  ( / )  oppure  ( - )  ");
    type("txtDataDecreto", "1_");
    EXPECT_EQ(text("txtDataDecreto"), "1");
}

TEST_F(ModDateAtti, TheActsDoNotTouchTheSituationOfThePeriods) {
    searchElection24();
    click("cmdModifica");
    newActs("12/04/24", "13/04/24");
    click("cmdSalva2");
    EXPECT_TRUE(operable("cmdSalva"));
    EXPECT_EQ(text("txtMensD1"), "240");
}

}  // namespace
}  // namespace vorbano::test::moddate
