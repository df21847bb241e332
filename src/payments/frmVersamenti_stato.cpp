// What can be used when.

#include "payments/frmVersamenti.h"

namespace vorbano {

/// A phase begins with an empty document; the list begins without one on show.
void frmVersamenti::go(Phase phase) {
    phase_ = phase;
    if (phase != Phase::shown && phase != Phase::change) {
        untickAll();
        clearDocument();
        Label15.text = std::string();
        Label17.text = std::string();
    }
    if (phase != Phase::list) {
        List1.clear();
        lines_.clear();
    }
    followState();
}

void frmVersamenti::followState() {
    const bool choosing = phase_ == Phase::nothing;
    const bool searched = phase_ == Phase::searched;
    Combo1.enabled = choosing;
    Combo2.enabled = choosing;
    txtDataEle.locked = !choosing;
    cmdAnteprima.enabled = choosing;
    for (Button* command : {&cmdRiavvia, &cmdInserire, &cmdVisualizza, &cmdVideo, &cmdStampa})
        command->enabled = searched;
    cmdConguaglio.enabled = searched && adjustable_;
    cmdSoloElenco.enabled = searched || phase_ == Phase::list || phase_ == Phase::shown;
    Check15.enabled = searched;
    Check16.enabled = searched && !documents_.empty();
    if (documents_.empty()) Check16.checked = false;
    followVoices();
    followDocument();

    const bool onShow = phase_ == Phase::shown || phase_ == Phase::change;
    List1.visible = !onShow;
    List1.enabled = phase_ == Phase::list;
    Label15.visible = onShow;
    cmdPrecedente.enabled = phase_ == Phase::shown && Label15.text() != "1";
    cmdSuccessivo.enabled = phase_ == Phase::shown;
    cmdModifica.enabled = onShow && complete();
    cmdElimina.enabled = phase_ == Phase::shown;
    cmdTermina.enabled = onShow;
    cmdAnnulla3.enabled = onShow || phase_ == Phase::list;
}

/// One voice at a time; while an amount is being typed none can be chosen.
void frmVersamenti::followVoices() {
    const bool entry = phase_ == Phase::entry;
    const auto chosen = chosenVoice();
    for (std::size_t at = 0; at < voices_.size(); ++at) {
        const VoiceControls& voice = voices_[at];
        voice.box->enabled = entry && !amountIsTyped() && (!chosen || *chosen == at);
        const bool typing = voice.typing != nullptr && voice.typing->checked();
        voice.amount->locked = !typing;
        if (voice.typing != nullptr) voice.typing->enabled = entry && (offered_[at] || typing);
    }
    cmdSalvaII.enabled = amountIsTyped();
}

void frmVersamenti::followDocument() {
    const bool entry = phase_ == Phase::entry;
    const bool onShow = phase_ == Phase::shown || phase_ == Phase::change;
    const auto chosen = chosenVoice();
    const bool open = entry && chosen && !amountIsTyped();
    const PaidBy paidBy = chosen ? paymentVoices[*chosen].paidBy : PaidBy::mandateOrForm;
    Check6.enabled = open && paidBy == PaidBy::mandateOrForm;
    for (CheckBox* box : {&Check7, &Check8, &Check9, &Check10}) box->enabled = open && paidBy != PaidBy::date;
    Check12.enabled = open && paidBy == PaidBy::date;

    const std::pair<TextBox*, CheckBox*> fields[] = {
        {&txtMnumero, &Check6}, {&txtMdata, &Check6}, {&txtDataf24, &Check7}, {&txtDatainail, &Check12}};
    for (const auto& [field, box] : fields) {
        field->enabled = (open || onShow) && box->checked();
        field->locked = phase_ == Phase::shown;
    }
    cmdSalva.enabled = !saved_ && ((open && complete()) || phase_ == Phase::change);
    cmdAggiungi.enabled = entry && saved_;
    cmdNuovo.enabled = entry && saved_;
    cmdAnnulla2.enabled = entry;
}

std::optional<std::size_t> frmVersamenti::chosenVoice() const {
    for (std::size_t at = 0; at < voices_.size(); ++at) {
        if (voices_[at].box->checked()) return at;
    }
    return std::nullopt;
}

bool frmVersamenti::amountIsTyped() const { return Check13.checked() || Check14.checked() || Check18.checked(); }

bool frmVersamenti::complete() const {
    const auto chosen = chosenVoice();
    if (!chosen) return false;
    const bool copies = Check8.checked() || Check9.checked();
    switch (paymentVoices[*chosen].paidBy) {
        case PaidBy::mandateOrForm:
            return copies && (Check6.checked() || Check7.checked());
        case PaidBy::form:
            return copies && Check7.checked();
        case PaidBy::date:
            return Check12.checked();
    }
    return false;
}

}  // namespace vorbano
