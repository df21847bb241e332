#pragma once

// The adjustment of an election laid out byte by byte.

#include <array>
#include <string>

#include "support/bytes.h"

namespace vorbano::test {

/// Amounts in cents, but for the difference.
struct LaidAdjustment {
    int number = 1;
    std::array<int, 3> rates{};
    std::int64_t dovuto = 0;
    std::int64_t pagato = 0;  ///< in 1/10,000
    std::int64_t cpStato = 0, irap = 0, totaleSpesa = 0, cpDip = 0, fonCre = 0, totaleContr = 0;

    /// 145 bytes of Congs.vbn or Congs1.vbn: hours 31, 21 and 11, percentages 23,80, 8,50, 8,85 and 0,35.
    [[nodiscard]] std::string bytes() const {
        const auto cents = [](std::int64_t one) { return le64(one * 100); };
        return le16(number) + le16(31) + le16(21) + le16(11) + std::string(17, '\0') + cents(rates[0]) +
               cents(rates[1]) + cents(rates[2]) + cents(dovuto) + le64(pagato) + cents(2380) + cents(cpStato) +
               cents(850) + cents(irap) + cents(totaleSpesa) + cents(885) + cents(cpDip) + cents(35) + cents(fonCre) +
               cents(totaleContr);
    }
};

/// 40 bytes of Meirinc.vbn: IRPEF 9,81, INAIL 5,00 paid on 16-09-13, no INPS.
inline std::string meirincBytes() { return amount(9, 81) + "16-09-13" + amount(5) + amount(0) + std::string(8, ' '); }

/// 95 bytes of Versumc.vbn.
inline std::string paymentBytes(std::string_view voice, std::string_view kind, std::string_view percent, int cents,
                                int number, std::string_view copies) {
    return padded(voice, 10) + padded(kind, 27) + padded(percent, 6) + le64(std::int64_t{cents} * 100) + le32(number) +
           "01-09-13" + padded(copies, 32);
}

}  // namespace vorbano::test
