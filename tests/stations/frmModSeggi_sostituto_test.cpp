// The substitute of a member: the fee divided, stored, corrected, removed.

#include "correction_desk.h"

namespace vorbano::test {
namespace {

using ModSeggiSostituto = ModSeggiTest;

constexpr Who elsewhere = {2, 2, 3, "UNGARO", "FILIPPO", "Via Rossa 3", "Segretario", "NGRFPP69C03H501K", 2'500};

/// The shares that the two records hold after the commands of the test.
std::vector<Who> withFees(std::vector<Who> people, std::size_t at, int cents) {
    people[at].cents = cents;
    return people;
}

struct WithSubstitutes : ModSeggiTest {
    /// The substitutes of members 3 and 2, in this order, and one of another station between them.
    void SetUp() override {
        layIn("SosSeggi.vbn", substituteBytes(sarti, 3) + substituteBytes(elsewhere, 2) + substituteBytes(tosi, 2));
    }
};

TEST_F(ModSeggiSostituto, DividesTheFeeByPercentage) {
    openMember(3);
    type("txtImporto", "100");
    tick("Check1");
    EXPECT_EQ(focused(), "txtSostituto");
    type("txtPercent", "50");
    leave();
    EXPECT_EQ(text("txtImporto2"), "50,00");
    EXPECT_EQ(text("txtImporto"), "50,00");
    // A second pass takes the share of what is left.
    enter("txtPercent");
    enter("txtNomeS");
    EXPECT_EQ(text("txtImporto2"), "25,00");
    EXPECT_EQ(text("txtImporto"), "25,00");
    // Entering the fee anew restores it.
    enter("txtImporto");
    EXPECT_EQ(text("txtImporto"), "96,00");
}

TEST_F(ModSeggiSostituto, RoundsThePartAndLeavesTheExactRest) {
    openMember(1);
    tick("Check1");
    // 33,33 % of 138,00 is 45,9954.
    type("txtPercent", "33,33");
    enter("txtNomeS");
    EXPECT_EQ(text("txtImporto2"), "46,00");
    EXPECT_EQ(text("txtImporto"), "92,00");
}

TEST_F(ModSeggiSostituto, TakesNoPartForAPercentageThatIsNoNumber) {
    openMember(1);
    tick("Check1");
    type("txtPercent", "metà");
    enter("txtNomeS");
    EXPECT_EQ(text("txtImporto2"), "");
    EXPECT_EQ(text("txtImporto"), "138,00");
}

TEST_F(ModSeggiSostituto, DividesTheFeeByAmount) {
    openMember(1);
    tick("Check1");
    type("txtImporto2", "38,5");
    enter("txtNomeS");
    EXPECT_EQ(text("txtImporto2"), "38,50");
    EXPECT_EQ(text("txtImporto"), "99,50");
    enter("txtImporto2");
    enter("txtNomeS");
    EXPECT_EQ(text("txtImporto"), "61,00");
}

TEST_F(ModSeggiSostituto, AsksForThePercentageWhenThereIsNoAmount) {
    openMember(1);
    tick("Check1");
    enter("txtImporto2");
    enter("txtNomeS");
    EXPECT_EQ(focused(), "txtPercent");
    EXPECT_EQ(text("txtImporto"), "138,00");
    // With a percentage the amount is left alone.
    type("txtPercent", "10");
    leave();
    EXPECT_EQ(focused(), "txtImporto2");
    enter("txtNomeS");
    EXPECT_EQ(focused(), "txtNomeS");
    EXPECT_EQ(text("txtImporto2"), "13,80");
    EXPECT_EQ(text("txtImporto"), "124,20");
}

TEST_F(ModSeggiSostituto, StoresANewSubstituteBehindTheMembers) {
    openMember(3);
    tick("Check1");
    type("txtSostituto", "SARTI");
    type("txtNomeS", "DINA");
    type("txtIndirizzo2", "Via Nera 1");
    type("txtFisc2", "srtdni79a41h501l");
    type("txtPercent", "50");
    saved();
    click("cmdSalva");
    EXPECT_EQ(toHex(stored("SosSeggi.vbn")), toHex(substituteBytes(sarti, 3)));
    EXPECT_EQ(toHex(stored("Seggi.vbn")), toHex(membersBytes(withFees(threeStations, 2, 4'800))));
    ASSERT_EQ(rows(), 5);
    EXPECT_EQ(row(5), "5|SARTI DINA|Via Nera 1|Scrutatore|SI|SRTDNI79A41H501L|48,00");
    expectSearchState();
}

TEST_F(ModSeggiSostituto, TakesRoleAndParticipationOfTheMember) {
    openMember(2);
    tick("Check1");
    type("txtSiNo", "NO");
    type("txtSostituto", "TOSI");
    type("txtImporto2", "55,2");
    choose("Combo2", "Comunali");
    saved();
    click("cmdSalva");
    const Who stands = {1, 4, 5, "TOSI", "", "", "Segretario", "", 5'520, "Comunali", "NO"};
    EXPECT_EQ(toHex(stored("SosSeggi.vbn")), toHex(substituteBytes(stands, 2)));
}

TEST_F(ModSeggiSostituto, CutsTheTypeAtFourteenCharacters) {
    ASSERT_TRUE(lay(files, "Elezioni/Politiche_Comunali/09-06-24/Seggi.vbn", membersBytes({galli, longo})));
    open();
    choose("Combo1", "Politiche_Comunali");
    choose("Combo4", "09-06-24");
    type("txtSeggio", "2");
    click("cmdRicerca");
    begin("Check3");
    pick("MSFlexGrid1", 2, 1);
    tick("Check1");
    type("txtSostituto", "SARTI");
    type("txtImporto2", "10");
    saved();
    click("cmdSalva");
    const std::string bytes = contentOf(files, "Elezioni/Politiche_Comunali/09-06-24/SosSeggi.vbn");
    ASSERT_EQ(bytes.size(), 218U);
    EXPECT_EQ(bytes.substr(0, 22), "Politiche_Comu09-06-24");
}

TEST_F(ModSeggiSostituto, ASecondSubstituteOfTheStationComesNext) {
    layIn("SosSeggi.vbn", substituteBytes(elsewhere, 2) + substituteBytes(sarti, 3));
    openMember(2);
    EXPECT_FALSE(ticked("Check1"));
    tick("Check1");
    type("txtSostituto", "TOSI");
    type("txtNomeS", "ELIO");
    type("txtIndirizzo2", "Via Bianca 2");
    type("txtFisc2", "TSOLEI81B02H501T");
    type("txtImporto2", "55,20");
    saved();
    click("cmdSalva");
    EXPECT_EQ(toHex(stored("SosSeggi.vbn")),
              toHex(substituteBytes(elsewhere, 2) + substituteBytes(sarti, 3) + substituteBytes(tosi, 2)));
}

TEST_F(WithSubstitutes, LoadsTheSubstituteWithTheMember) {
    openMember(3);
    EXPECT_TRUE(ticked("Check1"));
    EXPECT_TRUE(operable("Check2"));
    EXPECT_EQ(text("txtSostituto"), "SARTI");
    EXPECT_EQ(text("txtNomeS"), "DINA");
    EXPECT_EQ(text("txtIndirizzo2"), "Via Nera 1");
    EXPECT_EQ(text("txtFisc2"), "SRTDNI79A41H501L");
    EXPECT_EQ(text("txtImporto2"), "48,00");
    EXPECT_EQ(text("txtPercent"), "");
    EXPECT_EQ(text("Label19"), "1");
    pick("MSFlexGrid1", 1, 1);
    EXPECT_FALSE(ticked("Check1"));
    EXPECT_EQ(text("txtSostituto"), "");
}

TEST_F(WithSubstitutes, OverwritesTheSubstituteThatWasLoaded) {
    openMember(2);
    EXPECT_EQ(text("txtSostituto"), "TOSI");
    type("txtIndirizzo2", "Via Grigia 9");
    saved();
    click("cmdSalva");
    Who changed = tosi;
    changed.indirizzo = "Via Grigia 9";
    EXPECT_EQ(toHex(stored("SosSeggi.vbn")),
              toHex(substituteBytes(sarti, 3) + substituteBytes(elsewhere, 2) + substituteBytes(changed, 2)));
}

TEST_F(WithSubstitutes, LeavesTheSubstituteAloneWhenItsBoxIsCleared) {
    openMember(3);
    type("txtSostituto", "ALTRI");
    tick("Check1", false);
    EXPECT_FALSE(operable("txtSostituto"));
    saved();
    click("cmdSalva");
    EXPECT_EQ(toHex(stored("SosSeggi.vbn")),
              toHex(substituteBytes(sarti, 3) + substituteBytes(elsewhere, 2) + substituteBytes(tosi, 2)));
}

TEST_F(WithSubstitutes, SendsAClickOnASubstituteToItsMember) {
    openAt("1");
    begin("Check5");
    box("Cencella sostituto", "Per cancellare il sostituto selezionare modifica componente");
    pick("MSFlexGrid1", 5, 1);
    EXPECT_FALSE(visible("Frame3"));
    tick("Check4");
    box("Cencella sostituto", "Per cancellare il sostituto selezionare modifica componente");
    pick("MSFlexGrid1", 5, 1);
    tick("Check3");
    box("Cencella sostituto", "Per cancellare il sostituto selezionare modifica componente");
    pick("MSFlexGrid1", 6, 1);
    EXPECT_TRUE(visible("Frame1"));
    EXPECT_EQ(text("txtComponente"), "CONTI");
    EXPECT_EQ(text("txtSostituto"), "TOSI");
}

TEST_F(WithSubstitutes, AsksForTheKindOfChangeOnASubstituteToo) {
    openAt("1");
    box("Modifica", "Selezionare il tipo di modifica");
    pick("MSFlexGrid1", 5, 1);
}

TEST_F(WithSubstitutes, CannotCallUpASubstituteWithoutAMember) {
    Who orphan = sarti;
    orphan.ordine = 9;
    layIn("SosSeggi.vbn", substituteBytes(orphan, 8));
    openAt("1");
    begin("Check3");
    box("Cencella sostituto", "Per cancellare il sostituto selezionare modifica componente");
    pick("MSFlexGrid1", 5, 1);
    EXPECT_FALSE(visible("Frame1"));
}

TEST_F(WithSubstitutes, RemovesTheSubstituteAndGivesTheWholeFeeBack) {
    layIn("Seggi.vbn", membersBytes(withFees(threeStations, 2, 4'800)));
    openMember(3);
    tick("Check2");
    for (const char* closed : {"txtSostituto", "txtFisc2", "txtPercent", "txtImporto2"})
        EXPECT_FALSE(operable(closed)) << closed;
    box("Sostituto", "Volete cancellare il sostituto \nSARTI", Answer::yes);
    saved();
    click("cmdSalva");
    Who moved = tosi;
    moved.ordine = 5;
    EXPECT_EQ(toHex(stored("SosSeggi.vbn")), toHex(substituteBytes(elsewhere, 2) + substituteBytes(moved, 2)));
    EXPECT_EQ(toHex(stored("Seggi.vbn")), toHex(membersBytes(threeStations)));
    EXPECT_EQ(stored("RevSosSeggi.vbn"), noFile);
    ASSERT_EQ(rows(), 5);
    EXPECT_EQ(cell("MSFlexGrid1", 5, 0), "5");
    EXPECT_EQ(cell("MSFlexGrid1", 5, 1), "TOSI ELIO");
}

TEST_F(WithSubstitutes, LowersOnlyThoseThatStandBehindInTheFile) {
    openMember(2);
    tick("Check2");
    box("Sostituto", "Volete cancellare il sostituto \nTOSI", Answer::yes);
    saved();
    click("cmdSalva");
    EXPECT_EQ(toHex(stored("SosSeggi.vbn")), toHex(substituteBytes(sarti, 3) + substituteBytes(elsewhere, 2)));
}

TEST_F(WithSubstitutes, GivesTheTariffBackAlsoOverATypedFee) {
    openMember(3);
    type("txtImporto", "77");
    tick("Check2");
    box("Sostituto", "Volete cancellare il sostituto \nSARTI", Answer::yes);
    saved();
    click("cmdSalva");
    EXPECT_EQ(toHex(stored("Seggi.vbn")), toHex(membersBytes(threeStations)));
}

TEST_F(WithSubstitutes, ChangesNothingOnANo) {
    openMember(3);
    type("txtNome", "NICOLA");
    tick("Check2");
    box("Sostituto", "Volete cancellare il sostituto \nSARTI", Answer::no);
    click("cmdSalva");
    EXPECT_TRUE(visible("Frame1"));
    EXPECT_TRUE(ticked("Check2"));
    EXPECT_EQ(text("txtNome"), "NICOLA");
    EXPECT_EQ(toHex(stored("Seggi.vbn")), toHex(membersBytes(threeStations)));
    EXPECT_EQ(toHex(stored("SosSeggi.vbn")),
              toHex(substituteBytes(sarti, 3) + substituteBytes(elsewhere, 2) + substituteBytes(tosi, 2)));
}

TEST_F(WithSubstitutes, KeepsTheFeeOfTheMemberWhenTheTariffIsGone) {
    ASSERT_TRUE(lay(files, "Params/Tarseg.dat", ""));
    layIn("Seggi.vbn", membersBytes(withFees(threeStations, 2, 4'800)));
    openMember(3);
    tick("Check2");
    box("Sostituto", "Volete cancellare il sostituto \nSARTI", Answer::yes);
    box("Tariffe", "Tariffe non inserite");
    saved();
    click("cmdSalva");
    EXPECT_EQ(toHex(stored("Seggi.vbn")), toHex(membersBytes(withFees(threeStations, 2, 4'800))));
}

TEST_F(ModSeggiSostituto, RemovingTheOnlySubstituteLeavesAnEmptyFile) {
    layIn("SosSeggi.vbn", substituteBytes(sarti, 3));
    openMember(3);
    tick("Check2");
    box("Sostituto", "Volete cancellare il sostituto \nSARTI", Answer::yes);
    saved();
    click("cmdSalva");
    EXPECT_EQ(stored("SosSeggi.vbn"), "");
    EXPECT_EQ(rows(), 4);
}

}  // namespace
}  // namespace vorbano::test
