#include "storage/list_files.h"

#include <gmock/gmock.h>

#include <string>
#include <vector>

#include "storage/memory_file_system.h"
#include "storage/record_file.h"
#include "support/bytes.h"
#include "support/results.h"

namespace vorbano {
namespace {

using test::contentOf;
using test::fromHex;
using test::lay;
using test::padded;
using test::Succeeds;

class NameFiles : public ::testing::Test {
  protected:
    void SetUp() override { ASSERT_THAT(files.makeFolder("Params"), Succeeds()); }
    MemoryFileSystem files;
};

TEST_F(NameFiles, EnteHoldsTheNameOfTheMunicipalityInSixtyBytes) {
    auto ente = RecordFile<NameRecord>::open(files, enteFile);
    ASSERT_THAT(ente, Succeeds());
    EXPECT_EQ(ente->size(), 0) << "nothing entered yet";
    ASSERT_THAT(ente->write(1, {Text<60>("Forlì")}), Succeeds());
    EXPECT_EQ(contentOf(files, "Params/Ente.dat"), padded(fromHex("46 6f 72 6c ec"), 60));
}

TEST_F(NameFiles, EnteIsReadAsItWasWrittenElsewhere) {
    ASSERT_TRUE(lay(files, "Params/Ente.dat", padded(fromHex("46 6f 72 6c ec"), 60)));
    auto ente = RecordFile<NameRecord>::open(files, enteFile);
    ASSERT_THAT(ente, Succeeds());
    ASSERT_TRUE(ente->last());
    EXPECT_EQ(ente->last()->name.trimmed(), "Forlì");
}

TEST_F(NameFiles, ComuniAreReadInTheirOrder) {
    ASSERT_TRUE(lay(files, "Params/comuni.dat",
                    padded(fromHex("41 67 6c 69 e8"), 60) + padded("Roma", 60) + padded("Bari", 60)));
    auto comuni = RecordFile<NameRecord>::open(files, comuniFile);
    ASSERT_THAT(comuni, Succeeds());
    std::vector<std::string> names;
    ASSERT_THAT(comuni->scan([&](int, const NameRecord& record) { names.push_back(record.name.trimmed()); }),
                Succeeds());
    EXPECT_THAT(names, ::testing::ElementsAre("Agliè", "Roma", "Bari"));
}

TEST_F(NameFiles, DipendTakesNamesOneAfterAnother) {
    auto staff = RecordFile<NameRecord>::open(files, dipendFile);
    ASSERT_THAT(staff, Succeeds());
    ASSERT_THAT(staff->append({Text<60>("D'Àmico Niccolò")}), Succeeds());
    ASSERT_THAT(staff->append({Text<60>("Rossi Anna")}), Succeeds());
    EXPECT_EQ(contentOf(files, "Params/Dipend.dat"),
              padded(fromHex("44 27 c0 6d 69 63 6f 20 4e 69 63 63 6f 6c f2"), 60) + padded("Rossi Anna", 60));
}

TEST_F(NameFiles, ANameOfTwoHundredCharactersIsCutAtSixty) {
    auto staff = RecordFile<NameRecord>::open(files, dipendFile);
    ASSERT_THAT(staff, Succeeds());
    std::string longName;
    for (int n = 0; n < 200; ++n) longName += "è";
    ASSERT_THAT(staff->append({Text<60>(longName)}), Succeeds());
    EXPECT_EQ(contentOf(files, "Params/Dipend.dat"), std::string(60, '\xE8'));
}

TEST_F(NameFiles, AnEmojiIsKeptAsAQuestionMark) {
    auto staff = RecordFile<NameRecord>::open(files, dipendFile);
    ASSERT_THAT(staff, Succeeds());
    ASSERT_THAT(staff->append({Text<60>("Rossi 😀 Anna")}), Succeeds());
    EXPECT_EQ(contentOf(files, "Params/Dipend.dat"), padded("Rossi ? Anna", 60));
    ASSERT_TRUE(staff->last());
    EXPECT_EQ(staff->last()->name.trimmed(), "Rossi ? Anna");
}

}  // namespace
}  // namespace vorbano
