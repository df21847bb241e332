#pragma once

// The two screens of the statement on a desk of their own, and an election laid out byte by byte whose costs were
// reckoned by hand:
//
//   Overtime. First employee: 10, 5, 1 hours in period 1 at 12,34 15,55 17,90 are 219,05, with 23,80 % (52,13) and 8,50
//   % (18,62) 289,80; 4, 2, 0 in period 2 are 80,46 + 19,15 + 6,84 = 106,45. Second: none in period 1; 8 at 11,00 in
//   period 2 are 88,00 + 20,94 + 7,48 = 116,42; 3 in period 3. The records hold 299,51 + 71,28 + 25,46 and 121,00 +
//   28,80 + 10,29, together 556,34; with 78,90 of INAIL 635,24. Of that period 1 with 43,21 of INAIL is 333,01, period
//   2 with 35,69 is 258,56, and 43,67 is left. Fees. Normal stations 145,00 + 110,00 + 35,50, run-off 120,00 + 10,25:
//   420,75. Special ones 90,00 + 22,00, run-off 61,00 + 5,50: 178,50.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <array>
#include <initializer_list>
#include <string>
#include <string_view>
#include <vector>

#include "statement/frmInsRend.h"
#include "statement/frmModRend.h"
#include "support/bytes.h"
#include "support/laid_out_records.h"
#include "support/results.h"
#include "support/screen_desk.h"

namespace vorbano::test {

// What both screens show.
inline constexpr const char* pandemic = "Spese straordinarie per fronteggiare gli effetti della pandemia da Covid 19";
inline constexpr const char* travel = "Spese di viaggio presidenti di seggio";
inline constexpr const char* designed3 = "Rimborso spese  ai presidenti di seggio";

[[nodiscard]] inline std::string statementPath(std::string_view type, std::string_view date, std::string_view name) {
    return "Elezioni/" + std::string(type) + "/" + std::string(date) + "/" + std::string(name);
}

struct LaidWorker {
    std::array<int, 3> rates;                 ///< cents
    std::array<std::array<int, 3>, 3> hours;  ///< paid, by period
    std::array<int, 3> amounts;               ///< due, contribution, IRAP, in cents
};
[[nodiscard]] inline std::string laidWorker(int number, int count, const LaidWorker& worker) {
    Sheet sheet(301);
    sheet.integersAt(0, {40, 30, 40 * count, 120, number, count}).at(12, padded("DIPENDENTE", 60));
    for (std::size_t period = 0; period < 3; ++period) {
        const auto& hours = worker.hours[period];
        sheet.at(72 + 30 * period, "01-01-24").at(80 + 30 * period, "31-01-24");
        sheet.integersAt(88 + 30 * period, {20, 20, 20, hours[0], hours[1], hours[2], hours[0] + hours[1] + hours[2]});
    }
    const auto [due, contribution, irap] = worker.amounts;
    return sheet.integersAt(162, {60, 1, 1, 1, 3})
        .at(172, padded("C1", 7))
        .at(179, padded("-", 10))
        .amountsAt(189, {worker.rates[0], worker.rates[1], worker.rates[2], due, 2380, contribution, 850, irap,
                         contribution + irap, 880, 100, 35, 10, 110})
        .bytes();
}
[[nodiscard]] inline std::string laidWorkers() {
    return laidWorker(1, 2, {{1234, 1555, 1790}, {{{10, 5, 1}, {4, 2, 0}, {0, 0, 0}}}, {29951, 7128, 2546}}) +
           laidWorker(2, 2, {{1100, 1300, 1500}, {{{0, 0, 0}, {8, 0, 0}, {3, 0, 0}}}, {12100, 2880, 1029}});
}
[[nodiscard]] inline std::string laidInail() {
    return Sheet(86)
        .amountsAt(0, {0})
        .at(8, "        ")
        .amountsAt(16, {7890})
        .integersAt(24, {40, 40, 15, 80, 80, 30, 1, 1, 1, 0, 0, 0})
        .amountsAt(48, {4321})
        .integersAt(56, {0, 0, 0})
        .amountsAt(62, {0})
        .at(70, "        ")
        .amountsAt(78, {3569})
        .bytes();
}
/// A member or substitute of whom only the fee matters: it is the last field of a record of `width` bytes.
[[nodiscard]] inline std::string laidFee(std::size_t width, int cents) {
    return std::string(width - 8, ' ') + amount(0, cents);
}

inline void layStations(FileSystem& disk, std::string_view type, std::string_view date) {
    const auto at = [&](std::string_view name) { return statementPath(type, date, name); };
    EXPECT_TRUE(lay(disk, at("Seggi.vbn"), laidFee(216, 14500) + laidFee(216, 11000)));
    EXPECT_TRUE(lay(disk, at("SosSeggi.vbn"), laidFee(218, 3550)));
    EXPECT_TRUE(lay(disk, at("SegSuf.vbn"), laidFee(246, 12000)));
    EXPECT_TRUE(lay(disk, at("SosSegSuf.vbn"), laidFee(248, 1025)));
    EXPECT_TRUE(lay(disk, at("Speciale.vbn"), laidFee(216, 9000)));
    EXPECT_TRUE(lay(disk, at("SosSpec.vbn"), laidFee(218, 2200)));
    EXPECT_TRUE(lay(disk, at("SpecSufr.vbn"), laidFee(224, 6100)));
    EXPECT_TRUE(lay(disk, at("SspecSufr.vbn"), laidFee(226, 550)));
}
inline void layOvertime(FileSystem& disk, std::string_view type, std::string_view date) {
    EXPECT_TRUE(lay(disk, statementPath(type, date, std::string(date) + ".vbn"), laidWorkers()));
    EXPECT_TRUE(lay(disk, statementPath(type, date, "Meirin.vbn"), laidInail()));
}
inline void layCosts(FileSystem& disk, std::string_view type, std::string_view date) {
    layStations(disk, type, date);
    layOvertime(disk, type, date);
}

/// A statement on paper, in cents, in the order of the file.
[[nodiscard]] inline std::string laidRendi(std::initializer_list<int> cents) {
    return Sheet(152).amountsAt(0, cents).bytes();
}

inline constexpr const char* someDay = "09-06-24";
inline constexpr const char* referendum2022 = "12-06-22";

template <class ScreenType>
class StatementDesk : public ScreenDesk<ScreenType> {
  protected:
    using Base = ScreenDesk<ScreenType>;
    static constexpr const char* goButton = std::is_same_v<ScreenType, frmInsRend> ? "cmdAnteprima" : "cmdRicerca";

