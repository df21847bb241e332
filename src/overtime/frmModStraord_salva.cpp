// IRPEF and INAIL of the election, and the storing of an employee.

#include "overtime/frmModStraord.h"
#include "overtime/rendi_kontrol.h"
#include "screens/typed_values.h"
#include "storage/codepage.h"
#include "storage/numbers.h"

namespace vorbano {

/// On the last employee the amounts of the whole election are asked for.
void frmModStraord::Meirin() {
    if (number_ == count_) {
        openIrpef(true);
    } else {
        form.focus(cmdSalva);
    }
}

void frmModStraord::openIrpef(bool firstEntry) {
    Label53.text = std::string(firstEntry ? "1" : "0");
    irpefOpen_ = true;
    updateEnabled();
    form.focus(txtIrpef);
}

void frmModStraord::cmdIrpefInail_Click() {
    if (openPeriod_ != 0 || Frame24.visible() || Frame26.visible()) return;
    if (Check1.checked()) {
        desk_.desktop.tell(
            {"Non e possibile inserire l'IRPEF e l'INAIL. E' attivata la modifica del nominativo del Dipendente.",
             "Modifica dati", Icon::warning});
        return;
    }
    // Changed hours are confirmed first, so that no amounts are stored that do not belong to them.
    if (stage_ == Stage::empty || stage_ == Stage::toConfirm) return;
    if (stage_ == Stage::shown) go(Stage::toSave);
    openIrpef(false);
}

void frmModStraord::irpefField_LostFocus(TextBox& field) {
    if (!irpefOpen_) return;
    const std::string typed(trim(field.text()));
    const auto amount = toCurrency(typed.empty() ? "0" : typed);
    if (!amount) {
        desk_.desktop.tell({"Inserire l'importo in euro.", "Errore", Icon::warning});
        form.focus(field);
        return;
    }
    field.text = format(*amount, Mask::amount);
}

Liquidation frmModStraord::onScreen() {
    Liquidation values = liquidationOf(*employee_);
    values.name = std::string(trim(txtNameDip.text()));
    for (std::size_t at = 0; at < periods.size(); ++at) {
        const LiquidationPanel& shown = periods[at];
        if (!shown.frame.visible()) continue;
        for (std::size_t kind = 0; kind < hourKinds; ++kind) {
            take(values.periods[at].authorised[kind], shown.authorised[kind].text());
            take(values.periods[at].paid[kind], shown.paid[kind].text());
        }
        take(values.periods[at].totalPaid, shown.totale.text());
    }
    take(values.totAut, txtTotAut.text());
    take(values.totEseg, txtTotEseg.text());
    for (std::size_t kind = 0; kind < hourKinds; ++kind) {
        take(values.executed[kind], executedFields()[kind]->text());
        takeCents(values.pay.rates[kind], rateFields()[kind]->text());
    }
    values.lblCat = trim(lblCat.text());
    values.lblCat2 = lblCat2.text();
    Pay& pay = values.pay;
    const std::initializer_list<std::pair<Currency*, const std::string*>> amounts = {
        {&pay.Dovuto, &txtDovuto.text()},
        {&pay.AliCpStato, &Label37.text()},
        {&pay.CpStato, &txtCpStato.text()},
        {&pay.AliIrap, &Label38.text()},
        {&pay.Irap, &txtIrap.text()},
        {&pay.TotaleSpesa, &txtTotaleSpesa.text()},
        {&pay.AliCpDip, &Label43.text()},
        {&pay.CpDip, &txtCpDip.text()},
        {&pay.AliFonCre, &Label47.text()},
        {&pay.FonCre, &txtFonCre.text()},
        {&pay.TotaleContr, &txtTotaleContr.text()},
    };
    for (const auto& [field, text] : amounts) takeCents(*field, *text);
    return values;
}

/// Any step can be done again after a failure further on: an employee whose hours are stored already adds none.
Result<> frmModStraord::store() {
    const Election stored = *loaded_;
    if (auto done = saveLiquidation(desk_.files, stored, late_, number_, onScreen()); !done) return done;
    ElectionAmounts amounts;
    takeCents(amounts.irpef, txtIrpef.text());
    takeCents(amounts.inail, txtInail.text());
    takeCents(amounts.inailUno, txtInailUno.text());
    takeCents(amounts.inailDue, txtInailDue.text());
    if (auto done = storeElectionAmounts(desk_.files, stored, amounts); !done) return done;
    return late_[0] ? Rendikontrol2(desk_.files, stored) : RendiKontrol(desk_.files, stored);
}

void frmModStraord::cmdSalva_Click() {
    if (wellDone(store(), desk_.desktop)) saved();
}

void frmModStraord::saved() {
    const bool corrected = !Label52.text().empty();
    const bool goOn = sequential_ || Check11.checked();
    if (!search(number_)) {
        // All is stored, but the disk does not show it: nothing old may stay on the screen.
        Cancella();
        return;
    }
    mayChangeGrade_ = false;
    mayContinue_ = goOn;
    updateEnabled();
    form.focus(cmdSuccessivo);
    if (corrected) {
        Label52.text = std::string();
        form.focus(cmdRicerca);
    }
    if (goOn) form.focus(cmdContinua);
}

}  // namespace vorbano
