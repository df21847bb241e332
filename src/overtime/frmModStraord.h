#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <string>

#include "overtime/liquidation_panel.h"
#include "overtime/pay.h"
#include "overtime/staff.h"
#include "platform/form.h"
#include "screens/well_done.h"
#include "screens/workplace.h"
#include "storage/election.h"

namespace vorbano {

/// "Liquidazione Compenso lavoro straordinario": after the elections the hours really worked are entered against the
/// authorised ones, period by period and employee by employee, and what was authorised can be corrected. A period is
/// either in authorisation or in liquidation. The road: search -> period open -> "Conferma" (pay) -> IRPEF and INAIL on
/// the last employee -> "Salva". From the opening of a period to "Salva" nobody else can be called up.
///
/// Its procedures stand in files by theme: frmModStraord.cpp (loading, what is enabled when), _ricerca (search and
/// navigation), _mostra (what is on show), _elenco (lists of names, name correction), _stato (states of the periods),
/// _periodi (opening and leaving a period), _convalida (hours), _conferma (pay, grade), _salva (IRPEF, INAIL, storing).
struct frmModStraord {
    Form form{"frmModStraord", "Liquidazione Compenso lavoro straordinario"};

    MenuEntry mnuModifica{form, "mnuModifica", "Modifica"};
    MenuEntry mnuLiqui{mnuModifica, "mnuLiqui", "Liquidazione"};
    MenuEntry mnuAutoriz{mnuModifica, "mnuAutoriz", "Autorizzazione"};
    MenuEntry mnuEsci{form, "mnuEsci", "Esci"};

    ComboBox Combo1{form, "Combo1"};  ///< types, as the folders tell them
    ComboBox Combo2{form, "Combo2"};  ///< dates of the type
    TextBox txtDataEle{form, "txtDataEle", 10};
    TextBox txtSonoDip{form, "txtSonoDip", 5};  ///< "Dipendente n."
    Button cmdRicerca{form, "cmdRicerca", "Ricerca"};
    CheckBox Check11{form, "Check11", "Ricerca per nominativo"};
    ComboBox cmbNome{form, "cmbNome"};  ///< on show while `Check11` is set; a line for each employee, in order
    Button cmdRicerca2{form, "cmdRicerca2", "Ricerca per elenco"};
    Button cmdPrimo{form, "cmdPrimo", "Primo"};
    Button cmdPrecedente{form, "cmdPrecedente", "Precedente"};
    Button cmdSuccessivo{form, "cmdSuccessivo", "Successivo"};
    Button cmdUltimo{form, "cmdUltimo", "Ultimo"};
    Button cmdInserimento{form, "cmdInserimento", "Inserimento"};
    Button cmdAnnulla3{form, "cmdAnnulla3", "Annulla Ricerca"};

    Frame Frame24{form, "Frame24"};  ///< states of the periods
    Label lblAttivazione{Frame24, "lblAttivazione"};
    CheckBox Check5{Frame24, "Check5", "1° periodo"};  ///< to liquidation
    CheckBox Check6{Frame24, "Check6", "2° periodo"};
    CheckBox Check7{Frame24, "Check7", "3° periodo"};
    CheckBox Check13{Frame24, "Check13", "4° periodo"};
    CheckBox Check2{Frame24, "Check2", "5° periodo"};
    Button cmdAttiva{Frame24, "cmdAttiva", "Attiva"};
    Button cmdAnnulla{Frame24, "cmdAnnulla", "Annulla"};
    CheckBox Check8{Frame24, "Check8", "1° periodo"};  ///< to authorisation
    CheckBox Check9{Frame24, "Check9", "2° periodo"};
    CheckBox Check10{Frame24, "Check10", "3° periodo"};
    CheckBox Check12{Frame24, "Check12", "4° periodo"};
    CheckBox Check3{Frame24, "Check3", "5° periodo"};
    Button cmdAttiva2{Frame24, "cmdAttiva2", "Attiva"};
    Button cmdAnnulla2{Frame24, "cmdAnnulla2", "Annulla"};

    Frame Frame25{form, "Frame25", "Elenco Dipendenti autorizzati"};
    Option Option1{Frame25, "Option1", "1° periodo"};
    Option Option2{Frame25, "Option2", "2° periodo"};
    Option Option3{Frame25, "Option3", "3° periodo"};
    Option Option4{Frame25, "Option4", "4° periodo"};
    Option Option5{Frame25, "Option5", "5° periodo"};
    Grid MSFlexGrid1{Frame25, "MSFlexGrid1", {"Cognome e Nome", "Feriali", "Festive", "Fe/No", "Totale"}};
    Button cmdChiudiElenco{Frame25, "cmdChiudiElenco", "Chiudi elenco"};

