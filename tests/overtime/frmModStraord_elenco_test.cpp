// Search by name and by list, correction of a name.

#include "liquidation_desk.h"

namespace vorbano::test {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

class Elenco : public LiquidationTest {};

TEST_F(Elenco, NamesAreListedWithTenBlanks) {
    layElection();
    open();
    name();
    tick("Check11");
    const std::string ten(10, ' ');
    EXPECT_THAT(screen->cmbNome.items(), ElementsAre("BIANCHI ANNA" + ten, "ROSSI MARIO" + ten, "ROSSI MARIO" + ten));
    EXPECT_TRUE(visible("cmbNome"));
    tick("Check11", false);
    EXPECT_FALSE(visible("cmbNome"));
    EXPECT_THAT(screen->cmbNome.items(), IsEmpty());
}

TEST_F(Elenco, TwoOfOneNameAreTwoEmployees) {
    layElection();
    open();
    name();
    tick("Check11");
    chooseIndex("cmbNome", 2);
    EXPECT_EQ(text("txtSonoDip"), "3");
    EXPECT_EQ(text("txtAutFer1Per"), "10");
    chooseIndex("cmbNome", 1);
    EXPECT_EQ(text("txtSonoDip"), "2");
    EXPECT_EQ(text("txtAutFer1Per"), "15");
    EXPECT_FALSE(operable("cmdSuccessivo")) << "by name there is no next";
    tick("Check11", false);
    EXPECT_TRUE(operable("cmdSuccessivo"));
}

TEST_F(Elenco, TheListShowsThePeriodThatIsChosen) {
    layElection();
    open();
    name();
    click("cmdRicerca2");
    EXPECT_TRUE(visible("Frame25"));
    EXPECT_EQ(text("Frame25"), "Elenco Dipendenti autorizzati");
    EXPECT_THAT(
        screen->MSFlexGrid1.cells(),
        ElementsAre(ElementsAre("Cognome e Nome", "Feriali", "Festive", "Fe/No", "Totale"),
                    ElementsAre("BIANCHI ANNA", "20", "10", "2", "32"),
                    ElementsAre("ROSSI MARIO", "15", "5", "0", "20"), ElementsAre("ROSSI MARIO", "10", "0", "0", "10"),
                    ElementsAre("Totali", "45", "15", "2", "62")));
    click("Option2");
    EXPECT_EQ(cell("MSFlexGrid1", 1, 1), "8");
    EXPECT_EQ(cell("MSFlexGrid1", 4, 0), "Totali");
    EXPECT_EQ(cell("MSFlexGrid1", 4, 4), "34");
    EXPECT_FALSE(visible("Option4"));
    EXPECT_FALSE(visible("Option5"));
    click("cmdChiudiElenco");
    EXPECT_FALSE(visible("Frame25"));
    click("cmdRicerca2");
    EXPECT_TRUE(screen->Option1.checked());
    EXPECT_EQ(cell("MSFlexGrid1", 1, 1), "20");
}

TEST_F(Elenco, ARowOfTheListCallsUpItsEmployee) {
    layElection();
    open();
    name();
    click("cmdRicerca2");
    pick("MSFlexGrid1", 0, 0);
    pick("MSFlexGrid1", 4, 0);
    EXPECT_EQ(text("txtNameDip"), "");
    EXPECT_TRUE(visible("Frame25"));
    pick("MSFlexGrid1", 3, 2);
    EXPECT_EQ(text("txtSonoDip"), "3");
    EXPECT_FALSE(visible("Frame25"));
}

TEST_F(Elenco, AnotherElectionClosesListAndNames) {
    layElection();
    open();
    name();
    tick("Check11");
    click("cmdRicerca2");
    choose("Combo1", "Europee");
    EXPECT_FALSE(visible("Frame25"));
    EXPECT_FALSE(ticked("Check11"));
}

// Correction of a name.

TEST_F(Elenco, ANameIsCorrectedAlone) {
    layElection();
    callUp("2");
    tick("Check1");
    EXPECT_EQ(focused(), "txtNameDip");
    EXPECT_TRUE(operable("txtNameDip"));
    EXPECT_TRUE(operable("cmdSalva2"));
    for (const char* off : {"cmdRicerca", "cmdPrimo", "cmdPrecedente", "cmdSuccessivo", "cmdUltimo", "txtSonoDip",
                            "cmdInserimento", "cmdTariffe", "Combo1"}) {
        EXPECT_FALSE(enabled(off)) << off;
    }
    const std::string before = stored("09-06-24.vbn");
    type("txtNameDip", " VERDI ALDA ");
    click("cmdSalva2");
    std::string expected = before;
    expected.replace(301 + 12, 60, padded("VERDI ALDA", 60));
    EXPECT_EQ(toHex(stored("09-06-24.vbn")), toHex(expected));
    EXPECT_FALSE(ticked("Check1"));
    EXPECT_EQ(text("txtNameDip"), "VERDI ALDA");
    EXPECT_FALSE(operable("txtNameDip"));
    EXPECT_TRUE(operable("cmdSuccessivo"));
}

TEST_F(Elenco, ANameThatIsNotSavedComesBack) {
    layElection();
    callUp("2");
    tick("Check1");
    type("txtNameDip", "VERDI ALDA");
    tick("Check1", false);
    EXPECT_EQ(text("txtNameDip"), "ROSSI MARIO");
    EXPECT_EQ(toHex(employee(2)), toHex(second().bytes()));
}

TEST_F(Elenco, ANameCannotBeTakenAway) {
    layElection();
    callUp();
    tick("Check1");
    type("txtNameDip", "  ");
    box("Errore", "Inserire il nominativo");
    click("cmdSalva2");
    EXPECT_EQ(focused(), "txtNameDip");
    EXPECT_TRUE(ticked("Check1"));
}

TEST_F(Elenco, ACorrectedNameStandsInTheListOfNames) {
    layElection();
    open();
    name();
    tick("Check11");
    chooseIndex("cmbNome", 1);
    tick("Check1");
    type("txtNameDip", "VERDI ALDA");
    click("cmdSalva2");
    EXPECT_EQ(screen->cmbNome.items()[1], "VERDI ALDA" + std::string(10, ' '));
    EXPECT_EQ(text("cmbNome"), "VERDI ALDA" + std::string(10, ' '));
    EXPECT_TRUE(ticked("Check11"));
}

}  // namespace
}  // namespace vorbano::test
