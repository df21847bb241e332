#pragma once

#include <deque>
#include <functional>
#include <string>
#include <variant>
#include <vector>

#include "platform/desktop.h"
#include "platform/print_engine.h"

namespace vorbano {

/// The desk of a test without windows. What will be asked, told and shown is laid down beforehand in order; the script
/// checks what comes as well as giving the answer. Whatever did not fit stands in `mistakes()`, and so does what was
/// laid down and never came (`finish()`).
class ScriptedDesktop : public Desktop {
  public:
    enum class Answer { ok, yes, no };

    /// The next box must have exactly this text and title.
    ScriptedDesktop& box(std::string title, std::string text, Answer answer = Answer::ok);
    /// The next form shown must be this one; `play` acts on it. It is closed afterwards if it is still open.
    ScriptedDesktop& form(std::string name, std::function<void(Form&)> play);
    /// The next form shown may be any.
    ScriptedDesktop& anyForm(std::function<void(Form&)> play) { return form({}, std::move(play)); }
    void setToday(std::chrono::year_month_day today) { today_ = today; }

    /// Opens a form without waiting for its closing, as the test itself plays it.
    void open(Form& form) { forms_.push(form); }
    /// Closes the form opened by `open`.
    void shut(Form& form);
    [[nodiscard]] Form* front() const { return forms_.front(); }
    [[nodiscard]] const std::vector<std::string>& mistakes() const { return mistakes_; }
    /// Mistakes and what is left of the script.
    [[nodiscard]] std::vector<std::string> finish();

    void show(Form& form) override;
    void showBeside(Form& form) override;
    void tell(const Message& message) override;
    bool ask(const Message& message) override;
    [[nodiscard]] std::chrono::year_month_day today() const override { return today_; }

  private:
    struct Box {
        std::string title;
        std::string text;
        Answer answer;
    };
    struct Visit {
        std::string name;
        std::function<void(Form&)> play;
    };
    Answer boxCame(const Message& message, bool question);

    FormStack forms_;
    std::deque<std::variant<Box, Visit>> script_;
    std::vector<std::string> mistakes_;
    std::chrono::year_month_day today_{std::chrono::year(2024), std::chrono::month(6), std::chrono::day(10)};
};

/// A print engine that only remembers what it was asked for, and lets a test look at the tables while they are full.
class RecordingPrintEngine : public PrintEngine {
  public:
    std::vector<PrintJob> jobs;
    std::vector<PlainPage> pages;
    std::function<void(const PrintJob&)> whileTablesAreFull;

    Result<> run(const PrintJob& job) override {
        jobs.push_back(job);
        if (whileTablesAreFull) whileTablesAreFull(job);
        return {};
    }
    Result<> printPage(const PlainPage& page) override {
        pages.push_back(page);
        return {};
    }
};

}  // namespace vorbano
