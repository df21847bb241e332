#pragma once

// The statement of an election laid out byte by byte, with stations whose fees and quotas are worked out in the tests.

#include <array>
#include <string>

#include "support/bytes.h"

namespace vorbano::test {

/// Amounts of Rendi.vbn in cents, in the order of the record.
struct LaidRendi {
    std::int64_t onorari = 0, straordinario = 0, speciali = 0, carico = 0, indennita = 0, sixth = 0, stampanti = 0;
    std::int64_t trasporti = 0, disciplina = 0, at72 = 0, at80 = 0, missioni = 0;
    std::int64_t totale = 0, acconti = 0, differenza = 0;
    std::int64_t at120 = 0, at128 = 0, cartRegione = 0, cartStato = 0;

    [[nodiscard]] std::string bytes() const {
        std::string all;
        for (const std::int64_t cents :
             {onorari, straordinario, speciali, carico, indennita, sixth, stampanti, trasporti, disciplina, at72, at80,
              missioni, totale, acconti, differenza, at120, at128, cartRegione, cartStato}) {
            all += le64(cents * 100);
        }
        return all;
    }
};

/// 216 bytes of Seggi.vbn or Speciale.vbn; the fee in cents.
inline std::string stationMember(const std::string& role, int fee) {
    return padded("Tipo", 14) + "06-05-12" + le16(1) + le16(1) + le16(5) + padded("Tariffa", 30) + le16(1) +
           padded("ROSSI", 30) + padded("MARIA", 30) + padded("Via Roma", 60) + padded(role, 10) + "SI" +
           padded("", 16) + amount(0, fee);
}
/// 218 bytes of SosSeggi.vbn or SosSpec.vbn.
inline std::string stationSubstitute(const std::string& role, int fee) {
    return padded("Tipo", 14) + "06-05-12" + le16(1) + le16(1) + le16(1) + le16(5) + padded("Tariffa", 30) + le16(6) +
           padded("VERDI", 30) + padded("ANNA", 30) + padded("Via Roma", 60) + padded(role, 10) + "SI" +
           padded("", 16) + amount(0, fee);
}
/// 246 bytes of SegSuf.vbn (`dateWidth` 30) or 224 of SpecSufr.vbn (8).
inline std::string runOffMember(const std::string& role, int fee, std::size_t dateWidth) {
    const std::string first = stationMember(role, fee);
    return first.substr(0, 28) + padded("20-05-12", dateWidth) + first.substr(28);
}
/// A row of Tarmag.dat, with an amount in the middle that is nobody's; in cents.
inline std::string normalQuota(const std::string& kind, int president, int others) {
    return padded(kind, 20) + amount(0, president) + amount(77, 77) + amount(0, others);
}
/// A row of Tarmagsp.dat.
inline std::string specialQuota(const std::string& kind, int president, int others) {
    return padded(kind, 20) + amount(0, president) + amount(0, others);
}

}  // namespace vorbano::test
