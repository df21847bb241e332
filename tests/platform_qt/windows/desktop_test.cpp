// Windows above windows, as the program opens them.

#include <QScreen>

#include "window_fixture.h"

using testing::Contains;
using testing::ElementsAre;
using testing::IsEmpty;

namespace {

class Desk : public testing::Test {
  protected:
    frmProva main;
    frmProva upper;
    vorbano::QtDesktop desk;
    std::vector<std::string> told;

    void clickIn(const vorbano::Form& form, const vorbano::Control& control) {
        QTest::mouseClick(desk.windowOf(form)->widgetOf(control), Qt::LeftButton);
    }
};

TEST_F(Desk, AFormIsShownUntilItCloses) {
    EXPECT_EQ(desk.front(), nullptr);
    EXPECT_EQ(desk.frontWindow(), nullptr);
    whenInFront(desk, main.form, [this] {
        EXPECT_EQ(desk.frontWindow(), desk.windowOf(main.form));
        desk.windowOf(main.form)->close();
    });
    desk.show(main.form);
    EXPECT_THAT(main.log, ElementsAre("activated", "txtData entered", "closing"));
    EXPECT_EQ(desk.front(), nullptr);
    EXPECT_EQ(desk.windowOf(main.form), nullptr);
}

TEST_F(Desk, AFormIsOpenedAboveAnotherOneAndTheOneBelowComesBackToTheFront) {
    main.cmdSalva.clicked.calls([this] { desk.show(upper.form); });
    whenInFront(desk, main.form, [this] {
        whenInFront(desk, upper.form, [this] {
            EXPECT_EQ(desk.windowOf(upper.form)->parentWidget(), desk.windowOf(main.form));
            EXPECT_TRUE(desk.windowOf(upper.form)->isModal());
            desk.windowOf(upper.form)->close();
        });
        main.log.clear();
        clickIn(main.form, main.cmdSalva);
        EXPECT_EQ(desk.front(), &main.form);
        main.form.close();
    });
    desk.show(main.form);
    EXPECT_THAT(main.log, ElementsAre("txtData left", "cmdSalva clicked", "activated", "closing"));
    EXPECT_THAT(upper.log, ElementsAre("activated", "txtData entered", "closing"));
}

TEST_F(Desk, ABoxOfTheActivationLiesAboveTheVisibleWindow) {
    main.form.activated.calls([this] {
        EXPECT_TRUE(desk.windowOf(main.form)->isVisible());
        desk.tell({"Inserire denominazione Ente", "Vorbano", vorbano::Icon::information});
    });
    whenBoxComes(told, "OK");
    whenInFront(desk, main.form, [this] { main.form.close(); });
    desk.show(main.form);
    EXPECT_THAT(told, ElementsAre("Vorbano: Inserire denominazione Ente"));
}

TEST_F(Desk, AFormThatClosesItselfAsItOpensIsNotWaitedFor) {
    main.form.activated.calls([this] { main.form.close(); });
    desk.show(main.form);
    EXPECT_THAT(main.log, ElementsAre("activated", "closing"));
    EXPECT_EQ(desk.front(), nullptr);
}

TEST_F(Desk, TheSameFormCanBeShownAgain) {
    for (int time = 0; time < 2; ++time) {
        whenInFront(desk, main.form, [this] { main.form.close(); });
        desk.show(main.form);
    }
    EXPECT_EQ(std::count(main.log.begin(), main.log.end(), "closing"), 2);
}

TEST_F(Desk, AFormMayOpenAnotherOneAfterItHasClosedItself) {
    frmProva last;
    main.cmdSalva.clicked.calls([this] { desk.show(upper.form); });
    upper.cmdEsci.clicked.calls([this, &last] {
        upper.form.close();
        desk.show(last.form);
    });
    whenInFront(desk, main.form, [this, &last] {
        whenInFront(desk, upper.form, [this, &last] {
            whenInFront(desk, last.form, [&last] { last.form.close(); });
            clickIn(upper.form, upper.cmdEsci);
        });
        clickIn(main.form, main.cmdSalva);
        main.form.close();
    });
    desk.show(main.form);
    EXPECT_THAT(last.log, Contains("closing"));
    EXPECT_THAT(main.log, Contains("closing"));
}

TEST_F(Desk, AFormBesideLeavesTheOneInFrontUsable) {
    frmProva splash;
    desk.showBeside(splash.form);
    EXPECT_EQ(desk.beside(), &splash.form);
    EXPECT_EQ(desk.front(), nullptr);
    whenInFront(desk, main.form, [this, &splash] {
        EXPECT_TRUE(desk.windowOf(splash.form)->isVisible());
        clickIn(main.form, main.cmdSalva);
        EXPECT_THAT(main.log, Contains("cmdSalva clicked"));
        splash.form.close();
        EXPECT_EQ(desk.beside(), nullptr);
        EXPECT_EQ(desk.windowOf(splash.form), nullptr);
        main.form.close();
    });
    desk.show(main.form);
}

TEST_F(Desk, AFormBesideThatClosesBeforeTheClerkIsWaitedForNeverComesOnTheScreen) {
    frmProva splash;
    desk.showBeside(splash.form);
    EXPECT_TRUE(splash.form.isOpen());
    splash.form.close();
    EXPECT_EQ(desk.beside(), nullptr);
    QCoreApplication::processEvents();
    EXPECT_EQ(desk.windowOf(splash.form), nullptr);
    desk.showBeside(splash.form);
    desk.showBeside(upper.form);
    EXPECT_FALSE(splash.form.isOpen());
    QCoreApplication::processEvents();
    EXPECT_EQ(desk.windowOf(splash.form), nullptr);
    EXPECT_TRUE(desk.windowOf(upper.form)->isVisible());
}

TEST_F(Desk, ABoxLiesAboveWhatStandsBeside) {
    frmProva splash;
    main.form.activated.calls([this, &splash] {
        desk.showBeside(splash.form);
        whenBoxComes(told, "OK");
        desk.tell({"Inserire denominazione Ente", "Vorbano", vorbano::Icon::information});
        EXPECT_TRUE(desk.windowOf(splash.form)->isVisible());
    });
    whenInFront(desk, main.form, [this, &splash] {
        splash.form.close();
        main.form.close();
    });
    desk.show(main.form);
    EXPECT_THAT(told, ElementsAre("Vorbano: Inserire denominazione Ente"));
}

TEST_F(Desk, AFormBesideGoesAwayAtAKeyOrAPress) {
    frmProva splash;
    splash.Frame1.pressed.calls([&splash] { splash.form.close(); });
    desk.showBeside(splash.form);
    QCoreApplication::processEvents();
    QTest::keyClick(desk.windowOf(splash.form), Qt::Key_Space);
    EXPECT_FALSE(splash.form.isOpen());
    desk.showBeside(splash.form);
    QCoreApplication::processEvents();
    clickIn(splash.form, splash.Frame1);
    EXPECT_FALSE(splash.form.isOpen());
}

TEST_F(Desk, AFormBesideAWindowCanBeUsedAboveIt) {
    frmProva splash;
    splash.note(splash.cmdEsci.clicked, "cmdEsci clicked");
    whenInFront(desk, main.form, [this, &splash] {
        desk.showBeside(splash.form);
        QCoreApplication::processEvents();
        clickIn(splash.form, splash.cmdEsci);
        EXPECT_THAT(splash.log, Contains("cmdEsci clicked"));
        EXPECT_EQ(desk.front(), &main.form);
        main.form.close();
    });
    desk.show(main.form);
    // With the last window the program ends, and nothing stays on the screen.
    EXPECT_FALSE(splash.form.isOpen());
    EXPECT_EQ(desk.beside(), nullptr);
}

TEST_F(Desk, TheMainWindowOpensInTheMiddleOfTheScreen) {
    vorbano::Form first("Form1", "Vorbano");
    whenInFront(desk, first, [this, &first] {
        const QWidget& window = *desk.windowOf(first);
        const QPoint off = window.geometry().center() - window.screen()->availableGeometry().center();
        EXPECT_LE(off.manhattanLength(), 2);
        first.close();
    });
    desk.show(first);
}

TEST_F(Desk, NoWindowIsLargerThanTheScreen) {
    frmProva many;
    std::vector<std::unique_ptr<vorbano::TextBox>> fields;
    vorbano::Form tall("frmAlta", "Alta");
    fields.reserve(120);
    for (int at = 0; at < 120; ++at) {
        fields.push_back(std::make_unique<vorbano::TextBox>(tall, "txt" + std::to_string(at)));
    }
    whenInFront(desk, tall, [this, &tall, &fields] {
        const QWidget* window = desk.windowOf(tall);
        const QRect room = window->screen()->availableGeometry();
        EXPECT_TRUE(room.contains(window->geometry()));
        // The last field is brought into view when it is entered.
        tall.focus(*fields.back());
        const QWidget* field = desk.windowOf(tall)->widgetOf(*fields.back());
        const QPoint place = field->mapTo(window, field->rect().center());
        EXPECT_TRUE(window->rect().contains(place));
        tall.close();
    });
    desk.show(tall);
}

TEST_F(Desk, TodayIsTheClockOrWhatWasSet) {
    desk.setToday({std::chrono::year(2024), std::chrono::month(6), std::chrono::day(10)});
    EXPECT_EQ(desk.today(), std::chrono::year(2024) / 6 / 10);
}

}  // namespace
