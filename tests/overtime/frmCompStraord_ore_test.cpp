// The employee on show: name, hours against the pools and limits, rates.

#include "authorisation_desk.h"

namespace vorbano::test {
namespace {

class Ore : public AuthorisationTest {
  protected:
    void toHours() {
        toName();
        type("txtNameDip", "ROSSI MARIA");
    }
    void toRates() {
        toHours();
        hours(1, "10", "4", "2");
        hours(2, "5", "3", "1");
        click("CmdRiepilogo");
    }
    /// The hours of the first period of the stored employees, as if all were one.
    void layUsedHours(int used) {
        saveEmployee("IMPIEGATO 1");
        std::string record = employee(1);
        record.replace(88, 6, le16(used) + le16(0) + le16(0));
        ASSERT_TRUE(lay(files, pathOf("09-06-24.vbn"), record));
        resume(1, "IMPIEGATO 1");
        type("txtNameDip", "ROSSI MARIA");
    }
    void expectOpen(int period, bool isOpen) {
        for (TextBox* field : screen->periods.at(static_cast<std::size_t>(period) - 1).hourFields()) {
            EXPECT_EQ(operable(field->name()), isOpen) << field->name();
        }
    }
};

TEST_F(Ore, WithoutANameGoBackToTheName) {
    toName();
    for (const char* field : {"txtAutFer1Per", "txtAutFes1Per", "txtNf1Per"}) {
        box("Errore", noName);
        enter(field);
        EXPECT_EQ(focused(), "txtNameDip") << field;
    }
    EXPECT_EQ(text("txtNf1Per"), "");
}

TEST_F(Ore, AreSummedAndTakenFromThePool) {
    toHours();
    hours(1, "10", "4", "2");
    EXPECT_EQ(text("txtTotAut1"), "16");
    EXPECT_EQ(text("Label26"), "16");
    EXPECT_EQ(text("Label29"), "224");
    expectOpen(1, false);
    expectOpen(2, true);
}

TEST_F(Ore, LeftEmptyAreZero) {
    toHours();
    hours(1, "10", "", "");
    EXPECT_EQ(text("txtAutFes1Per"), "0");
    EXPECT_EQ(text("txtNf1Per"), "0");
    EXPECT_EQ(text("txtTotAut1"), "10");
}

TEST_F(Ore, AreCheckedOnlyOnLeavingTheThirdField) {
    toHours();
    type("txtAutFer1Per", "200");
    leave();
    type("txtAutFes1Per", "200");
    leave();
    EXPECT_EQ(focused(), "txtNf1Per");
    // 400 of 240, also when the clerk goes back to correct them.
    box("Errore", "Le ore autorizzate superano il limite mensile di 160 ore. Modificare i dati");
    enter("txtAutFes1Per");
    EXPECT_EQ(focused(), "txtAutFer1Per");
}

TEST_F(Ore, AtTheIndividualLimitPassWithTheNotice) {
    toHours();
    box("Ore autorizzate",
        "Le ore autorizzate superano il limite medio individuale mensile di 20 ore. Possono essere autorizzate in "
        "quanto "
        "rientrano nel monte ore mensile e nel limite massimo individuale delle 60 ore.");
    hours(1, "50", "10", "0");
    EXPECT_EQ(text("txtTotAut1"), "60");
    EXPECT_EQ(focused(), "txtAutFer2Per");
}

TEST_F(Ore, AtTheAveragePassSilently) {
    toHours();
    hours(1, "40", "0", "0");
    EXPECT_EQ(text("txtTotAut1"), "40");
}

TEST_F(Ore, AboveTheAverageAreNoticed) {
    toHours();
    box("Ore autorizzate",
        "Le ore autorizzate superano il limite medio individuale mensile di 1 ore. Possono essere autorizzate in "
        "quanto "
        "rientrano nel monte ore mensile e nel limite massimo individuale delle 60 ore.");
    hours(1, "40", "0", "1");
    EXPECT_EQ(text("txtTotAut1"), "41");
    expectOpen(1, false);
}

TEST_F(Ore, AboveTheIndividualLimitAreRefused) {
    toHours();
    box("Ore autorizzate",
        "Le ore autorizzate superano il limite massimo individuale mensile (60 ore.), di 1 ore. Non possono essere "
        "autorizzate. Modificare i dati");
    hours(1, "50", "10", "1");
    EXPECT_EQ(focused(), "txtAutFer1Per");
    EXPECT_EQ(text("txtTotAut1"), "");
    EXPECT_EQ(text("Label26"), "0");
    expectOpen(1, true);
    expectOpen(2, false);
}

TEST_F(Ore, ExactlyAtThePoolPass) {
    toName();
    layUsedHours(220);
    hours(1, "20", "0", "0");
    EXPECT_EQ(text("Label26"), "240");
    EXPECT_EQ(text("Label29"), "") << "nothing is left, which shows as nothing";
    EXPECT_EQ(focused(), "txtAutFer2Per");
}

TEST_F(Ore, AboveTheAverageAtThePoolPassSilently) {
    toName();
    layUsedHours(199);
    hours(1, "41", "0", "0");
    EXPECT_EQ(text("Label26"), "240");
    EXPECT_EQ(text("txtTotAut1"), "41");
}

TEST_F(Ore, OneAboveThePoolIsRefused) {
    toName();
    layUsedHours(220);
    box("Errore", "Le ore autorizzate superano il limite mensile di 1 ore. Modificare i dati");
    hours(1, "20", "1", "0");
    EXPECT_EQ(focused(), "txtAutFer1Per");
    EXPECT_EQ(text("Label26"), "220");
    EXPECT_EQ(text("Label29"), "20");
    expectOpen(1, true);
}

TEST_F(Ore, ThePoolIsCheckedBeforeTheIndividualLimit) {
    toName();
    layUsedHours(220);
    box("Errore", "Le ore autorizzate superano il limite mensile di 41 ore. Modificare i dati");
    hours(1, "61", "0", "0");
    type("txtAutFer1Per", "1");
}

TEST_F(Ore, CheckedAgainAreNotCountedTwice) {
    toHours();
    hours(1, "10", "4", "2");
    menu("mnuNome");
    EXPECT_EQ(screen->periods[0].frame.tone(), Tone::plain) << "no longer done";
    hours(1, "10", "4", "3");
    EXPECT_EQ(text("Label26"), "17");
    EXPECT_EQ(text("txtTotAut1"), "17");
}

TEST_F(Ore, TheLimitOfAShortPeriodIsItsShare) {
    toHours();
    hours(1, "0", "0", "0");
    box("Ore autorizzate",
        "Le ore autorizzate superano il limite massimo individuale mensile (20 ore.), di 1 ore. Non possono essere "
        "autorizzate. Modificare i dati");
    hours(2, "21", "0", "0");
    EXPECT_EQ(focused(), "txtAutFer2Per");
    box("Ore autorizzate",
        "Le ore autorizzate superano il limite medio individuale mensile di 1 ore. Possono essere autorizzate in "
        "quanto "
        "rientrano nel monte ore mensile e nel limite massimo individuale delle 20 ore.");
    hours(2, "14", "0", "0");
    EXPECT_EQ(focused(), "CmdRiepilogo");
}

TEST_F(Ore, ThatAreNoNumberAreRefused) {
    toHours();
    for (const char* words : {"abc", "-1", "1;2", "99999999"}) {
        SCOPED_TRACE(words);
        EXPECT_EQ(clerk().edit(control("txtAutFer1Per"), words), Refusal::none);
        box("Errore", "Inserire le ore con un numero intero.");
        type("txtNf1Per", "1");
        leave();
        EXPECT_EQ(focused(), "txtAutFer1Per");
        expectOpen(1, true);
    }
}

TEST_F(Ore, WithAHalfAreReadInTheirTwoWays) {
    toHours();
    hours(1, "13,5", "12,5", "0");
    // As whole numbers, half to even: 14 and 12. As the plain scan reads them: 13 and 12.
    EXPECT_EQ(text("txtTotAut1"), "26");
    hours(2, "0", "0", "0");
    chooseRate(4);
    EXPECT_EQ(text("txtTotAut"), "25");
    click("cmdSalva");
    EXPECT_EQ(employee(1).substr(88, 6), le16(14) + le16(12) + le16(0));
}

TEST_F(Ore, FilesFullOfTheLargestNumbersDoNoHarm) {
    toName();
    saveEmployee("IMPIEGATO 1");
    std::string record = employee(1);
    record.replace(88, 6, le16(32767) + le16(32767) + le16(32767));
    std::string many;
    for (int n = 0; n < 32766; ++n) many += record;
    ASSERT_TRUE(lay(files, pathOf("09-06-24.vbn"), many));
    resume(32766, "IMPIEGATO 1");
    type("txtNameDip", "ROSSI MARIA");
    // More hours than 32 bits hold (3.220.897.566) stand as the most that they hold, 2.147.483.647, and 240 are
    // allowed.
    box("Errore", "Le ore autorizzate superano il limite mensile di 2147483407 ore. Modificare i dati");
    hours(1, "1", "0", "0");
    type("txtAutFer1Per", "1");
}

TEST_F(Ore, NegativeHoursOnFileDoNoHarm) {
    toName();
    layUsedHours(-32768);
    hours(1, "1", "0", "0");
    EXPECT_EQ(text("Label29"), "33007") << "240 + 32767";
}

// The total and the rates.

TEST_F(Ore, TheTotalIsTheSumOfAllPeriods) {
    toRates();
    EXPECT_EQ(text("txtTotAut"), "25");
    EXPECT_FALSE(operable("CmdRiepilogo"));
}

TEST_F(Ore, TheTotalCountsAnEmptyHourAsZero) {
    toHours();
    hours(1, "10", "", "");
    hours(2, "", "", "");
    click("CmdRiepilogo");
    EXPECT_EQ(text("txtTotAut"), "10");
}

TEST_F(Ore, TheTwoKindsOfTariffExcludeEachOther) {
    toRates();
    EXPECT_TRUE(operable("cmdTariffe"));
    tick("Check1");
    EXPECT_TRUE(operable("cmdTariffe"));
    tick("Check2");
    EXPECT_FALSE(ticked("Check1"));
    EXPECT_TRUE(operable("cmdTariffe"));
    tick("Check1");
    EXPECT_FALSE(ticked("Check2"));
    EXPECT_TRUE(operable("cmdTariffe"));
    tick("Check1", false);
    EXPECT_FALSE(operable("cmdTariffe"));
    tick("Check2");
    tick("Check2", false);
    EXPECT_FALSE(operable("cmdTariffe"));
}

TEST_F(Ore, WithoutAKindTheTariffsAskForOne) {
    toRates();
    click("cmdTariffe");
    EXPECT_FALSE(visible("Frame3"));
    EXPECT_EQ(focused(), "Check1");
}

TEST_F(Ore, TheGridShowsTheThirtyTwoGradesInTheOrderOfTheRecord) {
    toRates();
    tick("Check2");
    click("cmdTariffe");
    EXPECT_EQ(text("Frame3"), "Tariffe Dipendenti compenso lavoro straordinario");
    EXPECT_EQ(text("lblDipendente"), "Dipendente: ROSSI MARIA");
    const std::vector<std::string> grades = {
        "B8",          "C6",          "D7",          "D3", "D2", "D1",          "C4", "C3", "C2", "C1", "    G    B6",
        "    G    B5", "    G    B4", "    G    B3", "B4", "B3", "B2",          "B1", "A4", "A3", "A2", "A1",
        "A6",          "D6",          "D5",          "D4", "C5", "    G    B7", "B7", "B6", "B5", "A5"};
    EXPECT_EQ(screen->MSFlexGrid1.rows(), 32);
    const std::vector<std::string> heading = {"Categorie", "Feriali", "Festive", "Fe/No"};
    for (int column = 0; column < 4; ++column) EXPECT_EQ(cell(0, column), heading[static_cast<std::size_t>(column)]);
    for (int row = 1; row <= 32; ++row) {
        EXPECT_EQ(cell(row, 0), grades[static_cast<std::size_t>(row) - 1]);
        const std::string cents = (row < 10 ? "0" : "") + std::to_string(row);
        EXPECT_EQ(cell(row, 1) + " " + cell(row, 2) + " " + cell(row, 3),
                  "10," + cents + " 20," + cents + " 30," + cents);
    }
}

TEST_F(Ore, EveryGradeBringsItsRates) {
    toRates();
    for (int row = 1; row <= 32; ++row) {
        SCOPED_TRACE(row);
        tick("Check2", false);
        tick("Check2");
        click("cmdTariffe");
        const std::string grade = cell(row, 0);
        pick(row, 0);
        const std::string cents = (row < 10 ? "0" : "") + std::to_string(row);
        EXPECT_EQ(text("txtCompDf") + " " + text("txtCompNof") + " " + text("txtCompNef"),
                  "10," + cents + " 20," + cents + " 30," + cents);
        EXPECT_EQ(text("Text1"), grade);
        EXPECT_EQ(text("lblCat"), grade.find('G') == std::string::npos ? grade : grade.substr(4));
        EXPECT_EQ(text("lblCat2"), "-");
        EXPECT_EQ(screen->MSFlexGrid1.rows(), 0);
        EXPECT_TRUE(operable("cmdSalva"));
        for (const char* rate : {"txtCompDf", "txtCompNof", "txtCompNef"}) EXPECT_FALSE(operable(rate)) << rate;
    }
}

TEST_F(Ore, OnlyAPickInTheFirstColumnCounts) {
    toRates();
    tick("Check2");
    click("cmdTariffe");
    for (int column = 1; column <= 3; ++column) pick(4, column);
    pick(0, 0);
    EXPECT_TRUE(visible("Frame3"));
    EXPECT_EQ(text("txtCompDf"), "");
    EXPECT_EQ(text("lblCat"), "");
    EXPECT_FALSE(operable("cmdSalva"));
    pick(4, 0);
    EXPECT_EQ(text("txtCompDf"), "10,04");
}

TEST_F(Ore, TheGridShowsTheFiveRowsOfTheSecretaries) {
    toRates();
    tick("Check1");
    click("cmdTariffe");
    const std::vector<std::string> rows = {"8^ Qual.funz.", "9^ q.f. 2 anni eff. serv.", "9^ q.f. 5 anni eff. serv.",
                                           "9^ q.f. 10 anni eff. serv.", "9^ q.f. 15 anni eff. serv."};
    ASSERT_EQ(screen->MSFlexGrid1.rows(), 5);
    for (int row = 1; row <= 5; ++row) {
        EXPECT_EQ(cell(row, 0), rows[static_cast<std::size_t>(row) - 1]);
        const std::string cents = ",0" + std::to_string(row);
        EXPECT_EQ(cell(row, 1) + " " + cell(row, 2) + " " + cell(row, 3), "40" + cents + " 50" + cents + " 60" + cents);
    }
}

TEST_F(Ore, ASecretaryKeepsTheRatesAndTheClerkTypesThem) {
    toRates();
    tick("Check2");
    click("cmdTariffe");
    pick(4, 0);
    tick("Check1");
    click("cmdTariffe");
    pick(3, 0);
    EXPECT_EQ(text("txtCompDf") + " " + text("txtCompNof") + " " + text("txtCompNef"), "10,04 20,04 30,04")
        << "the name stands in no row of the staff";
    EXPECT_EQ(text("lblCat"), "9^ q.f. 5 anni eff. serv.");
    EXPECT_TRUE(operable("cmdSalva"));
    EXPECT_TRUE(operable("cmdCalcola"));
    EXPECT_EQ(focused(), "txtCompDf");
    type("txtCompDf", "41,005");
    type("txtCompNof", "1.050,5");
    type("txtCompNef", "61");
    click("cmdCalcola");
    EXPECT_EQ(text("txtCompDf") + " " + text("txtCompNof") + " " + text("txtCompNef"), "41,01 1.050,50 61,00");
    EXPECT_FALSE(operable("cmdCalcola"));
    EXPECT_FALSE(operable("txtCompDf"));
    EXPECT_EQ(focused(), "cmdSalva");
    click("cmdSalva");
    EXPECT_EQ(employee(1).substr(172, 17), "9^ q.f.-         ");
    EXPECT_EQ(toHex(employee(1).substr(189, 24)), toHex(amount(41, 1) + amount(1050, 50) + amount(61)));
}

TEST_F(Ore, TypedRatesAreHeldToCentsWithoutCalcolaToo) {
    toRates();
    tick("Check1");
    click("cmdTariffe");
    pick(1, 0);
    type("txtCompDf", "41,005");
    type("txtCompNof", "");
    type("txtCompNef", "abc");
    click("cmdSalva");
    // An empty rate is nothing; one that is no number keeps what stood in a fresh record.
    EXPECT_EQ(toHex(employee(1).substr(189, 24)), toHex(amount(41, 1) + amount(0) + amount(0)));
}

TEST_F(Ore, ARateThatIsNoNumberKeepsTheOneOfTheRecordBefore) {
    toName();
    saveEmployee("IMPIEGATO 1");
    click("cmdAggiungi");
    type("txtNameDip", "SEGRETARIO");
    hours(1, "1", "0", "0");
    hours(2, "1", "0", "0");
    click("CmdRiepilogo");
    tick("Check1");
    click("cmdTariffe");
    pick(1, 0);
    type("txtCompDf", "abc");
    type("txtCompNof", "50,01");
    type("txtCompNef", "60,01");
    click("cmdSalva");
    EXPECT_EQ(toHex(employee(2).substr(189, 24)), toHex(amount(10, 4) + amount(50, 1) + amount(60, 1)));
}

TEST_F(Ore, WithoutRatesOfTheStaffThereIsNothingToPick) {
    ASSERT_TRUE(lay(files, "Params/PmDip.dat", ""));
    ASSERT_TRUE(lay(files, "Params/PmSeg.dat", ""));
    toRates();
    tick("Check2");
    click("cmdTariffe");
    EXPECT_EQ(screen->MSFlexGrid1.rows(), 0);
    tick("Check1");
    click("cmdTariffe");
    EXPECT_EQ(screen->MSFlexGrid1.rows(), 0);
    EXPECT_FALSE(operable("cmdSalva"));
}

// The name.

TEST_F(Ore, TheNameCanBeChosenFromTheList) {
    ASSERT_TRUE(lay(files, "Params/Dipend.dat", padded("VERDI ALDO", 60) + padded("NERI NICCOL\xD2", 60)));
    toName();
    EXPECT_THAT(screen->cboDipendenti.items(), ::testing::ElementsAre("VERDI ALDO" + std::string(25, ' ') + "1",
                                                                      "NERI NICCOLÒ" + std::string(25, ' ') + "2"));
    chooseIndex("cboDipendenti", 1);
    EXPECT_EQ(text("txtNameDip"), "NERI NICCOLÒ");
}

TEST_F(Ore, ANewEmployeeIsTypedInsteadOfChosen) {
    ASSERT_TRUE(lay(files, "Params/Dipend.dat", padded("VERDI ALDO", 60)));
    toName();
    chooseIndex("cboDipendenti", 0);
    tick("Check3");
    EXPECT_EQ(text("txtNameDip"), "");
    EXPECT_EQ(text("cboDipendenti"), "");
    for (const char* field : {"txtUnodal", "txtUnoal", "txtDuedal", "txtDueal", "txtTredal", "txtTreal"}) {
        EXPECT_EQ(text(field), "") << field;
    }
    EXPECT_FALSE(visible("Frame20"));
    EXPECT_EQ(focused(), "txtNameDip");
    EXPECT_EQ(text("txtPrimoDal"), "20-04-24") << "the periods stand";
    menu("mnuDate");
    EXPECT_EQ(text("txtUnodal") + " " + text("txtTreal"), "20-04-24 //");
}

TEST_F(Ore, ANameTakenAwayAgainIsNotStored) {
    toName();
    enterEmployee();
    type("txtNameDip", "   ");
    box("Errore", noName);
    click("cmdSalva");
    EXPECT_EQ(focused(), "txtNameDip");
    EXPECT_EQ(stored("09-06-24.vbn"), noFile);
}

TEST_F(Ore, ALongNameIsCutAtSixtyCharacters) {
    toName();
    type("txtNameDip", std::string(200, 'X'));
    EXPECT_EQ(text("txtNameDip"), std::string(60, 'X'));
}

TEST_F(Ore, AnAccentIsStoredInTheCodePageAndWhatItLacksAsAQuestionMark) {
    toName();
    saveEmployee("D'ARÒ €😀");
    EXPECT_EQ(employee(1).substr(12, 60), padded("D'AR\xD2 \x80?", 60));
}

}  // namespace
}  // namespace vorbano::test
