#include <gmock/gmock.h>

#include <limits>
#include <string>
#include <vector>

#include "storage/numbers.h"

namespace vorbano {
namespace {

constexpr std::int64_t most = std::numeric_limits<std::int64_t>::max();
constexpr std::int64_t least = std::numeric_limits<std::int64_t>::min();

constexpr Currency units(std::int64_t number) { return Currency::fromUnits(number); }

/// An amount in units of 1/10,000 and its text.
struct Shown {
    std::int64_t amount;
    std::string text;
};

void expectShown(Mask mask, const std::vector<Shown>& cases) {
    for (const auto& [amount, text] : cases) EXPECT_EQ(format(units(amount), mask), text) << amount;
}

TEST(MoneyMask, ShowsThousandsAndTwoDecimals) {
    expectShown(Mask::amount, {{0, "0,00"},
                               {1'700'500, "170,05"},
                               {12'345'000, "1.234,50"},
                               {9'999'900, "999,99"},
                               {10'000'000, "1.000,00"},
                               {12'345'678'900, "1.234.567,89"},
                               {-12'345'600, "-1.234,56"},
                               {100, "0,01"},
                               {most, "922.337.203.685.477,58"},
                               {least, "-922.337.203.685.477,58"}});
}

TEST(MoneyMask, RoundsHalfACentAwayFromZero) {
    expectShown(Mask::amount, {{50, "0,01"},
                               {49, "0,00"},
                               {-50, "-0,01"},
                               {150, "0,02"},
                               {250, "0,03"},
                               {-250, "-0,03"},
                               {9'999'950, "1.000,00"},
                               {4'949, "0,49"},
                               {4'950, "0,50"}});
}

TEST(MoneyMask, ShowsNoSignForANegativeZero) {
    for (const Mask mask : {Mask::amount, Mask::digits}) EXPECT_EQ(format(units(-40), mask), "0,00");
    EXPECT_EQ(format(units(-40), Mask::percent), ",00");
    EXPECT_EQ(format(units(-4'999), Mask::whole), "");
}

TEST(PercentMask, ShowsNoLeadingZeroAndNoThousandsAndCutsNothing) {
    expectShown(Mask::percent, {{238'000, "23,80"},
                                {3'500, ",35"},
                                {85'000, "8,50"},
                                {0, ",00"},
                                {1'000'000, "100,00"},
                                {12'345'000, "1234,50"},
                                {-3'500, "-,35"},
                                {238'050, "23,81"},
                                {238'049, "23,80"},
                                {10'000, "1,00"}});
}

TEST(PercentMask, IsReadBackAsTheSamePercentage) {
    for (const std::int64_t percentage : {3'500, 85'000, 238'000, 0, 12'345'000, -3'500}) {
        EXPECT_EQ(toCurrency(format(units(percentage), Mask::percent)), units(percentage));
    }
}

TEST(DigitsMask, ShowsALeadingZero) {
    expectShown(Mask::digits,
                {{3'500, "0,35"}, {0, "0,00"}, {238'000, "23,80"}, {12'345'000, "1234,50"}, {-3'500, "-0,35"}});
}

TEST(WholeMask, ShowsNothingForZero) {
    expectShown(Mask::whole, {{0, ""}, {400'000, "40"}, {1'234'560'000, "123456"}, {-50'000, "-5"}});
}

TEST(WholeMask, RoundsHalfAwayFromZero) {
    expectShown(Mask::whole,
                {{125'000, "13"}, {135'000, "14"}, {124'999, "12"}, {5'000, "1"}, {4'999, ""}, {-125'000, "-13"}});
    EXPECT_EQ(format(12.5, Mask::whole), "13");
    EXPECT_EQ(format(13.5, Mask::whole), "14");
    EXPECT_EQ(format(12.49, Mask::whole), "12");
    EXPECT_EQ(format(-12.5, Mask::whole), "-13");
    EXPECT_EQ(format(0.5, Mask::whole), "1");
    EXPECT_EQ(format(0.49, Mask::whole), "");
    EXPECT_EQ(format(-0.4, Mask::whole), "");
}

TEST(WholeMask, TakesWhateverNumberComes) {
    EXPECT_EQ(format(std::numeric_limits<double>::quiet_NaN(), Mask::whole), "");
    EXPECT_EQ(format(3e15, Mask::whole), "3000000000000000");
    EXPECT_FALSE(format(std::numeric_limits<double>::infinity(), Mask::whole).empty());
}

TEST(AmountMasks, OfAFloatingPointNumberHoldFourDecimalsFirst) {
    EXPECT_EQ(format(0.00497, Mask::amount), "0,01") << "0,00497, 0,0050, 0,01: the two roundings are two";
    EXPECT_EQ(format(1234.5, Mask::amount), "1.234,50");
    EXPECT_EQ(format(0.35, Mask::percent), ",35");
}

TEST(AmountOfAFloatingPointNumber, IsTheNearestHalfToEven) {
    EXPECT_EQ(currencyOf(170.05), units(1'700'500));
    EXPECT_EQ(currencyOf(-170.05), units(-1'700'500));
    // These fractions of two are exact, and lie in the middle.
    EXPECT_EQ(currencyOf(0.03125), units(312));
    EXPECT_EQ(currencyOf(0.09375), units(938));
    EXPECT_EQ(currencyOf(-0.03125), units(-312));
    EXPECT_EQ(currencyOf(-0.09375), units(-938));
    EXPECT_EQ(currencyOf(0.00006), units(1));
    EXPECT_EQ(currencyOf(0.00004), units(0));
}

TEST(AmountOfAFloatingPointNumber, StaysAtTheLimitWhereItDoesNotFit) {
    EXPECT_EQ(currencyOf(1e300), units(most));
    EXPECT_EQ(currencyOf(-1e300), units(least));
    EXPECT_EQ(currencyOf(std::numeric_limits<double>::infinity()), units(most));
    EXPECT_EQ(currencyOf(std::numeric_limits<double>::quiet_NaN()), units(0));
}

TEST(Cents, RoundHalfAwayFromZero) {
    const std::vector<std::pair<std::int64_t, std::int64_t>> cases = {
        {50, 100},      {49, 0},       {-50, -100}, {-49, 0}, {150, 200}, {250, 300}, {1'700'500, 1'700'500},
        {4'950, 5'000}, {4'949, 4'900}};
    for (const auto& [amount, rounded] : cases) EXPECT_EQ(cents(units(amount)), units(rounded)) << amount;
}

TEST(Cents, AreWhatShowingAndReadingBackMakes) {
    for (const std::int64_t amount : {50L, -50L, 12'345'678L, -12'345'650L, 99'950L, 0L, -40L}) {
        EXPECT_EQ(cents(units(amount)), toCurrency(format(units(amount), Mask::amount))) << amount;
    }
}

TEST(Pay, IsHoursTimesTheRateInCents) {
    EXPECT_EQ(payFor(7, units(141'417)), Currency::fromCents(9'899)) << "7 x 14,1417 = 98,9919";
    EXPECT_EQ(payFor(10, units(170'050)), Currency::fromCents(17'005));
    EXPECT_EQ(payFor(3, units(17)), Currency::fromCents(1)) << "3 x 0,0017 = 0,0051";
    EXPECT_EQ(payFor(1, units(50)), Currency::fromCents(1)) << "half a cent goes away from zero";
    EXPECT_EQ(payFor(1, units(49)), Currency{});
    EXPECT_EQ(payFor(0, units(141'417)), Currency{});
    EXPECT_EQ(payFor(-7, units(141'417)), Currency::fromCents(-9'899));
}

TEST(Percentage, IsHeldToFourDecimalsBeforeTheCents) {
    const Currency share = percentOf(units(1'414'200), units(3'500));
    EXPECT_EQ(share, units(4'950)) << "0,35 % of 141,42 is 0,494970";
    EXPECT_EQ(cents(share), Currency::fromCents(50)) << "and not 0,49 as in one rounding";
}

TEST(Percentage, RoundsTheFifthDecimalHalfToEven) {
    EXPECT_EQ(percentOf(units(1'700'500), units(85'000)), units(144'542)) << "8,50 % of 170,05 is 14,45425";
    EXPECT_EQ(percentOf(units(1'701'500), units(85'000)), units(144'628)) << "8,50 % of 170,15 is 14,46275";
    EXPECT_EQ(percentOf(units(-1'700'500), units(85'000)), units(-144'542));
    EXPECT_EQ(percentOf(units(10'000'000), units(238'000)), units(2'380'000)) << "23,80 % of 1.000,00";
    EXPECT_EQ(percentOf(units(10'000'000), units(0)), units(0));
}

TEST(Amounts, OfADamagedRecordStayAtTheLimitInsteadOfTurningOver) {
    EXPECT_EQ(units(most) + units(1), units(most));
    EXPECT_EQ(units(least) + units(-1), units(least));
    EXPECT_EQ(units(least) - units(1), units(least));
    EXPECT_EQ(units(0) - units(least), units(most));
    EXPECT_EQ(units(most) - units(most), units(0));
    EXPECT_EQ(units(most) + units(least), units(-1));
    EXPECT_EQ(Currency::fromCents(most), units(most));
    EXPECT_EQ(Currency::fromCents(least), units(least));
    EXPECT_EQ(payFor(2, units(most)), cents(units(most)));
    EXPECT_EQ(percentOf(units(most), units(most)), units(most));
    EXPECT_EQ(percentOf(units(least), units(most)), units(least));
    EXPECT_EQ(percentOf(units(least), units(1'000'000)), units(least)) << "100 % of it is itself";
}

TEST(Amounts, AddSubtractAndCompare) {
    Currency total = Currency::fromCents(17'005);
    total += Currency::fromCents(5);
    total -= Currency::fromCents(10);
    EXPECT_EQ(total, Currency::fromCents(17'000));
    EXPECT_LT(units(-1), units(0));
    EXPECT_GT(units(1), units(0));
}

}  // namespace
}  // namespace vorbano
