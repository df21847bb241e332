#include "failing_desk.h"
#include "reports/rendiconto.h"
#include "stampe_desk.h"
#include "statement_files.h"
#include "support/fault_stage.h"

namespace vorbano::test {
namespace {

class RendicontoFaults : public ReportsDesk {
  protected:
    void SetUp() override {
        for (const char* kind : {"Provinciali_Comunali", "Europee_Comunali"}) {
            const std::string folder = std::string("Elezioni/") + kind + "/06-05-12/";
            ASSERT_TRUE(lay(files, folder + "Rendi.vbn", LaidRendi{.onorari = 10001, .totale = 10001}.bytes()));
            ASSERT_TRUE(lay(files, folder + "Seggi.vbn", stationMember("Presidente", 10001)));
            ASSERT_TRUE(lay(files, folder + "SegSuf.vbn", runOffMember("Presidente", 1, 30)));
            ASSERT_TRUE(lay(files, folder + "DivSt.vbn", amount(1) + amount(2)));
            ASSERT_TRUE(lay(files, folder + "Tprov.vbn", amount(3) + amount(4)));
        }
        ASSERT_TRUE(lay(files, "Params/Ente.dat", padded("Pratofiorito", 60)));
        ASSERT_TRUE(lay(files, "Params/Tarmag.dat", normalQuota("Provinciali_Comunali", 100, 50)));
        ASSERT_TRUE(lay(files, "Params/Tarmagsp.dat", specialQuota("Provinciali_Comunali", 100, 50)));
    }
    /// Opens the screen on a desk, searches for the election and asks for the statement.
    static void printOn(const Workplace& workplace) {
        frmTutteStampe stampe(workplace);
        stampe.form.open();
        Operator hand(stampe.form);
        ASSERT_EQ(hand.choose(stampe.Combo1, "Provinciali_Comunali"), Refusal::none);
        ASSERT_EQ(hand.choose(stampe.Combo4, "06-05-12"), Refusal::none);
        ASSERT_EQ(hand.click(stampe.cmdAnteprima), Refusal::none);
        ASSERT_EQ(hand.click(stampe.cmdRendiconto), Refusal::none);
    }
};

TEST_F(RendicontoFaults, MissingLayoutIsToldAndTheTablesAreCleared) {
    NoLayout broken;
    desktop.box("Errore", "Manca il file rendprocom.rpt.");
    printOn({files, desktop, staging, broken, screens, places});
    expectEmptyTables();
}

TEST_F(RendicontoFaults, DatabaseThatFailsInTheFillingIsToldAndCleared) {
    for (int n = 1; n <= 2; ++n) {
        FailingDatabase failing;
        failing.failAt = n;
        desktop.box("Errore", "Il disco non ha completato l'operazione sul file dbStampa.mdb.");
        printOn({files, desktop, failing, printing, screens, places});
        EXPECT_EQ(failing.appends, n);
        EXPECT_TRUE(printing.jobs.empty()) << "no layout over half-filled tables, failing at " << n;
        const Snapshot left(failing);
        for (const TableInfo& table : stagingTables()) EXPECT_EQ(left.rows(std::string(table.name)), 0) << n;
    }
}

TEST_F(RendicontoFaults, MissingTableIsToldOnce) {
    MemoryDatabase empty({});
    desktop.box("Errore", "Manca il file Tabella9.");
    printOn({files, desktop, empty, printing, screens, places});
    EXPECT_TRUE(printing.jobs.empty());
}

TEST_F(RendicontoFaults, MissingFolderIsAFailure) {
    EXPECT_THAT(printRendiconto(desk, {"Provinciali_Comunali", "07-05-12"}, {}), Fails(Failure::missingFolder));
    EXPECT_THAT(printRendiconto(desk, {"..", "07-05-12"}, {}), Fails(Failure::badName));
    EXPECT_TRUE(printing.jobs.empty());
}

TEST_F(RendicontoFaults, DiskThatFailsAtAnyPointPrintsNothing) {
    for (const char* kind : {"Provinciali_Comunali", "Europee_Comunali"}) {
        const Election election{kind, "06-05-12"};
        const std::string rendi = "Elezioni/" + election.type + "/06-05-12/Rendi.vbn";
        const std::string before = contentOf(files, rendi);
        FailingFileSystem failing(files);
        const Workplace onBadDisk{failing, desktop, staging, printing, screens, places};
        const int operations =
            operationsOf(failing, [&] { ASSERT_THAT(printRendiconto(onBadDisk, election, {}), Succeeds()); });
        ASSERT_GT(operations, 5);
        printing.jobs.clear();
        atEveryOperation({"frmTutteStampe", std::string("statement ") + kind}, operations, [&](int n) {
            failing.failOnce(n);
            EXPECT_FALSE(printRendiconto(onBadDisk, election, {}).ok());
            EXPECT_TRUE(printing.jobs.empty());
            printing.jobs.clear();
            expectEmptyTables();
        });
        EXPECT_EQ(contentOf(files, rendi), before);
    }
}

}  // namespace
}  // namespace vorbano::test
