// Storing a member, and what comes after it.

#include "screens/well_done.h"
#include "stations/fiscal_code_check.h"
#include "stations/station_entry.h"
#include "storage/numbers.h"
#include "storage/record_file.h"

namespace vorbano {

StationPerson StationEntry::personOnScreen() const {
    return personOf({txtCompo1.text(), txtNome1.text(), txtIndi1.text(), txtQualifica1.text(), txtSiNo1.text(),
                     txtCodFisc1.text(), cents(amountOrZero(txtOnor1.text()))});
}

void StationEntry::fillRecord(MemberRecord& record) const {
    record.station.Tipo = trim(Combo1.text());
    record.station.DataEle = trim(txtDataEle.text());
    record.station.Seggi = toInteger(txtSeggio.text()).value_or(0);
    record.Tariffa = trim(tariff.text());
    record.Ordine = static_cast<std::int16_t>(place());
    record.person = personOnScreen();
}

/// What a record cannot do without, whichever way the clerk came to the command.
bool StationEntry::stationIsGiven() {
    return isWholeNumber(txtSonoSeggio, "Inserire il numero del seggio.") &&
           isWholeNumber(txtComposto, "Inserire il numero dei componenti del seggio.");
}

void StationEntry::cmdSalva_Click() {
    if (!toCurrency(txtOnor1.text())) {
        desk_.desktop.tell({"Tariffa componente " + txtQualifica1.text(), "Inserire l'importo", Icon::warning});
        form.focus(txtOnor1);
        return;
    }
    if (!isWholeFiscalCode(txtCodFisc1.text())) {
        form.focus(txtCodFisc1);
        return;
    }
    if (correction_ == Correction::loaded) {
        SalvaModifica();
        return;
    }
    if (!stationIsGiven() || !wellDone(store(), desk_.desktop)) return;
    const bool lastOfStation = place() == *toInteger(txtComposto.text());
    Trecomp();
    if (!lastOfStation) {
        form.focus(txtCompo1);
    } else if (isLastStation()) {
        desk_.desktop.tell({std::string(rules_.entryDone), std::string(rules_.entryDoneTitle), Icon::information});
        entryCompleted();
    } else {
        stationCompleted();
    }
}

Result<> StationEntry::store() {
    if (auto made = makeElectionFolder(desk_.files, election()); !made) return made;
    const auto path = filePath();
    if (!path) return path.error();
    auto file = RecordFile<MemberRecord>::open(desk_.files, *path);
    if (!file) return file.error();
    const auto count = file->count();
    if (!count) return count.error();
    // A store that failed may have left its record behind: the next attempt goes to the same place, not behind it.
    if (attempted_ == 0 || attempted_ > *count + 1) attempted_ = *count + 1;
    MemberRecord record;
    fillRecord(record);
    record.station.SonoSeggio = static_cast<std::int16_t>(stationNumber());
    record.Composto = toInteger(txtComposto.text()).value_or(0);
    return file->write(attempted_, record);
}

/// The member just stored goes into the grid, and the fields are free for the next one.
void StationEntry::Trecomp() {
    std::vector<Lines> rows(MSFlexGrid1.cells().begin() + 1, MSFlexGrid1.cells().end());
    const int at = place();
    while (static_cast<int>(rows.size()) < at) rows.emplace_back(memberHeading().size());
    rows[static_cast<std::size_t>(at) - 1] = memberLine(wholeScan(Label64().text()), personOnScreen());
    MSFlexGrid1.setRows(std::move(rows));
    tariffStands_ = true;
    Label3.text = std::to_string(at + 1);
    Label64().text = std::to_string(at + 1);
    clearMember();
    go(at == toInteger(txtComposto.text()) ? Stage::stationDone : Stage::entry);
}

void StationEntry::tellStationDone() {
    desk_.desktop.tell({"Inserimento Componenti del seggio n." + txtSonoSeggio.text() + " terminato",
                        std::string(rules_.stationDoneTitle), Icon::information});
}

}  // namespace vorbano
