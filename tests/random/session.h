#pragma once

#include <chrono>
#include <cstdint>
#include <map>
#include <optional>
#include <set>
#include <stdexcept>
#include <string>

#include "platform/desktop.h"
#include "platform/memory_database.h"
#include "platform/print_engine.h"
#include "random/chance.h"
#include "random/clerk.h"
#include "random/stored_states.h"
#include "random/watched_files.h"
#include "storage/memory_file_system.h"

namespace vorbano::test {

/// Something that must hold and does not.
struct Trouble : std::runtime_error {
    using std::runtime_error::runtime_error;
};

/// What was met, added up over sessions.
struct Met {
    std::int64_t gestures = 0;
    std::int64_t sessions = 0;
    std::int64_t boxes = 0;
    std::int64_t documents = 0;
    std::map<std::string, std::int64_t> screens;  ///< gestures on each
    std::set<std::string> messages;
    std::set<std::string> layouts;
};

/// One sitting of the operator: the program is started over a stored state and played until it is closed or the
/// gestures are used up. Throws Trouble.
class Session : private Desktop, private PrintEngine {
  public:
    /// `delivered`: names in capitals of the layouts that the installation has.
    Session(std::uint64_t seed, const StoredState& state, const std::set<std::string>& delivered, int gestures,
            Met& met);
    void play();
    /// All that was done so far, as a scenario. It stays readable after a Trouble and in a death.
    [[nodiscard]] const std::string& log() const { return log_; }

  private:
    void show(Form& form) override;
    void showBeside(Form& form) override;
    void tell(const Message& message) override;
    bool ask(const Message& message) override;
    [[nodiscard]] std::chrono::year_month_day today() const override;
    Result<> run(const PrintJob& job) override;
    Result<> printPage(const PlainPage& page) override;

    void step(Form& form);
    void letTimeGo();
    void boxCame(const Message& message, std::string_view answer);
    void check(const Form& form);
    void note(const std::string& line) { log_ += line + "\n"; }

    Chance chance_;
    MemoryFileSystem disk_;
    WatchedFiles files_{disk_};
    MemoryDatabase staging_;
    MemoryDatabase places_;
    const std::set<std::string>& delivered_;
    RandomClerk clerk_{chance_, disk_};
    FormStack forms_;
    Form* beside_ = nullptr;
    int left_;
    int boxesOfGesture_ = 0;
    Met& met_;
    std::string log_;
};

}  // namespace vorbano::test
