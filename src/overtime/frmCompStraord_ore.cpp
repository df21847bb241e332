// The employee on show: name, authorised hours by period, hourly rates.

#include <algorithm>
#include <limits>

#include "overtime/frmCompStraord.h"
#include "overtime/pay.h"
#include "screens/well_done.h"
#include "storage/dates.h"
#include "storage/numbers.h"

namespace vorbano {

namespace {

using HoursByPeriod = std::array<std::int64_t, 3>;

/// Authorised hours of all stored employees, by period; none of an election that is not stored yet.
Result<HoursByPeriod> storedHours(const Result<RecordFile<EmployeeRecord>>& employees) {
    HoursByPeriod sums{};
    if (!employees) {
        if (employees.error().kind == Failure::missingFolder) return sums;
        return employees.error();
    }
    const auto done = employees->scan([&](int, const EmployeeRecord& record) {
        for (std::size_t at = 0; at < sums.size(); ++at) {
            for (const Integer hours : record.periods[at].authorised) sums[at] += hours;
        }
    });
    if (!done) return done.error();
    return sums;
}

/// A file of ours never comes near the limit.
int held(std::int64_t hours) {
    using Limits = std::numeric_limits<int>;
    return static_cast<int>(std::clamp<std::int64_t>(hours, Limits::min(), Limits::max()));
}

std::string rateText(Currency rate) { return format(rate, Mask::amount); }

}  // namespace

/// Limits, pools and averages of the periods, the hours already authorised, and the sum of the pools in force.
void frmCompStraord::computeFigures() {
    const auto stored = storedHours(openEmployees());
    if (!stored) wellDone(stored.error(), desk_.desktop);
    const HoursByPeriod used = stored.valueOr({});
    const int hours = wholeScan(txtMonteOre.text());
    std::int64_t globo = latePools_;
    for (std::size_t at = 0; at < periods.size(); ++at) {
        PeriodPanel& panel = periods[at];
        panel.clearFigures();
        if (panel.isExcluded()) {
            panel.exclude();
            continue;
        }
        const auto days = countedDays(panel.dal.text(), panel.al.text());
        if (!days) continue;
        const auto figures = periodFigures(static_cast<int>(at) + 1, *days, hours, numDip());
        panel.show(figures);
        panel.utilizzato.text = std::to_string(used[at]);
        globo += figures.pool;
    }
    txtGlobo.text = format(static_cast<double>(globo), Mask::whole);
    if (txtMoUtil.text().empty()) txtMoUtil.text = std::string("0");
}

void frmCompStraord::openName() {
    entryOpen_ = true;
    closeRates();
    txtNameDip.locked = false;
    cboDipendenti.enabled = true;
    Check3.enabled = true;
    for (MenuEntry* entry : {&mnuDate, &mnuNome, &mnuNumero}) entry->enabled = true;
    openFirstPeriod();
    form.focus(txtNameDip);
}

/// Back from a variation. An employee who is stored already waits for "Continua", so that nobody is stored twice.
void frmCompStraord::returnToName() {
    const bool stored = !entryOpen_;
    openName();
    if (!stored) return;
    for (PeriodPanel& panel : periods) panel.unlockHours(false);
    CmdRiepilogo.enabled = false;
    entryOpen_ = false;
}

void frmCompStraord::lockName() {
    txtNameDip.locked = true;
    cboDipendenti.enabled = false;
    Check3.enabled = false;
    for (PeriodPanel& panel : periods) panel.unlockHours(false);
    closeRates();
}

/// From the total of the hours on, nothing can be done until the hours are accepted (again).
void frmCompStraord::closeRates() {
    for (CheckBox* box : {&Check1, &Check2}) {
        box->checked = false;
        box->enabled = false;
    }
    Frame3.visible = false;
    openRates(false);
    for (Button* command : {&CmdRiepilogo, &cmdTariffe, &cmdSalva}) command->enabled = false;
}

/// Room for the next employee: the name, and the hours of the periods that take part.
void frmCompStraord::clearEntry() {
    if (correctingName_) Label88.text = std::string();
    correctingName_ = false;
    Check3.checked = false;
    cboDipendenti.selection = -1;
    cboDipendenti.text = std::string();
    txtNameDip.text = std::string();
    txtTotAut.text = std::string();
    for (PeriodPanel& panel : periods) {
        if (!panel.isExcluded()) panel.clearHours();
    }
}

/// "Nuovo dipendente": the name is typed instead of chosen.
void frmCompStraord::Check3_Click() {
    if (!Check3.checked()) return;
    Frame20.visible = false;
    cmdDisattiva.visible = false;
    for (const PeriodDates& row : periodDates()) {
        row.dal.text = std::string();
        row.al.text = std::string();
    }
    cboDipendenti.selection = -1;
    cboDipendenti.text = std::string();
    txtNameDip.text = std::string();
    form.focus(txtNameDip);
}

void frmCompStraord::cboDipendenti_Click() {
    const int number = cboDipendenti.selection() + 1;
    const auto file = RecordFile<NameRecord>::open(desk_.files, dipendFile);
    const auto record = file ? file->read(number) : Result<NameRecord>(file.error());
    if (!record) {
        wellDone(record.error(), desk_.desktop);
        return;
    }
    txtNameDip.text = record->name.trimmed();
    if (!correctingName_) return;
    // While a name is being corrected, the list tells which record takes the corrected one.
    Command3_Click();
    Label88.text = std::to_string(number);
}

void frmCompStraord::hangHours(int period) {
    PeriodPanel& panel = periods[static_cast<std::size_t>(period) - 1];
    for (TextBox* field : panel.hourFields()) field->gotFocus.calls(this, &frmCompStraord::hourField_GotFocus);
    panel.nottFest.lostFocus.calls([this, period] { checkHours(period); });
}

void frmCompStraord::hourField_GotFocus() {
    if (!trim(txtNameDip.text()).empty()) return;
    desk_.desktop.tell({"Inserire il nominativo", "Errore", Icon::warning});
    form.focus(txtNameDip);
}

void frmCompStraord::openFirstPeriod() {
    for (PeriodPanel& panel : periods) {
        panel.unlockHours(false);
        panel.frame.tone = Tone::plain;
    }
    for (PeriodPanel& panel : periods) {
        if (panel.isExcluded()) continue;
        panel.unlockHours(true);
        return;
    }
    CmdRiepilogo.enabled = true;
}

/// Opens the first period from index `first` on that takes part; false when none is left.
bool frmCompStraord::openPeriodFrom(std::size_t first) {
    for (std::size_t at = first; at < periods.size(); ++at) {
        if (periods[at].isExcluded()) continue;
        periods[at].unlockHours(true);
        form.focus(periods[at].feriali);
        return true;
    }
    return false;
}

void frmCompStraord::checkHours(int period) {
    const auto index = static_cast<std::size_t>(period) - 1;
    PeriodPanel& panel = periods[index];
    if (panel.nottFest.isLocked() || trim(txtNameDip.text()).empty()) return;
    int hours = 0;
    for (TextBox* field : panel.hourFields()) {
        if (trim(field->text()).empty()) field->text = std::string("0");
        const auto typed = toInteger(field->text());
        if (!typed || *typed < 0) {
            desk_.desktop.tell({"Inserire le ore con un numero intero.", "Errore", Icon::warning});
            form.focus(*field);
            return;
        }
        hours += *typed;
    }
    // Always from the stored hours, so that checking an employee again does not count it twice.
    const auto allStored = storedHours(openEmployees());
    if (!allStored) {
        wellDone(allStored.error(), desk_.desktop);
        form.focus(panel.feriali);
        return;
    }
    const std::int64_t stored = (*allStored)[index];
    const Judgement judgement = judgeHours(hours, held(stored + hours), panel.figures());
    if (judgement.verdict == Verdict::refused) {
        panel.utilizzato.text = std::to_string(stored);
        desk_.desktop.tell(*judgement.message);
        form.focus(panel.feriali);
        return;
    }
    panel.utilizzato.text = std::to_string(stored + hours);
    panel.unlockHours(false);
    if (judgement.message) desk_.desktop.tell(*judgement.message);
    panel.totale.text = std::to_string(hours);
    panel.frame.tone = Tone::done;
    if (openPeriodFrom(index + 1)) return;
    CmdRiepilogo.enabled = true;
    form.focus(CmdRiepilogo);
}

void frmCompStraord::CmdRiepilogo_Click() {
    std::int64_t total = 0;
    for (const PeriodPanel& panel : periods) total += panel.hours();
    txtTotAut.text = std::to_string(total);
    CmdRiepilogo.enabled = false;
    Check1.enabled = true;
    Check2.enabled = true;
    cmdTariffe.enabled = true;
    form.focus(Check1);
}

void frmCompStraord::Check1_Click() {
    if (Check1.checked()) Check2.checked = false;
    cmdTariffe.enabled = Check1.checked();
}

void frmCompStraord::Check2_Click() {
    if (Check2.checked()) Check1.checked = false;
    cmdTariffe.enabled = Check2.checked();
}

std::vector<Lines> frmCompStraord::tariffLines() const {
    std::vector<Lines> lines;
    const auto add = [&](std::string_view name, const Rates& rates) {
        lines.push_back({std::string(name), rateText(rates.Day), rateText(rates.Fn), rateText(rates.Nf)});
    };
    if (Check1.checked()) {
        const auto table = oneRecord<SecretaryTariff>(pmSegFile);
        if (!table) return lines;
        for (std::size_t row = 0; row < secretaryRows.size(); ++row) {
            add(secretaryRows[row].nameInTable, table->rows[row].rates);
        }
        return lines;
    }
    const auto table = oneRecord<TariffTable>(pmDipFile);
    if (!table) return lines;
    for (int row = 0; row < tariffRowCount; ++row) add(trimRight(table->grade(row)), table->rates(row));
    return lines;
}

void frmCompStraord::cmdTariffe_Click() {
    if (!Check1.checked() && !Check2.checked()) {
        form.focus(Check1);
        return;
    }
    Frame3.text = Check1.checked() ? std::string("Tariffe Segretari Comunali compenso lavoro straordinario")
                                   : std::string("Tariffe Dipendenti compenso lavoro straordinario");
    lblDipendente.text = "Dipendente: " + txtNameDip.text();
    MSFlexGrid1.setRows(tariffLines());
    Frame3.visible = true;
    form.focus(MSFlexGrid1);
}

/// Only a pick in the first column counts.
void frmCompStraord::MSFlexGrid1_SelChange() {
    if (MSFlexGrid1.column != 0 || MSFlexGrid1.row < 1) return;
    Text1.text = MSFlexGrid1.cell(MSFlexGrid1.row, 0);
    const auto table = oneRecord<TariffTable>(pmDipFile);
    // The secretaries' names deliberately stand in no row of the staff's table: their rates stay as they were, and the
    // fields stay open so that the clerk can type them.
    const int row = table ? table->find(Text1.text()) : -1;
    if (row >= 0) {
        const Rates rates = table->rates(row);
        txtCompDf.text = rateText(rates.Day);
        txtCompNof.text = rateText(rates.Fn);
        txtCompNef.text = rateText(rates.Nf);
    }
    // Trimmed before it is cut to its seven characters, so that a "G" grade keeps its number.
    lblCat.text = std::string(trim(Text1.text()));
    lblCat2.text = std::string("-");
    MSFlexGrid1.clear();
    Frame3.visible = false;
    openRates(row < 0);
    cmdSalva.enabled = true;
    form.focus(row < 0 ? static_cast<Control&>(txtCompDf) : cmdSalva);
}

void frmCompStraord::openRates(bool open) {
    for (TextBox* field : {&txtCompDf, &txtCompNof, &txtCompNef}) field->locked = !open;
    cmdCalcola.enabled = open;
}

void frmCompStraord::cmdCalcola_Click() {
    for (TextBox* field : {&txtCompDf, &txtCompNof, &txtCompNef}) {
        if (const auto rate = rateFrom(field->text())) field->text = rateText(*rate);
    }
    openRates(false);
    cmdSalva.enabled = true;
    form.focus(cmdSalva);
}

}  // namespace vorbano
