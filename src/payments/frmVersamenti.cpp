#include "payments/frmVersamenti.h"

#include "overtime/staff.h"
#include "screens/date_entry.h"
#include "screens/election_choice.h"
#include "screens/well_done.h"
#include "storage/codepage.h"
#include "storage/list_files.h"
#include "storage/numbers.h"
#include "storage/only_record.h"

namespace vorbano {

frmVersamenti::frmVersamenti(const Workplace& workplace) : desk_(workplace) {
    for (TextBox* field : {&txtQnumero, &txtQdata}) {
        field->locked = true;
        field->visible = false;
    }
    Label21.visible = false;
    hangProcedures();
    Combo1.items = TipoElezioni(desk_.files);
    followState();
}

void frmVersamenti::hangProcedures() {
    using This = frmVersamenti;
    const std::pair<Event*, void (This::*)()> procedures[] = {
        {&mnuEsci.clicked, &This::mnuEsci_Click},
        {&Combo1.clicked, &This::Combo1_Click},
        {&Combo2.clicked, &This::Combo2_Click},
        {&cmdAnteprima.clicked, &This::cmdAnteprima_Click},
        {&cmdRiavvia.clicked, &This::cmdRiavvia_Click},
        {&cmdInserire.clicked, &This::cmdInserire_Click},
        {&cmdVisualizza.clicked, &This::cmdVisualizza_Click},
        {&cmdConguaglio.clicked, &This::cmdConguaglio_Click},
        {&Check6.clicked, &This::Check6_Click},
        {&Check7.clicked, &This::Check7_Click},
        {&Check8.clicked, &This::Check8_Click},
        {&Check9.clicked, &This::Check9_Click},
        {&Check10.clicked, &This::Check10_Click},
        {&Check12.clicked, &This::Check12_Click},
        {&Check15.clicked, &This::Check15_Click},
        {&Check16.clicked, &This::Check16_Click},
        {&cmdSalva.clicked, &This::cmdSalva_Click},
        {&cmdSalvaII.clicked, &This::cmdSalvaII_Click},
        {&cmdAggiungi.clicked, &This::cmdAggiungi_Click},
        {&cmdNuovo.clicked, &This::cmdNuovo_Click},
        {&cmdAnnulla2.clicked, &This::cmdAnnulla2_Click},
        {&List1.clicked, &This::List1_Click},
        {&Label17.change, &This::Label17_Change},
        {&cmdPrecedente.clicked, &This::cmdPrecedente_Click},
        {&cmdSuccessivo.clicked, &This::cmdSuccessivo_Click},
        {&cmdModifica.clicked, &This::cmdModifica_Click},
        {&cmdElimina.clicked, &This::cmdElimina_Click},
        {&cmdTermina.clicked, &This::cmdTermina_Click},
        {&cmdAnnulla3.clicked, &This::cmdAnnulla3_Click},
        {&cmdVideo.clicked, &This::cmdVideo_Click},
        {&cmdStampa.clicked, &This::cmdStampa_Click},
        {&cmdSoloElenco.clicked, &This::cmdSoloElenco_Click},
    };
    for (const auto& [event, procedure] : procedures) event->calls(this, procedure);
    for (TextBox* field : {&txtDataEle, &txtMdata, &txtDataf24, &txtDatainail}) makeDateField(*field, desk_.desktop);
    for (TextBox* field : documentFields()) field->change.calls(this, &This::touched);
    for (std::size_t at = 0; at < voices_.size(); ++at) {
        voices_[at].box->clicked.calls([this, at] { voiceTicked(at); });
        if (voices_[at].typing != nullptr) voices_[at].typing->clicked.calls([this, at] { typingTicked(at); });
    }
}

Election frmVersamenti::election() const { return electionIn(Combo1, txtDataEle); }

void frmVersamenti::Combo1_Click() {
    Combo2.clear();
    Combo2.items = DataEle(desk_.files, Combo1.text());
    lblElezione.text = electionCaption(Combo1.text());
}

void frmVersamenti::Combo2_Click() { txtDataEle.text = std::string(trim(Combo2.text())); }

void frmVersamenti::tellMissing() {
    desk_.desktop.tell({"Data di Elezione inesistente!", "Errore", Icon::warning});
    form.focus(txtDataEle);
}

void frmVersamenti::cmdAnteprima_Click() {
    if (election().type.empty() || election().date.empty()) {
        desk_.desktop.tell({"dati insufficienti per la ricerca", "Errore", Icon::warning});
        form.focus(Combo1);
        return;
    }
    search();
}

bool frmVersamenti::search() {
    const auto employees = searchElection(desk_.files, election());
    if (!employees) {
        const Failure kind = employees.error().kind;
        if (kind != Failure::missingFolder && kind != Failure::badName)
            return wellDone(employees.error(), desk_.desktop);
        tellMissing();
        return false;
    }
    if (*employees == 0) {
        tellMissing();
        return false;
    }
    const auto adjustable = hasAdjustment(desk_.files, election());
    if (!adjustable) return wellDone(adjustable.error(), desk_.desktop);
    const auto ente = onlyRecord<NameRecord>(desk_.files, enteFile);
    if (!ente) return wellDone(ente.error(), desk_.desktop);
    const auto due = readPaymentsDue(desk_.files, election());
    if (!due) return wellDone(due.error(), desk_.desktop);
    if (!wellDone(Kontrol(desk_.files, election(), due->amounts), desk_.desktop) || !readAll()) return false;
    adjustable_ = *adjustable;
    lblComune.text = *ente ? (*ente)->name.trimmed() : std::string();
    // As the caption of the reports: a date in January has none, and what was there stays.
    if (const auto caption = dateCaption(txtDataEle.text())) lbldata.text = *caption;
    showDue(*due);
    go(Phase::searched);
    form.focus(cmdInserire);
    return true;
}

void frmVersamenti::showDue(const PaymentsDue& due) {
    due_ = due.amounts;
    for (std::size_t at = 0; at < voices_.size(); ++at) {
        voices_[at].amount->text = format(due.amounts[at], Mask::amount);
        if (voices_[at].rate != nullptr) voices_[at].rate->text = rateText(due.rates[at]);
    }
}

PaymentAmounts frmVersamenti::amountsOnScreen() const {
    PaymentAmounts amounts;
    for (std::size_t at = 0; at < voices_.size(); ++at) amounts[at] = cents(amountOrZero(voices_[at].amount->text()));
    return amounts;
}

bool frmVersamenti::readAll() {
    auto documents = readDocuments(desk_.files, election(), onShow());
    if (!documents) return wellDone(documents.error(), desk_.desktop);
    documents_ = std::move(*documents);
    return true;
}

void frmVersamenti::cmdRiavvia_Click() {
    adjust(false);
    for (const VoiceControls& voice : voices_) {
        voice.amount->text = std::string();
        if (voice.rate != nullptr) voice.rate->text = std::string();
    }
    for (CheckBox* box : {&Check15, &Check16}) box->checked = false;
    for (HiddenLabel* caption : {&lblComune, &lblElezione, &lbldata}) caption->text = std::string();
    due_ = {};
    documents_.clear();
    Combo1.clear();
    Combo1.items = TipoElezioni(desk_.files);
    Combo2.clear();
    txtDataEle.text = std::string();
    go(Phase::nothing);
    form.focus(Combo1);
}

void frmVersamenti::cmdInserire_Click() {
    go(Phase::entry);
    form.focus(Check1);
}

void frmVersamenti::cmdAnnulla2_Click() {
    if (!readAll()) return;
    go(Phase::searched);
    form.focus(cmdInserire);
}

void frmVersamenti::cmdAnnulla3_Click() { cmdAnnulla2_Click(); }

void frmVersamenti::mnuEsci_Click() { form.close(); }

}  // namespace vorbano
