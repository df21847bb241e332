// Lists of the employees by name, and the correction of a name.

#include "overtime/frmModStraord.h"
#include "storage/codepage.h"

namespace vorbano {

namespace {

constexpr std::size_t blanksAfterName = 10;

}  // namespace

void frmModStraord::Check11_Click() {
    cmbNome.clear();
    if (Check11.checked() && !vedonome()) Check11.checked = false;
    updateEnabled();
}

/// A line for each employee in the order of the file: the place of a line is the employee's number, so two of one name
/// are told apart.
bool frmModStraord::vedonome() {
    if (!electionIsGiven()) return false;
    const Election named = election();
    const auto count = searchElection(desk_.files, named);
    if (!count || *count == 0) {
        tellNotFound(count ? Error{Failure::missingFolder, named.type} : count.error());
        return false;
    }
    const auto staff = readStaff(desk_.files, named, {});
    if (!staff) return wellDone(staff.error(), desk_.desktop);
    Lines names;
    for (const StoredEmployee& employee : *staff) {
        names.push_back(employee.record.name.trimmed() + std::string(blanksAfterName, ' '));
    }
    cmbNome.items = std::move(names);
    return true;
}

void frmModStraord::cmbNome_Click() {
    sequential_ = false;
    mayContinue_ = false;
    search(cmbNome.selection() + 1);
}

void frmModStraord::cmdRicerca2_Click() {
    if (!electionIsGiven()) return;
    const auto count = searchElection(desk_.files, election());
    if (!count || *count == 0) {
        tellNotFound(count ? Error{Failure::missingFolder, election().type} : count.error());
        return;
    }
    const LateInUse late = lateInUse(election(), PeriodRule::stampe);
    Option4.visible = late[0];
    Option5.visible = late[1];
    Frame25.visible = true;
    if (Option1.checked()) {
        elencami(1);
    } else {
        Option1.checked = true;
    }
    form.focus(MSFlexGrid1);
}

void frmModStraord::elencami(int period) {
    const LateInUse late = lateInUse(election(), PeriodRule::stampe);
    const auto lines = vorbano::elencami(desk_.files, election(), late, period, HoursShown::authorised);
    if (!lines) {
        MSFlexGrid1.clear();
        wellDone(lines.error(), desk_.desktop);
        return;
    }
    std::vector<Lines> rows;
    for (const HoursLine& line : *lines) {
        Lines row{line.name};
        for (const std::int64_t hours : line.hours) row.push_back(std::to_string(hours));
        row.push_back(std::to_string(line.total));
        rows.push_back(std::move(row));
    }
    MSFlexGrid1.setRows(std::move(rows));
}

/// A row calls up its employee; heading and "Totali" are nobody.
void frmModStraord::MSFlexGrid1_SelChange() {
    const int number = MSFlexGrid1.row;
    if (number < 1 || number >= MSFlexGrid1.rows()) return;
    sequential_ = false;
    mayContinue_ = false;
    if (search(number)) cmdChiudiElenco_Click();
}

void frmModStraord::cmdChiudiElenco_Click() {
    Frame25.visible = false;
    form.focus(cmdRicerca2);
}

void frmModStraord::Check1_Click() {
    if (Check1.checked()) {
        go(stage_);
        form.focus(txtNameDip);
        return;
    }
    if (employee_) txtNameDip.text = employee_->record.name.trimmed();
    updateEnabled();
}

void frmModStraord::cmdSalva2_Click() {
    const std::string name(trim(txtNameDip.text()));
    if (name.empty()) {
        desk_.desktop.tell({"Inserire il nominativo", "Errore", Icon::warning});
        form.focus(txtNameDip);
        return;
    }
    if (!wellDone(storeEmployeeName(desk_.files, *loaded_, number_, name), desk_.desktop)) return;
    employee_->record.name = name;
    Check1.checked = false;
    if (Check11.checked()) {
        cmbNome.clear();
        if (vedonome()) showInNames();
    }
    form.focus(Check1);
}

}  // namespace vorbano
