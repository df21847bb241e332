#pragma once

// The stage of all fault tests: a screen on a disk that fails once or stops for good at any one operation of a command.
// Each test says what must hold afterwards; that no operation is left out, and that the table of faults (tools/faults)
// can tell how many were tried, is seen to here.

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <set>
#include <string>
#include <string_view>
#include <utility>

#include "storage/failing_file_system.h"
#include "support/screen_desk.h"

namespace vorbano::test {

/// Says yes to every question and remembers what was told.
class AgreeingDesk : public ScriptedDesktop {
  public:
    std::vector<std::string> told;   ///< titles
    std::vector<std::string> words;  ///< and texts
    void tell(const Message& message) override {
        told.push_back(message.title);
        words.push_back(message.text);
    }
    bool ask(const Message&) override { return true; }
};

/// A fresh disk, a desk, and a screen upon them. `ScreenType` is the screen or what several screens have in common.
template <class ScreenType>
class FaultStage : public Clerk {
  public:
    MemoryFileSystem disk;
    FailingFileSystem failing{disk};
    AgreeingDesk desk;
    MemoryDatabase staging{stagingTables()};
    MemoryDatabase places{placeTables()};
    RecordingPrintEngine printing;
    OpenedScreens screens;
    std::shared_ptr<ScreenType> screen;

    FaultStage() = default;
    FaultStage(const FaultStage&) = delete;
    FaultStage& operator=(const FaultStage&) = delete;
    ~FaultStage() override {
        if (screen) desk.shut(screen->form);
    }

    /// Closes the screen that is open, and opens a new one.
    template <class Made = ScreenType>
    void openScreen() {
        if (screen) desk.shut(screen->form);
        screen = std::make_shared<Made>(Workplace{failing, desk, staging, printing, screens, places});
        desk.open(screen->form);
    }

  private:
    Form& front() override { return screen->form; }
};

/// The disk fails at operation `n` of what `act` does, once, and is well again.
template <class Act>
void failingOnce(FailingFileSystem& failing, int n, Act&& act) {
    failing.failOnce(n);
    act();
    failing.failOnce(0);
}

/// The disk answers no more from operation `n` of what `act` does, and then is well again.
template <class Act>
void stopping(FailingFileSystem& failing, int n, Act&& act) {
    failing.stopAt(n);
    act();
    failing.stopAt(0);
}

/// So too, and what was not flushed is lost.
template <class Act>
void cuttingPower(FailingFileSystem& failing, MemoryFileSystem& disk, int n, Act&& act) {
    stopping(failing, n, std::forward<Act>(act));
    disk.cutPower();
}

/// How many operations `act` takes on a disk that is well.
template <class Act>
[[nodiscard]] int operationsOf(FailingFileSystem& failing, Act&& act) {
    failing.failOnce(0);
    act();
    return failing.operations();
}

/// A command of the program ("frmElimina.cmdElimina") and what it is given to do.
struct FaultCase {
    std::string command;
    std::string what;
};

/// For the table of faults: a line in the file that the running test has in the folder VORBANO_FAULTS.
inline void noteStops(const FaultCase& of, int operations, int stops) {
    static std::set<std::string> begun;
    const char* noteFolder = std::getenv("VORBANO_FAULTS");
    if (noteFolder == nullptr) return;
    const ::testing::TestInfo& test = *::testing::UnitTest::GetInstance()->current_test_info();
    std::string name = std::string(test.test_suite_name()) + "." + test.name();
    std::ranges::replace(name, '/', '-');
    std::filesystem::create_directories(noteFolder);
    const auto mode = begun.insert(name).second ? std::ios::trunc : std::ios::app;
    std::ofstream(std::filesystem::path(noteFolder) / name, std::ios::out | mode)
        << of.command << '\t' << of.what << '\t' << operations << '\t' << stops << '\n';
}

/// Calls `tryAt(n)` for every operation of the command, of which there are `operations`.
template <class TryAt>
void atEveryOperation(const FaultCase& of, int operations, TryAt&& tryAt) {
    int tried = 0;
    for (int n = 1; n <= operations && !::testing::Test::HasFatalFailure(); ++n) {
        SCOPED_TRACE("operation " + std::to_string(n));
        tryAt(n);
        ++tried;
    }
    EXPECT_GE(tried, 1) << "a command that stores without touching the disk";
    noteStops(of, operations, tried);
}

/// On a desk whose script expects no box: a failure was told, and nothing else.
inline auto onlyAnError() { return ::testing::ElementsAre(::testing::HasSubstr("nobody expected the box \"Errore\"")); }

/// The two ways in which a disk fails.
enum class Fault { once, forGood };
inline constexpr Fault bothFaults[] = {Fault::once, Fault::forGood};
/// From here on; `failOnce(0)` mends it.
inline void strike(FailingFileSystem& failing, Fault fault, int n) {
    fault == Fault::once ? failing.failOnce(n) : failing.stopAt(n);
}

/// What a file may be after a fault. `was` is `noFile` when it was not there; opening makes it, empty.
inline auto oldOrNew(const std::string& was, const std::string& is) {
    return ::testing::AnyOf(was, is, was == noFile ? std::string() : was);
}

}  // namespace vorbano::test
