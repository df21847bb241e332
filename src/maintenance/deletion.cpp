#include "maintenance/deletion.h"

#include <string>

#include "records/adjustment_records.h"
#include "records/overtime_records.h"
#include "records/payment_records.h"
#include "records/statement_records.h"
#include "records/station_records.h"
#include "storage/record_file.h"

namespace vorbano {

namespace {

/// The groups in the order in which the search opens their files.
constexpr std::array<std::size_t, deletionGroupCount> searchOrder = {5, 3, 0, 1, 2, 7, 6, 4};

constexpr std::string_view recordFileEnding = ".vbn";

Result<std::string> pathOf(const Election& election, std::string_view name) {
    return name == employeeFileName ? election.employeeFile() : election.file(name);
}

Result<bool> hasRecords(FileSystem& files, const Election& election, const DeletionGroup& group) {
    const auto path = pathOf(election, group.files.front());
    if (!path) return path.error();
    const auto file = RawRecordFile::open(files, *path, group.width);
    if (!file) return file.error();
    const auto count = file->count();
    if (!count) return count.error();
    return *count > 0;
}

/// Removes the files of the election's folder that are `wanted`, whatever happens to one of them. A folder under the
/// name of a file is none of them.
template <class Wanted>
void removeFiles(FileSystem& files, const Election& election, Wanted wanted) {
    const auto folder = election.folder();
    if (!folder) return;
    for (const Entry& entry : files.list(*folder).valueOr({})) {
        const std::string path = *folder + "/" + entry.name;
        if (!entry.isFolder && wanted(path)) files.remove(path).ignore();
    }
}

bool isRecordFile(std::string_view path) {
    return path.size() >= recordFileEnding.size() &&
           sameName(path.substr(path.size() - recordFileEnding.size()), recordFileEnding);
}

}  // namespace

// Deliberate: the second file of the adjustment and the companions of rewrites are in no group, and of the payments
// only Versum.vbn is. They go with the whole election.
const std::array<DeletionGroup, deletionGroupCount> deletionGroups = {{
    {{employeeFileName, meirinFile, duedateFile, quartumFile, pentiumFile}, sizeof(EmployeeRecord)},
    {{congsFile}, sizeof(AdjustmentRecord)},
    {{seggiFile, sosSeggiFile}, sizeof(MemberRecord)},
    {{segSufFile, sosSegSufFile}, sizeof(SegSufRecord)},
    {{specialeFile, sosSpecFile}, sizeof(MemberRecord)},
    {{specSufrFile, sspecSufrFile}, sizeof(SpecSufrRecord)},
    {{versumFile}, sizeof(PaymentRecord)},
    {{rendiFile, divStFile, tprovFile}, sizeof(RendiRecord)},
}};

Result<GroupsInUse> groupsInUse(FileSystem& files, const Election& election) {
    GroupsInUse inUse{};
    for (const std::size_t group : searchOrder) {
        const auto has = hasRecords(files, election, deletionGroups[group]);
        if (!has) return has.error();
        inUse[group] = *has;
    }
    return inUse;
}

void deleteGroup(FileSystem& files, const Election& election, const DeletionGroup& group) {
    for (const std::string_view name : group.files) {
        if (name.empty()) break;
        const auto wanted = pathOf(election, name);
        if (wanted) removeFiles(files, election, [&](std::string_view path) { return sameName(path, *wanted); });
    }
}

void deleteWhole(FileSystem& files, const Election& election) {
    removeFiles(files, election, isRecordFile);
    if (const auto folder = election.folder()) files.removeFolder(*folder).ignore();
}

}  // namespace vorbano
