// Every gesture: what it does, and how it is refused, with windows and without.

#include "playing.h"

namespace vorbano::test {
namespace {

class Gestures : public Playing {};
INSTANTIATE_TEST_SUITE_P(BothWays, Gestures, testing::Values(Way::bare, Way::windows),
                         testing::PrintToStringParamName());

TEST_P(Gestures, AFieldIsTypedIntoAndKeepsTheFocus) {
    int changes = 0;
    prova->txtIndennita.change.calls([&] { ++changes; });
    EXPECT_EQ(play("type txtIndennità = 12,5\nexpect txtIndennità = 12,5\nexpect txtIndennità focused\n"), "");
    EXPECT_EQ(changes, 4);
}

TEST_P(Gestures, TypingReplacesWhatStoodThere) {
    prova->txtNome.text = std::string("Verdi");
    EXPECT_EQ(play("type txtNome = Rossi\nexpect txtNome = Rossi\ntype txtNome = Bo\nexpect txtNome = Bo\n"), "");
}

TEST_P(Gestures, TypingNothingEmptiesTheField) {
    prova->txtIndennita.text = std::string("12");
    EXPECT_EQ(play("type txtIndennità =\nexpect txtIndennità =\nexpect txtIndennità focused\n"), "");
}

TEST_P(Gestures, AccentsAndSignsAreTyped) {
    EXPECT_EQ(play("type txtIndennità = \"città °€ #\\\\\"\nexpect txtIndennità = \"città °€ #\\\\\"\n"), "");
}

TEST_P(Gestures, NoMoreIsTypedThanTheFieldTakes) {
    EXPECT_EQ(play("type txtNome = Indennità di\nexpect txtNome = \"Indennità \"\n"), "");
}

TEST_P(Gestures, AProcedureCorrectsKeyByKey) {
    prova->txtNome.change.calls([&] {
        std::string text = prova->txtNome.text();
        for (char& one : text) one = one == '.' ? ',' : one;
        prova->txtNome.text = text;
    });
    EXPECT_EQ(play("type txtNome = 1.2.3\nexpect txtNome = 1,2,3\n"), "");
}

TEST_P(Gestures, AProcedureThatMovesTheFocusEndsTheTyping) {
    prova->txtNome.change.calls([&] {
        if (prova->txtNome.text() == "12") prova->form.focus(prova->txtIndennita);
    });
    EXPECT_EQ(play("type txtNome = 1234\nexpect txtNome = 12\nexpect txtIndennità =\nexpect txtIndennità focused\n"),
              "");
}

TEST_P(Gestures, LeaveGoesToTheNextControl) {
    int left = 0;
    prova->txtNome.lostFocus.calls([&] { ++left; });
    EXPECT_EQ(play("type txtNome = A\nleave\nexpect txtIndennità focused\nleave\nexpect cmdSalva focused\n"), "");
    EXPECT_EQ(left, 1);
}

TEST_P(Gestures, AButtonIsClickedAfterTheFieldWasLeft) {
    std::string order;
    prova->txtNome.lostFocus.calls([&] { order += "left "; });
    prova->cmdSalva.clicked.calls([&] { order += "clicked "; });
    EXPECT_EQ(play("type txtNome = A\nclick cmdSalva\nexpect cmdSalva focused\n"), "");
    EXPECT_EQ(order, "left clicked ");
}

TEST_P(Gestures, AClickIsDroppedWhenTheLeaveTookTheFocusBack) {
    int clicks = 0;
    prova->txtNome.lostFocus.calls([&] { prova->form.focus(prova->txtNome); });
    prova->cmdSalva.clicked.calls([&] { ++clicks; });
    EXPECT_EQ(play("type txtNome = A\nclick cmdSalva\nexpect txtNome focused\n"), "");
    EXPECT_EQ(clicks, 0);
}

TEST_P(Gestures, EveryGestureIsDroppedSo) {
    prova->txtNome.lostFocus.calls([&] { prova->form.focus(prova->txtNome); });
    EXPECT_EQ(play("type txtNome = A\ntype txtIndennità = 3\nexpect txtIndennità =\ntick Check1\n"
                   "expect Check1 unticked\nclick Option2\nexpect Option2 unticked\nchoose Combo1 = Europee\n"
                   "expect Combo1 =\nchoose List1 = Bianchi\nexpect List1 =\nleave\nexpect txtNome focused\n"
                   "tab SSTab1 = 1\nexpect SSTab1 = 0\n"),
              "");
}

TEST_P(Gestures, OptionsExcludeEachOther) {
    EXPECT_EQ(play("click Option1\nexpect Option1 ticked\nclick Option2\nexpect Option2 ticked\n"
                   "expect Option1 unticked\nclick Option2\nexpect Option2 ticked\n"),
              "");
}

TEST_P(Gestures, ABoxIsTickedAndUnticked) {
    int clicks = 0;
    prova->Check1.clicked.calls([&] { ++clicks; });
    EXPECT_EQ(play("tick Check1\nexpect Check1 ticked\ntick Check1\nexpect Check1 ticked\nexpect Check1 focused\n"
                   "untick Check1\nexpect Check1 unticked\nuntick Check1\n"),
              "");
    EXPECT_EQ(clicks, 2);
}

TEST_P(Gestures, TickingWhatIsTickedStillTakesTheFocus) {
    prova->Check1.checked = true;
    EXPECT_EQ(play("type txtNome = A\ntick Check1\nexpect Check1 ticked\nexpect Check1 focused\n"), "");
}

TEST_P(Gestures, ALeaveThatTicksTheBoxIsNotUndoneByTheTick) {
    prova->txtNome.lostFocus.calls([&] { prova->Check1.checked = true; });
    EXPECT_EQ(play("type txtNome = A\ntick Check1\nexpect Check1 ticked\n"), "");
}

TEST_P(Gestures, AnItemIsChosenByItsTrimmedText) {
    int clicks = 0;
    prova->Combo1.clicked.calls([&] { ++clicks; });
    EXPECT_EQ(play("choose Combo1 = Europee\nexpect Combo1 = Europee\nchoose Combo1 = Politiche\n"
                   "expect Combo1 = \"Politiche   \"\nchoose Combo1 = Comunali\nexpect Combo1 = Comunali\n"),
              "");
    EXPECT_EQ(clicks, 3);
}

TEST_P(Gestures, ChoosingTheSameItemAgainIsAChoice) {
    int combo = 0;
    int list = 0;
    prova->Combo1.clicked.calls([&] { ++combo; });
    prova->List1.clicked.calls([&] { ++list; });
    EXPECT_EQ(play("choose Combo1 = Europee\nchoose Combo1 = Europee\nchoose List1 = Rossi\nchoose List1 = Rossi\n"),
              "");
    EXPECT_EQ(combo, 2);
    EXPECT_EQ(list, 2);
}

TEST_P(Gestures, AnItemFarDownIsChosen) {
    Lines many;
    for (int at = 0; at < 300; ++at) many.push_back("Comune " + std::to_string(at));
    prova->Combo1.items = many;
    prova->List1.items = many;
    EXPECT_EQ(play("choose Combo1 = Comune 299\nexpect Combo1 = Comune 299\nchoose List1 = Comune 250\n"
                   "expect List1 = Comune 250\n"),
              "");
}

TEST_P(Gestures, ACellIsPicked) {
    std::string picked;
    prova->MSFlexGrid1.picked.calls([&] {
        picked += std::to_string(prova->MSFlexGrid1.row) + "/" + std::to_string(prova->MSFlexGrid1.column) + " ";
    });
    EXPECT_EQ(play("pick MSFlexGrid1 2 0\npick MSFlexGrid1 1 2\npick MSFlexGrid1 0 1\n"), "");
    EXPECT_EQ(picked, "2/0 1/2 0/1 ");
}

TEST_P(Gestures, APanelIsPressedAndMovedOver) {
    int presses = 0;
    bool moved = false;
    prova->Frame2.pressed.calls([&] { ++presses; });
    prova->Frame2.moved.calls([&] { moved = true; });
    EXPECT_EQ(play("press Frame2\n"), "");
    EXPECT_EQ(presses, 1);
    moved = false;
    EXPECT_EQ(play("move Frame2\n"), "");
    EXPECT_TRUE(moved);
    EXPECT_EQ(presses, 1);
}

TEST_P(Gestures, APageIsOpened) {
    EXPECT_EQ(play("expect txtSeconda hidden\ntab SSTab1 = 1\nexpect SSTab1 = 1\nexpect txtSeconda visible\n"
                   "type txtSeconda = x\ntab SSTab1 = 0\nexpect txtPrima visible\nexpect txtSeconda hidden\n"),
              "");
}

TEST_P(Gestures, AMenuEntryIsChosen) {
    int chosen = 0;
    prova->mnuTurno.clicked.calls([&] { ++chosen; });
    EXPECT_EQ(play("menu mnu1°Turno\n"), "");
    EXPECT_EQ(chosen, 1);
}

TEST_P(Gestures, TheWindowInFrontIsClosed) {
    prova->cmdSalva.clicked.calls([&] { desktop->show(sopra.form); });
    EXPECT_EQ(play("click cmdSalva\nscreen frmSopra\nclose\nscreen frmProva\n"), "");
}

struct Refused {
    const char* gesture;
    const char* why;
    std::function<void(frmProva&)> setUp;
};

std::vector<Refused> refusedGestures() {
    const auto nothing = [](frmProva&) {};
    return {
        {"click cmdSalva", "cmdSalva is disabled", [](frmProva& on) { on.cmdSalva.enabled = false; }},
        {"click cmdSalva", "cmdSalva is not visible", [](frmProva& on) { on.cmdSalva.visible = false; }},
        {"type txtNome = A", "txtNome is disabled", [](frmProva& on) { on.txtNome.enabled = false; }},
        {"type txtNome = A", "txtNome is locked", [](frmProva& on) { on.txtNome.locked = true; }},
        {"type txtNome = A", "txtNome is not visible", [](frmProva& on) { on.txtNome.visible = false; }},
        {"click Option1", "Option1 is disabled", [](frmProva& on) { on.Frame1.enabled = false; }},
        {"click Option1", "Option1 is not visible", [](frmProva& on) { on.Frame1.visible = false; }},
        {"tick Check1", "Check1 is disabled", [](frmProva& on) { on.Check1.enabled = false; }},
        {"untick Check1", "Check1 is not visible", [](frmProva& on) { on.Check1.visible = false; }},
        {"choose Combo1 = Europee", "Combo1 is disabled", [](frmProva& on) { on.Combo1.enabled = false; }},
        {"choose Combo1 = Regionali", "Combo1 has no such item", nothing},
        {"choose List1 = Verdi", "List1 has no such item", nothing},
        {"pick MSFlexGrid1 3 0", "MSFlexGrid1 has no such item", nothing},
        {"pick MSFlexGrid1 1 3", "MSFlexGrid1 has no such item", nothing},
        {"pick MSFlexGrid1 1 1", "MSFlexGrid1 is disabled", [](frmProva& on) { on.MSFlexGrid1.enabled = false; }},
        {"press Frame2", "Frame2 is disabled", [](frmProva& on) { on.Frame2.enabled = false; }},
        {"move Frame2", "Frame2 is not visible", [](frmProva& on) { on.Frame2.visible = false; }},
        {"tab SSTab1 = 2", "SSTab1 has no such item", nothing},
        {"tab SSTab1 = 1", "SSTab1 is disabled", [](frmProva& on) { on.SSTab1.enabled = false; }},
        {"type txtSeconda = A", "txtSeconda is not visible", nothing},
        {"menu mnu1°Turno", "mnu1°Turno is disabled", [](frmProva& on) { on.mnuTurno.enabled = false; }},
        {"menu mnu1°Turno", "mnu1°Turno is disabled", [](frmProva& on) { on.mnuFile.enabled = false; }},
        {"menu mnu1°Turno", "mnu1°Turno is not visible", [](frmProva& on) { on.mnuFile.visible = false; }},
        {"click txtNome", "txtNome is not of that kind", nothing},
        {"click Check1", "Check1 is not of that kind", nothing},
        {"type cmdSalva = A", "cmdSalva is not of that kind", nothing},
        {"tick Option1", "Option1 is not of that kind", nothing},
        {"choose txtNome = A", "txtNome is not of that kind", nothing},
        {"pick List1 0 0", "List1 is not of that kind", nothing},
        {"press cmdSalva", "cmdSalva is not of that kind", nothing},
        {"tab Frame1 = 0", "Frame1 is not of that kind", nothing},
        {"menu cmdSalva", "cmdSalva is not of that kind", nothing},
        {"click Label28", "Label28 is not of that kind", nothing},
    };
}

TEST_P(Gestures, AreRefusedAlikeWithWindowsAndWithout) {
    for (const Refused& refused : refusedGestures()) {
        prova = std::make_unique<frmProva>();
        refused.setUp(*prova);
        EXPECT_EQ(failureAt(1, std::string(refused.gesture) + "\n"),
                  "expected `" + std::string(refused.gesture) + "`, was refused: " + refused.why);
    }
}

TEST_P(Gestures, OnAControlThatIsNotThereFail) {
    EXPECT_EQ(failureAt(2, "leave\nclick cmdNiente\n"),
              "expected a control cmdNiente on frmProva, was none of that name");
}

}  // namespace
}  // namespace vorbano::test
