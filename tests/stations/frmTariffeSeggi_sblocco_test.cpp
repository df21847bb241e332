// The boxes that open the amounts.

#include "tariffe_desk.h"

namespace vorbano::test {
namespace {

/// A box, the amount that it opens, and what belongs to its half.
struct SingleBox {
    const char* box;
    const char* field;
    const char* type;
    const char* save;
    const char* otherSave;
};
void PrintTo(const SingleBox& each, std::ostream* out) { *out << each.box; }

const std::vector<SingleBox> singleBoxes = {
    {"Check1", "txtPresOne", "Combo1", "cmdSalva", "cmdSalva2"},
    {"Check2", "txtSegrOne", "Combo1", "cmdSalva", "cmdSalva2"},
    {"Check3", "txtScrutOne", "Combo1", "cmdSalva", "cmdSalva2"},
    {"Check11", "txtMagPres", "Combo1", "cmdSalva", "cmdSalva2"},
    {"Check12", "txtMagSesc", "Combo1", "cmdSalva", "cmdSalva2"},
    {"Check8", "txtPresSpecOne", "Combo2", "cmdSalva2", "cmdSalva"},
    {"Check9", "txtScrutSpecOne", "Combo2", "cmdSalva2", "cmdSalva"},
    {"Check13", "txtMagPresSp", "Combo2", "cmdSalva2", "cmdSalva"},
    {"Check14", "txtMagSescSp", "Combo2", "cmdSalva2", "cmdSalva"},
};

class ASingleBox : public TariffeSeggiTest, public ::testing::WithParamInterface<SingleBox> {};

TEST_P(ASingleBox, OpensItsAmountAndHoldsTheType) {
    openWithTariffs();
    choose(GetParam().type, "Europee");
    tick(GetParam().box);
    expectOpen({GetParam().field});
    EXPECT_EQ(focused(), GetParam().field);
    EXPECT_FALSE(enabled(GetParam().type));
    EXPECT_TRUE(enabled(GetParam().save));
    EXPECT_FALSE(enabled(GetParam().otherSave));
    EXPECT_EQ(clerk().choose(control(GetParam().type), "Comunali"), Refusal::disabled);
}

TEST_P(ASingleBox, ClosesItAgainAndGivesTheTypeBack) {
    openWithTariffs();
    choose(GetParam().type, "Europee");
    tick(GetParam().box);
    tick(GetParam().box, false);
    expectOpen({});
    EXPECT_EQ(focused(), GetParam().type);
    EXPECT_TRUE(enabled(GetParam().type));
    EXPECT_FALSE(enabled(GetParam().save));
}

TEST_P(ASingleBox, IsTakenBackWithoutAType) {
    openWithTariffs();
    tick(GetParam().box);
    EXPECT_FALSE(ticked(GetParam().box));
    expectOpen({});
    EXPECT_EQ(focused(), GetParam().type);
    EXPECT_FALSE(enabled(GetParam().save));
}

INSTANTIATE_TEST_SUITE_P(All, ASingleBox, ::testing::ValuesIn(singleBoxes),
                         [](const auto& each) { return std::string(each.param.box); });

class TheBoxForAll : public TariffeSeggiTest {};

TEST_F(TheBoxForAll, OpensTheNormalHalf) {
    openWithTariffs();
    choose("Combo1", "Europee");
    tick("Check7");
    expectOpen(normalFields);
    EXPECT_FALSE(enabled("Combo1"));
    EXPECT_TRUE(enabled("cmdSalva"));
    EXPECT_TRUE(enabled("Combo2"));
    EXPECT_FALSE(enabled("cmdSalva2"));
    EXPECT_EQ(focused(), "txtPresOne");
    for (const char* name : {"Check1", "Check2", "Check3", "Check11", "Check12"}) EXPECT_TRUE(operable(name)) << name;
}

TEST_F(TheBoxForAll, OpensTheSpecialHalf) {
    openWithTariffs();
    choose("Combo2", "Europee");
    tick("Check10");
    expectOpen(specialFields);
    EXPECT_FALSE(enabled("Combo2"));
    EXPECT_TRUE(enabled("cmdSalva2"));
    EXPECT_TRUE(enabled("Combo1"));
    EXPECT_EQ(focused(), "txtPresSpecOne");
}

TEST_F(TheBoxForAll, LeavesTheQuotaOfAReferendumClosed) {
    ASSERT_TRUE(lay(files, "Params/Tarseg.dat", tariffRow("Referendum", {100, 200, 300})));
    open();
    choose("Combo1", "Referendum");
    tick("Check7");
    expectOpen({"txtPresOne", "txtSegrOne", "txtScrutOne"});
    EXPECT_TRUE(enabled("cmdSalva"));
    EXPECT_EQ(clerk().tick(control("Check11"), true), Refusal::disabled);
    EXPECT_EQ(clerk().tick(control("Check12"), true), Refusal::disabled);
}

TEST_F(TheBoxForAll, IsTakenBackWithoutAType) {
    openWithTariffs();
    tick("Check7");
    tick("Check10");
    EXPECT_FALSE(ticked("Check7"));
    EXPECT_FALSE(ticked("Check10"));
    expectOpen({});
    EXPECT_TRUE(enabled("Combo1"));
    EXPECT_TRUE(enabled("Combo2"));
    EXPECT_EQ(focused(), "Combo2");
}

TEST_F(TheBoxForAll, LocksAllAgainWhenItIsCleared) {
    openWithTariffs();
    choose("Combo1", "Europee");
    tick("Check2");
    tick("Check7");
    tick("Check7", false);
    expectOpen({});
    EXPECT_FALSE(ticked("Check2"));
    EXPECT_TRUE(enabled("Combo1"));
    EXPECT_FALSE(enabled("cmdSalva"));
    EXPECT_EQ(focused(), "Combo1");
}

class SeveralBoxes : public TariffeSeggiTest {};

TEST_F(SeveralBoxes, OpenTheirAmountsTogether) {
    openWithTariffs();
    choose("Combo1", "Europee");
    tick("Check1");
    tick("Check12");
    expectOpen({"txtPresOne", "txtMagSesc"});
    tick("Check1", false);
    expectOpen({"txtMagSesc"});
    EXPECT_FALSE(enabled("Combo1"));
    EXPECT_TRUE(enabled("cmdSalva"));
    tick("Check12", false);
    EXPECT_TRUE(enabled("Combo1"));
    EXPECT_FALSE(enabled("cmdSalva"));
}

TEST_F(SeveralBoxes, WorkInBothHalvesAtOnce) {
    openWithTariffs();
    choose("Combo1", "Europee");
    choose("Combo2", "Comunali");
    tick("Check7");
    tick("Check8");
    EXPECT_TRUE(enabled("cmdSalva"));
    EXPECT_TRUE(enabled("cmdSalva2"));
    tick("Check8", false);
    EXPECT_TRUE(enabled("cmdSalva"));
    EXPECT_FALSE(enabled("cmdSalva2"));
}

TEST_F(SeveralBoxes, OfTheFrameThatWasNeverPutIntoUseDoNothing) {
    openWithTariffs();
    for (const char* name : {"Check4", "Check5", "Check6"})
        EXPECT_EQ(clerk().tick(control(name), true), Refusal::disabled) << name;
    box("TARIFFE Politiche_Comunali", askFees, Answer::no);
    choose("Combo1", "Politiche_Comunali");
    EXPECT_FALSE(enabled("Frame2"));
    EXPECT_EQ(clerk().type(control("txtPresAnd"), "1"), Refusal::disabled);
}

class LeavingAnAmount : public TariffeSeggiTest,
                        public ::testing::WithParamInterface<std::pair<const char*, const char*>> {};

TEST_P(LeavingAnAmount, ShowsItInTheFormOfAmounts) {
    openWithTariffs();
    choose("Combo1", "Europee");
    tick("Check7");
    type("txtSegrOne", GetParam().first);
    leave();
    EXPECT_EQ(text("txtSegrOne"), GetParam().second);
}

INSTANTIATE_TEST_SUITE_P(All, LeavingAnAmount,
                         ::testing::Values(std::pair("96", "96,00"), std::pair("", "0,00"),
                                           std::pair("12,345", "12,35"), std::pair("0,005", "0,01"),
                                           std::pair("1234,5", "1.234,50"), std::pair("1.234,56", "1.234,56"),
                                           std::pair("cento", "0,00"), std::pair("99999999999999999999", "0,00")));

TEST_F(TheBoxForAll, TheOrderOfTabIsThatOfTheWork) {
    openWithTariffs();
    choose("Combo1", "Europee");
    tick("Check7");
    for (const char* next : {"txtSegrOne", "txtScrutOne", "txtMagPres", "txtMagSesc", "cmdSalva", "Combo2"}) {
        leave();
        EXPECT_EQ(focused(), next);
    }
}

}  // namespace
}  // namespace vorbano::test
