// The two saves, compared with bytes laid out by hand.

#include "tariffe_desk.h"

namespace vorbano::test {
namespace {

class Saving : public TariffeSeggiTest {
  protected:
    void expectFile(std::string_view name, const std::string& bytes) {
        EXPECT_EQ(toHex(file(name)), toHex(bytes)) << name;
    }
    void expectClosedAndOn(std::string_view combo) {
        expectOpen({});
        EXPECT_FALSE(enabled("cmdSalva"));
        EXPECT_FALSE(enabled("cmdSalva2"));
        EXPECT_EQ(focused(), combo);
        for (const char* name : {"Check7", "Check1", "Check2", "Check3", "Check11", "Check12", "Check10", "Check8",
                                 "Check9", "Check13", "Check14"})
            EXPECT_FALSE(ticked(name)) << name;
    }
};

TEST_F(Saving, AFirstTypeMakesTheFirstRows) {
    open();
    box("TARIFFE Europee", askFees, Answer::yes);
    box("TARIFFE Europee", askQuota, Answer::yes);
    choose("Combo1", "Europee");
    type("txtPresOne", "138");
    type("txtSegrOne", "110,4");
    type("txtScrutOne", "96,005");
    type("txtMagPres", "1.045,50");
    type("txtMagSesc", "25");
    click("cmdSalva");
    expectFile("Tarseg.dat", padded("Europee", 20) + amount(138) + amount(110, 40) + amount(96, 1));
    expectFile("Tarmag.dat", padded("Europee", 20) + amount(1'045, 50) + amount(0) + amount(25));
    EXPECT_EQ(file("TarSpec.dat"), noFile);
    EXPECT_EQ(file("Tarmagsp.dat"), noFile);
    expectClosedAndOn("Combo1");
    expectTexts(normalFields, {"138,00", "110,40", "96,01", "1.045,50", "25,00"});
}

TEST_F(Saving, AFurtherTypeIsAppendedAndTheOthersStay) {
    openWithTariffs();
    box("TARIFFE Politiche_Regionali", askFees, Answer::yes);
    box("TARIFFE Politiche_Regionali", askQuota, Answer::no);
    choose("Combo1", "Politiche_Regionali");
    type("txtPresOne", "187");
    type("txtSegrOne", "145");
    type("txtScrutOne", "143");
    type("txtMagPres", "93,5");
    type("txtMagSesc", "72,5");
    click("cmdSalva");
    expectFile("Tarseg.dat", comunaliFees + europeeFees + tariffRow("Politiche_Regionali", {18'700, 14'500, 14'300}));
    expectFile("Tarmag.dat", comunaliQuotas + europeeQuotas + tariffRow("Politiche_Regionali", {9'350, 0, 7'250}));
}

TEST_F(Saving, AStoredTypeIsOverwrittenInItsPlace) {
    openWithTariffs();
    choose("Combo1", "Comunali");
    tick("Check7");
    type("txtPresOne", "151");
    type("txtSegrOne", "121");
    type("txtScrutOne", "111");
    type("txtMagPres", "51");
    type("txtMagSesc", "31");
    click("cmdSalva");
    expectFile("Tarseg.dat", tariffRow("Comunali", {15'100, 12'100, 11'100}) + europeeFees);
    expectFile("Tarmag.dat", tariffRow("Comunali", {5'100, 777, 3'100}) + europeeQuotas);
    expectFile("TarSpec.dat", comunaliSpecial + europeeSpecial);
    expectClosedAndOn("Combo1");
}

TEST_F(Saving, TheMiddleAmountOfAQuotaStaysAsItIs) {
    openWithTariffs();
    choose("Combo1", "Europee");
    tick("Check12");
    type("txtMagSesc", "26,50");
    click("cmdSalva");
    expectFile("Tarmag.dat", comunaliQuotas + tariffRow("Europee", {4'500, 1'234'567, 2'650}));
    expectFile("Tarseg.dat", comunaliFees + europeeFees);
}

TEST_F(Saving, OneAmountIsChangedAlone) {
    openWithTariffs();
    choose("Combo1", "Europee");
    tick("Check2");
    type("txtSegrOne", "111,11");
    click("cmdSalva");
    expectFile("Tarseg.dat", comunaliFees + tariffRow("Europee", {13'800, 11'111, 9'600}));
    expectFile("Tarmag.dat", comunaliQuotas + europeeQuotas);
    expectClosedAndOn("Combo1");
}

TEST_F(Saving, EachSingleBoxStoresItsAmountInItsPlace) {
    struct Change {
        const char *box, *field;
        std::initializer_list<int> fees, quotas;
    };
    const Change changes[] = {
        {"Check1", "txtPresOne", {100, 11'040, 9'600}, {4'500, 1'234'567, 2'500}},
        {"Check2", "txtSegrOne", {13'800, 100, 9'600}, {4'500, 1'234'567, 2'500}},
        {"Check3", "txtScrutOne", {13'800, 11'040, 100}, {4'500, 1'234'567, 2'500}},
        {"Check11", "txtMagPres", {13'800, 11'040, 9'600}, {100, 1'234'567, 2'500}},
        {"Check12", "txtMagSesc", {13'800, 11'040, 9'600}, {4'500, 1'234'567, 100}},
    };
    for (const Change& change : changes) {
        SCOPED_TRACE(change.box);
        openWithTariffs();
        choose("Combo1", "Europee");
        tick(change.box);
        type(change.field, "1");
        click("cmdSalva");
        expectFile("Tarseg.dat", comunaliFees + tariffRow("Europee", change.fees));
        expectFile("Tarmag.dat", comunaliQuotas + tariffRow("Europee", change.quotas));
        expectClosedAndOn("Combo1");
    }
}

TEST_F(Saving, EachSingleBoxOfTheSpecialHalfLikewise) {
    struct Change {
        const char *box, *field;
        std::initializer_list<int> fees, quotas;
    };
    const Change changes[] = {
        {"Check8", "txtPresSpecOne", {100, 6'100}, {2'000, 1'000}},
        {"Check9", "txtScrutSpecOne", {9'000, 100}, {2'000, 1'000}},
        {"Check13", "txtMagPresSp", {9'000, 6'100}, {100, 1'000}},
        {"Check14", "txtMagSescSp", {9'000, 6'100}, {2'000, 100}},
    };
    for (const Change& change : changes) {
        SCOPED_TRACE(change.box);
        openWithTariffs();
        choose("Combo2", "Comunali");
        tick(change.box);
        type(change.field, "1");
        click("cmdSalva2");
        expectFile("TarSpec.dat", tariffRow("Comunali", change.fees) + europeeSpecial);
        expectFile("Tarmagsp.dat", tariffRow("Comunali", change.quotas) + europeeSpecialQuotas);
        expectFile("Tarseg.dat", comunaliFees + europeeFees);
        expectFile("Tarmag.dat", comunaliQuotas + europeeQuotas);
        expectClosedAndOn("Combo2");
    }
}

TEST_F(Saving, AFirstTypeOfSpecialStationsMakesTheFirstRows) {
    open();
    box("TARIFFE Referendum_Comunali", askFees, Answer::yes);
    box("TARIFFE Referendum_Comunali", askQuota, Answer::yes);
    choose("Combo2", "Referendum_Comunali");
    type("txtPresSpecOne", "79,34");
    type("txtScrutSpecOne", "53");
    type("txtMagPresSp", "40");
    type("txtMagSescSp", "26,50");
    click("cmdSalva2");
    expectFile("TarSpec.dat", padded("Referendum_Comunali", 20) + amount(79, 34) + amount(53));
    expectFile("Tarmagsp.dat", padded("Referendum_Comunali", 20) + amount(40) + amount(26, 50));
    EXPECT_EQ(file("Tarseg.dat"), noFile);
    expectClosedAndOn("Combo2");
    const auto made = files.list("Params");
    ASSERT_TRUE(made.ok());
    EXPECT_THAT(*made, ::testing::UnorderedElementsAre(::testing::Field(&Entry::name, "TarSpec.dat"),
                                                       ::testing::Field(&Entry::name, "Tarmagsp.dat")));
}

TEST_F(Saving, TheOtherSpellingOfTheSpecialFileIsKept) {
    ASSERT_TRUE(lay(files, "Params/Tarspec.dat", comunaliSpecial));
    ASSERT_TRUE(lay(files, "Params/Tarmagsp.dat", comunaliSpecialQuotas));
    open();
    choose("Combo2", "Comunali");
    tick("Check8");
    type("txtPresSpecOne", "91");
    click("cmdSalva2");
    EXPECT_EQ(toHex(file("Tarspec.dat")), toHex(tariffRow("Comunali", {9'100, 6'100})));
    EXPECT_EQ(files.list("Params")->size(), 2U);
}

TEST_F(Saving, AReferendumWritesNoQuota) {
    ASSERT_TRUE(lay(files, "Params/Tarmag.dat", europeeQuotas));
    open();
    box("TARIFFE Referendum", askFees, Answer::yes);
    choose("Combo1", "Referendum");
    type("txtPresOne", "130");
    type("txtSegrOne", "104");
    type("txtScrutOne", "104");
    click("cmdSalva");
    expectFile("Tarseg.dat", tariffRow("Referendum", {13'000, 10'400, 10'400}));
    expectFile("Tarmag.dat", europeeQuotas);
    expectTexts(normalFields, {"130,00", "104,00", "104,00", "", ""});
}

TEST_F(Saving, WhatIsNoNumberCountsAsNothing) {
    openWithTariffs();
    choose("Combo2", "Europee");
    tick("Check10");
    type("txtPresSpecOne", "novanta");
    type("txtScrutSpecOne", "");
    click("cmdSalva2");
    expectFile("TarSpec.dat", comunaliSpecial + tariffRow("Europee", {0, 0}));
    expectFile("Tarmagsp.dat", comunaliSpecialQuotas + europeeSpecialQuotas);
}

TEST_F(Saving, FieldsThatWereNeverEnteredAreStoredAsZeroAndShownSo) {
    open();
    box("TARIFFE Comunali", askFees, Answer::yes);
    box("TARIFFE Comunali", askQuota, Answer::no);
    choose("Combo1", "Comunali");
    click("cmdSalva");
    expectFile("Tarseg.dat", tariffRow("Comunali", {0, 0, 0}));
    expectFile("Tarmag.dat", tariffRow("Comunali", {0, 0, 0}));
    expectTexts(normalFields, {"0,00", "0,00", "0,00", "0,00", "0,00"});
}

TEST_F(Saving, SeveralOpenAmountsAreStoredTogetherAndClosed) {
    openWithTariffs();
    choose("Combo1", "Europee");
    tick("Check3");
    type("txtScrutOne", "97");
    tick("Check11");
    type("txtMagPres", "46");
    click("cmdSalva");
    expectFile("Tarseg.dat", comunaliFees + tariffRow("Europee", {13'800, 11'040, 9'700}));
    expectFile("Tarmag.dat", comunaliQuotas + tariffRow("Europee", {4'600, 1'234'567, 2'500}));
    expectClosedAndOn("Combo1");
}

TEST_F(Saving, AClosedHalfCannotBeSaved) {
    openWithTariffs();
    choose("Combo1", "Europee");
    choose("Combo2", "Europee");
    EXPECT_EQ(clerk().click(control("cmdSalva")), Refusal::disabled);
    EXPECT_EQ(clerk().click(control("cmdSalva2")), Refusal::disabled);
    EXPECT_EQ(clerk().type(control("txtPresOne"), "1"), Refusal::disabled);
    EXPECT_EQ(clerk().type(control("txtMagSescSp"), "1"), Refusal::disabled);
}

TEST_F(Saving, WhatWasStoredIsShownTheNextTime) {
    openWithTariffs();
    choose("Combo1", "Europee");
    tick("Check1");
    type("txtPresOne", "140");
    click("cmdSalva");
    choose("Combo1", "Comunali");
    choose("Combo1", "Europee");
    expectTexts(normalFields, {"140,00", "110,40", "96,00", "45,00", "25,00"});
}

TEST_F(Saving, WhatWasNotSavedIsForgottenWithTheNextChoice) {
    openWithTariffs();
    choose("Combo1", "Europee");
    tick("Check1");
    type("txtPresOne", "140");
    tick("Check1", false);
    choose("Combo1", "Europee");
    EXPECT_EQ(text("txtPresOne"), "138,00");
    expectFile("Tarseg.dat", comunaliFees + europeeFees);
}

}  // namespace
}  // namespace vorbano::test
