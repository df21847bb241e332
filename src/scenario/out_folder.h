#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <string_view>

#include "storage/file_system.h"

namespace vorbano {

/// The bytes of a file of this machine; nothing when it is none or cannot be read.
[[nodiscard]] std::optional<std::string> contentOfFile(const std::filesystem::path& file);

/// Where a file of that name goes below `out`; its folder is made. Nothing when the name would leave `out`.
[[nodiscard]] std::optional<std::filesystem::path> outFile(const std::string& name, const std::filesystem::path& out);

/// Lays a folder of this machine over the files of an installation, folder by folder, replacing what is there. What
/// went wrong, in words, or "".
[[nodiscard]] std::string layOver(const std::filesystem::path& folder, FileSystem& files);

}  // namespace vorbano
