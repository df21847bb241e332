// The tariffs of the polling stations byte by byte, both ways, and what is looked up in them.

#include <gmock/gmock.h>

#include <string>
#include <vector>

#include "records/station_tariff_records.h"
#include "storage/memory_file_system.h"
#include "support/bytes.h"
#include "support/cent.h"
#include "support/results.h"

namespace vorbano::test {
namespace {

constexpr StationRole presidente = StationRole::presidente;
constexpr StationRole segretario = StationRole::segretario;
constexpr StationRole scrutatore = StationRole::scrutatore;

std::string normalRow(std::string_view type, int first, int second, int third) {
    return padded(type, 20) + amount(0, first) + amount(0, second) + amount(0, third);
}
std::string specialRow(std::string_view type, int first, int second) {
    return padded(type, 20) + amount(0, first) + amount(0, second);
}
const std::optional<Currency> nothing;

class StationTariffs : public ::testing::Test {
  protected:
    StationTariffs() { EXPECT_THAT(files.makeFolder("Params"), Succeeds()); }

    /// Two types in each file, all amounts different.
    void layAll() {
        ASSERT_TRUE(lay(
            files, "Params/Tarseg.dat",
            normalRow("Europee", 10'001, 10'002, 10'003) + normalRow("Provinciali_Comunali", 20'001, 20'002, 20'003)));
        ASSERT_TRUE(lay(files, "Params/TarSpec.dat",
                        specialRow("Europee", 30'001, 30'003) + specialRow("Provinciali_Comunali", 40'001, 40'003)));
        ASSERT_TRUE(lay(
            files, "Params/Tarmag.dat",
            normalRow("Europee", 50'001, 50'002, 50'003) + normalRow("Provinciali_Comunali", 60'001, 60'002, 60'003)));
        ASSERT_TRUE(lay(files, "Params/Tarmagsp.dat",
                        specialRow("Europee", 70'001, 70'003) + specialRow("Provinciali_Comunali", 80'001, 80'003)));
    }
    auto fee(StationKind kind, std::string_view type, StationRole role) {
        return stationFeeFor(files, kind, type, role);
    }
    auto quota(StationKind kind, std::string_view type, StationRole role) {
        return stationQuotaFor(files, kind, type, role);
    }
    MemoryFileSystem files;
};

class NormalTariffFile : public StationTariffs, public ::testing::WithParamInterface<std::string_view> {};

TEST_P(NormalTariffFile, RowsAreWrittenAtTheirOffsets) {
    auto file = RecordFile<NormalTariff>::open(files, GetParam());
    ASSERT_TRUE(file.ok());
    NormalTariff row{};
    row.Tipo = "Referendum_Comunali";
    row.amounts = {Currency::fromCents(14'500), Currency::fromCents(11'050), Currency::fromUnits(960'012)};
    ASSERT_THAT(file->write(2, row), Succeeds());
    EXPECT_EQ(toHex(contentOf(files, GetParam())),
              toHex(nuls(44) + padded("Referendum_Comunali", 20) + amount(145) + amount(110, 50) + amount(96, 0, 12)));
}

TEST_P(NormalTariffFile, RowsAreReadFromTheirOffsets) {
    ASSERT_TRUE(lay(files, GetParam(), nuls(44) + normalRow("Referendum_Comunali", 14'500, 11'050, 9'600)));
    const auto row = RecordFile<NormalTariff>::open(files, GetParam())->read(2);
    ASSERT_TRUE(row.ok());
    EXPECT_EQ(row->Tipo.trimmed(), "Referendum_Comunali");
    EXPECT_EQ(row->amounts[0].units(), 1'450'000);
    EXPECT_EQ(row->amounts[1].units(), 1'105'000);
    EXPECT_EQ(row->amounts[2].units(), 960'000);
}

INSTANTIATE_TEST_SUITE_P(All, NormalTariffFile, ::testing::Values("Params/Tarseg.dat", "Params/Tarmag.dat"));

class SpecialTariffFile : public StationTariffs, public ::testing::WithParamInterface<std::string_view> {};

TEST_P(SpecialTariffFile, RowsAreWrittenAtTheirOffsets) {
    auto file = RecordFile<SpecialTariff>::open(files, GetParam());
    ASSERT_TRUE(file.ok());
    SpecialTariff row{};
    row.Tipo = "Comunali";
    row.amounts = {Currency::fromCents(9'000), Currency::fromCents(6'175)};
    ASSERT_THAT(file->write(2, row), Succeeds());
    EXPECT_EQ(toHex(contentOf(files, GetParam())),
              toHex(nuls(36) + padded("Comunali", 20) + amount(90) + amount(61, 75)));
}

TEST_P(SpecialTariffFile, RowsAreReadFromTheirOffsets) {
    ASSERT_TRUE(lay(files, GetParam(), nuls(36) + specialRow("Comunali", 9'000, 6'175)));
    const auto row = RecordFile<SpecialTariff>::open(files, GetParam())->read(2);
    ASSERT_TRUE(row.ok());
    EXPECT_EQ(row->Tipo.trimmed(), "Comunali");
    EXPECT_EQ(row->amounts[0].units(), 900'000);
    EXPECT_EQ(row->amounts[1].units(), 617'500);
}

INSTANTIATE_TEST_SUITE_P(All, SpecialTariffFile, ::testing::Values("Params/TarSpec.dat", "Params/Tarmagsp.dat"));

TEST_F(StationTariffs, TheFeeOfANormalStationIsTheAmountOfTheRole) {
    layAll();
    EXPECT_THAT(fee(StationKind::normal, "Europee", presidente), Gives(cent(10'001)));
    EXPECT_THAT(fee(StationKind::normal, "Europee", segretario), Gives(cent(10'002)));
    EXPECT_THAT(fee(StationKind::normal, "Provinciali_Comunali", scrutatore), Gives(cent(20'003)));
}

TEST_F(StationTariffs, ASpecialStationHasNoFeeForASecretary) {
    layAll();
    EXPECT_THAT(fee(StationKind::special, "Europee", presidente), Gives(cent(30'001)));
    EXPECT_THAT(fee(StationKind::special, "Europee", segretario), Gives(nothing));
    EXPECT_THAT(fee(StationKind::special, "Provinciali_Comunali", scrutatore), Gives(cent(40'003)));
}

TEST_F(StationTariffs, TheQuotaIsTheFirstAmountForThePresidentAndTheLastForTheOthers) {
    layAll();
    EXPECT_THAT(quota(StationKind::normal, "Europee", presidente), Gives(cent(50'001)));
    EXPECT_THAT(quota(StationKind::normal, "Europee", segretario), Gives(cent(50'003)));
    EXPECT_THAT(quota(StationKind::normal, "Provinciali_Comunali", scrutatore), Gives(cent(60'003)));
    EXPECT_THAT(quota(StationKind::special, "Europee", presidente), Gives(cent(70'001)));
    EXPECT_THAT(quota(StationKind::special, "Provinciali_Comunali", segretario), Gives(cent(80'003)));
    EXPECT_THAT(quota(StationKind::special, "Provinciali_Comunali", scrutatore), Gives(cent(80'003)));
}

TEST_F(StationTariffs, ATypeIsFoundByItsWholeNameTrimmedOnBothSides) {
    layAll();
    EXPECT_THAT(fee(StationKind::normal, "  Europee ", presidente), Gives(cent(10'001)));
    EXPECT_THAT(fee(StationKind::normal, "Provinciali", presidente), Gives(nothing));
    EXPECT_THAT(fee(StationKind::normal, "Provinciali_Com", presidente), Gives(nothing));
    EXPECT_THAT(quota(StationKind::special, "Comunali", presidente), Gives(nothing));
}

TEST_F(StationTariffs, OfTwoRowsOfATypeTheFirstHolds) {
    ASSERT_TRUE(lay(files, "Params/Tarseg.dat",
                    normalRow("Comunali", 100, 200, 300) + normalRow("Europee", 400, 500, 600) +
                        normalRow("Europee", 700, 800, 900)));
    EXPECT_THAT(fee(StationKind::normal, "Europee", presidente), Gives(cent(400)));
    const auto file = RecordFile<NormalTariff>::open(files, tarsegFile);
    ASSERT_TRUE(file.ok());
    const auto found = findTariff(*file, "Europee");
    ASSERT_TRUE(found.ok() && found->has_value());
    EXPECT_EQ((*found)->number, 2);
}

TEST_F(StationTariffs, WithoutAFileThereIsNothingAndTheFileIsMade) {
    EXPECT_THAT(fee(StationKind::special, "Europee", presidente), Gives(nothing));
    EXPECT_EQ(contentOf(files, "Params/TarSpec.dat"), "");
    EXPECT_THAT(files.list("Params"), Succeeds());
    EXPECT_EQ(files.list("Params")->front().name, "TarSpec.dat");
}

TEST_F(StationTariffs, TheOtherSpellingIsTheSameFile) {
    ASSERT_TRUE(lay(files, "Params/Tarspec.dat", specialRow("Europee", 100, 200)));
    EXPECT_THAT(fee(StationKind::special, "Europee", scrutatore), Gives(cent(200)));
}

TEST_F(StationTariffs, AMissingFolderIsAFailure) {
    ASSERT_THAT(files.removeFolder("Params"), Succeeds());
    EXPECT_THAT(fee(StationKind::normal, "Europee", presidente), Fails(Failure::missingFolder));
    EXPECT_THAT(quota(StationKind::special, "Europee", presidente), Fails(Failure::missingFolder));
}

TEST(StationRoles, AreReadFromTheirNames) {
    EXPECT_EQ(stationRole("Presidente"), presidente);
    EXPECT_EQ(stationRole("Segretario "), segretario);
    EXPECT_EQ(stationRole("Scrutatore"), scrutatore);
    EXPECT_EQ(stationRole(""), std::nullopt);
    EXPECT_EQ(stationRole("presidente"), std::nullopt);
    EXPECT_EQ(nameOf(presidente), "Presidente");
    EXPECT_EQ(nameOf(segretario), "Segretario");
    EXPECT_EQ(nameOf(scrutatore), "Scrutatore");
}

}  // namespace
}  // namespace vorbano::test
