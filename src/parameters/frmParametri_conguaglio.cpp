// The adjustment of an election at the rates of a date of effect: the first tab of the parameter screen.

#include <string>

#include "parameters/adjustment_run.h"
#include "parameters/frmParametri.h"
#include "screens/election_choice.h"
#include "screens/well_done.h"

namespace vorbano {

namespace {

constexpr std::string_view yearBanner = "SONO APPLICATE LE TARIFFE ANNO ";

/// The year of a date of effect, "01/04/2008".
std::string_view yearOf(std::string_view date) {
    constexpr std::size_t digits = 4;
    return date.size() <= digits ? date : date.substr(date.size() - digits);
}

}  // namespace

void frmParametri::Check46_Click() {
    if (Check46.checked()) {
        Check45.checked = false;
        offerElections();
    } else {
        forgetElection();
    }
    showMode();
}

/// A date of effect is in use only for an election: without one it deliberately goes again.
void frmParametri::cboDeco_Click() {
    lblDeco.text = cboDeco.text();
    if (trim(Combo2.text()).empty()) {
        lblDeco.text = std::string();
        return;
    }
    Conguaglia();
}

/// Also without a date, so that the banner does not go on naming a year whose rates are not there.
void frmParametri::lblDeco_Change() {
    Label26.text = std::string(yearBanner) + std::string(yearOf(trim(lblDeco.text())));
    Label26.tone = Tone::plain;
}

void frmParametri::leaveDateOfEffect() {
    lblDeco.text = std::string();
    if (!Label26.text().starts_with(yearBanner)) return;
    Label26.text = std::string();
    Label31_Change();
}

void frmParametri::Conguagli() {
    if (trim(cboDeco.text()).empty()) {
        desk_.desktop.tell({"Inserire la decorrenza delle tariffe", "Tariffe", Icon::warning});
        form.focus(cboDeco);
        return;
    }
    const auto rates = ratesOnScreen();
    if (!rates || !wellDone(storeDatedRates(desk_.files, cboDeco.text(), *rates), desk_.desktop)) return;
    desk_.desktop.tell({"FATTO!!", "SALVATAGGIO", Icon::information});
}

void frmParametri::Conguaglia() {
    const auto block = loadDatedRates(desk_.files, lblDeco.text());
    if (!block) wellDone(block.error(), desk_.desktop);
    if (!block || !*block) {
        lblDeco.text = std::string();
        return;
    }
    lblDeco.text = (*block)->deco;
    for (std::size_t row = 0; row < rows.size(); ++row) rows[row].show((*block)->rates[row]);
}

void frmParametri::cmdCrea_Click() {
    if (Control* missing = emptyForSearch(Combo1, txtDataEle)) {
        desk_.desktop.tell({"Dati incompleti per il conguaglio", "Conguaglio", Icon::warning});
        form.focus(*missing);
        return;
    }
    if (!dateOfElectionExists(Combo1, txtDataEle, desk_.desktop)) return;
    const Election election = electionIn(Combo1, txtDataEle);
    const std::string question =
        "State per effettuare il conguaglio delle competenze liquidate\nper Elezioni : " + election.type + "  del " +
        election.date + "\nVolete continuare?";
    if (!desk_.desktop.ask({question, "Conguaglio", Icon::question})) return;
    if (hasSecondRun(election.type) && !Conguaglio1()) return;
    adjust(allPeriods);
}

bool frmParametri::Conguaglio1() { return adjust(firstPeriod); }

/// The rates are those on the screen, whatever date of effect they are of.
bool frmParametri::adjust(const AdjustmentRun& run) {
    const auto rates = ratesOnScreen();
    if (!rates) return false;
    const auto done = runAdjustment(desk_.files, electionIn(Combo1, txtDataEle), *rates, run);
    if (!wellDone(done, desk_.desktop)) return false;
    if (!run.closing.empty()) desk_.desktop.tell({std::string(run.closing), "Conguaglio", Icon::information});
    return true;
}

}  // namespace vorbano
