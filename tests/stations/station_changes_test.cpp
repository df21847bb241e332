// The changes of members and substitutes as rules over records, and what they store.

#include "stations/station_changes.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>

#include "storage/memory_file_system.h"
#include "storage/record_file.h"
#include "support/bytes.h"
#include "support/results.h"

namespace vorbano::test {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

MemberRecord memberAt(int station, int composto, int ordine, std::string_view name) {
    MemberRecord record;
    record.station.SonoSeggio = static_cast<std::int16_t>(station);
    record.Composto = static_cast<std::int16_t>(composto);
    record.Ordine = static_cast<std::int16_t>(ordine);
    record.person.Cognome = name;
    return record;
}
SubstituteRecord substituteAt(int station, int replaced, int ordine) {
    SubstituteRecord record;
    record.station.SonoSeggio = static_cast<std::int16_t>(station);
    record.Sostituito = static_cast<std::int16_t>(replaced);
    record.Ordine = static_cast<std::int16_t>(ordine);
    return record;
}

/// "station.place/size name"
std::vector<std::string> shown(const std::vector<MemberRecord>& members) {
    std::vector<std::string> all;
    for (const MemberRecord& each : members) {
        all.push_back(std::to_string(each.station.SonoSeggio) + "." + std::to_string(each.Ordine) + "/" +
                      std::to_string(each.Composto) + " " + each.person.Cognome.trimmed());
    }
    return all;
}
/// "station.replaced at place"
std::vector<std::string> shown(const std::vector<SubstituteRecord>& substitutes) {
    std::vector<std::string> all;
    for (const SubstituteRecord& each : substitutes) {
        all.push_back(std::to_string(each.station.SonoSeggio) + "." + std::to_string(each.Sostituito) + " at " +
                      std::to_string(each.Ordine));
    }
    return all;
}

const std::vector<MemberRecord> twoStations = {memberAt(1, 2, 1, "A"), memberAt(1, 2, 2, "B"), memberAt(2, 1, 1, "C")};

TEST(StationChanges, PutAMemberBehindTheLastOfTheStation) {
    EXPECT_THAT(shown(withMember(twoStations, 1, memberAt(0, 0, 0, "N"))),
                ElementsAre("1.1/3 A", "1.2/3 B", "1.3/3 N", "2.1/1 C"));
    EXPECT_THAT(shown(withMember(twoStations, 2, memberAt(0, 0, 0, "N"))),
                ElementsAre("1.1/2 A", "1.2/2 B", "2.1/2 C", "2.2/2 N"));
}

TEST(StationChanges, AddNobodyToAStationThatIsNotThere) {
    EXPECT_THAT(shown(withMember(twoStations, 3, memberAt(0, 0, 0, "N"))),
                ElementsAre("1.1/2 A", "1.2/2 B", "2.1/1 C"));
    EXPECT_THAT(withMember({}, 1, MemberRecord()), IsEmpty());
}

TEST(StationChanges, TakeAMemberOut) {
    EXPECT_THAT(shown(withoutMember(twoStations, 1)), ElementsAre("1.1/1 B", "2.1/1 C"));
    EXPECT_THAT(shown(withoutMember(twoStations, 2)), ElementsAre("1.1/1 A", "2.1/1 C"));
    EXPECT_THAT(shown(withoutMember(twoStations, 3)), ElementsAre("1.1/2 A", "1.2/2 B"));
}

TEST(StationChanges, TakeNobodyOutWithANumberThatNobodyHas) {
    EXPECT_THAT(withoutMember({}, 1), ::testing::IsEmpty());
    for (const int number : {-1, 0, 4}) {
        EXPECT_THAT(shown(withoutMember(twoStations, number)), ElementsAre("1.1/2 A", "1.2/2 B", "2.1/1 C")) << number;
    }
}

TEST(StationChanges, MoveTheSubstitutesUpByTheirPlaceInTheFile) {
    const std::vector<SubstituteRecord> all = {substituteAt(1, 3, 7), substituteAt(1, 2, 5), substituteAt(2, 2, 4),
                                               substituteAt(1, 4, 6)};
    // The one with the higher number stands before the removed one and keeps it.
    EXPECT_THAT(shown(withoutSubstitute(all, 1, 2)), ElementsAre("1.3 at 7", "2.2 at 4", "1.4 at 5"));
    EXPECT_THAT(shown(withoutSubstitute(all, 2, 2)), ElementsAre("1.3 at 7", "1.2 at 5", "1.4 at 6"));
    EXPECT_THAT(shown(withoutSubstitute(all, 2, 3)), ElementsAre("1.3 at 7", "1.2 at 5", "2.2 at 4", "1.4 at 6"));
}

class StoredChanges : public ::testing::Test {
  protected:
    StoredChanges() {
        EXPECT_TRUE(makeElectionFolder(files, election));
        EXPECT_TRUE(lay(files, "Elezioni/Europee/09-06-24/Seggi.vbn", bytes(twoStations)));
    }
    static std::string bytes(const std::vector<MemberRecord>& members) {
        std::string all;
        for (const MemberRecord& each : members) all += bytesOf(each);
        return all;
    }
    std::vector<std::string> now() {
        return shown(readMembers(files, election, StationKind::normal, Round::first).valueOr({}));
    }

