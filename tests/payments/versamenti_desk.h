#pragma once

// The screen of the payments on a desk of its own, and an election laid out byte by byte:
//
//   two employees, of whom 12,01 + 7,02 = 19,03 of contributions and 0,50 + 0,25 = 0,75 of the credit fund are
//   withheld, and for whom 100,10 + 50,05 = 150,15 of contributions and 40,04 + 20,03 = 60,07 of IRAP are due; the
//   percentages of the second are 8,85  0,30  24,20  8,50. IRPEF 1.234,56, INAIL 78,90, no INPS.
//
// The adjustment of it, where there is one, adds 3,33 + 1,11 = 4,44 of contributions withheld, takes back 0,07 of the
// 0,22 of the credit fund, and adds 11,11 + 5,05 = 16,16 of contributions and 4,04 + 2,02 = 6,06 of IRAP, at 8,90  0,40
// 23,90  8,60 of the second; IRPEF 321,00, INAIL 6,50, INPS 4,10.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <array>
#include <map>
#include <string>
#include <string_view>
#include <vector>

#include "payments/frmVersamenti.h"
#include "support/bytes.h"
#include "support/laid_out_records.h"
#include "support/results.h"
#include "support/screen_desk.h"

namespace vorbano::test {

[[nodiscard]] inline std::string paymentPath(std::string_view name) {
    return "Elezioni/Europee/09-06-24/" + std::string(name);
}

/// Percentages and amounts in cents, in the order of the record: CpStato, IRAP, CpDip, FonCre.
struct LaidDues {
    std::array<int, 4> rates;
    std::array<int, 4> amounts;
};
[[nodiscard]] inline std::string laidEmployee(int number, const LaidDues& dues, std::string_view firstPeriod = "") {
    const auto& [rates, amounts] = dues;
    Sheet sheet(301);
    sheet.integersAt(0, {40, 30, 80, 120, number, 2}).at(12, padded("DIPENDENTE", 60));
    const std::array<std::array<std::string_view, 2>, 3> dates = {
        {{"15-04-24", "14-05-24"}, {"15-05-24", "24-05-24"}, {"//      ", "//      "}}};
    for (std::size_t period = 0; period < dates.size(); ++period) {
        const bool other = period == 0 && !firstPeriod.empty();
        sheet.at(72 + 30 * period, other ? firstPeriod : dates[period][0]);
        sheet.at(80 + 30 * period, other ? firstPeriod : dates[period][1]);
        sheet.integersAt(88 + 30 * period, {1, 0, 0, 1, 0, 0, 1});
    }
    return sheet.integersAt(162, {3, 3, 0, 0, 3})
        .at(172, padded("C1", 7))
        .at(179, padded("-", 10))
        .amountsAt(189, {1000, 1100, 1200, 99900})
        .amountsAt(221, {rates[0], amounts[0], rates[1], amounts[1], amounts[0] + amounts[1]})
        .amountsAt(261, {rates[2], amounts[2], rates[3], amounts[3], amounts[2] + amounts[3]})
        .bytes();
}
[[nodiscard]] inline std::string laidEmployees(std::string_view firstPeriod = "") {
    return laidEmployee(1, {{2380, 850, 880, 35}, {10010, 4004, 1201, 50}}, firstPeriod) +
           laidEmployee(2, {{2420, 850, 885, 30}, {5005, 2003, 702, 25}}, firstPeriod);
}
[[nodiscard]] inline std::string laidMeirin(int irpef, int inail, int inps, std::string_view inailOn = "        ",
                                            std::string_view inpsOn = "        ") {
    return Sheet(86)
        .amountsAt(0, {irpef})
        .at(8, inailOn)
        .amountsAt(16, {inail})
        .integersAt(24, {40, 41, 15, 80, 81, 30, 1, 1, 0, 2, 3, 4})
        .amountsAt(48, {4321})
        .integersAt(56, {5, 6, 7})
        .amountsAt(62, {inps})
        .at(70, inpsOn)
        .amountsAt(78, {3569})
        .bytes();
}

/// One record of Congs.vbn.
[[nodiscard]] inline std::string laidAdjustment(int number, const LaidDues& dues) {
    const auto& [rates, amounts] = dues;
    return Sheet(145)
        .integersAt(0, {number, 3, 0, 0})
        .at(8, nuls(17))
        .amountsAt(25, {1100, 1200, 1300, 104500, 4600})
        .amountsAt(65, {rates[0], amounts[0], rates[1], amounts[1], amounts[0] + amounts[1]})
        .amountsAt(105, {rates[2], amounts[2], rates[3], amounts[3], amounts[2] + amounts[3]})
        .bytes();
}
[[nodiscard]] inline std::string laidAdjustments() {
    return laidAdjustment(1, {{2380, 850, 880, 35}, {1111, 404, 333, 22}}) +
           laidAdjustment(2, {{2390, 860, 890, 40}, {505, 202, 111, -7}});
}
[[nodiscard]] inline std::string laidMeirinc(int irpef, int inail, int inps, std::string_view inailOn = "        ",
                                             std::string_view inpsOn = "        ") {
    return Sheet(40).amountsAt(0, {irpef}).at(8, inailOn).amountsAt(16, {inail, inps}).at(32, inpsOn).bytes();
}

/// One record of Versum.vbn or Versumc.vbn.
struct LaidDocument {
    std::string_view mother;
    std::string_view son;
    std::string_view percent;
    int cents;
    int number;
    std::string_view date;
    std::string_view copies;
};
[[nodiscard]] inline std::string laidDocument(const LaidDocument& document) {
    return Sheet(95)
        .at(0, padded(document.mother, 10))
        .at(10, padded(document.son, 27))
        .at(37, padded(document.percent, 6))
        .amountsAt(43, {document.cents})
        .at(51, le32(document.number))
        .at(55, padded(document.date, 8))
        .at(63, padded(document.copies, 32))
        .bytes();
}
inline constexpr std::string_view inOriginal = "in originale e copia autenticata";
inline constexpr std::string_view inTwo = "in duplice copia autenticata";
inline const LaidDocument mandate1{"Coprdi", "Mandato di pagamento", "8,85%", 1903, 101, "01-07-24", inOriginal};
inline const LaidDocument mandate2{"Coprdi", "Mandato di pagamento", "8,85%", 1903, 102, "02-07-24", inTwo};
inline const LaidDocument irpefForm{"Irpef", "Mod. F24", "", 123456, 0, "16-07-24", inTwo};
inline const LaidDocument inailPaid{"Inail", "", "", 7890, 0, "16-08-24", ""};
inline const LaidDocument inpsForm{"Inps", "Mod. F24", "", 4500, 0, "17-08-24", inOriginal};

/// Of the adjustment. The first has number, kind, voice and date of a document of the liquidation.
inline const LaidDocument adjusted1{"Coprdi", "Mandato di pagamento", "8,9%", 444, 101, "01-07-24", inOriginal};
inline const LaidDocument adjusted2{"Coprdi", "Mandato di pagamento", "8,9%", 444, 202, "02-10-24", inTwo};
inline const LaidDocument adjustedIrpef{"Irpef", "Mod. F24", "", 32100, 0, "16-10-24", inTwo};
inline const LaidDocument adjustedInail{"Inail", "", "", 650, 0, "16-11-24", ""};
inline const LaidDocument adjustedInps{"Inps", "Mod. F24", "", 410, 0, "17-11-24", inOriginal};

[[nodiscard]] inline std::string laidDocuments(const std::vector<LaidDocument>& documents) {
    std::string bytes;
    for (const LaidDocument& document : documents) bytes += laidDocument(document);
    return bytes;
}

inline void layPayments(FileSystem& disk, const std::vector<LaidDocument>& documents = {}) {
    EXPECT_TRUE(lay(disk, "Params/Ente.dat", padded("Pratofiorito", 60)));
    EXPECT_TRUE(lay(disk, paymentPath("09-06-24.vbn"), laidEmployees()));
    EXPECT_TRUE(lay(disk, paymentPath("Meirin.vbn"), laidMeirin(123456, 7890, 0)));
    if (!documents.empty()) {
        EXPECT_TRUE(lay(disk, paymentPath("Versum.vbn"), laidDocuments(documents)));
    }
}

inline void layAdjustment(FileSystem& disk, const std::vector<LaidDocument>& documents = {}) {
    EXPECT_TRUE(lay(disk, paymentPath("Congs.vbn"), laidAdjustments()));
    EXPECT_TRUE(lay(disk, paymentPath("Meirinc.vbn"), laidMeirinc(32100, 650, 410)));
    if (!documents.empty()) {
        EXPECT_TRUE(lay(disk, paymentPath("Versumc.vbn"), laidDocuments(documents)));
    }
}

class VersamentiTest : public ScreenDesk<frmVersamenti> {
  protected:
    VersamentiTest() {
        printing.whileTablesAreFull = [this](const PrintJob&) {
            full.clear();
            for (const TableInfo& table : stagingTables()) {
                const int count = staging.count(table.name).valueOr(0);
                for (int n = 1; n <= count; ++n)
                    full[std::string(table.name)].push_back(staging.read(table.name, n).valueOr({}));
            }
        };
    }
    void identify() {
        choose("Combo1", "Europee");
        choose("Combo2", "09-06-24");
    }
    void search(const std::vector<LaidDocument>& documents = {}) {
        layPayments(files, documents);
        open();
        identify();
        click("cmdAnteprima");
    }
    /// The search of an election with an adjustment, and the way into it.
    void searchAdjustment(const std::vector<LaidDocument>& documents = {},
                          const std::vector<LaidDocument>& ofLiquidation = {mandate1}) {
        layAdjustment(files, documents);
        search(ofLiquidation);
        click("cmdConguaglio");
    }
    [[nodiscard]] std::string stored(std::string_view name) { return contentOf(files, paymentPath(name)); }
    void expectDocuments(const std::vector<LaidDocument>& documents, std::string_view file = versumFile) {
        EXPECT_EQ(toHex(stored(file)), toHex(laidDocuments(documents)));
    }
    /// What belongs to the liquidation is as it was laid.
    void expectLiquidationUntouched(const std::vector<LaidDocument>& documents = {mandate1}) {
        expectDocuments(documents);
        EXPECT_EQ(toHex(stored("Meirin.vbn")), toHex(laidMeirin(123456, 7890, 0)));
        EXPECT_EQ(stored("Reversum.vbn"), noFile);
    }
    Lines lines() { return dynamic_cast<ListBox&>(control("List1")).items(); }
    /// The line of the list that ends with the number of the record.
    void pickDocument(int number) {
        const Lines all = lines();
        const std::string digits = std::to_string(number);
        const std::string end = "  n." + std::string(4 - digits.size(), ' ') + digits;
        for (std::size_t at = 0; at < all.size(); ++at) {
            if (all[at].ends_with(end)) return chooseIndex("List1", static_cast<int>(at));
        }
        ADD_FAILURE() << "no line of document " << number;
    }
    /// As the clerk reads it in a full table; row from 1.
    std::string cellOf(const std::string& table, int row, std::string_view field) {
        const auto& rows = full[table];
        if (row > static_cast<int>(rows.size())) return "(no row)";
        const Value* value = rows[static_cast<std::size_t>(row) - 1].find(field);
        return value == nullptr ? "(not set)" : shownValue(*value);
    }
    void expectEmptyTables() {
        for (const TableInfo& table : stagingTables())
            EXPECT_EQ(staging.count(table.name).valueOr(-1), 0) << table.name;
    }
    std::map<std::string, std::vector<Row>> full;  ///< the tables when the last layout ran
};

}  // namespace vorbano::test
