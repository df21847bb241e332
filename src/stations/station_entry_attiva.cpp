// Which election: a new entry, one that is taken up again, fewer stations than before.

#include <algorithm>

#include "screens/election_choice.h"
#include "screens/well_done.h"
#include "stations/station_entry.h"
#include "stations/station_rules.h"
#include "storage/numbers.h"
#include "storage/record_file.h"

namespace vorbano {

std::string stationList(const std::vector<MemberRecord>& members) {
    std::string list;
    for (const int number : stationsIn(members)) {
        if (!list.empty()) list += " - ";
        list += " n." + std::to_string(number);
    }
    return list;
}

Election StationEntry::election() const { return electionIn(Combo1, txtDataEle); }

Result<std::string> StationEntry::filePath() const { return election().file(membersFile(rules_.kind, Round::first)); }

Result<StationEntry::Members> StationEntry::readFile() const {
    auto members = readMembers(desk_.files, election(), rules_.kind, Round::first);
    // The folder is made with the first member.
    if (!members && members.error().kind == Failure::missingFolder) return Members();
    return members;
}

bool StationEntry::electionIsGiven() {
    Control* missing = emptyForSearch(Combo1, txtDataEle) != nullptr || trim(txtSeggio.text()).empty()
                           ? static_cast<Control*>(&Combo1)
                           : nullptr;
    // What is no number of stations is as good as none, and the cursor goes where it stands.
    if (missing == nullptr && wantedStations() < 1) missing = &txtSeggio;
    if (missing != nullptr) {
        desk_.desktop.tell({"Dati insufficienti per attivare il processo!", "Errore!", Icon::warning});
        form.focus(*missing);
        return false;
    }
    txtSeggio.text = std::to_string(wantedStations());
    return dateOfElectionExists(Combo1, txtDataEle, desk_.desktop);
}

void StationEntry::cmdAttiva_Click() {
    if (!electionIsGiven()) return;
    // An existing folder is no failure; one that cannot be made shows itself at the first record.
    desk_.files.makeFolder("Elezioni").ignore();
    const auto stored = readFile();
    if (!stored) {
        wellDone(stored.error(), desk_.desktop);
        return;
    }
    const Members& members = *stored;
    if (members.empty()) {
        startEntry();
        return;
    }
    electionFound(members);
    if (wantedStations() < storedStations(members)) {
        reduceStations(members);
    } else if (isComplete(members)) {
        desk_.desktop.tell({"Componenti dei seggi già inseriti", "Inserimento", Icon::information});
    } else if (wantsToGoOn(members)) {
        resumeEntry(members);
    }
}

int StationEntry::storedStations(const Members& members) const {
    if (rules_.typesNumbers) return static_cast<int>(stationsIn(members).size());
    return members.back().station.Seggi;
}

bool StationEntry::isComplete(const Members& members) const {
    if (rules_.typesNumbers) return isSpecialEntryFinished(members, wantedStations());
    const MemberRecord& last = members.back();
    return last.station.SonoSeggio == wantedStations() && isStationFull(last);
}

void StationEntry::startEntry() {
    if (!rules_.typesNumbers) txtSonoSeggio.text = std::to_string(stationNumber() + 1);
    beginStation();
    entryStarted();
    form.focus(rules_.typesNumbers ? txtSonoSeggio : txtComposto);
}

bool StationEntry::wantsToGoOn(const Members& members) {
    const MemberRecord& last = members.back();
    const std::string stations = rules_.typesNumbers
                                     ? "\nSeggi Speciali inseriti n. " + std::to_string(stationsIn(members).size()) +
                                           " e sono i seggi: " + stationList(members) + "\n"
                                     : " ";
    return desk_.desktop.ask(
        {"Questo tipo di Elezione già è in memoria!" + stations +
             "Se si desidera continuare ad aggiungere altri dati scegliere SI. Per questo tipo di elezione " +
             std::string(rules_.lastStation) + std::to_string(last.station.SonoSeggio) +
             " , ed è stato inserito Fino al " + std::to_string(last.Ordine) + "° componente",
         "Inserimento Componenti Seggi", Icon::question});
}

void StationEntry::resumeEntry(const Members& members) {
    const MemberRecord& last = members.back();
    const NextMember next = nextMember(last);
    const bool newStation = next.place == 1;
    // Between special stations the tariff is typed anew; deliberately not so between normal ones.
    tariff.text = newStation && rules_.typesNumbers ? std::string() : last.Tariffa.trimmed();
    txtSonoSeggio.text = newStation && rules_.typesNumbers ? std::string() : std::to_string(next.station);
    txtComposto.text = newStation ? std::string() : std::to_string(next.composto);
    beginStation();
    if (!newStation) {
        Label3.text = std::to_string(next.place);
        Label64().text = Label3.text();
        tariffStands_ = true;
    }
    const auto stored = std::clamp<std::ptrdiff_t>(last.Ordine, 1, static_cast<std::ptrdiff_t>(members.size()));
    fillGrid(Members(members.end() - stored, members.end()), last.station.SonoSeggio, last.Composto);
    entryResumed(newStation);
    updateEnabled();
    form.focus(!newStation ? txtCompo1 : rules_.typesNumbers ? txtSonoSeggio : txtComposto);
}

/// Stations that were entered beyond the new number stay in the file.
void StationEntry::reduceStations(const Members& members) {
    if (!desk_.desktop.ask({"Il numero dei Seggi inserito è inferiore a quello già memorizzato (seggi n. " +
                                std::to_string(storedStations(members)) +
                                "), si desidera diminuire il numero dei seggi da inserire? ",
                            "inserimento seggi", Icon::question})) {
        return;
    }
    const auto path = filePath();
    // Lives no longer than the rewrite, so one companion serves both files.
    const auto companion = election().file(seggiRevFile);
    if (!path || !companion) return;
    const auto wanted = static_cast<std::int16_t>(wantedStations());
    const auto done = rewrite<MemberRecord>(desk_.files, *path, *companion, [&](int, MemberRecord& record) {
        record.station.Seggi = wanted;
        return true;
    });
    if (!wellDone(done, desk_.desktop) || !rules_.goesOnAfterReduction) return;
    resumeEntry(members);
    // A station that begins now is paid as the first one was.
    if (place() == 1) tariff.text = members.front().Tariffa.trimmed();
}

}  // namespace vorbano
