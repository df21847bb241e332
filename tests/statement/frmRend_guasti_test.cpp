// The disk fails once or stops for good at every operation of a call and of a save: each file is whole afterwards, old
// or new, what failed is told, what was typed stays, and the same command once more stores all.

#include "statement_desk.h"
#include "support/fault_stage.h"

namespace vorbano::test {
namespace {

using ::testing::AnyOf;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

/// A fresh disk with an election of all three files.
template <class ScreenType>
struct Stage : FaultStage<ScreenType> {
    static constexpr const char* electionType = "Provinciali_Comunali";
    static constexpr bool entry = std::is_same_v<ScreenType, frmInsRend>;
    using FaultStage<ScreenType>::disk;

    Stage() {
        layCosts(disk, electionType, someDay);
        if constexpr (std::is_same_v<ScreenType, frmModRend>) {
            EXPECT_TRUE(lay(disk, path("Rendi.vbn"), nuls(152)));
            EXPECT_TRUE(lay(disk, path("Tprov.vbn"), nuls(16)));
            EXPECT_TRUE(lay(disk, path("DivSt.vbn"), nuls(16)));
        }
        this->openScreen();
        this->choose("Combo1", electionType);
        this->choose("Combo2", someDay);
    }

    static std::string path(std::string_view name) { return statementPath(electionType, someDay, name); }
    Refusal call() { return this->clerk().click(this->control(entry ? "cmdAnteprima" : "cmdRicerca")); }
    void fill() {
        if (!entry) this->tick("Check1");
        int cents = 1;
        for (const char* name :
             {"txtMagMis", "txtTotComune", "txtTotProv", "txtTrasporti", "txtMissioni", "txtAcconti"})
            this->type(name, "1,0" + std::to_string(cents++));
        this->leave();
    }
    void save() { this->click("cmdSalva"); }
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
    static constexpr bool entry = Stage<ScreenType>::entry;
    static FaultCase inTable(const char* entering, const char* correcting, const char* what) {
        return {entry ? std::string("frmInsRend.") + entering : std::string("frmModRend.") + correcting, what};
    }
    /// Operations of a save without a fault.
    static int operationsOfASave() {
        Stage<ScreenType> stage;
        EXPECT_EQ(stage.call(), Refusal::none);
        stage.fill();
        const int all = operationsOf(stage.failing, [&] { stage.save(); });
        EXPECT_THAT(stage.desk.told, ElementsAre("Rendiconto"));
        EXPECT_EQ(stage.at("Rendi.vbn"), toHex(savedRendi<ScreenType>()));
        EXPECT_EQ(stage.at("Tprov.vbn"), savedTprov);
        EXPECT_EQ(stage.at("DivSt.vbn"), savedDivSt);
        return all;
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
        atEveryOperation(this->inTable("cmdSalva", "cmdSalva", "three files"), operations, [&](int n) {
            SCOPED_TRACE(forGood ? "stopped" : "failed");
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
            EXPECT_EQ(stage.screen->txtTrasporti.text(), "1,04");
            EXPECT_EQ(stage.screen->txtTotProv.text(), "1,03");
            EXPECT_TRUE(stage.screen->cmdSalva.isEnabled());
            EXPECT_FALSE(stage.screen->Combo1.isEnabled());
            stage.failing.failOnce(0);
            stage.desk.told.clear();
            stage.save();
            EXPECT_THAT(stage.desk.told, ElementsAre("Rendiconto"));
            EXPECT_EQ(stage.at("Rendi.vbn"), toHex(savedRendi<TypeParam>()));
            EXPECT_EQ(stage.at("Tprov.vbn"), savedTprov);
            EXPECT_EQ(stage.at("DivSt.vbn"), savedDivSt);
        });
    }
}

TYPED_TEST(Faults, OfASaveWithThePowerCutLeaveWholeFiles) {
    atEveryOperation(this->inTable("cmdSalva", "cmdSalva", "three files"), TestFixture::operationsOfASave(),
                     [&](int n) {
                         Stage<TypeParam> stage;
                         ASSERT_EQ(stage.call(), Refusal::none);
                         stage.fill();
                         cuttingPower(stage.failing, stage.disk, n, [&] { stage.save(); });
                         this->expectOldOrNew(stage, "Rendi.vbn", toHex(savedRendi<TypeParam>()));
                         this->expectOldOrNew(stage, "Tprov.vbn", savedTprov);
                         this->expectOldOrNew(stage, "DivSt.vbn", savedDivSt);
                     });
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
    atEveryOperation(this->inTable("cmdAnteprima", "cmdRicerca", "reads"), operations, [&](int n) {
        Stage<TypeParam> stage;
        stage.failing.stopAt(n);
        ASSERT_EQ(stage.call(), Refusal::none);
        ASSERT_THAT(stage.desk.told, AnyOf(ElementsAre("Errore"), ElementsAre("Rendiconto")));
        told += stage.desk.told.front() == "Rendiconto" ? 1 : 0;
        EXPECT_FALSE(stage.screen->cmdSalva.isEnabled());
        EXPECT_FALSE(stage.screen->txtTrasporti.isEnabled());
        EXPECT_EQ(stage.screen->txtOnorari.text(), "");
        stage.failing.failOnce(0);
        ASSERT_EQ(stage.call(), Refusal::none);
        EXPECT_EQ(stage.desk.told.size(), 1U);
        EXPECT_NE(stage.screen->txtOnorari.text(), "");
    });
    EXPECT_GT(told, 3) << "the overtime has words of its own";
}

}  // namespace
}  // namespace vorbano::test
