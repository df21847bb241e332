#pragma once

// What is removed of an election, group by group or as a whole. Nothing comes back: there is no archive.

#include <array>
#include <cstddef>
#include <string_view>

#include "base/result.h"
#include "storage/election.h"
#include "storage/file_system.h"

namespace vorbano {

/// Stands for the employee record file, which bears the date of its election.
inline constexpr std::string_view employeeFileName = "<data>.vbn";

/// Files that go together. The first one tells whether the election has any of the group.
struct DeletionGroup {
    std::array<std::string_view, 5> files;  ///< in the order in which they are removed; the places left over are empty
    std::size_t width;                      ///< of a record of the first file, in bytes
};

inline constexpr std::size_t deletionGroupCount = 8;
/// In the order of removal, which is that of the boxes `Check2` to `Check9`.
extern const std::array<DeletionGroup, deletionGroupCount> deletionGroups;

using GroupsInUse = std::array<bool, deletionGroupCount>;
/// Which groups have a record. The first files that are not there are created empty, as by every opening. None stays
/// open. `missingFolder` when the election has no folder, `badName` when it can have none.
[[nodiscard]] Result<GroupsInUse> groupsInUse(FileSystem& files, const Election& election);

/// Both go on whatever happens: a file that is missing or cannot be removed does not keep the next one.
void deleteGroup(FileSystem& files, const Election& election, const DeletionGroup& group);
/// Every "*.vbn" of the folder, whatever group it is of, and the folder itself, which stays when anything else is in
/// it. The folder of the type always stays.
void deleteWhole(FileSystem& files, const Election& election);

}  // namespace vorbano
