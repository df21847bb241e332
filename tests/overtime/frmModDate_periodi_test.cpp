// The dates of the periods as they are typed, and what is refused before anything is worked out.

#include "mod_date_desk.h"

namespace vorbano::test::moddate {
namespace {

class ModDatePeriodi : public ModDateTest {};

TEST_F(ModDatePeriodi, ABoxUnlocksItsPairAndGivesItBack) {
    searchElection24();
    EXPECT_EQ(clerk().type(control("txtSecDalM"), "1"), Refusal::locked);
    tick("Check2");
    EXPECT_EQ(focused(), "txtSecDalM");
    EXPECT_TRUE(operable("txtSecAlM"));
    EXPECT_FALSE(operable("txtPrimoDalM"));
    EXPECT_FALSE(operable("txtTerDalM"));
    type("txtSecDalM", "21/5/24");
    type("txtSecAlM", "28/5/24");
    leave();
    EXPECT_EQ(text("txtSecDalM") + " " + text("txtSecAlM"), "21-05-24 28-05-24");
    tick("Check2", false);
    EXPECT_EQ(text("txtSecDalM") + " " + text("txtSecAlM"), "20-05-24 29-05-24");
    EXPECT_FALSE(operable("txtSecDalM"));
}

TEST_F(ModDatePeriodi, WhatIsTypedIsCheckedKeyByKey) {
    searchElection24();
    constexpr std::array<const char*, 3> fields = {"txtPrimoDalM", "txtSecAlM", "txtTerDalM"};
    for (std::size_t at = 0; at < fields.size(); ++at) {
        const std::string n = std::to_string(at + 1);
        tick("Check" + n);
        box("Date periodi", "valore non  valido");
        type(fields.at(at), "32");
        EXPECT_EQ(text(fields.at(at)), "");
        box("Annullamento periodo", "Per annullare il " + n + "° periodo inserire ( // )");
        type(fields.at(at), "--");
        EXPECT_EQ(text(fields.at(at)), "");
        type(fields.at(at), "31");
        EXPECT_EQ(text(fields.at(at)), "31");
        type(fields.at(at), "//");
    }
}

TEST_F(ModDatePeriodi, EachCharacterThatIsNoPartOfADateIsRefusedAndTakenOut) {
    searchElection24();
    tick("Check1");
    for (const char one : std::string("()[]#.,*:;'_\\")) {
        box("formato data",
            std::string("Il formato ( ") + one + " ) non è esatto. Inserire il simbolo  ( / )  oppure  ( - )  ");
        type("txtPrimoDalM", std::string("1") + one);
        EXPECT_EQ(text("txtPrimoDalM"), "1");
    }
    type("txtPrimoDalM", "//");
}

TEST_F(ModDatePeriodi, AnUnfinishedDateIsNotLeft) {
    searchElection24();
    tick("Check1");
    box("data errata", unfinishedDate);
    type("txtPrimoDalM", "30/02/24");
    leave();
    EXPECT_EQ(focused(), "txtPrimoDalM");
    type("txtPrimoDalM", "29/02/24");
    leave();
    EXPECT_EQ(text("txtPrimoDalM"), "29-02-24");
    EXPECT_EQ(focused(), "txtPrimoAlM");
}

TEST_F(ModDatePeriodi, EveryDateMustBeThere) {
    searchElection24();
    for (const auto& [check, field, back] :
         {std::array{"Check1", "txtPrimoDalM", "20/04/24"}, std::array{"Check2", "txtSecAlM", "29/05/24"},
          std::array{"Check3", "txtTerDalM", "//"}}) {
        tick(check);
        type(field, "");
        box("Errore", "Dati incompleti!");
        click("cmdModifica");
        EXPECT_EQ(focused(), field);
        EXPECT_FALSE(operable("cmdSalva"));
        EXPECT_EQ(text("txtMensD1"), "");
        type(field, back);
    }
    click("cmdModifica");
    EXPECT_TRUE(operable("cmdSalva"));
}

TEST_F(ModDatePeriodi, TheNumberOfEmployeesMustBeThere) {
    searchElection24();
    screen->txtNumDip.text = std::string();
    box("Errore", "Dati incompleti!");
    click("cmdModifica");
    EXPECT_FALSE(operable("cmdSalva"));
}

TEST_F(ModDatePeriodi, AnOrderAgainstTheCalendarIsRefused) {
    searchElection24();
    newDates(2, "30/05/24", "29/05/24");
    box("Date periodi", "Date del 2° periodo non valide: la seconda precede la prima.");
    click("cmdModifica");
    EXPECT_EQ(focused(), "txtSecAlM");
    EXPECT_EQ(text("txtMensD1"), "");
    type("txtSecAlM", "30/05/24");
    click("cmdModifica");
    EXPECT_EQ(text("txtMensD2"), "8") << "one day of six employees";
}

TEST_F(ModDatePeriodi, OneMarkAloneIsAnIncompletePeriod) {
    searchElection24();
    newDates(1, "//", "19/05/24");
    box("Date periodi", "Date del 1° periodo incomplete.");
    click("cmdModifica");
    EXPECT_EQ(focused(), "txtPrimoDalM");
    tick("Check1", false);
    newDates(3, "30/05/24", "//");
    box("Date periodi", "Date del 3° periodo incomplete.");
    click("cmdModifica");
    EXPECT_EQ(focused(), "txtTerAlM");
}

TEST_F(ModDatePeriodi, AStoredTextThatIsNoDateIsRefused) {
    layElection24(files);
    std::string staff = staff24();
    staff.replace(110, 8, "35-05-24");
    ASSERT_TRUE(lay(files, today24 + "09-06-24.vbn", staff));
    search("Europee", "09/06/24");
    EXPECT_EQ(text("txtSecAlM"), "35-05-24") << "what is shown is nobody's typing";
    box("data errata", unfinishedDate);
    click("cmdModifica");
    EXPECT_FALSE(operable("cmdSalva"));
}

TEST_F(ModDatePeriodi, WhatWasWorkedOutGoesWithTheDatesItStoodOn) {
    searchElection24();
    click("cmdModifica");
    ASSERT_TRUE(operable("cmdSalva"));
    ASSERT_TRUE(operable("cmdStampa"));
    tick("Check2");
    EXPECT_TRUE(operable("cmdSalva")) << "nothing changed yet";
    type("txtSecAlM", "28/05/24");
    for (const char* name : {"cmdSalva", "cmdStampa"}) EXPECT_FALSE(operable(name)) << name;
    EXPECT_EQ(text("txtMensD1") + text("txtResD2") + text("Label10") + text("Label30"), "");
    EXPECT_THAT(list(), ::testing::IsEmpty());
    EXPECT_EQ(before(1), "40 240");
    click("cmdModifica");
    ASSERT_TRUE(operable("cmdSalva"));
    tick("Check2", false);
    EXPECT_FALSE(operable("cmdSalva")) << "the dates are the stored ones again";
}

TEST_F(ModDatePeriodi, NothingIsWrittenBeforeItIsSaved) {
    ASSERT_TRUE(files.makeFolder("Params").ok());
    searchElection24();
    newDates(1, "22/04/24", "10/05/24");
    newDates(2, "//", "//");
    newDates(3, "30/05/24", "09/06/24");
    click("cmdModifica");
    click("cmdStampa");
    EXPECT_EQ(file24("09-06-24.vbn"), staff24());
    EXPECT_EQ(file24("Meirin.vbn"), limits24());
    EXPECT_EQ(file24("Duedate.vbn"), acts24);
    menu("mnuEsci");
    EXPECT_EQ(file24("09-06-24.vbn"), staff24());
}

}  // namespace
}  // namespace vorbano::test::moddate
