#include "platform/database.h"

#include <algorithm>
#include <cmath>

namespace vorbano {

namespace {

/// Units of 1/10,000 as an Italian number with two decimals, half away from zero.
std::string italian(std::int64_t units) {
    const bool negative = units < 0;
    const auto magnitude =
        negative ? std::uint64_t{0} - static_cast<std::uint64_t>(units) : static_cast<std::uint64_t>(units);
    const std::uint64_t hundredths = (magnitude + 50) / 100;
    std::string whole = std::to_string(hundredths / 100);
    for (int at = static_cast<int>(whole.size()) - 3; at > 0; at -= 3) whole.insert(static_cast<std::size_t>(at), ".");
    const std::string decimals = std::to_string(100 + hundredths % 100).substr(1);
    return (negative && hundredths != 0 ? "-" : "") + whole + "," + decimals;
}

struct Shown {
    std::string operator()(std::monostate) const { return {}; }
    std::string operator()(std::int64_t number) const { return std::to_string(number); }
    std::string operator()(double number) const { return italian(std::llround(number * 10000.0)); }
    std::string operator()(Amount amount) const { return italian(amount.units); }
    std::string operator()(const std::string& text) const {
        const auto first = text.find_first_not_of(' ');
        return first == std::string::npos ? std::string() : text.substr(first, text.find_last_not_of(' ') - first + 1);
    }
};

}  // namespace

bool sameTableName(std::string_view a, std::string_view b) {
    const auto small = [](char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c; };
    return std::equal(a.begin(), a.end(), b.begin(), b.end(),
                      [&](char x, char y) { return x == y || small(x) == small(y); });
}

namespace {

/// Rows are short, but a document has as many searches as cells; most names already differ in length.
template <class Cells>
auto cellNamed(Cells& cells, std::string_view field) {
    return std::find_if(cells.begin(), cells.end(), [field](const auto& cell) {
        return cell.first.size() == field.size() && sameTableName(cell.first, field);
    });
}

}  // namespace

Row& Row::set(std::string_view field, Value value) {
    const auto at = cellNamed(fields_, field);
    if (at != fields_.end()) {
        at->second = std::move(value);
    } else {
        fields_.emplace_back(std::string(field), std::move(value));
    }
    return *this;
}

const Value* Row::find(std::string_view field) const {
    const auto at = cellNamed(fields_, field);
    return at == fields_.end() ? nullptr : &at->second;
}

std::string shownValue(const Value& value) { return std::visit(Shown{}, value); }

}  // namespace vorbano
