#include "fiscalcode/birth_date.h"

#include <cstddef>

#include "storage/codepage.h"

namespace vorbano {

namespace {

bool yearHasTwoDigits(std::string_view text) {
    const std::size_t separator = text.find_last_of("/-");
    return separator != std::string_view::npos && text.size() - separator - 1 == 2;
}

std::string digits(unsigned number, std::size_t width) {
    std::string text(width, '0');
    for (std::size_t at = width; at > 0; number /= 10) text[--at] = static_cast<char>('0' + number % 10);
    return text;
}

}  // namespace

std::optional<Date> birthDate(std::string_view text, Date today) {
    const auto date = parseDate(text);
    if (!date || !yearHasTwoDigits(trim(text)) || *date <= today) return date;
    const Date before{date->year() - std::chrono::years(100), date->month(), date->day()};
    return before.ok() ? std::optional(before) : std::nullopt;
}

std::string reformatBirthDate(std::string_view text, Date today) {
    const auto date = birthDate(text, today);
    if (!date) return std::string(text);
    return digits(static_cast<unsigned>(date->day()), 2) + "/" + digits(static_cast<unsigned>(date->month()), 2) + "/" +
           digits(static_cast<unsigned>(static_cast<int>(date->year())), 4);
}

}  // namespace vorbano
