// Leaving lines, options, total, difference.

#include "statement/statement_screen.h"
#include "storage/codepage.h"
#include "storage/numbers.h"

namespace vorbano {

namespace {

/// An empty line is 0, and so is what is no number; the field then shows what will be stored.
void rewrite(TextBox& field) { field.text = format(amountOrZero(field.text()), Mask::amount); }

}  // namespace

/// What the clerk types or chooses keeps the election on show until it is stored or given up.
void StatementScreen::typedByClerk(const Control& control) {
    if (typed_ || stage_ != Stage::open || form.focused() != &control) return;
    typed_ = true;
    followEnabled();
}

void StatementScreen::leaveLine(TextBox& field) { rewrite(field); }

void StatementScreen::txtMissioni_LostFocus() {
    for (TextBox* field : {&txtIndennità, &txtCarico, &txtMissioni}) {
        if (trim(field->text()).empty()) rewrite(*field);
    }
    txtTotale.text = format(totalOf(onScreen(), txtCarico2.enabled()), Mask::amount);
}

/// What is due to the office.
Currency StatementScreen::due() const { return amountOrZero(fiveSixthsPaid() ? txtFraz.text() : txtTotale.text()); }

void StatementScreen::txtAcconti_LostFocus() {
    rewrite(txtTotale);
    txtDifferenza.text = format(due() - amountOrZero(txtAcconti.text()), Mask::amount);
}

void StatementScreen::txtTotale_Change() {
    if (fiveSixthsPaid() && !txtTotale.text().empty()) txtFraz.text = format(partOfStato(onScreen()), Mask::amount);
    followWarning();
}

void StatementScreen::txtDifferenza_Change() {
    const Currency difference = amountOrZero(txtDifferenza.text());
    txtDifferenza.tone = difference < Currency{} ? Tone::wrong : Tone::plain;
    if (!txtDifferenza.text().empty())
        Label15.text = std::string(differenceCaption(due(), amountOrZero(txtAcconti.text())));
    followWarning();
}

void StatementScreen::Option1_Click() {
    typedByClerk(Option1);
    followState();
    form.focus(txtStampanti);
}

void StatementScreen::Option2_Click() {
    typedByClerk(Option2);
    followState();
    form.focus(txtTotStato);
}

void StatementScreen::Option3_Click() {
    typedByClerk(Option3);
    followState();
    form.focus(txtCartRegione);
}

void StatementScreen::Option4_Click() {
    typedByClerk(Option4);
    followState();
    form.focus(txtAssunzioni);
}

}  // namespace vorbano
