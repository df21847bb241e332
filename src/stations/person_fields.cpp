#include "stations/person_fields.h"

#include <string>

#include "storage/codepage.h"
#include "storage/numbers.h"

namespace vorbano {

PersonFields::PersonFields(Container& panel, const PersonNames& names)
    : Cognome(panel, std::string(names.Cognome), 30),
      Nome(panel, std::string(names.Nome), 30),
      Indirizzo(panel, std::string(names.Indirizzo), 60),
      Qualifica(panel, std::string(names.Qualifica), 10),
      SiNo(panel, std::string(names.SiNo), 2),
      CodFisc(panel, std::string(names.CodFisc), 16),
      Onorario(panel, std::string(names.Onorario)) {}

StationPerson PersonFields::person() const {
    StationPerson person;
    person.Cognome = trim(Cognome.text());
    person.Nome = trim(Nome.text());
    person.Indirizzo = trim(Indirizzo.text());
    person.Qualifica = trim(Qualifica.text());
    person.SiNo = trim(SiNo.text());
    person.CodFisc = trim(CodFisc.text());
    person.Onorario = feeIn(Onorario);
    return person;
}

void PersonFields::show(const StationPerson& person) {
    Cognome.text = person.Cognome.trimmed();
    Nome.text = person.Nome.trimmed();
    Indirizzo.text = person.Indirizzo.trimmed();
    Qualifica.text = person.Qualifica.trimmed();
    SiNo.text = person.SiNo.trimmed();
    CodFisc.text = person.CodFisc.trimmed();
    Onorario.text = format(person.Onorario, Mask::amount);
}

void PersonFields::clear() {
    for (TextBox* field : {&Cognome, &Nome, &Indirizzo, &Qualifica, &SiNo, &CodFisc, &Onorario})
        field->text = std::string();
}

void PersonFields::lock() {
    for (TextBox* field : {&Cognome, &Nome, &Indirizzo, &Qualifica, &SiNo, &CodFisc, &Onorario}) field->locked = true;
}

Currency feeIn(const TextBox& field) { return cents(amountOrZero(field.text())); }

}  // namespace vorbano
