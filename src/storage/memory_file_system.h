#pragma once

#include <cstdint>
#include <map>
#include <memory>
#include <optional>

#include "storage/file_system.h"

namespace vorbano {

/// A disk in memory, for fast tests. It keeps apart what was flushed and what was only written, so that
/// `cutPower()` can leave what a power cut may leave. Like the disk of the clerk's machine it refuses to take an open
/// file away; so every test shows that no command relies on it.
class MemoryFileSystem : public FileSystem {
  public:
    MemoryFileSystem();
    ~MemoryFileSystem() override;

    Result<std::unique_ptr<File>> open(std::string_view path) override;
    Result<std::unique_ptr<File>> openExisting(std::string_view path) override;
    Result<> replace(std::string_view from, std::string_view to) override;
    Result<> remove(std::string_view path) override;
    Result<std::vector<Entry>> list(std::string_view folder) override;
    Result<> makeFolder(std::string_view path) override;
    Result<> removeFolder(std::string_view path) override;

    /// Every file goes back to its last flushed content.
    void cutPower();
    /// From here on the file or folder may be read and not written ("" and its like: everything).
    void makeReadOnly(std::string_view path);
    /// From here on the files may grow by `bytes` altogether, and then the disk is full. What a file gives up when it
    /// is removed or replaced can be used again.
    void leaveRoom(std::uint64_t bytes);

  private:
    struct Node;
    /// Bytes by which the files may still grow; none: no end.
    std::shared_ptr<std::optional<std::uint64_t>> room_;
    std::unique_ptr<Node> root_;
    Result<Node*> find(std::string_view path);
    Result<Node*> parentOf(std::string_view path, std::string& name);
};

}  // namespace vorbano
