// The disk fails once or stops for good at every operation: a file is as it was or gone, never half; a search that
// fails is told, the deletion goes on; the same work once more ends what was begun.

#include "cancella_desk.h"
#include "support/fault_stage.h"

namespace vorbano::test {
namespace {

using ::testing::IsEmpty;

const std::string seggi = std::string(216, 'S');
const std::string rendi = std::string(152, 'R');

struct Stage : FaultStage<frmCancella> {
    Stage() {
        for (const auto& [name, bytes] : laid) EXPECT_TRUE(lay(disk, electionFolder + "/" + name, bytes));
        openScreen();
        choose("Combo1", "Europee");
        choose("Combo2", "09-06-24");
    }
    std::string stored(const std::string& name) { return contentOf(disk, electionFolder + "/" + name); }
    void expectWholeOrGone() {
        for (const auto& [name, bytes] : laid) {
            const std::string now = stored(name);
            EXPECT_TRUE(now == bytes || now == noFile) << name;
        }
    }
    void expectUntouched() {
        for (const auto& [name, bytes] : laid) EXPECT_EQ(stored(name), bytes) << name;
    }
    static inline const std::map<std::string, std::string> laid = {{"Seggi.vbn", seggi},
                                                                   {"SosSeggi.vbn", std::string(218, 'T')},
                                                                   {"Rendi.vbn", rendi},
                                                                   {"DivSt.vbn", std::string(16, 'D')},
                                                                   {"Meirinc.vbn", std::string(40, 'M')}};
};

class CancellaGuasti : public ::testing::TestWithParam<Fault> {
  protected:
    /// Counts the operations of `work` on a fresh stage that `prepare` made ready.
    template <class Prepare, class Work>
    static int operations(Prepare prepare, Work work) {
        Stage stage;
        prepare(stage);
        return operationsOf(stage.failing, [&] { work(stage); });
    }
};
INSTANTIATE_TEST_SUITE_P(Both, CancellaGuasti, ::testing::ValuesIn(bothFaults));

TEST_P(CancellaGuasti, TheSearchTellsAndOffersNothing) {
    const auto searching = [](Stage& stage) { stage.click("cmdRicerca"); };
    const int all = operations([](Stage&) {}, searching);
    ASSERT_GE(all, 16) << "eight files are opened and measured";
    atEveryOperation({"frmCancella.cmdRicerca", "an election"}, all, [&](int n) {
        Stage stage;
        strike(stage.failing, GetParam(), n);
        searching(stage);
        EXPECT_EQ(stage.desk.told, Names{"Errore"});
        EXPECT_FALSE(stage.screen->Check1.enabled());
        EXPECT_FALSE(stage.screen->Check4.enabled());
        stage.expectUntouched();
        stage.failing.failOnce(0);
        searching(stage);
        EXPECT_TRUE(stage.screen->Check4.enabled());
        EXPECT_TRUE(stage.screen->Check9.enabled());
    });
}

TEST_P(CancellaGuasti, AGroupIsRemovedAsFarAsTheDiskAllows) {
    const auto prepare = [](Stage& stage) {
        stage.click("cmdRicerca");
        stage.tick("Check4");
        stage.tick("Check9");
    };
    const auto deleting = [](Stage& stage) { stage.click("cmdEsegui"); };
    const int all = operations(prepare, deleting);
    ASSERT_EQ(all, 9) << "each of five files is looked for, and the four that are there are removed";
    atEveryOperation({"frmCancella.cmdEsegui", "two groups"}, all, [&](int n) {
        Stage stage;
        prepare(stage);
        strike(stage.failing, GetParam(), n);
        deleting(stage);
        EXPECT_EQ(stage.desk.told, Names{"Cancellazione"});
        stage.expectWholeOrGone();
        EXPECT_EQ(stage.stored("Meirinc.vbn"), std::string(40, 'M'));
        // In the order of removal, each is looked for and removed; the fifth was never there.
        const Names order = {"Seggi.vbn", "SosSeggi.vbn", "Rendi.vbn", "DivSt.vbn"};
        for (int at = 0; at < static_cast<int>(order.size()); ++at) {
            const int removal = 2 * at + 2;
            const bool spared = GetParam() == Fault::once ? n == removal || n == removal - 1 : n <= removal;
            EXPECT_EQ(stage.stored(order[static_cast<std::size_t>(at)]) != noFile, spared) << at;
        }
        stage.failing.failOnce(0);
        deleting(stage);
        for (const std::string& name : order) EXPECT_EQ(stage.stored(name), noFile) << name;
    });
}

TEST_P(CancellaGuasti, AnElectionIsRemovedAsFarAsTheDiskAllows) {
    const auto prepare = [](Stage& stage) {
        stage.click("cmdRicerca");
        stage.tick("Check1");
    };
    const auto deleting = [](Stage& stage) { stage.click("cmdEsegui"); };
    const int all = operations(prepare, deleting);
    ASSERT_GE(all, 13) << "two groups, the list, at least six files, the folder";
    atEveryOperation({"frmCancella.cmdEsegui", "an election"}, all, [&](int n) {
        Stage stage;
        prepare(stage);
        strike(stage.failing, GetParam(), n);
        deleting(stage);
        EXPECT_EQ(stage.desk.told, Names{"Cancellazione"});
        stage.expectWholeOrGone();
        stage.failing.failOnce(0);
        deleting(stage);
        EXPECT_THAT(namesIn(stage.disk, "Elezioni/Europee"), IsEmpty());
        stage.click("cmdAnnulla");
        EXPECT_THAT(stage.screen->Combo2.items(), IsEmpty());
    });
}

}  // namespace
}  // namespace vorbano::test
