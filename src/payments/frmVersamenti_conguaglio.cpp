// To the payments of the adjustment and back.

#include "payments/frmVersamenti.h"
#include "screens/well_done.h"

namespace vorbano {

PaymentSet frmVersamenti::onShow() const {
    return Label21.visible() ? PaymentSet::adjustment : PaymentSet::liquidation;
}

void frmVersamenti::adjust(bool on) {
    Label21.visible = on;
    cmdConguaglio.text = on ? "Annulla Conguaglio" : "Conguaglio";
}

void frmVersamenti::cmdConguaglio_Click() {
    const bool back = onShow() == PaymentSet::adjustment;
    adjust(!back);
    // What cannot be read leaves on show what was.
    if (!(back ? search() : showAdjustment())) adjust(back);
}

/// The documents deliberately stay as they were stored: only those of the liquidation follow what is due.
bool frmVersamenti::showAdjustment() {
    const auto due = readAdjustmentDue(desk_.files, election());
    if (!due) return wellDone(due.error(), desk_.desktop);
    if (!readAll()) return false;
    showDue(*due);
    go(Phase::searched);
    form.focus(cmdInserire);
    return true;
}

}  // namespace vorbano
