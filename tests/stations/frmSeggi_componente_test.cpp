// The fields of a member: role, birth, fiscal code, fee. Codes were worked out by hand with the tables of the decree.

#include "seggi_desk.h"

namespace vorbano::test {
namespace {

class MemberTest : public SeggiTest {
  protected:
    void begin() {
        SeggiTest::begin();
        beginStation("4");
    }
    void typeBorn(const char* surname, const char* name, const char* born, const char* place) {
        type("txtCompo1", surname);
        type("txtNome1", name);
        type("txtNasco1", born);
        type("txtDove1", place);
    }
};

TEST_F(MemberTest, TheOrderOfTabIsTheOrderOfWork) {
    begin();
    for (const char* field : {"txtCompo1", "txtNome1", "txtIndi1", "txtNasco1", "Check2", "txtDove1", "Option1",
                              "Option2", "txtSiNo1", "txtCodFisc1"}) {
        EXPECT_EQ(focused(), field);
        leave();
    }
    EXPECT_EQ(focused(), "txtOnor1");
    // Without a code the fee leads back.
    leave();
    EXPECT_EQ(focused(), "txtCodFisc1");
    type("txtCodFisc1", "RSSMRA80A01H501U");
    leave();
    leave();
    EXPECT_EQ(focused(), "cmdSalva");
}

TEST_F(MemberTest, TheSizeMakesTheRowsAndIsAWholeNumberAboveNought) {
    SeggiTest::begin();
    for (const char* wrong : {"due", "0", "-1", "33000"}) {
        enter("txtComposto");
        box("Inserimento seggi", "Inserire il numero dei componenti del seggio.");
        type("txtComposto", wrong);
        leave();
        EXPECT_EQ(focused(), "txtComposto") << wrong;
        EXPECT_EQ(rows(), 0) << wrong;
    }
    type("txtComposto", "6");
    leave();
    EXPECT_EQ(rows(), 6);
    EXPECT_EQ(focused(), "txtTariffe");
    // It can be changed up to the first member, and left empty to go elsewhere.
    type("txtComposto", "5,5");
    leave();
    EXPECT_EQ(text("txtComposto"), "6");
    type("txtComposto", "");
    leave();
    EXPECT_EQ(focused(), "txtTariffe");
}

TEST_F(MemberTest, WhatIsTypedIsKeptForTheCodeAsItIsLeft) {
    begin();
    type("txtCompo1", "Rossi");
    EXPECT_EQ(text("txtCognome"), "");
    leave();
    EXPECT_EQ(text("txtCognome"), "Rossi");
    type("txtNome1", "Mario");
    leave();
    EXPECT_EQ(text("txtNome"), "Mario");
    type("txtNasco1", "1-1-80");
    leave();
    EXPECT_EQ(text("txtNasco1"), "01/01/1980");
    EXPECT_EQ(text("txtDataNascita"), "01/01/1980");
    type("txtDove1", " roma ");
    leave();
    EXPECT_EQ(text("Text3"), "H501");
    EXPECT_EQ(text("Text2"), "RM");
    EXPECT_EQ(text("txtProvincia"), "RM");
    click("Option1");
    EXPECT_EQ(text("txtSesso"), "F");
    click("Option2");
    EXPECT_EQ(text("txtSesso"), "M");
    enter("txtCodFisc1");
    EXPECT_EQ(text("txtCodiceFiscale"), "RSSMRA80A01H501U");
    EXPECT_EQ(text("txtCodFisc1"), "RSSMRA80A01H501U");
}

TEST_F(MemberTest, WomenAndThoseBornAbroadHaveTheirOwnCodes) {
    begin();
    type("txtCompo1", "Costa");
    type("txtNome1", "Marta");
    type("txtNasco1", "11/11/1985");
    tick("Check2");
    type("txtDove1", "francia");
    click("Option1");
    enter("txtCodFisc1");
    EXPECT_EQ(text("txtProvincia"), "EE");
    EXPECT_EQ(text("txtCodFisc1"), "CSTMRT85S51Z110O");
}

TEST_F(MemberTest, WhoseSexWasNotChosenIsShownAsTheManForWhomTheCodeIs) {
    begin();
    typeBorn("Neri", "Luca", "9/8/88", "Milano");
    enter("txtCodFisc1");
    EXPECT_EQ(text("txtCodFisc1"), "NRELCU88M09F205P");
    EXPECT_TRUE(screen->Option2.checked());
    EXPECT_EQ(text("txtSesso"), "M");
}

TEST_F(MemberTest, ADateThatIsNoneLeavesTheCodeForTyping) {
    begin();
    typeBorn("Rossi", "Mario", "31/02/80", "Roma");
    enter("txtCodFisc1");
    EXPECT_EQ(text("txtNasco1"), "31/02/80");
    EXPECT_EQ(text("txtCodFisc1"), "");
    EXPECT_FALSE(screen->Option2.checked());
}

TEST_F(MemberTest, ACodeThatWasOvertypedStaysUntilAnotherComesOut) {
    begin();
    typeBorn("Rossi", "Mario", "1/1/80", "Roma");
    type("txtCodFisc1", "RSSMRA80A01H50MU");
    leave();
    enter("txtCodFisc1");
    EXPECT_EQ(text("txtCodFisc1"), "RSSMRA80A01H50MU");
    click("Option1");
    enter("txtCodFisc1");
    // The day goes up by 40: 01 is 41. The letter was counted anew.
    EXPECT_EQ(text("txtCodFisc1").substr(0, 15), "RSSMRA80A41H501");
    // Emptied, the code is proposed again.
    type("txtCodFisc1", "");
    leave();
    enter("txtCodFisc1");
    EXPECT_EQ(text("txtCodFisc1").substr(0, 15), "RSSMRA80A41H501");
}

TEST_F(MemberTest, APlaceInNeitherListKeepsTheCursor) {
    begin();
    box("Errore", "Comune non in elenco");
    type("txtDove1", "Atlantide");
    leave();
    EXPECT_EQ(focused(), "txtDove1");
    box("Errore", "Comune non in elenco");
    type("txtDove1", "Rom");
    leave();
    EXPECT_EQ(focused(), "txtDove1");
    EXPECT_EQ(text("Text3"), "");
    type("txtDove1", "Roma");
    leave();
    type("txtDove1", "");
    leave();
    EXPECT_EQ(text("Text3"), "");
    EXPECT_EQ(text("txtProvincia"), "");
    tick("Check2");
    box("Errore", "Stato non in elenco");
    type("txtDove1", "Roma");
    leave();
    EXPECT_EQ(focused(), "txtDove1");
    type("txtDove1", "Perù");
    leave();
    EXPECT_EQ(text("Text3"), "Z611");
}

TEST_F(MemberTest, TheOtherListIsAskedWhenTheBoxChanges) {
    begin();
    type("txtDove1", "Milano");
    leave();
    box("Errore", "Stato non in elenco");
    tick("Check2");
    EXPECT_EQ(text("Text3"), "");
    EXPECT_EQ(focused(), "txtDove1");
}

TEST_F(MemberTest, ACodeOfFifteenCharactersKeepsTheCursorAndTheCommandShut) {
    begin();
    type("txtCodFisc1", "RSSMRA80A01H501");
    box("Errore!", codeTooShort);
    leave();
    EXPECT_EQ(text("Label16"), "INS");
    EXPECT_EQ(focused(), "txtCodFisc1");
    EXPECT_FALSE(enabled("cmdSalva"));
    EXPECT_EQ(text("txtCodFisc1"), "RSSMRA80A01H501");

    // Emptied it raises nothing, but the refusal stands: the fee leads back.
    type("txtCodFisc1", "");
    leave();
    EXPECT_EQ(focused(), "txtCodFisc1");
    EXPECT_FALSE(enabled("cmdSalva"));
    EXPECT_EQ(text("txtOnor1"), "");

    // A field takes sixteen characters and no more.
    type("txtCodFisc1", "rssmra80a01h501uXYZ");
    leave();
    EXPECT_EQ(text("txtCodFisc1"), "RSSMRA80A01H501U");
    EXPECT_EQ(text("Label16"), "");
    EXPECT_TRUE(enabled("cmdSalva"));
    EXPECT_EQ(focused(), "txtOnor1");
}

TEST_F(MemberTest, AnEmptyCodeSendsTheFeeBackAndIsNotSaved) {
    begin();
    enter("txtOnor1");
    EXPECT_EQ(text("txtOnor1"), "149,00");
    leave();
    EXPECT_EQ(focused(), "txtCodFisc1");
    click("cmdSalva");
    EXPECT_EQ(focused(), "txtCodFisc1");
    EXPECT_EQ(readyMember(), "1 Presidente");
    EXPECT_EQ(file(seggiPath), noFile);
}

TEST_F(MemberTest, AFeeWithoutARowOfTheTariffIsToldAndTheTariffCanBeCorrected) {
    SeggiTest::begin();
    beginStation("3", "europee");
    type("txtCodFisc1", "RSSMRA80A01H501U");
    box("Tariffe", "europeeTariffe non inserite");
    leave();
    EXPECT_EQ(text("txtOnor1"), "");
    leave();
    EXPECT_TRUE(operable("txtTariffe"));
    box("Inserire l'importo", "Tariffa componente Presidente");
    box("Tariffe", "europeeTariffe non inserite");
    click("cmdSalva");
    EXPECT_EQ(focused(), "txtOnor1");
    type("txtTariffe", "Europee");
    enter("txtOnor1");
    EXPECT_EQ(text("txtOnor1"), "149,00");
    leave();
    EXPECT_FALSE(operable("txtTariffe"));
    EXPECT_TRUE(enabled("txtTariffe"));
}

TEST_F(MemberTest, TheTariffMayBeThatOfAnotherTypeAndFollowsUntilItStands) {
    SeggiTest::begin();
    beginStation("3", "Europee");
    type("txtCodFisc1", "RSSMRA80A01H501U");
    enter("txtOnor1");
    EXPECT_EQ(text("txtOnor1"), "149,00");
    enter("txtCompo1");
    EXPECT_FALSE(operable("txtTariffe"));

    SeggiTest::begin();
    beginStation("3", "Europee");
    enter("txtOnor1");
    leave();
    type("txtTariffe", "Comunali");
    enter("txtOnor1");
    EXPECT_EQ(text("txtOnor1"), "130,00");
}

TEST_F(MemberTest, AFeeTypedOverTheProposalStays) {
    begin();
    type("txtCodFisc1", "RSSMRA80A01H501U");
    type("txtOnor1", "1.100,5");
    leave();
    EXPECT_EQ(text("txtOnor1"), "1.100,50");
    enter("txtOnor1");
    EXPECT_EQ(text("txtOnor1"), "1.100,50");
    type("txtOnor1", "");
    leave();
    enter("txtOnor1");
    EXPECT_EQ(text("txtOnor1"), "149,00");
}

TEST_F(MemberTest, WhatIsNoFeeIsNotSaved) {
    begin();
    type("txtCodFisc1", "RSSMRA80A01H501U");
    type("txtOnor1", "cento");
    box("Inserire l'importo", "Tariffa componente Presidente");
    click("cmdSalva");
    EXPECT_EQ(text("txtOnor1"), "cento");
    EXPECT_EQ(focused(), "txtOnor1");
    EXPECT_EQ(file(seggiPath), noFile);
}

TEST_F(MemberTest, WhoTookPartIsWrittenInCapitalsAndIsSiByDefault) {
    begin();
    type("txtSiNo1", "no");
    leave();
    EXPECT_EQ(text("txtSiNo1"), "NO");
    type("txtSiNo1", "");
    leave();
    EXPECT_EQ(text("txtSiNo1"), "SI");
}

TEST_F(MemberTest, AListOfPlacesThatCannotBeReadHasNoPlace) {
    MemoryDatabase none{{}};
    screen = std::make_unique<frmSeggi>(Workplace{files, desktop, staging, printing, screens, none});
    desktop.open(screen->form);
    chooseElection();
    click("cmdAttiva");
    box("Errore", "Comune non in elenco");
    type("txtDove1", "Roma");
    leave();
    type("txtDove1", "");
    leave();
    EXPECT_EQ(focused(), "Option1");
    desktop.shut(screen->form);
    screen.reset();
}

TEST_F(MemberTest, ATariffFileThatCannotBeReadIsTold) {
    begin();
    files.makeReadOnly("Params/Tarseg.dat");
    box("Errore", "Il file Params/Tarseg.dat non può essere letto o scritto: controllare che non sia di sola lettura.");
    enter("txtOnor1");
    EXPECT_EQ(text("txtOnor1"), "");
}

}  // namespace
}  // namespace vorbano::test
