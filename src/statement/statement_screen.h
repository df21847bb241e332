#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/form.h"
#include "screens/workplace.h"
#include "statement/statement_amounts.h"
#include "statement/statement_record.h"
#include "statement/statement_sources.h"
#include "statement/statement_terms.h"
#include "storage/election.h"

namespace vorbano {

/// In what the two screens of the statement differ, beyond their own commands.
struct StatementScreenTerms {
    std::string_view form;
    std::string_view caption;
    bool correction;
    std::string_view presidents;        ///< `Frame3` where the type sets it
    std::string_view halvesOfEuropean;  ///< `Option4` for Europee_Comunali
};

/// The statement of costs as a form of lines: what is fetched, what is typed, how a line divides, total, advances,
/// difference. What is on show and can be used follows from the type of election, the date, the options and how far the
/// work has come; nothing else switches it. While typed amounts are not stored no other election can be chosen.
///
/// Its procedures stand in files by theme: statement_screen.cpp (loading, choice of the election, saving),
/// _stato (what is on show and enabled when), _righe (leaving lines, options, total, difference).
struct StatementScreen {
    Form form;

    ComboBox Combo1{form, "Combo1"};  ///< types, as the folders tell them
    ComboBox Combo2{form, "Combo2"};  ///< dates of the type
    TextBox txtDataEle{form, "txtDataEle", 10};
    std::optional<Button> cmdAnteprima;  ///< of the entry
    std::optional<Button> cmdRicerca;    ///< of the correction
    std::optional<CheckBox> Check1;      ///< of the correction: lets the lines be changed

    // Stations and staff. The captions that change with the type bear the names of the frames of their lines.
    TextBox txtOnorari{form, "txtOnorari"};
    TextBox txtSpeciali{form, "txtSpeciali"};
    TextBox txtStraordinario{form, "txtStraordinario"};
    Label Frame19{form, "Frame19"};
    Label Label5{form, "Label5"};
    Label Label6{form, "Label6", "STATO"};
    TextBox txtCarico{form, "txtCarico", amountLength};
    Label Label7{form, "Label7", "REGIONE"};
    TextBox txtCarico2{form, "txtCarico2", amountLength};
    Label Frame3{form, "Frame3"};
    TextBox txtIndennità{form, "txtIndennità", amountLength};
    Label Label4{form, "Label4", "Maggiorazione"};
    Label lblMagMis{form, "lblMagMis"};  ///< what becomes of it
    TextBox txtMagMis{form, "txtMagMis", amountLength};

    // Other costs.
    Label Frame7{form, "Frame7"};
    TextBox txtStampanti{form, "txtStampanti", amountLength};
    Frame fraRiparto{form, "fraRiparto"};
    Option Option1{fraRiparto, "Option1", ""};
    Option Option2{fraRiparto, "Option2", "Senza Riparto"};
    Label Label1{form, "Label1"};
    TextBox txtTotStato{form, "txtTotStato", amountLength};
    Label Label10{form, "Label10"};
    TextBox txtTotComune{form, "txtTotComune", amountLength};
    Label Label9{form, "Label9", "di cui a totale carico della Provincia"};
    TextBox txtTotProv{form, "txtTotProv", amountLength};
    Label Frame1{form, "Frame1", "frame a disposizione per altre spese"};
    TextBox txtAta{form, "txtAta"};  ///< at nobody's disposal: no part of total or record, and so never on show
    TextBox txtTrasporti{form, "txtTrasporti", amountLength};
    TextBox txtDisciplina{form, "txtDisciplina", amountLength};
    TextBox Text1{form, "Text1", amountLength};
    Label Frame9{form, "Frame9"};
    Label Label8{form, "Label8"};
    TextBox txtAssunzioni{form, "txtAssunzioni", amountLength};
    Frame fraRipartoPostali{form, "fraRipartoPostali"};
    Option Option4{fraRipartoPostali, "Option4", ""};
    Option Option3{fraRipartoPostali, "Option3", "Senza Riparto"};
    Label Label11{form, "Label11", "REGIONE"};
    Label Label13{form, "Label13", "COMUNE"};
    TextBox txtCartRegione{form, "txtCartRegione", amountLength};
    Label Label12{form, "Label12", "STATO"};
    TextBox txtCartStato{form, "txtCartStato", amountLength};
    TextBox txtNecessità{form, "txtNecessità", amountLength};
    Label Frame12{form, "Frame12", "Ulteriori spese"};
    TextBox txtMissioni{form, "txtMissioni", amountLength};

    // The sum.
    TextBox txtTotale{form, "txtTotale"};
    Label Label16{form, "Label16", "di cui importo totale 5/6 Stato + Spese postali + cabine elettorali"};
    Label Label17{form, "Label17", "La differenza si calcola su questo importo"};
    TextBox txtFraz{form, "txtFraz"};
    TextBox txtAcconti{form, "txtAcconti", amountLength};
    Label Label15{form, "Label15", "Differenza"};
    TextBox txtDifferenza{form, "txtDifferenza"};
    Label lblAvviso{form, "lblAvviso"};  ///< a sum that no longer fits its lines

    Button cmdSalva{form, "cmdSalva", "Salva"};
    Button cmdAnnulla{form, "cmdAnnulla", "Annulla"};

    void Combo1_Click();
    void Combo2_Click();
    void txtDataEle_LostFocus();
    void txtMissioni_LostFocus();
    void txtAcconti_LostFocus();
    void txtTotale_Change();
    void txtDifferenza_Change();
    void Option1_Click();
    void Option2_Click();
    void Option3_Click();
    void Option4_Click();
    void cmdSalva_Click();
    void cmdAnnulla_Click();

  protected:
    /// A field and the line of the statement that it shows.
    struct Line {
        TextBox* field;
        Currency StatementAmounts::*amount;
    };
    /// How far the work has come.
    enum class Stage : std::uint8_t {
        choosing,  ///< no election is called up
        shown,     ///< on show, locked
        open,      ///< the lines can be typed
    };
    /// What the system knows of the costs.
    struct Sources {
        Currency onorari;
        OvertimeCost overtime;
        Currency speciali;
    };
    static constexpr int amountLength = 20;

    /// `terms` outlives the screen.
    StatementScreen(const StatementScreenTerms& terms, const Workplace& workplace);

    /// The election in the fields, and what its type has of its own; nullptr for a folder that is no type.
    [[nodiscard]] Election election() const;
    [[nodiscard]] const StatementTerms* row() const { return row_; }
    [[nodiscard]] bool fiveSixthsPaid() const;
    void clearLines();
    void show(Currency StatementAmounts::*line, Currency amount);
    void showAll(const StatementAmounts& amounts);
    void go(Stage stage);
    void followState();
    /// `onorari`, `straordinari`, `Speciali`; nothing when one could not be read, which is told.
    [[nodiscard]] std::optional<Sources> readSources();
    void tellNothingFound();

    Workplace desk_;

  private:
    void hangProcedures();
    [[nodiscard]] StatementAmounts onScreen() const;
    void toLoad();
    void dateChosen();
    void typedByClerk(const Control& control);
    void leaveLine(TextBox& field);
    void followCaptions();
    void followParts();
    void followPrinted();
    void followPostal();
    void followEnabled();
    void followWarning();
    [[nodiscard]] Currency due() const;

    const StatementScreenTerms& terms_;
    const StatementTerms* row_ = nullptr;
    std::string date_;  ///< the chosen one
    Stage stage_ = Stage::choosing;
    bool typed_ = false;  ///< something on show is nowhere else
    std::vector<Line> lines_;
};

}  // namespace vorbano
