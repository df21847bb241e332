// Choice of the election and search: what is offered, what is told, what is left on the disk.

#include "cancella_desk.h"

namespace vorbano::test {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

constexpr const char* commands[] = {"cmdAnnulla", "cmdEsegui", "Check1", "Check2", "Check3", "Check4",
                                    "Check5",     "Check6",    "Check7", "Check8", "Check9"};

class CancellaRicerca : public CancellaTest {
  protected:
    void layThreeElections() {
        layFile(files, "Seggi.vbn", 216, "Elezioni/Comunali/14-05-23");
        layFile(files, "Seggi.vbn", 216);
        layFile(files, "Rendi.vbn", 152, "Elezioni/Europee/26-05-19");
    }
    void expectNothingSearched() {
        for (const char* name : commands) EXPECT_FALSE(enabled(name)) << name;
        for (const char* name : {"Combo1", "Combo2", "cmdRicerca"}) EXPECT_TRUE(enabled(name)) << name;
        EXPECT_EQ(tickedBoxes(), "");
        EXPECT_EQ(text("Label2"), "0");
        EXPECT_EQ(text("lblElezione"), "");
        EXPECT_EQ(text("lblAvviso"), "");
    }
};

TEST_F(CancellaRicerca, OpensWithTheTypesOnTheDiskAndNothingToTick) {
    layThreeElections();
    layFile(files, "nota.txt", 3, "Elezioni");
    open();
    EXPECT_EQ(screen->form.caption(), "Vorbano - Cancellazione elezioni");
    EXPECT_THAT(items("Combo1"), ElementsAre("Comunali", "Europee"));
    EXPECT_THAT(items("Combo2"), IsEmpty());
    EXPECT_EQ(focused(), "Combo1");
    expectNothingSearched();
}

TEST_F(CancellaRicerca, SpeaksInTheWordsOfTheOffice) {
    open();
    for (const ToldGroup& group : toldGroups()) EXPECT_EQ(text(group.box), group.caption);
    EXPECT_EQ(text("cmdRicerca"), "Ricerca");
    EXPECT_EQ(text("cmdAnnulla"), "Annulla Ricerca");
    EXPECT_EQ(text("cmdEsegui"), "Esegui cancellazione");
    EXPECT_EQ(text("Check1"), "Spunta tutte le opzioni");
    EXPECT_EQ(text("Label1"), "Selezionando questa opzione vengono elininati tutti i file dell'elezione ricercata");
    EXPECT_EQ(text("mnuEsci"), "Esci");
}

TEST_F(CancellaRicerca, WithoutElectionsCannotGoOn) {
    open();
    EXPECT_THAT(items("Combo1"), IsEmpty());
    box("Errore", "Inserire la data dell'elezione");
    click("cmdRicerca");
    expectNothingSearched();
}

TEST_F(CancellaRicerca, OffersTheDatesOfTheTypeOnce) {
    layThreeElections();
    open();
    choose("Combo1", "Europee");
    choose("Combo1", "Europee");
    EXPECT_THAT(items("Combo2"), ElementsAre("09-06-24", "26-05-19"));
    choose("Combo1", "Comunali");
    EXPECT_THAT(items("Combo2"), ElementsAre("14-05-23"));
    EXPECT_EQ(text("Combo2"), "");
}

TEST_F(CancellaRicerca, AsksForTheDate) {
    layThreeElections();
    open();
    box("Errore", "Inserire la data dell'elezione");
    click("cmdRicerca");
    EXPECT_EQ(focused(), "Combo1");
    choose("Combo1", "Europee");
    box("Errore", "Inserire la data dell'elezione");
    click("cmdRicerca");
    EXPECT_EQ(focused(), "Combo2");
    expectNothingSearched();
    EXPECT_THAT(namesIn(files), ElementsAre("Seggi.vbn"));
}

TEST_F(CancellaRicerca, EnablesTheGroupsThatHaveRecords) {
    for (const ToldGroup& group : toldGroups()) {
        SCOPED_TRACE(group.box);
        EXPECT_TRUE(files.makeFolder("Elezioni").ok());
        deleteWhole(files, {"Europee", "09-06-24"});
        layGroup(files, group);
        search();
        EXPECT_EQ(enabledBoxes(), std::string(group.box).substr(5));
        EXPECT_TRUE(enabled("Check1"));
        EXPECT_TRUE(enabled("cmdAnnulla"));
        EXPECT_TRUE(enabled("cmdRicerca"));
        EXPECT_FALSE(enabled("cmdEsegui"));
        EXPECT_EQ(focused(), group.box);
        EXPECT_EQ(text("lblElezione"), "Elezione ricercata: Europee del 09-06-24");
    }
}

TEST_F(CancellaRicerca, OfAnElectionWithStationsOnlyLeavesTheOtherFilesEmpty) {
    layGroup(files, toldGroups()[2]);
    search();
    EXPECT_EQ(enabledBoxes(), "4");
    EXPECT_THAT(namesIn(files), ElementsAre("09-06-24.vbn", "Congs.vbn", "Rendi.vbn", "Seggi.vbn", "SegSuf.vbn",
                                            "SosSeggi.vbn", "Speciale.vbn", "SpecSufr.vbn", "Versum.vbn"));
    for (const char* name :
         {"09-06-24.vbn", "Congs.vbn", "Rendi.vbn", "SegSuf.vbn", "Speciale.vbn", "SpecSufr.vbn", "Versum.vbn"}) {
        EXPECT_EQ(contentOf(files, electionFolder + "/" + name), "") << name;
    }
}

TEST_F(CancellaRicerca, OfAFolderThatIsGoneSaysSo) {
    layThreeElections();
    open();
    identify();
    deleteWhole(files, {"Europee", "09-06-24"});
    box("Errore", "Data di Elezione inesistente!");
    click("cmdRicerca");
    EXPECT_EQ(focused(), "Combo2");
    expectNothingSearched();
    EXPECT_THAT(namesIn(files), ElementsAre("(no folder)"));
}

TEST_F(CancellaRicerca, OfAFileThatCannotBeReadTellsWhichAndOffersNothing) {
    layThreeElections();
    layFile(files, "Rendi.vbn", 152);
    files.makeReadOnly(electionFolder + "/Rendi.vbn");
    open();
    identify();
    box("Errore",
        "Il file Elezioni/Europee/09-06-24/Rendi.vbn non può essere letto o scritto: controllare che non sia di sola "
        "lettura.");
    click("cmdRicerca");
    expectNothingSearched();
}

TEST_F(CancellaRicerca, TakesAFolderThatIsNoDate) {
    layFile(files, "prova.vbn", 301, "Elezioni/Europee/prova");
    open();
    choose("Combo1", "Europee");
    choose("Combo2", "prova");
    click("cmdRicerca");
    EXPECT_EQ(enabledBoxes(), "2");
}

TEST_F(CancellaRicerca, BelongsToTheElectionThatWasSearchedFor) {
    layThreeElections();
    search();
    EXPECT_EQ(enabledBoxes(), "4");
    choose("Combo2", "26-05-19");
    expectNothingSearched();
    click("cmdRicerca");
    EXPECT_EQ(enabledBoxes(), "9");
    choose("Combo1", "Comunali");
    expectNothingSearched();
}

TEST_F(CancellaRicerca, EsciClosesTheWindow) {
    open();
    menu("mnuEsci");
    EXPECT_FALSE(screen->form.isOpen());
}

}  // namespace
}  // namespace vorbano::test
