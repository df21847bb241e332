// Correction of a member of the station in the grid.

#include "seggi_desk.h"

namespace vorbano::test {
namespace {

using ::testing::Each;

const MemberOnPaper president{.size = 3};
const MemberOnPaper secretary{.size = 3,
                              .place = 2,
                              .role = "Segretario",
                              .surname = "Bianchi",
                              .name = "Anna",
                              .address = "Via Po, 2",
                              .code = "BNCNNA75C55F205P",
                              .fee = 10'050,
                              .tookPart = "NO"};

class CorrectionTest : public SeggiTest {
  protected:
    void openWithTwoOfThree() {
        ASSERT_TRUE(lay(files, seggiPath, memberBytes(president) + memberBytes(secretary)));
        open();
        resume(1, 2);
    }
};

TEST_F(CorrectionTest, TheBoxColoursTheGridAndShowsTheHint) {
    openWithTwoOfThree();
    EXPECT_FALSE(visible("lblSelezione"));
    tick("Check1");
    EXPECT_TRUE(visible("lblSelezione"));
    EXPECT_EQ(text("lblSelezione"), "SELEZIONARE IL COGNOME DEL COMPONENTE PER LE MODIFICHE");
    EXPECT_EQ(screen->MSFlexGrid1.tone(), Tone::active);
    EXPECT_EQ(focused(), "MSFlexGrid1");
    for (const char* name : {"txtCompo1", "txtComposto", "txtTariffe", "cmdSalva"}) EXPECT_FALSE(enabled(name)) << name;
    tick("Check1", false);
    EXPECT_FALSE(visible("lblSelezione"));
    EXPECT_EQ(screen->MSFlexGrid1.tone(), Tone::plain);
    EXPECT_EQ(readyMember(), "3 Scrutatore");
    EXPECT_EQ(focused(), "txtCompo1");
}

TEST_F(CorrectionTest, ARowIsOnlyCalledUpWhileTheBoxIsTicked) {
    openWithTwoOfThree();
    pick("MSFlexGrid1", 2, 1);
    EXPECT_EQ(text("txtCompo1"), "");
    EXPECT_EQ(readyMember(), "3 Scrutatore");
}

TEST_F(CorrectionTest, AMemberIsStoredInPlaceAndTheEntryGoesOn) {
    openWithTwoOfThree();
    tick("Check1");
    pick("MSFlexGrid1", 2, 5);
    EXPECT_EQ(text("txtCompo1"), "Bianchi");
    EXPECT_EQ(text("txtNome1"), "Anna");
    EXPECT_EQ(text("txtIndi1"), "Via Po, 2");
    EXPECT_EQ(text("txtSiNo1"), "NO");
    EXPECT_EQ(text("txtCodFisc1"), "BNCNNA75C55F205P");
    EXPECT_EQ(text("txtOnor1"), "100,50");
    EXPECT_EQ(text("txtTariffe"), "Europee");
    EXPECT_EQ(readyMember(), "2 Segretario");
    EXPECT_EQ(focused(), "txtCompo1");
    EXPECT_TRUE(enabled("cmdSalva"));
    type("txtIndi1", "Via Adda, 9");
    // Neither the code nor the fee changes by being passed.
    enter("txtCodFisc1");
    enter("txtOnor1");
    EXPECT_EQ(text("txtOnor1"), "100,50");
    click("cmdSalva");

    MemberOnPaper corrected = secretary;
    corrected.address = "Via Adda, 9";
    EXPECT_EQ(toHex(file(seggiPath)), toHex(memberBytes(president) + memberBytes(corrected)));
    EXPECT_FALSE(ticked("Check1"));
    EXPECT_EQ(screen->MSFlexGrid1.tone(), Tone::plain);
    EXPECT_EQ(cell("MSFlexGrid1", 2, 3), "Via Adda, 9");
    EXPECT_EQ(rows(), 3);
    EXPECT_THAT(row(3), Each(""));
    EXPECT_EQ(readyMember(), "3 Scrutatore");
    EXPECT_EQ(text("Label64"), "3");
    EXPECT_EQ(text("txtCompo1"), "");
    EXPECT_EQ(text("txtSiNo1"), "SI");
    EXPECT_EQ(focused(), "txtCompo1");
}

TEST_F(CorrectionTest, AllThatWasCorrectedIsStoredTheNumberOfStationsToo) {
    ASSERT_TRUE(lay(files, seggiPath, memberBytes(president) + memberBytes(secretary)));
    open();
    resume(1, 2, "4");
    tick("Check1");
    pick("MSFlexGrid1", 1, 1);
    type("txtCompo1", "Costa");
    type("txtNome1", "Marta");
    type("txtIndi1", "Via Adda, 9");
    type("txtNasco1", "11/11/1985");
    tick("Check2");
    type("txtDove1", "Francia");
    click("Option1");
    type("txtSiNo1", "no");
    enter("txtCodFisc1");
    EXPECT_EQ(text("txtCodFisc1"), "CSTMRT85S51Z110O");
    type("txtOnor1", "200");
    click("cmdSalva");
    EXPECT_EQ(toHex(file(seggiPath)), toHex(memberBytes({.size = 3,
                                                         .surname = "Costa",
                                                         .name = "Marta",
                                                         .address = "Via Adda, 9",
                                                         .code = "CSTMRT85S51Z110O",
                                                         .fee = 20'000,
                                                         .stations = 4,
                                                         .tookPart = "NO"}) +
                                            memberBytes(secretary)));
    EXPECT_FALSE(ticked("Check2"));
}

TEST_F(CorrectionTest, AnEmptyRowAndTheHeadingCallNobodyUp) {
    openWithTwoOfThree();
    tick("Check1");
    pick("MSFlexGrid1", 3, 1);
    pick("MSFlexGrid1", 0, 1);
    EXPECT_EQ(text("txtCompo1"), "");
    EXPECT_FALSE(enabled("txtCompo1"));
    EXPECT_FALSE(enabled("cmdSalva"));
}

TEST_F(CorrectionTest, WhatWasBeingEnteredComesBack) {
    openWithTwoOfThree();
    type("txtCompo1", "Gallo");
    type("txtNome1", "Pietro");
    type("txtIndi1", "Via Tevere, 3");
    type("txtNasco1", "20/05/1971");
    type("txtDove1", "Milano");
    click("Option2");
    type("txtSiNo1", "NO");
    enter("txtCodFisc1");
    type("txtOnor1", "77");
    enter("cmdSalva");
    tick("Check1");
    pick("MSFlexGrid1", 1, 1);
    type("txtCompo1", "Rossini");
    pick("MSFlexGrid1", 2, 1);
    tick("Check1", false);
    const std::pair<const char*, const char*> expected[] = {
        {"txtCompo1", "Gallo"},      {"txtNome1", "Pietro"}, {"txtIndi1", "Via Tevere, 3"},
        {"txtNasco1", "20/05/1971"}, {"txtDove1", "Milano"}, {"txtProvincia", "MI"},
        {"txtSiNo1", "NO"},          {"txtOnor1", "77,00"},  {"txtCodFisc1", "GLLPTR71E20F205Z"},
        {"txtCognome", "Gallo"},     {"Text3", "F205"},      {"txtSesso", "M"},
    };
    for (const auto& [name, words] : expected) EXPECT_EQ(text(name), words) << name;
    EXPECT_TRUE(screen->Option2.checked());
    EXPECT_EQ(toHex(file(seggiPath)), toHex(memberBytes(president) + memberBytes(secretary)));
    stationDone(1);
    click("cmdSalva");
    EXPECT_EQ(file(seggiPath).size(), 648U);
}

TEST_F(CorrectionTest, AMemberOfTheStationJustCompletedIsCorrected) {
    begin();
    beginStation("1");
    typeMember({});
    stationDone(1);
    click("cmdSalva");
    tick("Check1");
    EXPECT_FALSE(enabled("cmdInserisci"));
    pick("MSFlexGrid1", 1, 1);
    type("txtNome1", "Maria");
    click("cmdSalva");
    EXPECT_EQ(toHex(file(seggiPath)), toHex(memberBytes({.name = "Maria"})));
    EXPECT_EQ(focused(), "cmdInserisci");
    EXPECT_FALSE(enabled("txtCompo1"));
    EXPECT_FALSE(enabled("cmdSalva"));
    nextStation(2);
    // The station before still stands in the grid.
    tick("Check1");
    pick("MSFlexGrid1", 1, 1);
    EXPECT_EQ(text("txtNome1"), "Maria");
    type("txtNome1", "Marina");
    click("cmdSalva");
    EXPECT_EQ(toHex(file(seggiPath)), toHex(memberBytes({.name = "Marina"})));
    EXPECT_EQ(text("txtSonoSeggio"), "2");
    EXPECT_EQ(readyMember(), "1 Presidente");
    EXPECT_EQ(focused(), "txtComposto");
}

TEST_F(CorrectionTest, TheFirstStationAfterTakingUpAgainIsTheOneInTheGrid) {
    ASSERT_TRUE(lay(files, seggiPath, memberBytes({})));
    open();
    resume(1, 1);
    EXPECT_EQ(text("txtSonoSeggio"), "2");
    tick("Check1");
    pick("MSFlexGrid1", 1, 1);
    type("txtCompo1", "Rossini");
    click("cmdSalva");
    EXPECT_EQ(toHex(file(seggiPath)), toHex(memberBytes({.surname = "Rossini"})));
    EXPECT_EQ(text("txtSonoSeggio"), "2");
}

TEST_F(CorrectionTest, TheTariffOfTheStationToComeStaysOpen) {
    ASSERT_TRUE(lay(files, seggiPath, memberBytes({})));
    open();
    resume(1, 1);
    type("txtTariffe", "Comunali");
    tick("Check1");
    pick("MSFlexGrid1", 1, 1);
    EXPECT_EQ(text("txtTariffe"), "Europee");
    enter("txtOnor1");
    leave();
    click("cmdSalva");
    EXPECT_EQ(text("txtTariffe"), "Comunali");
    EXPECT_TRUE(operable("txtTariffe"));
    EXPECT_EQ(toHex(file(seggiPath)), toHex(memberBytes({})));
}

TEST_F(CorrectionTest, AStoredCodeThatIsTooShortSendsTheFeeBack) {
    ASSERT_TRUE(lay(files, seggiPath, memberBytes({.size = 3, .code = "RSSMRA80A01H501"})));
    open();
    resume(1, 1);
    tick("Check1");
    pick("MSFlexGrid1", 1, 1);
    EXPECT_TRUE(enabled("cmdSalva"));
    enter("txtOnor1");
    leave();
    EXPECT_EQ(focused(), "txtCodFisc1");
    EXPECT_FALSE(enabled("cmdSalva"));
    type("txtCodFisc1", "RSSMRA80A01H501U");
    leave();
    EXPECT_TRUE(enabled("cmdSalva"));
    click("cmdSalva");
    EXPECT_EQ(toHex(file(seggiPath)), toHex(memberBytes({.size = 3})));
}

TEST_F(CorrectionTest, ACorrectedMemberNeedsAFeeAndAWholeCode) {
    openWithTwoOfThree();
    tick("Check1");
    pick("MSFlexGrid1", 1, 1);
    type("txtOnor1", "");
    box("Inserire l'importo", "Tariffa componente Presidente");
    click("cmdSalva");
    EXPECT_EQ(text("txtOnor1"), "149,00");
    type("txtCodFisc1", "RSS");
    box("Errore!", codeTooShort);
    leave();
    EXPECT_FALSE(enabled("cmdSalva"));
    type("txtCodFisc1", "RSSMRA80A01H501U");
    leave();
    EXPECT_TRUE(enabled("cmdSalva"));
}

TEST_F(CorrectionTest, AnnullaEndsACorrection) {
    openWithTwoOfThree();
    tick("Check1");
    pick("MSFlexGrid1", 1, 1);
    click("cmdAnnulla");
    EXPECT_FALSE(ticked("Check1"));
    EXPECT_FALSE(visible("lblSelezione"));
    EXPECT_EQ(screen->MSFlexGrid1.tone(), Tone::plain);
    EXPECT_EQ(text("txtCompo1"), "");
    EXPECT_TRUE(operable("Combo1"));
}

}  // namespace
}  // namespace vorbano::test
