#include "stations/station_rules.h"

namespace vorbano {

StationRole roleAt(StationKind kind, int place) {
    if (place == 1) return StationRole::presidente;
    return kind == StationKind::normal && place == 2 ? StationRole::segretario : StationRole::scrutatore;
}

std::vector<int> stationsIn(std::span<const MemberRecord> members) {
    std::vector<int> stations;
    for (const MemberRecord& member : members) {
        const int number = member.station.SonoSeggio;
        if (stations.empty() || stations.back() != number) stations.push_back(number);
    }
    return stations;
}

bool isStationFull(const MemberRecord& last) { return last.Ordine == last.Composto; }

bool isEntryFinished(const MemberRecord& last) {
    return last.station.SonoSeggio == last.station.Seggi && isStationFull(last);
}

bool isSpecialEntryFinished(std::span<const MemberRecord> members, int wanted) {
    if (members.empty() || !isStationFull(members.back())) return false;
    return static_cast<int>(stationsIn(members).size()) == wanted;
}

NextMember nextMember(const MemberRecord& last) {
    if (isStationFull(last)) return {last.station.SonoSeggio + 1, 1, 0};
    return {last.station.SonoSeggio, last.Ordine + 1, last.Composto};
}

}  // namespace vorbano
