#include "program/program.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "platform/memory_database.h"
#include "platform/operator.h"
#include "platform/scripted_desktop.h"
#include "platform/staging_tables.h"
#include "program/record_files.h"
#include "storage/list_files.h"
#include "storage/memory_file_system.h"
#include "storage/record_file.h"

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

TEST_F(TheProgram, OpensEveryScreenOfItsMenuAndComesBackToTheMainWindow) {
    files.makeFolder("Params").ignore();
    NameRecord ente;
    ente.name = "Borgo San Vorbano";
    ASSERT_TRUE(RecordFile<NameRecord>::open(files, enteFile)->append(ente).ok());
    desktop.form("Form1", [this](Form& main) {
        int opened = 0;
        for (Control* control : main.controls()) {
            if (control->kind() != Kind::menuEntry) continue;
            auto& entry = static_cast<MenuEntry&>(*control);
            const bool opensScreen = entry.canBeChosen() && entry.clicked.hasProcedure() && entry.name() != "Ente" &&
                                     entry.name() != "mnuInfo" && entry.name() != "mnuFileEsci";
            if (!opensScreen) continue;
            desktop.anyForm([&](Form&) { ++opened; });
            EXPECT_EQ(Operator(main).menu(entry), Refusal::none) << entry.name();
        }
        // The fiscal code is opened by the corrections of the stations.
        EXPECT_EQ(opened, static_cast<int>(program.names().size()) - 1);
    });
    program.run();
    // Only the boxes that the screens bring up on an empty installation.
    for (const std::string& mistake : desktop.finish())
        EXPECT_THAT(mistake, testing::HasSubstr("nobody expected the box"));
}

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
