#include "records/adjustment_records.h"

#include <gmock/gmock.h>

#include <string>

#include "election_files.h"
#include "storage/memory_file_system.h"
#include "storage/record_file.h"
#include "support/bytes.h"
#include "support/laid_out_records.h"
#include "support/results.h"

namespace vorbano {
namespace {

using test::pathOf;
using test::Sheet;
using test::toHex;

/// The third employee: 70, 32 and 4 hours at new rates, a difference with four decimals and a total below zero.
std::string adjustmentBytes() {
    return Sheet(145)
        .integersAt(0, {3, 70, 32, 4})
        .at(8, test::nuls(7))
        .at(15, test::nuls(10))
        .amountsAt(25, {1650, 1865, 2150, 183780})
        .at(57, test::le64(-647'212))
        .amountsAt(65, {2380, -1540, 850, -550, -2090, 880, -570, 35, -23, -592})
        .bytes();
}

AdjustmentRecord adjustment() {
    AdjustmentRecord record{};
    const auto cent = [](int cents) { return Currency::fromCents(cents); };
    record.SonoDip = 3;
    record.hours = {70, 32, 4};
    record.rates = {cent(1650), cent(1865), cent(2150)};
    record.Dovuto = cent(183780);
    record.Pagato = Currency::fromUnits(-647'212);
    record.AliCpStato = cent(2380);
    record.CpStato = cent(-1540);
    record.AliIrap = cent(850);
    record.Irap = cent(-550);
    record.TotaleSpesa = cent(-2090);
    record.AliCpDip = cent(880);
    record.CpDip = cent(-570);
    record.AliFonCre = cent(35);
    record.FonCre = cent(-23);
    record.TotaleContr = cent(-592);
    return record;
}

TEST(AdjustmentFiles, AreWrittenByteByByteAsLaidOut) {
    for (const std::string_view name : {"Congs.vbn", "Congs1.vbn"}) {
        MemoryFileSystem files;
        ASSERT_TRUE(test::lay(files, pathOf(name), ""));
        auto file = RecordFile<AdjustmentRecord>::open(files, pathOf(name));
        ASSERT_THAT(file, test::Succeeds());
        EXPECT_THAT(file->append(adjustment()), test::Succeeds());
        EXPECT_EQ(toHex(test::contentOf(files, pathOf(name))), toHex(adjustmentBytes())) << name;
    }
}

TEST(AdjustmentFiles, LaidOutByHandAreRead) {
    const AdjustmentRecord expected = adjustment();
    for (const std::string_view name : {congsFile, congs1File}) {
        MemoryFileSystem files;
        ASSERT_TRUE(test::lay(files, pathOf(name), adjustmentBytes()));
        const auto file = RecordFile<AdjustmentRecord>::open(files, pathOf(name));
        ASSERT_THAT(file, test::Succeeds());
        const auto record = file->read(1);
        ASSERT_THAT(record, test::Succeeds());
        EXPECT_EQ(std::int16_t{record->SonoDip}, 3);
        EXPECT_EQ(std::int16_t{record->hours[0]}, 70);
        EXPECT_EQ(std::int16_t{record->hours[1]}, 32);
        EXPECT_EQ(std::int16_t{record->hours[2]}, 4);
        EXPECT_EQ(record->lblCat.trimmed(), "");
        EXPECT_EQ(record->lblCat2.trimmed(), "");
        EXPECT_EQ(record->rates, expected.rates);
        EXPECT_EQ(record->Dovuto, expected.Dovuto);
        EXPECT_EQ(record->Pagato, expected.Pagato);
        EXPECT_EQ(record->AliCpStato, expected.AliCpStato);
        EXPECT_EQ(record->CpStato, expected.CpStato);
        EXPECT_EQ(record->AliIrap, expected.AliIrap);
        EXPECT_EQ(record->Irap, expected.Irap);
        EXPECT_EQ(record->TotaleSpesa, expected.TotaleSpesa);
        EXPECT_EQ(record->AliCpDip, expected.AliCpDip);
        EXPECT_EQ(record->CpDip, expected.CpDip);
        EXPECT_EQ(record->AliFonCre, expected.AliFonCre);
        EXPECT_EQ(record->FonCre, expected.FonCre);
        EXPECT_EQ(record->TotaleContr, expected.TotaleContr);
    }
}

}  // namespace
}  // namespace vorbano
