#include "screens/typed_values.h"

#include <gmock/gmock.h>

namespace vorbano {
namespace {

int16_t hoursAfter(std::string_view text) {
    Integer hours;
    hours = std::int16_t{7};
    take(hours, text);
    return hours;
}

Currency amountAfter(std::string_view text) {
    Currency amount = Currency::fromCents(700);
    takeCents(amount, text);
    return amount;
}

TEST(TypedValues, GoIntoTheField) {
    EXPECT_EQ(hoursAfter("12"), 12);
    EXPECT_EQ(hoursAfter("12,5"), 12);
    EXPECT_EQ(hoursAfter("13,5"), 14);
    EXPECT_EQ(amountAfter("1.234,565"), Currency::fromCents(123457));
    EXPECT_EQ(amountAfter("-0,005"), Currency::fromCents(-1));
}

TEST(TypedValues, AreZeroWhenNothingWasTyped) {
    for (const char* empty : {"", "  "}) {
        EXPECT_EQ(hoursAfter(empty), 0);
        EXPECT_EQ(amountAfter(empty), Currency());
    }
}

TEST(TypedValues, LeaveTheFieldWhenTheyAreNoNumber) {
    for (const char* text : {"dodici", "1a"}) {
        EXPECT_EQ(hoursAfter(text), 7);
        EXPECT_EQ(amountAfter(text), Currency::fromCents(700));
    }
    EXPECT_EQ(hoursAfter("40000"), 7);
}

}  // namespace
}  // namespace vorbano
