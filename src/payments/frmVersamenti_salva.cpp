// What is stored: a document, and the amounts that the clerk types.

#include <limits>

#include "payments/frmVersamenti.h"
#include "screens/well_done.h"
#include "storage/codepage.h"
#include "storage/dates.h"
#include "storage/numbers.h"

namespace vorbano {

namespace {

/// The number of a mandate: nearest whole number, half to even; nothing when the text is no number or does not fit.
std::optional<std::int32_t> numberIn(std::string_view text) {
    constexpr std::int64_t one = 10'000;
    const auto number = toCurrency(text);
    if (!number || number->units() < 0) return std::nullopt;
    const std::int64_t whole = number->units() / one;
    const std::int64_t twice = number->units() % one * 2;
    const std::int64_t nearest = twice > one || (twice == one && whole % 2 == 1) ? whole + 1 : whole;
    if (nearest > std::numeric_limits<std::int32_t>::max()) return std::nullopt;
    return static_cast<std::int32_t>(nearest);
}

}  // namespace

bool frmVersamenti::checked() {
    struct Need {
        const CheckBox* box;
        TextBox* field;
        std::string_view missing;
    };
    constexpr std::string_view mandate = "Dati insufficienti per il mandato di pagamento";
    const Need needs[] = {{&Check6, &txtMnumero, mandate},
                          {&Check6, &txtMdata, mandate},
                          {&Check7, &txtDataf24, "Inserire la data del modello F24"},
                          {&Check12, &txtDatainail, "Inserire la data"}};
    for (const Need& need : needs) {
        if (!need.box->checked()) continue;
        // A number that is none would be stored as 0, unseen.
        const bool unreadable = need.field == &txtMnumero && !numberIn(txtMnumero.text());
        if (!trim(need.field->text()).empty() && !unreadable) continue;
        desk_.desktop.tell({std::string(need.missing), "Salva", Icon::warning});
        form.focus(*need.field);
        return false;
    }
    return true;
}

PaymentRecord frmVersamenti::documentOnScreen() {
    for (TextBox* field : {&txtMdata, &txtDataf24, &txtDatainail}) field->text = reformatDate(field->text());
    const std::size_t at = *chosenVoice();
    const PaymentVoice& voice = paymentVoices[at];
    const VoiceControls& controls = voices_[at];
    controls.amount->text = format(amountOrZero(controls.amount->text()), Mask::amount);

    PaymentRecord document{};
    document.Mother = voice.key;
    document.Percent = controls.rate == nullptr ? std::string() : controls.rate->text();
    document.Importo = amountOrZero(controls.amount->text());
    if (voice.paidBy == PaidBy::date) {
        document.Son = "";
        document.Data = txtDatainail.text();
        document.Sonocosi = "";
        return document;
    }
    const std::string_view kind = Check6.checked() ? mandateKind : formKind;
    document.Son = kind;
    document.Numero = Check6.checked() ? numberIn(txtMnumero.text()).value_or(0) : 0;
    document.Data = Check6.checked() ? txtMdata.text() : txtDataf24.text();
    document.Sonocosi = copiesText(voice, kind, Check8.checked() ? Copies::originalAndCopy : Copies::duplicate);
    return document;
}

void frmVersamenti::cmdSalva_Click() {
    if (!checked()) return;
    const PaymentRecord document = documentOnScreen();
    const PaymentVoice& voice = paymentVoices[*chosenVoice()];
    const bool change = phase_ == Phase::change;
    const int number = change ? wholeScan(Label15.text()) : 0;
    if (!wellDone(storeDocument(desk_.files, election(), onShow(), number, document), desk_.desktop)) return;
    if (voice.date != nullptr) {
        wellDone(storePaymentDate(desk_.files, election(), onShow(), voice, document.Data.trimmed()), desk_.desktop);
    }
    if (change) {
        documents_[static_cast<std::size_t>(number) - 1] = document;
        vedo(document);
        form.focus(cmdModifica);
        return;
    }
    saved_ = true;
    followState();
    form.focus(cmdAggiungi);
}

void frmVersamenti::cmdSalvaII_Click() {
    for (const VoiceControls& voice : voices_) {
        if (voice.typing == nullptr) continue;
        const auto amount = toCurrency(voice.amount->text());
        if (amount) {
            voice.amount->text = format(*amount, Mask::amount);
            continue;
        }
        desk_.desktop.tell({std::string(voice.missing), std::string(voice.title), Icon::warning});
        form.focus(*voice.amount);
        return;
    }
    const PaymentAmounts amounts = amountsOnScreen();
    if (!wellDone(storePaymentAmounts(desk_.files, election(), onShow(), amounts), desk_.desktop)) return;
    due_ = amounts;
    CheckBox* next = nullptr;
    for (const VoiceControls& voice : voices_) {
        if (voice.typing == nullptr || !voice.typing->checked()) continue;
        if (next == nullptr) next = voice.box;
        voice.typing->checked = false;
    }
    followState();
    if (next != nullptr) form.focus(*next);
}

}  // namespace vorbano
