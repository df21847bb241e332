#pragma once

// What the operating system does for DiskFileSystem and the standard library does not: flushing to the disk and
// replacing a file in one step. Each system has its own source: disk_file_posix.cpp, disk_file_windows.cpp.

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

/// A file on disk. Whole reads and writes are made of the pieces that the system moves at a time.
class DiskFile : public File {
  public:
    Result<std::size_t> read(std::uint64_t offset, std::span<std::byte> into) final;
    /// A refused write leaves the file as it was.
    Result<> write(std::uint64_t offset, std::span<const std::byte> bytes) final;

  protected:
    /// At least one byte, or 0 at the end of the file.
    virtual Result<std::size_t> readSome(std::uint64_t offset, std::span<std::byte> into) = 0;
    virtual Result<std::size_t> writeSome(std::uint64_t offset, std::span<const std::byte> bytes) = 0;
    virtual Result<> cutAt(std::uint64_t length) = 0;

  private:
    Result<> put(std::uint64_t offset, std::span<const std::byte> bytes);
};

/// Why an operation of the system failed. `notFound` where the name or a folder before it is not there.
[[nodiscard]] Failure failureOf(std::error_code error);

/// `path` is the file on disk, `subject` its name in errors.
[[nodiscard]] Result<std::unique_ptr<File>> openDiskFile(const std::filesystem::path& path, OpenMode mode,
                                                         std::string_view subject);
/// In one step; returns when the names are safe against a power cut.
[[nodiscard]] Result<> replaceDiskFile(const std::filesystem::path& from, const std::filesystem::path& to,
                                       std::string_view subject);
/// Makes the names in a folder safe against a power cut, where the system does not see to it by itself.
[[nodiscard]] Result<> flushFolder(const std::filesystem::path& folder, std::string_view subject);

}  // namespace vorbano
