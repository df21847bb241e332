// The disk fails once or stops for good at every operation of the removal: each file is whole afterwards, old or new;
// what failed is told; the same command once more, or a new search, brings the election to one state, and nobody else
// is removed.

#include "removal_desk.h"
#include "storage/failing_file_system.h"

namespace vorbano::test {
namespace {

using ::testing::AnyOf;
using ::testing::Contains;
using ::testing::ElementsAre;
using ::testing::IsEmpty;
using ::testing::Not;

/// Says yes to every question and remembers what was told.
class AgreeingDesk : public ScriptedDesktop {
  public:
    std::vector<std::string> told;  ///< titles
    std::vector<std::string> words;
    void tell(const Message& message) override {
        told.push_back(message.title);
        words.push_back(message.text);
    }
    bool ask(const Message&) override { return true; }
};

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
struct Stage {
    const Case& election;
    MemoryFileSystem disk;
    FailingFileSystem failing{disk};
    AgreeingDesk desk;
    MemoryDatabase staging{stagingTables()};
    MemoryDatabase places{placeTables()};
    RecordingPrintEngine printing;
    OpenedScreens screens;
    std::unique_ptr<frmElimina> screen;

    explicit Stage(const Case& laid) : election(laid) {
        layElection(disk, election.before, election.staff());
        open();
    }
    Stage(const Stage&) = delete;
    Stage& operator=(const Stage&) = delete;
    ~Stage() { desk.shut(screen->form); }
    void open() {
        if (screen) desk.shut(screen->form);
        screen = std::make_unique<frmElimina>(Workplace{failing, desk, staging, printing, screens, places});
        desk.open(screen->form);
    }
    Control& control(const std::string& name) { return *screen->form.find(name); }
    Operator clerk() { return Operator(screen->form); }
    void identify() {
        EXPECT_EQ(clerk().choose(control("Combo1"), election.before.type), Refusal::none);
        EXPECT_EQ(clerk().type(control("txtDataEle"), election.before.date), Refusal::none);
    }
    void click(const char* name) { EXPECT_EQ(clerk().click(control(name)), Refusal::none) << name; }
    void chooseSecond() { EXPECT_EQ(clerk().chooseIndex(control("List1"), 1), Refusal::none); }
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
        stage.failing.failOnce(0);
        stage.click("cmdElimina");
        EXPECT_THAT(stage.desk.told, ElementsAre("Cancellazione Dipendente"));
        expectFiles(stage, after(stage));
        return stage.failing.operations();
    }
};

TEST_P(EliminaGuasti, OneFailureIsToldAndTheCommandGivenAgainEndsIt) {
    const int all = operationsOfRemoval();
    ASSERT_GE(all, 12);
    int failed = 0;
    for (int n = 1; n <= all; ++n) {
        SCOPED_TRACE(n);
        Stage stage(GetParam());
        stage.prepare();
        stage.failing.failOnce(n);
        stage.click("cmdElimina");
        stage.failing.failOnce(0);
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
    }
    EXPECT_GE(failed, 8);
}

TEST_P(EliminaGuasti, AfterAFailureANewSearchFindsTheElectionOldOrNew) {
    const int all = operationsOfRemoval();
    for (int n = 1; n <= all; ++n) {
        SCOPED_TRACE(n);
        Stage stage(GetParam());
        stage.prepare();
        stage.failing.failOnce(n);
        stage.click("cmdElimina");
        stage.failing.failOnce(0);
        if (stage.isDone()) continue;
        stage.click("cmdRiavvia");
        stage.identify();
        stage.click("cmdRicerca");
        expectFiles(stage, stage.showsSmallerStaff() ? after(stage) : before(stage));
        EXPECT_TRUE(stage.control("List1").isOperable());
    }
}

TEST_P(EliminaGuasti, AfterAPowerCutEachFileIsWholeAndTheSearchFindsOneState) {
    const int all = operationsOfRemoval();
    for (int n = 1; n <= all; ++n) {
        SCOPED_TRACE(n);
        Stage stage(GetParam());
        stage.prepare();
        stage.failing.stopAt(n);
        stage.click("cmdElimina");
        stage.failing.stopAt(0);
        stage.disk.cutPower();
        expectWhole(stage);
        stage.desk.told.clear();
        stage.open();
        stage.identify();
        stage.click("cmdRicerca");
        EXPECT_THAT(stage.desk.told, IsEmpty());
        expectFiles(stage, stage.showsSmallerStaff() ? after(stage) : before(stage));
    }
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
void everyFailureIsTold(const Prepare& prepare, const Act& act, const Through& isThrough) {
    const Case election = ofFivePeriods();
    int all = 0;
    {
        Stage stage(election);
        prepare(stage);
        stage.failing.failOnce(0);
        act(stage);
        all = stage.failing.operations();
        ASSERT_TRUE(isThrough(stage));
    }
    ASSERT_GE(all, 2);
    int failed = 0;
    for (int n = 1; n <= all; ++n) {
        SCOPED_TRACE(n);
        Stage stage(election);
        prepare(stage);
        stage.failing.failOnce(n);
        act(stage);
        stage.failing.failOnce(0);
        expectFiles(stage, before(stage));
        if (isThrough(stage)) continue;
        ++failed;
        EXPECT_THAT(stage.desk.told, ElementsAre("Errore"));
        EXPECT_THAT(stage.desk.words, Not(Contains("Tipo di elezione inesistente")));
        EXPECT_FALSE(stage.control("cmdElimina").isOperable());
        act(stage);
        EXPECT_TRUE(isThrough(stage));
    }
    EXPECT_GE(failed, 2);
}

TEST(EliminaLetture, AStoredElectionIsNeverTakenForAMissingOne) {
    everyFailureIsTold([](Stage& stage) { stage.identify(); }, [](Stage& stage) { stage.click("cmdRicerca"); },
                       [](Stage& stage) { return stage.screen->List1.items().size() == 6; });
}

TEST(EliminaLetture, AChosenNameWaitsForTheDisk) {
    everyFailureIsTold(
        [](Stage& stage) {
            stage.identify();
            stage.click("cmdRicerca");
        },
        [](Stage& stage) { stage.chooseSecond(); }, [](Stage& stage) { return stage.screen->cmdElimina.enabled(); });
}

}  // namespace
}  // namespace vorbano::test
