#pragma once

#include <functional>
#include <string>

#include "storage/file_system.h"

namespace vorbano {

/// What the disk did not take.
struct Unwritten {
    Error error;  ///< `diskFull`, `refused` or `device`, and the name below the root
    bool isFolder = false;
};

/// Forwards to another file system and tells of every file and folder that could not be written, made, replaced or
/// removed because the disk is full, write-protected or broken, whatever the caller makes of the result. What is only
/// not there, or not empty, is no such failure, and neither is one of reading.
class NoticingFileSystem : public FileSystem {
  public:
    using Notice = std::function<void(const Unwritten&)>;

    NoticingFileSystem(FileSystem& real, Notice notice) : real_(real), notice_(std::move(notice)) {}

    Result<std::unique_ptr<File>> open(std::string_view path) override;
    Result<std::unique_ptr<File>> openExisting(std::string_view path) override;
    Result<> replace(std::string_view from, std::string_view to) override;
    Result<> remove(std::string_view path) override;
    Result<std::vector<Entry>> list(std::string_view folder) override;
    Result<> makeFolder(std::string_view path) override;
    Result<> removeFolder(std::string_view path) override;

  private:
    FileSystem& real_;
    Notice notice_;
};

}  // namespace vorbano
