#pragma once

#include <array>
#include <cstdint>
#include <optional>

#include "overtime/period_panel.h"
#include "records/tariff_records.h"
#include "screens/well_done.h"
#include "screens/workplace.h"
#include "storage/election.h"
#include "storage/list_files.h"
#include "storage/only_record.h"
#include "storage/record_file.h"

namespace vorbano {

/// "Inserimento ed autorizzazione del Compenso Lavoro Straordinario": creates the overtime of an election and enters
/// it, employee by employee. A strict sequence of panels, in which each step unlocks the next: election -> acts
/// (`Frame9`) -> periods (`Frame20`) -> name -> hours by period -> total -> rates -> save -> next. An election can be
/// left at any employee and taken up again.
///
/// Its procedures stand in files by theme: frmCompStraord.cpp (loading, menu), _elezione (type, date, number), _periodi
/// (acts and periods), _ore (name, hours, rates), _salva (storing), _nomi (the list of names).
struct frmCompStraord {
    Form form{"frmCompStraord", "Inserimento ed autorizzazione del Compenso Lavoro Straordinario"};

    MenuEntry mnuModifica{form, "mnuModifica", "Varia"};
    MenuEntry mnuDate{mnuModifica, "mnuDate", "Date periodi"};
    MenuEntry mnuNome{mnuModifica, "mnuNome", "Nominativo - Ore - Tariffe"};
    MenuEntry mnuNumero{mnuModifica, "mnuNumero", "Numero Dipendenti"};
    MenuEntry mnuDipendenti{mnuModifica, "mnuDipendenti", "Dipendenti inseriti"};
    MenuEntry mnuEsci{form, "mnuEsci", "Esci"};

    ComboBox Combo1{form, "Combo1"};
    TextBox txtDataEle{form, "txtDataEle", 10};
    TextBox txtNumDip{form, "txtNumDip", 5};
    Button cmdAttiva{form, "cmdAttiva", "Attiva"};

    TextBox txtMonteOre{form, "txtMonteOre"};  ///< hours per employee and month
    TextBox txtMoGlob{form, "txtMoGlob"};      ///< monthly pool of the staff
    TextBox txtGlobo{form, "txtGlobo"};        ///< sum of the pools of the periods
    TextBox txtMoUtil{form, "txtMoUtil"};      ///< hours used in the election
    TextBox txtRestante{form, "txtRestante"};

    Frame Frame9{form, "Frame9", "Atti di autorizzazione"};
    TextBox txtDataDecreto{Frame9, "txtDataDecreto", 10};
    TextBox txtDataDetermina{Frame9, "txtDataDetermina", 10};
    Button cmdConferma{Frame9, "cmdConferma", "Conferma"};
    Button cmdAnnulla{Frame9, "cmdAnnulla", "Annulla"};
    Label Label91{form, "Label91", "Data decreto di pubblicazione"};
    Label Label93{form, "Label93"};  ///< decree, as accepted
    Label Label92{form, "Label92", "Data determina di autorizzazione"};
    Label Label94{form, "Label94"};  ///< determination, as accepted

    Frame Frame20{form, "Frame20", "Periodi"};
    TextBox txtUnodal{Frame20, "txtUnodal", 10};
    TextBox txtUnoal{Frame20, "txtUnoal", 10};
    CheckBox Check4{Frame20, "Check4", "Annulla 1° periodo"};
    TextBox txtDuedal{Frame20, "txtDuedal", 10};
    TextBox txtDueal{Frame20, "txtDueal", 10};
    CheckBox Check5{Frame20, "Check5", "Annulla 2°  periodo"};
    TextBox txtTredal{Frame20, "txtTredal", 10};
    TextBox txtTreal{Frame20, "txtTreal", 10};
    CheckBox Check6{Frame20, "Check6", "Annulla 3° periodo"};
    Button Command1{Frame20, "Command1", "Conferma"};
    Button cmdDisattiva{Frame20, "cmdDisattiva", "Annulla inserimento"};

    TextBox txtSonoDip{form, "txtSonoDip"};
    CheckBox Check3{form, "Check3", "Nuovo dipendente"};
    ComboBox cboDipendenti{form, "cboDipendenti"};
    TextBox txtNameDip{form, "txtNameDip", 60};

    std::array<PeriodPanel, 3> periods{{{form, periodNames[0]}, {form, periodNames[1]}, {form, periodNames[2]}}};
    /// The fourth and fifth period. Nothing shows them here: from 2014 on an election has three.
    Frame Frame13{form, "Frame13", "4° periodo"};
    Frame Frame18{form, "Frame18", "5° periodo"};

    Button CmdRiepilogo{form, "CmdRiepilogo", "Calcola"};
    TextBox txtTotAut{form, "txtTotAut"};
    CheckBox Check1{form, "Check1", "Segretario Comunale"};
    CheckBox Check2{form, "Check2", "Dipendenti"};
    Button cmdTariffe{form, "cmdTariffe", "Tariffe"};

    Frame Frame3{form, "Frame3"};
    Label lblDipendente{Frame3, "lblDipendente"};
    Grid MSFlexGrid1{Frame3, "MSFlexGrid1", {"Categorie", "Feriali", "Festive", "Fe/No"}};
    HiddenLabel Text1{form, "Text1"};  ///< the grade picked in the grid

    Frame Frame10{form, "Frame10", "Compenso orario spettante"};
    TextBox txtCompDf{Frame10, "txtCompDf", 12};
    TextBox txtCompNof{Frame10, "txtCompNof", 12};
    TextBox txtCompNef{Frame10, "txtCompNef", 12};
    Label lblCat{Frame10, "lblCat"};
    Label lblCat2{Frame10, "lblCat2"};
    HiddenLabel Label37{form, "Label37"};  ///< the four percentages in force
    HiddenLabel Label38{form, "Label38"};
    HiddenLabel Label43{form, "Label43"};
    HiddenLabel Label47{form, "Label47"};

