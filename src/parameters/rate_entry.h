#pragma once

// What the rows and fields of the parameter screen have in common: a box that opens a row, its three rates, and what
// the clerk's typing becomes.

#include <array>
#include <optional>
#include <string>
#include <string_view>

#include "platform/form.h"
#include "records/tariff_records.h"

namespace vorbano {

/// One row of rates: the box that opens it, captioned with the row's label, and its three fields, closed at first.
struct RateRow {
    CheckBox box;
    TextBox Day;
    TextBox Fn;
    TextBox Nf;

    /// `stem` and "Day", "Fn", "Nf" are the names of the fields.
    RateRow(Container& page, std::string boxName, std::string_view caption, const std::string& stem);
    [[nodiscard]] std::array<TextBox*, 3> fields() { return {&Day, &Fn, &Nf}; }
    void enableFields(bool enabled);
    /// Through the picture "##,##0.00".
    void show(const Rates& rates);
};

/// The headings above the three fields of a row, in their order.
inline constexpr std::array<std::string_view, 3> rateHeadings = {"Feriali", "Festive", "Fe/No"};

/// A field's text as an amount, up to four decimals. An empty field is 0; nothing when the text is no number.
[[nodiscard]] std::optional<Currency> typedAmount(std::string_view text);
/// The amount as a plain number in Italian form: 23,8, no thousands points, no decimals that are zero.
[[nodiscard]] std::string plainNumber(Currency amount);

/// `after` with the point that one key put into `before` turned into a comma. Points that stood there before, and what
/// was pasted, stay.
[[nodiscard]] std::string withTypedPointAsComma(std::string_view before, std::string after);
/// Hangs that on a field. What the program shows in it keeps its thousands points.
void makeCommaField(TextBox& field);

}  // namespace vorbano
