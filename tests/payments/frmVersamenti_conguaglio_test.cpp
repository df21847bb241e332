// The payments of the adjustment: the way in and out, what is shown, documents and amounts of its own. Whatever is done
// there, the payments of the liquidation stay as they are.

#include "versamenti_desk.h"

namespace vorbano::test {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

const std::vector<const char*> amountFields = {"txtContrDip", "txtFonCred", "txtCoprEnte", "txtIrapEnte",
                                               "txtIrpef",    "txtInail",   "txtInps",     "Label4",
                                               "Label3",      "Label7",     "Label8"};
const std::vector<const char*> shownOfAdjustment = {"4,44", "0,15", "16,16", "6,06",  "321,00", "6,50",
                                                    "4,10", "8,9%", "0,4%",  "23,9%", "8,6%"};
const std::vector<const char*> shownOfLiquidation = {"19,03", "0,75",  "150,15", "60,07", "1.234,56", "78,90",
                                                     "0,00",  "8,85%", "0,3%",   "24,2%", "8,5%"};

class VersamentiConguaglio : public VersamentiTest {
  protected:
    void expectAmounts(const std::vector<const char*>& expected) {
        for (std::size_t at = 0; at < amountFields.size(); ++at)
            EXPECT_EQ(text(amountFields[at]), expected[at]) << amountFields[at];
    }
    void expectAdjustment() {
        EXPECT_TRUE(visible("Label21"));
        EXPECT_EQ(text("cmdConguaglio"), "Annulla Conguaglio");
        expectAmounts(shownOfAdjustment);
    }
    void expectLiquidation() {
        EXPECT_FALSE(visible("Label21"));
        EXPECT_EQ(text("cmdConguaglio"), "Conguaglio");
        expectAmounts(shownOfLiquidation);
    }
};

TEST_F(VersamentiConguaglio, IsNotOfferedWithoutAnAdjustment) {
    search({mandate1});
    EXPECT_FALSE(operable("cmdConguaglio"));
    EXPECT_FALSE(visible("Label21"));
    EXPECT_EQ(stored("Congs.vbn"), "") << "opening creates the file";
    EXPECT_EQ(stored("Versumc.vbn"), noFile);
}

TEST_F(VersamentiConguaglio, IsOfferedByTheSearchOfAnElectionThatHasOne) {
    layAdjustment(files);
    layPayments(files, {mandate1});
    open();
    EXPECT_FALSE(operable("cmdConguaglio"));
    identify();
    EXPECT_FALSE(operable("cmdConguaglio"));
    click("cmdAnteprima");
    EXPECT_TRUE(operable("cmdConguaglio"));
    expectLiquidation();
}

TEST_F(VersamentiConguaglio, ShowsWhatTheAdjustmentAddsAndTheRatesOfItsLastRecord) {
    searchAdjustment();
    expectAdjustment();
    EXPECT_EQ(text("Label21"), "IMPORTI RITENUTE CONGUAGLIO");
    for (const char* name : {"cmdConguaglio", "cmdRiavvia", "cmdInserire", "cmdVisualizza", "cmdVideo", "cmdStampa",
                             "cmdSoloElenco", "Check15"})
        EXPECT_TRUE(operable(name)) << name;
    for (const char* name : {"cmdAnteprima", "Combo1", "Combo2", "txtDataEle", "Check16"})
        EXPECT_FALSE(operable(name)) << name;
    EXPECT_EQ(focused(), "cmdInserire");
    EXPECT_EQ(stored("Versumc.vbn"), "") << "opening creates the file";
    expectLiquidationUntouched();
}

TEST_F(VersamentiConguaglio, ASkippedEmployeeAddsNothingAndTheLastRecordHasTheRates) {
    layAdjustment(files);
    ASSERT_TRUE(lay(files, paymentPath("Congs.vbn"),
                    laidAdjustment(1, {{2390, 860, 890, 40}, {1111, 404, 333, 22}}) + nuls(145) +
                        laidAdjustment(3, {{100, 200, 300, 410}, {1, 2, 3, 4}})));
    search({mandate1});
    click("cmdConguaglio");
    EXPECT_EQ(text("txtCoprEnte"), "11,12");
    EXPECT_EQ(text("txtIrapEnte"), "4,06");
    EXPECT_EQ(text("txtContrDip"), "3,36");
    EXPECT_EQ(text("txtFonCred"), "0,26");
    EXPECT_EQ(text("Label7"), "1%");
    EXPECT_EQ(text("Label8"), "2%");
    EXPECT_EQ(text("Label4"), "3%");
    EXPECT_EQ(text("Label3"), "4,1%");
}

TEST_F(VersamentiConguaglio, ADifferenceInFavourOfTheOfficeIsNegative) {
    layAdjustment(files);
    ASSERT_TRUE(
        lay(files, paymentPath("Congs.vbn"), laidAdjustment(1, {{2390, 860, 890, 40}, {-123456, -404, -333, -22}})));
    search({mandate1});
    click("cmdConguaglio");
    EXPECT_EQ(text("txtCoprEnte"), "-1.234,56");
    click("cmdInserire");
    tick("Check3");
    tick("Check7");
    type("txtDataf24", "16/10/24");
    tick("Check8");
    click("cmdSalva");
    expectDocuments({{"Copren", "Mod. F24", "23,9%", -123456, 0, "16-10-24", inOriginal}}, versumcFile);
}

TEST_F(VersamentiConguaglio, ItsDocumentsAreNeverBroughtIntoLine) {
    LaidDocument other = adjusted1;
    other.cents = 1;
    LaidDocument otherIrpef = adjustedIrpef;
    otherIrpef.cents = 2;
    const std::vector<LaidDocument> documents = {other, adjusted2, otherIrpef, adjustedInps};
    searchAdjustment(documents);
    expectDocuments(documents, versumcFile);
    click("cmdConguaglio");
    expectDocuments(documents, versumcFile);
    click("cmdConguaglio");
    click("cmdRiavvia");
    identify();
    click("cmdAnteprima");
    expectDocuments(documents, versumcFile);
    expectLiquidationUntouched();
}

TEST_F(VersamentiConguaglio, TheWayBackSearchesTheLiquidationAgain) {
    searchAdjustment({adjusted1, adjusted2});
    EXPECT_TRUE(operable("Check16"));
    tick("Check16");
    LaidDocument other = mandate2;
    other.cents = 9;
    ASSERT_TRUE(lay(files, paymentPath("Versum.vbn"), laidDocuments({mandate1, other})));
    click("cmdConguaglio");
    expectLiquidation();
    expectDocuments({mandate1, mandate2});
    expectDocuments({adjusted1, adjusted2}, versumcFile);
    EXPECT_FALSE(operable("cmdAnteprima"));
    EXPECT_TRUE(operable("cmdConguaglio"));
    EXPECT_EQ(focused(), "cmdInserire");
    click("cmdConguaglio");
    expectAdjustment();
}

TEST_F(VersamentiConguaglio, TheListOfWhatWasEnteredIsOfferedByTheDocumentsOnShow) {
    searchAdjustment({adjusted1}, {});
    EXPECT_TRUE(operable("Check16"));
    tick("Check16");
    click("cmdConguaglio");
    EXPECT_FALSE(operable("Check16"));
    EXPECT_FALSE(ticked("Check16"));
}

TEST_F(VersamentiConguaglio, GivingTheElectionUpLeavesItFirst) {
    searchAdjustment({adjusted1});
    click("cmdRiavvia");
    EXPECT_FALSE(visible("Label21"));
    EXPECT_EQ(text("cmdConguaglio"), "Conguaglio");
    EXPECT_FALSE(operable("cmdConguaglio"));
    EXPECT_TRUE(operable("cmdAnteprima"));
    for (const char* name : amountFields) EXPECT_EQ(text(name), "") << name;
    identify();
    click("cmdAnteprima");
    expectLiquidation();
    expectDocuments({adjusted1}, versumcFile);
}

TEST_F(VersamentiConguaglio, AnotherElectionWithoutOneDoesNotOfferIt) {
    layAdjustment(files);
    layPayments(files);
    ASSERT_TRUE(lay(files, "Elezioni/Europee/26-05-19/26-05-19.vbn", laidEmployees()));
    open();
    identify();
    click("cmdAnteprima");
    click("cmdConguaglio");
    click("cmdRiavvia");
    choose("Combo1", "Europee");
    choose("Combo2", "26-05-19");
    click("cmdAnteprima");
    EXPECT_FALSE(operable("cmdConguaglio"));
}

TEST_F(VersamentiConguaglio, NoPanelCanBeLeftByIt) {
    for (const bool adjusting : {false, true}) {
        SCOPED_TRACE(adjusting);
        layAdjustment(files, {adjusted1});
        search({mandate1});
        if (adjusting) click("cmdConguaglio");
        click("cmdInserire");
        EXPECT_FALSE(operable("cmdConguaglio"));
        click("cmdAnnulla2");
        EXPECT_TRUE(operable("cmdConguaglio"));
        click("cmdVisualizza");
        EXPECT_FALSE(operable("cmdConguaglio"));
        pickDocument(1);
        EXPECT_FALSE(operable("cmdConguaglio"));
        click("cmdModifica");
        EXPECT_FALSE(operable("cmdConguaglio"));
        click("cmdAnnulla3");
        EXPECT_TRUE(operable("cmdConguaglio"));
        EXPECT_EQ(visible("Label21"), adjusting);
    }
}

TEST_F(VersamentiConguaglio, TypedAmountsAreStoredForTheAdjustmentAlone) {
    layAdjustment(files);
    ASSERT_TRUE(lay(files, paymentPath("Meirinc.vbn"), ""));
    search({mandate1});
    click("cmdConguaglio");
    for (const char* name : {"txtIrpef", "txtInail", "txtInps"}) EXPECT_EQ(text(name), "0,00") << name;
    EXPECT_EQ(stored("Meirinc.vbn"), "");
    click("cmdInserire");
    box("IRPEF", "Inserire l'mporto dell'IRPEF");
    tick("Check5");
    tick("Check13");
    type("txtIrpef", "1234,567");
    click("cmdSalvaII");
    EXPECT_EQ(text("txtIrpef"), "1.234,57");
    EXPECT_FALSE(operable("txtIrpef"));
    EXPECT_EQ(toHex(stored("Meirinc.vbn")), toHex(laidMeirinc(123457, 0, 0, nuls(8), nuls(8))));
    box("INAIL", "Inserire l'mporto dell'INAIL");
    tick("Check11");
    tick("Check14");
    type("txtInail", "7,5");
    click("cmdSalvaII");
    box("INAIL", "Inserire l'mporto dell'INPS");
    tick("Check17");
    tick("Check18");
    type("txtInps", "8");
    click("cmdSalvaII");
    EXPECT_EQ(toHex(stored("Meirinc.vbn")), toHex(laidMeirinc(123457, 750, 800, nuls(8), nuls(8))));
    expectLiquidationUntouched();
    click("cmdAnnulla2");
    click("cmdConguaglio");
    expectLiquidation();
    click("cmdConguaglio");
    EXPECT_EQ(text("txtIrpef"), "1.234,57");
}

TEST_F(VersamentiConguaglio, TypedAmountsLeaveTheDatesAndTheDatesLeaveTheAmounts) {
    layAdjustment(files);
    ASSERT_TRUE(lay(files, paymentPath("Meirinc.vbn"), laidMeirinc(32100, 650, 410, "16-11-24", "17-11-24")));
    search({mandate1});
    click("cmdConguaglio");
    click("cmdInserire");
    tick("Check17");
    tick("Check18");
    type("txtInps", "5");
    click("cmdSalvaII");
    EXPECT_EQ(toHex(stored("Meirinc.vbn")), toHex(laidMeirinc(32100, 650, 500, "16-11-24", "17-11-24")));
    tick("Check7");
    EXPECT_EQ(text("txtDataf24"), "");
    tick("Check10");
    EXPECT_EQ(text("txtDataf24"), "17-11-24") << "not the date of the liquidation";
    tick("Check17", false);
    tick("Check11");
    tick("Check12");
    EXPECT_EQ(text("txtDatainail"), "16-11-24");
    expectLiquidationUntouched();
}

TEST_F(VersamentiConguaglio, ListsAndShowsItsOwnDocuments) {
    searchAdjustment({adjusted1, adjustedIrpef, adjustedInail, adjustedInps}, {mandate1, mandate2});
    click("cmdVisualizza");
    EXPECT_THAT(lines(),
                ElementsAre("Contributo Previdenziale a carico dipendente ", "   importo versato  4,44",
                            "Mandato di pagamento         n.    101  del 01-07-24  n.   1", "IRPEF",
                            "   importo versato  321,00", "Mod. F24         n.    0  del 16-10-24  n.   2", "INAIL",
                            "importo versato  6,50", "verrà versata l'imposta", "in data 16-11-24  n.   3", "INPS",
                            "importo versato  4,10", "verrà versata l'imposta", "Mod. F24 in data 17-11-24  n.   4"));
    pickDocument(3);
    EXPECT_TRUE(ticked("Check11") && ticked("Check12"));
    EXPECT_EQ(text("txtDatainail"), "16-11-24");
    click("cmdSuccessivo");
    EXPECT_TRUE(ticked("Check17"));
    box("Versamenti", "Fine records. Premere il tasto 'Precedente'");
    click("cmdSuccessivo");
    EXPECT_EQ(text("Label15"), "4");
}

TEST_F(VersamentiConguaglio, WithoutDocumentsOfItsOwnThePanelStaysEmpty) {
    searchAdjustment({}, {mandate1});
    click("cmdVisualizza");
    EXPECT_THAT(lines(), IsEmpty());
    EXPECT_TRUE(operable("cmdInserire"));
}

TEST_F(VersamentiConguaglio, AChangeIsStoredInItsPlaceAmongItsOwn) {
    searchAdjustment({adjusted1, adjustedInail, adjusted2});
    click("cmdVisualizza");
    pickDocument(3);
    click("cmdModifica");
    type("txtMnumero", "303");
    type("txtMdata", "12/10/24");
    click("cmdSalva");
    LaidDocument changed = adjusted2;
    changed.number = 303;
    changed.date = "12-10-24";
    expectDocuments({adjusted1, adjustedInail, changed}, versumcFile);
    click("cmdTermina");
    pickDocument(2);
    click("cmdModifica");
    type("txtDatainail", "18/11/24");
    click("cmdSalva");
    LaidDocument later = adjustedInail;
    later.date = "18-11-24";
    expectDocuments({adjusted1, later, changed}, versumcFile);
    EXPECT_EQ(toHex(stored("Meirinc.vbn")), toHex(laidMeirinc(32100, 650, 410, "18-11-24")));
    expectLiquidationUntouched();
}

TEST_F(VersamentiConguaglio, ARemovalTakesNoDocumentOfTheLiquidationWithIt) {
    // The liquidation has a document of the same voice, kind, number and date.
    searchAdjustment({adjusted1, adjusted2, adjusted1});
    click("cmdVisualizza");
    pickDocument(3);
    box("Elimina Documento", "Siete sicuri di voler eliminare il documento selezionato?", Answer::no);
    click("cmdElimina");
    expectDocuments({adjusted1, adjusted2, adjusted1}, versumcFile);
    box("Elimina Documento", "Siete sicuri di voler eliminare il documento selezionato?", Answer::yes);
    box("Elimina", "Documento Eliminato");
    click("cmdElimina");
    expectDocuments({adjusted2}, versumcFile);
    expectLiquidationUntouched();
    pickDocument(1);
    box("Elimina Documento", "Siete sicuri di voler eliminare il documento selezionato?", Answer::yes);
    box("Elimina", "Documento Eliminato");
    click("cmdElimina");
    expectDocuments({}, versumcFile);
    expectLiquidationUntouched();
    EXPECT_TRUE(operable("cmdInserire"));
    EXPECT_FALSE(operable("Check16"));
    expectAdjustment();
}

}  // namespace
}  // namespace vorbano::test
