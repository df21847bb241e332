#include "overtime/employee_removal.h"

#include "overtime/date_changes.h"
#include "overtime/liquidation_save.h"
#include "overtime/meirin_periods.h"
#include "stored_election.h"

namespace vorbano::test {
namespace {

using ::testing::ElementsAre;

/// Pools 280, 93 and 0 after the removal, averages 41, 14 and 0.
ElectionFigures threeFigures() {
    ElectionFigures figures;
    figures[0] = PeriodFigures{.limit = 60, .pool = 280, .average = 41};
    figures[1] = PeriodFigures{.limit = 20, .pool = 93, .average = 14};
    figures[2] = PeriodFigures{};
    return figures;
}
/// And 51 and 62, 16 and 17 of the late ones.
ElectionFigures fiveFigures() {
    ElectionFigures figures = threeFigures();
    figures[3] = PeriodFigures{.limit = 35, .pool = 51, .average = 16};
    figures[4] = PeriodFigures{.limit = 35, .pool = 62, .average = 17};
    return figures;
}

/// What is left of employee n of `before`, with the figures that change, pools of 373 in all.
std::string copyOf(int n, int before, int sono, int monteOre = 40, int globo = 373) {
    const int left = before - 1;
    std::string bytes = bytesOf(employeeOf(n, before));
    bytes.replace(0, 2, le16(monteOre));
    bytes.replace(4, 8, le16(monteOre * left) + le16(globo) + le16(sono) + le16(left));
    return bytes;
}
std::string lateCopyOf(int n, int before, int sono, int late, int globo) {
    std::string bytes = bytesOf(lateOf(n, before, late));
    bytes.replace(4, 8, le16(40 * (before - 1)) + le16(globo) + le16(sono) + le16(before - 1));
    return bytes;
}

class RemovalOfAnEmployee : public ::testing::Test {
  protected:
    MemoryFileSystem files;
    void remove(int number, int left) {
        ASSERT_THAT(
            removeEmployee(
                files, europee, noLate,
                {.number = number, .recordsBefore = left + 1, .employeesLeft = left, .figures = threeFigures()}),
            Succeeds());
    }
    std::string employees() { return toHex(contentOf(files, employeesOf(europee))); }
    std::vector<int> hoursPerMonth() {
        std::vector<int> hours;
        for (const EmployeeRecord& each : staffOf(files, europee)) hours.emplace_back(each.pools.MonteOre);
        return hours;
    }
};

TEST_F(RemovalOfAnEmployee, InTheMiddleMovesUpTheFollowing) {
    layElection(files, europee, 4);
    remove(2, 3);
    EXPECT_EQ(employees(), toHex(copyOf(1, 4, 1) + copyOf(3, 4, 2) + copyOf(4, 4, 3)));
}

TEST_F(RemovalOfAnEmployee, AtTheFrontMovesUpAll) {
    layElection(files, europee, 3);
    remove(1, 2);
    EXPECT_EQ(employees(), toHex(copyOf(2, 3, 1) + copyOf(3, 3, 2)));
}

TEST_F(RemovalOfAnEmployee, AtTheEndLeavesTheOthersButForThePools) {
    layElection(files, europee, 3);
    remove(3, 2);
    EXPECT_EQ(employees(), toHex(copyOf(1, 3, 1) + copyOf(2, 3, 2)));
}

TEST_F(RemovalOfAnEmployee, WhoWasTheOnlyOneLeavesAnEmptyFile) {
    layElection(files, europee, 1);
    remove(1, 0);
    EXPECT_EQ(employees(), "");
    EXPECT_THAT(searchElection(files, europee), Gives(0));
    EXPECT_EQ(contentOf(files, pathIn(europee, meirinFile)).size(), 62U);
}

TEST_F(RemovalOfAnEmployee, RenumbersByThePlaceInTheFile) {
    layElection(files, europee, 3);
    auto staff = staffOf(files, europee);
    for (EmployeeRecord& each : staff) each.pools.SonoDip = 77;
    ASSERT_TRUE(lay(files, employeesOf(europee), bytesOf(staff[0]) + bytesOf(staff[1]) + bytesOf(staff[2])));
    remove(2, 2);
    EXPECT_EQ(employees(), toHex(copyOf(1, 3, 1) + copyOf(3, 3, 2)));
}

TEST_F(RemovalOfAnEmployee, FromSixToFiveRaisesTheHoursPerMonth) {
    layElection(files, europee, 6);
    remove(6, 5);
    EXPECT_THAT(hoursPerMonth(), ElementsAre(70, 70, 70, 70, 70));
    EXPECT_EQ(employees(), toHex(copyOf(1, 6, 1, 70) + copyOf(2, 6, 2, 70) + copyOf(3, 6, 3, 70) + copyOf(4, 6, 4, 70) +
                                 copyOf(5, 6, 5, 70)));
}

TEST_F(RemovalOfAnEmployee, FromSevenToSixOrFiveToFourKeepsTheHoursPerMonth) {
    layElection(files, europee, 7);
    remove(7, 6);
    EXPECT_THAT(hoursPerMonth(), ElementsAre(40, 40, 40, 40, 40, 40));
    layElection(files, europee, 5);
    remove(5, 4);
    EXPECT_THAT(hoursPerMonth(), ElementsAre(40, 40, 40, 40));
}

TEST_F(RemovalOfAnEmployee, KeepsSixtyTwoBytesOfTheLimits) {
    layElection(files, europee, 3);
    remove(2, 2);
    const std::string expected = Sheet(62)
                                     .amountsAt(0, {123456})
                                     .at(8, "16-07-13")
                                     .amountsAt(16, {7890})
                                     .integersAt(24, {41, 14, 0, 280, 93, 0, 1, 0, 1, 15, 103, 1})
                                     .amountsAt(48, {4321})
                                     .integersAt(56, {22, 154, 0})
                                     .bytes();
    EXPECT_EQ(toHex(contentOf(files, pathIn(europee, meirinFile))), toHex(expected));
    const auto record = readMeirin(files, europee);
    ASSERT_THAT(record, Succeeds());
    EXPECT_EQ(record->inps, cent(0));
    EXPECT_EQ(record->inailDue, cent(0));
    EXPECT_EQ(record->inpsDate.trimmed(), "");
    EXPECT_EQ(record->inailUno, cent(4321));
}

TEST_F(RemovalOfAnEmployee, LeavesActsStatementAndNoCompanions) {
    layElection(files, europee, 3);
    auto before = filesOf(files, europee);
    remove(1, 2);
    auto after = filesOf(files, europee);
    for (const char* changed : {"09-06-24.vbn", "Meirin.vbn"}) {
        before.erase(changed);
        after.erase(changed);
    }
    EXPECT_EQ(after, before);
}

TEST_F(RemovalOfAnEmployee, TakesTheLatePeriodsInStep) {
    layElection(files, fivePeriods, 4);
    const Removal removal{.number = 2, .recordsBefore = 4, .employeesLeft = 3, .figures = fiveFigures()};
    ASSERT_THAT(removeEmployee(files, fivePeriods, bothLate, removal), Succeeds());
    const int globo = 280 + 93 + 51 + 62;
    EXPECT_EQ(toHex(contentOf(files, employeesOf(fivePeriods))),
              toHex(copyOf(1, 4, 1, 40, globo) + copyOf(3, 4, 2, 40, globo) + copyOf(4, 4, 3, 40, globo)));
    for (const auto& [file, late] : {std::pair{quartumFile, 0}, {pentiumFile, 1}}) {
        EXPECT_EQ(toHex(contentOf(files, pathIn(fivePeriods, file))),
                  toHex(lateCopyOf(1, 4, 1, late, globo) + lateCopyOf(3, 4, 2, late, globo) +
                        lateCopyOf(4, 4, 3, late, globo)))
            << file;
    }
    const std::string meirin = contentOf(files, pathIn(fivePeriods, meirinFile));
    ASSERT_EQ(meirin.size(), 62U);
    EXPECT_EQ(toHex(meirin.substr(42, 6)), toHex(le16(16) + le16(51) + le16(1)));
    EXPECT_EQ(toHex(meirin.substr(56, 6)), toHex(le16(17) + le16(62) + le16(0)));
    EXPECT_EQ(filesOf(files, fivePeriods).size(), 6U);
}

TEST_F(RemovalOfAnEmployee, LeavesAPeriodAloneThatTheScreenDoesNotShow) {
    layElection(files, fivePeriods, 3);
    const std::string pentium = contentOf(files, pathIn(fivePeriods, pentiumFile));
    Removal removal{.number = 1, .recordsBefore = 3, .employeesLeft = 2, .figures = fiveFigures()};
    removal.figures[4].reset();
    ASSERT_THAT(removeEmployee(files, fivePeriods, {true, false}, removal), Succeeds());
    EXPECT_EQ(contentOf(files, pathIn(fivePeriods, pentiumFile)), pentium);
    EXPECT_EQ(contentOf(files, pathIn(fivePeriods, quartumFile)).size(), 2U * 241);
    EXPECT_EQ(toHex(contentOf(files, pathIn(fivePeriods, meirinFile)).substr(56, 4)), toHex(le16(22) + le16(154)));
}

TEST_F(RemovalOfAnEmployee, GivenAgainAfterItsEndRemovesNobodyElse) {
    layElection(files, europee, 3);
    remove(2, 2);
    const auto once = filesOf(files, europee);
    remove(2, 2);
    EXPECT_EQ(filesOf(files, europee), once);
}

TEST_F(RemovalOfAnEmployee, WhoIsNotThereFails) {
    layElection(files, europee, 2);
    const auto before = filesOf(files, europee);
    for (const int number : {0, 3}) {
        EXPECT_THAT(removeEmployee(files, europee, noLate, {.number = number, .employeesLeft = 1, .figures = {}}),
                    Fails(Failure::notFound));
    }
    EXPECT_EQ(filesOf(files, europee), before);
}

TEST(UnfinishedRemoval, BesideReverseIsThrownAway) {
    MemoryFileSystem files;
    layElection(files, fivePeriods, 2);
    const auto before = filesOf(files, fivePeriods);
    for (const auto name : {reverseFile, revMeirinFile, rQuartumFile, rPentiumFile})
        ASSERT_TRUE(lay(files, pathIn(fivePeriods, name), "begun"));
    EXPECT_THAT(settleRemoval(files, fivePeriods), Gives(Settled::discarded));
    EXPECT_EQ(filesOf(files, fivePeriods), before);
    EXPECT_THAT(settleRemoval(files, fivePeriods), Gives(Settled::nothing));
}

TEST(UnfinishedRemoval, WithoutReverseIsBroughtToItsEndByTheSearch) {
    MemoryFileSystem files;
    layElection(files, fivePeriods, 2);
    ASSERT_TRUE(lay(files, pathIn(fivePeriods, revMeirinFile), "limits"));
    ASSERT_TRUE(lay(files, pathIn(fivePeriods, rPentiumFile), "fifth"));
    EXPECT_THAT(searchElection(files, fivePeriods), Gives(2));
    EXPECT_EQ(contentOf(files, pathIn(fivePeriods, meirinFile)), "limits");
    EXPECT_EQ(contentOf(files, pathIn(fivePeriods, pentiumFile)), "fifth");
    EXPECT_EQ(contentOf(files, pathIn(fivePeriods, quartumFile)), lateBytes(2, 0));
    EXPECT_EQ(filesOf(files, fivePeriods).size(), 6U);
}

/// Reverse.vbn is the companion of every rewrite of the employees: it must not be taken away from the others.
TEST(UnfinishedRemoval, IsThrownAwayBeforeTheEmployeesAreRewritten) {
    MemoryFileSystem files;
    layElection(files, fivePeriods, 2);
    const auto before = filesOf(files, fivePeriods);
    for (const auto name : {reverseFile, revMeirinFile, rQuartumFile})
        ASSERT_TRUE(lay(files, pathIn(fivePeriods, name), "begun"));
    ASSERT_THAT(rewriteEmployees(files, fivePeriods, [](int, EmployeeRecord&) { return true; }), Succeeds());
    EXPECT_EQ(filesOf(files, fivePeriods), before);
}

/// The old numbers of a late period, beside employees who have the new ones, would be saved under another's name.
TEST(UnfinishedRemoval, IsBroughtToItsEndBeforeALiquidationIsSaved) {
    MemoryFileSystem files;
    layElection(files, fivePeriods, 2);
    ASSERT_TRUE(lay(files, pathIn(fivePeriods, quartumFile), lateBytes(3, 0)));
    ASSERT_TRUE(lay(files, pathIn(fivePeriods, rQuartumFile), bytesOf(lateOf(2, 3, 0)) + bytesOf(lateOf(3, 3, 0))));
    const auto employee = readEmployee(files, fivePeriods, bothLate, 1);
    ASSERT_THAT(employee, Succeeds());
    ASSERT_THAT(saveLiquidation(files, fivePeriods, bothLate, 1, liquidationOf(*employee)), Succeeds());
    const auto records = recordsIn<LatePeriodRecord>(files, pathIn(fivePeriods, quartumFile));
    ASSERT_EQ(records.size(), 2U);
    EXPECT_EQ(records[0].name.trimmed(), "DIPENDENTE 2");
    EXPECT_EQ(records[0].totalAuthorised, 25) << "stored in the record that is the first now";
    EXPECT_EQ(toHex(bytesOf(records[1])), toHex(bytesOf(lateOf(3, 3, 0))));
}

TEST(UnfinishedRemoval, IsBroughtToItsEndBeforeDatesAreChanged) {
    MemoryFileSystem files;
    layElection(files, europee, 2);
    std::string limits = meirinBytes().substr(0, 62);
    limits.replace(26, 2, le16(33));
    ASSERT_TRUE(lay(files, pathIn(europee, revMeirinFile), limits));
    DateChange change{.spans = {}, .figures = {}, .employees = 2};
    change.spans[0] = PeriodSpan{.from = "16-04-24", .to = "14-05-24"};
    change.figures[0] = PeriodFigures{.limit = 58, .pool = 77, .average = 39};
    ASSERT_THAT(changeDates(files, europee, change), Succeeds());
    limits.replace(24, 2, le16(39));
    limits.replace(30, 2, le16(77));
    EXPECT_EQ(toHex(contentOf(files, pathIn(europee, meirinFile))), toHex(limits + nuls(24)));
}

}  // namespace
}  // namespace vorbano::test
