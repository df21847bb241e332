// The hours of a period are checked when its last field is left. Election of seven employees at 40 hours: period 1 has
// a pool of 280, an average of 40 and a limit of 60; period 2 (ten days) 93, 13 and 20.

#include "liquidation_desk.h"

namespace vorbano::test {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

class Convalida : public LiquidationTest {
  protected:
    /// Employee 1 (32 and 12 hours) with all periods in authorisation; the others have 30 and 22 hours.
    void toAuthorised() {
        layElection();
        layLimits(limitsBytes({0, 0, 0}));
        callUp();
    }
    void expectAccepted(int period, const char* flag) {
        EXPECT_THAT(openFields(), IsEmpty());
        EXPECT_EQ(text("Label52"), flag);
        EXPECT_TRUE(operable("cmdRicalcola"));
        EXPECT_EQ(focused(), "cmdRicalcola");
        EXPECT_EQ(screen->periods.at(static_cast<std::size_t>(period - 1)).frame.tone(), Tone::done);
        expectHeld(true);
    }
    void expectRefused(int period) {
        EXPECT_EQ(focused(), authorisedOf(period)[0]);
        EXPECT_EQ(openFields().size(), 3U);
        EXPECT_FALSE(enabled("cmdRicalcola"));
        EXPECT_EQ(text("Label52"), "");
    }
};

const char* const allowed40 =
    "Le ore autorizzate superano il limite medio individuale mensile di 1 ore. Possono essere autorizzate in quanto "
    "rientrano nel monte ore mensile e nel limite massimo individuale delle 60 ore.";

TEST_F(Convalida, AuthorisedHoursWithinAllLimits) {
    toAuthorised();
    authorise(1, {20, 15, 5});
    EXPECT_EQ(text("txtTotAut1"), "40");
    EXPECT_EQ(text("Label59"), "70");
    EXPECT_EQ(text("Label29"), "210");
    expectAccepted(1, "A1");
}

TEST_F(Convalida, AnEmptyFieldIsZero) {
    toAuthorised();
    press("Frame4");
    type("txtAutFer2Per", "");
    type("txtAutFes2Per", "");
    type("txtNf2Per", "");
    leave();
    EXPECT_EQ(text("txtAutFer2Per"), "0");
    EXPECT_EQ(text("txtNf2Per"), "0");
    EXPECT_EQ(text("lblUtil2"), "22");
    expectAccepted(2, "A2");
}

TEST_F(Convalida, HoursThatAreNoWholeNumberAreRefused) {
    toAuthorised();
    press("Frame1");
    type("txtAutFes1Per", "-1");
    enter("txtNf1Per");
    box("Errore", "Inserire le ore con un numero intero.");
    leave();
    EXPECT_EQ(focused(), "txtAutFes1Per");
    type("txtAutFes1Per", "12,5");
    enter("txtNf1Per");
    leave();
    EXPECT_EQ(text("txtAutFes1Per"), "12") << "half to even";
    expectAccepted(1, "A1");
}

TEST_F(Convalida, AboveTheAverageIsANotice) {
    toAuthorised();
    box("Ore autorizzate", allowed40);
    authorise(1, {20, 15, 6});
    expectAccepted(1, "A1");
}

TEST_F(Convalida, TheAbsoluteLimitIsTheLastHour) {
    toAuthorised();
    box("Ore autorizzate",
        "Le ore autorizzate superano il limite medio individuale mensile di 20 ore. Possono essere autorizzate in "
        "quanto rientrano nel monte ore mensile e nel limite massimo individuale delle 60 ore.");
    authorise(1, {60, 0, 0});
    expectAccepted(1, "A1");
}

TEST_F(Convalida, AboveTheAbsoluteLimitIsRefused) {
    toAuthorised();
    box("Ore autorizzate",
        "Le ore autorizzate superano il limite massimo individuale mensile (60 ore.), di 1 ore. Non possono essere "
        "autorizzate. Modificare i dati");
    authorise(1, {61, 0, 0});
    expectRefused(1);
    authorise(1, {20, 10, 2});
    expectAccepted(1, "A1");
}

TEST_F(Convalida, AboveAverageAndPoolIsRefused) {
    toAuthorised();
    Person other = second();
    other.authorised[1] = {85, 0, 0};
    layStaff({first(), other});
    box("Errore",
        "Le ore autorizzate superano non solo il limite medio mensile di 13 ore, ma anche il limite del monte ore "
        "mensile delle93 ore, di n.6ore. Modificare i dati");
    authorise(2, {14, 0, 0});
    EXPECT_EQ(text("lblUtil2"), "99");
    EXPECT_EQ(text("Label32"), "-6");
    expectRefused(2);
}

TEST_F(Convalida, AboveThePoolIsRefused) {
    toAuthorised();
    Person other = second();
    other.authorised[1] = {85, 0, 0};
    layStaff({first(), other});
    box("Errore", "Le ore autorizzate superano il limite mensile di 1 ore. Modificare i dati");
    authorise(2, {9, 0, 0});
    expectRefused(2);
    authorise(2, {8, 0, 0});
    EXPECT_EQ(text("Label32"), "");
    expectAccepted(2, "A2");
}

TEST_F(Convalida, AtThePoolAboveTheAverageNothingIsSaid) {
    toAuthorised();
    Person other = second();
    other.authorised[1] = {79, 0, 0};
    layStaff({first(), other});
    authorise(2, {14, 0, 0});
    expectAccepted(2, "A2");
}

TEST_F(Convalida, PaidHoursAreTheFloorOfTheAuthorisedOnes) {
    layElection();
    layStaff({first().liquidated(), second(), third()});
    layLimits(limitsBytes({0, 0, 0}));
    callUp();
    box("Errore!", "Le ore autorizzate sono inferiori a quelle liquidate di 3 ore, modificare i dati");
    authorise(1, {10, 0, 0});
    expectRefused(1);
    authorise(1, {10, 3, 0});
    expectAccepted(1, "A1");
}

TEST_F(Convalida, TheSameHoursCheckedAgainAreNotCountedTwice) {
    toAuthorised();
    box("Ore autorizzate",
        "Le ore autorizzate superano il limite massimo individuale mensile (60 ore.), di 40 ore. Non possono essere "
        "autorizzate. Modificare i dati");
    authorise(1, {100, 0, 0});
    EXPECT_EQ(text("Label59"), "130");
    authorise(1, {20, 10, 2});
    EXPECT_EQ(text("Label59"), "62");
}

// Paid hours.

TEST_F(Convalida, PaidHoursWithinTheAuthorisedOnes) {
    layElection();
    callUp();
    pay(1, {32, 0, 0});
    EXPECT_EQ(text("txtTotale1"), "32");
    EXPECT_THAT(openFields(), IsEmpty());
    EXPECT_EQ(focused(), "cmdRicalcola");
    EXPECT_EQ(text("Label52"), "") << "only for authorised hours";
}

TEST_F(Convalida, MorePaidThanAuthorisedIsRefused) {
    layElection();
    callUp();
    box("Liquidazione ore", "Attenzione, il numero delle ore fatte supera quelle autorizzate di 1 ore");
    pay(1, {32, 0, 1});
    EXPECT_EQ(focused(), "txtPag1Df");
    EXPECT_EQ(openFields().size(), 4U);
    EXPECT_FALSE(enabled("cmdRicalcola"));
    type("txtPag1NeF", "0");
    enter("txtTotale1");
    leave();
    EXPECT_EQ(focused(), "cmdRicalcola");
}

TEST_F(Convalida, AKindMayBePaidAboveItsOwnHours) {
    layElection();
    callUp();
    pay(1, {0, 0, 32});
    EXPECT_TRUE(operable("cmdRicalcola")) << "only the total counts";
}

TEST_F(Convalida, ATypedTotalIsTheSumAgain) {
    layElection();
    callUp();
    press("Frame1");
    type("txtPag1Df", "4");
    type("txtPag1Nf", "3");
    EXPECT_EQ(text("txtTotale1"), "7");
    type("txtTotale1", "99");
    leave();
    EXPECT_EQ(text("txtTotale1"), "7");
    EXPECT_EQ(text("txtPag1NeF"), "0");
    EXPECT_TRUE(operable("cmdRicalcola"));
}

TEST_F(Convalida, PaidHoursThatAreNoNumberAreRefused) {
    layElection();
    callUp();
    press("Frame1");
    type("txtPag1Df", "dieci");
    enter("txtTotale1");
    box("Errore", "Inserire le ore con un numero intero.");
    leave();
    EXPECT_EQ(focused(), "txtPag1Df");
}

}  // namespace
}  // namespace vorbano::test
