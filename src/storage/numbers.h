#pragma once

// Numbers in text, always in the Italian convention (decimal comma, thousands point) and never through the locale of
// the process. The program uses nothing else to read or show a number.

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "storage/currency.h"

namespace vorbano {

/// The plain scan: leading blanks, one sign, digits and one decimal POINT; it stops at anything else, no exponent.
/// "12,5" is 12, "" is 0, "1.234,56" is 1.234 (which is why no amount goes through it).
[[nodiscard]] double plainScan(std::string_view text);
/// The plain scan cut to a whole number, for hours and counts. Beyond 32 bits it stays at the limit.
[[nodiscard]] int wholeScan(std::string_view text);

/// Locale-aware conversion to 16 bits: nearest, half to even ("12,5" is 12, "13,5" is 14). Nothing when the text is no
/// number or does not fit. An empty text is no number.
[[nodiscard]] std::optional<std::int16_t> toInteger(std::string_view text);
/// Locale-aware conversion to an amount: points before the comma are skipped wherever they stand, more than four
/// decimals are rounded half to even. Nothing when the text is no number, is empty, or does not fit.
[[nodiscard]] std::optional<Currency> toCurrency(std::string_view text);
/// As `toCurrency`; a text that is no number counts as 0.
[[nodiscard]] Currency amountOrZero(std::string_view text);

/// The pictures in which numbers are shown. All round half away from zero; a negative zero shows no sign.
enum class Mask : std::uint8_t {
    amount,   ///< "##,##0.00": 1.234,50
    percent,  ///< "###.#0": 23,80; no leading zero: ,35; integer digits are never cut
    digits,   ///< "##0.#0": 0,35
    whole,    ///< "#####": a whole number without leading zeros, empty for zero
};
[[nodiscard]] std::string format(Currency amount, Mask mask);
/// For whole-number pictures of results in floating point (pools of hours).
[[nodiscard]] std::string format(double number, Mask mask);

/// From floating point to an amount: nearest 1/10,000, half to even.
[[nodiscard]] Currency currencyOf(double amount);
/// To cents, half away from zero: what showing an amount with "##,##0.00" and reading it back does.
[[nodiscard]] Currency cents(Currency amount);

/// Hours times an hourly rate, held to 1/10,000 and then to cents.
[[nodiscard]] Currency payFor(int hours, Currency rate);
/// `base` times `percentage` / 100, held to 1/10,000 (half to even). 8,50 percent is the Currency 8,50.
[[nodiscard]] Currency percentOf(Currency base, Currency percentage);

}  // namespace vorbano
