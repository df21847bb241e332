#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "platform/form.h"
#include "screens/workplace.h"
#include "shell/frmSplash.h"

namespace vorbano {

/// The main window: start-up, the name of the municipality, the menu that opens every working screen.
struct Form1 {
    Form form{"Form1", "Vorbano 3.9.6 - versione 2024"};
    Label Label1{form, "Label1", "Gestione dei Rendiconti Elettorali"};
    Label Label5{form, "Label5", "Versione 2024"};
    Label lblEnte{form, "lblEnte"};
    HiddenLabel Label3{form, "Label3"};  ///< the elections folder
    HiddenLabel Label4{form, "Label4"};  ///< path of the staging database

    Frame Frame1{form, "Frame1", "Inserimento Ente"};
    CheckBox Check1{Frame1, "Check1", "Modifica la denominazione"};
    ComboBox cboComune{Frame1, "cboComune"};
    TextBox txtEnte{Frame1, "txtEnte", 60};
    Button cmdSalva{Frame1, "cmdSalva", "Salva modifica"};
    Button Command1{Frame1, "Command1", "Esci"};
    Button cmdApplica{form, "cmdApplica", "Applica modifiche"};

    MenuEntry mnuFile{form, "mnuFile", "&File"};
    MenuEntry mnuTariffe{mnuFile, "mnuTariffe", "Tariffe"};
    MenuEntry mnuStrao{mnuTariffe, "mnuStrao", "Compenso Straordinario"};
    MenuEntry mnuTarseg{mnuTariffe, "mnuTarseg", "Componenti Seggi"};
    MenuEntry Ente{mnuFile, "Ente", "Inserimento Ente"};
    MenuEntry mnuInfo{mnuFile, "mnuInfo", "Versione"};
    MenuEntry mnuCancella{mnuFile, "mnuCancella", "Cancella Elezione"};
    MenuEntry mnuDipendenti{mnuFile, "mnuDipendenti", "Cancella dipendenti"};
    MenuEntry mnuDate{mnuFile, "mnuDate", "Modifica date periodi"};
    MenuEntry mnuVersa{mnuFile, "mnuVersa", "Contributi e Ritenute"};
    MenuEntry mnuTuttoStampe{mnuFile, "mnuTuttoStampe", "Stampe"};
    MenuEntry mnuFileEsci{mnuFile, "mnuFileEsci", "Esci"};
    MenuEntry mnuCompensoStraordinario{form, "mnuCompensoStraordinario", "&Straordinario"};
    MenuEntry mnuInsert{mnuCompensoStraordinario, "mnuInsert", "Autorizzazione"};
    MenuEntry mnuModifica{mnuCompensoStraordinario, "mnuModifica", "Liquidazione"};
    MenuEntry mnuSeggi1{form, "mnuSeggi1", "S&eggi"};
    MenuEntry mnuNormali{mnuSeggi1, "mnuNormali", "Normali"};
    MenuEntry mnuNormaliIns{mnuNormali, "mnuNormaliIns", "Inserimento"};
    MenuEntry mnu1TurnoN{mnuNormaliIns, "mnu1°TurnoN", "1°Turno"};
    MenuEntry mnuNormaliMod{mnuNormali, "mnuNormaliMod", "Modifica"};
    MenuEntry mnu1TurnoNmod{mnuNormaliMod, "mnu1°TurnoNmod", "1°Turno"};
    MenuEntry mnuSpeciali{mnuSeggi1, "mnuSpeciali", "Speciali"};
    MenuEntry mnuSpecialiIns{mnuSpeciali, "mnuSpecialiIns", "Inserimento"};
    MenuEntry mnu1TurnoS{mnuSpecialiIns, "mnu1°TurnoS", "1°Turno"};
    MenuEntry mnuSpecialiMod{mnuSpeciali, "mnuSpecialiMod", "Modifica"};
    MenuEntry mnu1TurnoSm{mnuSpecialiMod, "mnu1°TurnoSm", "1°Turno"};
    MenuEntry mnuRendicont{form, "mnuRendicont", "&Rendiconto"};
    MenuEntry mnuInserto{mnuRendicont, "mnuInserto", "Inserimento"};
    MenuEntry mnuModif{mnuRendicont, "mnuModif", "Modifica"};

    explicit Form1(const Workplace& workplace);

    /// Start-up, before the window is on show.
    void Form_Load();
    /// Coming to the front, also on return from any working screen.
    void Form_Activate();

    void Ente_Click();
    void Frame1_Click();
    void Check1_Click();
    void cboComune_Click();
    void cmdSalva_Click();
    void cmdApplica_Click();
    void Command1_Click();
    void mnuInfo_Click();
    void mnuFileEsci_Click();

  private:
    struct Way {
        MenuEntry& entry;
        std::string_view screen;
    };

    void hangMenu();
    std::string Percorso();
    void lista();
    void emptyTables();
    /// The name in Ente.dat, empty when none was entered yet; nothing when the file cannot be read, which is told.
    [[nodiscard]] std::optional<std::string> storedEnte();
    void showEnte(const std::string& name);
    void loadPanel(bool withMessage);
    void enableMenus(bool enabled);

    Workplace desk_;
    frmSplash splash_;
};

}  // namespace vorbano
