#pragma once

// What the statement of an election paid by several bodies takes from the polling stations: the fees of the first
// round, and of each round the quota that is the State's whatever the others share.

#include <optional>
#include <vector>

#include "records/station_files.h"
#include "records/station_tariff_records.h"

namespace vorbano {

/// The fees of members and substitutes of the first round. `missingFolder` when the election has no folder.
[[nodiscard]] Result<Currency> firstRoundFees(FileSystem& files, const Election& election, StationKind kind);

/// The quota of one member: a president's, a secretary's, and a scrutineer's who has a fee. Other roles have none.
template <std::size_t Amounts>
[[nodiscard]] Currency quotaOfMember(const MemberRecord& member, const StationTariff<Amounts>& row) {
    const auto role = stationRole(member.person.Qualifica.trimmed());
    if (!role || (*role == StationRole::scrutatore && member.person.Onorario <= Currency())) return {};
    return quotaOf(row, *role);
}

/// The sum of the quotas over members; nobody has one when the type has no row.
template <std::size_t Amounts>
[[nodiscard]] Currency sumOfQuotas(const std::vector<MemberRecord>& members,
                                   const std::optional<StationTariff<Amounts>>& row) {
    Currency sum;
    if (!row) return sum;
    for (const MemberRecord& member : members) sum += quotaOfMember(member, *row);
    return sum;
}

/// The sum of the quotas of an election by Tarmag.dat or Tarmagsp.dat. Substitutes have no quota of their own: it
/// belongs to the place in the station.
[[nodiscard]] Result<Currency> stationQuotas(FileSystem& files, const Election& election, StationKind kind,
                                             Round round);

}  // namespace vorbano
