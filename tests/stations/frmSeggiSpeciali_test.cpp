// The special stations: only what differs from the normal ones is told here.

#include "seggi_desk.h"

namespace vorbano::test {
namespace {

using ::testing::Each;
using ::testing::ElementsAre;

/// Stations 4, 7 and 12 of two, one and three members.
const std::vector<MemberOnPaper>& threeStations() {
    static const std::vector<MemberOnPaper> all = {
        {.station = 4, .size = 2, .place = 1, .fee = 9'000},
        {.station = 4,
         .size = 2,
         .place = 2,
         .role = "Scrutatore",
         .surname = "Bianchi",
         .name = "Anna",
         .code = "BNCNNA75C55F205P",
         .fee = 6'100},
        {.station = 7, .size = 1, .place = 1, .surname = "Verdi", .fee = 9'000},
        {.station = 12, .size = 3, .place = 1, .surname = "Neri", .fee = 9'000},
        {.station = 12, .size = 3, .place = 2, .role = "Scrutatore", .surname = "Fo", .fee = 6'100},
        {.station = 12, .size = 3, .place = 3, .role = "Scrutatore", .surname = "Russo", .fee = 6'100},
    };
    return all;
}

std::string bytesOfFirst(std::size_t count) {
    std::string bytes;
    for (std::size_t at = 0; at < count; ++at) bytes += memberBytes(threeStations()[at]);
    return bytes;
}

class SpecialTest : public SeggiSpecialiTest {
  protected:
    void saveMember(std::size_t at) {
        const MemberOnPaper& member = threeStations()[at];
        if (member.place == 1) beginStation(std::to_string(member.station), std::to_string(member.size));
        EXPECT_EQ(readyMember(), std::to_string(member.place) + " " + std::string(member.role));
        typeMember(member);
        if (member.place == member.size && member.station == 12) {
            entryDone();
        } else if (member.place == member.size) {
            stationDone(member.station);
        }
        click("cmdSalva");
    }
};

TEST_F(SpecialTest, AsksBeforeItBeginsAndANoClosesIt) {
    openScreen(Answer::no);
    EXPECT_FALSE(screen->form.isOpen());
    openScreen();
    EXPECT_TRUE(screen->form.isOpen());
    EXPECT_EQ(screen->form.caption(), "Vorbano   Componenti dei Seggi Speciali");
    for (const char* name : {"txtSonoSeggio", "txtComposto", "Combo2", "txtCompo1", "Check1", "txtOnor1", "cmdSalva"})
        EXPECT_FALSE(enabled(name)) << name;
    EXPECT_EQ(screen->form.find("cmdInserisci"), nullptr);
    EXPECT_EQ(screen->form.find("cmdAnnulla"), nullptr);
    EXPECT_EQ(screen->form.find("Check2"), nullptr);
    EXPECT_EQ(text("Check1"), "Estero");
    EXPECT_EQ(control("Combo2").kind(), Kind::textBox);
    EXPECT_EQ(text("Command1"), "Esci");
    click("Command1");
    EXPECT_FALSE(screen->form.isOpen());
}

TEST_F(SpecialTest, TheQuestionComesOnceOnly) {
    openScreen();
    screen->form.activated.fire();
    EXPECT_TRUE(screen->form.isOpen());
}

TEST_F(SpecialTest, TypeDateAndNumberAreNeeded) {
    openScreen();
    box("Errore!", notEnough);
    click("cmdAttiva");
    EXPECT_EQ(focused(), "Combo1");
}

TEST_F(SpecialTest, ANewEntryAsksForTheNumberOfTheFirstStation) {
    begin();
    EXPECT_EQ(text("cmdAttiva"), "ATTIVO");
    EXPECT_FALSE(enabled("cmdAttiva"));
    EXPECT_EQ(readyMember(), "1 Presidente");
    EXPECT_EQ(text("Label64"), "1");
    EXPECT_EQ(text("Label62"), "1");
    EXPECT_EQ(text("txtSonoSeggio"), "");
    EXPECT_EQ(focused(), "txtSonoSeggio");
    for (const char* name : {"txtSonoSeggio", "txtComposto", "Combo2"}) EXPECT_TRUE(operable(name)) << name;
    leave();
    EXPECT_EQ(focused(), "txtComposto");
    leave();
    EXPECT_EQ(focused(), "Combo2");
    leave();
    EXPECT_EQ(focused(), "txtCompo1");
}

TEST_F(SpecialTest, TheNumberOfAStationIsAWholeNumberAboveNought) {
    begin();
    for (const char* wrong : {"A", "0", "-4", "99999"}) {
        box("Inserimento seggi", "Inserire il numero del seggio.");
        type("txtSonoSeggio", wrong);
        leave();
        EXPECT_EQ(focused(), "txtSonoSeggio");
    }
    type("txtSonoSeggio", "");
    type("txtComposto", "2");
    type("Combo2", "Europee");
    typeMember({});
    box("Inserimento seggi", "Inserire il numero del seggio.");
    click("cmdSalva");
    EXPECT_EQ(focused(), "txtSonoSeggio");
    EXPECT_EQ(file(specialePath), noFile);
    type("txtSonoSeggio", "4");
    leave();
    click("cmdSalva");
    EXPECT_EQ(toHex(file(specialePath)), toHex(memberBytes({.station = 4, .size = 2, .fee = 9'000})));
}

TEST_F(SpecialTest, StationsFourSevenAndTwelveFillTheFileAndEndTheEntry) {
    begin();
    for (std::size_t at = 0; at < 2; ++at) saveMember(at);
    EXPECT_EQ(text("Label62"), "2");
    EXPECT_EQ(text("Label63"), "Seggi inseriti:  n.4");
    EXPECT_EQ(text("txtSonoSeggio"), "");
    EXPECT_EQ(text("txtComposto"), "");
    EXPECT_EQ(text("txtCompo1"), "");
    EXPECT_EQ(focused(), "txtSonoSeggio");
    EXPECT_TRUE(operable("Combo2"));
    for (std::size_t at = 2; at < 6; ++at) saveMember(at);
    EXPECT_EQ(toHex(file(specialePath)), toHex(bytesOfFirst(6)));
    EXPECT_EQ(text("Label63"), "Seggi inseriti:  n.4 -  n.7 -  n.12");
    EXPECT_EQ(text("Label64"), "Inserimento Seggi Speciali Terminato");
    EXPECT_TRUE(visible("Label64"));
    EXPECT_EQ(cell("MSFlexGrid1", 3, 1), "Russo");
    for (const char* name :
         {"txtSonoSeggio", "txtComposto", "Combo2", "txtCompo1", "txtCodFisc1", "txtOnor1", "cmdSalva", "cmdAttiva"})
        EXPECT_FALSE(enabled(name)) << name;
    EXPECT_TRUE(enabled("Command1"));
}

TEST_F(SpecialTest, NumberSizeAndTariffStandAfterTheFirstMember) {
    begin();
    saveMember(0);
    for (const char* name : {"txtSonoSeggio", "txtComposto", "Combo2"}) EXPECT_FALSE(operable(name)) << name;
    EXPECT_THAT(row(1),
                ElementsAre("1", "Rossi", "Mario", "Via Roma, 1", "Presidente", "SI", "RSSMRA80A01H501U", "90,00"));
    EXPECT_THAT(row(2), Each(""));
    EXPECT_EQ(focused(), "txtCompo1");
}

TEST_F(SpecialTest, ATariffWithoutARowIsTold) {
    begin();
    beginStation("4", "2", "Politiche");
    box("Tariffe", "PoliticheTariffe non inserite");
    enter("txtOnor1");
    type("txtCodFisc1", "RSSMRA80A01H501U");
    type("Combo2", "Comunali");
    enter("txtOnor1");
    EXPECT_EQ(text("txtOnor1"), "80,00");
}

TEST_F(SpecialTest, WhoWasBornAbroadIsLookedForAmongTheStates) {
    begin();
    beginStation("4", "2");
    type("txtCompo1", "Costa");
    type("txtNome1", "Marta");
    type("txtNasco1", "11/11/1985");
    tick("Check1");
    box("Errore", "Stato non in elenco");
    type("txtDove1", "Roma");
    leave();
    type("txtDove1", "Francia");
    click("Option1");
    enter("txtCodFisc1");
    EXPECT_EQ(text("txtCodFisc1"), "CSTMRT85S51Z110O");
    EXPECT_EQ(text("txtProvincia"), "EE");
}

TEST_F(SpecialTest, AFeeAndAWholeCodeAreNeeded) {
    begin();
    beginStation("4", "2");
    type("txtCodFisc1", "RSS");
    box("Errore!", codeTooShort);
    leave();
    EXPECT_FALSE(enabled("cmdSalva"));
    type("txtCodFisc1", "RSSMRA80A01H501U");
    leave();
    type("txtOnor1", "");
    box("Inserire l'importo", "Tariffa componente Presidente");
    click("cmdSalva");
    EXPECT_EQ(text("txtOnor1"), "90,00");
}

/// The entry stops after each single member and is taken up again on a screen opened anew.
TEST_F(SpecialTest, TheEntryGoesOnAfterEveryMemberAsIfItHadNotStopped) {
    const int counts[] = {1, 1, 2, 3, 3};
    const std::string lists[] = {" n.4", " n.4", " n.4 -  n.7", " n.4 -  n.7 -  n.12", " n.4 -  n.7 -  n.12"};
    for (std::size_t stop = 1; stop < 6; ++stop) {
        SCOPED_TRACE(stop);
        ASSERT_TRUE(lay(files, specialePath, bytesOfFirst(stop)));
        const MemberOnPaper& last = threeStations()[stop - 1];
        const MemberOnPaper& next = threeStations()[stop];
        const int count = counts[stop - 1];
        const bool newStation = next.place == 1;
        openScreen();
        resume(specialAlreadyStored(count, lists[stop - 1], last.station, last.place));
        EXPECT_EQ(text("cmdAttiva"), "ATTIVO");
        EXPECT_EQ(text("Label63"), "Seggi inseriti: " + lists[stop - 1]);
        EXPECT_EQ(text("Label62"), std::to_string(newStation ? count + 1 : count));
        EXPECT_EQ(readyMember(), std::to_string(next.place) + " " + std::string(next.role));
        EXPECT_EQ(text("txtSonoSeggio"), newStation ? "" : std::to_string(next.station));
        EXPECT_EQ(text("txtComposto"), newStation ? "" : std::to_string(next.size));
        EXPECT_EQ(text("Combo2"), newStation ? "" : "Europee");
        EXPECT_EQ(focused(), newStation ? "txtSonoSeggio" : "txtCompo1");
        for (const char* name : {"txtSonoSeggio", "txtComposto", "Combo2"}) EXPECT_EQ(operable(name), newStation);
        EXPECT_EQ(rows(), last.size);
        EXPECT_EQ(cell("MSFlexGrid1", last.place, 1), last.surname);
        for (std::size_t at = stop; at < 6; ++at) saveMember(at);
        EXPECT_EQ(toHex(file(specialePath)), toHex(bytesOfFirst(6)));
        EXPECT_EQ(text("Label64"), "Inserimento Seggi Speciali Terminato");
    }
}

TEST_F(SpecialTest, ANoToGoingOnChangesNothing) {
    ASSERT_TRUE(lay(files, specialePath, bytesOfFirst(3)));
    openScreen();
    resume(specialAlreadyStored(2, " n.4 -  n.7", 7, 1), "3", Answer::no);
    EXPECT_EQ(text("cmdAttiva"), "Attiva");
    EXPECT_FALSE(enabled("txtCompo1"));
    EXPECT_EQ(toHex(file(specialePath)), toHex(bytesOfFirst(3)));
}

TEST_F(SpecialTest, ACompleteElectionIsToldByItsCount) {
    ASSERT_TRUE(lay(files, specialePath, bytesOfFirst(3)));
    openScreen();
    chooseElection("2");
    box("Inserimento", "Componenti dei seggi già inseriti");
    click("cmdAttiva");
    EXPECT_EQ(text("Label62"), "2");
    EXPECT_EQ(text("cmdAttiva"), "Attiva");
    // As many stations, but the last one is not full.
    ASSERT_TRUE(lay(files, specialePath, bytesOfFirst(4)));
    type("txtSeggio", "3");
    box("Inserimento Componenti Seggi", specialAlreadyStored(3, " n.4 -  n.7 -  n.12", 12, 1), Answer::no);
    click("cmdAttiva");
}

TEST_F(SpecialTest, FewerStationsEndTheCommandOnBothAnswers) {
    const auto stored = [](int stations) {
        std::string bytes;
        for (MemberOnPaper member : threeStations()) {
            member.stations = stations;
            bytes += memberBytes(member);
        }
        return bytes;
    };
    ASSERT_TRUE(lay(files, specialePath, stored(4)));
    openScreen();
    chooseElection("2");
    // Counted: three stand in the file, whatever number was to be entered.
    box("inserimento seggi", fewerStations(3), Answer::no);
    click("cmdAttiva");
    EXPECT_EQ(toHex(file(specialePath)), toHex(stored(4)));
    box("inserimento seggi", fewerStations(3), Answer::yes);
    click("cmdAttiva");
    EXPECT_EQ(toHex(file(specialePath)), toHex(stored(2)));
    EXPECT_EQ(text("cmdAttiva"), "Attiva");
    EXPECT_TRUE(enabled("cmdAttiva"));
    EXPECT_FALSE(enabled("txtCompo1"));
    EXPECT_EQ(file("Elezioni/Europee/09-06-24/SeggiRev.vbn"), noFile);
}

TEST_F(SpecialTest, ANumberThatComesAgainIsARunOfItsOwnUnlessItFollowsAtOnce) {
    begin("3");
    for (const char* number : {"4", "4"}) {
        beginStation(number, "1");
        typeMember({});
        stationDone(4);
        click("cmdSalva");
    }
    // Two entered, but the file shows one run.
    EXPECT_EQ(text("Label63"), "Seggi inseriti:  n.4");
    EXPECT_EQ(text("Label62"), "3");
    const std::string one = memberBytes({.station = 4, .fee = 9'000});
    EXPECT_EQ(toHex(file(specialePath)), toHex(one + one));
    openScreen();
    resume(specialAlreadyStored(1, " n.4", 4, 1));
    EXPECT_EQ(text("Label62"), "2");
    beginStation("7", "1");
    typeMember({});
    stationDone(7);
    click("cmdSalva");
    beginStation("4", "1");
    typeMember({});
    entryDone();
    click("cmdSalva");
    EXPECT_EQ(text("Label63"), "Seggi inseriti:  n.4 -  n.7 -  n.4");
}

TEST_F(SpecialTest, AStationOfOneEndsWithItsPresident) {
    begin("1");
    beginStation("9", "1");
    typeMember({});
    entryDone();
    click("cmdSalva");
    EXPECT_EQ(toHex(file(specialePath)), toHex(memberBytes({.station = 9, .fee = 9'000, .stations = 1})));
}

}  // namespace
}  // namespace vorbano::test
