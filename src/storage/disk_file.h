#pragma once

// What the operating system does for DiskFileSystem and the standard library does not: flushing to the disk and
// replacing a file in one step. Another system gets another disk_file.cpp.

#include <cstdint>
#include <filesystem>
#include <string_view>
#include <system_error>

#include "storage/file_system.h"

namespace vorbano {

enum class OpenMode : std::uint8_t {
    create,        ///< reading and writing a file that is not there yet
    readAndWrite,  ///< an existing one
    readOnly,
};

/// Why an operation of the system failed. `notFound` where the name or a folder before it is not there.
[[nodiscard]] Failure failureOf(std::error_code error);

/// `path` is the file on disk, `subject` its name in errors.
[[nodiscard]] Result<std::unique_ptr<File>> openDiskFile(const std::filesystem::path& path, OpenMode mode,
                                                         std::string_view subject);
/// In one step; returns when the names are safe against a power cut.
[[nodiscard]] Result<> replaceDiskFile(const std::filesystem::path& from, const std::filesystem::path& to,
                                       std::string_view subject);
/// Makes the names in a folder safe against a power cut.
[[nodiscard]] Result<> flushFolder(const std::filesystem::path& folder, std::string_view subject);

}  // namespace vorbano
