#include "statement/station_quotas.h"

namespace vorbano {

namespace {

template <class Tariff>
Result<Currency> quotasBy(FileSystem& files, std::string_view path, const Election& election,
                          const std::vector<MemberRecord>& members) {
    const auto file = RecordFile<Tariff>::open(files, path);
    if (!file) return file.error();
    const auto found = findTariff(*file, election.type);
    if (!found) return found.error();
    return sumOfQuotas(members, *found ? std::optional((*found)->row) : std::nullopt);
}

}  // namespace

Result<Currency> firstRoundFees(FileSystem& files, const Election& election, StationKind kind) {
    const auto members = readMembers(files, election, kind, Round::first);
    if (!members) return members.error();
    const auto substitutes = readSubstitutes(files, election, kind, Round::first);
    if (!substitutes) return substitutes.error();
    Currency sum;
    for (const MemberRecord& member : *members) sum += member.person.Onorario;
    for (const SubstituteRecord& substitute : *substitutes) sum += substitute.person.Onorario;
    return sum;
}

Result<Currency> stationQuotas(FileSystem& files, const Election& election, StationKind kind, Round round) {
    const auto members = readMembers(files, election, kind, round);
    if (!members) return members.error();
    return kind == StationKind::normal ? quotasBy<NormalTariff>(files, tarmagFile, election, *members)
                                       : quotasBy<SpecialTariff>(files, tarmagspFile, election, *members);
}

}  // namespace vorbano
