#pragma once

#include <functional>
#include <string>
#include <utility>

#include "storage/file_system.h"

namespace vorbano {

/// What the disk did not take.
struct Unwritten {
    Error error;  ///< `diskFull`, `refused` or `device`, and the name below the root
    bool isFolder = false;
    bool isOpening = false;  ///< nothing was to be written yet
};

/// Forwards to another file system and tells of every file and folder that could not be written, made or replaced
/// because the disk is full, write-protected or broken, whatever the caller makes of the result. What is only not there
/// is no such failure, and neither is one of reading. Of what could not be removed nothing is told, deliberately: a
/// deletion passes over what stays, and reports no partial result. Tells as well of each file that was written,
/// replaced or removed, when asked to.
class NoticingFileSystem : public FileSystem {
  public:
    using Notice = std::function<void(const Unwritten&)>;

    NoticingFileSystem(FileSystem& real, Notice notice, std::function<void()> changed = {})
        : real_(real), notices_{std::move(notice), std::move(changed)} {}

    Result<std::unique_ptr<File>> open(std::string_view path) override;
    Result<std::unique_ptr<File>> openExisting(std::string_view path) override;
    Result<> replace(std::string_view from, std::string_view to) override;
    Result<> remove(std::string_view path) override;
    Result<std::vector<Entry>> list(std::string_view folder) override;
    Result<> makeFolder(std::string_view path) override;
    Result<> removeFolder(std::string_view path) override;

  private:
    friend class NoticingFile;
    struct Notices {
        Notice unwritten;
        std::function<void()> changed;
        /// Passes a result on.
        [[nodiscard]] Result<> of(Result<> result, bool isFolder = false) const;
    };

    FileSystem& real_;
    Notices notices_;
};

}  // namespace vorbano
