#include "scenario/comparing.h"

#include <algorithm>
#include <cstdint>
#include <optional>

#include "storage/codepage.h"

namespace vorbano {

namespace {

constexpr std::size_t fewDecimals = 2;

bool isDigit(char one) { return one >= '0' && one <= '9'; }

/// A number in Italian form: its digits before the comma without points, and those behind it.
struct Written {
    bool negative = false;
    std::string whole;
    std::string decimals;
};

/// The digits of "1234" or "1.234"; nothing when the points do not stand between groups of three.
std::optional<std::string> wholeDigits(std::string_view text) {
    std::string digits;
    const std::size_t firstPoint = std::min(text.find('.'), text.size());
    if (firstPoint > 3 && firstPoint != text.size()) return std::nullopt;
    for (std::size_t at = 0; at < text.size(); ++at) {
        const bool pointDue = at >= firstPoint && (at - firstPoint) % 4 == 0;
        if (pointDue ? text[at] != '.' : !isDigit(text[at])) return std::nullopt;
        if (!pointDue) digits += text[at];
    }
    if (firstPoint != text.size() && (firstPoint == 0 || (text.size() - firstPoint) % 4 != 0)) return std::nullopt;
    digits.erase(0, digits.find_first_not_of('0'));
    return digits;
}

std::optional<Written> italianNumber(std::string_view text) {
    Written number;
    if (text.starts_with('-')) {
        number.negative = true;
        text.remove_prefix(1);
    }
    const std::size_t comma = text.find(',');
    if (comma != std::string_view::npos) {
        number.decimals = text.substr(comma + 1);
        if (number.decimals.empty() || !std::all_of(number.decimals.begin(), number.decimals.end(), isDigit)) {
            return std::nullopt;
        }
    } else if (text.empty()) {
        return std::nullopt;
    }
    auto whole = wholeDigits(text.substr(0, comma));
    if (!whole) return std::nullopt;
    number.whole = std::move(*whole);
    return number;
}

/// The digits with exactly `decimals` of them behind the comma, half away from zero, with a sign when it is not zero.
std::string rounded(const Written& number, std::size_t decimals) {
    std::string digits = number.whole + number.decimals.substr(0, decimals);
    digits.append(decimals - std::min(decimals, number.decimals.size()), '0');
    if (number.decimals.size() > decimals && number.decimals[decimals] >= '5') {
        digits.insert(0, "0");
        auto at = digits.rbegin();
        for (; *at == '9'; ++at) *at = '0';
        ++*at;
    }
    digits.erase(0, std::min(digits.find_first_not_of('0'), digits.size()));
    return (number.negative && !digits.empty() ? "-" : "") + digits;
}

}  // namespace

std::string oneLineEnd(std::string_view text) {
    std::string plain;
    for (std::size_t at = 0; at < text.size(); ++at) {
        if (text[at] == '\r') {
            if (at + 1 < text.size() && text[at + 1] == '\n') ++at;
            plain += '\n';
        } else {
            plain += text[at];
        }
    }
    return plain;
}

bool sameText(std::string_view expected, std::string_view shown) {
    const std::string a = oneLineEnd(expected);
    const std::string b = oneLineEnd(shown);
    return a == b || trim(a) == trim(b);
}

bool sameValue(std::string_view expected, std::string_view shown) {
    expected = trim(expected);
    shown = trim(shown);
    if (expected == shown) return true;
    const auto a = italianNumber(expected);
    const auto b = italianNumber(shown);
    if (!a || !b) return false;
    const std::size_t shorter = std::min(a->decimals.size(), b->decimals.size());
    const std::size_t decimals = shorter > fewDecimals ? std::max(a->decimals.size(), b->decimals.size()) : fewDecimals;
    return rounded(*a, decimals) == rounded(*b, decimals);
}

}  // namespace vorbano
