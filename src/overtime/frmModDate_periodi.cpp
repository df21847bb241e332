// The dates of the periods, as the clerk types them.

#include "overtime/frmModDate.h"
#include "screens/date_entry.h"
#include "storage/dates.h"
#include "storage/numbers.h"

namespace vorbano {

/// A box unlocks the dates of its period; cleared, it gives back the stored ones.
void frmModDate::row_Click(DateRow& row) {
    row.unlock(row.modifica.checked());
    if (row.modifica.checked()) {
        form.focus(row.dal);
    } else if (found_) {
        row.setSpan(found_->spans[static_cast<std::size_t>(row.period) - 1].value_or(PeriodSpan{}));
    }
}

void frmModDate::periodDate_Change(TextBox& field, int period) {
    forgetSituation();
    // What the program shows in it is nobody's typing.
    if (form.focused() != &field || !signum(field, desk_.desktop)) return;
    if (plainScan(field.text()) > 31) {
        field.text = std::string();
        desk_.desktop.tell({"valore non  valido", "Date periodi", Icon::warning});
    } else if (field.text() == "--") {
        field.text = std::string();
        desk_.desktop.tell({"Per annullare il " + std::to_string(period) + "° periodo inserire ( // )",
                            "Annullamento periodo", Icon::warning});
    }
}

void frmModDate::periodDate_LostFocus(TextBox& field) {
    const auto text = trim(field.text());
    if (text.empty()) return;
    if (isExcluded(text)) {
        field.text = std::string(excludedMark);
    } else if (parseDate(text)) {
        field.text = reformatDate(text);
    } else {
        desk_.desktop.tell({"inserite la data per intero", "data errata", Icon::warning});
        form.focus(field);
    }
}

TextBox* frmModDate::emptyDate() {
    for (DateRow& row : rows) {
        if (!row.inUse()) continue;
        for (TextBox* field : {&row.dal, &row.al}) {
            if (trim(field->text()).empty()) return field;
        }
    }
    return nullptr;
}

bool frmModDate::datesAreComplete() {
    TextBox* empty = emptyDate();
    if (empty == nullptr && !trim(txtNumDip.text()).empty()) return true;
    desk_.desktop.tell({"Dati incompleti!", "Errore", Icon::warning});
    if (empty != nullptr) form.focus(*empty);
    return false;
}

/// Tells what is wrong with the dates of a period that has both, and puts the cursor there.
bool frmModDate::isWrong(DateRow& row) {
    const std::string period = "Date del " + std::to_string(row.period) + "° periodo ";
    const auto refuse = [this](const std::string& text, const char* title, TextBox& field) {
        desk_.desktop.tell({text, title, Icon::warning});
        form.focus(field);
        return true;
    };
    const bool noFirst = isExcluded(row.dal.text());
    const bool noLast = isExcluded(row.al.text());
    if (noFirst && noLast) return false;
    if (noFirst != noLast) return refuse(period + "incomplete.", "Date periodi", noFirst ? row.dal : row.al);
    for (TextBox* field : {&row.dal, &row.al}) {
        if (!parseDate(field->text())) return refuse("inserite la data per intero", "data errata", *field);
    }
    if (daysBetween(row.dal.text(), row.al.text()).value_or(0) >= 0) return false;
    return refuse(period + "non valide: la seconda precede la prima.", "Date periodi", row.al);
}

bool frmModDate::datesAreOfTheCalendar() {
    for (DateRow& row : rows) {
        if (row.inUse() && isWrong(row)) return false;
    }
    return true;
}

}  // namespace vorbano
