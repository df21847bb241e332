// The disk fails once or stops for good at every operation: Versum.vbn is old or new, never half; what failed is told;
// the same command once more ends what was begun.

#include "storage/failing_file_system.h"
#include "versamenti_desk.h"

namespace vorbano::test {
namespace {

using ::testing::AnyOf;
using ::testing::Contains;
using ::testing::IsEmpty;
using ::testing::Not;

/// Says yes to every question and remembers what was told.
class AgreeingDesk : public ScriptedDesktop {
  public:
    std::vector<std::string> told;  ///< titles
    void tell(const Message& message) override { told.push_back(message.title); }
    bool ask(const Message&) override { return true; }
};

struct Stage {
    MemoryFileSystem disk;
    FailingFileSystem failing{disk};
    AgreeingDesk desk;
    MemoryDatabase staging{stagingTables()};
    MemoryDatabase places{placeTables()};
    RecordingPrintEngine printing;
    OpenedScreens screens;
    frmVersamenti screen{Workplace{failing, desk, staging, printing, screens, places}};

    explicit Stage(const std::vector<LaidDocument>& documents) {
        layPayments(disk, documents);
        // The screen was made before its disk was laid.
        screen.Combo1.items = Lines{"Europee"};
        desk.open(screen.form);
        Operator clerk(screen.form);
        EXPECT_EQ(clerk.choose(screen.Combo1, "Europee"), Refusal::none);
        EXPECT_EQ(clerk.choose(screen.Combo2, "09-06-24"), Refusal::none);
    }
    Stage(const Stage&) = delete;
    Stage& operator=(const Stage&) = delete;
    ~Stage() { desk.shut(screen.form); }
    void click(Control& control) { EXPECT_EQ(Operator(screen.form).click(control), Refusal::none) << control.name(); }
    void tick(Control& control) {
        EXPECT_EQ(Operator(screen.form).tick(control, true), Refusal::none) << control.name();
    }
    void type(Control& control, std::string_view words) {
        EXPECT_EQ(Operator(screen.form).type(control, words), Refusal::none) << control.name();
    }
    std::string stored(std::string_view name = "Versum.vbn") { return contentOf(disk, paymentPath(name)); }
};

LaidDocument of(LaidDocument document, int cents) {
    document.cents = cents;
    return document;
}
const std::vector<LaidDocument> differing = {of(mandate1, 1), of(mandate2, 2), of(irpefForm, 3), inpsForm};
const std::vector<LaidDocument> inLine = {mandate1, mandate2, irpefForm, inpsForm};

enum class Fault { once, stop };
class VersamentiGuasti : public ::testing::TestWithParam<Fault> {
  protected:
    static void strike(Stage& stage, int n) {
        GetParam() == Fault::once ? stage.failing.failOnce(n) : stage.failing.stopAt(n);
    }
};
INSTANTIATE_TEST_SUITE_P(Both, VersamentiGuasti, ::testing::Values(Fault::once, Fault::stop));

TEST_P(VersamentiGuasti, TheSearchLeavesTheDocumentsOldOrNew) {
    int all = 0;
    {
        Stage stage(differing);
        stage.failing.failOnce(0);
        stage.click(stage.screen.cmdAnteprima);
        EXPECT_EQ(toHex(stage.stored()), toHex(laidDocuments(inLine)));
        all = stage.failing.operations();
    }
    ASSERT_GE(all, 10);
    for (int n = 1; n <= all; ++n) {
        SCOPED_TRACE(n);
        Stage stage(differing);
        strike(stage, n);
        stage.click(stage.screen.cmdAnteprima);
        EXPECT_THAT(stage.stored(), AnyOf(laidDocuments(differing), laidDocuments(inLine)));
        if (stage.screen.cmdInserire.enabled()) continue;
        EXPECT_THAT(stage.desk.told, Not(IsEmpty()));
        stage.failing.failOnce(0);
        stage.click(stage.screen.cmdAnteprima);
        EXPECT_EQ(toHex(stage.stored()), toHex(laidDocuments(inLine)));
        EXPECT_EQ(stage.stored("Reversum.vbn"), noFile);
        EXPECT_TRUE(stage.screen.cmdInserire.enabled());
    }
}

TEST_P(VersamentiGuasti, TheRemovalLeavesTheDocumentsOldOrNew) {
    const std::vector<LaidDocument> before = {mandate1, mandate2, mandate1, irpefForm};
    const std::vector<LaidDocument> after = {mandate2, irpefForm};
    const auto prepare = [](Stage& stage) {
        stage.click(stage.screen.cmdAnteprima);
        stage.click(stage.screen.cmdVisualizza);
        EXPECT_EQ(Operator(stage.screen.form).chooseIndex(stage.screen.List1, 2), Refusal::none);
        EXPECT_EQ(stage.screen.Label15.text(), "1");
        stage.desk.told.clear();
    };
    int all = 0;
    {
        Stage stage(before);
        prepare(stage);
        stage.failing.failOnce(0);
        stage.click(stage.screen.cmdElimina);
        EXPECT_EQ(toHex(stage.stored()), toHex(laidDocuments(after)));
        all = stage.failing.operations();
    }
    ASSERT_GE(all, 6);
    for (int n = 1; n <= all; ++n) {
        SCOPED_TRACE(n);
        Stage stage(before);
        prepare(stage);
        strike(stage, n);
        stage.click(stage.screen.cmdElimina);
        EXPECT_THAT(stage.stored(), AnyOf(laidDocuments(before), laidDocuments(after)));
        EXPECT_THAT(stage.desk.told, Contains("Errore"));
        stage.failing.failOnce(0);
        stage.click(stage.screen.cmdElimina);
        EXPECT_EQ(toHex(stage.stored()), toHex(laidDocuments(after)));
        EXPECT_EQ(stage.stored("Reversum.vbn"), noFile);
    }
}

TEST_P(VersamentiGuasti, ADocumentThatIsNotStoredIsToldAndCanBeStoredAgain) {
    const auto prepare = [](Stage& stage) {
        stage.click(stage.screen.cmdAnteprima);
        stage.click(stage.screen.cmdInserire);
        stage.tick(stage.screen.Check1);
        stage.tick(stage.screen.Check6);
        stage.tick(stage.screen.Check9);
        stage.type(stage.screen.txtMnumero, "102");
        stage.type(stage.screen.txtMdata, "02/07/24");
        stage.desk.told.clear();
    };
    int all = 0;
    {
        Stage stage({mandate1});
        prepare(stage);
        stage.failing.failOnce(0);
        stage.click(stage.screen.cmdSalva);
        all = stage.failing.operations();
    }
    ASSERT_GE(all, 3);
    for (int n = 1; n <= all; ++n) {
        SCOPED_TRACE(n);
        Stage stage({mandate1});
        prepare(stage);
        strike(stage, n);
        stage.click(stage.screen.cmdSalva);
        EXPECT_THAT(stage.desk.told, Contains("Errore"));
        EXPECT_THAT(stage.stored(), AnyOf(laidDocuments({mandate1}), laidDocuments({mandate1, mandate2})));
        EXPECT_TRUE(stage.screen.cmdSalva.isOperable());
        EXPECT_EQ(stage.screen.txtMnumero.text(), "102");
    }
}

TEST_P(VersamentiGuasti, AmountsThatAreNotStoredStayOpen) {
    const auto prepare = [](Stage& stage) {
        stage.click(stage.screen.cmdAnteprima);
        stage.click(stage.screen.cmdInserire);
        stage.tick(stage.screen.Check5);
        stage.tick(stage.screen.Check13);
        stage.type(stage.screen.txtIrpef, "99,90");
        stage.desk.told.clear();
    };
    for (int n = 1; n <= 4; ++n) {
        SCOPED_TRACE(n);
        Stage stage({mandate1});
        prepare(stage);
        strike(stage, n);
        stage.click(stage.screen.cmdSalvaII);
        EXPECT_THAT(stage.desk.told, Contains("Errore"));
        EXPECT_TRUE(stage.screen.txtIrpef.isOperable());
        EXPECT_EQ(stage.screen.txtIrpef.text(), "99,90");
        EXPECT_THAT(stage.stored("Meirin.vbn"), AnyOf(laidMeirin(123456, 7890, 0), laidMeirin(9990, 7890, 0)));
    }
}

}  // namespace
}  // namespace vorbano::test
