// The panel "Inserimento Ente": the name of the municipality.

#include "shell_desk.h"
#include "support/fault_stage.h"

namespace vorbano::test {
namespace {

class PannelloEnte : public ShellTest {
  protected:
    void openPanel() {
        layEnte();
        layComuni();
        start();
        menu("Ente");
    }
};

TEST_F(PannelloEnte, OpensLockedWithTheStoredName) {
    openPanel();
    EXPECT_TRUE(visible("Frame1"));
    EXPECT_EQ(text("Frame1"), "Inserimento Ente");
    EXPECT_EQ(text("txtEnte"), "Pratofiorito");
    EXPECT_EQ(clerk().type(control("txtEnte"), "x"), Refusal::locked);
    EXPECT_EQ(clerk().click(control("cmdSalva")), Refusal::disabled);
    EXPECT_FALSE(visible("cboComune"));
    EXPECT_FALSE(screen->Check1.checked());
    EXPECT_TRUE(operable("Command1"));
    expectMenus(false);
}

TEST_F(PannelloEnte, IsClosedWithoutSaving) {
    openPanel();
    tick("Check1");
    choose("cboComune", "ZOCCA");
    click("Command1");
    EXPECT_FALSE(visible("Frame1"));
    EXPECT_FALSE(visible("cmdApplica"));
    expectMenus(true);
    EXPECT_EQ(ente(), padded("Pratofiorito", 60));
    EXPECT_EQ(text("lblEnte"), "Comune di Pratofiorito");
}

TEST_F(PannelloEnte, TheBoxOpensSavingAndTheList) {
    openPanel();
    tick("Check1");
    EXPECT_TRUE(operable("cmdSalva"));
    EXPECT_TRUE(visible("cboComune"));
    EXPECT_EQ(screen->cboComune.items().size(), 3U) << "no empty last line, nothing twice";
    EXPECT_EQ(screen->cboComune.items().at(1), "FORLÌ" + std::string(55, ' ')) << "fields as they are stored";
    tick("Check1", false);
    EXPECT_FALSE(operable("cmdSalva"));
    EXPECT_FALSE(visible("cboComune"));
    EXPECT_FALSE(operable("txtEnte"));
}

TEST_F(PannelloEnte, AChosenNameIsCopiedTrimmed) {
    openPanel();
    tick("Check1");
    choose("cboComune", "FORLÌ");
    EXPECT_EQ(text("txtEnte"), "FORLÌ");
}

TEST_F(PannelloEnte, SavedIsAppliedByItsCommand) {
    openPanel();
    tick("Check1");
    choose("cboComune", "FORLÌ");
    desktop.box("Inserimento Ente", "Operazione terminata");
    click("cmdSalva");
    EXPECT_EQ(ente(), padded("FORL\xCC", 60));
    EXPECT_FALSE(visible("Frame1"));
    EXPECT_TRUE(operable("cmdApplica"));
    EXPECT_EQ(text("lblEnte"), "Comune di Pratofiorito");
    expectMenus(false);
    click("cmdApplica");
    EXPECT_EQ(text("lblEnte"), "Comune di FORLÌ");
    EXPECT_FALSE(visible("cmdApplica"));
    expectMenus(true);
}

TEST_F(PannelloEnte, APressOnItStartsOver) {
    openPanel();
    tick("Check1");
    choose("cboComune", "ZOCCA");
    EXPECT_EQ(clerk().press(screen->Frame1), Refusal::none);
    EXPECT_FALSE(screen->Check1.checked());
    EXPECT_FALSE(operable("cmdSalva"));
    EXPECT_EQ(text("txtEnte"), "Pratofiorito");
}

TEST_F(PannelloEnte, OpenedAgainStartsOver) {
    openPanel();
    tick("Check1");
    click("Command1");
    menu("Ente");
    EXPECT_FALSE(screen->Check1.checked());
    EXPECT_FALSE(operable("cmdSalva"));
}

TEST_F(PannelloEnte, WithoutANameSaysSoAndOpensTheList) {
    layComuni();
    firstStart();
    click("Command1");
    desktop.box("Inserimento Ente", "Nome Ente non ancora inserito");
    menu("Ente");
    EXPECT_TRUE(screen->Check1.checked());
    EXPECT_TRUE(operable("cmdSalva"));
    EXPECT_TRUE(visible("cboComune"));
    EXPECT_FALSE(operable("txtEnte"));
    expectMenus(false);
    choose("cboComune", "ABETONE");
    desktop.box("Inserimento Ente", "Operazione terminata");
    click("cmdSalva");
    EXPECT_EQ(ente(), padded("ABETONE", 60));
}

TEST_F(PannelloEnte, APressWithoutANameSaysSoToo) {
    firstStart();
    desktop.box("Inserimento Ente", "Nome Ente non ancora inserito");
    EXPECT_EQ(clerk().press(screen->Frame1), Refusal::none);
    EXPECT_TRUE(screen->Check1.checked());
}

TEST_F(PannelloEnte, AtTheFirstStartTheNameIsTyped) {
    firstStart();
    type("txtEnte", "Borgo San Vorbanò");
    desktop.box("Inserimento Ente", "Operazione terminata");
    click("cmdSalva");
    EXPECT_EQ(ente(), padded("Borgo San Vorban\xF2", 60));
    click("cmdApplica");
    EXPECT_EQ(text("lblEnte"), "Comune di Borgo San Vorbanò");
}

TEST_F(PannelloEnte, TheNameCanBeTypedAgainAtTheNextAsking) {
    firstStart();
    click("Command1");
    desktop.box("Inserimento Ente", "Nome Ente non ancora inserito");
    menu("Ente");
    EXPECT_FALSE(operable("txtEnte"));
    click("Command1");
    desktop.form("frmParametri", nullptr);
    desktop.box("Vorbano", "Inserire denominazione Ente");
    menu("mnuStrao");
    EXPECT_TRUE(operable("txtEnte"));
}

TEST_F(PannelloEnte, NoNameIsNotSaved) {
    firstStart();
    for (const char* words : {"", "   "}) {
        type("txtEnte", words);
        desktop.box("Inserimento Ente", "Inserire denominazione Ente");
        click("cmdSalva");
        EXPECT_EQ(ente(), "");
        EXPECT_TRUE(visible("Frame1"));
        EXPECT_EQ(focused(), "txtEnte");
    }
}

TEST_F(PannelloEnte, ALongNameIsCutAtSixtyCharacters) {
    firstStart();
    type("txtEnte", std::string(200, 'X'));
    desktop.box("Inserimento Ente", "Operazione terminata");
    click("cmdSalva");
    EXPECT_EQ(ente(), std::string(60, 'X'));
}

TEST_F(PannelloEnte, WithoutAListOfMunicipalitiesTheListIsEmpty) {
    firstStart();
    EXPECT_TRUE(visible("cboComune"));
    EXPECT_THAT(screen->cboComune.items(), ::testing::IsEmpty());
}

TEST_F(PannelloEnte, ReadOnlyIsToldAndStaysOpen) {
    openPanel();
    tick("Check1");
    choose("cboComune", "ZOCCA");
    files.makeReadOnly("Params/Ente.dat");
    desktop.box("Errore",
                "Il file Params/Ente.dat non può essere letto o scritto: controllare che non sia di sola lettura.");
    click("cmdSalva");
    EXPECT_TRUE(visible("Frame1"));
    EXPECT_TRUE(operable("cmdSalva"));
    EXPECT_EQ(text("txtEnte"), "ZOCCA");
    EXPECT_EQ(ente(), padded("Pratofiorito", 60));
}

class GuastiEnte : public ShellTest {
  protected:
    static constexpr const char* broken = "Il disco non ha completato l'operazione sul file Params/Ente.dat.";
    FailingFileSystem failing{files};
    const std::string before = padded("Pratofiorito", 60);
    const std::string after = padded("ZOCCA", 60);

