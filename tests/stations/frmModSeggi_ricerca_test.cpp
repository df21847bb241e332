// The search, the stations, the grid.

#include "correction_desk.h"

namespace vorbano::test {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

using ModSeggiRicerca = ModSeggiTest;

TEST_F(ModSeggiRicerca, OpensReadyForASearch) {
    open();
    EXPECT_EQ(screen->form.caption(), "Vorbano     Modifica Componenti dei Seggi normali 1° turno");
    EXPECT_THAT(items("Combo1"), ElementsAre("Europee"));
    for (const char* open : {"Combo1", "txtDataEle", "txtSeggio", "cmdRicerca", "mnuCodFisc", "mnuEsci"})
        EXPECT_TRUE(operable(open)) << open;
    for (const char* closed : {"cmdAnnulla", "Combo3", "cmdPrecedente", "cmdSuccessivo", "Combo2", "cmdAttiva",
                               "Check3", "Check4", "Check5", "MSFlexGrid1", "cmdSalva", "cmdAnnulla1"})
        EXPECT_FALSE(operable(closed)) << closed;
    for (const char* hidden : {"Frame1", "Frame2", "Frame3", "cmdDisattiva"}) EXPECT_FALSE(visible(hidden)) << hidden;
}

struct WithoutElections : ModSeggiTest {
    MemoryFileSystem empty;
};

TEST_F(WithoutElections, ListsNoType) {
    openOn(empty);
    EXPECT_THAT(items("Combo1"), IsEmpty());
}

TEST_F(ModSeggiRicerca, NeedsTypeDateAndStation) {
    open();
    for (const char* missing : {"Combo1", "txtDataEle", "txtSeggio"}) {
        box("Ricerca seggio", "Dati insufficienti per la ricerca.");
        click("cmdRicerca");
        EXPECT_EQ(focused(), missing);
        if (std::string_view(missing) == "Combo1") choose("Combo1", "Europee");
        if (std::string_view(missing) == "txtDataEle") type("txtDataEle", "9/6/24");
    }
    type("txtSeggio", "1");
    click("cmdRicerca");
    EXPECT_EQ(rows(), 4);
}

TEST_F(ModSeggiRicerca, ListsTheDatesOfTheTypeAndTakesTheOneChosen) {
    ASSERT_TRUE(lay(files, "Elezioni/Comunali/12-06-22/Seggi.vbn", ""));
    open();
    choose("Combo1", "Comunali");
    EXPECT_THAT(items("Combo4"), ElementsAre("12-06-22"));
    choose("Combo1", "Europee");
    EXPECT_THAT(items("Combo4"), ElementsAre("09-06-24"));
    choose("Combo4", "09-06-24");
    EXPECT_EQ(text("txtDataEle"), "09-06-24");
}

TEST_F(ModSeggiRicerca, TellsThatAnEmptyFileIsNoElection) {
    layIn("Seggi.vbn", "");
    open();
    box("Ricerca elezioni", "Elezione non in archivio.");
    search("1");
    EXPECT_EQ(rows(), 0);
    EXPECT_FALSE(operable("cmdAttiva"));
}

TEST_F(ModSeggiRicerca, TellsThatADateWithoutAFolderIsNoElection) {
    open();
    choose("Combo1", "Europee");
    type("txtDataEle", "26/05/19");
    type("txtSeggio", "1");
    box("Ricerca elezioni", "Elezione non in archivio.");
    click("cmdRicerca");
    EXPECT_EQ(contentOf(files, "Elezioni/Europee/26-05-19/Seggi.vbn"), noFile);
}

TEST_F(ModSeggiRicerca, RefusesTheOddSeparatorsOfADate) {
    open();
    box("formato data", "Il formato ( . ) non è esatto. Inserire il simbolo  ( / )  oppure  ( - )  ");
    type("txtDataEle", "9.");
    EXPECT_EQ(text("txtDataEle"), "9");
}

TEST_F(ModSeggiRicerca, ShowsTheStation) {
    openAt("1");
    EXPECT_EQ(text("txtSeggiSu"), "3");
    EXPECT_EQ(text("txtComposto"), "4");
    EXPECT_EQ(text("Combo2"), "Europee");
    EXPECT_EQ(text("Combo3"), "1");
    EXPECT_THAT(items("Combo3"), ElementsAre("1", "2", "3"));
    EXPECT_EQ(row(0), "Nr|Cognome e Nome|Indirizzo|Componente|S/N|Codice Fiscale|Importo");
    ASSERT_EQ(rows(), 4);
    EXPECT_EQ(row(1), "1|BELLINI ANTONELLA|Via Garibaldi 3|Presidente|SI|BLLNNL60A41H501X|138,00");
    EXPECT_EQ(row(3), "3|D'AMICO NICOLÒ|Piazza Mazzini 7|Scrutatore|SI|DMCNCL80E12F205Q|96,00");
    expectSearchState();
    EXPECT_EQ(focused(), "cmdAttiva");
    // Reading creates the file of the substitutes.
    EXPECT_EQ(stored("SosSeggi.vbn"), "");
}

TEST_F(ModSeggiRicerca, ListsTheSubstitutesOfTheStationBehindItsMembers) {
    const Who dina = {1, 4, 5, "SARTI", "DINA", "Via Nera 1", "Scrutatore", "SRTDNI79A41H501L", 4'800};
    const Who elio = {2, 2, 3, "TOSI", "ELIO", "Via Bianca 2", "Segretario", "TSOLEI81B02H501T", 2'500};
    layIn("SosSeggi.vbn", substituteBytes(elio, 2) + substituteBytes(dina, 3));
    openAt("1");
    ASSERT_EQ(rows(), 5);
    EXPECT_EQ(row(5), "5|SARTI DINA|Via Nera 1|Scrutatore|SI|SRTDNI79A41H501L|48,00");
    choose("Combo3", "2");
    ASSERT_EQ(rows(), 3);
    EXPECT_EQ(row(3), "3|TOSI ELIO|Via Bianca 2|Segretario|SI|TSOLEI81B02H501T|25,00");
}

TEST_F(ModSeggiRicerca, ListsNothingForAStationThatIsNotThere) {
    openAt("9");
    EXPECT_EQ(rows(), 0);
    EXPECT_EQ(text("txtSeggiSu"), "3");
    EXPECT_EQ(text("txtComposto"), "");
    EXPECT_FALSE(operable("cmdAttiva"));
    EXPECT_FALSE(operable("cmdPrecedente"));
    EXPECT_FALSE(operable("cmdSuccessivo"));
    EXPECT_EQ(focused(), "Combo3");
    choose("Combo3", "3");
    EXPECT_EQ(rows(), 3);
    EXPECT_EQ(text("txtSeggio"), "3");
}

TEST_F(ModSeggiRicerca, StepsFromStationToStation) {
    openAt("1");
    EXPECT_FALSE(operable("cmdPrecedente"));
    click("cmdSuccessivo");
    EXPECT_EQ(text("txtSeggio"), "2");
    EXPECT_EQ(text("Combo3"), "2");
    EXPECT_EQ(text("txtComposto"), "2");
    EXPECT_EQ(cell("MSFlexGrid1", 1, 1), "GALLI PIERO");
    click("cmdSuccessivo");
    EXPECT_EQ(text("txtSeggio"), "3");
    EXPECT_FALSE(operable("cmdSuccessivo"));
    click("cmdPrecedente");
    EXPECT_EQ(text("txtSeggio"), "2");
}

TEST_F(ModSeggiRicerca, ShowsTheTariffOfTheStationAlsoWhenItIsNoType) {
    Who odd = galli;
    odd.tariffa = "Politiche speciali";
    layIn("Seggi.vbn", membersBytes({bellini, odd}));
    openAt("1");
    choose("Combo3", "2");
    EXPECT_EQ(text("Combo2"), "Politiche speciali");
}

TEST_F(ModSeggiRicerca, ForgetsTheStationWhenAnotherIsNamed) {
    openAt("1");
    type("txtSeggio", "2");
    EXPECT_EQ(rows(), 0);
    EXPECT_FALSE(operable("cmdAttiva"));
    click("cmdRicerca");
    EXPECT_EQ(rows(), 2);
    type("txtDataEle", "26/05/19");
    EXPECT_EQ(rows(), 0);
    EXPECT_EQ(text("txtSeggiSu"), "");
}

TEST_F(ModSeggiRicerca, StartsAnew) {
    openAt("2");
    click("cmdAnnulla");
    for (const char* name : {"Combo1", "Combo3", "txtDataEle", "txtSeggio", "txtSeggiSu", "txtComposto", "Combo2"})
        EXPECT_EQ(text(name), "") << name;
    EXPECT_THAT(items("Combo4"), IsEmpty());
    EXPECT_EQ(rows(), 0);
    EXPECT_FALSE(operable("cmdAnnulla"));
    EXPECT_EQ(focused(), "Combo1");
}

TEST_F(ModSeggiRicerca, ClosesOnEsci) {
    open();
    menu("mnuEsci");
    EXPECT_FALSE(screen->form.isOpen());
}

}  // namespace
}  // namespace vorbano::test
