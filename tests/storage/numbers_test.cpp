#include "storage/numbers.h"

#include <gmock/gmock.h>

#include <limits>
#include <optional>
#include <string>
#include <vector>

namespace vorbano {
namespace {

template <class Value>
struct Case {
    std::string text;
    Value value;
};

TEST(PlainScan, StopsAtTheFirstCharacterThatIsNoPartOfANumber) {
    const std::vector<Case<double>> cases = {
        {"", 0},         {"   ", 0},  {"7", 7},       {"12.5", 12.5}, {"12,5", 12}, {"1.234,56", 1.234},
        {".5", 0.5},     {"5.", 5},   {"1.2.3", 1.2}, {"12 34", 12},  {"1e3", 1},   {"0x10", 0},
        {"09-06-24", 9}, {"31x", 31}, {"abc", 0},     {"ore 5", 0},   {"//", 0},    {".", 0},
        {"\t7", 0},      {"😀", 0},    {"007", 7},
    };
    for (const auto& [text, value] : cases) EXPECT_EQ(plainScan(text), value) << text;
}

TEST(PlainScan, TakesLeadingBlanksAndOneSign) {
    const std::vector<Case<double>> cases = {{"  7", 7}, {"-3", -3}, {"+3", 3},  {"  -4.5x", -4.5},
                                             {"--3", 0}, {"+-3", 0}, {"- 5", 0}, {"-", 0}};
    for (const auto& [text, value] : cases) EXPECT_EQ(plainScan(text), value) << text;
}

TEST(PlainScan, OfMoreDigitsThanANumberCanHaveIsTheLargestOrNothing) {
    EXPECT_EQ(plainScan(std::string(400, '9')), std::numeric_limits<double>::max());
    EXPECT_EQ(plainScan("-" + std::string(400, '9')), -std::numeric_limits<double>::max());
    EXPECT_EQ(plainScan("0." + std::string(400, '0') + "1"), 0);
}

TEST(WholeScan, IsThePlainScanCutToAWholeNumber) {
    const std::vector<Case<int>> cases = {
        {"12,5", 12}, {"13,5", 13}, {"12.9", 12}, {"-12.9", -12}, {"", 0}, {"40 ore", 40}, {"1.234,56", 1},
    };
    for (const auto& [text, value] : cases) EXPECT_EQ(wholeScan(text), value) << text;
}

TEST(WholeScan, StaysAtTheLimitOfThirtyTwoBits) {
    EXPECT_EQ(wholeScan("99999999999"), 2147483647);
    EXPECT_EQ(wholeScan("-99999999999"), -2147483647 - 1);
    EXPECT_EQ(wholeScan(std::string(400, '9')), 2147483647);
}

TEST(ConversionToInteger, RoundsHalfToEven) {
    const std::vector<Case<int>> cases = {
        {"12", 12},      {"12,5", 12},  {"13,5", 14},   {"12,51", 13},  {"12,500", 12}, {"12,5001", 13}, {"12,49", 12},
        {"0,5", 0},      {"1,5", 2},    {"-12,5", -12}, {"-13,5", -14}, {"-0,5", 0},    {"+7", 7},       {"  7 ", 7},
        {"1.234", 1234}, {"12.5", 125}, {",9", 1},      {"5,", 5},      {"000012", 12}, {"1..2", 12},    {".5", 5},
    };
    for (const auto& [text, value] : cases) EXPECT_EQ(toInteger(text), std::optional<std::int16_t>(value)) << text;
}

TEST(ConversionToInteger, HoldsSixteenBitsAndNoMore) {
    EXPECT_EQ(toInteger("32767"), std::int16_t{32767});
    EXPECT_EQ(toInteger("32767,4999"), std::int16_t{32767});
    EXPECT_EQ(toInteger("-32768"), std::int16_t{-32768});
    EXPECT_EQ(toInteger("-32768,5"), std::int16_t{-32768}) << "half goes to the even number";
    for (const char* text : {"32768", "32767,5", "-32768,6", "-32769", "99999999999999999999999999999999999999999"}) {
        EXPECT_EQ(toInteger(text), std::nullopt) << text;
    }
}

/// What neither conversion takes for a number.
const std::vector<std::string> noNumbers = {
    "",    " ",  "-",   "+",  ",",   ".",   "-,",  "12a", "a12", "1,2,3", "1,2.3", "1 000", "--1",
    "+-1", "5-", "- 5", "//", "€ 5", "5 €", "1e3", "1'0", "1/2", "😀",     "1\t",   "12:5",  "&H10",
};

TEST(ConversionToInteger, RefusesWhatIsNoNumber) {
    for (const std::string& text : noNumbers) EXPECT_EQ(toInteger(text), std::nullopt) << text;
}

TEST(ConversionToAmount, ReadsTheItalianConvention) {
    const std::vector<Case<std::int64_t>> cases = {
        {"1.234,56", 12'345'600},
        {"170,05", 1'700'500},
        {"0", 0},
        {"12", 120'000},
        {",35", 3'500},
        {"5,", 50'000},
        {"-1,50", -15'000},
        {"+1,50", 15'000},
        {"  7,1 ", 71'000},
        {"14,1417", 141'417},
        {"-,5", -5'000},
        {"00012,50", 125'000},
        {"-0", 0},
        {"1.234.567", 12'345'670'000},
    };
    for (const auto& [text, units] : cases) EXPECT_EQ(toCurrency(text), Currency::fromUnits(units)) << text;
}

TEST(ConversionToAmount, SkipsPointsBeforeTheCommaWhereverTheyStand) {
    const std::vector<Case<std::int64_t>> cases = {
        {"12.5", 1'250'000}, {"1.2.3.4,5", 12'345'000}, {".5", 50'000}, {"1..000", 10'000'000}, {"1.,5", 15'000}};
    for (const auto& [text, units] : cases) EXPECT_EQ(toCurrency(text), Currency::fromUnits(units)) << text;
}

TEST(ConversionToAmount, RoundsTheFifthDecimalHalfToEven) {
    const std::vector<Case<std::int64_t>> cases = {
        {"1,00004", 10'000},   {"1,00005", 10'000},   {"1,00015", 10'002}, {"1,000050001", 10'001}, {"1,00006", 10'001},
        {"-1,00005", -10'000}, {"-1,00015", -10'002}, {"0,99995", 10'000}, {"0,00005", 0},
    };
    for (const auto& [text, units] : cases) EXPECT_EQ(toCurrency(text), Currency::fromUnits(units)) << text;
}

TEST(ConversionToAmount, RefusesWhatIsNoNumber) {
    for (const std::string& text : noNumbers) EXPECT_EQ(toCurrency(text), std::nullopt) << text;
}

TEST(ConversionToAmount, RefusesWhatDoesNotFit) {
    EXPECT_EQ(toCurrency("922.337.203.685.477,5807"), Currency::fromUnits(std::numeric_limits<std::int64_t>::max()));
    EXPECT_EQ(toCurrency("-922.337.203.685.477,5808"), Currency::fromUnits(std::numeric_limits<std::int64_t>::min()));
    EXPECT_EQ(toCurrency("922337203685477,5808"), std::nullopt);
    EXPECT_EQ(toCurrency("922337203685477,58075"), std::nullopt) << "rounds beyond the limit";
    EXPECT_EQ(toCurrency("-922337203685477,5809"), std::nullopt);
    EXPECT_EQ(toCurrency("1" + std::string(500, '0')), std::nullopt);
    EXPECT_EQ(toCurrency(std::string(500, '0') + "5," + std::string(500, '0') + "9"), Currency::fromUnits(50'000));
}

TEST(AmountOrZero, CountsATextThatIsNoNumberAsZero) {
    EXPECT_EQ(amountOrZero("170,05"), Currency::fromCents(17'005));
    EXPECT_EQ(amountOrZero("prova"), Currency{});
    EXPECT_EQ(amountOrZero(""), Currency{});
}

}  // namespace
}  // namespace vorbano
