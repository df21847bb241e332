#include "storage/codepage.h"

#include <gmock/gmock.h>

#include <string>
#include <vector>

#include "support/bytes.h"

namespace vorbano {
namespace {

using test::fromHex;
using test::toHex;

struct Pair {
    std::string utf8;
    std::string hex;
};

/// The 27 characters of the codes 80 to 9F.
const std::vector<Pair> oddCharacters = {
    {"€", "80"}, {"‚", "82"}, {"ƒ", "83"}, {"„", "84"}, {"…", "85"}, {"†", "86"}, {"‡", "87"}, {"ˆ", "88"}, {"‰", "89"},
    {"Š", "8a"}, {"‹", "8b"}, {"Œ", "8c"}, {"Ž", "8e"}, {"‘", "91"}, {"’", "92"}, {"“", "93"}, {"”", "94"}, {"•", "95"},
    {"–", "96"}, {"—", "97"}, {"˜", "98"}, {"™", "99"}, {"š", "9a"}, {"›", "9b"}, {"œ", "9c"}, {"ž", "9e"}, {"Ÿ", "9f"},
};

TEST(CodePage, KeepsPlainTextAsItIs) {
    EXPECT_EQ(toCodepage("Comune di Roma, n. 7"), "Comune di Roma, n. 7");
    EXPECT_EQ(fromCodepage("Comune di Roma, n. 7"), "Comune di Roma, n. 7");
}

TEST(CodePage, WritesItalianAccentsInOneByteEach) {
    EXPECT_EQ(toHex(toCodepage("àèéìòù")), "e0 e8 e9 ec f2 f9");
    EXPECT_EQ(toHex(toCodepage("ÀÈÉÌÒÙ")), "c0 c8 c9 cc d2 d9");
    EXPECT_EQ(toHex(toCodepage("1°")), "31 b0");
    EXPECT_EQ(fromCodepage(fromHex("e0 e8 e9 ec f2 f9 b0 ff a0")), "àèéìòù°ÿ\u00A0");
}

TEST(CodePage, KnowsTheTwentySevenCharactersThatAreNotLatin1) {
    ASSERT_EQ(oddCharacters.size(), 27U);
    for (const auto& [utf8, hex] : oddCharacters) {
        EXPECT_EQ(toHex(toCodepage(utf8)), hex) << utf8;
        EXPECT_EQ(fromCodepage(fromHex(hex)), utf8) << hex;
    }
}

TEST(CodePage, ShowsTheFiveOpenCodesAsBlanks) { EXPECT_EQ(fromCodepage(fromHex("81 8d 8f 90 9d")), "     "); }

TEST(CodePage, LeavesOutNulBytesOnReading) { EXPECT_EQ(fromCodepage(fromHex("41 00 42 00 00")), "AB"); }

TEST(CodePage, WritesOneQuestionMarkForACharacterThatItDoesNotHave) {
    EXPECT_EQ(toCodepage("a😀b"), "a?b");
    EXPECT_EQ(toCodepage("Đỗ"), "??");
    EXPECT_EQ(toCodepage("\u0081\u009D"), "??") << "the control characters behind the open codes";
}

TEST(CodePage, WritesOneQuestionMarkForEachMalformedByte) {
    EXPECT_EQ(toCodepage("\xE2\x82"), "??") << "cut off";
    EXPECT_EQ(toCodepage("\xE2\x82"
                         "A"),
              "??A")
        << "cut off by a letter";
    EXPECT_EQ(toCodepage("\xF0\x9F\x98"), "???");
    EXPECT_EQ(toCodepage("\x80"), "?") << "a follower alone";
    EXPECT_EQ(toCodepage("\xC0\x80"), "??") << "longer than need be";
    EXPECT_EQ(toCodepage("\xE0\x80\xA0"), "???") << "longer than need be";
    EXPECT_EQ(toCodepage("\xED\xA0\x80"), "???") << "half of a surrogate pair";
    EXPECT_EQ(toCodepage("\xF4\x90\x80\x80"), "????") << "beyond the last character";
    EXPECT_EQ(toCodepage("\xFF\xFE"), "??");
}

TEST(CodePage, BringsEveryByteOfThePageBackUnchanged) {
    for (unsigned code = 1; code <= 0xFF; ++code) {
        if (code == 0x81 || code == 0x8D || code == 0x8F || code == 0x90 || code == 0x9D) continue;
        const std::string byte(1, static_cast<char>(static_cast<unsigned char>(code)));
        EXPECT_EQ(toCodepage(fromCodepage(byte)), byte) << toHex(byte);
    }
}

TEST(Trim, TakesBlanksAndNulsFromBothEnds) {
    EXPECT_EQ(trim("  Rossi Anna  "), "Rossi Anna");
    EXPECT_EQ(trim(std::string_view("\0 Rossi \0\0", 10)), "Rossi");
    EXPECT_EQ(trim("   "), "");
    EXPECT_EQ(trim(""), "");
}

TEST(Trim, LeavesOtherWhiteSpace) { EXPECT_EQ(trim("\tRossi\n"), "\tRossi\n"); }

TEST(Trim, OnTheRightLeavesTheLeft) {
    EXPECT_EQ(trimRight("  G    B6 "), "  G    B6");
    EXPECT_EQ(trimRight(std::string_view("//\0\0", 4)), "//");
}

TEST(UpperCase, IsThatOfTheOffice) {
    EXPECT_EQ(upperCase("Europee_Comunali 2a"), "EUROPEE_COMUNALI 2A");
    EXPECT_EQ(upperCase("Forlì è città, però più giù né"), "FORLÌ È CITTÀ, PERÒ PIÙ GIÙ NÉ");
    EXPECT_EQ(upperCase("šžœÿ"), "ŠŽŒŸ");
}

TEST(UpperCase, LeavesWhatHasNoCapital) {
    EXPECT_EQ(upperCase("÷ß€😀1°{`"), "÷ß€😀1°{`");
    EXPECT_EQ(upperCase("a\xE2z"), "A\xE2Z") << "a malformed byte stays what it is";
}

}  // namespace
}  // namespace vorbano
