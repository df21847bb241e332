// Every control of every screen has its widget, and every input widget of every window has its control.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "platform/memory_database.h"
#include "platform/qt/form_window.h"
#include "platform/scripted_desktop.h"
#include "platform/staging_tables.h"
#include "program/program.h"
#include "storage/memory_file_system.h"

using namespace vorbano;

namespace {

/// A desk that puts each form into a window, looks at it, and closes it.
class WindowDesktop : public Desktop {
  public:
    int windows = 0;

    void show(Form& form) override { see(form); }
    void showBeside(Form& form) override { see(form); }
    void tell(const Message&) override {}
    bool ask(const Message&) override { return false; }
    [[nodiscard]] std::chrono::year_month_day today() const override { return {}; }

  private:
    void see(Form& form) {
        const FormWindow window(form);
        EXPECT_THAT(window.missingWidgets(), testing::IsEmpty()) << form.name();
        // A clerk may have a small screen: scrolling is possible, but nothing should need it.
        EXPECT_LE(window.sizeHint().width(), 1366) << form.name();
        EXPECT_LE(window.sizeHint().height(), 768) << form.name();
        ++windows;
    }
};

}  // namespace

TEST(EveryScreen, HasAWindowThatFitsItsControls) {
    MemoryFileSystem files;
    files.makeFolder("Params").ignore();
    MemoryDatabase staging(stagingTables());
    RecordingPrintEngine printing;
    WindowDesktop desktop;
    Program program(files, desktop, staging, printing);
    program.run();
    for (const std::string& name : program.names()) program.open(name);
    EXPECT_EQ(desktop.windows, 2 + static_cast<int>(program.names().size()));
}
