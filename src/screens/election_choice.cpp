#include "screens/election_choice.h"

#include <string>

#include "platform/form.h"
#include "storage/codepage.h"
#include "storage/dates.h"

namespace vorbano {

Election electionIn(const ComboBox& type, const TextBox& date) {
    return {std::string(trim(type.text())), std::string(trim(date.text()))};
}

Control* emptyForSearch(ComboBox& type, TextBox& date) {
    if (trim(type.text()).empty()) return &type;
    return trim(date.text()).empty() ? &date : nullptr;
}

void tellIncompleteSearch(Control& missing, Desktop& desktop) {
    desktop.tell({"Dati incompleti per la ricerca", "Errore", Icon::warning});
    missing.form().focus(missing);
}

bool dateOfElectionExists(const ComboBox& type, TextBox& date, Desktop& desktop) {
    if (parseDate(date.text()) && electionIn(type, date).folder()) return true;
    desktop.tell({"Data di Elezione inesistente!", "Errore", Icon::warning});
    date.form().focus(date);
    return false;
}

}  // namespace vorbano
