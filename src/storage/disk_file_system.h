#pragma once

#include <filesystem>

#include "storage/file_system.h"

namespace vorbano {

/// The disk, below `root`. The root itself is made by `makeFolder("")`.
class DiskFileSystem : public FileSystem {
  public:
    explicit DiskFileSystem(const std::filesystem::path& root);

    Result<std::unique_ptr<File>> open(std::string_view path) override;
    Result<std::unique_ptr<File>> openExisting(std::string_view path) override;
    Result<> replace(std::string_view from, std::string_view to) override;
    Result<> remove(std::string_view path) override;
    Result<std::vector<Entry>> list(std::string_view folder) override;
    Result<> makeFolder(std::string_view path) override;
    Result<> removeFolder(std::string_view path) override;

  private:
    std::filesystem::path root_;
};

/// Where the installation lies: `VORBANET_ROOT` when set, else "C:\Program Files\Vorbanet" on Windows and "Vorbanet" in
/// the user's data folder elsewhere.
[[nodiscard]] std::filesystem::path installationRoot();

}  // namespace vorbano
