#include "storage/disk_file_system.h"

#include <algorithm>
#include <tuple>
#include <utility>

#include "storage/codepage.h"
#include "storage/disk_file.h"
#include "storage/system_text.h"

namespace vorbano {

namespace {

namespace fs = std::filesystem;

Error failed(Failure kind, std::string_view path) { return {kind, std::string(path)}; }
Error failed(std::error_code error, std::string_view path) { return failed(failureOf(error), path); }

/// The entries of a folder on disk in the order of their names.
std::vector<Entry> entriesOf(const fs::path& folder, std::error_code& error) {
    std::vector<std::pair<std::string, Entry>> byName;
    for (fs::directory_iterator at(folder, error), end; !error && at != end; at.increment(error)) {
        std::error_code unknown;
        Entry entry{utf8(at->path().filename()), at->is_directory(unknown)};
        std::string key = upperCase(entry.name);
        byName.emplace_back(std::move(key), std::move(entry));
    }
    std::ranges::sort(byName, [](const auto& a, const auto& b) {
        return std::tie(a.first, a.second.name) < std::tie(b.first, b.second.name);
    });
    std::vector<Entry> entries;
    entries.reserve(byName.size());
    for (auto& [key, entry] : byName) entries.push_back(std::move(entry));
    return entries;
}

/// Where a path leads on disk.
struct Place {
    fs::path path;             ///< as it is spelled on disk; what does not exist as it is spelled in the program
    bool exists = false;       ///< there is something
    bool isFolder = false;     ///< and it is a folder
    bool folderThere = false;  ///< the folder that should hold it is there
};

/// Looks a name up in a folder that is there: as it is written, and else without regard to case.
Place placeIn(const fs::path& folder, const std::string& name) {
    Place place{folder / pathOf(name), false, false, true};
    std::error_code unknown;
    if (!fs::exists(fs::symlink_status(place.path, unknown))) {
        const auto entries = entriesOf(folder, unknown);
        const auto found =
            std::ranges::find_if(entries, [&](const Entry& entry) { return sameName(entry.name, name); });
        if (found == entries.end()) return place;
        place.path = folder / pathOf(found->name);
    }
    place.exists = true;
    place.isFolder = fs::is_directory(place.path, unknown);
    return place;
}

Result<Place> locate(const fs::path& root, std::string_view path) {
    const auto names = splitPath(path);
    if (!names) return names.error();
    std::error_code unknown;
    Place place{root, fs::exists(root, unknown), fs::is_directory(root, unknown), true};
    for (const std::string& name : *names) {
        if (!place.isFolder) return Place{};
        place = placeIn(place.path, name);
    }
    return place;
}

/// As `locate`, for operations that make no sense on the root itself.
Result<Place> locateBelow(const fs::path& root, std::string_view path) {
    if (path.empty()) return failed(Failure::badName, path);
    return locate(root, path);
}

/// Absolute and without a separator at the end, so that the folder which holds the root can be named.
fs::path wholePath(const fs::path& root) {
    std::error_code unknown;
    const fs::path whole = fs::absolute(root, unknown).lexically_normal();
    return whole.has_filename() ? whole : whole.parent_path();
}

}  // namespace

DiskFileSystem::DiskFileSystem(const fs::path& root) : root_(wholePath(root)) {}

Result<std::unique_ptr<File>> DiskFileSystem::open(std::string_view path) {
    const auto place = locateBelow(root_, path);
    if (!place) return place.error();
    if (!place->folderThere) return failed(Failure::missingFolder, path);
    return openDiskFile(place->path, place->exists ? OpenMode::readAndWrite : OpenMode::create, path);
}

Result<std::unique_ptr<File>> DiskFileSystem::openExisting(std::string_view path) {
    const auto place = locate(root_, path);
    if (!place) return place.error();
    if (!place->exists) return failed(Failure::notFound, path);
    return openDiskFile(place->path, OpenMode::readOnly, path);
}

Result<> DiskFileSystem::replace(std::string_view from, std::string_view to) {
    const auto target = locateBelow(root_, to);
    if (!target) return target.error();
    const auto source = locateBelow(root_, from);
    if (!source) return source.error();
    if (!target->folderThere) return failed(Failure::missingFolder, to);
    if (!source->exists) return failed(Failure::notFound, from);
    if (source->isFolder || target->isFolder) return failed(Failure::refused, to);
    return replaceDiskFile(source->path, target->path, to);
}

Result<> DiskFileSystem::remove(std::string_view path) {
    const auto place = locateBelow(root_, path);
    if (!place) return place.error();
    if (!place->exists) return failed(Failure::notFound, path);
    if (place->isFolder) return failed(Failure::refused, path);
    std::error_code error;
    fs::remove(place->path, error);
    if (error) return failed(error, path);
    return {};
}

Result<std::vector<Entry>> DiskFileSystem::list(std::string_view folder) {
    const auto place = locate(root_, folder);
    if (!place) return place.error();
    if (!place->isFolder) return failed(Failure::missingFolder, folder);
    std::error_code error;
    auto entries = entriesOf(place->path, error);
    if (error) return failed(error, folder);
    return entries;
}

Result<> DiskFileSystem::makeFolder(std::string_view path) {
    const auto place = locate(root_, path);
    if (!place) return place.error();
    if (!place->folderThere) return failed(Failure::missingFolder, path);
    if (place->exists) return place->isFolder ? Result<>() : failed(Failure::refused, path);
    std::error_code error;
    if (path.empty()) {
        fs::create_directories(root_, error);
    } else {
        fs::create_directory(place->path, error);
    }
    if (error) return failed(error, path);
    return flushFolder(place->path.parent_path(), path);
}

Result<> DiskFileSystem::removeFolder(std::string_view path) {
    const auto place = locateBelow(root_, path);
    if (!place) return place.error();
    if (!place->exists) return failed(Failure::notFound, path);
    if (!place->isFolder) return failed(Failure::refused, path);
    std::error_code error;
    fs::remove(place->path, error);
    if (error) return failed(error, path);
    return {};
}

fs::path installationRoot() {
    if (const auto root = setting("VORBANET_ROOT")) return pathOf(*root);
#ifdef _WIN32
    return pathOf("C:\\Program Files\\Vorbanet");
#else
    // A data folder that is not absolute is to be passed over.
    if (const auto data = setting("XDG_DATA_HOME"); data && pathOf(*data).is_absolute()) {
        return pathOf(*data) / "Vorbanet";
    }
    return pathOf(setting("HOME").value_or("")) / ".local" / "share" / "Vorbanet";
#endif
}

}  // namespace vorbano
