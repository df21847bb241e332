// What is computed for a statement: fees, overtime, total, five sixths, difference.

#include "overtime/rendi_kontrol.h"
#include "statement/statement_sources.h"
#include "statement_desk.h"
#include "support/cent.h"

namespace vorbano::test {
namespace {

const Election comunali{"Comunali", someDay};

class StatementSources : public ::testing::Test {
  protected:
    MemoryFileSystem files;
};

TEST_F(StatementSources, OfTheFeesAreMembersAndSubstitutesOfBothRounds) {
    layStations(files, "Comunali", someDay);
    EXPECT_THAT(onorari(files, comunali), Gives(cent(42075)));
    EXPECT_THAT(Speciali(files, comunali), Gives(cent(17850)));
}

TEST_F(StatementSources, ThatAreMissingGiveNothingAndStayAsEmptyFiles) {
    ASSERT_TRUE(makeElectionFolder(files, comunali).ok());
    EXPECT_THAT(onorari(files, comunali), Gives(cent(0)));
    EXPECT_THAT(Speciali(files, comunali), Gives(cent(0)));
    const auto cost = readOvertimeCost(files, comunali);
    ASSERT_THAT(cost, Succeeds());
    EXPECT_EQ(cost->whole, cent(0));
    for (const char* name : {"Seggi.vbn", "SosSeggi.vbn", "SegSuf.vbn", "SosSegSuf.vbn", "Speciale.vbn", "SosSpec.vbn",
                             "SpecSufr.vbn", "SspecSufr.vbn", "09-06-24.vbn", "Meirin.vbn"}) {
        EXPECT_EQ(contentOf(files, statementPath("Comunali", someDay, name)), "") << name;
    }
}

TEST_F(StatementSources, WithoutTheFolderFail) {
    EXPECT_THAT(onorari(files, comunali), Fails(Failure::missingFolder));
    EXPECT_THAT(Speciali(files, comunali), Fails(Failure::missingFolder));
    EXPECT_THAT(readOvertimeCost(files, comunali), Fails(Failure::missingFolder));
}

TEST_F(StatementSources, OfTheOvertimeAreAmountsInailAndTheTwoPeriods) {
    layOvertime(files, "Comunali", someDay);
    const auto cost = readOvertimeCost(files, comunali);
    ASSERT_THAT(cost, Succeeds());
    EXPECT_EQ(cost->whole, cent(63524));
    EXPECT_EQ(cost->periods[0], cent(28980));
    EXPECT_EQ(cost->periods[1], cent(10645 + 11642));
    EXPECT_EQ(cost->inail[0], cent(4321));
    EXPECT_EQ(cost->inail[1], cent(3569));
    const auto divided = divideByPeriod(*cost);
    EXPECT_EQ(divided.first, cent(33301));
    EXPECT_EQ(divided.second, cent(25856));
    EXPECT_EQ(divided.common, cent(4367));
}

TEST_F(StatementSources, OfTheOvertimeAreAsManyEmployeesAsTheFirstRecordTells) {
    layOvertime(files, "Comunali", someDay);
    auto one = recordFrom<EmployeeRecord>(laidWorkers().substr(0, 301));
    one.pools.NumDip = 1;
    ASSERT_TRUE(
        lay(files, statementPath("Comunali", someDay, "09-06-24.vbn"), bytesOf(one) + laidWorkers().substr(301)));
    EXPECT_EQ(readOvertimeCost(files, comunali)->whole, cent(29951 + 7128 + 2546 + 7890));
    one.pools.NumDip = 7;  // more than there are
    ASSERT_TRUE(
        lay(files, statementPath("Comunali", someDay, "09-06-24.vbn"), bytesOf(one) + laidWorkers().substr(301)));
    EXPECT_EQ(readOvertimeCost(files, comunali)->whole, cent(63524));
}

TEST(CostOfAPeriod, RoundsEachProduct) {
    // 3 x 10,01 = 30,03; 23,80 % is 7,14714, 8,50 % is 2,55255: 7,15 and 2,55.
    const auto worker =
        recordFrom<EmployeeRecord>(laidWorker(1, 1, {{1001, 1, 1}, {{{3, 0, 0}, {0, 0, 0}, {0, 0, 0}}}, {0, 0, 0}}));
    EXPECT_EQ(costOfPeriod(worker, 1), cent(3003 + 715 + 255));
    EXPECT_EQ(costOfPeriod(worker, 2), cent(0));
}

TEST(DividedOvertimeOfTwoBodies, MayLeaveANegativeRest) {
    // The sum of the rounded periods is above the rounded sum, and the shares of INAIL are above the INAIL.
    OvertimeCost cost;
    cost.whole = cent(10000);
    cost.periods = {cent(6000), cent(4001)};
    cost.inail = {cent(10), cent(0)};
    const auto divided = divideByPeriod(cost);
    EXPECT_EQ(divided.first, cent(6010));
    EXPECT_EQ(divided.second, cent(4001));
    EXPECT_EQ(divided.common, cent(-11));
}

/// Every line a power of two, in cents, so that each sum tells what is in it.
StatementAmounts powers() {
    StatementAmounts amounts;
    std::int64_t power = 1;
    for (auto line : {&StatementAmounts::onorari, &StatementAmounts::straordinario, &StatementAmounts::speciali,
                      &StatementAmounts::carico, &StatementAmounts::indennita, &StatementAmounts::stampanti,
                      &StatementAmounts::trasporti, &StatementAmounts::disciplina, &StatementAmounts::postali,
                      &StatementAmounts::cabine, &StatementAmounts::missioni, &StatementAmounts::tempoDeterminato,
                      // From here on no part of the sum but the first, and that only with a second body: 2 to the 12th.
                      &StatementAmounts::carico2, &StatementAmounts::magMis, &StatementAmounts::totStato,
                      &StatementAmounts::totComune, &StatementAmounts::totProv, &StatementAmounts::cartRegione,
                      &StatementAmounts::cartStato, &StatementAmounts::acconti, &StatementAmounts::totale,
                      &StatementAmounts::differenza}) {
        amounts.*line = cent(power);
        power *= 2;
    }
    return amounts;
}

TEST(Total, IsTheSumOfTwelveLines) { EXPECT_EQ(totalOf(powers(), false), cent(4095)); }
TEST(Total, HasTheSecondBodyWhereThereIsOne) { EXPECT_EQ(totalOf(powers(), true), cent(4095 + 4096)); }

TEST(FiveSixths, AreRoundedHalfAwayFromZero) {
    const std::pair<int, int> cases[] = {{0, 0},   {1, 1},   {2, 2},   {3, 3},   {4, 3},        {5, 4},
                                         {6, 5},   {9, 8},   {15, 13}, {21, 18}, {100, 83},     {600, 500},
                                         {-3, -3}, {-9, -8}, {-6, -5}, {-1, -1}, {12345, 10288}};
    for (const auto& [whole, part] : cases) EXPECT_EQ(fiveSixths(cent(whole)), cent(part)) << whole;
    EXPECT_EQ(fiveSixths(cent(9'999'999'999)), cent(8'333'333'333)) << "8.333.333.332,5 cents: half away";
}

TEST(PartOfStato, RoundsTenLinesAndTakesTwoWhole) {
    StatementAmounts amounts;
    for (auto line : {&StatementAmounts::straordinario, &StatementAmounts::onorari, &StatementAmounts::speciali,
                      &StatementAmounts::carico, &StatementAmounts::indennita, &StatementAmounts::stampanti,
                      &StatementAmounts::trasporti, &StatementAmounts::disciplina, &StatementAmounts::tempoDeterminato,
                      &StatementAmounts::missioni})
        amounts.*line = cent(3);
    // Ten times 0,025 are 0,25; each rounded by itself they are 0,30.
    EXPECT_EQ(partOfStato(amounts), cent(30));
    amounts.postali = cent(7);
    amounts.cabine = cent(11);
    amounts.magMis = amounts.totStato = amounts.carico2 = cent(1000);
    EXPECT_EQ(partOfStato(amounts), cent(48));
}

TEST(DifferenceCaption, OfEqualAmountsIsACredit) {
    EXPECT_EQ(differenceCaption(cent(100), cent(99)), "Differenza a credito");
    EXPECT_EQ(differenceCaption(cent(100), cent(100)), "Differenza a credito");
    EXPECT_EQ(differenceCaption(cent(100), cent(101)), "Differenza a debito");
    EXPECT_EQ(differenceCaption(cent(0), cent(0)), "Differenza a credito");
}

TEST(StatementTypes, AreFoundInAnyCaseAndTrimmed) {
    ASSERT_NE(findStatementTerms(" politiche_REGIONALI "), nullptr);
    EXPECT_EQ(findStatementTerms(" politiche_REGIONALI ")->type, "Politiche_Regionali");
    EXPECT_EQ(findStatementTerms("Circoscrizionali"), nullptr);
    EXPECT_EQ(findStatementTerms(""), nullptr);
    for (const ElectionType& type : electionTypes) EXPECT_NE(findStatementTerms(type.name), nullptr) << type.name;
}

}  // namespace
}  // namespace vorbano::test
