#pragma once

// The main window on a desk of its own. What it does at its start is written down in order.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <memory>
#include <set>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

#include "platform/memory_database.h"
#include "platform/operator.h"
#include "platform/scripted_desktop.h"
#include "platform/staging_tables.h"
#include "shell/Form1.h"
#include "storage/memory_file_system.h"
#include "support/bytes.h"
#include "support/places.h"

namespace vorbano::test {

using Diary = std::vector<std::string>;

class DiaryDisk : public MemoryFileSystem {
  public:
    explicit DiaryDisk(Diary& diary) : diary_(diary) {}
    Result<> makeFolder(std::string_view path) override {
        diary_.push_back("folder \"" + std::string(path) + "\"");
        return MemoryFileSystem::makeFolder(path);
    }

  private:
    Diary& diary_;
};

class DiaryTables : public MemoryDatabase {
  public:
    explicit DiaryTables(Diary& diary) : MemoryDatabase(stagingTables()), diary_(diary) {}
    Result<> check() override {
        diary_.emplace_back("tables");
        return state;
    }
    Result<> state;

  private:
    Diary& diary_;
};

class DiaryDesk : public ScriptedDesktop {
  public:
    explicit DiaryDesk(Diary& diary) : diary_(diary) {}
    Form* beside = nullptr;
    void showBeside(Form& form) override {
        diary_.push_back("beside " + form.name());
        beside = &form;
        ScriptedDesktop::showBeside(form);
    }
    void tell(const Message& message) override {
        diary_.push_back("box " + message.text);
        ScriptedDesktop::tell(message);
    }

  private:
    Diary& diary_;
};

/// Opens an empty form under the name of each screen that the program is said to have.
class EmptyScreens : public Screens {
  public:
    explicit EmptyScreens(Desktop& desktop) : desktop_(desktop) {}
    std::set<std::string, std::less<>> names = {
        "frmParametri",  "frmTariffeSeggi",  "frmCancella",    "frmElimina",    "frmModDate",
        "frmVersamenti", "frmTutteStampe",   "frmCompStraord", "frmModStraord", "frmSeggi",
        "frmModSeggi",   "frmSeggiSpeciali", "frmModSpeciale", "frmInsRend",    "frmModRend"};
    [[nodiscard]] bool has(std::string_view name) const override { return names.contains(name); }
    void open(std::string_view name) override {
        Form form{std::string(name), ""};
        desktop_.show(form);
    }

  private:
    Desktop& desktop_;
};

class ShellTest : public ::testing::Test {
  protected:
    ~ShellTest() override {
        if (screen) desktop.shut(screen->form);
        EXPECT_THAT(desktop.finish(), ::testing::IsEmpty());
    }

    void make(FileSystem& disk) {
        if (screen) desktop.shut(screen->form);
        screen = std::make_unique<Form1>(Workplace{disk, desktop, tables, printing, screens, places});
    }
    void startOn(FileSystem& disk) {
        make(disk);
        screen->Form_Load();
        desktop.open(screen->form);
    }
    void start() { startOn(files); }
    void firstStart() {
        desktop.box("Vorbano", "Inserire denominazione Ente");
        start();
    }
    void layEnte(const std::string& bytes = padded("Pratofiorito", 60)) {
        ASSERT_TRUE(lay(files, "Params/Ente.dat", bytes));
    }
    void layComuni() {
        ASSERT_TRUE(
            lay(files, "Params/Comuni.dat", padded("ABETONE", 60) + padded("FORL\xCC", 60) + padded("ZOCCA", 60)));
    }
    std::string ente() { return contentOf(files, "Params/Ente.dat"); }

    Control& control(std::string_view name) {
        Control* found = screen->form.find(name);
        if (found == nullptr) throw std::invalid_argument("no control " + std::string(name));
        return *found;
    }
    std::string text(std::string_view name) { return control(name).shownText(); }
    bool visible(std::string_view name) { return control(name).isVisible(); }
    bool operable(std::string_view name) {
        Control& found = control(name);
        if (found.kind() == Kind::menuEntry) return dynamic_cast<MenuEntry&>(found).canBeChosen();
        return found.isOperable();
    }
    void expectMenus(bool enabled) {
        for (const char* menu : {"mnuFile", "mnuCompensoStraordinario", "mnuSeggi1", "mnuRendicont"}) {
            EXPECT_EQ(operable(menu), enabled) << menu;
        }
    }
    std::string focused() {
        const Control* found = screen->form.focused();
        return found == nullptr ? "nothing" : found->name();
    }

    Operator clerk() { return Operator(screen->form); }
    void type(std::string_view name, std::string_view words) {
        EXPECT_EQ(clerk().type(control(name), words), Refusal::none) << name;
    }
    void click(std::string_view name) { EXPECT_EQ(clerk().click(control(name)), Refusal::none) << name; }
    void tick(std::string_view name, bool on = true) {
        EXPECT_EQ(clerk().tick(control(name), on), Refusal::none) << name;
    }
    void choose(std::string_view name, std::string_view item) {
        EXPECT_EQ(clerk().choose(control(name), item), Refusal::none) << name;
    }
    void menu(std::string_view name) { EXPECT_EQ(clerk().menu(control(name)), Refusal::none) << name; }

    /// A row in each of the twelve tables.
    void fillTables() {
        for (const TableInfo& table : stagingTables()) {
            for (int n = 0; n < 3; ++n) ASSERT_TRUE(tables.append(table.name, Row())) << table.name;
        }
    }
    void expectTables(int rows) {
        EXPECT_EQ(stagingTables().size(), 12U);
        for (const TableInfo& table : stagingTables())
            EXPECT_EQ(tables.count(table.name).valueOr(-1), rows) << table.name;
    }

    Diary diary;
    DiaryDisk files{diary};
    DiaryTables tables{diary};
    DiaryDesk desktop{diary};
    MemoryDatabase places{placeTables()};
    RecordingPrintEngine printing;
    EmptyScreens screens{desktop};
    std::unique_ptr<Form1> screen;
};

}  // namespace vorbano::test
