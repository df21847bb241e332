// The tab of the municipal secretaries.

#include "parameters_desk.h"

namespace vorbano::test {
namespace {

constexpr std::array<const char*, 5> stems = {"txtSc8qf", "txtSc9qf2a", "txtSc9qf5a", "txtSc9qf10a", "txtSc9qf15a"};
constexpr std::array<const char*, 5> secretaryBoxes = {"Check15", "Check16", "Check17", "Check18", "Check19"};

class SecretariesTab : public ParametriTest {
  protected:
    SecretariesTab() { EXPECT_TRUE(lay(files, "Params/PmDip.dat", tariffBytes("", distinctCents))); }

    void openTab() {
        open();
        tab(1);
    }
    void openTabWithRates() {
        ASSERT_TRUE(lay(files, "Params/PmSeg.dat", secretaryBytes(distinctCents)));
        openTab();
    }
    void openTabWithoutRates() {
        desktop.box(title, noSecretaryRates);
        openTab();
    }
    void expectRow(std::size_t row, bool on) {
        for (const char* kind : {"Day", "Fn", "Nf"}) EXPECT_EQ(enabled(std::string(stems[row]) + kind), on) << kind;
        EXPECT_EQ(ticked(secretaryBoxes[row]), on) << secretaryBoxes[row];
    }
};

TEST_F(SecretariesTab, IsReadOnlyWhenItIsOpened) {
    open();
    EXPECT_EQ(file("PmSeg.dat"), noFile);
    EXPECT_EQ(text("txtSc8qfDay"), "");
}

TEST_F(SecretariesTab, CannotBeSavedWithoutHavingBeenOpened) {
    open();
    EXPECT_EQ(clerk().click(control("cmdSalva1")), Refusal::hidden);
    EXPECT_FALSE(enabled("cmdSalva1"));
    for (std::size_t row = 0; row < 5; ++row) expectRow(row, false);
}

TEST_F(SecretariesTab, WithoutRatesAsksForThemAndOpensEveryRow) {
    openTabWithoutRates();
    EXPECT_TRUE(enabled("cmdSalva1"));
    EXPECT_FALSE(enabled("cmdStampa1"));
    EXPECT_TRUE(ticked("Check21"));
    EXPECT_EQ(focused(), "txtSc8qfDay");
    for (std::size_t row = 0; row < 5; ++row) expectRow(row, true);
}

TEST_F(SecretariesTab, ComingBackWithoutRatesAsksAgainAndGivesTheSavingBack) {
    openTabWithoutRates();
    tick("Check17", false);
    EXPECT_FALSE(enabled("cmdSalva1"));
    tab(0);
    desktop.box(title, noSecretaryRates);
    tab(1);
    EXPECT_TRUE(enabled("cmdSalva1"));
}

TEST_F(SecretariesTab, WithRatesShowsThemThroughThePictureAndLocked) {
    openTabWithRates();
    for (std::size_t row = 0; row < 5; ++row) {
        const std::string stem = stems[row];
        EXPECT_EQ(text(stem + "Day"), std::to_string(row + 1) + ",01");
        EXPECT_EQ(text(stem + "Fn"), std::to_string(row + 1) + ",02");
        EXPECT_EQ(text(stem + "Nf"), std::to_string(row + 1) + ",03");
        expectRow(row, false);
    }
    EXPECT_FALSE(enabled("cmdSalva1"));
    EXPECT_TRUE(enabled("cmdStampa1"));
    EXPECT_FALSE(ticked("Check21"));
}

TEST_F(SecretariesTab, TheBoxesCarryTheirCaptions) {
    openTabWithRates();
    EXPECT_EQ(text("Check15"), "8^ q.f.");
    EXPECT_EQ(text("Check16"), "9^ q.f. 2 anni");
    EXPECT_EQ(text("Check17"), "9^ q.f. 5 anni");
    EXPECT_EQ(text("Check18"), "9^ q.f. 10 anni");
    EXPECT_EQ(text("Check19"), "9^ q.f. 15 anni");
    EXPECT_EQ(text("Check21"), "Attiva modifiche di tutti i parametri");
    EXPECT_EQ(text("cmdSalva1"), "Salva modifiche");
    EXPECT_EQ(text("cmdStampa1"), "Stampa");
}

TEST_F(SecretariesTab, ABoxOpensItsRowAndClosesItAgain) {
    openTabWithRates();
    for (std::size_t row = 0; row < 5; ++row) {
        tick(secretaryBoxes[row]);
        expectRow(row, true);
        EXPECT_EQ(focused(), std::string(stems[row]) + "Day");
        EXPECT_TRUE(enabled("cmdSalva1"));
        EXPECT_FALSE(enabled("cmdStampa1"));
        tick(secretaryBoxes[row], false);
        expectRow(row, false);
        EXPECT_FALSE(enabled("cmdSalva1"));
        EXPECT_TRUE(enabled("cmdStampa1"));
    }
}

TEST_F(SecretariesTab, ActivatingAllOpensTheFiveRowsAndClearingClosesThem) {
    openTabWithRates();
    tick("Check21");
    for (std::size_t row = 0; row < 5; ++row) expectRow(row, true);
    EXPECT_EQ(focused(), "txtSc8qfDay");
    EXPECT_TRUE(enabled("cmdSalva1"));
    EXPECT_FALSE(enabled("cmdStampa1"));
    tick("Check21", false);
    for (std::size_t row = 0; row < 5; ++row) expectRow(row, false);
    EXPECT_FALSE(enabled("cmdSalva1"));
    EXPECT_TRUE(enabled("cmdStampa1"));
}

TEST_F(SecretariesTab, TheMarkNConcernsTheStaffOnly) {
    openTabWithRates();
    screen->Label28.text = std::string("N");
    tick("Check15");
    EXPECT_TRUE(enabled("cmdSalva1"));
}

TEST_F(SecretariesTab, SavingWritesCaptionsAndRoundedRatesAndLeavesTheRowsOpen) {
    openTabWithoutRates();
    type("txtSc8qfDay", "20,005");
    type("txtSc8qfFn", "22,6");
    type("txtSc9qf15aNf", "1234,5");
    click("cmdSalva1");
    EXPECT_EQ(toHex(file("PmSeg.dat")), toHex(secretaryBytes([](int number, int kind) {
                  if (number == 1) return kind == 0 ? 2001 : kind == 1 ? 2260 : 0;
                  return number == 5 && kind == 2 ? 123'450 : 0;
              })));
    EXPECT_TRUE(ticked("Check21"));
    EXPECT_TRUE(enabled("cmdSalva1"));
    for (std::size_t row = 0; row < 5; ++row) expectRow(row, true);
}

TEST_F(SecretariesTab, ATypedPointStaysAPoint) {
    openTabWithRates();
    tick("Check15");
    type("txtSc8qfDay", "1.234,50");
    EXPECT_EQ(text("txtSc8qfDay"), "1.234,50");
    click("cmdSalva1");
    EXPECT_EQ(toHex(file("PmSeg.dat")), toHex(secretaryBytes([](int number, int kind) {
                  return number == 1 && kind == 0 ? 123'450 : distinctCents(number, kind);
              })));
}

TEST_F(SecretariesTab, LettersFailBeforeTheRecordIsWritten) {
    openTabWithRates();
    tick("Check16");
    type("txtSc9qf2aDay", "venti");
    desktop.box(title,
                "Riga 9^ q.f. 2 anni, colonna Feriali: il testo \"venti\" non è un numero. "
                "Correggerlo e ripetere l'operazione.");
    click("cmdSalva1");
    EXPECT_EQ(toHex(file("PmSeg.dat")), toHex(secretaryBytes(distinctCents)));
    EXPECT_EQ(focused(), "txtSc9qf2aDay");
}

TEST_F(SecretariesTab, ComingBackToTheTabReadsTheRecordAgain) {
    openTabWithRates();
    tick("Check15");
    type("txtSc8qfDay", "99");
    tab(0);
    tab(1);
    EXPECT_EQ(text("txtSc8qfDay"), "1,01");
}

}  // namespace
}  // namespace vorbano::test
