#include "overtime/staff.h"

#include "storage/failing_file_system.h"
#include "stored_election.h"

namespace vorbano::test {
namespace {

using ::testing::ElementsAre;

PeriodTotals used(FileSystem& files, const Election& election, const LateInUse& late, int leftOut = 0,
                  const PeriodTotals& instead = {}) {
    const auto totals = usedHours(files, election, late, leftOut, instead);
    EXPECT_THAT(totals, Succeeds());
    return totals.valueOr({});
}

TEST(LatePeriods, AreInUseByTheRuleOfTheScreen) {
    EXPECT_THAT(lateInUse({"Comunali", "09-06-13"}, PeriodRule::elimina), ElementsAre(true, false));
    EXPECT_THAT(lateInUse({"Referendum", "09-06-13"}, PeriodRule::elimina), ElementsAre(false, false));
    EXPECT_THAT(lateInUse({"Referendum", "09-06-13"}, PeriodRule::modDate), ElementsAre(true, false));
    EXPECT_THAT(lateInUse({"Comunali", "09-06-13"}, PeriodRule::modStraord), ElementsAre(false, false));
    EXPECT_THAT(lateInUse({"Referendum", "09-06-13"}, PeriodRule::modStraord), ElementsAre(true, false));
    EXPECT_THAT(lateInUse(fivePeriods, PeriodRule::modStraord), ElementsAre(true, true));
    EXPECT_THAT(lateInUse({"Europee_Comunali", "09-06-14"}, PeriodRule::modStraord), ElementsAre(false, false));
}

TEST(UsedHours, AreTheAuthorisedHoursOfAllEmployees) {
    MemoryFileSystem files;
    layElection(files, fivePeriods, 3);
    // (10+4+2) + (11+4+2) + (12+4+2); (5+3+1) + (5+3+2) + (5+3+3); none; 8+1, +2, +3 more; 9+1, +2, +3 more.
    EXPECT_THAT(used(files, fivePeriods, bothLate), ElementsAre(51, 30, 0, 9 + 10 + 11, 10 + 11 + 12));
    EXPECT_THAT(used(files, fivePeriods, noLate), ElementsAre(51, 30, 0, 0, 0));
}

TEST(UsedHours, CanDoWithoutAnEmployee) {
    MemoryFileSystem files;
    layElection(files, fivePeriods, 3);
    EXPECT_THAT(used(files, fivePeriods, bothLate, 2), ElementsAre(34, 20, 0, 20, 22));
    EXPECT_THAT(used(files, fivePeriods, bothLate, 2, {1, 2, 3, 4, 5}), ElementsAre(35, 22, 3, 24, 27));
}

TEST(UsedHours, OfAnEmptyFileAreNone) {
    MemoryFileSystem files;
    ASSERT_TRUE(lay(files, employeesOf(europee), ""));
    EXPECT_THAT(used(files, europee, bothLate), ElementsAre(0, 0, 0, 0, 0));
    EXPECT_THAT(usedHours(files, {"Europee", "10-06-24"}, noLate), Fails(Failure::missingFolder));
    EXPECT_THAT(usedHours(files, {"..", "10-06-24"}, noLate), Fails(Failure::badName));
}

TEST(StoredEmployee, HasItsFivePeriods) {
    MemoryFileSystem files;
    layElection(files, fivePeriods, 3);
    const auto employee = readEmployee(files, fivePeriods, bothLate, 2);
    ASSERT_THAT(employee, Succeeds());
    EXPECT_EQ(employee->record.name.trimmed(), "DIPENDENTE 2");
    EXPECT_EQ(employee->period(1).authorised[0], 11);
    EXPECT_EQ(employee->period(2).authorised[2], 2);
    EXPECT_EQ(employee->period(3).from.trimmed(), "//");
    EXPECT_EQ(employee->period(4).authorised[0], 7);
    EXPECT_EQ(employee->period(4).from.trimmed(), "25-05-13");
    EXPECT_EQ(employee->period(5).authorised[0], 8);
    EXPECT_EQ(employee->period(5).to.trimmed(), "12-06-13");
    EXPECT_EQ(employee->period(5).totalPaid, 2);
}

TEST(StoredEmployee, IsOneOfTheFile) {
    MemoryFileSystem files;
    layElection(files, europee, 3);
    EXPECT_THAT(readEmployee(files, europee, noLate, 0), Fails(Failure::notFound));
    EXPECT_THAT(readEmployee(files, europee, noLate, 4), Fails(Failure::notFound));
    EXPECT_THAT(readEmployee(files, {"Europee", "10-06-24"}, noLate, 1), Fails(Failure::missingFolder));
}

TEST(StoredEmployee, WithoutALateRecordIsLeftOutOfThatPeriod) {
    MemoryFileSystem files;
    layElection(files, europee, 1);
    const auto employee = readEmployee(files, europee, bothLate, 1);
    ASSERT_THAT(employee, Succeeds());
    EXPECT_FALSE(employee->late[0] || employee->late[1]);
    EXPECT_EQ(employee->period(4).from.trimmed(), "//");
    EXPECT_EQ(employee->period(5).to.trimmed(), "//");
    EXPECT_EQ(sumOf(employee->period(4).authorised), 0);
}

TEST(Spans, AreThoseOfThePeriodsInUse) {
    MemoryFileSystem files;
    layElection(files, fivePeriods, 1);
    const auto employee = readEmployee(files, fivePeriods, bothLate, 1);
    ASSERT_THAT(employee, Succeeds());
    const auto all = spansOf(*employee, bothLate);
    ASSERT_TRUE(all[0] && all[2] && all[4]);
    EXPECT_EQ(all[0]->from, "15-04-24");
    EXPECT_TRUE(all[2]->isExcluded());
    EXPECT_EQ(all[4]->to, "12-06-13");
    const auto early = spansOf(*employee, {true, false});
    EXPECT_TRUE(early[3]);
    EXPECT_FALSE(early[4]);
}

TEST(Staff, IsReadInOrderWithItsLatePeriods) {
    MemoryFileSystem files;
    layElection(files, fivePeriods, 3);
    ASSERT_TRUE(lay(files, pathIn(fivePeriods, pentiumFile), lateBytes(2, 1)));
    const auto staff = readStaff(files, fivePeriods, bothLate);
    ASSERT_THAT(staff, Succeeds());
    ASSERT_EQ(staff->size(), 3U);
    EXPECT_EQ((*staff)[2].record.name.trimmed(), "DIPENDENTE 3");
    EXPECT_EQ((*staff)[2].late[0]->authorised[1], 3);
    EXPECT_EQ((*staff)[1].late[1]->authorised[1], 2);
    EXPECT_FALSE((*staff)[2].late[1]) << "its file ends before";
}

TEST(Search, TellsTheNumberOfEmployees) {
    MemoryFileSystem files;
    layElection(files, europee, 3);
    EXPECT_THAT(searchElection(files, europee), Gives(3));
    EXPECT_THAT(searchElection(files, {"Europee", "10-06-24"}), Fails(Failure::missingFolder));
    ASSERT_TRUE(files.makeFolder("Elezioni/Europee/10-06-24"));
    EXPECT_THAT(searchElection(files, {"Europee", "10-06-24"}), Gives(0));
}

TEST(LateRecords, AreMadeOnFirstUse) {
    MemoryFileSystem files;
    layElection(files, europee, 2);
    ASSERT_THAT(createLateRecords(files, europee, {true, false}), Succeeds());
    const std::string first = Sheet(241)
                                  .integersAt(0, {40, 9, 80, 373, 1, 2})
                                  .at(12, padded("DIPENDENTE 1", 60))
                                  .at(72, "//      ")
                                  .at(80, "//      ")
                                  .integersAt(88, {0, 0, 0, 0, 0, 0, 0, 25, 5, 3, 1, 9})
                                  .at(112, "G    B6")
                                  .at(119, padded("-", 10))
                                  .amountsAt(129, {1201, 1501, 1701, 10001, 2380, 2001, 850, 801, 2802, 880, 901, 35})
                                  .amountsAt(225, {31, 932})
                                  .bytes();
    const std::string content = contentOf(files, pathIn(europee, quartumFile));
    ASSERT_EQ(content.size(), 482U);
    EXPECT_EQ(toHex(content.substr(0, 241)), toHex(first));
    EXPECT_EQ(content.substr(241 + 12, 12), "DIPENDENTE 2");
    EXPECT_EQ(contentOf(files, pathIn(europee, pentiumFile)), noFile);
}

TEST(LateRecords, ThatAreThereStayAndGiveTheDates) {
    MemoryFileSystem files;
    layElection(files, fivePeriods, 3);
    ASSERT_TRUE(lay(files, pathIn(fivePeriods, quartumFile), bytesOf(lateOf(1, 3, 0))));
    const std::string pentium = contentOf(files, pathIn(fivePeriods, pentiumFile));
    ASSERT_THAT(createLateRecords(files, fivePeriods, bothLate), Succeeds());
    const auto records = recordsIn<LatePeriodRecord>(files, pathIn(fivePeriods, quartumFile));
    ASSERT_EQ(records.size(), 3U);
    EXPECT_EQ(toHex(bytesOf(records[0])), toHex(bytesOf(lateOf(1, 3, 0))));
    EXPECT_EQ(records[2].from.trimmed(), "25-05-13");
    EXPECT_EQ(records[2].to.trimmed(), "02-06-13");
    EXPECT_EQ(records[2].pools.SonoDip, 3);
    EXPECT_EQ(sumOf(records[2].authorised), 0);
    EXPECT_EQ(contentOf(files, pathIn(fivePeriods, pentiumFile)), pentium);
    EXPECT_EQ(filesOf(files, fivePeriods).size(), 6U) << "no companion is left";
}

TEST(LateRecords, ThatAreAllThereAreOnlyRead) {
    MemoryFileSystem files;
    layElection(files, fivePeriods, 3);
    FailingFileSystem counting(files);
    ASSERT_THAT(createLateRecords(counting, fivePeriods, bothLate), Succeeds());
    EXPECT_LE(counting.operations(), 9) << "three files opened, counted and read";
}

TEST(ListOfHours, HasALineForEachEmployeeAndTheTotals) {
    MemoryFileSystem files;
    layElection(files, fivePeriods, 2);
    const auto lines = elencami(files, fivePeriods, bothLate, 1, HoursShown::authorised);
    ASSERT_THAT(lines, Succeeds());
    ASSERT_EQ(lines->size(), 3U);
    EXPECT_EQ((*lines)[0].name, "DIPENDENTE 1");
    EXPECT_THAT((*lines)[0].hours, ElementsAre(10, 4, 2));
    EXPECT_EQ((*lines)[0].total, 16);
    EXPECT_EQ((*lines)[2].name, "Totali");
    EXPECT_THAT((*lines)[2].hours, ElementsAre(21, 8, 4));
    EXPECT_EQ((*lines)[2].total, 33);
}

TEST(ListOfHours, ShowsThePaidHoursOfALatePeriod) {
    MemoryFileSystem files;
    layElection(files, fivePeriods, 2);
    const auto lines = elencami(files, fivePeriods, bothLate, 5, HoursShown::paid);
    ASSERT_THAT(lines, Succeeds());
    EXPECT_EQ((*lines)[1].name, "DIPENDENTE 2");
    EXPECT_THAT((*lines)[1].hours, ElementsAre(1, 0, 1));
    EXPECT_THAT((*lines)[2].hours, ElementsAre(2, 0, 2));
    EXPECT_EQ((*lines)[2].total, 4);
}

TEST(ListOfHours, OfNobodyIsTheTotalsAlone) {
    MemoryFileSystem files;
    ASSERT_TRUE(lay(files, employeesOf(europee), ""));
    const auto lines = elencami(files, europee, noLate, 2, HoursShown::paid);
    ASSERT_THAT(lines, Succeeds());
    ASSERT_EQ(lines->size(), 1U);
    EXPECT_EQ(lines->front().name, "Totali");
    EXPECT_EQ(lines->front().total, 0);
}

}  // namespace
}  // namespace vorbano::test
