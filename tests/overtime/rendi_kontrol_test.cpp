#include "overtime/rendi_kontrol.h"

#include "stored_election.h"

namespace vorbano::test {
namespace {

class StatementInStep : public ::testing::Test {
  protected:
    MemoryFileSystem files;
    RendiRecord stored(const Election& election) {
        const auto records = recordsIn<RendiRecord>(files, pathIn(election, rendiFile));
        EXPECT_EQ(records.size(), 1U);
        return records.empty() ? RendiRecord{} : records.front();
    }
};

TEST_F(StatementInStep, TakesTheOvertimeOfAllEmployeesAndTheFirstInail) {
    layElection(files, europee, 3);
    ASSERT_THAT(RendiKontrol(files, europee), Succeeds());
    // 100,01 + 20,01 + 8,01, ... + 100,03 + 20,03 + 8,03, and 78,90 INAIL: 384,18 + 78,90.
    auto expected = statement();
    expected.Straordinario = cent(46'308);
    expected.Totale = cent(112'345 - 12'345 + 46'308);
    expected.Differenza = cent(112'345 - 12'345 + 46'308 - 150'000);
    EXPECT_EQ(toHex(bytesOf(stored(europee))), toHex(bytesOf(expected)));
    EXPECT_EQ(stored(europee).Differenza, cent(-3'692));
}

TEST_F(StatementInStep, StaysWhenTheLineIsRight) {
    layElection(files, europee, 3);
    // The line is right, total and difference are not; they are not looked at.
    auto right = statement();
    right.Straordinario = cent(46'308);
    right.Totale = cent(1);
    ASSERT_TRUE(lay(files, pathIn(europee, rendiFile), bytesOf(right)));
    ASSERT_THAT(RendiKontrol(files, europee), Succeeds());
    EXPECT_EQ(toHex(bytesOf(stored(europee))), toHex(bytesOf(right)));
}

TEST_F(StatementInStep, IsNotMadeWhenThereIsNone) {
    layElection(files, europee, 3);
    ASSERT_TRUE(lay(files, pathIn(europee, rendiFile), ""));
    ASSERT_THAT(RendiKontrol(files, europee), Succeeds());
    ASSERT_THAT(Rendikontrol2(files, europee), Succeeds());
    EXPECT_EQ(contentOf(files, pathIn(europee, rendiFile)), "");
}

TEST_F(StatementInStep, OfAnElectionWithoutLimitsHasNoInail) {
    layElection(files, europee, 1);
    ASSERT_TRUE(lay(files, pathIn(europee, meirinFile), ""));
    ASSERT_THAT(RendiKontrol(files, europee), Succeeds());
    EXPECT_EQ(stored(europee).Straordinario, cent(12'803));
}

TEST_F(StatementInStep, WithoutEmployeesHasTheInailAlone) {
    layElection(files, europee, 1);
    ASSERT_TRUE(lay(files, employeesOf(europee), ""));
    ASSERT_THAT(RendiKontrol(files, europee), Succeeds());
    EXPECT_EQ(stored(europee).Straordinario, cent(7'890));
}

TEST_F(StatementInStep, RoundsTheLineAlone) {
    layElection(files, europee, 1);
    auto meirin = recordFrom<MeirinRecord>(meirinBytes());
    meirin.inail = Currency::fromUnits(50);
    ASSERT_TRUE(lay(files, pathIn(europee, meirinFile), bytesOf(meirin)));
    ASSERT_THAT(RendiKontrol(files, europee), Succeeds());
    EXPECT_EQ(stored(europee).Straordinario, cent(12'804)) << "128,03 and half a cent";
    EXPECT_EQ(stored(europee).Totale.units(), 10'000'000 + 1'280'300 + 50);
}

TEST_F(StatementInStep, GivenAgainChangesNothing) {
    layElection(files, europee, 3);
    ASSERT_THAT(RendiKontrol(files, europee), Succeeds());
    const auto once = filesOf(files, europee);
    ASSERT_THAT(RendiKontrol(files, europee), Succeeds());
    EXPECT_EQ(filesOf(files, europee), once);
}

TEST_F(StatementInStep, OfFourPeriodsCountsTheFourthOnceMore) {
    layElection(files, fivePeriods, 2);
    ASSERT_THAT(Rendikontrol2(files, fivePeriods), Succeeds());
    // 2 x (128,03 + 128,06) + 78,90; the fifth period never counts.
    EXPECT_EQ(stored(fivePeriods).Straordinario, cent(2 * (12'803 + 12'806) + 7'890));
    ASSERT_THAT(RendiKontrol(files, fivePeriods), Succeeds());
    EXPECT_EQ(stored(fivePeriods).Straordinario, cent(12'803 + 12'806 + 7'890));
}

TEST_F(StatementInStep, OfNoElectionFails) {
    EXPECT_THAT(RendiKontrol(files, {"Europee", "10-06-24"}), Fails(Failure::missingFolder));
}

}  // namespace
}  // namespace vorbano::test
