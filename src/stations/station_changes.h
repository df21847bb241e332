#pragma once

// What the correction screens store. The members of a station and their substitutes stand in files of their own, and
// every change of several records of one file writes its companion and puts it in the place of the file in one step.
// The two files never change together: a change of the members leaves the substitutes as they are, numbers included.

#include <optional>
#include <span>
#include <vector>

#include "records/station_files.h"

namespace vorbano {

/// The members with one more in a station: its records hold the larger `Composto`, and behind its last one stands the
/// new one, with the next `Ordine`. Of `added` tariff and person are taken; the rest is that of the station. Without
/// the station nothing is added.
[[nodiscard]] std::vector<MemberRecord> withMember(std::span<const MemberRecord> members, int station,
                                                   const MemberRecord& added);
/// The members without record `number` (from 1): in its station `Composto` is one less, and those behind it move up.
/// Nothing changes when there is no such record.
[[nodiscard]] std::vector<MemberRecord> withoutMember(std::span<const MemberRecord> members, int number);
/// The substitutes without the one of the member at `place` of a station. Those of the station that stand behind it in
/// the file move up. Nothing changes when there is none.
[[nodiscard]] std::vector<SubstituteRecord> withoutSubstitute(std::span<const SubstituteRecord> substitutes,
                                                              int station, int place);
/// Index of the substitute of the member at `place` of a station; nothing when there is none.
[[nodiscard]] std::optional<std::size_t> substituteOf(std::span<const SubstituteRecord> substitutes, int station,
                                                      int place);

/// `AggiungiReverse`: rebuilds Seggi.vbn through SeggiRev.vbn. `recordsBefore` are the records that the clerk saw:
/// given again after a failure that came when the file was new already, nothing is added twice. `full` when the file
/// holds no more records, `notFound` when there is no such station.
[[nodiscard]] Result<> addMember(FileSystem& files, const Election& election, int station, const MemberRecord& added,
                                 int recordsBefore);
/// `EliminaComp` after its question, and `Autoreverse2`: rebuilds Seggi.vbn through SeggiRev.vbn. Given again nobody
/// else is taken out, as with `addMember`.
[[nodiscard]] Result<> removeMember(FileSystem& files, const Election& election, int number, int recordsBefore);
/// `EliminaSos` after its question, and `Autoreverse`: rebuilds the file of substitutes through its companion. Given
/// again it changes nothing.
[[nodiscard]] Result<> removeSubstitute(FileSystem& files, const Election& election, StationKind kind, int station,
                                        int place);
/// `SalvaSos`: in the place of the substitute that the member has, whose `Ordine` is kept, or else behind all others,
/// with the next `Ordine` of the station.
[[nodiscard]] Result<> storeSubstitute(FileSystem& files, const Election& election, StationKind kind,
                                       const SubstituteRecord& substitute);
/// Overwrites record `number` (from 1) of the members.
[[nodiscard]] Result<> storeMember(FileSystem& files, const Election& election, StationKind kind, int number,
                                   const MemberRecord& member);

}  // namespace vorbano
