#pragma once

#include <chrono>
#include <cstddef>
#include <filesystem>
#include <optional>
#include <string>

#include "platform/print_engine.h"
#include "scenario/looks.h"
#include "scenario/scenario_reader.h"

namespace vorbano {

/// What plays a gesture: straight on the forms, or with mouse and keyboard on their windows.
class Hands {
  public:
    virtual ~Hands() = default;
    /// The form in front; nullptr when none is on show.
    [[nodiscard]] virtual Form* front() const = 0;
    /// The one that is on show beside it (the splash window); nullptr when none.
    [[nodiscard]] virtual Form* beside() const = 0;
    /// Makes a gesture that the player found possible; `control` is nullptr for `leave` and `close`. What stood in the
    /// way, in words; "" when nothing did. A gesture that a leave dropped is none.
    [[nodiscard]] virtual std::string make(const Line& gesture, Form& form, Control* control) = 0;
    /// What the clerk sees otherwise than the form has it, where an `expect` line looks; "" when nothing is.
    [[nodiscard]] virtual std::string seenOtherwise(const Line& look, const Form& form, const Control& control) = 0;
    /// What the clock says from here on.
    virtual void setToday(std::chrono::year_month_day today) = 0;
    /// Takes a picture of the form, or, when it is nullptr, of what lies on top; what went wrong, or "".
    [[nodiscard]] virtual std::string takePicture(const std::filesystem::path& file, const Form* form) = 0;
};

/// A message box as the clerk sees it.
struct Box {
    std::string title;
    std::string text;
    bool question = false;
};

/// Walks the lines of one scenario and judges them; how gestures are made is the hands' business. Whoever knows what
/// lies on top calls the step for it: a form, a box or a report. Each step plays one line. The first line that does not
/// hold ends the scenario.
class Player {
  public:
    Player(const Scenario& scenario, const Stage& stage, Hands& hands);

    /// Plays what stands before the first gesture: the day and the files that the program finds at its start.
    void prepare();
    /// All lines are played, or one did not hold.
    [[nodiscard]] bool over() const { return over_; }
    /// "FILE:LINE: expected ..., was ..."; "" as long as every line holds.
    [[nodiscard]] const std::string& failure() const { return failure_; }
    /// The line in turn; nullptr at the end of the scenario.
    [[nodiscard]] const Line* line() const;

    /// A form is in front. At the end of the lines the scenario is over.
    void step();
    /// A box is in front; its answer when the line in turn was the one for it.
    std::optional<Answer> stepAtBox(const Box& box);
    /// A finished document is in front, or on its way to the printer; true when it can be put away.
    bool stepAtReport(const PrintJob& job, Document& document);
    /// A document could not be made; true when a line expected it, which then does not hold.
    bool reportFailed(const Error& error);
    /// A plain page went to the printer. No line expects it; it is kept as a PDF, "pagina-1.pdf" and so on, with the
    /// other documents.
    void pagePrinted(const PlainPage& page, Document& document);
    /// The main window is closed; plays what still can be looked at.
    void programEnded();
    /// The line in turn does not hold.
    void fail(const std::string& expected, const std::string& was);
    /// Something lies on top that no line can expect.
    void failAt(const std::string& was);

  private:
    void failAtLine(const Line& line, const std::string& expected, const std::string& was);
    void advance() { ++at_; }
    void met(std::string_view kind, std::string_view what) const;
    bool settle(const Verdict& verdict);
    bool playWorld(const Line& line);
    bool playLook(const Line& line);
    void playScreen(const Line& line);
    void playScreenshot(const Line& line);
    void playExpect(const Line& line);
    void playGesture(const Line& line);
    void playCopy(const Line& line);
    void save(const Line& line, Document& document);
    [[nodiscard]] Form* formFor(const Line& line);
    [[nodiscard]] std::string inFront() const;

    const Scenario& scenario_;
    const Stage& stage_;
    Hands& hands_;
    std::size_t at_ = 0;
    bool over_ = false;
    int plainPages_ = 0;
    bool inReport_ = false;   ///< the `report` line was played, its `end` not yet
    Form* target_ = nullptr;  ///< the splash window, once a `screen` line named it
    std::string failure_;
};

}  // namespace vorbano
