#include "stations/frmSeggiSpeciali.h"

#include "screens/well_done.h"
#include "stations/station_rules.h"
#include "storage/numbers.h"

namespace vorbano {

frmSeggiSpeciali::frmSeggiSpeciali(const Workplace& workplace) : StationEntry(specialEntry, workplace) {
    counter_.visible = false;
    form.activated.calls(this, &frmSeggiSpeciali::Form_Activate);
    Command1.clicked.calls(this, &frmSeggiSpeciali::Command1_Click);
}

/// Once, when the screen is shown.
void frmSeggiSpeciali::Form_Activate() {
    if (asked_) return;
    asked_ = true;
    if (!desk_.desktop.ask(
            {"Volete avviare l'inserimento?", "INSERIMENTO COMPONENTI SEGGI SPECIALI", Icon::question})) {
        form.close();
    }
}

void frmSeggiSpeciali::Command1_Click() { form.close(); }

void frmSeggiSpeciali::showStations(const Members& members) {
    Label63.text = "Seggi inseriti: " + stationList(members);
}

void frmSeggiSpeciali::QualiSono() {
    const auto members = readFile();
    if (wellDone(members ? Result<>() : members.error(), desk_.desktop)) showStations(*members);
}

void frmSeggiSpeciali::electionFound(const Members& members) {
    Label62.text = std::to_string(stationsIn(members).size());
    showStations(members);
}

void frmSeggiSpeciali::entryStarted() {
    Label62.text = std::string("1");
    Label63.text = std::string();
}

void frmSeggiSpeciali::entryResumed(bool newStation) {
    if (newStation) Label62.text = std::to_string(wholeScan(Label62.text()) + 1);
}

bool frmSeggiSpeciali::isLastStation() const { return wholeScan(Label62.text()) == wantedStations(); }

void frmSeggiSpeciali::stationCompleted() {
    QualiSono();
    tellStationDone();
    desk_.desktop.tell({"Inserimento Componenti del seggio Speciale successivo", std::string(rules_.stationDoneTitle),
                        Icon::information});
    Label62.text = std::to_string(wholeScan(Label62.text()) + 1);
    txtSonoSeggio.text = std::string();
    txtComposto.text = std::string();
    beginStation();
    form.focus(txtSonoSeggio);
}

void frmSeggiSpeciali::entryCompleted() {
    QualiSono();
    Label64().text = std::string("Inserimento Seggi Speciali Terminato");
    Label64().visible = true;
    go(Stage::finished);
}

/// Members of special stations are corrected on a screen of their own.
void frmSeggiSpeciali::SalvaModifica() {}

}  // namespace vorbano
