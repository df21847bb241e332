#pragma once

// Files on disk, past the program's own door to it.

#include <filesystem>
#include <fstream>
#include <string>
#include <string_view>

namespace vorbano::test {

inline void writeByHand(const std::filesystem::path& path, std::string_view content) {
    std::filesystem::create_directories(path.parent_path());
    std::ofstream(path, std::ios::binary) << content;
}

inline std::string readByHand(const std::filesystem::path& path) {
    std::string content(std::filesystem::file_size(path), '\0');
    std::ifstream(path, std::ios::binary).read(content.data(), static_cast<std::streamsize>(content.size()));
    return content;
}

}  // namespace vorbano::test
