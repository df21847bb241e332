#include "overtime/meirin_periods.h"

#include "stored_election.h"

namespace vorbano::test {
namespace {

/// The record of the tests with other states and other amounts; everything else as in `meirinBytes`.
std::string meirinWith(std::array<int, 5> states, std::array<int, 4> amounts = {123456, 7890, 4321, 3569}) {
    return Sheet(86)
        .amountsAt(0, {amounts[0]})
        .at(8, "16-07-13")
        .amountsAt(16, {amounts[1]})
        .integersAt(24, {40, 13, 27, 240, 93, 187, states[0], states[1], states[2], 15, 103, states[3]})
        .amountsAt(48, {amounts[2]})
        .integersAt(56, {22, 154, states[4]})
        .amountsAt(62, {98765})
        .at(70, "16-08-13")
        .amountsAt(78, {amounts[3]})
        .bytes();
}

class Meirin : public ::testing::Test {
  protected:
    MemoryFileSystem files;
    Meirin() { layElection(files, europee, 1); }
    std::string stored() { return toHex(contentOf(files, pathIn(europee, meirinFile))); }
};

TEST_F(Meirin, HoldsTheFiguresOfFivePeriods) {
    const auto record = readMeirin(files, europee);
    ASSERT_THAT(record, Succeeds());
    constexpr int expected[5][3] = {{40, 240, 1}, {13, 93, 0}, {27, 187, 1}, {15, 103, 1}, {22, 154, 0}};
    for (int period = 1; period <= 5; ++period) {
        const MeirinPeriod values = meirinPeriod(*record, period);
        const auto& row = expected[period - 1];
        EXPECT_EQ(values.average, row[0]) << period;
        EXPECT_EQ(values.pool, row[1]) << period;
        EXPECT_EQ(values.state, row[2]) << period;
    }
}

TEST_F(Meirin, TakesTheStateOfTheChosenPeriodsAlone) {
    ASSERT_EQ(stored(), toHex(meirinWith({1, 0, 1, 1, 0})));
    ASSERT_THAT(storePeriodStates(files, europee, {true, false, false, true, false}, PeriodState::authorisation),
                Succeeds());
    EXPECT_EQ(stored(), toHex(meirinWith({0, 0, 1, 0, 0})));
    ASSERT_THAT(storePeriodStates(files, europee, {false, true, false, false, true}, PeriodState::liquidation),
                Succeeds());
    EXPECT_EQ(stored(), toHex(meirinWith({0, 1, 1, 0, 1})));
    ASSERT_THAT(storePeriodStates(files, europee, {}, PeriodState::authorisation), Succeeds());
    EXPECT_EQ(stored(), toHex(meirinWith({0, 1, 1, 0, 1})));
    ASSERT_THAT(storePeriodStates(files, europee, {true, true, true, true, true}, PeriodState::liquidation),
                Succeeds());
    EXPECT_EQ(stored(), toHex(meirinWith({1, 1, 1, 1, 1})));
}

TEST_F(Meirin, TakesTheAmountsOfTheElectionAlone) {
    const ElectionAmounts amounts{
        .irpef = cent(100), .inail = cent(201), .inailUno = cent(302), .inailDue = cent(-403)};
    ASSERT_THAT(storeElectionAmounts(files, europee, amounts), Succeeds());
    EXPECT_EQ(stored(), toHex(meirinWith({1, 0, 1, 1, 0}, {100, 201, 302, -403})));
    const auto record = readMeirin(files, europee);
    ASSERT_THAT(record, Succeeds());
    EXPECT_EQ(electionAmounts(*record).inailUno, cent(302));
    EXPECT_EQ(electionAmounts(*record).inailDue, cent(-403));
}

TEST_F(Meirin, TakesAmountsInCents) {
    const ElectionAmounts amounts{.irpef = Currency::fromUnits(12'350),
                                  .inail = Currency::fromUnits(12'349),
                                  .inailUno = Currency::fromUnits(-50),
                                  .inailDue = Currency::fromUnits(-49)};
    ASSERT_THAT(storeElectionAmounts(files, europee, amounts), Succeeds());
    EXPECT_EQ(stored(), toHex(meirinWith({1, 0, 1, 1, 0}, {124, 123, -1, 0})));
}

TEST_F(Meirin, CutByARemovalIsWholeAgainAfterwards) {
    ASSERT_TRUE(lay(files, pathIn(europee, meirinFile), meirinBytes().substr(0, 62)));
    ASSERT_THAT(storePeriodStates(files, europee, {false, true}, PeriodState::liquidation), Succeeds());
    const std::string expected = meirinWith({1, 1, 1, 1, 0}).substr(0, 62) + nuls(24);
    EXPECT_EQ(stored(), toHex(expected));
}

TEST_F(Meirin, ThatIsEmptyIsZeros) {
    ASSERT_TRUE(lay(files, pathIn(europee, meirinFile), ""));
    const auto record = readMeirin(files, europee);
    ASSERT_THAT(record, Succeeds());
    EXPECT_EQ(toHex(bytesOf(*record)), toHex(nuls(86)));
}

TEST(MeirinFigures, KeepWhatIsNotThereOrDoesNotFit) {
    auto record = recordFrom<MeirinRecord>(meirinBytes());
    ElectionFigures figures;
    figures[0] = PeriodFigures{.limit = 60, .pool = 32767, .average = 41};
    figures[1] = PeriodFigures{};
    figures[3] = PeriodFigures{.limit = 35, .pool = 32768, .average = 36};
    setMeirinFigures(record, figures);
    EXPECT_EQ(meirinPeriod(record, 1).pool, 32767);
    EXPECT_EQ(meirinPeriod(record, 1).average, 41);
    EXPECT_EQ(meirinPeriod(record, 2).pool, 0);
    EXPECT_EQ(meirinPeriod(record, 3).pool, 187) << "not there";
    EXPECT_EQ(meirinPeriod(record, 4).pool, 103) << "beyond 16 bits";
    EXPECT_EQ(meirinPeriod(record, 4).average, 36);
    EXPECT_EQ(meirinPeriod(record, 4).state, 1);
}

}  // namespace
}  // namespace vorbano::test
