// The disk fails once or stops for good at every operation of a call and of a save: each file is whole afterwards, old
// or new, what failed is told, what was typed stays, and the same command once more stores all.

#include "statement_desk.h"
#include "storage/failing_file_system.h"

namespace vorbano::test {
namespace {

using ::testing::AnyOf;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

class TellingDesk : public ScriptedDesktop {
  public:
    std::vector<std::string> told;  ///< titles
    void tell(const Message& message) override { told.push_back(message.title); }
};

/// A fresh disk with an election of all three files.
template <class ScreenType>
struct Stage {
    static constexpr const char* type = "Provinciali_Comunali";
    MemoryFileSystem disk;
    FailingFileSystem failing{disk};
    TellingDesk desk;
    MemoryDatabase staging{stagingTables()};
    MemoryDatabase places{placeTables()};
    RecordingPrintEngine printing;
    OpenedScreens screens;
    ScreenType screen{Workplace{failing, desk, staging, printing, screens, places}};

    Stage() {
        layCosts(disk, type, someDay);
        if constexpr (std::is_same_v<ScreenType, frmModRend>) {
            EXPECT_TRUE(lay(disk, path("Rendi.vbn"), nuls(152)));
            EXPECT_TRUE(lay(disk, path("Tprov.vbn"), nuls(16)));
            EXPECT_TRUE(lay(disk, path("DivSt.vbn"), nuls(16)));
        }
        screen.Combo1.items = TipoElezioni(disk);
        desk.open(screen.form);
        EXPECT_EQ(clerk().choose(control("Combo1"), type), Refusal::none);
        EXPECT_EQ(clerk().choose(control("Combo2"), someDay), Refusal::none);
    }
    Stage(const Stage&) = delete;
    Stage& operator=(const Stage&) = delete;
    ~Stage() { desk.shut(screen.form); }

