// Finding the election whose dates are to change: what is asked for, what is shown, what can be done before and after.

#include "mod_date_desk.h"

namespace vorbano::test::moddate {
namespace {

using ::testing::IsEmpty;

class ModDateRicerca : public ModDateTest {};

constexpr const char* incomplete = "Dati incompleti per la ricerca";
constexpr const char* noElection = "Tipo di elezione inesistente";

TEST_F(ModDateRicerca, OffersTheElevenTypesInTheirOrder) {
    open();
    EXPECT_EQ(screen->Combo1.items(),
              (Lines{"Europee", "Europee_Comunali", "Provinciali", "Comunali", "Referendum", "Politiche", "Regionali",
                     "Provinciali_Comunali", "Politiche_Comunali", "Politiche_Regionali", "Referendum_Comunali"}));
    EXPECT_EQ(screen->form.caption(), "Modifica date periodi lavoro straordinario");
    EXPECT_EQ(focused(), "Combo1");
}

TEST_F(ModDateRicerca, BeforeItNothingElseCanBeDone) {
    open();
    for (const char* name :
         {"cmdRiavvia", "cmdSalva2", "cmdModifica", "cmdSalva", "cmdStampa", "txtNumDip", "Check1", "Check2", "Check3",
          "Check6", "Check7", "txtDataDecreto", "txtDataDetermina", "txtPrimoDalM", "txtTerAlM", "txtMensD1"}) {
        EXPECT_FALSE(operable(name)) << name;
    }
    EXPECT_EQ(clerk().tick(control("Check1"), true), Refusal::disabled);
    EXPECT_EQ(clerk().type(control("txtPrimoDalM"), "1"), Refusal::disabled);
    EXPECT_EQ(clerk().click(control("cmdModifica")), Refusal::disabled);
    EXPECT_EQ(clerk().tick(control("Check4"), true), Refusal::hidden);
}

TEST_F(ModDateRicerca, AsksForTypeAndDate) {
    open();
    box("Errore", incomplete);
    click("cmdRicerca");
    EXPECT_EQ(focused(), "Combo1");
    choose("Combo1", "Europee");
    box("Errore", incomplete);
    click("cmdRicerca");
    EXPECT_EQ(focused(), "txtDataEle");
}

TEST_F(ModDateRicerca, AnElectionThatIsNotThereDoesNotExist) {
    for (const char* date : {"09/06/24", "31/02/24", "domani"}) {
        SCOPED_TRACE(date);
        open();
        identify("Europee", date);
        box("Errore", noElection);
        click("cmdRicerca");
        EXPECT_EQ(focused(), "txtDataEle");
        EXPECT_FALSE(enabled("Frame2"));
        EXPECT_TRUE(operable("cmdRicerca"));
    }
    EXPECT_FALSE(files.list("Elezioni").ok()) << "looking makes no folder";
}

TEST_F(ModDateRicerca, AFolderWithoutEmployeesIsNoElection) {
    ASSERT_TRUE(lay(files, today24 + "09-06-24.vbn", ""));
    box("Errore", noElection);
    search("Europee", "09/06/24");
    EXPECT_FALSE(enabled("Frame2"));
    ASSERT_TRUE(lay(files, "Elezioni/Comunali/09-06-24/Meirin.vbn", limits24()));
    box("Errore", noElection);
    search("Comunali", "09/06/24");
    EXPECT_EQ(contentOf(files, "Elezioni/Comunali/09-06-24/Meirin.vbn"), limits24());
}

TEST_F(ModDateRicerca, APathThatClimbsIsNoElection) {
    layElection24(files);
    open();
    choose("Combo1", "Europee");
    for (const char* date : {"/", "../../..", "x/../../Europee/09-06-24"}) {
        SCOPED_TRACE(date);
        enter("Combo1");
        // Characters that are no part of a date are refused on their way in; what comes by the program is not trusted.
        screen->txtDataEle.text = std::string(date);
        box("Errore", noElection);
        screen->cmdRicerca_Click();
        EXPECT_FALSE(enabled("Frame2"));
    }
    screen->txtDataEle.text = std::string();
}

TEST_F(ModDateRicerca, ShowsWhatIsStored) {
    searchElection24();
    EXPECT_EQ(text("txtDataEle"), "09-06-24");
    EXPECT_EQ(text("txtNumDip"), "6");
    EXPECT_EQ(text("txtDataDecreto") + " " + text("txtDataDetermina"), "11-04-24 18-04-24");
    EXPECT_EQ(text("txtPrimoDalM") + " " + text("txtPrimoAlM"), "20-04-24 19-05-24");
    EXPECT_EQ(text("txtSecDalM") + " " + text("txtSecAlM"), "20-05-24 29-05-24");
    EXPECT_EQ(text("txtTerDalM") + " " + text("txtTerAlM"), "// //");
    EXPECT_EQ(before(1), "40 240");
    EXPECT_EQ(before(2), "13 80");
    EXPECT_EQ(before(3), "0 0");
    for (int period = 1; period <= 3; ++period) EXPECT_EQ(after(period), "    ") << period;
    EXPECT_EQ(text("Label10"), "");
    EXPECT_THAT(list(), IsEmpty());
    EXPECT_EQ(focused(), "Check1");
}

TEST_F(ModDateRicerca, TheElectionFoundIsFixedUntilItIsPutAway) {
    searchElection24();
    for (const char* name : {"Combo1", "txtDataEle", "cmdRicerca", "txtNumDip"}) EXPECT_FALSE(operable(name)) << name;
    for (const char* name : {"cmdRiavvia", "cmdModifica", "Check1", "Check2", "Check3", "Check6", "Check7"})
        EXPECT_TRUE(operable(name)) << name;
    for (const char* name : {"cmdSalva", "cmdSalva2", "cmdStampa", "txtPrimoDalM", "txtDataDecreto"})
        EXPECT_FALSE(operable(name)) << name;
}

TEST_F(ModDateRicerca, PuttingItAwayClearsTheScreen) {
    searchElection24();
    newDates(2, "20/05/24", "25/05/24");
    tick("Check6");
    click("cmdModifica");
    click("cmdRiavvia");
    for (const char* name : {"txtDataEle", "txtNumDip", "txtDataDecreto", "txtDataDetermina", "txtPrimoDalM",
                             "txtSecAlM", "txtTerDalM", "Label10", "Label30"}) {
        EXPECT_EQ(text(name), "") << name;
    }
    EXPECT_EQ(text("Combo1"), "");
    for (int period = 1; period <= 3; ++period) EXPECT_EQ(before(period) + after(period), "     ") << period;
    EXPECT_THAT(list(), IsEmpty());
    for (const char* name : {"Check2", "Check6"}) EXPECT_FALSE(ticked(name)) << name;
    for (const char* name : {"Check1", "cmdModifica", "cmdSalva", "cmdSalva2", "cmdStampa", "cmdRiavvia"})
        EXPECT_FALSE(operable(name)) << name;
    EXPECT_TRUE(operable("cmdRicerca"));
    EXPECT_EQ(focused(), "Combo1");
    EXPECT_EQ(file24("09-06-24.vbn"), staff24()) << "nothing was written";
    identify("Europee", "9/6/24");
    click("cmdRicerca");
    EXPECT_EQ(text("txtSecAlM"), "29-05-24");
}

TEST_F(ModDateRicerca, FieldsNeverAssignedAreEmpty) {
    layElection24(files);
    std::string staff = staff24();
    staff.replace(72, 16, nuls(16));
    ASSERT_TRUE(lay(files, today24 + "09-06-24.vbn", staff));
    ASSERT_TRUE(files.remove(today24 + "Duedate.vbn").ok());
    ASSERT_TRUE(files.remove(today24 + "Meirin.vbn").ok());
    search("Europee", "09/06/24");
    EXPECT_EQ(text("txtPrimoDalM") + text("txtPrimoAlM"), "");
    EXPECT_EQ(text("txtDataDecreto") + text("txtDataDetermina"), "");
    EXPECT_EQ(before(1), "0 0");
}

TEST_F(ModDateRicerca, NamesOfAnotherCaseAreFound) {
    ASSERT_TRUE(lay(files, "ELEZIONI/europee/09-06-24/09-06-24.VBN", staff24()));
    ASSERT_TRUE(lay(files, "ELEZIONI/europee/09-06-24/MEIRIN.VBN", limits24()));
    ASSERT_TRUE(lay(files, "ELEZIONI/europee/09-06-24/DUEDATE.VBN", acts24));
    search("Europee", "09/06/24");
    EXPECT_EQ(text("txtDataDetermina"), "18-04-24");
    EXPECT_EQ(before(2), "13 80");
}

TEST_F(ModDateRicerca, ALimitsFileCutByARemovalIsRead) {
    layElection24(files);
    ASSERT_TRUE(lay(files, today24 + "Meirin.vbn", limits24().substr(0, 62)));
    search("Europee", "09/06/24");
    EXPECT_EQ(before(1), "40 240");
}

/// Which of the late periods a type has before 2014.
struct LatePeriods {
    const char* type;
    bool fourth, fifth;
};

TEST_F(ModDateRicerca, TypeAndYearDecideOnTheFourthAndFifthPeriod) {
    open();
    for (const auto& [type, fourth, fifth] :
         {LatePeriods{"Europee", true, false}, LatePeriods{"Europee_Comunali", true, true},
          LatePeriods{"Provinciali", true, false}, LatePeriods{"Comunali", true, false},
          LatePeriods{"Referendum", true, false}, LatePeriods{"Politiche", false, false},
          LatePeriods{"Regionali", true, false}, LatePeriods{"Provinciali_Comunali", true, false},
          LatePeriods{"Politiche_Comunali", true, false}, LatePeriods{"Politiche_Regionali", true, true},
          LatePeriods{"Referendum_Comunali", true, false}}) {
        SCOPED_TRACE(type);
        choose("Combo1", type);
        this->type("txtDataEle", "31/12/13");
        leave();
        for (const char* name : {"Check4", "txtQuartusDalM", "txtQuartusAlM", "txtIndi4", "txtResD4"})
            EXPECT_EQ(visible(name), fourth) << name;
        for (const char* name : {"Check5", "txtPentiumDalM", "txtPentiumAlM", "txtMens5", "txtLimite5"})
            EXPECT_EQ(visible(name), fifth) << name;
        this->type("txtDataEle", "01/01/14");
        leave();
        EXPECT_FALSE(visible("Check4"));
        EXPECT_FALSE(visible("Check5"));
    }
    // A type chosen after the date decides as well.
    type("txtDataEle", "31/12/13");
    leave();
    choose("Combo1", "Politiche");
    EXPECT_FALSE(visible("Check4"));
    choose("Combo1", "Europee_Comunali");
    EXPECT_TRUE(visible("Check5"));
}

TEST_F(ModDateRicerca, CharactersThatAreNoPartOfADateAreRefused) {
    open();
    box("formato data", "Il formato ( . ) non è esatto. Inserire il simbolo  ( / )  oppure  ( - )  ");
    type("txtDataEle", "9.");
    EXPECT_EQ(text("txtDataEle"), "9");
}

TEST_F(ModDateRicerca, TheMenuLeaves) {
    open();
    menu("mnuEsci");
    EXPECT_FALSE(screen->form.isOpen());
}

}  // namespace
}  // namespace vorbano::test::moddate
