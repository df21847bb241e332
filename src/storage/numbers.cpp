#include "storage/numbers.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <cstddef>
#include <limits>
#include <utility>

#include "storage/codepage.h"

namespace vorbano {

namespace {

/// Wide enough for the product of any two amounts.
__extension__ typedef __int128 Wide;

constexpr Wide unitsInOne = 10'000;
constexpr Wide unitsInCent = 100;

bool isDigit(char character) { return character >= '0' && character <= '9'; }
bool isSign(char character) { return character == '+' || character == '-'; }

enum class Half : std::uint8_t { toEven, away };

/// number / divisor to the nearest whole number. `divisor` is positive.
Wide divided(Wide number, Wide divisor, Half half) {
    const bool negative = number < 0;
    const Wide size = negative ? -number : number;
    Wide quotient = size / divisor;
    const Wide twiceRest = size % divisor * 2;
    const bool up =
        half == Half::away ? twiceRest >= divisor : twiceRest > divisor || (twiceRest == divisor && quotient % 2 == 1);
    if (up) ++quotient;
    return negative ? -quotient : quotient;
}

/// An amount beyond 64 bits stays at the limit: it can come only from a file that is no file of ours.
Currency held(Wide units) {
    using Limits = std::numeric_limits<std::int64_t>;
    return Currency::fromUnits(static_cast<std::int64_t>(std::clamp<Wide>(units, Limits::min(), Limits::max())));
}

/// Reads the digits of an Italian number one after another, up to a number of decimals, and rounds by the rest.
class DecimalReader {
  public:
    explicit DecimalReader(int decimals) : decimals_(decimals) {}

    void digit(int value) {
        any_ = true;
        if (afterComma_ && decimals_ == 0) {
            rest(value);
            return;
        }
        if (afterComma_) --decimals_;
        if (number_ < limit) number_ = number_ * 10 + value;
    }
    /// False for a second comma.
    bool comma() { return !std::exchange(afterComma_, true); }
    [[nodiscard]] bool afterComma() const { return afterComma_; }

    /// Half to even; nothing when no digit was there.
    [[nodiscard]] std::optional<Wide> result() const {
        if (!any_) return std::nullopt;
        Wide number = number_;
        for (int n = 0; n < decimals_ && number < limit; ++n) number *= 10;
        const bool half = firstRest_ == 5 && !moreRest_;
        const bool up = half ? number % 2 == 1 : firstRest_ >= 5;
        return up ? number + 1 : number;
    }

  private:
    /// Beyond every number that is asked for, and with room for one digit more.
    static constexpr Wide limit = Wide{1} << 100;

    void rest(int value) {
        if (firstRest_ < 0) {
            firstRest_ = value;
        } else if (value != 0) {
            moreRest_ = true;
        }
    }

