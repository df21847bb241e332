#pragma once

#include <filesystem>
#include <string>

#include "scenario/command_line.h"

namespace vorbano {

/// Plays one file on the whole program, over the installation that the orders name or a fresh one. "" when every line
/// holds, else what is to be told of it. There must be a QApplication.
[[nodiscard]] std::string playFile(const std::string& file, const Orders& orders, const std::filesystem::path& out);

/// A folder that is gone when this object is.
class FreshFolder {
  public:
    FreshFolder();
    ~FreshFolder();
    FreshFolder(const FreshFolder&) = delete;
    FreshFolder& operator=(const FreshFolder&) = delete;
    [[nodiscard]] const std::filesystem::path& path() const { return path_; }

  private:
    std::filesystem::path path_;
};

}  // namespace vorbano
