// The boxes of a document: its voice, its kind, its copies, and the amounts that the clerk types.

#include "payments/frmVersamenti.h"
#include "screens/well_done.h"
#include "storage/codepage.h"
#include "storage/numbers.h"

namespace vorbano {

namespace {

/// Of two boxes only one is ticked.
void excludes(const CheckBox& box, CheckBox& other) {
    if (box.checked()) other.checked = false;
}

}  // namespace

std::vector<TextBox*> frmVersamenti::documentFields() { return {&txtMnumero, &txtMdata, &txtDataf24, &txtDatainail}; }

std::vector<CheckBox*> frmVersamenti::documentBoxes() {
    return {&Check6, &Check7, &Check8, &Check9, &Check10, &Check12};
}

/// A document that was stored and is then changed is another one.
void frmVersamenti::touched() {
    saved_ = false;
    followState();
}

void frmVersamenti::voiceTicked(std::size_t voice) {
    if (phase_ != Phase::entry) return;
    const VoiceControls& controls = voices_[voice];
    offered_ = {};
    if (!controls.box->checked()) {
        for (CheckBox* box : documentBoxes()) box->checked = false;
        touched();
        return;
    }
    const bool refused = controls.typing != nullptr && amountOrZero(controls.amount->text()) == Currency{};
    if (refused) {
        desk_.desktop.tell({std::string(controls.missing), std::string(controls.title), Icon::warning});
        controls.box->checked = false;
    }
    // Also where there is an amount: a wrong one must not stay for good.
    offered_[voice] = controls.typing != nullptr;
    touched();
    if (refused) form.focus(*controls.typing);
}

void frmVersamenti::typingTicked(std::size_t voice) {
    const VoiceControls& controls = voices_[voice];
    // What was typed and not stored is given up with the box.
    if (!controls.typing->checked()) controls.amount->text = format(due_[voice], Mask::amount);
    followState();
    if (controls.typing->checked()) form.focus(*controls.amount);
}

void frmVersamenti::Check6_Click() {
    excludes(Check6, Check7);
    touched();
}

void frmVersamenti::Check7_Click() {
    excludes(Check7, Check6);
    Check10_Click();
}

void frmVersamenti::Check8_Click() {
    excludes(Check8, Check9);
    touched();
}

void frmVersamenti::Check9_Click() {
    excludes(Check9, Check8);
    touched();
}

/// `VediInps`, `VediInpsc`: the form of the INPS payment bears the date that is kept for it.
void frmVersamenti::Check10_Click() {
    touched();
    if (phase_ == Phase::entry && Check10.checked() && Check7.checked())
        fillStoredDate(paymentVoiceOf("Inps"), txtDataf24);
}

/// `vedinail`
void frmVersamenti::Check12_Click() {
    touched();
    if (phase_ == Phase::entry && Check12.checked()) fillStoredDate(paymentVoiceOf("Inail"), txtDatainail);
}

/// A date that the clerk has typed stays.
void frmVersamenti::fillStoredDate(std::size_t voice, TextBox& field) {
    if (!trim(field.text()).empty()) return;
    const auto date = paymentDate(desk_.files, election(), onShow(), paymentVoices[voice]);
    if (!date) {
        wellDone(date.error(), desk_.desktop);
        return;
    }
    field.text = *date;
}

void frmVersamenti::untickAll() {
    for (const VoiceControls& voice : voices_) {
        voice.box->checked = false;
        if (voice.typing != nullptr) voice.typing->checked = false;
    }
    for (CheckBox* box : documentBoxes()) box->checked = false;
    offered_ = {};
}

void frmVersamenti::clearDocument() {
    for (TextBox* field : documentFields()) field->text = std::string();
    for (TextBox* field : {&txtQnumero, &txtQdata}) {
        field->text = std::string();
        field->visible = false;
    }
    saved_ = false;
}

/// Another document of the same voice.
void frmVersamenti::cmdAggiungi_Click() {
    clearDocument();
    followState();
    for (TextBox* field : documentFields()) {
        if (!field->isOperable()) continue;
        form.focus(*field);
        return;
    }
}

void frmVersamenti::cmdNuovo_Click() {
    untickAll();
    clearDocument();
    followState();
    form.focus(Check1);
}

}  // namespace vorbano
