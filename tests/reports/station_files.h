#pragma once

// The record files of the polling stations, laid out byte by byte. An election with a little of everything: three
// normal stations, two special ones of which the first has the higher number, substitutes, and a run-off of both.

#include <string>
#include <vector>

#include "support/bytes.h"

namespace vorbano::test {

/// Width of the date of the run-off in a file; 0 in the first round, which has none.
inline constexpr std::size_t firstRound = 0;
inline constexpr std::size_t normalRunOff = 30;
inline constexpr std::size_t specialRunOff = 8;

struct LaidPerson {
    std::string surname;
    std::string role = "Scrutatore";
    int cents = 0;
    std::string tookPart = "SI";
    std::string name = "ANNA";
};

inline std::string personBytes(const LaidPerson& person) {
    return padded(person.surname, 30) + padded(person.name, 30) + padded("VIA " + person.surname, 60) +
           padded(person.role, 10) + padded(person.tookPart, 2) + padded("CF" + person.surname, 16) +
           amount(0, person.cents);
}

struct LaidStation {
    int number = 1;
    int stations = 3;  ///< of the election
    int members = 1;
};

inline std::string stationHead(const LaidStation& station) {
    return padded("Comunali", 14) + "09-06-24" + le16(station.stations) + le16(station.number);
}

inline std::string memberBytes(const LaidStation& station, int place, const LaidPerson& person,
                               std::size_t dateWidth = firstRound) {
    return stationHead(station) + le16(station.members) + padded(dateWidth == 0 ? "" : "23-06-24", dateWidth) +
           padded("Comunali", 30) + le16(place) + personBytes(person);
}

inline std::string substituteBytes(const LaidStation& station, int replaces, int place, const LaidPerson& person,
                                   std::size_t dateWidth = firstRound) {
    return stationHead(station) + le16(replaces) + le16(station.members) +
           padded(dateWidth == 0 ? "" : "23-06-24", dateWidth) + padded("Comunali", 30) + le16(place) +
           personBytes(person);
}

/// A president with `president` cents, then members with `others` each.
inline std::string stationBytes(const LaidStation& station, const std::string& prefix, int president, int others,
                                std::size_t dateWidth = firstRound, bool special = false) {
    std::string bytes;
    for (int place = 1; place <= station.members; ++place) {
        LaidPerson person{prefix + std::to_string(station.number) + std::to_string(place)};
        person.cents = place == 1 ? president : others;
        if (place == 1) person.role = "Presidente";
        if (place == 2 && !special) person.role = "Segretario";
        bytes += memberBytes(station, place, person, dateWidth);
    }
    return bytes;
}

/// The quotas of one kind of election in Tarmag.dat, the middle amount one that nobody may take.
inline std::string quotaBytes(const std::string& kind, int president, int others) {
    return padded(kind, 20) + amount(0, president) + amount(999) + amount(0, others);
}

/// Lays the eight files, and the municipality. Fees of the first round: 150,00 and 120,00; of the run-off 110,01 and
/// 88,55. Of the special stations 90,00 and 61,01; 70,00 and 50,03. Station 2 has a substitute with 45,50 and station 3
/// one with 0,05, who comes first in the file; special station 4 has one with 20,33.
inline bool layStations(FileSystem& files, const std::string& kind) {
    const std::string folder = "Elezioni/" + kind + "/09-06-24/";
    const auto normal = [](const std::string& prefix, int president, int others, std::size_t width) {
        return stationBytes({1, 3, 4}, prefix, president, others, width) +
               stationBytes({2, 3, 3}, prefix, president, others, width) +
               stationBytes({3, 3, 2}, prefix, president, others, width);
    };
    const auto normalSubstitutes = [](std::size_t width) {
        return substituteBytes({3, 3, 2}, 2, 3, {"TARDI", "Segretario", 5}, width) +
               substituteBytes({2, 3, 3}, 3, 4, {"MANCA", "Scrutatore", 4550}, width);
    };
    const auto special = [](const std::string& prefix, int president, int others, std::size_t width) {
        return stationBytes({4, 2, 3}, prefix, president, others, width, true) +
               stationBytes({1, 2, 2}, prefix, president, others, width, true);
    };
    const auto specialSubstitute = [](std::size_t width) {
        return substituteBytes({4, 2, 3}, 2, 4, {"LETTO", "Scrutatore", 2033}, width);
    };
    return lay(files, "Params/Ente.dat", padded("BORGO SAN VORBANO", 60)) &&
           lay(files, folder + "Seggi.vbn", normal("N", 15000, 12000, firstRound)) &&
           lay(files, folder + "SosSeggi.vbn", normalSubstitutes(firstRound)) &&
           lay(files, folder + "SegSuf.vbn", normal("B", 11001, 8855, normalRunOff)) &&
           lay(files, folder + "SosSegSuf.vbn", normalSubstitutes(normalRunOff)) &&
           lay(files, folder + "Speciale.vbn", special("S", 9000, 6101, firstRound)) &&
           lay(files, folder + "SosSpec.vbn", specialSubstitute(firstRound)) &&
           lay(files, folder + "SpecSufr.vbn", special("R", 7000, 5003, specialRunOff)) &&
           lay(files, folder + "SspecSufr.vbn", specialSubstitute(specialRunOff));
}

inline const std::vector<std::string>& stationFileNames() {
    static const std::vector<std::string> names = {"Seggi.vbn",    "SosSeggi.vbn", "SegSuf.vbn",   "SosSegSuf.vbn",
                                                   "Speciale.vbn", "SosSpec.vbn",  "SpecSufr.vbn", "SspecSufr.vbn"};
    return names;
}

inline std::string allStationBytes(FileSystem& files, const std::string& kind) {
    std::string all;
    for (const std::string& name : stationFileNames()) {
        all += contentOf(files, "Elezioni/" + kind + "/09-06-24/" + name);
    }
    return all;
}

}  // namespace vorbano::test
