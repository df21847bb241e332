#include "stations/member_grid.h"

#include "storage/numbers.h"

namespace vorbano {

Lines memberHeading() {
    return {"Nr", "Cognome", "Nome", "Indirizzo", "Componente", "S/N", "Codice Fiscale", "Importo"};
}

Lines memberLine(int number, const StationPerson& person) {
    return {std::to_string(number),     person.Cognome.trimmed(),
            person.Nome.trimmed(),      person.Indirizzo.trimmed(),
            person.Qualifica.trimmed(), person.SiNo.trimmed(),
            person.CodFisc.trimmed(),   format(person.Onorario, Mask::amount)};
}

StationPerson personOf(const PersonTexts& texts) {
    StationPerson person;
    person.Cognome = texts.surname;
    person.Nome = texts.name;
    person.Indirizzo = texts.address;
    person.Qualifica = texts.role;
    person.SiNo = texts.tookPart;
    person.CodFisc = texts.fiscalCode;
    person.Onorario = texts.fee;
    return person;
}

}  // namespace vorbano
