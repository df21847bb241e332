// A member more or less in a station.

#include "correction_desk.h"

namespace vorbano::test {
namespace {

using ModSeggiOrganico = ModSeggiTest;

/// The three stations with one member more in a station, at `at` of the file.
std::vector<Who> withOneMore(std::size_t at, const Who& added) {
    std::vector<Who> people = threeStations;
    people.insert(people.begin() + static_cast<std::ptrdiff_t>(at), added);
    for (Who& who : people) {
        if (who.station == added.station) who.composto = added.composto;
    }
    return people;
}

TEST_F(ModSeggiOrganico, OpensThePanelOfANewMember) {
    openAt("1");
    begin("Check4");
    EXPECT_TRUE(visible("Frame2"));
    EXPECT_EQ(text("Frame2"), "AGGIUNGI COMPONENTE");
    EXPECT_EQ(text("Text4"), "Scrutatore");
    EXPECT_EQ(text("Text5"), "SI");
    EXPECT_EQ(text("Text7"), "Europee");
    EXPECT_EQ(text("Text8"), "");
    EXPECT_TRUE(operable("cmdSalva"));
    EXPECT_TRUE(operable("Combo2"));
    EXPECT_FALSE(operable("Combo3"));
    EXPECT_FALSE(operable("Text7"));
    EXPECT_EQ(focused(), "Text2");
    choose("Combo2", "Comunali");
    EXPECT_EQ(text("Text7"), "Comunali");
    enter("Text8");
    EXPECT_EQ(text("Text8"), "110,00");
    // A row is no choice here.
    pick("MSFlexGrid1", 1, 1);
    EXPECT_FALSE(visible("Frame1"));
    tick("Check4", false);
    EXPECT_FALSE(visible("Frame2"));
    EXPECT_FALSE(operable("cmdSalva"));
}

TEST_F(ModSeggiOrganico, AddsAMemberBehindTheLastOfTheStation) {
    openAt("2");
    begin("Check4");
    type("Text2", "MARINI");
    type("Text3", "UGO");
    type("Text6", "Viale Europa 15");
    type("Text9", "mrnguo90p01h501v");
    enter("Text8");
    EXPECT_EQ(text("Text8"), "96,00");
    box("Aggiungi componente", "FATTO!");
    click("cmdSalva");
    const Who added = {2, 3, 3, "MARINI", "UGO", "Viale Europa 15", "Scrutatore", "MRNGUO90P01H501V", 9'600};
    EXPECT_EQ(toHex(stored("Seggi.vbn")), toHex(membersBytes(withOneMore(6, added))));
    EXPECT_EQ(stored("SeggiRev.vbn"), noFile);
    expectSearchState();
    EXPECT_EQ(text("txtComposto"), "3");
    ASSERT_EQ(rows(), 3);
    EXPECT_EQ(row(3), "3|MARINI UGO|Viale Europa 15|Scrutatore|SI|MRNGUO90P01H501V|96,00");
}

TEST_F(ModSeggiOrganico, AddsAMemberToTheLastStationWithItsOwnTariff) {
    openAt("3");
    begin("Check4");
    choose("Combo2", "Comunali");
    type("Text2", "QUERCI");
    type("Text4", "Segretario");
    type("Text5", "NO");
    type("Text8", "75,5");
    box("Aggiungi componente", "FATTO!");
    click("cmdSalva");
    const Who added = {3, 4, 4, "QUERCI", "", "", "Segretario", "", 7'550, "Comunali", "NO"};
    EXPECT_EQ(toHex(stored("Seggi.vbn")), toHex(membersBytes(withOneMore(9, added))));
}

TEST_F(ModSeggiOrganico, NeedsTheFeeOfANewMember) {
    openAt("2");
    begin("Check4");
    type("Text2", "MARINI");
    choose("Combo2", "Regionali");
    box("Tariffa componente", "inserire l'importo della tariffa");
    box("Tariffe", "Tariffe non inserite");  // on entering the field
    click("cmdSalva");
    EXPECT_EQ(focused(), "Text8");
    choose("Combo2", "Europee");
    box("Tariffa componente", "inserire l'importo della tariffa");
    click("cmdSalva");
    EXPECT_EQ(focused(), "Text8");
    EXPECT_EQ(text("Text8"), "96,00");
    type("Text8", "0,00");
    enter("Text3");
    box("Tariffa componente", "inserire l'importo della tariffa");
    click("cmdSalva");
    EXPECT_EQ(toHex(stored("Seggi.vbn")), toHex(membersBytes(threeStations)));
    EXPECT_EQ(text("Text2"), "MARINI");
}

TEST_F(ModSeggiOrganico, GivesTheNextPlaceInAStationWhoseEntryHasStopped) {
    const std::vector<Who> half = {bellini, conti, amico};
    layIn("Seggi.vbn", membersBytes(half));
    openAt("1");
    begin("Check4");
    type("Text2", "MARINI");
    enter("Text8");
    box("Aggiungi componente", "FATTO!");
    click("cmdSalva");
    std::vector<Who> expected = half;
    expected.push_back({1, 5, 4, "MARINI", "", "", "Scrutatore", "", 9'600});
    for (Who& who : expected) who.composto = 5;
    EXPECT_EQ(toHex(stored("Seggi.vbn")), toHex(membersBytes(expected)));
}

TEST_F(ModSeggiOrganico, LeavesTheSubstitutesAsTheyAre) {
    layIn("SosSeggi.vbn", substituteBytes(sarti, 4));
    openAt("1");
    begin("Check4");
    type("Text2", "MARINI");
    type("Text8", "96");
    box("Aggiungi componente", "FATTO!");
    click("cmdSalva");
    EXPECT_EQ(toHex(stored("SosSeggi.vbn")), toHex(substituteBytes(sarti, 4)));
    // New member and substitute bear the same number now; each row is still the one that it is.
    EXPECT_EQ(cell("MSFlexGrid1", 5, 0), "5");
    EXPECT_EQ(cell("MSFlexGrid1", 6, 0), "5");
    begin("Check5");
    box("Cencella sostituto", "Per cancellare il sostituto selezionare modifica componente");
    pick("MSFlexGrid1", 6, 1);
    pick("MSFlexGrid1", 5, 1);
    EXPECT_EQ(text("Text10"), "MARINI");
    box("Componente", "Volete cancellare il componente \nMARINI", Answer::yes);
    box("Cancella componente", "Cancellazione componente\nMARINI\neseguita con successo!");
    click("cmdSalva");
    EXPECT_EQ(toHex(stored("Seggi.vbn")), toHex(membersBytes(threeStations)));
    EXPECT_EQ(toHex(stored("SosSeggi.vbn")), toHex(substituteBytes(sarti, 4)));
}

TEST_F(ModSeggiOrganico, ShowsTheScrutineerOnTheWayOut) {
    openAt("1");
    begin("Check5");
    EXPECT_FALSE(operable("cmdSalva"));
    pick("MSFlexGrid1", 3, 2);
    EXPECT_TRUE(visible("Frame3"));
    EXPECT_EQ(text("Frame3"), "CANCELLA COMPONENTE");
    EXPECT_EQ(text("Text10"), "D'AMICO");
    EXPECT_EQ(text("Text11"), "NICOLÒ");
    EXPECT_EQ(text("Text14"), "Piazza Mazzini 7");
    EXPECT_EQ(text("Text12"), "Scrutatore");
    EXPECT_EQ(text("Text13"), "SI");
    EXPECT_EQ(text("Text15"), "Europee");
    EXPECT_EQ(text("Text17"), "DMCNCL80E12F205Q");
    EXPECT_EQ(text("Text16"), "96,00");
    for (int field = 10; field <= 17; ++field) EXPECT_FALSE(operable("Text" + std::to_string(field))) << field;
    EXPECT_FALSE(operable("Combo2"));
    EXPECT_EQ(focused(), "cmdSalva");
}

TEST_F(ModSeggiOrganico, LetsOnlyAScrutineerBeChosen) {
    openAt("1");
    begin("Check5");
    pick("MSFlexGrid1", 1, 1);
    EXPECT_FALSE(visible("Frame3"));
    pick("MSFlexGrid1", 2, 1);
    EXPECT_FALSE(visible("Frame3"));
    EXPECT_FALSE(operable("cmdSalva"));
    EXPECT_EQ(screen->lblSelezione.tone(), Tone::active);
    pick("MSFlexGrid1", 4, 1);
    EXPECT_TRUE(visible("Frame3"));
    EXPECT_EQ(screen->lblSelezione.tone(), Tone::plain);
    // Who was chosen before is not kept for removal behind another click.
    pick("MSFlexGrid1", 1, 1);
    EXPECT_FALSE(visible("Frame3"));
}

TEST_F(ModSeggiOrganico, RemovesAMember) {
    layIn("SosSeggi.vbn", substituteBytes(sarti, 3));
    openAt("1");
    begin("Check5");
    pick("MSFlexGrid1", 3, 1);
    box("Componente", "Volete cancellare il componente \nD'AMICO", Answer::yes);
    box("Cancella componente", "Cancellazione componente\nD'AMICO\neseguita con successo!");
    click("cmdSalva");
    std::vector<Who> left = threeStations;
    left.erase(left.begin() + 2);
    for (Who& who : left) {
        if (who.station == 1) who.composto = 3;
    }
    left[2].ordine = 3;
    EXPECT_EQ(toHex(stored("Seggi.vbn")), toHex(membersBytes(left)));
    EXPECT_EQ(toHex(stored("SosSeggi.vbn")), toHex(substituteBytes(sarti, 3)));
    EXPECT_EQ(stored("SeggiRev.vbn"), noFile);
    expectSearchState();
    EXPECT_EQ(text("txtComposto"), "3");
    EXPECT_EQ(row(3), "3|FERRARI LUISA|Via dei Tigli 24|Scrutatore|SI|FRRLSU85H52H501W|96,00");
}

TEST_F(ModSeggiOrganico, AsksInCapitalsAndTellsAsWritten) {
    std::vector<Who> people = threeStations;
    people[2].cognome = "D'Amic\xF2";
    layIn("Seggi.vbn", membersBytes(people));
    openAt("1");
    begin("Check5");
    pick("MSFlexGrid1", 3, 1);
    box("Componente", "Volete cancellare il componente \nD'AMICÒ", Answer::yes);
    box("Cancella componente", "Cancellazione componente\nD'Amicò\neseguita con successo!");
    click("cmdSalva");
}

TEST_F(ModSeggiOrganico, RemovesNobodyOnANo) {
    openAt("1");
    begin("Check5");
    pick("MSFlexGrid1", 3, 1);
    box("Componente", "Volete cancellare il componente \nD'AMICO", Answer::no);
    click("cmdSalva");
    EXPECT_TRUE(visible("Frame3"));
    EXPECT_EQ(toHex(stored("Seggi.vbn")), toHex(membersBytes(threeStations)));
}

}  // namespace
}  // namespace vorbano::test
