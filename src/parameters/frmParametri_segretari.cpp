// The rates of the municipal secretaries: the second tab of the parameter screen.

#include <string>

#include "parameters/frmParametri.h"
#include "screens/well_done.h"
#include "storage/numbers.h"
#include "storage/only_record.h"

namespace vorbano {

namespace {

/// The boxes of the five rows have consecutive numbers from here.
constexpr int firstSecretaryBox = 15;

}  // namespace

void frmParametri::makeSecretariesPage() {
    for (const SecretaryRowInfo& info : secretaryRows) {
        const auto number = firstSecretaryBox + static_cast<int>(secretaries.size());
        RateRow& row = secretaries.emplace_back(secretariesPage, "Check" + std::to_string(number), info.caption,
                                                std::string(info.stem));
        row.box.clicked.calls([this, &row] { openSecretaryRow(row); });
    }
    cmdSalva1.enabled = false;
    Check21.clicked.calls(this, &frmParametri::Check21_Click);
    cmdSalva1.clicked.calls(this, &frmParametri::cmdSalva1_Click);
    cmdStampa1.clicked.calls(this, &frmParametri::cmdStampa1_Click);
}

void frmParametri::loadSecretaries() {
    const auto tariff = onlyRecord<SecretaryTariff>(desk_.files, pmSegFile);
    if (!tariff) {
        wellDone(tariff.error(), desk_.desktop);
        return;
    }
    if (!*tariff) {
        say("Bisogna inserire i dati dei compensi orari dei Segretari Comunali");
        cmdSalva1.enabled = true;
        Check21.checked = true;
        return;
    }
    for (std::size_t at = 0; at < secretaries.size(); ++at) secretaries[at].show((*tariff)->rows[at].rates);
}

void frmParametri::openSecretaryRow(RateRow& row) {
    const bool open = row.box.checked();
    cmdStampa1.enabled = !open;
    row.enableFields(open);
    if (open) form.focus(row.Day);
    cmdSalva1.enabled = open;
}

void frmParametri::Check21_Click() {
    const bool open = Check21.checked();
    for (RateRow& row : secretaries) row.box.checked = open;
    cmdStampa1.enabled = !open;
    cmdSalva1.enabled = open;
    if (open) form.focus(secretaries.front().Day);
}

/// `Check21` stays as it is: the rows remain open after saving.
void frmParametri::cmdSalva1_Click() {
    SecretaryTariff tariff{};
    for (std::size_t at = 0; at < secretaries.size(); ++at) {
        const auto rates = ratesOf(secretaries[at]);
        if (!rates) return;
        tariff.rows[at].Caption = secretaries[at].box.text();
        tariff.rows[at].rates = {cents(rates->Day), cents(rates->Fn), cents(rates->Nf)};
    }
    wellDone(storeOnlyRecord(desk_.files, pmSegFile, tariff), desk_.desktop);
}

}  // namespace vorbano
