// `Frame24`: the periods are switched between authorisation and liquidation.

#include <string_view>

#include "overtime/frmModStraord.h"
#include "storage/codepage.h"

namespace vorbano {

namespace {

/// The words of the two commands, which differ down to their blanks; so do the names of the periods.
struct StateWords {
    std::string_view refusal, caption, text;
    std::array<std::string_view, maxPeriods> periods;
    std::string_view title, question, warning;
};
constexpr StateWords liquidation = {
    .refusal = "Per inserire le ore da liquidare bisogna prima finire di salvare tutti i dipendenti",
    .caption = "Attivazione liquidazione ore straordinario",
    .text =
        "Scegliere il periodo su cui attivare l'inserimento delle ore da liquidare. E' anche possibile attivare "
        "più di uno dei periodi o tutti ",
    .periods = {"1°Periodo", "2°Periodo", "3° Periodo", "4°Periodo", "5°Periodo"},
    .title = "Liquidazione ore straordinario",
    .question = "State per attivare l'inserimento delle ore da liquidare del periodo ",
    .warning =
        ". Attenzione, una volta attivato le ore autorizzate si disattivano e possono essere modificate solo "
        "dopo aver riattivato l'autorizzazione . Attivare?"};
constexpr StateWords authorisation = {
    .refusal = "Per inserire le ore da autorizzare bisogna prima finire di salvare tutti i dipendenti",
    .caption = "Attivazione autorizzazione ore straordinario",
    .text =
        "Scegliere il periodo su cui attivare l'inserimento delle ore da autorizzare. E' anche possibile attivare "
        "più di uno dei periodi o tutti",
    .periods = {"1°Periodo", "2°Periodo", "3° Periodo", "4° Periodo", "5° Periodo"},
    .title = "Autorizzazione ore straordinario",
    .question = "State per attivare l'inserimento delle ore da autorizzare del ",
    .warning =
        ". Attenzione, una volta attivato le ore da liquidare si disattivano e possono essere modificate solo "
        "dopo aver riattivato la liquidazione. Attivare?"};

const StateWords& wordsFor(PeriodState state) {
    return state == PeriodState::liquidation ? liquidation : authorisation;
}

}  // namespace

frmModStraord::StateBoxes frmModStraord::boxesFor(PeriodState state) {
    if (state == PeriodState::liquidation) {
        return {{&Check5, &Check6, &Check7, &Check13, &Check2}, cmdAttiva, cmdAnnulla};
    }
    return {{&Check8, &Check9, &Check10, &Check12, &Check3}, cmdAttiva2, cmdAnnulla2};
}

bool frmModStraord::employeeInWork() const {
    const LiquidationPanel& first = periods.front();
    const bool limitsAreSet = !first.mensile.text().empty() || !first.medio.text().empty();
    return !cmdRicerca.enabled() || (!trim(txtNameDip.text()).empty() && limitsAreSet);
}

void frmModStraord::mnuLiqui_Click() { openStates(PeriodState::liquidation); }

void frmModStraord::mnuAutoriz_Click() { openStates(PeriodState::authorisation); }

void frmModStraord::openStates(PeriodState state) {
    if (Frame24.visible()) return;
    const StateWords& words = wordsFor(state);
    if (employeeInWork()) {
        desk_.desktop.tell({std::string(words.refusal), "Inserimento ore da liquidare", Icon::warning});
        return;
    }
    if (!electionIsGiven()) return;
    const auto found = read(0);
    if (!found) {
        tellNotFound(found.error());
        return;
    }
    const ElectionSpans spans = spansOf(found->first, found->late);
    for (const PeriodState each : {PeriodState::liquidation, PeriodState::authorisation}) {
        const StateBoxes set = boxesFor(each);
        set.attiva.visible = each == state;
        set.annulla.visible = each == state;
        for (std::size_t at = 0; at < set.boxes.size(); ++at) {
            CheckBox& box = *set.boxes[at];
            box.checked = false;
            box.visible = each == state && spans[at].has_value();
            const bool there = meirinPeriod(found->meirin, static_cast<int>(at) + 1).state == static_cast<int>(each);
            box.enabled = spans[at] && !spans[at]->isExcluded() && !there;
        }
    }
    panelState_ = state;
    Frame24.text = std::string(words.caption);
    lblAttivazione.text = std::string(words.text);
    Frame24.visible = true;
    updateEnabled();
    form.settleFocus();
}

void frmModStraord::cmdAttiva_Click() { activate(PeriodState::liquidation); }

void frmModStraord::cmdAttiva2_Click() { activate(PeriodState::authorisation); }

void frmModStraord::activate(PeriodState state) {
    const StateWords& words = wordsFor(state);
    const StateBoxes set = boxesFor(state);
    PeriodChoice chosen{};
    std::string names;
    for (std::size_t at = 0; at < chosen.size(); ++at) {
        chosen[at] = set.boxes[at]->checked();
        if (chosen[at]) names += (names.empty() ? "" : " - ") + std::string(words.periods[at]);
    }
    if (names.empty()) {
        // Deliberately the same title for both commands.
        desk_.desktop.tell({"Selezionare almeno uno dei periodi", "Attivazione liquidazione ore", Icon::warning});
        return;
    }
    const std::string question = std::string(words.question) + names + std::string(words.warning);
    if (!desk_.desktop.ask({question, std::string(words.title), Icon::question})) return;
    if (!wellDone(storePeriodStates(desk_.files, election(), chosen, state), desk_.desktop)) return;
    closeStates();
    searchTyped();
}

void frmModStraord::cmdAnnulla_Click() { closeStates(); }

void frmModStraord::cmdAnnulla2_Click() { closeStates(); }

void frmModStraord::closeStates() {
    Frame24.visible = false;
    updateEnabled();
    form.focus(txtSonoDip);
}

}  // namespace vorbano
