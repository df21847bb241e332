// The disk fails once or stops for good at every operation of the removal: each file is whole afterwards, old or new;
// what failed is told; the same command once more, or a new search, brings the election to one state, and nobody else
// is removed.

#include "removal_desk.h"
#include "support/fault_stage.h"

namespace vorbano::test {
namespace {

using ::testing::AnyOf;
using ::testing::Contains;
using ::testing::ElementsAre;
using ::testing::IsEmpty;
using ::testing::Not;

/// An election, the staff before, and what the removal of the second leaves.
struct Case {
    const char* name;
    LaidElection before;
    LaidElection after;
    [[nodiscard]] std::vector<LaidPerson> staff() const { return persons(before.numDip); }
    [[nodiscard]] std::vector<LaidPerson> left() const {
        std::vector<LaidPerson> all = staff();
        all.erase(all.begin() + 1);
        return all;
    }
};
void PrintTo(const Case& one, std::ostream* out) { *out << one.name; }

Case ofFivePeriods() { return {"FivePeriods", fivePeriods(), fivePeriodsOfFive()}; }
Case ofThreePeriods() { return {"ThreePeriods", europee2024(), europee2024OfSix()}; }

/// One fresh disk with the election, desk and screen.
struct Stage : FaultStage<frmElimina> {
    const Case& election;

