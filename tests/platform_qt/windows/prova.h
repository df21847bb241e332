#pragma once

#include <string>
#include <vector>

#include "platform/control.h"
#include "platform/form.h"

/// A form with a control of every kind, and a designed window for it. What happens on it stands in `log`.
struct frmProva {
    vorbano::Form form{"frmProva", "Vorbano - Prova"};
    vorbano::Label lblTitolo{form, "lblTitolo", "Liquidazione lavoro straordinario"};
    vorbano::Label Label1{form, "Label1", "Inserire la data di elezione e premere Ricerca"};
    vorbano::TextBox txtData{form, "txtData", 8};
    vorbano::ComboBox Combo1{form, "Combo1", {"Europee", "Comunali", "Referendum"}};
    vorbano::TextBox txtIndennita{form, "txtIndennità"};
    vorbano::TextBox txtTotale{form, "txtTotale"};
    vorbano::Frame Frame1{form, "Frame1", "1° periodo"};
    vorbano::TextBox txtOre{Frame1, "txtOre"};
    vorbano::TextBox txtMonte{Frame1, "txtMonte"};
    vorbano::CheckBox Check1{Frame1, "Check1", "Politiche 2022"};
    vorbano::Option Option1{Frame1, "Option1", "Autorizzate"};
    vorbano::Option Option2{Frame1, "Option2", "Liquidate"};
    vorbano::TabPanel SSTab1{form, "SSTab1"};
    vorbano::TabPage page1{SSTab1, 0};
    vorbano::TabPage page2{SSTab1, 1};
    vorbano::ListBox List1{page1, "List1"};
    vorbano::Grid MSFlexGrid1{page2, "MSFlexGrid1", {"N.", "Cognome e nome", "Ore", "Importo"}};
    vorbano::Button cmdRicerca{form, "cmdRicerca", "&Ricerca"};
    vorbano::Button cmdSalva{form, "cmdSalva", "&Salva"};
    vorbano::Button cmdEsci{form, "cmdEsci", "Esci"};
    vorbano::HiddenLabel Label9{form, "Label9"};
    vorbano::MenuEntry mnuFile{form, "mnuFile", "&File"};
    vorbano::MenuEntry mnuTurno{mnuFile, "mnu1°TurnoN", "1°Turno"};
    vorbano::MenuEntry mnuSub{mnuFile, "mnuSub", "Tariffe"};
    vorbano::MenuEntry mnuSubA{mnuSub, "mnuSubA", "Compenso"};
    vorbano::MenuEntry mnuSubB{mnuSub, "mnuSubB", "Componenti"};
    vorbano::Timer Timer1{form, "Timer1", 5000};
    std::vector<std::string> log;

    frmProva();
    /// Puts `words` into the log whenever the event fires.
    void note(vorbano::Event& event, const std::string& words);
};

/// Makes the designed window known to the windows of this program.
void addProva();
