// The search, what it shows, how it brings the documents into line, and the way back.

#include "versamenti_desk.h"

namespace vorbano::test {
namespace {

using ::testing::ElementsAre;

const std::vector<std::string> commandsOfSearch = {"cmdRiavvia", "cmdInserire",   "cmdVisualizza", "cmdVideo",
                                                   "cmdStampa",  "cmdSoloElenco", "Check15"};

TEST_F(VersamentiTest, BeforeTheSearchOnlyAnElectionCanBeChosen) {
    layPayments(files);
    open();
    for (const char* name : {"Combo1", "Combo2", "txtDataEle", "cmdAnteprima"}) EXPECT_TRUE(operable(name)) << name;
    for (const std::string& name : commandsOfSearch) EXPECT_FALSE(operable(name)) << name;
    for (const char* name :
         {"Check1",        "Check6",        "Check8",      "Check12",     "Check13",    "Check16",     "txtMnumero",
          "txtIrpef",      "cmdSalva",      "cmdSalvaII",  "cmdAggiungi", "cmdNuovo",   "cmdAnnulla2", "List1",
          "cmdPrecedente", "cmdSuccessivo", "cmdModifica", "cmdElimina",  "cmdTermina", "cmdAnnulla3"})
        EXPECT_FALSE(operable(name)) << name;
    EXPECT_THAT(dynamic_cast<ComboBox&>(control("Combo1")).items(), ElementsAre("Europee"));
}

TEST_F(VersamentiTest, ShowsWhatIsDueAndTheRatesOfTheLastEmployee) {
    search();
    EXPECT_EQ(text("txtContrDip"), "19,03");
    EXPECT_EQ(text("txtFonCred"), "0,75");
    EXPECT_EQ(text("txtCoprEnte"), "150,15");
    EXPECT_EQ(text("txtIrapEnte"), "60,07");
    EXPECT_EQ(text("txtIrpef"), "1.234,56");
    EXPECT_EQ(text("txtInail"), "78,90");
    EXPECT_EQ(text("txtInps"), "0,00");
    EXPECT_EQ(text("Label4"), "8,85%");
    EXPECT_EQ(text("Label3"), "0,3%");
    EXPECT_EQ(text("Label7"), "24,2%");
    EXPECT_EQ(text("Label8"), "8,5%");
    EXPECT_EQ(text("lblComune"), "Pratofiorito");
    EXPECT_EQ(text("lblElezione"), "Europee");
    EXPECT_EQ(text("lbldata"), "del 9 Giugno 2024");
    for (const std::string& name : commandsOfSearch) EXPECT_TRUE(operable(name)) << name;
    for (const char* name : {"Combo1", "Combo2", "txtDataEle", "cmdAnteprima", "Check16", "txtIrpef"})
        EXPECT_FALSE(operable(name)) << name;
    EXPECT_EQ(stored("Versum.vbn"), "") << "opening creates the file";
}

TEST_F(VersamentiTest, OffersTheListOfWhatWasEnteredWhenThereIsAny) {
    search({mandate1});
    EXPECT_TRUE(operable("Check16"));
    expectDocuments({mandate1});
}

TEST_F(VersamentiTest, EmptyFieldsAreRefused) {
    layPayments(files);
    open();
    box("Errore", "dati insufficienti per la ricerca");
    click("cmdAnteprima");
    EXPECT_EQ(focused(), "Combo1");
    choose("Combo1", "Europee");
    box("Errore", "dati insufficienti per la ricerca");
    click("cmdAnteprima");
    EXPECT_FALSE(operable("cmdRiavvia"));
}

TEST_F(VersamentiTest, AnElectionThatIsNotThereOrHasNoEmployeesIsTold) {
    layPayments(files);
    ASSERT_TRUE(lay(files, "Elezioni/Europee/26-05-19/Rendi.vbn", ""));
    open();
    choose("Combo1", "Europee");
    for (const char* date : {"10/06/24", "26/05/19"}) {
        type("txtDataEle", date);
        box("Errore", "Data di Elezione inesistente!");
        click("cmdAnteprima");
        EXPECT_EQ(focused(), "txtDataEle");
        EXPECT_FALSE(operable("cmdRiavvia"));
    }
    box("formato data", "Il formato ( . ) non è esatto. Inserire il simbolo  ( / )  oppure  ( - )  ");
    type("txtDataEle", ".");
    EXPECT_EQ(stored("Versum.vbn"), noFile);
}

TEST_F(VersamentiTest, AJanuaryKeepsTheCaptionOfNoDate) {
    layPayments(files);
    ASSERT_TRUE(lay(files, "Elezioni/Europee/12-01-25/12-01-25.vbn", laidEmployees()));
    open();
    choose("Combo1", "Europee");
    choose("Combo2", "12-01-25");
    click("cmdAnteprima");
    EXPECT_EQ(text("lbldata"), "");
    EXPECT_EQ(text("txtIrpef"), "0,00");
}

TEST_F(VersamentiTest, KontrolSetsEveryDocumentOfAVoiceToTheWholeAmountButInps) {
    const auto with = [](LaidDocument document, int cents) {
        document.cents = cents;
        return document;
    };
    const LaidDocument fund{"Cofocrdi", "Mod. F24", "0,3%", 75, 0, "05-07-24", inTwo};
    const LaidDocument office{"Copren", "Mandato di pagamento", "24,2%", 15015, 7, "05-07-24", inTwo};
    const LaidDocument irap{"Coirap",   "Mandato di pagamento",      "8,5%", 6007, 8,
                            "05-07-24", "in duplice copia autentica"};
    const LaidDocument unknown{"Altro", "Mod. F24", "1%", 333, 9, "05-07-24", inTwo};
    search({with(mandate1, 1000), with(mandate2, 903), with(fund, 1), with(office, 2), with(irap, 3),
            with(irpefForm, 4), with(inailPaid, 5), with(inpsForm, 4500), unknown});
    expectDocuments({mandate1, mandate2, fund, office, irap, irpefForm, inailPaid, inpsForm, unknown});
    EXPECT_EQ(stored("Reversum.vbn"), noFile);
}

TEST_F(VersamentiTest, TheWayBackEmptiesEverything) {
    search({mandate1});
    tick("Check15");
    click("cmdRiavvia");
    for (const char* name :
         {"txtContrDip", "txtFonCred", "txtCoprEnte", "txtIrapEnte", "txtIrpef", "txtInail", "txtInps", "Label3",
          "Label4", "Label7", "Label8", "txtDataEle", "Combo1", "Combo2", "lblComune", "lblElezione", "lbldata"})
        EXPECT_EQ(text(name), "") << name;
    EXPECT_FALSE(ticked("Check15"));
    EXPECT_TRUE(operable("cmdAnteprima"));
    for (const std::string& name : commandsOfSearch) EXPECT_FALSE(operable(name)) << name;
    EXPECT_FALSE(operable("Check16"));
    EXPECT_EQ(focused(), "Combo1");
    identify();
    click("cmdAnteprima");
    EXPECT_EQ(text("txtContrDip"), "19,03");
}

TEST_F(VersamentiTest, AShortMeirinHasNoInps) {
    layPayments(files);
    ASSERT_TRUE(lay(files, paymentPath("Meirin.vbn"), laidMeirin(123456, 7890, 4500).substr(0, 62)));
    open();
    identify();
    click("cmdAnteprima");
    EXPECT_EQ(text("txtIrpef"), "1.234,56");
    EXPECT_EQ(text("txtInps"), "0,00");
}

}  // namespace
}  // namespace vorbano::test
