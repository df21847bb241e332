#include "parameters/rate_entry.h"

#include <algorithm>
#include <utility>

#include "storage/numbers.h"

namespace vorbano {

RateRow::RateRow(Container& page, std::string boxName, std::string_view caption, const std::string& stem)
    : box(page, std::move(boxName), std::string(caption)),
      Day(page, stem + "Day"),
      Fn(page, stem + "Fn"),
      Nf(page, stem + "Nf") {
    enableFields(false);
}

void RateRow::enableFields(bool enabled) {
    for (TextBox* field : fields()) field->enabled = enabled;
}

void RateRow::show(const Rates& rates) {
    Day.text = format(rates.Day, Mask::amount);
    Fn.text = format(rates.Fn, Mask::amount);
    Nf.text = format(rates.Nf, Mask::amount);
}

std::optional<Currency> typedAmount(std::string_view text) {
    if (trim(text).empty()) return Currency();
    return toCurrency(text);
}

std::string plainNumber(Currency amount) {
    const bool negative = amount.units() < 0;
    const auto units = static_cast<std::uint64_t>(amount.units());
    const std::uint64_t size = negative ? 0 - units : units;
    std::string decimals = std::to_string(size % 10'000);
    decimals.insert(0, 4 - decimals.size(), '0');
    decimals.erase(decimals.find_last_not_of('0') + 1);
    std::string text(negative ? "-" : "");
    text += std::to_string(size / 10'000);
    if (!decimals.empty()) text.append(",").append(decimals);
    return text;
}

std::string withTypedPointAsComma(std::string_view before, std::string after) {
    const auto left = std::mismatch(before.begin(), before.end(), after.begin(), after.end());
    const auto same = static_cast<std::size_t>(left.second - after.begin());
    std::size_t tail = 0;
    while (tail < before.size() - same && tail < after.size() - same &&
           before[before.size() - 1 - tail] == after[after.size() - 1 - tail])
        ++tail;
    const bool oneKey = after.size() - same - tail == 1;
    if (oneKey && after[same] == '.') after[same] = ',';
    return after;
}

void makeCommaField(TextBox& field) {
    field.change.calls([&field, before = std::string()]() mutable {
        // Only in the field that has the focus can the clerk have typed.
        const bool typed = field.form().focused() == &field;
        before = typed ? withTypedPointAsComma(before, field.text()) : field.text();
        field.text = before;
    });
}

}  // namespace vorbano
