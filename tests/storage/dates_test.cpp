#include "storage/dates.h"

#include <gmock/gmock.h>

#include <string>
#include <vector>

namespace vorbano {
namespace {

using namespace std::chrono_literals;

struct Reading {
    std::string typed;
    std::string stored;
};

TEST(Dates, OneDayHasOneTextHoweverItIsTyped) {
    const std::vector<Reading> readings = {
        {"09-06-24", "09-06-24"},  {"9/6/24", "09-06-24"},    {"9-6-24", "09-06-24"},     {"09/06/2024", "09-06-24"},
        {"9-06/2024", "09-06-24"}, {"  9/6/24 ", "09-06-24"}, {"29/2/24", "29-02-24"},    {"31/12/99", "31-12-99"},
        {"1/1/00", "01-01-00"},    {"12-06-22", "12-06-22"},  {"01/02/1965", "01-02-65"}, {"29/02/2000", "29-02-00"},
    };
    for (const auto& [typed, stored] : readings) EXPECT_EQ(reformatDate(typed), stored) << typed;
}

TEST(Dates, ATextThatIsNoDateStaysAsItIs) {
    const std::vector<std::string> texts = {
        "",        "//",        "//      ", "--",         "9/6",      "9/6/",
        "/6/24",   "31/02/24",  "29/02/23", "29/02/1900", "32/1/24",  "0/1/24",
        "1/0/24",  "1/13/24",   "9.6.24",   "9 6 24",     "009/6/24", "9/006/24",
        "9/6/024", "9/6/20245", "../..",    "9/6/24x",    "x9/6/24",  "9//6/24",
        "-9/6/24", "9/6/2 4",   "oggi",     "09-06-24-",  "9/6/2",    "99999999999/1/24",
    };
    for (const std::string& text : texts) {
        EXPECT_FALSE(parseDate(text)) << text;
        EXPECT_EQ(reformatDate(text), text);
    }
}

TEST(Dates, TwoDigitsOfAYearAreOfThisCentury) {
    EXPECT_EQ(parseDate("01/02/65"), Date(2065y, std::chrono::February, 1d));
    EXPECT_EQ(parseDate("01/02/1965"), Date(1965y, std::chrono::February, 1d));
    EXPECT_EQ(parseDate("31-12-99"), Date(2099y, std::chrono::December, 31d));
}

TEST(Dates, ATextShowsTheLastTwoDigitsOfTheYear) {
    EXPECT_EQ(dateText(Date(2024y, std::chrono::June, 9d)), "09-06-24");
    EXPECT_EQ(dateText(Date(1905y, std::chrono::December, 31d)), "31-12-05");
}

TEST(Dates, TheMarkOfAnExcludedPeriodIsTheSameTypedOrRead) {
    EXPECT_TRUE(isExcluded("//"));
    EXPECT_TRUE(isExcluded("//      "));
    EXPECT_TRUE(isExcluded(std::string_view("//\0\0\0\0\0\0", 8)));
}

TEST(Dates, NothingElseIsTheMarkOfAnExcludedPeriod) {
    for (const char* text : {"", "/", "///", "--", "09/06/24", "//x", " //", "9//6/24"})
        EXPECT_FALSE(isExcluded(text)) << text;
}

TEST(Dates, DaysAreCountedOverTheEndsOfMonthsAndYears) {
    EXPECT_EQ(daysBetween("09-06-24", "09-06-24"), 0);
    EXPECT_EQ(daysBetween("28-02-24", "01-03-24"), 2);
    EXPECT_EQ(daysBetween("28-02-23", "01-03-23"), 1);
    EXPECT_EQ(daysBetween("31-12-23", "01/01/2024"), 1);
    EXPECT_EQ(daysBetween("15-04-24", "09-06-24"), 55);
    EXPECT_EQ(daysBetween("09-06-24", "15-04-24"), -55);
}

TEST(Dates, ThereAreNoDaysBetweenWhatIsNoDate) {
    EXPECT_EQ(daysBetween("//", "09-06-24"), std::nullopt);
    EXPECT_EQ(daysBetween("09-06-24", ""), std::nullopt);
}

}  // namespace
}  // namespace vorbano
