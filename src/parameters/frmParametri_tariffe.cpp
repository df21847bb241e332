// The staff's rates: the first tab of the parameter screen.

#include <string>

#include "parameters/frmParametri.h"
#include "screens/well_done.h"
#include "storage/numbers.h"
#include "storage/only_record.h"

namespace vorbano {

namespace {

/// Number of the check box that opens a row, by the row's key; in record order.
struct RowBox {
    std::string_view key;
    int number;
};
constexpr std::array<RowBox, tariffRowCount> rowBoxes = {{
    {"D5", 1},   {"D4", 2},   {"D3a", 3}, {"D3b", 4},  {"D2", 5},   {"D1", 6},   {"C4", 7},   {"C3", 8},
    {"C2", 9},   {"C1", 10},  {"B6", 11}, {"B5", 12},  {"B4a", 13}, {"B3a", 14}, {"B4b", 27}, {"B3b", 28},
    {"B2", 29},  {"B1", 30},  {"A4", 31}, {"A3", 32},  {"A2", 33},  {"A1", 34},  {"D6a", 35}, {"D6b", 39},
    {"D5b", 38}, {"D4b", 37}, {"C5", 40}, {"B7a", 41}, {"B7b", 44}, {"B6b", 43}, {"B5b", 42}, {"A5", 36},
}};
static_assert([] {
    for (std::size_t at = 0; at < rowBoxes.size(); ++at) {
        if (rowBoxes[at].key != tariffRows[at].key) return false;
    }
    return true;
}());

}  // namespace

void frmParametri::makeStaffPage() {
    for (std::size_t at = 0; at < tariffRows.size(); ++at) {
        const TariffRow& layout = tariffRows[at];
        RateRow& row = rows.emplace_back(staffPage, "Check" + std::to_string(rowBoxes[at].number), layout.grade,
                                         "txt" + std::string(layout.key));
        for (TextBox* field : row.fields()) makeCommaField(*field);
        // The box of a grade with a "G" deliberately does nothing: its rates come only with a version or a date.
        if (!layout.readOnly()) row.box.clicked.calls([this, &row] { openStaffRow(row); });
    }
    cmdSalva.enabled = false;
    Check20.clicked.calls(this, &frmParametri::Check20_Click);
    cmdSalva.clicked.calls(this, &frmParametri::cmdSalva_Click);
    cmdStampa.clicked.calls(this, &frmParametri::cmdStampa_Click);
}

void frmParametri::loadStaff() {
    const auto table = onlyRecord<TariffTable>(desk_.files, pmDipFile);
    if (table && !*table) {
        say("Bisogna inserire i dati dei compensi orari dei dipendenti");
        cmdSalva.enabled = true;
        Check20.checked = true;
        form.focus(rows.front().Day);
        return;
    }
    Check20.checked = false;
    // Rows opened one by one are closed too: what is shown from here on is what is stored.
    lockStaff();
    cmdSalva.enabled = false;
    if (!table) {
        wellDone(table.error(), desk_.desktop);
        return;
    }
    Label31.text = (*table)->mark(0);
    for (int row = 0; row < tariffRowCount; ++row) rows[static_cast<std::size_t>(row)].show((*table)->rates(row));
}

void frmParametri::openStaffRow(RateRow& row) {
    const bool open = row.box.checked();
    cmdStampa.enabled = !open;
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
    cmdStampa.enabled = true;
}

void frmParametri::Check20_Click() {
    if (!Check20.checked()) {
        lockStaff();
        return;
    }
    cmdStampa.enabled = false;
    for (std::size_t at = 0; at < rows.size(); ++at) {
        if (!tariffRows[at].readOnly()) rows[at].box.checked = true;
    }
}

std::optional<TariffTable> frmParametri::tableOnScreen(std::string_view mark) {
    TariffTable table;
    for (int at = 0; at < tariffRowCount; ++at) {
        const auto rates = ratesOf(rows[static_cast<std::size_t>(at)]);
        if (!rates) return std::nullopt;
        table.set(at, mark, {cents(rates->Day), cents(rates->Fn), cents(rates->Nf)});
    }
    return table;
}

void frmParametri::cmdSalva_Click() {
    const std::string mark(trim(Label31.text()));
    const auto table = tableOnScreen(mark);
    if (!table) return;
    if (!wellDone(storeOnlyRecord(desk_.files, pmDipFile, *table), desk_.desktop)) return;
    // Setting it first lets the clearing reach every row, also those opened one by one.
    Check20.checked = true;
    Check20.checked = false;
    if (mark == "/") salvanuove();
    if (mark == "\\") salvavecchie();
}

void frmParametri::salvanuove() {
    if (const auto table = tableOnScreen("/"))
        wellDone(storeOnlyRecord(desk_.files, newPmDipFile, *table), desk_.desktop);
}

void frmParametri::salvavecchie() {
    if (const auto table = tableOnScreen("\\"))
        wellDone(storeOnlyRecord(desk_.files, oldPmDipFile, *table), desk_.desktop);
}

}  // namespace vorbano
