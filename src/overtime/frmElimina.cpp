#include "overtime/frmElimina.h"

#include <utility>

#include "overtime/employee_removal.h"
#include "overtime/meirin_periods.h"
#include "screens/date_entry.h"
#include "screens/election_choice.h"
#include "screens/well_done.h"
#include "storage/codepage.h"
#include "storage/dates.h"
#include "storage/numbers.h"

namespace vorbano {

namespace {

/// The dates of a period for the eye of the clerk.
std::string shownSpan(const std::optional<PeriodSpan>& span) {
    if (!span) return {};
    return span->isExcluded() ? "escluso" : span->from + " / " + span->to;
}

std::int64_t authorisedHours(const StoredEmployee& employee) {
    std::int64_t hours = 0;
    for (int period = 1; period <= maxPeriods; ++period) hours += sumOf(employee.period(period).authorised);
    return hours;
}

}  // namespace

frmElimina::frmElimina(const Workplace& workplace) : desk_(workplace) {
    Lines types;
    for (const ElectionType& type : electionTypes) types.emplace_back(type.name);
    Combo1.items = types;
    for (TextBox* field : {&txtDipendente, &txtNumDip, &txtNumDipD}) field->locked = true;
    unlockSearch(true);
    cmdElimina.enabled = false;
    showLatePeriods();

    using This = frmElimina;
    mnuEsci.clicked.calls(this, &This::mnuEsci_Click);
    Combo1.clicked.calls(this, &This::showLatePeriods);
    makeDateField(txtDataEle, desk_.desktop);
    txtDataEle.lostFocus.calls(this, &This::txtDataEle_LostFocus);
    cmdRicerca.clicked.calls(this, &This::cmdRicerca_Click);
    cmdRiavvia.clicked.calls(this, &This::cmdRiavvia_Click);
    List1.clicked.calls(this, &This::List1_Click);
    txtDipendente.change.calls(this, &This::txtDipendente_Change);
    cmdElimina.clicked.calls(this, &This::cmdElimina_Click);
}

Election frmElimina::election() const { return electionIn(Combo1, txtDataEle); }

LateInUse frmElimina::late() const {
    if (!parseDate(txtDataEle.text())) return {};
    return lateInUse(election(), PeriodRule::elimina);
}

/// Until a search has found an election only type and date can be entered.
void frmElimina::unlockSearch(bool unlocked) {
    Combo1.enabled = unlocked;
    txtDataEle.enabled = unlocked;
    cmdRicerca.enabled = unlocked;
    cmdRiavvia.enabled = !unlocked;
    List1.enabled = !unlocked;
}

void frmElimina::showLatePeriods() {
    const LateInUse inUse = late();
    for (std::size_t at = 0; at < inUse.size(); ++at) {
        const std::size_t line = earlyPeriods + at;
        const bool shown = inUse[at];
        prima[line].setVisible(shown);
        dopo[line].setVisible(shown);
        periodi[line].visible = shown;
    }
}

void frmElimina::txtDataEle_LostFocus() { showLatePeriods(); }

Result<frmElimina::FoundElection> frmElimina::readElection() const {
    const auto count = searchElection(desk_.files, election());
    if (!count) {
        const Failure kind = count.error().kind;
        if (kind == Failure::missingFolder || kind == Failure::badName) return FoundElection{};
        return count.error();
    }
    if (*count == 0) return FoundElection{};
    const auto staff = readStaff(desk_.files, election(), late());
    if (!staff) return staff.error();
    const auto limits = readMeirin(desk_.files, election());
    if (!limits) return limits.error();
    const auto used = usedHours(desk_.files, election(), late());
    if (!used) return used.error();
    return FoundElection{*staff, *limits, *used};
}

void frmElimina::cmdRicerca_Click() {
    if (Control* missing = emptyForSearch(Combo1, txtDataEle)) {
        tellIncompleteSearch(*missing, desk_.desktop);
        return;
    }
    const auto found = readElection();
    if (!found) {
        wellDone(found.error(), desk_.desktop);
        return;
    }
    if (found->staff.empty()) {
        desk_.desktop.tell({"Tipo di elezione inesistente", "Errore", Icon::warning});
        form.focus(Combo1);
        return;
    }
    show(*found);
}

void frmElimina::show(FoundElection found) {
    staff_ = std::move(found.staff);
    unlockSearch(false);
    showLatePeriods();
    Lines names;
    for (const StoredEmployee& employee : staff_) names.push_back(employee.record.name.trimmed());
    List1.items = names;
    txtNumDip.text = std::to_string(staff_.front().record.pools.NumDip);
    const ElectionSpans spans = spansOf(staff_.front(), late());
    for (std::size_t at = 0; at < spans.size(); ++at) {
        if (!spans[at]) continue;
        const MeirinPeriod stored = meirinPeriod(found.limits, static_cast<int>(at) + 1);
        periodi[at].text = shownSpan(spans[at]);
        prima[at].showStored(stored.average, stored.pool, found.used[at]);
    }
    form.focus(List1);
}

void frmElimina::cmdRiavvia_Click() {
    Label9.text = std::string();
    txtDipendente.text = std::string();
    clearSituation();
    staff_.clear();
    List1.clear();
    txtNumDip.text = std::string();
    for (SituationLine& line : prima) line.clear();
    for (Label& span : periodi) span.text = std::string();
    Combo1.selection = -1;
    Combo1.text = std::string();
    txtDataEle.text = std::string();
    unlockSearch(true);
    showLatePeriods();
    form.focus(Combo1);
}

void frmElimina::List1_Click() {
    const auto chosen = static_cast<std::size_t>(List1.selection());
    if (chosen >= staff_.size()) return;
    const std::string name = staff_[chosen].record.name.trimmed();
    Label9.text = std::to_string(chosen + 1);
    // Another employee of the same name changes nothing in the field, and yet everything in the situation.
    if (txtDipendente.text() == name) {
        txtDipendente_Change();
    } else {
        txtDipendente.text = name;
    }
}

void frmElimina::clearSituation() {
    cmdElimina.enabled = false;
    figures_ = {};
    txtNumDipD.text = std::string();
    lblDipendente.text = std::string();
    Label10.text = std::string();
    Label10.tone = Tone::plain;
    for (SituationLine& line : dopo) line.clear();
}

/// The pools of the staff that is left, from the hours per month that their records will hold.
ElectionFigures frmElimina::Monte() const {
    const int left = wholeScan(txtNumDipD.text());
    const PoolTerms terms{.rule = LimitRule::removal,
                          .yearOfCentury = election().yearOfCentury(),
                          .monteOre = monteOreAfterRemoval(left, staff_.front().record.pools.MonteOre),
                          .employees = left};
    return electionFigures(spansOf(staff_.front(), late()), terms);
}

void frmElimina::txtDipendente_Change() {
    clearSituation();
    const int number = wholeScan(Label9.text());
    if (number == 0) return;
    // `UtiliD`: the hours of everybody else.
    const auto used = usedHours(desk_.files, election(), late(), number);
    if (!used) {
        wellDone(used.error(), desk_.desktop);
        return;
    }
    const StoredEmployee& employee = staff_[static_cast<std::size_t>(number - 1)];
    lblDipendente.text = "n. " + std::to_string(number) + " di " + std::to_string(staff_.size()) + ", categoria " +
                         employee.record.lblCat.trimmed() + ", ore autorizzate " +
                         std::to_string(authorisedHours(employee));
    txtNumDipD.text = std::to_string(wholeScan(txtNumDip.text()) - 1);
    figures_ = Monte();
    const ElectionSpans spans = spansOf(staff_.front(), late());
    bool abovePool = false;
    for (std::size_t at = 0; at < spans.size(); ++at) {
        if (!spans[at]) continue;
        if (spans[at]->isExcluded()) {
            dopo[at].exclude();
            continue;
        }
        dopo[at].showComputed(figures_[at], (*used)[at]);
        abovePool = abovePool || figures_[at].value_or(PeriodFigures{}).pool < (*used)[at];
    }
    Label10.text = std::string(abovePool ? "Si rilevano problemi, per dei periodi si supera il  monteore mensile, "
                                           "modificare le ore autorizzate"
                                         : "Non si rilevano problemi");
    Label10.tone = abovePool ? Tone::active : Tone::done;
    cmdElimina.enabled = !abovePool;
}

void frmElimina::cmdElimina_Click() {
    const bool sure = desk_.desktop.ask(
        {"Siete sicuri di voler Cancellare il dipendente  " + std::string(trim(txtDipendente.text())) + " ?",
         "Cancellazione dipendente", Icon::question});
    if (!sure) return;
    const Removal removal{.number = wholeScan(Label9.text()),
                          .recordsBefore = static_cast<int>(staff_.size()),
                          .employeesLeft = wholeScan(txtNumDipD.text()),
                          .figures = figures_};
    if (!wellDone(removeEmployee(desk_.files, election(), late(), removal), desk_.desktop)) {
        // What was begun is ended by the same command, or by a new search. Nobody else can be chosen from a list whose
        // numbers may no longer be those of the file.
        List1.enabled = false;
        return;
    }
    desk_.desktop.tell({"Operazione terminata", "Cancellazione Dipendente", Icon::information});
    cmdRiavvia_Click();
}

void frmElimina::mnuEsci_Click() { form.close(); }

}  // namespace vorbano
