#include "statement/frmInsRend.h"

#include "screens/election_choice.h"

namespace vorbano {

frmInsRend::frmInsRend(const Workplace& workplace) : StatementScreen(entryTerms, workplace) {
    cmdAnteprima->clicked.calls(this, &frmInsRend::cmdAnteprima_Click);
}

void frmInsRend::cmdAnteprima_Click() {
    if (const Control* missing = emptyForSearch(Combo1, txtDataEle)) {
        desk_.desktop.tell({"Dati insufficienti per l'inserimento", "Inserimento Rendiconto", Icon::warning});
        form.focus(missing == &Combo1 ? Combo1 : Combo2);
        return;
    }
    clearLines();
    go(Stage::choosing);
    const auto inserted = hasStatement(desk_.files, election());
    if (!inserted || row() == nullptr) {
        tellNothingFound();
        return;
    }
    if (*inserted) {
        desk_.desktop.tell({"Rendiconto già inserito", "Rendiconto", Icon::warning});
        form.focus(Combo1);
        return;
    }
    // The other types begin with no division chosen.
    if (row()->jointReferendum) Option1.checked = true;
    if (const auto sources = readSources()) straordinari(*sources);
}

/// Shows what was fetched and opens the lines.
void frmInsRend::straordinari(const Sources& sources) {
    using A = StatementAmounts;
    show(&A::onorari, sources.onorari);
    show(&A::speciali, sources.speciali);
    if (row()->overtime == OvertimeCharge::byPeriod) {
        const DividedOvertime divided = divideByPeriod(sources.overtime);
        show(&A::straordinario, divided.common);
        show(&A::carico, divided.first);
        show(&A::carico2, divided.second);
    } else {
        show(&A::straordinario, sources.overtime.whole);
        show(&A::carico, {});
    }
    const bool fromIndennita = row()->first == FirstField::indennita;
    if (fromIndennita) show(&A::indennita, {});
    go(Stage::open);
    TextBox& first = fromIndennita ? txtIndennità : txtStampanti;
    form.focus(txtCarico.takesFocus() ? txtCarico : first);
}

}  // namespace vorbano
