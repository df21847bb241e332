#pragma once

// The authorisation screen on a desk of its own: a disk in memory with the files of "Params" laid out byte by byte,
// boxes laid down beforehand, and the roads that the clerk takes through the panels.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <array>
#include <set>
#include <string>
#include <string_view>

#include "overtime/frmCompStraord.h"
#include "support/bytes.h"
#include "support/laid_out_records.h"
#include "support/screen_desk.h"

namespace vorbano::test {

/// The 1488 bytes of PmDip.dat. Row n (from 1) is paid 10,00, 20,00 and 30,00 and n cents: D3, the fourth row, 10,04,
/// 20,04 and 30,04.
[[nodiscard]] inline std::string pmDipBytes() {
    struct LaidRow {
        const char* grade;
        std::size_t gradeWidth;
        std::size_t markWidth;
    };
    constexpr LaidRow rows[] = {
        {"B8", 15, 15},          {"C6", 15, 15},          {"D7", 15, 15},          {"D3", 10, 10},
        {"D2", 10, 10},          {"D1", 10, 10},          {"C4", 10, 10},          {"C3", 10, 10},
        {"C2", 10, 10},          {"C1", 10, 10},          {"    G    B6", 15, 15}, {"    G    B5", 15, 15},
        {"    G    B4", 15, 15}, {"    G    B3", 15, 15}, {"B4", 10, 10},          {"B3", 10, 10},
        {"B2", 10, 10},          {"B1", 10, 10},          {"A4", 10, 10},          {"A3", 10, 10},
        {"A2", 10, 10},          {"A1", 10, 10},          {"A6", 15, 10},          {"D6", 10, 10},
        {"D5", 10, 10},          {"D4", 10, 10},          {"C5", 10, 10},          {"    G    B7", 15, 10},
        {"B7", 10, 10},          {"B6", 10, 10},          {"B5", 10, 10},          {"A5", 10, 10}};
    std::string bytes;
    int number = 0;
    for (const LaidRow& row : rows) {
        ++number;
        bytes += padded(row.grade, row.gradeWidth) + padded("\\", row.markWidth);
        bytes += amount(10, number) + amount(20, number) + amount(30, number);
    }
    return bytes;
}

/// The 470 bytes of PmSeg.dat: row n is paid 40,00, 50,00 and 60,00 and n cents.
[[nodiscard]] inline std::string pmSegBytes() {
    std::string bytes;
    int number = 0;
    for (const char* caption : {"8^ q.f.", "9^ q.f. 2 anni", "9^ q.f. 5 anni", "9^ q.f. 10 anni", "9^ q.f. 15 anni"}) {
        ++number;
        bytes += padded(caption, 70) + amount(40, number) + amount(50, number) + amount(60, number);
    }
    return bytes;
}

/// 23,80, 8,50, 8,80 and 0,35 per cent.
[[nodiscard]] inline std::string conprevBytes() {
    return amount(23, 80) + amount(8, 50) + amount(8, 80) + amount(0, 35);
}

using Dates = std::array<const char*, 2>;

/// The sentences that come back in many tests.
inline constexpr const char* incomplete = "Dati incompleti per la ricerca";
inline constexpr const char* noName = "Inserire il nominativo";

[[nodiscard]] inline std::string alreadyStored(int count, const std::string& lastName) {
    return "Questo tipo di Elezione già è in memoria! Se si desidera continuare ad aggiungere altri dati scegliere SI. "
           "Per questo tipo di elezione sono stati inseriti  n. " +
           std::to_string(count) + " Dipendenti. L'ultimo nominativo inserito è " + lastName;
}

class AuthorisationTest : public ScreenDesk<frmCompStraord> {
  protected:
    AuthorisationTest() {
        EXPECT_TRUE(lay(files, "Params/PmDip.dat", pmDipBytes()));
        EXPECT_TRUE(lay(files, "Params/PmSeg.dat", pmSegBytes()));
        EXPECT_TRUE(lay(files, "Params/Conprev.dat", conprevBytes()));
    }

    std::string cell(int row, int column) { return ScreenDesk::cell("MSFlexGrid1", row, column); }
    /// The three figures of a period: "limit pool average".
    std::string figures(int period) {
        constexpr std::array<std::array<const char*, 3>, 3> labels = {
            {{"Label45", "Label56", "Label52"}, {"Label46", "Label65", "Label53"}, {"Label48", "Label66", "Label54"}}};
        const auto& row = labels.at(static_cast<std::size_t>(period) - 1);
        return text(row[0]) + " " + text(row[1]) + " " + text(row[2]);
    }

    void pick(int row, int column) { ScreenDesk::pick("MSFlexGrid1", row, column); }