    static std::string path(std::string_view name) { return statementPath(type, someDay, name); }
    Control& control(const char* name) { return *screen.form.find(name); }
    Operator clerk() { return Operator(screen.form); }
    Refusal call() {
        const bool entry = std::is_same_v<ScreenType, frmInsRend>;
        return clerk().click(control(entry ? "cmdAnteprima" : "cmdRicerca"));
    }
    void fill() {
        if constexpr (std::is_same_v<ScreenType, frmModRend>) {
            EXPECT_EQ(clerk().tick(control("Check1"), true), Refusal::none);
        }
        int cents = 1;
        for (const char* name :
             {"txtMagMis", "txtTotComune", "txtTotProv", "txtTrasporti", "txtMissioni", "txtAcconti"})
            EXPECT_EQ(clerk().type(control(name), "1,0" + std::to_string(cents++)), Refusal::none) << name;
        clerk().leave();
    }
    void save() { EXPECT_EQ(clerk().click(control("cmdSalva")), Refusal::none); }
    std::string at(std::string_view name) { return toHex(contentOf(disk, path(name))); }
};

/// 420,75 + 635,24 + 178,50 + 1,04 + 1,05 of the entry; the correction begins with nothing.
template <class ScreenType>
std::string savedRendi() {
    if constexpr (std::is_same_v<ScreenType, frmInsRend>)
        return laidRendi({42075, 63524, 17850, 0, 0, 0, 0, 104, 0, 0, 0, 105, 123658, 106, 123552, 0, 0, 0, 0});
    return laidRendi({0, 0, 0, 0, 0, 0, 0, 104, 0, 0, 0, 105, 209, 106, 103, 0, 0, 0, 0});
}
const std::string savedTprov = toHex(amount(1, 3) + amount(1, 1));
const std::string savedDivSt = toHex(amount(0) + amount(1, 2));

template <class ScreenType>
class Faults : public ::testing::Test {
  protected:
    static constexpr bool entry = std::is_same_v<ScreenType, frmInsRend>;
    /// Operations of a save without a fault.
    static int operationsOfASave() {
        Stage<ScreenType> stage;
        EXPECT_EQ(stage.call(), Refusal::none);
        stage.fill();
        stage.failing.failOnce(0);
        stage.save();
        EXPECT_THAT(stage.desk.told, ElementsAre("Rendiconto"));
        EXPECT_EQ(stage.at("Rendi.vbn"), toHex(savedRendi<ScreenType>()));
        EXPECT_EQ(stage.at("Tprov.vbn"), savedTprov);
        EXPECT_EQ(stage.at("DivSt.vbn"), savedDivSt);
        return stage.failing.operations();
    }
    static void expectOldOrNew(Stage<ScreenType>& stage, const char* name, const std::string& saved) {
        const std::string none = toHex(noFile);
        const std::string zeros = toHex(nuls(std::string_view(name) == "Rendi.vbn" ? 152 : 16));
        EXPECT_THAT(stage.at(name), AnyOf(saved, entry ? none : zeros, entry ? std::string() : zeros)) << name;
    }
};
using Screens = ::testing::Types<frmInsRend, frmModRend>;
TYPED_TEST_SUITE(Faults, Screens);

TYPED_TEST(Faults, OfASaveLeaveWholeFilesAndTheTypedLines) {
    const int operations = TestFixture::operationsOfASave();
    ASSERT_GT(operations, 6);
    for (const bool forGood : {false, true}) {
        for (int n = 1; n <= operations; ++n) {
            SCOPED_TRACE((forGood ? "stopped at " : "failed at ") + std::to_string(n));
            Stage<TypeParam> stage;
            ASSERT_EQ(stage.call(), Refusal::none);
            stage.fill();
            if (forGood) {
                stage.failing.stopAt(n);
            } else {
                stage.failing.failOnce(n);
            }
            stage.save();
            EXPECT_THAT(stage.desk.told, ElementsAre("Errore"));
            this->expectOldOrNew(stage, "Rendi.vbn", toHex(savedRendi<TypeParam>()));
            this->expectOldOrNew(stage, "Tprov.vbn", savedTprov);
            this->expectOldOrNew(stage, "DivSt.vbn", savedDivSt);
            EXPECT_EQ(stage.screen.txtTrasporti.text(), "1,04");
            EXPECT_EQ(stage.screen.txtTotProv.text(), "1,03");
            EXPECT_TRUE(stage.screen.cmdSalva.isEnabled());
            EXPECT_FALSE(stage.screen.Combo1.isEnabled());
            stage.failing.failOnce(0);
            stage.desk.told.clear();
            stage.save();
            EXPECT_THAT(stage.desk.told, ElementsAre("Rendiconto"));
            EXPECT_EQ(stage.at("Rendi.vbn"), toHex(savedRendi<TypeParam>()));
            EXPECT_EQ(stage.at("Tprov.vbn"), savedTprov);
            EXPECT_EQ(stage.at("DivSt.vbn"), savedDivSt);
        }
    }
}

TYPED_TEST(Faults, OfACallAreToldAndOpenNothing) {
    int operations = 0;
    {
        Stage<TypeParam> stage;
        stage.failing.failOnce(0);
        ASSERT_EQ(stage.call(), Refusal::none);
        EXPECT_THAT(stage.desk.told, IsEmpty());
        operations = stage.failing.operations();
    }
    ASSERT_GT(operations, 20);
    int told = 0;
    for (int n = 1; n <= operations; ++n) {
        SCOPED_TRACE(n);
        Stage<TypeParam> stage;
        stage.failing.stopAt(n);
        ASSERT_EQ(stage.call(), Refusal::none);
        ASSERT_THAT(stage.desk.told, AnyOf(ElementsAre("Errore"), ElementsAre("Rendiconto")));
        told += stage.desk.told.front() == "Rendiconto" ? 1 : 0;
        EXPECT_FALSE(stage.screen.cmdSalva.isEnabled());
        EXPECT_FALSE(stage.screen.txtTrasporti.isEnabled());
        EXPECT_EQ(stage.screen.txtOnorari.text(), "");
        stage.failing.failOnce(0);
        ASSERT_EQ(stage.call(), Refusal::none);
        EXPECT_EQ(stage.desk.told.size(), 1U);
        EXPECT_NE(stage.screen.txtOnorari.text(), "");
    }
    EXPECT_GT(told, 3) << "the overtime has words of its own";
}

}  // namespace
}  // namespace vorbano::test
