#pragma once

// A screen on a desk of its own: a disk and staging tables in memory, boxes laid down beforehand, the gestures of the
// clerk. Included by tests of screens; those that test no screen need not know the platform.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <memory>
#include <stdexcept>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "platform/memory_database.h"
#include "platform/operator.h"
#include "platform/scripted_desktop.h"
#include "platform/staging_tables.h"
#include "screens/workplace.h"
#include "storage/memory_file_system.h"
#include "support/bytes.h"
#include "support/places.h"

namespace vorbano::test {

/// Remembers which screens were opened.
class OpenedScreens : public Screens {
  public:
    std::vector<std::string> opened;
    [[nodiscard]] bool has(std::string_view) const override { return true; }
    void open(std::string_view name) override { opened.emplace_back(name); }
};

using Answer = ScriptedDesktop::Answer;

/// Fixture of the tests of one screen. At the end every box laid down must have come, and no other.
template <class ScreenType>
class ScreenDesk : public ::testing::Test {
  protected:
    ~ScreenDesk() override {
        if (screen) desktop.shut(screen->form);
        EXPECT_THAT(desktop.finish(), ::testing::IsEmpty());
    }

    void open() { openOn(files); }
    void openOn(FileSystem& disk) {
        if (screen) desktop.shut(screen->form);
        screen = std::make_unique<ScreenType>(Workplace{disk, desktop, staging, printing, screens, places});
        desktop.open(screen->form);
    }

    // What the clerk sees.
    Control& control(std::string_view name) {
        Control* found = screen->form.find(name);
        if (found == nullptr) throw std::invalid_argument("no control " + std::string(name));
        return *found;
    }
    std::string text(std::string_view name) { return control(name).shownText(); }
    bool visible(std::string_view name) { return control(name).isVisible(); }
    bool enabled(std::string_view name) { return control(name).isEnabled(); }
    /// Enabled, unlocked and on show; of a menu entry, that it can be chosen.
    bool operable(std::string_view name) {
        Control& found = control(name);
        if (found.kind() == Kind::menuEntry) return dynamic_cast<MenuEntry&>(found).canBeChosen();
        return found.isOperable();
    }
    bool ticked(std::string_view name) { return dynamic_cast<CheckBox&>(control(name)).checked(); }
    std::string focused() {
        const Control* found = screen->form.focused();
        return found == nullptr ? "nothing" : found->name();
    }
    std::string cell(std::string_view grid, int row, int column) {
        return dynamic_cast<Grid&>(control(grid)).cell(row, column);
    }

    // What the clerk does.
    Operator clerk() { return Operator(screen->form); }
    void type(std::string_view name, std::string_view words) {
        EXPECT_EQ(clerk().type(control(name), words), Refusal::none) << name;
    }
    void enter(std::string_view name) { EXPECT_EQ(clerk().enter(control(name)), Refusal::none) << name; }
    void leave() { clerk().leave(); }
    void click(std::string_view name) { EXPECT_EQ(clerk().click(control(name)), Refusal::none) << name; }
    void tick(std::string_view name, bool on = true) {
        EXPECT_EQ(clerk().tick(control(name), on), Refusal::none) << name;
    }
    void choose(std::string_view name, std::string_view item) {
        EXPECT_EQ(clerk().choose(control(name), item), Refusal::none) << name << " " << item;
    }
    void chooseIndex(std::string_view name, int index) {
        EXPECT_EQ(clerk().chooseIndex(control(name), index), Refusal::none) << name;
    }
    void pick(std::string_view grid, int row, int column) {
        EXPECT_EQ(clerk().pick(control(grid), row, column), Refusal::none) << grid << " " << row << " " << column;
    }
    void press(std::string_view name) { EXPECT_EQ(clerk().press(control(name)), Refusal::none) << name; }
    void move(std::string_view name) { EXPECT_EQ(clerk().move(control(name)), Refusal::none) << name; }
    void turn(std::string_view name, int page) {
        EXPECT_EQ(clerk().turn(control(name), page), Refusal::none) << name << " " << page;
    }
    void menu(std::string_view name) { EXPECT_EQ(clerk().menu(control(name)), Refusal::none) << name; }
    /// The next box must be this one.
    void box(std::string title, std::string words, Answer answer = Answer::ok) {
        desktop.box(std::move(title), std::move(words), answer);
    }

    MemoryFileSystem files;
    ScriptedDesktop desktop;
    MemoryDatabase staging{stagingTables()};
    MemoryDatabase places{placeTables()};
    RecordingPrintEngine printing;
    OpenedScreens screens;
    std::unique_ptr<ScreenType> screen;
};

}  // namespace vorbano::test
