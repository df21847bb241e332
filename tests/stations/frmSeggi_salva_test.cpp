// Storing members: the bytes, what follows a member, a station, the election; taking the entry up again after each.

#include "seggi_desk.h"

namespace vorbano::test {
namespace {

using ::testing::Each;
using ::testing::ElementsAre;

/// Three stations of two, one and three members.
const std::vector<MemberOnPaper>& threeStations() {
    static const std::vector<MemberOnPaper> all = {
        {.station = 1, .size = 2, .place = 1},
        {.station = 1,
         .size = 2,
         .place = 2,
         .role = "Segretario",
         .surname = "Bianchi",
         .name = "Anna",
         .address = "Via Po, 2",
         .code = "BNCNNA75C55F205P",
         .fee = 11'900},
        {.station = 2, .size = 1, .place = 1, .surname = "Verdi", .name = "Gianfranco", .code = "VRDGFR90T05Z110P"},
        {.station = 3, .size = 3, .place = 1, .surname = "Neri", .name = "Luca", .code = "NRELCU88M09F205P"},
        {.station = 3,
         .size = 3,
         .place = 2,
         .role = "Segretario",
         .surname = "Fo",
         .name = "Eva",
         .code = "FOXVEA00B68H501Y",
         .fee = 11'900},
        {.station = 3,
         .size = 3,
         .place = 3,
         .role = "Scrutatore",
         .surname = "Russo",
         .name = "Paolo",
         .code = "RSSPLA60R31B639T",
         .fee = 9'650},
    };
    return all;
}

std::string bytesOfFirst(std::size_t count) {
    std::string bytes;
    for (std::size_t at = 0; at < count; ++at) bytes += memberBytes(threeStations()[at]);
    return bytes;
}

class SavingTest : public SeggiTest {
  protected:
    /// Types and saves member number `at` (from 0), answering what comes then.
    void saveMember(std::size_t at) {
        const MemberOnPaper& member = threeStations()[at];
        if (member.place == 1) beginStation(std::to_string(member.size));
        EXPECT_EQ(readyMember(), std::to_string(member.place) + " " + std::string(member.role));
        typeMember(member);
        if (member.place == member.size && member.station == 3) {
            box("Seggi normali 1° turno", "INSERIMENTO SEGGI TERMINATO");
        } else if (member.place == member.size) {
            stationDone(member.station);
        }
        click("cmdSalva");
        if (member.place == member.size && member.station < 3) nextStation(member.station + 1);
    }
};

TEST_F(SavingTest, AMemberIsStoredByteByByteAndTheNextOneFollows) {
    begin();
    beginStation("3");
    EXPECT_TRUE(operable("txtComposto"));
    typeMember(threeStations()[3]);
    click("cmdSalva");
    MemberOnPaper first = threeStations()[3];
    first.station = 1;
    EXPECT_EQ(toHex(file(seggiPath)), toHex(memberBytes(first)));
    EXPECT_THAT(row(1),
                ElementsAre("1", "Neri", "Luca", "Via Roma, 1", "Presidente", "SI", "NRELCU88M09F205P", "149,00"));
    EXPECT_THAT(row(2), Each(""));
    EXPECT_EQ(rows(), 3);
    EXPECT_EQ(readyMember(), "2 Segretario");
    EXPECT_EQ(text("Label64"), "2");
    EXPECT_EQ(focused(), "txtCompo1");
    for (const char* name :
         {"txtCompo1", "txtNome1", "txtIndi1", "txtNasco1", "txtDove1", "txtProvincia", "txtCodFisc1", "txtOnor1",
          "txtCognome", "txtNome", "txtDataNascita", "txtSesso", "Text3", "Text2", "txtCodiceFiscale", "Label16"})
        EXPECT_EQ(text(name), "") << name;
    EXPECT_EQ(text("txtSiNo1"), "SI");
    // Size and tariff of the station stand now, and a correction comes with its end.
    EXPECT_FALSE(operable("txtComposto"));
    EXPECT_FALSE(operable("txtTariffe"));
    EXPECT_TRUE(enabled("cmdSalva"));
    EXPECT_FALSE(enabled("Check1"));
}

TEST_F(SavingTest, BoxesOfTheLastMemberAreClearedForTheNext) {
    begin();
    beginStation("2");
    type("txtCompo1", "Costa");
    type("txtNome1", "Marta");
    type("txtNasco1", "11/11/1985");
    tick("Check2");
    type("txtDove1", "Francia");
    click("Option1");
    type("txtSiNo1", "NO");
    enter("txtCodFisc1");
    enter("txtOnor1");
    click("cmdSalva");
    EXPECT_FALSE(ticked("Check2"));
    EXPECT_FALSE(screen->Option1.checked());
    EXPECT_FALSE(screen->Option2.checked());
    EXPECT_EQ(text("txtSiNo1"), "SI");
    EXPECT_EQ(toHex(file(seggiPath)), toHex(memberBytes({.size = 2,
                                                         .surname = "Costa",
                                                         .name = "Marta",
                                                         .address = "",
                                                         .code = "CSTMRT85S51Z110O",
                                                         .tookPart = "NO"})));
}

TEST_F(SavingTest, AFeeChangedByHandIsStoredAsTyped) {
    begin();
    beginStation("2");
    type("txtCodFisc1", "RSSMRA80A01H501U");
    type("txtOnor1", "1.234,5");
    click("cmdSalva");
    EXPECT_EQ(toHex(file(seggiPath)),
              toHex(memberBytes({.size = 2, .surname = "", .name = "", .address = "", .fee = 123'450})));
    EXPECT_EQ(cell("MSFlexGrid1", 1, 7), "1.234,50");
}

TEST_F(SavingTest, ALongTypeIsCutInTheRecordAndATextAtItsField) {
    open();
    choose("Combo1", "Politiche_Comunali");
    type("txtDataEle", "09-06-24");
    type("txtSeggio", "3");
    click("cmdAttiva");
    beginStation("2", "Europee");
    MemberOnPaper member{.size = 2,
                         .surname = "Dell'Acqua Montefalcone della Torre",
                         .name = "Maria Antonietta Bernadette Luisa",
                         .address = "Contrada San Giovanni in Monte Calvario 1234, interno 5, scala B"};
    typeMember(member);
    click("cmdSalva");
    member.surname = "Dell'Acqua Montefalcone della ";
    member.name = "Maria Antonietta Bernadette Lu";
    member.address = "Contrada San Giovanni in Monte Calvario 1234, interno 5, sca";
    member.type = "Politiche_Comu";
    EXPECT_EQ(toHex(file("Elezioni/Politiche_Comunali/09-06-24/Seggi.vbn")), toHex(memberBytes(member)));
}

TEST_F(SavingTest, AStationWithoutASizeIsNotStored) {
    begin();
    type("txtTariffe", "Europee");
    typeMember({});
    box("Inserimento seggi", "Inserire il numero dei componenti del seggio.");
    click("cmdSalva");
    EXPECT_EQ(focused(), "txtComposto");
    EXPECT_EQ(text("txtCompo1"), "Rossi");
    EXPECT_EQ(file(seggiPath), noFile);
    type("txtComposto", "2");
    leave();
    click("cmdSalva");
    EXPECT_EQ(toHex(file(seggiPath)), toHex(memberBytes({.size = 2})));
}

TEST_F(SavingTest, AFullStationIsToldAndTheNextOneBeginsOnCommand) {
    begin();
    beginStation("2");
    typeMember(threeStations()[0]);
    click("cmdSalva");
    typeMember(threeStations()[1]);
    stationDone(1);
    click("cmdSalva");
    EXPECT_EQ(text("cmdInserisci"), "inserisci Seggio n. 2");
    EXPECT_EQ(focused(), "cmdInserisci");
    EXPECT_FALSE(enabled("cmdSalva"));
    EXPECT_FALSE(enabled("txtCompo1"));
    EXPECT_FALSE(enabled("txtComposto"));
    EXPECT_TRUE(enabled("Check1"));
    EXPECT_EQ(text("txtSonoSeggio"), "1");
    EXPECT_EQ(text("Label3"), "3");
    EXPECT_EQ(cell("MSFlexGrid1", 2, 1), "Bianchi");
    EXPECT_EQ(toHex(file(seggiPath)), toHex(bytesOfFirst(2)));

    nextStation(2);
    EXPECT_EQ(text("txtSonoSeggio"), "2");
    EXPECT_EQ(text("txtComposto"), "");
    EXPECT_EQ(focused(), "txtComposto");
    EXPECT_EQ(readyMember(), "1 Presidente");
    EXPECT_EQ(text("Label64"), "1");
    EXPECT_FALSE(enabled("cmdInserisci"));
    EXPECT_TRUE(operable("txtTariffe"));
    EXPECT_EQ(text("txtTariffe"), "Europee");
}

TEST_F(SavingTest, TheLastMemberOfTheLastStationEndsTheEntry) {
    begin();
    for (std::size_t at = 0; at < 6; ++at) saveMember(at);
    EXPECT_EQ(toHex(file(seggiPath)), toHex(bytesOfFirst(6)));
    EXPECT_EQ(text("Label63"), "0");
    EXPECT_EQ(text("Label64"), "0");
    EXPECT_EQ(cell("MSFlexGrid1", 3, 1), "Russo");
    for (const char* name : {"txtTariffe", "cmdSalva", "txtComposto", "Check1", "txtCompo1", "txtCodFisc1", "txtOnor1",
                             "cmdInserisci", "cmdAttiva"})
        EXPECT_FALSE(enabled(name)) << name;
    EXPECT_TRUE(enabled("cmdAnnulla"));
}

TEST_F(SavingTest, AStationOfOneEndsWithItsPresident) {
    begin("1");
    beginStation("1");
    typeMember({});
    box("Seggi normali 1° turno", "INSERIMENTO SEGGI TERMINATO");
    click("cmdSalva");
    EXPECT_EQ(toHex(file(seggiPath)), toHex(memberBytes({.stations = 1})));
}

/// The entry stops after each single member and is taken up again on a screen opened anew.
TEST_F(SavingTest, TheEntryGoesOnAfterEveryMemberAsIfItHadNotStopped) {
    for (std::size_t stop = 1; stop < 6; ++stop) {
        SCOPED_TRACE(stop);
        ASSERT_TRUE(lay(files, seggiPath, bytesOfFirst(stop)));
        const MemberOnPaper& last = threeStations()[stop - 1];
        const MemberOnPaper& next = threeStations()[stop];
        open();
        resume(last.station, last.place);
        EXPECT_EQ(text("cmdAttiva"), "ATTIVATO");
        EXPECT_EQ(text("txtSonoSeggio"), std::to_string(next.station));
        EXPECT_EQ(text("txtTariffe"), "Europee");
        EXPECT_EQ(readyMember(), std::to_string(next.place) + " " + std::string(next.role));
        EXPECT_EQ(text("Label64"), std::to_string(next.place));
        EXPECT_EQ(text("txtSiNo1"), "SI");
        EXPECT_TRUE(enabled("Check1"));
        const bool newStation = next.place == 1;
        EXPECT_EQ(text("txtComposto"), newStation ? "" : std::to_string(next.size));
        EXPECT_EQ(operable("txtComposto"), newStation);
        EXPECT_EQ(operable("txtTariffe"), newStation);
        EXPECT_EQ(focused(), newStation ? "txtComposto" : "txtCompo1");
        // The grid shows the last station of the file.
        EXPECT_EQ(rows(), last.size);
        for (int place = 1; place <= last.size; ++place) {
            if (place > last.place) {
                EXPECT_THAT(row(place), Each(""));
                continue;
            }
            const MemberOnPaper& shown = threeStations()[stop - 1 - static_cast<std::size_t>(last.place - place)];
            EXPECT_EQ(cell("MSFlexGrid1", place, 0), std::to_string(place));
            EXPECT_EQ(cell("MSFlexGrid1", place, 1), shown.surname);
            EXPECT_EQ(cell("MSFlexGrid1", place, 2), shown.name);
            EXPECT_EQ(cell("MSFlexGrid1", place, 3), shown.address);
            EXPECT_EQ(cell("MSFlexGrid1", place, 4), shown.role);
            EXPECT_EQ(cell("MSFlexGrid1", place, 5), "SI");
            EXPECT_EQ(cell("MSFlexGrid1", place, 6), shown.code);
            EXPECT_EQ(cell("MSFlexGrid1", place, 7), shown.fee == 14'900   ? "149,00"
                                                     : shown.fee == 11'900 ? "119,00"
                                                                           : "96,50");
        }
        for (std::size_t at = stop; at < 6; ++at) saveMember(at);
        EXPECT_EQ(toHex(file(seggiPath)), toHex(bytesOfFirst(6)));
        EXPECT_EQ(text("Label63"), "0");
    }
}

TEST_F(SavingTest, AnnullaClearsTheScreenAndLeavesTheFile) {
    begin();
    beginStation("2");
    typeMember(threeStations()[0]);
    click("cmdSalva");
    type("txtCompo1", "Bianchi");
    click("cmdAnnulla");
    EXPECT_EQ(text("cmdAttiva"), "Attiva");
    EXPECT_TRUE(operable("cmdAttiva"));
    for (const char* name : {"Combo1", "txtDataEle", "txtSeggio"}) EXPECT_TRUE(operable(name)) << name;
    for (const char* name : {"Combo1", "txtDataEle", "txtSeggio", "txtSonoSeggio", "txtComposto", "txtTariffe",
                             "txtCompo1", "txtQualifica1", "txtSiNo1", "Label3", "Label64", "Label63"})
        EXPECT_EQ(text(name), "") << name;
    EXPECT_FALSE(enabled("txtCompo1"));
    EXPECT_FALSE(enabled("Check1"));
    EXPECT_EQ(rows(), 0);
    EXPECT_EQ(focused(), "Combo1");
    EXPECT_EQ(toHex(file(seggiPath)), toHex(bytesOfFirst(1)));
    // Another entry begins at station 1 again.
    choose("Combo1", "Comunali");
    type("txtDataEle", "09-06-24");
    type("txtSeggio", "2");
    click("cmdAttiva");
    EXPECT_EQ(text("txtSonoSeggio"), "1");
    EXPECT_FALSE(enabled("Check1"));
}

TEST_F(SavingTest, AnnullaOpensAFinishedScreenAgain) {
    begin("1");
    beginStation("1");
    typeMember({});
    box("Seggi normali 1° turno", "INSERIMENTO SEGGI TERMINATO");
    click("cmdSalva");
    click("cmdAnnulla");
    EXPECT_EQ(text("Label63"), "");
    EXPECT_EQ(text("cmdInserisci"), "Inserisci");
    EXPECT_TRUE(operable("cmdAttiva"));
}

}  // namespace
}  // namespace vorbano::test
