#include "stampe_desk.h"

namespace vorbano::test {
namespace {

class StampeScreen : public StampeDesk {};

TEST_F(StampeScreen, OpensWithTheTypesOnDiskAndNothingToPrint) {
    ASSERT_TRUE(layElection("Europee", "09-06-24"));
    ASSERT_TRUE(layElection("Politiche", "24-02-13"));
    auto& stampe = open();
    EXPECT_EQ(stampe.form.caption(), "Stampe");
    EXPECT_EQ(stampe.Combo1.items(), (Lines{"Europee", "Politiche"}));
    EXPECT_TRUE(stampe.Combo4.items().empty());
    EXPECT_TRUE(stampe.cmdAnteprima.isOperable());
    EXPECT_EQ(stampe.cmdAnteprima.text(), "Ricerca");
    EXPECT_FALSE(stampe.cmdRiavvia.isEnabled());
    EXPECT_EQ(stampe.cmdRiavvia.text(), "Annulla Ricerca");
    EXPECT_EQ(stampe.cmdImpegno.text(), "IMPEGNO DI SPESA");
    EXPECT_FALSE(stampe.cmdImpegno.isEnabled());
    for (const CheckBox* box : {&stampe.Check5, &stampe.Check6, &stampe.Check7, &stampe.Check8}) {
        EXPECT_TRUE(box->isVisible()) << box->name();
        EXPECT_FALSE(box->isEnabled()) << box->name();
    }
    for (const CheckBox* box : {&stampe.Check9, &stampe.Check10}) {
        EXPECT_FALSE(box->isVisible()) << box->name();
    }
    EXPECT_EQ(stampe.form.focused(), &stampe.Combo1);
}

TEST_F(StampeScreen, PeriodBoxesHaveTheirCaptions) {
    auto& stampe = open();
    const std::pair<const CheckBox*, const char*> captions[] = {
        {&stampe.Check5, "Tutti"},      {&stampe.Check6, "1° periodo"}, {&stampe.Check7, "2° periodo"},
        {&stampe.Check8, "3° periodo"}, {&stampe.Check9, "4° periodo"}, {&stampe.Check10, "5° periodo"}};
    for (const auto& [box, caption] : captions) EXPECT_EQ(box->text(), caption);
}

TEST_F(StampeScreen, WithoutElectionsTheListIsEmpty) {
    auto& stampe = open();
    EXPECT_TRUE(stampe.Combo1.items().empty());
}

TEST_F(StampeScreen, ClickOnATypeFillsTheDatesAnew) {
    ASSERT_TRUE(layElection("Europee", "09-06-24"));
    ASSERT_TRUE(layElection("Europee", "26-05-19"));
    ASSERT_TRUE(layElection("Politiche", "24-02-13"));
    auto& stampe = open();
    choose(stampe.Combo1, "Europee");
    EXPECT_EQ(stampe.Combo4.items(), (Lines{"09-06-24", "26-05-19"}));
    choose(stampe.Combo1, "Europee");
    EXPECT_EQ(stampe.Combo4.items(), (Lines{"09-06-24", "26-05-19"}));
    choose(stampe.Combo1, "Politiche");
    EXPECT_EQ(stampe.Combo4.items(), Lines{"24-02-13"});
    EXPECT_EQ(stampe.Combo4.text(), "");
}

TEST_F(StampeScreen, ClickOnATypeSetsTheElectionCaption) {
    ASSERT_TRUE(layElection("Europee_Comunali", "26-05-13"));
    auto& stampe = open();
    choose(stampe.Combo1, "Europee_Comunali");
    EXPECT_EQ(stampe.lblElezione.text(), "Europee e Comunali");
}

TEST_F(StampeScreen, ClickOnADateCopiesItAndSetsTheCaptions) {
    ASSERT_TRUE(layElection("Europee", "09-06-24"));
    auto& stampe = open();
    choose(stampe.Combo1, "Europee");
    choose(stampe.Combo4, "09-06-24");
    EXPECT_EQ(stampe.txtDataEle.text(), "09-06-24");
    EXPECT_EQ(stampe.lbldata.text(), "del 9 Giugno 2024");
    EXPECT_EQ(stampe.lblAggio.text(), "{Vorbano 3.9 edizione 2014}");
}

TEST_F(StampeScreen, JanuarySetsNoCaption) {
    ASSERT_TRUE(layElection("Referendum", "13-01-13"));
    auto& stampe = open();
    choose(stampe.Combo1, "Referendum");
    choose(stampe.Combo4, "13-01-13");
    EXPECT_EQ(stampe.txtDataEle.text(), "13-01-13");
    EXPECT_EQ(stampe.lbldata.text(), "");
    EXPECT_EQ(stampe.lblAggio.text(), "");
}

TEST_F(StampeScreen, JanuaryKeepsTheCaptionsOfTheDateBefore) {
    ASSERT_TRUE(layElection("Referendum", "09-06-13"));
    ASSERT_TRUE(layElection("Referendum", "13-01-13"));
    auto& stampe = open();
    choose(stampe.Combo1, "Referendum");
    choose(stampe.Combo4, "09-06-13");
    choose(stampe.Combo4, "13-01-13");
    EXPECT_EQ(stampe.txtDataEle.text(), "13-01-13");
    EXPECT_EQ(stampe.lbldata.text(), "del 9 Giugno 2013");
    EXPECT_EQ(stampe.lblAggio.text(), "{Vorbano 3.9 edizione 2014}");
}

TEST_F(StampeScreen, DateTypedByHandLeavesTheCaptions) {
    ASSERT_TRUE(layElection("Europee", "09-06-24"));
    ASSERT_TRUE(layElection("Europee", "26-05-19"));
    auto& stampe = open();
    choose(stampe.Combo1, "Europee");
    choose(stampe.Combo4, "09-06-24");
    type(stampe.txtDataEle, "26/5/19");
    leave();
    EXPECT_EQ(stampe.txtDataEle.text(), "26-05-19");
    EXPECT_EQ(stampe.lbldata.text(), "del 9 Giugno 2024");
}

TEST_F(StampeScreen, EveryOddSeparatorIsRefusedAndTakenOut) {
    auto& stampe = open();
    for (const char character : std::string("()[]#.,*:;'_\\")) {
        desktop.box("formato data", std::string("Il formato ( ") + character +
                                        " ) non è esatto. Inserire il simbolo  ( / )  oppure  ( - )  ");
        type(stampe.txtDataEle, std::string("09") + character);
        EXPECT_EQ(stampe.txtDataEle.text(), "09");
    }
}

TEST_F(StampeScreen, DateWithPointsIsRefusedPointByPoint) {
    auto& stampe = open();
    const std::string text = "Il formato ( . ) non è esatto. Inserire il simbolo  ( / )  oppure  ( - )  ";
    desktop.box("formato data", text).box("formato data", text);
    type(stampe.txtDataEle, "09.06.24");
    leave();
    EXPECT_EQ(stampe.txtDataEle.text(), "090624");
}

TEST_F(StampeScreen, BothSeparatorsOfADateAreAccepted) {
    auto& stampe = open();
    for (const std::string_view typed : {"9/6/24", "9-6-24", "09-06-2024", "09/06-24"}) {
        type(stampe.txtDataEle, typed);
        leave();
        EXPECT_EQ(stampe.txtDataEle.text(), "09-06-24") << typed;
    }
}

TEST_F(StampeScreen, ExitClosesTheScreen) {
    auto& stampe = open();
    EXPECT_EQ(stampe.mnuEsci.text(), "Esci");
    menu(stampe.mnuEsci);
    EXPECT_FALSE(stampe.form.isOpen());
}

}  // namespace
}  // namespace vorbano::test
