#include "records/station_files.h"

#include "storage/record_file.h"

namespace vorbano {

namespace {

MemberRecord asMember(const MemberRecord& record) { return record; }

template <std::size_t DateWidth>
MemberRecord asMember(const RunOffMemberRecord<DateWidth>& record) {
    return {record.station, record.Composto, record.Tariffa, record.Ordine, record.person};
}

SubstituteRecord asSubstitute(const SubstituteRecord& record) { return record; }

template <std::size_t DateWidth>
SubstituteRecord asSubstitute(const RunOffSubstituteRecord<DateWidth>& record) {
    return {record.station, record.Sostituito, record.Composto, record.Tariffa, record.Ordine, record.person};
}

template <class Record, class Seen, class See>
Result<std::vector<Seen>> readAll(FileSystem& files, const Election& election, std::string_view name, See&& see) {
    const auto path = election.file(name);
    if (!path) return path.error();
    const auto file = RecordFile<Record>::open(files, *path);
    if (!file) return file.error();
    std::vector<Seen> all;
    if (auto done = file->scan([&](int, const Record& record) { all.push_back(see(record)); }); !done)
        return done.error();
    return all;
}

template <class Record>
Result<std::vector<MemberRecord>> members(FileSystem& files, const Election& election, std::string_view name) {
    return readAll<Record, MemberRecord>(files, election, name, [](const Record& record) { return asMember(record); });
}

template <class Record>
Result<std::vector<SubstituteRecord>> substitutes(FileSystem& files, const Election& election, std::string_view name) {
    return readAll<Record, SubstituteRecord>(files, election, name,
                                             [](const Record& record) { return asSubstitute(record); });
}

}  // namespace

std::string_view membersFile(StationKind kind, Round round) {
    if (kind == StationKind::normal) return round == Round::first ? seggiFile : segSufFile;
    return round == Round::first ? specialeFile : specSufrFile;
}

std::string_view substitutesFile(StationKind kind, Round round) {
    if (kind == StationKind::normal) return round == Round::first ? sosSeggiFile : sosSegSufFile;
    return round == Round::first ? sosSpecFile : sspecSufrFile;
}

Result<std::vector<MemberRecord>> readMembers(FileSystem& files, const Election& election, StationKind kind,
                                              Round round) {
    const std::string_view name = membersFile(kind, round);
    if (round == Round::first) return members<MemberRecord>(files, election, name);
    return kind == StationKind::normal ? members<SegSufRecord>(files, election, name)
                                       : members<SpecSufrRecord>(files, election, name);
}

Result<std::vector<SubstituteRecord>> readSubstitutes(FileSystem& files, const Election& election, StationKind kind,
                                                      Round round) {
    const std::string_view name = substitutesFile(kind, round);
    if (round == Round::first) return substitutes<SubstituteRecord>(files, election, name);
    return kind == StationKind::normal ? substitutes<SosSegSufRecord>(files, election, name)
                                       : substitutes<SspecSufrRecord>(files, election, name);
}

}  // namespace vorbano
