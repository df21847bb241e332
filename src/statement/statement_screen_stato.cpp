// What is on show and can be used: all of it follows from the type, the date, the options and the stage.

#include "statement/statement_screen.h"
#include "storage/numbers.h"

namespace vorbano {

void StatementScreen::go(Stage stage) {
    stage_ = stage;
    followState();
}

bool StatementScreen::fiveSixthsPaid() const { return row_ != nullptr && paysFiveSixths(*row_, election()); }

void StatementScreen::followState() {
    followCaptions();
    followParts();
    followEnabled();
    followWarning();
}

void StatementScreen::followCaptions() {
    const bool called = stage_ != Stage::choosing;
    const bool pandemic = terms_.correction && called && isReferendumDay(election());
    std::string_view carico = caricoCaption(row_ == nullptr ? CaricoCaption::asDesigned : row_->carico);
    if (!date_.empty()) carico = caricoCaptionAt(election());
    Frame19.text = std::string(pandemic ? pandemicCaption : carico);

    const CaricoLabel label = row_ == nullptr ? CaricoLabel::asDesigned : row_->caricoLabel;
    Label5.text = std::string(label == CaricoLabel::asDesigned ? "+IRAP ed INAIL a totale carico:" : "");
    // Without words it would only take up room.
    Label5.visible = label == CaricoLabel::asDesigned;

    // The two blanks are those of the screen as it was drawn.
    Frame3.text = std::string(row_ != nullptr && row_->presidents ? terms_.presidents
                                                                  : "Rimborso spese  ai presidenti di seggio");
    Frame7.text = std::string(printedCaption(row_));
    const PostalCaption postal = row_ == nullptr ? PostalCaption::postali : row_->postalCaption;
    Frame9.text = std::string(postalCaption(postal));
    Label8.text = std::string(postalCaptionEnd(postal));
    Label8.visible = !Label8.text().empty();

    const bool stored = row_ == nullptr || row_->tprov != TprovUse::none;
    lblMagMis.text = std::string(stored ? "non compresa nel totale" : "non compresa nel totale e non registrata");
}

void StatementScreen::followParts() {
    const bool byPeriod = row_ != nullptr && row_->overtime == OvertimeCharge::byPeriod;
    Label6.visible = byPeriod;
    Label7.visible = byPeriod;
    txtCarico2.visible = byPeriod;
    followPrinted();
    followPostal();
    const bool sixths = stage_ != Stage::choosing && fiveSixthsPaid();
    Label16.visible = sixths;
    Label17.visible = sixths;
    txtFraz.visible = sixths;
}

void StatementScreen::followPrinted() {
    const PrintedMatter printed = row_ == nullptr ? PrintedMatter::whole : row_->printed;
    const bool choice = row_ != nullptr && hasPrintedChoice(*row_);
    Option1.text = std::string(divisionCaption(printed));
    fraRiparto.visible = choice;
    Option1.visible = choice;
    Option2.visible = choice;

    const bool typed = choice && Option2.checked();
    const bool ofProvincia = printed == PrintedMatter::provincia && stage_ != Stage::choosing;
    // On that day both sides are the Stato's; only the correction says so.
    const bool allStato = terms_.correction && stage_ != Stage::choosing && fiveSixthsPaid();
    const std::string_view other = otherBody(printed);
    Label1.text = std::string(allStato ? "A totale carico Stato" : "Stato");
    Label10.text = std::string(allStato ? "A totale carico Stato" : other);
    Label1.visible = typed;
    txtTotStato.visible = typed;
    Label10.visible = typed || ofProvincia;
    txtTotComune.visible = typed || ofProvincia;
    Label9.visible = ofProvincia;
    txtTotProv.visible = ofProvincia;
}

void StatementScreen::followPostal() {
    const PostalExpenses postal = row_ == nullptr ? PostalExpenses::whole : row_->postal;
    const bool always = postal == PostalExpenses::typed;
    // The correction of typed shares is a choice, too: either the whole line or its shares.
    const bool choice =
        postal == PostalExpenses::halvesOrTyped || (always && terms_.correction && stage_ == Stage::open);
    const bool european = postal == PostalExpenses::halvesOrTyped && !row_->jointReferendum;
    Option4.text = std::string(european ? terms_.halvesOfEuropean : "L'importo totale sarà ripartito  al 50%");
    fraRipartoPostali.visible = choice;
    Option3.visible = choice;
    Option4.visible = choice;

    const bool typed = choice ? Option3.checked() : always;
    Label11.visible = typed && always;
    Label13.visible = typed && !always;
    txtCartRegione.visible = typed;
    Label12.visible = typed;
    txtCartStato.visible = typed;
}

void StatementScreen::followEnabled() {
    const bool open = stage_ == Stage::open && row_ != nullptr;
    for (Control* choice : std::initializer_list<Control*>{&Combo1, &Combo2, &txtDataEle}) choice->enabled = !typed_;
    if (cmdAnteprima) cmdAnteprima->enabled = !typed_;
    if (cmdRicerca) cmdRicerca->enabled = !typed_;
    if (Check1) Check1->enabled = stage_ != Stage::choosing;
    cmdSalva.enabled = open;

    for (TextBox* field : {&txtIndennità, &txtMagMis, &txtStampanti, &txtTrasporti, &txtDisciplina, &Text1,
                           &txtAssunzioni, &txtNecessità, &txtMissioni, &txtAcconti}) {
        field->enabled = open;
    }
    for (Option* option : {&Option1, &Option2, &Option3, &Option4}) option->enabled = open;
    const bool byPeriod = open && row_->overtime == OvertimeCharge::byPeriod;
    txtCarico.locked = byPeriod;
    txtCarico.enabled = byPeriod || (open && caricoIsTyped(*row_, election()));
    txtCarico2.enabled = byPeriod;
    Frame19.enabled = txtCarico.enabled();
    Label5.enabled = txtCarico.enabled();
    for (Label* caption : {&Frame3, &Label4, &Frame7, &Frame9, &Label8, &Frame12}) caption->enabled = open;
    // Parts that are not on show are not typed.
    for (TextBox* part : {&txtTotStato, &txtTotComune, &txtTotProv, &txtCartRegione, &txtCartStato})
        part->enabled = open && part->visible();
    if (!open || !terms_.correction || row_->stored != StoredAs::byBody) return;
    txtStampanti.enabled = !Option2.checked();
    txtAssunzioni.enabled = !Option3.checked();
}

/// Total and difference are computed on leaving the fields before them. One that no longer fits is not stored unseen.
void StatementScreen::followWarning() {
    std::string words;
    if (stage_ == Stage::open) {
        const StatementAmounts amounts = onScreen();
        const bool secondBody = txtCarico2.enabled();
        if (cents(totalOf(amounts, secondBody)) != amounts.totale) {
            words = "Il totale si calcola lasciando il campo delle ulteriori spese";
        } else if (due() - amounts.acconti != amounts.differenza) {
            words = "La differenza si calcola lasciando il campo degli acconti";
        }
    }
    lblAvviso.text = words;
    lblAvviso.tone = words.empty() ? Tone::plain : Tone::active;
}

}  // namespace vorbano
