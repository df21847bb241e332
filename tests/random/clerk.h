#pragma once

#include <deque>
#include <optional>
#include <string>
#include <vector>

#include "random/chance.h"
#include "random/gesture.h"
#include "storage/election.h"

namespace vorbano::test {

/// The operator who plays any gesture that a window offers. So that it gets deep, it has an election in mind, looks for
/// it first, likes to go on from field to field, and prefers what can be used.
class RandomClerk {
  public:
    RandomClerk(Chance& chance, FileSystem& files) : chance_(chance), files_(files) {}

    /// A window came to the front for the first time, or is gone.
    void opened(const Form& form);
    void closed() { errands_.pop_back(); }
    /// What it does next; always something that the window lets be done.
    [[nodiscard]] Gesture next(Form& form);

  private:
    struct Errand {
        Election election;
        std::deque<std::string> fields;  ///< that it means to fill and press first
    };
    [[nodiscard]] std::optional<Gesture> planned(Form& form);
    [[nodiscard]] std::optional<Gesture> on(Control& control);
    [[nodiscard]] Gesture typing(TextBox& box);
    [[nodiscard]] std::optional<Gesture> choosing(ItemControl& list);
    [[nodiscard]] Control* someOperable(Form& form, bool commandsOnly);

    Chance& chance_;
    FileSystem& files_;
    std::vector<Errand> errands_;
};

}  // namespace vorbano::test
