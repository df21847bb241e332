// Every window under the keyboard alone, on a desk that is too small for most of them.

#include <gmock/gmock.h>

#include <QApplication>
#include <QScrollArea>
#include <QTest>
#include <algorithm>

#include "empty_office.h"
#include "platform/qt/form_window.h"
#include "scenario/window_faults.h"

using namespace vorbano;

namespace {

/// Walks through each window with Tab and closes it with Esc.
class KeyboardDesktop : public Desktop {
  public:
    int windows = 0;
    int reached = 0;

    void show(Form& form) override {
        FormWindow window(form, &below_);
        // 1366 x 768 at 150 %, less the frame.
        window.resize(895, 472);
        window.show();
        QApplication::setActiveWindow(&window);
        forms_.push(form);
        QApplication::processEvents();
        walk(form, window);
        EXPECT_THAT(missingReach(window), testing::IsEmpty()) << form.name();
        key(window, Qt::Key_Escape);
        EXPECT_FALSE(form.isOpen()) << form.name() << " stays open at Esc";
        form.close();
        forms_.pop();
        ++windows;
    }
    void showBeside(Form& form) override { form.close(); }
    void tell(const Message&) override {}
    bool ask(const Message&) override { return true; }
    [[nodiscard]] std::chrono::year_month_day today() const override { return {}; }

  private:
    static void key(FormWindow& window, Qt::Key code) {
        QWidget* focus = window.focusWidget();
        QTest::keyClick(focus == nullptr ? &window : focus, code);
        QApplication::processEvents();
    }

    /// Each control in turn, in the order in which the form declares them, and always in view.
    void walk(const Form& form, FormWindow& window) {
        const auto& all = form.controls();
        const auto placeOf = [&](const Control* one) { return std::find(all.begin(), all.end(), one) - all.begin(); };
        const auto mayTake =
            std::count_if(all.begin(), all.end(), [](const Control* one) { return one->takesFocus(); });
        const Control* first = form.focused();
        auto before = placeOf(first);
        for (std::ptrdiff_t step = 0; step < mayTake; ++step) {
            const Control* here = form.focused();
            ASSERT_NE(here, nullptr) << form.name();
            EXPECT_TRUE(isInView(window, *here)) << form.name() << "." << here->name();
            ++reached;
            key(window, Qt::Key_Tab);
            if (form.focused() == nullptr || placeOf(form.focused()) <= placeOf(first)) return;
            // A field that refuses to be left keeps the keyboard; it is not passed over.
            EXPECT_GE(placeOf(form.focused()), before) << form.name() << " from " << here->name();
            before = placeOf(form.focused());
        }
    }

    static bool isInView(const FormWindow& window, const Control& control) {
        const QWidget* widget = window.widgetOf(control);
        if (widget == nullptr) return false;
        return window.focusWidget() != nullptr && !widget->visibleRegion().isEmpty() &&
               (window.focusWidget() == widget || widget->isAncestorOf(window.focusWidget()));
    }

    /// Faults of the words and letters; size is no fault where windows are scrolled.
    static std::vector<std::string> missingReach(const FormWindow& window) {
        std::vector<std::string> faults = windowFaults(window);
        std::erase_if(faults, [](const std::string& one) { return one.starts_with("it needs"); });
        return faults;
    }

    QWidget below_;
    FormStack forms_;
};

}  // namespace

TEST(EveryScreen, IsUsedWithTheKeyboardAloneOnASmallDesk) {
    KeyboardDesktop desktop;
    const int screens = test::openEveryScreen(desktop);
    EXPECT_EQ(desktop.windows, 1 + screens);
    EXPECT_GT(desktop.reached, 100);
}
