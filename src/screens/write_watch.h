#pragma once

#include <string>
#include <vector>

#include "platform/desktop.h"
#include "storage/noticing_file_system.h"

namespace vorbano {

/// What could not be written, for one box.
[[nodiscard]] std::string inItalian(const std::vector<Unwritten>& unwritten);

/// Many procedures of the office go on whatever happens to what they store. That they do, but the clerk hears of it:
/// this stands between all screens and the disk and the desk, and when a command of the operator has come to its end it
/// tells in one box which files could not be written, those left out that a message of the command named already. A
/// removal that fails stays untold: the deletion says that it is done, whatever stays.
class WriteWatch {
  public:
    WriteWatch(FileSystem& files, Desktop& desktop);

    /// To be handed to the screens instead of the real ones.
    [[nodiscard]] FileSystem& files() { return files_; }
    [[nodiscard]] Desktop& desktop() { return desktop_; }

  private:
    class WatchedDesktop : public Desktop {
      public:
        WatchedDesktop(Desktop& real, WriteWatch& watch) : real_(real), watch_(watch) {}
        void show(Form& form) override;
        void showBeside(Form& form) override { real_.showBeside(form); }
        void tell(const Message& message) override;
        bool ask(const Message& message) override { return real_.ask(message); }
        [[nodiscard]] std::chrono::year_month_day today() const override { return real_.today(); }

      private:
        Desktop& real_;
        WriteWatch& watch_;
    };

    void notice(const Unwritten& unwritten);
    /// Takes what the message names off the list. A file that could not even be opened may have been wanted for reading
    /// only, and then the screen has words of its own for it, of warning or of error.
    void heard(const Message& message);
    void tellWhatIsLeft();

    Desktop& realDesktop_;
    std::vector<Unwritten> unwritten_;
    std::vector<std::string> told_;  ///< of this command
    NoticingFileSystem files_;
    WatchedDesktop desktop_;
};

}  // namespace vorbano
