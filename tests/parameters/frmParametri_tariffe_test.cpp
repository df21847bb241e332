// The staff's tab: opening, activating rows, typing, saving.

#include "parameters_desk.h"

namespace vorbano::test {
namespace {

struct BoxOfKey {
    std::string_view key;
    std::string_view box;
};
/// In record order.
constexpr std::array<BoxOfKey, 32> staffBoxes = {{
    {"D5", "Check1"},   {"D4", "Check2"},  {"D3a", "Check3"},  {"D3b", "Check4"},  {"D2", "Check5"},
    {"D1", "Check6"},   {"C4", "Check7"},  {"C3", "Check8"},   {"C2", "Check9"},   {"C1", "Check10"},
    {"B6", "Check11"},  {"B5", "Check12"}, {"B4a", "Check13"}, {"B3a", "Check14"}, {"B4b", "Check27"},
    {"B3b", "Check28"}, {"B2", "Check29"}, {"B1", "Check30"},  {"A4", "Check31"},  {"A3", "Check32"},
    {"A2", "Check33"},  {"A1", "Check34"}, {"D6a", "Check35"}, {"D6b", "Check39"}, {"D5b", "Check38"},
    {"D4b", "Check37"}, {"C5", "Check40"}, {"B7a", "Check41"}, {"B7b", "Check44"}, {"B6b", "Check43"},
    {"B5b", "Check42"}, {"A5", "Check36"},
}};

bool isG(std::string_view key) { return key == "B6" || key == "B5" || key == "B4a" || key == "B3a" || key == "B7a"; }

class StaffTab : public ParametriTest {
  protected:
    void expectFields(std::string_view key, bool on) {
        for (const char* kind : {"Day", "Fn", "Nf"}) {
            const std::string name = "txt" + std::string(key) + kind;
            EXPECT_EQ(enabled(name), on) << name;
        }
    }
    void expectLocked() {
        for (const BoxOfKey& one : staffBoxes) {
            expectFields(one.key, false);
            EXPECT_FALSE(ticked(one.box)) << one.box;
        }
        EXPECT_FALSE(enabled("cmdSalva"));
        EXPECT_TRUE(enabled("cmdStampa"));
    }
};

TEST_F(StaffTab, WithoutRatesAsksForThemAndOpensEveryRow) {
    desktop.box(title, noStaffRates);
    open();
    EXPECT_TRUE(enabled("cmdSalva"));
    EXPECT_FALSE(enabled("cmdStampa"));
    EXPECT_TRUE(ticked("Check20"));
    EXPECT_EQ(focused(), "txtD5Day");
    for (const BoxOfKey& one : staffBoxes) expectFields(one.key, !isG(one.key));
}

TEST_F(StaffTab, WithRatesShowsThemLocked) {
    openWithRates("");
    expectLocked();
    EXPECT_FALSE(ticked("Check20"));
    for (int number = 1; number <= 32; ++number) {
        const std::string key(staffBoxes[static_cast<std::size_t>(number) - 1].key);
        EXPECT_EQ(text("txt" + key + "Day"), std::to_string(number) + ",01");
        EXPECT_EQ(text("txt" + key + "Fn"), std::to_string(number) + ",02");
        EXPECT_EQ(text("txt" + key + "Nf"), std::to_string(number) + ",03");
    }
}

TEST_F(StaffTab, RatesAreShownThroughThePicture) {
    openWithRates("", [](int number, int) { return number == 1 ? 123'450 : number == 2 ? 5 : 0; });
    EXPECT_EQ(text("txtD5Day"), "1.234,50");
    EXPECT_EQ(text("txtD4Fn"), "0,05");
    EXPECT_EQ(text("txtA5Nf"), "0,00");
}

TEST_F(StaffTab, EachBoxCarriesTheLabelOfItsRow) {
    openWithRates("");
    for (std::size_t row = 0; row < 32; ++row) EXPECT_EQ(text(staffBoxes[row].box), expectedRows[row].grade);
}

TEST_F(StaffTab, TheCommandsCarryTheirCaptions) {
    openWithRates("");
    EXPECT_EQ(text("cmdSalva"), "Salva modifiche");
    EXPECT_EQ(text("cmdStampa"), "Stampa");
    EXPECT_EQ(text("Check20"), "Attiva modifiche di tutti i parametri");
    EXPECT_EQ(text("mnuEsci"), "Esci");
}

TEST_F(StaffTab, ABoxOpensItsRowAndClosesItAgain) {
    openWithRates("");
    for (const BoxOfKey& one : staffBoxes) {
        if (isG(one.key)) continue;
        SCOPED_TRACE(one.box);
        tick(one.box);
        expectFields(one.key, true);
        EXPECT_EQ(focused(), "txt" + std::string(one.key) + "Day");
        EXPECT_TRUE(enabled("cmdSalva"));
        EXPECT_FALSE(enabled("cmdStampa"));
        tick(one.box, false);
        expectLocked();
    }
}

TEST_F(StaffTab, TheBoxOfAGradeWithAGDoesNothing) {
    openWithRates("");
    for (const BoxOfKey& one : staffBoxes) {
        if (!isG(one.key)) continue;
        SCOPED_TRACE(one.box);
        tick(one.box);
        expectFields(one.key, false);
        EXPECT_FALSE(enabled("cmdSalva"));
        EXPECT_TRUE(enabled("cmdStampa"));
        EXPECT_EQ(focused(), one.box);
    }
}

TEST_F(StaffTab, ClosingOneOfTwoOpenRowsTakesTheSavingAway) {
    openWithRates("");
    tick("Check1");
    tick("Check5");
    tick("Check1", false);
    expectFields("D2", true);
    EXPECT_FALSE(enabled("cmdSalva"));
    EXPECT_TRUE(enabled("cmdStampa"));
}

TEST_F(StaffTab, WithTheMarkNARowOpensWithoutTheSaving) {
    openWithRates("");
    EXPECT_EQ(text("Label28"), "");
    screen->Label28.text = std::string("N");
    tick("Check5");
    expectFields("D2", true);
    EXPECT_FALSE(enabled("cmdStampa"));
    EXPECT_FALSE(enabled("cmdSalva"));
}

TEST_F(StaffTab, ActivatingAllOpensTheTwentySevenRowsThatCanBeChanged) {
    openWithRates("");
    tick("Check20");
    int open = 0;
    for (const BoxOfKey& one : staffBoxes) {
        SCOPED_TRACE(one.box);
        EXPECT_EQ(ticked(one.box), !isG(one.key));
        expectFields(one.key, !isG(one.key));
        open += ticked(one.box) ? 1 : 0;
    }
    EXPECT_EQ(open, 27);
    EXPECT_TRUE(enabled("cmdSalva"));
    EXPECT_FALSE(enabled("cmdStampa"));
}

TEST_F(StaffTab, ClearingAllClosesEveryRowAlsoTheBoxesWithAG) {
    openWithRates("");
    tick("Check11");
    tick("Check20");
    tick("Check20", false);
    expectLocked();
}

TEST_F(StaffTab, ATypedPointShowsAsACommaBeforeAnyConversion) {
    openWithRates("");
    tick("Check20");
    for (const BoxOfKey& one : staffBoxes) {
        if (isG(one.key)) continue;
        for (const char* kind : {"Day", "Fn", "Nf"}) {
            const std::string name = "txt" + std::string(one.key) + kind;
            type(name, "10.2");
            EXPECT_EQ(text(name), "10,2") << name;
        }
    }
}

TEST_F(StaffTab, AFieldStaysAsTypedOnLeaving) {
    openWithRates("");
    tick("Check5");
    type("txtD2Day", "9,5");
    clerk().leave();
    EXPECT_EQ(text("txtD2Day"), "9,5");
    EXPECT_EQ(focused(), "txtD2Fn");
}

TEST_F(StaffTab, SavingOneRowWritesTheWholeTableWithTheOthersAsShown) {
    openWithRates("");
    tick("Check5");
    type("txtD2Day", "15.50");
    click("cmdSalva");
    EXPECT_EQ(toHex(file("PmDip.dat")), toHex(tariffBytes("", [](int number, int kind) {
                  return number == 5 && kind == 0 ? 1550 : distinctCents(number, kind);
              })));
}

TEST_F(StaffTab, AFirstSaveWithEmptyFieldsStillWritesEveryLabel) {
    desktop.box(title, noStaffRates);
    open();
    click("cmdSalva");
    EXPECT_EQ(toHex(file("PmDip.dat")), toHex(tariffBytes("", noCents)));
    expectLocked();
}

TEST_F(StaffTab, SavingLocksTheRowsOpenedOneByOne) {
    openWithRates("");
    tick("Check5");
    tick("Check36");
    click("cmdSalva");
    expectLocked();
    EXPECT_FALSE(ticked("Check20"));
}

TEST_F(StaffTab, SavingRoundsToCentsHalfAwayFromZero) {
    openWithRates("", noCents);
    tick("Check5");
    type("txtD2Day", "10,275");
    type("txtD2Fn", "10,2649");
    type("txtD2Nf", "-0,005");
    click("cmdSalva");
    EXPECT_EQ(toHex(file("PmDip.dat")), toHex(tariffBytes("", [](int number, int kind) {
                  constexpr std::array<int, 3> rounded = {1028, 1026, -1};
                  return number == 5 ? rounded.at(static_cast<std::size_t>(kind)) : 0;
              })));
    EXPECT_EQ(text("txtD2Day"), "10,275");
}

TEST_F(StaffTab, AThousandsPointOnShowIsNoComma) {
    openWithRates("", [](int number, int) { return number == 5 ? 123'450 : 0; });
    tick("Check5");
    EXPECT_EQ(clerk().edit(control("txtD2Day"), "1.234,5"), Refusal::none);
    click("cmdSalva");
    EXPECT_EQ(toHex(file("PmDip.dat")),
              toHex(tariffBytes("", [](int number, int) { return number == 5 ? 123'450 : 0; })));
}

TEST_F(StaffTab, TheRowsWithAGKeepTheirRatesThroughAnyNumberOfSaves) {
    openWithRates("");
    for (const char* rate : {"1,00", "2,00", "3,00"}) {
        tick("Check20");
        for (const BoxOfKey& one : staffBoxes) {
            if (!isG(one.key)) type("txt" + std::string(one.key) + "Day", rate);
        }
        click("cmdSalva");
    }
    EXPECT_EQ(toHex(file("PmDip.dat")), toHex(tariffBytes("", [](int number, int kind) {
                  const bool typed = kind == 0 && !isG(staffBoxes[static_cast<std::size_t>(number) - 1].key);
                  return typed ? 300 : distinctCents(number, kind);
              })));
}

TEST_F(StaffTab, LettersFailBeforeTheRecordIsWritten) {
    openWithRates("/");
    tick("Check5");
    type("txtD2Fn", "abc");
    desktop.box(title,
                "Riga D2, colonna Festive: il testo \"abc\" non è un numero. Correggerlo e ripetere l'operazione.");
    click("cmdSalva");
    EXPECT_EQ(toHex(file("PmDip.dat")), toHex(tariffBytes("/", distinctCents)));
    EXPECT_EQ(file("NewPmDip.dat"), noFile);
    EXPECT_EQ(focused(), "txtD2Fn");
    EXPECT_TRUE(ticked("Check5"));
    EXPECT_TRUE(enabled("cmdSalva"));
}

TEST_F(StaffTab, LettersInARowClosedMeanwhileOpenItAgain) {
    openWithRates("");
    tick("Check5");
    type("txtD2Nf", "x");
    tick("Check5", false);
    tick("Check6");
    desktop.box(title, "Riga D2, colonna Fe/No: il testo \"x\" non è un numero. Correggerlo e ripetere l'operazione.");
    click("cmdSalva");
    EXPECT_EQ(focused(), "txtD2Nf");
    EXPECT_TRUE(ticked("Check5"));
    EXPECT_EQ(toHex(file("PmDip.dat")), toHex(tariffBytes("", distinctCents)));
}

TEST_F(StaffTab, ComingBackToTheTabShowsWhatIsStoredLocked) {
    openWithRates("");
    tick("Check5");
    type("txtD2Day", "99,99");
    desktop.box(title, noSecretaryRates);
    tab(1);
    EXPECT_FALSE(control("Check20").isVisible());
    tab(0);
    EXPECT_TRUE(control("Check20").isVisible());
    EXPECT_EQ(text("txtD2Day"), "5,01");
    expectLocked();
}

TEST_F(StaffTab, ComingBackToTheTabWithoutRatesAsksAgain) {
    desktop.box(title, noStaffRates);
    open();
    desktop.box(title, noSecretaryRates);
    tab(1);
    desktop.box(title, noStaffRates);
    tab(0);
    EXPECT_EQ(focused(), "txtD5Day");
    EXPECT_TRUE(enabled("cmdSalva"));
}

TEST_F(StaffTab, TheWindowComingBackToTheFrontKeepsWhatWasTyped) {
    openWithRates("");
    tick("Check5");
    type("txtD2Day", "99,99");
    screen->form.activated.fire();
    EXPECT_EQ(text("txtD2Day"), "99,99");
}

TEST_F(StaffTab, EsciClosesTheWindow) {
    openWithRates("");
    EXPECT_EQ(clerk().menu(control("mnuEsci")), Refusal::none);
    EXPECT_FALSE(screen->form.isOpen());
}

TEST_F(StaffTab, TheTitleNamesProductAndScreen) {
    openWithRates("");
    EXPECT_EQ(screen->form.name(), "frmParametri");
    EXPECT_THAT(screen->form.caption(), ::testing::MatchesRegex("Vorbano +Parametri di riferimento"));
}

}  // namespace
}  // namespace vorbano::test
