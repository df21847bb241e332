// The panel of the stored documents: the list, one of them on show, its change and its removal.

#include "payments/frmVersamenti.h"
#include "screens/well_done.h"
#include "storage/codepage.h"
#include "storage/numbers.h"

namespace vorbano {

void frmVersamenti::cmdVisualizza_Click() {
    if (!readAll()) return;
    // Without documents the panel stays as it is, empty.
    if (documents_.empty()) return;
    showList();
}

void frmVersamenti::showList() {
    go(Phase::list);
    lines_ = vedolista(documents_);
    Lines texts;
    for (const DocumentLine& line : lines_) texts.push_back(line.text);
    List1.items = texts;
    form.focus(List1);
}

void frmVersamenti::List1_Click() {
    const auto chosen = static_cast<std::size_t>(List1.selection());
    if (chosen >= lines_.size() || !showsDocument(lines_[chosen].text)) return;
    if (const int record = lines_[chosen].record; record > 0) Label17.text = std::to_string(record);
    if (phase_ == Phase::shown) form.focus(cmdSuccessivo);
}

void frmVersamenti::Label17_Change() {
    const int number = wholeScan(Label17.text());
    if (number == 0) return;
    if (number > static_cast<int>(documents_.size())) {
        desk_.desktop.tell({"Fine records. Premere il tasto 'Precedente'", "Versamenti", Icon::information});
        Label17.text = Label15.text();
        return;
    }
    Label15.text = std::to_string(number);
    vedo(documents_[static_cast<std::size_t>(number) - 1]);
}

/// Ticks the boxes and fills the fields of a stored document.
void frmVersamenti::vedo(const PaymentRecord& document) {
    phase_ = Phase::shown;
    shown_ = document;
    untickAll();
    clearDocument();
    const std::size_t voice = paymentVoiceOf(document.Mother.trimmed());
    if (voice < voices_.size()) voices_[voice].box->checked = true;
    const std::string date = document.Data.trimmed();
    const std::string kind = document.Son.trimmed();
    const std::string copies = document.Sonocosi.trimmed();
    if (kind.starts_with("Man")) {
        Check6.checked = true;
        txtMnumero.text = std::to_string(document.Numero);
        txtMdata.text = date;
    } else if (kind.starts_with("Mod")) {
        Check7.checked = true;
        txtDataf24.text = date;
    } else if (kind.starts_with("Qui")) {
        txtQnumero.text = std::to_string(document.Numero);
        txtQdata.text = date;
        txtQnumero.visible = true;
        txtQdata.visible = true;
    } else if (voice < voices_.size() && paymentVoices[voice].paidBy == PaidBy::date) {
        Check12.checked = true;
        txtDatainail.text = date;
    }
    Check8.checked = copies.starts_with("in o");
    Check9.checked = copies.starts_with("in d");
    followState();
}

void frmVersamenti::cmdPrecedente_Click() { Label17.text = std::to_string(wholeScan(Label15.text()) - 1); }

void frmVersamenti::cmdSuccessivo_Click() { Label17.text = std::to_string(wholeScan(Label15.text()) + 1); }

void frmVersamenti::cmdModifica_Click() {
    phase_ = Phase::change;
    saved_ = false;
    followState();
    for (TextBox* field : documentFields()) {
        if (!field->isOperable()) continue;
        form.focus(*field);
        return;
    }
}

void frmVersamenti::cmdElimina_Click() {
    if (!desk_.desktop.ask(
            {"Siete sicuri di voler eliminare il documento selezionato?", "Elimina Documento", Icon::question}))
        return;
    if (!wellDone(removeDocument(desk_.files, election(), onShow(), shown_), desk_.desktop)) return;
    desk_.desktop.tell({"Documento Eliminato", "Elimina", Icon::information});
    if (!readAll()) return;
    if (documents_.empty()) {
        go(Phase::searched);
        form.focus(cmdInserire);
    } else {
        showList();
    }
}

void frmVersamenti::cmdTermina_Click() { showList(); }

}  // namespace vorbano
