#include <gtest/gtest.h>

#include "reports/impegno.h"
#include "storage/numbers.h"
#include "support/cent.h"

namespace vorbano::test {
namespace {

Pay payForCommitment(std::int64_t day, std::int64_t fest, std::int64_t night) {
    Pay pay{};
    pay.rates = {cent(day), cent(fest), cent(night)};
    pay.AliCpStato = cent(2380);
    pay.AliIrap = cent(850);
    pay.AliCpDip = cent(885);
    pay.AliFonCre = cent(35);
    return pay;
}

PeriodBlock authorised(int day, int fest, int night) {
    PeriodBlock period{};
    period.authorised = {Integer(static_cast<std::int16_t>(day)), Integer(static_cast<std::int16_t>(fest)),
                         Integer(static_cast<std::int16_t>(night))};
    return period;
}

TEST(Commitment, AddsTheAuthorisedHoursOfAllFivePeriods) {
    // 33 h x 12,33 = 406,89; 14 h x 13,95 = 195,30; 5 h x 16,09 = 80,45; together 682,64
    const auto cost = commitmentFor(
        {authorised(10, 5, 2), authorised(8, 4, 1), authorised(6, 0, 0), authorised(5, 3, 1), authorised(4, 2, 1)},
        payForCommitment(1233, 1395, 1609));
    EXPECT_EQ(format(cost.Dovuto, Mask::amount), "682,64");
    EXPECT_EQ(format(cost.CpStato, Mask::amount), "162,47");  // 162,46832
    EXPECT_EQ(format(cost.Irap, Mask::amount), "58,02");      // 58,0244
    EXPECT_EQ(format(cost.TotaleSpesa, Mask::amount), "903,13");
}

TEST(Commitment, PaidHoursDoNotCount) {
    PeriodBlock period = authorised(1, 0, 0);
    period.paid = {Integer(40), Integer(40), Integer(40)};
    const auto cost = commitmentFor({period, {}, {}, {}, {}}, payForCommitment(1000, 2000, 3000));
    EXPECT_EQ(cost.Dovuto, cent(1000));
}

TEST(Commitment, ShareOfTheEmployeeIsNotRoundedToCents) {
    // 682,64 x 8,85 % = 60,41364; x 0,35 % = 2,38924: four decimals are kept
    const auto cost = commitmentFor({authorised(33, 14, 5), {}, {}, {}, {}}, payForCommitment(1233, 1395, 1609));
    EXPECT_EQ(cost.CpDip.units(), 604136);
    EXPECT_EQ(cost.FonCre.units(), 23892);
}

TEST(Commitment, ContributionsAreHeldToFourDecimalsAndThenToCents) {
    // 20 h x 13,00 + 10 h x 14,72 + 4 h x 16,43 = 472,92; x 23,80 % = 112,55496, held as 112,5550, so 112,56
    const auto cost = commitmentFor({authorised(20, 10, 4), {}, {}, {}, {}}, payForCommitment(1300, 1472, 1643));
    EXPECT_EQ(format(cost.Dovuto, Mask::amount), "472,92");
    EXPECT_EQ(format(cost.CpStato, Mask::amount), "112,56");
    EXPECT_EQ(format(cost.Irap, Mask::amount), "40,20");  // 40,1982
    EXPECT_EQ(format(cost.TotaleSpesa, Mask::amount), "625,68");
}

TEST(Commitment, EachProductIsRoundedBeforeTheSum) {
    // Rates with thousandths: 1 h x 0,005 = 0,01 each, so 0,03 and not 0,02 (0,015 rounded once)
    Pay pay = payForCommitment(0, 0, 0);
    pay.rates = {Currency::fromUnits(50), Currency::fromUnits(50), Currency::fromUnits(50)};
    EXPECT_EQ(commitmentFor({authorised(1, 1, 1), {}, {}, {}, {}}, pay).Dovuto, cent(3));
}

TEST(Commitment, NoHoursCostNothing) {
    const auto cost = commitmentFor({}, payForCommitment(1233, 1395, 1609));
    EXPECT_EQ(cost.Dovuto, Currency{});
    EXPECT_EQ(cost.TotaleSpesa, Currency{});
    EXPECT_EQ(cost.CpDip, Currency{});
}

}  // namespace
}  // namespace vorbano::test
