#pragma once

#include <filesystem>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "storage/file_system.h"

namespace vorbano::test {

/// What an installation holds when the operator comes: record files as the scenarios lay them.
struct StoredState {
    std::string name;
    std::vector<std::string> folders;                        ///< of scenarios/, laid one over the other
    std::vector<std::pair<std::string, std::string>> files;  ///< path below the root, content
};

/// From nothing at all to an election that is accounted for and paid; read from the scenarios' folder.
[[nodiscard]] std::vector<StoredState> storedStates(const std::filesystem::path& scenarios);
[[nodiscard]] StoredState readState(std::string name, std::vector<std::string> folders,
                                    const std::filesystem::path& scenarios);
/// Makes the folders and writes the files.
void lay(const StoredState& state, FileSystem& files);
/// Writes one file; its folders are made.
void layFile(FileSystem& files, std::string_view path, std::string_view content);

}  // namespace vorbano::test
