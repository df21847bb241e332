#include "platform/qt/layout_masks.h"

#include <gtest/gtest.h>

namespace vorbano::test {

namespace {
std::string shown(std::string_view mask, std::int64_t units) {
    const auto read = Mask::read(mask);
    return read ? read->shown(units) : "no mask";
}
}  // namespace

TEST(LayoutMasks, ShowAmountsWithTwoDecimalsInTheItalianForm) {
    EXPECT_EQ(amountMask().shown(0), "0,00");
    EXPECT_EQ(amountMask().shown(1700500), "170,05");
    EXPECT_EQ(amountMask().shown(12345678900), "1.234.567,89");
    EXPECT_EQ(amountMask().shown(-12345000), "-1.234,50");
}

TEST(LayoutMasks, RoundHalfAwayFromZero) {
    EXPECT_EQ(amountMask().shown(49), "0,00");
    EXPECT_EQ(amountMask().shown(50), "0,01");
    EXPECT_EQ(amountMask().shown(-50), "-0,01");
    EXPECT_EQ(amountMask().shown(-49), "0,00") << "nothing is left of the number, nor of its sign";
    EXPECT_EQ(amountMask().shown(9999950), "1.000,00");
    EXPECT_EQ(shown("#,##0", 25000), "3");
}

TEST(LayoutMasks, ShowTheLargestAndTheSmallestAmount) {
    EXPECT_EQ(amountMask().shown(INT64_MAX), "922.337.203.685.477,58");
    EXPECT_EQ(amountMask().shown(INT64_MIN), "-922.337.203.685.477,58");
}

TEST(LayoutMasks, ShowWholeNumbers) {
    EXPECT_EQ(wholeMask().shown(327670000), "32767");
    EXPECT_EQ(shown("#,##0", 327670000), "32.767");
    EXPECT_EQ(shown("00", 50000), "05");
    EXPECT_EQ(shown("##", 0), "");
}

TEST(LayoutMasks, DropDecimalsThatMayBeLeftOut) {
    EXPECT_EQ(shown("0.00##", 238000), "23,80");
    EXPECT_EQ(shown("0.00##", 3500), "0,35");
    EXPECT_EQ(shown("0.00##", 88512), "8,8512");
    EXPECT_EQ(shown("0.##", 80000), "8");
}

TEST(LayoutMasks, ShowAnythingForZero) {
    EXPECT_EQ(shown("0;–", 0), "–");
    EXPECT_EQ(shown("0;", 0), "");
    EXPECT_EQ(shown("0;–", 10000), "1");
    EXPECT_EQ(shown("0.00;–", 49), "–") << "what would be shown as zero";
}

TEST(LayoutMasks, RefuseWhatIsNoMask) {
    for (const char* text : {"", ";-", "euro", "0.0.0", "0.#0", "0.00000", ",0", "#0#", "0,00 €"}) {
        EXPECT_FALSE(Mask::read(text).has_value()) << text;
    }
}

}  // namespace vorbano::test
