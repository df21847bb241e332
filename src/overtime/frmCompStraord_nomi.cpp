// The list of all staff names ever entered, and the correction of one of them.

#include "overtime/frmCompStraord.h"
#include "screens/well_done.h"
#include "storage/numbers.h"

namespace vorbano {

/// Each name is followed by 25 blanks and its record number. Without the file the names are typed, and what is wrong
/// with it is told when one is stored.
void frmCompStraord::Dipendenti() {
    cboDipendenti.clear();
    const auto names = RecordFile<NameRecord>::open(desk_.files, dipendFile);
    if (!names) return;
    Lines lines;
    names
        ->scan([&](int number, const NameRecord& record) {
            lines.push_back(record.name.trimmed() + std::string(25, ' ') + std::to_string(number));
        })
        .ignore();
    cboDipendenti.items = std::move(lines);
}

void frmCompStraord::mnuDipendenti_Click() {
    List1.clear();
    const auto names = RecordFile<NameRecord>::open(desk_.files, dipendFile);
    Lines lines;
    const auto seen = names
                          ? names->scan([&](int, const NameRecord& record) { lines.push_back(record.name.trimmed()); })
                          : Result<>(names.error());
    if (!wellDone(seen, desk_.desktop)) return;
    List1.items = std::move(lines);
    Frame7.visible = true;
    form.focus(List1);
}

void frmCompStraord::List1_Click() {
    // One name is corrected at a time.
    correctingName_ = false;
    Label88.text = std::to_string(List1.selection() + 1);
    txtNominativo.text = List1.shownText();
    Frame16.visible = true;
    form.focus(txtNominativo);
}

void frmCompStraord::cmdElenco_Click() {
    Frame7.visible = false;
    Command3_Click();
}

void frmCompStraord::Command2_Click() {
    if (trim(txtNominativo.text()).empty()) {
        desk_.desktop.tell({"Inserire il nominativo", "Errore", Icon::warning});
        form.focus(txtNominativo);
        return;
    }
    auto names = RecordFile<NameRecord>::open(desk_.files, dipendFile);
    NameRecord record;
    record.name = trim(txtNominativo.text());
    const Result<> stored = names ? names->write(wholeScan(Label88.text()), record) : Result<>(names.error());
    if (!wellDone(stored, desk_.desktop)) return;
    Command3_Click();
    Dipendenti();
    if (Frame7.visible()) mnuDipendenti_Click();
}

void frmCompStraord::Command3_Click() {
    Label88.text = std::string();
    Frame16.visible = false;
}

}  // namespace vorbano
