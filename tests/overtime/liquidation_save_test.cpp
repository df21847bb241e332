#include "overtime/liquidation_save.h"

#include "stored_election.h"

namespace vorbano::test {
namespace {

using ::testing::ElementsAre;

/// Employee 2 with other hours: 14 executed instead of 9.
Liquidation corrected(const StoredEmployee& employee) {
    Liquidation values = liquidationOf(employee);
    values.name = "BIANCHI ANNA";
    values.periods[0] = {.authorised = {21, 22, 23}, .paid = {4, 3, 2}, .totalPaid = 9};
    values.periods[1] = {.authorised = {31, 32, 33}, .paid = {1, 1, 1}, .totalPaid = 3};
    values.periods[2] = {.authorised = {41, 42, 43}, .paid = {0, 0, 0}, .totalPaid = 0};
    values.periods[3] = {.authorised = {51, 52, 53}, .paid = {1, 0, 0}, .totalPaid = 1};
    values.periods[4] = {.authorised = {61, 62, 63}, .paid = {0, 1, 0}, .totalPaid = 1};
    values.totAut = 630;
    values.executed = {6, 5, 3};
    values.totEseg = 14;
    values.lblCat = "D3";
    values.lblCat2 = "-";
    values.pay.rates = {cent(1111), cent(1212), cent(1313)};
    values.pay.Dovuto = cent(16665);
    values.pay.AliCpDip = cent(881);
    return values;
}

Liquidation correctedSecond(FileSystem& files, const Election& election, const LateInUse& late) {
    const auto employee = readEmployee(files, election, late, 2);
    EXPECT_THAT(employee, Succeeds());
    return employee ? corrected(*employee) : Liquidation{};
}

std::vector<int> hoursUsed(FileSystem& files, const Election& election) {
    std::vector<int> used;
    for (const EmployeeRecord& record : staffOf(files, election)) used.emplace_back(record.pools.MoUtil);
    return used;
}

TEST(SaveOfALiquidation, StoresTheRecordByteByByte) {
    MemoryFileSystem files;
    layElection(files, europee, 4);
    const Liquidation values = correctedSecond(files, europee, noLate);
    ASSERT_THAT(saveLiquidation(files, europee, noLate, 2, values), Succeeds());
    const std::string expected =
        Sheet(301)
            .integersAt(0, {40, 23, 160, 373, 2, 4})  // 18 and 5 more hours
            .at(12, padded("BIANCHI ANNA", 60))
            .at(72, "15-04-24")
            .at(80, "14-05-24")
            .integersAt(88, {21, 22, 23, 4, 3, 2, 9})
            .at(102, "15-05-24")
            .at(110, "24-05-24")
            .integersAt(118, {31, 32, 33, 1, 1, 1, 3})
            .at(132, "//      ")
            .at(140, "//      ")
            .integersAt(148, {41, 42, 43, 0, 0, 0, 0})
            .integersAt(162, {630, 6, 5, 3, 14})
            .at(172, padded("D3", 7))
            .at(179, padded("-", 10))
            .amountsAt(189, {1111, 1212, 1313, 16665, 2380, 2002, 850, 802, 2804, 881, 902, 35, 32, 934})
            .bytes();
    EXPECT_EQ(toHex(contentOf(files, employeesOf(europee)).substr(301, 301)), toHex(expected));
}

TEST(SaveOfALiquidation, ChangesOfTheOthersTheHoursUsedAlone) {
    MemoryFileSystem files;
    layElection(files, europee, 4);
    ASSERT_THAT(saveLiquidation(files, europee, noLate, 2, correctedSecond(files, europee, noLate)), Succeeds());
    const std::string content = contentOf(files, employeesOf(europee));
    ASSERT_EQ(content.size(), 4U * 301);
    EXPECT_EQ(toHex(content.substr(0, 301)), toHex(bytesOf(employeeOf(1, 4))));
    for (const int n : {3, 4}) {
        std::string other = bytesOf(employeeOf(n, 4));
        other.replace(2, 2, le16(9 * n + 5));
        EXPECT_EQ(toHex(content.substr(static_cast<std::size_t>(n - 1) * 301, 301)), toHex(other)) << n;
    }
}

TEST(SaveOfALiquidation, OfTheLastEmployeeTouchesNobodyElse) {
    MemoryFileSystem files;
    layElection(files, europee, 3);
    const auto employee = readEmployee(files, europee, noLate, 3);
    ASSERT_THAT(employee, Succeeds());
    ASSERT_THAT(saveLiquidation(files, europee, noLate, 3, corrected(*employee)), Succeeds());
    EXPECT_THAT(hoursUsed(files, europee), ElementsAre(9, 18, 32));
}

TEST(SaveOfALiquidation, GivenAgainAddsNothingTwice) {
    MemoryFileSystem files;
    layElection(files, europee, 4);
    const Liquidation values = correctedSecond(files, europee, noLate);
    ASSERT_THAT(saveLiquidation(files, europee, noLate, 2, values), Succeeds());
    const auto once = filesOf(files, europee);
    EXPECT_THAT(hoursUsed(files, europee), ElementsAre(9, 23, 32, 41));
    ASSERT_THAT(saveLiquidation(files, europee, noLate, 2, values), Succeeds());
    EXPECT_EQ(filesOf(files, europee), once);
}

TEST(SaveOfALiquidation, WithFewerHoursTakesThemOff) {
    MemoryFileSystem files;
    layElection(files, europee, 4);
    const auto employee = readEmployee(files, europee, noLate, 1);
    ASSERT_THAT(employee, Succeeds());
    Liquidation values = liquidationOf(*employee);
    values.totEseg = 0;
    ASSERT_THAT(saveLiquidation(files, europee, noLate, 1, values), Succeeds());
    EXPECT_THAT(hoursUsed(files, europee), ElementsAre(0, 9, 18, 27));
}

TEST(SaveOfALiquidation, OfWhatIsStoredChangesNothing) {
    MemoryFileSystem files;
    layElection(files, fivePeriods, 3);
    const auto before = filesOf(files, fivePeriods);
    const auto employee = readEmployee(files, fivePeriods, bothLate, 2);
    ASSERT_THAT(employee, Succeeds());
    ASSERT_THAT(saveLiquidation(files, fivePeriods, bothLate, 2, liquidationOf(*employee)), Succeeds());
    EXPECT_EQ(filesOf(files, fivePeriods), before);
}

TEST(SaveOfALiquidation, HoldsAmountsRatesAndPercentagesToTwoDecimals) {
    MemoryFileSystem files;
    layElection(files, europee, 1);
    const auto employee = readEmployee(files, europee, noLate, 1);
    ASSERT_THAT(employee, Succeeds());
    Liquidation values = liquidationOf(*employee);
    values.pay.rates[1] = Currency::fromUnits(123'450);
    values.pay.Dovuto = Currency::fromUnits(100'050);
    values.pay.AliFonCre = Currency::fromUnits(3'549);
    values.pay.TotaleContr = Currency::fromUnits(-50);
    ASSERT_THAT(saveLiquidation(files, europee, noLate, 1, values), Succeeds());
    const Pay pay = staffOf(files, europee).front().pay;
    EXPECT_EQ(pay.rates[1], cent(1235));
    EXPECT_EQ(pay.Dovuto, cent(1001));
    EXPECT_EQ(pay.AliFonCre, cent(35));
    EXPECT_EQ(pay.TotaleContr, cent(-1));
}

TEST(SaveOfALiquidation, StoresTheFourthAndFifthPeriodByteByByte) {
    MemoryFileSystem files;
    layElection(files, fivePeriods, 3);
    ASSERT_THAT(saveLiquidation(files, fivePeriods, bothLate, 2, correctedSecond(files, fivePeriods, bothLate)),
                Succeeds());
    for (const auto& [file, late] : {std::pair{quartumFile, 0}, {pentiumFile, 1}}) {
        const std::string content = contentOf(files, pathIn(fivePeriods, file));
        ASSERT_EQ(content.size(), 3U * 241);
        const bool fourth = late == 0;
        const std::string expected =
            Sheet(241)
                .integersAt(0, {40, 18, 120, 373, 2, 3})
                .at(12, padded("DIPENDENTE 2", 60))
                .at(72, fourth ? "25-05-13" : "03-06-13")
                .at(80, fourth ? "02-06-13" : "12-06-13")
                .integersAt(88, {fourth ? 51 : 61, fourth ? 52 : 62, fourth ? 53 : 63, fourth ? 1 : 0, fourth ? 0 : 1,
                                 0, 1, 630, 6, 5, 3, 14})
                .at(112, padded("D3", 7))
                .at(119, padded("-", 10))
                .amountsAt(129, {1111, 1212, 1313, 16665, 2380, 2002, 850, 802, 2804, 881, 902, 35, 32, 934})
                .bytes();
        EXPECT_EQ(toHex(content.substr(241, 241)), toHex(expected)) << file;
        EXPECT_EQ(toHex(content.substr(0, 241)), toHex(bytesOf(lateOf(1, 3, late))));
        EXPECT_EQ(toHex(content.substr(482)), toHex(bytesOf(lateOf(3, 3, late))));
    }
}

TEST(SaveOfALiquidation, MakesTheLateRecordsThatAreNotThere) {
    MemoryFileSystem files;
    layElection(files, europee, 3);
    ASSERT_THAT(saveLiquidation(files, europee, {true, false}, 2, correctedSecond(files, europee, noLate)), Succeeds());
    const auto records = recordsIn<LatePeriodRecord>(files, pathIn(europee, quartumFile));
    ASSERT_EQ(records.size(), 3U);
    EXPECT_EQ(sumOf(records[0].authorised), 0);
    EXPECT_EQ(records[1].authorised[2], 53);
    EXPECT_EQ(records[1].totalExecuted, 14);
    EXPECT_EQ(records[2].name.trimmed(), "DIPENDENTE 3");
}

TEST(SaveOfALiquidation, KeepsHoursUsedThatWouldNotFit) {
    MemoryFileSystem files;
    layElection(files, europee, 3);
    auto staff = staffOf(files, europee);
    staff[1].pools.MoUtil = 32765;
    staff[2].pools.MoUtil = 32760;
    ASSERT_TRUE(lay(files, employeesOf(europee), bytesOf(staff[0]) + bytesOf(staff[1]) + bytesOf(staff[2])));
    ASSERT_THAT(saveLiquidation(files, europee, noLate, 2, correctedSecond(files, europee, noLate)), Succeeds());
    EXPECT_THAT(hoursUsed(files, europee), ElementsAre(9, 32765, 32765)) << "the second would be 32770";
    EXPECT_EQ(staffOf(files, europee)[1].totEseg, 14);
}

TEST(SaveOfALiquidation, OfTheLargestNumbersDoesNotCrash) {
    MemoryFileSystem files;
    layElection(files, europee, 2);
    auto staff = staffOf(files, europee);
    staff[0].totEseg = -32768;
    staff[0].pools.MoUtil = 32767;
    ASSERT_TRUE(lay(files, employeesOf(europee), bytesOf(staff[0]) + bytesOf(staff[1])));
    const auto employee = readEmployee(files, europee, noLate, 1);
    ASSERT_THAT(employee, Succeeds());
    Liquidation values = liquidationOf(*employee);
    values.totEseg = 32767;
    ASSERT_THAT(saveLiquidation(files, europee, noLate, 1, values), Succeeds());
    EXPECT_THAT(hoursUsed(files, europee), ElementsAre(32767, 18));
}

TEST(SaveOfALiquidation, OfNobodyFailsAndChangesNothing) {
    MemoryFileSystem files;
    layElection(files, fivePeriods, 2);
    const auto before = filesOf(files, fivePeriods);
    const Liquidation values = correctedSecond(files, fivePeriods, bothLate);
    EXPECT_THAT(saveLiquidation(files, fivePeriods, bothLate, 3, values), Fails(Failure::notFound));
    EXPECT_THAT(saveLiquidation(files, fivePeriods, bothLate, 0, values), Fails(Failure::notFound));
    EXPECT_THAT(saveLiquidation(files, {"Europee", "10-06-24"}, noLate, 1, values), Fails(Failure::missingFolder));
    EXPECT_EQ(filesOf(files, fivePeriods), before);
}

TEST(NameOfAnEmployee, IsStoredAlone) {
    MemoryFileSystem files;
    layElection(files, fivePeriods, 3);
    auto expected = filesOf(files, fivePeriods);
    expected["09-06-13.vbn"].replace(301 + 12, 60, padded("DE LUC\xC0 MARIA", 60));
    ASSERT_THAT(storeEmployeeName(files, fivePeriods, 2, "  DE LUCÀ MARIA "), Succeeds());
    EXPECT_EQ(filesOf(files, fivePeriods), expected);
    EXPECT_THAT(storeEmployeeName(files, fivePeriods, 4, "NESSUNO"), Fails(Failure::notFound));
    EXPECT_EQ(filesOf(files, fivePeriods), expected);
}

}  // namespace
}  // namespace vorbano::test
