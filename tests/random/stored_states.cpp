#include "random/stored_states.h"

#include <algorithm>
#include <fstream>
#include <iterator>
#include <stdexcept>

namespace vorbano::test {

namespace {

namespace fs = std::filesystem;

std::string contentOf(const fs::path& path) {
    std::ifstream in(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(in), {}};
}

void readFolder(const fs::path& folder, StoredState& state) {
    if (!fs::is_directory(folder)) throw std::runtime_error("no folder " + folder.string());
    for (const auto& entry : fs::recursive_directory_iterator(folder)) {
        if (!entry.is_regular_file()) continue;
        state.files.emplace_back(entry.path().lexically_relative(folder).generic_string(), contentOf(entry.path()));
    }
}

}  // namespace

StoredState readState(std::string name, std::vector<std::string> folders, const fs::path& scenarios) {
    StoredState state{std::move(name), std::move(folders), {}};
    for (const std::string& folder : state.folders) readFolder(scenarios / folder, state);
    return state;
}

std::vector<StoredState> storedStates(const fs::path& scenarios) {
    using Folders = std::vector<std::string>;
    const std::vector<std::pair<std::string, Folders>> kinds = {
        {"nothing", {}},
        {"parameters", {"autorizzazione", "seggi"}},
        {"authorised", {"autorizzazione", "date-periodi", "cancella-dipendente"}},
        {"liquidated", {"autorizzazione", "determina", "liquidazione", "liquidazione-rendiconto"}},
        {"stations", {"seggi", "modifica-speciali", "stampe-seggi", "modifica-seggi"}},
        {"accounted", {"stampe-rendiconti", "rendiconto", "europee-2024-rendiconto"}},
        {"paid", {"europee-2024-versamenti", "contributi", "versamenti"}},
        {"five periods", {"autorizzazione", "stampe-2013", "liquidazione-2013", "combinata-2012", "contributi"}},
    };
    std::vector<StoredState> states;
    states.reserve(kinds.size());
    for (const auto& [name, folders] : kinds) states.push_back(readState(name, folders, scenarios));
    return states;
}

void layFile(FileSystem& files, std::string_view path, std::string_view content) {
    for (std::size_t slash = path.find('/'); slash != std::string_view::npos; slash = path.find('/', slash + 1)) {
        if (!files.makeFolder(path.substr(0, slash))) throw std::runtime_error("no folder for " + std::string(path));
    }
    if (!writeWhole(files, path, content)) throw std::runtime_error("cannot lay " + std::string(path));
}

void lay(const StoredState& state, FileSystem& files) {
    for (const auto& [path, content] : state.files) layFile(files, path, content);
}

}  // namespace vorbano::test
