// Expected shares are worked out by hand; where a loop runs over many amounts they follow from whole cents alone.

#include "statement/sharing.h"

#include <gtest/gtest.h>

#include <string>

namespace vorbano::test {
namespace {

struct Halved {
    std::int64_t whole;  ///< cents, as all amounts here
    std::int64_t first;
    std::int64_t second;
};

void expectShares(BodyPart part, std::initializer_list<Halved> amounts) {
    for (const Halved& each : amounts) {
        const Shares shares = divide(Currency::fromCents(each.whole), part);
        EXPECT_EQ(shares.first.units(), each.first * 100) << each.whole;
        EXPECT_EQ(shares.second.units(), each.second * 100) << each.whole;
    }
}

TEST(Sharing, OddCentOfAHalfGoesToTheFirstBody) {
    expectShares(oneHalf, {{10001, 5001, 5000},
                           {1, 1, 0},
                           {0, 0, 0},
                           {33333, 16667, 16666},
                           {9'999'999'999, 5'000'000'000, 4'999'999'999}});
}

TEST(Sharing, TwoThirdsAreRoundedOnce) {
    // 0,01 x 2 / 3 = 0,0067; 0,02 = 0,0133; 100,00 = 66,6667; 100,01 = 66,6733
    expectShares(twoThirds, {{1, 1, 0},
                             {2, 1, 1},
                             {3, 2, 1},
                             {10000, 6667, 3333},
                             {10001, 6667, 3334},
                             {9'999'999'999, 6'666'666'666, 3'333'333'333}});
}

TEST(Sharing, FiveSixthsOfThreeCentsMoreThanAMultipleOfSixAreATie) {
    // 0,03 / 6 x 5 = 0,025; 0,09 = 0,075
    expectShares(fiveOfSix, {{1, 1, 0},
                             {3, 3, 0},
                             {6, 5, 1},
                             {9, 8, 1},
                             {10000, 8333, 1667},
                             {9'999'999'999, 8'333'333'333, 1'666'666'666}});
}

TEST(Sharing, TheWholeLeavesNothing) {
    expectShares(theWhole, {{1, 1, 0}, {10001, 10001, 0}, {-7, -7, 0}, {9'999'999'999, 9'999'999'999, 0}});
}

TEST(Sharing, NegativeAmountsAreSharedAsTheirOpposites) {
    expectShares(oneHalf, {{-10001, -5001, -5000}, {-1, -1, 0}});
    expectShares(twoThirds, {{-2, -1, -1}, {-10000, -6667, -3333}});
    expectShares(fiveOfSix, {{-3, -3, 0}, {-9, -8, -1}});
}

TEST(Sharing, FourDecimalsAreRoundedInTheShareAndStayInTheRemainder) {
    // 0,0150 / 2 = 0,0075 and 0,0099 / 2 = 0,00495
    EXPECT_EQ(divide(Currency::fromUnits(150), oneHalf).first.units(), 100);
    EXPECT_EQ(divide(Currency::fromUnits(150), oneHalf).second.units(), 50);
    EXPECT_EQ(divide(Currency::fromUnits(99), oneHalf).first.units(), 0);
    EXPECT_EQ(divide(Currency::fromUnits(99), oneHalf).second.units(), 99);
    EXPECT_EQ(divide(Currency::fromUnits(100), oneHalf).first.units(), 100);
}

TEST(Sharing, AmountsAtTheLimitDoNotOverflow) {
    // 9.223.372.036.854.775.807 ten-thousandths; half of them is 461.168.601.842.738,79035
    const Currency most = Currency::fromUnits(INT64_MAX);
    EXPECT_EQ(partOf(most, oneHalf).units(), 4'611'686'018'427'387'900);
    EXPECT_EQ((divide(most, fiveOfSix).first + divide(most, fiveOfSix).second).units(), INT64_MAX);
    EXPECT_EQ((divide(Currency::fromUnits(INT64_MIN), twoThirds).first +
               divide(Currency::fromUnits(INT64_MIN), twoThirds).second)
                  .units(),
              INT64_MIN);
}

/// For every rule and many amounts: the shares are whole cents and the whole, and the first is as near as a cent can
/// be, the farther one from zero when two are as near.
TEST(Sharing, SharesAlwaysAddUpAndTheFirstIsTheNearestCent) {
    for (const BodyPart part : {oneHalf, twoThirds, fiveOfSix, theWhole}) {
        for (std::int64_t whole = -700; whole <= 12'000; ++whole) {
            const Shares shares = divide(Currency::fromCents(whole), part);
            ASSERT_EQ((shares.first + shares.second).units(), whole * 100);
            ASSERT_EQ(shares.first.units() % 100, 0);
            const std::int64_t over = shares.first.units() / 100 * part.in - whole * part.of;
            const std::int64_t away = whole < 0 ? -over : over;
            ASSERT_GT(2 * away, -part.in) << whole << " x " << part.of << "/" << part.in;
            ASSERT_LE(2 * away, part.in) << whole << " x " << part.of << "/" << part.in;
        }
    }
}

/// One line of what each voice gives to the first body: o half, t two thirds, s five sixths, w whole; in the order
/// onorari, straordinario, speciale, indennità, ata, stampanti, trasporti, disciplina, assunzioni, necessità, missioni.
struct Expected {
    std::string kind;
    std::string date;
    std::string parts;
};

BodyPart partCalled(char letter) {
    switch (letter) {
        case 't':
            return twoThirds;
        case 's':
            return fiveOfSix;
        case 'w':
            return theWhole;
        default:
            return oneHalf;
    }
}

class SharingTable : public testing::TestWithParam<Expected> {};

TEST_P(SharingTable, GivesEachVoiceItsRule) {
    const Expected& expected = GetParam();
    ASSERT_EQ(expected.parts.size(), voices);
    for (std::size_t voice = 0; voice < voices; ++voice) {
        EXPECT_EQ(partFor({expected.kind, expected.date}, static_cast<Voice>(voice)), partCalled(expected.parts[voice]))
            << "voice " << voice;
    }
}

INSTANTIATE_TEST_SUITE_P(Kinds, SharingTable,
                         testing::Values(Expected{"Politiche", "25-09-22", "ooooooooooo"},
                                         Expected{"Referendum", "12-06-22", "ooooooooooo"},
                                         Expected{"Europee", "09-06-24", "oooooooowoo"},
                                         Expected{"Europee_Comunali", "09-06-24", "oooooooowoo"},
                                         Expected{"Provinciali_Comunali", "06-05-12", "ooooooooooo"},
                                         Expected{"Provinciali", "07-06-09", "wowwooooooo"},
                                         Expected{"Comunali", "12-06-22", "wowwooooooo"},
                                         Expected{"Regionali", "25-06-23", "wowwooooooo"},
                                         Expected{"Politiche_Comunali", "13-04-08", "ttttttttttt"},
                                         Expected{"Politiche_Regionali", "24-02-13", "ttttttttttt"},
                                         Expected{"Referendum_Comunali", "11-06-22", "ooooooooooo"},
                                         Expected{"Referendum_Comunali", "12-06-22", "sssssssssws"},
                                         Expected{"Referendum_Comunali", "13-06-22", "ooooooooooo"},
                                         Expected{"Regionali_Comunali", "20-09-20", "ooooooooooo"}),
                         [](const auto& one) { return one.param.kind + "_" + one.param.date.substr(0, 2); });

TEST(Sharing, OnlyOneReferendumIsSharedInSixths) {
    EXPECT_TRUE(sharedInSixths({"Referendum_Comunali", "12-06-22"}));
    EXPECT_FALSE(sharedInSixths({"Referendum_Comunali", "11-06-22"}));
    EXPECT_FALSE(sharedInSixths({"Referendum_Comunali", "13-06-22"}));
    EXPECT_FALSE(sharedInSixths({"Referendum", "12-06-22"}));
    EXPECT_FALSE(sharedInSixths({"Comunali", "12-06-22"}));
}

}  // namespace
}  // namespace vorbano::test
