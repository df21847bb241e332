// Which election the rate tab works on, and what is on show and enabled for it.

#include "versions_desk.h"

namespace vorbano::test {
namespace {

class ElectionChoice : public VersionsDesk {
  protected:
    void SetUp() override {
        layVersions();
        for (const char* folder :
             {"Elezioni", "Elezioni/Europee", "Elezioni/Europee/09-06-24", "Elezioni/Europee/26-05-19",
              "Elezioni/Europee/13-06-99", "Elezioni/Comunali", "Elezioni/Comunali/08-06-24",
              "Elezioni/Comunali/24-11-24", "Elezioni/Referendum", "Elezioni/Referendum/12-06-22"})
            ASSERT_TRUE(files.makeFolder(folder).ok());
        open();
    }
    Lines items(std::string_view name) { return dynamic_cast<ComboBox&>(control(name)).items(); }
    void expectPlain() {
        for (const char* name : {"cmdTarVecchie", "cmdTarNuove", "Check20", "cmdStampa", "Combo1", "txtDataEle"})
            EXPECT_TRUE(enabled(name)) << name;
        for (const char* name : {"Combo2", "cmdAggTar", "cmdCrea", "cboDeco", "lblDeco"})
            EXPECT_FALSE(visible(name)) << name;
        EXPECT_TRUE(visible("Check20"));
    }
};

using ::testing::ElementsAre;
using ::testing::IsEmpty;
using ::testing::UnorderedElementsAre;

TEST_F(ElectionChoice, IsNotOnShowAtFirst) {
    expectPlain();
    EXPECT_FALSE(visible("Combo1"));
    EXPECT_FALSE(visible("txtDataEle"));
    EXPECT_THAT(items("Combo1"), UnorderedElementsAre("Europee", "Comunali", "Referendum")) << "filled on opening";
}

TEST_F(ElectionChoice, ForAnUpdateShowsTheListsAndRests) {
    tick("Check45");
    for (const char* name : {"Combo1", "Combo2", "txtDataEle", "cmdAggTar"}) EXPECT_TRUE(visible(name)) << name;
    for (const char* name : {"cmdCrea", "cboDeco", "lblDeco"}) EXPECT_FALSE(visible(name)) << name;
    for (const char* name : {"cmdTarVecchie", "cmdTarNuove", "Check20", "cmdStampa"})
        EXPECT_FALSE(enabled(name)) << name;
    EXPECT_TRUE(visible("Check20"));
    EXPECT_THAT(items("Combo1"), UnorderedElementsAre("Europee", "Comunali", "Referendum"));
    tick("Check45", false);
    expectPlain();
    EXPECT_FALSE(visible("Combo1"));
}

TEST_F(ElectionChoice, ForAnUpdateOffersTheDatesOfThisYear) {
    tick("Check45");
    choose("Combo1", "Europee");
    EXPECT_THAT(items("Combo2"), ElementsAre("09-06-24"));
    choose("Combo1", "Comunali");
    EXPECT_THAT(items("Combo2"), UnorderedElementsAre("08-06-24", "24-11-24"));
    choose("Combo1", "Comunali");
    EXPECT_THAT(items("Combo2"), UnorderedElementsAre("08-06-24", "24-11-24")) << "the list does not double";
    choose("Combo1", "Referendum");
    EXPECT_THAT(items("Combo2"), IsEmpty());
}

TEST_F(ElectionChoice, FollowsTheYearOfTheClock) {
    desktop.setToday(std::chrono::year(2019) / 1 / 1);
    tick("Check45");
    choose("Combo1", "Europee");
    EXPECT_THAT(items("Combo2"), ElementsAre("26-05-19"));
}

TEST_F(ElectionChoice, ForAnAdjustmentOffersAllDatesFrom2004) {
    tick("Check46");
    choose("Combo1", "Europee");
    EXPECT_THAT(items("Combo2"), UnorderedElementsAre("09-06-24", "26-05-19"));
}

TEST_F(ElectionChoice, TakesTheDateChosenIntoTheField) {
    tick("Check45");
    choose("Combo1", "Europee");
    EXPECT_EQ(text("txtDataEle"), "");
    choose("Combo2", "09-06-24");
    EXPECT_EQ(text("txtDataEle"), "09-06-24");
    choose("Combo1", "Comunali");
    EXPECT_EQ(text("txtDataEle"), "") << "it was the date of another type";
}

TEST_F(ElectionChoice, TakesATypedDateOfAnotherYear) {
    tick("Check45");
    choose("Combo1", "Europee");
    type("txtDataEle", "26/5/19");
    tick("Check45", false);
    EXPECT_EQ(text("txtDataEle"), "26-05-19");
}

TEST_F(ElectionChoice, StaysOnShowWhenTheUpdateIsOver) {
    chooseElection();
    EXPECT_EQ(text("Combo1"), "Europee");
    EXPECT_EQ(text("txtDataEle"), "09-06-24");
    EXPECT_TRUE(visible("Combo1"));
    EXPECT_TRUE(visible("txtDataEle"));
    expectPlain();
}

TEST_F(ElectionChoice, BeginsAnewWithEachUpdate) {
    chooseElection();
    tick("Check45");
    EXPECT_EQ(text("Combo1"), "");
    EXPECT_EQ(text("txtDataEle"), "");
    EXPECT_THAT(items("Combo2"), IsEmpty());
    tick("Check45", false);
    EXPECT_FALSE(visible("Combo1"));
    click("cmdTarNuove");
    EXPECT_EQ(toHex(file("PmDip.dat")), toHex(newVersion)) << "no election: the table comes into force";
}

TEST_F(ElectionChoice, UpdateAndAdjustmentExcludeEachOther) {
    tick("Check45");
    tick("Check46");
    EXPECT_FALSE(ticked("Check45"));
    EXPECT_FALSE(visible("cmdAggTar"));
    tick("Check45");
    EXPECT_FALSE(ticked("Check46"));
    EXPECT_FALSE(visible("cmdCrea"));
    EXPECT_TRUE(visible("cmdAggTar"));
    EXPECT_THAT(items("Combo1"), UnorderedElementsAre("Europee", "Comunali", "Referendum"));
    tick("Check45", false);
    expectPlain();
}

TEST_F(ElectionChoice, KeepsTheVersionCommandsWaitingWhileRowsAreSaved) {
    tick("Check45");
    tick("Check5");
    type("txtD2Day", "5,05");
    click("cmdSalva");
    EXPECT_FALSE(enabled("cmdTarNuove"));
    EXPECT_FALSE(enabled("cmdTarVecchie"));
    EXPECT_FALSE(enabled("cmdStampa"));
    tick("Check45", false);
    expectPlain();
}

TEST_F(ElectionChoice, LeavesThePrintingOffWhileARowIsOpen) {
    tick("Check5");
    tick("Check45");
    tick("Check45", false);
    EXPECT_FALSE(enabled("cmdStampa"));
    tick("Check5", false);
    expectPlain();
}

TEST_F(ElectionChoice, ClearingTheWholeTabEnablesWhatBelongsToTheVersions) {
    for (Control* each : {static_cast<Control*>(&screen->cmdTarNuove), static_cast<Control*>(&screen->cmdTarVecchie),
                          static_cast<Control*>(&screen->Combo1), static_cast<Control*>(&screen->txtDataEle)})
        each->enabled = false;
    tick("Check20");
    EXPECT_FALSE(enabled("cmdTarNuove"));
    tick("Check20", false);
    expectPlain();
}

TEST_F(ElectionChoice, OfAnEmptyInstallationIsEmpty) {
    MemoryFileSystem empty;
    ASSERT_TRUE(lay(empty, "Params/PmDip.dat", inForce));
    openOn(empty, staging, printing);
    tick("Check45");
    EXPECT_THAT(items("Combo1"), IsEmpty());
    desktop.shut(screen->form);
    screen.reset();
}

}  // namespace
}  // namespace vorbano::test
