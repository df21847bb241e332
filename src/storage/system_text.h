#pragma once

// Texts that come from the operating system and go to it. The program's own are UTF-8, whatever the system's narrow
// encoding is.

#include <filesystem>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace vorbano {

[[nodiscard]] std::filesystem::path pathOf(std::string_view utf8);
/// With "/" between the names.
[[nodiscard]] std::string utf8(const std::filesystem::path& path);

/// A variable of the environment; nothing when it is not set or empty.
[[nodiscard]] std::optional<std::string> setting(std::string_view name);

/// The words that the program was called with, its own name left out.
[[nodiscard]] std::vector<std::string> arguments(int argc, char** argv);

}  // namespace vorbano