    int decimals_;
    Wide number_ = 0;
    int firstRest_ = -1;
    bool moreRest_ = false;
    bool afterComma_ = false;
    bool any_ = false;
};

/// The number in `text` times 10 to the power of `decimals`, when it lies from `least` to `most`.
std::optional<std::int64_t> convert(std::string_view text, int decimals, std::int64_t least, std::int64_t most) {
    text = trim(text);
    const bool negative = !text.empty() && text.front() == '-';
    if (!text.empty() && isSign(text.front())) text.remove_prefix(1);

    DecimalReader reader(decimals);
    for (const char character : text) {
        if (isDigit(character)) {
            reader.digit(character - '0');
        } else if (character == ',') {
            if (!reader.comma()) return std::nullopt;
        } else if (character != '.' || reader.afterComma()) {
            return std::nullopt;
        }
    }
    const auto size = reader.result();
    if (!size) return std::nullopt;
    const Wide number = negative ? -*size : *size;
    if (number < least || number > most) return std::nullopt;
    return static_cast<std::int64_t>(number);
}

/// The digits of a number that is not negative; nothing for zero.
std::string digitsOf(Wide number, bool thousands = false) {
    std::string backwards;
    for (int place = 0; number > 0; number /= 10, ++place) {
        if (thousands && place > 0 && place % 3 == 0) backwards += '.';
        backwards += static_cast<char>('0' + static_cast<int>(number % 10));
    }
    return {backwards.rbegin(), backwards.rend()};
}

std::string formatWhole(Wide number) {
    std::string text;
    if (number < 0) text += '-';
    text += digitsOf(number < 0 ? -number : number);
    return text;
}

}  // namespace

double plainScan(std::string_view text) {
    while (!text.empty() && text.front() == ' ') text.remove_prefix(1);
    const bool negative = !text.empty() && text.front() == '-';
    if (!text.empty() && isSign(text.front())) text.remove_prefix(1);

    std::size_t length = 0;
    bool point = false;
    bool large = false;
    for (; length < text.size(); ++length) {
        const char character = text[length];
        if (character == '.' && !point) {
            point = true;
        } else if (!isDigit(character)) {
            break;
        } else if (character != '0' && !point) {
            large = true;
        }
    }
    double number = 0;
    const auto done = std::from_chars(text.data(), text.data() + length, number, std::chars_format::fixed);
    // More digits than a number can have: before the point it is as large as can be, behind it it is nothing.
    if (done.ec == std::errc::result_out_of_range) number = large ? std::numeric_limits<double>::max() : 0;
    return negative && number != 0 ? -number : number;
}

int wholeScan(std::string_view text) {
    using Limits = std::numeric_limits<int>;
    return static_cast<int>(std::clamp<double>(plainScan(text), Limits::min(), Limits::max()));
}

std::optional<std::int16_t> toInteger(std::string_view text) {
    using Limits = std::numeric_limits<std::int16_t>;
    const auto number = convert(text, 0, Limits::min(), Limits::max());
    if (!number) return std::nullopt;
    return static_cast<std::int16_t>(*number);
}

std::optional<Currency> toCurrency(std::string_view text) {
    using Limits = std::numeric_limits<std::int64_t>;
    const auto units = convert(text, 4, Limits::min(), Limits::max());
    if (!units) return std::nullopt;
    return Currency::fromUnits(*units);
}

Currency amountOrZero(std::string_view text) { return toCurrency(text).value_or(Currency{}); }

std::string format(Currency amount, Mask mask) {
    const Wide units = amount.units();
    if (mask == Mask::whole) return formatWhole(divided(units, unitsInOne, Half::away));

    const Wide rounded = divided(units, unitsInCent, Half::away);
    const Wide size = rounded < 0 ? -rounded : rounded;
    std::string text;
    if (rounded < 0) text += '-';
    if (size < 100 && mask != Mask::percent) text += '0';
    text += digitsOf(size / 100, mask == Mask::amount);

    const int decimals = static_cast<int>(size % 100);
    text += ',';
    text += static_cast<char>('0' + decimals / 10);
    text += static_cast<char>('0' + decimals % 10);
    return text;
}

std::string format(double number, Mask mask) {
    if (mask != Mask::whole) return format(currencyOf(number), mask);
    if (std::isnan(number)) return {};
    constexpr double most = 1e30;
    return formatWhole(static_cast<Wide>(std::round(std::clamp(number, -most, most))));
}

Currency currencyOf(double amount) {
    if (std::isnan(amount)) return {};
    constexpr double most = 1e30;
    const double units = std::clamp(amount, -most, most) * static_cast<double>(unitsInOne);
    const double below = std::floor(units);
    const double rest = units - below;
    const bool odd = std::fmod(below, 2.0) != 0;
    const bool up = rest > 0.5 || (rest == 0.5 && odd);
    return held(static_cast<Wide>(up ? below + 1 : below));
}

Currency cents(Currency amount) { return held(divided(amount.units(), unitsInCent, Half::away) * unitsInCent); }

Currency payFor(int hours, Currency rate) { return cents(held(Wide{hours} * rate.units())); }

Currency percentOf(Currency base, Currency percentage) {
    return held(divided(Wide{base.units()} * percentage.units(), unitsInOne * 100, Half::toEven));
}

}  // namespace vorbano
