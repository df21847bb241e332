// Finding the election whose dates are to change.

#include "overtime/frmModDate.h"
#include "overtime/meirin_periods.h"
#include "screens/election_choice.h"
#include "screens/well_done.h"
#include "storage/dates.h"
#include "storage/only_record.h"

namespace vorbano {

/// Periods four and five are on show only where the election has them.
void frmModDate::showLatePeriods() {
    const Election election = electionIn(Combo1, txtDataEle);
    const bool isDate = parseDate(election.date).has_value();
    for (std::size_t at = 0; at < rows.size(); ++at) {
        const bool there = at < 3 || (isDate && election.hasPeriod(rows[at].period, PeriodRule::modDate));
        rows[at].show(there);
        lines[at].show(there);
    }
}

void frmModDate::cmdRicerca_Click() {
    if (Control* missing = emptyForSearch(Combo1, txtDataEle); missing != nullptr) {
        tellIncompleteSearch(*missing, desk_.desktop);
        return;
    }
    showLatePeriods();
    const auto found = find();
    if (!found) {
        wellDone(found.error(), desk_.desktop);
    } else if (!*found) {
        desk_.desktop.tell({"Tipo di elezione inesistente", "Errore", Icon::warning});
        form.focus(txtDataEle);
    }
}

/// Shows the election when it is there; false when it is not.
Result<bool> frmModDate::find() {
    Found found;
    found.election = electionIn(Combo1, txtDataEle);
    const auto count = searchElection(desk_.files, found.election);
    if (!count) {
        const Failure kind = count.error().kind;
        if (kind == Failure::missingFolder || kind == Failure::badName) return false;
        return count.error();
    }
    if (*count == 0) return false;
    const auto first = readEmployee(desk_.files, found.election, late(), 1);
    if (!first) return first.error();
    const auto meirin = readMeirin(desk_.files, found.election);
    if (!meirin) return meirin.error();
    const auto duedate = found.election.file(duedateFile);
    if (!duedate) return duedate.error();
    const auto acts = onlyRecord<DuedateRecord>(desk_.files, *duedate);
    if (!acts) return acts.error();

    found.monteOre = first->record.pools.MonteOre;
    found.spans = spansOf(*first, late());
    if (const auto& dates = *acts) {
        found.decreto = dates->decreto.trimmed();
        found.determina = dates->determina.trimmed();
    }
    txtNumDip.text = std::to_string(first->record.pools.NumDip);
    for (PoolLine& line : lines) {
        const MeirinPeriod stored = meirinPeriod(*meirin, line.period);
        line.showStored(stored.average, stored.pool);
    }
    show(found);
    return true;
}

void frmModDate::show(const Found& found) {
    found_ = found;
    txtDataDecreto.text = found.decreto;
    txtDataDetermina.text = found.determina;
    for (std::size_t at = 0; at < rows.size(); ++at) rows[at].setSpan(found.spans[at].value_or(PeriodSpan{}));
    Combo1.enabled = false;
    txtDataEle.locked = true;
    cmdRicerca.enabled = false;
    for (Frame* frame : {&Frame2, &Frame4}) frame->enabled = true;
    for (Button* command : {&cmdRiavvia, &cmdModifica}) command->enabled = true;
    form.focus(rows[0].modifica);
}

}  // namespace vorbano
