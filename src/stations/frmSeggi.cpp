#include "stations/frmSeggi.h"

#include "screens/well_done.h"
#include "storage/numbers.h"
#include "storage/record_file.h"

namespace vorbano {

frmSeggi::frmSeggi(const Workplace& workplace) : StationEntry(normalEntry, workplace) {
    lblSelezione.visible = false;
    Check1.clicked.calls(this, &frmSeggi::Check1_Click);
    MSFlexGrid1.picked.calls(this, &frmSeggi::MSFlexGrid1_Click);
    cmdInserisci.clicked.calls(this, &frmSeggi::cmdInserisci_Click);
    cmdAnnulla.clicked.calls(this, &frmSeggi::cmdAnnulla_Click);
    frmSeggi::updateEnabled();
}

void frmSeggi::updateEnabled() {
    StationEntry::updateEnabled();
    Check1.enabled = mayCorrect_ && (stage_ == Stage::entry || stage_ == Stage::stationDone);
    cmdInserisci.enabled = stage_ == Stage::stationDone && correction_ == Correction::none;
}

void frmSeggi::electionFound(const Members& members) { (void)members; }

void frmSeggi::entryStarted() {}

void frmSeggi::entryResumed(bool newStation) {
    (void)newStation;
    mayCorrect_ = true;
}

bool frmSeggi::isLastStation() const { return stationNumber() == wantedStations(); }

void frmSeggi::stationCompleted() {
    mayCorrect_ = true;
    cmdInserisci.text = "inserisci Seggio n. " + std::to_string(stationNumber() + 1);
    updateEnabled();
    tellStationDone();
    form.focus(cmdInserisci);
}

void frmSeggi::entryCompleted() {
    Label63.text = std::string("0");
    Label64().text = std::string("0");
    mayCorrect_ = false;
    go(Stage::finished);
}

void frmSeggi::cmdInserisci_Click() {
    const std::string next = std::to_string(stationNumber() + 1);
    desk_.desktop.tell({"Inserimento Componenti del seggio n. " + next, "Inserimento seggi", Icon::information});
    txtSonoSeggio.text = next;
    txtComposto.text = std::string();
    beginStation();
    form.focus(txtComposto);
}

/// Leaves the file as it is.
void frmSeggi::cmdAnnulla_Click() {
    correction_ = Correction::none;
    Check1.checked = false;
    clearMember();
    mayCorrect_ = false;
    tariffStands_ = false;
    for (TextBox* field : {&txtDataEle, &txtSeggio, &txtSonoSeggio, &txtComposto, &txtTariffe, &txtSiNo1})
        field->text = std::string();
    Combo1.selection = -1;
    Combo1.text = std::string();
    for (Label* label : std::initializer_list<Label*>{&Label3, &Label64(), &Label63}) label->text = std::string();
    cmdInserisci.text = std::string("Inserisci");
    emptyGrid(0, 0);
    go(Stage::idle);
    form.focus(Combo1);
}

// Correction of a member of the station in the grid.

std::array<TextBox*, 9> frmSeggi::draftFields() {
    return {&txtCompo1, &txtNome1, &txtIndi1, &txtNasco1, &txtDove1, &txtProvincia, &txtSiNo1, &txtCodFisc1, &txtOnor1};
}

/// The worked out code comes first: a change of it goes to the field.
std::array<HiddenLabel*, 8> frmSeggi::draftLabels() {
    return {&txtCodiceFiscale, &txtCognome, &txtNome, &txtDataNascita, &txtSesso, &Text3, &Text2, &Label16};
}

frmSeggi::Draft frmSeggi::draft() {
    Draft kept;
    for (std::size_t at = 0; at < kept.fields.size(); ++at) kept.fields[at] = draftFields()[at]->text();
    for (std::size_t at = 0; at < kept.hidden.size(); ++at) kept.hidden[at] = draftLabels()[at]->text();
    kept.abroad = abroad.checked();
    kept.woman = Option1.checked();
    kept.man = Option2.checked();
    kept.tariff = txtTariffe.text();
    kept.attempted = attempted_;
    return kept;
}

void frmSeggi::putBack(const Draft& draft) {
    clearMember();
    // The place is not in its field yet, so that nothing is looked up; and the sex comes with its label.
    abroad.checked = draft.abroad;
    Option1.checked = draft.woman;
    Option2.checked = draft.man;
    for (std::size_t at = 0; at < draft.hidden.size(); ++at) draftLabels()[at]->text = draft.hidden[at];
    for (std::size_t at = 0; at < draft.fields.size(); ++at) draftFields()[at]->text = draft.fields[at];
    txtTariffe.text = draft.tariff;
    attempted_ = draft.attempted;
}

void frmSeggi::Check1_Click() {
    const bool begins = Check1.checked();
    lblSelezione.visible = begins;
    MSFlexGrid1.tone = begins ? Tone::active : Tone::plain;
    if (!begins) {
        if (correction_ != Correction::none) riprendi();
        return;
    }
    entered_ = draft();
    nextPlace_ = place();
    correction_ = Correction::choosing;
    updateEnabled();
    form.focus(MSFlexGrid1);
}

int frmSeggi::recordAt(const Members& members, int place) const {
    for (std::size_t at = 0; at < members.size(); ++at) {
        if (members[at].station.SonoSeggio == gridStation_ && members[at].Ordine == place)
            return static_cast<int>(at) + 1;
    }
    return 0;
}

void frmSeggi::MSFlexGrid1_Click() {
    if (correction_ == Correction::none) return;
    const auto stored = readFile();
    if (!stored) {
        wellDone(stored.error(), desk_.desktop);
        return;
    }
    const int number = recordAt(*stored, MSFlexGrid1.row);
    if (number == 0) return;
    const MemberRecord& member = (*stored)[static_cast<std::size_t>(number) - 1];
    clearMember();
    corrected_ = member.Ordine;
    correction_ = Correction::loaded;
    Label3.text = std::to_string(corrected_);
    txtCompo1.text = member.person.Cognome.trimmed();
    txtNome1.text = member.person.Nome.trimmed();
    txtIndi1.text = member.person.Indirizzo.trimmed();
    txtQualifica1.text = member.person.Qualifica.trimmed();
    txtSiNo1.text = member.person.SiNo.trimmed();
    txtCodFisc1.text = member.person.CodFisc.trimmed();
    txtOnor1.text = format(member.person.Onorario, Mask::amount);
    txtCognome.text = txtCompo1.text();
    txtNome.text = txtNome1.text();
    txtTariffe.text = member.Tariffa.trimmed();
    updateEnabled();
    form.focus(txtCompo1);
}

void frmSeggi::SalvaModifica() {
    const auto put = [this]() -> Result<> {
        const auto stored = readFile();
        if (!stored) return stored.error();
        const auto path = filePath();
        if (!path) return path.error();
        const int number = recordAt(*stored, corrected_);
        if (number == 0) return Error{Failure::damaged, *path};
        auto file = RecordFile<MemberRecord>::open(desk_.files, *path);
        if (!file) return file.error();
        MemberRecord record = (*stored)[static_cast<std::size_t>(number) - 1];
        fillRecord(record);
        return file->write(number, record);
    };
    if (wellDone(put(), desk_.desktop)) Check1.checked = false;
}

/// The station in the grid as the file has it, and the member who was being entered.
void frmSeggi::riprendi() {
    correction_ = Correction::none;
    corrected_ = 0;
    const auto stored = readFile();
    if (wellDone(stored ? Result<>() : stored.error(), desk_.desktop))
        fillGrid(*stored, gridStation_, MSFlexGrid1.rows());
    Label3.text = std::to_string(nextPlace_);
    Label64().text = Label3.text();
    putBack(entered_);
    updateEnabled();
    if (stage_ == Stage::stationDone) {
        form.focus(cmdInserisci);
    } else {
        form.focus(place() == 1 && txtComposto.text().empty() ? txtComposto : txtCompo1);
    }
}

}  // namespace vorbano
