#include "window_fixture.h"

#include <QAbstractButton>
#include <QMessageBox>
#include <QTimer>

using vorbano::Control;

namespace {

constexpr int mostPasses = 2000;

/// Looks at every pass of the event loop whether `ready` holds, and acts then. The next look is set before acting, so
/// that it also happens inside a window that the act opens.
void once(const std::function<bool()>& ready, const std::function<void()>& act, int pass = 0) {
    // A timer, not a posted call: a call that posts the next one would never let a pass of the loop end.
    auto* look = new QTimer(qApp);
    look->setSingleShot(true);
    QObject::connect(look, &QTimer::timeout, look, [look, ready, act, pass] {
        look->deleteLater();
        if (ready()) {
            act();
        } else if (pass < mostPasses) {
            once(ready, act, pass + 1);
        } else {
            ADD_FAILURE() << "what was waited for never came";
            for (QWidget* window : QApplication::topLevelWidgets()) window->close();
        }
    });
    look->start(0);
}

}  // namespace

WindowTest::WindowTest() : window(std::make_unique<vorbano::FormWindow>(screen.form)) {
    window->resize(1000, 600);
    window->show();
    QApplication::setActiveWindow(window.get());
    stack.push(screen.form);
    QApplication::processEvents();
    screen.log.clear();
}

WindowTest::~WindowTest() {
    screen.form.close();
    QApplication::processEvents();
}

void WindowTest::key(Qt::Key key, Qt::KeyboardModifiers modifiers) {
    // After a box the window system first gives the keyboard back.
    QApplication::processEvents();
    ASSERT_NE(QApplication::focusWidget(), nullptr);
    QTest::keyClick(QApplication::focusWidget(), key, modifiers);
}

void WindowTest::type(const std::string& text) {
    for (const QChar character : QString::fromStdString(text)) {
        QApplication::processEvents();
        ASSERT_NE(QApplication::focusWidget(), nullptr);
        QTest::sendKeyEvent(QTest::Click, QApplication::focusWidget(), Qt::Key_unknown, QString(character),
                            Qt::NoModifier);
    }
}

std::string WindowTest::keyboard() const {
    const QWidget* focus = QApplication::focusWidget();
    for (const Control* control : screen.form.controls()) {
        QWidget* shown = window->widgetOf(*control);
        if (shown == nullptr || focus == nullptr) continue;
        // A tab panel has it in its bar.
        if (shown == focus || (control->kind() == vorbano::Kind::tabPanel && shown == focus->parentWidget())) {
            return control->name();
        }
    }
    return "nowhere";
}

void WindowTest::clickSpot(const Control& control, int line, int column) {
    const vorbano::Spot spot = window->spotOf(control, line, column);
    ASSERT_NE(spot.widget, nullptr);
    QTest::mouseClick(spot.widget, Qt::LeftButton, Qt::NoModifier, spot.at);
}

void whenBoxComes(std::vector<std::string>& told, const std::string& button) {
    const auto box = [] { return qobject_cast<QMessageBox*>(QApplication::activeModalWidget()); };
    once([box] { return box() != nullptr; },
         [&told, box, button] {
             told.push_back(box()->windowTitle().toStdString() + ": " + box()->text().toStdString());
             for (QAbstractButton* one : box()->buttons()) {
                 if (one->text().toStdString() == button) {
                     QTest::mouseClick(one, Qt::LeftButton);
                     return;
                 }
             }
             ADD_FAILURE() << "the box has no button " << button;
             box()->done(0);
         });
}

void whenInFront(vorbano::QtDesktop& desk, const vorbano::Form& form, const std::function<void()>& act) {
    once(
        [&desk, &form] {
            return desk.front() == &form && desk.windowOf(form) != nullptr && form.isOpen() &&
                   QApplication::activeWindow() == desk.windowOf(form);
        },
        act);
}
