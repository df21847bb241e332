#include "stations/station_changes.h"

#include <algorithm>
#include <string>
#include <string_view>

#include "storage/record_file.h"

namespace vorbano {

namespace {

Integer moved(const Integer& number, int by) { return static_cast<std::int16_t>(number + by); }

bool isIn(const StationHead& head, int station) { return head.SonoSeggio == station; }

std::string_view companionOfSubstitutes(StationKind kind) {
    return kind == StationKind::normal ? revSosSeggiFile : revSosSpecFile;
}

/// The last step of every rebuild: the companion is on disk as a whole before it takes the place of the file.
template <class Record>
Result<> putInPlace(FileSystem& files, const Election& election, std::string_view name, std::string_view companionName,
                    const std::vector<Record>& records) {
    const auto path = election.file(name);
    if (!path) return path.error();
    const auto companion = election.file(companionName);
    if (!companion) return companion.error();
    if (auto old = files.remove(*companion); !old && old.error().kind != Failure::notFound) return old;
    {
        auto scratch = RecordFile<Record>::open(files, *companion);
        if (!scratch) return scratch.error();
        if (!records.empty()) {
            if (auto done = scratch->raw().writeBlock(1, std::as_bytes(std::span(records))); !done) return done;
        }
        if (auto done = scratch->raw().flush(); !done) return done;
    }
    return files.replace(*companion, *path);
}

template <class Record>
Result<RecordFile<Record>> openIn(FileSystem& files, const Election& election, std::string_view name) {
    const auto path = election.file(name);
    if (!path) return path.error();
    return RecordFile<Record>::open(files, *path);
}

}  // namespace

std::vector<MemberRecord> withMember(std::span<const MemberRecord> members, int station, const MemberRecord& added) {
    std::vector<MemberRecord> all(members.begin(), members.end());
    auto last = all.end();
    for (auto at = all.begin(); at != all.end(); ++at) {
        if (!isIn(at->station, station)) continue;
        at->Composto = moved(at->Composto, 1);
        last = at;
    }
    if (last == all.end()) return all;
    // In a station whose entry has stopped half way the new member comes next, so that its places stay without a gap.
    MemberRecord record = *last;
    record.Ordine = moved(record.Ordine, 1);
    record.Tariffa = added.Tariffa;
    record.person = added.person;
    all.insert(last + 1, record);
    return all;
}

std::vector<MemberRecord> withoutMember(std::span<const MemberRecord> members, int number) {
    if (number < 1 || static_cast<std::size_t>(number) > members.size()) return {members.begin(), members.end()};
    const int station = members[static_cast<std::size_t>(number) - 1].station.SonoSeggio;
    std::vector<MemberRecord> left;
    int at = 0;
    for (MemberRecord member : members) {
        ++at;
        if (at == number) continue;
        if (isIn(member.station, station)) {
            member.Composto = moved(member.Composto, -1);
            if (at > number) member.Ordine = moved(member.Ordine, -1);
        }
        left.push_back(member);
    }
    return left;
}

std::vector<SubstituteRecord> withoutSubstitute(std::span<const SubstituteRecord> substitutes, int station, int place) {
    const auto removed = substituteOf(substitutes, station, place);
    std::vector<SubstituteRecord> left;
    for (std::size_t at = 0; at < substitutes.size(); ++at) {
        if (at == removed) continue;
        SubstituteRecord substitute = substitutes[at];
        if (removed && at > *removed && isIn(substitute.station, station)) {
            substitute.Ordine = moved(substitute.Ordine, -1);
        }
        left.push_back(substitute);
    }
    return left;
}

std::optional<std::size_t> substituteOf(std::span<const SubstituteRecord> substitutes, int station, int place) {
    const auto found = std::ranges::find_if(substitutes, [&](const SubstituteRecord& substitute) {
        return isIn(substitute.station, station) && substitute.Sostituito == place;
    });
    if (found == substitutes.end()) return std::nullopt;
    return static_cast<std::size_t>(found - substitutes.begin());
}

Result<> addMember(FileSystem& files, const Election& election, int station, const MemberRecord& added,
                   int recordsBefore) {
    const auto members = readMembers(files, election, StationKind::normal, Round::first);
    if (!members) return members.error();
    if (static_cast<int>(members->size()) == recordsBefore + 1) return {};
    const std::vector<MemberRecord> all = withMember(*members, station, added);
    if (all.size() == members->size()) return Error{Failure::notFound, std::string(seggiFile)};
    return putInPlace(files, election, seggiFile, seggiRevFile, all);
}

Result<> removeMember(FileSystem& files, const Election& election, int number, int recordsBefore) {
    const auto members = readMembers(files, election, StationKind::normal, Round::first);
    if (!members) return members.error();
    const int count = static_cast<int>(members->size());
    if (count == recordsBefore - 1) return {};
    if (number < 1 || number > count) return Error{Failure::notFound, std::string(seggiFile)};
    return putInPlace(files, election, seggiFile, seggiRevFile, withoutMember(*members, number));
}

Result<> removeSubstitute(FileSystem& files, const Election& election, StationKind kind, int station, int place) {
    const auto substitutes = readSubstitutes(files, election, kind, Round::first);
    if (!substitutes) return substitutes.error();
    if (!substituteOf(*substitutes, station, place)) return {};
    return putInPlace(files, election, substitutesFile(kind, Round::first), companionOfSubstitutes(kind),
                      withoutSubstitute(*substitutes, station, place));
}

Result<> storeSubstitute(FileSystem& files, const Election& election, StationKind kind,
                         const SubstituteRecord& substitute) {
    const auto all = readSubstitutes(files, election, kind, Round::first);
    if (!all) return all.error();
    const int station = substitute.station.SonoSeggio;
    SubstituteRecord record = substitute;
    auto at = all->size();
    if (const auto present = substituteOf(*all, station, substitute.Sostituito)) {
        at = *present;
        record.Ordine = (*all)[at].Ordine;
    } else {
        const auto there = std::ranges::count_if(*all, [&](const auto& each) { return isIn(each.station, station); });
        record.Ordine = moved(substitute.Composto, 1 + static_cast<int>(there));
    }
    auto file = openIn<SubstituteRecord>(files, election, substitutesFile(kind, Round::first));
    if (!file) return file.error();
    return file->write(static_cast<int>(at) + 1, record);
}

Result<> storeMember(FileSystem& files, const Election& election, StationKind kind, int number,
                     const MemberRecord& member) {
    auto file = openIn<MemberRecord>(files, election, membersFile(kind, Round::first));
    if (!file) return file.error();
    return file->write(number, member);
}

}  // namespace vorbano
