#include "scenario/out_folder.h"

#include <algorithm>
#include <cstdint>
#include <fstream>
#include <system_error>
#include <vector>

#include "scenario/looks.h"
#include "storage/system_text.h"

namespace vorbano {

namespace {

namespace fs = std::filesystem;

std::string layFileOver(const fs::path& from, const std::string& to, FileSystem& files) {
    const auto content = contentOfFile(from);
    if (!content) return "a file that cannot be read: " + utf8(from);
    const auto written = writeWhole(files, to, *content);
    return written ? std::string() : inWords(written.error());
}

}  // namespace

std::optional<std::string> contentOfFile(const fs::path& file) {
    std::error_code trouble;
    if (!fs::is_regular_file(file, trouble)) return std::nullopt;
    const auto size = fs::file_size(file, trouble);
    std::ifstream source(file, std::ios::binary);
    if (trouble || !source) return std::nullopt;
    std::string content(size, '\0');
    source.read(content.data(), static_cast<std::streamsize>(size));
    if (static_cast<std::uintmax_t>(source.gcount()) != size) return std::nullopt;
    return content;
}

std::optional<fs::path> outFile(const std::string& name, const fs::path& out) {
    // A backslash is no separator everywhere, but a scenario must mean the same everywhere.
    const auto below = splitPath(name);
    if (!below || name.find('\\') != std::string::npos || name.find(':') != std::string::npos) return std::nullopt;
    fs::path path = out;
    for (const std::string& one : *below) path /= pathOf(one);
    std::error_code trouble;
    fs::create_directories(path.parent_path(), trouble);
    return path;
}

std::string layOver(const fs::path& folder, FileSystem& files) {
    std::error_code trouble;
    std::vector<fs::path> found;
    for (fs::recursive_directory_iterator at(folder, trouble), end; !trouble && at != end; at.increment(trouble)) {
        found.push_back(at->path());
    }
    if (trouble) return "a folder that cannot be read: " + utf8(folder);
    // In the order of their names, so that a folder comes before what is in it and the result is the same everywhere.
    std::sort(found.begin(), found.end());
    for (const fs::path& one : found) {
        const std::string to = utf8(one.lexically_relative(folder));
        if (fs::is_directory(one, trouble)) {
            if (const auto made = files.makeFolder(to); !made) return inWords(made.error());
        } else if (std::string what = layFileOver(one, to, files); !what.empty()) {
            return what;
        }
    }
    return {};
}

}  // namespace vorbano
