#pragma once

#include <string>
#include <string_view>

namespace vorbano::test {

/// The election whose files are laid out and read in this folder.
inline constexpr std::string_view electionFolder = "Elezioni/Europee/09-06-24/";

[[nodiscard]] inline std::string pathOf(std::string_view file) {
    return std::string(electionFolder) + std::string(file);
}

}  // namespace vorbano::test
