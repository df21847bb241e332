#pragma once

// The files of "Params" with every rate and percentage that the overtime takes from outside an election.

#include <array>
#include <cstddef>
#include <span>
#include <string>
#include <string_view>

#include "storage/fields.h"
#include "storage/record_fields.h"

namespace vorbano {

/// The hourly rates of one grade.
struct Rates {
    Currency Day;  ///< "Diurne Feriali"
    Currency Fn;   ///< "Nott. o Fest"
    Currency Nf;   ///< "Nott. Fest"
};
static_assert(sizeof(Rates) == 24);

/// Where a row of the rate table stands in the record. Key and grade deliberately differ in many rows and must not be
/// made to agree: the key names the screen's fields, the grade is what employees are found by.
struct TariffRow {
    std::string_view key;
    std::string_view grade;  ///< the row's label, as stored; "G" rows with their leading blanks
    std::size_t gradeAt;
    std::size_t gradeWidth;
    std::size_t markWidth;

    [[nodiscard]] constexpr std::size_t markAt() const { return gradeAt + gradeWidth; }
    [[nodiscard]] constexpr std::size_t ratesAt() const { return markAt() + markWidth; }
    [[nodiscard]] constexpr std::size_t end() const { return ratesAt() + sizeof(Rates); }
    /// The grades with a "G" change only by loading a version or a block of dates, never by hand.
    [[nodiscard]] constexpr bool readOnly() const { return grade.starts_with(' '); }
};

inline constexpr int tariffRowCount = 32;
/// In record order, which is not that of the grades: rows 23 to 32 were added at the end.
inline constexpr std::array<TariffRow, tariffRowCount> tariffRows = {{
    {"D5", "B8", 0, 15, 15},
    {"D4", "C6", 54, 15, 15},
    {"D3a", "D7", 108, 15, 15},
    {"D3b", "D3", 162, 10, 10},
    {"D2", "D2", 206, 10, 10},
    {"D1", "D1", 250, 10, 10},
    {"C4", "C4", 294, 10, 10},
    {"C3", "C3", 338, 10, 10},
    {"C2", "C2", 382, 10, 10},
    {"C1", "C1", 426, 10, 10},
    {"B6", "    G    B6", 470, 15, 15},
    {"B5", "    G    B5", 524, 15, 15},
    {"B4a", "    G    B4", 578, 15, 15},
    {"B3a", "    G    B3", 632, 15, 15},
    {"B4b", "B4", 686, 10, 10},
    {"B3b", "B3", 730, 10, 10},
    {"B2", "B2", 774, 10, 10},
    {"B1", "B1", 818, 10, 10},
    {"A4", "A4", 862, 10, 10},
    {"A3", "A3", 906, 10, 10},
    {"A2", "A2", 950, 10, 10},
    {"A1", "A1", 994, 10, 10},
    {"D6a", "A6", 1038, 15, 10},
    {"D6b", "D6", 1087, 10, 10},
    {"D5b", "D5", 1131, 10, 10},
    {"D4b", "D4", 1175, 10, 10},
    {"C5", "C5", 1219, 10, 10},
    {"B7a", "    G    B7", 1263, 15, 10},
    {"B7b", "B7", 1312, 10, 10},
    {"B6b", "B6", 1356, 10, 10},
    {"B5b", "B5", 1400, 10, 10},
    {"A5", "A5", 1444, 10, 10},
}};
inline constexpr std::size_t tariffTableWidth = 1488;
static_assert([] {
    std::size_t at = 0;
    for (const TariffRow& row : tariffRows) {
        if (row.gradeAt != at) return false;
        at = row.end();
    }
    return at == tariffTableWidth;
}());

/// Index of a row by its key; -1 when there is none.
[[nodiscard]] constexpr int tariffRowOf(std::string_view key) {
    for (int at = 0; at < tariffRowCount; ++at) {
        if (tariffRows[static_cast<std::size_t>(at)].key == key) return at;
    }
    return -1;
}

/// The one record of PmDip.dat (the table in force), NewPmDip.dat and OldPmDip.dat. Rows are numbered from 0 in record
/// order.
class TariffTable {
  public:
    [[nodiscard]] std::string grade(int row) const;
    /// "\" old tariffs, "/" new tariffs, blank before the first change of version.
    [[nodiscard]] std::string mark(int row) const;
    [[nodiscard]] Rates rates(int row) const;
    /// Sets the fixed grade text of the row, the mark and the rates.
    void set(int row, std::string_view mark, const Rates& rates);
    /// First row whose grade is equal, both trimmed; -1 when none is.
    [[nodiscard]] int find(std::string_view grade) const;

