// Employees of a stored election at the rates of the other version.

#include "parameters/election_rewrite.h"

#include <gtest/gtest.h>

#include "storage/memory_file_system.h"
#include "support/bytes.h"
#include "support/cent.h"
#include "support/expected_tariffs.h"
#include "support/laid_out_records.h"
#include "support/results.h"

namespace vorbano::test {
namespace {

/// Row n (from 1) has the `Day` rate n,01.
DayRates distinctDays() {
    DayRates days;
    for (int n = 1; n <= 32; ++n) days[static_cast<std::size_t>(n) - 1] = cent(distinctCents(n, 0));
    return days;
}

EmployeeRecord employee(std::string_view grade, Currency day) {
    EmployeeRecord record{};
    record.lblCat = grade;
    record.pay.rates[0] = day;
    return record;
}

/// The row's number from 1; 0 for none.
int rowOf(const EmployeeRecord& record, const DayRates& days, const RewriteDirection& direction) {
    const auto row = rowPaidBy(record, days, direction);
    return row ? static_cast<int>(*row) + 1 : 0;
}

TEST(RowPaidBy, IsAnyOfAllRowsOnTheWayToTheNewTariffs) {
    for (int n = 1; n <= 32; ++n) {
        const auto& row = expectedRows[static_cast<std::size_t>(n) - 1];
        EXPECT_EQ(rowOf(employee(row.grade, cent(n * 100 + 1)), distinctDays(), toNewTariffs), n) << row.key;
    }
}

TEST(RowPaidBy, IsAnyOfTheFirstTwentyTwoOnTheWayBack) {
    for (int n = 1; n <= 32; ++n) {
        const auto& row = expectedRows[static_cast<std::size_t>(n) - 1];
        const int expected = n <= 22 ? n : 0;
        EXPECT_EQ(rowOf(employee(row.grade, cent(n * 100 + 1)), distinctDays(), toOldTariffs), expected) << row.key;
    }
}

TEST(RowPaidBy, IsNotToldByTheGradeButForTwoRows) {
    for (int n = 1; n <= 32; ++n) {
        const int expected = n == 6 || n == 7 ? 0 : n;
        EXPECT_EQ(rowOf(employee("Z9", cent(n * 100 + 1)), distinctDays(), toNewTariffs), expected) << n;
    }
}

TEST(RowPaidBy, OfD1AndC4IsForTheseGradesOnTheWayToTheNewTariffs) {
    const Currency ofD1 = cent(601);
    const Currency ofC4 = cent(701);
    EXPECT_EQ(rowOf(employee("D1", ofD1), distinctDays(), toNewTariffs), 6);
    EXPECT_EQ(rowOf(employee(" D1 ", ofD1), distinctDays(), toNewTariffs), 6);
    EXPECT_EQ(rowOf(employee("C4", ofC4), distinctDays(), toNewTariffs), 7);
    for (const char* other : {"D2", "C3", "", "D10", "d1"}) {
        EXPECT_EQ(rowOf(employee(other, ofD1), distinctDays(), toNewTariffs), 0) << other;
        EXPECT_EQ(rowOf(employee(other, ofC4), distinctDays(), toNewTariffs), 0) << other;
    }
    EXPECT_EQ(rowOf(employee("C4", ofD1), distinctDays(), toNewTariffs), 0);
    EXPECT_EQ(rowOf(employee("D1", ofC4), distinctDays(), toNewTariffs), 0);
}

TEST(RowPaidBy, OfD1AndC4IsForAnybodyOnTheWayBack) {
    EXPECT_EQ(rowOf(employee("D2", cent(601)), distinctDays(), toOldTariffs), 6);
    EXPECT_EQ(rowOf(employee("C3", cent(701)), distinctDays(), toOldTariffs), 7);
}

TEST(RowPaidBy, OfD1AndC4IsSkippedForTheNeighbourWithTheSameRate) {
    DayRates days = distinctDays();
    for (const std::size_t at : {5U, 6U, 7U}) days[at] = cent(1310);  // D1, C4, C3
    EXPECT_EQ(rowOf(employee("D1", cent(1310)), days, toNewTariffs), 6);
    EXPECT_EQ(rowOf(employee("C4", cent(1310)), days, toNewTariffs), 7);
    EXPECT_EQ(rowOf(employee("C3", cent(1310)), days, toNewTariffs), 8);
    EXPECT_EQ(rowOf(employee("B2", cent(1310)), days, toNewTariffs), 8);
    for (const char* grade : {"D1", "C4", "C3"})
        EXPECT_EQ(rowOf(employee(grade, cent(1310)), days, toOldTariffs), 6) << grade;
}

TEST(RowPaidBy, IsTheFirstOfTwoWithTheSameRate) {
    DayRates days = distinctDays();
    days[2] = days[25] = cent(9999);
    EXPECT_EQ(rowOf(employee("D4", cent(9999)), days, toNewTariffs), 3);
    EXPECT_EQ(rowOf(employee("D4", cent(9999)), days, toOldTariffs), 3);
}

TEST(RowPaidBy, IsNoneForARateOfNoVersion) {
    for (const std::int64_t units : {10'099, 10'101, 0, -10'100}) {
        const auto record = employee("B8", Currency::fromUnits(units));
        EXPECT_EQ(rowOf(record, distinctDays(), toNewTariffs), 0) << units;
        EXPECT_EQ(rowOf(record, distinctDays(), toOldTariffs), 0) << units;
    }
}

TEST(RowPaidBy, OfARateOfZeroIsTheFirstRowThatHasZero) {
    DayRates days = distinctDays();
    days[3] = days[9] = Currency();
    EXPECT_EQ(rowOf(employee("D3", Currency()), days, toNewTariffs), 4);
    days[3].reset();
    EXPECT_EQ(rowOf(employee("D3", Currency()), days, toNewTariffs), 10) << "a row without a rate is nobody's";
}

Rates rates(std::int64_t day, std::int64_t fn, std::int64_t nf) { return {cent(day), cent(fn), cent(nf)}; }

EmployeeRecord worked(HoursByKind hours, std::int64_t cpStato, std::int64_t irap, std::int64_t cpDip,
                      std::int64_t fonCre) {
    EmployeeRecord record{};
    record.executed = hours;
    record.pay.AliCpStato = cent(cpStato);
    record.pay.AliIrap = cent(irap);
    record.pay.AliCpDip = cent(cpDip);
    record.pay.AliFonCre = cent(fonCre);
    return record;
}

TEST(AtRates, PricesTheExecutedHours) {
    const Pay pay = atRates(worked({25, 15, 1}, 2380, 850, 880, 35), rates(1300, 1600, 1800)).pay;
    EXPECT_EQ(pay.rates[0], cent(1300));
    EXPECT_EQ(pay.rates[1], cent(1600));
    EXPECT_EQ(pay.rates[2], cent(1800));
    EXPECT_EQ(pay.Dovuto, cent(58'300)) << "25 x 13 + 15 x 16 + 1 x 18";
    EXPECT_EQ(pay.CpStato, cent(13'875)) << "138,754";
    EXPECT_EQ(pay.Irap, cent(4'956)) << "49,555";
    EXPECT_EQ(pay.TotaleSpesa, cent(18'831)) << "188,309";
    EXPECT_EQ(pay.CpDip, cent(5'130)) << "51,304";
    EXPECT_EQ(pay.FonCre, cent(204)) << "2,0405";
    EXPECT_EQ(pay.TotaleContr, cent(5'334)) << "53,3445";
}

TEST(AtRates, RoundsATotalByItselfAndNotItsParts) {
    // 8,84 % and 8,54 % of 10,00 are 0,884 and 0,854: 0,88 and 0,85, but together 1,738.
    const Pay up = atRates(worked({1, 0, 0}, 884, 854, 884, 854), rates(1000, 0, 0)).pay;
    EXPECT_EQ(up.CpStato, cent(88));
    EXPECT_EQ(up.Irap, cent(85));
    EXPECT_EQ(up.TotaleSpesa, cent(174));
    EXPECT_EQ(up.TotaleContr, cent(174));
    // 8,86 % and 8,56 %: 0,89 and 0,86, but together 1,742.
    const Pay down = atRates(worked({1, 0, 0}, 886, 856, 886, 856), rates(1000, 0, 0)).pay;
    EXPECT_EQ(down.CpStato, cent(89));
    EXPECT_EQ(down.Irap, cent(86));
    EXPECT_EQ(down.TotaleSpesa, cent(174));
    EXPECT_EQ(down.TotaleContr, cent(174));
}

TEST(AtRates, HoldsPartsToFourDecimalsFirst) {
    // Of 141,42: 8,80 % is 12,444960 and so 12,4450; 0,35 % is 0,494970 and so 0,4950; together 12,9400.
    const Pay pay = atRates(worked({0, 1, 0}, 0, 0, 880, 35), rates(0, 14'142, 0)).pay;
    EXPECT_EQ(pay.Dovuto, cent(14'142));
    EXPECT_EQ(pay.CpDip, cent(1'245));
    EXPECT_EQ(pay.FonCre, cent(50));
    EXPECT_EQ(pay.TotaleContr, cent(1'294));
}

TEST(AtRates, TakesAmountsFromRatesNotYetRounded) {
    const Rates asTyped = {Currency::fromUnits(100'050), Currency(), Currency()};
    const Pay pay = atRates(worked({2, 0, 0}, 1000, 0, 0, 0), asTyped).pay;
    EXPECT_EQ(pay.rates[0], cent(1'001)) << "10,005";
    EXPECT_EQ(pay.Dovuto, cent(2'001)) << "2 x 10,005, not 2 x 10,01";
    EXPECT_EQ(pay.CpStato, cent(200)) << "2,001";
}

TEST(AtRates, OfNoHoursAreZero) {
    auto record = worked({0, 0, 0}, 2380, 850, 880, 35);
    record.pay.Dovuto = cent(12'345);
    record.pay.TotaleContr = cent(1'130);
    const Pay pay = atRates(record, rates(1300, 1600, 1800)).pay;
    EXPECT_EQ(pay.rates[2], cent(1800));
    EXPECT_EQ(pay.Dovuto, Currency());
    EXPECT_EQ(pay.TotaleSpesa, Currency());
    EXPECT_EQ(pay.TotaleContr, Currency());
}

TEST(AtRates, KeepEverythingElse) {
    auto before = recordFrom<EmployeeRecord>(employeeBytes());
    const std::string after = bytesOf(atRates(before, rates(1300, 1600, 1800)));
    EXPECT_EQ(toHex(after.substr(0, 189)), toHex(employeeBytes().substr(0, 189)));
    for (const std::size_t percentage : {221U, 237U, 261U, 277U})
        EXPECT_EQ(after.substr(percentage, 8), employeeBytes().substr(percentage, 8)) << percentage;
}

class Rewrite : public ::testing::Test {
  protected:
    const Election election{"Europee", "09-06-24"};
    const std::string path = "Elezioni/Europee/09-06-24/09-06-24.vbn";
    /// The employee of the laid out bytes has 12,34 and the grade of row 11.
    static std::string bytesAt(std::initializer_list<int> amounts) {
        std::string bytes = employeeBytes();
        std::size_t at = 189;
        for (const int cents : amounts) {
            bytes.replace(at, 8, amount(0, cents));
            at += 8;
        }
        return bytes;
    }
    const std::string old = employeeBytes();
    const std::string rewritten =
        bytesAt({1300, 1600, 1800, 58'300, 2380, 13'875, 850, 4'956, 18'831, 880, 5'130, 35, 204, 5'334});
    const std::string stranger = bytesAt({1235, 1555});

    static DayRates paidBy(std::size_t row, int cents) {
        DayRates days = distinctDays();
        days[row] = cent(cents);
        return days;
    }
    static RateTable tableWith(std::size_t row, const Rates& rates) {
        RateTable table{};
        table[row] = rates;
        return table;
    }
    MemoryFileSystem files;
};

TEST_F(Rewrite, ChangesTheEmployeesOfARowAndLeavesTheOthersEveryByte) {
    ASSERT_TRUE(lay(files, path, old + stranger + old));
    ASSERT_THAT(
        rewriteElection(files, election, paidBy(10, 1234), tableWith(10, rates(1300, 1600, 1800)), toNewTariffs),
        Succeeds());
    EXPECT_EQ(toHex(contentOf(files, path)), toHex(rewritten + stranger + rewritten));
    EXPECT_EQ(contentOf(files, "Elezioni/Europee/09-06-24/Reverse.vbn"), noFile);
}

TEST_F(Rewrite, GivenAgainChangesNoByte) {
    ASSERT_TRUE(lay(files, path, old + stranger));
    for (int time = 0; time < 2; ++time) {
        ASSERT_THAT(
            rewriteElection(files, election, paidBy(10, 1234), tableWith(10, rates(1300, 1600, 1800)), toNewTariffs),
            Succeeds());
        EXPECT_EQ(toHex(contentOf(files, path)), toHex(rewritten + stranger));
    }
}

TEST_F(Rewrite, BackLeavesTheRowsThatWereAddedLater) {
    const RateTable rowC5 = tableWith(26, rates(1300, 1600, 1800));
    ASSERT_TRUE(lay(files, path, old));
    ASSERT_THAT(rewriteElection(files, election, paidBy(26, 1234), rowC5, toOldTariffs), Succeeds());
    EXPECT_EQ(toHex(contentOf(files, path)), toHex(old));
    ASSERT_THAT(rewriteElection(files, election, paidBy(26, 1234), rowC5, toNewTariffs), Succeeds());
    EXPECT_EQ(toHex(contentOf(files, path)), toHex(rewritten));
}

TEST_F(Rewrite, OfAnElectionThatIsNotThereFails) {
    EXPECT_THAT(rewriteElection(files, election, distinctDays(), RateTable{}, toNewTariffs),
                Fails(Failure::missingFolder));
}

}  // namespace
}  // namespace vorbano::test
