// The panel of the stored documents.

#include "versamenti_desk.h"

namespace vorbano::test {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

constexpr const char* sure = "Siete sicuri di voler eliminare il documento selezionato?";

class VersamentiElenco : public VersamentiTest {
  protected:
    void browse(const std::vector<LaidDocument>& documents) {
        search(documents);
        click("cmdVisualizza");
    }
};

TEST_F(VersamentiElenco, WithoutDocumentsThePanelStaysEmpty) {
    search();
    click("cmdVisualizza");
    EXPECT_THAT(lines(), IsEmpty());
    EXPECT_TRUE(visible("List1"));
    for (const char* name : {"cmdInserire", "cmdVisualizza", "cmdRiavvia"}) EXPECT_TRUE(operable(name)) << name;
    EXPECT_FALSE(operable("cmdAnnulla3"));
}

TEST_F(VersamentiElenco, HasABlockForEachVoiceInItsOrder) {
    const LaidDocument receipt{"Copren", "Quietanza", "24,2%", 15015, 33, "09-07-24", inTwo};
    const LaidDocument fund{"Cofocrdi", "Mod. F24", "0,3%", 75, 0, "05-07-24", inTwo};
    const LaidDocument irap{"Coirap",   "Mandato di pagamento",      "8,5%", 6007, 8,
                            "05-07-24", "in duplice copia autentica"};
    browse({inpsForm, inailPaid, irpefForm, irap, receipt, fund, mandate1, mandate2});
    EXPECT_THAT(
        lines(),
        ElementsAre("Contributo Previdenziale a carico dipendente ", "   importo versato  19,03",
                    "Mandato di pagamento         n.    101  del 01-07-24  n.   7",
                    "Mandato di pagamento         n.    102  del 02-07-24  n.   8",
                    "Fondo Credito a carico dipendente  ", "   importo versato  0,75",
                    "Mod. F24         n.    0  del 05-07-24  n.   6", "Contributo Previdenziale a carico Ente  ",
                    "   importo versato  150,15", "Quietanza         n.    33  del 09-07-24  n.   5",
                    "IRAP a carico Ente  ", "   importo versato  60,07",
                    "Mandato di pagamento         n.    8  del 05-07-24  n.   4", "IRPEF",
                    "   importo versato  1.234,56", "Mod. F24         n.    0  del 16-07-24  n.   3", "INAIL",
                    "importo versato  78,90", "verrà versata l'imposta", "in data 16-08-24  n.   2", "INPS",
                    "importo versato  45,00", "verrà versata l'imposta", "Mod. F24 in data 17-08-24  n.   1"));
    for (const char* name : {"cmdInserire", "cmdStampa", "cmdVideo", "cmdVisualizza", "cmdModifica", "cmdElimina",
                             "cmdPrecedente", "cmdSuccessivo", "cmdTermina"})
        EXPECT_FALSE(operable(name)) << name;
    EXPECT_TRUE(operable("cmdAnnulla3"));
}

TEST_F(VersamentiElenco, OnlyLinesOfDocumentsCanBeClicked) {
    browse({mandate1, inailPaid});
    for (const int line : {0, 1, 3, 4, 5}) {
        chooseIndex("List1", line);
        EXPECT_TRUE(visible("List1")) << line;
    }
    chooseIndex("List1", 6);
    EXPECT_FALSE(visible("List1"));
}

TEST_F(VersamentiElenco, ALineShowsItsDocument) {
    browse({mandate1, irpefForm, inailPaid, inpsForm});
    pickDocument(1);
    EXPECT_FALSE(visible("List1"));
    EXPECT_EQ(text("Label17"), "1");
    EXPECT_EQ(text("Label15"), "1");
    EXPECT_TRUE(ticked("Check1") && ticked("Check6") && ticked("Check8"));
    EXPECT_FALSE(ticked("Check7") || ticked("Check9") || ticked("Check2"));
    EXPECT_EQ(text("txtMnumero"), "101");
    EXPECT_EQ(text("txtMdata"), "01-07-24");
    EXPECT_FALSE(operable("txtMnumero"));
    EXPECT_TRUE(operable("cmdModifica"));
    EXPECT_TRUE(operable("cmdElimina"));
    EXPECT_FALSE(operable("cmdPrecedente"));
    EXPECT_FALSE(operable("cmdSalva"));
    for (const char* name : {"Check1", "Check2", "Check6", "Check17"}) EXPECT_FALSE(operable(name)) << name;

    click("cmdSuccessivo");
    EXPECT_EQ(text("Label15"), "2");
    EXPECT_TRUE(ticked("Check5") && ticked("Check7") && ticked("Check9"));
    EXPECT_FALSE(ticked("Check1") || ticked("Check6") || ticked("Check8"));
    EXPECT_EQ(text("txtDataf24"), "16-07-24");
    EXPECT_EQ(text("txtMnumero"), "");
    click("cmdSuccessivo");
    EXPECT_TRUE(ticked("Check11") && ticked("Check12"));
    EXPECT_EQ(text("txtDatainail"), "16-08-24");
    click("cmdSuccessivo");
    EXPECT_TRUE(ticked("Check17") && ticked("Check7"));
    EXPECT_EQ(text("txtDataf24"), "17-08-24");
    box("Versamenti", "Fine records. Premere il tasto 'Precedente'");
    click("cmdSuccessivo");
    EXPECT_EQ(text("Label15"), "4");
    EXPECT_TRUE(ticked("Check17"));
    click("cmdPrecedente");
    EXPECT_EQ(text("Label15"), "3");
    click("cmdTermina");
    EXPECT_TRUE(visible("List1"));
    EXPECT_FALSE(ticked("Check11"));
    pickDocument(3);
    EXPECT_EQ(text("Label15"), "3");
    click("cmdAnnulla3");
    EXPECT_TRUE(operable("cmdInserire"));
    EXPECT_FALSE(ticked("Check11"));
    EXPECT_THAT(lines(), IsEmpty());
}

TEST_F(VersamentiElenco, AReceiptOfEarlierDataIsOnlyShown) {
    browse({{"Copren", "Quietanza", "24,2%", 15015, 33, "09-07-24", inTwo}});
    EXPECT_FALSE(visible("txtQnumero"));
    pickDocument(1);
    EXPECT_TRUE(visible("txtQnumero"));
    EXPECT_EQ(text("txtQnumero"), "33");
    EXPECT_EQ(text("txtQdata"), "09-07-24");
    EXPECT_FALSE(operable("txtQnumero"));
    EXPECT_FALSE(operable("cmdModifica"));
    EXPECT_TRUE(operable("cmdElimina"));
    click("cmdTermina");
    EXPECT_FALSE(visible("txtQnumero"));
}

TEST_F(VersamentiElenco, AChangeIsStoredInItsPlace) {
    browse({mandate1, mandate2, irpefForm});
    pickDocument(2);
    click("cmdModifica");
    EXPECT_TRUE(operable("txtMnumero"));
    EXPECT_FALSE(operable("txtDataf24"));
    EXPECT_TRUE(operable("cmdSalva"));
    EXPECT_EQ(focused(), "txtMnumero");
    for (const char* name : {"cmdPrecedente", "cmdSuccessivo", "cmdElimina", "cmdInserire"})
        EXPECT_FALSE(operable(name)) << name;
    type("txtMdata", "");
    box("Salva", "Dati insufficienti per il mandato di pagamento");
    click("cmdSalva");
    type("txtMnumero", "202");
    type("txtMdata", "12/7/24");
    click("cmdSalva");
    LaidDocument changed = mandate2;
    changed.number = 202;
    changed.date = "12-07-24";
    expectDocuments({mandate1, changed, irpefForm});
    EXPECT_FALSE(operable("txtMnumero"));
    EXPECT_FALSE(operable("cmdSalva"));
    EXPECT_FALSE(operable("cmdAggiungi"));
    EXPECT_EQ(text("Label15"), "2");
    click("cmdTermina");
    EXPECT_EQ(lines()[3], "Mandato di pagamento         n.    202  del 12-07-24  n.   2");
}

TEST_F(VersamentiElenco, AChangeOfInailMovesTheDateOfMeirin) {
    browse({inailPaid});
    pickDocument(1);
    click("cmdModifica");
    type("txtDatainail", "18/08/24");
    click("cmdSalva");
    LaidDocument changed = inailPaid;
    changed.date = "18-08-24";
    expectDocuments({changed});
    EXPECT_EQ(toHex(stored("Meirin.vbn")), toHex(laidMeirin(123456, 7890, 0, "18-08-24")));
}

TEST_F(VersamentiElenco, AChangeGivenUpStoresNothing) {
    browse({mandate1});
    pickDocument(1);
    click("cmdModifica");
    type("txtMnumero", "999");
    click("cmdTermina");
    pickDocument(1);
    EXPECT_EQ(text("txtMnumero"), "101");
    expectDocuments({mandate1});
}

TEST_F(VersamentiElenco, TheRemovalIsAskedAndTakesEqualDocumentsWithIt) {
    LaidDocument otherVoice = mandate1;
    otherVoice.mother = "Cofocrdi";
    otherVoice.cents = 75;
    LaidDocument otherDate = mandate1;
    otherDate.date = "11-07-24";
    LaidDocument otherKind = mandate1;
    otherKind.son = "Mod. F24";
    LaidDocument otherCopies = mandate1;  // equal, as copies are no part of what tells documents apart
    otherCopies.copies = inTwo;
    browse({mandate1, otherVoice, mandate2, otherCopies, otherDate, otherKind, mandate1});
    pickDocument(1);
    box("Elimina Documento", sure, Answer::no);
    click("cmdElimina");
    EXPECT_EQ(text("Label15"), "1");
    box("Elimina Documento", sure, Answer::yes);
    box("Elimina", "Documento Eliminato");
    click("cmdElimina");
    expectDocuments({otherVoice, mandate2, otherDate, otherKind});
    EXPECT_EQ(stored("Reversum.vbn"), noFile);
    EXPECT_TRUE(visible("List1"));
    EXPECT_EQ(lines().size(), 8U);
}

TEST_F(VersamentiElenco, AfterTheLastOneTheFileIsEmpty) {
    browse({inailPaid});
    ASSERT_TRUE(lay(files, paymentPath("Reversum.vbn"), std::string(95, 'x')));
    pickDocument(1);
    box("Elimina Documento", sure, Answer::yes);
    box("Elimina", "Documento Eliminato");
    click("cmdElimina");
    EXPECT_EQ(stored("Versum.vbn"), "");
    EXPECT_EQ(stored("Reversum.vbn"), noFile);
    EXPECT_TRUE(operable("cmdInserire"));
    EXPECT_FALSE(operable("Check16"));
}

}  // namespace
}  // namespace vorbano::test