    explicit Stage(const Case& laid) : election(laid) {
        layElection(disk, election.before, election.staff());
        openScreen();
    }
    void identify() {
        choose("Combo1", election.before.type);
        type("txtDataEle", election.before.date);
    }
    void chooseSecond() { chooseIndex("List1", 1); }
    /// Up to the removal of the second.
    void prepare() {
        identify();
        click("cmdRicerca");
        chooseSecond();
        desk.told.clear();
    }
    std::string stored(std::string_view name) { return contentOf(disk, election.before.path(name)); }
    [[nodiscard]] bool isDone() const { return screen->Label9.text().empty(); }
    [[nodiscard]] bool showsSmallerStaff() const {
        return screen->List1.items().size() == static_cast<std::size_t>(election.before.numDip - 1);
    }
};

/// The employees, the limits, and the two files of the late periods; `noFile` for a period that is not there.
using Files = std::array<std::string, 4>;
Files filesOf(Stage& stage) {
    return {stage.stored(std::string(stage.election.before.date) + ".vbn"), stage.stored("Meirin.vbn"),
            stage.stored("Quartum.vbn"), stage.stored("Pentium.vbn")};
}
Files laidOut(const LaidElection& election, const std::vector<LaidPerson>& staff, std::size_t limits) {
    const auto late = [&](int period) {
        return election.periods() >= period ? laidLateStaff(election, period, staff) : std::string(noFile);
    };
    return {laidStaff(election, staff), laidMeirin(election).substr(0, limits), late(4), late(5)};
}
Files before(const Stage& stage) { return laidOut(stage.election.before, stage.election.staff(), 86); }
Files after(const Stage& stage) { return laidOut(stage.election.after, stage.election.left(), 62); }

void expectFiles(Stage& stage, const Files& expected) {
    const Files now = filesOf(stage);
    for (std::size_t at = 0; at < now.size(); ++at) EXPECT_EQ(toHex(now[at]), toHex(expected[at])) << at;
    for (const char* name : {"Reverse.vbn", "RevMeirin.vbn", "RQuartum.vbn", "RPentium.vbn"})
        EXPECT_EQ(stage.stored(name), noFile) << name;
}
void expectWhole(Stage& stage) {
    const Files now = filesOf(stage);
    const Files was = before(stage);
    const Files will = after(stage);
    for (std::size_t at = 0; at < now.size(); ++at) EXPECT_THAT(now[at], AnyOf(was[at], will[at])) << at;
}

class EliminaGuasti : public ::testing::TestWithParam<Case> {
  protected:
    static int operationsOfRemoval() {
        Stage stage(GetParam());
        stage.prepare();
        const int all = operationsOf(stage.failing, [&] { stage.click("cmdElimina"); });
        EXPECT_THAT(stage.desk.told, ElementsAre("Cancellazione Dipendente"));
        expectFiles(stage, after(stage));
        return all;
    }
    static FaultCase inTable() { return {"frmElimina.cmdElimina", GetParam().name}; }
};

TEST_P(EliminaGuasti, OneFailureIsToldAndTheCommandGivenAgainEndsIt) {
    const int all = operationsOfRemoval();
    ASSERT_GE(all, 12);
    int failed = 0;
    atEveryOperation(inTable(), all, [&](int n) {
        Stage stage(GetParam());
        stage.prepare();
        failingOnce(stage.failing, n, [&] { stage.click("cmdElimina"); });
        expectWhole(stage);
        if (!stage.isDone()) {
            ++failed;
            EXPECT_THAT(stage.desk.told, ElementsAre("Errore"));
            EXPECT_FALSE(stage.control("List1").isOperable()) << "its numbers may no longer be those of the file";
            EXPECT_TRUE(stage.control("cmdRiavvia").isOperable());
            stage.click("cmdElimina");
        }
        EXPECT_TRUE(stage.isDone());
        EXPECT_THAT(stage.desk.told, Contains("Cancellazione Dipendente"));
        expectFiles(stage, after(stage));
    });
    EXPECT_GE(failed, 8);
}

TEST_P(EliminaGuasti, AfterAFailureANewSearchFindsTheElectionOldOrNew) {
    const int all = operationsOfRemoval();
    atEveryOperation(inTable(), all, [&](int n) {
        Stage stage(GetParam());
        stage.prepare();
        failingOnce(stage.failing, n, [&] { stage.click("cmdElimina"); });
        if (stage.isDone()) return;
        stage.click("cmdRiavvia");
        stage.identify();
        stage.click("cmdRicerca");
        expectFiles(stage, stage.showsSmallerStaff() ? after(stage) : before(stage));
        EXPECT_TRUE(stage.control("List1").isOperable());
    });
}

TEST_P(EliminaGuasti, AfterAPowerCutEachFileIsWholeAndTheSearchFindsOneState) {
    const int all = operationsOfRemoval();
    atEveryOperation(inTable(), all, [&](int n) {
        Stage stage(GetParam());
        stage.prepare();
        cuttingPower(stage.failing, stage.disk, n, [&] { stage.click("cmdElimina"); });
        expectWhole(stage);
        stage.desk.told.clear();
        stage.openScreen();
        stage.identify();
        stage.click("cmdRicerca");
        EXPECT_THAT(stage.desk.told, IsEmpty());
        expectFiles(stage, stage.showsSmallerStaff() ? after(stage) : before(stage));
    });
}

TEST_P(EliminaGuasti, ADiskThatTakesNothingMoreIsToldAndNothingIsLost) {
    Stage stage(GetParam());
    stage.prepare();
    stage.failing.stopAt(1);
    for (int tries = 0; tries < 3; ++tries) stage.click("cmdElimina");
    EXPECT_THAT(stage.desk.told, ElementsAre("Errore", "Errore", "Errore"));
    stage.failing.stopAt(0);
    expectFiles(stage, before(stage));
    stage.click("cmdElimina");
    expectFiles(stage, after(stage));
}

INSTANTIATE_TEST_SUITE_P(Of, EliminaGuasti, ::testing::Values(ofFivePeriods(), ofThreePeriods()),
                         [](const auto& one) { return std::string(one.param.name); });

/// What only reads: a failure is told and leaves the screen where it was.
template <class Prepare, class Act, class Through>
void everyFailureIsTold(const char* command, const Prepare& prepare, const Act& act, const Through& isThrough) {
    const Case election = ofFivePeriods();
    int all = 0;
    {
        Stage stage(election);
        prepare(stage);
        all = operationsOf(stage.failing, [&] { act(stage); });
        ASSERT_TRUE(isThrough(stage));
    }
    ASSERT_GE(all, 2);
    int failed = 0;
    atEveryOperation({std::string("frmElimina.") + command, "reads"}, all, [&](int n) {
        Stage stage(election);
        prepare(stage);
        failingOnce(stage.failing, n, [&] { act(stage); });
        expectFiles(stage, before(stage));
        if (isThrough(stage)) return;
        ++failed;
        EXPECT_THAT(stage.desk.told, ElementsAre("Errore"));
        EXPECT_THAT(stage.desk.words, Not(Contains("Tipo di elezione inesistente")));
        EXPECT_FALSE(stage.control("cmdElimina").isOperable());
        act(stage);
        EXPECT_TRUE(isThrough(stage));
    });
    EXPECT_GE(failed, 2);
}

TEST(EliminaLetture, AStoredElectionIsNeverTakenForAMissingOne) {
    everyFailureIsTold(
        "cmdRicerca", [](Stage& stage) { stage.identify(); }, [](Stage& stage) { stage.click("cmdRicerca"); },
        [](Stage& stage) { return stage.screen->List1.items().size() == 6; });
}

TEST(EliminaLetture, AChosenNameWaitsForTheDisk) {
    everyFailureIsTold(
        "List1",
        [](Stage& stage) {
            stage.identify();
            stage.click("cmdRicerca");
        },
        [](Stage& stage) { stage.chooseSecond(); }, [](Stage& stage) { return stage.screen->cmdElimina.enabled(); });
}

}  // namespace
}  // namespace vorbano::test
