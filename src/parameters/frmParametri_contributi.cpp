// The percentages of contributions: the third tab of the parameter screen.

#include <string>

#include "parameters/frmParametri.h"
#include "screens/well_done.h"
#include "storage/only_record.h"

namespace vorbano {

namespace {

/// A percentage of the record and what it is on the screen.
struct PercentageInfo {
    std::string_view box;
    std::string_view caption;
    std::string_view field;
    Currency ContribRates::*amount;
};
constexpr std::array<PercentageInfo, 4> percentageInfos = {{
    {"Check22", "Contributo previdenziale a carico Ente", "txtContrPrev", &ContribRates::ContrPrev},
    {"Check23", "IRAP a carico Ente", "txtIrapEnte", &ContribRates::IrapEnte},
    {"Check24", "Contributo Previdenziale a carico Dipendenti", "txtContrDip", &ContribRates::ContrDip},
    {"Check25", "Contributo Fondo Credito a carico Dipendenti", "txtFonCre", &ContribRates::FonCre},
}};

}  // namespace

void frmParametri::makeContributionsPage() {
    for (const PercentageInfo& info : percentageInfos) {
        Percentage& one = percentages.emplace_back(contributionsPage, info.box, info.caption, info.field);
        one.box.clicked.calls([this, &one] { openPercentage(one); });
    }
    cmdSalva2.enabled = false;
    Check26.clicked.calls(this, &frmParametri::Check26_Click);
    cmdSalva2.clicked.calls(this, &frmParametri::cmdSalva2_Click);
}

void frmParametri::loadContributions() {
    const auto rates = onlyRecord<ContribRates>(desk_.files, conprevFile);
    if (!rates) {
        wellDone(rates.error(), desk_.desktop);
        return;
    }
    if (!*rates) {
        say("Bisogna inserire i dati dei Contributi Previdenziali");
        cmdSalva2.enabled = true;
        Check26.checked = true;
        return;
    }
    for (std::size_t at = 0; at < percentages.size(); ++at)
        percentages[at].field.text = plainNumber(**rates.*percentageInfos[at].amount);
}

void frmParametri::openPercentage(Percentage& percentage) {
    percentage.field.enabled = percentage.box.checked();
    cmdSalva2.enabled = percentage.box.checked();
}

void frmParametri::Check26_Click() {
    for (Percentage& one : percentages) one.box.checked = Check26.checked();
    if (Check26.checked()) form.focus(percentages.front().field);
}

/// `Check26` stays as it is. Up to four decimals are kept: a percentage does not go through the picture of amounts.
void frmParametri::cmdSalva2_Click() {
    ContribRates rates{};
    for (std::size_t at = 0; at < percentages.size(); ++at) {
        Percentage& one = percentages[at];
        const auto amount = typedAmount(one.field.text());
        if (!amount) return refuse(one.box.text(), one.box, one.field);
        rates.*percentageInfos[at].amount = *amount;
    }
    wellDone(storeOnlyRecord(desk_.files, conprevFile, rates), desk_.desktop);
}

}  // namespace vorbano
