// The fields of one member: birth, fiscal code, fee.

#include "fiscalcode/birth_date.h"
#include "fiscalcode/codice_fiscale.h"
#include "stations/fiscal_code_check.h"
#include "stations/station_entry.h"
#include "storage/numbers.h"

namespace vorbano {

/// A whole number above 0 stands in the field, rewritten as it is stored. Of anything else it is told, and the cursor
/// goes there.
bool StationEntry::isWholeNumber(TextBox& field, std::string_view otherwise) {
    if (const auto number = toInteger(field.text()); number && *number > 0) {
        field.text = std::to_string(*number);
        return true;
    }
    desk_.desktop.tell({std::string(otherwise), "Inserimento seggi", Icon::warning});
    form.focus(field);
    return false;
}

void StationEntry::txtSonoSeggio_LostFocus() {
    if (trim(txtSonoSeggio.text()).empty()) return;
    isWholeNumber(txtSonoSeggio, "Inserire il numero del seggio.");
}

void StationEntry::txtComposto_LostFocus() {
    if (trim(txtComposto.text()).empty() || txtComposto.locked()) return;
    if (!isWholeNumber(txtComposto, "Inserire il numero dei componenti del seggio.")) return;
    emptyGrid(stationNumber(), *toInteger(txtComposto.text()));
}

void StationEntry::txtNasco1_LostFocus() {
    txtNasco1.text = reformatBirthDate(txtNasco1.text(), desk_.desktop.today());
    txtDataNascita.text = txtNasco1.text();
}

/// A place of the other list is no place of this one.
void StationEntry::abroad_Click() { txtDove1_LostFocus(); }

/// An empty field is no place to look for: the code can be typed by hand.
void StationEntry::txtDove1_LostFocus() {
    const std::string_view name = trim(txtDove1.text());
    std::optional<Birthplace> found;
    if (!name.empty()) {
        const auto place = places_.named(abroad.checked() ? BornIn::Stati : BornIn::Comuni, name);
        // A list that cannot be read is not reported: it has no place.
        found = place ? *place : std::nullopt;
    }
    Text3.text = found ? found->code : std::string();
    Text2.text = found ? found->province : std::string();
    txtProvincia.text = Text2.text();
    if (found || name.empty()) return;
    desk_.desktop.tell({abroad.checked() ? "Stato non in elenco" : "Comune non in elenco", "Errore", Icon::warning});
    form.focus(txtDove1);
}

void StationEntry::txtSiNo1_LostFocus() {
    txtSiNo1.text = trim(txtSiNo1.text()).empty() ? std::string("SI") : upperCase(trim(txtSiNo1.text()));
}

void StationEntry::txtCodFisc1_GotFocus() {
    const auto born = birthDate(txtDataNascita.text(), desk_.desktop.today());
    if (!born) return;
    // The rule takes everybody for a man who is not said to be a woman; that must be seen.
    if (!Option1.checked()) Option2.checked = true;
    txtCodiceFiscale.text =
        CalcoloCodFis(txtCognome.text(), txtNome.text(), *born, txtSesso.text(), trim(Text3.text()));
    if (trim(txtCodFisc1.text()).empty()) txtCodFisc1.text = txtCodiceFiscale.text();
}

/// Only a code that came out otherwise takes the place of the one in the field, which the clerk may have overtyped.
void StationEntry::txtCodiceFiscale_Change() { txtCodFisc1.text = txtCodiceFiscale.text(); }

void StationEntry::txtCodFisc1_LostFocus() {
    if (trim(txtCodFisc1.text()).empty()) return;
    // Before the message: the command must not be usable beneath it.
    const bool whole = isWholeFiscalCode(txtCodFisc1.text());
    Label16.text = std::string(whole ? "" : "INS");
    if (whole) sentBack_ = false;
    updateEnabled();
    fiscalCodeLeft(txtCodFisc1, desk_.desktop);
}

void StationEntry::txtOnor1_GotFocus() {
    if (Label16.text() == "INS") {
        updateEnabled();
        form.focus(txtCodFisc1);
        return;
    }
    fee_.propose(tariff.text(), txtQualifica1.text());
}

void StationEntry::txtOnor1_LostFocus() {
    if (const auto fee = toCurrency(txtOnor1.text())) txtOnor1.text = format(*fee, Mask::amount);
    sentBack_ = !isWholeFiscalCode(txtCodFisc1.text()) && !trim(txtCodFisc1.text()).empty();
    if (!isWholeFiscalCode(txtCodFisc1.text())) {
        updateEnabled();
        form.focus(txtCodFisc1);
        return;
    }
    // Without a fee the tariff had no row: its name can still be corrected.
    if (correction_ == Correction::none && !trim(txtOnor1.text()).empty()) tariffStands_ = true;
    updateEnabled();
}

/// Everything about the person; place, role and what belongs to the station stay.
void StationEntry::clearMember() {
    for (HiddenLabel* label :
         {&txtCognome, &txtNome, &txtDataNascita, &txtSesso, &Text3, &Text2, &txtCodiceFiscale, &Label16}) {
        label->text = std::string();
    }
    for (TextBox* field :
         {&txtCompo1, &txtNome1, &txtIndi1, &txtNasco1, &txtDove1, &txtProvincia, &txtCodFisc1, &txtOnor1}) {
        field->text = std::string();
    }
    abroad.checked = false;
    Option1.checked = false;
    Option2.checked = false;
    txtSiNo1.text = std::string("SI");
    sentBack_ = false;
    attempted_ = 0;
    fee_.forget();
}

}  // namespace vorbano
