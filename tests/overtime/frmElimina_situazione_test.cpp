// A chosen name shows how the election would stand without this employee, and whether the removal is allowed.

#include "removal_desk.h"

namespace vorbano::test {
namespace {

class EliminaSituazione : public RemovalDesk {
  protected:
    static constexpr const char* well = "Non si rilevano problemi";
    static constexpr const char* trouble =
        "Si rilevano problemi, per dei periodi si supera il  monteore mensile, modificare le ore autorizzate";
};

TEST_F(EliminaSituazione, SevenToSixKeepsTheHoursPerMonth) {
    openOnElection(europee2024(), persons(7));
    choose("List1", "PERSONA 3");
    EXPECT_EQ(text("txtDipendente"), "PERSONA 3");
    EXPECT_EQ(text("Label9"), "3");
    EXPECT_EQ(text("lblDipendente"), "n. 3 di 7, categoria C3, ore autorizzate 24");
    EXPECT_EQ(text("txtNumDipD"), "6");
    // 126 - 17 and 56 - 7 hours; 30 x 40 / 30 x 6 and 10 x 40 / 30 x 6.
    EXPECT_EQ(line("D1"), (Figures{"40", "240", "109", "131"}));
    EXPECT_EQ(line("D2"), (Figures{"13", "80", "49", "31"}));
    EXPECT_EQ(line("D3"), (Figures{"0", "0", "0", "0"}));
    EXPECT_EQ(text("Label10"), well);
    EXPECT_TRUE(operable("cmdElimina"));
    // The situation before stays as it is.
    EXPECT_EQ(text("txtNumDip"), "7");
    EXPECT_EQ(line("1"), (Figures{"40", "280", "126", "154"}));
}

TEST_F(EliminaSituazione, SixToFiveCountsWithSeventyHours) {
    openOnElection(europee2024OfSix(), persons(6));
    chooseIndex("List1", 5);
    EXPECT_EQ(text("txtNumDipD"), "5");
    // 105 - 20 and 45 - 10 hours.
    EXPECT_EQ(line("D1"), (Figures{"70", "350", "85", "265"}));
    EXPECT_EQ(line("D2"), (Figures{"23", "117", "35", "82"}));
    EXPECT_EQ(text("Label10"), well);
}

TEST_F(EliminaSituazione, FiveToFourKeepsWhatIsStored) {
    LaidElection election = europee2024();
    election.monteOre = 60;
    election.globo = 400;
    election.figures = {{60, 300}, {20, 100}, {0, 0}};
    election.numDip = 5;
    openOnElection(election, persons(5));
    chooseIndex("List1", 0);
    EXPECT_EQ(text("txtNumDipD"), "4");
    // 85 - 15 and 35 - 5 hours.
    EXPECT_EQ(line("D1"), (Figures{"60", "240", "70", "170"}));
    EXPECT_EQ(line("D2"), (Figures{"20", "80", "30", "50"}));
}

TEST_F(EliminaSituazione, ThePoolsFollowTheDaysThatCount) {
    LaidElection election = europee2024();
    // 28 days from a date in February are a whole month; the third period has one of 31 days, which count 30.
    election.spans = {{"01-02-24", "28-02-24"}, {"01-03-24", "15-03-24"}, {"16-03-24", "15-04-24"}};
    openOnElection(election, persons(7));
    chooseIndex("List1", 6);
    EXPECT_EQ(text("txtIndiD1"), "40");
    EXPECT_EQ(text("txtMensD1"), "240");
    EXPECT_EQ(text("txtIndiD2"), "20");
    EXPECT_EQ(text("txtMensD2"), "120");
    EXPECT_EQ(text("txtMensD3"), "240");
}

TEST_F(EliminaSituazione, AllFivePeriodsOfAnElectionBefore2014) {
    openOnElection(fivePeriods(), persons(6));
    choose("List1", "PERSONA 1");
    // 105 - 15 and 45 - 5 hours.
    EXPECT_EQ(line("D1"), (Figures{"35", "175", "90", "85"}));
    EXPECT_EQ(line("D2"), (Figures{"35", "175", "40", "135"}));
    EXPECT_EQ(line("D3"), (Figures{"35", "175", "40", "135"}));
    EXPECT_EQ(line("D4"), (Figures{"23", "117", "40", "77"}));
    EXPECT_EQ(line("D5"), (Figures{"23", "117", "40", "77"}));
    EXPECT_EQ(text("lblDipendente"), "n. 1 di 6, categoria C1, ore autorizzate 35");
    EXPECT_EQ(text("Label10"), well);
}

/// Seven employees whose records hold other hours than `persons`: the second period, pool 80 after the removal.
class EliminaResiduo : public EliminaSituazione {
  protected:
    /// `hours`: weekday hours of each in the second period; 4 more are there of the other kinds.
    void openWith(const std::array<int, 7>& hours) {
        const LaidElection election = europee2024();
        layElection(files, election, persons(7));
        std::string bytes = laidStaff(election, persons(7));
        for (std::size_t at = 0; at < hours.size(); ++at) bytes.replace(at * 301 + 118, 2, le16(hours[at]));
        ASSERT_TRUE(lay(files, election.employees(), bytes));
        open();
        search(election);
    }
};

TEST_F(EliminaResiduo, UsedUpToTheLastHourIsNoProblem) {
    openWith({10, 9, 9, 9, 9, 10, 0});
    chooseIndex("List1", 6);
    // 10 + 9 + 9 + 9 + 9 + 10 and 24.
    EXPECT_EQ(line("D2"), (Figures{"13", "80", "80", "0"}));
    EXPECT_EQ(text("Label10"), well);
    EXPECT_TRUE(operable("cmdElimina"));
}

TEST_F(EliminaResiduo, OneHourAboveThePoolForbidsTheRemoval) {
    openWith({10, 9, 9, 9, 9, 11, 0});
    chooseIndex("List1", 6);
    EXPECT_EQ(line("D2"), (Figures{"13", "80", "81", "-1"}));
    EXPECT_EQ(text("Label10"), trouble);
    EXPECT_FALSE(operable("cmdElimina"));
    EXPECT_EQ(clerk().click(control("cmdElimina")), Refusal::disabled);
    EXPECT_EQ(contentOf(files, europee2024().path("Meirin.vbn")), laidMeirin(europee2024()));

    // Without another one the others stay below it, and the verdict follows.
    chooseIndex("List1", 5);
    EXPECT_EQ(line("D2"), (Figures{"13", "80", "70", "10"}));
    EXPECT_EQ(text("Label10"), well);
    EXPECT_TRUE(operable("cmdElimina"));
    chooseIndex("List1", 6);
    EXPECT_FALSE(operable("cmdElimina"));
}

TEST_F(EliminaSituazione, ALatePeriodAboveItsPoolForbidsTheRemovalToo) {
    const LaidElection election = fivePeriods();
    layElection(files, election, persons(6));
    std::string late = laidLateStaff(election, 5, persons(6));
    // 100 weekday hours instead of 2: 45 - 2 + 100 in all, 5 less without the first.
    late.replace(241 + 88, 2, le16(100));
    ASSERT_TRUE(lay(files, election.path("Pentium.vbn"), late));
    open();
    search(election);
    chooseIndex("List1", 0);
    EXPECT_EQ(line("D5"), (Figures{"23", "117", "138", "-21"}));
    EXPECT_EQ(line("D4"), (Figures{"23", "117", "40", "77"}));
    EXPECT_EQ(text("Label10"), trouble);
    EXPECT_FALSE(operable("cmdElimina"));
}

TEST_F(EliminaSituazione, TheHoursOfAnExcludedPeriodDoNotCount) {
    const LaidElection election = europee2024();
    layElection(files, election, persons(7));
    std::string bytes = laidStaff(election, persons(7));
    bytes.replace(148, 2, le16(500));
    ASSERT_TRUE(lay(files, election.employees(), bytes));
    open();
    search(election);
    chooseIndex("List1", 6);
    EXPECT_EQ(line("D3"), (Figures{"0", "0", "0", "0"}));
    EXPECT_EQ(text("Label10"), well);
}

TEST_F(EliminaSituazione, APeriodWhoseDatesAreNoDatesHasNoPool) {
    LaidElection election = europee2024();
    // One mark alone leaves a period incomplete, not out. The hours stand in the records, and nothing holds them.
    election.spans[1] = {"15-05-24", laidExcluded};
    layElection(files, election, persons(7));
    open();
    search(election);
    chooseIndex("List1", 0);
    EXPECT_EQ(text("txtMensD2"), "");
    EXPECT_EQ(text("Label10"), trouble);
}

TEST_F(EliminaSituazione, EmployeesOfTheSameNameAreToldApart) {
    std::vector<LaidPerson> staff = persons(7);
    for (const std::size_t at : {std::size_t{1}, std::size_t{2}, std::size_t{5}}) staff[at].name = "ROSSI MARIO";
    openOnElection(europee2024(), staff);
    chooseIndex("List1", 1);
    EXPECT_EQ(text("Label9"), "2");
    EXPECT_EQ(text("txtUtiD1"), "110");
    EXPECT_EQ(text("lblDipendente"), "n. 2 di 7, categoria C2, ore autorizzate 22");
    chooseIndex("List1", 5);
    EXPECT_EQ(text("txtDipendente"), "ROSSI MARIO");
    EXPECT_EQ(text("Label9"), "6");
    EXPECT_EQ(text("txtUtiD1"), "106");
    EXPECT_EQ(text("lblDipendente"), "n. 6 di 7, categoria C6, ore autorizzate 30");
    EXPECT_TRUE(operable("cmdElimina"));
}

TEST_F(EliminaSituazione, AnEmployeeWithoutAName) {
    std::vector<LaidPerson> staff = persons(7);
    staff[3].name.clear();
    openOnElection(europee2024(), staff);
    chooseIndex("List1", 3);
    EXPECT_EQ(text("txtDipendente"), "");
    EXPECT_EQ(text("Label9"), "4");
    EXPECT_EQ(text("txtNumDipD"), "6");
    EXPECT_TRUE(operable("cmdElimina"));
}

TEST_F(EliminaSituazione, TheOnlyEmployeeLeavesNothing) {
    LaidElection election = europee2024();
    election.monteOre = 60;
    election.globo = 80;
    election.figures = {{60, 60}, {20, 20}, {0, 0}};
    election.numDip = 1;
    openOnElection(election, persons(1));
    chooseIndex("List1", 0);
    EXPECT_EQ(text("txtNumDipD"), "0");
    // A pool of no hours is empty, as everywhere in whole hours.
    EXPECT_EQ(line("D1"), (Figures{"60", "", "0", "0"}));
    EXPECT_EQ(line("D2"), (Figures{"20", "", "0", "0"}));
    EXPECT_EQ(text("Label10"), well);
    EXPECT_TRUE(operable("cmdElimina"));
}

TEST_F(EliminaSituazione, TheNumberOfTheCalculationMayBeAboveThatOfTheRecords) {
    openOnElection(europee2024(), persons(2));
    EXPECT_EQ(text("txtNumDip"), "7");
    chooseIndex("List1", 1);
    EXPECT_EQ(text("txtNumDipD"), "6");
    EXPECT_EQ(line("D1"), (Figures{"40", "240", "15", "225"}));
    EXPECT_EQ(text("lblDipendente"), "n. 2 di 2, categoria C2, ore autorizzate 22");
}

}  // namespace
}  // namespace vorbano::test
