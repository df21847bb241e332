// Choice of the election, search, stations, the grid.

#include <algorithm>

#include "screens/date_entry.h"
#include "screens/election_choice.h"
#include "screens/well_done.h"
#include "stations/station_changes.h"
#include "stations/station_correction.h"
#include "storage/codepage.h"
#include "storage/numbers.h"

namespace vorbano {

namespace {

Lines gridLine(int place, const StationPerson& person) {
    return {std::to_string(place),
            person.Cognome.trimmed() + " " + person.Nome.trimmed(),
            person.Indirizzo.trimmed(),
            person.Qualifica.trimmed(),
            person.SiNo.trimmed(),
            person.CodFisc.trimmed(),
            format(person.Onorario, Mask::amount)};
}

/// Each number once: who asks for a number gets all members that have it.
Lines stationNumbers(const std::vector<MemberRecord>& members) {
    Lines numbers;
    for (const MemberRecord& member : members) {
        std::string number = std::to_string(member.station.SonoSeggio);
        if (std::ranges::find(numbers, number) == numbers.end()) numbers.push_back(std::move(number));
    }
    return numbers;
}

}  // namespace

Election StationCorrection::election() const { return electionIn(Combo1, txtDataEle); }

void StationCorrection::Combo1_Click() {
    Combo4.clear();
    Combo4.items = DataEle(desk_.files, Combo1.text());
    electionChanged();
}

void StationCorrection::Combo4_Click() { txtDataEle.text = std::string(trim(Combo4.text())); }

void StationCorrection::txtDataEle_Change() { electionChanged(); }

/// Another election or station is named: what is on show belongs to none.
void StationCorrection::electionChanged() {
    if (!shown_) return;
    const Election named = election();
    if (shown_->election.type != named.type || shown_->election.date != named.date) clearStation();
}

void StationCorrection::txtSeggio_Change() {
    if (shown_ && shown_->station != wholeScan(txtSeggio.text())) clearStation();
}

void StationCorrection::clearStation() {
    clearKinds();
    shown_.reset();
    members_.clear();
    substitutes_.clear();
    lines_.clear();
    MSFlexGrid1.clear();
    Combo3.clear();
    txtSeggiSu.text = std::string();
    txtComposto.text = std::string();
    showTariff({});
    followState();
}

void StationCorrection::cmdRicerca_Click() {
    Control* missing = emptyForSearch(Combo1, txtDataEle);
    if (missing == nullptr && trim(txtSeggio.text()).empty()) missing = &txtSeggio;
    if (missing != nullptr) {
        desk_.desktop.tell({"Dati insufficienti per la ricerca.", "Ricerca seggio", Icon::warning});
        form.focus(*missing);
        return;
    }
    clearKinds();
    callUp(wholeScan(txtSeggio.text()));
    if (shown_) form.focus(hasMembers() ? static_cast<Control&>(cmdAttiva) : Combo3);
}

/// A folder that is not there, or no record in the file, is an election that nobody has entered.
bool StationCorrection::readStations() {
    auto members = readMembers(desk_.files, election(), terms_.kind, Round::first);
    const bool noFolder =
        !members && (members.error().kind == Failure::missingFolder || members.error().kind == Failure::badName);
    if (noFolder || (members && members->empty())) {
        desk_.desktop.tell({"Elezione non in archivio.", "Ricerca elezioni", Icon::warning});
        form.focus(Combo1);
        return false;
    }
    if (!members) return wellDone(members.error(), desk_.desktop);
    auto substitutes = readSubstitutes(desk_.files, election(), terms_.kind, Round::first);
    if (!substitutes) return wellDone(substitutes.error(), desk_.desktop);
    members_ = std::move(*members);
    substitutes_ = std::move(*substitutes);
    return true;
}

/// What cannot be read is not on show either: nothing may be changed by what the files held before.
void StationCorrection::callUp(int station) {
    if (readStations()) {
        showStation(station);
    } else {
        clearStation();
    }
}

void StationCorrection::showStation(int station) {
    shown_ = Shown{election(), station};
    if (wholeScan(txtSeggio.text()) != station) txtSeggio.text = std::to_string(station);
    txtSeggiSu.text = std::to_string(members_.front().station.Seggi);
    Combo3.items = stationNumbers(members_);
    Combo3.selection = Combo3.find(std::to_string(station));
    Combo3.text = Combo3.selection() < 0 ? std::string() : std::to_string(station);
    txtComposto.text = std::string();
    showTariff({});
    lines_.clear();
    std::vector<Lines> rows;
    for (std::size_t at = 0; at < members_.size(); ++at) {
        const MemberRecord& each = members_[at];
        if (each.station.SonoSeggio != station) continue;
        if (rows.empty()) {
            txtComposto.text = std::to_string(each.Composto);
            showTariff(each.Tariffa.trimmed());
        }
        rows.push_back(gridLine(each.Ordine, each.person));
        lines_.push_back({false, at});
    }
    SosComp(rows);
    MSFlexGrid1.setRows(std::move(rows));
    followState();
}

void StationCorrection::SosComp(std::vector<Lines>& rows) {
    for (std::size_t at = 0; at < substitutes_.size(); ++at) {
        const SubstituteRecord& each = substitutes_[at];
        if (each.station.SonoSeggio != shown_->station) continue;
        rows.push_back(gridLine(each.Ordine, each.person));
        lines_.push_back({true, at});
    }
}

/// The name may be none of the list: it was typed at the entry.
void StationCorrection::showTariff(const std::string& name) {
    Combo2.selection = Combo2.find(name);
    Combo2.text = name;
}

void StationCorrection::Combo3_Click() { callUp(wholeScan(Combo3.text())); }

void StationCorrection::cmdPrecedente_Click() { step(-1); }

void StationCorrection::cmdSuccessivo_Click() { step(1); }

void StationCorrection::step(int by) {
    const int at = Combo3.selection() + by;
    if (at < 0 || at >= static_cast<int>(Combo3.items().size())) return;
    callUp(wholeScan(Combo3.items()[static_cast<std::size_t>(at)]));
}

void StationCorrection::cmdAnnulla_Click() {
    clearStation();
    Combo1.selection = -1;
    Combo1.text = std::string();
    Combo4.clear();
    txtDataEle.text = std::string();
    txtSeggio.text = std::string();
    form.focus(Combo1);
}

}  // namespace vorbano
