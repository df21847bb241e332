#include "platform/column_value.h"

#include <cmath>

namespace vorbano {

namespace {

constexpr std::int64_t unitsInOne = 10000;
/// Beyond this many digits a number would leave the 64 bits of an amount.
constexpr int maximalDigits = 14;

bool isDigit(char c) { return c >= '0' && c <= '9'; }

std::string_view trimmed(std::string_view text) {
    const auto first = text.find_first_not_of(' ');
    if (first == std::string_view::npos) return {};
    return text.substr(first, text.find_last_not_of(' ') - first + 1);
}

/// Digits before the comma, points between them dropped.
std::optional<std::int64_t> wholePart(std::string_view text) {
    std::int64_t whole = 0;
    int digits = 0;
    for (const char c : text) {
        if (c == '.' && digits > 0) continue;
        if (!isDigit(c) || ++digits > maximalDigits) return std::nullopt;
        whole = whole * 10 + (c - '0');
    }
    return whole;
}

/// Digits after the comma in units of 1/10,000.
std::optional<std::int64_t> decimals(std::string_view text) {
    std::int64_t units = 0;
    std::int64_t weight = unitsInOne / 10;
    for (std::size_t at = 0; at < text.size(); ++at, weight /= 10) {
        if (!isDigit(text[at])) return std::nullopt;
        units += at == 4 ? (text[at] >= '5' ? 1 : 0) : weight * (text[at] - '0');
    }
    return units;
}

std::int64_t rounded(Amount amount) { return std::llround(static_cast<double>(amount.units) / unitsInOne); }

struct AsWhole {
    std::optional<Value> operator()(std::monostate) const { return Value{}; }
    std::optional<Value> operator()(std::int64_t number) const { return Value{number}; }
    std::optional<Value> operator()(double number) const { return Value{std::int64_t{std::llround(number)}}; }
    std::optional<Value> operator()(Amount amount) const { return Value{rounded(amount)}; }
    std::optional<Value> operator()(const std::string& text) const {
        if (trimmed(text).empty()) return Value{};
        const auto amount = italianAmount(text);
        return amount ? std::optional<Value>(rounded(*amount)) : std::nullopt;
    }
};

struct AsNumber {
    std::optional<Value> operator()(std::monostate) const { return Value{}; }
    std::optional<Value> operator()(std::int64_t number) const { return Value{static_cast<double>(number)}; }
    std::optional<Value> operator()(double number) const { return Value{number}; }
    std::optional<Value> operator()(Amount amount) const {
        return Value{static_cast<double>(amount.units) / unitsInOne};
    }
    std::optional<Value> operator()(const std::string& text) const {
        if (trimmed(text).empty()) return Value{};
        const auto amount = italianAmount(text);
        return amount ? (*this)(*amount) : std::nullopt;
    }
};

struct AsAmount {
    std::optional<Value> operator()(std::monostate) const { return Value{}; }
    std::optional<Value> operator()(std::int64_t number) const { return Value{Amount{number * unitsInOne}}; }
    std::optional<Value> operator()(double number) const { return Value{Amount{std::llround(number * unitsInOne)}}; }
    std::optional<Value> operator()(Amount amount) const { return Value{amount}; }
    std::optional<Value> operator()(const std::string& text) const {
        if (trimmed(text).empty()) return Value{};
        const auto amount = italianAmount(text);
        return amount ? std::optional<Value>(*amount) : std::nullopt;
    }
};

}  // namespace

std::optional<Amount> italianAmount(std::string_view text) {
    text = trimmed(text);
    const bool negative = !text.empty() && text.front() == '-';
    if (negative || (!text.empty() && text.front() == '+')) text.remove_prefix(1);
    const auto comma = text.find(',');
    const std::string_view before = text.substr(0, comma);
    const std::string_view after = comma == std::string_view::npos ? std::string_view() : text.substr(comma + 1);
    if (before.empty() && after.empty()) return std::nullopt;
    const auto whole = wholePart(before);
    const auto rest = decimals(after);
    if (!whole || !rest) return std::nullopt;
    const std::int64_t units = *whole * unitsInOne + *rest;
    return Amount{negative ? -units : units};
}

std::optional<Value> asColumnKeeps(const Value& value, ColumnType type) {
    switch (type) {
        case ColumnType::text:
            if (std::holds_alternative<std::monostate>(value) || std::holds_alternative<std::string>(value))
                return value;
            return Value{shownValue(value)};
        case ColumnType::whole:
            return std::visit(AsWhole{}, value);
        case ColumnType::number:
            return std::visit(AsNumber{}, value);
        case ColumnType::amount:
            return std::visit(AsAmount{}, value);
    }
    return std::nullopt;
}

}  // namespace vorbano
