#include "failing_desk.h"
#include "reports/determina.h"
#include "reports/impegno.h"
#include "reports/lrendiconto.h"
#include "stampe_desk.h"
#include "support/fault_stage.h"

namespace vorbano::test {
namespace {

/// One of the three documents made from the overtime: its command, its layout, its procedure.
struct OvertimeDocument {
    const char* name;
    Button frmTutteStampe::*command;
    const char* layout;
    Result<> (*print)(const Workplace& desk);
};

const Election electionOf2013{"Europee_Comunali", "26-05-13"};
constexpr LatePeriods allFive{true, true};

class OvertimeFaults : public ReportsDesk, public testing::WithParamInterface<OvertimeDocument> {
  protected:
    void SetUp() override { ASSERT_TRUE(layOvertime(files, "Europee_Comunali", "26-05-13", 5)); }
    /// Opens the screen on a desk, searches for the election and asks for the document.
    static void printOn(const Workplace& desk) {
        frmTutteStampe stampe(desk);
        stampe.form.open();
        Operator hand(stampe.form);
        ASSERT_EQ(hand.choose(stampe.Combo1, "Europee_Comunali"), Refusal::none);
        ASSERT_EQ(hand.choose(stampe.Combo4, "26-05-13"), Refusal::none);
        ASSERT_EQ(hand.click(stampe.cmdAnteprima), Refusal::none);
        Button& command = stampe.*GetParam().command;
        ASSERT_EQ(hand.click(command), Refusal::none);
        EXPECT_TRUE(command.isOperable());
    }
};

TEST_P(OvertimeFaults, MissingLayoutIsToldAndTheTablesAreCleared) {
    NoLayout broken;
    desktop.box("Errore", std::string("Manca il file ") + GetParam().layout + ".");
    printOn({files, desktop, staging, broken, screens, places});
    expectEmptyTables();
}

TEST_P(OvertimeFaults, DatabaseThatFailsInTheFillingIsToldAndCleared) {
    // Three employees, then Tabella4, Tabella5, Tabella6, Tabella10.
    for (int n = 1; n <= 7; ++n) {
        FailingDatabase failing;
        failing.failAt = n;
        desktop.box("Errore", "Il disco non ha completato l'operazione sul file dbStampa.mdb.");
        printOn({files, desktop, failing, printing, screens, places});
        EXPECT_TRUE(printing.jobs.empty()) << "no layout over half-filled tables, failing at " << n;
        const Snapshot left(failing);
        for (const TableInfo& table : stagingTables()) EXPECT_EQ(left.rows(std::string(table.name)), 0) << n;
        EXPECT_EQ(failing.begun, failing.committed);
    }
}

TEST_P(OvertimeFaults, TheFillingIsOneGo) {
    FailingDatabase counting;
    printOn({files, desktop, counting, printing, screens, places});
    EXPECT_EQ(counting.appends, 7);
    EXPECT_EQ(counting.begun, 1);
    EXPECT_EQ(counting.committed, 1);
}

TEST_P(OvertimeFaults, MissingTableIsToldOnce) {
    MemoryDatabase empty({});
    desktop.box("Errore", "Manca il file Tabella3.");
    printOn({files, desktop, empty, printing, screens, places});
    EXPECT_TRUE(printing.jobs.empty());
}

TEST_P(OvertimeFaults, DiskThatFailsAtAnyPointLeavesRecordsAndTablesAsTheyWere) {
    const std::string folder = "Elezioni/Europee_Comunali/26-05-13/";
    const std::string before = contentOf(files, folder + "26-05-13.vbn") + contentOf(files, folder + "Quartum.vbn") +
                               contentOf(files, folder + "Pentium.vbn") + contentOf(files, folder + "Meirin.vbn");
    FailingFileSystem failing(files);
    const Workplace onBadDisk{failing, desktop, staging, printing, screens, places};
    const int operations = operationsOf(failing, [&] { ASSERT_THAT(GetParam().print(onBadDisk), Succeeds()); });
    ASSERT_GT(operations, 10);
    printing.jobs.clear();
    atEveryOperation({"frmTutteStampe", GetParam().name}, operations, [&](int n) {
        failing.failOnce(n);
        EXPECT_FALSE(GetParam().print(onBadDisk).ok());
        EXPECT_TRUE(printing.jobs.empty());
        printing.jobs.clear();
        expectEmptyTables();
    });
    EXPECT_EQ(contentOf(files, folder + "26-05-13.vbn") + contentOf(files, folder + "Quartum.vbn") +
                  contentOf(files, folder + "Pentium.vbn") + contentOf(files, folder + "Meirin.vbn"),
              before);
}

INSTANTIATE_TEST_SUITE_P(
    Documents, OvertimeFaults,
    testing::Values(
        OvertimeDocument{"Impegno", &frmTutteStampe::cmdImpegno, "impstrp.rpt",
                         [](const Workplace& desk) { return printImpegno(desk, electionOf2013, allFive, {}); }},
        OvertimeDocument{
            "Determina", &frmTutteStampe::cmdDetermina, "strvideop.rpt",
            [](const Workplace& desk) { return printDetermina(desk, electionOf2013, allFive, allPeriods, {}); }},
        OvertimeDocument{"LRendiconto", &frmTutteStampe::cmdLRendiconto, "liqstrqec.rpt",
                         [](const Workplace& desk) { return printLRendiconto(desk, electionOf2013, allFive, {}); }}),
    [](const auto& one) { return std::string(one.param.name); });

}  // namespace
}  // namespace vorbano::test