    // The road of an election: type, date and number; acts; periods; name, hours, rates.
    void identify(const char* kind, const char* date, const char* number) {
        choose("Combo1", kind);
        type("txtDataEle", date);
        type("txtNumDip", number);
    }
    void activate(const char* kind = "Europee", const char* date = "09/06/24", const char* number = "6") {
        identify(kind, date, number);
        click("cmdAttiva");
    }
    void confirmActs(const char* decreto = "15/04/24", const char* determina = "18/04/24") {
        type("txtDataDecreto", decreto);
        type("txtDataDetermina", determina);
        click("cmdConferma");
    }
    /// The third period stays left out.
    void confirmPeriods(Dates first = {"20/04/24", "19/05/24"}, Dates second = {"20/05/24", "29/05/24"}) {
        typePeriods(first, second);
        click("Command1");
    }
    void typePeriods(Dates first = {"20/04/24", "19/05/24"}, Dates second = {"20/05/24", "29/05/24"}) {
        type("txtUnodal", first[0]);
        type("txtUnoal", first[1]);
        type("txtDuedal", second[0]);
        type("txtDueal", second[1]);
    }
    /// Six employees for Europee of 09-06-24: a pool of 240 for the thirty days of the first period, limit 60, average
    /// 40; a pool of 80 for the ten days of the second, limit 20, average 13.
    void toName() {
        open();
        activate();
        confirmActs();
        confirmPeriods();
    }
    /// Types the hours of a period and leaves it.
    void hours(int period, const char* feriali, const char* festive, const char* nottFest) {
        const std::string of = std::to_string(period);
        type("txtAutFer" + of + "Per", feriali);
        type("txtAutFes" + of + "Per", festive);
        type("txtNf" + of + "Per", nottFest);
        leave();
    }
    /// Up to where "Salva" can be pressed: 10, 4, 2 hours in the first period, 5, 3, 1 in the second, grade D3.
    void enterEmployee(const char* name = "ROSSI MARIA") {
        type("txtNameDip", name);
        hours(1, "10", "4", "2");
        hours(2, "5", "3", "1");
        chooseRate(4);
    }
    void chooseRate(int row) {
        click("CmdRiepilogo");
        tick("Check2");
        click("cmdTariffe");
        pick(row, 0);
    }
    void saveEmployee(const char* name = "ROSSI MARIA") {
        enterEmployee(name);
        click("cmdSalva");
    }
    /// Opens the stored election again and goes on.
    void resume(int count, const char* lastName, const char* number = "6") {
        open();
        identify("Europee", "09/06/24", number);
        box("Inserimento Dipendenti", alreadyStored(count, lastName), Answer::yes);
        click("cmdAttiva");
    }

    // What is on disk.
    static std::string pathOf(std::string_view name) { return "Elezioni/Europee/09-06-24/" + std::string(name); }
    std::string stored(std::string_view name) { return contentOf(files, pathOf(name)); }
    std::string employee(int number) {
        const std::string all = stored("09-06-24.vbn");
        const std::size_t from = (static_cast<std::size_t>(number) - 1) * 301;
        return from < all.size() ? all.substr(from, 301) : std::string(noFile);
    }
    std::string names() { return contentOf(files, "Params/Dipend.dat"); }
};

/// Employee `number` of the election of `toName()`, entered by `enterEmployee()`.
[[nodiscard]] inline std::string authorisedBytes(int number, std::string_view name, int employees = 6, int used = 0) {
    const int monteOre = employees > 5 ? 40 : 60;
    const int pools = monteOre * employees + monteOre * employees * 10 / 30;
    return Sheet(301)
        .integersAt(0, {monteOre, used, monteOre * employees, pools, number, employees})
        .at(12, padded(name, 60))
        .at(72, "20-04-24")
        .at(80, "19-05-24")
        .integersAt(88, {10, 4, 2, 0, 0, 0, 0})
        .at(102, "20-05-24")
        .at(110, "29-05-24")
        .integersAt(118, {5, 3, 1, 0, 0, 0, 0})
        .at(132, "//      ")
        .at(140, "//      ")
        .integersAt(148, {0, 0, 0, 0, 0, 0, 0})
        .integersAt(162, {25, 0, 0, 0, 0})
        .at(172, padded("D3", 7))
        .at(179, padded("-", 10))
        .amountsAt(189, {1004, 2004, 3004, 0, 2380, 0, 850, 0, 0, 880, 0, 35, 0, 0})
        .bytes();
}

/// The 86 bytes of a fresh Meirin.vbn: averages and pools of three periods, all in liquidation.
[[nodiscard]] inline std::string freshMeirin(std::array<int, 3> averages = {40, 13, 0},
                                             std::array<int, 3> pools = {240, 80, 0}) {
    return Sheet(86)
        .amountsAt(0, {0})
        .at(8, nuls(8))
        .amountsAt(16, {0})
        .integersAt(24, {averages[0], averages[1], averages[2]})
        .integersAt(30, {pools[0], pools[1], pools[2]})
        .integersAt(36, {1, 1, 1})
        .integersAt(42, {0, 0, 0})
        .amountsAt(48, {0})
        .integersAt(56, {0, 0, 0})
        .amountsAt(62, {0})
        .at(70, nuls(8))
        .amountsAt(78, {0})
        .bytes();
}

}  // namespace vorbano::test
