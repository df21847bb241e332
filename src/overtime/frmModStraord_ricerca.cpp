// Choice of the election, search, navigation, entry of one employee after the other.

#include "overtime/frmModStraord.h"
#include "screens/election_choice.h"
#include "storage/codepage.h"
#include "storage/dates.h"
#include "storage/numbers.h"

namespace vorbano {

void frmModStraord::Combo1_Click() {
    Combo2.clear();
    Combo2.items = DataEle(desk_.files, Combo1.text());
    electionChanged();
}

void frmModStraord::Combo2_Click() { txtDataEle.text = std::string(trim(Combo2.text())); }

void frmModStraord::txtDataEle_Change() { electionChanged(); }

/// Another election is named: what is on show belongs to none.
void frmModStraord::electionChanged() {
    const Election named = election();
    if (loaded_ && loaded_->type == named.type && loaded_->date == named.date) return;
    if (loaded_) Cancella();
    Frame25.visible = false;
    Check11.checked = false;
}

bool frmModStraord::electionIsGiven() {
    Control* const missing = emptyForSearch(Combo1, txtDataEle);
    if (missing != nullptr) tellIncompleteSearch(*missing, desk_.desktop);
    // A menu does not make the clerk leave the field.
    txtDataEle.text = reformatDate(txtDataEle.text());
    return missing == nullptr;
}

void frmModStraord::tellNotFound(const Error& error) {
    if (error.kind == Failure::missingFolder || error.kind == Failure::badName) {
        desk_.desktop.tell({"Tipo di elezione inesistente", "Errore", Icon::warning});
        form.focus(txtDataEle);
    } else {
        wellDone(error, desk_.desktop);
    }
}

Result<frmModStraord::Found> frmModStraord::read(int number) {
    const Election named = election();
    Found found;
    const auto count = searchElection(desk_.files, named);
    if (!count) return count.error();
    if (*count == 0) return Error{Failure::missingFolder, named.type};
    found.count = *count;
    found.late = lateInUse(named, PeriodRule::stampe);
    if (const auto created = createLateRecords(desk_.files, named, found.late); !created) return created.error();
    const auto meirin = readMeirin(desk_.files, named);
    if (!meirin) return meirin.error();
    found.meirin = *meirin;
    const auto used = usedHours(desk_.files, named, found.late);
    if (!used) return used.error();
    found.used = *used;
    const auto first = readEmployee(desk_.files, named, found.late, 1);
    if (!first) return first.error();
    found.first = *first;
    const auto last = readEmployee(desk_.files, named, found.late, found.count);
    if (!last) return last.error();
    found.last = *last;
    if (number < 1 || number > found.count) return found;
    const auto employee = readEmployee(desk_.files, named, found.late, number);
    if (!employee) return employee.error();
    found.employee = *employee;
    return found;
}

bool frmModStraord::search(int number) {
    if (!electionIsGiven()) return false;
    const auto found = read(number);
    if (!found) {
        tellNotFound(found.error());
        return false;
    }
    if (number != 0 && !found->employee) {
        desk_.desktop.tell({"Dipendente n. " + std::to_string(number) + " inesistente. I dipendenti inseriti sono n. " +
                                std::to_string(found->count),
                            "Errore", Icon::warning});
        form.focus(txtSonoDip);
        return false;
    }
    clearEmployee();
    loaded_ = election();
    count_ = found->count;
    number_ = number;
    showElection(*found);
    if (found->employee) {
        showEmployee(*found->employee);
        showInNames();
        mayChangeGrade_ = true;
        go(Stage::shown);
    } else {
        go(Stage::empty);
    }
    return true;
}

/// An empty box of the number calls up the election alone.
bool frmModStraord::searchTyped() {
    const std::string_view typed = trim(txtSonoDip.text());
    const int number = wholeScan(typed);
    return search(typed.empty() || number != 0 ? number : -1);
}

void frmModStraord::cmdAnnulla3_Click() {
    Cancella();
    form.focus(txtSonoDip);
}

void frmModStraord::cmdRicerca_Click() {
    sequential_ = false;
    mayContinue_ = false;
    searchTyped();
}

void frmModStraord::moveTo(int number) {
    if (number < 1 || number > count_) return;
    sequential_ = false;
    mayContinue_ = false;
    search(number);
}

void frmModStraord::cmdPrimo_Click() { moveTo(1); }

void frmModStraord::cmdPrecedente_Click() { moveTo(number_ - 1); }

void frmModStraord::cmdSuccessivo_Click() { moveTo(number_ + 1); }

void frmModStraord::cmdUltimo_Click() { moveTo(count_); }

/// Begins with the employee of the number, with the first one when there is none.
void frmModStraord::cmdInserimento_Click() {
    if (trim(txtSonoDip.text()).empty()) txtSonoDip.text = std::string("1");
    if (searchTyped()) startSequence();
}

void frmModStraord::startSequence() {
    sequential_ = true;
    mayContinue_ = false;
    if (openNextInSequence(0)) return;
    // Nothing to liquidate: then the first period is opened for its authorised hours.
    for (int period = 1; period <= maxPeriods; ++period) {
        if (!panel(period).frame.visible() || panel(period).isExcluded()) continue;
        openPeriod(period);
        return;
    }
}

void frmModStraord::cmdContinua_Click() {
    if (number_ >= count_) {
        sequential_ = false;
        mayContinue_ = false;
        updateEnabled();
        desk_.desktop.tell({"Fine inserimento", "Inserimento dati", Icon::information});
        return;
    }
    if (search(number_ + 1)) startSequence();
}

}  // namespace vorbano
