#include "overtime/employee_removal.h"

#include <cstring>

#include "overtime/late_records.h"
#include "overtime/meirin_periods.h"

namespace vorbano {

namespace {

/// A companion of a removal and the file whose place it takes.
struct Companion {
    std::string path;
    std::string file;
};

/// The companions other than Reverse.vbn, in the order of their replacement.
std::vector<Companion> followersOf(const OvertimePaths& paths) {
    std::vector<Companion> followers = {{paths.revMeirin, paths.meirin}};
    for (std::size_t at = 0; at < latePeriods; ++at) followers.push_back({paths.lateReverse[at], paths.late[at]});
    return followers;
}

Result<bool> isThere(FileSystem& files, const std::string& path) {
    const auto file = files.openExisting(path);
    if (file) return true;
    if (file.error().kind == Failure::notFound) return false;
    return file.error();
}

Result<> removeIfThere(FileSystem& files, const std::string& path) {
    auto removed = files.remove(path);
    if (!removed && removed.error().kind != Failure::notFound) return removed;
    return {};
}

/// Reverse.vbn goes last: as long as it is there, no file of the election has changed.
Result<> discard(FileSystem& files, const OvertimePaths& paths) {
    for (const Companion& each : followersOf(paths)) {
        if (auto removed = removeIfThere(files, each.path); !removed) return removed;
    }
    return removeIfThere(files, paths.reverse);
}

Result<Settled> finish(FileSystem& files, const OvertimePaths& paths) {
    Settled settled = Settled::nothing;
    for (const Companion& each : followersOf(paths)) {
        const auto there = isThere(files, each.path);
        if (!there) return there.error();
        if (!*there) continue;
        if (auto replaced = files.replace(each.path, each.file); !replaced) return replaced.error();
        settled = Settled::finished;
    }
    return settled;
}

Result<Settled> settle(FileSystem& files, const OvertimePaths& paths) {
    const auto begun = isThere(files, paths.reverse);
    if (!begun) return begun.error();
    if (!*begun) return finish(files, paths);
    if (auto discarded = discard(files, paths); !discarded) return discarded.error();
    return Settled::discarded;
}

Result<int> employeesIn(FileSystem& files, const std::string& path) {
    const auto file = RecordFile<EmployeeRecord>::open(files, path);
    if (!file) return file.error();
    return file->count();
}

/// What a copy holds of the smaller staff. `number` is the one that the record had.
void renumber(Pools& pools, int number, const Removal& removal) {
    put(pools.SonoDip, number < removal.number ? number : number - 1);
    put(pools.NumDip, removal.employeesLeft);
    pools.MonteOre = static_cast<std::int16_t>(monteOreAfterRemoval(removal.employeesLeft, pools.MonteOre));
    put(pools.MoGlob, std::int64_t{removal.employeesLeft} * pools.MonteOre);
    put(pools.Globo, sumOfPools(removal.figures));
}

template <class Record>
Result<> copyWithout(FileSystem& files, const std::string& path, const std::string& companion, const Removal& removal) {
    const auto records = readAll<Record>(files, path);
    if (!records) return records.error();
    std::vector<Record> kept;
    for (std::size_t at = 0; at < records->size(); ++at) {
        const int number = static_cast<int>(at) + 1;
        if (number == removal.number) continue;
        kept.push_back((*records)[at]);
        renumber(kept.back().pools, number, removal);
    }
    return fillCompanion(files, companion, kept);
}

/// `SalvaMeirin`.
Result<> copyMeirin(FileSystem& files, const Election& election, const OvertimePaths& paths, const Removal& removal) {
    auto record = readMeirin(files, election);
    if (!record) return record.error();
    setMeirinFigures(*record, removal.figures);
    RevMeirinRecord kept;
    std::memcpy(&kept, &*record, sizeof(kept));
    return fillCompanion(files, paths.revMeirin, std::vector<RevMeirinRecord>{kept});
}

/// Reverse.vbn comes first, since the others are told from an unfinished replacement by its being there.
Result<> fillCompanions(FileSystem& files, const Election& election, const OvertimePaths& paths, const LateInUse& late,
                        const Removal& removal) {
    if (auto copied = copyWithout<EmployeeRecord>(files, paths.employees, paths.reverse, removal); !copied)
        return copied;
    for (std::size_t at = 0; at < latePeriods; ++at) {
        if (!late[at]) continue;
        auto copied = copyWithout<LatePeriodRecord>(files, paths.late[at], paths.lateReverse[at], removal);
        if (!copied) return copied;
    }
    return copyMeirin(files, election, paths, removal);
}

/// `Autoreverse`: from the first replacement on the removal can only go forward.
Result<> Autoreverse(FileSystem& files, const OvertimePaths& paths) {
    if (auto replaced = files.replace(paths.reverse, paths.employees); !replaced) return replaced;
    if (auto finished = finish(files, paths); !finished) return finished.error();
    return {};
}

}  // namespace

Result<> removeEmployee(FileSystem& files, const Election& election, const LateInUse& late, const Removal& removal) {
    const auto paths = overtimePaths(election);
    if (!paths) return paths.error();
    const auto settled = settle(files, *paths);
    if (!settled) return settled.error();
    if (*settled == Settled::finished) return {};
    const auto count = employeesIn(files, paths->employees);
    if (!count) return count.error();
    if (removal.recordsBefore > 0 && *count == removal.recordsBefore - 1) return {};
    if (removal.number < 1 || removal.number > *count) return Error{Failure::notFound, paths->employees};
    if (auto filled = fillCompanions(files, election, *paths, late, removal); !filled) return filled;
    return Autoreverse(files, *paths);
}

Result<Settled> settleRemoval(FileSystem& files, const Election& election) {
    const auto paths = overtimePaths(election);
    if (!paths) return paths.error();
    return settle(files, *paths);
}

Result<> rewriteEmployees(FileSystem& files, const Election& election,
                          const std::function<bool(int, EmployeeRecord&)>& change) {
    const auto paths = overtimePaths(election);
    if (!paths) return paths.error();
    if (auto settled = settle(files, *paths); !settled) return settled.error();
    return rewrite<EmployeeRecord>(files, paths->employees, paths->reverse, change);
}

}  // namespace vorbano