    void prepare() {
        failing.failOnce(0);
        layEnte();
        layComuni();
        startOn(failing);
        menu("Ente");
        tick("Check1");
        choose("cboComune", "ZOCCA");
    }
    int operationsOfASave() {
        prepare();
        desktop.box("Inserimento Ente", "Operazione terminata");
        return operationsOf(failing, [&] { click("cmdSalva"); });
    }
    const FaultCase inTable{"Form1.cmdSalva", "another municipality"};
};

TEST_F(GuastiEnte, ASaveThatFailsIsToldAndCanBeGivenAgain) {
    const int all = operationsOfASave();
    ASSERT_GE(all, 3);
    atEveryOperation(inTable, all, [&](int n) {
        prepare();
        desktop.box("Errore", broken);
        failingOnce(failing, n, [&] { click("cmdSalva"); });
        EXPECT_THAT(ente(), ::testing::AnyOf(before, after));
        EXPECT_TRUE(visible("Frame1"));
        desktop.box("Inserimento Ente", "Operazione terminata");
        click("cmdSalva");
        EXPECT_EQ(ente(), after);
    });
}

TEST_F(GuastiEnte, APowerCutLeavesTheNameOldOrNew) {
    const int all = operationsOfASave();
    atEveryOperation(inTable, all, [&](int n) {
        prepare();
        desktop.box("Errore", broken);
        cuttingPower(failing, files, n, [&] { click("cmdSalva"); });
        EXPECT_THAT(ente(), ::testing::AnyOf(before, after));
    });
}

TEST_F(GuastiEnte, ANameThatCouldNotBeReadIsNotAskedForAgain) {
    layEnte();
    const int all = operationsOf(failing, [&] { startOn(failing); });
    ASSERT_GE(all, 5);
    int told = 0;
    atEveryOperation({"Form1", "opens"}, all, [&](int n) {
        failing.failOnce(n);
        const bool isEnte = n > 2;  // the two folders come first, and are there
        if (isEnte) {
            desktop.box("Errore", broken);
            ++told;
        }
        startOn(failing);
        EXPECT_FALSE(visible("Frame1"));
    });
    EXPECT_EQ(told, 3) << "opening, counting, reading";
}

}  // namespace
}  // namespace vorbano::test
