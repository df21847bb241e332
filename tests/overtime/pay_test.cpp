#include "overtime/pay.h"

#include <gmock/gmock.h>

#include <cstdint>
#include <random>
#include <string>
#include <vector>

#include "support/cent.h"

namespace vorbano {
namespace {

using test::cent;
using RatesByKind = std::array<Currency, hourKinds>;

constexpr Currency units(std::int64_t number) { return Currency::fromUnits(number); }

/// 23,80, 8,50, 8,80 and 0,35 percent.
constexpr Percentages usual{
    .CpStato = units(238'000), .Irap = units(85'000), .CpDip = units(88'000), .FonCre = units(3'500)};
/// 12,34, 15,55 and 17,90 an hour.
constexpr RatesByKind usualRates = {units(123'400), units(155'500), units(179'000)};

TEST(AmountDue, IsTheSumOfTheThreeKindsOfHour) {
    EXPECT_EQ(dueFor({10, 3, 0}, usualRates), cent(17'005)) << "123,40 + 46,65";
    EXPECT_EQ(dueFor({10, 3, 2}, usualRates), cent(20'585)) << "123,40 + 46,65 + 35,80";
    EXPECT_EQ(dueFor({0, 0, 1}, usualRates), cent(1'790));
    EXPECT_EQ(dueFor({0, 0, 0}, usualRates), cent(0));
}

TEST(AmountDue, RoundsEachKindByItself) {
    // 0,0050 three times: 0,01 each, and not 0,0150 rounded once to 0,02.
    EXPECT_EQ(dueFor({1, 1, 1}, {units(50), units(50), units(50)}), cent(3));
    // 0,0049 three times: nothing, and not 0,0147 rounded once to 0,01.
    EXPECT_EQ(dueFor({1, 1, 1}, {units(49), units(49), units(49)}), cent(0));
}

TEST(AmountDue, OfRatesWithFourDecimalsIsInCents) {
    EXPECT_EQ(dueFor({7, 0, 0}, {units(141'417), cent(0), cent(0)}), cent(9'899)) << "7 x 14,1417 = 98,9919";
    EXPECT_EQ(dueFor({0, 5, 0}, {cent(0), units(10'010), cent(0)}), cent(501)) << "5 x 1,0010 = 5,0050";
}

TEST(Liquidation, OfTenWeekdayAndThreeNightHours) {
    const Amounts amounts = liquidate({10, 3, 0}, usualRates, usual);
    EXPECT_EQ(amounts.Dovuto, cent(17'005));
    EXPECT_EQ(amounts.CpStato, cent(4'047)) << "40,4719";
    EXPECT_EQ(amounts.Irap, cent(1'445)) << "14,45425";
    EXPECT_EQ(amounts.CpDip, cent(1'496)) << "14,9644";
    EXPECT_EQ(amounts.FonCre, cent(60)) << "0,595175";
}

TEST(Liquidation, SumsAreSumsOfRoundedAmounts) {
    const Amounts amounts = liquidate({10, 3, 0}, usualRates, usual);
    EXPECT_EQ(amounts.TotaleSpesa, cent(5'492)) << "40,47 + 14,45; the exact sum 54,92615 would be 54,93";
    EXPECT_EQ(amounts.Complessivo, cent(22'497)) << "170,05 + 54,92";
    EXPECT_EQ(amounts.TotaleContr, cent(1'556)) << "14,96 + 0,60";
}

TEST(Liquidation, HoldsAContributionToFourDecimalsBeforeTheCents) {
    // One hour of 141,42: 0,35 percent of it is 0,494970, held as 0,4950, which is 0,50 in cents.
    const Amounts amounts = liquidate({1, 0, 0}, {cent(14'142), cent(0), cent(0)}, usual);
    EXPECT_EQ(amounts.FonCre, cent(50)) << "and not 0,49 as in one rounding";
}

TEST(Liquidation, RoundsTheFifthDecimalToTheEvenFourth) {
    Percentages half;
    half.FonCre = units(5'000);
    // 0,50 percent of 0,99 is 0,00495: held as 0,0050 (even is 50, not 49), then 0,01.
    EXPECT_EQ(liquidate({1, 0, 0}, {cent(99), cent(0), cent(0)}, half).FonCre, cent(1));
    // 0,50 percent of 0,97 is 0,00485: held as 0,0048, then nothing.
    EXPECT_EQ(liquidate({1, 0, 0}, {cent(97), cent(0), cent(0)}, half).FonCre, cent(0));
}

TEST(Liquidation, TakesEachAmountFromItsOwnPercentage) {
    // One hour of 100,00: each contribution is its percentage.
    const Amounts amounts =
        liquidate({0, 1, 0}, {cent(0), cent(10'000), cent(0)},
                  {.CpStato = units(10'000), .Irap = units(20'000), .CpDip = units(40'000), .FonCre = units(80'000)});
    EXPECT_EQ(amounts.CpStato, cent(100));
    EXPECT_EQ(amounts.Irap, cent(200));
    EXPECT_EQ(amounts.TotaleSpesa, cent(300));
    EXPECT_EQ(amounts.Complessivo, cent(10'300));
    EXPECT_EQ(amounts.CpDip, cent(400));
    EXPECT_EQ(amounts.FonCre, cent(800));
    EXPECT_EQ(amounts.TotaleContr, cent(1'200));
}

std::vector<Currency> allOf(const Amounts& amounts) {
    return {amounts.Dovuto,      amounts.CpStato, amounts.Irap,   amounts.TotaleSpesa,
            amounts.Complessivo, amounts.CpDip,   amounts.FonCre, amounts.TotaleContr};
}

TEST(Liquidation, WithoutExecutedHoursIsZeroThroughout) {
    EXPECT_THAT(allOf(liquidate({0, 0, 0}, usualRates, usual)), ::testing::Each(cent(0)));
}

TEST(Liquidation, WithoutPercentagesIsTheAmountDueAlone) {
    const Amounts amounts = liquidate({10, 3, 0}, usualRates, {});
    EXPECT_EQ(allOf(amounts), (std::vector<Currency>{cent(17'005), cent(0), cent(0), cent(0), cent(17'005), cent(0),
                                                     cent(0), cent(0)}));
}

/// The same pay worked out in plain whole numbers: cents for amounts, 1/10,000 for rates and percentages.
struct Paysheet {
    std::int64_t due = 0;
    std::array<std::int64_t, 4> contributions{};  ///< CpStato, Irap, CpDip, FonCre

    static std::int64_t toCents(std::int64_t tenThousandths) { return (tenThousandths + 50) / 100; }

    /// Percent of cents, in 1/10,000 of an amount: nearest, and of two nearest the even one.
    static std::int64_t percent(std::int64_t cents, std::int64_t percentage) {
        const std::int64_t doubled = cents * percentage * 2;
        std::int64_t nearest = (doubled + 10'000) / 20'000;
        const bool between = (doubled + 10'000) % 20'000 == 0;
        if (between && nearest % 2 != 0) --nearest;
        return nearest;
    }
};

/// Whole numbers below `limit`, the same ones in every run and with every library.
class Numbers {
  public:
    std::int64_t below(std::int64_t limit) { return static_cast<std::int64_t>(engine_()) % limit; }
    /// An hourly rate: mostly in cents, now and then with four decimals as an old file may hold it.
    std::int64_t rate() { return below(8) == 0 ? below(400'000) : below(4'000) * 100; }

  private:
    std::mt19937 engine_{20'240'609};
};

TEST(Liquidation, OfAThousandEmployeesAgreesWithPlainWholeNumbers) {
    Numbers numbers;
    for (int employee = 0; employee < 1000; ++employee) {
        Hours hours{};
        RatesByKind rates{};
        Paysheet sheet;
        for (std::size_t kind = 0; kind < hours.size(); ++kind) {
            hours[kind] = static_cast<int>(numbers.below(70));
            const std::int64_t rate = numbers.rate();
            rates[kind] = units(rate);
            sheet.due += Paysheet::toCents(hours[kind] * rate);
        }
        std::array<std::int64_t, 4> percentages{};
        for (std::size_t at = 0; at < percentages.size(); ++at) {
            percentages[at] = numbers.below(3'000) * 100;
            sheet.contributions[at] = Paysheet::toCents(Paysheet::percent(sheet.due, percentages[at]));
        }
        const auto& [CpStato, Irap, CpDip, FonCre] = sheet.contributions;
        const Amounts amounts = liquidate(hours, rates,
                                          {.CpStato = units(percentages[0]),
                                           .Irap = units(percentages[1]),
                                           .CpDip = units(percentages[2]),
                                           .FonCre = units(percentages[3])});
        ASSERT_EQ(allOf(amounts), (std::vector<Currency>{cent(sheet.due), cent(CpStato), cent(Irap),
                                                         cent(CpStato + Irap), cent(sheet.due + CpStato + Irap),
                                                         cent(CpDip), cent(FonCre), cent(CpDip + FonCre)}))
            << "employee " << employee;
    }
}

TEST(Rate, IsHeldToTwoDecimals) {
    EXPECT_EQ(rateFrom("12,34"), cent(1'234));
    EXPECT_EQ(rateFrom("12,345"), cent(1'235)) << "half a cent goes away from zero";
    EXPECT_EQ(rateFrom("12,3449"), cent(1'234));
    EXPECT_EQ(rateFrom("1.234,5"), cent(123'450));
    EXPECT_EQ(rateFrom("14"), cent(1'400));
    EXPECT_EQ(rateFrom(" ,5 "), cent(50));
    EXPECT_EQ(rateFrom("0"), cent(0));
}

TEST(Rate, IsNoneInATextThatIsNoNumber) {
    for (const std::string text : {"", "   ", "dodici", "12,3,4", "12 euro"}) EXPECT_EQ(rateFrom(text), std::nullopt);
}

}  // namespace
}  // namespace vorbano
