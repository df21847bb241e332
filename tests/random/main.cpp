// The operator by chance: plays any gesture on any screen of the whole program, over stored states of every kind.
//
//   random_operator [--seed N] [--gestures M] [--sitting G] [--out FILE]
//   random_operator --kept FILE          a kept list of lines "seed gestures"
//
// The same seed plays the same gestures. When something that must hold does not, or the program falls, it tells the
// seed and the last gestures, and writes the whole sitting as a scenario to FILE (random-operator.scenario).

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <optional>
#include <sstream>
#include <string>
#include <string_view>

#include "random/last_words.h"
#include "random/session.h"
#include "storage/codepage.h"

namespace vorbano::test {
namespace {

struct Orders {
    std::uint64_t seed = 1;
    std::int64_t gestures = 10000;
    int sitting = 400;  ///< gestures before the program is started anew
    std::string out = "random-operator.scenario";
    std::string kept;
};

std::optional<Orders> ordersFrom(int argc, char** argv) {
    Orders orders;
    for (int at = 1; at < argc; at += 2) {
        const std::string_view name = argv[at];
        if (at + 1 == argc) return std::nullopt;
        const std::string value = argv[at + 1];
        if (name == "--seed") {
            orders.seed = std::stoull(value);
        } else if (name == "--gestures") {
            orders.gestures = std::stoll(value);
        } else if (name == "--sitting") {
            orders.sitting = std::stoi(value);
        } else if (name == "--out") {
            orders.out = value;
        } else if (name == "--kept") {
            orders.kept = value;
        } else {
            return std::nullopt;
        }
    }
    return orders;
}

std::set<std::string> deliveredLayouts() {
    std::set<std::string> names;
    for (const auto& entry : std::filesystem::directory_iterator(VORBANO_SOURCE_DIR "/installation/Stampe")) {
        names.insert(upperCase(entry.path().filename().string()));
    }
    return names;
}

/// False when something did not hold; it is told.
bool play(const Orders& orders, const std::vector<StoredState>& states, const std::set<std::string>& delivered,
          Met& met) {
    const std::int64_t until = met.gestures + orders.gestures;
    for (std::uint64_t sitting = 0; met.gestures < until; ++sitting) {
        const auto gestures = static_cast<int>(std::min<std::int64_t>(orders.sitting, until - met.gestures));
        Session session(orders.seed * 1'000'003U + sitting, states[sitting % states.size()], delivered, gestures, met);
        const LastWords lastWords(orders.seed, sitting, session.log(), orders.out);
        try {
            session.play();
        } catch (const Trouble& trouble) {
            lastWords.say(trouble.what());
            return false;
        }
    }
    return true;
}

void tellMet(const Met& met) {
    std::cout << met.gestures << " gestures, " << met.sessions << " sittings, " << met.boxes << " boxes ("
              << met.messages.size() << " different), " << met.documents << " documents (" << met.layouts.size()
              << " layouts)\n";
    for (const auto& [screen, gestures] : met.screens) std::cout << "  " << screen << " " << gestures << "\n";
}

/// The orders themselves, or one for each line of the kept list; none when there is no such list.
std::vector<Orders> seedsOf(const Orders& orders) {
    if (orders.kept.empty()) return {orders};
    std::vector<Orders> all;
    std::ifstream list(orders.kept);
    for (std::string line; std::getline(list, line);) {
        Orders one = orders;
        std::istringstream words(line);
        if (words >> one.seed >> one.gestures) all.push_back(one);
    }
    return all;
}

int playAll(const Orders& orders) {
    const auto states = storedStates(VORBANO_SOURCE_DIR "/scenarios");
    const auto delivered = deliveredLayouts();
    const auto all = seedsOf(orders);
    if (all.empty()) {
        std::cerr << "no seeds in " << orders.kept << "\n";
        return 2;
    }
    Met met;
    for (const Orders& one : all) {
        if (!play(one, states, delivered, met)) return 1;
    }
    tellMet(met);
    return 0;
}

}  // namespace
}  // namespace vorbano::test

int main(int argc, char** argv) {
    const auto orders = vorbano::test::ordersFrom(argc, argv);
    if (!orders) {
        std::cerr << "random_operator [--seed N] [--gestures M] [--sitting G] [--kept FILE] [--out FILE]\n";
        return 2;
    }
    return vorbano::test::playAll(*orders);
}