    void identify(std::string_view type, std::string_view date) {
        this->choose("Combo1", type);
        this->choose("Combo2", date);
    }
    /// The election with its costs, called up.
    void callUp(std::string_view type, std::string_view date = someDay) {
        layCosts(this->files, type, date);
        this->open();  // the list of types is read at the loading
        again(type, date);
    }
    void again(std::string_view type, std::string_view date = someDay) {
        identify(type, date);
        this->click(goButton);
    }
    /// Types into a line and leaves it.
    void line(std::string_view name, std::string_view words) {
        this->type(name, words);
        this->leave();
    }
    std::string stored(std::string_view type, std::string_view name, std::string_view date = someDay) {
        return toHex(contentOf(this->files, statementPath(type, date, name)));
    }
    std::string missing() { return toHex(noFile); }
    Operator clerkNow() { return this->clerk(); }
    Refusal tries(std::string_view name, std::string_view words) { return clerkNow().type(this->control(name), words); }
};

class Entry : public StatementDesk<frmInsRend> {};
class Correction : public StatementDesk<frmModRend> {};

/// All lines that can be typed for every type.
inline constexpr const char* typedLines[] = {"txtIndennità",  "txtMagMis", "txtStampanti",  "txtTrasporti",
                                             "txtDisciplina", "Text1",     "txtAssunzioni", "txtNecessità",
                                             "txtMissioni",   "txtAcconti"};

}  // namespace vorbano::test
