#include "overtime/frmModDate.h"

#include "screens/date_entry.h"

namespace vorbano {

frmModDate::frmModDate(const Workplace& workplace) : desk_(workplace) {
    for (const ElectionType& type : electionTypes) Combo1.add(std::string(type.name));
    txtNumDip.locked = true;
    hangProcedures();
    clear();
}

void frmModDate::hangProcedures() {
    using This = frmModDate;
    mnuEsci.clicked.calls(this, &This::mnuEsci_Click);
    makeDateField(txtDataEle, desk_.desktop);
    // Type and date together decide which periods there are.
    txtDataEle.lostFocus.calls(this, &This::showLatePeriods);
    Combo1.clicked.calls(this, &This::showLatePeriods);
    cmdRicerca.clicked.calls(this, &This::cmdRicerca_Click);
    cmdRiavvia.clicked.calls(this, &This::cmdRiavvia_Click);

    for (TextBox* act : {&txtDataDecreto, &txtDataDetermina}) makeDateField(*act, desk_.desktop);
    Check6.clicked.calls([this] { act_Click(Check6, txtDataDecreto); });
    Check7.clicked.calls([this] { act_Click(Check7, txtDataDetermina); });
    cmdSalva2.clicked.calls(this, &This::cmdSalva2_Click);

    for (DateRow& row : rows) {
        row.modifica.clicked.calls([this, &row] { row_Click(row); });
        for (TextBox* field : {&row.dal, &row.al}) {
            field->change.calls([this, field, period = row.period] { periodDate_Change(*field, period); });
            field->lostFocus.calls([this, field] { periodDate_LostFocus(*field); });
        }
    }
    cmdModifica.clicked.calls(this, &This::cmdModifica_Click);
    cmdSalva.clicked.calls(this, &This::cmdSalva_Click);
    cmdStampa.clicked.calls(this, &This::cmdStampa_Click);
}

/// As the screen opens: an election can be looked for, and nothing else.
void frmModDate::clear() {
    found_.reset();
    forgetSituation();
    for (TextBox* act : {&txtDataDecreto, &txtDataDetermina}) {
        act->text = std::string();
        act->locked = true;
    }
    for (CheckBox* box : {&Check6, &Check7}) box->checked = false;
    for (std::size_t at = 0; at < rows.size(); ++at) {
        rows[at].modifica.checked = false;
        rows[at].setSpan({});
        lines[at].indi.text = std::string();
        lines[at].mens.text = std::string();
    }
    for (Frame* frame : {&Frame2, &Frame4}) frame->enabled = false;
    for (Button* command : {&cmdRiavvia, &cmdSalva2, &cmdModifica}) command->enabled = false;
    Combo1.enabled = true;
    Combo1.selection = -1;
    Combo1.text = std::string();
    txtDataEle.locked = false;
    txtDataEle.text = std::string();
    txtNumDip.text = std::string();
    cmdRicerca.enabled = true;
    showLatePeriods();
}

void frmModDate::cmdRiavvia_Click() {
    clear();
    form.focus(Combo1);
}

void frmModDate::mnuEsci_Click() { form.close(); }

}  // namespace vorbano
