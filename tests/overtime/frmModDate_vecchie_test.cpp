// Elections of before 2014: the fourth and fifth period, each in a file of its own.

#include "mod_date_desk.h"

namespace vorbano::test::moddate {
namespace {

using ::testing::ElementsAre;

const std::string folder13 = "Elezioni/Europee_Comunali/26-05-13/";
constexpr LaidPools pools13 = {60, 180, 384, 3};
constexpr std::array<Span, 3> dates13 = {
    {{"27-03-13", "25-04-13"}, {"26-04-13", "10-05-13"}, {"11-05-13", "20-05-13"}}};
constexpr Span fourth13 = {"21-05-13", "26-05-13"};
constexpr Span fifth13 = {"27-05-13", "29-05-13"};

/// Three employees of the calculation on 60 hours a month, two of them stored.
std::string staff13(const LaidPools& pools = pools13, const std::array<Span, 3>& dates = dates13) {
    return staffBytes(pools, 1, "CONTI ALDO", dates, {{{20, 10, 5}, {10, 5, 1}, {6, 2, 1}}}) +
           staffBytes(pools, 2, "LEONE PAOLA", dates, {{{30, 8, 2}, {12, 4, 2}, {7, 3, 0}}});
}
std::string quartum13(const LaidPools& pools = pools13, const Span& dates = fourth13) {
    return lateBytes(pools, 1, "CONTI ALDO", dates, {4, 2, 0}) + lateBytes(pools, 2, "LEONE PAOLA", dates, {5, 3, 1});
}
std::string pentium13(const LaidPools& pools = pools13, const Span& dates = fifth13) {
    return lateBytes(pools, 1, "CONTI ALDO", dates, {2, 1, 0}) + lateBytes(pools, 2, "LEONE PAOLA", dates, {2, 2, 1});
}

class ModDateVecchie : public ModDateTest {
  protected:
    void searchElection13() {
        ASSERT_TRUE(lay(files, folder13 + "26-05-13.vbn", staff13()));
        ASSERT_TRUE(lay(files, folder13 + "Quartum.vbn", quartum13()));
        ASSERT_TRUE(lay(files, folder13 + "Pentium.vbn", pentium13()));
        ASSERT_TRUE(lay(files, folder13 + "Meirin.vbn", limitBytes({60, 30, 20, 12, 6}, {180, 90, 60, 36, 18})));
        ASSERT_TRUE(lay(files, folder13 + "Duedate.vbn", "25-03-1326-03-13"));
        search("Europee_Comunali", "26/05/13");
    }
    std::string file13(const std::string& name) { return contentOf(files, folder13 + name); }
    void save() {
        box("Date periodi", "MODIFICA EFFETTUATA");
        click("cmdSalva");
    }
};

TEST_F(ModDateVecchie, FivePeriodsAreShown) {
    searchElection13();
    EXPECT_EQ(text("txtQuartusDalM") + " " + text("txtQuartusAlM"), "21-05-13 26-05-13");
    EXPECT_EQ(text("txtPentiumDalM") + " " + text("txtPentiumAlM"), "27-05-13 29-05-13");
    EXPECT_EQ(before(4), "12 36");
    EXPECT_EQ(before(5), "6 18");
    EXPECT_TRUE(operable("Check4"));
    EXPECT_TRUE(operable("Check5"));
}

TEST_F(ModDateVecchie, TheLimitIsOfSeventyHoursInEveryPeriod) {
    searchElection13();
    click("cmdModifica");
    EXPECT_EQ(after(1), "70 60 180 75 105");
    EXPECT_EQ(after(2), "35 30 90 34 56");
    EXPECT_EQ(after(3), "23 20 60 19 41");
    EXPECT_EQ(after(4), "14 12 36 15 21");
    EXPECT_EQ(after(5), "7 6 18 8 10");
    EXPECT_EQ(text("Label10"), noProblem);
    EXPECT_THAT(list(), ElementsAre("Hanno superato il limite massimo:", rule, "1° Periodo", rule, "2° Periodo", rule,
                                    "3° Periodo", rule, "4° Periodo", rule, "5° Periodo", rule));
}

TEST_F(ModDateVecchie, NewLatePeriodsAreStoredInTheirFiles) {
    searchElection13();
    newDates(4, "21/05/13", "23/05/13");
    newDates(5, "27/05/13", "28/05/13");
    click("cmdModifica");
    EXPECT_EQ(after(4), "7 6 18 15 3");
    EXPECT_EQ(after(5), "5 4 12 8 4");
    EXPECT_EQ(text("Label30"), "2");
    EXPECT_EQ(list().at(9), "LEONE PAOLA  ore 9  (+2)");
    save();
    constexpr LaidPools pools = {70, 210, 360, 3};
    EXPECT_EQ(toHex(file13("26-05-13.vbn")), toHex(staff13(pools)));
    EXPECT_EQ(toHex(file13("Quartum.vbn")), toHex(quartum13(pools, {"21-05-13", "23-05-13"})));
    EXPECT_EQ(toHex(file13("Pentium.vbn")), toHex(pentium13(pools, {"27-05-13", "28-05-13"})));
    EXPECT_EQ(toHex(file13("Meirin.vbn")), toHex(limitBytes({60, 30, 20, 6, 4}, {180, 90, 60, 18, 12})));
    EXPECT_EQ(before(4), "6 18");
    EXPECT_EQ(text("txtPentiumAlM"), "28-05-13");
}

TEST_F(ModDateVecchie, ALatePeriodIsExcluded) {
    searchElection13();
    newDates(5, "//", "//");
    click("cmdModifica");
    EXPECT_EQ(after(5), "0 0 0 0 0");
    EXPECT_EQ(text("Label30"), "8");
    save();
    constexpr LaidPools pools = {70, 210, 366, 3};
    EXPECT_EQ(toHex(file13("26-05-13.vbn")), toHex(staff13(pools)));
    EXPECT_EQ(toHex(file13("Quartum.vbn")), toHex(quartum13(pools)));
    EXPECT_EQ(toHex(file13("Pentium.vbn")), toHex(pentium13(pools, leftOut)));
    EXPECT_EQ(toHex(file13("Meirin.vbn")), toHex(limitBytes({60, 30, 20, 12, 0}, {180, 90, 60, 36, 0})));
}

TEST_F(ModDateVecchie, AChangeOfTheFirstPeriodReachesThePoolsOfAllFiles) {
    searchElection13();
    newDates(1, "27/03/13", "15/04/13");
    click("cmdModifica");
    EXPECT_EQ(after(1), "47 40 120 75 45");
    save();
    constexpr LaidPools pools = {70, 210, 324, 3};
    const std::array<Span, 3> dates = {{{"27-03-13", "15-04-13"}, dates13[1], dates13[2]}};
    EXPECT_EQ(toHex(file13("26-05-13.vbn")), toHex(staff13(pools, dates)));
    EXPECT_EQ(toHex(file13("Quartum.vbn")), toHex(quartum13(pools)));
    EXPECT_EQ(toHex(file13("Pentium.vbn")), toHex(pentium13(pools)));
}

TEST_F(ModDateVecchie, OnlyTheFifthPeriodShowsItsZeros) {
    searchElection13();
    const LaidPools none = {0, 0, 384, 3};
    ASSERT_TRUE(lay(files, folder13 + "26-05-13.vbn", staff13(none)));
    click("cmdRiavvia");
    identify("Europee_Comunali", "26/05/13");
    click("cmdRicerca");
    click("cmdModifica");
    EXPECT_EQ(after(4), "14   15 -15");
    EXPECT_EQ(after(5), "7 0 0 8 -8");
}

TEST_F(ModDateVecchie, AnElectionWithoutAFourthPeriodKeepsTheThreeWithTheOldLimit) {
    const std::string folder = "Elezioni/Politiche/24-02-13/";
    ASSERT_TRUE(lay(files, folder + "24-02-13.vbn", staff13()));
    ASSERT_TRUE(lay(files, folder + "Meirin.vbn", limitBytes({60, 30, 20, 12, 6}, {180, 90, 60, 36, 18})));
    ASSERT_TRUE(lay(files, folder + "Quartum.vbn", quartum13()));
    search("Politiche", "24/02/13");
    EXPECT_FALSE(visible("Check4"));
    newDates(3, "11/05/13", "19/05/13");
    click("cmdModifica");
    EXPECT_EQ(after(1), "70 60 180 75 105");
    EXPECT_EQ(after(3), "21 18 54 19 35");
    save();
    const std::array<Span, 3> dates = {{dates13[0], dates13[1], {"11-05-13", "19-05-13"}}};
    EXPECT_EQ(toHex(contentOf(files, folder + "24-02-13.vbn")), toHex(staff13({70, 210, 324, 3}, dates)));
    EXPECT_EQ(toHex(contentOf(files, folder + "Quartum.vbn")), toHex(quartum13()));
    EXPECT_EQ(toHex(contentOf(files, folder + "Meirin.vbn")),
              toHex(limitBytes({60, 30, 18, 12, 6}, {180, 90, 54, 36, 18})));
}

TEST_F(ModDateVecchie, AFourthPeriodThatNobodyHasYetComesIntoBeing) {
    const std::string folder = "Elezioni/Referendum/13-01-13/";
    ASSERT_TRUE(lay(files, folder + "13-01-13.vbn", staff13()));
    ASSERT_TRUE(lay(files, folder + "Meirin.vbn", limitBytes({60, 30, 20, 0, 0}, {180, 90, 60, 0, 0})));
    search("Referendum", "13/01/13");
    EXPECT_EQ(text("txtQuartusDalM") + " " + text("txtQuartusAlM"), "// //");
    EXPECT_FALSE(visible("txtPentiumDalM"));
    newDates(4, "21/05/13", "26/05/13");
    click("cmdModifica");
    EXPECT_EQ(after(4), "14 12 36 0 36");
    save();
    const std::string quartum = contentOf(files, folder + "Quartum.vbn");
    ASSERT_EQ(quartum.size(), 2U * 241);
    for (const std::size_t at : {std::size_t{0}, std::size_t{241}}) {
        const int number = at == 0 ? 1 : 2;
        EXPECT_EQ(toHex(quartum.substr(at, 12)),
                  toHex(le16(70) + le16(95) + le16(210) + le16(366) + le16(number) + le16(3)));
        EXPECT_EQ(quartum.substr(at + 12, 60), padded(number == 1 ? "CONTI ALDO" : "LEONE PAOLA", 60));
        EXPECT_EQ(quartum.substr(at + 72, 16), "21-05-1326-05-13");
        EXPECT_EQ(toHex(quartum.substr(at + 88, 14)), toHex(nuls(14)));
    }
}

}  // namespace
}  // namespace vorbano::test::moddate
