// The special stations: the same machine on files and tariffs of their own, without adding and removing.

#include "correction_desk.h"

namespace vorbano::test {
namespace {

using ::testing::ElementsAre;

constexpr Who ricci = {4, 2, 1, "RICCI", "EMMA", "Ospedale civile", "Presidente", "RCCMME70T50H501A", 8'280};
constexpr Who serra = {4, 2, 2, "SERRA", "FABIO", "Via Tevere 6", "Scrutatore", "SRRFBA88M09F205T", 5'520};
constexpr Who urbani = {7, 2, 1, "URBANI", "IVO", "Casa di riposo", "Presidente", "RBNVIO62A11F205G", 8'280};
constexpr Who villa = {7, 2, 2, "VILLA", "LARA", "Via Sile 5", "Scrutatore", "VLLLRA84D66H501R", 2'760};
constexpr Who abate = {12, 1, 1, "ABATE", "NORA", "Via Isonzo 4", "Presidente", "BTANRO95B48H501F", 8'280};
constexpr Who viola = {7, 2, 3, "VIOLA", "PIA", "Via Sile 8", "Scrutatore", "VLIPIA89L41F205H", 2'760};
const std::vector<Who> specialStations = {ricci, serra, urbani, villa, abate};

class ModSpeciale : public CorrectionTest<frmModSpeciale> {
  protected:
    ModSpeciale() {
        EXPECT_TRUE(lay(files, "Params/TarSpec.dat", feesBytes("Europee", {8'280, 5'520})));
        // The normal ones are nobody's here.
        EXPECT_TRUE(lay(files, "Params/Tarseg.dat", feesBytes("Europee", {1, 2, 3})));
        layIn("Seggi.vbn", membersBytes(threeStations));
        layIn("Speciale.vbn", membersBytes(specialStations));
        layIn("SosSpec.vbn", substituteBytes(viola, 2));
    }
    void openMember(std::string_view station, int at) {
        open();
        search(station);
        begin("Check3");
        pick("MSFlexGrid1", at, 1);
    }
    void TearDown() override { EXPECT_EQ(toHex(stored("Seggi.vbn")), toHex(membersBytes(threeStations))); }
};

TEST_F(ModSpeciale, OffersNoAddingAndNoRemoving) {
    open();
    EXPECT_EQ(screen->form.caption(), "Vorbano     Modifica Componenti dei Seggi Speciali 1° turno");
    for (const char* absent : {"Check4", "Check5", "Frame2", "Frame3", "Text8", "Text10"})
        EXPECT_EQ(screen->form.find(absent), nullptr) << absent;
    search("4");
    click("cmdAttiva");
    EXPECT_TRUE(operable("Check3"));
    box("Modifica", "Selezionare il tipo di modifica");
    pick("MSFlexGrid1", 1, 1);
}

TEST_F(ModSpeciale, StepsThroughStationsWithNumbersOfTheirOwn) {
    open();
    search("4");
    EXPECT_THAT(items("Combo3"), ElementsAre("4", "7", "12"));
    click("cmdSuccessivo");
    EXPECT_EQ(text("txtSeggio"), "7");
    EXPECT_EQ(rows(), 3);
    EXPECT_EQ(row(3), "3|VIOLA PIA|Via Sile 8|Scrutatore|SI|VLIPIA89L41F205H|27,60");
    click("cmdSuccessivo");
    EXPECT_EQ(text("txtSeggio"), "12");
    EXPECT_EQ(text("txtComposto"), "1");
    EXPECT_FALSE(operable("cmdSuccessivo"));
}

TEST_F(ModSpeciale, TellsThatTheElectionHasNoSpecialStations) {
    layIn("Speciale.vbn", "");
    open();
    box("Ricerca elezioni", "Elezione non in archivio.");
    search("4");
}

TEST_F(ModSpeciale, ProposesTheFeesOfTheSpecialTariff) {
    openMember("4", 1);
    type("txtNome", "X");
    enter("txtImporto");
    EXPECT_EQ(text("txtImporto"), "82,80");
    pick("MSFlexGrid1", 2, 1);
    enter("txtImporto");
    EXPECT_EQ(text("txtImporto"), "55,20");
    choose("Combo2", "Comunali");
    box("Tariffe", "Tariffe non inserite");
    enter("txtImporto");
}

TEST_F(ModSpeciale, StoresMemberAndSubstituteInFilesOfItsOwn) {
    openMember("4", 2);
    tick("Check1");
    type("txtSostituto", "SALA");
    type("txtPercent", "25");
    saved();
    click("cmdSalva");
    const Who sala = {4, 2, 3, "SALA", "", "", "Scrutatore", "", 1'380};
    std::vector<Who> expected = specialStations;
    expected[1].cents = 4'140;
    EXPECT_EQ(toHex(stored("Speciale.vbn")), toHex(membersBytes(expected)));
    EXPECT_EQ(toHex(stored("SosSpec.vbn")), toHex(substituteBytes(viola, 2) + substituteBytes(sala, 2)));
    EXPECT_EQ(stored("SosSeggi.vbn"), noFile);
    expectSearchState();
}

TEST_F(ModSpeciale, RemovesASubstitute) {
    openMember("7", 2);
    EXPECT_EQ(text("txtSostituto"), "VIOLA");
    tick("Check2");
    box("Sostituto", "Volete cancellare il sostituto \nVIOLA", Answer::yes);
    saved();
    click("cmdSalva");
    std::vector<Who> expected = specialStations;
    expected[3].cents = 5'520;
    EXPECT_EQ(toHex(stored("Speciale.vbn")), toHex(membersBytes(expected)));
    EXPECT_EQ(stored("SosSpec.vbn"), "");
    EXPECT_EQ(stored("RevSosSpec.vbn"), noFile);
}

TEST_F(ModSpeciale, SendsAClickOnASubstituteToItsMember) {
    open();
    search("7");
    begin("Check3");
    box("Cencella sostituto", "Per cancellare il sostituto selezionare modifica componente");
    pick("MSFlexGrid1", 3, 1);
    EXPECT_EQ(text("txtComponente"), "VILLA");
}

TEST_F(ModSpeciale, ShowsAllMembersOfANumberThatComesTwice) {
    Who again = abate;
    again.station = 4;
    layIn("Speciale.vbn", membersBytes({ricci, serra, urbani, villa, again}));
    open();
    search("4");
    EXPECT_THAT(items("Combo3"), ElementsAre("4", "7"));
    ASSERT_EQ(rows(), 3);
    begin("Check3");
    pick("MSFlexGrid1", 3, 1);
    EXPECT_EQ(text("Text1"), "5");
    EXPECT_EQ(text("txtComponente"), "ABATE");
}

TEST_F(ModSpeciale, TakesTheFiscalCodeForMemberAndSubstitute) {
    const auto exportCode = [this] {
        desktop.form("frmCodFisc", [](Form& form) {
            Operator clerk(form);
            EXPECT_EQ(clerk.type(*form.find("txtCognome"), "ROSSI"), Refusal::none);
            EXPECT_EQ(clerk.type(*form.find("txtNome"), "GIANFRANCO"), Refusal::none);
            EXPECT_EQ(clerk.type(*form.find("txtDataNascita"), "10/12/1980"), Refusal::none);
            EXPECT_EQ(clerk.type(*form.find("Text1"), "ROMA"), Refusal::none);
            EXPECT_EQ(clerk.click(*form.find("cmdElabora")), Refusal::none);
            EXPECT_EQ(clerk.click(*form.find("cmdEsporta")), Refusal::none);
        });
        menu("mnuCodFisc");
    };
    fillPlaces(places);
    openMember("7", 2);
    exportCode();
    EXPECT_EQ(text("txtFisc"), "RSSGFR80T10H501Z");
    enter("txtSostituto");
    exportCode();
    EXPECT_EQ(text("txtFisc2"), "RSSGFR80T10H501Z");
}

}  // namespace
}  // namespace vorbano::test
