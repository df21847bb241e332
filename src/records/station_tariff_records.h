#pragma once

// The files of "Params" with the fees of the members of polling stations, and with the quota of each fee that the Stato
// bears: one row for each type of election, in the order in which the types were first saved. A type that was never
// saved has no row.

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string_view>

#include "records/station_files.h"
#include "storage/codepage.h"
#include "storage/fields.h"
#include "storage/record_fields.h"
#include "storage/record_file.h"

namespace vorbano {

/// One row; of two amounts for special stations, which have no secretary, and of three for normal ones.
template <std::size_t Amounts>
struct StationTariff {
    Text<20> Tipo;
    std::array<Currency, Amounts> amounts;  ///< president first, scrutineer last
};

/// Tarseg.dat: Presidente, Segretario, Scrutatore. Tarmag.dat: the middle amount is nobody's and is kept as it is.
using NormalTariff = StationTariff<3>;
/// TarSpec.dat and Tarmagsp.dat: Presidente, Scrutatore.
using SpecialTariff = StationTariff<2>;
static_assert(sizeof(NormalTariff) == 44 && offsetof(NormalTariff, amounts) == 20);
static_assert(sizeof(SpecialTariff) == 36 && offsetof(SpecialTariff, amounts) == 20);

inline constexpr std::string_view tarsegFile = "Params/Tarseg.dat";
inline constexpr std::string_view tarSpecFile = "Params/TarSpec.dat";
inline constexpr std::string_view tarmagFile = "Params/Tarmag.dat";
inline constexpr std::string_view tarmagspFile = "Params/Tarmagsp.dat";

/// Fields by the names of the screen.
inline constexpr FieldInfo tarsegFields[] = {
    {"Tipo", "Combo1", 0, 20, FieldType::text},
    {"Presidente", "txtPresOne", 20, 8, FieldType::currency},
    {"Segretario", "txtSegrOne", 28, 8, FieldType::currency},
    {"Scrutatore", "txtScrutOne", 36, 8, FieldType::currency},
};
inline constexpr FieldInfo tarmagFields[] = {
    {"Tipo", "Combo1", 0, 20, FieldType::text},
    {"Presidente", "txtMagPres", 20, 8, FieldType::currency},
    {"Libero", "", 28, 8, FieldType::currency},
    {"Scrutatore", "txtMagSesc", 36, 8, FieldType::currency},
};
inline constexpr FieldInfo tarSpecFields[] = {
    {"Tipo", "Combo2", 0, 20, FieldType::text},
    {"Presidente", "txtPresSpecOne", 20, 8, FieldType::currency},
    {"Scrutatore", "txtScrutSpecOne", 28, 8, FieldType::currency},
};
inline constexpr FieldInfo tarmagspFields[] = {
    {"Tipo", "Combo2", 0, 20, FieldType::text},
    {"Presidente", "txtMagPresSp", 20, 8, FieldType::currency},
    {"Scrutatore", "txtMagSescSp", 28, 8, FieldType::currency},
};
static_assert(coversWhole(tarsegFields, sizeof(NormalTariff)) && coversWhole(tarmagFields, sizeof(NormalTariff)));
static_assert(coversWhole(tarSpecFields, sizeof(SpecialTariff)) && coversWhole(tarmagspFields, sizeof(SpecialTariff)));

/// The role of a member, which decides the fee.
enum class StationRole : std::uint8_t { presidente, segretario, scrutatore };

/// The role by its name, trimmed: "Presidente", "Segretario", "Scrutatore"; nothing for any other word.
[[nodiscard]] std::optional<StationRole> stationRole(std::string_view qualifica);
[[nodiscard]] std::string_view nameOf(StationRole role);

/// The fee of a role. Special stations know no secretary and have no fee for one.
[[nodiscard]] std::optional<Currency> feeOf(const NormalTariff& row, StationRole role);
[[nodiscard]] std::optional<Currency> feeOf(const SpecialTariff& row, StationRole role);
/// The quota that the Stato bears: the first amount for a president, the last one for everybody else.
template <std::size_t Amounts>
[[nodiscard]] Currency quotaOf(const StationTariff<Amounts>& row, StationRole role) {
    return role == StationRole::presidente ? row.amounts.front() : row.amounts.back();
}

/// A row and the number of its record.
template <std::size_t Amounts>
struct FoundTariff {
    int number;
    StationTariff<Amounts> row;
};

/// The first row whose type is equal, both trimmed; nothing when there is none.
template <std::size_t Amounts>
[[nodiscard]] Result<std::optional<FoundTariff<Amounts>>> findTariff(const RecordFile<StationTariff<Amounts>>& file,
                                                                     std::string_view type) {
    std::optional<FoundTariff<Amounts>> found;
    const auto done = file.scan([&](int number, const StationTariff<Amounts>& row) {
        if (!found && row.Tipo.trimmed() == trim(type)) found = FoundTariff<Amounts>{number, row};
    });
    if (!done) return done.error();
    return found;
}

/// The fee, and the quota that the Stato bears, by type of election and role; nothing when the type has no row, or the
/// row no amount for the role. Opening creates the file. For one question; who asks for every member of a file keeps
/// the row.
[[nodiscard]] Result<std::optional<Currency>> stationFeeFor(FileSystem& files, StationKind kind, std::string_view type,
                                                            StationRole role);
[[nodiscard]] Result<std::optional<Currency>> stationQuotaFor(FileSystem& files, StationKind kind,
                                                              std::string_view type, StationRole role);

}  // namespace vorbano
