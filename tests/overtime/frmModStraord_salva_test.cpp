// Storing an employee: record by record, byte by byte.

#include "liquidation_desk.h"

namespace vorbano::test {
namespace {

class SalvaLiquidazione : public LiquidationTest {
  protected:
    /// Employee `number`, called up anew, is paid these hours in the first period.
    void liquidate(const char* number, const Three& numbers) {
        callUp(number);
        pay(1, numbers);
        click("cmdRicalcola");
        click("cmdSalva");
    }
    [[nodiscard]] int usedOf(int number) { return recordFrom<EmployeeRecord>(employee(number)).pools.MoUtil; }
    std::vector<int> used() { return {usedOf(1), usedOf(2), usedOf(3)}; }
};

using ::testing::ElementsAre;

TEST_F(SalvaLiquidazione, TheEmployeeIsStoredAndTheFollowingTakeTheHoursUsed) {
    layElection();
    liquidate("1", {10, 3, 0});
    EXPECT_EQ(toHex(stored("09-06-24.vbn")),
              toHex(staffOf({first().liquidated().withUsed(13), second().withUsed(13), third().withUsed(13)})));
    EXPECT_EQ(toHex(stored("Meirin.vbn")), toHex(limitsBytes()));
    EXPECT_EQ(stored("Quartum.vbn"), noFile);
    EXPECT_EQ(stored("Pentium.vbn"), noFile);
    EXPECT_EQ(stored("Reverse.vbn"), noFile) << "no companion is left";
}

TEST_F(SalvaLiquidazione, TheScreenAfterwards) {
    layElection();
    liquidate("1", {10, 3, 0});
    EXPECT_EQ(text("txtMoUtil"), "13");
    EXPECT_EQ(text("txtGlobo"), "360") << "only shown; on file it stays 373";
    EXPECT_EQ(text("txtMonteOre"), "40");
    EXPECT_EQ(text("txtMoGlob"), "280");
    EXPECT_EQ(text("txtDovuto"), "170,05");
    EXPECT_FALSE(enabled("cmdSalva"));
    EXPECT_FALSE(enabled("cmdTariffe"));
    EXPECT_FALSE(enabled("txtIrpef"));
    EXPECT_FALSE(enabled("cmdContinua"));
    expectHeld(false);
    EXPECT_EQ(focused(), "cmdSuccessivo");
    click("cmdSuccessivo");
    EXPECT_TRUE(operable("cmdTariffe"));
}

TEST_F(SalvaLiquidazione, TheHoursUsedStayCumulative) {
    layElection();
    liquidate("2", {5, 0, 0});
    EXPECT_THAT(used(), ElementsAre(0, 5, 5));
    liquidate("1", {10, 3, 0});
    EXPECT_THAT(used(), ElementsAre(13, 18, 18));
    liquidate("3", {7, 0, 0});
    EXPECT_THAT(used(), ElementsAre(13, 18, 25));
    EXPECT_EQ(text("txtMoUtil"), "25");
    EXPECT_EQ(text("txtGlobo"), "348");
    liquidate("1", {4, 0, 0});
    EXPECT_THAT(used(), ElementsAre(4, 9, 16));
    liquidate("2", {0, 0, 0});
    EXPECT_THAT(used(), ElementsAre(4, 4, 11));
    liquidate("3", {7, 0, 0});
    EXPECT_THAT(used(), ElementsAre(4, 4, 11)) << "the same hours again add none";
    for (int number = 1; number <= 3; ++number) {
        EXPECT_EQ(recordFrom<EmployeeRecord>(employee(number)).pools.Globo, 373);
    }
}

TEST_F(SalvaLiquidazione, TheHoursUsedAreTheSameWhateverTheOrder) {
    layElection();
    liquidate("3", {7, 0, 0});
    liquidate("1", {10, 3, 0});
    liquidate("2", {5, 0, 0});
    EXPECT_THAT(used(), ElementsAre(13, 18, 25));
}

TEST_F(SalvaLiquidazione, WithoutPaidHoursZeroIsStored) {
    layElection();
    layStaff({first().liquidated().withUsed(13), second().withUsed(13), third().withUsed(13)});
    liquidate("1", {0, 0, 0});
    EXPECT_EQ(toHex(stored("09-06-24.vbn")), toHex(staffOf({first(), second(), third()})));
}

TEST_F(SalvaLiquidazione, CorrectedAuthorisedHoursAreStored) {
    layElection();
    layLimits(limitsBytes({1, 0, 1}));
    callUp("2");
    authorise(2, {6, 5, 2});
    click("cmdRicalcola");
    EXPECT_EQ(text("txtTotAut"), "33");
    EXPECT_EQ(text("Label52"), "A2");
    click("cmdSalva");
    Person expected = second();
    expected.authorised[1] = {6, 5, 2};
    EXPECT_EQ(toHex(stored("09-06-24.vbn")), toHex(staffOf({first(), expected, third()})));
    EXPECT_EQ(text("Label52"), "");
    EXPECT_EQ(focused(), "cmdRicerca");
    EXPECT_EQ(text("lblUtil2"), "35");
}

TEST_F(SalvaLiquidazione, AChangedGradeIsStored) {
    layElection();
    layStaff({first().liquidated(), second(), third()});
    callUp();
    click("cmdTariffe");
    pick("MSFlexGrid2", 11, 0);
    click("cmdRicalcola");
    click("cmdSalva");
    Person expected = first().liquidated();
    expected.grade = "G    B6";
    expected.rates = {1101, 1102, 1103};
    // 110,10 + 33,06 = 143,16; 34,07; 12,17; 12,60; 0,50.
    expected.amounts = {14316, 3407, 1217, 4624, 1260, 50, 1310};
    EXPECT_EQ(toHex(employee(1)), toHex(expected.bytes()));
    EXPECT_EQ(toHex(employee(2)), toHex(second().bytes()));
}

TEST_F(SalvaLiquidazione, TheDashBesideAGradeIsStored) {
    layElection();
    std::string bytes = first().bytes();
    bytes.replace(179, 10, padded("x", 10));
    ASSERT_TRUE(lay(files, pathOf("09-06-24.vbn"), bytes + second().bytes()));
    callUp();
    click("cmdTariffe");
    pick("MSFlexGrid2", 1, 0);
    click("cmdRicalcola");
    click("cmdSalva");
    EXPECT_EQ(employee(1).substr(172, 17), padded("B8", 7) + padded("-", 10));
}

TEST_F(SalvaLiquidazione, RatesInForceAreStoredOnYesAndTheOldOnesOnNo) {
    layElection();
    ASSERT_TRUE(lay(files, "Params/Conprev.dat", amount(30) + amount(9) + amount(10) + amount(0, 50)));
    const char* const question = "Aliquote dei contributi modificate!\nApplicare aliquote in vigore?";
    box("Aliquote contributi", question, Answer::no);
    liquidate("1", {10, 3, 0});
    EXPECT_EQ(toHex(employee(1)), toHex(first().liquidated().withUsed(13).bytes()));
    box("Aliquote contributi", question, Answer::yes);
    liquidate("1", {10, 3, 0});
    Person expected = first().liquidated().withUsed(13);
    expected.percentages = {2380, 850, 1000, 50};
    expected.amounts = {17005, 4047, 1445, 5492, 1701, 85, 1786};
    EXPECT_EQ(toHex(employee(1)), toHex(expected.bytes()));
}

TEST_F(SalvaLiquidazione, OnTheLastEmployeeIrpefAndInailAreStored) {
    layElection();
    callUp("3");
    pay(1, {1, 0, 0});
    click("cmdRicalcola");
    type("txtIrpef", "1234,56");
    type("txtInail", "78,9");
    click("cmdSalva");
    EXPECT_EQ(toHex(stored("Meirin.vbn")), toHex(limitsBytes({1, 1, 1}, 1, 1, 123456, 7890)));
    EXPECT_EQ(text("txtInail"), "78,90");
    EXPECT_FALSE(enabled("txtIrpef"));
    EXPECT_FALSE(enabled("txtInail"));
    EXPECT_EQ(focused(), "cmdSuccessivo");
}

TEST_F(SalvaLiquidazione, TheSharesOfTwoBodiesAreStored) {
    type_ = "Politiche_Comunali";
    layElection();
    callUp("1");
    press("Frame20");
    type("txtIrpef", "1");
    type("txtInail", "2");
    type("txtInailUno", "3,333");
    type("txtInailDue", "4,005");
    click("cmdSalva");
    EXPECT_EQ(toHex(stored("Meirin.vbn")), toHex(limitsBytes({1, 1, 1}, 1, 1, 100, 200, 333, 401)));
    EXPECT_EQ(toHex(stored("09-06-24.vbn")), toHex(staffOf({first(), second(), third()})));
}

TEST_F(SalvaLiquidazione, AnotherEmployeeLeavesIrpefAndInailAsTheyAre) {
    layElection();
    const std::string limits = limitsBytes({1, 1, 1}, 1, 1, 123456, 7890, 4321, 3569);
    layLimits(limits);
    liquidate("1", {10, 3, 0});
    EXPECT_EQ(toHex(stored("Meirin.vbn")), toHex(limits));
}

TEST_F(SalvaLiquidazione, AmountsOfFourDecimalsGoThroughTwo) {
    layElection();
    std::string bytes = first().liquidated().bytes();
    bytes.replace(213, 8, amount(170, 4, 50));
    ASSERT_TRUE(lay(files, pathOf("09-06-24.vbn"), bytes));
    callUp();
    EXPECT_EQ(text("txtDovuto"), "170,05");
    press("Frame19");
    click("cmdSalva");
    EXPECT_EQ(toHex(employee(1).substr(213, 8)), toHex(amount(170, 5)));
}

// The statement of costs.

/// Nineteen amounts in cents: overtime second, total thirteenth, advances fourteenth, difference fifteenth.
std::string statementBytes(int overtime, int total, int difference) {
    return Sheet(152)
        .amountsAt(0, {101, overtime, 103, 104, 105, 106, 107, 108, 109, 110, 111, 112, total, 5000, difference, 116,
                       117, 118, 119})
        .bytes();
}

TEST_F(SalvaLiquidazione, TheStatementFollows) {
    layElection();
    layLimits(limitsBytes({1, 1, 1}, 1, 1, 0, 1000));
    ASSERT_TRUE(lay(files, pathOf("Rendi.vbn"), statementBytes(20000, 30000, 25000)));
    liquidate("1", {10, 3, 0});
    // 170,05 + 40,47 + 14,45 + 10,00 = 234,97; the total grows by 34,97.
    EXPECT_EQ(toHex(stored("Rendi.vbn")), toHex(statementBytes(23497, 33497, 28497)));
}

TEST_F(SalvaLiquidazione, WithoutAStatementNoneIsMade) {
    layElection();
    liquidate("1", {10, 3, 0});
    EXPECT_THAT(stored("Rendi.vbn"), ::testing::AnyOf("", std::string(noFile)));
}

// One employee after the other.

class Sequenza : public SalvaLiquidazione {};

TEST_F(Sequenza, EveryPeriodOfEveryEmployee) {
    layElection();
    open();
    name();
    click("cmdInserimento");
    EXPECT_EQ(text("txtSonoDip"), "1");
    EXPECT_EQ(focused(), "txtPag1Df");
    hours({10, 3, 0}, paidOf(1));
    enter("txtTotale1");
    leave();
    EXPECT_EQ(focused(), "txtPag2Df") << "the next period with dates takes over";
    EXPECT_FALSE(operable("cmdRicalcola"));
    hours({0, 0, 0}, paidOf(2));
    enter("txtTotale2");
    leave();
    EXPECT_EQ(focused(), "cmdRicalcola");
    click("cmdRicalcola");
    click("cmdSalva");
    EXPECT_EQ(toHex(employee(1)), toHex(first().liquidated().withUsed(13).bytes()));
    EXPECT_EQ(focused(), "cmdContinua");
    EXPECT_TRUE(operable("cmdSuccessivo"));
    for (const char* number : {"2", "3"}) {
        click("cmdContinua");
        EXPECT_EQ(text("txtSonoDip"), number);
        EXPECT_EQ(focused(), "txtPag1Df");
        for (const int period : {1, 2}) {
            hours({1, 0, 0}, paidOf(period));
            enter("txtTotale" + std::to_string(period));
            leave();
        }
        click("cmdRicalcola");
        click("cmdSalva");
    }
    EXPECT_THAT(used(), ElementsAre(13, 15, 17));
    box("Inserimento dati", "Fine inserimento");
    click("cmdContinua");
    EXPECT_FALSE(enabled("cmdContinua"));
    expectHeld(false);
}

TEST_F(Sequenza, ItBeginsWithTheNumberThatStandsThere) {
    layElection();
    open();
    name();
    type("txtSonoDip", "2");
    click("cmdInserimento");
    EXPECT_EQ(text("txtSonoDip"), "2");
    EXPECT_TRUE(operable("txtPag1Df"));
}

TEST_F(Sequenza, APeriodInAuthorisationIsPassedOver) {
    layElection();
    layLimits(limitsBytes({0, 1, 1}));
    open();
    name();
    click("cmdInserimento");
    EXPECT_EQ(focused(), "txtPag2Df");
    enter("txtTotale2");
    leave();
    EXPECT_EQ(focused(), "cmdRicalcola");
}

TEST_F(Sequenza, WithNothingToLiquidateTheAuthorisedHoursAreOpen) {
    layElection();
    layLimits(limitsBytes({0, 0, 0}));
    open();
    name();
    click("cmdInserimento");
    EXPECT_EQ(focused(), "txtAutFer1Per");
    enter("txtNf1Per");
    leave();
    EXPECT_EQ(focused(), "cmdRicalcola");
}

TEST_F(Sequenza, WhatIsTakenBackInTheSecondPeriodLeavesTheFirstToConfirm) {
    layElection();
    open();
    name();
    click("cmdInserimento");
    hours({10, 3, 0}, paidOf(1));
    enter("txtTotale1");
    leave();
    type("txtPag2Df", "5");
    box("Ore liquidate",
        "Sono state modificate le ore liquidate del 2° periodo\nSe volete confermare la modifica scegliere SI.\nSe "
        "volete annullare le modifiche scegliere NO",
        Answer::no);
    move("Frame4");
    EXPECT_EQ(text("txtPag2Df"), "0");
    EXPECT_EQ(text("txtPag1Df"), "10");
    EXPECT_TRUE(operable("cmdRicalcola"));
    expectHeld(true);
}

TEST_F(Sequenza, ByNameContinuaGoesOnAfterSalva) {
    layElection();
    open();
    name();
    tick("Check11");
    chooseIndex("cmbNome", 0);
    pay(1, {10, 3, 0});
    click("cmdRicalcola");
    click("cmdSalva");
    EXPECT_EQ(focused(), "cmdContinua");
    EXPECT_FALSE(operable("cmdSuccessivo"));
    EXPECT_TRUE(ticked("Check11"));
    click("cmdContinua");
    EXPECT_EQ(text("txtSonoDip"), "2");
    EXPECT_EQ(screen->cmbNome.selection(), 1);
    EXPECT_EQ(focused(), "txtPag1Df");
}

TEST_F(Sequenza, ASearchEndsIt) {
    layElection();
    open();
    name();
    click("cmdInserimento");
    enter("txtTotale1");
    leave();
    enter("txtTotale2");
    leave();
    click("cmdRicalcola");
    click("cmdSalva");
    EXPECT_TRUE(operable("cmdContinua"));
    click("cmdSuccessivo");
    EXPECT_FALSE(enabled("cmdContinua"));
}

}  // namespace
}  // namespace vorbano::test
