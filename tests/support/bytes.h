#pragma once

// Expected bytes of record files, laid out by hand in the tests, and files laid out and looked at. Bytes are kept in a
// std::string: it compares, joins with + and is printed readably.

#include <cstddef>
#include <cstdint>
#include <cstring>
#include <span>
#include <string>
#include <string_view>
#include <type_traits>

#include "storage/file_system.h"

namespace vorbano::test {

/// `fromHex("41 42 20")` is "AB ". Blanks between the digits are skipped; any other character is a mistake in the test
/// and shows as such.
[[nodiscard]] inline std::string fromHex(std::string_view hex) {
    constexpr std::string_view digits = "0123456789abcdef";
    std::string bytes;
    bool low = false;
    for (const char character : hex) {
        if (character == ' ') continue;
        const bool capital = character >= 'A' && character <= 'F';
        const std::size_t value = digits.find(capital ? static_cast<char>(character - 'A' + 'a') : character);
        if (value == std::string_view::npos) return "NOT HEX: " + std::string(hex);
        if (low) {
            bytes.back() = static_cast<char>(static_cast<unsigned char>(bytes.back()) | value);
        } else {
            bytes += static_cast<char>(static_cast<unsigned char>(value << 4U));
        }
        low = !low;
    }
    return low ? "HALF A BYTE: " + std::string(hex) : bytes;
}

/// A text as what is written to a file.
[[nodiscard]] inline std::span<const std::byte> asBytes(std::string_view text) {
    return std::as_bytes(std::span(text));
}

/// "41 42 20" for "AB ".
[[nodiscard]] inline std::string toHex(std::string_view bytes) {
    constexpr std::string_view digits = "0123456789abcdef";
    std::string hex;
    for (const char byte : bytes) {
        const auto code = static_cast<unsigned char>(byte);
        if (!hex.empty()) hex += ' ';
        hex += digits[code >> 4U];
        hex += digits[code & 0xFU];
    }
    return hex;
}

/// The lowest `width` bytes of a number, little-endian.
[[nodiscard]] inline std::string littleEndian(std::int64_t number, std::size_t width) {
    auto rest = static_cast<std::uint64_t>(number);
    std::string bytes;
    for (std::size_t n = 0; n < width; ++n, rest >>= 8U) bytes += static_cast<char>(static_cast<unsigned char>(rest));
    return bytes;
}
[[nodiscard]] inline std::string le16(int number) { return littleEndian(number, 2); }
[[nodiscard]] inline std::string le32(std::int64_t number) { return littleEndian(number, 4); }
[[nodiscard]] inline std::string le64(std::int64_t number) { return littleEndian(number, 8); }

/// An amount on file: `amount(170, 5)` is 170,05 and `amount(-1, 50)` is -1,50; `tenThousandths` are what stands behind
/// the cents.
[[nodiscard]] inline std::string amount(std::int64_t euros, int cents = 0, int tenThousandths = 0) {
    const std::int64_t behind = std::int64_t{cents} * 100 + tenThousandths;
    return le64(euros * 10'000 + (euros < 0 ? -behind : behind));
}

/// A text field: `ansi` (bytes of code page 1252) padded with blanks to `width`. A text that is too long is left so,
/// and then the comparison fails.
[[nodiscard]] inline std::string padded(std::string_view ansi, std::size_t width) {
    std::string bytes(ansi);
    if (bytes.size() < width) bytes.resize(width, ' ');
    return bytes;
}

/// A field that was never assigned.
[[nodiscard]] inline std::string nuls(std::size_t width) { return std::string(width, '\0'); }

/// A record as it lies in memory, which is as it lies on file.
template <class Record>
[[nodiscard]] std::string bytesOf(const Record& record) {
    static_assert(std::is_trivially_copyable_v<Record>);
    std::string bytes(sizeof(Record), '\0');
    std::memcpy(bytes.data(), &record, sizeof(Record));
    return bytes;
}

/// The record that such bytes make; what is missing is zeros.
template <class Record>
[[nodiscard]] Record recordFrom(std::string_view bytes) {
    static_assert(std::is_trivially_copyable_v<Record>);
    Record record{};
    if (!bytes.empty())
        std::memcpy(&record, bytes.data(), bytes.size() < sizeof(Record) ? bytes.size() : sizeof(Record));
    return record;
}

/// Lays a file, and the folders before it. False when that failed.
[[nodiscard]] inline bool lay(FileSystem& files, std::string_view path, std::string_view content) {
    for (std::size_t at = path.find('/'); at != std::string_view::npos; at = path.find('/', at + 1)) {
        if (!files.makeFolder(path.substr(0, at))) return false;
    }
    return writeWhole(files, path, content).ok();
}

/// What a file of the test holds when it is not there or cannot be read.
inline constexpr std::string_view noFile = "(no file)";

/// The bytes of a file, or `noFile`.
[[nodiscard]] inline std::string contentOf(FileSystem& files, std::string_view path) {
    return readWhole(files, path).valueOr(std::string(noFile));
}

}  // namespace vorbano::test
