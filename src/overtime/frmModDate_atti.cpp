// The dates of the decree and of the determination.

#include "overtime/frmModDate.h"
#include "screens/well_done.h"
#include "storage/dates.h"
#include "storage/numbers.h"

namespace vorbano {

namespace {

/// The longest time that the determination may come after the decree.
constexpr int maxDaysAfterDecree = 10;

}  // namespace

/// A box unlocks its date; cleared, it gives back the stored one.
void frmModDate::act_Click(CheckBox& box, TextBox& date) {
    date.locked = !box.checked();
    if (box.checked()) {
        form.focus(date);
    } else if (found_) {
        date.text = &box == &Check6 ? found_->decreto : found_->determina;
    }
    cmdSalva2.enabled = Check6.checked() || Check7.checked();
}

void frmModDate::cmdSalva2_Click() {
    if (!found_) return;
    const auto refuse = [this](const char* text, const char* title, TextBox& field) {
        desk_.desktop.tell({text, title, Icon::warning});
        form.focus(field);
    };
    for (TextBox* field : {&txtDataDecreto, &txtDataDetermina}) {
        if (trim(field->text()).empty()) return refuse("Date incomplete", "Errore", *field);
    }
    for (TextBox* field : {&txtDataDecreto, &txtDataDetermina}) {
        if (!parseDate(field->text())) return refuse("inserite la data per intero", "data errata", *field);
    }
    const std::string decreto = reformatDate(txtDataDecreto.text());
    const std::string determina = reformatDate(txtDataDetermina.text());
    if (daysBetween(decreto, determina).value_or(0) > maxDaysAfterDecree) {
        return refuse(
            "data autorizzazione oltre i termini di gg 10 dalla data di publicazione del decreto.\n"
            "AUTORIZZARE dalla data della determinazione o successive",
            "Errore", Check7.checked() ? txtDataDetermina : txtDataDecreto);
    }
    if (!wellDone(storeActDates(desk_.files, found_->election, decreto, determina), desk_.desktop)) return;
    found_->decreto = decreto;
    found_->determina = determina;
    Check6.checked = false;
    Check7.checked = false;
}

}  // namespace vorbano
