#include "overtime/frmCompStraord.h"

#include "screens/date_entry.h"
#include "screens/election_choice.h"
#include "screens/well_done.h"
#include "storage/numbers.h"

namespace vorbano {

frmCompStraord::frmCompStraord(const Workplace& workplace) : desk_(workplace) {
    Combo1.items = Lines(electionTypesForAuthorisation.begin(), electionTypesForAuthorisation.end());
    lockAll();
    hangProcedures();
}

void frmCompStraord::hangProcedures() {
    using This = frmCompStraord;
    form.activated.calls(this, &This::Form_Activate);
    mnuDate.clicked.calls(this, &This::mnuDate_Click);
    mnuNome.clicked.calls(this, &This::mnuNome_Click);
    mnuNumero.clicked.calls(this, &This::mnuNumero_Click);
    mnuDipendenti.clicked.calls(this, &This::mnuDipendenti_Click);
    mnuEsci.clicked.calls(this, &This::mnuEsci_Click);

    makeDateField(txtDataEle, desk_.desktop);
    txtNumDip.lostFocus.calls(this, &This::txtNumDip_LostFocus);
    cmdAttiva.clicked.calls(this, &This::cmdAttiva_Click);
    txtMoUtil.change.calls(this, &This::txtMoUtil_Change);
    txtGlobo.change.calls(this, &This::txtGlobo_Change);

    makeDateField(txtDataDecreto, desk_.desktop);
    makeDateField(txtDataDetermina, desk_.desktop);
    cmdConferma.clicked.calls(this, &This::cmdConferma_Click);
    cmdAnnulla.clicked.calls(this, &This::cmdAnnulla_Click);
    for (const PeriodDates& row : periodDates()) hangPeriodDates(row);
    Command1.clicked.calls(this, &This::Command1_Click);
    cmdDisattiva.clicked.calls(this, &This::cmdDisattiva_Click);

    Check3.clicked.calls(this, &This::Check3_Click);
    cboDipendenti.clicked.calls(this, &This::cboDipendenti_Click);
    for (int period = 1; period <= 3; ++period) hangHours(period);
    CmdRiepilogo.clicked.calls(this, &This::CmdRiepilogo_Click);
    Check1.clicked.calls(this, &This::Check1_Click);
    Check2.clicked.calls(this, &This::Check2_Click);
    cmdTariffe.clicked.calls(this, &This::cmdTariffe_Click);
    MSFlexGrid1.picked.calls(this, &This::MSFlexGrid1_SelChange);
    cmdCalcola.clicked.calls(this, &This::cmdCalcola_Click);

    cmdSalva.clicked.calls(this, &This::cmdSalva_Click);
    cmdAggiungi.clicked.calls(this, &This::cmdAggiungi_Click);
    cmdStampe.clicked.calls(this, &This::cmdStampe_Click);

    List1.clicked.calls(this, &This::List1_Click);
    cmdElenco.clicked.calls(this, &This::cmdElenco_Click);
    Command2.clicked.calls(this, &This::Command2_Click);
    Command3.clicked.calls(this, &This::Command3_Click);
}

/// At the start only type, date and number of employees can be entered.
void frmCompStraord::lockAll() {
    for (Frame* frame : {&Frame9, &Frame20, &Frame3, &Frame7, &Frame13, &Frame16, &Frame18}) frame->visible = false;
    for (Label* label : {&Label91, &Label92, &Label93, &Label94}) label->visible = false;
    for (TextBox* field : {&txtMonteOre, &txtMoGlob, &txtGlobo, &txtMoUtil, &txtRestante, &txtSonoDip, &txtTotAut,
                           &txtCompDf, &txtCompNof, &txtCompNef}) {
        field->locked = true;
    }
    for (Button* command : {&cmdAggiungi, &cmdStampe}) command->enabled = false;
    for (MenuEntry* entry : {&mnuDate, &mnuNome, &mnuNumero}) entry->enabled = false;
    lockName();
}

/// When the window comes up: the names of the staff and the percentages in force.
void frmCompStraord::Form_Activate() {
    if (cameUp_) return;
    cameUp_ = true;
    Dipendenti();
    const auto file = onlyRecord<ContribRates>(desk_.files, conprevFile);
    if (!wellDone(file ? Result<>() : file.error(), desk_.desktop)) {
        mnuModifica.enabled = false;
        mnuDipendenti.enabled = false;
        return;
    }
    const auto& rates = *file;
    if (!rates) {
        desk_.desktop.tell({"Mancano i parametri per le ritenute previdenziali ed assistenziali per il calcolo",
                            "Attenzione!", Icon::warning});
        mnuModifica.enabled = false;
        mnuDipendenti.enabled = false;
        return;
    }
    Label37.text = format(rates->ContrPrev, Mask::percent);
    Label38.text = format(rates->IrapEnte, Mask::percent);
    Label43.text = format(rates->ContrDip, Mask::percent);
    Label47.text = format(rates->FonCre, Mask::digits);
}

Election frmCompStraord::election() const { return electionIn(Combo1, txtDataEle); }

Result<RecordFile<EmployeeRecord>> frmCompStraord::openEmployees() {
    const auto path = election().employeeFile();
    if (!path) return path.error();
    return RecordFile<EmployeeRecord>::open(desk_.files, *path);
}

Result<frmCompStraord::StoredElection> frmCompStraord::readElection() {
    StoredElection stored;
    const auto employees = openEmployees();
    if (!employees) {
        if (employees.error().kind == Failure::missingFolder) return stored;
        return employees.error();
    }
    const auto count = employees->count();
    if (!count) return count.error();
    if (*count == 0) return stored;
    const auto first = employees->read(1);
    if (!first) return first.error();
    const auto last = employees->read(*count);
    if (!last) return last.error();
    return StoredElection{*count, *first, *last};
}

int frmCompStraord::numDip() const { return wholeScan(txtNumDip.text()); }

/// The periods can be changed; `Command1` then carries the new dates to every record.
void frmCompStraord::mnuDate_Click() {
    const auto rows = periodDates();
    for (std::size_t at = 0; at < rows.size(); ++at) {
        const PeriodPanel& panel = periods[at];
        rows[at].annulla.checked = panel.isExcluded();
        rows[at].dal.text = panel.dal.text();
        rows[at].al.text = panel.al.text();
    }
    for (PeriodPanel& panel : periods) panel.clearFigures();
    txtGlobo.text = std::string();
    Label58.text = std::string("D");
    lockName();
    // One variation at a time, and nobody is added before it is done.
    for (MenuEntry* entry : {&mnuDate, &mnuNome, &mnuNumero}) entry->enabled = false;
    mayContinue_ = cmdAggiungi.enabled();
    cmdAggiungi.enabled = false;
    Frame20.visible = true;
    cmdDisattiva.visible = true;
    form.focus(rows[0].dal.isLocked() ? static_cast<Control&>(rows[0].annulla) : rows[0].dal);
}

/// Name, hours and rates of the employee on show can be entered again, until it is stored.
void frmCompStraord::mnuNome_Click() {
    correctingName_ = true;
    returnToName();
}

void frmCompStraord::mnuNumero_Click() {
    txtNumDip.locked = false;
    cmdAttiva.enabled = true;
    cmdAttiva.text = std::string("Attiva");
    Label67.text = std::string("N");
    lockName();
    // One variation at a time, and nobody is added before it is done.
    for (MenuEntry* entry : {&mnuDate, &mnuNome}) entry->enabled = false;
    cmdAggiungi.enabled = false;
    for (PeriodPanel& panel : periods) panel.clearFigures();
    for (TextBox* field : {&txtMonteOre, &txtMoGlob, &txtGlobo}) field->text = std::string();
    form.focus(txtNumDip);
}

void frmCompStraord::mnuEsci_Click() { form.close(); }

void frmCompStraord::cmdStampe_Click() { desk_.screens.open("frmTutteStampe"); }

}  // namespace vorbano
