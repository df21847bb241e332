#pragma once

// A screen on a desk of its own: a disk and staging tables in memory, boxes laid down beforehand, the gestures of the
// clerk. Included by tests of screens; those that test no screen need not know the platform.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "platform/memory_database.h"
#include "platform/scripted_desktop.h"
#include "platform/staging_tables.h"
#include "screens/workplace.h"
#include "storage/memory_file_system.h"
#include "support/bytes.h"
#include "support/clerk.h"
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
class ScreenDesk : public ::testing::Test, public Clerk {
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

  private:
    Form& front() override { return screen->form; }
};

}  // namespace vorbano::test
