#pragma once

// The removal screen on a desk of its own, and elections laid out byte by byte. Employee `id` has 10 + id weekday hours
// in the first period, id in each of the others, and amounts of his own, so that whoever takes another's place is found
// out.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <array>
#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "overtime/frmElimina.h"
#include "support/bytes.h"
#include "support/laid_out_records.h"
#include "support/screen_desk.h"

namespace vorbano::test {

/// The figures of a period, average and pool, in hours.
struct LaidFigures {
    int average;
    int pool;
};
/// What all records of an election have in common.
struct LaidElection {
    const char* type;
    const char* date;
    std::vector<std::array<const char*, 2>> spans;  ///< three to five
    int monteOre;
    int globo;
    std::vector<LaidFigures> figures;  ///< as many
    int numDip;

    [[nodiscard]] int periods() const { return static_cast<int>(spans.size()); }
    [[nodiscard]] std::string path(std::string_view name) const {
        return "Elezioni/" + std::string(type) + "/" + date + "/" + std::string(name);
    }
    [[nodiscard]] std::string employees() const { return path(std::string(date) + ".vbn"); }
};

struct LaidPerson {
    int id;
    std::string name;
};
/// Persons 1 to `count`: "PERSONA 1" and so on.
[[nodiscard]] inline std::vector<LaidPerson> persons(int count) {
    std::vector<LaidPerson> all;
    for (int id = 1; id <= count; ++id) all.push_back({id, "PERSONA " + std::to_string(id)});
    return all;
}

inline constexpr const char* laidExcluded = "//      ";

[[nodiscard]] inline std::string sevenHours(int weekday, bool excluded) {
    const std::array<int, 7> hours = {weekday, 3, 1, weekday - 1, 2, 0, weekday + 1};
    std::string bytes;
    for (const int each : hours) bytes += le16(excluded ? 0 : each);
    return bytes;
}
[[nodiscard]] inline std::string laidPools(const LaidElection& election, int serial, int id) {
    return le16(election.monteOre) + le16(20 * id) + le16(election.monteOre * election.numDip) + le16(election.globo) +
           le16(serial) + le16(election.numDip);
}
/// From the grade to the end, alike in the three files.
[[nodiscard]] inline std::string laidPay(int id) {
    std::string bytes = padded("C" + std::to_string(id), 7) + padded("-", 10);
    for (const int cents : {1234, 1555, 1790, 55900, 2380, 13300, 850, 4700, 18000, 880, 4900, 35, 190, 5100})
        bytes += amount(0, cents + id);
    return bytes;
}

[[nodiscard]] inline std::string laidEmployee(const LaidElection& election, int serial, const LaidPerson& person) {
    Sheet sheet(301);
    sheet.at(0, laidPools(election, serial, person.id)).at(12, padded(person.name, 60));
    for (std::size_t period = 0; period < 3; ++period) {
        const auto& span = election.spans[period];
        const std::size_t block = 72 + 30 * period;
        const bool excluded = span[0] == std::string_view(laidExcluded);
        sheet.at(block, span[0]).at(block + 8, span[1]);
        sheet.at(block + 16, sevenHours(period == 0 ? 10 + person.id : person.id, excluded));
    }
    return sheet.integersAt(162, {40 + person.id, 30 + person.id, 5, 1, 36 + person.id})
        .at(172, laidPay(person.id))
        .bytes();
}
/// `period` 4 or 5.
[[nodiscard]] inline std::string laidLate(const LaidElection& election, int period, int serial,
                                          const LaidPerson& person) {
    const auto& span = election.spans[static_cast<std::size_t>(period - 1)];
    return Sheet(241)
        .at(0, laidPools(election, serial, person.id))
        .at(12, padded(person.name, 60))
        .at(72, span[0])
        .at(80, span[1])
        .at(88, sevenHours(person.id, false))
        .integersAt(102, {40 + person.id, 30 + person.id, 5, 1, 36 + person.id})
        .at(112, laidPay(person.id))
        .bytes();
}
[[nodiscard]] inline std::string laidStaff(const LaidElection& election, const std::vector<LaidPerson>& staff) {
    std::string bytes;
    for (std::size_t at = 0; at < staff.size(); ++at)
        bytes += laidEmployee(election, static_cast<int>(at) + 1, staff[at]);
    return bytes;
}
[[nodiscard]] inline std::string laidLateStaff(const LaidElection& election, int period,
                                               const std::vector<LaidPerson>& staff) {
    std::string bytes;
    for (std::size_t at = 0; at < staff.size(); ++at)
        bytes += laidLate(election, period, static_cast<int>(at) + 1, staff[at]);
    return bytes;
}
/// Figures at 24 and 30, 42, 56; states at 36, 46, 60. Of a removal only the first 62 bytes are left.
[[nodiscard]] inline std::string laidMeirin(const LaidElection& election) {
    const auto figures = [&](std::size_t at) {
        return at < election.figures.size() ? election.figures[at] : LaidFigures{0, 0};
    };
    return Sheet(86)
        .amountsAt(0, {123456})
        .at(8, "16-07-13")
        .amountsAt(16, {7890})
        .integersAt(24, {figures(0).average, figures(1).average, figures(2).average})
        .integersAt(30, {figures(0).pool, figures(1).pool, figures(2).pool})
        .integersAt(36, {1, 0, 1})
        .integersAt(42, {figures(3).average, figures(3).pool, 1})
        .amountsAt(48, {4321})
        .integersAt(56, {figures(4).average, figures(4).pool, 0})
        .amountsAt(62, {98765})
        .at(70, "16-08-13")
        .amountsAt(78, {3569})
        .bytes();
}

/// 30 days, 10 days, the third period left out. Seven employees at 40 hours.
[[nodiscard]] inline LaidElection europee2024() {
    return {"Europee", "09-06-24", {{"15-04-24", "14-05-24"}, {"15-05-24", "24-05-24"}, {laidExcluded, laidExcluded}},
            40,        373,        {{40, 280}, {13, 93}, {0, 0}},
            7};
}
/// The same with six: 30 x 40 / 30 x 6 and 10 x 40 / 30 x 6.
[[nodiscard]] inline LaidElection europee2024OfSix() {
    LaidElection election = europee2024();
    election.globo = 320;
    election.figures = {{40, 240}, {13, 80}, {0, 0}};
    election.numDip = 6;
    return election;
}
/// Five at 70 hours, after the removal of the sixth: 350, 10 x 70 x 5 / 30 = 116,67; 10 x 70 / 30 = 23,33.
[[nodiscard]] inline LaidElection europee2024OfFive() {
    LaidElection election = europee2024();
    election.monteOre = 70;
    election.globo = 467;
    election.figures = {{70, 350}, {23, 117}, {0, 0}};
    election.numDip = 5;
    return election;
}
/// Three periods of 15 days and two of 10. Six employees at 40 hours: 20 and 120, 13 (13,33) and 80.
[[nodiscard]] inline LaidElection fivePeriods() {
    return {"Europee_Comunali",
            "26-05-13",
            {{"10-04-13", "24-04-13"},
             {"25-04-13", "09-05-13"},
             {"10-05-13", "24-05-13"},
             {"25-05-13", "03-06-13"},
             {"04-06-13", "13-06-13"}},
            40,
            520,
            {{20, 120}, {20, 120}, {20, 120}, {13, 80}, {13, 80}},
            6};
}
/// Five left, at 70 hours: 35 and 175, 23 (23,33) and 117 (116,67).
[[nodiscard]] inline LaidElection fivePeriodsOfFive() {
    LaidElection election = fivePeriods();
    election.monteOre = 70;
    election.globo = 759;
    election.figures = {{35, 175}, {35, 175}, {35, 175}, {23, 117}, {23, 117}};
    election.numDip = 5;
    return election;
}

/// Lays all files of the election. `limits` false: without Meirin.vbn.
inline void layElection(FileSystem& disk, const LaidElection& election, const std::vector<LaidPerson>& staff,
                        bool limits = true) {
    bool laid = lay(disk, election.employees(), laidStaff(election, staff));
    if (limits) laid = lay(disk, election.path("Meirin.vbn"), laidMeirin(election)) && laid;
    if (election.periods() >= 4)
        laid = lay(disk, election.path("Quartum.vbn"), laidLateStaff(election, 4, staff)) && laid;
    if (election.periods() >= 5)
        laid = lay(disk, election.path("Pentium.vbn"), laidLateStaff(election, 5, staff)) && laid;
    EXPECT_TRUE(laid);
}

class RemovalDesk : public ScreenDesk<frmElimina> {
  protected:
    void search(const LaidElection& election) {
        choose("Combo1", election.type);
        type("txtDataEle", election.date);
        click("cmdRicerca");
    }
    /// The screen with the election found.
    void openOnElection(const LaidElection& election, const std::vector<LaidPerson>& staff) {
        layElection(files, election, staff);
        open();
        search(election);
    }
    /// The four figures of a line: `line("1")` before, `line("D1")` after.
    std::vector<std::string> line(const std::string& suffix) {
        return {text("txtIndi" + suffix), text("txtMens" + suffix), text("txtUti" + suffix), text("txtRes" + suffix)};
    }
    /// Chooses a line of the list, from 1, and says yes.
    void remove(int number, const std::string& name) {
        chooseIndex("List1", number - 1);
        box("Cancellazione dipendente", "Siete sicuri di voler Cancellare il dipendente  " + name + " ?", Answer::yes);
        box("Cancellazione Dipendente", "Operazione terminata");
        click("cmdElimina");
    }
    Lines names() { return screen->List1.items(); }
};

using Figures = std::vector<std::string>;

}  // namespace vorbano::test
