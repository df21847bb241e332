// Opening a period for entry, and leaving it.

#include "liquidation_desk.h"

namespace vorbano::test {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

class Periodi : public LiquidationTest {
  protected:
    /// Employee 1 with all periods in authorisation.
    void callUpInAuthorisation(const char* number = "1") {
        layElection();
        layLimits(limitsBytes({0, 0, 0}));
        callUp(number);
    }
    void callUpInLiquidation(const char* number = "1") {
        layElection();
        callUp(number);
    }
};

std::string changed(const std::string& hours, int period) {
    return "Sono state modificate le " + hours + " del " + std::to_string(period) +
           "° periodo\nSe volete confermare la modifica scegliere SI.\nSe volete annullare le modifiche scegliere NO";
}

TEST_F(Periodi, APressOpensThePaidHoursOfAPeriodInLiquidation) {
    callUpInLiquidation();
    press("Frame1");
    EXPECT_THAT(openFields(), ElementsAre("txtPag1Df", "txtPag1Nf", "txtPag1NeF", "txtTotale1"));
    EXPECT_EQ(focused(), "txtPag1Df");
    EXPECT_EQ(screen->periods[0].frame.tone(), Tone::active);
    expectHeld(true);
    EXPECT_FALSE(operable("cmdTariffe"));
    EXPECT_FALSE(operable("cmdRicalcola"));
}

TEST_F(Periodi, APressOpensTheAuthorisedHoursOfAPeriodInAuthorisation) {
    callUpInAuthorisation();
    press("Frame4");
    EXPECT_THAT(openFields(), ElementsAre("txtAutFer2Per", "txtAutFes2Per", "txtNf2Per"));
    EXPECT_EQ(focused(), "txtAutFer2Per");
    expectHeld(true);
}

TEST_F(Periodi, TheButtonDoesAsThePress) {
    callUpInLiquidation();
    click("cmdApri2");
    EXPECT_THAT(openFields(), ElementsAre("txtPag2Df", "txtPag2Nf", "txtPag2NeF", "txtTotale2"));
    EXPECT_FALSE(operable("cmdApri1"));
    EXPECT_TRUE(operable("cmdChiudi2"));
    EXPECT_FALSE(operable("cmdChiudi1"));
}

TEST_F(Periodi, APeriodLeftOutIsNotOpened) {
    callUpInLiquidation();
    box("Modifica 3° Periodo", "Periodo non incluso nel conteggio");
    press("Frame5");
    EXPECT_THAT(openFields(), IsEmpty());
    expectHeld(false);
}

TEST_F(Periodi, ALeftOutFirstAndSecondPeriodAreNotOpenedEither) {
    layElection();
    Person person = first();
    person.dates = {{{"//      ", "//      "}, {"//      ", "//      "}, {"15-05-24", "24-05-24"}}};
    layStaff({person});
    callUp();
    box("Modifica 1° Periodo", "Periodo non incluso nel conteggio");
    press("Frame1");
    box("Modifica 2° Periodo", "Periodo non incluso nel conteggio");
    click("cmdApri2");
    press("Frame5");
    EXPECT_EQ(focused(), "txtPag3Df");
}

TEST_F(Periodi, OnlyOnePeriodIsOpen) {
    callUpInLiquidation();
    press("Frame1");
    press("Frame4");
    press("Frame1");
    EXPECT_THAT(openFields(), ElementsAre("txtPag1Df", "txtPag1Nf", "txtPag1NeF", "txtTotale1"));
}

TEST_F(Periodi, WithoutASearchNothingIsOpened) {
    layElection();
    open();
    box("Modifica dati", "Non è stata fatta la ricerca");
    press("Frame1");
    name();
    box("Modifica dati", "Non è stata fatta la ricerca");
    click("cmdApri2");
}

TEST_F(Periodi, WhileANameIsCorrectedNothingIsOpened) {
    callUpInLiquidation();
    tick("Check1");
    box("Modifica dati",
        "Non e possibile inserire le ore di lavoro straordinario. E' attivata la modifica del nominativo del "
        "Dipendente.");
    press("Frame1");
    EXPECT_THAT(openFields(), IsEmpty());
}

TEST_F(Periodi, WhileATariffOrStatePanelShowsNothingIsOpened) {
    callUpInLiquidation();
    click("cmdTariffe");
    press("Frame1");
    EXPECT_FALSE(operable("cmdApri1"));
    click("cmdChiudiTariffe");
    click("cmdAnnulla3");
    menu("mnuAutoriz");
    press("Frame1");
    EXPECT_THAT(openFields(), IsEmpty());
}

TEST_F(Periodi, BetweenConfermaAndSalvaNothingIsOpened) {
    callUpInLiquidation();
    pay(1, {10, 3, 0});
    EXPECT_EQ(focused(), "cmdRicalcola");
    press("Frame4");
    EXPECT_FALSE(operable("cmdApri2"));
    click("cmdRicalcola");
    press("Frame4");
    EXPECT_THAT(openFields(), IsEmpty());
}

TEST_F(Periodi, TheNumberThatWasTypedOverIsTheOneOnShowAgain) {
    callUpInLiquidation("2");
    type("txtSonoDip", "1");
    press("Frame1");
    EXPECT_EQ(text("txtSonoDip"), "2");
    EXPECT_EQ(text("txtNameDip"), "ROSSI MARIO");
}

TEST_F(Periodi, ThePointerAloneClosesNothing) {
    callUpInLiquidation();
    press("Frame1");
    move("Frame1");
    EXPECT_FALSE(openFields().empty());
    type("txtPag1Df", "5");
    move("Frame4");
    EXPECT_FALSE(openFields().empty());
}

TEST_F(Periodi, TheButtonClosesAPeriodThatIsUnchanged) {
    callUpInLiquidation();
    press("Frame1");
    type("txtPag1Df", "7");
    type("txtPag1Df", "0");
    click("cmdChiudi1");
    EXPECT_THAT(openFields(), IsEmpty());
    expectHeld(false);
    EXPECT_EQ(focused(), "cmdApri1");
    EXPECT_EQ(screen->periods[0].frame.tone(), Tone::plain);
}

TEST_F(Periodi, ChangedPaidHoursAreConfirmed) {
    callUpInLiquidation();
    press("Frame4");
    type("txtPag2Df", "3");
    box("Ore liquidate", changed("ore liquidate", 2), Answer::yes);
    move("Frame4");
    EXPECT_THAT(openFields(), IsEmpty());
    EXPECT_EQ(text("txtTotale2"), "3");
    EXPECT_TRUE(operable("cmdRicalcola"));
    EXPECT_EQ(focused(), "cmdRicalcola");
    expectHeld(true);
}

TEST_F(Periodi, ChangedPaidHoursAreTakenBack) {
    layElection();
    layStaff({first().liquidated(), second()});
    callUp();
    press("Frame1");
    type("txtPag1Df", "9");
    type("txtPag1NeF", "x");
    type("txtPag1NeF", "2");
    box("Ore liquidate", changed("ore liquidate", 1), Answer::no);
    click("cmdChiudi1");
    EXPECT_EQ(text("txtPag1Df"), "10");
    EXPECT_EQ(text("txtPag1NeF"), "0");
    EXPECT_EQ(text("txtTotale1"), "13");
    EXPECT_FALSE(operable("cmdRicalcola"));
    expectHeld(false);
}

TEST_F(Periodi, ChangedAuthorisedHoursAreConfirmed) {
    callUpInAuthorisation();
    press("Frame1");
    type("txtAutFer1Per", "21");
    box("Ore autorizzate", changed("ore autorizzate", 1), Answer::yes);
    move("Frame1");
    EXPECT_THAT(openFields(), IsEmpty());
    EXPECT_EQ(text("Label52"), "A1");
    EXPECT_EQ(text("Label59"), "63");
    EXPECT_EQ(text("Label29"), "217");
    EXPECT_EQ(focused(), "cmdRicalcola");
}

TEST_F(Periodi, AYesDoesNotSpareTheLimits) {
    callUpInAuthorisation();
    press("Frame1");
    type("txtAutFer1Per", "49");
    box("Ore autorizzate", changed("ore autorizzate", 1), Answer::yes);
    box("Ore autorizzate",
        "Le ore autorizzate superano il limite massimo individuale mensile (60 ore.), di 1 ore. Non possono essere "
        "autorizzate. Modificare i dati");
    move("Frame1");
    EXPECT_TRUE(operable("txtAutFer1Per"));
    EXPECT_FALSE(operable("cmdRicalcola"));
    EXPECT_EQ(text("Label52"), "");
}

TEST_F(Periodi, ANoPutsTheAuthorisedHoursBack) {
    callUpInAuthorisation();
    press("Frame4");
    type("txtAutFer2Per", "9");
    type("txtAutFes2Per", "7");
    box("Ore autorizzate", changed("ore autorizzate", 2), Answer::no);
    move("Frame4");
    EXPECT_EQ(text("txtAutFer2Per"), "8");
    EXPECT_EQ(text("txtAutFes2Per"), "4");
    EXPECT_EQ(text("txtTotAut2"), "12");
    EXPECT_EQ(text("lblUtil2"), "34");
    EXPECT_EQ(text("Label52"), "");
    EXPECT_FALSE(operable("cmdRicalcola"));
    EXPECT_THAT(openFields(), IsEmpty());
    expectHeld(false);
}

TEST_F(Periodi, ANoAfterARefusalCountsTheUsedHoursAnew) {
    callUpInAuthorisation();
    press("Frame1");
    type("txtAutFer1Per", "100");
    enter("txtNf1Per");
    box("Ore autorizzate",
        "Le ore autorizzate superano il limite massimo individuale mensile (60 ore.), di 52 ore. Non possono essere "
        "autorizzate. Modificare i dati");
    leave();
    EXPECT_EQ(text("Label59"), "142");
    box("Ore autorizzate", changed("ore autorizzate", 1), Answer::no);
    move("Frame1");
    EXPECT_EQ(text("Label59"), "62");
    EXPECT_EQ(text("Label29"), "218");
}

TEST_F(Periodi, MorePaidThanAuthorisedIsRefusedOnLeaving) {
    callUpInLiquidation();
    press("Frame4");
    type("txtPag2Df", "13");
    box("inserimento dati", "Le ore liquidate superano le ore autorizzate");
    move("Frame4");
    EXPECT_TRUE(operable("txtPag2Df"));
    EXPECT_EQ(focused(), "txtPag2Df");
    EXPECT_FALSE(operable("cmdRicalcola"));
}

TEST_F(Periodi, PaidHoursThatAreNoNumberAreRefusedOnLeaving) {
    callUpInLiquidation();
    press("Frame4");
    type("txtPag2Nf", "due");
    box("Errore", "Inserire le ore con un numero intero.");
    click("cmdChiudi2");
    EXPECT_EQ(focused(), "txtPag2Nf");
}

// Dates that are not there.

TEST_F(Periodi, APeriodWithoutDatesAsksForThemFirst) {
    layElection();
    Person one = first();
    Person two = second();
    one.dates[1] = two.dates[1] = {"        ", "24-05-24"};
    layStaff({one, two});
    callUp();
    box("Errore", "Date dei periodi incompleti");
    press("Frame4");
    EXPECT_EQ(focused(), "txtSecDal");
    EXPECT_THAT(openFields(), IsEmpty());
    type("txtSecDal", "15/5/24");
    leave();
    one.dates[1] = two.dates[1] = {"15-05-24", "24-05-24"};
    EXPECT_EQ(toHex(stored("09-06-24.vbn")), toHex(staffOf({one, two}))) << "in every record";
    EXPECT_EQ(text("txtSecDal"), "15-05-24");
    EXPECT_EQ(text("Label46"), "20");
    EXPECT_FALSE(operable("txtSecDal"));
    press("Frame4");
    EXPECT_EQ(focused(), "txtPag2Df");
}

TEST_F(Periodi, DatesThatMakeNoPeriodAreRefused) {
    layElection();
    Person one = first();
    one.dates[1] = {"        ", "24-05-24"};
    layStaff({one});
    callUp();
    box("Errore", "Date dei periodi incompleti");
    press("Frame4");
    for (const char* wrong : {"25/5/24", "31/06/24", "//"}) {
        type("txtSecDal", wrong);
        box("Errore", "Date dei periodi incompleti");
        leave();
        EXPECT_EQ(focused(), "txtSecDal") << wrong;
    }
    EXPECT_EQ(toHex(stored("09-06-24.vbn")), toHex(one.bytes()));
}

TEST_F(Periodi, APeriodWithoutDatesCanBeLeftOut) {
    layElection();
    Person one = first();
    one.dates[1] = {"        ", "        "};
    layStaff({one});
    callUp();
    box("Errore", "Date dei periodi incompleti");
    press("Frame4");
    type("txtSecDal", "//");
    leave();
    type("txtSecAl", "//");
    leave();
    one.dates[1] = {"//      ", "//      "};
    EXPECT_EQ(toHex(stored("09-06-24.vbn")), toHex(one.bytes()));
}

}  // namespace
}  // namespace vorbano::test
