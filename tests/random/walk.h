#pragma once

#include <string>
#include <vector>

#include "platform/desktop.h"
#include "platform/memory_database.h"
#include "platform/print_engine.h"
#include "random/chance.h"
#include "storage/election.h"
#include "storage/file_system.h"

namespace vorbano::test {

/// A clerk who opens one screen, looks for an election, fills what is empty and uses every command, and looks for it
/// once more; says yes to every question. Windows that a command opens are closed at once.
class Walk : private Desktop, private PrintEngine {
  public:
    Walk(FileSystem& files, Election election);

    /// `screen`: one of the program's, or "Form1". Throws std::runtime_error when something that must hold does not.
    void through(const std::string& screen);
    /// "title: text" of the boxes that came.
    [[nodiscard]] const std::vector<std::string>& boxes() const { return boxes_; }
    /// Names of the layouts that were run.
    [[nodiscard]] const std::vector<std::string>& documents() const { return documents_; }
    /// The screens that the program has, the main window among them.
    [[nodiscard]] static std::vector<std::string> screens();

  private:
    void show(Form& form) override;
    void showBeside(Form& form) override { form.open(); }
    void tell(const Message& message) override { boxCame(message); }
    bool ask(const Message& message) override;
    [[nodiscard]] std::chrono::year_month_day today() const override;
    Result<> run(const PrintJob& job) override;
    Result<> printPage(const PlainPage& page) override;

    void boxCame(const Message& message);
    void search(Form& form);
    void useAll(Form& form);
    void use(Form& form, Control& control);

    FileSystem& files_;
    Election election_;
    Chance chance_{1};
    MemoryDatabase staging_;
    MemoryDatabase places_;
    std::string wanted_;
    FormStack forms_;
    std::vector<std::string> boxes_;
    std::vector<std::string> documents_;
};

}  // namespace vorbano::test
