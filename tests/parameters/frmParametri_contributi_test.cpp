// The tab of the four percentages.

#include "parameters_desk.h"

namespace vorbano::test {
namespace {

constexpr std::array<const char*, 4> fields = {"txtContrPrev", "txtIrapEnte", "txtContrDip", "txtFonCre"};
constexpr std::array<const char*, 4> percentageBoxes = {"Check22", "Check23", "Check24", "Check25"};

class ContributionsTab : public ParametriTest {
  protected:
    ContributionsTab() { EXPECT_TRUE(lay(files, "Params/PmDip.dat", tariffBytes("", distinctCents))); }

    /// 23,80 8,50 8,8512 0,35
    const std::string stored = amount(23, 80) + amount(8, 50) + amount(8, 85, 12) + amount(0, 35);

    void openTab() {
        open();
        tab(2);
    }
    void openTabWithPercentages() {
        ASSERT_TRUE(lay(files, "Params/Conprev.dat", stored));
        openTab();
    }
    void openTabWithoutPercentages() {
        desktop.box(title, noPercentages);
        openTab();
    }
    void expectAll(bool on) {
        for (std::size_t at = 0; at < 4; ++at) {
            EXPECT_EQ(enabled(fields[at]), on) << fields[at];
            EXPECT_EQ(ticked(percentageBoxes[at]), on) << percentageBoxes[at];
        }
    }
};

TEST_F(ContributionsTab, WithoutPercentagesAsksForThemAndOpensTheFour) {
    openTabWithoutPercentages();
    EXPECT_TRUE(enabled("cmdSalva2"));
    EXPECT_TRUE(ticked("Check26"));
    EXPECT_EQ(focused(), "txtContrPrev");
    expectAll(true);
}

TEST_F(ContributionsTab, ComingBackWithoutPercentagesAsksAgainAndGivesTheSavingBack) {
    openTabWithoutPercentages();
    tick("Check24", false);
    EXPECT_FALSE(enabled("cmdSalva2"));
    tab(0);
    desktop.box(title, noPercentages);
    tab(2);
    EXPECT_TRUE(enabled("cmdSalva2"));
}

TEST_F(ContributionsTab, WithPercentagesShowsThemAsPlainAmounts) {
    openTabWithPercentages();
    EXPECT_EQ(text("txtContrPrev"), "23,8");
    EXPECT_EQ(text("txtIrapEnte"), "8,5");
    EXPECT_EQ(text("txtContrDip"), "8,8512");
    EXPECT_EQ(text("txtFonCre"), "0,35");
    EXPECT_FALSE(enabled("cmdSalva2"));
    EXPECT_FALSE(ticked("Check26"));
    expectAll(false);
}

TEST_F(ContributionsTab, TheBoxesCarryTheirCaptions) {
    openTabWithPercentages();
    EXPECT_EQ(text("Check22"), "Contributo previdenziale a carico Ente");
    EXPECT_EQ(text("Check23"), "IRAP a carico Ente");
    EXPECT_EQ(text("Check24"), "Contributo Previdenziale a carico Dipendenti");
    EXPECT_EQ(text("Check25"), "Contributo Fondo Credito a carico Dipendenti");
    EXPECT_EQ(text("Check26"), "Attivazione modifica di tutti i contributi");
    EXPECT_EQ(text("cmdSalva2"), "Salva modifiche");
}

TEST_F(ContributionsTab, ABoxOpensOnlyItsOwnField) {
    openTabWithPercentages();
    for (std::size_t at = 0; at < 4; ++at) {
        tick(percentageBoxes[at]);
        for (std::size_t other = 0; other < 4; ++other) EXPECT_EQ(enabled(fields[other]), other == at);
        EXPECT_TRUE(enabled("cmdSalva2"));
        tick(percentageBoxes[at], false);
        expectAll(false);
        EXPECT_FALSE(enabled("cmdSalva2"));
    }
}

TEST_F(ContributionsTab, ActivatingAllOpensTheFourAndClearingClosesThem) {
    openTabWithPercentages();
    tick("Check26");
    expectAll(true);
    EXPECT_EQ(focused(), "txtContrPrev");
    EXPECT_TRUE(enabled("cmdSalva2"));
    tick("Check26", false);
    expectAll(false);
    EXPECT_FALSE(enabled("cmdSalva2"));
}

TEST_F(ContributionsTab, SavingKeepsFourDecimalsAndLeavesTheFieldsOpen) {
    openTabWithoutPercentages();
    type("txtContrPrev", "23,8");
    type("txtIrapEnte", "8,5");
    type("txtContrDip", "8,8512");
    type("txtFonCre", "0,35");
    click("cmdSalva2");
    EXPECT_EQ(toHex(file("Conprev.dat")), toHex(stored));
    EXPECT_TRUE(ticked("Check26"));
    EXPECT_TRUE(enabled("cmdSalva2"));
    expectAll(true);
}

TEST_F(ContributionsTab, AnEmptyFieldIsStoredAsZero) {
    openTabWithoutPercentages();
    type("txtIrapEnte", "8,5");
    click("cmdSalva2");
    EXPECT_EQ(toHex(file("Conprev.dat")), toHex(amount(0) + amount(8, 50) + amount(0) + amount(0)));
}

TEST_F(ContributionsTab, ATypedPointStaysAPoint) {
    openTabWithPercentages();
    tick("Check22");
    type("txtContrPrev", "1.000,5");
    EXPECT_EQ(text("txtContrPrev"), "1.000,5");
}

TEST_F(ContributionsTab, LettersFailBeforeTheRecordIsWritten) {
    openTabWithPercentages();
    tick("Check23");
    type("txtIrapEnte", "otto");
    desktop.box(title,
                "Riga IRAP a carico Ente: il testo \"otto\" non è un numero. "
                "Correggerlo e ripetere l'operazione.");
    click("cmdSalva2");
    EXPECT_EQ(toHex(file("Conprev.dat")), toHex(stored));
    EXPECT_EQ(focused(), "txtIrapEnte");
}

}  // namespace
}  // namespace vorbano::test
