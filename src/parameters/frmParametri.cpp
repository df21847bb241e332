#include "parameters/frmParametri.h"

#include <string>

namespace vorbano {

frmParametri::frmParametri(const Workplace& workplace) : desk_(workplace) {
    makeStaffPage();
    makeSecretariesPage();
    makeContributionsPage();
    form.activated.calls(this, &frmParametri::Form_Activate);
    SSTab1.turned.calls(this, &frmParametri::SSTab1_Click);
    Label31.change.calls(this, &frmParametri::Label31_Change);
    mnuEsci.clicked.calls(this, &frmParametri::mnuEsci_Click);
}

/// The first tab is loaded when the window is there, so that its message stands above it.
void frmParametri::Form_Activate() {
    if (opened_) return;
    opened_ = true;
    if (!Check20.checked()) loadStaff();
}

/// The tabs of the secretaries and of the contributions are loaded when the clerk opens them and not before.
void frmParametri::SSTab1_Click() {
    switch (SSTab1.page()) {
        case 0:
            return loadStaff();
        case 1:
            return loadSecretaries();
        default:
            return loadContributions();
    }
}

/// The banner follows the mark of the table on show; a table that belongs to no version leaves it as it is.
void frmParametri::Label31_Change() {
    const std::string mark(trim(Label31.text()));
    if (mark == "\\") {
        Label26.text = "\nSONO APPLICATE LE VECCHIE TARIFFE";
        Label26.tone = Tone::oldTariffs;
    } else if (mark == "/" || mark == "-") {
        Label26.text = "\nSONO APPLICATE LE    NUOVE TARIFFE";
        Label26.tone = Tone::newTariffs;
    }
}

void frmParametri::mnuEsci_Click() { form.close(); }

std::optional<Rates> frmParametri::ratesOf(RateRow& row) {
    std::array<Currency, 3> amounts;
    for (std::size_t at = 0; at < amounts.size(); ++at) {
        TextBox& field = *row.fields()[at];
        const auto amount = typedAmount(field.text());
        if (!amount) {
            refuse(std::string(trim(row.box.text())) + ", colonna " + std::string(rateHeadings[at]), row.box, field);
            return std::nullopt;
        }
        amounts[at] = *amount;
    }
    return Rates{amounts[0], amounts[1], amounts[2]};
}

void frmParametri::refuse(const std::string& where, CheckBox& box, TextBox& field) {
    say("Riga " + where + ": il testo \"" + field.text() + "\" non è un numero. Correggerlo e ripetere l'operazione.");
    // The text may stand in a row that was closed again since; opening it lets the clerk mend it.
    box.checked = true;
    form.focus(field);
}

void frmParametri::say(std::string_view text) {
    desk_.desktop.tell({std::string(text), "Parametri di riferimento", Icon::information});
}

}  // namespace vorbano
