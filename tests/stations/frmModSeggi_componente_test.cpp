// The kinds of change, the choice of a row, a member's fields, fee and code.

#include "correction_desk.h"

namespace vorbano::test {
namespace {

using ModSeggiComponente = ModSeggiTest;

constexpr const char* wrongCode = "Codice Fiscale inesatto. Sono stati inseriti meno di 16 caratteri";

TEST_F(ModSeggiComponente, OpensAndClosesTheKindsOfChange) {
    openAt("1");
    EXPECT_EQ(text("cmdAttiva"), "Attiva modifiche");
    click("cmdAttiva");
    EXPECT_EQ(text("cmdAttiva"), "Disattiva modifiche");
    EXPECT_FALSE(visible("cmdAttiva"));
    for (const char* open : {"Check3", "Check4", "Check5", "cmdDisattiva", "cmdAnnulla1"})
        EXPECT_TRUE(operable(open)) << open;
    EXPECT_FALSE(operable("cmdSalva"));
    EXPECT_EQ(focused(), "Check3");
    tick("Check3");
    EXPECT_EQ(text("lblSelezione"), "SELEZIONARE IL COGNOME DEL COMPONENTE PER LE MODIFICHE");
    click("cmdDisattiva");
    EXPECT_EQ(text("cmdAttiva"), "Attiva modifiche");
    EXPECT_EQ(text("lblSelezione"), "");
    EXPECT_EQ(focused(), "cmdAttiva");
    expectSearchState();
}

TEST_F(ModSeggiComponente, HasOneKindOfChangeAtATime) {
    openAt("1");
    click("cmdAttiva");
    tick("Check3");
    tick("Check5");
    EXPECT_FALSE(ticked("Check3"));
    EXPECT_EQ(text("lblSelezione"), "SELEZIONARE IL COMPONENTE SCRUTATORE DA ELIMINARE");
    tick("Check4");
    EXPECT_FALSE(ticked("Check5"));
    EXPECT_TRUE(visible("Frame2"));
    tick("Check3");
    EXPECT_FALSE(ticked("Check4"));
    EXPECT_FALSE(visible("Frame2"));
    tick("Check3", false);
    EXPECT_EQ(text("lblSelezione"), "");
}

TEST_F(ModSeggiComponente, AsksForTheKindOfChangeFirst) {
    openAt("1");
    box("Modifica", "Selezionare il tipo di modifica");
    pick("MSFlexGrid1", 1, 1);
    click("cmdAttiva");
    box("Modifica", "Selezionare il tipo di modifica");
    pick("MSFlexGrid1", 2, 1);
    pick("MSFlexGrid1", 0, 1);  // the heading is no row
    EXPECT_FALSE(visible("Frame1"));
}

TEST_F(ModSeggiComponente, LoadsTheMemberOfTheRow) {
    openMember(3);
    EXPECT_TRUE(visible("Frame1"));
    EXPECT_EQ(text("txtComponente"), "D'AMICO");
    EXPECT_EQ(text("txtNome"), "NICOLÒ");
    EXPECT_EQ(text("txtIndirizzo"), "Piazza Mazzini 7");
    EXPECT_EQ(text("txtCompo"), "Scrutatore");
    EXPECT_EQ(text("txtSiNo"), "SI");
    EXPECT_EQ(text("txtFisc"), "DMCNCL80E12F205Q");
    EXPECT_EQ(text("txtImporto"), "96,00");
    EXPECT_EQ(text("Label9"), "3");
    EXPECT_EQ(text("Text1"), "3");
    EXPECT_EQ(text("Label19"), "1");
    EXPECT_EQ(focused(), "txtComponente");
    EXPECT_FALSE(ticked("Check1"));
    EXPECT_FALSE(operable("Check2"));
    for (const char* closed : {"txtSostituto", "txtNomeS", "txtIndirizzo2", "txtFisc2", "txtPercent", "txtImporto2"})
        EXPECT_FALSE(operable(closed)) << closed;
    EXPECT_TRUE(operable("Combo2"));
    EXPECT_TRUE(operable("cmdSalva"));
    // While a change is open no other station can be called up.
    for (const char* closed : {"Combo1", "Combo4", "txtDataEle", "txtSeggio", "cmdRicerca", "Combo3", "cmdSuccessivo"})
        EXPECT_FALSE(operable(closed)) << closed;
    pick("MSFlexGrid1", 4, 0);
    EXPECT_EQ(text("txtComponente"), "FERRARI");
    EXPECT_EQ(text("Text1"), "4");
}

TEST_F(ModSeggiComponente, CountsTheRecordsOfTheWholeFile) {
    openMember(2, "3");
    EXPECT_EQ(text("txtComponente"), "ORSINI");
    EXPECT_EQ(text("Label9"), "2");
    EXPECT_EQ(text("Text1"), "8");
}

TEST_F(ModSeggiComponente, StoresTheCorrectionInPlace) {
    openMember(3);
    type("txtComponente", "D'AMICO ROSSI");
    type("txtNome", "NICOLA");
    type("txtIndirizzo", "Via Nuova 8");
    type("txtCompo", "Presidente");
    type("txtSiNo", "NO");
    type("txtFisc", "dmcncl80e12f205q");
    type("txtImporto", "1.234,565");
    choose("Combo2", "Comunali");
    saved();
    click("cmdSalva");
    Who changed = amico;
    changed.cognome = "D'AMICO ROSSI";
    changed.nome = "NICOLA";
    changed.indirizzo = "Via Nuova 8";
    changed.qualifica = "Presidente";
    changed.siNo = "NO";
    changed.cents = 123'457;
    changed.tariffa = "Comunali";
    std::vector<Who> expected = threeStations;
    expected[2] = changed;
    EXPECT_EQ(toHex(stored("Seggi.vbn")), toHex(membersBytes(expected)));
    EXPECT_EQ(stored("SosSeggi.vbn"), "");
    expectSearchState();
    EXPECT_EQ(row(3), "3|D'AMICO ROSSI NICOLA|Via Nuova 8|Presidente|NO|DMCNCL80E12F205Q|1.234,57");
    EXPECT_EQ(text("txtSeggio"), "1");
    EXPECT_EQ(focused(), "cmdAttiva");
}

TEST_F(ModSeggiComponente, LeavesTheNumbersOfTheEntryAlone) {
    Who early = bellini;
    early.seggi = 2;
    layIn("Seggi.vbn", membersBytes({early, conti, amico, ferrari}));
    openMember(2);
    type("txtIndirizzo", "Via Alta 1");
    saved();
    click("cmdSalva");
    Who changed = conti;
    changed.indirizzo = "Via Alta 1";
    EXPECT_EQ(toHex(stored("Seggi.vbn")), toHex(membersBytes({early, changed, amico, ferrari})));
}

TEST_F(ModSeggiComponente, ProposesTheFeeOfTheRoleOnEntering) {
    const char* const fees[] = {"138,00", "110,40", "96,00", "96,00"};
    openAt("1");
    begin("Check3");
    for (int at = 1; at <= 4; ++at) {
        pick("MSFlexGrid1", at, 1);
        type("txtNome", "X");
        enter("txtImporto");
        EXPECT_EQ(text("txtImporto"), fees[at - 1]);
    }
    choose("Combo2", "Comunali");
    enter("txtImporto");
    EXPECT_EQ(text("txtImporto"), "110,00");
}

TEST_F(ModSeggiComponente, RestoresTheWholeFeeOverATypedOne) {
    openMember(1);
    type("txtImporto", "5");
    enter("txtNome");
    EXPECT_EQ(text("txtImporto"), "5");
    enter("txtImporto");
    EXPECT_EQ(text("txtImporto"), "138,00");
}

TEST_F(ModSeggiComponente, ProposesNothingForAWordThatIsNoRole) {
    openMember(1);
    type("txtCompo", "Custode");
    enter("txtImporto");
    EXPECT_EQ(text("txtImporto"), "138,00");
}

TEST_F(ModSeggiComponente, TellsThatTheTariffHasNoRow) {
    openMember(1);
    choose("Combo2", "Regionali");
    box("Tariffe", "Tariffe non inserite");
    enter("txtImporto");
    EXPECT_EQ(text("txtImporto"), "138,00");
}

TEST_F(ModSeggiComponente, StoresAFeeThatIsNoNumberAsNothing) {
    openMember(4);
    type("txtImporto", "molto");
    saved();
    click("cmdSalva");
    Who changed = ferrari;
    changed.cents = 0;
    std::vector<Who> expected = threeStations;
    expected[3] = changed;
    EXPECT_EQ(toHex(stored("Seggi.vbn")), toHex(membersBytes(expected)));
}

TEST_F(ModSeggiComponente, RefusesACodeOfFifteenCharactersAndDropsTheGesture) {
    openMember(1);
    type("txtFisc", "BLLNNL60A41H501");
    box("Errore!", wrongCode);
    click("cmdSalva");
    EXPECT_EQ(focused(), "txtFisc");
    EXPECT_EQ(toHex(stored("Seggi.vbn")), toHex(membersBytes(threeStations)));
    type("txtFisc", "bllnnl60a41h501yz");  // what is beyond sixteen is not taken
    enter("txtNome");
    EXPECT_EQ(text("txtFisc"), "BLLNNL60A41H501Y");
    type("txtFisc", "");
    enter("txtNome");
    EXPECT_EQ(text("txtFisc"), "");
}

TEST_F(ModSeggiComponente, TestsTheCodesOfSubstituteAndNewMemberToo) {
    openMember(1);
    tick("Check1");
    type("txtFisc2", "ABC");
    box("Errore!", wrongCode);
    enter("txtNomeS");
    EXPECT_EQ(focused(), "txtFisc2");
    type("txtFisc2", "abcdef80a01h501x");
    enter("txtNomeS");
    EXPECT_EQ(text("txtFisc2"), "ABCDEF80A01H501X");
    tick("Check4");
    type("Text9", "ABC");
    box("Errore!", wrongCode);
    enter("Text2");
    EXPECT_EQ(focused(), "Text9");
    type("Text9", "abcdef80a01h501x");
    enter("Text2");
    EXPECT_EQ(text("Text9"), "ABCDEF80A01H501X");
}

TEST_F(ModSeggiComponente, GivesUpAChange) {
    openMember(1);
    type("txtComponente", "ALTRI");
    click("cmdAnnulla1");
    expectSearchState();
    EXPECT_EQ(rows(), 4);
    EXPECT_EQ(text("txtComponente"), "");
    EXPECT_EQ(text("Label9"), "");
    EXPECT_EQ(toHex(stored("Seggi.vbn")), toHex(membersBytes(threeStations)));
}

struct FiscalCodeScreen : ModSeggiTest {
    /// Works out the code of a man of Rome and takes it over.
    void exportCode() {
        desktop.form("frmCodFisc", [](Form& form) {
            Operator clerk(form);
            const auto type = [&](const char* name, const char* words) {
                EXPECT_EQ(clerk.type(*form.find(name), words), Refusal::none);
            };
            type("txtCognome", "ROSSI");
            type("txtNome", "GIANFRANCO");
            type("txtDataNascita", "10/12/1980");
            type("Text1", "ROMA");
            EXPECT_EQ(clerk.click(*form.find("cmdElabora")), Refusal::none);
            EXPECT_EQ(clerk.click(*form.find("cmdEsporta")), Refusal::none);
        });
        menu("mnuCodFisc");
    }
    FiscalCodeScreen() { fillPlaces(places); }
};
// RSS GFR 80 T 10 H501: odd places R8 S12 F13 8=19 T14 0=1 5=13 1=0, even S18 G6 R17 0=0 1=1 H7 0=0, together 129, 25
// over 4 times 26.
constexpr const char* rossi = "RSSGFR80T10H501Z";

TEST_F(FiscalCodeScreen, FillsTheCodeOfTheMember) {
    openMember(1);
    exportCode();
    EXPECT_EQ(text("txtFisc"), rossi);
    EXPECT_EQ(text("txtFisc2"), "");
    EXPECT_EQ(focused(), "txtFisc");
}

TEST_F(FiscalCodeScreen, FillsTheCodeOfTheSubstituteWhileItIsAwaited) {
    openMember(1);
    tick("Check1");
    EXPECT_EQ(text("Label19"), "0");
    exportCode();
    EXPECT_EQ(text("txtFisc2"), rossi);
    EXPECT_EQ(text("txtFisc"), "BLLNNL60A41H501X");
    enter("txtFisc");
    EXPECT_EQ(text("Label19"), "1");
    enter("txtFisc2");
    EXPECT_EQ(text("Label19"), "0");
    tick("Check1", false);
    EXPECT_EQ(text("Label19"), "1");
}

TEST_F(FiscalCodeScreen, FillsTheCodeOfTheNewMemberBeforeAllOthers) {
    openAt("1");
    begin("Check4");
    exportCode();
    EXPECT_EQ(text("Text9"), rossi);
}

TEST_F(FiscalCodeScreen, FillsNothingWhenNothingIsOpen) {
    openAt("1");
    begin("Check5");
    pick("MSFlexGrid1", 4, 1);
    exportCode();
    EXPECT_EQ(text("Text17"), "FRRLSU85H52H501W");
    EXPECT_EQ(text("txtFisc"), "");
    EXPECT_EQ(text("Text9"), "");
}

TEST_F(FiscalCodeScreen, LeavesTheCodeAloneWithoutAnExport) {
    openMember(1);
    desktop.form("frmCodFisc",
                 [](Form& form) { EXPECT_EQ(Operator(form).click(*form.find("Command1")), Refusal::none); });
    menu("mnuCodFisc");
    EXPECT_EQ(text("txtFisc"), "BLLNNL60A41H501X");
    EXPECT_EQ(focused(), "txtComponente");
}

}  // namespace
}  // namespace vorbano::test
