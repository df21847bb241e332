// The documents of the polling stations.

#include <algorithm>
#include <array>

#include "reports/frmTutteStampe.h"
#include "screens/well_done.h"
#include "stations/station_rules.h"
#include "storage/numbers.h"

namespace vorbano {

namespace {

/// What is wrong with the number of a station, and how the clerk is told.
struct NumberMistake {
    bool (*made)(std::string_view number, int stations);
    std::string_view text;
    std::string_view title;
};
bool missing(std::string_view number, int /*stations*/) { return number.empty(); }

/// The first that is made is told. The second message for an empty number is therefore never shown; the office has
/// both, and both stay. A special station is measured by its number too, though it need not be one of 1 to the count:
/// the count on the screen decides, not the file.
constexpr std::array<NumberMistake, 4> numberMistakes = {{
    {missing, "Non è stato inserito il numero di seggio da stampare!", "Errore"},
    {missing, "Non è stato inserito in numero di seggio da stampare", "Errore!"},
    {[](std::string_view number, int) { return number == "0"; }, "E' stato inserito un numero di seggio errato",
     "Errore!"},
    {[](std::string_view number, int stations) { return wholeScan(number) > stations; },
     "E' stato inserito un numero superiore a quello dei seggi!", "Errore"},
}};

}  // namespace

void frmTutteStampe::hangStations() {
    for (CheckBox* box : stationBoxes_) {
        box->clicked.calls([this, box] { stationBoxTicked(*box); });
    }
    cmdRSeggi.clicked.calls(this, &frmTutteStampe::cmdRSeggi_Click);
    cmdSSeggio.clicked.calls(this, &frmTutteStampe::cmdSSeggio_Click);
    cmdTSeggi.clicked.calls(this, &frmTutteStampe::cmdTSeggi_Click);
    cmdStampa.clicked.calls(this, &frmTutteStampe::cmdStampa_Click);
    cmdStampaSpeciali.clicked.calls(this, &frmTutteStampe::cmdStampaSpeciali_Click);
    txtSeggiSu.locked = true;
    txtSpeciali.locked = true;
}

void frmTutteStampe::stationsAsAtLoad() {
    for (CheckBox* box : stationBoxes_) {
        box->checked = false;
        box->enabled = false;
    }
    for (Button* command : stationCommands_) command->enabled = false;
    showStationCounts();
}

/// One of a pair clears the other. What the panels offer belongs to the choice, so they go with it.
void frmTutteStampe::stationBoxTicked(const CheckBox& box) {
    if (box.checked()) {
        for (const auto& [one, other] : {std::pair{&Check1, &Check2}, std::pair{&Check3, &Check4}}) {
            if (&box == one) other->checked = false;
            if (&box == other) one->checked = false;
        }
    }
    showStationCounts();
}

void frmTutteStampe::showStationCounts() {
    const bool runOff = Check4.checked();
    const bool any = runOff || Check3.checked();
    txtSeggiSu.text = any ? (runOff ? Label10 : Label8).text() : std::string();
    txtSpeciali.text = any ? (runOff ? Label11 : Label9).text() : std::string();
    for (Frame* panel : {&Frame1, &Frame2}) panel->visible = false;
    for (ComboBox* list : {&Combo3, &Combo2}) list->clear();
}

std::optional<StationChoice> frmTutteStampe::chosenStations() {
    const bool kind = Check1.checked() || Check2.checked();
    const bool round = Check3.checked() || Check4.checked();
    if (!kind || !round) {
        desk_.desktop.tell({"Selezionare il tipo di seggi da stampare", "Stampa Seggi", Icon::warning});
        return std::nullopt;
    }
    return StationChoice{Check2.checked() ? StationKind::special : StationKind::normal,
                         Check4.checked() ? Round::runOff : Round::first};
}

void frmTutteStampe::cmdRSeggi_Click() {
    const auto choice = chosenStations();
    if (choice) wellDone(printStationSummary(desk_, election(), *choice, heading()), desk_.desktop);
}

void frmTutteStampe::cmdTSeggi_Click() {
    const auto choice = chosenStations();
    if (!choice || !desk_.desktop.ask(allStationsQuestion(*choice))) return;
    wellDone(printAllStations(desk_, election(), *choice, heading()), desk_.desktop);
}

void frmTutteStampe::cmdSSeggio_Click() {
    const auto choice = chosenStations();
    if (!choice) return;
    const bool special = choice->kind == StationKind::special;
    Frame1.visible = !special;
    Frame2.visible = special;
    if (special) {
        ElencaSpeciali(*choice);
        form.focus(Combo2);
    } else {
        ElencaSeggi(*choice);
        form.focus(Combo3);
    }
}

void frmTutteStampe::ElencaSeggi(StationChoice choice) { listStations(Combo3, choice); }

void frmTutteStampe::ElencaSpeciali(StationChoice choice) { listStations(Combo2, choice); }

void frmTutteStampe::listStations(ComboBox& list, StationChoice choice) {
    list.clear();
    const auto members = readMembers(desk_.files, election(), choice.kind, choice.round);
    if (!members) {
        wellDone(members.error(), desk_.desktop);
        return;
    }
    Lines numbers;
    for (const int number : stationsIn(*members)) numbers.push_back(std::to_string(number));
    list.items = std::move(numbers);
}

void frmTutteStampe::cmdStampa_Click() { printChosenStation(StationKind::normal, Combo3, txtSeggiSu); }

void frmTutteStampe::cmdStampaSpeciali_Click() { printChosenStation(StationKind::special, Combo2, txtSpeciali); }

void frmTutteStampe::printChosenStation(StationKind kind, ComboBox& list, const TextBox& count) {
    const std::string number = list.text();
    const int stations = wholeScan(count.text());
    const auto mistake =
        std::ranges::find_if(numberMistakes, [&](const NumberMistake& one) { return one.made(number, stations); });
    if (mistake != numberMistakes.end()) {
        desk_.desktop.tell({std::string(mistake->text), std::string(mistake->title), Icon::warning});
        form.focus(list);
        return;
    }
    const StationChoice choice{kind, Check4.checked() ? Round::runOff : Round::first};
    const auto found = readStations(desk_.files, election(), choice);
    if (!found) {
        wellDone(found.error(), desk_.desktop);
        return;
    }
    const int wanted = wholeScan(number);
    if (std::ranges::none_of(found->members, [wanted](const auto& one) { return one.station.SonoSeggio == wanted; })) {
        desk_.desktop.tell({"Seggio non ancora inserito", "Anteprima stampa seggi", Icon::information});
        form.focus(list);
        return;
    }
    wellDone(printStation(desk_, election(), choice, heading(), *found, wanted), desk_.desktop);
}

}  // namespace vorbano
