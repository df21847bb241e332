// What "Salva" stores, by groups of types, through the screen.

#include "overtime/rendi_kontrol.h"
#include "records/overtime_records.h"
#include "statement_desk.h"

namespace vorbano::test {
namespace {

class Saving : public Entry {
  protected:
    /// The lines that every type has: 1,00 to 8,00.
    void typeLines() {
        line("txtIndennità", "1");
        line("txtStampanti", "2");
        line("txtTrasporti", "3");
        line("txtDisciplina", "4");
        line("Text1", "5");
        line("txtAssunzioni", "6");
        line("txtNecessità", "7");
        line("txtMagMis", "9");
        line("txtMissioni", "8");
    }
    void save() {
        box("Rendiconto", "Dati salvati");
        click("cmdSalva");
    }
};

TEST_F(Saving, OfATypeOfOneBodyStoresLinesAndMaggiorazione) {
    for (const char* type : {"Politiche_Comunali", "Politiche", "Regionali", "Comunali"}) {
        callUp(type);
        typeLines();
        line("txtAcconti", "1000");
        save();
        // 1.234,49 + 36,00
        EXPECT_EQ(stored(type, "Rendi.vbn"), toHex(laidRendi({42075, 63524, 17850, 0, 100, 0, 200, 300, 400, 500, 600,
                                                              800, 127049, 100000, 27049, 700, 0, 0, 0})))
            << type;
        EXPECT_EQ(stored(type, "Tprov.vbn"), toHex(amount(0) + amount(9))) << type;
        EXPECT_EQ(stored(type, "DivSt.vbn"), missing()) << type;
    }
}

TEST_F(Saving, OfAReferendumAndOfTheEuropeanStoresNoMaggiorazione) {
    for (const char* type : {"Referendum", "Europee"}) {
        callUp(type);
        typeLines();
        line("txtAcconti", "1000");
        save();
        EXPECT_EQ(stored(type, "Rendi.vbn"), toHex(laidRendi({42075, 63524, 17850, 0, 100, 0, 200, 300, 400, 500, 600,
                                                              800, 127049, 100000, 27049, 700, 0, 0, 0})))
            << type;
        EXPECT_EQ(stored(type, "Tprov.vbn"), missing()) << type;
        EXPECT_EQ(stored(type, "DivSt.vbn"), missing()) << type;
    }
}

TEST_F(Saving, OfTheReferendumOf2022StoresTheExpensesOfThePandemic) {
    callUp("Referendum", referendum2022);
    line("txtCarico", "10,5");
    typeLines();
    line("txtAcconti", "1280,99");
    save();
    EXPECT_EQ(stored("Referendum", "Rendi.vbn", referendum2022),
              toHex(laidRendi(
                  {42075, 63524, 17850, 1050, 100, 0, 200, 300, 400, 500, 600, 800, 128099, 128099, 0, 700, 0, 0, 0})));
}

TEST_F(Saving, OfTheProvinciaStoresTheRotatedPlaces) {
    callUp("Provinciali");
    typeLines();
    line("txtAcconti", "1270,50");
    save();
    EXPECT_EQ(stored("Provinciali", "Rendi.vbn"), toHex(laidRendi({42075, 63524, 17850, 0, 100, 0, 200, 300, 400, 600,
                                                                   700, 800, 127049, 127050, -1, 500, 0, 0, 0})));
    EXPECT_EQ(stored("Provinciali", "Tprov.vbn"), toHex(amount(0) + amount(9)));
    EXPECT_EQ(stored("Provinciali", "DivSt.vbn"), missing());
}

TEST_F(Saving, OfProvinciaAndComuneStoresTheirParts) {
    callUp("Provinciali_Comunali");
    typeLines();
    line("txtTotProv", "1,25");
    line("txtTotComune", "0,75");
    line("txtAcconti", "0");
    save();
    EXPECT_EQ(stored("Provinciali_Comunali", "Rendi.vbn"),
              toHex(laidRendi(
                  {42075, 63524, 17850, 0, 100, 0, 200, 300, 400, 600, 700, 800, 127049, 0, 127049, 500, 0, 0, 0})));
    EXPECT_EQ(stored("Provinciali_Comunali", "Tprov.vbn"), toHex(amount(1, 25) + amount(9)));
    EXPECT_EQ(stored("Provinciali_Comunali", "DivSt.vbn"), toHex(amount(0) + amount(0, 75)));
}

TEST_F(Saving, OfDividedTypesStoresThePartsThatAreTyped) {
    for (const char* type : {"Europee_Comunali", "Referendum_Comunali"}) {
        callUp(type);
        typeLines();
        line("txtAcconti", "0");
        click("Option2");
        line("txtTotStato", "1,20");
        line("txtTotComune", "0,80");
        click("Option3");
        line("txtCartRegione", "2,50");
        line("txtCartStato", "3,50");
        save();
        EXPECT_EQ(stored(type, "Rendi.vbn"), toHex(laidRendi({42075, 63524, 17850, 0, 100, 120, 200, 300, 400, 500, 600,
                                                              800, 127049, 0, 127049, 700, 80, 250, 350})))
            << type;
        EXPECT_EQ(stored(type, "DivSt.vbn"), toHex(amount(1, 20) + amount(0, 80))) << type;
        EXPECT_EQ(stored(type, "Tprov.vbn"), missing()) << type;
    }
}

TEST_F(Saving, OfDividedTypesForgetsPartsThatWereGivenUp) {
    callUp("Europee_Comunali");
    typeLines();
    line("txtAcconti", "0");
    click("Option2");
    line("txtTotStato", "1,20");
    click("Option1");
    click("Option3");
    line("txtCartStato", "3,50");
    click("Option4");
    save();
    EXPECT_EQ(stored("Europee_Comunali", "Rendi.vbn"),
              toHex(laidRendi(
                  {42075, 63524, 17850, 0, 100, 0, 200, 300, 400, 500, 600, 800, 127049, 0, 127049, 700, 0, 0, 0})));
    EXPECT_EQ(stored("Europee_Comunali", "DivSt.vbn"), missing());
}

TEST_F(Saving, OfTwoBodiesStoresTheirOvertimeAndTheSharesOfTheCards) {
    callUp("Politiche_Regionali");
    typeLines();
    line("txtCartRegione", "2,50");
    line("txtCartStato", "3,50");
    click("Option2");
    line("txtTotStato", "1,20");
    line("txtTotComune", "0,80");
    line("txtAcconti", "0");
    save();
    EXPECT_EQ(stored("Politiche_Regionali", "Rendi.vbn"),
              toHex(laidRendi({42075, 4367, 17850, 33301, 100, 0, 200, 300, 400, 500, 600, 800, 127049, 0, 127049, 700,
                               25856, 250, 350})));
    EXPECT_EQ(stored("Politiche_Regionali", "DivSt.vbn"), toHex(amount(1, 20) + amount(0, 80)));
    EXPECT_EQ(stored("Politiche_Regionali", "Tprov.vbn"), missing());
}

TEST_F(Saving, OfWhatIsNoNumberStoresZero) {
    callUp("Comunali");
    // The command by its key does not leave the field in between; leaving it shows the 0 first.
    line("txtTrasporti", "circa 100");
    line("txtMissioni", "");
    line("txtAcconti", "");
    save();
    EXPECT_EQ(stored("Comunali", "Rendi.vbn"),
              toHex(laidRendi({42075, 63524, 17850, 0, 0, 0, 0, 0, 0, 0, 0, 0, 123449, 0, 123449, 0, 0, 0, 0})));
    EXPECT_EQ(stored("Comunali", "Tprov.vbn"), toHex(amount(0) + amount(0)));
}

TEST_F(Saving, OfTheLargestAmountStoresItWhole) {
    ASSERT_TRUE(makeElectionFolder(files, {"Comunali", someDay}).ok());
    open();
    again("Comunali");
    line("txtTrasporti", "99999999,99");
    line("txtMissioni", "0,01");
    line("txtAcconti", "0,01");
    save();
    const std::string most = amount(99'999'999, 99);
    EXPECT_EQ(stored("Comunali", "Rendi.vbn"), toHex(nuls(7 * 8) + most + nuls(3 * 8) + amount(0, 1) +
                                                     amount(100'000'000) + amount(0, 1) + most + nuls(4 * 8)));
}

TEST_F(Saving, WithoutMembersIsPossible) {
    ASSERT_TRUE(makeElectionFolder(files, {"Politiche", someDay}).ok());
    open();
    again("Politiche");
    save();
    EXPECT_EQ(stored("Politiche", "Rendi.vbn"), toHex(nuls(152)));
}

TEST_F(Saving, LeavesTheScreenAsAtTheStart) {
    callUp("Provinciali_Comunali");
    typeLines();
    line("txtAcconti", "1");
    save();
    for (const char* name :
         {"Combo1", "Combo2", "txtDataEle", "txtOnorari", "txtTotale", "txtDifferenza", "txtTotProv"})
        EXPECT_EQ(text(name), "") << name;
    EXPECT_FALSE(visible("txtTotProv"));
    EXPECT_FALSE(enabled("cmdSalva"));
    EXPECT_EQ(text("Frame7"), "Stampati non forniti dallo Stato");
    EXPECT_EQ(text("Frame9"), "Spese postali");
    EXPECT_EQ(focused(), "Combo1");
    const std::string once = stored("Provinciali_Comunali", "Rendi.vbn");
    identify("Provinciali_Comunali", someDay);
    box("Rendiconto", "Rendiconto già inserito");
    click("cmdAnteprima");
    EXPECT_EQ(stored("Provinciali_Comunali", "Rendi.vbn"), once);
}

TEST_F(Saving, CannotBeDoneBeforeAnElectionIsCalledUp) {
    layCosts(files, "Comunali", someDay);
    open();
    EXPECT_EQ(clerkNow().click(control("cmdSalva")), Refusal::disabled);
    identify("Comunali", someDay);
    EXPECT_EQ(clerkNow().click(control("cmdSalva")), Refusal::disabled);
    EXPECT_EQ(tries("txtStampanti", "1"), Refusal::disabled);
    click("cmdAnteprima");
    for (const char* name : {"txtOnorari", "txtSpeciali", "txtStraordinario", "txtTotale", "txtDifferenza"})
        EXPECT_EQ(tries(name, "1"), Refusal::locked) << name;
    EXPECT_EQ(tries("txtCarico", "1"), Refusal::disabled);
    for (const char* name : {"txtAta", "txtCarico2", "txtFraz", "txtTotStato", "txtTotProv", "txtCartStato"})
        EXPECT_EQ(tries(name, "1"), Refusal::hidden) << name;
}

TEST_F(Saving, OfAStatementIsFollowedByALiquidationInThreePlaces) {
    callUp("Comunali");
    typeLines();
    line("txtAcconti", "1000");
    save();
    // The second employee leaves: 160,09 less.
    auto left = recordFrom<EmployeeRecord>(laidWorkers().substr(0, 301));
    left.pools.NumDip = 1;
    ASSERT_TRUE(lay(files, statementPath("Comunali", someDay, "09-06-24.vbn"), bytesOf(left)));
    ASSERT_THAT(RendiKontrol(files, {"Comunali", someDay}), Succeeds());
    EXPECT_EQ(stored("Comunali", "Rendi.vbn"), toHex(laidRendi({42075, 47515, 17850, 0, 100, 0, 200, 300, 400, 500, 600,
                                                                800, 111040, 100000, 11040, 700, 0, 0, 0})));
    EXPECT_EQ(stored("Comunali", "Tprov.vbn"), toHex(amount(0) + amount(9)));
}

}  // namespace
}  // namespace vorbano::test
