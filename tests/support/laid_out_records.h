#pragma once

// Records of an election laid out byte by byte, at offsets counted by hand. No two fields of a record hold the same,
// so that fields that changed places are found out.

#include <algorithm>
#include <cstddef>
#include <initializer_list>
#include <string>
#include <string_view>
#include <vector>

#include "support/bytes.h"

namespace vorbano::test {

/// A record on paper: every byte is written once, at its offset.
class Sheet {
  public:
    explicit Sheet(std::size_t width) : bytes_(width, '?'), written_(width, false) {}

    Sheet& at(std::size_t offset, std::string_view content) {
        for (std::size_t n = 0; n < content.size(); ++n) {
            const std::size_t place = offset + n;
            if (place >= bytes_.size() || written_[place]) {
                mistake_ = "MISTAKE IN THE TEST: byte " + std::to_string(place) + " is written twice or not there";
                return *this;
            }
            bytes_[place] = content[n];
            written_[place] = true;
        }
        return *this;
    }
    /// Amounts one after another, in cents.
    Sheet& amountsAt(std::size_t offset, std::initializer_list<int> cents) {
        for (const int each : cents) {
            at(offset, amount(0, each));
            offset += 8;
        }
        return *this;
    }
    /// Whole numbers of 16 bits one after another.
    Sheet& integersAt(std::size_t offset, std::initializer_list<int> numbers) {
        for (const int each : numbers) {
            at(offset, le16(each));
            offset += 2;
        }
        return *this;
    }
    [[nodiscard]] std::string bytes() const {
        if (!mistake_.empty()) return mistake_;
        const auto gap = std::ranges::find(written_, false);
        if (gap == written_.end()) return bytes_;
        return "MISTAKE IN THE TEST: byte " + std::to_string(gap - written_.begin()) + " is missing";
    }

  private:
    std::string bytes_;
    std::vector<bool> written_;
    std::string mistake_;
};

/// The second of seven employees, liquidated, with the third period left out.
[[nodiscard]] inline std::string employeeBytes() {
    return Sheet(301)
        .integersAt(0, {40, 95, 280, 373, 2, 7})
        .at(12, padded("DE LUC\xC0 MARIA", 60))
        .at(72, "15-04-24")
        .at(80, "14-05-24")
        .integersAt(88, {20, 11, 3, 18, 10, 1, 29})
        .at(102, "15-05-24")
        .at(110, "24-05-24")
        .integersAt(118, {8, 4, 2, 7, 5, 0, 12})
        .at(132, "//      ")
        .at(140, "//      ")
        .integersAt(148, {0, 0, 0, 0, 0, 0, 0})
        .integersAt(162, {48, 25, 15, 1, 41})
        .at(172, "G    B6")
        .at(179, padded("-", 10))
        .amountsAt(189, {1234, 1555, 1790, 55965, 2380, 13320, 850, 4757, 18077, 880, 4925, 35, 196, 5121})
        .bytes();
}

/// The fourth or fifth period of an employee of an election before 2014.
[[nodiscard]] inline std::string latePeriodBytes() {
    return Sheet(241)
        .integersAt(0, {60, 120, 300, 420, 3, 5})
        .at(12, padded("ROSSI MARIO", 60))
        .at(72, "13-05-13")
        .at(80, "27-05-13")
        .integersAt(88, {14, 6, 2, 13, 5, 1, 19, 22, 71, 32, 4, 107})
        .at(112, padded("D3", 7))
        .at(119, padded("-", 10))
        .amountsAt(129, {1592, 1799, 2075, 178900, 2381, 42596, 851, 15224, 57820, 881, 15761, 36, 644, 16405})
        .bytes();
}

/// Limits, states and payments of an election with five periods.
[[nodiscard]] inline std::string meirinBytes() {
    return Sheet(86)
        .amountsAt(0, {123456})
        .at(8, "16-07-13")
        .amountsAt(16, {7890})
        .integersAt(24, {40, 13, 27})
        .integersAt(30, {240, 93, 187})
        .integersAt(36, {1, 0, 1})
        .integersAt(42, {15, 103, 1})
        .amountsAt(48, {4321})
        .integersAt(56, {22, 154, 0})
        .amountsAt(62, {98765})
        .at(70, "16-08-13")
        .amountsAt(78, {3569})
        .bytes();
}

[[nodiscard]] inline std::string duedateBytes() { return Sheet(16).at(0, "12-04-24").at(8, "15-04-24").bytes(); }

}  // namespace vorbano::test
