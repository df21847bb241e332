// The choice of a row, a member and the substitute: fields, fee, code.

#include "screens/well_done.h"
#include "stations/fiscal_code_check.h"
#include "stations/station_changes.h"
#include "stations/station_correction.h"
#include "storage/codepage.h"
#include "storage/numbers.h"

namespace vorbano {

void StationCorrection::MSFlexGrid1_Click() {
    const auto row = static_cast<std::size_t>(MSFlexGrid1.row);
    if (row == 0 || row > lines_.size()) return;
    if (!Check3.checked() && !isTicked(Check4) && !isTicked(Check5)) {
        desk_.desktop.tell({"Selezionare il tipo di modifica", "Modifica", Icon::information});
        return;
    }
    const Line line = lines_[row - 1];
    if (line.substitute) {
        desk_.desktop.tell(
            {"Per cancellare il sostituto selezionare modifica componente", "Cencella sostituto", Icon::information});
        if (Check3.checked()) memberOf(substitutes_[line.at]);
    } else if (Check3.checked()) {
        CompSos(line.at);
    } else if (isTicked(Check5)) {
        chooseForRemoval(line.at);
    }
}

/// A substitute is changed together with the member; who has none any more cannot be called up.
void StationCorrection::memberOf(const SubstituteRecord& substitute) {
    for (const Line& line : lines_) {
        if (line.substitute || members_[line.at].Ordine != substitute.Sostituito) continue;
        CompSos(line.at);
        return;
    }
}

void StationCorrection::CompSos(std::size_t at) {
    closeFrames();
    const MemberRecord& chosen = members_[at];
    loading_ = true;
    Label9.text = std::to_string(chosen.Ordine);
    Text1.text = std::to_string(at + 1);
    Label19.text = std::string("1");
    member.show(chosen.person);
    showTariff(chosen.Tariffa.trimmed());
    const auto found = substituteOf(substitutes_, chosen.station.SonoSeggio, chosen.Ordine);
    if (found) {
        const StationPerson& person = substitutes_[*found].person;
        txtSostituto.text = person.Cognome.trimmed();
        txtNomeS.text = person.Nome.trimmed();
        txtIndirizzo2.text = person.Indirizzo.trimmed();
        txtFisc2.text = person.CodFisc.trimmed();
        txtImporto2.text = format(person.Onorario, Mask::amount);
        Check1.checked = true;
    }
    Check2.enabled = found.has_value();
    loading_ = false;
    Frame1.visible = true;
    followState();
    form.focus(member.Cognome);
}

/// A station cannot do without its president and its secretary.
void StationCorrection::chooseForRemoval(std::size_t at) {
    closeFrames();
    const MemberRecord& chosen = members_[at];
    const bool scrutineer = stationRole(chosen.person.Qualifica.trimmed()) == StationRole::scrutatore;
    lblSelezione.tone = scrutineer ? Tone::plain : Tone::active;
    if (scrutineer) {
        Label9.text = std::to_string(chosen.Ordine);
        Text1.text = std::to_string(at + 1);
        Frame3->person.show(chosen.person);
        Frame3->tariff.text = chosen.Tariffa.trimmed();
        Frame3->frame.visible = true;
    }
    followState();
    if (scrutineer) form.focus(cmdSalva);
}

void StationCorrection::Aggiungi() {
    PersonFields& added = Frame2->person;
    added.Qualifica.text = std::string(nameOf(StationRole::scrutatore));
    added.SiNo.text = std::string("SI");
    for (const Line& line : lines_) {
        if (line.substitute) continue;
        showTariff(members_[line.at].Tariffa.trimmed());
        break;
    }
    Frame2->tariff.text = Combo2.text();
    Frame2->frame.visible = true;
    followState();
    if (form.focused() == &*Check4) form.focus(added.Cognome);
}

void StationCorrection::Combo2_Click() {
    if (Frame2 && Frame2->frame.visible()) Frame2->tariff.text = Combo2.text();
}

void StationCorrection::Check1_Click() {
    if (loading_) return;
    Label19.text = std::string(Check1.checked() ? "0" : "1");
    followState();
    if (Check1.checked() && form.focused() == &Check1) form.focus(txtSostituto);
}

void StationCorrection::Check2_Click() {
    if (!loading_) followState();
}

bool StationCorrection::propose(TextBox& fee, const TextBox& role) {
    const auto known = stationRole(role.text());
    if (!known) return true;
    const auto found = stationFeeFor(desk_.files, terms_.kind, Combo2.text(), *known);
    if (!found) return wellDone(found.error(), desk_.desktop);
    if (*found) {
        fee.text = format(**found, Mask::amount);
    } else {
        desk_.desktop.tell({"Tariffe non inserite", "Tariffe", Icon::warning});
    }
    return true;
}

/// Deliberately also over a fee that was typed or shared before: entering the field anew restores the whole fee.
void StationCorrection::txtImporto_GotFocus() { propose(member.Onorario, member.Qualifica); }

void StationCorrection::Text8_GotFocus() { propose(Frame2->person.Onorario, Frame2->person.Qualifica); }

/// Each pass takes the part from what the member has at that moment.
void StationCorrection::share(Currency part) {
    txtImporto2.text = format(part, Mask::amount);
    member.Onorario.text = format(feeIn(member.Onorario) - part, Mask::amount);
}

void StationCorrection::txtPercent_LostFocus() {
    const auto percentage = toCurrency(trim(txtPercent.text()));
    if (percentage) share(cents(percentOf(feeIn(member.Onorario), *percentage)));
}

void StationCorrection::txtImporto2_LostFocus() {
    if (!trim(txtPercent.text()).empty()) return;
    if (trim(txtImporto2.text()).empty()) {
        form.focus(txtPercent);
    } else {
        share(feeIn(txtImporto2));
    }
}

void StationCorrection::txtFisc_LostFocus() { fiscalCodeLeft(member.CodFisc, desk_.desktop); }

void StationCorrection::txtFisc2_LostFocus() { fiscalCodeLeft(txtFisc2, desk_.desktop); }

void StationCorrection::Text9_LostFocus() { fiscalCodeLeft(Frame2->person.CodFisc, desk_.desktop); }

/// The field that waits for a code, in this order: that of a new member, of the member, of the substitute.
Control* StationCorrection::takeCode(const std::string& code) {
    TextBox* taker = nullptr;
    if (Frame2 && Frame2->frame.visible()) {
        taker = &Frame2->person.CodFisc;
    } else if (Frame1.visible()) {
        taker = Label19.text() == "0" ? &txtFisc2 : &member.CodFisc;
    }
    if (taker != nullptr) taker->text = code;
    return taker;
}

}  // namespace vorbano
