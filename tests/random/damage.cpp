#include "random/damage.h"

#include <stdexcept>
#include <utility>

#include "random/chance.h"

namespace vorbano::test {

namespace {

std::string noise(std::size_t size) {
    Chance chance(size);
    std::string bytes(size, '\0');
    for (char& byte : bytes) byte = static_cast<char>(static_cast<unsigned char>(chance.below(256)));
    return bytes;
}

std::string hurtContent(std::string content, Damage damage) {
    switch (damage) {
        case Damage::noise:
            return noise(content.size());
        case Damage::oneByteShort:
            if (!content.empty()) content.pop_back();
            return content;
        case Damage::oneByteLong:
            return content + 'X';
        case Damage::empty:
        case Damage::folder:
            return {};
    }
    return content;
}

/// The content of a file of the states above it.
std::string contentOf(const StoredState& state, const std::string& path) {
    for (auto at = state.files.rbegin(); at != state.files.rend(); ++at) {
        if (at->first == path) return at->second;
    }
    throw std::runtime_error("no file " + path);
}

}  // namespace

std::string_view nameOf(Damage damage) {
    constexpr std::array<std::string_view, 5> names = {"noise", "oneByteShort", "oneByteLong", "empty", "folder"};
    return names[static_cast<std::size_t>(damage)];
}

void hurt(FileSystem& files, const std::string& path, Damage damage) {
    auto content = readWhole(files, path);
    if (!content) throw std::runtime_error("no file " + path);
    const bool removed = files.remove(path).ok();
    const bool done = damage == Damage::folder ? files.makeFolder(path).ok()
                                               : writeWhole(files, path, hurtContent(*content, damage)).ok();
    if (!removed || !done) throw std::runtime_error("cannot hurt " + path);
}

StoredState wholeInstallation(const std::filesystem::path& scenarios) {
    StoredState state = readState("whole",
                                  {"seggi", "autorizzazione", "europee-2024-rendiconto", "stampe-seggi",
                                   "stampe-rendiconti", "combinata-2012", "contributi"},
                                  scenarios);
    const std::string ours = "Elezioni/" + std::string(wholeType) + "/" + std::string(wholeDate) + "/";
    const std::string other = "Elezioni/" + std::string(wholeType) + "/09-06-24/";
    for (const char* runOff : {"SegSuf.vbn", "SosSegSuf.vbn", "SpecSufr.vbn", "SspecSufr.vbn", "SosSpec.vbn"}) {
        state.files.emplace_back(ours + runOff, contentOf(state, other + runOff));
    }
    state.files.emplace_back(ours + "Pentium.vbn", contentOf(state, ours + "Quartum.vbn"));
    state.files.emplace_back(ours + "Versumc.vbn", contentOf(state, ours + "Versum.vbn"));
    state.files.emplace_back(ours + "Meirinc.vbn", std::string(40, '\0'));
    state.files.emplace_back(ours + "Congs.vbn", std::string(145, '\0'));
    for (const char* table : {"NewPmDip.dat", "OldPmDip.dat"}) {
        state.files.emplace_back("Params/" + std::string(table), contentOf(state, "Params/PmDip.dat"));
    }
    std::erase_if(state.files, [&](const auto& file) {
        const std::string& path = file.first;
        return !path.starts_with("Params/") && !path.starts_with(ours) &&
               !path.starts_with("Elezioni/Europee/09-06-24/");
    });
    state.files.emplace_back("Params/PmDipc.dat", std::string(49 * 32, ' '));
    state.files.emplace_back("Params/Comuni.dat", contentOf(state, "Params/Ente.dat"));
    return state;
}

}  // namespace vorbano::test
