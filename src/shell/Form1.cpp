#include "shell/Form1.h"

#include <array>

#include "platform/failure_words.h"
#include "screens/well_done.h"
#include "storage/list_files.h"
#include "storage/only_record.h"

namespace vorbano {

namespace {

/// The twelve bindings, `Data1` to `Data12`, in their order.
constexpr std::array<std::string_view, 12> boundTables = {"Tabella5", "Tabella8",  "Tabella1",  "Tabella2",
                                                          "Tabella3", "Tabella4",  "Tabella6",  "Tabella7",
                                                          "Tabella9", "Tabella10", "Tabella11", "tabella12"};

}  // namespace

Form1::Form1(const Workplace& workplace) : desk_(workplace) {
    form.activated.calls(this, &Form1::Form_Activate);
    Frame1.pressed.calls(this, &Form1::Frame1_Click);
    Check1.clicked.calls(this, &Form1::Check1_Click);
    cboComune.clicked.calls(this, &Form1::cboComune_Click);
    cmdSalva.clicked.calls(this, &Form1::cmdSalva_Click);
    cmdApplica.clicked.calls(this, &Form1::cmdApplica_Click);
    Command1.clicked.calls(this, &Form1::Command1_Click);
    Ente.clicked.calls(this, &Form1::Ente_Click);
    mnuInfo.clicked.calls(this, &Form1::mnuInfo_Click);
    mnuFileEsci.clicked.calls(this, &Form1::mnuFileEsci_Click);
    hangMenu();
    Frame1.visible = false;
    cmdApplica.visible = false;
    cboComune.visible = false;
    cmdSalva.enabled = false;
}

/// One row an entry: the screen that it opens.
void Form1::hangMenu() {
    const std::array ways = {
        Way{mnuStrao, "frmParametri"},         Way{mnuTarseg, "frmTariffeSeggi"}, Way{mnuCancella, "frmCancella"},
        Way{mnuDipendenti, "frmElimina"},      Way{mnuDate, "frmModDate"},        Way{mnuVersa, "frmVersamenti"},
        Way{mnuTuttoStampe, "frmTutteStampe"}, Way{mnuInsert, "frmCompStraord"},  Way{mnuModifica, "frmModStraord"},
        Way{mnu1TurnoN, "frmSeggi"},           Way{mnu1TurnoNmod, "frmModSeggi"}, Way{mnu1TurnoS, "frmSeggiSpeciali"},
        Way{mnu1TurnoSm, "frmModSpeciale"},    Way{mnuInserto, "frmInsRend"},     Way{mnuModif, "frmModRend"},
    };
    for (const Way& way : ways) way.entry.clicked.calls([this, screen = way.screen] { desk_.screens.open(screen); });
}

void Form1::Form_Load() {
    Percorso();
    Label3.text = std::string("Elezioni");
    if (const auto ready = desk_.staging.check(); !ready) {
        desk_.desktop.tell(
            {inItalian(ready.error()) + " I documenti non possono essere stampati.", "Vorbano", Icon::error});
    }
    desk_.desktop.showBeside(splash_.form);
    // An existing folder is no failure, and a failing one shows itself at the first record.
    desk_.files.makeFolder("").ignore();
    desk_.files.makeFolder("Params").ignore();
}

void Form1::Form_Activate() {
    Frame1.visible = false;
    cmdApplica.visible = false;
    if (const auto name = storedEnte(); name && name->empty()) {
        desk_.desktop.tell({"Inserire denominazione Ente", "Vorbano", Icon::information});
        Frame1.visible = true;
        txtEnte.locked = false;
        // The clerk finds the list of municipalities ready at once; one message is enough.
        loadPanel(false);
    } else if (name) {
        showEnte(*name);
    }
    emptyTables();
    splash_.form.close();
}

std::string Form1::Percorso() {
    Label4.text = std::string("Stampe/dbStampa.mdb");
    return Label4.text();
}

/// Fills `cboComune` with the municipalities of the installation, fields as they are stored.
void Form1::lista() {
    cboComune.clear();
    const auto file = RecordFile<NameRecord>::open(desk_.files, comuniFile);
    if (!file) return;
    Lines lines;
    file->scan([&](int, const NameRecord& record) { lines.push_back(record.name.whole()); }).ignore();
    cboComune.items = std::move(lines);
}

/// A document can never rest on rows of before the last return to this window.
void Form1::emptyTables() {
    // A staging database that cannot be used was told at the start.
    for (const std::string_view table : boundTables) desk_.staging.removeAll(table).ignore();
}

std::optional<std::string> Form1::storedEnte() {
    const auto record = onlyRecord<NameRecord>(desk_.files, enteFile);
    if (record) return *record ? (*record)->name.trimmed() : std::string();
    wellDone(record.error(), desk_.desktop);
    return std::nullopt;
}

void Form1::showEnte(const std::string& name) { lblEnte.text = "Comune di " + name; }

void Form1::enableMenus(bool enabled) {
    for (MenuEntry* menu : {&mnuFile, &mnuCompensoStraordinario, &mnuSeggi1, &mnuRendicont}) menu->enabled = enabled;
}

void Form1::Ente_Click() {
    enableMenus(false);
    Frame1.visible = true;
    txtEnte.locked = true;
    cmdSalva.enabled = false;
    loadPanel(true);
}

void Form1::Frame1_Click() { loadPanel(true); }

void Form1::loadPanel(bool withMessage) {
    lista();
    Check1.checked = false;
    const auto name = storedEnte();
    if (!name) return;
    if (!name->empty()) {
        txtEnte.text = *name;
        return;
    }
    if (withMessage) desk_.desktop.tell({"Nome Ente non ancora inserito", "Inserimento Ente", Icon::information});
    Check1.checked = true;
}

void Form1::Check1_Click() {
    cmdSalva.enabled = Check1.checked();
    cboComune.visible = Check1.checked();
    if (Check1.checked()) lista();
}

void Form1::cboComune_Click() { txtEnte.text = std::string(trim(cboComune.text())); }

void Form1::cmdSalva_Click() {
    if (trim(txtEnte.text()).empty()) {
        desk_.desktop.tell({"Inserire denominazione Ente", "Inserimento Ente", Icon::warning});
        form.focus(txtEnte);
        return;
    }
    NameRecord record;
    record.name = txtEnte.text();
    if (!wellDone(storeOnlyRecord(desk_.files, enteFile, record), desk_.desktop)) return;
    desk_.desktop.tell({"Operazione terminata", "Inserimento Ente", Icon::information});
    Frame1.visible = false;
    cmdApplica.visible = true;
}

void Form1::cmdApplica_Click() {
    if (const auto name = storedEnte()) showEnte(*name);
    cmdApplica.visible = false;
    enableMenus(true);
}

void Form1::Command1_Click() {
    Frame1.visible = false;
    enableMenus(true);
}

void Form1::mnuInfo_Click() { desk_.desktop.showBeside(splash_.form); }

void Form1::mnuFileEsci_Click() { form.close(); }

}  // namespace vorbano
