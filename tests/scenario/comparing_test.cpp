#include "scenario/comparing.h"

#include <gtest/gtest.h>

namespace vorbano {
namespace {

TEST(SameText, AsItIsOrTrimmed) {
    EXPECT_TRUE(sameText("Europee", "Europee"));
    EXPECT_TRUE(sameText("Europee", "  Europee   "));
    EXPECT_TRUE(sameText("  Europee", "Europee"));
    EXPECT_TRUE(sameText("", "    "));
    EXPECT_FALSE(sameText("Europee", "europee"));
    EXPECT_FALSE(sameText("a b", "a  b"));
    EXPECT_FALSE(sameText("10", "10,00"));
}

TEST(SameText, AllLineEndsAreAlike) {
    EXPECT_TRUE(sameText("a\nb\nc", "a\r\nb\rc"));
    EXPECT_FALSE(sameText("a\nb", "a b"));
}

struct Pair {
    const char* expected;
    const char* shown;
    bool same;
};

class SameValue : public testing::TestWithParam<Pair> {};

TEST_P(SameValue, ToTwoDecimals) {
    EXPECT_EQ(sameValue(GetParam().expected, GetParam().shown), GetParam().same);
    EXPECT_EQ(sameValue(GetParam().shown, GetParam().expected), GetParam().same);
}

INSTANTIATE_TEST_SUITE_P(
    All, SameValue,
    testing::Values(Pair{"10", "10,00", true}, Pair{"10", "10,01", false}, Pair{"170,05", "170,05", true},
                    Pair{"1234,5", "1.234,50", true}, Pair{"1.234.567", "1234567,00", true}, Pair{",35", "0,35", true},
                    Pair{"-10", "-10,00", true}, Pair{"10", "-10,00", false}, Pair{"0", "-0,00", true},
                    Pair{"0,005", "0,01", true}, Pair{"0,004", "0,00", true}, Pair{"9,995", "10,00", true},
                    Pair{"99,995", "100", true}, Pair{"1,2345", "1,23", true}, Pair{"1,2345", "1,2349", false},
                    Pair{"1,2340", "1,234", true}, Pair{"007", "7", true}, Pair{"", "0", false}, Pair{"", "", true},
                    Pair{"", "   ", true}, Pair{" Rossi ", "Rossi", true}, Pair{"1.5", "15", false},
                    Pair{"12.34", "1234", false}, Pair{"1234.567", "1234567", false}, Pair{"1.2345", "12345", false},
                    Pair{".234", "234", false}, Pair{"10,", "10", false}, Pair{"09-06-24", "9-6-24", false},
                    Pair{"10a", "10", false}, Pair{"-", "0", false}, Pair{",", "0", false}));

}  // namespace
}  // namespace vorbano
