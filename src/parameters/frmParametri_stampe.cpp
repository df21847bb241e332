// The two tables of rates on paper.

#include <string>

#include "parameters/frmParametri.h"
#include "screens/well_done.h"

namespace vorbano {

namespace {

/// The rows printed, in the order of the grades and without those with a "G".
constexpr std::array<std::string_view, 27> printedKeys = {"D3a", "D6b", "D5b", "D4b", "D3b", "D2",  "D1",  "D4",  "C5",
                                                          "C4",  "C3",  "C2",  "C1",  "D5",  "B7b", "B6b", "B5b", "B4b",
                                                          "B3b", "B2",  "B1",  "D6a", "A5",  "A4",  "A3",  "A2",  "A1"};

}  // namespace

void frmParametri::cmdStampa_Click() {
    std::vector<Row> lines;
    for (const std::string_view key : printedKeys) {
        RateRow& row = rows[static_cast<std::size_t>(tariffRowOf(key))];
        auto line = printedLine(row, {"Diurno", "FestNo", "NottFe"});
        if (!line) return;
        lines.push_back(line->setText("Categoria", row.box.text()).setText("Exqualifica", "-"));
    }
    print("Tabella1", lines, "tariffe.rpt");
}

void frmParametri::cmdStampa1_Click() {
    std::vector<Row> lines;
    for (RateRow& row : secretaries) {
        auto line = printedLine(row, {"DiurnaFer", "NottorFes", "NottendFes"});
        if (!line) return;
        lines.push_back(line->setText("Qualifica", row.box.text()));
    }
    print("Tabella2", lines, "tariffe2.rpt");
}

std::optional<Row> frmParametri::printedLine(RateRow& row, const std::array<std::string_view, 3>& columns) {
    const auto rates = ratesOf(row);
    if (!rates) return std::nullopt;
    const auto number = [](Currency amount) { return Value(static_cast<double>(amount.units()) / 10'000); };
    Row line;
    line.set(columns[0], number(rates->Day)).set(columns[1], number(rates->Fn)).set(columns[2], number(rates->Nf));
    return line;
}

void frmParametri::print(std::string_view table, const std::vector<Row>& lines, std::string_view layout) {
    Database& staging = desk_.staging;
    Result<> done = staging.begin();
    for (const Row& line : lines) {
        if (!done) break;
        done = staging.append(table, line);
    }
    // Also after a failure: what was begun must end before the rows are taken away.
    const Result<> committed = staging.commit();
    if (done) done = committed;
    if (done) done = desk_.printing.run({std::string(layout), "", Destination::preview});
    const Result<> emptied = staging.removeAll(table);
    wellDone(done ? emptied : done, desk_.desktop);
}

}  // namespace vorbano
