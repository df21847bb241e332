#include "fiscalcode/frmCodFisc.h"

#include <utility>

#include "fiscalcode/birth_date.h"
#include "fiscalcode/codice_fiscale.h"
#include "platform/failure_words.h"
#include "storage/codepage.h"

namespace vorbano {

frmCodFisc::frmCodFisc(const Workplace& workplace, Export exported)
    : desk_(workplace), exported_(std::move(exported)), places_(desk_.places), hasPlaces_(desk_.places.check().ok()) {
    cboSesso.choose(0);
    for (TextBox* result : {&Text2, &Text3, &txtCodiceFiscale}) result->locked = true;
    txtDataNascita.lostFocus.calls(this, &frmCodFisc::txtDataNascita_LostFocus);
    Check1.clicked.calls(this, &frmCodFisc::Check1_Click);
    Text1.change.calls(this, &frmCodFisc::Text1_Change);
    cmdElabora.clicked.calls(this, &frmCodFisc::cmdElabora_Click);
    cmdEsporta.clicked.calls(this, &frmCodFisc::cmdEsporta_Click);
    Command1.clicked.calls(this, &frmCodFisc::Command1_Click);
}

void frmCodFisc::txtDataNascita_LostFocus() {
    txtDataNascita.text = reformatBirthDate(txtDataNascita.text(), desk_.desktop.today());
}

/// A place of the other list has no meaning any more.
void frmCodFisc::Check1_Click() { Text1.text = std::string(); }

/// One backspace on a completed name takes away only what was added; it must not come back at once. A text longer than
/// what was typed before comes from a letter, also from the last letter but one of the name.
bool frmCodFisc::takesAway(const std::string& text) const {
    if (!shown_.starts_with(text) || text.size() > typed_.size()) return false;
    return text.size() == typed_.size() || text.size() + 1 == shown_.size();
}

void frmCodFisc::Text1_Change() {
    if (writing_) return;
    const std::string text = Text1.text();
    const bool shorter = takesAway(text);
    typed_ = text;
    shown_ = text;
    if (trim(text).empty()) {
        emptyPlace();
        return;
    }
    if (!hasPlaces_) {
        showNoPlace();
        return;
    }
    const auto found = places_.atOrAfter(Check1.checked() ? BornIn::Stati : BornIn::Comuni, text);
    if (!found) {
        desk_.desktop.tell({"FasMsg: " + inItalian(found.error()), "Codice Fiscale", Icon::error});
        return;
    }
    if (!*found || !(*found)->name.starts_with(upperCase(text))) {
        showNoPlace();
    } else if (shorter && (*found)->name.size() != text.size()) {
        emptyPlace();
    } else {
        showPlace(**found);
    }
}

void frmCodFisc::showPlace(const Birthplace& place) {
    Text1.tone = Tone::plain;
    Text2.text = place.province;
    Text3.text = place.code;
    if (place.name.size() == typed_.size()) return;
    shown_ = place.name;
    writing_ = true;
    Text1.text = place.name;
    writing_ = false;
    Text1.markedFrom = static_cast<int>(typed_.size());
}

/// Told once, when the text ceases to match, and not again at every key.
void frmCodFisc::showNoPlace() {
    const bool matchedUntilNow = Text1.tone() != Tone::wrong;
    Text1.tone = Tone::wrong;
    Text2.text = std::string("?");
    Text3.text = std::string("?");
    if (!matchedUntilNow) return;
    desk_.desktop.tell({Check1.checked() ? "Stato non in elenco" : "Comune non in elenco", "Errore", Icon::warning});
}

/// No province and code of another place may stay beside the text.
void frmCodFisc::emptyPlace() {
    Text1.tone = Tone::plain;
    Text2.text = std::string();
    Text3.text = std::string();
}

void frmCodFisc::cmdElabora_Click() {
    const auto date = birthDate(txtDataNascita.text(), desk_.desktop.today());
    if (!date) {
        desk_.desktop.tell({"La data di nascita non e' valida.", "Codice Fiscale", Icon::warning});
        form.focus(txtDataNascita);
        return;
    }
    txtCodiceFiscale.text =
        CalcoloCodFis(txtCognome.text(), txtNome.text(), *date, trim(cboSesso.text()), trim(Text3.text()));
}

/// Nothing worked out leaves the field of the other screen as it is.
void frmCodFisc::cmdEsporta_Click() {
    if (exported_ && !txtCodiceFiscale.text().empty()) exported_(txtCodiceFiscale.text());
    Command1_Click();
}

void frmCodFisc::Command1_Click() { form.close(); }

}  // namespace vorbano
