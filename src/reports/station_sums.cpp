#include "reports/station_sums.h"

#include <unordered_map>
#include <utility>

#include "statement/station_quotas.h"
#include "storage/numbers.h"

namespace vorbano {

std::vector<StationSum> stationSums(std::span<const MemberRecord> members,
                                    std::span<const SubstituteRecord> substitutes,
                                    const std::optional<NormalTariff>& quotas) {
    std::unordered_map<int, Currency> ofSubstitutes;
    for (const SubstituteRecord& substitute : substitutes) {
        ofSubstitutes[substitute.station.SonoSeggio] += cents(substitute.person.Onorario);
    }
    std::vector<StationSum> sums;
    for (const MemberRecord& member : members) {
        const int station = member.station.SonoSeggio;
        if (sums.empty() || sums.back().station != station) {
            // A number that comes again later finds its substitutes taken.
            sums.push_back({station, std::exchange(ofSubstitutes[station], Currency()), {}});
        }
        sums.back().onorario += cents(member.person.Onorario);
        if (quotas) sums.back().quota += cents(quotaOfMember(member, *quotas));
    }
    return sums;
}

StationShares sharesOf(const StationSum& sum, std::string_view kind) {
    StationShares shares{sum.onorario, {}, {}};
    const bool together = kind == "Provinciali_Comunali";
    if (!together && kind != "Provinciali") return shares;
    shares.Prov = sum.quota;
    shares.MProv = sum.quota;
    if (together) shares.MCom -= sum.quota;
    return shares;
}

}  // namespace vorbano
