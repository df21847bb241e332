// The removal itself: every byte of the files afterwards, what is asked and told, what stays untouched.

#include "removal_desk.h"

namespace vorbano::test {
namespace {

using ::testing::IsEmpty;

std::vector<LaidPerson> without(std::vector<LaidPerson> staff, int number) {
    staff.erase(staff.begin() + number - 1);
    return staff;
}

class EliminaCancella : public RemovalDesk {
  protected:
    std::string stored(const LaidElection& election, std::string_view name) {
        return contentOf(files, election.path(name));
    }
    void expectNoCompanions(const LaidElection& election) {
        for (const char* name : {"Reverse.vbn", "RevMeirin.vbn", "RQuartum.vbn", "RPentium.vbn"})
            EXPECT_EQ(stored(election, name), noFile) << name;
    }
    void expectEmployees(const LaidElection& election, const std::vector<LaidPerson>& staff) {
        EXPECT_EQ(toHex(contentOf(files, election.employees())), toHex(laidStaff(election, staff)));
        EXPECT_EQ(toHex(stored(election, "Meirin.vbn")), toHex(laidMeirin(election).substr(0, 62)));
        expectNoCompanions(election);
    }
};

TEST_F(EliminaCancella, NoLeavesEverythingAsItIs) {
    openOnElection(europee2024(), persons(7));
    chooseIndex("List1", 2);
    box("Cancellazione dipendente", "Siete sicuri di voler Cancellare il dipendente  PERSONA 3 ?", Answer::no);
    click("cmdElimina");
    EXPECT_EQ(contentOf(files, europee2024().employees()), laidStaff(europee2024(), persons(7)));
    EXPECT_EQ(stored(europee2024(), "Meirin.vbn"), laidMeirin(europee2024()));
    EXPECT_EQ(text("txtDipendente"), "PERSONA 3");
    EXPECT_TRUE(operable("cmdElimina"));
    EXPECT_TRUE(operable("List1"));
    expectNoCompanions(europee2024());
}

TEST_F(EliminaCancella, TheFirstRenumbersAllOthers) {
    openOnElection(europee2024(), persons(7));
    remove(1, "PERSONA 1");
    expectEmployees(europee2024OfSix(), without(persons(7), 1));
}

TEST_F(EliminaCancella, OneInTheMiddleRenumbersThoseBehind) {
    openOnElection(europee2024(), persons(7));
    remove(4, "PERSONA 4");
    expectEmployees(europee2024OfSix(), without(persons(7), 4));
}

TEST_F(EliminaCancella, TheLastChangesOnlyThePoolsOfTheOthers) {
    openOnElection(europee2024(), persons(7));
    remove(7, "PERSONA 7");
    expectEmployees(europee2024OfSix(), persons(6));
}

/// The bytes of one copy and of the limits, counted by hand without the table of the test.
TEST_F(EliminaCancella, BytesOfACopyAndOfTheLimits) {
    openOnElection(europee2024(), persons(7));
    remove(1, "PERSONA 1");
    const std::string copies = contentOf(files, europee2024().employees());
    ASSERT_EQ(copies.size(), 6U * 301U);
    // 40, 40 used by the second, 240 = 6 x 40, 320 = 240 + 80, number 1 of 6.
    EXPECT_EQ(toHex(copies.substr(0, 12)), "28 00 28 00 f0 00 40 01 01 00 06 00");
    EXPECT_EQ(copies.substr(12, 60), padded("PERSONA 2", 60));
    EXPECT_EQ(copies.substr(72, 16), "15-04-2414-05-24");
    const std::string limits = stored(europee2024(), "Meirin.vbn");
    ASSERT_EQ(limits.size(), 62U);
    // Averages 40, 13, 0; pools 240, 80, 0; the states 1, 0, 1 stay.
    EXPECT_EQ(toHex(limits.substr(24, 18)), "28 00 0d 00 00 00 f0 00 50 00 00 00 01 00 00 00 01 00");
}

TEST_F(EliminaCancella, SixToFiveRaisesTheHoursPerMonthOfAll) {
    openOnElection(europee2024OfSix(), persons(6));
    remove(6, "PERSONA 6");
    expectEmployees(europee2024OfFive(), persons(5));
}

TEST_F(EliminaCancella, FiveToFourKeepsSeventy) {
    openOnElection(europee2024OfFive(), persons(5));
    remove(2, "PERSONA 2");
    LaidElection four = europee2024OfFive();
    four.numDip = 4;
    // 30 x 70 / 30 x 4 = 280; 10 x 70 / 30 x 4 = 93,33.
    four.globo = 373;
    four.figures = {{70, 280}, {23, 93}, {0, 0}};
    expectEmployees(four, without(persons(5), 2));
}

TEST_F(EliminaCancella, QuartumAndPentiumFollowInStep) {
    const LaidElection before = fivePeriods();
    const LaidElection after = fivePeriodsOfFive();
    openOnElection(before, persons(6));
    remove(3, "PERSONA 3");
    const std::vector<LaidPerson> left = without(persons(6), 3);
    expectEmployees(after, left);
    EXPECT_EQ(toHex(stored(after, "Quartum.vbn")), toHex(laidLateStaff(after, 4, left)));
    EXPECT_EQ(toHex(stored(after, "Pentium.vbn")), toHex(laidLateStaff(after, 5, left)));
}

TEST_F(EliminaCancella, OnlyQuartumWhenThereIsNoFifthPeriod) {
    LaidElection before = fivePeriods();
    before.type = "Provinciali_Comunali";
    before.date = "06-05-12";
    before.spans.pop_back();
    before.figures.pop_back();
    before.globo = 440;
    layElection(files, before, persons(6));
    // A stray file of a period that the election does not have on this screen.
    ASSERT_TRUE(lay(files, before.path("Pentium.vbn"), laidLateStaff(fivePeriods(), 5, persons(6))));
    open();
    search(before);
    remove(6, "PERSONA 6");
    LaidElection after = before;
    after.monteOre = 70;
    after.numDip = 5;
    after.figures = {{35, 175}, {35, 175}, {35, 175}, {23, 117}};
    after.globo = 642;
    expectEmployees(after, persons(5));
    EXPECT_EQ(toHex(stored(after, "Quartum.vbn")), toHex(laidLateStaff(after, 4, persons(5))));
    EXPECT_EQ(stored(after, "Pentium.vbn"), laidLateStaff(fivePeriods(), 5, persons(6)));
}

TEST_F(EliminaCancella, AReferendumHasNoFourthPeriodHere) {
    LaidElection before = europee2024OfSix();
    before.type = "Referendum";
    before.date = "12-06-11";
    layElection(files, before, persons(6));
    const std::string fourth = laidLateStaff(fivePeriods(), 4, persons(6));
    ASSERT_TRUE(lay(files, before.path("Quartum.vbn"), fourth));
    open();
    search(before);
    remove(1, "PERSONA 1");
    LaidElection after = europee2024OfFive();
    after.type = "Referendum";
    after.date = "12-06-11";
    expectEmployees(after, without(persons(6), 1));
    EXPECT_EQ(stored(before, "Quartum.vbn"), fourth);
}

TEST_F(EliminaCancella, TheChosenOfSeveralWithOneNameGoes) {
    std::vector<LaidPerson> staff = persons(7);
    staff[1].name = "ROSSI MARIO";
    staff[4].name = "ROSSI MARIO";
    openOnElection(europee2024(), staff);
    chooseIndex("List1", 1);
    remove(5, "ROSSI MARIO");
    expectEmployees(europee2024OfSix(), without(staff, 5));
}

TEST_F(EliminaCancella, NamesWithAccentsAndTheirQuestion) {
    std::vector<LaidPerson> staff = persons(7);
    staff[2].name = "DE LUC\xC0 MARIA";
    openOnElection(europee2024(), staff);
    remove(3, "DE LUCÀ MARIA");
    expectEmployees(europee2024OfSix(), without(staff, 3));
}

TEST_F(EliminaCancella, TheListOfStaffAndTheActsAreNotTouched) {
    ASSERT_TRUE(lay(files, "Params/Dipend.dat", padded("PERSONA 3", 60) + padded("PERSONA 4", 60)));
    ASSERT_TRUE(lay(files, europee2024().path("Duedate.vbn"), duedateBytes()));
    openOnElection(europee2024(), persons(7));
    remove(3, "PERSONA 3");
    EXPECT_EQ(contentOf(files, "Params/Dipend.dat"), padded("PERSONA 3", 60) + padded("PERSONA 4", 60));
    EXPECT_EQ(stored(europee2024(), "Duedate.vbn"), duedateBytes());
}

TEST_F(EliminaCancella, AfterwardsTheScreenIsAsAtTheStart) {
    openOnElection(fivePeriods(), persons(6));
    remove(3, "PERSONA 3");
    for (const char* name : {"Combo1", "txtDataEle", "txtDipendente", "Label9", "txtNumDip", "txtNumDipD", "Label10"})
        EXPECT_EQ(text(name), "") << name;
    EXPECT_THAT(names(), IsEmpty());
    EXPECT_EQ(line("1"), (Figures{"", "", "", ""}));
    EXPECT_EQ(line("D5"), (Figures{"", "", "", ""}));
    EXPECT_FALSE(operable("cmdElimina"));
    EXPECT_TRUE(operable("cmdRicerca"));
    EXPECT_EQ(focused(), "Combo1");
}

TEST_F(EliminaCancella, OneAfterAnotherDownToNobody) {
    LaidElection election = europee2024();
    election.monteOre = 60;
    election.globo = 160;
    election.figures = {{60, 120}, {20, 40}, {0, 0}};
    election.numDip = 2;
    openOnElection(election, persons(2));
    remove(1, "PERSONA 1");
    LaidElection one = election;
    one.globo = 80;
    one.figures = {{60, 60}, {20, 20}, {0, 0}};
    one.numDip = 1;
    expectEmployees(one, {persons(2)[1]});

    search(election);
    EXPECT_EQ(text("txtNumDip"), "1");
    EXPECT_EQ(line("1"), (Figures{"60", "60", "16", "44"}));
    remove(1, "PERSONA 2");
    EXPECT_EQ(contentOf(files, election.employees()), "");
    // The averages do not depend on the number; the pools of nobody are 0.
    EXPECT_EQ(toHex(stored(election, "Meirin.vbn").substr(24, 12)), "3c 00 14 00 00 00 00 00 00 00 00 00");
    EXPECT_EQ(stored(election, "Meirin.vbn").size(), 62U);
    expectNoCompanions(election);

    box("Errore", "Tipo di elezione inesistente");
    search(election);
    EXPECT_FALSE(operable("List1"));
}

TEST_F(EliminaCancella, TheOnlyOneOfFivePeriodsEmptiesTheLateFilesToo) {
    LaidElection election = fivePeriods();
    election.numDip = 1;
    openOnElection(election, persons(1));
    remove(1, "PERSONA 1");
    EXPECT_EQ(contentOf(files, election.employees()), "");
    EXPECT_EQ(stored(election, "Quartum.vbn"), "");
    EXPECT_EQ(stored(election, "Pentium.vbn"), "");
    expectNoCompanions(election);
}

}  // namespace
}  // namespace vorbano::test
