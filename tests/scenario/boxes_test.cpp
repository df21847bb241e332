// Message boxes and forms above forms, inside the gestures that bring them about.

#include "playing.h"

namespace vorbano::test {
namespace {

class Boxes : public Playing {};
INSTANTIATE_TEST_SUITE_P(BothWays, Boxes, testing::Values(Way::bare, Way::windows), testing::PrintToStringParamName());

TEST_P(Boxes, ABoxFollowsTheGestureThatRaisesIt) {
    prova->cmdSalva.clicked.calls([&] {
        tell("Vorbano", "Prima riga\r\nSeconda \"riga\"");
        prova->Label1.text = std::string("dopo");
    });
    EXPECT_EQ(play("click cmdSalva\nbox \"Vorbano\" \"Prima riga\\nSeconda \\\"riga\\\"\" -> OK\n"
                   "expect Label1 = dopo\n"),
              "");
}

TEST_P(Boxes, AQuestionIsAnswered) {
    std::string answers;
    prova->cmdSalva.clicked.calls([&] { answers += ask("Domanda", "Salvare?") ? "yes " : "no "; });
    EXPECT_EQ(play("click cmdSalva\nbox \"Domanda\" \"Salvare?\" -> Sì\nclick cmdSalva\n"
                   "box \"Domanda\" \"Salvare?\" -> No\nclick cmdSalva\nbox \"Domanda\" \"Salvare?\" -> Si\n"),
              "");
    EXPECT_EQ(answers, "yes no yes ");
}

TEST_P(Boxes, SeveralBoxesInOneGesture) {
    prova->cmdSalva.clicked.calls([&] {
        tell("a", "1");
        if (ask("b", "2")) tell("c", "3");
    });
    EXPECT_EQ(play("click cmdSalva\nbox \"a\" \"1\" -> OK\nbox \"b\" \"2\" -> Sì\nbox \"c\" \"3\" -> OK\nleave\n"), "");
}

TEST_P(Boxes, ABoxWithOtherWordsFails) {
    prova->cmdSalva.clicked.calls([&] { tell("Vorbano", "Fatto"); });
    EXPECT_EQ(failureAt(2, "click cmdSalva\nbox \"Vorbano\" \"fatto\" -> OK\n"),
              "expected the box \"Vorbano\" \"fatto\", was the box \"Vorbano\" \"Fatto\"");
    EXPECT_EQ(failureAt(2, "click cmdSalva\nbox \"Vorbano \" \"Fatto\" -> OK\n"),
              "expected the box \"Vorbano \" \"Fatto\", was the box \"Vorbano\" \"Fatto\"");
}

TEST_P(Boxes, AnswersOfTheWrongKindFail) {
    prova->cmdSalva.clicked.calls([&] { tell("a", "b"); });
    EXPECT_EQ(failureAt(2, "click cmdSalva\nbox \"a\" \"b\" -> Sì\n"), "expected the answer Sì, was a box with OK");
    prova = std::make_unique<frmProva>();
    prova->cmdSalva.clicked.calls([&] { ask("a", "b"); });
    EXPECT_EQ(failureAt(2, "click cmdSalva\nbox \"a\" \"b\" -> OK\n"),
              "expected the answer OK, was a box with Sì and No");
}

TEST_P(Boxes, ABoxThatNoLineExpectsFails) {
    bool wentOn = false;
    prova->cmdSalva.clicked.calls([&] {
        tell("a", "b");
        wentOn = true;
    });
    EXPECT_EQ(failureAt(2, "click cmdSalva\nleave\n"), "expected `leave`, was the box \"a\" \"b\"");
    EXPECT_TRUE(wentOn);
}

TEST_P(Boxes, ABoxAfterTheLastLineFails) {
    prova->cmdSalva.clicked.calls([&] { tell("a", "b"); });
    EXPECT_EQ(failureAt(1, "click cmdSalva\n"), "expected the end of the scenario, was the box \"a\" \"b\"");
}

TEST_P(Boxes, ABoxThatDoesNotComeFails) {
    EXPECT_EQ(failureAt(2, "click cmdSalva\nbox \"a\" \"b\" -> OK\n"),
              "expected `box \"a\" \"b\" -> OK`, was the window frmProva");
}

TEST_P(Boxes, ABoxAtTheStartIsTheFirstLine) {
    beforeStart = [&] { tell("Vorbano", "Inserire denominazione Ente"); };
    EXPECT_EQ(play("box \"Vorbano\" \"Inserire denominazione Ente\" -> OK\nscreen frmProva\n"), "");
}

TEST_P(Boxes, ABoxWhileTheWindowComesToTheFront) {
    prova->form.activated.calls([&] { tell("Vorbano", "Benvenuto"); });
    prova->cmdSalva.clicked.calls([&] { desktop->show(sopra.form); });
    EXPECT_EQ(play("box \"Vorbano\" \"Benvenuto\" -> OK\nclick cmdSalva\nscreen frmSopra\nclick cmdChiudi\n"
                   "box \"Vorbano\" \"Benvenuto\" -> OK\nscreen frmProva\n"),
              "");
}

TEST_P(Boxes, ABoxInsideALeaveLosesNothing) {
    std::string order;
    prova->txtNome.lostFocus.calls([&] {
        order += "left ";
        tell("Nome", "Manca");
    });
    prova->cmdSalva.clicked.calls([&] { order += "clicked"; });
    EXPECT_EQ(play("type txtNome = A\nclick cmdSalva\nbox \"Nome\" \"Manca\" -> OK\nexpect cmdSalva focused\n"), "");
    EXPECT_EQ(order, "left clicked");
}

TEST_P(Boxes, ABoxInsideALeaveThatTakesTheFocusBack) {
    prova->txtNome.lostFocus.calls([&] {
        tell("Nome", "Manca");
        prova->form.focus(prova->txtNome);
    });
    int clicks = 0;
    prova->cmdSalva.clicked.calls([&] { ++clicks; });
    EXPECT_EQ(play("type txtNome = A\nclick cmdSalva\nbox \"Nome\" \"Manca\" -> OK\nexpect txtNome focused\nleave\n"
                   "box \"Nome\" \"Manca\" -> OK\nexpect txtNome focused\n"),
              "");
    EXPECT_EQ(clicks, 0);
}

TEST_P(Boxes, EveryGestureGoesOnAfterABoxInTheLeave) {
    const char* gestures[] = {"click Option1\nbox \"a\" \"b\" -> OK\nexpect Option1 ticked\n",
                              "tick Check1\nbox \"a\" \"b\" -> OK\nexpect Check1 ticked\n",
                              "choose Combo1 = Europee\nbox \"a\" \"b\" -> OK\nexpect Combo1 = Europee\n",
                              "choose List1 = Bianchi\nbox \"a\" \"b\" -> OK\nexpect List1 = Bianchi\n",
                              "type txtIndennità = 12\nbox \"a\" \"b\" -> OK\nexpect txtIndennità = 12\n",
                              "tab SSTab1 = 1\nbox \"a\" \"b\" -> OK\nexpect SSTab1 = 1\n",
                              "leave\nbox \"a\" \"b\" -> OK\nexpect txtIndennità focused\n"};
    for (const char* gesture : gestures) {
        prova = std::make_unique<frmProva>();
        prova->txtNome.lostFocus.calls([&] { tell("a", "b"); });
        EXPECT_EQ(play(std::string("type txtNome = A\n") + gesture), "") << gesture;
    }
}

TEST_P(Boxes, ABoxAtAKeyDoesNotEndTheTyping) {
    prova->txtNome.change.calls([&] {
        if (prova->txtNome.text() == "12") tell("Nome", "Due");
    });
    EXPECT_EQ(play("type txtNome = 123\nbox \"Nome\" \"Due\" -> OK\nexpect txtNome = 123\n"), "");
}

TEST_P(Boxes, BehindABoxTheWindowCanBeLookedAt) {
    EXPECT_TRUE(writeWhole(files, "a.dat", "xyz"));
    prova->cmdSalva.clicked.calls([&] {
        prova->Label1.text = std::string("sotto");
        tell("a", "b");
    });
    EXPECT_EQ(play("click cmdSalva\nexpect Label1 = sotto\nscreen frmProva\nfile a.dat = 3\nbox \"a\" \"b\" -> OK\n"),
              "");
}

TEST_P(Boxes, FormsAboveForms) {
    frmMarca third;
    prova->cmdSalva.clicked.calls([&] {
        desktop->show(sopra.form);
        prova->Label1.text = std::string("tornato");
    });
    sopra.cmdAvanti.clicked.calls([&] {
        desktop->show(third.form);
        tell("Sopra", "Chiuso");
    });
    EXPECT_EQ(
        play("click cmdSalva\nscreen frmSopra\ntype txtNota = x\nclick cmdAvanti\nscreen frmMarca\n"
             "press Frame9\nbox \"Sopra\" \"Chiuso\" -> OK\nscreen frmSopra\nexpect txtNota = x\nclick cmdChiudi\n"
             "screen frmProva\nexpect Label1 = tornato\n"),
        "");
}

TEST_P(Boxes, AnotherWindowThanTheOneExpectedFails) {
    EXPECT_EQ(failureAt(1, "screen frmSopra\n"), "expected the window frmSopra, was the window frmProva");
}

TEST_P(Boxes, AFormThatClosesAtItsActivation) {
    sopra.form.activated.calls([&] { sopra.form.close(); });
    prova->cmdSalva.clicked.calls([&] { desktop->show(sopra.form); });
    EXPECT_EQ(play("click cmdSalva\nscreen frmProva\n"), "");
}

TEST_P(Boxes, TheSplashWindowNeedsNoLine) {
    beforeStart = [&] { desktop->showBeside(splash.form); };
    EXPECT_EQ(play("screen frmProva\nclick cmdSalva\n"), "");
}

TEST_P(Boxes, TheSplashWindowCanBePressed) {
    beforeStart = [&] { desktop->showBeside(splash.form); };
    EXPECT_EQ(play("screen frmMarca\nexpect lblVersion = \"Versione 3.9.6\\n2024\"\npress Frame9\nscreen frmProva\n"),
              "");
    EXPECT_FALSE(splash.form.isOpen());
}

TEST_P(Boxes, TheSplashWindowCanBeClosed) {
    beforeStart = [&] { desktop->showBeside(splash.form); };
    EXPECT_EQ(play("screen frmMarca\nclose\nscreen frmProva\n"), "");
    EXPECT_FALSE(splash.form.isOpen());
}

TEST_P(Boxes, OtherGesturesMeanTheWindowInFront) {
    beforeStart = [&] { desktop->showBeside(splash.form); };
    EXPECT_EQ(play("screen frmMarca\ntype txtNome = A\nexpect txtNome = A\nclose\n"), "");
    EXPECT_FALSE(prova->form.isOpen());
}

TEST_P(Boxes, AClosedSplashWindowIsNotThere) {
    beforeStart = [&] {
        desktop->showBeside(splash.form);
        splash.form.close();
    };
    EXPECT_EQ(failureAt(1, "screen frmMarca\n"), "expected the window frmMarca, was the window frmProva");
}

TEST_P(Boxes, TheSplashWindowGoesWithTheProgram) {
    auto mark = std::make_unique<frmMarca>();
    beforeStart = [&] {
        desktop->showBeside(mark->form);
        tell("Vorbano", "Manca");
    };
    prova->form.closing.calls([&] { EXPECT_TRUE(mark->form.isOpen()); });
    EXPECT_EQ(play("box \"Vorbano\" \"Manca\" -> OK\nscreen frmMarca\n"), "");
    EXPECT_FALSE(mark->form.isOpen());
    EXPECT_EQ(failureAt(1, "leave\n"), "expected `leave`, was the box \"Vorbano\" \"Manca\"");
    EXPECT_FALSE(mark->form.isOpen());
}

TEST_P(Boxes, OpenFormsAreClosedQuietlyAtTheEnd) {
    std::string closed;
    sopra.form.closing.calls([&] {
        closed += ask("Uscire", "Davvero?") ? "yes " : "no ";
        tell("Uscire", "Addio");
    });
    prova->form.closing.calls([&] { closed += "main"; });
    prova->cmdSalva.clicked.calls([&] {
        desktop->show(sopra.form);
        desktop->show(sopra.form);
    });
    EXPECT_EQ(play("click cmdSalva\nscreen frmSopra\n"), "");
    EXPECT_EQ(closed, "no main");
}

TEST_P(Boxes, LinesAfterTheEndOfTheProgramFail) {
    EXPECT_EQ(failureAt(2, "close\nleave\n"),
              "expected `leave`, was the end of the program, its main window is closed");
    EXPECT_EQ(failureAt(2, "close\nbox \"a\" \"b\" -> OK\n"),
              "expected `box \"a\" \"b\" -> OK`, was the end of the program, its main window is closed");
}

TEST_P(Boxes, FilesCanBeLookedAtAfterTheEndOfTheProgram) {
    prova->form.closing.calls([&] { EXPECT_TRUE(writeWhole(files, "a.dat", "xyz")); });
    EXPECT_EQ(play("file a.dat = missing\nclose\nfile a.dat = 3\n"), "");
}

TEST_P(Boxes, TheDayIsTheOneOfTheScenario) {
    using std::chrono::year;
    std::vector<std::chrono::year_month_day> days;
    beforeStart = [&] { days.push_back(desktop->today()); };
    prova->cmdSalva.clicked.calls([&] { days.push_back(desktop->today()); });
    EXPECT_EQ(play("# the start\ntoday 2024-06-10\nclick cmdSalva\ntoday 2013-02-24\nclick cmdSalva\n"), "");
    EXPECT_THAT(days, testing::ElementsAre(year(2024) / 6 / 10, year(2024) / 6 / 10, year(2013) / 2 / 24));
}

}  // namespace
}  // namespace vorbano::test
