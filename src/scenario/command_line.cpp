#include "scenario/command_line.h"

namespace vorbano {

std::optional<Orders> readOrders(std::span<const std::string> words) {
    Orders orders;
    bool onlyFiles = false;
    for (std::size_t at = 0; at < words.size(); ++at) {
        const std::string& word = words[at];
        if (onlyFiles || !word.starts_with('-')) {
            if (word.empty()) return std::nullopt;
            orders.files.push_back(word);
        } else if (word == "--window") {
            orders.window = true;
        } else if (word == "--watch") {
            orders.watch = orders.window = true;
        } else if (word == "--help") {
            orders.help = true;
        } else if (word == "--") {
            onlyFiles = true;
        } else if (word == "--root" || word == "--out") {
            if (++at == words.size() || words[at].empty()) return std::nullopt;
            (word == "--root" ? orders.root : orders.out) = words[at];
        } else {
            return std::nullopt;
        }
    }
    if (orders.files.empty() && !orders.help) return std::nullopt;
    return orders;
}

std::string_view usage() {
    return "vorbano-scenario [--window] [--watch] [--root DIR] [--out DIR] FILE...\n"
           "Plays operator scenarios: on the bare forms, or with --window on the real windows.\n"
           "  --window    real windows with mouse and keyboard; unseen when there is no display\n"
           "  --watch     the same slowly, to look on; needs a display\n"
           "  --root DIR  the installation to play in; what is there stays. Without it each FILE has a fresh one\n"
           "  --out DIR   where pictures and documents go\n"
           "Exits 0 when every FILE passed, 1 when one failed, 2 when called otherwise.\n";
}

}  // namespace vorbano
