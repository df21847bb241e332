#include "scenario/line_scanner.h"

#include <algorithm>
#include <charconv>
#include <cstdint>

namespace vorbano {

namespace {

constexpr std::string_view blanks = " \t\r";

bool isBlank(char one) { return blanks.find(one) != std::string_view::npos; }

/// Where the quoted text that begins at `from` ends, past its closing quote; npos when it does not.
std::size_t pastQuoted(std::string_view text, std::size_t from) {
    for (std::size_t at = from + 1; at < text.size(); ++at) {
        if (text[at] == '\\') {
            ++at;
        } else if (text[at] == '"') {
            return at + 1;
        }
    }
    return std::string_view::npos;
}

/// What stands between the quotes.
std::optional<std::string> unquoted(std::string_view quoted) {
    std::string text;
    const std::string_view inside = quoted.substr(1, quoted.size() - 2);
    for (std::size_t at = 0; at < inside.size(); ++at) {
        if (inside[at] != '\\') {
            text += inside[at];
            continue;
        }
        if (++at == inside.size()) return std::nullopt;
        switch (inside[at]) {
            case 'n':
                text += '\n';
                break;
            case '"':
            case '\\':
                text += inside[at];
                break;
            default:
                return std::nullopt;
        }
    }
    return text;
}

int hexDigit(char one) {
    if (one >= '0' && one <= '9') return one - '0';
    if (one >= 'a' && one <= 'f') return one - 'a' + 10;
    if (one >= 'A' && one <= 'F') return one - 'A' + 10;
    return -1;
}

/// Bytes that follow the first one of a character; nothing when no character begins so.
std::optional<std::size_t> bytesBehind(unsigned char first) {
    if (first < 0x80) return 0;
    if (first >= 0xC2 && first < 0xE0) return 1;
    if (first >= 0xE0 && first < 0xF0) return 2;
    if (first >= 0xF0 && first < 0xF5) return 3;
    return std::nullopt;
}

}  // namespace

std::string_view stripped(std::string_view text) {
    const auto first = text.find_first_not_of(blanks);
    if (first == std::string_view::npos) return {};
    return text.substr(first, text.find_last_not_of(blanks) - first + 1);
}

LineParts cutLine(std::string_view line) {
    line = stripped(line);
    for (std::size_t at = 0; at < line.size(); ++at) {
        const bool startsWord = at == 0 || isBlank(line[at - 1]);
        if (line[at] == '#' && startsWord) return {stripped(line.substr(0, at)), std::nullopt};
        if (line[at] == '=') return {stripped(line.substr(0, at)), line.substr(at + 1)};
        if (line[at] == '"' && startsWord) {
            const std::size_t past = pastQuoted(line, at);
            if (past == std::string_view::npos) break;
            at = past - 1;
        }
    }
    return {line, std::nullopt};
}

std::optional<std::vector<Word>> wordsOf(std::string_view left) {
    std::vector<Word> words;
    for (left = stripped(left); !left.empty(); left = stripped(left)) {
        const bool quoted = left.front() == '"';
        const std::size_t end = quoted ? pastQuoted(left, 0) : std::min(left.find_first_of(blanks), left.size());
        if (end == std::string_view::npos) return std::nullopt;
        if (quoted && end < left.size() && !isBlank(left[end])) return std::nullopt;
        const std::string_view source = left.substr(0, end);
        auto text = quoted ? unquoted(source) : std::string(source);
        if (!text) return std::nullopt;
        words.push_back({std::move(*text), quoted, source});
        left.remove_prefix(end);
    }
    return words;
}

std::optional<std::string> valueOf(std::string_view right) {
    right = stripped(right);
    if (right.starts_with('"')) {
        const std::size_t past = pastQuoted(right, 0);
        if (past == std::string_view::npos) return std::nullopt;
        const std::string_view behind = right.substr(past);
        const std::string_view comment = stripped(behind);
        if (!comment.empty() && (comment.front() != '#' || !isBlank(behind.front()))) return std::nullopt;
        return unquoted(right.substr(0, past));
    }
    for (std::size_t at = 0; at + 1 < right.size(); ++at) {
        const bool startsWord = at == 0 || isBlank(right[at - 1]);
        if (right[at] == '#' && startsWord && isBlank(right[at + 1])) right = stripped(right.substr(0, at));
    }
    return std::string(right);
}

std::optional<int> numberOf(std::string_view text) {
    int number = 0;
    const char* end = text.data() + text.size();
    const auto [past, trouble] = std::from_chars(text.data(), end, number);
    if (trouble != std::errc() || past != end || number < 0 || text.front() == '-') return std::nullopt;
    return number;
}

std::optional<std::string> bytesOf(std::string_view hex) {
    std::string bytes;
    int high = -1;
    for (const char one : hex) {
        if (isBlank(one)) continue;
        const int digit = hexDigit(one);
        if (digit < 0) return std::nullopt;
        if (high < 0) {
            high = digit;
        } else {
            bytes += static_cast<char>(high * 16 + digit);
            high = -1;
        }
    }
    if (high >= 0 || bytes.empty()) return std::nullopt;
    return bytes;
}

std::optional<std::chrono::year_month_day> isoDate(std::string_view text) {
    if (text.size() != 10 || text[4] != '-' || text[7] != '-') return std::nullopt;
    const auto year = numberOf(text.substr(0, 4));
    const auto month = numberOf(text.substr(5, 2));
    const auto day = numberOf(text.substr(8, 2));
    if (!year || !month || !day) return std::nullopt;
    const std::chrono::year_month_day date{std::chrono::year(*year), std::chrono::month(static_cast<unsigned>(*month)),
                                           std::chrono::day(static_cast<unsigned>(*day))};
    if (!date.ok()) return std::nullopt;
    return date;
}

bool isUtf8(std::string_view text) {
    for (std::size_t at = 0; at < text.size(); ++at) {
        const auto behind = bytesBehind(static_cast<unsigned char>(text[at]));
        if (!behind || at + *behind >= text.size()) return false;
        for (std::size_t step = 0; step < *behind; ++step) {
            if ((static_cast<unsigned char>(text[++at]) & 0xC0U) != 0x80U) return false;
        }
    }
    return true;
}

}  // namespace vorbano
