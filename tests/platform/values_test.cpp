// Values of a table as the clerk reads them.

#include <gmock/gmock.h>

#include "platform/database.h"

using vorbano::Amount;
using vorbano::Row;
using vorbano::shownValue;
using vorbano::Value;

namespace {

std::string amount(std::int64_t units) { return shownValue(Value(Amount{units})); }

TEST(ShownValue, NothingIsShownAsNothing) { EXPECT_EQ(shownValue(Value()), ""); }

TEST(ShownValue, WholeNumbersArePlain) {
    EXPECT_EQ(shownValue(Value(std::int64_t{1234567})), "1234567");
    EXPECT_EQ(shownValue(Value(std::int64_t{-5})), "-5");
}

TEST(ShownValue, AmountsHaveTwoDecimalsInItalianForm) {
    EXPECT_EQ(amount(1700500), "170,05");
    EXPECT_EQ(amount(12345670000), "1.234.567,00");
    EXPECT_EQ(amount(1000000), "100,00");
    EXPECT_EQ(amount(9990000), "999,00");
    EXPECT_EQ(amount(10000000), "1.000,00");
    EXPECT_EQ(amount(0), "0,00");
}

TEST(ShownValue, HalfCentsGoAwayFromZero) {
    EXPECT_EQ(amount(50), "0,01");
    EXPECT_EQ(amount(49), "0,00");
    EXPECT_EQ(amount(-50), "-0,01");
    EXPECT_EQ(amount(10050), "1,01");
}

TEST(ShownValue, NothingIsNegativeZero) { EXPECT_EQ(amount(-49), "0,00"); }

TEST(ShownValue, TheLowestAmountIsShownWhole) {
    // -922.337.203.685.477,5808 is the lowest amount of 64 bits.
    EXPECT_EQ(amount(std::numeric_limits<std::int64_t>::min()), "-922.337.203.685.477,58");
}

TEST(ShownValue, FractionsLookLikeAmounts) { EXPECT_EQ(shownValue(Value(12.5)), "12,50"); }

TEST(ShownValue, TextsAreTrimmed) {
    EXPECT_EQ(shownValue(Value(std::string("  Rossi Anna  "))), "Rossi Anna");
    EXPECT_EQ(shownValue(Value(std::string("   "))), "");
}

TEST(TableRow, AFieldSetTwiceHoldsTheLastValueWhateverTheCase) {
    Row row;
    row.setText("Nome", "uno").setText("NOME", "due");
    EXPECT_EQ(row.fields().size(), 1U);
    EXPECT_EQ(*row.find("nome"), Value(std::string("due")));
    EXPECT_EQ(row.find("Altro"), nullptr);
}

TEST(TableName, CaseMakesNoDifference) {
    EXPECT_TRUE(vorbano::sameTableName("Tabella12", "tabella12"));
    EXPECT_FALSE(vorbano::sameTableName("Tabella1", "Tabella12"));
    EXPECT_FALSE(vorbano::sameTableName("Tabella1", "Tabella2"));
}

}  // namespace
