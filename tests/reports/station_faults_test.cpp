#include "failing_desk.h"
#include "stampe_seggi_desk.h"
#include "support/fault_stage.h"

namespace vorbano::test {
namespace {

const Election electionWithStations{"Provinciali_Comunali", "09-06-24"};
constexpr StationChoice normalStations{StationKind::normal, Round::first};

/// One of the three documents of the stations: its procedure, its rows, and the first table that it fills.
struct StationDocument {
    const char* name;
    Result<> (*print)(const Workplace& desk);
    int rows;
    const char* table;
    const char* layout;
};

Result<> printSecond(const Workplace& desk) {
    const auto stations = readStations(desk.files, electionWithStations, normalStations);
    if (!stations) return stations.error();
    return printStation(desk, electionWithStations, normalStations, {}, *stations, 2);
}

class StationFaults : public ReportsDesk, public testing::WithParamInterface<StationDocument> {
  protected:
    void SetUp() override {
        ASSERT_TRUE(layStations(files, electionWithStations.type));
        ASSERT_TRUE(lay(files, "Params/Tarmag.dat", quotaBytes(electionWithStations.type, 3500, 2525)));
    }
};

TEST_P(StationFaults, MissingLayoutIsGivenBackAndTheTablesAreCleared) {
    NoLayout broken;
    const auto printed = GetParam().print({files, desktop, staging, broken, screens, places});
    ASSERT_THAT(printed, Fails(Failure::notFound));
    EXPECT_EQ(printed.error().subject, GetParam().layout);
    expectEmptyTables();
}

TEST_P(StationFaults, DatabaseThatFailsInTheFillingPrintsNothing) {
    for (int n = 1; n <= GetParam().rows + 1; ++n) {
        FailingDatabase failing;
        failing.failAt = n;
        EXPECT_THAT(GetParam().print({files, desktop, failing, printing, screens, places}), Fails(Failure::device));
        EXPECT_TRUE(printing.jobs.empty()) << n;
        const Snapshot left(failing);
        for (const TableInfo& table : stagingTables()) EXPECT_EQ(left.rows(std::string(table.name)), 0) << n;
        EXPECT_EQ(failing.begun, failing.committed);
    }
}

TEST_P(StationFaults, TheFillingIsOneGo) {
    FailingDatabase counting;
    EXPECT_THAT(GetParam().print({files, desktop, counting, printing, screens, places}), Succeeds());
    EXPECT_EQ(counting.appends, GetParam().rows + 1) << "and the heading";
    EXPECT_EQ(counting.begun, 1);
    EXPECT_EQ(counting.committed, 1);
}

TEST_P(StationFaults, DiskThatFailsAtAnyPointLeavesRecordsAndTablesAsTheyWere) {
    const std::string before = allStationBytes(files, electionWithStations.type);
    FailingFileSystem failing(files);
    const Workplace onBadDisk{failing, desktop, staging, printing, screens, places};
    const int operations = operationsOf(failing, [&] { ASSERT_THAT(GetParam().print(onBadDisk), Succeeds()); });
    ASSERT_GT(operations, 5);
    printing.jobs.clear();
    atEveryOperation({"frmTutteStampe", std::string("stations ") + GetParam().name}, operations, [&](int n) {
        failing.failOnce(n);
        EXPECT_FALSE(GetParam().print(onBadDisk).ok());
        EXPECT_TRUE(printing.jobs.empty());
        printing.jobs.clear();
        expectEmptyTables();
    });
    EXPECT_EQ(allStationBytes(files, electionWithStations.type), before);
}

INSTANTIATE_TEST_SUITE_P(Documents, StationFaults,
                         testing::Values(StationDocument{"Summary",
                                                         [](const Workplace& desk) {
                                                             return printStationSummary(desk, electionWithStations,
                                                                                        normalStations, {});
                                                         },
                                                         3, "Tabella8", "riepsegprocom.rpt"},
                                         StationDocument{"One", printSecond, 4, "Tabella7", "conaltri.rpt"},
                                         StationDocument{"All",
                                                         [](const Workplace& desk) {
                                                             return printAllStations(desk, electionWithStations,
                                                                                     normalStations, {});
                                                         },
                                                         11, "Tabella7", "seggi.rpt"}),
                         [](const auto& one) { return std::string(one.param.name); });

TEST_F(StampeSeggiDesk, WhatFailsIsToldOnTheScreen) {
    find("Comunali");
    FailingFileSystem failing(files);
    frmTutteStampe stampe({failing, desktop, staging, printing, screens, places});
    stampe.form.open();
    Operator hand(stampe.form);
    ASSERT_EQ(hand.choose(stampe.Combo1, "Comunali"), Refusal::none);
    ASSERT_EQ(hand.choose(stampe.Combo4, "09-06-24"), Refusal::none);
    ASSERT_EQ(hand.click(stampe.cmdAnteprima), Refusal::none);
    const auto toldBy = [&](Button& command) {
        failing.failOnce(1);
        desktop.box("Errore", "Il disco non ha completato l'operazione sul file Elezioni/Comunali/09-06-24/Seggi.vbn.");
        EXPECT_EQ(hand.click(command), Refusal::none) << command.name();
    };
    toldBy(stampe.cmdRSeggi);
    toldBy(stampe.cmdSSeggio);
    EXPECT_TRUE(stampe.Combo3.items().empty());
    ASSERT_EQ(hand.click(stampe.cmdSSeggio), Refusal::none);
    ASSERT_EQ(hand.choose(stampe.Combo3, "1"), Refusal::none);
    toldBy(stampe.cmdStampa);
    EXPECT_TRUE(printing.jobs.empty());
}

}  // namespace
}  // namespace vorbano::test
