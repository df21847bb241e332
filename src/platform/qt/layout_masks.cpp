#include "platform/qt/layout_masks.h"

namespace vorbano {

namespace {

/// An amount has four decimals; a mask cannot show more.
constexpr int decimalsOfUnits = 4;

std::uint64_t tenToThe(int power) {
    std::uint64_t result = 1;
    for (; power > 0; --power) result *= 10;
    return result;
}

/// The digits of a number, at least `least` of them.
std::string digits(std::uint64_t number, int least) {
    std::string text = number == 0 ? std::string() : std::to_string(number);
    while (static_cast<int>(text.size()) < least) text.insert(text.begin(), '0');
    return text;
}

std::string grouped(const std::string& whole) {
    std::string text;
    for (std::size_t at = 0; at < whole.size(); ++at) {
        if (at > 0 && (whole.size() - at) % 3 == 0) text += '.';
        text += whole[at];
    }
    return text;
}

}  // namespace

std::optional<Mask> Mask::read(std::string_view text) {
    Mask mask;
    const auto semicolon = text.find(';');
    if (semicolon != std::string_view::npos) mask.zero_ = std::string(text.substr(semicolon + 1));
    bool decimals = false;
    int places = 0;
    for (const char c : text.substr(0, semicolon)) {
        if (c == '.' && !decimals) {
            decimals = true;
        } else if (c == ',' && !decimals && places > 0) {
            mask.grouped_ = true;
        } else if (c == '0') {
            if (decimals && mask.mostDecimals_ > mask.leastDecimals_) return std::nullopt;  // "0.#0"
            ++places;
            ++(decimals ? mask.leastDecimals_ : mask.wholeDigits_);
            if (decimals) ++mask.mostDecimals_;
        } else if (c == '#' && (decimals || mask.wholeDigits_ == 0)) {
            ++places;
            if (decimals) ++mask.mostDecimals_;
        } else {
            return std::nullopt;
        }
    }
    if (places == 0 || mask.mostDecimals_ > decimalsOfUnits) return std::nullopt;
    return mask;
}

std::string Mask::shown(std::int64_t units) const {
    const bool negative = units < 0;
    const auto magnitude =
        negative ? std::uint64_t{0} - static_cast<std::uint64_t>(units) : static_cast<std::uint64_t>(units);
    const std::uint64_t step = tenToThe(decimalsOfUnits - mostDecimals_);
    const std::uint64_t rounded = (magnitude + step / 2) / step;
    if (rounded == 0 && zero_) return *zero_;
    const std::uint64_t one = tenToThe(mostDecimals_);
    std::string decimals = digits(rounded % one, mostDecimals_);
    while (static_cast<int>(decimals.size()) > leastDecimals_ && decimals.back() == '0') decimals.pop_back();
    const std::string whole = digits(rounded / one, wholeDigits_);
    return (negative && rounded != 0 ? "-" : "") + (grouped_ ? grouped(whole) : whole) +
           (decimals.empty() ? "" : "," + decimals);
}

const Mask& amountMask() {
    static const Mask mask = *Mask::read("##,##0.00");
    return mask;
}

const Mask& wholeMask() {
    static const Mask mask = *Mask::read("0");
    return mask;
}

}  // namespace vorbano
