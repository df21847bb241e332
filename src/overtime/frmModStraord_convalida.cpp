// The hours of a period are checked when its last field is left.

#include <algorithm>
#include <limits>

#include "overtime/frmModStraord.h"
#include "storage/codepage.h"
#include "storage/numbers.h"

namespace vorbano {

namespace {

/// A file of ours never comes near the limit.
int held(std::int64_t hours) {
    using Limits = std::numeric_limits<int>;
    return static_cast<int>(std::clamp<std::int64_t>(hours, Limits::min(), Limits::max()));
}

}  // namespace

PeriodTotals frmModStraord::hoursOnScreen() const {
    PeriodTotals hours{};
    for (std::size_t at = 0; at < hours.size(); ++at) hours[at] = periods[at].authorisedHours();
    return hours;
}

/// The hours used in every period: the employee on show from the fields, the others from their records.
bool frmModStraord::showUsed() {
    const auto used = usedHours(desk_.files, *loaded_, late_, number_, hoursOnScreen());
    if (!used) return wellDone(used.error(), desk_.desktop);
    for (std::size_t at = 0; at < periods.size(); ++at) {
        if (periods[at].frame.visible()) periods[at].utilizzato.text = std::to_string((*used)[at]);
    }
    return true;
}

/// An empty field becomes 0. The cursor goes to the first that is no whole number.
bool frmModStraord::hoursAreNumbers(LiquidationPanel& panel) {
    for (TextBox& field : panel.openFields()) {
        if (trim(field.text()).empty()) field.text = std::string("0");
        const auto typed = toInteger(field.text());
        if (typed && *typed >= 0) {
            field.text = std::to_string(*typed);
            continue;
        }
        desk_.desktop.tell({"Inserire le ore con un numero intero.", "Errore", Icon::warning});
        form.focus(field);
        return false;
    }
    return true;
}

void frmModStraord::refuse(LiquidationPanel& panel, const Message& message) {
    desk_.desktop.tell(message);
    form.focus(panel.openFields()[0]);
}

void frmModStraord::checkAuthorised(int period) {
    LiquidationPanel& checked = panel(period);
    if (openPeriod_ != period || checked.inLiquidation()) return;
    if (!hoursAreNumbers(checked)) return;
    if (!showUsed()) {
        form.focus(checked.authorised[0]);
        return;
    }
    const std::int64_t hours = checked.authorisedHours();
    if (const auto below = authorisedBelowPaid(hours, checked.paidHours())) {
        refuse(checked, *below);
        return;
    }
    const Judgement judgement =
        judgeCorrectedHours(held(hours), wholeScan(checked.utilizzato.text()), checked.figures());
    if (judgement.verdict == Verdict::refused) {
        refuse(checked, *judgement.message);
        return;
    }
    checked.close();
    checked.frame.tone = Tone::done;
    openPeriod_ = 0;
    if (judgement.message) desk_.desktop.tell(*judgement.message);
    Label52.text = "A" + std::to_string(period);
    go(Stage::toConfirm);
    form.focus(cmdRicalcola);
}

void frmModStraord::checkPaid(int period) {
    LiquidationPanel& checked = panel(period);
    if (openPeriod_ != period || !checked.inLiquidation()) return;
    if (!hoursAreNumbers(checked)) return;
    // Whatever was typed into the total: it is the sum.
    checked.totale.text = std::to_string(checked.paidHours());
    if (const auto above = paidAboveAuthorised(checked.paidHours(), checked.authorisedHours())) {
        refuse(checked, *above);
        return;
    }
    checked.close();
    checked.frame.tone = Tone::done;
    openPeriod_ = 0;
    if (sequential_ && openNextInSequence(period)) return;
    go(Stage::toConfirm);
    form.focus(cmdRicalcola);
}

}  // namespace vorbano
