#include "storage/codepage.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>

namespace vorbano {

namespace {

/// The codes 0x80 to 0x9F, where the page differs from Latin-1; 0 where the page leaves the code open.
constexpr std::array<char32_t, 32> oddCharacters = {
    0x20AC, 0,      0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0,      0x017D, 0,      0,      0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0,      0x017E, 0x0178,
};
constexpr unsigned firstOdd = 0x80;
constexpr unsigned lastOdd = 0x9F;

constexpr char32_t malformed = 0xFFFFFFFF;

unsigned byteAt(std::string_view text, std::size_t at) { return static_cast<unsigned char>(text[at]); }

/// The character at `at`, which moves behind it. A byte that begins no well-formed character is `malformed`, and `at`
/// moves on by that one byte.
char32_t nextCharacter(std::string_view utf8, std::size_t& at) {
    const unsigned lead = byteAt(utf8, at++);
    if (lead < 0x80) return lead;
    const std::size_t more = lead >= 0xF0 ? 3 : lead >= 0xE0 ? 2 : 1;
    if (lead < 0xC2 || lead > 0xF4 || at + more > utf8.size()) return malformed;

    char32_t character = lead & (0x3FU >> more);
    for (std::size_t n = 0; n < more; ++n) {
        const unsigned follower = byteAt(utf8, at + n);
        if ((follower & 0xC0U) != 0x80) return malformed;
        character = (character << 6U) | (follower & 0x3FU);
    }
    constexpr std::array<char32_t, 4> smallest = {0, 0x80, 0x800, 0x10000};
    const bool surrogate = character >= 0xD800 && character <= 0xDFFF;
    if (character < smallest[more] || character > 0x10FFFF || surrogate) return malformed;
    at += more;
    return character;
}

void appendUtf8(std::string& text, char32_t character) {
    const auto put = [&text](char32_t byte) { text += static_cast<char>(static_cast<unsigned char>(byte)); };
    if (character < 0x80) {
        put(character);
    } else if (character < 0x800) {
        put(0xC0U | (character >> 6U));
        put(0x80U | (character & 0x3FU));
    } else if (character < 0x10000) {
        put(0xE0U | (character >> 12U));
        put(0x80U | ((character >> 6U) & 0x3FU));
        put(0x80U | (character & 0x3FU));
    } else {
        put(0xF0U | (character >> 18U));
        put(0x80U | ((character >> 12U) & 0x3FU));
        put(0x80U | ((character >> 6U) & 0x3FU));
        put(0x80U | (character & 0x3FU));
    }
}

char32_t upperCased(char32_t character) {
    if (character >= U'a' && character <= U'z') return character - 0x20;
    // Latin-1 has its small letters 0x20 after the capitals; in their midst stands the division sign.
    if (character >= 0xE0 && character <= 0xFE && character != 0xF7) return character - 0x20;
    switch (character) {
        case 0xFF:
            return 0x178;  // y with diaeresis
        case 0x0161:
            return 0x0160;  // s with caron
        case 0x017E:
            return 0x017D;  // z with caron
        case 0x0153:
            return 0x0152;  // ligature oe
        default:
            return character;
    }
}

bool isBlank(char character) { return character == ' ' || character == '\0'; }

}  // namespace

std::string toCodepage(std::string_view utf8) {
    std::string ansi;
    ansi.reserve(utf8.size());
    for (std::size_t at = 0; at < utf8.size();) {
        const char32_t character = nextCharacter(utf8, at);
        const auto* const odd = std::ranges::find(oddCharacters, character);
        if (character < firstOdd || (character > lastOdd && character <= 0xFF)) {
            ansi += static_cast<char>(static_cast<unsigned char>(character));
        } else if (odd != oddCharacters.end()) {
            ansi += static_cast<char>(static_cast<unsigned char>(firstOdd + (odd - oddCharacters.begin())));
        } else {
            ansi += '?';
        }
    }
    return ansi;
}

std::string fromCodepage(std::string_view ansi) {
    std::string utf8;
    utf8.reserve(ansi.size());
    for (std::size_t at = 0; at < ansi.size(); ++at) {
        char32_t character = byteAt(ansi, at);
        if (character == 0) continue;
        if (character >= firstOdd && character <= lastOdd) character = oddCharacters[character - firstOdd];
        appendUtf8(utf8, character == 0 ? U' ' : character);
    }
    return utf8;
}

std::string_view trimRight(std::string_view text) {
    while (!text.empty() && isBlank(text.back())) text.remove_suffix(1);
    return text;
}

std::string_view trim(std::string_view text) {
    text = trimRight(text);
    while (!text.empty() && isBlank(text.front())) text.remove_prefix(1);
    return text;
}

std::string upperCase(std::string_view utf8) {
    std::string upper;
    upper.reserve(utf8.size());
    for (std::size_t at = 0; at < utf8.size();) {
        const std::size_t from = at;
        const char32_t character = nextCharacter(utf8, at);
        if (character == malformed) {
            upper += utf8[from];
        } else {
            appendUtf8(upper, upperCased(character));
        }
    }
    return upper;
}

}  // namespace vorbano
