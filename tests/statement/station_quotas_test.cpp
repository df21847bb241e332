#include "statement/station_quotas.h"

#include <gtest/gtest.h>

#include "storage/memory_file_system.h"
#include "support/bytes.h"
#include "support/results.h"

namespace vorbano::test {
namespace {

/// 216 bytes of Seggi.vbn or Speciale.vbn.
std::string member(const std::string& role, int fee) {
    return padded("Provinciali_Co", 14) + "06-05-12" + le16(1) + le16(1) + le16(5) +
           padded("Provinciali_Comunali", 30) + le16(1) + padded("ROSSI", 30) + padded("MARIA", 30) +
           padded("Via Roma", 60) + padded(role, 10) + "SI" + padded("", 16) + amount(0, fee);
}
/// 218 bytes of SosSeggi.vbn or SosSpec.vbn.
std::string substitute(const std::string& role, int fee) {
    return padded("Provinciali_Co", 14) + "06-05-12" + le16(1) + le16(1) + le16(1) + le16(5) +
           padded("Provinciali_Comunali", 30) + le16(6) + padded("VERDI", 30) + padded("ANNA", 30) +
           padded("Via Roma", 60) + padded(role, 10) + "SI" + padded("", 16) + amount(0, fee);
}
/// 246 bytes of SegSuf.vbn, 224 of SpecSufr.vbn.
std::string runOff(const std::string& role, int fee, std::size_t dateWidth) {
    const std::string first = member(role, fee);
    return first.substr(0, 28) + padded("20-05-12", dateWidth) + first.substr(28);
}

const Election election{"Provinciali_Comunali", "06-05-12"};

class StationQuotas : public testing::Test {
  protected:
    void lays(const std::string& name, const std::string& bytes) {
        ASSERT_TRUE(lay(files, "Elezioni/Provinciali_Comunali/06-05-12/" + name, bytes));
    }
    void SetUp() override {
        // A president 30,00, everybody else the third amount, 20,55; the one between is nobody's.
        ASSERT_TRUE(lay(files, "Params/Tarmag.dat",
                        padded("Provinciali", 20) + amount(1) + amount(2) + amount(3) +
                            padded("Provinciali_Comunali", 20) + amount(30) + amount(99, 99) + amount(20, 55)));
        ASSERT_TRUE(
            lay(files, "Params/Tarmagsp.dat", padded("Provinciali_Comunali", 20) + amount(15, 3) + amount(9, 1)));
    }
    Currency fees(StationKind kind) { return firstRoundFees(files, election, kind).valueOr(Currency::fromCents(-1)); }
    Currency quotas(StationKind kind, Round round) {
        return stationQuotas(files, election, kind, round).valueOr(Currency::fromCents(-1));
    }
    MemoryFileSystem files;
};

TEST_F(StationQuotas, FeesAreThoseOfMembersAndSubstitutesOfTheFirstRound) {
    lays("Seggi.vbn", member("Presidente", 15000) + member("Segretario", 12000) + member("Scrutatore", 0));
    lays("SosSeggi.vbn", substitute("Scrutatore", 10001));
    lays("SegSuf.vbn", runOff("Presidente", 70000, 30));
    lays("Speciale.vbn", member("Presidente", 9000));
    lays("SosSpec.vbn", substitute("Presidente", 7));
    EXPECT_EQ(fees(StationKind::normal), Currency::fromCents(37001));
    EXPECT_EQ(fees(StationKind::special), Currency::fromCents(9007));
}

TEST_F(StationQuotas, PresidentTakesTheFirstAmountSecretaryAndScrutineerTheThird) {
    lays("Seggi.vbn", member("Presidente", 15000) + member("Segretario", 12000) + member("Scrutatore", 10001));
    EXPECT_EQ(quotas(StationKind::normal, Round::first), Currency::fromCents(3000 + 2055 + 2055));
}

TEST_F(StationQuotas, OnlyScrutineersNeedAFee) {
    lays("Seggi.vbn", member("Presidente", 0) + member("Segretario", 0) + member("Scrutatore", 0) +
                          member("Scrutatore", -1) + member("Scrutatore", 1));
    EXPECT_EQ(quotas(StationKind::normal, Round::first), Currency::fromCents(3000 + 2055 + 2055));
}

TEST_F(StationQuotas, SubstitutesAndOtherRolesHaveNone) {
    lays("Seggi.vbn", member("Vice", 10000) + member("", 10000));
    lays("SosSeggi.vbn", substitute("Presidente", 10001));
    EXPECT_EQ(quotas(StationKind::normal, Round::first), Currency());
}

TEST_F(StationQuotas, SpecialStationsTakeTheirSecondAmountForAll) {
    lays("Speciale.vbn", member("Presidente", 9000) + member("Scrutatore", 6101) + member("Segretario", 1));
    EXPECT_EQ(quotas(StationKind::special, Round::first), Currency::fromCents(1503 + 901 + 901));
}

TEST_F(StationQuotas, TheRunOffHasItsOwn) {
    lays("Seggi.vbn", member("Presidente", 15000) + member("Segretario", 1));
    lays("SegSuf.vbn", runOff("Presidente", 15000, 30) + runOff("Scrutatore", 0, 30));
    lays("SpecSufr.vbn", runOff("Scrutatore", 1, 8));
    EXPECT_EQ(quotas(StationKind::normal, Round::runOff), Currency::fromCents(3000));
    EXPECT_EQ(quotas(StationKind::special, Round::runOff), Currency::fromCents(901));
}

TEST_F(StationQuotas, TypeWithoutARowHasNone) {
    ASSERT_TRUE(lay(files, "Elezioni/Comunali/06-05-12/Seggi.vbn", member("Presidente", 15000)));
    const auto none = stationQuotas(files, {"Comunali", "06-05-12"}, StationKind::normal, Round::first);
    ASSERT_THAT(none, Succeeds());
    EXPECT_EQ(*none, Currency());
}

TEST_F(StationQuotas, EmptyFilesGiveNothingAndStayBehindEmpty) {
    lays("Rendi.vbn", "");
    EXPECT_EQ(fees(StationKind::normal), Currency());
    EXPECT_EQ(quotas(StationKind::special, Round::runOff), Currency());
    EXPECT_EQ(contentOf(files, "Elezioni/Provinciali_Comunali/06-05-12/SpecSufr.vbn"), "");
}

TEST_F(StationQuotas, MissingFolderIsAFailure) {
    EXPECT_FALSE(firstRoundFees(files, {"Comunali", "07-05-12"}, StationKind::normal).ok());
    EXPECT_FALSE(stationQuotas(files, {"Comunali", "07-05-12"}, StationKind::normal, Round::first).ok());
}

}  // namespace
}  // namespace vorbano::test
