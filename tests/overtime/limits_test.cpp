// What the pools and limits of one screen have different from those of another.

#include <gmock/gmock.h>

#include <string>

#include "overtime/pools.h"

namespace vorbano {

namespace {

TEST(HoursPerMonth, OfNewDatesAreSeventyUpToFiveEmployeesAndFiftyAbove) {
    EXPECT_EQ(monteOreOfNewDates(1), 70);
    EXPECT_EQ(monteOreOfNewDates(5), 70);
    EXPECT_EQ(monteOreOfNewDates(6), 50);
    EXPECT_EQ(monteOreOfNewDates(32767), 50);
}

TEST(HoursPerMonth, ChangeInARemovalOnlyWhenExactlyFiveAreLeft) {
    EXPECT_EQ(monteOreAfterRemoval(5, 40), 70);
    EXPECT_EQ(monteOreAfterRemoval(6, 40), 40);
    EXPECT_EQ(monteOreAfterRemoval(6, 50), 50);
    EXPECT_EQ(monteOreAfterRemoval(4, 60), 60);
    EXPECT_EQ(monteOreAfterRemoval(0, 60), 60);
}

TEST(AbsoluteLimit, TakesTheHoursOfTheScreenThatAsks) {
    struct Case {
        LimitRule rule;
        int year;
        std::array<int, 5> hours;
    };
    const Case cases[] = {
        {LimitRule::authorisation, 13, {60, 60, 60, 70, 70}}, {LimitRule::authorisation, 24, {60, 60, 60, 70, 70}},
        {LimitRule::dates, 13, {70, 70, 70, 70, 70}},         {LimitRule::dates, 14, {60, 60, 60, 60, 60}},
        {LimitRule::removal, 13, {70, 70, 70, 70, 70}},       {LimitRule::removal, 14, {60, 60, 60, 70, 70}},
        {LimitRule::removal, 99, {60, 60, 60, 70, 70}},
    };
    for (const Case& each : cases) {
        for (int period = 1; period <= 5; ++period) {
            EXPECT_EQ(limitByMonth(each.rule, period, each.year), each.hours[static_cast<std::size_t>(period) - 1])
                << period << " in " << each.year;
        }
    }
}

TEST(FiguresOfAnElection, AreThoseOfItsPeriods) {
    ElectionSpans spans;
    spans[0] = PeriodSpan{.from = "15-04-24", .to = "14-05-24"};
    spans[1] = PeriodSpan{.from = "15/05/24", .to = "24/05/24"};
    spans[2] = PeriodSpan{.from = "//", .to = "//      "};
    const auto figures =
        electionFigures(spans, {.rule = LimitRule::dates, .yearOfCentury = 24, .monteOre = 40, .employees = 7});
    ASSERT_TRUE(figures[0] && figures[1] && figures[2]);
    EXPECT_EQ(*figures[0], (PeriodFigures{.limit = 60, .pool = 280, .average = 40}));
    EXPECT_EQ(*figures[1], (PeriodFigures{.limit = 20, .pool = 93, .average = 13})) << "10 x 40 / 30 = 13,33";
    EXPECT_EQ(*figures[2], PeriodFigures{});
    EXPECT_FALSE(figures[3] || figures[4]) << "not there";
    EXPECT_EQ(sumOfPools(figures), 373);
}

TEST(FiguresOfAnElection, OfAnOldElectionTakeSeventyHours) {
    ElectionSpans spans;
    for (auto& span : spans) span = PeriodSpan{.from = "01-06-13", .to = "15-06-13"};
    const auto figures =
        electionFigures(spans, {.rule = LimitRule::removal, .yearOfCentury = 13, .monteOre = 70, .employees = 5});
    for (const auto& each : figures) {
        ASSERT_TRUE(each);
        EXPECT_EQ(*each, (PeriodFigures{.limit = 35, .pool = 175, .average = 35}));
    }
    EXPECT_EQ(sumOfPools(figures), 875);
}

TEST(FiguresOfAnElection, AreNoneWithoutTwoDates) {
    ElectionSpans spans;
    spans[0] = PeriodSpan{.from = "15-04-24", .to = ""};
    spans[1] = PeriodSpan{.from = "//", .to = "24-05-24"};
    const auto figures = electionFigures(spans, {.monteOre = 40, .employees = 7});
    EXPECT_FALSE(figures[0]);
    EXPECT_FALSE(figures[1]) << "one mark alone excludes nothing";
    EXPECT_EQ(sumOfPools(figures), 0);
}

/// Six employees, a month: limit 60, pool 240, average 40.
constexpr PeriodFigures month{.limit = 60, .pool = 240, .average = 40};

void expectMessage(const Judgement& judgement, Verdict verdict, const std::string& title, const std::string& text) {
    EXPECT_EQ(judgement.verdict, verdict);
    ASSERT_TRUE(judgement.message);
    EXPECT_EQ(judgement.message->title, title);
    EXPECT_EQ(judgement.message->text, text);
}

TEST(CorrectedHours, StandInSilenceUpToAllLimits) {
    for (const auto& [hours, used] : {std::pair{0, 0}, {40, 240}, {40, 40}, {12, 240}, {41, 240}, {60, 240}}) {
        const Judgement judgement = judgeCorrectedHours(hours, used, month);
        EXPECT_EQ(judgement.verdict, Verdict::accepted) << hours << " of " << used;
        EXPECT_FALSE(judgement.message);
    }
}

TEST(CorrectedHours, AboveTheIndividualLimitAreRefusedFirst) {
    const std::string text =
        "Le ore autorizzate superano il limite massimo individuale mensile (60 ore.), di 3 ore. Non possono essere "
        "autorizzate. Modificare i dati";
    expectMessage(judgeCorrectedHours(63, 100, month), Verdict::refused, "Ore autorizzate", text);
    expectMessage(judgeCorrectedHours(63, 300, month), Verdict::refused, "Ore autorizzate", text);
}

TEST(CorrectedHours, AboveTheAverageWithinThePoolAreNoticed) {
    expectMessage(
        judgeCorrectedHours(45, 239, month), Verdict::noticed, "Ore autorizzate",
        "Le ore autorizzate superano il limite medio individuale mensile di 5 ore. Possono essere autorizzate "
        "in quanto rientrano nel monte ore mensile e nel limite massimo individuale delle 60 ore.");
}

TEST(CorrectedHours, AboveTheAverageAndThePoolAreRefusedForBoth) {
    expectMessage(
        judgeCorrectedHours(45, 244, month), Verdict::refused, "Errore",
        "Le ore autorizzate superano non solo il limite medio mensile di 40 ore, ma anche il limite del monte "
        "ore mensile delle240 ore, di n.4ore. Modificare i dati");
}

TEST(CorrectedHours, AboveThePoolAloneAreRefused) {
    expectMessage(judgeCorrectedHours(40, 241, month), Verdict::refused, "Errore",
                  "Le ore autorizzate superano il limite mensile di 1 ore. Modificare i dati");
}

TEST(PaidHours, MayReachTheAuthorisedOnes) {
    EXPECT_FALSE(paidAboveAuthorised(12, 12));
    EXPECT_FALSE(paidAboveAuthorisedOnLeaving(12, 12));
    EXPECT_FALSE(authorisedBelowPaid(12, 12));
    EXPECT_FALSE(authorisedBelowPaid(12, 0));
}

TEST(PaidHours, AboveTheAuthorisedOnesAreTold) {
    const auto atTotal = paidAboveAuthorised(15, 12);
    ASSERT_TRUE(atTotal);
    EXPECT_EQ(atTotal->text, "Attenzione, il numero delle ore fatte supera quelle autorizzate di 3 ore");
    EXPECT_EQ(atTotal->title, "Liquidazione ore");
    const auto onLeaving = paidAboveAuthorisedOnLeaving(15, 12);
    ASSERT_TRUE(onLeaving);
    EXPECT_EQ(onLeaving->text, "Le ore liquidate superano le ore autorizzate");
    EXPECT_EQ(onLeaving->title, "inserimento dati");
    const auto corrected = authorisedBelowPaid(12, 15);
    ASSERT_TRUE(corrected);
    EXPECT_EQ(corrected->text, "Le ore autorizzate sono inferiori a quelle liquidate di 3 ore, modificare i dati");
    EXPECT_EQ(corrected->title, "Errore!");
}

}  // namespace
}  // namespace vorbano
