// Which election is rewritten or adjusted, and what is on show for that: the first tab of the parameter screen.

#include <algorithm>
#include <string>

#include "parameters/election_dates.h"
#include "parameters/frmParametri.h"
#include "screens/date_entry.h"
#include "storage/election.h"
#include "storage/numbers.h"

namespace vorbano {

void frmParametri::makeElectionPanels() {
    using This = frmParametri;
    makeDateField(txtDataEle, desk_.desktop);
    Combo1.items = TipoElezioni(desk_.files);
    Combo1.clicked.calls(this, &This::Combo1_Click);
    Combo2.clicked.calls(this, &This::Combo2_Click);
    Check46.clicked.calls(this, &This::Check46_Click);
    cboDeco.clicked.calls(this, &This::cboDeco_Click);
    lblDeco.change.calls(this, &This::lblDeco_Change);
    cmdCrea.clicked.calls(this, &This::cmdCrea_Click);
    showMode();
}

/// The update and the adjustment exclude each other, and each takes the tab away from plain editing. An election that
/// is still chosen when the update is over stays on show: the next version command is for it.
void frmParametri::showMode() {
    const bool update = Check45.checked();
    const bool adjustment = Check46.checked();
    const bool electionToChoose = update || adjustment;
    Frame1.visible = electionToChoose || !trim(Combo1.text()).empty();
    Frame1.text = std::string(adjustment ? "Elezione" : "Elezione da aggiornare");
    Combo2.visible = electionToChoose;
    cmdAggTar.visible = update;
    cmdCrea.visible = adjustment;
    Frame2.visible = adjustment;
    Check20.visible = !adjustment;
    enableVersions(!electionToChoose);
    Check20.enabled = !electionToChoose;
    const bool someRowOpen = std::ranges::any_of(rows, [](const RateRow& row) { return row.box.checked(); });
    cmdStampa.enabled = !electionToChoose && !someRowOpen;
}

void frmParametri::offerElections() {
    forgetElection();
    Combo1.items = TipoElezioni(desk_.files);
}

void frmParametri::forgetElection() {
    for (ComboBox* list : {&Combo1, &Combo2}) list->clear();
    txtDataEle.text = std::string();
}

/// The dates of the type chosen: those of 2004 to 2090, and for the update those of this year alone.
void frmParametri::Combo1_Click() {
    Combo2.clear();
    txtDataEle.text = std::string();
    const int year = static_cast<int>(desk_.desktop.today().year());
    const auto only = Check45.checked() ? std::optional(year) : std::nullopt;
    Combo2.items = datesOnOffer(DataEle(desk_.files, Combo1.text()), only);
}

void frmParametri::Combo2_Click() {
    txtDataEle.text = Combo2.text();
    if (Check46.checked()) Conguaglia();
}

}  // namespace vorbano