    TextBox txtNumDip{form, "txtNumDip"};      ///< number of employees of the calculation
    TextBox txtMonteOre{form, "txtMonteOre"};  ///< hours per employee and month
    TextBox txtMoGlob{form, "txtMoGlob"};      ///< monthly pool of the staff
    TextBox txtGlobo{form, "txtGlobo"};        ///< what is left of the pools of the periods: less `txtMoUtil`
    TextBox txtMoUtil{form, "txtMoUtil"};      ///< hours used in the election

    CheckBox Check1{form, "Check1", "Modifica nominativo"};
    TextBox txtNameDip{form, "txtNameDip", 60};
    Button cmdSalva2{form, "cmdSalva2", "Salva modifica"};

    std::array<LiquidationPanel, maxPeriods> periods{{{form, liquidationNames[0]},
                                                      {form, liquidationNames[1]},
                                                      {form, liquidationNames[2]},
                                                      {form, liquidationNames[3]},
                                                      {form, liquidationNames[4]}}};

    TextBox txtTotAut{form, "txtTotAut"};  ///< hours authorised in all periods
    TextBox txtEsegDf{form, "txtEsegDf"};  ///< executed hours by kind
    TextBox txtEsegNof{form, "txtEsegNof"};
    TextBox txtEsegNef{form, "txtEsegNef"};
    TextBox txtTotEseg{form, "txtTotEseg"};

    Button cmdTariffe{form, "cmdTariffe", "Tariffe"};
    Frame Frame26{form, "Frame26", "Tariffe dipendenti compenso lavoro straordinario"};
    Grid MSFlexGrid2{Frame26, "MSFlexGrid2", {"Categorie", "Feriali", "Festive", "Fe/No"}};
    Button cmdChiudiTariffe{Frame26, "cmdChiudiTariffe", "Chiudi tariffe"};
    Label lblCat{form, "lblCat"};
    Label lblCat2{form, "lblCat2"};
    TextBox txtCompDf{form, "txtCompDf"};  ///< rate by the hour: "Diurne Feriali"
    TextBox txtCompNof{form, "txtCompNof"};
    TextBox txtCompNef{form, "txtCompNef"};

    Button cmdRicalcola{form, "cmdRicalcola", "Conferma"};

    TextBox txtDovuto{form, "txtDovuto"};
    Label Label37{form, "Label37"};  ///< percentages as kept with the employee
    TextBox txtCpStato{form, "txtCpStato"};
    Label Label38{form, "Label38"};
    TextBox txtIrap{form, "txtIrap"};
    TextBox txtTotaleSpesa{form, "txtTotaleSpesa"};
    TextBox txtComplessivo{form, "txtComplessivo"};
    Label Label43{form, "Label43"};
    TextBox txtCpDip{form, "txtCpDip"};
    Label Label47{form, "Label47"};
    TextBox txtFonCre{form, "txtFonCre"};
    TextBox txtTotaleContr{form, "txtTotaleContr"};

    Button cmdIrpefInail{form, "cmdIrpefInail", "Modifica Irpef e Inail"};  ///< as a press on the two panels
    Frame Frame19{form, "Frame19", "Irpef"};
    TextBox txtIrpef{Frame19, "txtIrpef", 15};
    Frame Frame20{form, "Frame20", "Totale"};
    TextBox txtInail{Frame20, "txtInail", 15};
    Frame Frame17{form, "Frame17", "Inail 1°"};  ///< on show for the elections that two bodies share
    TextBox txtInailUno{Frame17, "txtInailUno", 15};
    Frame Frame14{form, "Frame14", "Inail 2°"};
    TextBox txtInailDue{Frame14, "txtInailDue", 15};

    Button cmdSalva{form, "cmdSalva", "Salva "};
    Button cmdContinua{form, "cmdContinua", "Continua"};
    Button cmdStampe{form, "cmdStampe", "Stampe"};

    HiddenLabel Label52{form, "Label52"};  ///< "A1" to "A5": authorised hours of that period were corrected
    HiddenLabel Label53{form, "Label53"};  ///< "1" while IRPEF and INAIL are first entered, "0" when reopened
    HiddenLabel Text2{form, "Text2"};      ///< the grade picked in the grid

    explicit frmModStraord(const Workplace& workplace);

    void mnuEsci_Click();
    void cmdStampe_Click();

    // Choice of the election, search, navigation.
    void Combo1_Click();
    void Combo2_Click();
    void txtDataEle_Change();
    void cmdRicerca_Click();
    void cmdPrimo_Click();
    void cmdPrecedente_Click();
    void cmdSuccessivo_Click();
    void cmdUltimo_Click();
    void cmdInserimento_Click();
    void cmdContinua_Click();
    void cmdAnnulla3_Click();

