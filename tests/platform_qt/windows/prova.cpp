#include "prova.h"

#include "platform/qt/form_table.h"
#include "ui_frmProva.h"

frmProva::frmProva() {
    txtMonte.locked = true;
    List1.items = vorbano::Lines{"Europee 09-06-24", "Comunali 12-06-22", "Referendum 20-09-20"};
    MSFlexGrid1.setRows({{"1", "Bianchi Anna", "12", "170,05"}, {"2", "Rossi Carlo", "7", "99,20"}});
    note(txtData.change, "txtData changed");
    note(txtData.gotFocus, "txtData entered");
    note(txtData.lostFocus, "txtData left");
    note(txtOre.change, "txtOre changed");
    note(Combo1.clicked, "Combo1 clicked");
    note(Check1.clicked, "Check1 clicked");
    note(Option1.clicked, "Option1 clicked");
    note(Option2.clicked, "Option2 clicked");
    note(List1.clicked, "List1 clicked");
    note(SSTab1.turned, "SSTab1 turned");
    note(cmdRicerca.clicked, "cmdRicerca clicked");
    note(cmdSalva.clicked, "cmdSalva clicked");
    note(mnuTurno.clicked, "mnuTurno clicked");
    note(mnuSubA.clicked, "mnuSubA clicked");
    note(Timer1.fired, "Timer1 fired");
    note(Frame1.pressed, "Frame1 pressed");
    note(Frame1.moved, "Frame1 moved");
    note(form.activated, "activated");
    note(form.closing, "closing");
    MSFlexGrid1.picked.calls([this] {
        log.push_back("picked " + std::to_string(MSFlexGrid1.row) + " " + std::to_string(MSFlexGrid1.column));
    });
}

void frmProva::note(vorbano::Event& event, const std::string& words) {
    event.calls([this, words] { log.push_back(words); });
}

void addProva() {
    vorbano::addForm("frmProva", [](QWidget& content) { Ui::frmProva().setupUi(&content); });
}
