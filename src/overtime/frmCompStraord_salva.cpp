// Storing an employee, and going on to the next.

#include "overtime/employee_removal.h"
#include "overtime/frmCompStraord.h"
#include "screens/typed_values.h"
#include "screens/well_done.h"
#include "storage/dates.h"
#include "storage/numbers.h"

namespace vorbano {

void frmCompStraord::cmdSalva_Click() {
    if (trim(txtNameDip.text()).empty()) {
        desk_.desktop.tell({"Inserire il nominativo", "Errore", Icon::warning});
        form.focus(txtNameDip);
        return;
    }
    if (!wellDone(makeElectionFolder(desk_.files, election()), desk_.desktop)) return;
    if (wellDone(storeEmployee(), desk_.desktop)) closeEntry();
}

/// The employee's record comes last: whatever fails before, the employee is not stored and "Salva" does all of it
/// again.
Result<> frmCompStraord::storeEmployee() {
    auto employees = openEmployees();
    if (!employees) return employees.error();
    const auto count = employees->count();
    if (!count) return count.error();
    // The buffer holds the last record, so an employee added after the liquidation carries on its hours used.
    EmployeeRecord record;
    if (*count > 0) {
        const auto last = employees->read(*count);
        if (!last) return last.error();
        record = *last;
    }
    record.pools.MoUtil = std::max<std::int16_t>(record.pools.MoUtil, 0);
    fillRecord(record);
    // Pressed again after a failure half way, it overwrites its own record instead of storing the employee twice.
    if (storedNumber_ == 0) storedNumber_ = *count + 1;
    if (auto stored = storeName(); !stored) return stored;
    if (auto stored = SalvaMeirin(); !stored) return stored;
    if (storedNumber_ == 1) {
        if (auto stored = InsDate(); !stored) return stored;
    }
    return employees->write(storedNumber_, record);
}

void frmCompStraord::fillRecord(EmployeeRecord& record) const {
    take(record.pools.MonteOre, txtMonteOre.text());
    take(record.pools.MoGlob, txtMoGlob.text());
    take(record.pools.Globo, txtGlobo.text());
    take(record.pools.SonoDip, txtSonoDip.text());
    take(record.pools.NumDip, txtNumDip.text());
    record.name = trim(txtNameDip.text());
    for (std::size_t at = 0; at < periods.size(); ++at) {
        const PeriodPanel& panel = periods[at];
        PeriodBlock& block = record.periods[at];
        block.from = reformatDate(panel.dal.text());
        block.to = reformatDate(panel.al.text());
        take(block.authorised[0], panel.feriali.text());
        take(block.authorised[1], panel.festive.text());
        take(block.authorised[2], panel.nottFest.text());
        block.paid = {};
        block.totalPaid = 0;
    }
    take(record.totAut, txtTotAut.text());
    record.executed = {};
    record.totEseg = 0;
    record.lblCat = lblCat.text();
    record.lblCat2 = lblCat2.text();
    const auto rates = record.pay.rates;
    record.pay = {};
    record.pay.rates = rates;
    takeCents(record.pay.rates[0], txtCompDf.text());
    takeCents(record.pay.rates[1], txtCompNof.text());
    takeCents(record.pay.rates[2], txtCompNef.text());
    takeCents(record.pay.AliCpStato, Label37.text());
    takeCents(record.pay.AliIrap, Label38.text());
    takeCents(record.pay.AliCpDip, Label43.text());
    takeCents(record.pay.AliFonCre, Label47.text());
    // The fourth and fifth period have no file here: their panels are never on show.
}

/// Keeps the name in Dipend.dat: under the record being edited, or, when it is not there yet, at the end.
Result<> frmCompStraord::storeName() {
    auto names = RecordFile<NameRecord>::open(desk_.files, dipendFile);
    if (!names) return names.error();
    NameRecord record;
    record.name = trim(txtNameDip.text());
    bool known = false;
    auto seen = names->scan(
        [&](int, const NameRecord& stored) { known = known || stored.name.trimmed() == record.name.trimmed(); });
    if (!seen) return seen;
    const int edited = correctingName_ ? wholeScan(Label88.text()) : 0;
    if (edited == 0 && known) return {};
    if (auto stored = edited > 0 ? names->write(edited, record) : names->append(record); !stored) return stored;
    if (edited > 0) Label88.text = std::string();
    Dipendenti();
    return {};
}

/// The limits of the periods; what the liquidation and the payments put there stays.
Result<> frmCompStraord::SalvaMeirin() {
    const auto path = election().file(meirinFile);
    if (!path) return path.error();
    const auto stored = onlyRecord<MeirinRecord>(desk_.files, *path);
    if (!stored) return stored.error();
    MeirinRecord record = stored->value_or(MeirinRecord{});
    for (std::size_t at = 0; at < periods.size(); ++at) {
        take(record.average[at], periods[at].medio.text());
        take(record.pool[at], periods[at].mensile.text());
        // A freshly authorised election stands in liquidation; the clerk switches a period back for corrections.
        record.state[at] = 1;
    }
    return storeOnlyRecord(desk_.files, *path, record);
}

Result<> frmCompStraord::InsDate() {
    if (auto made = makeElectionFolder(desk_.files, election()); !made) return made;
    const auto path = election().file(duedateFile);
    if (!path) return path.error();
    DuedateRecord record;
    record.decreto = Label93.text();
    record.determina = Label94.text();
    return storeOnlyRecord(desk_.files, *path, record);
}

/// The pools of a changed number of employees go to every record of the election.
Result<> frmCompStraord::adding() {
    return rewriteEmployees(desk_.files, election(), [this](int, EmployeeRecord& record) {
        take(record.pools.NumDip, txtNumDip.text());
        take(record.pools.MonteOre, txtMonteOre.text());
        take(record.pools.MoUtil, txtMoUtil.text());
        take(record.pools.MoGlob, txtMoGlob.text());
        take(record.pools.Globo, txtGlobo.text());
        return true;
    });
}

/// The employee is stored: everything is locked until "Continua", or for good when it was the last.
void frmCompStraord::closeEntry() {
    const bool isLast = numDip() == wholeScan(txtSonoDip.text());
    cmdAggiungi.enabled = !isLast;
    if (isLast) Label64.text = std::string("Calcolo Terminato");
    cmdStampe.enabled = cmdStampe.enabled() || isLast;
    lockName();
    entryOpen_ = false;
    storedNumber_ = 0;
    correctingName_ = false;
    form.focus(isLast ? cmdStampe : cmdAggiungi);
}

void frmCompStraord::cmdAggiungi_Click() {
    const auto stored = readElection();
    if (!stored) {
        wellDone(stored.error(), desk_.desktop);
        return;
    }
    if (numDip() == wholeScan(txtSonoDip.text())) {
        cmdAggiungi.enabled = false;
        Label64.text = std::string("Calcolo Terminato");
    }
    storedNumber_ = 0;
    if (stored->count > 0) txtSonoDip.text = std::to_string(stored->last.pools.SonoDip);
    if (wholeScan(txtSonoDip.text()) >= numDip()) {
        const bool more = desk_.desktop.ask({"Si vuole aggiungere un altro dipendente oltre il limite prefissato?",
                                             "Inserimento Dipendenti", Icon::question});
        if (!more) {
            txtSonoDip.text = std::to_string(wholeScan(txtSonoDip.text()) - 1);
            // Nobody is entered under the number that is shown now.
            lockName();
            entryOpen_ = false;
            return;
        }
    }
    Label64.text = std::string();
    clearEntry();
    txtSonoDip.text = std::to_string(wholeScan(txtSonoDip.text()) + 1);
    cmdAggiungi.enabled = false;
    computeFigures();
    openName();
}

}  // namespace vorbano
