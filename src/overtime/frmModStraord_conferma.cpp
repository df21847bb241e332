// "Conferma": what the executed hours are paid; and the change of the grade.

#include <numeric>

#include "overtime/frmModStraord.h"
#include "records/tariff_records.h"
#include "storage/codepage.h"
#include "storage/numbers.h"
#include "storage/only_record.h"

namespace vorbano {

namespace {

/// The rows that also take "-" beside the grade, from 0.
constexpr std::array rowsWithDash = {tariffRowOf("D5"), tariffRowOf("D4"), tariffRowOf("B5b"), tariffRowOf("A5")};

}  // namespace

/// Executed hours by kind and in all, authorised hours in all.
void frmModStraord::sumHours() {
    std::int64_t authorised = 0;
    std::array<std::int64_t, hourKinds> executed{};
    for (const LiquidationPanel& shown : periods) {
        authorised += shown.authorisedHours();
        for (std::size_t kind = 0; kind < executed.size(); ++kind) {
            executed[kind] += wholeScan(shown.paid[kind].text());
        }
    }
    txtTotAut.text = std::to_string(authorised);
    for (std::size_t kind = 0; kind < executed.size(); ++kind) {
        executedFields()[kind]->text = std::to_string(executed[kind]);
    }
    txtTotEseg.text = std::to_string(std::accumulate(executed.begin(), executed.end(), std::int64_t{0}));
}

/// Only the two percentages at the charge of the employee follow the ones in force, and only if the clerk wants it;
/// those of the body deliberately stay as authorised. False when Conprev.dat cannot be read.
bool frmModStraord::ratesInForce() {
    const auto file = onlyRecord<ContribRates>(desk_.files, conprevFile);
    if (!file) return wellDone(file.error(), desk_.desktop);
    const auto& rates = *file;
    if (!rates) return true;
    const bool same = amountOrZero(Label43.text()) == rates->ContrDip && amountOrZero(Label47.text()) == rates->FonCre;
    if (same) return true;
    if (!desk_.desktop.ask({"Aliquote dei contributi modificate!\nApplicare aliquote in vigore?", "Aliquote contributi",
                            Icon::question})) {
        return true;
    }
    Label43.text = format(rates->ContrDip, Mask::percent);
    Label47.text = format(rates->FonCre, Mask::digits);
    return true;
}

void frmModStraord::cmdRicalcola_Click() {
    for (LiquidationPanel& shown : periods) shown.close();
    if (!showUsed()) return;
    sumHours();
    Amounts amounts;
    if (txtTotEseg.text() != "0") {
        if (!ratesInForce()) return;
        Hours executed{};
        std::array<Currency, hourKinds> rates{};
        for (std::size_t kind = 0; kind < executed.size(); ++kind) {
            executed[kind] = wholeScan(executedFields()[kind]->text());
            rates[kind] = amountOrZero(rateFields()[kind]->text());
        }
        amounts = liquidate(executed, rates,
                            {.CpStato = amountOrZero(Label37.text()),
                             .Irap = amountOrZero(Label38.text()),
                             .CpDip = amountOrZero(Label43.text()),
                             .FonCre = amountOrZero(Label47.text())});
    }
    showAmounts(amounts);
    go(Stage::toSave);
    Meirin();
}

void frmModStraord::cmdTariffe_Click() {
    const auto table = onlyRecord<TariffTable>(desk_.files, pmDipFile);
    if (!table) {
        wellDone(table.error(), desk_.desktop);
        return;
    }
    std::vector<Lines> rows;
    for (int row = 0; *table && row < tariffRowCount; ++row) {
        const Rates rates = (*table)->rates(row);
        rows.push_back({std::string(trimRight((*table)->grade(row))), format(rates.Day, Mask::amount),
                        format(rates.Fn, Mask::amount), format(rates.Nf, Mask::amount)});
    }
    MSFlexGrid2.setRows(std::move(rows));
    Frame26.visible = true;
    go(stage_);
    form.focus(MSFlexGrid2);
}

void frmModStraord::MSFlexGrid2_SelChange() {
    if (MSFlexGrid2.row < 1) return;
    Text2.text = MSFlexGrid2.cell(MSFlexGrid2.row, 0);
    const auto table = onlyRecord<TariffTable>(desk_.files, pmDipFile);
    if (!table) {
        wellDone(table.error(), desk_.desktop);
        return;
    }
    const int row = *table ? (*table)->find(Text2.text()) : -1;
    if (row >= 0) {
        const Rates rates = (*table)->rates(row);
        txtCompDf.text = format(rates.Day, Mask::amount);
        txtCompNof.text = format(rates.Fn, Mask::amount);
        txtCompNef.text = format(rates.Nf, Mask::amount);
        // Trimmed before it is cut to its seven characters, so that a "G" grade keeps its number.
        lblCat.text = std::string(trim(Text2.text()));
        if (std::ranges::find(rowsWithDash, row) != rowsWithDash.end()) lblCat2.text = std::string("-");
    }
    Frame26.visible = false;
    MSFlexGrid2.clear();
    go(Stage::toConfirm);
    form.focus(cmdRicalcola);
}

void frmModStraord::cmdChiudiTariffe_Click() {
    Frame26.visible = false;
    MSFlexGrid2.clear();
    updateEnabled();
    form.focus(cmdTariffe);
}

}  // namespace vorbano
