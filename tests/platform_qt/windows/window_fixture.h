#pragma once

#include <gmock/gmock.h>

#include <QApplication>
#include <QTest>
#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "platform/desktop.h"
#include "platform/qt/form_window.h"
#include "platform/qt/qt_desktop.h"
#include "prova.h"

/// frmProva on show in its real window, the way a desk shows it, and the pointer and keys of a clerk.
class WindowTest : public testing::Test {
  protected:
    WindowTest();
    ~WindowTest() override;

    template <class Widget = QWidget>
    Widget& widget(const vorbano::Control& control) {
        return *qobject_cast<Widget*>(window->widgetOf(control));
    }
    void click(const vorbano::Control& control) { QTest::mouseClick(window->widgetOf(control), Qt::LeftButton); }
    /// Presses a key where the keyboard is.
    static void key(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier);
    /// Types into whatever has the keyboard.
    static void type(const std::string& text);
    /// Name of the widget that has the keyboard.
    [[nodiscard]] std::string keyboard() const;
    void clickSpot(const vorbano::Control& control, int line, int column = 0);

    frmProva screen;
    vorbano::FormStack stack;
    std::unique_ptr<vorbano::FormWindow> window;
};

/// Does something as soon as a message box is in front: text and title of the box go to `told`, then the button of
/// that text is clicked. When the box does not come, the test fails.
void whenBoxComes(std::vector<std::string>& told, const std::string& button);
/// Acts as soon as the window of that form is in front.
void whenInFront(vorbano::QtDesktop& desk, const vorbano::Form& form, const std::function<void()>& act);
