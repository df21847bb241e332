#include "storage/dates.h"

#include <array>
#include <cstddef>

#include "storage/codepage.h"

namespace vorbano {

namespace {

bool isDigit(char character) { return character >= '0' && character <= '9'; }

struct Digits {
    unsigned value = 0;
    std::size_t count = 0;
};

/// Takes the digits from the front of `text`.
Digits takeDigits(std::string_view& text) {
    Digits digits;
    while (!text.empty() && isDigit(text.front()) && digits.count < 5) {
        digits.value = digits.value * 10 + static_cast<unsigned>(text.front() - '0');
        ++digits.count;
        text.remove_prefix(1);
    }
    return digits;
}

bool takeSeparator(std::string_view& text) {
    if (text.empty() || (text.front() != '/' && text.front() != '-')) return false;
    text.remove_prefix(1);
    return true;
}

}  // namespace

std::optional<Date> parseDate(std::string_view text) {
    text = trim(text);
    const Digits day = takeDigits(text);
    if (day.count < 1 || day.count > 2 || !takeSeparator(text)) return std::nullopt;
    const Digits month = takeDigits(text);
    if (month.count < 1 || month.count > 2 || !takeSeparator(text)) return std::nullopt;
    const Digits year = takeDigits(text);
    if ((year.count != 2 && year.count != 4) || !text.empty()) return std::nullopt;

    const unsigned whole = year.count == 2 ? 2000 + year.value : year.value;
    const Date date{std::chrono::year(static_cast<int>(whole)), std::chrono::month(month.value),
                    std::chrono::day(day.value)};
    return date.ok() ? std::optional(date) : std::nullopt;
}

std::string dateText(Date date) {
    const unsigned year = static_cast<unsigned>(static_cast<int>(date.year())) % 100;
    const std::array<unsigned, 3> parts = {static_cast<unsigned>(date.day()), static_cast<unsigned>(date.month()),
                                           year};
    std::string text;
    for (const unsigned part : parts) {
        if (!text.empty()) text += '-';
        text += static_cast<char>('0' + part / 10 % 10);
        text += static_cast<char>('0' + part % 10);
    }
    return text;
}

std::string reformatDate(std::string_view text) {
    const auto date = parseDate(text);
    return date ? dateText(*date) : std::string(text);
}

bool isExcluded(std::string_view text) { return trimRight(text) == excludedMark; }

std::optional<int> daysBetween(std::string_view from, std::string_view to) {
    const auto first = parseDate(from);
    const auto last = parseDate(to);
    if (!first || !last) return std::nullopt;
    return static_cast<int>((std::chrono::sys_days(*last) - std::chrono::sys_days(*first)).count());
}

}  // namespace vorbano
