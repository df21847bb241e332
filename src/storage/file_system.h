#pragma once

// The only door to the disk. It is handed in, never global. Three implementations stand under one contract suite: the
// disk, a twin in memory for fast tests, and a wrapper that fails or stops at the n-th operation.

#include <cstddef>
#include <cstdint>
#include <memory>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "base/result.h"

namespace vorbano {

/// An open file. Closed by its destructor.
class File {
  public:
    virtual ~File() = default;
    /// Bytes read into `into` from `offset`; fewer than asked, or 0, at the end of the file. What was not read is left
    /// as it was.
    virtual Result<std::size_t> read(std::uint64_t offset, std::span<std::byte> into) = 0;
    /// Writes all of `bytes` at `offset`; a gap before it is filled with zeros. A disk that has no room for all of it
    /// (`diskFull`) keeps the file as it was.
    virtual Result<> write(std::uint64_t offset, std::span<const std::byte> bytes) = 0;
    /// Length in bytes.
    virtual Result<std::uint64_t> size() = 0;
    /// Returns when what was written is safe against a power cut.
    virtual Result<> flush() = 0;
};

/// One entry of a folder, under the name that it has on disk.
struct Entry {
    std::string name;
    bool isFolder = false;
};

/// Files and folders below the installation root. A path is UTF-8, relative to the root, with "/" between names
/// ("Params/Ente.dat"). Names are matched without regard to case, folder by folder, and trailing blanks of a name are
/// dropped; what does not exist is created under the name given. A path that would climb out of the root ("..", an
/// absolute path) or holds an empty name fails with `badName`, without touching the disk.
class FileSystem {
  public:
    virtual ~FileSystem() = default;
    /// Opens for reading and writing; creates the file empty when it is not there. `missingFolder` when its folder is
    /// not there, `refused` when it is a folder or may not be written and read.
    virtual Result<std::unique_ptr<File>> open(std::string_view path) = 0;
    /// Opens for reading only; `notFound` when it is not there (or its folder is not).
    virtual Result<std::unique_ptr<File>> openExisting(std::string_view path) = 0;
    /// Puts `from` in the place of `to` in one step: at no instant is `to` missing. `to` need not exist; it keeps the
    /// spelling that it has on disk. `notFound` when `from` is not there, `refused` when one of them is a folder, or is
    /// open (some systems let it pass, but not the clerk's).
    virtual Result<> replace(std::string_view from, std::string_view to) = 0;
    /// Deletes a file. `notFound` when it is not there, `refused` when it is a folder, or is open as at replace.
    virtual Result<> remove(std::string_view path) = 0;
    /// Entries of a folder in the order of their names; "" is the root. `missingFolder` when it is not there.
    virtual Result<std::vector<Entry>> list(std::string_view folder) = 0;
    /// Makes one folder. An existing folder is no failure. `missingFolder` when its parent is not there.
    virtual Result<> makeFolder(std::string_view path) = 0;
    /// Removes an empty folder. `notFound` when it is not there, `refused` when it is not empty or a file.
    virtual Result<> removeFolder(std::string_view path) = 0;
};

/// The whole content of a small file, or why not.
[[nodiscard]] Result<std::string> readWhole(FileSystem& files, std::string_view path);
/// Writes a small file as a whole: companion beside it, flush, replace.
[[nodiscard]] Result<> writeWhole(FileSystem& files, std::string_view path, std::string_view content);

/// The names of a path, each without trailing blanks; `badName` as told at FileSystem. Shared by all implementations.
[[nodiscard]] Result<std::vector<std::string>> splitPath(std::string_view path);
/// Two file names are the same name: without regard to case, trailing blanks dropped.
[[nodiscard]] bool sameName(std::string_view a, std::string_view b);

}  // namespace vorbano
