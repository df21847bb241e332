#pragma once

// The primitive field types of all record files: exact width, no alignment, trivially copyable, so that a record is a
// plain struct of them and reading it is one copy.

#include <array>
#include <bit>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <type_traits>

#include "storage/codepage.h"
#include "storage/currency.h"

namespace vorbano {

/// A string of exactly `Width` bytes: Windows code page 1252, left-aligned, padded with blanks and cut at the width
/// when assigned, NUL bytes when never assigned. On the program's side it is UTF-8.
template <std::size_t Width>
class Text {
  public:
    static constexpr std::size_t width = Width;

    Text() = default;
    Text(std::string_view utf8) { *this = utf8; }
    Text& operator=(std::string_view utf8) {
        const std::string ansi = toCodepage(utf8);
        for (std::size_t at = 0; at < Width; ++at) bytes_[at] = at < ansi.size() ? ansi[at] : ' ';
        return *this;
    }
    /// The whole field as UTF-8, blanks kept, NULs shown as nothing.
    [[nodiscard]] std::string whole() const { return fromCodepage({bytes_.data(), Width}); }
    /// Without leading and trailing blanks and NULs.
    [[nodiscard]] std::string trimmed() const { return std::string(trim(whole())); }

    friend bool operator==(const Text&, const Text&) = default;

  private:
    std::array<char, Width> bytes_{};
};

/// A date as it stands in records and fields: "dd-mm-yy", or the excluded mark "//" padded with blanks.
using DateText = Text<8>;

/// A signed little-endian integer of the width of `Native`, without alignment.
template <class Native>
class Packed {
  public:
    constexpr Packed() = default;
    constexpr Packed(Native value) : bytes_(std::bit_cast<Bytes>(value)) {}
    constexpr operator Native() const { return std::bit_cast<Native>(bytes_); }

  private:
    using Bytes = std::array<std::byte, sizeof(Native)>;
    Bytes bytes_{};
};

/// 16 bits signed: hours, counters, record numbers.
using Integer = Packed<std::int16_t>;
/// 32 bits signed.
using Long = Packed<std::int32_t>;

static_assert(sizeof(Text<60>) == 60 && alignof(Text<60>) == 1 && std::is_trivially_copyable_v<Text<60>>);
static_assert(sizeof(Integer) == 2 && alignof(Integer) == 1 && std::is_trivially_copyable_v<Integer>);
static_assert(sizeof(Long) == 4 && alignof(Long) == 1);

}  // namespace vorbano
