#pragma once

#include <functional>
#include <utility>
#include <vector>

namespace vorbano {

/// Something that happens on a control or a form. Screens hang their event procedures on it:
/// `cmdSalva.clicked.calls(this, &frmX::cmdSalva_Click)`. Procedures run in the order in which they were hung.
class Event {
  public:
    void calls(std::function<void()> procedure) { procedures_.push_back(std::move(procedure)); }
    template <class Screen>
    void calls(Screen* screen, void (Screen::*procedure)()) {
        procedures_.emplace_back([screen, procedure] { (screen->*procedure)(); });
    }
    [[nodiscard]] bool hasProcedure() const { return !procedures_.empty(); }
    void fire() const {
        for (std::size_t at = 0; at < procedures_.size(); ++at) procedures_[at]();
    }

  private:
    std::vector<std::function<void()>> procedures_;
};

}  // namespace vorbano
