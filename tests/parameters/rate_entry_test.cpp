#include "parameters/rate_entry.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <limits>

#include "platform/operator.h"

namespace vorbano::test {
namespace {

TEST(PlainNumber, HasNoPictureAndOnlyTheDecimalsThatCount) {
    EXPECT_EQ(plainNumber(Currency::fromUnits(238'000)), "23,8");
    EXPECT_EQ(plainNumber(Currency::fromUnits(85'000)), "8,5");
    EXPECT_EQ(plainNumber(Currency::fromUnits(3'500)), "0,35");
    EXPECT_EQ(plainNumber(Currency::fromUnits(88'512)), "8,8512");
    EXPECT_EQ(plainNumber(Currency::fromUnits(1)), "0,0001");
    EXPECT_EQ(plainNumber(Currency::fromUnits(80'000)), "8");
    EXPECT_EQ(plainNumber(Currency()), "0");
    EXPECT_EQ(plainNumber(Currency::fromUnits(12'345'000)), "1234,5");
    EXPECT_EQ(plainNumber(Currency::fromUnits(-5'000)), "-0,5");
    EXPECT_EQ(plainNumber(Currency::fromUnits(std::numeric_limits<std::int64_t>::min())), "-922337203685477,5808");
}

TEST(TypedAmount, IsZeroForAnEmptyFieldAndNothingForLetters) {
    EXPECT_EQ(typedAmount(""), Currency());
    EXPECT_EQ(typedAmount("  "), Currency());
    EXPECT_EQ(typedAmount("8,8512"), Currency::fromUnits(88'512));
    EXPECT_EQ(typedAmount("1.234,5"), Currency::fromUnits(12'345'000));
    EXPECT_EQ(typedAmount("abc"), std::nullopt);
    EXPECT_EQ(typedAmount("1,2,3"), std::nullopt);
}

TEST(TypedPoint, BecomesAComma) {
    EXPECT_EQ(withTypedPointAsComma("", "."), ",");
    EXPECT_EQ(withTypedPointAsComma("10", "10."), "10,");
    EXPECT_EQ(withTypedPointAsComma("1050", "10.50"), "10,50");
    EXPECT_EQ(withTypedPointAsComma("10,50", "."), ",");
}

TEST(TypedPoint, LeavesThePointsThatWereThere) {
    EXPECT_EQ(withTypedPointAsComma("1.234,5", "1.234,50"), "1.234,50");
    EXPECT_EQ(withTypedPointAsComma("1.234,50", "1.234,5"), "1.234,5");
    EXPECT_EQ(withTypedPointAsComma("1.234,50", "1.2"), "1.2");
    EXPECT_EQ(withTypedPointAsComma("", "1.234,50"), "1.234,50");
}

TEST(CommaField, TurnsWhatIsTypedAndNotWhatTheProgramShows) {
    Form form{"frm", ""};
    TextBox field{form, "txt"};
    makeCommaField(field);
    field.text = std::string("12345,00");
    field.text = std::string("12.345,00");
    EXPECT_EQ(field.text(), "12.345,00");
    EXPECT_EQ(Operator(form).type(field, "10.27"), Refusal::none);
    EXPECT_EQ(field.text(), "10,27");
    EXPECT_EQ(Operator(form).edit(field, "10,2.7"), Refusal::none);
    EXPECT_EQ(field.text(), "10,2,7");
}

}  // namespace
}  // namespace vorbano::test
