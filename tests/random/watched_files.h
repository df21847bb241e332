#pragma once

#include <set>
#include <string>

#include "storage/file_system.h"

namespace vorbano::test {

/// Forwards to another file system and notes which files were opened, replaced or removed.
class WatchedFiles : public FileSystem {
  public:
    explicit WatchedFiles(FileSystem& real) : real_(real) {}

    /// Since the last `forget`.
    [[nodiscard]] const std::set<std::string>& touched() const { return touched_; }
    void forget() { touched_.clear(); }

    Result<std::unique_ptr<File>> open(std::string_view path) override { return real_.open(noted(path)); }
    Result<std::unique_ptr<File>> openExisting(std::string_view path) override {
        return real_.openExisting(noted(path));
    }
    Result<> replace(std::string_view from, std::string_view to) override {
        return real_.replace(noted(from), noted(to));
    }
    Result<> remove(std::string_view path) override { return real_.remove(noted(path)); }
    Result<std::vector<Entry>> list(std::string_view folder) override { return real_.list(folder); }
    Result<> makeFolder(std::string_view path) override { return real_.makeFolder(path); }
    Result<> removeFolder(std::string_view path) override { return real_.removeFolder(path); }

  private:
    std::string_view noted(std::string_view path) {
        touched_.emplace(path);
        return path;
    }
    FileSystem& real_;
    std::set<std::string> touched_;
};

}  // namespace vorbano::test