  private:
    std::array<char, tariffTableWidth> bytes_{};
};
static_assert(sizeof(TariffTable) == tariffTableWidth);

/// PmDipc.dat: blocks of 32 rows, one block for each date of effect.
struct DatedTariffRow {
    Text<15> Grade;
    Text<10> Deco;  ///< date of effect, "01/04/2008"
    Rates rates;
};
static_assert(sizeof(DatedTariffRow) == 49 && offsetof(DatedTariffRow, Deco) == 15 &&
              offsetof(DatedTariffRow, rates) == 25);

/// PmSeg.dat, one record: the rates of the municipal secretaries.
inline constexpr int secretaryRowCount = 5;
struct SecretaryRow {
    Text<70> Caption;  ///< caption of the row's check box at saving
    Rates rates;
};
struct SecretaryTariff {
    std::array<SecretaryRow, secretaryRowCount> rows;
};
static_assert(sizeof(SecretaryTariff) == 470 && offsetof(SecretaryRow, rates) == 70);

/// What belongs to a secretaries' row: the check box caption, the stem of its screen fields ("txtSc8qf" + "Day"), its
/// name in the table of tariffs that the authorisation shows.
struct SecretaryRowInfo {
    std::string_view caption;
    std::string_view stem;
    std::string_view nameInTable;
};
inline constexpr std::array<SecretaryRowInfo, secretaryRowCount> secretaryRows = {{
    {"8^ q.f.", "txtSc8qf", "8^ Qual.funz."},
    {"9^ q.f. 2 anni", "txtSc9qf2a", "9^ q.f. 2 anni eff. serv."},
    {"9^ q.f. 5 anni", "txtSc9qf5a", "9^ q.f. 5 anni eff. serv."},
    {"9^ q.f. 10 anni", "txtSc9qf10a", "9^ q.f. 10 anni eff. serv."},
    {"9^ q.f. 15 anni", "txtSc9qf15a", "9^ q.f. 15 anni eff. serv."},
}};

/// Conprev.dat, one record: the four percentages, each the number itself (8,50 is 8.5 percent), up to four decimals.
struct ContribRates {
    Currency ContrPrev;  ///< "Contributo previdenziale a carico Ente"
    Currency IrapEnte;   ///< "IRAP a carico Ente"
    Currency ContrDip;   ///< "Contributo Previdenziale a carico Dipendenti"
    Currency FonCre;     ///< "Contributo Fondo Credito a carico Dipendenti"
};
static_assert(sizeof(ContribRates) == 32);

inline constexpr std::string_view pmDipFile = "Params/PmDip.dat";
inline constexpr std::string_view newPmDipFile = "Params/NewPmDip.dat";
inline constexpr std::string_view oldPmDipFile = "Params/OldPmDip.dat";
inline constexpr std::string_view pmDipcFile = "Params/PmDipc.dat";
inline constexpr std::string_view pmSegFile = "Params/PmSeg.dat";
inline constexpr std::string_view conprevFile = "Params/Conprev.dat";

/// Fields by the names of the screen: "txtD5Day", and "D5Grade", "D5Mark" for what the screen shows as labels.
[[nodiscard]] std::span<const FieldInfo> tariffTableFields();
[[nodiscard]] std::span<const FieldInfo> secretaryFields();
inline constexpr FieldInfo datedTariffFields[] = {
    {"Grade", "", 0, 15, FieldType::text},   {"Deco", "", 15, 10, FieldType::text},
    {"Day", "", 25, 8, FieldType::currency}, {"Fn", "", 33, 8, FieldType::currency},
    {"Nf", "", 41, 8, FieldType::currency},
};
static_assert(coversWhole(datedTariffFields, sizeof(DatedTariffRow)));
inline constexpr FieldInfo contribFields[] = {
    {"ContrPrev", "txtContrPrev", 0, 8, FieldType::currency},
    {"IrapEnte", "txtIrapEnte", 8, 8, FieldType::currency},
    {"ContrDip", "txtContrDip", 16, 8, FieldType::currency},
    {"FonCre", "txtFonCre", 24, 8, FieldType::currency},
};
static_assert(coversWhole(contribFields, sizeof(ContribRates)));

}  // namespace vorbano
