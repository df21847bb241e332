// Choice of the election, search by number, by name and by list, navigation.

#include "liquidation_desk.h"

namespace vorbano::test {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

class Ricerca : public LiquidationTest {};

const char* const noElection = "Tipo di elezione inesistente";
const char* const incomplete = "Dati incompleti per la ricerca";

TEST_F(Ricerca, TheScreenComesUpEmpty) {
    layElection();
    open();
    EXPECT_EQ(screen->form.caption(), "Liquidazione Compenso lavoro straordinario");
    EXPECT_THAT(screen->Combo1.items(), ElementsAre("Europee"));
    for (const char* hidden :
         {"Frame24", "Frame25", "Frame26", "Frame28", "Frame10", "Frame17", "Frame14", "cmbNome"}) {
        EXPECT_FALSE(visible(hidden)) << hidden;
    }
    for (const char* off :
         {"cmdPrimo", "cmdPrecedente", "cmdSuccessivo", "cmdUltimo", "cmdAnnulla3", "Check1", "txtNameDip", "cmdSalva2",
          "cmdTariffe", "cmdRicalcola", "txtIrpef", "txtInail", "cmdSalva", "cmdContinua", "cmdIrpefInail"}) {
        EXPECT_FALSE(enabled(off)) << off;
    }
    for (const char* on : {"Combo1", "txtDataEle", "txtSonoDip", "cmdRicerca", "Check11", "cmdRicerca2",
                           "cmdInserimento", "cmdStampe", "mnuLiqui", "mnuAutoriz", "mnuEsci"}) {
        EXPECT_TRUE(operable(on)) << on;
    }
    EXPECT_THAT(openFields(), IsEmpty());
}

TEST_F(Ricerca, DatesFollowTheType) {
    layElection();
    ASSERT_TRUE(lay(files, "Elezioni/Comunali/14-05-23/x", ""));
    open();
    choose("Combo1", "Comunali");
    EXPECT_THAT(screen->Combo2.items(), ElementsAre("14-05-23"));
    choose("Combo1", "Europee");
    choose("Combo1", "Europee");
    EXPECT_THAT(screen->Combo2.items(), ElementsAre("09-06-24"));
    choose("Combo2", "09-06-24");
    EXPECT_EQ(text("txtDataEle"), "09-06-24");
}

TEST_F(Ricerca, AnEmptyTypeIsAskedFor) {
    layElection();
    open();
    box("Errore", incomplete);
    click("cmdRicerca");
    EXPECT_EQ(focused(), "Combo1");
}

TEST_F(Ricerca, AnEmptyDateIsAskedFor) {
    layElection();
    open();
    choose("Combo1", "Europee");
    for (const char* command : {"cmdRicerca", "cmdRicerca2", "cmdInserimento"}) {
        box("Errore", incomplete);
        click(command);
        EXPECT_EQ(focused(), "txtDataEle") << command;
    }
    box("Errore", incomplete);
    tick("Check11");
    EXPECT_FALSE(ticked("Check11"));
    box("Errore", incomplete);
    menu("mnuLiqui");
    EXPECT_FALSE(visible("Frame24"));
}

TEST_F(Ricerca, AnElectionThatIsNotThereIsTold) {
    layElection();
    open();
    choose("Combo1", "Europee");
    type("txtDataEle", "10/06/24");
    for (const char* command : {"cmdRicerca", "cmdRicerca2", "cmdInserimento"}) {
        box("Errore", noElection);
        click(command);
        EXPECT_TRUE(operable("cmdInserimento")) << command;
    }
    box("Errore", noElection);
    tick("Check11");
    EXPECT_FALSE(ticked("Check11"));
    box("Errore", noElection);
    menu("mnuAutoriz");
    EXPECT_EQ(contentOf(files, "Elezioni/Europee/10-06-24/10-06-24.vbn"), noFile);
}

TEST_F(Ricerca, AFolderWithoutEmployeesIsNoElection) {
    ASSERT_TRUE(lay(files, pathOf("x"), ""));
    open();
    name();
    box("Errore", noElection);
    click("cmdRicerca");
    // Opening leaves the empty file behind.
    EXPECT_EQ(stored("09-06-24.vbn"), "");
}

TEST_F(Ricerca, AWrongSeparatorIsTakenOutOfTheDate) {
    layElection();
    open();
    choose("Combo1", "Europee");
    box("formato data", "Il formato ( . ) non è esatto. Inserire il simbolo  ( / )  oppure  ( - )  ");
    type("txtDataEle", "9/6.");
    EXPECT_EQ(text("txtDataEle"), "9/6");
    type("txtDataEle", "9/6/24");
    click("cmdRicerca");
    EXPECT_EQ(text("txtDataEle"), "09-06-24");
    EXPECT_EQ(text("lblPrimo"), "1");
}

TEST_F(Ricerca, AnEmployeeIsShownAsStored) {
    layElection();
    layStaff({first().liquidated().withUsed(13), second().withUsed(13), third().withUsed(13)});
    layLimits(limitsBytes({1, 0, 1}, 1, 1, 123456, 7890, 4321, 3569));
    callUp();
    const std::vector<std::pair<std::string, std::string>> shown = {
        {"txtSonoDip", "1"},
        {"txtNameDip", "BIANCHI ANNA"},
        {"txtNumDip", "7"},
        {"txtMonteOre", "40"},
        {"txtMoGlob", "280"},
        {"txtGlobo", "360"},
        {"txtMoUtil", "13"},
        {"txtPrimoDal", "15-04-24"},
        {"txtPrimoAl", "14-05-24"},
        {"txtSecDal", "15-05-24"},
        {"txtSecAl", "24-05-24"},
        {"txtTerDal", "//"},
        {"txtTerAl", "//"},
        {"txtAutFer1Per", "20"},
        {"txtAutFes1Per", "10"},
        {"txtNf1Per", "2"},
        {"txtTotAut1", "32"},
        {"txtPag1Df", "10"},
        {"txtPag1Nf", "3"},
        {"txtPag1NeF", "0"},
        {"txtTotale1", "13"},
        {"txtAutFer2Per", "8"},
        {"txtTotAut2", "12"},
        {"txtTotale2", "0"},
        {"lblPrimo", "1"},
        {"lblSecondo", "0"},
        {"lblTerzo", "1"},
        {"lblMens1", "280"},
        {"lblMens2", "93"},
        {"lblMed1", "40"},
        {"lblMed2", "13"},
        {"Label45", "60"},
        {"Label46", "20"},
        {"Label59", "62"},
        {"Label29", "218"},
        {"lblUtil2", "34"},
        {"Label32", "59"},
        {"txtTotAut", "44"},
        {"txtEsegDf", "10"},
        {"txtEsegNof", "3"},
        {"txtEsegNef", "0"},
        {"txtTotEseg", "13"},
        {"lblCat", "D3"},
        {"lblCat2", "-"},
        {"txtCompDf", "12,34"},
        {"txtCompNof", "15,55"},
        {"txtCompNef", "17,90"},
        {"txtDovuto", "170,05"},
        {"Label37", "23,80"},
        {"txtCpStato", "40,47"},
        {"Label38", "8,50"},
        {"txtIrap", "14,45"},
        {"txtTotaleSpesa", "54,92"},
        {"txtComplessivo", "224,97"},
        {"Label43", "8,80"},
        {"txtCpDip", "14,96"},
        {"Label47", "0,35"},
        {"txtFonCre", "0,60"},
        {"txtTotaleContr", "15,56"},
        {"txtIrpef", "1.234,56"},
        {"txtInail", "78,90"},
        {"txtInailUno", "43,21"},
        {"txtInailDue", "35,69"},
        {"Frame1", "1° periodo - liquidazione"},
        {"Frame4", "2° periodo - autorizzazione"},
    };
    for (const auto& [control, words] : shown) EXPECT_EQ(text(control), words) << control;
    EXPECT_THAT(openFields(), IsEmpty());
    EXPECT_FALSE(visible("Frame28"));
    EXPECT_FALSE(visible("Frame17"));
    expectHeld(false);
}

TEST_F(Ricerca, TheFiguresOfTheElectionAreThoseOfTheLastEmployee) {
    layElection();
    layStaff({first().withUsed(5), second().withUsed(9), third().withUsed(21)});
    callUp();
    EXPECT_EQ(text("txtMoUtil"), "21");
    EXPECT_EQ(text("txtGlobo"), "352");
}

TEST_F(Ricerca, MoreHoursThanThePoolsHoldAreToldOnce) {
    layElection();
    layStaff({first(), second(), third().withUsed(374)});
    box("Attenzione!",
        "E' Stato superato il monte ore! I dati verranno comunque inseriti e memorizzati. Dopo aver Finito di "
        "inserire i dati lanciare una stampa dal menu principale 'File'>'Stampa'>Compenso straordinario. Aprite poi "
        "la finestra dal menu principale 'Straordinario' > 'Modifica' per le rettifiche.");
    callUp();
    EXPECT_EQ(text("txtGlobo"), "-1");
    click("cmdSuccessivo");
}

TEST_F(Ricerca, AsManyHoursAsThePoolsHoldAreNoExcess) {
    layElection();
    layStaff({first(), second(), third().withUsed(373)});
    callUp();
    EXPECT_EQ(text("txtGlobo"), "0");
}

TEST_F(Ricerca, WithoutANumberTheElectionAloneIsShown) {
    layElection();
    callUp("");
    EXPECT_EQ(text("txtNameDip"), "");
    EXPECT_EQ(text("lblPrimo"), "1");
    EXPECT_EQ(text("txtPrimoDal"), "15-04-24");
    EXPECT_EQ(text("txtPag1Df"), "");
    EXPECT_EQ(text("Label59"), "62");
    EXPECT_TRUE(operable("cmdPrimo"));
    EXPECT_FALSE(operable("Check1"));
    click("cmdPrimo");
    EXPECT_EQ(text("txtNameDip"), "BIANCHI ANNA");
}

TEST_F(Ricerca, AnEmployeeWhoIsNotThereIsTold) {
    layElection();
    callUp("3");
    for (const auto& [typed, number] : {std::pair{"4", "4"}, std::pair{"x", "-1"}, std::pair{"-2", "-2"}}) {
        type("txtSonoDip", typed);
        box("Errore", "Dipendente n. " + std::string(number) + " inesistente. I dipendenti inseriti sono n. 3");
        click("cmdRicerca");
        EXPECT_EQ(focused(), "txtSonoDip");
        EXPECT_EQ(text("txtNameDip"), "ROSSI MARIO") << "who was on show stays";
    }
}

TEST_F(Ricerca, NavigationStopsAtBothEnds) {
    layElection();
    callUp("2");
    click("cmdUltimo");
    EXPECT_EQ(text("txtSonoDip"), "3");
    click("cmdSuccessivo");
    EXPECT_EQ(text("txtSonoDip"), "3");
    click("cmdPrecedente");
    EXPECT_EQ(text("txtSonoDip"), "2");
    click("cmdPrimo");
    EXPECT_EQ(text("txtNameDip"), "BIANCHI ANNA");
    click("cmdPrecedente");
    EXPECT_EQ(text("txtSonoDip"), "1");
    click("cmdSuccessivo");
    EXPECT_EQ(text("txtSonoDip"), "2");
}

TEST_F(Ricerca, AnotherDateEmptiesTheScreen) {
    layElection();
    callUp();
    type("txtDataEle", "10/06/24");
    EXPECT_EQ(text("txtNameDip"), "");
    EXPECT_EQ(text("txtSonoDip"), "");
    EXPECT_EQ(text("txtMoUtil"), "");
    EXPECT_EQ(text("txtPag1Df"), "");
    EXPECT_EQ(text("lblPrimo"), "");
    EXPECT_EQ(text("Frame1"), "1° periodo");
    EXPECT_FALSE(operable("cmdPrimo"));
    EXPECT_EQ(text("txtDataEle"), "10/06/24");
}

TEST_F(Ricerca, GivingUpTheSearchKeepsTheElection) {
    layElection();
    callUp("2");
    click("cmdAnnulla3");
    EXPECT_EQ(focused(), "txtSonoDip");
    EXPECT_EQ(text("Combo1"), "Europee");
    EXPECT_EQ(text("txtDataEle"), "09-06-24");
    for (const char* empty : {"txtSonoDip", "txtNameDip", "txtTotAut1", "txtDovuto", "Label43", "lblCat", "txtIrpef",
                              "txtGlobo", "lblMens1", "lblSecondo"}) {
        EXPECT_EQ(text(empty), "") << empty;
    }
    EXPECT_FALSE(operable("cmdAnnulla3"));
    type("txtSonoDip", "3");
    click("cmdRicerca");
    EXPECT_EQ(text("txtAutFer1Per"), "10");
}

TEST_F(Ricerca, PrintsAndExit) {
    layElection();
    open();
    click("cmdStampe");
    EXPECT_THAT(screens.opened, ElementsAre("frmTutteStampe"));
    menu("mnuEsci");
    EXPECT_FALSE(screen->form.isOpen());
}

}  // namespace
}  // namespace vorbano::test
