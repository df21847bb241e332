// The disk fails once or stops for good at every operation: the documents are old or new, never half; what failed is
// told; the same command once more ends what was begun. So it is with the payments of the liquidation and with those of
// the adjustment, and whatever happens to the ones, the others stay.

#include <functional>
#include <tuple>

#include "support/fault_stage.h"
#include "versamenti_desk.h"

namespace vorbano::test {
namespace {

using ::testing::AnyOf;
using ::testing::Contains;
using ::testing::IsEmpty;
using ::testing::Not;

struct Stage : FaultStage<frmVersamenti> {
    PaymentSet set;

    explicit Stage(const std::vector<LaidDocument>& documents, PaymentSet payments = PaymentSet::liquidation)
        : set(payments) {
        if (set == PaymentSet::adjustment) {
            layPayments(disk, {mandate1});
            layAdjustment(disk, documents);
        } else {
            layPayments(disk, documents);
        }
        openScreen();
        choose("Combo1", "Europee");
        choose("Combo2", "09-06-24");
    }
    /// Calls up the payments of the set.
    void search() {
        click("cmdAnteprima");
        if (set == PaymentSet::adjustment) click("cmdConguaglio");
    }
    std::string stored(std::string_view name) { return contentOf(disk, paymentPath(name)); }
    std::string storedDocuments() { return stored(documentsFile(set)); }
    /// The record with the amounts that are typed.
    std::string storedAmounts() { return stored(set == PaymentSet::adjustment ? meirincFile : meirinFile); }
    /// The payments that are not on show are as they were laid.
    void expectOthersUntouched() {
        if (set == PaymentSet::liquidation) {
            EXPECT_EQ(stored(versumcFile), noFile);
            return;
        }
        EXPECT_EQ(toHex(stored(versumFile)), toHex(laidDocuments({mandate1})));
        EXPECT_EQ(toHex(stored(meirinFile)), toHex(laidMeirin(123456, 7890, 0)));
    }
};

LaidDocument of(LaidDocument document, int cents) {
    document.cents = cents;
    return document;
}
const std::vector<LaidDocument> differing = {of(mandate1, 1), of(mandate2, 2), of(irpefForm, 3), inpsForm};
const std::vector<LaidDocument> inLine = {mandate1, mandate2, irpefForm, inpsForm};

class VersamentiGuasti : public ::testing::TestWithParam<std::tuple<Fault, PaymentSet>> {
  protected:
    using Step = std::function<void(Stage&)>;

    static PaymentSet set() { return std::get<PaymentSet>(GetParam()); }
    static bool adjusting() { return set() == PaymentSet::adjustment; }
    static LaidDocument first() { return adjusting() ? adjusted1 : mandate1; }
    static LaidDocument second() { return adjusting() ? adjusted2 : mandate2; }
    static LaidDocument inail() { return adjusting() ? adjustedInail : inailPaid; }
    static std::string amountsWith(int irpef, std::string_view inailOn = "        ") {
        return adjusting() ? laidMeirinc(irpef, 650, 410, inailOn) : laidMeirin(irpef, 7890, 0, inailOn);
    }
    static int irpef() { return adjusting() ? 32100 : 123456; }

