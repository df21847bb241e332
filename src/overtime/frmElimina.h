#pragma once

#include <array>
#include <string>
#include <vector>

#include "overtime/situation_panel.h"
#include "overtime/staff.h"
#include "platform/form.h"
#include "screens/workplace.h"
#include "storage/election.h"

namespace vorbano {

/// "Cancellazione Dipendenti NON autorizzati": takes out of an election an employee whose overtime was not authorised.
/// A smaller staff has smaller pools, so the situation after the removal is shown first, and a removal that would leave
/// a period above its pool is refused. The road: search -> name -> situation -> "Cancella dipendente"; then the screen
/// is as at the start.
struct frmElimina {
    Form form{"frmElimina", "Vorbano       Cancellazione Dipendenti NON autorizzati"};

    MenuEntry mnuEsci{form, "mnuEsci", "Esci"};

    ComboBox Combo1{form, "Combo1"};
    TextBox txtDataEle{form, "txtDataEle", 10};
    Button cmdRicerca{form, "cmdRicerca", "&Ricerca"};
    Button cmdRiavvia{form, "cmdRiavvia", "A&nnulla Ricerca"};

    ListBox List1{form, "List1"};  ///< names in the order of the records, so a line tells the record
    TextBox txtDipendente{form, "txtDipendente"};
    Label lblDipendente{form, "lblDipendente"};  ///< what tells employees of the same name apart
    HiddenLabel Label9{form, "Label9"};          ///< record number of the chosen employee, empty when there is none

    Frame Frame1{form, "Frame1", "Situazione Elezione prima della cancellazione"};
    TextBox txtNumDip{Frame1, "txtNumDip"};
    std::array<Label, maxPeriods> periodi{{{Frame1, "lblPeriodo1"},
                                           {Frame1, "lblPeriodo2"},
                                           {Frame1, "lblPeriodo3"},
                                           {Frame1, "lblPeriodo4"},
                                           {Frame1, "lblPeriodo5"}}};
    SituationLines prima{{{Frame1, "1"}, {Frame1, "2"}, {Frame1, "3"}, {Frame1, "4"}, {Frame1, "5"}}};

    Frame Frame2{form, "Frame2", "Situazione Elezione dopo la cancellazione"};
    TextBox txtNumDipD{Frame2, "txtNumDipD"};
    SituationLines dopo{{{Frame2, "D1"}, {Frame2, "D2"}, {Frame2, "D3"}, {Frame2, "D4"}, {Frame2, "D5"}}};

    Frame Frame3{form, "Frame3", "Considerazioni"};
    Label Label10{Frame3, "Label10"};  ///< the verdict
    Button cmdElimina{form, "cmdElimina", "&Cancella dipendente"};

    explicit frmElimina(const Workplace& workplace);

    void txtDataEle_LostFocus();
    void cmdRicerca_Click();
    void cmdRiavvia_Click();
    void List1_Click();
    void txtDipendente_Change();
    void cmdElimina_Click();
    void mnuEsci_Click();

  private:
    /// What the search finds of the election.
    struct FoundElection {
        std::vector<StoredEmployee> staff;  ///< empty: there is no such election
        MeirinRecord limits;
        PeriodTotals used{};
    };
    [[nodiscard]] Election election() const;
    /// Periods four and five of the election named in the fields; none while its date is no date.
    [[nodiscard]] LateInUse late() const;
    [[nodiscard]] Result<FoundElection> readElection() const;
    void show(FoundElection found);
    void showLatePeriods();
    void unlockSearch(bool unlocked);
    void clearSituation();
    [[nodiscard]] ElectionFigures Monte() const;

    Workplace desk_;
    std::vector<StoredEmployee> staff_;  ///< as found by the search, in order
    ElectionFigures figures_;            ///< after the removal of the chosen employee
};

}  // namespace vorbano
