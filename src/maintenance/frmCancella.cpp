#include "maintenance/frmCancella.h"

#include <algorithm>

#include "screens/election_choice.h"
#include "screens/well_done.h"
#include "storage/codepage.h"

namespace vorbano {

namespace {

std::string inWords(const Election& election) { return election.type + " del " + election.date; }

}  // namespace

frmCancella::frmCancella(const Workplace& workplace) : desk_(workplace) {
    using This = frmCancella;
    mnuEsci.clicked.calls(this, &This::mnuEsci_Click);
    Combo1.clicked.calls(this, &This::Combo1_Click);
    Combo2.clicked.calls(this, &This::Combo2_Click);
    cmdRicerca.clicked.calls(this, &This::cmdRicerca_Click);
    cmdAnnulla.clicked.calls(this, &This::cmdAnnulla_Click);
    Check1.clicked.calls(this, &This::Check1_Click);
    for (CheckBox* box : boxes_) box->clicked.calls(this, &This::groupTicked);
    Label2.change.calls(this, &This::Label2_Change);
    cmdEsegui.clicked.calls(this, &This::cmdEsegui_Click);
    lblAvviso.tone = Tone::wrong;
    Combo1.items = TipoElezioni(desk_.files);
    forget();
}

void frmCancella::mnuEsci_Click() { form.close(); }

void frmCancella::Combo1_Click() {
    Combo2.clear();
    listDates();
    forget();
}

void frmCancella::Combo2_Click() { forget(); }

void frmCancella::listDates() { Combo2.items = DataEle(desk_.files, Combo1.text()); }

void frmCancella::cmdRicerca_Click() {
    forget();
    const Election named{std::string(trim(Combo1.text())), std::string(trim(Combo2.text()))};
    // Only the date is asked for: there is none to choose without a type.
    if (named.date.empty()) {
        desk_.desktop.tell({"Inserire la data dell'elezione", "Errore", Icon::warning});
        form.focus(named.type.empty() ? Combo1 : Combo2);
        return;
    }
    const auto inUse = groupsInUse(desk_.files, named);
    if (!inUse) {
        const Failure kind = inUse.error().kind;
        if (kind == Failure::missingFolder || kind == Failure::badName) {
            desk_.desktop.tell({"Data di Elezione inesistente!", "Errore", Icon::warning});
            form.focus(Combo2);
        } else {
            wellDone(inUse.error(), desk_.desktop);
        }
        return;
    }
    searched_ = named;
    for (std::size_t at = 0; at < boxes_.size(); ++at) boxes_[at]->enabled = (*inUse)[at];
    followState();
    const auto first = std::ranges::find_if(boxes_, [](const CheckBox* box) { return box->enabled(); });
    form.focus(first == boxes_.end() ? Check1 : **first);
}

/// What was removed is no longer offered.
void frmCancella::cmdAnnulla_Click() {
    const std::string date = Combo2.text();
    Combo2.clear();
    listDates();
    if (const int at = Combo2.find(date); at >= 0) {
        Combo2.selection = at;
        Combo2.text = date;
    }
    forget();
    form.focus(Combo1);
}

void frmCancella::forget() {
    searched_.reset();
    Check1.checked = false;
    for (CheckBox* box : boxes_) {
        box->checked = false;
        box->enabled = false;
    }
    done_ = false;
    followState();
}

/// Deliberate: a group whose tick is taken off again leaves this one ticked, and then all files go; the warning says
/// so.
void frmCancella::Check1_Click() {
    for (CheckBox* box : boxes_) box->checked = Check1.checked() && box->enabled();
    followState();
}

void frmCancella::groupTicked() { Label2.text = std::to_string(tickedGroups()); }

int frmCancella::tickedGroups() const {
    return static_cast<int>(std::ranges::count_if(boxes_, [](const CheckBox* box) { return box->checked(); }));
}

void frmCancella::Label2_Change() {
    done_ = false;
    followState();
}

/// While a group is ticked the election stands. After the removal the way back is open with the boxes still ticked.
void frmCancella::followState() {
    const bool ticked = tickedGroups() > 0;
    for (Control* control :
         {static_cast<Control*>(&Combo1), static_cast<Control*>(&Combo2), static_cast<Control*>(&cmdRicerca)}) {
        control->enabled = !ticked;
    }
    cmdAnnulla.enabled = searched_ && (!ticked || done_);
    Check1.enabled = searched_.has_value();
    cmdEsegui.enabled = ticked;
    lblElezione.text = searched_ ? "Elezione ricercata: " + inWords(*searched_) : std::string();
    lblAvviso.text = warning();
}

std::string frmCancella::warning() const {
    const int groups = tickedGroups();
    if (!searched_ || groups == 0) return {};
    if (done_) return "Cancellazione eseguita. Con Annulla Ricerca si sceglie un'altra elezione.";
    if (Check1.checked()) {
        return "Saranno eliminati TUTTI i file dell'elezione " + inWords(*searched_) + ",\nanche quelli senza spunta.";
    }
    const std::string files = groups == 1 ? "i file di 1 gruppo" : "i file di " + std::to_string(groups) + " gruppi";
    return "Saranno eliminati " + files + " dell'elezione " + inWords(*searched_) + ".";
}

void frmCancella::cmdEsegui_Click() {
    const bool agreed = desk_.desktop.ask(
        {"ATTENZIONE!\nSTATE PER CANCELLARE IN MODO DEFINITIVO\nI FILE RELATIVI ALLE OPZIONI SELEZIONATE\nCONTINUARE?",
         "CANCELLAZIONE FILE", Icon::warning});
    if (!agreed || !searched_) return;
    for (std::size_t at = 0; at < boxes_.size(); ++at) {
        if (boxes_[at]->checked()) deleteGroup(desk_.files, *searched_, deletionGroups[at]);
    }
    if (Check1.checked()) deleteWhole(desk_.files, *searched_);
    desk_.desktop.tell({"Eseguita con successo!", "Cancellazione", Icon::information});
    done_ = true;
    followState();
}

}  // namespace vorbano
