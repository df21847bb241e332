#pragma once

// The parameter screen on a desk of its own: a disk and staging tables in memory, boxes laid down beforehand.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <memory>
#include <stdexcept>
#include <string>
#include <string_view>

#include "parameters/frmParametri.h"
#include "platform/memory_database.h"
#include "platform/operator.h"
#include "platform/scripted_desktop.h"
#include "platform/staging_tables.h"
#include "storage/memory_file_system.h"
#include "support/bytes.h"
#include "support/expected_tariffs.h"
#include "support/fault_stage.h"
#include "support/places.h"

namespace vorbano::test {

inline constexpr const char* title = "Parametri di riferimento";
inline constexpr const char* noStaffRates = "Bisogna inserire i dati dei compensi orari dei dipendenti";
inline constexpr const char* noSecretaryRates = "Bisogna inserire i dati dei compensi orari dei Segretari Comunali";
inline constexpr const char* noPercentages = "Bisogna inserire i dati dei Contributi Previdenziali";

class NoScreens : public Screens {
  public:
    [[nodiscard]] bool has(std::string_view) const override { return false; }
    void open(std::string_view) override {}
};

class ParametriTest : public ::testing::Test {
  protected:
    ParametriTest() { EXPECT_TRUE(files.makeFolder("Params").ok()); }
    ~ParametriTest() override {
        if (screen) desktop.shut(screen->form);
        EXPECT_THAT(desktop.finish(), ::testing::IsEmpty());
    }

    void open() { openOn(files, staging, printing); }
    void openOn(FileSystem& disk, Database& database, PrintEngine& engine) {
        if (screen) desktop.shut(screen->form);
        screen = std::make_unique<frmParametri>(Workplace{disk, desktop, database, engine, screens, places});
        desktop.open(screen->form);
    }
    void openWithRates(std::string_view mark, const CentsOf& centsOf = distinctCents) {
        ASSERT_TRUE(lay(files, "Params/PmDip.dat", tariffBytes(mark, centsOf)));
        open();
    }

    Control& control(std::string_view name) {
        Control* found = screen->form.find(name);
        if (found == nullptr) throw std::invalid_argument("no control " + std::string(name));
        return *found;
    }
    std::string text(std::string_view name) { return control(name).shownText(); }
    bool enabled(std::string_view name) { return control(name).isEnabled(); }
    bool visible(std::string_view name) { return control(name).isVisible(); }
    bool ticked(std::string_view name) { return dynamic_cast<CheckBox&>(control(name)).checked(); }
    std::string focused() {
        const Control* found = screen->form.focused();
        return found == nullptr ? std::string() : found->name();
    }

    Operator clerk() { return Operator(screen->form); }
    void type(std::string_view name, std::string_view text) {
        EXPECT_EQ(clerk().type(control(name), text), Refusal::none) << name;
    }
    void tick(std::string_view name, bool on = true) {
        EXPECT_EQ(clerk().tick(control(name), on), Refusal::none) << name;
    }
    void click(std::string_view name) { EXPECT_EQ(clerk().click(control(name)), Refusal::none) << name; }
    void choose(std::string_view name, std::string_view item) {
        EXPECT_EQ(clerk().choose(control(name), item), Refusal::none) << name << " " << item;
    }
    void tab(int page) { EXPECT_EQ(clerk().turn(screen->SSTab1, page), Refusal::none); }

    std::string file(std::string_view name) { return contentOf(files, "Params/" + std::string(name)); }

    MemoryFileSystem files;
    ScriptedDesktop desktop;
    MemoryDatabase staging{stagingTables()};
    MemoryDatabase places{placeTables()};
    RecordingPrintEngine printing;
    NoScreens screens;
    std::unique_ptr<frmParametri> screen;
};

}  // namespace vorbano::test
