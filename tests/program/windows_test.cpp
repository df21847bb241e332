// Every control of every screen has its widget, and every input widget of every window has its control.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QScrollArea>

#include "empty_office.h"
#include "platform/qt/form_window.h"

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
        FormWindow window(form);
        window.show();
        QCoreApplication::processEvents();
        EXPECT_THAT(window.missingWidgets(), testing::IsEmpty()) << form.name();
        EXPECT_THAT(window.namelessWidgets(), testing::IsEmpty()) << form.name();
        // The smallest screen of an office is enough: as it opens, no window needs to be scrolled. What is left to it
        // below its menu and inside its frame is a little less than the screen.
        const auto* area = window.findChild<QScrollArea*>();
        ASSERT_NE(area, nullptr) << form.name();
        EXPECT_LE(area->widget()->minimumSizeHint().width(), 1340) << form.name();
        EXPECT_LE(area->widget()->minimumSizeHint().height(), 700) << form.name();
        ++windows;
    }
};

}  // namespace

TEST(EveryScreen, HasAWindowThatFitsItsControls) {
    WindowDesktop desktop;
    const int screens = test::openEveryScreen(desktop);
    EXPECT_EQ(desktop.windows, 2 + screens);
}
