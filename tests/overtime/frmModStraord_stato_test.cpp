// The periods are switched between authorisation and liquidation.

#include "liquidation_desk.h"

namespace vorbano::test {
namespace {

class Stato : public LiquidationTest {
  protected:
    /// The screen with the election named and nobody called up.
    void nameElection() {
        open();
        name();
    }
    std::string statesOf() {
        const std::string bytes = stored("Meirin.vbn");
        return toHex(bytes.substr(36, 6) + bytes.substr(46, 2) + bytes.substr(60, 2));
    }
};

const char* const finishFirst = "Inserimento ore da liquidare";
const char* const refusedLiqui = "Per inserire le ore da liquidare bisogna prima finire di salvare tutti i dipendenti";
const char* const refusedAutoriz =
    "Per inserire le ore da autorizzare bisogna prima finire di salvare tutti i dipendenti";

std::string liquidateQuestion(const std::string& periods) {
    return "State per attivare l'inserimento delle ore da liquidare del periodo " + periods +
           ". Attenzione, una volta attivato le ore autorizzate si disattivano e possono essere modificate solo dopo "
           "aver riattivato l'autorizzazione . Attivare?";
}
std::string authoriseQuestion(const std::string& periods) {
    return "State per attivare l'inserimento delle ore da autorizzare del " + periods +
           ". Attenzione, una volta attivato le ore da liquidare si disattivano e possono essere modificate solo dopo "
           "aver riattivato la liquidazione. Attivare?";
}

TEST_F(Stato, WhileAnEmployeeIsOnShowItIsRefused) {
    layElection();
    callUp();
    box(finishFirst, refusedLiqui);
    menu("mnuLiqui");
    box(finishFirst, refusedAutoriz);
    menu("mnuAutoriz");
    EXPECT_FALSE(visible("Frame24"));
}

TEST_F(Stato, WhileAPeriodIsOpenItIsRefused) {
    layElection();
    callUp();
    press("Frame1");
    box(finishFirst, refusedAutoriz);
    menu("mnuAutoriz");
    type("txtPag1Df", "1");
    enter("txtTotale1");
    leave();
    click("cmdRicalcola");
    box(finishFirst, refusedLiqui);
    menu("mnuLiqui");
}

TEST_F(Stato, WithTheElectionAloneItIsOpen) {
    layElection();
    callUp("");
    menu("mnuAutoriz");
    EXPECT_TRUE(visible("Frame24"));
}

TEST_F(Stato, ADateThatWasNotLeftYetIsADate) {
    layElection();
    open();
    choose("Combo1", "Europee");
    type("txtDataEle", "9/6/24");
    menu("mnuAutoriz");
    EXPECT_TRUE(visible("Frame24"));
    EXPECT_EQ(text("txtDataEle"), "09-06-24");
}

TEST_F(Stato, ThePanelOfTheAuthorisation) {
    layElection();
    layLimits(limitsBytes({1, 0, 1}));
    nameElection();
    menu("mnuAutoriz");
    EXPECT_EQ(text("Frame24"), "Attivazione autorizzazione ore straordinario");
    EXPECT_EQ(text("lblAttivazione"),
              "Scegliere il periodo su cui attivare l'inserimento delle ore da autorizzare. E' anche possibile "
              "attivare più di uno dei periodi o tutti");
    EXPECT_TRUE(operable("Check8"));
    EXPECT_TRUE(visible("Check9"));
    EXPECT_FALSE(enabled("Check9")) << "in authorisation already";
    EXPECT_TRUE(visible("Check10"));
    EXPECT_FALSE(enabled("Check10")) << "left out";
    for (const char* hidden :
         {"Check12", "Check3", "Check5", "Check6", "Check7", "Check13", "Check2", "cmdAttiva", "cmdAnnulla"}) {
        EXPECT_FALSE(visible(hidden)) << hidden;
    }
    EXPECT_TRUE(operable("cmdAttiva2"));
    EXPECT_TRUE(operable("cmdAnnulla2"));
    EXPECT_FALSE(operable("mnuLiqui"));
    EXPECT_TRUE(operable("mnuAutoriz"));
    for (const char* held : {"Combo1", "txtDataEle", "cmdRicerca", "txtSonoDip", "cmdRicerca2", "Check11"}) {
        EXPECT_FALSE(enabled(held)) << held;
    }
    menu("mnuAutoriz");
    EXPECT_TRUE(visible("Frame24"));
    click("cmdAnnulla2");
    EXPECT_FALSE(visible("Frame24"));
    EXPECT_TRUE(operable("mnuLiqui"));
    EXPECT_TRUE(operable("cmdRicerca"));
    EXPECT_EQ(focused(), "txtSonoDip");
}

TEST_F(Stato, ThePanelOfTheLiquidation) {
    layElection();
    layLimits(limitsBytes({1, 0, 0}));
    nameElection();
    menu("mnuLiqui");
    EXPECT_EQ(text("Frame24"), "Attivazione liquidazione ore straordinario");
    EXPECT_EQ(text("lblAttivazione"),
              "Scegliere il periodo su cui attivare l'inserimento delle ore da liquidare. E' anche possibile attivare "
              "più di uno dei periodi o tutti ");
    EXPECT_FALSE(enabled("Check5")) << "in liquidation already";
    EXPECT_TRUE(operable("Check6"));
    EXPECT_FALSE(enabled("Check7")) << "left out";
    EXPECT_FALSE(visible("Check8"));
    EXPECT_FALSE(operable("mnuAutoriz"));
    click("cmdAnnulla");
    EXPECT_TRUE(operable("mnuAutoriz"));
}

TEST_F(Stato, SomethingMustBeChosen) {
    layElection();
    layLimits(limitsBytes({0, 0, 0}));
    nameElection();
    menu("mnuLiqui");
    box("Attivazione liquidazione ore", "Selezionare almeno uno dei periodi");
    click("cmdAttiva");
    click("cmdAnnulla");
    layLimits(limitsBytes());
    menu("mnuAutoriz");
    box("Attivazione liquidazione ore", "Selezionare almeno uno dei periodi");
    click("cmdAttiva2");
    EXPECT_TRUE(visible("Frame24"));
}

TEST_F(Stato, OnYesThePeriodsAreInAuthorisationAtOnce) {
    layElection();
    layStaff({first().liquidated().withUsed(13), second(), third()});
    nameElection();
    menu("mnuAutoriz");
    tick("Check8");
    tick("Check9");
    box("Autorizzazione ore straordinario", authoriseQuestion("1°Periodo - 2°Periodo"), Answer::yes);
    click("cmdAttiva2");
    EXPECT_EQ(toHex(stored("Meirin.vbn")), toHex(limitsBytes({0, 0, 1})));
    EXPECT_FALSE(visible("Frame24"));
    EXPECT_TRUE(operable("mnuLiqui"));
    EXPECT_EQ(text("lblPrimo"), "0");
    EXPECT_EQ(text("lblSecondo"), "0");
    EXPECT_EQ(text("lblTerzo"), "1");
    EXPECT_EQ(toHex(employee(1)), toHex(first().liquidated().withUsed(13).bytes())) << "paid hours stay";
}

TEST_F(Stato, OnNoNothingChanges) {
    layElection();
    nameElection();
    menu("mnuAutoriz");
    tick("Check9");
    box("Autorizzazione ore straordinario", authoriseQuestion("2°Periodo"), Answer::no);
    click("cmdAttiva2");
    EXPECT_EQ(toHex(stored("Meirin.vbn")), toHex(limitsBytes()));
    EXPECT_TRUE(visible("Frame24"));
    EXPECT_TRUE(ticked("Check9"));
}

TEST_F(Stato, LiquidationIsSwitchedOnAgain) {
    layElection();
    layLimits(limitsBytes({0, 0, 1}));
    nameElection();
    menu("mnuLiqui");
    tick("Check5");
    box("Liquidazione ore straordinario", liquidateQuestion("1°Periodo"), Answer::yes);
    click("cmdAttiva");
    EXPECT_EQ(toHex(stored("Meirin.vbn")), toHex(limitsBytes({1, 0, 1})));
}

TEST_F(Stato, TheNumberThatStandsThereIsCalledUpAfterwards) {
    layElection();
    nameElection();
    type("txtSonoDip", "2");
    menu("mnuAutoriz");
    tick("Check8");
    box("Autorizzazione ore straordinario", authoriseQuestion("1°Periodo"), Answer::yes);
    click("cmdAttiva2");
    EXPECT_EQ(text("txtNameDip"), "ROSSI MARIO");
    EXPECT_EQ(text("lblPrimo"), "0");
}

TEST_F(Stato, LimitsOfSixtyTwoBytesBecomeWhole) {
    layElection();
    layLimits(limitsBytes().substr(0, 62));
    nameElection();
    menu("mnuAutoriz");
    tick("Check8");
    box("Autorizzazione ore straordinario", authoriseQuestion("1°Periodo"), Answer::yes);
    click("cmdAttiva2");
    EXPECT_EQ(toHex(stored("Meirin.vbn")), toHex(limitsBytes({0, 1, 1}).substr(0, 62) + nuls(24)));
}

/// Five periods of 2009, all of them in use.
class StatoVecchie : public Stato {
  protected:
    StatoVecchie() {
        type_ = "Europee_Comunali";
        date_ = "07-06-09";
    }
    void layFive(int state) {
        Person person;
        person.dates = {{{"15-04-09", "14-05-09"}, {"15-05-09", "24-05-09"}, {"25-05-09", "31-05-09"}}};
        layStaff({person});
        layLimits(limitsBytes({state, state, state}, state, state));
        const auto late = [](const std::string& from, const std::string& to) {
            return Sheet(241)
                .integersAt(0, {40, 0, 280, 373, 1, 7})
                .at(12, padded("BIANCHI ANNA", 60))
                .at(72, from)
                .at(80, to)
                .at(88, nuls(24))
                .at(112, padded("D3", 7))
                .at(119, padded("-", 10))
                .at(129, nuls(112))
                .bytes();
        };
        ASSERT_TRUE(lay(files, pathOf("Quartum.vbn"), late("01-06-09", "07-06-09")));
        ASSERT_TRUE(lay(files, pathOf("Pentium.vbn"), late("08-06-09", "12-06-09")));
    }
};

TEST_F(StatoVecchie, TheNamesOfTheFivePeriodsInTheLiquidation) {
    layFive(0);
    nameElection();
    menu("mnuLiqui");
    for (const char* each : {"Check5", "Check6", "Check7", "Check13", "Check2"}) tick(each);
    box("Liquidazione ore straordinario",
        liquidateQuestion("1°Periodo - 2°Periodo - 3° Periodo - 4°Periodo - 5°Periodo"), Answer::yes);
    click("cmdAttiva");
    EXPECT_EQ(statesOf(), "01 00 01 00 01 00 01 00 01 00");
}

TEST_F(StatoVecchie, TheNamesOfTheFivePeriodsInTheAuthorisation) {
    layFive(1);
    nameElection();
    menu("mnuAutoriz");
    for (const char* each : {"Check8", "Check9", "Check10", "Check12", "Check3"}) tick(each);
    box("Autorizzazione ore straordinario",
        authoriseQuestion("1°Periodo - 2°Periodo - 3° Periodo - 4° Periodo - 5° Periodo"), Answer::yes);
    click("cmdAttiva2");
    EXPECT_EQ(statesOf(), "00 00 00 00 00 00 00 00 00 00");
}

}  // namespace
}  // namespace vorbano::test
