#include "overtime/date_changes.h"

#include "stored_election.h"

namespace vorbano::test {
namespace {

/// The second period ends two days later; the third takes part for three days.
DateChange newDates(int employees) {
    DateChange change;
    change.spans[0] = PeriodSpan{.from = "15-04-24", .to = "14-05-24"};
    change.spans[1] = PeriodSpan{.from = "15/05/24", .to = "26/05/24"};
    change.spans[2] = PeriodSpan{.from = "27-05-24", .to = "29-05-24"};
    change.figures[0] = PeriodFigures{.limit = 60, .pool = 281, .average = 40};
    change.figures[1] = PeriodFigures{.limit = 24, .pool = 112, .average = 16};
    change.figures[2] = PeriodFigures{.limit = 6, .pool = 28, .average = 4};
    change.employees = employees;
    return change;
}

std::string changed(int n, int count, int monteOre, int globo) {
    std::string bytes = bytesOf(employeeOf(n, count));
    bytes.replace(0, 2, le16(monteOre));
    bytes.replace(4, 4, le16(monteOre * count) + le16(globo));
    bytes.replace(102, 16, "15-05-2426-05-24");
    bytes.replace(132, 16, "27-05-2429-05-24");
    return bytes;
}

TEST(NewDates, GoToEveryEmployee) {
    MemoryFileSystem files;
    layElection(files, europee, 6);
    ASSERT_THAT(changeDates(files, europee, newDates(6)), Succeeds());
    std::string expected;
    for (int n = 1; n <= 6; ++n) expected += changed(n, 6, 50, 421);
    EXPECT_EQ(toHex(contentOf(files, employeesOf(europee))), toHex(expected));
}

TEST(NewDates, OfASmallStaffRaiseTheHoursPerMonthToSeventy) {
    MemoryFileSystem files;
    layElection(files, europee, 5);
    ASSERT_THAT(changeDates(files, europee, newDates(5)), Succeeds());
    std::string expected;
    for (int n = 1; n <= 5; ++n) expected += changed(n, 5, 70, 421);
    EXPECT_EQ(toHex(contentOf(files, employeesOf(europee))), toHex(expected));
}

TEST(NewDates, ChangeOfTheLimitsTheFiguresOfThePeriodsInUse) {
    MemoryFileSystem files;
    layElection(files, europee, 6);
    ASSERT_THAT(changeDates(files, europee, newDates(6)), Succeeds());
    std::string expected = meirinBytes();
    expected.replace(24, 12, le16(40) + le16(16) + le16(4) + le16(281) + le16(112) + le16(28));
    EXPECT_EQ(toHex(contentOf(files, pathIn(europee, meirinFile))), toHex(expected));
}

TEST(NewDates, ExcludeAPeriodAndKeepItsHours) {
    MemoryFileSystem files;
    layElection(files, europee, 1);
    DateChange change = newDates(1);
    change.spans[1] = PeriodSpan{.from = "//", .to = "//      "};
    change.figures[1] = PeriodFigures{};
    ASSERT_THAT(changeDates(files, europee, change), Succeeds());
    std::string expected = changed(1, 1, 70, 309);
    expected.replace(102, 16, "//      //      ");
    EXPECT_EQ(toHex(contentOf(files, employeesOf(europee))), toHex(expected));
}

TEST(NewDates, GoToTheLatePeriodsInUse) {
    MemoryFileSystem files;
    layElection(files, fivePeriods, 2);
    DateChange change = newDates(2);
    change.spans[4] = PeriodSpan{.from = "04-06-13", .to = "11-06-13"};
    change.figures[4] = PeriodFigures{.limit = 19, .pool = 37, .average = 19};
    ASSERT_THAT(changeDates(files, fivePeriods, change), Succeeds());
    EXPECT_EQ(toHex(contentOf(files, pathIn(fivePeriods, quartumFile))), toHex(lateBytes(2, 0)));
    std::string expected;
    for (int n = 1; n <= 2; ++n) {
        std::string bytes = bytesOf(lateOf(n, 2, 1));
        bytes.replace(0, 2, le16(70));
        bytes.replace(4, 4, le16(140) + le16(458));
        bytes.replace(72, 16, "04-06-1311-06-13");
        expected += bytes;
    }
    EXPECT_EQ(toHex(contentOf(files, pathIn(fivePeriods, pentiumFile))), toHex(expected));
    EXPECT_EQ(toHex(contentOf(files, pathIn(fivePeriods, meirinFile)).substr(42, 4)), toHex(le16(15) + le16(103)));
    EXPECT_EQ(toHex(contentOf(files, pathIn(fivePeriods, meirinFile)).substr(56, 4)), toHex(le16(19) + le16(37)));
    EXPECT_EQ(filesOf(files, fivePeriods).size(), 6U);
}

TEST(NewDates, OfALatePeriodWithoutRecordsMakeThem) {
    MemoryFileSystem files;
    layElection(files, fivePeriods, 2);
    ASSERT_TRUE(lay(files, pathIn(fivePeriods, quartumFile), ""));
    ASSERT_TRUE(lay(files, pathIn(fivePeriods, pentiumFile), ""));
    DateChange change = newDates(2);
    change.spans[3] = PeriodSpan{.from = "25-05-13", .to = "03-06-13"};
    change.spans[4] = PeriodSpan{.from = "//", .to = "//"};
    ASSERT_THAT(changeDates(files, fivePeriods, change), Succeeds());
    const auto records = recordsIn<LatePeriodRecord>(files, pathIn(fivePeriods, quartumFile));
    ASSERT_EQ(records.size(), 2U);
    EXPECT_EQ(records[1].name.trimmed(), "DIPENDENTE 2");
    EXPECT_EQ(records[1].to.trimmed(), "03-06-13");
    EXPECT_EQ(records[1].pools.MonteOre, 70);
    EXPECT_EQ(contentOf(files, pathIn(fivePeriods, pentiumFile)), "") << "nothing to keep of an excluded period";
}

TEST(NewDates, KeepFiguresThatWouldNotFit) {
    MemoryFileSystem files;
    layElection(files, europee, 1);
    DateChange change = newDates(656);
    change.figures[0] = PeriodFigures{.limit = 60, .pool = 32768, .average = 50};
    ASSERT_THAT(changeDates(files, europee, change), Succeeds());
    const Pools pools = staffOf(files, europee).front().pools;
    EXPECT_EQ(pools.MonteOre, 50);
    EXPECT_EQ(pools.MoGlob, 40) << "656 x 50 = 32.800";
    EXPECT_EQ(pools.Globo, 373);
    EXPECT_EQ(toHex(contentOf(files, pathIn(europee, meirinFile)).substr(30, 2)), toHex(le16(240)));
}

TEST(NewDates, GivenAgainChangeNothing) {
    MemoryFileSystem files;
    layElection(files, fivePeriods, 3);
    ASSERT_THAT(changeDates(files, fivePeriods, newDates(3)), Succeeds());
    const auto once = filesOf(files, fivePeriods);
    ASSERT_THAT(changeDates(files, fivePeriods, newDates(3)), Succeeds());
    EXPECT_EQ(filesOf(files, fivePeriods), once);
}

TEST(NewDates, OfNoElectionFail) {
    MemoryFileSystem files;
    EXPECT_THAT(changeDates(files, europee, newDates(3)), Fails(Failure::missingFolder));
}

TEST(DatesOfTheActs, AreStoredAlone) {
    MemoryFileSystem files;
    layElection(files, europee, 2);
    auto expected = filesOf(files, europee);
    expected["Duedate.vbn"] = "20-04-2430-04-24";
    ASSERT_THAT(storeActDates(files, europee, "20/4/24", "30-04-24"), Succeeds());
    EXPECT_EQ(filesOf(files, europee), expected);
}

}  // namespace
}  // namespace vorbano::test
