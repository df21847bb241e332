#pragma once

#include <chrono>
#include <cstdint>
#include <string>
#include <vector>

#include "platform/form.h"

namespace vorbano {

enum class Icon : std::uint8_t { none, information, question, warning, error };

/// What a message box says. Line breaks are "\n".
struct Message {
    std::string text;
    std::string title;
    Icon icon = Icon::none;
};

/// Everything that a screen can ask of the desk it stands on. The one gateway for messages and questions: no screen
/// opens a box in any other way.
class Desktop {
  public:
    virtual ~Desktop() = default;
    /// Opens the form above the one in front and returns when it is closed.
    virtual void show(Form& form) = 0;
    /// Opens a form that leaves the one in front usable (the splash window); it must outlive its being on show.
    virtual void showBeside(Form& form) = 0;
    /// A box with "OK".
    virtual void tell(const Message& message) = 0;
    /// A box with "Sì" and "No"; true is Sì.
    virtual bool ask(const Message& message) = 0;
    /// What the clock says.
    [[nodiscard]] virtual std::chrono::year_month_day today() const = 0;
};

/// The forms that lie one above the other, the last one in front. Both sides of the platform use it, so that forms are
/// activated alike with windows and without.
class FormStack {
  public:
    /// Opens the form and brings it to the front.
    void push(Form& form);
    /// Takes the front form off; the one below comes to the front again.
    void pop();
    /// nullptr when none is on show.
    [[nodiscard]] Form* front() const { return forms_.empty() ? nullptr : forms_.back(); }
    [[nodiscard]] std::size_t size() const { return forms_.size(); }

  private:
    std::vector<Form*> forms_;
};

}  // namespace vorbano
