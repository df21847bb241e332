#include "stations/station_rules.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace vorbano {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

/// Place `ordine` of `composto` in a station, of an election with `seggi` of them.
MemberRecord member(int station, int ordine, int composto, int seggi = 3) {
    MemberRecord record{};
    record.station.Seggi = static_cast<std::int16_t>(seggi);
    record.station.SonoSeggio = static_cast<std::int16_t>(station);
    record.Composto = static_cast<std::int16_t>(composto);
    record.Ordine = static_cast<std::int16_t>(ordine);
    return record;
}

TEST(RoleByPlace, OfANormalStation) {
    EXPECT_EQ(roleAt(StationKind::normal, 1), StationRole::presidente);
    EXPECT_EQ(roleAt(StationKind::normal, 2), StationRole::segretario);
    EXPECT_EQ(roleAt(StationKind::normal, 3), StationRole::scrutatore);
    EXPECT_EQ(roleAt(StationKind::normal, 9), StationRole::scrutatore);
}

TEST(RoleByPlace, OfASpecialStationKnowsNoSecretary) {
    EXPECT_EQ(roleAt(StationKind::special, 1), StationRole::presidente);
    EXPECT_EQ(roleAt(StationKind::special, 2), StationRole::scrutatore);
    EXPECT_EQ(roleAt(StationKind::special, 3), StationRole::scrutatore);
}

TEST(StationsInAFile, AreListedInItsOrder) {
    const std::vector<MemberRecord> members = {member(4, 1, 2), member(4, 2, 2), member(7, 1, 1), member(12, 1, 2)};
    EXPECT_THAT(stationsIn(members), ElementsAre(4, 7, 12));
    EXPECT_THAT(stationsIn({}), IsEmpty());
}

TEST(StationsInAFile, OfOneNumberAreOneStationOnlyWhenTheyFollowEachOther) {
    const std::vector<MemberRecord> members = {member(4, 1, 1), member(4, 1, 1), member(7, 1, 1), member(4, 1, 1)};
    EXPECT_THAT(stationsIn(members), ElementsAre(4, 7, 4));
}

TEST(EntryOfNormalStations, IsFinishedWithTheLastMemberOfTheLastStation) {
    EXPECT_TRUE(isEntryFinished(member(3, 5, 5)));
    EXPECT_FALSE(isEntryFinished(member(3, 4, 5)));
    EXPECT_FALSE(isEntryFinished(member(2, 5, 5)));
    EXPECT_TRUE(isEntryFinished(member(1, 1, 1, 1)));
}

TEST(EntryOfSpecialStations, IsFinishedWhenTheyAreAllThereAndTheLastOneIsFull) {
    std::vector<MemberRecord> members = {member(4, 1, 1), member(7, 1, 1), member(12, 1, 2)};
    EXPECT_FALSE(isSpecialEntryFinished(members, 3));
    members.push_back(member(12, 2, 2));
    EXPECT_TRUE(isSpecialEntryFinished(members, 3));
    EXPECT_FALSE(isSpecialEntryFinished(members, 4));
    EXPECT_FALSE(isSpecialEntryFinished(members, 12));
    EXPECT_FALSE(isSpecialEntryFinished({}, 0));
}

TEST(NextMember, GoesOnInAStationThatIsNotFull) {
    const NextMember next = nextMember(member(2, 3, 5));
    EXPECT_EQ(next.station, 2);
    EXPECT_EQ(next.place, 4);
    EXPECT_EQ(next.composto, 5);
}

TEST(NextMember, BeginsTheNextStationAfterAFullOne) {
    EXPECT_TRUE(isStationFull(member(2, 5, 5)));
    const NextMember next = nextMember(member(2, 5, 5));
    EXPECT_EQ(next.station, 3);
    EXPECT_EQ(next.place, 1);
    EXPECT_EQ(next.composto, 0);
}

}  // namespace
}  // namespace vorbano
