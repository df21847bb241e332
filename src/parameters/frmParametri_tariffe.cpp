// The staff's rates: the first tab of the parameter screen.

#include <string>

#include "parameters/frmParametri.h"
#include "screens/well_done.h"
#include "storage/numbers.h"
#include "storage/only_record.h"

namespace vorbano {

namespace {

/// Numbers of the check box that opens a row and of the label that holds its other rate, by the row's key; in record
/// order.
struct RowNumbers {
    std::string_view key;
    int box;
    int label;
};
constexpr std::array<RowNumbers, tariffRowCount> rowNumbers = {{
    {"D5", 1, 33},   {"D4", 2, 53},   {"D3a", 3, 54},  {"D3b", 4, 55},  {"D2", 5, 56},   {"D1", 6, 57},
    {"C4", 7, 58},   {"C3", 8, 59},   {"C2", 9, 60},   {"C1", 10, 61},  {"B6", 11, 62},  {"B5", 12, 63},
    {"B4a", 13, 64}, {"B3a", 14, 65}, {"B4b", 27, 66}, {"B3b", 28, 67}, {"B2", 29, 68},  {"B1", 30, 69},
    {"A4", 31, 70},  {"A3", 32, 71},  {"A2", 33, 72},  {"A1", 34, 73},  {"D6a", 35, 3},  {"D6b", 39, 42},
    {"D5b", 38, 36}, {"D4b", 37, 32}, {"C5", 40, 75},  {"B7a", 41, 77}, {"B7b", 44, 46}, {"B6b", 43, 81},
    {"B5b", 42, 79}, {"A5", 36, 6},
}};
static_assert([] {
    for (std::size_t at = 0; at < rowNumbers.size(); ++at) {
        if (rowNumbers[at].key != tariffRows[at].key) return false;
    }
    return true;
}());

}  // namespace

void frmParametri::makeStaffPage() {
    for (std::size_t at = 0; at < tariffRows.size(); ++at) {
        const TariffRow& layout = tariffRows[at];
        RateRow& row = rows.emplace_back(staffPage, "Check" + std::to_string(rowNumbers[at].box), layout.grade,
                                         "txt" + std::string(layout.key));
        otherDay.emplace_back(form, "Label" + std::to_string(rowNumbers[at].label));
        for (TextBox* field : row.fields()) makeCommaField(*field);
        // The box of a grade with a "G" deliberately does nothing: its rates come only with a version or a date.
        if (!layout.readOnly()) row.box.clicked.calls([this, &row] { openStaffRow(row); });
    }
    cmdSalva.enabled = false;
    Check20.clicked.calls(this, &frmParametri::Check20_Click);
    cmdSalva.clicked.calls(this, &frmParametri::cmdSalva_Click);
    cmdStampa.clicked.calls(this, &frmParametri::cmdStampa_Click);
    makeVersions();
    makeElectionPanels();
}

void frmParametri::loadStaff() {
    offerFirstVersions();
    const auto table = onlyRecord<TariffTable>(desk_.files, pmDipFile);
    if (table && !*table) {
        say("Bisogna inserire i dati dei compensi orari dei dipendenti");
        cmdSalva.enabled = true;
        Check20.checked = true;
        form.focus(rows.front().Day);
        return;
    }
    closeStaff();
    if (!table) {
        wellDone(table.error(), desk_.desktop);
        return;
    }
    Label31.text = (*table)->mark(0);
    showStaff(**table);
}

/// Rows opened one by one are closed too: what is shown from here on is what is stored.
void frmParametri::closeStaff() {
    Check20.checked = false;
    lockStaff();
    cmdSalva.enabled = false;
}

void frmParametri::showStaff(const TariffTable& table) {
    for (int row = 0; row < tariffRowCount; ++row) rows[static_cast<std::size_t>(row)].show(table.rates(row));
    leaveDateOfEffect();
}

void frmParametri::openStaffRow(RateRow& row) {
    const bool open = row.box.checked();
    cmdStampa.enabled = !open && plainEditing();
    row.enableFields(open);
    if (!open) {
        cmdSalva.enabled = false;
        return;
    }
    form.focus(row.Day);
    if (Label28.text() != "N") cmdSalva.enabled = true;
}

void frmParametri::lockStaff() {
    for (RateRow& row : rows) row.box.checked = false;
    cmdStampa.enabled = plainEditing();
}

void frmParametri::Check20_Click() {
    if (!Check20.checked()) {
        lockStaff();
        enableVersions(plainEditing());
        Combo1.enabled = true;
        txtDataEle.enabled = true;
        return;
    }
    cmdStampa.enabled = false;
    for (std::size_t at = 0; at < rows.size(); ++at) {
        if (!tariffRows[at].readOnly()) rows[at].box.checked = true;
    }
}

std::optional<RateTable> frmParametri::ratesOnScreen() {
    RateTable table;
    for (std::size_t at = 0; at < table.size(); ++at) {
        const auto rates = ratesOf(rows[at]);
        if (!rates) return std::nullopt;
        table[at] = *rates;
    }
    return table;
}

std::optional<TariffTable> frmParametri::tableOnScreen(std::string_view mark) {
    const auto shown = ratesOnScreen();
    if (!shown) return std::nullopt;
    TariffTable table;
    for (int at = 0; at < tariffRowCount; ++at) {
        const Rates& rates = (*shown)[static_cast<std::size_t>(at)];
        table.set(at, mark, {cents(rates.Day), cents(rates.Fn), cents(rates.Nf)});
    }
    return table;
}

void frmParametri::cmdSalva_Click() {
    if (Check46.checked()) {
        Conguagli();
        return;
    }
    const std::string mark(trim(Label31.text()));
    if (!storeStaff(pmDipFile, mark)) return;
    // Setting it first lets the clearing reach every row, also those opened one by one.
    Check20.checked = true;
    Check20.checked = false;
    if (mark == "/") salvanuove();
    if (mark == "\\") salvavecchie();
}

void frmParametri::salvanuove() {
    if (storeStaff(newPmDipFile, "/")) cmdSalvaNuove.visible = false;
}

void frmParametri::salvavecchie() {
    if (storeStaff(oldPmDipFile, "\\")) cmdSalvaVecchie.visible = false;
}

bool frmParametri::storeStaff(std::string_view file, std::string_view mark) {
    const auto table = tableOnScreen(mark);
    return table && wellDone(storeOnlyRecord(desk_.files, file, *table), desk_.desktop);
}

}  // namespace vorbano
