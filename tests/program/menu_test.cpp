// The menu of the main window is complete: every entry is on show and does something, each opens its screen and no
// other, and every screen of the program is reached by it.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <map>
#include <set>
#include <string>
#include <vector>

#include "platform/memory_database.h"
#include "platform/operator.h"
#include "platform/scripted_desktop.h"
#include "platform/staging_tables.h"
#include "program/program.h"
#include "storage/list_files.h"
#include "storage/memory_file_system.h"
#include "storage/only_record.h"

using namespace vorbano;
using testing::IsEmpty;

namespace {

/// What each entry opens, as the office knows its menu.
const std::map<std::string, std::string>& screenOfEntry() {
    static const std::map<std::string, std::string> screens = {
        {"mnuStrao", "frmParametri"},         {"mnuTarseg", "frmTariffeSeggi"},  {"mnuCancella", "frmCancella"},
        {"mnuDipendenti", "frmElimina"},      {"mnuDate", "frmModDate"},         {"mnuVersa", "frmVersamenti"},
        {"mnuTuttoStampe", "frmTutteStampe"}, {"mnuInsert", "frmCompStraord"},   {"mnuModifica", "frmModStraord"},
        {"mnu1°TurnoN", "frmSeggi"},          {"mnu1°TurnoNmod", "frmModSeggi"}, {"mnu1°TurnoS", "frmSeggiSpeciali"},
        {"mnu1°TurnoSm", "frmModSpeciale"},   {"mnuInserto", "frmInsRend"},      {"mnuModif", "frmModRend"},
    };
    return screens;
}
/// These act on the main window itself.
const std::set<std::string> ownEntries = {"Ente", "mnuInfo", "mnuFileEsci"};

std::vector<MenuEntry*> entriesOf(Form& form) {
    std::vector<MenuEntry*> entries;
    for (Control* control : form.controls()) {
        if (control->kind() == Kind::menuEntry) entries.push_back(static_cast<MenuEntry*>(control));
    }
    return entries;
}
/// The entries that no other one stands below.
std::vector<MenuEntry*> choicesOf(Form& form) {
    std::vector<MenuEntry*> choices = entriesOf(form);
    for (const MenuEntry* entry : entriesOf(form)) std::erase(choices, entry->above());
    return choices;
}

/// Notes the screens that come up; what they say on an installation without rates is no matter here.
class OpeningDesk : public ScriptedDesktop {
  public:
    std::vector<std::string> shown;
    void show(Form& form) override {
        shown.push_back(form.name());
        ScriptedDesktop::show(form);
    }
    void tell(const Message&) override {}
    bool ask(const Message&) override { return false; }
};

class TheMenu : public testing::Test {
  protected:
    TheMenu() {
        NameRecord ente;
        ente.name = "Borgo San Vorbano";
        EXPECT_TRUE(files.makeFolder("Params").ok());
        EXPECT_TRUE(storeOnlyRecord(files, enteFile, ente).ok());
    }
    ~TheMenu() override { EXPECT_THAT(desktop.finish(), IsEmpty()); }

    MemoryFileSystem files;
    MemoryDatabase staging{stagingTables()};
    MemoryDatabase places{{}};
    RecordingPrintEngine printing;
    OpeningDesk desktop;
    Program program{files, desktop, staging, places, printing};
};

TEST_F(TheMenu, ShowsAllItsEntriesAndEachDoesSomething) {
    desktop.form("Form1", [](Form& main) {
        for (MenuEntry* entry : entriesOf(main)) EXPECT_TRUE(entry->canBeChosen()) << entry->name();
        std::set<std::string> choices;
        for (MenuEntry* entry : choicesOf(main)) {
            EXPECT_TRUE(entry->clicked.hasProcedure()) << entry->name();
            choices.insert(entry->name());
        }
        std::set<std::string> told = ownEntries;
        for (const auto& [entry, screen] : screenOfEntry()) told.insert(entry);
        EXPECT_EQ(choices, told);
    });
    program.run();
}

TEST_F(TheMenu, OpensEachScreenOfTheProgramAndComesBack) {
    std::set<std::string> reached;
    desktop.form("Form1", [&](Form& main) {
        for (MenuEntry* entry : choicesOf(main)) {
            if (ownEntries.contains(entry->name())) continue;
            const std::string screen = screenOfEntry().at(entry->name());
            SCOPED_TRACE(entry->name());
            desktop.shown.clear();
            desktop.form(screen, nullptr);
            EXPECT_EQ(Operator(main).menu(*entry), Refusal::none);
            EXPECT_EQ(desktop.shown, std::vector<std::string>{screen});
            EXPECT_EQ(desktop.front(), &main);
            reached.insert(screen);
        }
        // The fiscal code has no entry here: it is opened by the corrections of the stations.
        for (const char* entry : {"mnu1°TurnoNmod", "mnu1°TurnoSm"}) {
            SCOPED_TRACE(entry);
            desktop.form(screenOfEntry().at(entry), [&](Form& correction) {
                desktop.form("frmCodFisc", nullptr);
                EXPECT_EQ(Operator(correction).menu(*correction.find("mnuCodFisc")), Refusal::none);
                EXPECT_EQ(desktop.shown.back(), "frmCodFisc");
                EXPECT_EQ(desktop.front(), &correction);
            });
            EXPECT_EQ(Operator(main).menu(*main.find(entry)), Refusal::none);
        }
        reached.insert("frmCodFisc");
    });
    program.run();
    const std::vector<std::string> names = program.names();
    EXPECT_EQ(reached, std::set<std::string>(names.begin(), names.end()));
}

TEST_F(TheMenu, IsUsableAgainAfterThePanelOfTheEnteAndEndsTheProgram) {
    desktop.form("Form1", [](Form& main) {
        const auto choose = [&main](const char* entry) { return Operator(main).menu(*main.find(entry)); };
        EXPECT_EQ(choose("mnuInfo"), Refusal::none);
        EXPECT_EQ(choose("Ente"), Refusal::none);
        EXPECT_EQ(choose("mnuCancella"), Refusal::disabled);
        EXPECT_EQ(Operator(main).click(*main.find("Command1")), Refusal::none);
        for (MenuEntry* entry : entriesOf(main)) EXPECT_TRUE(entry->canBeChosen()) << entry->name();
        EXPECT_EQ(choose("mnuFileEsci"), Refusal::none);
        EXPECT_FALSE(main.isOpen());
    });
    program.run();
}

}  // namespace
