// The dates of the authorising acts and of the periods.

#include "overtime/employee_removal.h"
#include "overtime/frmCompStraord.h"
#include "screens/date_entry.h"
#include "screens/well_done.h"
#include "storage/dates.h"
#include "storage/numbers.h"

namespace vorbano {

namespace {

/// The longest time that the determination may precede the election.
constexpr int maxDaysBefore = 55;

}  // namespace

std::array<frmCompStraord::PeriodDates, 3> frmCompStraord::periodDates() {
    return {{{txtUnodal, txtUnoal, Check4, 1}, {txtDuedal, txtDueal, Check5, 2}, {txtTredal, txtTreal, Check6, 3}}};
}

void frmCompStraord::hangPeriodDates(const PeriodDates& row) {
    for (TextBox* field : {&row.dal, &row.al}) {
        // The ordinals of the message are 1, 2 and, deliberately, 3 for every other field.
        field->change.calls([this, field, ordinal = row.ordinal] { periodDate_Change(*field, ordinal); });
        field->lostFocus.calls([this, field] { periodDate_LostFocus(*field); });
    }
    row.annulla.clicked.calls([this, row] { excludePeriod(row); });
}

void frmCompStraord::cmdConferma_Click() {
    if (trim(txtDataDecreto.text()).empty() || trim(txtDataDetermina.text()).empty()) {
        desk_.desktop.tell({"Date incomplete", "Errore", Icon::warning});
        form.focus(trim(txtDataDecreto.text()).empty() ? txtDataDecreto : txtDataDetermina);
        return;
    }
    for (TextBox* field : {&txtDataDecreto, &txtDataDetermina}) {
        if (parseDate(field->text())) continue;
        desk_.desktop.tell({"inserite la data per intero", "data errata", Icon::warning});
        form.focus(*field);
        return;
    }
    const std::string type = election().type;
    if (type == "Politiche_Regionali") {
        desk_.desktop.tell(
            {"IN CASO ECCEZIONALE E' STATA DATA LA POSSIBILITA' DI\n"
             "AUTORIZZARE OLTRE 10 GIORNI LA DATA DI PUBBLICAZIONE DEL DECRETO",
             "AUTORIZZAZIONE ELEZIONI " + type, Icon::information});
    } else if (daysBetween(txtDataDetermina.text(), txtDataEle.text()).value_or(0) > maxDaysBefore) {
        desk_.desktop.tell(
            {"data autorizzazione oltre i termini di gg 55 dalla data delle elezioni.", "Errore", Icon::warning});
        form.focus(txtDataDetermina);
        return;
    }
    Label93.text = reformatDate(txtDataDecreto.text());
    Label94.text = reformatDate(txtDataDetermina.text());
    for (Label* label : {&Label91, &Label92, &Label93, &Label94}) label->visible = true;
    Frame9.visible = false;
    Frame20.visible = true;
    cmdDisattiva.visible = true;
    // The third period starts as left out, for every type of election.
    Check6.checked = true;
    form.focus(txtUnodal);
}

void frmCompStraord::cmdAnnulla_Click() {
    txtDataDecreto.text = std::string();
    txtDataDetermina.text = std::string();
    form.focus(txtDataDecreto);
}

void frmCompStraord::periodDate_Change(TextBox& field, int ordinal) {
    if (!signum(field, desk_.desktop)) return;
    if (plainScan(field.text()) > 31) {
        field.text = std::string();
        desk_.desktop.tell({"valore non  valido", "Date periodi", Icon::warning});
    } else if (field.text() == "--") {
        field.text = std::string();
        desk_.desktop.tell({"Per annullare il " + std::to_string(ordinal) + "° periodo inserire ( // )",
                            "Annullamento periodo", Icon::warning});
    }
}

void frmCompStraord::periodDate_LostFocus(TextBox& field) {
    const auto text = trim(field.text());
    if (text.empty() || isExcluded(text)) return;
    if (!parseDate(text)) {
        desk_.desktop.tell({"inserite la data per intero", "data errata", Icon::warning});
        form.focus(field);
        return;
    }
    field.text = reformatDate(text);
    if (&field == &txtUnodal) checkFirstDate();
}

/// The overtime begins on the day of the later act at the earliest.
void frmCompStraord::checkFirstDate() {
    const auto notBefore = [this](const std::string& act) {
        return daysBetween(act, txtUnodal.text()).value_or(0) >= 0;
    };
    const bool decreeIsLater = daysBetween(Label94.text(), Label93.text()).value_or(0) > 0;
    if (notBefore(decreeIsLater ? Label93.text() : Label94.text())) return;
    desk_.desktop.tell({decreeIsLater ? "AUTORIZZARE dalla data del decreto o successive"
                                      : "AUTORIZZARE dalla data della determinazione o successive",
                        "Data errata", Icon::warning});
    form.focus(txtUnodal);
}

void frmCompStraord::excludePeriod(const PeriodDates& row) {
    const bool excluded = row.annulla.checked();
    for (TextBox* field : {&row.dal, &row.al}) {
        field->text = excluded ? std::string(excludedMark) : std::string();
        field->locked = excluded;
    }
}

bool frmCompStraord::periodsAreComplete() {
    TextBox* toMend = nullptr;
    const auto tell = [&](const std::string& text, TextBox& field) {
        desk_.desktop.tell({text, "Date periodi", Icon::warning});
        if (toMend == nullptr) toMend = &field;
    };
    for (const PeriodDates& row : periodDates()) {
        const std::string period = "Date del " + std::to_string(row.ordinal) + "° periodo ";
        const bool noFirst = trim(row.dal.text()).empty();
        const bool noLast = trim(row.al.text()).empty();
        if (noFirst && noLast) {
            tell(
                "Inserire le date del periodo. Altrimenti se si deve escludere il periodo dal conteggio, inserire "
                "nelle "
                "caselle delle date [ // ] senza spazi.",
                row.dal);
            break;
        }
        if (noFirst != noLast || isExcluded(row.dal.text()) != isExcluded(row.al.text())) {
            tell(period + "incomplete.", noFirst || isExcluded(row.dal.text()) ? row.dal : row.al);
        } else if (daysBetween(row.dal.text(), row.al.text()).value_or(0) < 0) {
            tell(period + "non valide: la seconda precede la prima.", row.al);
        }
    }
    if (toMend != nullptr) form.focus(*toMend);
    return toMend == nullptr;
}

void frmCompStraord::Command1_Click() {
    if (!periodsAreComplete()) return;
    std::array<std::array<std::string, 2>, 3> before;
    for (std::size_t at = 0; at < periods.size(); ++at) before[at] = {periods[at].dal.text(), periods[at].al.text()};
    copyPeriods();
    computeFigures();
    if (Label58.text() != "D") {
        closePeriods();
        openName();
        return;
    }
    if (!Addata()) {
        // The records hold the old dates, and so does the screen. The panel stays, to confirm them again or give up.
        for (std::size_t at = 0; at < periods.size(); ++at) {
            periods[at].dal.text = before[at][0];
            periods[at].al.text = before[at][1];
        }
        computeFigures();
        return;
    }
    closePeriods();
    returnToName();
    cmdAggiungi.enabled = mayContinue_;
}

void frmCompStraord::closePeriods() {
    Frame20.visible = false;
    cmdDisattiva.visible = false;
    Label58.text = std::string();
}

void frmCompStraord::copyPeriods() {
    const auto rows = periodDates();
    for (std::size_t at = 0; at < rows.size(); ++at) {
        PeriodPanel& panel = periods[at];
        // A period that takes part again starts with empty hours.
        if (panel.isExcluded() && !isExcluded(rows[at].dal.text())) panel.clearHours();
        panel.dal.text = rows[at].dal.text();
        panel.al.text = rows[at].al.text();
    }
}

/// Carries changed dates, and the total of the pools that follows from them, to all records of the election. The
/// records come last: as long as they hold the old dates, nothing is changed that counts.
bool frmCompStraord::Addata() {
    const auto stored = readElection();
    if (!stored) return wellDone(stored.error(), desk_.desktop);
    if (stored->count == 0) return true;
    if (!wellDone(SalvaMeirin(), desk_.desktop)) return false;
    const auto globo = toInteger(txtGlobo.text());
    const auto done = rewriteEmployees(desk_.files, election(), [&](int, EmployeeRecord& record) {
        for (std::size_t at = 0; at < periods.size(); ++at) {
            record.periods[at].from = periods[at].dal.text();
            record.periods[at].to = periods[at].al.text();
        }
        record.pools.Globo = globo.value_or(std::int16_t{record.pools.Globo});
        return true;
    });
    return wellDone(done, desk_.desktop);
}

void frmCompStraord::cmdDisattiva_Click() {
    const bool varied = Label58.text() == "D";
    closePeriods();
    if (varied) {
        computeFigures();
        returnToName();
        cmdAggiungi.enabled = mayContinue_;
        return;
    }
    for (Label* label : {&Label91, &Label92, &Label93, &Label94}) label->visible = false;
    Frame9.visible = true;
    form.focus(txtDataDecreto);
}

}  // namespace vorbano
