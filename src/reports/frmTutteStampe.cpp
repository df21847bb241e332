#include "reports/frmTutteStampe.h"

#include "reports/conguaglio.h"
#include "reports/conguaglio_rendiconto.h"
#include "reports/conguaglio_versamenti.h"
#include "reports/contributi.h"
#include "reports/determina.h"
#include "reports/impegno.h"
#include "reports/lrendiconto.h"
#include "reports/rendiconto.h"
#include "screens/date_entry.h"
#include "screens/election_choice.h"
#include "screens/well_done.h"
#include "storage/codepage.h"

namespace vorbano {

frmTutteStampe::frmTutteStampe(const Workplace& workplace) : desk_(workplace) {
    mnuEsci.clicked.calls(this, &frmTutteStampe::mnuEsci_Click);
    Combo1.clicked.calls(this, &frmTutteStampe::Combo1_Click);
    Combo4.clicked.calls(this, &frmTutteStampe::Combo4_Click);
    makeDateField(txtDataEle, desk_.desktop);
    cmdAnteprima.clicked.calls(this, &frmTutteStampe::cmdAnteprima_Click);
    cmdRiavvia.clicked.calls(this, &frmTutteStampe::cmdRiavvia_Click);
    for (CheckBox* box : periodBoxes_) {
        box->clicked.calls([this, box] { onlyPeriod(*box); });
    }
    cmdImpegno.clicked.calls(this, &frmTutteStampe::cmdImpegno_Click);
    cmdDetermina.clicked.calls(this, &frmTutteStampe::cmdDetermina_Click);
    cmdLRendiconto.clicked.calls(this, &frmTutteStampe::cmdLRendiconto_Click);
    cmdRendiconto.clicked.calls(this, &frmTutteStampe::cmdRendiconto_Click);
    cmdContributi.clicked.calls(this, &frmTutteStampe::cmdContributi_Click);
    cmdConguaglio.clicked.calls(this, &frmTutteStampe::cmdConguaglio_Click);
    cmdCongA.clicked.calls(this, &frmTutteStampe::cmdCongA_Click);
    cmdCongRend.clicked.calls(this, &frmTutteStampe::cmdCongRend_Click);
    hangStations();
    asAtLoad();
}

void frmTutteStampe::asAtLoad() {
    for (CheckBox* box : periodBoxes_) {
        box->checked = false;
        box->enabled = false;
    }
    Check9.visible = false;
    Check10.visible = false;
    stationsAsAtLoad();
    for (Button* command : overtimeCommands_) command->enabled = false;
    cmdRendiconto.enabled = false;
    cmdContributi.enabled = false;
    for (Control* control : std::array<Control*, 4>{&cmdConguaglio, &cmdCongA, &cmdCongRend, &Frame3}) {
        control->visible = false;
    }
    for (HiddenLabel* caption :
         {&lblElezione, &lbldata, &lblAggio, &Label7, &Label8, &Label9, &Label10, &Label11, &Label12, &Label13}) {
        caption->text = std::string();
    }
    Combo1.enabled = true;
    Combo4.enabled = true;
    txtDataEle.enabled = true;
    cmdAnteprima.enabled = true;
    cmdRiavvia.enabled = false;
    TipoElezioni();
    Combo4.clear();
    txtDataEle.text = std::string();
}

void frmTutteStampe::TipoElezioni() {
    Combo1.clear();
    Combo1.items = vorbano::TipoElezioni(desk_.files);
}

void frmTutteStampe::Elezioni() { Combo4.items = DataEle(desk_.files, Combo1.text()); }

void frmTutteStampe::Combo1_Click() {
    Combo4.clear();
    Elezioni();
    lblElezione.text = electionCaption(Combo1.text());
}

void frmTutteStampe::Combo4_Click() {
    txtDataEle.text = std::string(trim(Combo4.text()));
    const auto caption = dateCaption(Combo4.text());
    if (!caption) return;
    lbldata.text = *caption;
    lblAggio.text = std::string(editionCaption);
}

/// A period is chosen alone; none chosen counts as "Tutti".
void frmTutteStampe::onlyPeriod(const CheckBox& ticked) {
    if (!ticked.checked()) return;
    for (CheckBox* box : periodBoxes_) {
        if (box != &ticked) box->checked = false;
    }
}

void frmTutteStampe::cmdRiavvia_Click() {
    asAtLoad();
    form.focus(Combo1);
}

void frmTutteStampe::cmdImpegno_Click() {
    wellDone(printImpegno(desk_, election(), latePeriods(), heading()), desk_.desktop);
}

void frmTutteStampe::cmdDetermina_Click() {
    if (!electionGiven()) return;
    wellDone(printDetermina(desk_, election(), latePeriods(), chosenPeriod(), heading()), desk_.desktop);
}

void frmTutteStampe::cmdLRendiconto_Click() {
    wellDone(printLRendiconto(desk_, election(), latePeriods(), heading()), desk_.desktop);
}

void frmTutteStampe::cmdRendiconto_Click() {
    wellDone(printRendiconto(desk_, election(), heading(), cmdConguaglio.visible()), desk_.desktop);
}

void frmTutteStampe::cmdContributi_Click() {
    wellDone(printContributi(desk_, election(), latePeriods(), heading()), desk_.desktop);
}

void frmTutteStampe::cmdConguaglio_Click() { wellDone(printConguaglio(desk_, election(), heading()), desk_.desktop); }

void frmTutteStampe::cmdCongA_Click() {
    wellDone(printContributiConguaglio(desk_, election(), heading()), desk_.desktop);
}

void frmTutteStampe::cmdCongRend_Click() { wellDone(printCongRend(desk_, election(), heading()), desk_.desktop); }

int frmTutteStampe::chosenPeriod() const {
    const std::array boxes = {&Check6, &Check7, &Check8, &Check9, &Check10};
    for (std::size_t at = 0; at < boxes.size(); ++at) {
        if (boxes[at]->checked()) return static_cast<int>(at) + 1;
    }
    return allPeriods;
}

void frmTutteStampe::mnuEsci_Click() { form.close(); }

Election frmTutteStampe::election() const { return electionIn(Combo1, txtDataEle); }

}  // namespace vorbano
