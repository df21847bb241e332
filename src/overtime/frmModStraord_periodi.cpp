// Opening a period for entry, and leaving it. The gestures are a press on its panel and a move over it; a button on the
// panel does the same for each.

#include <utility>

#include "overtime/employee_removal.h"
#include "overtime/frmModStraord.h"
#include "storage/codepage.h"
#include "storage/dates.h"
#include "storage/record_file.h"

namespace vorbano {

namespace {

constexpr int periodsInEmployeeRecord = 3;

}  // namespace

void frmModStraord::press(int period) {
    if (Frame26.visible() || Frame24.visible() || stage_ == Stage::toConfirm || stage_ == Stage::toSave) return;
    const LiquidationPanel& pressed = panel(period);
    if (pressed.isExcluded()) {
        desk_.desktop.tell(
            {"Periodo non incluso nel conteggio", "Modifica " + std::to_string(period) + "° Periodo", Icon::warning});
        return;
    }
    if (openPeriod_ != 0) return;
    if (Check1.checked()) {
        desk_.desktop.tell(
            {"Non e possibile inserire le ore di lavoro straordinario. E' attivata la modifica del nominativo del "
             "Dipendente.",
             "Modifica dati", Icon::warning});
        return;
    }
    if (trim(txtNameDip.text()).empty()) {
        desk_.desktop.tell({"Non è stata fatta la ricerca", "Modifica dati", Icon::warning});
        return;
    }
    openPeriod(period);
}

void frmModStraord::openPeriod(int period) {
    LiquidationPanel& opened = panel(period);
    if (opened.missingDate() != nullptr) {
        completeDates(period);
        return;
    }
    openPeriod_ = period;
    go(Stage::entry);
    opened.open();
}

/// The next period after `after` that can be liquidated; false when none is left.
bool frmModStraord::openNextInSequence(int after) {
    for (int period = after + 1; period <= maxPeriods; ++period) {
        LiquidationPanel& next = panel(period);
        const bool hasDates = next.missingDate() == nullptr && !next.isExcluded();
        if (!next.frame.visible() || !hasDates || !next.inLiquidation()) continue;
        openPeriod(period);
        return true;
    }
    return false;
}

void frmModStraord::leavePeriod(int period, bool byButton) {
    if (openPeriod_ != period) return;
    LiquidationPanel& left = panel(period);
    const PeriodBlock stored = employee_->period(period);
    if (!left.differsFrom(stored)) {
        // The pointer moves over the panel on its way to the fields, too; the button says that the clerk is done.
        if (byButton) closePeriod();
        return;
    }
    const bool paid = left.inLiquidation();
    if (paid) {
        if (!hoursAreNumbers(left)) return;
        if (const auto above = paidAboveAuthorisedOnLeaving(left.paidHours(), left.authorisedHours())) {
            refuse(left, *above);
            return;
        }
    }
    const std::string hours = paid ? "ore liquidate" : "ore autorizzate";
    const bool confirmed = desk_.desktop.ask(
        {"Sono state modificate le " + hours + " del " + std::to_string(period) +
             "° periodo\nSe volete confermare la modifica scegliere SI.\nSe volete annullare le modifiche scegliere NO",
         paid ? "Ore liquidate" : "Ore autorizzate", Icon::question});
    if (!confirmed) {
        left.restore(stored);
        showUsed();
        closePeriod();
    } else if (paid) {
        left.close();
        left.frame.tone = Tone::done;
        openPeriod_ = 0;
        go(Stage::toConfirm);
        form.focus(cmdRicalcola);
    } else {
        // What was corrected is asked for its limits here too, whichever field the clerk was in.
        checkAuthorised(period);
    }
}

/// The open period is left as stored. Hours of another one that wait for "Conferma" still do.
void frmModStraord::closePeriod() {
    LiquidationPanel& left = panel(openPeriod_);
    left.close();
    left.frame.tone = Tone::plain;
    openPeriod_ = 0;
    sequential_ = false;
    bool changed = false;
    for (int period = 1; period <= maxPeriods; ++period) {
        if (panel(period).frame.visible()) changed = changed || panel(period).differsFrom(employee_->period(period));
    }
    go(changed ? Stage::toConfirm : Stage::shown);
    form.focus(changed ? cmdRicalcola : left.apri);
}

/// Hours belong to no period as long as its dates are not there.
void frmModStraord::completeDates(int period) {
    LiquidationPanel& incomplete = panel(period);
    desk_.desktop.tell({"Date dei periodi incompleti", "Errore", Icon::warning});
    datesOpen_ = period;
    refusedDates_ = {};
    incomplete.dal.locked = false;
    incomplete.al.locked = false;
    form.focus(*incomplete.missingDate());
}

void frmModStraord::dateField_LostFocus(int period) {
    LiquidationPanel& changed = panel(period);
    if (datesOpen_ != period || changed.missingDate() != nullptr) return;
    for (TextBox* date : {&changed.dal, &changed.al}) date->text = reformatDate(trim(date->text()));
    const bool complete = changed.isExcluded() || daysBetween(changed.dal.text(), changed.al.text()).value_or(-1) >= 0;
    if (!complete) {
        // Told once for the same two dates, so that the clerk can go on from the first to the last and change that one.
        const std::array refused{changed.dal.text(), changed.al.text()};
        if (std::exchange(refusedDates_, refused) == refused) return;
        desk_.desktop.tell({"Date dei periodi incompleti", "Errore", Icon::warning});
        form.focus(changed.dal);
        return;
    }
    if (!wellDone(Addata(period), desk_.desktop)) return;
    search(number_);
}

/// The dates of a period are the same text in every record of the election.
Result<> frmModStraord::Addata(int period) {
    const std::string from = panel(period).dal.text();
    const std::string to = panel(period).al.text();
    if (period <= periodsInEmployeeRecord) {
        return rewriteEmployees(desk_.files, *loaded_, [&](int, EmployeeRecord& record) {
            PeriodBlock& block = record.periods[static_cast<std::size_t>(period) - 1];
            block.from = from;
            block.to = to;
            return true;
        });
    }
    const auto paths = overtimePaths(*loaded_);
    if (!paths) return paths.error();
    const auto late = static_cast<std::size_t>(period - periodsInEmployeeRecord) - 1;
    return rewrite<LatePeriodRecord>(desk_.files, paths->late[late], paths->lateNew[late],
                                     [&](int, LatePeriodRecord& record) {
                                         record.from = from;
                                         record.to = to;
                                         return true;
                                     });
}

}  // namespace vorbano
