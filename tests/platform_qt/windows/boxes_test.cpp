// A message box in the middle of a gesture loses nothing of it.

#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QTimer>
#include <QWindow>

#include "window_fixture.h"

using testing::Contains;
using testing::ElementsAre;

namespace {

class Boxes : public WindowTest {
  protected:
    /// The field tells something when it is left.
    void tellOnLeave() {
        screen.txtData.lostFocus.calls([this] {
            desk.tell({"Data non esatta", "Errore", vorbano::Icon::warning});
            screen.log.push_back("told");
        });
    }

    /// The window system has given the keyboard back to the window.
    std::string keyboardAfterBox() {
        QApplication::processEvents();
        return keyboard();
    }

    vorbano::QtDesktop desk;
    std::vector<std::string> told;
};

TEST_F(Boxes, AClickGoesThroughABoxOfTheLeave) {
    tellOnLeave();
    whenBoxComes(told, "OK");
    click(screen.cmdSalva);
    EXPECT_THAT(told, ElementsAre("Errore: Data non esatta"));
    EXPECT_THAT(screen.log, ElementsAre("txtData left", "told", "cmdSalva clicked"));
    EXPECT_EQ(keyboardAfterBox(), "cmdSalva");
}

TEST_F(Boxes, AClickWhoseReleaseWentToTheBoxIsMadeGood) {
    tellOnLeave();
    whenBoxComes(told, "OK");
    // A window system gives the release to nobody while the box lies above the window.
    QTest::mousePress(&widget(screen.cmdSalva), Qt::LeftButton);
    EXPECT_THAT(screen.log, ElementsAre("txtData left", "told", "cmdSalva clicked"));
    EXPECT_FALSE(widget<QPushButton>(screen.cmdSalva).isDown());
}

TEST_F(Boxes, AClickOfTheWindowSystemGoesThroughABoxOfTheLeaveOnce) {
    tellOnLeave();
    whenBoxComes(told, "OK");
    const QWidget& button = widget(screen.cmdSalva);
    const QPoint at = button.mapTo(window.get(), button.rect().center());
    QTest::mouseClick(window->windowHandle(), Qt::LeftButton, Qt::NoModifier, at);
    EXPECT_EQ(told.size(), 1U);
    EXPECT_THAT(screen.log, ElementsAre("txtData left", "told", "cmdSalva clicked"));
    // And the next one is an ordinary click.
    screen.log.clear();
    QTest::mouseClick(window->windowHandle(), Qt::LeftButton, Qt::NoModifier, at);
    EXPECT_THAT(screen.log, ElementsAre("cmdSalva clicked"));
}

TEST_F(Boxes, ATimerBehindABoxOfTheLeaveDoesNotStealTheFocus) {
    screen.txtData.lostFocus.calls([this] {
        screen.Timer1.enabled = true;
        QTimerEvent over(window->timerOf(screen.Timer1)->timerId());
        QApplication::sendEvent(window->timerOf(screen.Timer1), &over);
    });
    click(screen.cmdSalva);
    EXPECT_THAT(screen.log, ElementsAre("txtData left", "Timer1 fired", "cmdSalva clicked"));
    EXPECT_EQ(keyboard(), "cmdSalva");
}

TEST_F(Boxes, ATickGoesThroughABoxOfTheLeave) {
    tellOnLeave();
    whenBoxComes(told, "OK");
    QTest::mouseClick(&widget(screen.Check1), Qt::LeftButton, Qt::NoModifier,
                      QPoint(8, widget(screen.Check1).height() / 2));
    EXPECT_TRUE(screen.Check1.checked());
    EXPECT_THAT(screen.log, ElementsAre("txtData left", "told", "Check1 clicked"));
}

TEST_F(Boxes, ALineIsChosenThroughABoxOfTheLeave) {
    tellOnLeave();
    whenBoxComes(told, "OK");
    clickSpot(screen.List1, 1);
    EXPECT_EQ(screen.List1.selection(), 1);
    EXPECT_THAT(screen.log, ElementsAre("txtData left", "told", "List1 clicked"));
}

TEST_F(Boxes, AFieldIsEnteredThroughABoxOfTheLeave) {
    tellOnLeave();
    whenBoxComes(told, "OK");
    click(screen.txtTotale);
    EXPECT_EQ(keyboardAfterBox(), "txtTotale");
    type("5");
    EXPECT_EQ(screen.txtTotale.text(), "5");
}

TEST_F(Boxes, ABoxThatSendsTheClerkBackDropsTheClick) {
    screen.txtData.lostFocus.calls([this] {
        desk.tell({"Data non esatta", "Errore", vorbano::Icon::warning});
        screen.form.focus(screen.txtData);
    });
    whenBoxComes(told, "OK");
    click(screen.cmdSalva);
    EXPECT_EQ(keyboardAfterBox(), "txtData");
    EXPECT_THAT(screen.log, testing::Not(Contains("cmdSalva clicked")));
    // The next gesture is a new one: the field is left again, and the box comes again.
    whenBoxComes(told, "OK");
    key(Qt::Key_Tab);
    EXPECT_EQ(told.size(), 2U);
    EXPECT_EQ(keyboardAfterBox(), "txtData");
}

TEST_F(Boxes, ABoxWhileTypingLosesNoKey) {
    screen.txtData.change.calls([this] {
        std::string text = screen.txtData.text();
        if (text.empty() || text.back() != '.') return;
        text.pop_back();
        screen.txtData.text = text;
        desk.tell({"Il formato non è esatto", "formato data", vorbano::Icon::warning});
    });
    whenBoxComes(told, "OK");
    type("09.0");
    EXPECT_EQ(told.size(), 1U);
    EXPECT_EQ(screen.txtData.text(), "090");
    EXPECT_EQ(widget<QLineEdit>(screen.txtData).text(), "090");
}

TEST_F(Boxes, TabGoesThroughABoxOfTheLeave) {
    tellOnLeave();
    whenBoxComes(told, "OK");
    key(Qt::Key_Tab);
    EXPECT_EQ(keyboardAfterBox(), "Combo1");
    EXPECT_THAT(screen.log, ElementsAre("txtData left", "told"));
}

TEST_F(Boxes, AQuestionIsAnsweredYesOrNo) {
    bool answer = false;
    screen.cmdSalva.clicked.calls([&] { answer = desk.ask({"Salvare?", "Domanda", vorbano::Icon::question}); });
    whenBoxComes(told, "Sì");
    click(screen.cmdSalva);
    EXPECT_TRUE(answer);
    whenBoxComes(told, "No");
    click(screen.cmdSalva);
    EXPECT_FALSE(answer);
}

TEST_F(Boxes, TheWordsOfABoxAreNeverReadAsMarkup) {
    screen.cmdSalva.clicked.calls([&] { desk.tell({"<b>Rossi</b>\n\nriga  due", "Errore", vorbano::Icon::error}); });
    whenBoxComes(told, "OK");
    click(screen.cmdSalva);
    EXPECT_THAT(told, ElementsAre("Errore: <b>Rossi</b>\n\nriga  due"));
}

TEST_F(Boxes, TheWordsOfABoxAreShownWhole) {
    for (const char* text : {"Operazione terminata", "Dipendente n. 7 inesistente. I dipendenti inseriti sono n. 6",
                             "Sono state modificate le ore liquidate del 1° periodo\nSe volete confermare la modifica "
                             "scegliere SI.\nSe volete annullare le modifiche scegliere NO"}) {
        QTimer::singleShot(0, qApp, [text] {
            auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
            ASSERT_NE(box, nullptr);
            const auto* label = box->findChild<QLabel*>(QStringLiteral("qt_msgbox_label"));
            ASSERT_NE(label, nullptr);
            const QRect words(QPoint(), QSize(label->width(), QWIDGETSIZE_MAX));
            const int flags = label->wordWrap() ? Qt::TextWordWrap : 0;
            const QRect needed = label->fontMetrics().boundingRect(words, flags, QString::fromUtf8(text));
            EXPECT_GE(label->width(), needed.width()) << text;
            EXPECT_GE(label->height(), needed.height()) << text;
            EXPECT_GE(label->width(), 240);
            box->done(0);
        });
        desk.tell({text, "Errore", vorbano::Icon::warning});
    }
}

TEST_F(Boxes, EnterAnswersYesAndEscAnswersNo) {
    for (const auto& [pressed, expected] : {std::pair{Qt::Key_Return, true}, std::pair{Qt::Key_Escape, false}}) {
        const Qt::Key answerKey = pressed;
        QTimer::singleShot(0, qApp, [answerKey] {
            auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
            ASSERT_NE(box, nullptr);
            EXPECT_EQ(box->objectName(), "messageBox");
            EXPECT_EQ(box->textFormat(), Qt::PlainText);
            QTest::keyClick(box, answerKey);
        });
        EXPECT_EQ(desk.ask({"Salvare?", "Domanda", vorbano::Icon::question}), expected);
    }
}

}  // namespace
