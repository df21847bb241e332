// The dates of the acts and of the periods.

#include "authorisation_desk.h"

namespace vorbano::test {
namespace {

class DatePeriodi : public AuthorisationTest {
  protected:
    void toActs(const char* kind = "Europee", const char* date = "09/06/24") {
        open();
        activate(kind, date);
    }
    void toPeriods() {
        toActs();
        confirmActs();
    }
};

const char* const wholeDate = "inserite la data per intero";
const char* const periodMissing =
    "Inserire le date del periodo. Altrimenti se si deve escludere il periodo dal conteggio, inserire nelle caselle "
    "delle date [ // ] senza spazi.";

// The acts.

TEST_F(DatePeriodi, WithoutADateOfAnActAreIncomplete) {
    toActs();
    box("Errore", "Date incomplete");
    click("cmdConferma");
    EXPECT_EQ(focused(), "txtDataDecreto");
    type("txtDataDecreto", "15/04/24");
    box("Errore", "Date incomplete");
    click("cmdConferma");
    EXPECT_EQ(focused(), "txtDataDetermina");
    type("txtDataDecreto", "");
    type("txtDataDetermina", "18/04/24");
    box("Errore", "Date incomplete");
    click("cmdConferma");
    EXPECT_EQ(focused(), "txtDataDecreto");
    EXPECT_TRUE(visible("Frame9"));
}

TEST_F(DatePeriodi, OfAnActThatAreNoneAreRefused) {
    toActs();
    type("txtDataDecreto", "15/04/24");
    type("txtDataDetermina", "31/04/24");
    box("data errata", wholeDate);
    click("cmdConferma");
    EXPECT_EQ(focused(), "txtDataDetermina");
    EXPECT_TRUE(visible("Frame9"));
}

TEST_F(DatePeriodi, FiftyFiveDaysBeforeTheElectionPass) {
    // 15 April to 9 June: 15 days of April, 31 of May, 9 of June.
    toActs();
    confirmActs("10/04/24", "15/04/24");
    EXPECT_TRUE(visible("Frame20"));
    EXPECT_EQ(text("Label94"), "15-04-24");
}

TEST_F(DatePeriodi, FiftySixDaysBeforeTheElectionAreTooMany) {
    toActs();
    box("Errore", "data autorizzazione oltre i termini di gg 55 dalla data delle elezioni.");
    confirmActs("10/04/24", "14/04/24");
    EXPECT_TRUE(visible("Frame9"));
    EXPECT_FALSE(visible("Frame20"));
    EXPECT_FALSE(visible("Label94"));
}

TEST_F(DatePeriodi, OnlyTheDeterminationIsHeldAgainstTheElection) {
    toActs();
    confirmActs("01/01/23", "15/04/24");
    EXPECT_TRUE(visible("Frame20"));
}

TEST_F(DatePeriodi, ADeterminationAfterTheElectionPasses) {
    toActs();
    confirmActs("15/04/24", "20/06/24");
    EXPECT_TRUE(visible("Frame20"));
}

TEST_F(DatePeriodi, PoliticheRegionaliKnowNoLimitOfDays) {
    toActs("Politiche_Regionali");
    box("AUTORIZZAZIONE ELEZIONI Politiche_Regionali",
        "IN CASO ECCEZIONALE E' STATA DATA LA POSSIBILITA' DI\nAUTORIZZARE OLTRE 10 GIORNI LA DATA DI PUBBLICAZIONE "
        "DEL "
        "DECRETO");
    confirmActs("10/01/24", "12/01/24");
    EXPECT_TRUE(visible("Frame20"));
}

TEST_F(DatePeriodi, AnnullaClearsThePanelOfTheActs) {
    toActs();
    type("txtDataDecreto", "15/04/24");
    type("txtDataDetermina", "18/04/24");
    click("cmdAnnulla");
    EXPECT_EQ(text("txtDataDecreto"), "");
    EXPECT_EQ(text("txtDataDetermina"), "");
    EXPECT_EQ(focused(), "txtDataDecreto");
    EXPECT_TRUE(visible("Frame9"));
}

TEST_F(DatePeriodi, OfTheActsAreShownAsAccepted) {
    toActs();
    confirmActs("5/4/24", "18/04/2024");
    EXPECT_EQ(text("Label93"), "05-04-24");
    EXPECT_EQ(text("Label94"), "18-04-24");
}

TEST_F(DatePeriodi, TheThirdPeriodStartsLeftOutForEveryType) {
    for (const auto& type : electionTypesForAuthorisation) {
        SCOPED_TRACE(type);
        toActs(std::string(type).c_str());
        if (type == "Politiche_Regionali") {
            box("AUTORIZZAZIONE ELEZIONI Politiche_Regionali",
                "IN CASO ECCEZIONALE E' STATA DATA LA POSSIBILITA' DI\nAUTORIZZARE OLTRE 10 GIORNI LA DATA DI "
                "PUBBLICAZIONE DEL DECRETO");
        }
        confirmActs();
        EXPECT_FALSE(ticked("Check4"));
        EXPECT_FALSE(ticked("Check5"));
        EXPECT_TRUE(ticked("Check6"));
        EXPECT_EQ(text("txtTredal") + " " + text("txtTreal"), "// //");
        EXPECT_FALSE(operable("txtTredal"));
        EXPECT_EQ(focused(), "txtUnodal");
    }
}

// Typing.

TEST_F(DatePeriodi, EachRefusedCharacterIsTakenOut) {
    toPeriods();
    for (const char character : std::string("()[]#.,*:;'_\\")) {
        box("formato data",
            std::string("Il formato ( ") + character + " ) non è esatto. Inserire il simbolo  ( / )  oppure  ( - )  ");
        type("txtUnoal", std::string("1") + character);
        EXPECT_EQ(text("txtUnoal"), "1") << character;
        type("txtUnoal", "");
    }
}

TEST_F(DatePeriodi, ANumberAboveThirtyOneIsRefused) {
    toPeriods();
    for (const char* field : {"txtUnodal", "txtUnoal", "txtDuedal", "txtDueal"}) {
        box("Date periodi", "valore non  valido");
        type(field, "32");
        EXPECT_EQ(text(field), "") << field;
    }
    type("txtUnodal", "31");
    EXPECT_EQ(text("txtUnodal"), "31");
    type("txtUnodal", "");
}

TEST_F(DatePeriodi, DashesAreAnsweredWithTheOrdinalOfThePeriod) {
    toPeriods();
    tick("Check6", false);
    const std::vector<std::pair<const char*, const char*>> fields = {{"txtUnodal", "1"}, {"txtUnoal", "1"},
                                                                     {"txtDuedal", "2"}, {"txtDueal", "2"},
                                                                     {"txtTredal", "3"}, {"txtTreal", "3"}};
    for (const auto& [field, ordinal] : fields) {
        box("Annullamento periodo", std::string("Per annullare il ") + ordinal + "° periodo inserire ( // )");
        type(field, "--");
        EXPECT_EQ(text(field), "") << field;
    }
}

TEST_F(DatePeriodi, NotWholeKeepTheCursor) {
    toPeriods();
    for (const char* words : {"20", "20/04", "20/4/", "31/02/24", "/", "aa", "20/04/2"}) {
        SCOPED_TRACE(words);
        type("txtUnodal", words);
        box("data errata", wholeDate);
        leave();
        EXPECT_EQ(focused(), "txtUnodal");
        EXPECT_EQ(text("txtUnodal"), words);
    }
    type("txtUnodal", "");
    leave();
    EXPECT_EQ(focused(), "txtUnoal") << "an empty field can be left";
}

TEST_F(DatePeriodi, AClickBehindADateThatIsNotWholeIsDropped) {
    toPeriods();
    type("txtUnodal", "20/04");
    box("data errata", wholeDate);
    click("Command1");
    EXPECT_TRUE(visible("Frame20"));
    EXPECT_EQ(focused(), "txtUnodal");
}

TEST_F(DatePeriodi, AreReformattedOnLeaving) {
    toPeriods();
    type("txtUnodal", "1/5/2024");
    leave();
    EXPECT_EQ(text("txtUnodal"), "01-05-24");
    type("txtUnoal", "//");
    leave();
    EXPECT_EQ(text("txtUnoal"), "//") << "the mark of a period left out passes";
}

// The first day.

struct FirstDay {
    const char* decreto;
    const char* determina;
    const char* tooEarly;
    const char* early;
    const char* words;
};
class PrimoGiorno : public AuthorisationTest, public ::testing::WithParamInterface<FirstDay> {};

TEST_P(PrimoGiorno, IsNotBeforeTheLaterAct) {
    const FirstDay& day = GetParam();
    open();
    activate();
    confirmActs(day.decreto, day.determina);
    type("txtUnodal", day.tooEarly);
    box("Data errata", day.words);
    leave();
    EXPECT_EQ(focused(), "txtUnodal");
    type("txtUnodal", day.early);
    leave();
    EXPECT_EQ(focused(), "txtUnoal") << "on the day itself it passes";
}

INSTANTIATE_TEST_SUITE_P(EitherAct, PrimoGiorno,
                         ::testing::Values(FirstDay{"15/04/24", "18/04/24", "17/04/24", "18/04/24",
                                                    "AUTORIZZARE dalla data della determinazione o successive"},
                                           FirstDay{"20/04/24", "18/04/24", "19/04/24", "20/04/24",
                                                    "AUTORIZZARE dalla data del decreto o successive"}));

TEST_F(DatePeriodi, OnlyTheFirstDateOfTheFirstPeriodIsHeldAgainstTheActs) {
    toPeriods();
    type("txtUnoal", "01/01/24");
    leave();
    EXPECT_EQ(focused(), "Check4");
    type("txtDuedal", "01/01/24");
    leave();
    EXPECT_EQ(focused(), "txtDueal");
}

// The boxes that leave a period out.

TEST_F(DatePeriodi, TheBoxesWriteTheMarkAndLock) {
    toPeriods();
    const std::vector<std::array<const char*, 3>> rows = {
        {"Check4", "txtUnodal", "txtUnoal"}, {"Check5", "txtDuedal", "txtDueal"}, {"Check6", "txtTredal", "txtTreal"}};
    for (const auto& [check, dal, al] : rows) {
        SCOPED_TRACE(check);
        tick(check, true);
        for (const char* field : {dal, al}) {
            EXPECT_EQ(text(field), "//");
            EXPECT_EQ(clerk().type(control(field), "1"), Refusal::locked);
        }
        tick(check, false);
        for (const char* field : {dal, al}) {
            EXPECT_EQ(text(field), "");
            EXPECT_TRUE(operable(field));
        }
    }
}

// "Conferma".

TEST_F(DatePeriodi, BothMissingAreToldOfEachPeriod) {
    toPeriods();
    box("Date periodi", periodMissing);
    click("Command1");
    EXPECT_EQ(focused(), "txtUnodal");
    EXPECT_TRUE(visible("Frame20"));
    type("txtUnodal", "20/04/24");
    type("txtUnoal", "19/05/24");
    box("Date periodi", periodMissing);
    click("Command1");
    EXPECT_EQ(focused(), "txtDuedal");
    tick("Check5");
    tick("Check6", false);
    box("Date periodi", periodMissing);
    click("Command1");
    EXPECT_EQ(focused(), "txtTredal");
}

TEST_F(DatePeriodi, OneMissingIsToldOfEachPeriod) {
    toPeriods();
    tick("Check6", false);
    typePeriods({"20/04/24", ""}, {"20/05/24", ""});
    type("txtTredal", "10/06/24");
    box("Date periodi", "Date del 1° periodo incomplete.");
    box("Date periodi", "Date del 2° periodo incomplete.");
    box("Date periodi", "Date del 3° periodo incomplete.");
    click("Command1");
    EXPECT_EQ(focused(), "txtUnoal");
    EXPECT_TRUE(visible("Frame20"));
    EXPECT_EQ(text("txtPrimoDal"), "");
}

TEST_F(DatePeriodi, OneMarkAloneLeavesNothingOut) {
    toPeriods();
    typePeriods({"20/04/24", "19/05/24"}, {"//", "29/05/24"});
    box("Date periodi", "Date del 2° periodo incomplete.");
    click("Command1");
    EXPECT_EQ(focused(), "txtDuedal");
}

TEST_F(DatePeriodi, AreCarriedToThePanels) {
    toPeriods();
    tick("Check6", false);
    typePeriods();
    type("txtTredal", "10/6/24");
    type("txtTreal", "14/6/24");
    click("Command1");
    EXPECT_EQ(text("txtPrimoDal") + " " + text("txtPrimoAl"), "20-04-24 19-05-24");
    EXPECT_EQ(text("txtSecDal") + " " + text("txtSecAl"), "20-05-24 29-05-24");
    EXPECT_EQ(text("txtTerDal") + " " + text("txtTerAl"), "10-06-24 14-06-24");
    EXPECT_EQ(figures(1), "60 240 40");
    EXPECT_EQ(figures(2), "20 80 13");
    // Five days: 10 hours at most, 5 x 240 / 30, 6,67 on average.
    EXPECT_EQ(figures(3), "10 40 7");
    EXPECT_EQ(text("txtGlobo"), "360");
    EXPECT_EQ(text("txtMoUtil"), "0");
    EXPECT_EQ(text("txtRestante"), "360");
}

TEST_F(DatePeriodi, OfAPeriodLeftOutTakeNoPart) {
    toPeriods();
    tick("Check4");
    type("txtDuedal", "20/05/24");
    type("txtDueal", "29/05/24");
    click("Command1");
    for (const char* field : {"txtAutFer1Per", "txtAutFes1Per", "txtNf1Per", "txtTotAut1", "Label56", "Label52"}) {
        EXPECT_EQ(text(field), "0") << field;
    }
    EXPECT_FALSE(operable("txtAutFer1Per"));
    EXPECT_TRUE(operable("txtAutFer2Per"));
    EXPECT_EQ(text("txtGlobo"), "80");
}

TEST_F(DatePeriodi, WithoutAnyPeriodTheTotalOpensAtOnce) {
    toPeriods();
    tick("Check4");
    tick("Check5");
    click("Command1");
    EXPECT_TRUE(operable("CmdRiepilogo"));
    EXPECT_EQ(text("txtGlobo"), "");
    type("txtNameDip", "ROSSI MARIA");
    click("CmdRiepilogo");
    EXPECT_EQ(text("txtTotAut"), "0");
    tick("Check2");
    click("cmdTariffe");
    pick(1, 0);
    click("cmdSalva");
    EXPECT_EQ(employee(1).substr(72, 16), "//      //      ");
    EXPECT_EQ(employee(1).substr(162, 2), le16(0));
}

TEST_F(DatePeriodi, FebruaryCountsAsAMonthFromTwentyEightDays) {
    struct Case {
        const char* from;
        const char* to;
        const char* expected;
    };
    for (const Case& each : {Case{"01/02/23", "28/02/23", "60 240 40"}, Case{"01/02/23", "27/02/23", "54 216 36"},
                             Case{"15/02/23", "14/03/23", "60 240 40"}, Case{"31/01/23", "27/02/23", "56 224 37"},
                             Case{"01/03/23", "31/03/23", "60 240 40"}}) {
        SCOPED_TRACE(each.from);
        open();
        activate("Europee", "12/02/23");
        confirmActs("10/01/23", "10/01/23");
        typePeriods({each.from, each.to}, {"//", "//"});
        click("Command1");
        EXPECT_EQ(figures(1), each.expected);
    }
}

TEST_F(DatePeriodi, DisattivaGoesBackToTheActs) {
    toPeriods();
    typePeriods();
    click("cmdDisattiva");
    EXPECT_TRUE(visible("Frame9"));
    EXPECT_FALSE(visible("Frame20"));
    for (const char* label : {"Label91", "Label92", "Label93", "Label94"}) EXPECT_FALSE(visible(label)) << label;
    EXPECT_EQ(focused(), "txtDataDecreto");
    EXPECT_EQ(text("txtPrimoDal"), "");
    confirmActs("16/04/24", "19/04/24");
    EXPECT_EQ(text("Label93"), "16-04-24");
    click("Command1");
    EXPECT_EQ(text("txtPrimoDal"), "20-04-24") << "what was typed is still there";
}

// Varying the dates.

TEST_F(DatePeriodi, VariedAreShownAgain) {
    toName();
    menu("mnuDate");
    EXPECT_EQ(text("txtUnodal") + " " + text("txtUnoal"), "20-04-24 19-05-24");
    EXPECT_EQ(text("txtDuedal") + " " + text("txtDueal"), "20-05-24 29-05-24");
    EXPECT_TRUE(ticked("Check6"));
    EXPECT_FALSE(ticked("Check5"));
    EXPECT_EQ(text("txtTredal"), "//");
}

TEST_F(DatePeriodi, VariedReachAllRecords) {
    toName();
    saveEmployee("IMPIEGATO 1");
    click("cmdAggiungi");
    saveEmployee("IMPIEGATO 2");
    menu("mnuDate");
    tick("Check6", false);
    type("txtDueal", "03/06/24");
    type("txtTredal", "04/06/24");
    type("txtTreal", "08/06/24");
    click("Command1");
    // Fifteen days: 15 x 240 / 30 = 120, half of 40, limit 30. Five days: 40, 7, 10.
    EXPECT_EQ(figures(2), "30 120 20");
    EXPECT_EQ(figures(3), "10 40 7");
    EXPECT_EQ(text("txtGlobo"), "400");
    for (int number = 1; number <= 2; ++number) {
        std::string expected = authorisedBytes(number, "IMPIEGATO " + std::to_string(number));
        expected.replace(6, 2, le16(400));
        expected.replace(110, 8, "03-06-24");
        expected.replace(132, 16, "04-06-2408-06-24");
        EXPECT_EQ(toHex(employee(number)), toHex(expected));
    }
    EXPECT_EQ(toHex(stored("Meirin.vbn")), toHex(freshMeirin({40, 20, 7}, {240, 120, 40})));
    EXPECT_EQ(stored("Duedate.vbn"), "15-04-2418-04-24");
    EXPECT_EQ(stored("Reverse.vbn"), noFile);
    EXPECT_EQ(text("Label58"), "");
    EXPECT_TRUE(operable("cmdAggiungi"));
    click("cmdAggiungi");
    EXPECT_EQ(text("txtSonoDip"), "3");
    EXPECT_EQ(text("txtTerDal"), "04-06-24");
}

TEST_F(DatePeriodi, VariedBeforeTheFirstEmployeeReachNothing) {
    toName();
    menu("mnuDate");
    type("txtUnoal", "18/05/24");
    click("Command1");
    EXPECT_EQ(stored("09-06-24.vbn"), noFile);
    EXPECT_EQ(stored("Meirin.vbn"), noFile);
    EXPECT_EQ(figures(1), "58 232 39");
}

TEST_F(DatePeriodi, VariedAreHeldAgainstTheActsToo) {
    toName();
    saveEmployee();
    resume(1, "ROSSI MARIA");
    menu("mnuDate");
    type("txtUnodal", "17/04/24");
    box("Data errata", "AUTORIZZARE dalla data della determinazione o successive");
    leave();
    EXPECT_EQ(focused(), "txtUnodal");
    type("txtUnodal", "18/04/24");
}

TEST_F(DatePeriodi, NotVariedAfterAllStayAsTheyWere) {
    toName();
    saveEmployee();
    menu("mnuDate");
    type("txtUnoal", "30/04/24");
    click("cmdDisattiva");
    EXPECT_EQ(text("txtPrimoAl"), "19-05-24");
    EXPECT_EQ(figures(1), "60 240 40");
    EXPECT_EQ(toHex(employee(1)), toHex(authorisedBytes(1, "ROSSI MARIA")));
}

TEST_F(DatePeriodi, OfAPeriodThatTakesPartAgainOpenItsHours) {
    toName();
    menu("mnuDate");
    tick("Check6", false);
    type("txtTredal", "10/06/24");
    type("txtTreal", "14/06/24");
    click("Command1");
    EXPECT_EQ(text("txtAutFer3Per"), "");
    type("txtNameDip", "ROSSI MARIA");
    hours(1, "1", "1", "1");
    hours(2, "1", "1", "1");
    EXPECT_EQ(focused(), "txtAutFer3Per");
}

}  // namespace
}  // namespace vorbano::test
