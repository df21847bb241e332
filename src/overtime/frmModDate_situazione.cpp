// What follows from the dates: the situation after the change, its storing, its summary.

#include "overtime/date_summary.h"
#include "overtime/frmModDate.h"
#include "screens/well_done.h"
#include "storage/list_files.h"
#include "storage/numbers.h"
#include "storage/only_record.h"

namespace vorbano {

namespace {

constexpr std::string_view dashes = "----------------------------------------";

}  // namespace

ElectionSpans frmModDate::spans() const {
    ElectionSpans spans;
    for (std::size_t at = 0; at < rows.size(); ++at) {
        if (rows[at].inUse()) spans[at] = rows[at].span();
    }
    return spans;
}

LateInUse frmModDate::late() const { return {rows[3].inUse(), rows[4].inUse()}; }

/// The figures on show no longer belong to the dates on show: they go, and with them what could be done with them.
void frmModDate::forgetSituation() {
    change_.reset();
    for (PoolLine& line : lines) line.clearAfter();
    Label10.text = std::string();
    Label30.text = std::string();
    List1.clear();
    for (Button* command : {&cmdSalva, &cmdStampa}) command->enabled = false;
}

void frmModDate::cmdModifica_Click() {
    if (!found_ || !datesAreComplete() || !datesAreOfTheCalendar()) return;
    forgetSituation();
    const auto used = usedHours(desk_.files, found_->election, late());
    if (!used) {
        wellDone(used.error(), desk_.desktop);
        return;
    }
    const auto staff = readStaff(desk_.files, found_->election, late());
    if (!staff) {
        wellDone(staff.error(), desk_.desktop);
        return;
    }
    DateChange change;
    change.spans = spans();
    change.employees = wholeScan(txtNumDip.text());
    change.figures = electionFigures(change.spans, {.rule = LimitRule::dates,
                                                    .yearOfCentury = found_->election.yearOfCentury(),
                                                    .monteOre = found_->monteOre,
                                                    .employees = change.employees});
    for (std::size_t at = 0; at < lines.size(); ++at) Modate(at, change, *used);
    Super1(change, *staff);
    judge();
    change_ = std::move(change);
    for (Button* command : {&cmdSalva, &cmdStampa}) command->enabled = true;
}

/// `Modate1` to `Modate5`.
void frmModDate::Modate(std::size_t at, const DateChange& change, const PeriodTotals& used) {
    const auto& span = change.spans[at];
    const auto& figures = change.figures[at];
    if (!span || !figures) return;
    lines[at].showAfter(*figures, span->isExcluded() ? std::nullopt : std::optional(used[at]));
}

/// Who stands above the limit of a period, and by how many hours all together. In a period that is excluded now, nobody
/// may have hours.
void frmModDate::Super1(const DateChange& change, const std::vector<StoredEmployee>& staff) {
    Lines told = {"Hanno superato il limite massimo:", std::string(dashes)};
    std::int64_t above = 0;
    for (const PoolLine& line : lines) {
        const auto& figures = change.figures[static_cast<std::size_t>(line.period) - 1];
        if (!figures) continue;
        told.push_back(std::to_string(line.period) + "° Periodo");
        for (const StoredEmployee& employee : staff) {
            const std::int64_t hours = sumOf(employee.period(line.period).authorised);
            const std::int64_t excess = hours - figures->limit;
            if (excess <= 0) continue;
            above += excess;
            told.push_back(employee.record.name.trimmed() + "  ore " + std::to_string(hours) + "  (+" +
                           std::to_string(excess) + ")");
        }
        told.emplace_back(dashes);
    }
    List1.items = std::move(told);
    Label30.text = std::to_string(above);
}

void frmModDate::judge() {
    bool exceeded = false;
    for (const PoolLine& line : lines) exceeded = exceeded || line.isExceeded();
    Label10.tone = exceeded ? Tone::active : Tone::done;
    Label10.text = exceeded ? std::string(
                                  "Si rilevano problemi,\n"
                                  "per dei periodi si\n"
                                  "supera il  monte ore\n"
                                  "mensile, modificare\n"
                                  "le ore autorizzate")
                            : std::string("Non si rilevano problemi");
}

/// The limits are shown, not enforced: what stands above them is stored too, when the clerk wishes.
void frmModDate::cmdSalva_Click() {
    if (!found_ || !change_) return;
    if (!wellDone(changeDates(desk_.files, found_->election, *change_), desk_.desktop)) return;
    found_->spans = change_->spans;
    for (DateRow& row : rows) row.modifica.checked = false;
    for (PoolLine& line : lines) {
        if (change_->figures[static_cast<std::size_t>(line.period) - 1]) line.afterBecomesStored();
    }
    cmdSalva.enabled = false;
    desk_.desktop.tell({"MODIFICA EFFETTUATA", "Date periodi", Icon::information});
}

void frmModDate::cmdStampa_Click() {
    if (!found_ || !change_) return;
    const auto ente = onlyRecord<NameRecord>(desk_.files, enteFile);
    if (!ente) {
        wellDone(ente.error(), desk_.desktop);
        return;
    }
    std::vector<SummaryPeriod> periods;
    for (std::size_t at = 0; at < lines.size(); ++at) {
        const auto& span = change_->spans[at];
        const PoolLine& line = lines[at];
        if (!span) continue;
        periods.push_back({.period = line.period,
                           .dal = span->from,
                           .al = span->to,
                           .limite = line.limite.text(),
                           .individuale = line.indiD.text(),
                           .mensile = line.mensD.text(),
                           .utilizzato = line.utiD.text(),
                           .residuo = line.resD.text()});
    }
    const std::string comune = *ente ? (*ente)->name.trimmed() : std::string();
    const Election& election = found_->election;
    wellDone(desk_.printing.printPage(dateSummary(comune, election.type, election.date, periods)), desk_.desktop);
}

}  // namespace vorbano
