// Storing: a member, the substitute, a member more or less.

#include "screens/well_done.h"
#include "stations/station_changes.h"
#include "stations/station_correction.h"
#include "storage/codepage.h"
#include "storage/numbers.h"

namespace vorbano {

namespace {

Integer integerIn(const std::string& text) { return static_cast<std::int16_t>(wholeScan(text)); }

std::string surnameInCapitals(const TextBox& field) { return upperCase(trim(field.text())); }

}  // namespace

void StationCorrection::cmdSalva_Click() {
    if (isTicked(Check5)) {
        EliminaComp();
    } else if (isTicked(Check4)) {
        AggiungiReverse();
    } else {
        SalvaModifica();
    }
}

/// What is stored of the substitute before a failure is stored over again, not twice, when the clerk saves again.
void StationCorrection::SalvaModifica() {
    if (Check2.checked()) {
        if (!EliminaSos() || !propose(member.Onorario, member.Qualifica)) return;
    } else if (Check1.checked() && !SalvaSos()) {
        return;
    }
    const int number = wholeScan(Text1.text());
    // Type, date and numbers of stations are those of the entry; records of one file may differ in them.
    MemberRecord record = members_[static_cast<std::size_t>(number) - 1];
    record.Composto = integerIn(txtComposto.text());
    record.Tariffa = trim(Combo2.text());
    record.Ordine = integerIn(Label9.text());
    record.person = member.person();
    if (!wellDone(storeMember(desk_.files, election(), terms_.kind, number, record), desk_.desktop)) return;
    desk_.desktop.tell({"Modifica effetuata", "Componenti seggi", Icon::information});
    cmdAnnulla1_Click();
}

bool StationCorrection::SalvaSos() {
    SubstituteRecord record;
    record.station.Tipo = trim(Combo1.text());
    record.station.DataEle = trim(txtDataEle.text());
    record.station.Seggi = integerIn(txtSeggiSu.text());
    record.station.SonoSeggio = static_cast<std::int16_t>(shown_->station);
    record.Sostituito = integerIn(Label9.text());
    record.Composto = integerIn(txtComposto.text());
    record.Tariffa = trim(Combo2.text());
    record.person.Cognome = trim(txtSostituto.text());
    record.person.Nome = trim(txtNomeS.text());
    record.person.Indirizzo = trim(txtIndirizzo2.text());
    record.person.Qualifica = trim(member.Qualifica.text());
    record.person.SiNo = trim(member.SiNo.text());
    record.person.CodFisc = trim(txtFisc2.text());
    record.person.Onorario = feeIn(txtImporto2);
    return wellDone(storeSubstitute(desk_.files, election(), terms_.kind, record), desk_.desktop);
}

/// False when the clerk says no, too: then nothing of the change is stored.
bool StationCorrection::EliminaSos() {
    const bool sure = desk_.desktop.ask(
        {"Volete cancellare il sostituto \n" + surnameInCapitals(txtSostituto), "Sostituto", Icon::question});
    if (!sure) return false;
    return wellDone(removeSubstitute(desk_.files, election(), terms_.kind, shown_->station, wholeScan(Label9.text())),
                    desk_.desktop);
}

void StationCorrection::AggiungiReverse() {
    PersonFields& fields = Frame2->person;
    if (feeIn(fields.Onorario) == Currency()) {
        desk_.desktop.tell({"inserire l'importo della tariffa", "Tariffa componente", Icon::warning});
        form.focus(fields.Onorario);
        return;
    }
    MemberRecord added;
    added.Tariffa = trim(Combo2.text());
    added.person = fields.person();
    const auto done = addMember(desk_.files, election(), shown_->station, added, static_cast<int>(members_.size()));
    if (!wellDone(done, desk_.desktop)) return;
    desk_.desktop.tell({"FATTO!", "Aggiungi componente", Icon::information});
    cmdAnnulla1_Click();
}

void StationCorrection::EliminaComp() {
    const bool sure =
        desk_.desktop.ask({"Volete cancellare il componente \n" + surnameInCapitals(Frame3->person.Cognome),
                           "Componente", Icon::question});
    if (!sure) return;
    const auto done = removeMember(desk_.files, election(), wholeScan(Text1.text()), static_cast<int>(members_.size()));
    if (!wellDone(done, desk_.desktop)) return;
    desk_.desktop.tell(
        {"Cancellazione componente\n" + std::string(trim(Frame3->person.Cognome.text())) + "\neseguita con successo!",
         "Cancella componente", Icon::information});
    cmdAnnulla1_Click();
}

}  // namespace vorbano
