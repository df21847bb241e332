#include "reports/station_sums.h"

#include <gtest/gtest.h>

namespace vorbano::test {
namespace {

MemberRecord member(int station, std::string_view role, std::int64_t units) {
    MemberRecord record{};
    record.station.SonoSeggio = static_cast<std::int16_t>(station);
    record.person.Qualifica = role;
    record.person.Onorario = Currency::fromUnits(units);
    return record;
}

SubstituteRecord substitute(int station, std::int64_t units) {
    SubstituteRecord record{};
    record.station.SonoSeggio = static_cast<std::int16_t>(station);
    record.person.Qualifica = "Presidente";
    record.person.Onorario = Currency::fromUnits(units);
    return record;
}

NormalTariff quotas(int president, int middle, int last) {
    NormalTariff row{};
    row.Tipo = "Provinciali";
    row.amounts = {Currency::fromCents(president), Currency::fromCents(middle), Currency::fromCents(last)};
    return row;
}

std::vector<std::int64_t> unitsOf(const std::vector<StationSum>& sums, Currency StationSum::*amount) {
    std::vector<std::int64_t> all;
    for (const StationSum& sum : sums) all.push_back((sum.*amount).units());
    return all;
}

using Units = std::vector<std::int64_t>;

TEST(StationSums, AddMembersAndTheirSubstitutes) {
    const std::vector members = {member(1, "Presidente", 1500000), member(1, "Scrutatore", 1200000),
                                 member(2, "Presidente", 1500000)};
    const std::vector substitutes = {substitute(2, 500), substitute(1, 100000)};
    const auto sums = stationSums(members, substitutes, std::nullopt);
    ASSERT_EQ(sums.size(), 2U);
    EXPECT_EQ(sums[0].station, 1);
    EXPECT_EQ(sums[1].station, 2);
    EXPECT_EQ(unitsOf(sums, &StationSum::onorario), (Units{2800000, 1500500}));
    EXPECT_EQ(unitsOf(sums, &StationSum::quota), (Units{0, 0}));
}

TEST(StationSums, RoundEachAmountBeforeItIsAdded) {
    // 0,005 and 0,005 are 0,01 and 0,01; the substitute's 0,0049 is nothing.
    const std::vector members = {member(1, "Presidente", 50), member(1, "Scrutatore", 50)};
    const std::vector substitutes = {substitute(1, 49)};
    EXPECT_EQ(unitsOf(stationSums(members, substitutes, std::nullopt), &StationSum::onorario), Units{200});
}

TEST(StationSums, GoByRunsOfOneNumberInTheOrderOfTheFile) {
    const std::vector members = {member(7, "Presidente", 10000), member(3, "Presidente", 20000),
                                 member(7, "Presidente", 40000)};
    const std::vector substitutes = {substitute(7, 500)};
    const auto sums = stationSums(members, substitutes, std::nullopt);
    ASSERT_EQ(sums.size(), 3U);
    EXPECT_EQ(sums[0].station, 7);
    EXPECT_EQ(sums[2].station, 7);
    EXPECT_EQ(unitsOf(sums, &StationSum::onorario), (Units{10500, 20000, 40000})) << "the substitute counts once";
}

TEST(StationSums, LeaveOutASubstituteOfNoStation) {
    const std::vector members = {member(1, "Presidente", 10000)};
    const std::vector substitutes = {substitute(2, 500)};
    EXPECT_EQ(unitsOf(stationSums(members, substitutes, std::nullopt), &StationSum::onorario), Units{10000});
    EXPECT_TRUE(stationSums({}, substitutes, std::nullopt).empty());
}

TEST(StationSums, TakeTheQuotaOfTheRoleOfMembersOnly) {
    // The middle amount of the row is nobody's: the secretary has the last one.
    const std::vector members = {member(1, "Presidente", 1500000), member(1, "Segretario", 0),
                                 member(1, "Scrutatore", 1200000), member(1, "Scrutatore", 0),
                                 member(1, "Custode", 100)};
    const std::vector substitutes = {substitute(1, 500)};
    const auto sums = stationSums(members, substitutes, quotas(3700, 99900, 2550));
    // 37,00 + 25,50 + 25,50; nothing for the scrutineer without a fee, the unknown role and the substitute.
    EXPECT_EQ(unitsOf(sums, &StationSum::quota), Units{880000});
}

TEST(StationShares, OfMostElectionsAreTheMunicipalitysWhole) {
    const StationSum sum{1, Currency::fromCents(75000), Currency::fromCents(16125)};
    for (const char* kind : {"Comunali", "Europee", "Politiche_Comunali", "Regionali"}) {
        const StationShares shares = sharesOf(sum, kind);
        EXPECT_EQ(shares.MCom, Currency::fromCents(75000)) << kind;
        EXPECT_EQ(shares.MProv, Currency()) << kind;
        EXPECT_FALSE(shares.Prov) << kind;
    }
}

TEST(StationShares, OfProvincialElectionsHaveAPartOfTheProvince) {
    const StationSum sum{1, Currency::fromCents(75000), Currency::fromCents(16125)};
    const StationShares alone = sharesOf(sum, "Provinciali");
    EXPECT_EQ(alone.Prov, Currency::fromCents(16125));
    EXPECT_EQ(alone.MProv, Currency::fromCents(16125));
    EXPECT_EQ(alone.MCom, Currency::fromCents(75000));
    const StationShares together = sharesOf(sum, "Provinciali_Comunali");
    EXPECT_EQ(together.Prov, Currency::fromCents(16125));
    EXPECT_EQ(together.MCom, Currency::fromCents(58875));
}

}  // namespace
}  // namespace vorbano::test
