#pragma once

// What the operator does enters a form by these verbs and in no other way; the window and every test use them alike. A
// verb on a control that is disabled, locked or not visible is refused, so a test cannot do what a clerk could not.

#include <cstdint>
#include <string_view>

#include "platform/form.h"

namespace vorbano {

/// Why a gesture was refused.
enum class Refusal : std::uint8_t { none, hidden, disabled, locked, wrongKind, noSuchItem };
/// In English, for the messages of scenarios: "is disabled".
[[nodiscard]] std::string_view inWords(Refusal refusal);

class Operator {
  public:
    explicit Operator(Form& form) : form_(form) {}

    /// Puts the focus on a control. When the leave of the old control takes the focus back, the gesture is dropped,
    /// which is no refusal.
    [[nodiscard]] Refusal enter(Control& control);
    /// Goes to the field and replaces its text key by key; stops when a procedure moves the focus away.
    [[nodiscard]] Refusal type(Control& control, std::string_view text);
    /// The field now holds `text`, after one key or paste of the operator.
    [[nodiscard]] Refusal edit(Control& control, std::string_view text);
    /// Tab, or Shift+Tab.
    void leave(bool forward = true);
    /// Button or option.
    [[nodiscard]] Refusal click(Control& control);
    [[nodiscard]] Refusal tick(Control& control, bool ticked);
    /// Line of a combo or list box, by its trimmed text or by its index.
    [[nodiscard]] Refusal choose(Control& control, std::string_view text);
    [[nodiscard]] Refusal chooseIndex(Control& control, int index);
    /// Cell of a grid; row 0 is the heading.
    [[nodiscard]] Refusal pick(Control& control, int row, int column);
    /// Pointer pressed on, moved over a panel.
    [[nodiscard]] Refusal press(Control& control);
    [[nodiscard]] Refusal move(Control& control);
    [[nodiscard]] Refusal turn(Control& control, int page);
    [[nodiscard]] Refusal menu(Control& control);
    void close();

  private:
    [[nodiscard]] static Refusal refusal(const Control& control);
    [[nodiscard]] bool reaches(Control& control);
    /// The end of every gesture.
    [[nodiscard]] Refusal done();
    /// The end of one that the leave of the old control kept from its control.
    [[nodiscard]] Refusal dropped();
    Form& form_;
};

}  // namespace vorbano
