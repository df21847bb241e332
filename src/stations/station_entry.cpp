#include "stations/station_entry.h"

#include "screens/date_entry.h"
#include "stations/station_rules.h"
#include "storage/numbers.h"

namespace vorbano {

StationEntry::StationEntry(const StationEntryRules& rules, const Workplace& workplace)
    : form(std::string(rules.form), std::string(rules.caption)),
      tariff(form, std::string(rules.tariff), 30),
      abroad(form, std::string(rules.abroad), "Estero"),
      rules_(rules),
      desk_(workplace),
      fee_(txtOnor1, rules.kind, workplace),
      places_(workplace.places) {
    for (const ElectionType& type : electionTypes) Combo1.add(std::string(type.name));
    txtProvincia.locked = true;
    txtQualifica1.locked = true;
    makeDateField(txtDataEle, desk_.desktop);
    hangProcedures();
    StationEntry::updateEnabled();
}

void StationEntry::hangProcedures() {
    cmdAttiva.clicked.calls(this, &StationEntry::cmdAttiva_Click);
    if (rules_.typesNumbers) txtSonoSeggio.lostFocus.calls(this, &StationEntry::txtSonoSeggio_LostFocus);
    txtComposto.lostFocus.calls(this, &StationEntry::txtComposto_LostFocus);
    Label3.change.calls(this, &StationEntry::Label3_Change);
    txtCompo1.lostFocus.calls([this] { txtCognome.text = txtCompo1.text(); });
    txtNome1.lostFocus.calls([this] { txtNome.text = txtNome1.text(); });
    txtNasco1.lostFocus.calls(this, &StationEntry::txtNasco1_LostFocus);
    abroad.clicked.calls(this, &StationEntry::abroad_Click);
    txtDove1.lostFocus.calls(this, &StationEntry::txtDove1_LostFocus);
    Option1.clicked.calls([this] { txtSesso.text = std::string("F"); });
    Option2.clicked.calls([this] { txtSesso.text = std::string("M"); });
    txtSiNo1.lostFocus.calls(this, &StationEntry::txtSiNo1_LostFocus);
    txtCodFisc1.gotFocus.calls(this, &StationEntry::txtCodFisc1_GotFocus);
    txtCodFisc1.lostFocus.calls(this, &StationEntry::txtCodFisc1_LostFocus);
    txtOnor1.gotFocus.calls(this, &StationEntry::txtOnor1_GotFocus);
    txtOnor1.lostFocus.calls(this, &StationEntry::txtOnor1_LostFocus);
    txtCodiceFiscale.change.calls(this, &StationEntry::txtCodiceFiscale_Change);
    cmdSalva.clicked.calls(this, &StationEntry::cmdSalva_Click);
}

void StationEntry::go(Stage stage) {
    stage_ = stage;
    updateEnabled();
}

bool StationEntry::memberIsOpen() const {
    return correction_ == Correction::none ? stage_ == Stage::entry : correction_ == Correction::loaded;
}

void StationEntry::updateEnabled() {
    const bool idle = stage_ == Stage::idle;
    Combo1.enabled = idle;
    txtDataEle.locked = !idle;
    txtSeggio.locked = !idle;
    cmdAttiva.enabled = idle;
    cmdAttiva.text = idle ? std::string("Attiva") : std::string(rules_.activated);

    // Number and size are the same in all records of a station, so they are open before its first member is stored.
    const bool entering = stage_ == Stage::entry && correction_ == Correction::none;
    const bool begun = place() > 1;
    txtSonoSeggio.enabled = entering && rules_.typesNumbers;
    txtSonoSeggio.locked = begun;
    txtComposto.enabled = entering;
    txtComposto.locked = begun;
    tariff.enabled = entering;
    tariff.locked = tariffStands_;

    const bool open = memberIsOpen();
    for (Control* control : std::initializer_list<Control*>{&txtCompo1, &txtNome1, &txtIndi1, &txtNasco1, &abroad,
                                                            &txtDove1, &txtProvincia, &Option1, &Option2,
                                                            &txtQualifica1, &txtSiNo1, &txtCodFisc1, &txtOnor1}) {
        control->enabled = open;
    }
    cmdSalva.enabled = open && Label16.text().empty() && !sentBack_;
}

int StationEntry::place() const { return wholeScan(Label3.text()); }

int StationEntry::stationNumber() const { return toInteger(txtSonoSeggio.text()).value_or(0); }

int StationEntry::wantedStations() const { return toInteger(txtSeggio.text()).value_or(0); }

/// The role follows from the place alone.
void StationEntry::Label3_Change() {
    txtQualifica1.text = place() > 0 ? std::string(nameOf(roleAt(rules_.kind, place()))) : std::string();
}

/// A station begins at its first place; what stands in the fields of its number and size is the caller's.
void StationEntry::beginStation() {
    Label3.text = std::string("1");
    Label64().text = std::string("1");
    tariffStands_ = false;
    clearMember();
    go(Stage::entry);
}

void StationEntry::emptyGrid(int station, int size) {
    gridStation_ = station;
    MSFlexGrid1.setRows(std::vector<Lines>(static_cast<std::size_t>(size), Lines(memberHeading().size())));
}

/// The stored members of the station each in the row of its place, and empty rows for those still to come.
void StationEntry::fillGrid(const Members& members, int station, int size) {
    std::vector<Lines> rows;
    for (const MemberRecord& member : members) {
        const int number = static_cast<int>(rows.size()) + 1;
        if (member.station.SonoSeggio == station) rows.push_back(memberLine(number, member.person));
    }
    while (static_cast<int>(rows.size()) < size) rows.emplace_back(memberHeading().size());
    gridStation_ = station;
    MSFlexGrid1.setRows(std::move(rows));
}

}  // namespace vorbano
