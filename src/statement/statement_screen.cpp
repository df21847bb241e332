#include "statement/statement_screen.h"

#include "screens/date_entry.h"
#include "screens/election_choice.h"
#include "screens/well_done.h"
#include "storage/codepage.h"
#include "storage/numbers.h"

namespace vorbano {

StatementScreen::StatementScreen(const StatementScreenTerms& terms, const Workplace& workplace)
    : form(std::string(terms.form), std::string(terms.caption)), desk_(workplace), terms_(terms) {
    if (terms_.correction) {
        cmdRicerca.emplace(form, "cmdRicerca", "Ricerca");
        Check1.emplace(form, "Check1", "Modifica");
    } else {
        cmdAnteprima.emplace(form, "cmdAnteprima", "Inserimento");
    }
    using A = StatementAmounts;
    lines_ = {
        {&txtOnorari, &A::onorari},
        {&txtStraordinario, &A::straordinario},
        {&txtSpeciali, &A::speciali},
        {&txtCarico, &A::carico},
        {&txtCarico2, &A::carico2},
        {&txtIndennità, &A::indennita},
        {&txtMagMis, &A::magMis},
        {&txtStampanti, &A::stampanti},
        {&txtTotStato, &A::totStato},
        {&txtTotComune, &A::totComune},
        {&txtTotProv, &A::totProv},
        {&txtTrasporti, &A::trasporti},
        {&txtDisciplina, &A::disciplina},
        {&Text1, &A::tempoDeterminato},
        {&txtAssunzioni, &A::postali},
        {&txtCartRegione, &A::cartRegione},
        {&txtCartStato, &A::cartStato},
        {&txtNecessità, &A::cabine},
        {&txtMissioni, &A::missioni},
        // The sums last: what is computed from the lines finds them.
        {&txtTotale, &A::totale},
        {&txtAcconti, &A::acconti},
        {&txtDifferenza, &A::differenza},
    };
    for (TextBox* computed :
         {&txtOnorari, &txtStraordinario, &txtSpeciali, &txtCarico2, &txtTotale, &txtFraz, &txtDifferenza}) {
        computed->locked = true;
    }
    Frame1.visible = false;
    txtAta.visible = false;
    txtAta.enabled = false;
    hangProcedures();
    Combo1.items = TipoElezioni(desk_.files);
    followState();
}

void StatementScreen::hangProcedures() {
    using This = StatementScreen;
    Combo1.clicked.calls(this, &This::Combo1_Click);
    Combo2.clicked.calls(this, &This::Combo2_Click);
    makeDateField(txtDataEle, desk_.desktop);
    txtDataEle.lostFocus.calls(this, &This::txtDataEle_LostFocus);
    for (const Line& line : lines_) {
        TextBox& field = *line.field;
        if (field.locked()) continue;
        field.change.calls([this, &field] {
            typedByClerk(field);
            followWarning();
        });
        field.lostFocus.calls([this, &field] { leaveLine(field); });
    }
    txtMissioni.lostFocus.calls(this, &This::txtMissioni_LostFocus);
    txtAcconti.lostFocus.calls(this, &This::txtAcconti_LostFocus);
    txtTotale.change.calls(this, &This::txtTotale_Change);
    txtDifferenza.change.calls(this, &This::txtDifferenza_Change);
    Option1.clicked.calls(this, &This::Option1_Click);
    Option2.clicked.calls(this, &This::Option2_Click);
    Option3.clicked.calls(this, &This::Option3_Click);
    Option4.clicked.calls(this, &This::Option4_Click);
    cmdSalva.clicked.calls(this, &This::cmdSalva_Click);
    cmdAnnulla.clicked.calls(this, &This::cmdAnnulla_Click);
}

Election StatementScreen::election() const { return electionIn(Combo1, txtDataEle); }

void StatementScreen::tellNothingFound() {
    desk_.desktop.tell({"Non sono stati trovati record per la compilazione del rendiconto. Inserire i dati esatti",
                        "Errore", Icon::warning});
    form.focus(Combo1);
}

std::optional<StatementScreen::Sources> StatementScreen::readSources() {
    const auto normal = onorari(desk_.files, election());
    if (!normal) {
        tellNothingFound();
        return std::nullopt;
    }
    const auto overtime = readOvertimeCost(desk_.files, election());
    if (!overtime) {
        desk_.desktop.tell({"Dati per la compilazione del rendiconto inesistenti", "Rendiconto", Icon::warning});
        form.focus(Combo1);
        return std::nullopt;
    }
    const auto special = Speciali(desk_.files, election());
    if (!special) {
        tellNothingFound();
        return std::nullopt;
    }
    return Sources{*normal, *overtime, *special};
}

void StatementScreen::Combo1_Click() {
    Combo2.clear();
    Combo2.items = DataEle(desk_.files, Combo1.text());
    txtDataEle.text = std::string();
    date_.clear();
    row_ = findStatementTerms(Combo1.text());
    clearLines();
    go(Stage::choosing);
}

void StatementScreen::Combo2_Click() {
    txtDataEle.text = std::string(trim(Combo2.text()));
    dateChosen();
}

void StatementScreen::txtDataEle_LostFocus() { dateChosen(); }

/// What is on show belongs to the election of the date before.
void StatementScreen::dateChosen() {
    const std::string date(trim(txtDataEle.text()));
    if (date == date_) return;
    date_ = date;
    clearLines();
    go(Stage::choosing);
}

void StatementScreen::clearLines() {
    for (const Line& line : lines_) line.field->text = std::string();
    txtFraz.text = std::string();
    Label15.text = std::string("Differenza");
    for (Option* option : {&Option1, &Option2, &Option3, &Option4}) option->checked = false;
    if (Check1) Check1->checked = false;
    typed_ = false;
}

void StatementScreen::show(Currency StatementAmounts::*line, Currency amount) {
    for (const Line& one : lines_) {
        if (one.amount == line) one.field->text = format(amount, Mask::amount);
    }
}

void StatementScreen::showAll(const StatementAmounts& amounts) {
    for (const Line& line : lines_) line.field->text = format(amounts.*line.amount, Mask::amount);
}

StatementAmounts StatementScreen::onScreen() const {
    StatementAmounts amounts;
    for (const Line& line : lines_) amounts.*line.amount = amountOrZero(line.field->text());
    return amounts;
}

void StatementScreen::toLoad() {
    Combo1.selection = -1;
    Combo1.text = std::string();
    Combo2.clear();
    txtDataEle.text = std::string();
    date_.clear();
    row_ = nullptr;
    clearLines();
    go(Stage::choosing);
    form.focus(Combo1);
}

void StatementScreen::cmdSalva_Click() {
    const TypedParts typed{.printed = txtTotStato.enabled(), .postal = txtCartRegione.enabled()};
    if (!wellDone(storeStatement(desk_.files, election(), *row_, onScreen(), typed), desk_.desktop)) return;
    desk_.desktop.tell({"Dati salvati", "Rendiconto", Icon::information});
    toLoad();
}

void StatementScreen::cmdAnnulla_Click() { toLoad(); }

}  // namespace vorbano