    const Election election{"Europee", "09-06-24"};
    MemoryFileSystem files;
};

TEST_F(StoredChanges, GivenAgainNothingIsAddedTwice) {
    const MemberRecord added = memberAt(0, 0, 0, "N");
    EXPECT_THAT(addMember(files, election, 2, added, 3), Succeeds());
    EXPECT_THAT(addMember(files, election, 2, added, 3), Succeeds());
    EXPECT_THAT(now(), ElementsAre("1.1/2 A", "1.2/2 B", "2.1/2 C", "2.2/2 N"));
}

TEST_F(StoredChanges, GivenAgainNobodyElseIsTakenOut) {
    EXPECT_THAT(removeMember(files, election, 1, 3), Succeeds());
    EXPECT_THAT(removeMember(files, election, 1, 3), Succeeds());
    EXPECT_THAT(now(), ElementsAre("1.1/1 B", "2.1/1 C"));
}

TEST_F(StoredChanges, FailForWhatIsNotThere) {
    EXPECT_THAT(addMember(files, election, 3, MemberRecord(), 3), Fails(Failure::notFound));
    EXPECT_THAT(removeMember(files, election, 0, 3), Fails(Failure::notFound));
    EXPECT_THAT(removeMember(files, election, 4, 3), Fails(Failure::notFound));
    EXPECT_THAT(addMember(files, {"Europee", "26-05-19"}, 1, MemberRecord(), 3), Fails(Failure::missingFolder));
    EXPECT_THAT(removeSubstitute(files, {"..", "09-06-24"}, StationKind::special, 1, 1), Fails(Failure::badName));
    EXPECT_THAT(now(), ElementsAre("1.1/2 A", "1.2/2 B", "2.1/1 C"));
}

TEST_F(StoredChanges, FailWhenTheFileHoldsNoMoreRecords) {
    std::vector<MemberRecord> full(maxRecords, memberAt(1, 10, 1, "A"));
    ASSERT_TRUE(lay(files, "Elezioni/Europee/09-06-24/Seggi.vbn", bytes(full)));
    EXPECT_THAT(addMember(files, election, 1, MemberRecord(), maxRecords), Fails(Failure::full));
    const auto length = files.openExisting("Elezioni/Europee/09-06-24/Seggi.vbn");
    ASSERT_TRUE(length);
    EXPECT_THAT((*length)->size(), Gives(std::uint64_t{maxRecords} * 216));
}

TEST_F(StoredChanges, RemoveTheSubstituteOnlyOnce) {
    SubstituteRecord second = substituteAt(1, 2, 4);
    ASSERT_TRUE(lay(files, "Elezioni/Europee/09-06-24/SosSeggi.vbn", bytesOf(substituteAt(1, 1, 3)) + bytesOf(second)));
    EXPECT_THAT(removeSubstitute(files, election, StationKind::normal, 1, 1), Succeeds());
    EXPECT_THAT(removeSubstitute(files, election, StationKind::normal, 1, 1), Succeeds());
    second.Ordine = 3;
    EXPECT_EQ(toHex(contentOf(files, "Elezioni/Europee/09-06-24/SosSeggi.vbn")), toHex(bytesOf(second)));
}

}  // namespace
}  // namespace vorbano::test