    // Lists of names, correction of a name.
    void Check11_Click();
    void cmbNome_Click();
    void cmdRicerca2_Click();
    void MSFlexGrid1_SelChange();
    void cmdChiudiElenco_Click();
    void Check1_Click();
    void cmdSalva2_Click();

    // States of the periods.
    void mnuLiqui_Click();
    void mnuAutoriz_Click();
    void cmdAttiva_Click();
    void cmdAttiva2_Click();
    void cmdAnnulla_Click();
    void cmdAnnulla2_Click();

    // Pay and grade.
    void cmdRicalcola_Click();
    void cmdTariffe_Click();
    void MSFlexGrid2_SelChange();
    void cmdChiudiTariffe_Click();

    // IRPEF and INAIL, storing.
    void cmdIrpefInail_Click();
    void cmdSalva_Click();

  private:
    /// How far the work on the employee on show has come.
    enum class Stage : std::uint8_t {
        empty,      ///< nobody is on show
        shown,      ///< as stored
        entry,      ///< a period is open
        toConfirm,  ///< hours or grade changed, "Conferma" is next
        toSave,     ///< amounts computed, "Salva" is next
    };
    /// What a search reads before anything is shown.
    struct Found {
        int count = 0;
        LateInUse late{};
        MeirinRecord meirin;
        StoredEmployee first;
        StoredEmployee last;
        std::optional<StoredEmployee> employee;
        PeriodTotals used{};
    };
    struct StateBoxes {
        std::array<CheckBox*, maxPeriods> boxes;
        Button& attiva;
        Button& annulla;
    };

    void hangProcedures();
    void hangPeriod(int period);
    void lockAll();
    void updateEnabled();
    void go(Stage stage);
    [[nodiscard]] LiquidationPanel& panel(int period) { return periods[static_cast<std::size_t>(period) - 1]; }
    [[nodiscard]] std::array<TextBox*, hourKinds> executedFields() { return {&txtEsegDf, &txtEsegNof, &txtEsegNef}; }
    [[nodiscard]] std::array<TextBox*, hourKinds> rateFields() { return {&txtCompDf, &txtCompNof, &txtCompNef}; }
    [[nodiscard]] std::array<TextBox*, 4> irpefFields() { return {&txtIrpef, &txtInail, &txtInailUno, &txtInailDue}; }

    [[nodiscard]] Election election() const;
    bool electionIsGiven();
    [[nodiscard]] Result<Found> read(int number);
    /// Number 0 shows the election alone. Tells why when it answers false.
    bool search(int number);
    bool searchTyped();
    void tellNotFound(const Error& error);
    void electionChanged();
    void showLate(const LateInUse& late);
    void showElection(const Found& found);
    void showPools(const Pools& pools);
    void showEmployee(const StoredEmployee& employee);
    void showInNames();
    void clearEmployee();
    void Cancella();
    void moveTo(int number);
    void startSequence();

    bool vedonome();
    void elencami(int period);
    void cmbElezioni();

    [[nodiscard]] StateBoxes boxesFor(PeriodState state);
    void openStates(PeriodState state);
    void activate(PeriodState state);
    void closeStates();
    [[nodiscard]] bool employeeInWork() const;

    void press(int period);
    void openPeriod(int period);
    void leavePeriod(int period, bool byButton);
    void closePeriod();
    bool openNextInSequence(int after);
    void completeDates(int period);
    void dateField_LostFocus(int period);
    [[nodiscard]] Result<> Addata(int period);

    [[nodiscard]] PeriodTotals hoursOnScreen() const;
    bool showUsed();
    bool hoursAreNumbers(LiquidationPanel& panel);
    void refuse(LiquidationPanel& panel, const Message& message);
    void checkAuthorised(int period);
    void checkPaid(int period);

    void sumHours();
    void showAmounts(const Amounts& amounts);
    [[nodiscard]] bool ratesInForce();

    void Meirin();
    void openIrpef(bool firstEntry);
    void irpefField_LostFocus(TextBox& field);

    [[nodiscard]] Liquidation onScreen();
    [[nodiscard]] Result<> store();
    void saved();

    Workplace desk_;
    Stage stage_ = Stage::empty;
    std::optional<Election> loaded_;  ///< the election on show
    LateInUse late_{};
    int count_ = 0;   ///< employees of it
    int number_ = 0;  ///< the one on show
    std::optional<StoredEmployee> employee_;
    int openPeriod_ = 0;
    int datesOpen_ = 0;                        ///< the period whose dates are being completed
    std::array<std::string, 2> refusedDates_;  ///< of that period, as they were last refused
    bool sequential_ = false;                  ///< one employee after another
    bool mayContinue_ = false;
    bool mayChangeGrade_ = false;  ///< not after "Salva", until the employee is called up again
    bool irpefOpen_ = false;
    PeriodState panelState_ = PeriodState::liquidation;  ///< what `Frame24` was opened for
};

}  // namespace vorbano
