// Which row of the rates an employee has, and what an adjustment comes to. The amounts are worked out by hand.

#include "parameters/adjustment.h"

#include <gmock/gmock.h>

#include <array>
#include <limits>
#include <ostream>
#include <string>

#include "adjusted_employees.h"

namespace vorbano {
namespace {

using test::euro;
using test::liquidatedEmployee;
using test::ratesOf;

/// An employee of the grade who was paid this `Day` rate has the row of the key.
struct RowCase {
    const char* grade;
    const char* rate;
    const char* key;
    const char* keyInFirstPeriod = nullptr;  ///< where the second run differs
};

void PrintTo(const RowCase& each, std::ostream* out) { *out << each.grade << " at " << each.rate; }

class RowOf : public ::testing::TestWithParam<RowCase> {};

EmployeeRecord paidAt(const RowCase& each) {
    EmployeeRecord employee{};
    employee.lblCat = each.grade;
    employee.pay.rates[0] = euro(each.rate);
    return employee;
}

TEST_P(RowOf, IsFoundByTheGradeAndTheOldRate) {
    EXPECT_EQ(adjustmentRow(paidAt(GetParam()), allPeriods), tariffRowOf(GetParam().key));
}

TEST_P(RowOf, IsTheSameInTheSecondRunButForD3) {
    const RowCase& each = GetParam();
    const char* key = each.keyInFirstPeriod == nullptr ? each.key : each.keyInFirstPeriod;
    EXPECT_EQ(adjustmentRow(paidAt(each), firstPeriod), tariffRowOf(key));
}

INSTANTIATE_TEST_SUITE_P(
    OneRate, RowOf,
    ::testing::Values(RowCase{"B8", "12,50", "D5"}, RowCase{"C6", "13,00", "D4"}, RowCase{"D7", "18,00", "D3a"},
                      RowCase{"D2", "13,00", "D2"}, RowCase{"D1", "12,50", "D1"}, RowCase{"C4", "12,40", "C4"},
                      RowCase{"C3", "12,00", "C3"}, RowCase{"C2", "11,80", "C2"}, RowCase{"C1", "11,50", "C1"},
                      RowCase{"G    B6", "11,00", "B6"}, RowCase{"G    B5", "10,90", "B5"},
                      RowCase{"G    B4", "10,80", "B4a"}, RowCase{"G    B3", "10,70", "B3a"},
                      RowCase{"B2", "10,50", "B2"}, RowCase{"B1", "10,30", "B1"}, RowCase{"A4", "10,20", "A4"},
                      RowCase{"A3", "10,10", "A3"}, RowCase{"A2", "9,90", "A2"}, RowCase{"A1", "9,80", "A1"},
                      RowCase{"A6", "10,60", "D6a"}, RowCase{"C5", "12,70", "C5"}, RowCase{"G    B7", "12,10", "B7a"},
                      RowCase{"A5", "10,40", "A5"}));

INSTANTIATE_TEST_SUITE_P(OldRates, RowOf,
                         ::testing::Values(RowCase{"D5", "16,37", "D5"}, RowCase{"D5", "17,20", "D5"},
                                           RowCase{"D4", "15,62", "D4"}, RowCase{"D4", "16,45", "D4"},
                                           RowCase{"D3", "14,92", "D3a", "D3b"}, RowCase{"D3", "15,75", "D3a", "D3b"},
                                           RowCase{"B6", "11,68", "B6"}, RowCase{"B6", "12,33", "B6"},
                                           RowCase{"B5", "11,46", "B5"}, RowCase{"B5", "12,11", "B5"},
                                           RowCase{"B4", "11,25", "B4a"}, RowCase{"B4", "11,90", "B4a"},
                                           RowCase{"B3", "11,07", "B3a"}, RowCase{"B3", "11,72", "B3a"},
                                           RowCase{"D6", "17,41", "D6a"}, RowCase{"D6", "18,36", "D6a"},
                                           RowCase{"B7", "12,02", "B7a"}, RowCase{"B7", "12,76", "B7a"}));

/// A cent from an old rate, or none of them, the grade alone decides.
INSTANTIATE_TEST_SUITE_P(
    OtherRates, RowOf,
    ::testing::Values(RowCase{"D5", "16,36", "D5b"}, RowCase{"D5", "17,21", "D5b"}, RowCase{"D5", "0,00", "D5b"},
                      RowCase{"D4", "15,61", "D4b"}, RowCase{"D4", "16,46", "D4b"}, RowCase{"D3", "14,91", "D3b"},
                      RowCase{"D3", "15,76", "D3b"}, RowCase{"B6", "11,67", "B6b"}, RowCase{"B6", "12,34", "B6b"},
                      RowCase{"B5", "11,45", "B5b"}, RowCase{"B5", "12,12", "B5b"}, RowCase{"B4", "11,24", "B4b"},
                      RowCase{"B4", "11,91", "B4b"}, RowCase{"B3", "11,06", "B3b"}, RowCase{"B3", "11,73", "B3b"},
                      RowCase{"D6", "17,40", "D6b"}, RowCase{"D6", "18,37", "D6b"}, RowCase{"B7", "12,01", "B7b"},
                      RowCase{"B7", "12,77", "B7b"}, RowCase{"D5", "1.016,37", "D5b"}));

/// The old rate of one grade says nothing about another.
INSTANTIATE_TEST_SUITE_P(RatesOfOthers, RowOf,
                         ::testing::Values(RowCase{"D5", "15,62", "D5b"}, RowCase{"D2", "14,92", "D2"},
                                           RowCase{"G    B6", "11,46", "B6"}, RowCase{"B8", "16,37", "D5"}));

/// The rate is compared as it is shown, with two decimals.
INSTANTIATE_TEST_SUITE_P(RatesWithMoreDecimals, RowOf,
                         ::testing::Values(RowCase{"D5", "16,3749", "D5"}, RowCase{"D5", "16,3650", "D5"},
                                           RowCase{"D5", "16,3750", "D5b"}, RowCase{"D5", "16,3649", "D5b"}));

TEST(RowOfAnEmployee, IsNoneForAGradeThatNoRowKnows) {
    for (const char* grade : {"", "S", "D8", "G B6", "B6    G", "b6", "SEGR", "8^ q.f."}) {
        for (const AdjustmentRun* run : {&allPeriods, &firstPeriod}) {
            EXPECT_EQ(adjustmentRow(paidAt({grade, "11,68", ""}), *run), -1) << grade;
        }
    }
}

TEST(RowOfAnEmployee, IsFoundWhateverBlanksOrNulsStandAroundTheGrade) {
    const auto graded = [](std::string_view bytes) {
        EmployeeRecord employee{};
        employee.lblCat = test::recordFrom<Text<7>>(bytes);
        return adjustmentRow(employee, allPeriods);
    };
    EXPECT_EQ(graded("C1     "), tariffRowOf("C1"));
    EXPECT_EQ(graded(" C1    "), tariffRowOf("C1"));
    EXPECT_EQ(graded("C1"), tariffRowOf("C1"));
    EXPECT_EQ(graded("   C1\0\0"), tariffRowOf("C1"));
}

/// Every row can be reached, so that no rate of the screen is there in vain.
TEST(RowOfAnEmployee, CanBeEachOfTheThirtyTwo) {
    std::array<bool, tariffRowCount> reached{};
    for (const TariffRow& row : tariffRows) {
        for (const char* rate : {"1,00", "16,37", "15,62", "14,92", "11,68", "11,46", "11,25", "11,07", "17,41"}) {
            const std::string grade(trim(row.grade));
            const int at = adjustmentRow(paidAt({grade.c_str(), rate, ""}), allPeriods);
            ASSERT_GE(at, 0) << row.grade;
            reached.at(static_cast<std::size_t>(at)) = true;
        }
    }
    EXPECT_THAT(reached, ::testing::Each(true));
}

TEST(SecondRun, IsForTwoTypesOfJointElection) {
    EXPECT_TRUE(hasSecondRun("Politiche_Comunali"));
    EXPECT_TRUE(hasSecondRun("Europee_Comunali"));
    for (const char* type : {"Politiche", "Europee", "Comunali", "Provinciali_Comunali", "Regionali_Provinciali", ""}) {
        EXPECT_FALSE(hasSecondRun(type)) << type;
    }
}

/// What the four contributions and the two totals came to.
struct Charged {
    const char *cpStato, *irap, *total, *cpDip, *fonCre, *totalDip;
};

void expectCharged(const AdjustmentRecord& record, const Charged& expected) {
    EXPECT_EQ(record.CpStato, euro(expected.cpStato));
    EXPECT_EQ(record.Irap, euro(expected.irap));
    EXPECT_EQ(record.TotaleSpesa, euro(expected.total));
    EXPECT_EQ(record.CpDip, euro(expected.cpDip));
    EXPECT_EQ(record.FonCre, euro(expected.fonCre));
    EXPECT_EQ(record.TotaleContr, euro(expected.totalDip));
}

/// 12 x 10,12 = 121,44 against 120,00. Of 1,44: 0,3427 and 0,1224, together 0,4651; 0,1267 and 0,0050, together 0,1317.
TEST(Adjustment, AddsItsTotalsUpBeforeTheirPartsAreRounded) {
    const auto record =
        adjusted(liquidatedEmployee("D2", {12, 0, 0}, "120,00"), ratesOf("10,12", "0", "0"), allPeriods);
    EXPECT_EQ(record.Dovuto, euro("121,44"));
    EXPECT_EQ(record.Pagato, euro("1,44"));
    expectCharged(record, {"0,34", "0,12", "0,47", "0,13", "0,01", "0,13"});
}

/// 70 x 16,50 + 32 x 18,65 + 4 x 21,50 = 1.155,00 + 596,80 + 86,00 = 1.837,80.
TEST(Adjustment, PricesTheHoursOfEachKindAtItsRate) {
    const auto record =
        adjusted(liquidatedEmployee("D2", {70, 32, 4}, "1.773,08"), ratesOf("16,50", "18,65", "21,50"), allPeriods);
    EXPECT_EQ(record.rates[0], euro("16,50"));
    EXPECT_EQ(record.rates[1], euro("18,65"));
    EXPECT_EQ(record.rates[2], euro("21,50"));
    EXPECT_EQ(record.Dovuto, euro("1.837,80"));
    EXPECT_EQ(record.Pagato, euro("64,72"));
    expectCharged(record, {"15,40", "5,50", "20,90", "5,70", "0,23", "5,92"});
}

TEST(Adjustment, CopiesNumberHoursAndPercentagesOfTheEmployee) {
    const auto record =
        adjusted(liquidatedEmployee("D2", {70, 32, 4}, "0"), ratesOf("16,50", "18,65", "21,50"), allPeriods);
    EXPECT_EQ(std::int16_t{record.SonoDip}, 7);
    EXPECT_EQ(std::int16_t{record.hours[0]}, 70);
    EXPECT_EQ(std::int16_t{record.hours[1]}, 32);
    EXPECT_EQ(std::int16_t{record.hours[2]}, 4);
    EXPECT_EQ(record.AliCpStato, euro("23,80"));
    EXPECT_EQ(record.AliIrap, euro("8,50"));
    EXPECT_EQ(record.AliCpDip, euro("8,80"));
    EXPECT_EQ(record.AliFonCre, euro("0,35"));
    EXPECT_EQ(test::bytesOf(record.lblCat), test::nuls(7));
    EXPECT_EQ(test::bytesOf(record.lblCat2), test::nuls(10));
}

/// No hours any more, 120,00 due before: all of it is owed back.
TEST(Adjustment, IsTheWholeAmountBackWhenNoHoursAreLeft) {
    const auto record =
        adjusted(liquidatedEmployee("D2", {0, 0, 0}, "120,00"), ratesOf("10,12", "11,64", "13,16"), allPeriods);
    EXPECT_EQ(record.Dovuto, Currency{});
    EXPECT_EQ(record.Pagato, euro("-120,00"));
    expectCharged(record, {"-28,56", "-10,20", "-38,76", "-10,56", "-0,42", "-10,98"});
}

/// 12 x 9,88 = 118,56: the first case with the sign turned, half cents away from zero on this side too.
TEST(Adjustment, IsRoundedBelowZeroAsAbove) {
    const auto record = adjusted(liquidatedEmployee("D2", {12, 0, 0}, "120,00"), ratesOf("9,88", "0", "0"), allPeriods);
    EXPECT_EQ(record.Pagato, euro("-1,44"));
    expectCharged(record, {"-0,34", "-0,12", "-0,47", "-0,13", "-0,01", "-0,13"});
}

/// 12 x 10,1249 = 121,4988: the difference 1,4988 stays, all others are held to cents. Of 1,4988: 0,3567 and 0,1274,
/// together 0,4841; 0,1319 and 0,0052, together 0,1371.
TEST(Adjustment, UsesTheRatesAsTypedAndKeepsTheDifferenceAsItIs) {
    const auto record =
        adjusted(liquidatedEmployee("D2", {12, 0, 0}, "120,00"), ratesOf("10,1249", "0,005", "0,0049"), allPeriods);
    EXPECT_EQ(record.rates[0], euro("10,12"));
    EXPECT_EQ(record.rates[1], euro("0,01"));
    EXPECT_EQ(record.rates[2], Currency{});
    EXPECT_EQ(record.Dovuto, euro("121,50"));
    EXPECT_EQ(record.Pagato, euro("1,4988"));
    expectCharged(record, {"0,36", "0,13", "0,48", "0,13", "0,01", "0,14"});
}

/// 5 x 10,12 + 2 x 11,64 + 13,16 = 87,04 against 50,00 + 23,00 + 13,00 = 86,00, whatever was stored as due. Of 1,04:
/// 0,2475 and 0,0884, together 0,3359; 0,0915 and 0,0036, together 0,0951.
TEST(Adjustment, OfTheFirstPeriodComparesItsHoursAtTheStoredRates) {
    EmployeeRecord employee = liquidatedEmployee("D2", {70, 32, 4}, "1.773,08");
    employee.periods[0].paid = {5, 2, 1};
    const auto record = adjusted(employee, ratesOf("10,12", "11,64", "13,16"), firstPeriod);
    EXPECT_EQ(std::int16_t{record.hours[0]}, 5);
    EXPECT_EQ(std::int16_t{record.hours[1]}, 2);
    EXPECT_EQ(std::int16_t{record.hours[2]}, 1);
    EXPECT_EQ(record.Dovuto, euro("87,04"));
    EXPECT_EQ(record.Pagato, euro("1,04"));
    expectCharged(record, {"0,25", "0,09", "0,34", "0,09", "0,00", "0,10"});
}

TEST(Adjustment, OfADamagedRecordStaysAtTheLimit) {
    EmployeeRecord employee = liquidatedEmployee("D2", {-32768, 32767, 32767}, "0");
    const Currency most = Currency::fromUnits(std::numeric_limits<std::int64_t>::max());
    employee.pay.AliCpStato = most;
    const auto record = adjusted(employee, {Currency{}, most, most}, allPeriods);
    EXPECT_GE(record.Dovuto, euro("1"));
    EXPECT_GE(record.CpStato, euro("1"));
}

}  // namespace
}  // namespace vorbano
