// The choice of a type: what is shown, what is asked.

#include "tariffe_desk.h"

namespace vorbano::test {
namespace {

using ::testing::ElementsAre;

class ChoiceOfType : public TariffeSeggiTest {
  protected:
    std::vector<std::string> itemsOf(std::string_view name) { return dynamic_cast<ComboBox&>(control(name)).items(); }
};

TEST_F(ChoiceOfType, EverythingIsClosedWhenTheScreenOpens) {
    open();
    EXPECT_EQ(screen->form.caption(), "Tariffe componenti di seggio");
    expectOpen({});
    EXPECT_FALSE(enabled("cmdSalva"));
    EXPECT_FALSE(enabled("cmdSalva2"));
    EXPECT_FALSE(enabled("Frame2"));
    EXPECT_EQ(text("Combo1"), "");
    EXPECT_EQ(text("Combo2"), "");
    EXPECT_EQ(focused(), "Combo1");
    EXPECT_EQ(file("Tarseg.dat"), noFile);
}

TEST_F(ChoiceOfType, TheControlsCarryTheirCaptions) {
    open();
    EXPECT_EQ(text("Frame2"), "Tariffe in caso di elezioni Politiche abbinate ad alre elezioni");
    EXPECT_EQ(text("Frame4"), "Quota a carico Stato");
    EXPECT_EQ(text("Frame5"), "Quota a carico Stato");
    EXPECT_EQ(text("Check7"), "Attiva tutte le modifiche");
    EXPECT_EQ(text("Check10"), "Attiva tutte le modifiche");
    EXPECT_EQ(text("cmdSalva"), "Salva modifiche");
    EXPECT_EQ(text("cmdSalva2"), "Salva modifiche");
}

TEST_F(ChoiceOfType, ElevenTypesAreOffered) {
    open();
    const auto types =
        ElementsAre("Europee", "Europee_Comunali", "Provinciali", "Comunali", "Referendum", "Politiche", "Regionali",
                    "Provinciali_Comunali", "Politiche_Comunali", "Politiche_Regionali", "Referendum_Comunali");
    EXPECT_THAT(itemsOf("Combo1"), types);
    EXPECT_THAT(itemsOf("Combo2"), types);
}

TEST_F(ChoiceOfType, TheRowsOfNormalStationsAreShown) {
    openWithTariffs();
    choose("Combo1", "Europee");
    expectTexts(normalFields, {"138,00", "110,40", "96,00", "45,00", "25,00"});
    expectTexts(specialFields, {"", "", "", ""});
    EXPECT_EQ(text("Frame1"), "TARIFFE EUROPEE");
    EXPECT_EQ(text("Frame3"), "TARIFFE");
    expectOpen({});
    EXPECT_FALSE(enabled("cmdSalva"));
    EXPECT_TRUE(enabled("Combo1"));
}

TEST_F(ChoiceOfType, TheRowsOfSpecialStationsAreShown) {
    openWithTariffs();
    choose("Combo2", "Comunali");
    expectTexts(specialFields, {"90,00", "61,00", "20,00", "10,00"});
    expectTexts(normalFields, {"", "", "", "", ""});
    EXPECT_EQ(text("Frame3"), "TARIFFE COMUNALI");
    EXPECT_EQ(text("Frame1"), "TARIFFE");
    expectOpen({});
    EXPECT_FALSE(enabled("cmdSalva2"));
}

TEST_F(ChoiceOfType, AnAmountOfThousandsIsShownWithItsPoint) {
    ASSERT_TRUE(lay(files, "Params/Tarseg.dat", tariffRow("Regionali", {123'456, 9'600, 7})));
    ASSERT_TRUE(lay(files, "Params/Tarmag.dat", tariffRow("Regionali", {0, 0, 0})));
    open();
    choose("Combo1", "Regionali");
    expectTexts(normalFields, {"1.234,56", "96,00", "0,07", "0,00", "0,00"});
}

TEST_F(ChoiceOfType, TheFirstOfTwoRowsHolds) {
    ASSERT_TRUE(
        lay(files, "Params/TarSpec.dat", tariffRow("Comunali", {100, 200}) + tariffRow("Comunali", {300, 400})));
    ASSERT_TRUE(lay(files, "Params/Tarmagsp.dat", tariffRow("Comunali", {500, 600})));
    open();
    choose("Combo2", "Comunali");
    expectTexts(specialFields, {"1,00", "2,00", "5,00", "6,00"});
}

TEST_F(ChoiceOfType, ANoToTheFeesEndsItWithEmptyFields) {
    openWithTariffs();
    choose("Combo1", "Europee");
    box("TARIFFE Regionali", askFees, Answer::no);
    choose("Combo1", "Regionali");
    expectTexts(normalFields, {"", "", "", "", ""});
    EXPECT_EQ(text("Frame1"), "TARIFFE");
    EXPECT_FALSE(ticked("Check7"));
    expectOpen({});
    EXPECT_TRUE(enabled("Combo1"));
    EXPECT_FALSE(enabled("cmdSalva"));
    EXPECT_EQ(focused(), "Combo1");
}

TEST_F(ChoiceOfType, OnANoToTheFeesTheQuotaIsNotAskedFor) {
    openWithTariffs();
    ASSERT_TRUE(lay(files, "Params/Tarmag.dat", ""));
    ASSERT_TRUE(lay(files, "Params/Tarseg.dat", ""));
    box("TARIFFE Europee", askFees, Answer::no);
    choose("Combo1", "Europee");
    EXPECT_FALSE(ticked("Check11"));
}

TEST_F(ChoiceOfType, OnANoToTheFeesAStoredQuotaStaysHidden) {
    ASSERT_TRUE(lay(files, "Params/Tarmag.dat", europeeQuotas));
    open();
    box("TARIFFE Europee", askFees, Answer::no);
    choose("Combo1", "Europee");
    expectTexts(normalFields, {"", "", "", "", ""});
}

TEST_F(ChoiceOfType, AYesToTheFeesOpensAllAmountsAndGoesOnToTheQuota) {
    ASSERT_TRUE(lay(files, "Params/Tarmag.dat", europeeQuotas));
    open();
    box("TARIFFE Europee", askFees, Answer::yes);
    choose("Combo1", "Europee");
    EXPECT_TRUE(ticked("Check7"));
    expectOpen(normalFields);
    expectTexts(normalFields, {"", "", "", "45,00", "25,00"});
    EXPECT_EQ(text("Frame1"), "TARIFFE EUROPEE");
    EXPECT_FALSE(enabled("Combo1"));
    EXPECT_TRUE(enabled("cmdSalva"));
    EXPECT_EQ(focused(), "txtPresOne");
}

TEST_F(ChoiceOfType, AYesToBothQuestionsOpensEverything) {
    open();
    box("TARIFFE Politiche_Comunali", askFees, Answer::yes);
    box("TARIFFE Politiche_Comunali", askQuota, Answer::yes);
    choose("Combo1", "Politiche_Comunali");
    EXPECT_TRUE(ticked("Check7"));
    EXPECT_TRUE(ticked("Check11"));
    EXPECT_FALSE(ticked("Check12"));
    expectOpen(normalFields);
    EXPECT_EQ(text("Frame1"), "TARIFFE POLITICHE_COMUNALI");
    EXPECT_EQ(focused(), "txtMagPres");
    expectTexts(normalFields, {"", "", "", "", ""});
}

TEST_F(ChoiceOfType, AYesToTheQuotaAloneOpensTheOneOfThePresident) {
    ASSERT_TRUE(lay(files, "Params/Tarseg.dat", europeeFees));
    open();
    box("TARIFFE Europee", askQuota, Answer::yes);
    choose("Combo1", "Europee");
    EXPECT_TRUE(ticked("Check11"));
    EXPECT_FALSE(ticked("Check7"));
    expectOpen({"txtMagPres"});
    EXPECT_EQ(focused(), "txtMagPres");
    EXPECT_FALSE(enabled("Combo1"));
    EXPECT_TRUE(enabled("cmdSalva"));
    EXPECT_EQ(text("Frame1"), "TARIFFE EUROPEE");
    expectTexts(normalFields, {"138,00", "110,40", "96,00", "", ""});
}

TEST_F(ChoiceOfType, ANoToTheQuotaEndsItBeforeTheCaption) {
    ASSERT_TRUE(lay(files, "Params/Tarseg.dat", comunaliFees + europeeFees));
    ASSERT_TRUE(lay(files, "Params/Tarmag.dat", comunaliQuotas));
    open();
    choose("Combo1", "Comunali");
    box("TARIFFE Europee", askQuota, Answer::no);
    choose("Combo1", "Europee");
    expectTexts(normalFields, {"138,00", "110,40", "96,00", "", ""});
    EXPECT_EQ(text("Frame1"), "TARIFFE COMUNALI");
    EXPECT_FALSE(ticked("Check11"));
    expectOpen({});
}

TEST_F(ChoiceOfType, AYesToTheFeesAndANoToTheQuotaKeepsTheFeesOpen) {
    open();
    box("TARIFFE Comunali", askFees, Answer::yes);
    box("TARIFFE Comunali", askQuota, Answer::no);
    choose("Combo1", "Comunali");
    EXPECT_TRUE(ticked("Check7"));
    EXPECT_EQ(text("Frame1"), "TARIFFE");
    EXPECT_EQ(focused(), "txtPresOne");
}

TEST_F(ChoiceOfType, TheSpecialHalfAsksLikewise) {
    open();
    box("TARIFFE Europee_Comunali", askFees, Answer::yes);
    box("TARIFFE Europee_Comunali", askQuota, Answer::yes);
    choose("Combo2", "Europee_Comunali");
    EXPECT_TRUE(ticked("Check10"));
    EXPECT_TRUE(ticked("Check13"));
    EXPECT_EQ(text("Frame3"), "TARIFFE EUROPEE_COMUNALI");
    expectOpen(specialFields);
    EXPECT_EQ(focused(), "txtMagPresSp");
    EXPECT_FALSE(enabled("Combo2"));
    EXPECT_TRUE(enabled("cmdSalva2"));
    // The other half is untouched.
    EXPECT_TRUE(enabled("Combo1"));
    EXPECT_FALSE(enabled("cmdSalva"));
    EXPECT_EQ(file("TarSpec.dat"), "");
    EXPECT_EQ(file("Tarmagsp.dat"), "");
    EXPECT_EQ(file("Tarseg.dat"), noFile);
}

TEST_F(ChoiceOfType, TheSpecialHalfEndsOnANoLikewise) {
    open();
    box("TARIFFE Provinciali", askFees, Answer::no);
    choose("Combo2", "Provinciali");
    EXPECT_EQ(text("Frame3"), "TARIFFE");
    expectOpen({});
}

TEST_F(ChoiceOfType, AReferendumHasNoQuota) {
    const std::string quotas = europeeQuotas + tariffRow("Referendum", {111, 222, 333});
    ASSERT_TRUE(lay(files, "Params/Tarseg.dat", europeeFees + tariffRow("Referendum", {13'000, 10'400, 10'400})));
    ASSERT_TRUE(lay(files, "Params/Tarmag.dat", quotas));
    open();
    choose("Combo1", "Europee");
    choose("Combo1", "Referendum");
    expectTexts(normalFields, {"130,00", "104,00", "104,00", "", ""});
    EXPECT_EQ(text("Frame1"), "TARIFFE REFERENDUM");
    EXPECT_FALSE(enabled("Check11"));
    EXPECT_FALSE(enabled("Check12"));
    EXPECT_TRUE(enabled("Check1"));
    EXPECT_EQ(file("Tarmag.dat"), quotas);
}

TEST_F(ChoiceOfType, ForAReferendumTheQuotaIsNotAskedFor) {
    open();
    box("TARIFFE Referendum", askFees, Answer::yes);
    choose("Combo2", "Referendum");
    expectOpen({"txtPresSpecOne", "txtScrutSpecOne"});
    EXPECT_FALSE(enabled("Check13"));
    EXPECT_FALSE(enabled("Check14"));
    EXPECT_FALSE(ticked("Check13"));
    EXPECT_EQ(text("Frame3"), "TARIFFE REFERENDUM");
}

TEST_F(ChoiceOfType, AReferendumHeldWithAnotherElectionHasAQuota) {
    ASSERT_TRUE(lay(files, "Params/Tarseg.dat", tariffRow("Referendum_Comunali", {100, 200, 300})));
    ASSERT_TRUE(lay(files, "Params/Tarmag.dat", tariffRow("Referendum_Comunali", {400, 500, 600})));
    open();
    choose("Combo1", "Referendum_Comunali");
    expectTexts(normalFields, {"1,00", "2,00", "3,00", "4,00", "6,00"});
    EXPECT_TRUE(enabled("Check11"));
}

TEST_F(ChoiceOfType, AfterAReferendumTheQuotaCanBeOpenedAgain) {
    openWithTariffs();
    box("TARIFFE Referendum", askFees, Answer::no);
    choose("Combo1", "Referendum");
    EXPECT_FALSE(enabled("Check11"));
    choose("Combo1", "Europee");
    EXPECT_TRUE(enabled("Check11"));
    EXPECT_TRUE(enabled("Check12"));
}

}  // namespace
}  // namespace vorbano::test
