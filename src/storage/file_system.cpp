#include "storage/file_system.h"

#include <algorithm>

#include "storage/codepage.h"

namespace vorbano {

namespace {

/// The longest name that every file system of ours can keep, in bytes.
constexpr std::size_t longestName = 255;

/// An installation can be carried from one system to the other, so a name must be possible on all of them: no
/// character that Windows refuses, and no point at the end, which Windows drops ("." and ".." end in one too).
bool isPossible(std::string_view name) {
    constexpr std::string_view refused = "\\:*?\"<>|/";
    if (name.empty() || name.size() > longestName || name.back() == '.') return false;
    return std::ranges::none_of(name, [&](char character) {
        const auto code = static_cast<unsigned char>(character);
        return code < 0x20 || code == 0x7F || refused.find(character) != std::string_view::npos;
    });
}

std::string_view withoutTrailingBlanks(std::string_view name) {
    while (!name.empty() && name.back() == ' ') name.remove_suffix(1);
    return name;
}

Result<> writeCompanion(FileSystem& files, std::string_view companion, std::string_view content) {
    if (auto old = files.remove(companion); !old && old.error().kind != Failure::notFound) return old;
    auto file = files.open(companion);
    if (!file) return file.error();
    if (auto written = (*file)->write(0, std::as_bytes(std::span(content))); !written) return written;
    return (*file)->flush();
}

}  // namespace

Result<std::vector<std::string>> splitPath(std::string_view path) {
    std::vector<std::string> names;
    if (path.empty()) return names;
    for (std::string_view rest = path;;) {
        const std::size_t slash = rest.find('/');
        const std::string_view name = withoutTrailingBlanks(rest.substr(0, slash));
        if (!isPossible(name)) return Error{Failure::badName, std::string(path)};
        names.emplace_back(name);
        if (slash == std::string_view::npos) return names;
        rest.remove_prefix(slash + 1);
    }
}

bool sameName(std::string_view a, std::string_view b) {
    return upperCase(withoutTrailingBlanks(a)) == upperCase(withoutTrailingBlanks(b));
}

Result<std::string> readWhole(FileSystem& files, std::string_view path) {
    auto file = files.openExisting(path);
    if (!file) return file.error();
    const auto size = (*file)->size();
    if (!size) return size.error();
    std::string content(static_cast<std::size_t>(*size), '\0');
    const auto got = (*file)->read(0, std::as_writable_bytes(std::span(content)));
    if (!got) return got.error();
    content.resize(*got);
    return content;
}

Result<> writeWhole(FileSystem& files, std::string_view path, std::string_view content) {
    const auto names = splitPath(path);
    if (!names) return names.error();
    if (names->empty()) return Error{Failure::badName, std::string(path)};
    const std::string companion = std::string(withoutTrailingBlanks(path)) + ".tmp";
    auto done = writeCompanion(files, companion, content);
    if (done) done = files.replace(companion, path);
    if (!done) files.remove(companion).ignore();
    return done;
}

}  // namespace vorbano
