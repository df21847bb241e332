// What only the real windows can bring about.

#include <QCoreApplication>
#include <QDialog>
#include <QLineEdit>
#include <QProgressDialog>
#include <QPushButton>

#include "platform/qt/form_window.h"
#include "platform/qt/qt_desktop.h"
#include "playing.h"

namespace vorbano::test {
namespace {

using testing::HasSubstr;

class Windows : public Playing {
  protected:
    /// The real widget of a control, while the scenario is played.
    template <class Widget>
    Widget* widget(const Control& control) {
        return qobject_cast<Widget*>(dynamic_cast<QtDesktop&>(*desktop).windowOf(control.form())->widgetOf(control));
    }
    void pump() {
        for (int turn = 0; turn < 20; ++turn) QCoreApplication::processEvents();
    }
};
INSTANTIATE_TEST_SUITE_P(Only, Windows, testing::Values(Way::windows), testing::PrintToStringParamName());

TEST_P(Windows, AGestureIsFinishedBeforeTheNextOneBegins) {
    std::string order;
    prova->cmdSalva.clicked.calls([&] {
        pump();
        tell("a", "b");
        pump();
        order += "saved ";
    });
    prova->txtNome.change.calls([&] { order += prova->txtNome.text(); });
    EXPECT_EQ(play("click cmdSalva\nbox \"a\" \"b\" -> OK\ntype txtNome = x\n"), "");
    EXPECT_EQ(order, "saved x");
}

TEST_P(Windows, AProgressWindowIsWaitedFor) {
    std::string order;
    prova->cmdSalva.clicked.calls([&] {
        QProgressDialog progress("Calcolo", "Annulla", 0, 20);
        progress.setModal(true);
        progress.show();
        for (int turn = 0; turn < 20; ++turn) {
            progress.setValue(turn);
            QCoreApplication::processEvents();
        }
        order += "done ";
    });
    prova->txtNome.change.calls([&] { order += "typed"; });
    EXPECT_EQ(play("click cmdSalva\ntype txtNome = x\n"), "");
    EXPECT_EQ(order, "done typed");
}

TEST_P(Windows, AWindowThatNoLineCanExpectFails) {
    prova->cmdSalva.clicked.calls([&] {
        QDialog stranger;
        stranger.setWindowTitle("Apri");
        stranger.exec();
    });
    EXPECT_EQ(failureAt(2, "click cmdSalva\nleave\n"), "expected `leave`, was the window \"Apri\"");
}

TEST_P(Windows, AWidgetThatDisagreesWithItsFormFails) {
    prova->cmdSalva.clicked.calls([&] {
        widget<QLineEdit>(prova->txtNome)->setText("altro");
        widget<QLineEdit>(prova->txtIndennita)->setEnabled(false);
        widget<QPushButton>(prova->cmdSalva)->hide();
    });
    EXPECT_THAT(failureAt(2, "click cmdSalva\nexpect txtNome =\n"), HasSubstr("in the form only: \"altro\""));
    EXPECT_THAT(failureAt(2, "click cmdSalva\nexpect txtIndennità enabled\n"), HasSubstr("its widget is disabled"));
    EXPECT_THAT(failureAt(2, "click cmdSalva\nexpect cmdSalva visible\n"), HasSubstr("its widget is hidden"));
}

TEST_P(Windows, ACoveredWidgetCannotBeReached) {
    prova->cmdSalva.clicked.calls([&] {
        auto* button = widget<QPushButton>(prova->cmdSalva);
        auto* cover = new QWidget(button->parentWidget());
        cover->setObjectName("coperchio");
        cover->setGeometry(button->geometry());
        cover->show();
    });
    EXPECT_EQ(failureAt(2, "click cmdSalva\nclick cmdSalva\n"),
              "expected `click cmdSalva`, was refused: cmdSalva is covered by coperchio");
}

TEST_P(Windows, ADisabledWidgetCannotBeUsed) {
    prova->cmdSalva.clicked.calls([&] { widget<QPushButton>(prova->cmdSalva)->setEnabled(false); });
    EXPECT_EQ(failureAt(2, "click cmdSalva\nclick cmdSalva\n"),
              "expected `click cmdSalva`, was refused: cmdSalva cannot be used in its window");
}

TEST_P(Windows, APictureShowsWhatLiesOnTop) {
    prova->cmdSalva.clicked.calls([&] { tell("Una finestra", "molto piccola"); });
    EXPECT_EQ(
        play("screenshot a.png\nclick cmdSalva\nscreenshot b.png\nbox \"Una finestra\" \"molto piccola\" -> OK\n"), "");
    const QImage window(QString::fromStdString((folder.path() / "out/a.png").string()));
    const QImage box(QString::fromStdString((folder.path() / "out/b.png").string()));
    EXPECT_FALSE(window.isNull());
    EXPECT_FALSE(box.isNull());
    EXPECT_LT(box.height(), window.height());
}

}  // namespace
}  // namespace vorbano::test
