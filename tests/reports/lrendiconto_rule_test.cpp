#include <gtest/gtest.h>

#include "reports/lrendiconto.h"
#include "storage/numbers.h"

namespace vorbano::test {
namespace {

/// "50,01 and 50,00"
std::string shares(Currency whole, BodyPart part) {
    const BodyShares both = betweenBodies(whole, part);
    return format(both.C, Mask::amount) + " and " + format(both.P, Mask::amount);
}
std::string halves(std::int64_t cents) { return shares(Currency::fromCents(cents), {1, 2}); }
std::string sixths(std::int64_t cents, int of) { return shares(Currency::fromCents(cents), {of, 6}); }

TEST(BodyShares, OddCentIsWithTheFirstBody) {
    EXPECT_EQ(halves(10001), "50,01 and 50,00");
    EXPECT_EQ(halves(1), "0,01 and 0,00");
    EXPECT_EQ(halves(3), "0,02 and 0,01");
    EXPECT_EQ(halves(17005), "85,03 and 85,02");
}

TEST(BodyShares, EvenCentsAreTwoEqualHalves) {
    EXPECT_EQ(halves(0), "0,00 and 0,00");
    EXPECT_EQ(halves(2), "0,01 and 0,01");
    EXPECT_EQ(halves(123456), "617,28 and 617,28");
}

TEST(BodyShares, SixthIsRoundedOnce) {
    EXPECT_EQ(sixths(10001, 1), "16,67 and 83,34");  // 16,66833
    EXPECT_EQ(sixths(3, 1), "0,01 and 0,02");        // 0,005, half away from zero
    EXPECT_EQ(sixths(2, 1), "0,00 and 0,02");        // 0,00333
    EXPECT_EQ(sixths(3333, 1), "5,56 and 27,77");    // 5,555
    EXPECT_EQ(sixths(600, 1), "1,00 and 5,00");
}

TEST(BodyShares, FiveSixthsAreAFractionAndNotFiveRoundedSixths) {
    EXPECT_EQ(sixths(3, 5), "0,03 and 0,00");  // 0,025; five times the rounded sixth would be 0,05
    EXPECT_EQ(sixths(2, 5), "0,02 and 0,00");  // 0,01667
    EXPECT_EQ(sixths(1, 5), "0,01 and 0,00");  // 0,00833
    EXPECT_EQ(sixths(10000, 5), "83,33 and 16,67");
    EXPECT_EQ(sixths(129639, 5), "1.080,33 and 216,06");  // 1.080,325
}

TEST(BodyShares, TheTwoAlwaysMakeTheWhole) {
    for (std::int64_t cents = -700; cents <= 700; ++cents) {
        for (const BodyPart part : {BodyPart{1, 2}, BodyPart{1, 6}, BodyPart{5, 6}}) {
            const Currency whole = Currency::fromCents(cents);
            const BodyShares both = betweenBodies(whole, part);
            EXPECT_EQ(both.C + both.P, whole) << cents;
        }
    }
}

TEST(BodyShares, OfAnAmountBelowZeroAreRoundedAwayFromZeroToo) {
    EXPECT_EQ(halves(-1), "-0,01 and 0,00");
    EXPECT_EQ(halves(-10001), "-50,01 and -50,00");
}

TEST(BodyShares, OfTheLargestAmountDoNotOverflow) {
    const Currency most = Currency::fromUnits(INT64_MAX);
    EXPECT_GT(betweenBodies(most, {5, 6}).C, betweenBodies(most, {1, 2}).C);
}

constexpr auto isPart = [](const BodyPart& part, int of, int in) { return part.of == of && part.in == in; };

TEST(BodyDivision, IsHalvesButForOneReferendum) {
    const BodyDivision odd = divisionOf({"Referendum_Comunali", "12-06-22"});
    EXPECT_TRUE(isPart(odd.pay, 1, 6));
    EXPECT_TRUE(isPart(odd.contributions, 5, 6));
    const Election neighbours[] = {
        {"Referendum_Comunali", "11-06-22"},
        {"Referendum_Comunali", "13-06-22"},
        {"Referendum_Comunali", "12-06-21"},
        {"Referendum_Comunali", "12-06-23"},
        {"Referendum_Comunali", "12-07-22"},
        {"Referendum", "12-06-22"},
        {"Comunali", "12-06-22"},
        {"Politiche_Comunali", "12-06-22"},
        {"Europee_Comunali", "12-06-22"},
    };
    for (const Election& one : neighbours) {
        EXPECT_TRUE(isPart(divisionOf(one).pay, 1, 2)) << one.type << one.date;
        EXPECT_TRUE(isPart(divisionOf(one).contributions, 1, 2)) << one.type << one.date;
    }
}

Pay payForCharges(std::int64_t day, std::int64_t fest, std::int64_t night) {
    Pay pay{};
    pay.rates = {Currency::fromCents(day), Currency::fromCents(fest), Currency::fromCents(night)};
    pay.AliCpStato = Currency::fromCents(2380);
    pay.AliIrap = Currency::fromCents(850);
    return pay;
}

PeriodBlock performed(int day, int fest, int night) {
    PeriodBlock period{};
    period.authorised = {Integer(99), Integer(99), Integer(99)};
    period.paid = {Integer(static_cast<std::int16_t>(day)), Integer(static_cast<std::int16_t>(fest)),
                   Integer(static_cast<std::int16_t>(night))};
    return period;
}

TEST(PeriodCharges, AreOnThePerformedHoursOfThePeriodAlone) {
    // 10 h x 12,34 = 123,40; 3 h x 15,55 = 46,65; together 170,05; x 23,80 % = 40,4719; x 8,50 % = 14,45425
    const PeriodCharges charges = chargesOn(performed(10, 3, 0), payForCharges(1234, 1555, 0));
    EXPECT_EQ(format(charges.CpStato, Mask::amount), "40,47");
    EXPECT_EQ(format(charges.Irap, Mask::amount), "14,45");
}

TEST(PeriodCharges, AreHeldToFourDecimalsAndThenToCents) {
    // 20 h x 13,00 + 10 h x 14,72 + 4 h x 16,43 = 472,92; x 23,80 % = 112,55496, held as 112,5550, so 112,56
    EXPECT_EQ(format(chargesOn(performed(20, 10, 4), payForCharges(1300, 1472, 1643)).CpStato, Mask::amount), "112,56");
}

TEST(PeriodCharges, OfNoHoursAreNothing) {
    const PeriodCharges charges = chargesOn(performed(0, 0, 0), payForCharges(1234, 1555, 1790));
    EXPECT_EQ(charges.CpStato, Currency{});
    EXPECT_EQ(charges.Irap, Currency{});
}

TEST(LRendicontoLayout, GoesByTheKindInTheOrderOfTheTable) {
    const std::pair<std::string_view, std::string_view> kinds[] = {
        {"Provinciali_Comunali", "liqstrq_p.rpt"},
        {"Provinciali_Regionali_Comunali", "liqstrq_p.rpt"},
        {"Regionali_Comunali", "liqstrq_r.rpt"},
        {"Provinciali", "liqstr_p_r.rpt"},
        {"Regionali", "liqstr_p_r.rpt"},
        {"Politiche_Comunali", "liqstrqpc.rpt"},
        {"Politiche_Regionali", "liqstrapr.rpt"},
        {"Europee_Comunali", "liqstrqec.rpt"},
        {"Europee", "liqstr_p_r.rpt"},
        {"Referendum", "liqstrre.rpt"},
        {"Referendum_Comunali", "liqstrr_c.rpt"},
        {"Comunali", "liqstr.rpt"},
        {"Politiche", "liqstr.rpt"},
        {"Europee_Regionali", "liqstr.rpt"},
    };
    for (const auto& [kind, layout] : kinds) {
        EXPECT_EQ(lrendicontoLayout(kind, true), layout) << kind;
        EXPECT_EQ(lrendicontoLayout(kind, false), "liqstr.rpt") << kind;
    }
}

}  // namespace
}  // namespace vorbano::test
