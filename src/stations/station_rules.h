#pragma once

// What the records of the polling stations say about the state of their entry. The files keep no state of their own: an
// entry that stopped is taken up again from what is stored.

#include <span>
#include <vector>

#include "records/station_files.h"
#include "records/station_tariff_records.h"

namespace vorbano {

/// The role follows from the place (from 1) alone: the president, in normal stations the secretary, then scrutineers.
[[nodiscard]] StationRole roleAt(StationKind kind, int place);

/// The numbers of the stations in the order of the file. Records of one number that follow each other are one station;
/// a number that comes again after another one is a station again.
[[nodiscard]] std::vector<int> stationsIn(std::span<const MemberRecord> members);

/// The member is the last one of the station.
[[nodiscard]] bool isStationFull(const MemberRecord& last);
/// Normal stations: the last record of the file is the last member of the last station.
[[nodiscard]] bool isEntryFinished(const MemberRecord& last);
/// Special stations have numbers of their own, so they are counted: there are `wanted`, and the last one is full.
[[nodiscard]] bool isSpecialEntryFinished(std::span<const MemberRecord> members, int wanted);

/// Who is to be entered after the last record of the file.
struct NextMember {
    int station;   ///< of special stations only when `composto` is known: the number of a new one is typed
    int place;     ///< from 1
    int composto;  ///< members of the station; 0 for a new station, whose size is still to be typed
};
[[nodiscard]] NextMember nextMember(const MemberRecord& last);

}  // namespace vorbano
