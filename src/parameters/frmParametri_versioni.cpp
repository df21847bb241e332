// The old and the new tariffs, and a stored election rewritten at the others: the first tab of the parameter screen.

#include <algorithm>
#include <string>

#include "overtime/rendi_kontrol.h"
#include "overtime/staff.h"
#include "parameters/frmParametri.h"
#include "screens/election_choice.h"
#include "screens/well_done.h"
#include "storage/numbers.h"
#include "storage/only_record.h"

namespace vorbano {

namespace {

constexpr std::string_view newMark = "/";
constexpr std::string_view oldMark = "\\";

/// Before the second line of the question, as the office wrote it.
constexpr std::size_t blanksBeforeQuestion = 67;

std::string inCapitals(std::string text) {
    // Types of elections are plain letters.
    std::ranges::transform(text, text.begin(),
                           [](char one) { return 'a' <= one && one <= 'z' ? one - 'a' + 'A' : one; });
    return text;
}

bool isMissing(const Result<int>& count) {
    if (count) return *count == 0;
    return count.error().kind == Failure::missingFolder || count.error().kind == Failure::badName;
}

/// Only looks: opening would create the file. One that cannot be looked into may hold a version.
bool wasNeverSaved(FileSystem& files, std::string_view version) {
    const auto file = files.openExisting(version);
    if (!file) return file.error().kind == Failure::notFound;
    const auto length = (*file)->size();
    return length && recordCount(*length, sizeof(TariffTable)) == 0;
}

}  // namespace

void frmParametri::makeVersions() {
    using This = frmParametri;
    cmdTarNuove.clicked.calls(this, &This::cmdTarNuove_Click);
    cmdTarVecchie.clicked.calls(this, &This::cmdTarVecchie_Click);
    cmdSalvaNuove.clicked.calls(this, &This::salvanuove);
    cmdSalvaVecchie.clicked.calls(this, &This::salvavecchie);
    for (Button* first : {&cmdSalvaNuove, &cmdSalvaVecchie}) first->visible = false;
    Check45.clicked.calls(this, &This::Check45_Click);
    cmdAggTar.clicked.calls(this, &This::cmdAggTar_Click);
}

void frmParametri::cmdTarNuove_Click() {
    if (!showVersion(newPmDipFile, newMark)) return;
    cmdTarNuove.tone = Tone::active;
    cmdTarVecchie.tone = Tone::plain;
    if (trim(Combo1.text()).empty()) return applica();
    if (electionIsNamed() && listaold()) aggiorna();
}

void frmParametri::cmdTarVecchie_Click() {
    if (!showVersion(oldPmDipFile, oldMark)) return;
    cmdTarVecchie.tone = Tone::active;
    cmdTarNuove.tone = Tone::plain;
    if (trim(Combo1.text()).empty()) return applica();
    if (electionIsNamed() && listanuove()) aggiorna2();
}

void frmParametri::offerFirstVersions() {
    cmdSalvaNuove.visible = wasNeverSaved(desk_.files, newPmDipFile);
    cmdSalvaVecchie.visible = wasNeverSaved(desk_.files, oldPmDipFile);
}

void frmParametri::enableVersions(bool enabled) {
    for (Button* command : {&cmdTarVecchie, &cmdTarNuove, &cmdSalvaVecchie, &cmdSalvaNuove}) command->enabled = enabled;
}

/// Shows a version with its mark. The new tariffs always take their own mark, the old ones that of their first row. A
/// version that was never saved deliberately leaves the table and the marks on show as they are: the command then goes
/// on with them, and without an election the table comes into force with the mark of the version last loaded, which is
/// blank when there was none. False when the disk failed, which the clerk has then been told.
bool frmParametri::showVersion(std::string_view file, std::string_view mark) {
    const auto table = onlyRecord<TariffTable>(desk_.files, file);
    if (!table) return wellDone(table.error(), desk_.desktop);
    if (!*table) return true;
    const std::string stored = mark == newMark ? std::string(mark) : (*table)->mark(0);
    Label31.text = stored;
    Label30.text = stored;
    closeStaff();
    showStaff(**table);
    return true;
}

void frmParametri::applica() {
    if (storeStaff(pmDipFile, trim(Label30.text()))) Label31.text = Label30.text();
}

bool frmParametri::electionIsNamed() {
    const bool named = !trim(Combo1.text()).empty() && !trim(txtDataEle.text()).empty();
    if (!named) desk_.desktop.tell({"Dati insufficienti", "Tipo di elezioni", Icon::warning});
    return named;
}

bool frmParametri::listaold() { return listDayRates(oldPmDipFile, tariffRowCount); }

/// Deliberately without the rows added later: an election does not go back to the old tariffs by them.
bool frmParametri::listanuove() { return listDayRates(newPmDipFile, toOldTariffs.rows); }

/// Nobody is paid by a version that was never saved.
bool frmParametri::listDayRates(std::string_view file, std::size_t count) {
    const auto table = onlyRecord<TariffTable>(desk_.files, file);
    if (!table) return wellDone(table.error(), desk_.desktop);
    for (std::size_t row = 0; row < count; ++row) {
        otherDay[row].text = *table ? format((*table)->rates(static_cast<int>(row)).Day, Mask::amount) : std::string();
    }
    return true;
}

void frmParametri::aggiorna() { rewriteStored(toNewTariffs); }

void frmParametri::aggiorna2() { rewriteStored(toOldTariffs); }

void frmParametri::rewriteStored(const RewriteDirection& direction) {
    const Election election = electionIn(Combo1, txtDataEle);
    const auto count = searchElection(desk_.files, election);
    if (isMissing(count)) {
        desk_.desktop.tell({"Elezione non ancora inserita", "Elezioni " + election.type, Icon::warning});
        return;
    }
    if (!count) {
        wellDone(count.error(), desk_.desktop);
        return;
    }
    DayRates paidSoFar;
    for (std::size_t row = 0; row < paidSoFar.size(); ++row) paidSoFar[row] = toCurrency(otherDay[row].text());
    const auto rates = ratesOnScreen();
    if (!rates) return;
    if (!wellDone(rewriteElection(desk_.files, election, paidSoFar, *rates, direction), desk_.desktop)) return;
    Label31.text = Label30.text();
    wellDone(RendiKontrol(desk_.files, election), desk_.desktop);
}

/// The choice of the election is over with the update, but the election stays chosen: the version command that follows
/// is for it. Setting the box anew begins a new choice.
void frmParametri::Check45_Click() {
    if (Check45.checked()) {
        Check46.checked = false;
        offerElections();
    }
    showMode();
}

/// Only announces the update: the records are rewritten by the version command that follows.
void frmParametri::cmdAggTar_Click() {
    if (!electionIsNamed()) return;
    const Election election = electionIn(Combo1, txtDataEle);
    const std::string question =
        "ATTENZIONE!\nSTATE PER ATTIVARE L'AGGIORNAMENTO DELLE TARIFFE PER LE ELEZIONI: " + inCapitals(election.type) +
        " DEL " + election.date + std::string(blanksBeforeQuestion, ' ') + "\nVOLETE AVVIARE IL PROCEDIMENTO?";
    if (!desk_.desktop.ask({question, "Aggiornamento tariffe compenso lavoro straordinario", Icon::question})) return;
    if (!listaold()) return;
    desk_.desktop.tell({"Aggiornamento effettuato", "Tariffe", Icon::information});
    Check45.checked = false;
}

}  // namespace vorbano