    /// On a stage with these documents acts with a fault at each operation of the act in turn; there must be at least
    /// `atLeast` of them.
    static void atEachOperation(const char* command, int atLeast, const std::vector<LaidDocument>& documents,
                                const Step& prepare, const Step& act, const Step& check) {
        const auto prepared = [&](Stage& stage) {
            prepare(stage);
            stage.desk.told.clear();
        };
        int all = 0;
        {
            Stage stage(documents, set());
            prepared(stage);
            all = operationsOf(stage.failing, [&] { act(stage); });
        }
        ASSERT_GE(all, atLeast);
        const char* test = ::testing::UnitTest::GetInstance()->current_test_info()->name();
        atEveryOperation({std::string("frmVersamenti.") + command, test}, all, [&](int n) {
            Stage stage(documents, set());
            prepared(stage);
            strike(stage.failing, std::get<Fault>(GetParam()), n);
            act(stage);
            stage.expectOthersUntouched();
            check(stage);
        });
    }
};
using ::testing::Combine;
using ::testing::Values;
INSTANTIATE_TEST_SUITE_P(Both, VersamentiGuasti,
                         Combine(Values(Fault::once, Fault::forGood),
                                 Values(PaymentSet::liquidation, PaymentSet::adjustment)));

class RicercaGuasti : public VersamentiGuasti {};
INSTANTIATE_TEST_SUITE_P(Both, RicercaGuasti,
                         Combine(Values(Fault::once, Fault::forGood), Values(PaymentSet::liquidation)));

TEST_P(RicercaGuasti, TheSearchLeavesTheDocumentsOldOrNew) {
    const auto search = [](Stage& stage) { stage.click("cmdAnteprima"); };
    atEachOperation(
        "cmdAnteprima", 10, differing, [](Stage&) {}, search,
        [&](Stage& stage) {
            EXPECT_THAT(stage.storedDocuments(), AnyOf(laidDocuments(differing), laidDocuments(inLine)));
            if (stage.screen->cmdInserire.enabled()) return;
            EXPECT_THAT(stage.desk.told, Not(IsEmpty()));
            stage.failing.failOnce(0);
            search(stage);
            EXPECT_EQ(toHex(stage.storedDocuments()), toHex(laidDocuments(inLine)));
            EXPECT_EQ(stage.stored("Reversum.vbn"), noFile);
            EXPECT_TRUE(stage.screen->cmdInserire.enabled());
        });
}

class ConguaglioGuasti : public VersamentiGuasti {};
INSTANTIATE_TEST_SUITE_P(Both, ConguaglioGuasti,
                         Combine(Values(Fault::once, Fault::forGood), Values(PaymentSet::adjustment)));

/// The adjustment is on show from its label to its last amount, or the liquidation is.
void expectOnShow(Stage& stage, bool adjustment) {
    EXPECT_EQ(stage.screen->Label21.visible(), adjustment);
    EXPECT_EQ(stage.screen->cmdConguaglio.text(), adjustment ? "Annulla Conguaglio" : "Conguaglio");
    EXPECT_EQ(stage.screen->txtContrDip.text(), adjustment ? "4,44" : "19,03");
    EXPECT_EQ(stage.screen->Label4.text(), adjustment ? "8,9%" : "8,85%");
    EXPECT_EQ(stage.screen->txtIrpef.text(), adjustment ? "321,00" : "1.234,56");
    EXPECT_TRUE(stage.screen->cmdInserire.isOperable());
}

TEST_P(ConguaglioGuasti, TheWayInLeavesTheOneOrTheOtherOnShow) {
    atEachOperation(
        "cmdConguaglio", 6, {adjusted1}, [](Stage& stage) { stage.click("cmdAnteprima"); },
        [](Stage& stage) { stage.click("cmdConguaglio"); },
        [](Stage& stage) {
            EXPECT_THAT(stage.desk.told, Contains("Errore"));
            expectOnShow(stage, false);
            stage.failing.failOnce(0);
            stage.click("cmdConguaglio");
            expectOnShow(stage, true);
            EXPECT_EQ(toHex(stage.storedDocuments()), toHex(laidDocuments({adjusted1})));
        });
}

TEST_P(ConguaglioGuasti, TheWayBackLeavesTheOneOrTheOtherOnShow) {
    atEachOperation(
        "cmdConguaglio", 10, {adjusted1}, [](Stage& stage) { stage.search(); },
        [](Stage& stage) { stage.click("cmdConguaglio"); },
        [](Stage& stage) {
            const bool stayed = stage.screen->Label21.visible();
            expectOnShow(stage, stayed);
            if (!stayed) return;
            EXPECT_THAT(stage.desk.told, Not(IsEmpty()));
            stage.failing.failOnce(0);
            stage.click("cmdConguaglio");
            expectOnShow(stage, false);
            EXPECT_EQ(toHex(stage.storedDocuments()), toHex(laidDocuments({adjusted1})));
        });
}

TEST_P(VersamentiGuasti, TheRemovalLeavesTheDocumentsOldOrNew) {
    const LaidDocument irpef = adjusting() ? adjustedIrpef : irpefForm;
    const std::string before = laidDocuments({first(), second(), first(), irpef});
    const std::string after = laidDocuments({second(), irpef});
    atEachOperation(
        "cmdElimina", 6, {first(), second(), first(), irpef},
        [](Stage& stage) {
            stage.search();
            stage.click("cmdVisualizza");
            stage.chooseIndex("List1", 2);
            EXPECT_EQ(stage.screen->Label15.text(), "1");
        },
        [](Stage& stage) { stage.click("cmdElimina"); },
        [&](Stage& stage) {
            EXPECT_THAT(stage.storedDocuments(), AnyOf(before, after));
            EXPECT_THAT(stage.desk.told, Contains("Errore"));
            stage.failing.failOnce(0);
            stage.click("cmdElimina");
            EXPECT_EQ(toHex(stage.storedDocuments()), toHex(after));
            EXPECT_EQ(stage.stored("Reversum.vbn"), noFile);
            stage.expectOthersUntouched();
        });
}

TEST_P(VersamentiGuasti, ADocumentThatIsNotStoredIsToldAndCanBeStoredAgain) {
    atEachOperation(
        "cmdSalva", 3, {first()},
        [](Stage& stage) {
            stage.search();
            stage.click("cmdInserire");
            stage.tick("Check1");
            stage.tick("Check6");
            stage.tick("Check9");
            stage.type("txtMnumero", std::to_string(second().number));
            stage.type("txtMdata", second().date);
        },
        [](Stage& stage) { stage.click("cmdSalva"); },
        [](Stage& stage) {
            EXPECT_THAT(stage.desk.told, Contains("Errore"));
            EXPECT_THAT(stage.storedDocuments(), AnyOf(laidDocuments({first()}), laidDocuments({first(), second()})));
            EXPECT_TRUE(stage.screen->cmdSalva.isOperable());
            EXPECT_EQ(stage.screen->txtMnumero.text(), std::to_string(second().number));
        });
}

TEST_P(VersamentiGuasti, ADateThatIsNotKeptBesideItsAmountIsTold) {
    const std::string_view date = inail().date;
    atEachOperation(
        "cmdSalva", 6, {first()},
        [&](Stage& stage) {
            stage.search();
            stage.click("cmdInserire");
            stage.tick("Check11");
            stage.tick("Check12");
            stage.type("txtDatainail", date);
        },
        [](Stage& stage) { stage.click("cmdSalva"); },
        [&](Stage& stage) {
            EXPECT_THAT(stage.desk.told, Contains("Errore"));
            EXPECT_THAT(stage.storedDocuments(), AnyOf(laidDocuments({first()}), laidDocuments({first(), inail()})));
            EXPECT_THAT(stage.storedAmounts(), AnyOf(amountsWith(irpef()), amountsWith(irpef(), date)));
        });
}

TEST_P(VersamentiGuasti, AChangeIsStoredInItsPlaceOrTold) {
    LaidDocument changed = second();
    changed.number = 77;
    const std::string before = laidDocuments({first(), second()});
    const std::string after = laidDocuments({first(), changed});
    atEachOperation(
        "cmdSalva", 2, {first(), second()},
        [](Stage& stage) {
            stage.search();
            stage.click("cmdVisualizza");
            stage.chooseIndex("List1", 3);
            stage.click("cmdModifica");
            stage.type("txtMnumero", "77");
        },
        [](Stage& stage) { stage.click("cmdSalva"); },
        [&](Stage& stage) {
            EXPECT_THAT(stage.desk.told, Contains("Errore"));
            EXPECT_THAT(stage.storedDocuments(), AnyOf(before, after));
            stage.failing.failOnce(0);
            stage.click("cmdSalva");
            EXPECT_EQ(toHex(stage.storedDocuments()), toHex(after));
        });
}

TEST_P(VersamentiGuasti, AmountsThatAreNotStoredStayOpen) {
    atEachOperation(
        "cmdSalvaII", 4, {first()},
        [](Stage& stage) {
            stage.search();
            stage.click("cmdInserire");
            stage.tick("Check5");
            stage.tick("Check13");
            stage.type("txtIrpef", "99,90");
        },
        [](Stage& stage) { stage.click("cmdSalvaII"); },
        [](Stage& stage) {
            EXPECT_THAT(stage.desk.told, Contains("Errore"));
            EXPECT_TRUE(stage.screen->txtIrpef.isOperable());
            EXPECT_EQ(stage.screen->txtIrpef.text(), "99,90");
            EXPECT_THAT(stage.storedAmounts(), AnyOf(amountsWith(irpef()), amountsWith(9990)));
            stage.failing.failOnce(0);
            stage.click("cmdSalvaII");
            EXPECT_EQ(toHex(stage.storedAmounts()), toHex(amountsWith(9990)));
        });
}

}  // namespace
}  // namespace vorbano::test
