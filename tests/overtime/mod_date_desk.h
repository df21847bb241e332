#pragma once

// The screen of the dates on a desk of its own, over elections laid out byte by byte. No two fields hold the same, so
// that whatever is changed by mistake is found out.

#include <array>
#include <string>
#include <string_view>
#include <vector>

#include "overtime/frmModDate.h"
#include "support/laid_out_records.h"
#include "support/screen_desk.h"

namespace vorbano::test::moddate {

using Span = std::array<std::string_view, 2>;
using Hours = std::array<int, 3>;
inline constexpr Span leftOut = {"//      ", "//      "};

/// The four figures of the staff that every record repeats, and the number of employees.
struct LaidPools {
    int monteOre, moGlob, globo, employees;
};

/// Record `number` of the employee file: dates and authorised hours of three periods.
[[nodiscard]] inline std::string staffBytes(const LaidPools& pools, int number, std::string_view name,
                                            const std::array<Span, 3>& dates, const std::array<Hours, 3>& hours) {
    Sheet sheet(301);
    sheet.integersAt(0, {pools.monteOre, 95, pools.moGlob, pools.globo, number, pools.employees});
    sheet.at(12, padded(name, 60));
    for (std::size_t at = 0; at < 3; ++at) {
        const std::size_t from = 72 + at * 30;
        const auto& own = hours.at(at);
        sheet.at(from, dates.at(at)[0]).at(from + 8, dates.at(at)[1]);
        sheet.integersAt(from + 16, {own[0], own[1], own[2], 7, 5, 1, 13});
    }
    return sheet.integersAt(162, {48, 25, 15, 1, 41})
        .at(172, "G    B6")
        .at(179, padded("-", 10))
        .amountsAt(189, {1234, 1555, 1790, 55965, 2380, 13320, 850, 4757, 18077, 880, 4925, 35, 196, 5121})
        .bytes();
}

/// Record `number` of Quartum.vbn or Pentium.vbn.
[[nodiscard]] inline std::string lateBytes(const LaidPools& pools, int number, std::string_view name, const Span& dates,
                                           const Hours& hours) {
    return Sheet(241)
        .integersAt(0, {pools.monteOre, 120, pools.moGlob, pools.globo, number, pools.employees})
        .at(12, padded(name, 60))
        .at(72, dates[0])
        .at(80, dates[1])
        .integersAt(88, {hours[0], hours[1], hours[2], 13, 5, 1, 19, 22, 71, 32, 4, 107})
        .at(112, padded("D3", 7))
        .at(119, padded("-", 10))
        .amountsAt(129, {1592, 1799, 2075, 178900, 2381, 42596, 851, 15224, 57820, 881, 15761, 36, 644, 16405})
        .bytes();
}

/// Meirin.vbn with the averages and pools of five periods.
[[nodiscard]] inline std::string limitBytes(const std::array<int, 5>& averages, const std::array<int, 5>& pools) {
    return Sheet(86)
        .amountsAt(0, {123456})
        .at(8, "16-07-13")
        .amountsAt(16, {7890})
        .integersAt(24, {averages[0], averages[1], averages[2]})
        .integersAt(30, {pools[0], pools[1], pools[2]})
        .integersAt(36, {1, 0, 1})
        .integersAt(42, {averages[3], pools[3], 1})
        .amountsAt(48, {4321})
        .integersAt(56, {averages[4], pools[4], 0})
        .amountsAt(62, {98765})
        .at(70, "16-08-13")
        .amountsAt(78, {3569})
        .bytes();
}

inline constexpr const char* unfinishedDate = "inserite la data per intero";
inline constexpr const char* fiveLines =
    "Si rilevano problemi,\nper dei periodi si\nsupera il  monte ore\nmensile, modificare\nle ore autorizzate";
inline constexpr const char* noProblem = "Non si rilevano problemi";
inline const std::string rule(40, '-');

/// Europee of 09-06-24: six employees of the calculation on 40 hours a month, two of them stored. Thirty days of the
/// first period, ten of the second, the third left out: pools of 240 and 80, averages of 40 and 13, limits of 60 and
/// 20. ROSSI has 40 and 19 hours, VERDI 30 and 9.
inline const std::string today24 = "Elezioni/Europee/09-06-24/";
inline constexpr LaidPools pools24 = {40, 240, 320, 6};
inline constexpr std::array<Span, 3> dates24 = {{{"20-04-24", "19-05-24"}, {"20-05-24", "29-05-24"}, leftOut}};

[[nodiscard]] inline std::string staff24(const LaidPools& pools = pools24, const std::array<Span, 3>& dates = dates24) {
    return staffBytes(pools, 1, "ROSSI MARIA", dates, {{{25, 10, 5}, {12, 5, 2}, {0, 0, 0}}}) +
           staffBytes(pools, 2, "VERDI ALDO", dates, {{{20, 7, 3}, {6, 2, 1}, {0, 0, 0}}});
}
/// The places of the fourth and fifth period hold something, though this election has none.
[[nodiscard]] inline std::string limits24(int average1 = 40, int pool1 = 240, int average2 = 13, int pool2 = 80,
                                          int average3 = 0, int pool3 = 0) {
    return limitBytes({average1, average2, average3, 15, 22}, {pool1, pool2, pool3, 103, 154});
}
inline const std::string acts24 = "11-04-2418-04-24";

inline void layElection24(FileSystem& disk) {
    EXPECT_TRUE(lay(disk, today24 + "09-06-24.vbn", staff24()));
    EXPECT_TRUE(lay(disk, today24 + "Meirin.vbn", limits24()));
    EXPECT_TRUE(lay(disk, today24 + "Duedate.vbn", acts24));
}

class ModDateTest : public ScreenDesk<frmModDate> {
  protected:
    void identify(const char* type, const char* date) {
        choose("Combo1", type);
        this->type("txtDataEle", date);
    }
    void search(const char* type, const char* date) {
        open();
        identify(type, date);
        click("cmdRicerca");
    }
    void searchElection24() {
        layElection24(files);
        search("Europee", "09/06/24");
    }
    /// Unlocks a period and types its dates, in the way of the clerk.
    void newDates(int period, std::string_view dal, std::string_view al) {
        const DateLineNames& names = dateLineNames.at(static_cast<std::size_t>(period) - 1);
        tick(names.check);
        type(names.dal, dal);
        type(names.al, al);
        leave();
    }
    /// "limit average pool used rest" after the change.
    std::string after(int period) {
        const std::string n = std::to_string(period);
        std::string figures = text("txtLimite" + n);
        for (const char* field : {"txtIndiD", "txtMensD", "txtUtiD", "txtResD"}) figures += " " + text(field + n);
        return figures;
    }
    /// "average pool" as stored.
    std::string before(int period) {
        const std::string n = std::to_string(period);
        return text("txtIndi" + n) + " " + text("txtMens" + n);
    }
    std::vector<std::string> list() { return screen->List1.items(); }
    std::string file24(const std::string& name) { return contentOf(files, today24 + name); }
};

}  // namespace vorbano::test::moddate
