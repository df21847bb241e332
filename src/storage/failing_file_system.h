#pragma once

#include "storage/file_system.h"

namespace vorbano {

/// Forwards to another file system, and from the n-th operation that touches the disk on either fails that one
/// operation (`failOnce`) or fails it and everything after it (`stopAt`), as when the program is killed there. Opening,
/// reading, writing, sizing, flushing, replacing, removing, listing and making folders all count, each once.
class FailingFileSystem : public FileSystem {
  public:
    explicit FailingFileSystem(FileSystem& real) : real_(real) {}

    /// Counting starts anew; operation `n` (from 1) is the one. 0: none.
    void failOnce(int n);
    void stopAt(int n);
    /// Operations seen since the last call of either.
    [[nodiscard]] int operations() const { return seen_; }

    Result<std::unique_ptr<File>> open(std::string_view path) override;
    Result<std::unique_ptr<File>> openExisting(std::string_view path) override;
    Result<> replace(std::string_view from, std::string_view to) override;
    Result<> remove(std::string_view path) override;
    Result<std::vector<Entry>> list(std::string_view folder) override;
    Result<> makeFolder(std::string_view path) override;
    Result<> removeFolder(std::string_view path) override;

    /// Counts one operation; true when it must fail.
    bool strikes();

  private:
    FileSystem& real_;
    int at_ = 0;
    int seen_ = 0;
    bool stays_ = false;
};

}  // namespace vorbano
