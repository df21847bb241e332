#pragma once

#include <array>
#include <optional>
#include <string>
#include <vector>

#include "overtime/date_changes.h"
#include "overtime/date_lines.h"
#include "screens/workplace.h"

namespace vorbano {

/// "Modifica date periodi lavoro straordinario": changes the dates of an election that is stored, those of the two acts
/// and those of the periods. New periods mean new pools and limits, so the situation after the change is shown first,
/// with the employees who would stand above a limit; nothing is written before "Salva modifiche" or, for the acts, the
/// "Salva" beside them. Hours are never changed here.
///
/// Its procedures stand in files by theme: frmModDate.cpp (loading, clearing), _ricerca (the election), _atti (dates of
/// the acts), _periodi (dates of the periods), _situazione (what follows from them, storing, the summary).
struct frmModDate {
    Form form{"frmModDate", "Modifica date periodi lavoro straordinario"};

    MenuEntry mnuEsci{form, "mnuEsci", "Esci"};

    ComboBox Combo1{form, "Combo1"};
    TextBox txtDataEle{form, "txtDataEle", 10};
    Button cmdRicerca{form, "cmdRicerca", "&Ricerca"};
    Button cmdRiavvia{form, "cmdRiavvia", "A&nnulla Ricerca"};
    TextBox txtNumDip{form, "txtNumDip"};

    Frame Frame4{form, "Frame4", "Date degli atti"};
    CheckBox Check6{Frame4, "Check6", "Modifica data"};
    TextBox txtDataDecreto{Frame4, "txtDataDecreto", 10};
    CheckBox Check7{Frame4, "Check7", "Modifica data"};
    TextBox txtDataDetermina{Frame4, "txtDataDetermina", 10};
    Button cmdSalva2{Frame4, "cmdSalva2", "Salva"};

    Frame Frame2{form, "Frame2", "Date da modificare"};
    std::array<DateRow, maxPeriods> rows{{{Frame2, dateLineNames[0]},
                                          {Frame2, dateLineNames[1]},
                                          {Frame2, dateLineNames[2]},
                                          {Frame2, dateLineNames[3]},
                                          {Frame2, dateLineNames[4]}}};
    Frame Frame1{form, "Frame1", "Monte ore"};
    std::array<PoolLine, maxPeriods> lines{{{Frame1, dateLineNames[0]},
                                            {Frame1, dateLineNames[1]},
                                            {Frame1, dateLineNames[2]},
                                            {Frame1, dateLineNames[3]},
                                            {Frame1, dateLineNames[4]}}};

    Frame Frame3{form, "Frame3", "Considerazioni"};
    Label Label10{Frame3, "Label10"};  ///< the verdict
    Label Label30{Frame3, "Label30"};  ///< hours of all employees above the limits
    ListBox List1{Frame3, "List1"};    ///< who stands above them

    Button cmdModifica{form, "cmdModifica", "Calcola"};
    Button cmdSalva{form, "cmdSalva", "Salva modifiche"};
    Button cmdStampa{form, "cmdStampa", "Stampa resoconto"};

    explicit frmModDate(const Workplace& workplace);

    void cmdRicerca_Click();
    void cmdRiavvia_Click();
    void cmdSalva2_Click();
    void cmdModifica_Click();
    void cmdSalva_Click();
    void cmdStampa_Click();
    void mnuEsci_Click();

  private:
    /// The election found: what the screen goes back to, and what it calculates on.
    struct Found {
        Election election;
        int monteOre = 0;  ///< of the records at the search; the one that storing sets does not change what is shown
        ElectionSpans spans;
        std::string decreto, determina;
    };

    void hangProcedures();
    void clear();

    void showLatePeriods();
    [[nodiscard]] Result<bool> find();
    void show(const Found& found);

    void act_Click(CheckBox& box, TextBox& date);

    void row_Click(DateRow& row);
    void periodDate_Change(TextBox& field, int period);
    void periodDate_LostFocus(TextBox& field);
    [[nodiscard]] TextBox* emptyDate();
    [[nodiscard]] bool datesAreComplete();
    [[nodiscard]] bool datesAreOfTheCalendar();
    [[nodiscard]] bool isWrong(DateRow& row);

    [[nodiscard]] ElectionSpans spans() const;
    [[nodiscard]] LateInUse late() const;
    void Modate(std::size_t at, const DateChange& change, const PeriodTotals& used);
    void Super1(const DateChange& change, const std::vector<StoredEmployee>& staff);
    void judge();
    void forgetSituation();

    Workplace desk_;
    std::optional<Found> found_;
    /// The situation on show, which "Salva modifiche" stores; nothing as soon as a date differs from it.
    std::optional<DateChange> change_;
};

}  // namespace vorbano
