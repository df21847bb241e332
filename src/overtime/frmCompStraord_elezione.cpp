// Type, date and number of employees: what opens an election, new or stored, and what varies its number.

#include <algorithm>

#include "overtime/frmCompStraord.h"
#include "screens/election_choice.h"
#include "screens/well_done.h"
#include "storage/numbers.h"

namespace vorbano {

void frmCompStraord::txtNumDip_LostFocus() {
    if (trim(txtNumDip.text()).empty()) return;
    const int hours = monteOre(numDip());
    txtMonteOre.text = std::to_string(hours);
    txtMoGlob.text = std::to_string(std::int64_t{numDip()} * hours);
}

bool frmCompStraord::electionIsComplete() {
    Control* missing = emptyForSearch(Combo1, txtDataEle);
    // A number that reads differently on screen and on file ("1.000", "13,5") is no number of employees.
    const auto employees = toInteger(txtNumDip.text());
    const bool isNumber = employees && *employees > 0 && *employees == numDip();
    if (missing == nullptr && !isNumber) missing = &txtNumDip;
    if (missing == nullptr) return dateOfElectionExists(Combo1, txtDataEle, desk_.desktop);
    tellIncompleteSearch(*missing, desk_.desktop);
    return false;
}

void frmCompStraord::cmdAttiva_Click() {
    if (!electionIsComplete()) return;
    txtNumDip_LostFocus();
    // An existing folder is no failure; one that cannot be made shows itself at the first record.
    desk_.files.makeFolder("Elezioni").ignore();
    const auto stored = readElection();
    if (!stored) {
        wellDone(stored.error(), desk_.desktop);
        return;
    }
    if (stored->count == 0) {
        newElection();
        return;
    }
    if (!resumeElection(*stored)) return;
    if (Label67.text() == "N" && !varyNumber(*stored)) return;
    activated(stored->count);
    // Who is on show and stored makes room for the next; who is not yet stored stays.
    if (!entryOpen_ || storedNumber_ == stored->count) clearEntry();
    storedNumber_ = 0;
    computeFigures();
    openName();
    // Everybody of the calculation is stored: whoever is added now is beyond the number set, and "Continua" asks for
    // it.
    cmdAggiungi.enabled = stored->count >= numDip();
    cmdStampe.enabled = true;
}

void frmCompStraord::newElection() {
    const bool datesStand = Label67.text() == "N" && !periods[0].dal.text().empty();
    activated(0);
    if (datesStand) {
        computeFigures();
        openName();
        return;
    }
    Frame9.visible = true;
    form.focus(txtDataDecreto);
}

/// The command went through: the election is fixed, and the next employee is the one after the stored ones.
void frmCompStraord::activated(int count) {
    cmdAttiva.text = std::string("ATTIVATO");
    cmdAttiva.enabled = false;
    Combo1.enabled = false;
    txtDataEle.locked = true;
    txtNumDip.locked = true;
    Label64.text = std::string();
    Label67.text = std::string();
    txtSonoDip.text = std::to_string(count + 1);
}

bool frmCompStraord::resumeElection(const StoredElection& stored) {
    const bool goOn = desk_.desktop.ask(
        {"Questo tipo di Elezione già è in memoria! Se si desidera continuare ad aggiungere altri dati scegliere SI. "
         "Per questo tipo di elezione sono stati inseriti  n. " +
             std::to_string(stored.count) + " Dipendenti" + ". L'ultimo nominativo inserito è " +
             stored.last.name.trimmed(),
         "Inserimento Dipendenti", Icon::question});
    if (!goOn || !showActs()) return false;
    txtSonoDip.text = std::to_string(stored.last.pools.SonoDip);
    for (std::size_t at = 0; at < periods.size(); ++at) {
        periods[at].dal.text = stored.first.periods[at].from.trimmed();
        periods[at].al.text = stored.first.periods[at].to.trimmed();
    }
    txtGlobo.text = std::to_string(stored.last.pools.Globo);
    txtMoUtil.text = std::to_string(stored.last.pools.MoUtil);
    return true;
}

/// The dates of the acts, and the pools of later periods, which the screen does not show but which the sum of the pools
/// of an election before 2014 holds. False when the disk does not give them.
bool frmCompStraord::showActs() {
    const auto duedate = election().file(duedateFile);
    const auto meirin = election().file(meirinFile);
    if (!duedate || !meirin) return false;
    const auto acts = onlyRecord<DuedateRecord>(desk_.files, *duedate);
    if (!acts) return wellDone(acts.error(), desk_.desktop);
    const auto limits = onlyRecord<MeirinRecord>(desk_.files, *meirin);
    if (!limits) return wellDone(limits.error(), desk_.desktop);
    latePools_ = 0;
    if (const auto& record = *limits) {
        for (const Integer pool : {record->pool4, record->pool5}) latePools_ += std::max<std::int16_t>(pool, 0);
    }
    if (const auto& record = *acts) {
        Label93.text = record->decreto.trimmed();
        Label94.text = record->determina.trimmed();
        for (Label* label : {&Label91, &Label92, &Label93, &Label94}) label->visible = true;
    }
    return true;
}

/// The last record tells the number that the stored employees were calculated on; the field holds the new one.
bool frmCompStraord::varyNumber(const StoredElection& stored) {
    const int count = stored.count;
    const int storedNumDip = stored.last.pools.NumDip;
    const int entered = numDip();
    if (entered < count) {
        desk_.desktop.tell({"Impossibile eliminare n. " + std::to_string(count - entered) +
                                " record. Il numero dei dipendenti inserito è inferiore a quello già memorizzato",
                            "Inserimento dipendenti", Icon::warning});
        return false;
    }
    if (entered == count) {
        desk_.desktop.tell(
            {"Impossibile aggiungere record. Il numero dei dipendenti inserito è uguale a quello già memorizzato",
             "Inserimento dipendenti", Icon::warning});
        return false;
    }
    if (entered < storedNumDip) {
        return storeNewNumber(
            {"Il numero dei dipendenti su cui operare il calcolo è inferiore a quello già inserito di n. " +
                 std::to_string(storedNumDip - entered) + " unità. Si desidera decurtare il numero dei dipendenti?",
             "Diminuzione numero dipendenti", Icon::question},
            count);
    }
    if (entered > storedNumDip) {
        return storeNewNumber(
            {"Il numero dei dipendenti su cui operare il calcolo è superiore a quello già inserito di n. " +
                 std::to_string(entered - storedNumDip) + " unità. Si desidera aggiungere altri dipendenti?",
             "Inserimento dipendenti", Icon::question},
            count);
    }
    return true;
}

bool frmCompStraord::storeNewNumber(const Message& question, int count) {
    if (!desk_.desktop.ask(question)) return false;
    // The new number changes hours per month and pools; they are worked out before they go to the records.
    // The records come last: as long as they hold the old number the question comes again, and both are done again.
    computeFigures();
    if (!wellDone(SalvaMeirin(), desk_.desktop) || !wellDone(adding(), desk_.desktop)) return false;
    desk_.desktop.tell({"    Records memorizzati n. " + std::to_string(count), "Fine inserimento", Icon::information});
    return true;
}

void frmCompStraord::txtMoUtil_Change() {
    txtGlobo_Change();
    if (wholeScan(txtMoUtil.text()) > wholeScan(txtGlobo.text())) desk_.desktop.tell(poolExceeded());
}

void frmCompStraord::txtGlobo_Change() {
    const bool nothing = txtGlobo.text().empty() && txtMoUtil.text().empty();
    txtRestante.text = nothing ? std::string()
                               : std::to_string(std::int64_t{wholeScan(txtGlobo.text())} - wholeScan(txtMoUtil.text()));
}

}  // namespace vorbano
