#include "reports/impegno.h"
#include "stampe_desk.h"
#include "storage/failing_file_system.h"

namespace vorbano::test {
namespace {

/// A print engine whose layout is not there.
class NoLayout : public PrintEngine {
  public:
    Result<> run(const PrintJob& job) override { return Error{Failure::notFound, job.layout}; }
};

/// A database that fails at its n-th appending.
class FailingDatabase : public MemoryDatabase {
  public:
    FailingDatabase() : MemoryDatabase(stagingTables()) {}
    int failAt = 0;
    int appends = 0;
    int begun = 0;
    int committed = 0;

    Result<> append(std::string_view table, const Row& row) override {
        if (++appends == failAt) return Error{Failure::device, "dbStampa.mdb"};
        return MemoryDatabase::append(table, row);
    }
    Result<> begin() override {
        ++begun;
        return {};
    }
    Result<> commit() override {
        ++committed;
        return {};
    }
};

class ImpegnoFaults : public ReportsDesk {
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
        ASSERT_EQ(hand.click(stampe.cmdImpegno), Refusal::none);
        EXPECT_TRUE(stampe.cmdImpegno.isOperable());
    }
};

TEST_F(ImpegnoFaults, MissingLayoutIsToldAndTheTablesAreCleared) {
    NoLayout broken;
    desktop.box("Errore", "Manca il file impstrp.rpt.");
    printOn({files, desktop, staging, broken, screens});
    expectEmptyTables();
}

TEST_F(ImpegnoFaults, DatabaseThatFailsInTheFillingIsToldAndCleared) {
    // Three employees, then Tabella4, Tabella5, Tabella6, Tabella10.
    for (int n = 1; n <= 7; ++n) {
        FailingDatabase failing;
        failing.failAt = n;
        desktop.box("Errore", "Il disco non ha completato l'operazione sul file dbStampa.mdb.");
        printOn({files, desktop, failing, printing, screens});
        EXPECT_TRUE(printing.jobs.empty()) << "no layout over half-filled tables, failing at " << n;
        const Snapshot left(failing);
        for (const TableInfo& table : stagingTables()) EXPECT_EQ(left.rows(std::string(table.name)), 0) << n;
        EXPECT_EQ(failing.begun, failing.committed);
    }
}

TEST_F(ImpegnoFaults, TheFillingIsOneGo) {
    FailingDatabase counting;
    printOn({files, desktop, counting, printing, screens});
    EXPECT_EQ(counting.appends, 7);
    EXPECT_EQ(counting.begun, 1);
    EXPECT_EQ(counting.committed, 1);
}

TEST_F(ImpegnoFaults, MissingTableIsToldOnce) {
    MemoryDatabase empty({});
    desktop.box("Errore", "Manca il file Tabella3.");
    printOn({files, desktop, empty, printing, screens});
    EXPECT_TRUE(printing.jobs.empty());
}

TEST_F(ImpegnoFaults, DiskThatFailsAtAnyPointLeavesRecordsAndTablesAsTheyWere) {
    const Election election{"Europee_Comunali", "26-05-13"};
    const std::string folder = "Elezioni/Europee_Comunali/26-05-13/";
    const std::string before = contentOf(files, folder + "26-05-13.vbn") + contentOf(files, folder + "Quartum.vbn") +
                               contentOf(files, folder + "Pentium.vbn") + contentOf(files, folder + "Meirin.vbn");
    FailingFileSystem failing(files);
    const Workplace onBadDisk{failing, desktop, staging, printing, screens};
    ASSERT_THAT(printImpegno(onBadDisk, election, {true, true}, {}), Succeeds());
    const int operations = failing.operations();
    ASSERT_GT(operations, 10);
    printing.jobs.clear();
    for (int n = 1; n <= operations; ++n) {
        failing.failOnce(n);
        EXPECT_FALSE(printImpegno(onBadDisk, election, {true, true}, {}).ok()) << n;
        EXPECT_TRUE(printing.jobs.empty()) << n;
        printing.jobs.clear();
        expectEmptyTables();
    }
    EXPECT_EQ(contentOf(files, folder + "26-05-13.vbn") + contentOf(files, folder + "Quartum.vbn") +
                  contentOf(files, folder + "Pentium.vbn") + contentOf(files, folder + "Meirin.vbn"),
              before);
}

}  // namespace
}  // namespace vorbano::test
