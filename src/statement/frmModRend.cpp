#include "statement/frmModRend.h"

#include "screens/election_choice.h"

namespace vorbano {

frmModRend::frmModRend(const Workplace& workplace) : StatementScreen(correctionTerms, workplace) {
    cmdRicerca->clicked.calls(this, &frmModRend::cmdRicerca_Click);
    Check1->clicked.calls(this, &frmModRend::Check1_Click);
}

void frmModRend::cmdRicerca_Click() {
    if (emptyForSearch(Combo1, txtDataEle) != nullptr) {
        form.focus(Combo1);
        return;
    }
    clearLines();
    go(Stage::choosing);
    if (row() == nullptr) {
        tellNothingFound();
        return;
    }
    // What stations and overtime say today gives way to the record; but they must answer.
    if (!readSources()) return;
    const auto stored = readStatement(desk_.files, election(), *row());
    if (!stored) {
        tellNothingFound();
        return;
    }
    if (hasPrintedChoice(*row())) (stored->printedTyped ? Option2 : Option1).checked = true;
    if (row()->postal != PostalExpenses::whole) (stored->postalTyped ? Option3 : Option4).checked = true;
    showAll(stored->amounts);
    go(Stage::shown);
    form.focus(*Check1);
}

void frmModRend::Check1_Click() {
    if (!Check1->enabled()) return;
    go(Check1->checked() ? Stage::open : Stage::shown);
    form.focus(txtIndennità);
}

}  // namespace vorbano
