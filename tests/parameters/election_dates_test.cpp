#include "parameters/election_dates.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace vorbano::test {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

TEST(DatesOnOffer, AreThoseOf2004To2090InTheirOrder) {
    EXPECT_THAT(datesOnOffer({"09-06-24", "13-06-99", "12-06-04", "08-05-03", "01-01-90", "01-01-91", "06-06-09"}, {}),
                ElementsAre("09-06-24", "12-06-04", "01-01-90", "06-06-09"));
}

TEST(DatesOnOffer, LosesNeighboursAlike) {
    EXPECT_THAT(datesOnOffer({"08-05-03", "13-06-99", "01-01-91", "09-06-24"}, {}), ElementsAre("09-06-24"));
    EXPECT_THAT(datesOnOffer({"08-05-03", "13-06-99"}, {}), IsEmpty());
}

TEST(DatesOnOffer, OfOneYearAreThoseThatEndWithItsTwoDigits) {
    EXPECT_THAT(datesOnOffer({"09-06-24", "26-05-19", "24-11-24", "24-05-09"}, 2024),
                ElementsAre("09-06-24", "24-11-24"));
    EXPECT_THAT(datesOnOffer({"06-06-09", "09-06-24"}, 2009), ElementsAre("06-06-09"));
    EXPECT_THAT(datesOnOffer({"09-06-24"}, 2026), IsEmpty());
}

TEST(DatesOnOffer, OfAYearThatIsNeverOfferedAreNone) {
    EXPECT_THAT(datesOnOffer({"01-01-03", "01-01-95"}, 2003), IsEmpty());
    EXPECT_THAT(datesOnOffer({"01-01-03", "01-01-95"}, 2095), IsEmpty());
}

TEST(DatesOnOffer, AreComparedAsText) {
    // Folders that are no dates: "0x" lies between "04" and "90" as text, a lone "5" too, "vo" and nothing do not.
    EXPECT_THAT(datesOnOffer({"archivio", "copia 5", "5", "0x", ""}, {}), ElementsAre("5", "0x"));
}

}  // namespace
}  // namespace vorbano::test
