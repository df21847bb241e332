// Storing employees byte by byte, and going on to the next.

#include "authorisation_desk.h"

namespace vorbano::test {
namespace {

class Salva : public AuthorisationTest {
  protected:
    /// An election of `number` employees at the name of the first one.
    void toNameOf(const char* number) {
        open();
        activate("Europee", "09/06/24", number);
        confirmActs();
        confirmPeriods();
    }
};

const char* const beyond = "Si vuole aggiungere un altro dipendente oltre il limite prefissato?";

TEST_F(Salva, TheFirstEmployeeMakesTheWholeElection) {
    toName();
    saveEmployee();
    EXPECT_EQ(toHex(stored("09-06-24.vbn")), toHex(authorisedBytes(1, "ROSSI MARIA")));
    EXPECT_EQ(toHex(stored("Meirin.vbn")), toHex(freshMeirin()));
    EXPECT_EQ(stored("Duedate.vbn"), "15-04-2418-04-24");
    EXPECT_EQ(names(), padded("ROSSI MARIA", 60));
    EXPECT_EQ(stored("Quartum.vbn"), noFile);
    EXPECT_EQ(stored("Pentium.vbn"), noFile);
}

TEST_F(Salva, AWholeElectionOfThreePeriodsIsStoredByteByByte) {
    open();
    activate("Politiche_Comunali", "09/06/24", "5");
    confirmActs();
    tick("Check6", false);
    typePeriods({"20/04/24", "19/05/24"}, {"20/05/24", "08/06/24"});
    type("txtTredal", "10/06/24");
    type("txtTreal", "14/06/24");
    click("Command1");
    // Five employees: 60 hours. Thirty days 300 and 60, twenty 200 and 40, five 50 and 10.
    type("txtNameDip", "NERI NICCOLÒ");
    hours(1, "20", "11", "3");
    hours(2, "8", "4", "2");
    hours(3, "5", "0", "1");
    chooseRate(11);
    click("cmdSalva");
    const std::string expected = Sheet(301)
                                     .integersAt(0, {60, 0, 300, 550, 1, 5})
                                     .at(12, padded("NERI NICCOL\xD2", 60))
                                     .at(72, "20-04-24")
                                     .at(80, "19-05-24")
                                     .integersAt(88, {20, 11, 3, 0, 0, 0, 0})
                                     .at(102, "20-05-24")
                                     .at(110, "08-06-24")
                                     .integersAt(118, {8, 4, 2, 0, 0, 0, 0})
                                     .at(132, "10-06-24")
                                     .at(140, "14-06-24")
                                     .integersAt(148, {5, 0, 1, 0, 0, 0, 0})
                                     .integersAt(162, {54, 0, 0, 0, 0})
                                     .at(172, "G    B6")
                                     .at(179, padded("-", 10))
                                     .amountsAt(189, {1011, 2011, 3011, 0, 2380, 0, 850, 0, 0, 880, 0, 35, 0, 0})
                                     .bytes();
    const std::string folder = "Elezioni/Politiche_Comunali/09-06-24/";
    EXPECT_EQ(toHex(contentOf(files, folder + "09-06-24.vbn")), toHex(expected));
    EXPECT_EQ(toHex(contentOf(files, folder + "Meirin.vbn")), toHex(freshMeirin({60, 40, 10}, {300, 200, 50})));
    EXPECT_EQ(contentOf(files, folder + "Duedate.vbn"), "15-04-2418-04-24");
}

TEST_F(Salva, EveryFurtherEmployeeIsAppended) {
    toName();
    saveEmployee("IMPIEGATO 1");
    click("cmdAggiungi");
    saveEmployee("IMPIEGATO 2");
    EXPECT_EQ(toHex(stored("09-06-24.vbn")),
              toHex(authorisedBytes(1, "IMPIEGATO 1") + authorisedBytes(2, "IMPIEGATO 2")));
    EXPECT_EQ(stored("Meirin.vbn").size(), 86U);
    EXPECT_EQ(names(), padded("IMPIEGATO 1", 60) + padded("IMPIEGATO 2", 60));
}

TEST_F(Salva, TheActsAreWrittenOnceWithTheFirst) {
    toName();
    saveEmployee("IMPIEGATO 1");
    ASSERT_TRUE(lay(files, pathOf("Duedate.vbn"), "01-01-2402-01-24"));
    click("cmdAggiungi");
    saveEmployee("IMPIEGATO 2");
    EXPECT_EQ(stored("Duedate.vbn"), "01-01-2402-01-24");
}

TEST_F(Salva, WhatWasLiquidatedIsNotCarriedToTheNext) {
    toName();
    saveEmployee("IMPIEGATO 1");
    // The first employee as a liquidation leaves it: paid hours, amounts, 9 hours used.
    std::string record = employee(1);
    record.replace(2, 2, le16(9));
    record.replace(94, 8, le16(1) + le16(2) + le16(3) + le16(6));
    record.replace(124, 8, le16(1) + le16(1) + le16(1) + le16(3));
    record.replace(164, 8, le16(2) + le16(3) + le16(4) + le16(9));
    for (const std::size_t at : {213U, 229U, 245U, 253U, 269U, 285U, 293U}) record.replace(at, 8, amount(77));
    ASSERT_TRUE(lay(files, pathOf("09-06-24.vbn"), record));
    resume(1, "IMPIEGATO 1");
    saveEmployee("IMPIEGATO 2");
    EXPECT_EQ(toHex(employee(1)), toHex(record));
    EXPECT_EQ(toHex(employee(2)), toHex(authorisedBytes(2, "IMPIEGATO 2", 6, 9)));
}

TEST_F(Salva, PercentagesKeepTwoDecimals) {
    ASSERT_TRUE(lay(files, "Params/Conprev.dat",
                    amount(23, 80, 49) + amount(8, 50, 50) + amount(0, 88, 1) + amount(0, 34, 99)));
    toName();
    EXPECT_EQ(text("Label43"), ",88");
    EXPECT_EQ(text("Label47"), "0,35");
    saveEmployee();
    const std::string record = employee(1);
    EXPECT_EQ(toHex(record.substr(221, 8)), toHex(amount(23, 80)));
    EXPECT_EQ(toHex(record.substr(237, 8)), toHex(amount(8, 51)));
    EXPECT_EQ(toHex(record.substr(261, 8)), toHex(amount(0, 88)));
    EXPECT_EQ(toHex(record.substr(277, 8)), toHex(amount(0, 35)));
}

TEST_F(Salva, WithoutPercentagesZeroIsStored) {
    ASSERT_TRUE(lay(files, "Params/Conprev.dat", ""));
    box("Attenzione!", "Mancano i parametri per le ritenute previdenziali ed assistenziali per il calcolo");
    toName();
    saveEmployee();
    for (const std::size_t at : {221U, 237U, 261U, 277U}) EXPECT_EQ(toHex(employee(1).substr(at, 8)), toHex(amount(0)));
}

TEST_F(Salva, TheLastEmployeeLocksContinua) {
    toNameOf("1");
    saveEmployee();
    EXPECT_FALSE(operable("cmdAggiungi"));
    EXPECT_FALSE(operable("cmdSalva"));
    EXPECT_TRUE(operable("cmdStampe"));
    EXPECT_EQ(text("Label64"), "Calcolo Terminato");
}

TEST_F(Salva, BeforeTheLastThePrintsAreLocked) {
    toName();
    saveEmployee();
    EXPECT_TRUE(operable("cmdAggiungi"));
    EXPECT_FALSE(operable("cmdStampe"));
}

TEST_F(Salva, ContinuaClearsTheNameAndTheHoursOfThePeriodsThatTakePart) {
    toName();
    saveEmployee();
    click("cmdAggiungi");
    for (const char* field : {"txtNameDip", "txtAutFer1Per", "txtAutFes1Per", "txtNf1Per", "txtTotAut1",
                              "txtAutFer2Per", "txtTotAut2", "txtTotAut", "cboDipendenti"}) {
        EXPECT_EQ(text(field), "") << field;
    }
    EXPECT_EQ(text("txtAutFer3Per") + text("txtAutFes3Per") + text("txtNf3Per") + text("txtTotAut3"), "0000");
    EXPECT_EQ(text("Label26"), "16");
    EXPECT_EQ(text("Label29"), "224");
    EXPECT_EQ(text("txtSonoDip"), "2");
}

TEST_F(Salva, ContinuaDoesNotAskBelowTheLimit) {
    toNameOf("2");
    saveEmployee("IMPIEGATO 1");
    click("cmdAggiungi");
    EXPECT_EQ(text("txtSonoDip"), "2");
}

TEST_F(Salva, BeyondTheLimitIsAskedForAtTheLimitOnly) {
    toNameOf("1");
    saveEmployee("IMPIEGATO 1");
    resume(1, "IMPIEGATO 1", "1");
    EXPECT_TRUE(operable("cmdAggiungi"));
    box("Inserimento Dipendenti", beyond, Answer::no);
    click("cmdAggiungi");
    EXPECT_EQ(text("txtSonoDip"), "0") << "the number goes back by one";
    EXPECT_FALSE(operable("txtNameDip")) << "nobody is entered under it";
    EXPECT_EQ(employee(2), noFile);
    box("Inserimento Dipendenti", beyond, Answer::yes);
    click("cmdAggiungi");
    EXPECT_EQ(text("txtSonoDip"), "2");
    EXPECT_EQ(text("Label64"), "");
    saveEmployee("IMPIEGATO 2");
    EXPECT_EQ(toHex(employee(2)), toHex(authorisedBytes(2, "IMPIEGATO 2", 1)));
    // Beyond the limit the question comes each time.
    EXPECT_TRUE(operable("cmdAggiungi"));
    box("Inserimento Dipendenti", beyond, Answer::yes);
    click("cmdAggiungi");
    EXPECT_EQ(text("txtSonoDip"), "3");
}

TEST_F(Salva, AtTheLimitContinuaLocksItselfWhenNobodyIsAdded) {
    toNameOf("1");
    saveEmployee("IMPIEGATO 1");
    resume(1, "IMPIEGATO 1", "1");
    box("Inserimento Dipendenti", beyond, Answer::yes);
    click("cmdAggiungi");
    saveEmployee("IMPIEGATO 2");
    box("Inserimento Dipendenti", beyond, Answer::no);
    click("cmdAggiungi");
    EXPECT_EQ(text("txtSonoDip"), "1");
    box("Inserimento Dipendenti", beyond, Answer::no);
    click("cmdAggiungi");
    EXPECT_FALSE(operable("cmdAggiungi"));
    EXPECT_EQ(text("Label64"), "Calcolo Terminato");
}

TEST_F(Salva, AKnownNameIsNotAppendedAgain) {
    ASSERT_TRUE(lay(files, "Params/Dipend.dat", padded("VERDI ALDO", 60) + padded("ROSSI MARIA", 60)));
    toName();
    saveEmployee();
    EXPECT_EQ(names(), padded("VERDI ALDO", 60) + padded("ROSSI MARIA", 60));
}

TEST_F(Salva, NamesAreComparedTrimmedAndWithTheirCase) {
    ASSERT_TRUE(lay(files, "Params/Dipend.dat", padded(" ROSSI MARIA", 60)));
    toName();
    saveEmployee("  ROSSI MARIA ");
    EXPECT_EQ(names(), padded(" ROSSI MARIA", 60));
    EXPECT_EQ(employee(1).substr(12, 60), padded("ROSSI MARIA", 60));
    click("cmdAggiungi");
    saveEmployee("Rossi Maria");
    EXPECT_EQ(names(), padded(" ROSSI MARIA", 60) + padded("Rossi Maria", 60));
}

TEST_F(Salva, ANewNameStandsInTheListAtOnce) {
    toName();
    saveEmployee();
    EXPECT_THAT(screen->cboDipendenti.items(), ::testing::ElementsAre("ROSSI MARIA" + std::string(25, ' ') + "1"));
}

TEST_F(Salva, ACorrectedNameTakesItsRecord) {
    ASSERT_TRUE(lay(files, "Params/Dipend.dat", padded("VERDI ALDO", 60) + padded("ROSI MARIA", 60)));
    toName();
    menu("mnuNome");
    chooseIndex("cboDipendenti", 1);
    EXPECT_EQ(text("Label88"), "2");
    enterEmployee("ROSSI MARIA");
    click("cmdSalva");
    EXPECT_EQ(names(), padded("VERDI ALDO", 60) + padded("ROSSI MARIA", 60));
    EXPECT_EQ(text("Label88"), "");
    // The next name is nobody's correction.
    click("cmdAggiungi");
    chooseIndex("cboDipendenti", 0);
    EXPECT_EQ(text("Label88"), "");
    enterEmployee("VERDI ALDA");
    click("cmdSalva");
    EXPECT_EQ(names(), padded("VERDI ALDO", 60) + padded("ROSSI MARIA", 60) + padded("VERDI ALDA", 60));
}

TEST_F(Salva, ACorrectionThatIsGivenUpTouchesNoName) {
    ASSERT_TRUE(lay(files, "Params/Dipend.dat", padded("VERDI ALDO", 60)));
    toName();
    saveEmployee("IMPIEGATO 1");
    menu("mnuNome");
    chooseIndex("cboDipendenti", 0);
    EXPECT_EQ(text("Label88"), "1");
    click("cmdAggiungi");
    EXPECT_EQ(text("Label88"), "");
    saveEmployee("IMPIEGATO 2");
    EXPECT_EQ(names(), padded("VERDI ALDO", 60) + padded("IMPIEGATO 1", 60) + padded("IMPIEGATO 2", 60));
}

TEST_F(Salva, LimitsKeepWhatTheLiquidationAndThePaymentsPutThere) {
    toName();
    saveEmployee("IMPIEGATO 1");
    const auto laid = [](const std::string& figures) {
        return amount(1234, 56) + "16-07-24" + amount(78, 90) + figures + le16(0) + le16(0) + le16(0) + amount(43, 21) +
               le16(0) + le16(0) + le16(0) + amount(987, 65) + "16-08-24" + amount(35, 69);
    };
    const auto six = [](int a, int b, int c, int d, int e, int f) {
        return le16(a) + le16(b) + le16(c) + le16(d) + le16(e) + le16(f);
    };
    ASSERT_TRUE(lay(files, pathOf("Meirin.vbn"), laid(six(1, 2, 3, 4, 5, 6) + le16(0) + le16(0) + le16(0))));
    click("cmdAggiungi");
    saveEmployee("IMPIEGATO 2");
    EXPECT_EQ(toHex(stored("Meirin.vbn")), toHex(laid(six(40, 13, 0, 240, 80, 0) + le16(1) + le16(1) + le16(1))));
}

TEST_F(Salva, LimitsOfSixtyTwoBytesAreReadAndWrittenWhole) {
    toName();
    saveEmployee("IMPIEGATO 1");
    const std::string whole = stored("Meirin.vbn");
    ASSERT_TRUE(lay(files, pathOf("Meirin.vbn"), amount(1234, 56) + whole.substr(8, 54)));
    resume(1, "IMPIEGATO 1");
    saveEmployee("IMPIEGATO 2");
    EXPECT_EQ(toHex(stored("Meirin.vbn")), toHex(amount(1234, 56) + whole.substr(8)))
        << "what the file did not hold is zero";
}

TEST_F(Salva, AFullFileIsToldInWords) {
    toName();
    saveEmployee("IMPIEGATO 1");
    std::string many;
    for (int n = 0; n < 32767; ++n) many += employee(1);
    ASSERT_TRUE(lay(files, pathOf("09-06-24.vbn"), many));
    resume(32767, "IMPIEGATO 1", "32767");
    type("txtNameDip", "IMPIEGATO 2");
    hours(1, "0", "0", "0");
    hours(2, "0", "0", "0");
    chooseRate(4);
    box("Errore", "Il file Elezioni/Europee/09-06-24/09-06-24.vbn contiene già il numero massimo di record.");
    click("cmdSalva");
    EXPECT_EQ(stored("09-06-24.vbn").size(), many.size());
    EXPECT_TRUE(operable("cmdSalva"));
}

}  // namespace
}  // namespace vorbano::test
