#pragma once

// Small forms to play scenarios on. They have no drawn window; the plain generated one does.

#include "platform/form.h"

namespace vorbano::test {

/// One control of every kind. The tests hang procedures on them.
struct frmProva {
    Form form{"frmProva", "Modulo  di prova"};
    MenuEntry mnuFile{form, "mnuFile", "&File"};
    MenuEntry mnuTurno{mnuFile, "mnu1°Turno", "1°Turno"};
    TextBox txtNome{form, "txtNome", 10};
    TextBox txtIndennita{form, "txtIndennità"};
    Button cmdSalva{form, "cmdSalva", "Salva"};
    CheckBox Check1{form, "Check1", "Seconda casella"};
    Frame Frame1{form, "Frame1", "Periodo"};
    Option Option1{Frame1, "Option1", "Primo"};
    Option Option2{Frame1, "Option2", "Secondo"};
    Frame Frame2{form, "Frame2", "Pannello"};
    ComboBox Combo1{form, "Combo1", {"Comunali   ", "Europee   ", "Politiche   "}};
    ListBox List1{form, "List1"};
    Grid MSFlexGrid1{form, "MSFlexGrid1", {"Nome", "Ore", "Importo"}};
    TabPanel SSTab1{form, "SSTab1"};
    TabPage page0{SSTab1, 0};
    TabPage page1{SSTab1, 1};
    TextBox txtPrima{page0, "txtPrima"};
    TextBox txtSeconda{page1, "txtSeconda"};
    Label Label1{form, "Label1", "Totale"};
    HiddenLabel Label28{form, "Label28", "N"};

    frmProva() {
        List1.items = Lines{"Rossi", "Bianchi"};
        MSFlexGrid1.setRows({{"Rossi", "20", "170,05"}, {"Bianchi", "10", "85,00"}});
        // The generated window has no caption on the pages and frames, but the pointer must find them.
        for (Frame* frame : {&Frame1, &Frame2}) frame->pressed.calls([] {});
    }
};

struct frmSopra {
    Form form{"frmSopra", "Sopra"};
    TextBox txtNota{form, "txtNota"};
    Button cmdChiudi{form, "cmdChiudi", "Chiudi"};
    Button cmdAvanti{form, "cmdAvanti", "Avanti"};
    frmSopra() {
        cmdChiudi.clicked.calls([this] { form.close(); });
    }
};

struct frmMarca {
    Form form{"frmMarca", "Vorbano"};
    Frame Frame9{form, "Frame9", "Pannello"};
    Label lblVersion{form, "lblVersion", "Versione 3.9.6\n2024"};
    frmMarca() {
        Frame9.pressed.calls([this] { form.close(); });
    }
};

}  // namespace vorbano::test
