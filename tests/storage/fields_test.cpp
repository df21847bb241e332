#include "storage/fields.h"

#include <gmock/gmock.h>

#include <string>

#include "support/bytes.h"

namespace vorbano {
namespace {

using test::amount;
using test::bytesOf;
using test::fromHex;
using test::le16;
using test::le32;
using test::nuls;
using test::padded;
using test::recordFrom;
using test::toHex;

TEST(TextField, IsPaddedWithBlanks) {
    const Text<8> field("Roma");
    EXPECT_EQ(bytesOf(field), "Roma    ");
    EXPECT_EQ(field.whole(), "Roma    ");
    EXPECT_EQ(field.trimmed(), "Roma");
}

TEST(TextField, IsCutAtItsWidth) {
    EXPECT_EQ(bytesOf(Text<14>("Politiche_Comunali")), "Politiche_Comu");
    EXPECT_EQ(bytesOf(Text<4>("Roma")), "Roma");
}

TEST(TextField, IsCutByCharactersOfThePageAndNotByBytesOfTheProgram) {
    const Text<4> field("àèìòù");
    EXPECT_EQ(toHex(bytesOf(field)), "e0 e8 ec f2");
    EXPECT_EQ(field.trimmed(), "àèìò");
}

TEST(TextField, HoldsNulsWhenNeverAssignedAndShowsNothing) {
    const Text<8> field;
    EXPECT_EQ(bytesOf(field), nuls(8));
    EXPECT_EQ(field.whole(), "");
    EXPECT_EQ(field.trimmed(), "");
}

TEST(TextField, AssignedEmptyIsBlank) {
    Text<8> field("Roma");
    field = "";
    EXPECT_EQ(bytesOf(field), "        ");
}

TEST(TextField, KeepsBlanksInFrontUntilItIsTrimmed) {
    const Text<16> field("    G    B6");
    EXPECT_EQ(bytesOf(field), "    G    B6     ");
    EXPECT_EQ(field.trimmed(), "G    B6");
}

TEST(TextField, LosesAnEmojiToOneQuestionMark) { EXPECT_EQ(bytesOf(Text<6>("a😀b")), "a?b   "); }

TEST(DateField, HoldsADateOrTheExcludedMark) {
    EXPECT_EQ(bytesOf(DateText("09-06-24")), "09-06-24");
    EXPECT_EQ(bytesOf(DateText("//")), "//      ");
}

TEST(NumberFields, AreLittleEndian) {
    EXPECT_EQ(toHex(bytesOf(Integer(258))), "02 01");
    EXPECT_EQ(toHex(bytesOf(Integer(-2))), "fe ff");
    EXPECT_EQ(toHex(bytesOf(Long(0x01020304))), "04 03 02 01");
    EXPECT_EQ(toHex(bytesOf(Long(-2))), "fe ff ff ff");
    EXPECT_EQ(recordFrom<Integer>(fromHex("ff 7f")), 32767);
    EXPECT_EQ(recordFrom<Integer>(fromHex("00 80")), -32768);
}

TEST(AmountField, IsSixtyFourBitsInTenThousandths) {
    EXPECT_EQ(toHex(bytesOf(Currency::fromCents(17'005))), "94 f2 19 00 00 00 00 00") << "1700500 is 19F294";
    EXPECT_EQ(toHex(bytesOf(Currency::fromUnits(-1))), "ff ff ff ff ff ff ff ff");
    EXPECT_EQ(recordFrom<Currency>(fromHex("10 27 00 00 00 00 00 00")), Currency::fromCents(100)) << "10000 is 2710";
}

struct Sample {
    Text<3> grade;
    Integer hours;
    Currency rate;
    Long number;
    DateText from[2];
};

TEST(Record, IsItsFieldsWithNothingBetween) {
    Sample sample;
    sample.grade = "B6";
    sample.hours = 40;
    sample.rate = Currency::fromUnits(141'417);
    sample.number = 70'000;
    sample.from[1] = "09-06-24";
    EXPECT_EQ(toHex(bytesOf(sample)),
              toHex(padded("B6", 3) + le16(40) + amount(14, 14, 17) + le32(70'000) + nuls(8) + "09-06-24"));
}

}  // namespace
}  // namespace vorbano
