// The strict sequence of panels: what the clerk can use after each step, and where the cursor is.

#include "authorisation_desk.h"

namespace vorbano::test {
namespace {

using ::testing::ContainerEq;
using NameSet = std::set<std::string>;

/// What stands below every step: the two entries that are there from the start.
const NameSet always = {"mnuDipendenti", "mnuEsci"};
const NameSet variations = {"mnuDate", "mnuNome", "mnuNumero", "mnuDipendenti", "mnuEsci"};
const NameSet name = {"txtNameDip", "cboDipendenti", "Check3"};
const NameSet firstHours = {"txtAutFer1Per", "txtAutFes1Per", "txtNf1Per"};
const NameSet secondHours = {"txtAutFer2Per", "txtAutFes2Per", "txtNf2Per"};
const NameSet ratesChoice = {"Check1", "Check2", "cmdTariffe"};

NameSet all(std::initializer_list<NameSet> parts) {
    NameSet whole;
    for (const NameSet& part : parts) whole.insert(part.begin(), part.end());
    return whole;
}

class Passi : public AuthorisationTest {
  protected:
    /// Everything that the clerk can act on now; of the menu only what leads somewhere.
    NameSet usable() {
        NameSet found;
        for (Control* each : screen->form.controls()) {
            const bool isMenu = each->kind() == Kind::menuEntry && each->name() != "mnuModifica";
            if ((isMenu || each->takesFocus()) && operable(each->name())) found.insert(each->name());
        }
        return found;
    }
    void expectStep(const NameSet& expected, const char* cursor) {
        EXPECT_THAT(usable(), ContainerEq(expected));
        EXPECT_EQ(focused(), cursor);
    }
    void expectVisible(std::initializer_list<const char*> shown, std::initializer_list<const char*> hidden) {
        for (const char* each : shown) EXPECT_TRUE(visible(each)) << each;
        for (const char* each : hidden) EXPECT_FALSE(visible(each)) << each;
    }
};

TEST_F(Passi, AtTheStartOnlyTypeDateAndNumberCanBeEntered) {
    open();
    expectStep(all({{"Combo1", "txtDataEle", "txtNumDip", "cmdAttiva"}, always}), "Combo1");
    expectVisible({"Frame1", "Frame4", "Frame5", "Frame10"},
                  {"Frame9", "Frame20", "Frame3", "Frame7", "Frame13", "Frame16", "Frame18", "Label91", "Label92",
                   "Label93", "Label94"});
    EXPECT_EQ(screen->form.caption(), "Inserimento ed autorizzazione del Compenso Lavoro Straordinario");
    EXPECT_EQ(text("cmdAttiva"), "Attiva");
}

TEST_F(Passi, ANewElectionOpensThePanelOfTheActs) {
    open();
    activate();
    expectStep(all({{"txtDataDecreto", "txtDataDetermina", "cmdConferma", "cmdAnnulla"}, always}), "txtDataDecreto");
    expectVisible({"Frame9"}, {"Frame20", "Label91", "Label92", "Label93", "Label94"});
    EXPECT_EQ(text("cmdAttiva"), "ATTIVATO");
    EXPECT_EQ(text("txtSonoDip"), "1");
}

TEST_F(Passi, TheActsOpenThePanelOfThePeriods) {
    open();
    activate();
    confirmActs();
    expectStep(all({{"txtUnodal", "txtUnoal", "Check4", "txtDuedal", "txtDueal", "Check5", "Check6", "Command1",
                     "cmdDisattiva"},
                    always}),
               "txtUnodal");
    expectVisible({"Frame20", "cmdDisattiva", "Label91", "Label92", "Label93", "Label94"}, {"Frame9"});
}

TEST_F(Passi, ThePeriodsOpenTheNameAndTheFirstHours) {
    toName();
    expectStep(all({name, firstHours, variations}), "txtNameDip");
    expectVisible({"Label93", "Label94"}, {"Frame9", "Frame20", "cmdDisattiva"});
}

TEST_F(Passi, AnAcceptedPeriodOpensTheNextThatTakesPart) {
    toName();
    type("txtNameDip", "ROSSI MARIA");
    hours(1, "10", "4", "2");
    expectStep(all({name, secondHours, variations}), "txtAutFer2Per");
    EXPECT_EQ(screen->periods[0].frame.tone(), Tone::done);
    EXPECT_EQ(screen->periods[1].frame.tone(), Tone::plain);
}

TEST_F(Passi, AfterTheLastPeriodTheTotalIsNext) {
    toName();
    type("txtNameDip", "ROSSI MARIA");
    hours(1, "10", "4", "2");
    hours(2, "5", "3", "1");
    expectStep(all({name, {"CmdRiepilogo"}, variations}), "CmdRiepilogo");
    EXPECT_EQ(screen->periods[1].frame.tone(), Tone::done);
}

TEST_F(Passi, TheTotalLocksItselfAndOpensTheKindsOfTariff) {
    toName();
    type("txtNameDip", "ROSSI MARIA");
    hours(1, "10", "4", "2");
    hours(2, "5", "3", "1");
    click("CmdRiepilogo");
    expectStep(all({name, ratesChoice, variations}), "Check1");
    EXPECT_EQ(text("txtTotAut"), "25");
}

TEST_F(Passi, TheTariffsShowTheGridAndAPickOpensSalva) {
    toName();
    type("txtNameDip", "ROSSI MARIA");
    hours(1, "10", "4", "2");
    hours(2, "5", "3", "1");
    click("CmdRiepilogo");
    tick("Check2");
    click("cmdTariffe");
    expectStep(all({name, ratesChoice, {"MSFlexGrid1"}, variations}), "MSFlexGrid1");
    expectVisible({"Frame3", "lblDipendente"}, {});
    pick(4, 0);
    expectStep(all({name, ratesChoice, {"cmdSalva"}, variations}), "cmdSalva");
    expectVisible({}, {"Frame3", "MSFlexGrid1"});
}

TEST_F(Passi, SalvaLocksEverythingAndOpensContinua) {
    toName();
    saveEmployee();
    expectStep(all({{"cmdAggiungi"}, variations}), "cmdAggiungi");
    EXPECT_FALSE(ticked("Check1"));
    EXPECT_FALSE(ticked("Check2"));
    EXPECT_EQ(text("Label64"), "");
}

TEST_F(Passi, ContinuaOpensTheNextEmployee) {
    toName();
    saveEmployee();
    click("cmdAggiungi");
    expectStep(all({name, firstHours, variations}), "txtNameDip");
    EXPECT_EQ(text("txtSonoDip"), "2");
    EXPECT_EQ(screen->periods[0].frame.tone(), Tone::plain);
}

TEST_F(Passi, AfterTheLastEmployeeOnlyThePrintsAreLeft) {
    open();
    activate("Europee", "09/06/24", "1");
    confirmActs();
    confirmPeriods();
    saveEmployee();
    expectStep(all({{"cmdStampe"}, variations}), "cmdStampe");
    EXPECT_EQ(text("Label64"), "Calcolo Terminato");
}

TEST_F(Passi, AnElectionTakenUpAgainOpensTheNameAtOnce) {
    toName();
    saveEmployee();
    resume(1, "ROSSI MARIA");
    expectStep(all({name, firstHours, {"cmdStampe"}, variations}), "txtNameDip");
    expectVisible({"Label91", "Label92", "Label93", "Label94"}, {"Frame9", "Frame20"});
    EXPECT_EQ(text("cmdAttiva"), "ATTIVATO");
}

TEST_F(Passi, WhileTheDatesAreVariedOnlyTheirPanelIsOpen) {
    toName();
    menu("mnuDate");
    expectStep(all({{"txtUnodal", "txtUnoal", "Check4", "txtDuedal", "txtDueal", "Check5", "Check6", "Command1",
                     "cmdDisattiva"},
                    always}),
               "txtUnodal");
    EXPECT_EQ(text("Label58"), "D");
    EXPECT_EQ(text("txtGlobo"), "");
    EXPECT_EQ(figures(1), "  ");
    click("cmdDisattiva");
    expectStep(all({name, firstHours, variations}), "txtNameDip");
    EXPECT_EQ(text("Label58"), "");
    EXPECT_EQ(text("txtGlobo"), "320");
}

TEST_F(Passi, WhileTheNumberIsVariedOnlyTheNumberIsOpen) {
    toName();
    menu("mnuNumero");
    expectStep(all({{"txtNumDip", "cmdAttiva", "mnuNumero"}, always}), "txtNumDip");
    EXPECT_EQ(text("cmdAttiva"), "Attiva");
    EXPECT_EQ(text("Label67"), "N");
    for (const char* pool : {"txtMonteOre", "txtMoGlob", "txtGlobo"}) EXPECT_EQ(text(pool), "") << pool;
    EXPECT_EQ(figures(1), "  ");
    EXPECT_EQ(figures(2), "  ");
}

TEST_F(Passi, AVariationInTheMiddleOfTheRatesTakesSalvaAway) {
    toName();
    enterEmployee();
    EXPECT_TRUE(operable("cmdSalva"));
    menu("mnuNome");
    expectStep(all({name, firstHours, variations}), "txtNameDip");
    EXPECT_FALSE(ticked("Check2"));
    EXPECT_EQ(text("txtAutFer1Per"), "10") << "what was typed stays";
}

TEST_F(Passi, ARefusedVariationOfTheGridIsClosedWithIt) {
    toName();
    type("txtNameDip", "ROSSI MARIA");
    hours(1, "10", "4", "2");
    hours(2, "5", "3", "1");
    click("CmdRiepilogo");
    tick("Check2");
    click("cmdTariffe");
    menu("mnuDate");
    EXPECT_FALSE(visible("Frame3"));
    EXPECT_FALSE(operable("cmdTariffe"));
}

TEST_F(Passi, AnEmployeeWhoIsStoredIsNotOpenedAgainByAVariation) {
    toName();
    saveEmployee();
    menu("mnuNome");
    expectStep(all({name, {"cmdAggiungi"}, variations}), "txtNameDip");
    menu("mnuDate");
    EXPECT_FALSE(operable("cmdAggiungi"));
    click("cmdDisattiva");
    expectStep(all({name, {"cmdAggiungi"}, variations}), "txtNameDip");
}

TEST_F(Passi, WithoutPercentagesTheVariationsAreClosed) {
    ASSERT_TRUE(lay(files, "Params/Conprev.dat", ""));
    box("Attenzione!", "Mancano i parametri per le ritenute previdenziali ed assistenziali per il calcolo");
    open();
    expectStep({"Combo1", "txtDataEle", "txtNumDip", "cmdAttiva", "mnuEsci"}, "Combo1");
    EXPECT_FALSE(screen->mnuModifica.enabled());
    EXPECT_FALSE(screen->mnuDipendenti.enabled());
}

TEST_F(Passi, ThePercentagesAreThoseInForce) {
    open();
    EXPECT_EQ(text("Label37"), "23,80");
    EXPECT_EQ(text("Label38"), "8,50");
    EXPECT_EQ(text("Label43"), "8,80");
    EXPECT_EQ(text("Label47"), "0,35");
}

TEST_F(Passi, ThePrintsOpenTheirScreen) {
    open();
    activate("Europee", "09/06/24", "1");
    confirmActs();
    confirmPeriods();
    saveEmployee();
    click("cmdStampe");
    EXPECT_THAT(screens.opened, ::testing::ElementsAre("frmTutteStampe"));
}

TEST_F(Passi, EsciClosesTheScreen) {
    open();
    menu("mnuEsci");
    EXPECT_FALSE(screen->form.isOpen());
}

TEST_F(Passi, TheTypesStandInTheOrderOfThisScreen) {
    open();
    EXPECT_THAT(screen->Combo1.items(),
                ::testing::ElementsAre("Europee", "Europee_Comunali", "Provinciali", "Comunali", "Referendum",
                                       "Politiche_Comunali", "Regionali", "Provinciali_Comunali", "Politiche",
                                       "Politiche_Regionali", "Referendum_Comunali"));
}

TEST_F(Passi, TheCaptionsAreTheOfficesOwn) {
    open();
    const std::vector<std::pair<const char*, const char*>> captions = {
        {"cmdAttiva", "Attiva"},
        {"cmdConferma", "Conferma"},
        {"cmdAnnulla", "Annulla"},
        {"Frame20", "Periodi"},
        {"Command1", "Conferma"},
        {"cmdDisattiva", "Annulla inserimento"},
        {"CmdRiepilogo", "Calcola"},
        {"cmdTariffe", "Tariffe"},
        {"cmdCalcola", "Calcola"},
        {"cmdSalva", "Salva"},
        {"cmdAggiungi", "Continua"},
        {"cmdStampe", "Stampe"},
        {"mnuEsci", "Esci"},
        {"mnuModifica", "Varia"},
        {"mnuDate", "Date periodi"},
        {"mnuNome", "Nominativo - Ore - Tariffe"},
        {"mnuNumero", "Numero Dipendenti"},
        {"mnuDipendenti", "Dipendenti inseriti"},
        {"Check1", "Segretario Comunale"},
        {"Check2", "Dipendenti"},
        {"Check3", "Nuovo dipendente"},
        {"Frame10", "Compenso orario spettante"},
        {"Frame7", "Dipendenti inseriti"},
        {"cmdElenco", "Chiudi elenco"},
        {"Frame16", "Modifica nominativo"},
        {"Command2", "Salva"},
        {"Command3", "Annulla"},
        {"Label91", "Data decreto di pubblicazione"},
        {"Label92", "Data determina di autorizzazione"},
        {"Check4", "Annulla 1° periodo"},
        {"Check5", "Annulla 2°  periodo"},
        {"Check6", "Annulla 3° periodo"},
        {"lblSelezionare", "Selezionare il nominativo se lo si deve modificare"},
    };
    for (const auto& [each, caption] : captions) EXPECT_EQ(text(each), caption) << each;
}

}  // namespace
}  // namespace vorbano::test
