// "Conferma": what the executed hours are paid; the change of the grade; IRPEF and INAIL.

#include "liquidation_desk.h"

namespace vorbano::test {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

class Conferma : public LiquidationTest {
  protected:
    void expectTexts(const std::vector<std::pair<std::string, std::string>>& shown) {
        for (const auto& [control, words] : shown) EXPECT_EQ(text(control), words) << control;
    }
};

const char* const ratesChanged = "Aliquote dei contributi modificate!\nApplicare aliquote in vigore?";

TEST_F(Conferma, ThePayOfTheExecutedHours) {
    layElection();
    callUp();
    pay(1, {10, 3, 0});
    click("cmdRicalcola");
    expectTexts({{"txtTotAut", "44"},
                 {"txtEsegDf", "10"},
                 {"txtEsegNof", "3"},
                 {"txtEsegNef", "0"},
                 {"txtTotEseg", "13"},
                 {"txtDovuto", "170,05"},
                 {"txtCpStato", "40,47"},
                 {"txtIrap", "14,45"},
                 {"txtTotaleSpesa", "54,92"},
                 {"txtComplessivo", "224,97"},
                 {"txtCpDip", "14,96"},
                 {"txtFonCre", "0,60"},
                 {"txtTotaleContr", "15,56"}});
    EXPECT_FALSE(enabled("cmdRicalcola"));
    EXPECT_TRUE(operable("cmdSalva"));
    EXPECT_EQ(focused(), "cmdSalva") << "not the last employee";
    EXPECT_FALSE(enabled("txtIrpef"));
    expectHeld(true);
}

TEST_F(Conferma, ARateOfMoreDecimalsIsPaidAsItIsShown) {
    layElection();
    Person person = first();
    // 0,125 is shown as 0,13.
    person.rates = {13, 13, 13};
    std::string bytes = person.bytes();
    for (const std::size_t at : {189U, 197U, 205U}) bytes.replace(at, 8, le64(1250));
    ASSERT_TRUE(lay(files, pathOf("09-06-24.vbn"), bytes + second().bytes()));
    callUp();
    EXPECT_EQ(text("txtCompDf"), "0,13");
    pay(1, {1, 1, 1});
    click("cmdRicalcola");
    EXPECT_EQ(text("txtDovuto"), "0,39");
}

TEST_F(Conferma, AllPeriodsArePaidTogether) {
    layElection();
    Person person = first();
    person.paid[1] = {1, 2, 3};
    layStaff({person, second()});
    callUp();
    pay(1, {10, 3, 1});
    click("cmdRicalcola");
    // 11 x 12,34 = 135,74; 5 x 15,55 = 77,75; 4 x 17,90 = 71,60.
    expectTexts(
        {{"txtEsegDf", "11"}, {"txtEsegNof", "5"}, {"txtEsegNef", "4"}, {"txtTotEseg", "20"}, {"txtDovuto", "285,09"}});
}

TEST_F(Conferma, NoPaidHoursAtAll) {
    layElection();
    Person person = first().liquidated();
    layStaff({person, second()});
    ASSERT_TRUE(lay(files, "Params/Conprev.dat", amount(1) + amount(2) + amount(3) + amount(4)));
    callUp();
    pay(1, {0, 0, 0});
    click("cmdRicalcola");
    for (const char* each : {"txtDovuto", "txtCpStato", "txtIrap", "txtTotaleSpesa", "txtComplessivo", "txtCpDip",
                             "txtFonCre", "txtTotaleContr"}) {
        EXPECT_EQ(text(each), "0,00") << each;
    }
    expectTexts({{"txtEsegDf", "0"},
                 {"txtEsegNof", "0"},
                 {"txtEsegNef", "0"},
                 {"txtTotEseg", "0"},
                 {"txtTotAut", "44"},
                 {"Label43", "8,80"}});
    EXPECT_TRUE(operable("cmdSalva"));
    EXPECT_FALSE(enabled("cmdRicalcola"));
}

// The rates in force.

TEST_F(Conferma, ChangedRatesAreAskedForAndKeptOnNo) {
    layElection();
    ASSERT_TRUE(lay(files, "Params/Conprev.dat", amount(23, 80) + amount(8, 50) + amount(10) + amount(1)));
    callUp();
    pay(1, {10, 3, 0});
    box("Aliquote contributi", ratesChanged, Answer::no);
    click("cmdRicalcola");
    expectTexts({{"Label43", "8,80"}, {"Label47", "0,35"}, {"txtCpDip", "14,96"}, {"txtFonCre", "0,60"}});
}

TEST_F(Conferma, ChangedRatesAreAppliedOnYes) {
    layElection();
    ASSERT_TRUE(lay(files, "Params/Conprev.dat", amount(30) + amount(9) + amount(10) + amount(0, 50)));
    callUp();
    pay(1, {10, 3, 0});
    box("Aliquote contributi", ratesChanged, Answer::yes);
    click("cmdRicalcola");
    // 17,005 and 0,85025.
    expectTexts({{"Label43", "10,00"},
                 {"Label47", "0,50"},
                 {"txtCpDip", "17,01"},
                 {"txtFonCre", "0,85"},
                 {"txtTotaleContr", "17,86"}});
    expectTexts({{"Label37", "23,80"}, {"Label38", "8,50"}, {"txtCpStato", "40,47"}, {"txtIrap", "14,45"}});
}

TEST_F(Conferma, RatesOfTheBodyAreNotAskedFor) {
    layElection();
    ASSERT_TRUE(lay(files, "Params/Conprev.dat", amount(30) + amount(9) + amount(8, 80) + amount(0, 35)));
    callUp();
    pay(1, {10, 3, 0});
    click("cmdRicalcola");
    EXPECT_EQ(text("txtCpStato"), "40,47");
}

TEST_F(Conferma, EitherRateIsEnough) {
    layElection();
    for (const auto& [dip, cred] : {std::pair{amount(8, 81), amount(0, 35)}, std::pair{amount(8, 80), amount(0, 36)}}) {
        ASSERT_TRUE(lay(files, "Params/Conprev.dat", amount(23, 80) + amount(8, 50) + dip + cred));
        callUp();
        pay(1, {10, 3, 0});
        box("Aliquote contributi", ratesChanged, Answer::no);
        click("cmdRicalcola");
    }
}

TEST_F(Conferma, ARateOfFourDecimalsIsAskedForAtEveryConferma) {
    layElection();
    ASSERT_TRUE(lay(files, "Params/Conprev.dat", amount(23, 80) + amount(8, 50) + amount(8, 80, 25) + amount(0, 35)));
    for (int time = 0; time < 2; ++time) {
        callUp();
        pay(1, {10, 3, time});
        box("Aliquote contributi", ratesChanged, Answer::yes);
        click("cmdRicalcola");
        EXPECT_EQ(text("Label43"), "8,80");
        click("cmdSalva");
    }
}

TEST_F(Conferma, WithoutRatesInForceNothingIsAsked) {
    layElection();
    ASSERT_TRUE(lay(files, "Params/Conprev.dat", ""));
    callUp();
    pay(1, {10, 3, 0});
    click("cmdRicalcola");
    EXPECT_EQ(text("txtCpDip"), "14,96");
}

// The grade.

TEST_F(Conferma, TheTableOfTheRates) {
    layElection();
    callUp();
    click("cmdTariffe");
    EXPECT_EQ(text("Frame26"), "Tariffe dipendenti compenso lavoro straordinario");
    EXPECT_EQ(screen->MSFlexGrid2.rows(), 32);
    EXPECT_THAT(screen->MSFlexGrid2.cells()[0], ElementsAre("Categorie", "Feriali", "Festive", "Fe/No"));
    EXPECT_THAT(screen->MSFlexGrid2.cells()[4], ElementsAre("D3", "4,01", "4,02", "4,03"));
    EXPECT_EQ(cell("MSFlexGrid2", 11, 0), "    G    B6");
    EXPECT_EQ(focused(), "MSFlexGrid2");
    EXPECT_FALSE(enabled("cmdRicerca"));
    EXPECT_FALSE(enabled("cmdTariffe"));
    click("cmdChiudiTariffe");
    EXPECT_FALSE(visible("Frame26"));
    EXPECT_EQ(focused(), "cmdTariffe");
    EXPECT_EQ(text("lblCat"), "D3");
    expectHeld(false);
}

TEST_F(Conferma, ARowGivesGradeAndRates) {
    layElection();
    callUp();
    click("cmdTariffe");
    pick("MSFlexGrid2", 10, 0);
    expectTexts({{"Text2", "C1"},
                 {"lblCat", "C1"},
                 {"lblCat2", "-"},
                 {"txtCompDf", "10,01"},
                 {"txtCompNof", "10,02"},
                 {"txtCompNef", "10,03"}});
    EXPECT_FALSE(visible("Frame26"));
    EXPECT_TRUE(operable("cmdRicalcola"));
    EXPECT_EQ(focused(), "cmdRicalcola");
    expectHeld(true);
}

TEST_F(Conferma, AGradeWithGKeepsItsNumber) {
    layElection();
    callUp();
    click("cmdTariffe");
    pick("MSFlexGrid2", 0, 0);
    EXPECT_TRUE(visible("Frame26")) << "the heading is no grade";
    pick("MSFlexGrid2", 11, 2);
    EXPECT_EQ(text("lblCat"), "G    B6");
    EXPECT_EQ(text("txtCompDf"), "11,01");
}

TEST_F(Conferma, FourRowsAlsoPutTheDash) {
    layElection();
    std::string bytes = first().bytes();
    bytes.replace(179, 10, padded("x", 10));
    ASSERT_TRUE(lay(files, pathOf("09-06-24.vbn"), bytes + second().bytes()));
    for (int row = 1; row <= 32; ++row) {
        callUp();
        EXPECT_EQ(text("lblCat2"), "x");
        click("cmdTariffe");
        pick("MSFlexGrid2", row, 0);
        const bool dash = row == 1 || row == 2 || row == 31 || row == 32;
        EXPECT_EQ(text("lblCat2"), dash ? "-" : "x") << row;
    }
}

TEST_F(Conferma, AGradeAfterConfermaIsConfirmedAgain) {
    layElection();
    Person last = third();
    last.authorised[0] = {20, 0, 0};
    layStaff({first(), second(), last});
    callUp("3");
    pay(1, {10, 3, 0});
    click("cmdRicalcola");
    click("cmdTariffe");
    EXPECT_FALSE(enabled("cmdSalva"));
    pick("MSFlexGrid2", 1, 0);
    EXPECT_FALSE(enabled("cmdSalva"));
    EXPECT_FALSE(enabled("txtIrpef"));
    click("cmdRicalcola");
    // 10 x 1,01 + 3 x 1,02.
    EXPECT_EQ(text("txtDovuto"), "13,16");
}

TEST_F(Conferma, WithoutATableThereAreNoRows) {
    layElection();
    ASSERT_TRUE(lay(files, "Params/PmDip.dat", ""));
    callUp();
    click("cmdTariffe");
    EXPECT_EQ(screen->MSFlexGrid2.rows(), 0);
    click("cmdChiudiTariffe");
}

// IRPEF and INAIL.

TEST_F(Conferma, OnTheLastEmployeeIrpefAndInailAreAskedFor) {
    layElection();
    callUp("3");
    pay(1, {5, 0, 0});
    click("cmdRicalcola");
    EXPECT_EQ(text("Label53"), "1");
    EXPECT_EQ(focused(), "txtIrpef");
    EXPECT_TRUE(operable("cmdSalva"));
    type("txtIrpef", "1234,5");
    leave();
    EXPECT_EQ(text("txtIrpef"), "1.234,50");
    EXPECT_EQ(focused(), "txtInail");
    type("txtInail", "");
    leave();
    EXPECT_EQ(text("txtInail"), "0,00");
    EXPECT_EQ(focused(), "cmdSalva");
}

TEST_F(Conferma, AnElectionOfTwoBodiesHasTwoShares) {
    type_ = "Politiche_Regionali";
    layElection();
    callUp("3");
    EXPECT_TRUE(visible("Frame17"));
    EXPECT_TRUE(visible("Frame14"));
    EXPECT_EQ(text("Frame17"), "Inail 1°");
    EXPECT_EQ(text("Frame14"), "Inail 2°");
    pay(1, {5, 0, 0});
    click("cmdRicalcola");
    for (const char* next : {"txtInail", "txtInailUno", "txtInailDue", "cmdSalva"}) {
        leave();
        EXPECT_EQ(focused(), next);
    }
}

TEST_F(Conferma, AnAmountThatIsNoNumberIsRefused) {
    layElection();
    callUp("3");
    pay(1, {5, 0, 0});
    click("cmdRicalcola");
    type("txtIrpef", "mille");
    box("Errore", "Inserire l'importo in euro.");
    click("cmdSalva");
    EXPECT_EQ(focused(), "txtIrpef");
    EXPECT_EQ(toHex(stored("Meirin.vbn")), toHex(limitsBytes()));
}

TEST_F(Conferma, APressOpensIrpefAndInailAgain) {
    layElection();
    for (const char* panel : {"Frame19", "Frame20"}) {
        callUp();
        press(panel);
        EXPECT_EQ(text("Label53"), "0") << panel;
        EXPECT_EQ(focused(), "txtIrpef");
        EXPECT_TRUE(operable("txtInail"));
        EXPECT_TRUE(operable("cmdSalva"));
        expectHeld(true);
    }
    callUp();
    click("cmdIrpefInail");
    EXPECT_TRUE(operable("txtIrpef"));
}

TEST_F(Conferma, WhileAPeriodIsOpenThePressDoesNothing) {
    layElection();
    callUp();
    press("Frame1");
    press("Frame19");
    EXPECT_FALSE(enabled("txtIrpef"));
    pay(1, {1, 0, 0});
    press("Frame20");
    EXPECT_FALSE(enabled("txtIrpef")) << "hours are not confirmed";
    EXPECT_FALSE(enabled("cmdSalva"));
}

TEST_F(Conferma, WhileANameIsCorrectedThePressIsRefused) {
    layElection();
    callUp();
    tick("Check1");
    for (const char* panel : {"Frame19", "Frame20"}) {
        box("Modifica dati",
            "Non e possibile inserire l'IRPEF e l'INAIL. E' attivata la modifica del nominativo del Dipendente.");
        press(panel);
        EXPECT_FALSE(enabled("txtIrpef"));
    }
}

TEST_F(Conferma, WithoutAnEmployeeThePressDoesNothing) {
    layElection();
    open();
    press("Frame19");
    EXPECT_FALSE(enabled("txtIrpef"));
    EXPECT_FALSE(enabled("cmdSalva"));
}

}  // namespace
}  // namespace vorbano::test
