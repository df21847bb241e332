// What follows from new dates: figures, verdict, who stands above a limit; and its storing.

#include "mod_date_desk.h"

namespace vorbano::test::moddate {
namespace {

using ::testing::ElementsAre;

class ModDateSituazione : public ModDateTest {
  protected:
    /// One period, `employees` on `monteOre` hours a month, as the two stored ones have it.
    void searchPeriod(const Span& dates, int monteOre, int employees) {
        ASSERT_TRUE(lay(files, today24 + "09-06-24.vbn",
                        staff24({monteOre, monteOre * employees, 320, employees}, {dates, leftOut, leftOut})));
        ASSERT_TRUE(lay(files, today24 + "Meirin.vbn", limits24()));
        ASSERT_TRUE(lay(files, today24 + "Duedate.vbn", acts24));
        search("Europee", "09/06/24");
        click("cmdModifica");
    }
    void save() {
        box("Date periodi", "MODIFICA EFFETTUATA");
        click("cmdSalva");
    }
};

TEST_F(ModDateSituazione, AsTheDatesStandNothingIsWrong) {
    searchElection24();
    click("cmdModifica");
    EXPECT_EQ(after(1), "60 40 240 70 170");
    EXPECT_EQ(after(2), "20 13 80 28 52");
    EXPECT_EQ(after(3), "0 0 0 0 0");
    EXPECT_EQ(text("Label10"), noProblem);
    EXPECT_EQ(text("Label30"), "0");
    EXPECT_THAT(list(), ElementsAre("Hanno superato il limite massimo:", rule, "1° Periodo", rule, "2° Periodo", rule,
                                    "3° Periodo", rule));
    EXPECT_TRUE(operable("cmdSalva"));
    EXPECT_TRUE(operable("cmdStampa"));
}

/// Dates, hours a month, employees, and what follows: "limit average pool".
struct Figures {
    Span dates;
    int monteOre, employees;
    const char* expected;
};

TEST_F(ModDateSituazione, DaysAndStaffMakeTheFigures) {
    const std::vector<Figures> cases = {
        {{"01-04-24", "30-04-24"}, 40, 6, "60 40 240"},
        {{"01-05-24", "31-05-24"}, 40, 6, "60 40 240"},
        {{"01-04-24", "15-06-24"}, 40, 6, "60 40 240"},
        {{"01-02-23", "28-02-23"}, 40, 6, "60 40 240"},
        {{"02-02-24", "29-02-24"}, 40, 6, "60 40 240"},
        {{"15-02-23", "14-03-23"}, 40, 6, "60 40 240"},
        {{"01-02-24", "27-02-24"}, 40, 6, "54 36 216"},
        {{"31-01-23", "27-02-23"}, 40, 6, "56 37 224"},
        {{"01-04-24", "15-04-24"}, 60, 5, "30 30 150"},
        {{"01-04-24", "10-04-24"}, 40, 7, "20 13 93"},
        {{"01-04-24", "10-04-24"}, 50, 6, "20 17 100"},
        {{"09-06-24", "09-06-24"}, 40, 6, "2 1 8"},
        // The average goes to the even number, the pool away from zero: 4,5 hours are 4 and 5.
        {{"01-04-24", "03-04-24"}, 45, 1, "6 4 5"},
    };
    for (const Figures& one : cases) {
        SCOPED_TRACE(std::string(one.dates[0]) + " " + std::string(one.dates[1]));
        searchPeriod(one.dates, one.monteOre, one.employees);
        EXPECT_EQ(text("txtLimite1") + " " + text("txtIndiD1") + " " + text("txtMensD1"), one.expected);
        EXPECT_EQ(text("txtUtiD1"), "70");
    }
}

TEST_F(ModDateSituazione, AFigureOfZeroShowsNothingAndOfAnExcludedPeriodAZero) {
    searchPeriod({"01-04-24", "30-04-24"}, 0, 6);
    EXPECT_EQ(after(1), "60   70 -70");
    EXPECT_EQ(after(2), "0 0 0 0 0");
}

TEST_F(ModDateSituazione, AResidualOfZeroIsNoProblem) {
    // 35 hours a month for six are 7 a day: ten days are the 70 hours that are authorised.
    searchPeriod({"01-04-24", "10-04-24"}, 35, 6);
    EXPECT_EQ(text("txtResD1"), "0");
    EXPECT_EQ(text("Label10"), noProblem);
    searchPeriod({"01-04-24", "09-04-24"}, 35, 6);
    EXPECT_EQ(text("txtResD1"), "-7");
    EXPECT_EQ(text("Label10"), fiveLines);
}

TEST_F(ModDateSituazione, WhoStandsAboveTheLimitIsNamed) {
    searchElection24();
    newDates(2, "20/05/24", "27/05/24");
    click("cmdModifica");
    EXPECT_EQ(after(2), "16 11 64 28 36");
    EXPECT_THAT(list(), ElementsAre("Hanno superato il limite massimo:", rule, "1° Periodo", rule, "2° Periodo",
                                    "ROSSI MARIA  ore 19  (+3)", rule, "3° Periodo", rule));
    EXPECT_EQ(text("Label30"), "3");
    EXPECT_EQ(text("Label10"), noProblem) << "the pool is enough, whoever stands above his limit";
}

TEST_F(ModDateSituazione, HoursAtTheLimitAreNotAboveIt) {
    searchElection24();
    newDates(1, "20/04/24", "04/05/24");
    click("cmdModifica");
    EXPECT_EQ(after(1), "30 20 120 70 50");
    EXPECT_THAT(list(), ElementsAre("Hanno superato il limite massimo:", rule, "1° Periodo",
                                    "ROSSI MARIA  ore 40  (+10)", rule, "2° Periodo", rule, "3° Periodo", rule));
}

TEST_F(ModDateSituazione, HoursAboveTheLimitsAddUpOverAllPeriods) {
    searchElection24();
    newDates(1, "20/04/24", "29/04/24");
    newDates(2, "20/05/24", "22/05/24");
    click("cmdModifica");
    EXPECT_EQ(after(1), "20 13 80 70 10");
    EXPECT_EQ(after(2), "6 4 24 28 -4");
    EXPECT_THAT(list(), ElementsAre("Hanno superato il limite massimo:", rule, "1° Periodo",
                                    "ROSSI MARIA  ore 40  (+20)", "VERDI ALDO  ore 30  (+10)", rule, "2° Periodo",
                                    "ROSSI MARIA  ore 19  (+13)", "VERDI ALDO  ore 9  (+3)", rule, "3° Periodo", rule));
    EXPECT_EQ(text("Label30"), "46");
    EXPECT_EQ(text("Label10"), fiveLines);
}

TEST_F(ModDateSituazione, AnExcludedPeriodHasZerosAndItsHoursAreAllTooMany) {
    searchElection24();
    newDates(2, "//", "//");
    click("cmdModifica");
    EXPECT_EQ(after(2), "0 0 0 0 0");
    EXPECT_EQ(text("Label10"), noProblem);
    EXPECT_EQ(text("Label30"), "28");
    EXPECT_THAT(list(), ElementsAre("Hanno superato il limite massimo:", rule, "1° Periodo", rule, "2° Periodo",
                                    "ROSSI MARIA  ore 19  (+19)", "VERDI ALDO  ore 9  (+9)", rule, "3° Periodo", rule));
}

TEST_F(ModDateSituazione, SavingChangesDatesPoolsAndLimitsAndNothingElse) {
    searchElection24();
    newDates(2, "20/05/24", "27/05/24");
    click("cmdModifica");
    save();
    const std::array<Span, 3> dates = {{dates24[0], {"20-05-24", "27-05-24"}, leftOut}};
    EXPECT_EQ(toHex(file24("09-06-24.vbn")), toHex(staff24({50, 300, 304, 6}, dates)));
    EXPECT_EQ(toHex(file24("Meirin.vbn")), toHex(limits24(40, 240, 11, 64)));
    EXPECT_EQ(file24("Duedate.vbn"), acts24);
    EXPECT_FALSE(files.openExisting(today24 + "Quartum.vbn").ok());
}

TEST_F(ModDateSituazione, AfterSavingTheScreenShowsWhatIsStored) {
    searchElection24();
    newDates(2, "20/05/24", "27/05/24");
    click("cmdModifica");
    save();
    EXPECT_FALSE(ticked("Check2"));
    EXPECT_FALSE(operable("txtSecAlM"));
    EXPECT_EQ(text("txtSecAlM"), "27-05-24");
    EXPECT_EQ(before(2), "11 64");
    EXPECT_EQ(before(1), "40 240");
    EXPECT_FALSE(operable("cmdSalva")) << "it is stored already";
    EXPECT_TRUE(operable("cmdStampa"));
    EXPECT_EQ(after(2), "16 11 64 28 36");
    // What a cleared box gives back is the new date.
    tick("Check2");
    type("txtSecAlM", "26/05/24");
    tick("Check2", false);
    EXPECT_EQ(text("txtSecAlM"), "27-05-24");
    click("cmdModifica");
    EXPECT_EQ(after(2), "16 11 64 28 36") << "the new hours a month do not change what was shown";
}

TEST_F(ModDateSituazione, FiveEmployeesGetSeventyHours) {
    ASSERT_TRUE(lay(files, today24 + "09-06-24.vbn", staff24({60, 300, 400, 5})));
    ASSERT_TRUE(lay(files, today24 + "Meirin.vbn", limits24(60, 300, 20, 100)));
    search("Europee", "09/06/24");
    newDates(2, "20/05/24", "24/05/24");
    click("cmdModifica");
    EXPECT_EQ(after(1), "60 60 300 70 230");
    EXPECT_EQ(after(2), "10 10 50 28 22");
    save();
    const std::array<Span, 3> dates = {{dates24[0], {"20-05-24", "24-05-24"}, leftOut}};
    EXPECT_EQ(toHex(file24("09-06-24.vbn")), toHex(staff24({70, 350, 350, 5}, dates)));
    EXPECT_EQ(toHex(file24("Meirin.vbn")), toHex(limits24(60, 300, 10, 50)));
}

TEST_F(ModDateSituazione, WhatStandsAboveThePoolIsStoredOnRequest) {
    searchElection24();
    newDates(1, "20/04/24", "24/04/24");
    click("cmdModifica");
    EXPECT_EQ(after(1), "10 7 40 70 -30");
    EXPECT_EQ(text("Label10"), fiveLines);
    EXPECT_EQ(text("Label30"), "50");
    save();
    const std::array<Span, 3> dates = {{{"20-04-24", "24-04-24"}, dates24[1], leftOut}};
    EXPECT_EQ(toHex(file24("09-06-24.vbn")), toHex(staff24({50, 300, 120, 6}, dates)));
    EXPECT_EQ(toHex(file24("Meirin.vbn")), toHex(limits24(7, 40)));
}

TEST_F(ModDateSituazione, APeriodIsExcludedAndAnotherTakesPartAgain) {
    searchElection24();
    newDates(1, "//", "//");
    newDates(3, "30/05/24", "08/06/24");
    click("cmdModifica");
    EXPECT_EQ(after(3), "20 13 80 0 80");
    save();
    const std::array<Span, 3> dates = {{leftOut, dates24[1], {"30-05-24", "08-06-24"}}};
    EXPECT_EQ(toHex(file24("09-06-24.vbn")), toHex(staff24({50, 300, 160, 6}, dates)));
    EXPECT_EQ(toHex(file24("Meirin.vbn")), toHex(limits24(0, 0, 13, 80, 13, 80)));
}

}  // namespace
}  // namespace vorbano::test::moddate
