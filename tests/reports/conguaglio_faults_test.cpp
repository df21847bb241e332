// The documents of an adjustment on a disk, a database or a print engine that fails.

#include <gmock/gmock.h>

#include <functional>

#include "adjustment_files.h"
#include "failing_desk.h"
#include "overtime_files.h"
#include "reports/conguaglio.h"
#include "reports/conguaglio_rendiconto.h"
#include "reports/conguaglio_versamenti.h"
#include "reports_desk.h"
#include "support/fault_stage.h"
#include "support/results.h"

namespace vorbano::test {
namespace {

const Heading headingOf2008{.Elezione = "Politiche e Comunali", .Data = "del 13 Aprile 2008", .Databall = "edizione"};
const Election politiche{"Politiche_Comunali", "13-04-08"};
const Election regionali{"Regionali", "28-03-10"};

using Print = std::function<Result<>(const Workplace&, const Election&)>;
struct AdjustmentDocument {
    const char* name;
    const char* command;
    int appends;  ///< rows of all tables
    Print print;
};
void PrintTo(const AdjustmentDocument& one, std::ostream* out) { *out << one.name; }

class ConguaglioFaults : public ReportsDesk, public testing::WithParamInterface<AdjustmentDocument> {
  protected:
    void SetUp() override {
        for (const Election& election : {politiche, regionali}) {
            const std::string folder = "Elezioni/" + election.type + "/" + election.date + "/";
            ASSERT_TRUE(layOvertime(files, election.type, election.date, 4));
            for (const char* file : {"Congs.vbn", "Congs1.vbn"})
                ASSERT_TRUE(lay(files, folder + file, LaidAdjustment{.dovuto = 100}.bytes()));
            ASSERT_TRUE(lay(files, folder + "Meirinc.vbn", meirincBytes()));
            ASSERT_TRUE(
                lay(files, folder + "Versumc.vbn",
                    paymentBytes("Inail", "", "", 500, 0, "") + paymentBytes("Irpef", "Mod. F24", "", 1, 0, "")));
        }
    }
    [[nodiscard]] Result<> print(const Workplace& workplace) const {
        if (auto done = GetParam().print(workplace, politiche); !done) return done;
        clearTables(workplace.staging, Clearing::Deletebase, 0).ignore();
        return GetParam().print(workplace, regionali);
    }
    void clear() { clearTables(staging, Clearing::Deletebase, 0).ignore(); }
};

TEST_P(ConguaglioFaults, ADiskThatFailsAtAnyPointPrintsNothingOfThatElection) {
    FailingFileSystem failing(files);
    const Workplace onBadDisk{failing, desktop, staging, printing, screens, places};
    const int operations = operationsOf(failing, [&] { ASSERT_THAT(print(onBadDisk), Succeeds()); });
    ASSERT_GT(operations, 4);
    clear();
    for (const Fault fault : bothFaults) {
        atEveryOperation({GetParam().command, "two elections"}, operations, [&](int n) {
            printing.jobs.clear();
            strike(failing, fault, n);
            EXPECT_FALSE(print(onBadDisk).ok());
            EXPECT_LE(printing.jobs.size(), 1U) << "the first of two elections at most";
            expectEmptyTables();
        });
    }
}

TEST_P(ConguaglioFaults, ARowThatCannotBeStagedEndsItAndNothingStays) {
    for (int n = 1; n <= GetParam().appends; ++n) {
        FailingDatabase failing;
        failing.failAt = n;
        EXPECT_FALSE(GetParam().print({files, desktop, failing, printing, screens, places}, politiche).ok()) << n;
        EXPECT_EQ(failing.appends, n);
        for (const TableInfo& table : stagingTables()) EXPECT_EQ(failing.count(table.name).valueOr(-1), 0) << n;
    }
    EXPECT_TRUE(printing.jobs.empty());
}

TEST_P(ConguaglioFaults, AMissingLayoutIsAFailureAndNothingStays) {
    NoLayout broken;
    EXPECT_THAT(GetParam().print({files, desktop, staging, broken, screens, places}, politiche),
                Fails(Failure::notFound));
    expectEmptyTables();
}

TEST_P(ConguaglioFaults, AMissingFolderIsAFailure) {
    EXPECT_THAT(GetParam().print(desk, {"Politiche_Comunali", "14-04-08"}), Fails(Failure::missingFolder));
    EXPECT_THAT(GetParam().print(desk, {"Regionali", "14-04-08"}), Fails(Failure::missingFolder));
    EXPECT_THAT(GetParam().print(desk, {"..", "13-04-08"}), Fails(Failure::badName));
    EXPECT_TRUE(printing.jobs.empty());
}

INSTANTIATE_TEST_SUITE_P(
    All, ConguaglioFaults,
    testing::Values(
        // Three employees and four companions; a heading and two documents; the statement and a heading.
        AdjustmentDocument{
            "Liquidazione", "frmTutteStampe.cmdConguaglio", 7,
            [](const Workplace& on, const Election& of) { return printConguaglio(on, of, headingOf2008); }},
        AdjustmentDocument{
            "Versamenti", "frmTutteStampe.cmdCongA", 3,
            [](const Workplace& on, const Election& of) { return printContributiConguaglio(on, of, headingOf2008); }},
        AdjustmentDocument{
            "Rendiconto", "frmTutteStampe.cmdCongRend", 2,
            [](const Workplace& on, const Election& of) { return printCongRend(on, of, headingOf2008); }}),
    [](const auto& document) { return std::string(document.param.name); });

}  // namespace
}  // namespace vorbano::test
