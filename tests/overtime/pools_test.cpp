#include "overtime/pools.h"

#include <gmock/gmock.h>

#include <cstdlib>
#include <limits>
#include <ostream>
#include <string>
#include <vector>

namespace vorbano {

void PrintTo(const PeriodFigures& figures, std::ostream* out) {
    *out << "limit " << figures.limit << ", pool " << figures.pool << ", average " << figures.average;
}

namespace {

using ::testing::HasSubstr;
using ::testing::Not;

TEST(HoursPerEmployee, FallWithTheSizeOfTheStaff) {
    for (const int employees : {1, 4, 5}) EXPECT_EQ(monteOre(employees), 60) << employees;
    for (const int employees : {6, 7, 820, 32767}) EXPECT_EQ(monteOre(employees), 40) << employees;
}

struct PeriodCase {
    std::string from;
    std::string to;
    int days;
};

void expectDays(const std::vector<PeriodCase>& cases) {
    for (const auto& [from, to, days] : cases) EXPECT_EQ(countedDays(from, to), days) << from << " to " << to;
}

TEST(CountedDays, AreTheDaysOfTheCalendarBothIncludedAndThirtyAtMost) {
    expectDays({{"09-06-24", "09-06-24", 1},
                {"01-04-24", "15-04-24", 15},
                {"01-04-24", "29-04-24", 29},
                {"01-04-24", "30-04-24", 30},
                {"01-05-24", "30-05-24", 30},
                {"01-05-24", "31-05-24", 30},
                {"01-05-24", "31-12-24", 30},
                {"01-01-24", "28-01-24", 28},
                {"01-01-24", "31-01-24", 30}});
}

TEST(CountedDays, OfAPeriodAcrossAMonthAreNotSplit) {
    expectDays({{"20-04-24", "09-05-24", 20},    // 11 + 9
                {"16-05-24", "14-06-24", 30},    // 16 + 14
                {"16-05-24", "15-06-24", 30},    // 31
                {"20-12-23", "10-01-24", 22},    // 12 + 10
                {"20-02-24", "05-03-24", 15},    // 10 + 5 in a leap year
                {"20-02-23", "05-03-23", 14}});  // 9 + 5
}

TEST(CountedDays, OfAFebruaryOfTwentyEightDaysOrMoreAreAFullMonth) {
    expectDays({{"01-02-23", "28-02-23", 30},
                {"01-02-24", "28-02-24", 30},
                {"01-02-24", "29-02-24", 30},
                {"02-02-24", "29-02-24", 30},
                {"01-02-23", "27-02-23", 27},
                {"03-02-24", "29-02-24", 27},
                {"02-02-23", "28-02-23", 27}});
}

TEST(CountedDays, LookAtTheMonthOfTheFirstDateOnly) {
    expectDays({{"15-02-23", "14-03-23", 30},  // 28 days that begin in February
                {"15-02-23", "13-03-23", 27},  // and 27
                {"10-02-24", "31-03-24", 30},  // 51
                {"31-01-23", "27-02-23", 28},  // 28 days that begin in January
                {"30-01-23", "27-02-23", 29},  // 29
                {"29-01-23", "27-02-23", 30},  // 30
                {"01-03-24", "28-03-24", 28},  // 28 days of another month
                {"01-03-24", "29-03-24", 29}});
}

TEST(CountedDays, AreNoneWithoutTwoDates) {
    for (const auto& [from, to] : std::vector<std::pair<std::string, std::string>>{{"//", "//"},
                                                                                   {"//      ", "//      "},
                                                                                   {"", ""},
                                                                                   {"01-04-24", ""},
                                                                                   {"01-04-24", "//"},
                                                                                   {"31-02-24", "01-03-24"}}) {
        EXPECT_EQ(countedDays(from, to), std::nullopt) << from << " to " << to;
    }
}

TEST(CountedDays, TakeBothSeparators) { EXPECT_EQ(countedDays("1/4/24", "15/04/2024"), 15); }

TEST(FiguresOfAPeriod, OfSixEmployeesForAFullMonth) {
    EXPECT_EQ(periodFigures(1, 30, 40, 6), (PeriodFigures{.limit = 60, .pool = 240, .average = 40}));
    EXPECT_EQ(periodFigures(1, *countedDays("01-02-23", "28-02-23"), 40, 6),
              (PeriodFigures{.limit = 60, .pool = 240, .average = 40}));
}

TEST(FiguresOfAPeriod, OfFiveEmployeesForHalfAMonth) {
    EXPECT_EQ(periodFigures(2, 15, 60, 5), (PeriodFigures{.limit = 30, .pool = 150, .average = 30}));
}

TEST(FiguresOfAPeriod, OfSevenEmployeesRoundToTheNearestHour) {
    // 40/30 an employee and day: 13,33 and 93,33; 14,67 and 102,67; 26,67 and 186,67.
    EXPECT_EQ(periodFigures(3, 10, 40, 7), (PeriodFigures{.limit = 20, .pool = 93, .average = 13}));
    EXPECT_EQ(periodFigures(3, 11, 40, 7), (PeriodFigures{.limit = 22, .pool = 103, .average = 15}));
    EXPECT_EQ(periodFigures(3, 20, 40, 7), (PeriodFigures{.limit = 40, .pool = 187, .average = 27}));
}

TEST(FiguresOfAPeriod, TheStaffOnTheHigherNumberOfHoursHasTheWholeOfIt) {
    EXPECT_EQ(periodFigures(1, 30, monteOre(5), 5), (PeriodFigures{.limit = 60, .pool = 300, .average = 60}));
    EXPECT_EQ(periodFigures(1, 30, monteOre(6), 6), (PeriodFigures{.limit = 60, .pool = 240, .average = 40}))
        << "one employee more, and the staff has sixty hours less";
}

TEST(FiguresOfAPeriod, TheLimitTakesSeventyHoursForTheFourthAndFifthPeriod) {
    struct LimitCase {
        int days, firstThree, lastTwo;
    };
    // 70/30 a day: 70; 67,67; 35; 25,67; 23,33; 2,33.
    for (const auto& [days, firstThree, lastTwo] :
         std::vector<LimitCase>{{30, 60, 70}, {29, 58, 68}, {15, 30, 35}, {11, 22, 26}, {10, 20, 23}, {1, 2, 2}}) {
        for (const int period : {1, 2, 3}) EXPECT_EQ(periodFigures(period, days, 40, 6).limit, firstThree) << days;
        for (const int period : {4, 5}) EXPECT_EQ(periodFigures(period, days, 40, 6).limit, lastTwo) << days;
    }
}

TEST(FiguresOfAPeriod, PoolAndAverageAreAlikeInAllPeriods) {
    for (const int period : {1, 2, 3, 4, 5}) {
        EXPECT_EQ(periodFigures(period, 10, 40, 7).pool, 93) << period;
        EXPECT_EQ(periodFigures(period, 10, 40, 7).average, 13) << period;
    }
}

TEST(FiguresOfAPeriod, ThePoolRoundsHalvesAwayFromZeroAndTheAverageToTheEvenHour) {
    struct HalfCase {
        int days, hours, pool, average;
    };
    // One employee on 45 or 15 hours: 1,5; 4,5; 7,5; 10,5; 0,5; 2,5.
    for (const auto& [days, hours, pool, average] : std::vector<HalfCase>{
             {1, 45, 2, 2}, {3, 45, 5, 4}, {5, 45, 8, 8}, {7, 45, 11, 10}, {1, 15, 1, 0}, {5, 15, 3, 2}}) {
        const PeriodFigures figures = periodFigures(1, days, hours, 1);
        EXPECT_EQ(figures.pool, pool) << days << " days of " << hours << " hours a month";
        EXPECT_EQ(figures.average, average) << days << " days of " << hours << " hours a month";
    }
}

/// Nearest: thirty times it lies no more than half of thirty away from days times hours.
TEST(FiguresOfAPeriod, AreAlwaysTheNearestWholeHours) {
    for (int days = 1; days <= 30; ++days) {
        for (const int hours : {15, 40, 45, 50, 60, 70}) {
            for (int employees = 1; employees <= 60; ++employees) {
                const PeriodFigures figures = periodFigures(1, days, hours, employees);
                const int poolOff = 30 * figures.pool - days * hours * employees;
                const int averageOff = 30 * figures.average - days * hours;
                ASSERT_TRUE(poolOff > -15 && poolOff <= 15) << days << ' ' << hours << ' ' << employees;
                ASSERT_LE(std::abs(averageOff), 15) << days << ' ' << hours;
                ASSERT_TRUE(std::abs(averageOff) < 15 || figures.average % 2 == 0) << days << ' ' << hours;
            }
        }
    }
}

TEST(FiguresOfAPeriod, OfAnImpossibleStaffStayAtTheLargestNumber) {
    constexpr int most = std::numeric_limits<int>::max();
    EXPECT_EQ(periodFigures(1, 30, most, most), (PeriodFigures{.limit = 60, .pool = most, .average = most}));
    EXPECT_EQ(periodFigures(1, 30, most, -most).pool, std::numeric_limits<int>::min());
}

/// Six employees for a full month.
constexpr PeriodFigures fullMonth{.limit = 60, .pool = 240, .average = 40};

struct HoursCase {
    int hours, used;
};

void expectAcceptedInSilence(const std::vector<HoursCase>& cases) {
    for (const auto& [hours, used] : cases) {
        const Judgement judgement = judgeHours(hours, used, fullMonth);
        EXPECT_EQ(judgement.verdict, Verdict::accepted) << hours << " of " << used;
        EXPECT_FALSE(judgement.message) << hours << " of " << used;
    }
}

void expectSays(const Judgement& judgement, Verdict verdict, Icon icon, const std::string& title,
                const std::string& text) {
    EXPECT_EQ(judgement.verdict, verdict);
    ASSERT_TRUE(judgement.message);
    EXPECT_EQ(judgement.message->title, title);
    EXPECT_EQ(judgement.message->text, text);
    EXPECT_EQ(judgement.message->icon, icon);
}

TEST(HoursOfAnEmployee, StandUpToTheAverage) { expectAcceptedInSilence({{0, 0}, {10, 10}, {39, 239}, {40, 40}}); }

TEST(HoursOfAnEmployee, StandExactlyAtThePool) { expectAcceptedInSilence({{40, 240}, {12, 240}, {0, 240}}); }

TEST(HoursOfAnEmployee, AboveTheAverageStandInSilenceWhenTheyUseUpThePool) {
    expectAcceptedInSilence({{41, 240}, {60, 240}});
}

TEST(HoursOfAnEmployee, OneAboveThePoolIsRefused) {
    expectSays(judgeHours(40, 241, fullMonth), Verdict::refused, Icon::error, "Errore",
               "Le ore autorizzate superano il limite mensile di 1 ore. Modificare i dati");
    expectSays(judgeHours(0, 300, fullMonth), Verdict::refused, Icon::error, "Errore",
               "Le ore autorizzate superano il limite mensile di 60 ore. Modificare i dati");
}

TEST(HoursOfAnEmployee, AboveTheIndividualLimitAreRefused) {
    expectSays(judgeHours(61, 61, fullMonth), Verdict::refused, Icon::error, "Ore autorizzate",
               "Le ore autorizzate superano il limite massimo individuale mensile (60 ore.), di 1 ore. Non possono "
               "essere autorizzate. Modificare i dati");
    expectSays(judgeHours(75, 240, fullMonth), Verdict::refused, Icon::error, "Ore autorizzate",
               "Le ore autorizzate superano il limite massimo individuale mensile (60 ore.), di 15 ore. Non possono "
               "essere autorizzate. Modificare i dati");
}

TEST(HoursOfAnEmployee, AboveTheAverageWithinThePoolAreNoticed) {
    expectSays(judgeHours(41, 239, fullMonth), Verdict::noticed, Icon::information, "Ore autorizzate",
               "Le ore autorizzate superano il limite medio individuale mensile di 1 ore. Possono essere autorizzate "
               "in quanto rientrano nel monte ore mensile e nel limite massimo individuale delle 60 ore.");
    expectSays(judgeHours(60, 60, fullMonth), Verdict::noticed, Icon::information, "Ore autorizzate",
               "Le ore autorizzate superano il limite medio individuale mensile di 20 ore. Possono essere autorizzate "
               "in quanto rientrano nel monte ore mensile e nel limite massimo individuale delle 60 ore.");
}

TEST(HoursOfAnEmployee, ThePoolIsTestedBeforeTheIndividualLimit) {
    expectSays(judgeHours(61, 241, fullMonth), Verdict::refused, Icon::error, "Errore",
               "Le ore autorizzate superano il limite mensile di 1 ore. Modificare i dati");
}

TEST(HoursOfAnEmployee, TheTextOfTheLastCheckIsNeverShown) {
    for (int hours = 0; hours <= 130; ++hours) {
        for (int used = hours; used <= 300; ++used) {
            const Judgement judgement = judgeHours(hours, used, fullMonth);
            const std::string text = judgement.message ? judgement.message->text : "";
            ASSERT_THAT(text, Not(HasSubstr("diffmonte"))) << hours << " of " << used;
        }
    }
}

TEST(HoursOfAnEmployee, AreWeighedByEachFigureByItself) {
    for (int hours = 0; hours <= 130; ++hours) {
        for (int used = hours; used <= 300; ++used) {
            const Judgement judgement = judgeHours(hours, used, fullMonth);
            const bool refused = used > 240 || hours > 60;
            ASSERT_EQ(judgement.verdict == Verdict::refused, refused) << hours << " of " << used;
            const bool noticed = !refused && hours > 40 && used < 240;
            ASSERT_EQ(judgement.verdict == Verdict::noticed, noticed) << hours << " of " << used;
            ASSERT_EQ(judgement.message.has_value(), refused || noticed) << hours << " of " << used;
        }
    }
}

TEST(PoolOfTheElection, IsExceededWithAWarning) {
    const Message message = poolExceeded();
    EXPECT_EQ(message.title, "Attenzione!");
    EXPECT_EQ(message.icon, Icon::warning);
    EXPECT_EQ(message.text,
              "E' Stato superato il monte ore! I dati verranno comunque inseriti e memorizzati. Dopo aver Finito di "
              "inserire i dati lanciare una stampa dal menu principale 'File'>'Stampa'>Compenso straordinario. Aprite "
              "poi la finestra dal menu principale 'Straordinario' > 'Modifica' per le rettifiche.");
}

}  // namespace
}  // namespace vorbano