    Button cmdCalcola{form, "cmdCalcola", "Calcola"};
    Button cmdSalva{form, "cmdSalva", "Salva"};
    Button cmdAggiungi{form, "cmdAggiungi", "Continua"};
    Button cmdStampe{form, "cmdStampe", "Stampe"};
    Label Label64{form, "Label64"};  ///< "Calcolo Terminato" once the last employee is stored

    Frame Frame7{form, "Frame7", "Dipendenti inseriti"};
    Label lblSelezionare{Frame7, "lblSelezionare", "Selezionare il nominativo se lo si deve modificare"};
    ListBox List1{Frame7, "List1"};
    Button cmdElenco{Frame7, "cmdElenco", "Chiudi elenco"};
    Frame Frame16{form, "Frame16", "Modifica nominativo"};
    TextBox txtNominativo{Frame16, "txtNominativo", 60};
    Button Command2{Frame16, "Command2", "Salva"};
    Button Command3{Frame16, "Command3", "Annulla"};

    HiddenLabel Label58{form, "Label58"};  ///< "D" while the dates are being varied
    HiddenLabel Label67{form, "Label67"};  ///< "N" while the number of employees is being varied
    HiddenLabel Label88{form, "Label88"};  ///< record of Dipend.dat whose name is being edited

    explicit frmCompStraord(const Workplace& workplace);

    void Form_Activate();
    void mnuDate_Click();
    void mnuNome_Click();
    void mnuNumero_Click();
    void mnuEsci_Click();
    void cmdStampe_Click();

    // Type, date and number of employees.
    void txtNumDip_LostFocus();
    void cmdAttiva_Click();
    void txtMoUtil_Change();
    void txtGlobo_Change();

    // The dates of the acts and of the periods.
    void cmdConferma_Click();
    void cmdAnnulla_Click();
    void Command1_Click();
    void cmdDisattiva_Click();

    // The employee: name, hours, rates.
    void Check3_Click();
    void cboDipendenti_Click();
    void CmdRiepilogo_Click();
    void Check1_Click();
    void Check2_Click();
    void cmdTariffe_Click();
    void MSFlexGrid1_SelChange();
    void cmdCalcola_Click();

    // Storing.
    void cmdSalva_Click();
    void cmdAggiungi_Click();

    // The list of names.
    void mnuDipendenti_Click();
    void List1_Click();
    void cmdElenco_Click();
    void Command2_Click();
    void Command3_Click();

  private:
    /// A row of `Frame20`: the two dates of a period and the box that excludes it.
    struct PeriodDates {
        TextBox& dal;
        TextBox& al;
        CheckBox& annulla;
        int ordinal;
    };
    std::array<PeriodDates, 3> periodDates();

    void hangProcedures();
    void hangPeriodDates(const PeriodDates& row);
    void hangHours(int period);
    void lockAll();

    /// What is stored of the election; `count` 0 when it is new, and then no records.
    struct StoredElection {
        int count = 0;
        EmployeeRecord first;
        EmployeeRecord last;
    };
    [[nodiscard]] Election election() const;
    [[nodiscard]] Result<RecordFile<EmployeeRecord>> openEmployees();
    /// Leaves no handle open. A folder that is not there is no failure: it means a new election.
    [[nodiscard]] Result<StoredElection> readElection();
    /// Record 1 of a file that holds one record; nothing when there is none or, which is told, the disk fails.
    template <class Record>
    [[nodiscard]] std::optional<Record> oneRecord(std::string_view path) const;
    [[nodiscard]] int numDip() const;

    bool electionIsComplete();
    void newElection();
    bool showActs();
    bool resumeElection(const StoredElection& stored);
    bool varyNumber(const StoredElection& stored);
    bool storeNewNumber(const Message& question, int count);
    void activated(int count);
    void openName();
    void returnToName();
    void lockName();
    void closeRates();
    void clearEntry();

    void periodDate_Change(TextBox& field, int ordinal);
    void periodDate_LostFocus(TextBox& field);
    void checkFirstDate();
    void excludePeriod(const PeriodDates& row);
    bool periodsAreComplete();
    void copyPeriods();
    bool Addata();
    void closePeriods();

    void computeFigures();
    void openFirstPeriod();
    bool openPeriodFrom(std::size_t first);
    void hourField_GotFocus();
    void checkHours(int period);
    void showTariffs(bool visible);
    [[nodiscard]] std::vector<Lines> tariffLines() const;
    void openRates(bool open);

    void fillRecord(EmployeeRecord& record) const;
    [[nodiscard]] Result<> storeEmployee();
    [[nodiscard]] Result<> storeName();
    [[nodiscard]] Result<> SalvaMeirin();
    [[nodiscard]] Result<> InsDate();
    [[nodiscard]] Result<> adding();
    void Dipendenti();
    void closeEntry();

    Workplace desk_;
    bool cameUp_ = false;
    bool entryOpen_ = false;       ///< an employee is being entered and not stored yet
    int storedNumber_ = 0;         ///< its record, once the storing was begun
    bool correctingName_ = false;  ///< after "Nominativo - Ore - Tariffe"
    bool mayContinue_ = false;     ///< "Continua" could be pressed before the dates were varied
    std::int64_t latePools_ = 0;   ///< pools of a fourth and fifth period, of an election before 2014, hours
};

template <class Record>
std::optional<Record> frmCompStraord::oneRecord(std::string_view path) const {
    const auto record = onlyRecord<Record>(desk_.files, path);
    if (record) return *record;
    wellDone(record.error(), desk_.desktop);
    return std::nullopt;
}

}  // namespace vorbano
