// The start of the program, and the coming to the front of the main window.

#include "shell_desk.h"

namespace vorbano::test {
namespace {

using ::testing::ElementsAre;

class Avvio : public ShellTest {};

TEST_F(Avvio, GoesThroughItsStepsInOrder) {
    firstStart();
    EXPECT_THAT(diary, ElementsAre("tables", "beside frmSplash", "folder \"\"", "folder \"Params\"",
                                   "box Inserire denominazione Ente"));
}

TEST_F(Avvio, TheFirstTimeMakesParamsAndAnEmptyEnte) {
    firstStart();
    EXPECT_EQ(ente(), "");
    EXPECT_TRUE(files.list("Params").ok());
    EXPECT_FALSE(files.list("Elezioni").ok());
}

TEST_F(Avvio, TheFirstTimeOpensThePanelWithTheListReady) {
    layComuni();
    firstStart();
    EXPECT_TRUE(visible("Frame1"));
    EXPECT_TRUE(visible("cboComune"));
    EXPECT_EQ(screen->cboComune.items().size(), 3U);
    EXPECT_TRUE(operable("txtEnte"));
    EXPECT_TRUE(operable("cmdSalva"));
    EXPECT_TRUE(screen->Check1.checked());
    EXPECT_FALSE(visible("cmdApplica"));
    EXPECT_EQ(text("lblEnte"), "");
    expectMenus(true);
}

TEST_F(Avvio, TheSecondTimeShowsTheEnte) {
    layEnte();
    start();
    EXPECT_THAT(diary,
                ElementsAre("folder \"Params\"", "tables", "beside frmSplash", "folder \"\"", "folder \"Params\""));
    EXPECT_EQ(text("lblEnte"), "Comune di Pratofiorito");
    EXPECT_FALSE(visible("Frame1"));
    EXPECT_FALSE(visible("cmdApplica"));
    expectMenus(true);
    EXPECT_EQ(ente(), padded("Pratofiorito", 60));
}

TEST_F(Avvio, ReadsAccentsFromTheCodePage) {
    layEnte(padded("Forl\xEC", 60));
    start();
    EXPECT_EQ(text("lblEnte"), "Comune di Forlì");
}

TEST_F(Avvio, FindsAnEnteInAnotherCase) {
    ASSERT_TRUE(lay(files, "PARAMS/ENTE.DAT", padded("Pratofiorito", 60)));
    start();
    EXPECT_EQ(text("lblEnte"), "Comune di Pratofiorito");
}

TEST_F(Avvio, HidesTheSplashWindowAtTheEnd) {
    layEnte();
    start();
    ASSERT_NE(desktop.beside, nullptr);
    EXPECT_FALSE(desktop.beside->isOpen());
}

TEST_F(Avvio, EmptiesAllTwelveTables) {
    layEnte();
    fillTables();
    expectTables(3);
    start();
    expectTables(0);
}

TEST_F(Avvio, EmptiesTheTablesWithoutAnEnteToo) {
    fillTables();
    firstStart();
    expectTables(0);
}

TEST_F(Avvio, EveryReturnFromAScreenEmptiesTheTablesAgain) {
    layEnte();
    start();
    for (int n = 0; n < 2; ++n) {
        desktop.form("frmTutteStampe", [this](Form&) {
            fillTables();
            expectTables(3);
        });
        menu("mnuTuttoStampe");
        expectTables(0);
    }
}

TEST_F(Avvio, EveryReturnWithoutAnEnteAsksForItAgain) {
    firstStart();
    click("Command1");
    EXPECT_FALSE(visible("Frame1"));
    expectMenus(true);
    desktop.form("frmParametri", nullptr);
    desktop.box("Vorbano", "Inserire denominazione Ente");
    menu("mnuStrao");
    EXPECT_TRUE(visible("Frame1"));
    EXPECT_TRUE(screen->Check1.checked());
}

TEST_F(Avvio, EveryReturnReadsTheEnteAgain) {
    layEnte();
    start();
    desktop.form("frmParametri", [this](Form&) { layEnte(padded("Borgo San Vorbano", 60)); });
    menu("mnuStrao");
    EXPECT_EQ(text("lblEnte"), "Comune di Borgo San Vorbano");
}

TEST_F(Avvio, WithoutTheStagingTablesIsToldOnceAndGoesOn) {
    layEnte();
    tables.state = Error{Failure::notFound, "Stampe/dbStampa.mdb"};
    desktop.box("Vorbano", "Manca il file Stampe/dbStampa.mdb. I documenti non possono essere stampati.");
    start();
    EXPECT_EQ(text("lblEnte"), "Comune di Pratofiorito");
    desktop.form("frmParametri", nullptr);
    menu("mnuStrao");
}

TEST_F(Avvio, WithTablesOfAnOlderInstallationIsTold) {
    layEnte();
    tables.state = Error{Failure::damaged, "Stampe/dbStampa.mdb"};
    desktop.box(
        "Vorbano",
        "Il file Stampe/dbStampa.mdb non è un archivio di questa versione del programma: può essere danneggiato, o "
        "provenire da un'installazione precedente. I documenti non "
        "possono essere stampati.");
    start();
    expectMenus(true);
}

TEST_F(Avvio, OnAReadOnlyInstallationIsToldInWords) {
    layEnte();
    files.makeReadOnly("");
    desktop.box("Errore",
                "Il file Params/Ente.dat non può essere letto o scritto: controllare che non sia di sola lettura.");
    start();
    EXPECT_FALSE(visible("Frame1")) << "a name that is there is not asked for again";
    expectMenus(true);
}

TEST_F(Avvio, WithoutParamsIsToldInWords) {
    files.makeReadOnly("");
    desktop.box("Errore", "Manca la cartella del file Params/Ente.dat.");
    start();
    EXPECT_FALSE(visible("Frame1"));
}

TEST_F(Avvio, TheWindowSaysWhatItIs) {
    layEnte();
    start();
    EXPECT_EQ(screen->form.caption(), "Vorbano 3.9.6 - versione 2024");
    EXPECT_EQ(text("Label1"), "Gestione dei Rendiconti Elettorali");
    EXPECT_EQ(text("Label5"), "Versione 2024");
    EXPECT_EQ(text("Label3"), "Elezioni");
    EXPECT_EQ(text("Label4"), "Stampe/dbStampa.mdb");
}

}  // namespace
}  // namespace vorbano::test
