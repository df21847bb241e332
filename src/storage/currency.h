#pragma once

// Money and rates. The unit is 1/10,000; on file the amount is a signed 64-bit little-endian integer of such units.

#include <array>
#include <bit>
#include <compare>
#include <cstddef>
#include <cstdint>
#include <limits>

namespace vorbano {

/// An amount of money or a rate, in units of 1/10,000. Exactly eight bytes without alignment, so it stands in a record
/// as it stands in memory. There is no conversion from a floating-point number but the named `currencyOf`. A sum beyond
/// 64 bits, which only a damaged record can bring about, stays at the limit.
class Currency {
  public:
    constexpr Currency() = default;

    /// From units of 1/10,000: `fromUnits(1700500)` is 170,05.
    static constexpr Currency fromUnits(std::int64_t units) {
        Currency amount;
        amount.bytes_ = std::bit_cast<std::array<std::byte, 8>>(units);
        return amount;
    }
    /// From whole cents: `fromCents(17005)` is 170,05.
    static constexpr Currency fromCents(std::int64_t cents) {
        if (cents > most / 100) return fromUnits(most);
        return fromUnits(cents < least / 100 ? least : cents * 100);
    }

    [[nodiscard]] constexpr std::int64_t units() const { return std::bit_cast<std::int64_t>(bytes_); }

    friend constexpr Currency operator+(Currency a, Currency b) { return fromUnits(sum(a.units(), b.units())); }
    friend constexpr Currency operator-(Currency a, Currency b) { return fromUnits(difference(a.units(), b.units())); }
    constexpr Currency& operator+=(Currency other) { return *this = *this + other; }
    constexpr Currency& operator-=(Currency other) { return *this = *this - other; }
    friend constexpr bool operator==(Currency a, Currency b) { return a.units() == b.units(); }
    friend constexpr std::strong_ordering operator<=>(Currency a, Currency b) { return a.units() <=> b.units(); }

  private:
    static constexpr std::int64_t most = std::numeric_limits<std::int64_t>::max();
    static constexpr std::int64_t least = std::numeric_limits<std::int64_t>::min();

    static constexpr std::int64_t sum(std::int64_t a, std::int64_t b) {
        if (b > 0 && a > most - b) return most;
        return b < 0 && a < least - b ? least : a + b;
    }
    static constexpr std::int64_t difference(std::int64_t a, std::int64_t b) {
        if (b < 0 && a > most + b) return most;
        return b > 0 && a < least + b ? least : a - b;
    }

    std::array<std::byte, 8> bytes_{};
};
static_assert(sizeof(Currency) == 8 && alignof(Currency) == 1);
static_assert(std::endian::native == std::endian::little, "records are little-endian and read by one copy");

}  // namespace vorbano
