// The parameter files byte by byte, both ways.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "records/tariff_records.h"
#include "storage/memory_file_system.h"
#include "storage/only_record.h"
#include "support/cent.h"
#include "support/expected_tariffs.h"
#include "support/results.h"

namespace vorbano::test {
namespace {

class TariffFiles : public ::testing::Test {
  protected:
    TariffFiles() { EXPECT_TRUE(files.makeFolder("Params").ok()); }
    MemoryFileSystem files;
};

class VersionFiles : public TariffFiles, public ::testing::WithParamInterface<std::string_view> {};

TEST_P(VersionFiles, TheThirtyTwoRowsAreWrittenAtTheirOffsets) {
    TariffTable table;
    for (int row = 0; row < 32; ++row) {
        const int euro = (row + 1) * 100;
        table.set(row, "/", {cent(euro + 1), cent(euro + 2), cent(euro + 3)});
    }
    ASSERT_THAT(storeOnlyRecord(files, GetParam(), table), Succeeds());
    EXPECT_EQ(toHex(contentOf(files, GetParam())), toHex(tariffBytes("/", distinctCents)));
}

TEST_P(VersionFiles, EveryRowIsReadFromItsOffsets) {
    ASSERT_TRUE(lay(files, GetParam(), tariffBytes("\\", distinctCents)));
    const auto table = onlyRecord<TariffTable>(files, GetParam());
    ASSERT_TRUE(table.ok() && table->has_value());
    for (int row = 0; row < 32; ++row) {
        const ExpectedRow& expected = expectedRows[static_cast<std::size_t>(row)];
        SCOPED_TRACE(expected.key);
        EXPECT_EQ((*table)->grade(row), padded(expected.grade, expected.gradeWidth));
        EXPECT_EQ((*table)->mark(row), "\\");
        const Rates rates = (*table)->rates(row);
        EXPECT_EQ(rates.Day.units(), (row + 1) * 10'000 + 100);
        EXPECT_EQ(rates.Fn.units(), (row + 1) * 10'000 + 200);
        EXPECT_EQ(rates.Nf.units(), (row + 1) * 10'000 + 300);
    }
}

INSTANTIATE_TEST_SUITE_P(All, VersionFiles,
                         ::testing::Values("Params/PmDip.dat", "Params/NewPmDip.dat", "Params/OldPmDip.dat"));

TEST_F(TariffFiles, AGradeIsFoundByItsLabelAndNotByItsKey) {
    TariffTable table;
    for (int row = 0; row < 32; ++row) table.set(row, "", {});
    EXPECT_EQ(table.find("B8"), 0);
    EXPECT_EQ(table.find("D5"), 24);
    EXPECT_EQ(table.find("A6"), 22);
    EXPECT_EQ(table.find("D7"), 2);
    EXPECT_EQ(table.find("E1"), -1);
}

TEST_F(TariffFiles, AGradeWithAGIsFoundTrimmedOnBothSides) {
    TariffTable table;
    for (int row = 0; row < 32; ++row) table.set(row, "", {});
    EXPECT_EQ(table.find("G    B6"), 10);
    EXPECT_EQ(table.find("    G    B7   "), 27);
    EXPECT_EQ(table.find("B6"), 29);
}

TEST_F(TariffFiles, ADatedRowHoldsGradeDateOfEffectAndRates) {
    const std::string row = padded("    G    B6", 15) + "01/04/2008" + amount(11, 68) + amount(13, 20) + amount(15, 24);
    DatedTariffRow written{};
    written.Grade = "    G    B6";
    written.Deco = "01/04/2008";
    written.rates = {cent(1168), cent(1320), cent(1524)};
    ASSERT_THAT(RecordFile<DatedTariffRow>::open(files, "Params/PmDipc.dat")->write(2, written), Succeeds());
    EXPECT_EQ(toHex(contentOf(files, "Params/PmDipc.dat")), toHex(nuls(49) + row));

    ASSERT_TRUE(lay(files, "Params/PmDipc.dat", row));
    const auto read = RecordFile<DatedTariffRow>::open(files, "Params/PmDipc.dat")->read(1);
    ASSERT_TRUE(read.ok());
    EXPECT_EQ(read->Grade.whole(), "    G    B6    ");
    EXPECT_EQ(read->Deco.whole(), "01/04/2008");
    EXPECT_EQ(read->rates.Day, cent(1168));
    EXPECT_EQ(read->rates.Fn, cent(1320));
    EXPECT_EQ(read->rates.Nf, cent(1524));
}

TEST_F(TariffFiles, TheFiveRowsOfTheSecretariesFollowEachOther) {
    SecretaryTariff tariff{};
    const std::array captions = {"8^ q.f.", "9^ q.f. 2 anni", "9^ q.f. 5 anni", "9^ q.f. 10 anni", "9^ q.f. 15 anni"};
    for (std::size_t row = 0; row < 5; ++row) {
        const int euro = static_cast<int>(row + 1) * 100;
        tariff.rows[row].Caption = captions[row];
        tariff.rows[row].rates = {cent(euro + 1), cent(euro + 2), cent(euro + 3)};
    }
    ASSERT_THAT(storeOnlyRecord(files, "Params/PmSeg.dat", tariff), Succeeds());
    EXPECT_EQ(toHex(contentOf(files, "Params/PmSeg.dat")), toHex(secretaryBytes(distinctCents)));
}

TEST_F(TariffFiles, ThePercentagesKeepFourDecimals) {
    ASSERT_THAT(storeOnlyRecord(files, "Params/Conprev.dat",
                                ContribRates{Currency::fromUnits(238'000), Currency::fromUnits(85'000),
                                             Currency::fromUnits(88'512), Currency::fromUnits(3'500)}),
                Succeeds());
    const std::string bytes = amount(23, 80) + amount(8, 50) + amount(8, 85, 12) + amount(0, 35);
    EXPECT_EQ(toHex(contentOf(files, "Params/Conprev.dat")), toHex(bytes));
    const auto read = onlyRecord<ContribRates>(files, "Params/Conprev.dat");
    ASSERT_TRUE(read.ok() && read->has_value());
    EXPECT_EQ((*read)->ContrPrev.units(), 238'000);
    EXPECT_EQ((*read)->IrapEnte.units(), 85'000);
    EXPECT_EQ((*read)->ContrDip.units(), 88'512);
    EXPECT_EQ((*read)->FonCre.units(), 3'500);
}

TEST_F(TariffFiles, ANewFileHasNoDataAndIsMadeEmpty) {
    const auto read = onlyRecord<ContribRates>(files, "Params/Conprev.dat");
    ASSERT_TRUE(read.ok());
    EXPECT_FALSE(read->has_value());
    EXPECT_EQ(contentOf(files, "Params/Conprev.dat"), "");
}

TEST_F(TariffFiles, ATrailingBlankInTheNameIsTheSameFile) {
    ASSERT_THAT(storeOnlyRecord(files, "Params/Conprev.dat ", ContribRates{}), Succeeds());
    EXPECT_EQ(contentOf(files, "Params/Conprev.dat"), nuls(32));
}

TEST_F(TariffFiles, AMissingFolderIsAFailure) {
    EXPECT_THAT(onlyRecord<ContribRates>(files, "Altro/Conprev.dat"), Fails(Failure::missingFolder));
    EXPECT_THAT(storeOnlyRecord(files, "Altro/Conprev.dat", ContribRates{}), Fails(Failure::missingFolder));
}

}  // namespace
}  // namespace vorbano::test
