#pragma once

#include <array>
#include <optional>
#include <string>

#include "maintenance/deletion.h"
#include "platform/form.h"
#include "screens/workplace.h"

namespace vorbano {

/// "Cancella Elezione": removes the files of an election for good, by groups or all of them. The boxes belong to the
/// election that was searched for last; while one of them is ticked no other can be chosen.
struct frmCancella {
    Form form{"frmCancella", "Vorbano - Cancellazione elezioni"};
    MenuEntry mnuEsci{form, "mnuEsci", "Esci"};

    ComboBox Combo1{form, "Combo1"};  ///< types, as the folders tell them
    ComboBox Combo2{form, "Combo2"};  ///< dates of the type
    Button cmdRicerca{form, "cmdRicerca", "Ricerca"};
    Button cmdAnnulla{form, "cmdAnnulla", "Annulla Ricerca"};

    Label lblElezione{form, "lblElezione"};  ///< the election at stake
    CheckBox Check1{form, "Check1", "Spunta tutte le opzioni"};
    /// The misprint is the office's.
    Label Label1{form, "Label1", "Selezionando questa opzione vengono elininati tutti i file dell'elezione ricercata"};
    CheckBox Check2{form, "Check2", "Straordinario - Autorizzazione e Liquidazione"};
    CheckBox Check3{form, "Check3", "Conguaglio straordinario"};
    CheckBox Check4{form, "Check4", "Seggi normali 1° turno"};
    CheckBox Check5{form, "Check5", "Seggi normali ballottaggio"};
    CheckBox Check6{form, "Check6", "Seggi speciali 1° turno"};
    CheckBox Check7{form, "Check7", "Seggi speciali ballottaggio"};
    CheckBox Check8{form, "Check8", "Allegato A - contributi e ritenute"};
    CheckBox Check9{form, "Check9", "Rendiconto"};
    Label Label2{form, "Label2", "0"};   ///< how many groups are ticked
    Label lblAvviso{form, "lblAvviso"};  ///< what a click on `cmdEsegui` will remove
    Button cmdEsegui{form, "cmdEsegui", "Esegui cancellazione"};

    explicit frmCancella(const Workplace& workplace);

    void mnuEsci_Click();
    void Combo1_Click();
    void Combo2_Click();
    void cmdRicerca_Click();
    void cmdAnnulla_Click();
    void Check1_Click();
    void Label2_Change();
    void cmdEsegui_Click();

  private:
    void groupTicked();
    [[nodiscard]] int tickedGroups() const;
    /// No election is at stake any more: the boxes are empty and closed.
    void forget();
    void listDates();
    void followState();
    [[nodiscard]] std::string warning() const;

    Workplace desk_;
    /// In the order of `deletionGroups`.
    std::array<CheckBox*, deletionGroupCount> boxes_{&Check2, &Check3, &Check4, &Check5,
                                                     &Check6, &Check7, &Check8, &Check9};
    std::optional<Election> searched_;
    bool done_ = false;  ///< what is ticked has been removed
};

}  // namespace vorbano
