#include "fiscalcode/birth_date.h"

#include <gmock/gmock.h>

namespace vorbano {
namespace {

using namespace std::chrono_literals;

constexpr Date today{2024y / 6 / 10};

TEST(BirthDates, AreWrittenWithTheWholeYear) {
    EXPECT_EQ(reformatBirthDate("5/3/1975", today), "05/03/1975");
    EXPECT_EQ(reformatBirthDate(" 05-03-1975 ", today), "05/03/1975");
    EXPECT_EQ(reformatBirthDate("31/12/1899", today), "31/12/1899");
}

TEST(BirthDates, OfTwoDigitsLieInThePast) {
    EXPECT_EQ(reformatBirthDate("01/02/65", today), "01/02/1965");
    EXPECT_EQ(reformatBirthDate("10/06/24", today), "10/06/2024");
    EXPECT_EQ(reformatBirthDate("11/06/24", today), "11/06/1924");
    EXPECT_EQ(reformatBirthDate("01/01/00", today), "01/01/2000");
}

TEST(BirthDates, OfALeapDayThatOnlyTheYearToComeHasAreNone) {
    EXPECT_EQ(birthDate("29/02/00", Date(1999y / 1 / 1)), std::nullopt);
    EXPECT_EQ(birthDate("29/02/28", today), Date(1928y / 2 / 29));
}

TEST(BirthDates, ThatAreNoDateStayAsTyped) {
    for (const char* text : {"", "31/02/1970", "oggi", "1/1", "1.1.1970"}) {
        EXPECT_EQ(birthDate(text, today), std::nullopt) << text;
        EXPECT_EQ(reformatBirthDate(text, today), text);
    }
}

}  // namespace
}  // namespace vorbano
