#include "program/program.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "platform/memory_database.h"
#include "platform/scripted_desktop.h"
#include "platform/staging_tables.h"
#include "program/record_files.h"
#include "storage/memory_file_system.h"

using namespace vorbano;
using testing::IsEmpty;

namespace {

struct TheProgram : testing::Test {
    MemoryFileSystem files;
    MemoryDatabase staging{stagingTables()};
    MemoryDatabase places{{}};
    RecordingPrintEngine printing;
    ScriptedDesktop desktop;
    Program program{files, desktop, staging, places, printing};
};

}  // namespace

TEST_F(TheProgram, KnowsItsScreensByName) {
    EXPECT_TRUE(program.has("frmCompStraord"));
    EXPECT_FALSE(program.has("frmQualcosa"));
    program.open("frmQualcosa");
    EXPECT_THAT(desktop.finish(), IsEmpty());
}

TEST(TheRecordFiles, AreAllCoveredByTheirFields) {
    for (const RecordInfo& record : recordFiles()) {
        EXPECT_TRUE(coversWhole(record.fields, record.width)) << record.file;
    }
}
