// The search on the removal screen: what is asked for, what is found and shown, which periods an election has here.

#include "removal_desk.h"

namespace vorbano::test {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

class EliminaRicerca : public RemovalDesk {};

TEST_F(EliminaRicerca, AtTheStartOnlyTypeAndDateCanBeEntered) {
    open();
    EXPECT_EQ(screen->form.caption(), "Vorbano       Cancellazione Dipendenti NON autorizzati");
    EXPECT_EQ(text("cmdRicerca"), "&Ricerca");
    EXPECT_EQ(text("cmdRiavvia"), "A&nnulla Ricerca");
    EXPECT_EQ(text("cmdElimina"), "&Cancella dipendente");
    EXPECT_EQ(text("Frame2"), "Situazione Elezione dopo la cancellazione");
    EXPECT_EQ(text("Frame3"), "Considerazioni");
    EXPECT_THAT(
        screen->Combo1.items(),
        ElementsAre("Europee", "Europee_Comunali", "Provinciali", "Comunali", "Referendum", "Politiche", "Regionali",
                    "Provinciali_Comunali", "Politiche_Comunali", "Politiche_Regionali", "Referendum_Comunali"));
    EXPECT_TRUE(operable("Combo1"));
    EXPECT_TRUE(operable("txtDataEle"));
    EXPECT_TRUE(operable("cmdRicerca"));
    EXPECT_FALSE(operable("cmdRiavvia"));
    EXPECT_FALSE(operable("List1"));
    EXPECT_FALSE(operable("cmdElimina"));
    EXPECT_EQ(clerk().click(control("cmdElimina")), Refusal::disabled);
    EXPECT_EQ(clerk().type(control("txtDipendente"), "X"), Refusal::locked);
    EXPECT_EQ(clerk().type(control("txtMensD1"), "900"), Refusal::locked);
    EXPECT_EQ(clerk().type(control("txtNumDip"), "9"), Refusal::locked);
}

TEST_F(EliminaRicerca, AnEmptyTypeOrDateIsToldAndTheCursorGoesThere) {
    open();
    box("Errore", "Dati incompleti per la ricerca");
    click("cmdRicerca");
    EXPECT_EQ(focused(), "Combo1");

    choose("Combo1", "Europee");
    box("Errore", "Dati incompleti per la ricerca");
    click("cmdRicerca");
    EXPECT_EQ(focused(), "txtDataEle");

    type("txtDataEle", "   ");
    box("Errore", "Dati incompleti per la ricerca");
    click("cmdRicerca");
    EXPECT_EQ(focused(), "txtDataEle");
}

TEST_F(EliminaRicerca, AnElectionWithoutFolderDoesNotExist) {
    open();
    choose("Combo1", "Europee");
    type("txtDataEle", "9/6/24");
    box("Errore", "Tipo di elezione inesistente");
    click("cmdRicerca");
    EXPECT_EQ(text("txtDataEle"), "09-06-24");
    EXPECT_TRUE(operable("cmdRicerca"));
    EXPECT_FALSE(operable("List1"));
    EXPECT_EQ(contentOf(files, "Elezioni/Europee/09-06-24/09-06-24.vbn"), noFile);
}

TEST_F(EliminaRicerca, AnElectionWithoutEmployeesDoesNotExist) {
    ASSERT_TRUE(lay(files, "Elezioni/Europee/09-06-24/09-06-24.vbn", ""));
    ASSERT_TRUE(lay(files, "Elezioni/Europee/09-06-24/Meirin.vbn", laidMeirin(europee2024())));
    open();
    box("Errore", "Tipo di elezione inesistente");
    search(europee2024());
    EXPECT_FALSE(operable("List1"));
}

TEST_F(EliminaRicerca, ADateThatWouldLeaveTheInstallationDoesNotExist) {
    open();
    for (const char* date : {"..", "../../x", "..\\.."}) {
        SCOPED_TRACE(date);
        choose("Combo1", "Europee");
        // The date field itself takes out points and backslashes, each with its own words.
        const std::string odd(date);
        for (const char each : odd) {
            if (each == '.' || each == '\\') {
                box("formato data", std::string("Il formato ( ") + each +
                                        " ) non è esatto. Inserire il simbolo  ( / )  oppure  ( - )  ");
            }
        }
        type("txtDataEle", date);
        const bool nothingLeft = text("txtDataEle").empty();
        box("Errore", nothingLeft ? "Dati incompleti per la ricerca" : "Tipo di elezione inesistente");
        click("cmdRicerca");
        EXPECT_FALSE(operable("List1"));
    }
}

TEST_F(EliminaRicerca, TheElectionFoundIsShownAndLocked) {
    openOnElection(europee2024(), persons(7));
    EXPECT_THAT(names(),
                ElementsAre("PERSONA 1", "PERSONA 2", "PERSONA 3", "PERSONA 4", "PERSONA 5", "PERSONA 6", "PERSONA 7"));
    EXPECT_EQ(text("txtNumDip"), "7");
    EXPECT_EQ(text("txtNumDipD"), "");
    // 7 x 14 + 1 + 2 + ... + 7; 7 x 4 + 28.
    EXPECT_EQ(line("1"), (Figures{"40", "280", "126", "154"}));
    EXPECT_EQ(line("2"), (Figures{"13", "93", "56", "37"}));
    EXPECT_EQ(line("3"), (Figures{"0", "0", "0", "0"}));
    EXPECT_EQ(line("D1"), (Figures{"", "", "", ""}));
    EXPECT_EQ(text("lblPeriodo1"), "15-04-24 / 14-05-24");
    EXPECT_EQ(text("lblPeriodo3"), "escluso");
    EXPECT_EQ(text("Label10"), "");
    EXPECT_FALSE(enabled("Combo1"));
    EXPECT_FALSE(enabled("txtDataEle"));
    EXPECT_FALSE(enabled("cmdRicerca"));
    EXPECT_TRUE(operable("cmdRiavvia"));
    EXPECT_FALSE(operable("cmdElimina"));
    EXPECT_EQ(focused(), "List1");
}

TEST_F(EliminaRicerca, TheSearchChangesNoFile) {
    openOnElection(fivePeriods(), persons(6));
    chooseIndex("List1", 2);
    EXPECT_EQ(contentOf(files, fivePeriods().employees()), laidStaff(fivePeriods(), persons(6)));
    EXPECT_EQ(contentOf(files, fivePeriods().path("Meirin.vbn")), laidMeirin(fivePeriods()));
    EXPECT_EQ(contentOf(files, fivePeriods().path("Quartum.vbn")), laidLateStaff(fivePeriods(), 4, persons(6)));
    EXPECT_EQ(contentOf(files, fivePeriods().path("Pentium.vbn")), laidLateStaff(fivePeriods(), 5, persons(6)));
}

TEST_F(EliminaRicerca, ALimitsFileCutByAFormerRemovalIsRead) {
    layElection(files, europee2024(), persons(7), false);
    ASSERT_TRUE(lay(files, europee2024().path("Meirin.vbn"), laidMeirin(europee2024()).substr(0, 62)));
    open();
    search(europee2024());
    EXPECT_EQ(line("1"), (Figures{"40", "280", "126", "154"}));
}

TEST_F(EliminaRicerca, WithoutLimitsThePoolsOfNowAreZero) {
    layElection(files, europee2024(), persons(7), false);
    open();
    search(europee2024());
    EXPECT_EQ(line("1"), (Figures{"0", "0", "126", "-126"}));
    EXPECT_EQ(text("txtNumDip"), "7");
}

TEST_F(EliminaRicerca, AllFivePeriodsOfAnElectionBefore2014) {
    openOnElection(fivePeriods(), persons(6));
    // 6 x 14 + 21 and 6 x 4 + 21.
    EXPECT_EQ(line("1"), (Figures{"20", "120", "105", "15"}));
    EXPECT_EQ(line("3"), (Figures{"20", "120", "45", "75"}));
    EXPECT_EQ(line("4"), (Figures{"13", "80", "45", "35"}));
    EXPECT_EQ(line("5"), (Figures{"13", "80", "45", "35"}));
    for (const char* name : {"txtIndi4", "txtRes5", "txtMensD4", "txtUtiD5", "lblPeriodo4"})
        EXPECT_TRUE(visible(name)) << name;
}

TEST_F(EliminaRicerca, AnnullaRicercaClearsTheScreen) {
    openOnElection(fivePeriods(), persons(6));
    chooseIndex("List1", 1);
    click("cmdRiavvia");
    for (const char* name : {"Combo1", "txtDataEle", "txtDipendente", "lblDipendente", "Label9", "txtNumDip",
                             "txtNumDipD", "Label10", "lblPeriodo1"}) {
        EXPECT_EQ(text(name), "") << name;
    }
    EXPECT_THAT(names(), IsEmpty());
    for (const char* suffix : {"1", "2", "3", "4", "5", "D1", "D2", "D3", "D4", "D5"})
        EXPECT_EQ(line(suffix), (Figures{"", "", "", ""})) << suffix;
    EXPECT_FALSE(visible("txtIndi4"));
    EXPECT_FALSE(visible("txtIndiD5"));
    EXPECT_TRUE(operable("Combo1"));
    EXPECT_TRUE(operable("txtDataEle"));
    EXPECT_FALSE(operable("cmdElimina"));
    EXPECT_FALSE(operable("cmdRiavvia"));
    EXPECT_EQ(focused(), "Combo1");
    search(fivePeriods());
    EXPECT_EQ(text("txtNumDip"), "6");
}

TEST_F(EliminaRicerca, EsciCloses) {
    open();
    menu("mnuEsci");
    EXPECT_FALSE(screen->form.isOpen());
}

/// Which of the two last periods are on show after the date was left.
struct LastPeriods {
    const char* type;
    const char* date;
    bool fourth;
    bool fifth;
};
class EliminaPeriodi : public RemovalDesk, public ::testing::WithParamInterface<LastPeriods> {};

TEST_P(EliminaPeriodi, FollowTypeAndYear) {
    open();
    EXPECT_FALSE(visible("txtIndi4"));
    choose("Combo1", GetParam().type);
    type("txtDataEle", GetParam().date);
    leave();
    for (const char* name : {"txtIndi4", "txtMens4", "txtUti4", "txtRes4", "txtIndiD4", "txtMensD4", "txtUtiD4",
                             "txtResD4", "lblPeriodo4"}) {
        EXPECT_EQ(visible(name), GetParam().fourth) << name;
    }
    for (const char* name : {"txtIndi5", "txtMens5", "txtUti5", "txtRes5", "txtIndiD5", "txtMensD5", "txtUtiD5",
                             "txtResD5", "lblPeriodo5"}) {
        EXPECT_EQ(visible(name), GetParam().fifth) << name;
    }
    EXPECT_TRUE(visible("txtIndi3"));
}

INSTANTIATE_TEST_SUITE_P(
    Of, EliminaPeriodi,
    ::testing::Values(
        LastPeriods{"Europee", "07-06-09", true, false}, LastPeriods{"Comunali", "26-05-13", true, false},
        LastPeriods{"Regionali", "31-12-13", true, false}, LastPeriods{"Provinciali", "06-05-12", true, false},
        // Here a referendum has three periods, though it has four where dates are changed.
        LastPeriods{"Referendum", "12-06-11", false, false}, LastPeriods{"Politiche", "24-02-13", false, false},
        LastPeriods{"Politiche_Comunali", "24-02-13", true, false},
        LastPeriods{"Referendum_Comunali", "12-06-11", true, false},
        LastPeriods{"Provinciali_Comunali", "06-05-12", true, false},
        LastPeriods{"Politiche_Regionali", "24-02-13", true, true},
        LastPeriods{"Europee_Comunali", "07-06-09", true, true},
        LastPeriods{"Europee_Comunali", "25-05-14", false, false}, LastPeriods{"Europee", "25-05-14", false, false},
        LastPeriods{"Politiche_Regionali", "25-09-22", false, false}, LastPeriods{"Europee", "01-01-99", false, false},
        // What is no date has no year.
        LastPeriods{"Europee", "31-02-09", false, false}));

TEST_F(EliminaRicerca, TheLastPeriodsFollowAnotherTypeToo) {
    open();
    choose("Combo1", "Europee_Comunali");
    type("txtDataEle", "26-05-13");
    leave();
    EXPECT_TRUE(visible("txtIndi5"));
    ASSERT_TRUE(lay(files, "Elezioni/Politiche/26-05-13/26-05-13.vbn", laidStaff(europee2024(), persons(2))));
    choose("Combo1", "Provinciali");
    EXPECT_TRUE(visible("txtIndi4"));
    EXPECT_FALSE(visible("txtIndi5"));
    choose("Combo1", "Politiche");
    EXPECT_FALSE(visible("txtIndi4"));
    click("cmdRicerca");
    EXPECT_FALSE(visible("txtIndi5"));
    EXPECT_FALSE(visible("txtIndiD4"));
    EXPECT_EQ(contentOf(files, "Elezioni/Politiche/26-05-13/Quartum.vbn"), noFile);
}

}  // namespace
}  // namespace vorbano::test
