#pragma once

// A scenario on the bare forms: no window, every gesture goes to the form through the operator's verbs, and what comes
// inside a gesture (a box, a report, another form) is played inside it.

#include "platform/desktop.h"
#include "platform/print_engine.h"
#include "scenario/player.h"

namespace vorbano {

/// Gestures straight on the forms, and the forms on show.
class BareHands : public Hands, private FormWatcher {
  public:
    [[nodiscard]] Form* front() const override { return forms.front(); }
    [[nodiscard]] Form* beside() const override { return beside_; }
    void showBeside(Form& form);
    /// It goes with the last window; the program may drop its form then.
    void closeBeside();
    [[nodiscard]] std::string make(const Line& gesture, Form& form, Control* control) override;
    [[nodiscard]] std::string seenOtherwise(const Line&, const Form&, const Control&) override { return {}; }
    void setToday(std::chrono::year_month_day day) override { today = day; }
    /// There is nothing to take a picture of.
    [[nodiscard]] std::string takePicture(const std::filesystem::path&, const Form*) override { return {}; }

    FormStack forms;
    /// Nothing is the clock of this machine.
    std::optional<std::chrono::year_month_day> today;

  private:
    void controlChanged(Control&, Aspect) override {}
    void focusMoved() override {}
    void captionChanged() override {}
    /// The form beside closed, and may be gone soon.
    void closed() override;

    Form* beside_ = nullptr;
};

/// The desk without windows: it plays the scenario on as long as a form is on show.
class BareDesktop : public Desktop {
  public:
    BareDesktop(Player& player, BareHands& hands) : player_(player), hands_(hands) {}

    void show(Form& form) override;
    void showBeside(Form& form) override { hands_.showBeside(form); }
    void tell(const Message& message) override;
    bool ask(const Message& message) override;
    [[nodiscard]] std::chrono::year_month_day today() const override;

  private:
    std::optional<Answer> answerTo(const Box& box);

    Player& player_;
    BareHands& hands_;
};

/// Makes every document, so that a broken layout is found, and plays the lines of the report while the tables are full.
class BarePrintEngine : public PrintEngine {
  public:
    BarePrintEngine(Player& player, Renderer& renderer) : player_(player), renderer_(renderer) {}
    Result<> run(const PrintJob& job) override;
    Result<> printPage(const PlainPage& page) override;

  private:
    Player& player_;
    Renderer& renderer_;
};

}  // namespace vorbano
