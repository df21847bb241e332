// Which election: what is refused, a new entry, an election in store.

#include "seggi_desk.h"

namespace vorbano::test {
namespace {

using ::testing::ElementsAre;

TEST_F(SeggiTest, OpensWithNothingButTheElectionOpen) {
    open();
    EXPECT_EQ(screen->form.caption(), "Vorbano   Componenti dei Seggi");
    EXPECT_EQ(screen->Combo1.items().size(), 11U);
    EXPECT_EQ(screen->Combo1.items()[5], "Politiche");
    EXPECT_EQ(screen->Combo1.items()[8], "Politiche_Comunali");
    for (const char* name : {"Combo1", "txtDataEle", "txtSeggio", "cmdAttiva", "cmdAnnulla"})
        EXPECT_TRUE(operable(name)) << name;
    for (const char* name : {"txtSonoSeggio", "txtComposto", "txtTariffe", "txtCompo1", "txtNome1", "txtIndi1",
                             "txtNasco1", "Check2", "txtDove1", "txtProvincia", "Option1", "Option2", "txtQualifica1",
                             "txtSiNo1", "txtCodFisc1", "txtOnor1", "Check1", "cmdSalva", "cmdInserisci"})
        EXPECT_FALSE(enabled(name)) << name;
    EXPECT_EQ(text("cmdAttiva"), "Attiva");
    EXPECT_EQ(text("cmdInserisci"), "Inserisci");
    EXPECT_FALSE(visible("lblSelezione"));
    EXPECT_THAT(screen->MSFlexGrid1.cells(), ElementsAre(ElementsAre("Nr", "Cognome", "Nome", "Indirizzo", "Componente",
                                                                     "S/N", "Codice Fiscale", "Importo")));
}

TEST_F(SeggiTest, TypeDateAndNumberAreNeeded) {
    open();
    box("Errore!", notEnough);
    click("cmdAttiva");
    EXPECT_EQ(focused(), "Combo1");

    choose("Combo1", "Europee");
    box("Errore!", notEnough);
    click("cmdAttiva");
    EXPECT_EQ(focused(), "Combo1");

    type("txtDataEle", "09-06-24");
    box("Errore!", notEnough);
    click("cmdAttiva");
    EXPECT_EQ(focused(), "Combo1");
    EXPECT_EQ(text("cmdAttiva"), "Attiva");
    EXPECT_FALSE(files.list("Elezioni").ok());
}

TEST_F(SeggiTest, TheNumberOfStationsIsAWholeNumberAboveNought) {
    open();
    for (const char* wrong : {"tre", "0", "-2", "40000"}) {
        chooseElection(wrong);
        box("Errore!", notEnough);
        click("cmdAttiva");
        EXPECT_EQ(focused(), "txtSeggio") << wrong;
        EXPECT_EQ(text("txtSeggio"), wrong);
        EXPECT_EQ(text("cmdAttiva"), "Attiva") << wrong;
    }
    // Half to even, and shown as it is stored.
    chooseElection("2,5");
    click("cmdAttiva");
    EXPECT_EQ(text("txtSeggio"), "2");
}

TEST_F(SeggiTest, TheDateIsOneOfTheCalendar) {
    open();
    choose("Combo1", "Europee");
    type("txtDataEle", "31-02-24");
    type("txtSeggio", "3");
    box("Errore", "Data di Elezione inesistente!");
    click("cmdAttiva");
    EXPECT_EQ(focused(), "txtDataEle");
    box("formato data", "Il formato ( . ) non è esatto. Inserire il simbolo  ( / )  oppure  ( - )  ");
    type("txtDataEle", "9.6");
}

TEST_F(SeggiTest, ANewEntryBeginsWithTheFirstStation) {
    open();
    chooseElection();
    EXPECT_EQ(text("txtDataEle"), "09-06-24");
    EXPECT_EQ(focused(), "cmdAttiva");
    click("cmdAttiva");
    EXPECT_EQ(text("cmdAttiva"), "ATTIVATO");
    EXPECT_FALSE(enabled("cmdAttiva"));
    for (const char* name : {"Combo1", "txtDataEle", "txtSeggio", "txtSonoSeggio"})
        EXPECT_FALSE(operable(name)) << name;
    EXPECT_EQ(text("txtSonoSeggio"), "1");
    EXPECT_EQ(text("Label3"), "1");
    EXPECT_EQ(text("Label64"), "1");
    EXPECT_EQ(text("Label63"), "");
    EXPECT_EQ(text("txtQualifica1"), "Presidente");
    EXPECT_EQ(text("txtSiNo1"), "SI");
    EXPECT_EQ(text("txtTariffe"), "");
    for (const char* name : {"txtComposto", "txtTariffe", "txtCompo1", "txtCodFisc1", "txtOnor1"})
        EXPECT_TRUE(operable(name)) << name;
    for (const char* name : {"txtQualifica1", "txtProvincia", "Check1", "cmdInserisci"})
        EXPECT_FALSE(operable(name)) << name;
    EXPECT_EQ(focused(), "txtComposto");
    // Nothing of the election is on the disk before its first member.
    EXPECT_TRUE(files.list("Elezioni").ok());
    EXPECT_FALSE(files.list("Elezioni/Europee").ok());
}

TEST_F(SeggiTest, AnEmptyFileIsANewEntry) {
    ASSERT_TRUE(lay(files, seggiPath, ""));
    begin();
    EXPECT_EQ(text("txtSonoSeggio"), "1");
    EXPECT_EQ(readyMember(), "1 Presidente");
}

TEST_F(SeggiTest, ACompleteElectionIsToldAndTheCommandEnds) {
    ASSERT_TRUE(lay(files, seggiPath, memberBytes({.station = 1, .size = 1, .stations = 1})));
    open();
    chooseElection("1");
    box("Inserimento", "Componenti dei seggi già inseriti");
    click("cmdAttiva");
    EXPECT_EQ(text("cmdAttiva"), "Attiva");
    EXPECT_TRUE(operable("txtSeggio"));
    EXPECT_FALSE(enabled("txtCompo1"));
}

TEST_F(SeggiTest, ANoToGoingOnChangesNothing) {
    const std::string stored = memberBytes({.size = 2});
    ASSERT_TRUE(lay(files, seggiPath, stored));
    open();
    resume(1, 1, "3", Answer::no);
    EXPECT_EQ(text("cmdAttiva"), "Attiva");
    EXPECT_TRUE(operable("txtSeggio"));
    EXPECT_FALSE(enabled("txtCompo1"));
    EXPECT_EQ(text("txtSonoSeggio"), "");
    EXPECT_EQ(toHex(file(seggiPath)), toHex(stored));
}

TEST_F(SeggiTest, MoreStationsAreTakenWithoutAFurtherQuestionAndOnlyNewRecordsCarryThem) {
    const std::string stored = memberBytes({.stations = 1});
    ASSERT_TRUE(lay(files, seggiPath, stored));
    open();
    resume(1, 1, "2");
    EXPECT_EQ(text("txtSonoSeggio"), "2");
    EXPECT_EQ(readyMember(), "1 Presidente");
    EXPECT_EQ(focused(), "txtComposto");
    beginStation("2");
    const MemberOnPaper president{.station = 2, .size = 2, .surname = "Verdi", .stations = 2};
    typeMember(president);
    click("cmdSalva");
    EXPECT_EQ(toHex(file(seggiPath)), toHex(stored + memberBytes(president)));
}

TEST_F(SeggiTest, ALargerNumberWhereTheStationIsNotFullGoesOnWithIt) {
    ASSERT_TRUE(lay(files, seggiPath, memberBytes({.size = 2, .stations = 1})));
    open();
    resume(1, 1, "5");
    EXPECT_EQ(text("txtSonoSeggio"), "1");
    EXPECT_EQ(readyMember(), "2 Segretario");
}

class ReducedSeggi : public SeggiTest {
  protected:
    std::string stored(int stations) {
        return memberBytes({.station = 1, .size = 2, .place = 1, .stations = stations}) +
               memberBytes({.station = 1,
                            .size = 2,
                            .place = 2,
                            .role = "Segretario",
                            .surname = "Verdi",
                            .fee = 11'950,
                            .stations = stations,
                            .tookPart = "NO"}) +
               memberBytes({.station = 2, .size = 1, .surname = "Neri", .stations = stations, .tariff = "Comunali"});
    }
    void answerReduction(std::string_view stations, int before, Answer answer) {
        open();
        chooseElection(stations);
        box("inserimento seggi", fewerStations(before), answer);
        click("cmdAttiva");
    }
};

TEST_F(ReducedSeggi, ANoDoesNothing) {
    ASSERT_TRUE(lay(files, seggiPath, stored(5)));
    answerReduction("3", 5, Answer::no);
    EXPECT_EQ(toHex(file(seggiPath)), toHex(stored(5)));
    EXPECT_EQ(text("cmdAttiva"), "Attiva");
    EXPECT_FALSE(enabled("txtCompo1"));
}

TEST_F(ReducedSeggi, AYesChangesTheNumberInEveryRecordAndNothingElseAndTheEntryGoesOn) {
    ASSERT_TRUE(lay(files, seggiPath, stored(5)));
    answerReduction("3", 5, Answer::yes);
    EXPECT_EQ(toHex(file(seggiPath)), toHex(stored(3)));
    EXPECT_EQ(file("Elezioni/Europee/09-06-24/SeggiRev.vbn"), noFile);
    EXPECT_EQ(text("cmdAttiva"), "ATTIVATO");
    EXPECT_EQ(text("txtSonoSeggio"), "3");
    EXPECT_EQ(readyMember(), "1 Presidente");
    EXPECT_EQ(text("Label64"), "1");
    EXPECT_EQ(text("txtTariffe"), "Europee");
    EXPECT_TRUE(operable("txtTariffe"));
    EXPECT_TRUE(operable("txtCompo1"));
    EXPECT_TRUE(enabled("cmdSalva"));
    EXPECT_EQ(focused(), "txtComposto");
}

TEST_F(ReducedSeggi, StationsBeyondTheNewNumberStay) {
    ASSERT_TRUE(lay(files, seggiPath, stored(5)));
    answerReduction("1", 5, Answer::yes);
    EXPECT_EQ(toHex(file(seggiPath)), toHex(stored(1)));
    EXPECT_EQ(text("txtSonoSeggio"), "3");
}

TEST_F(ReducedSeggi, AStationThatIsNotFullIsFilledFirst) {
    const auto half = [](int stations) { return memberBytes({.size = 3, .stations = stations}); };
    ASSERT_TRUE(lay(files, seggiPath, half(5)));
    answerReduction("2", 5, Answer::yes);
    EXPECT_EQ(toHex(file(seggiPath)), toHex(half(2)));
    EXPECT_EQ(text("txtSonoSeggio"), "1");
    EXPECT_EQ(text("txtComposto"), "3");
    EXPECT_EQ(readyMember(), "2 Segretario");
}

}  // namespace
}  // namespace vorbano::test
