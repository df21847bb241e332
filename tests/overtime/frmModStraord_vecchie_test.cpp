// Elections before 2014 with a fourth and a fifth period, laid out by bytes.

#include "liquidation_desk.h"

namespace vorbano::test {
namespace {

using ::testing::ElementsAre;

/// The fourth or fifth period of an employee on paper.
struct Late {
    int number = 1;
    std::string name = "BIANCHI ANNA";
    std::array<std::string, 2> dates{"01-06-09", "07-06-09"};
    Three authorised{3, 2, 1};
    Three paid{};
    int totAut = 54;
    Person pay{};

    [[nodiscard]] std::string bytes() const {
        return Sheet(241)
            .integersAt(0, {40, 0, 280, 373, number, 7})
            .at(12, padded(name, 60))
            .at(72, dates[0])
            .at(80, dates[1])
            .at(88, threeLe16(authorised) + threeLe16(paid) + le16(total(paid)) + le16(totAut))
            .at(104, threeLe16(pay.executed) + le16(pay.totEseg))
            .at(112, padded(pay.grade, 7))
            .at(119, padded("-", 10))
            .at(129, pay.payBytes())
            .bytes();
    }
};

class LiquidazioneVecchie : public LiquidationTest {
  protected:
    LiquidazioneVecchie() {
        type_ = "Europee_Comunali";
        date_ = "07-06-09";
    }
    static Person person(int number, const std::string& name) {
        Person person = first();
        person.number = number;
        person.name = name;
        person.dates = {{{"15-04-09", "14-05-09"}, {"15-05-09", "24-05-09"}, {"25-05-09", "31-05-09"}}};
        person.authorisedLate = 10;
        return person;
    }
    static Person anna() { return person(1, "BIANCHI ANNA"); }
    static Person mario() { return person(2, "ROSSI MARIO"); }
    static Late fourth(int number, const std::string& name) { return {.number = number, .name = name}; }
    static Late fifth(int number, const std::string& name) {
        return {.number = number, .name = name, .dates = {"08-06-09", "12-06-09"}, .authorised = {4, 0, 0}};
    }
    void layFive() {
        layStaff({anna(), mario()});
        layLimits(limitsBytes());
        layRates();
        ASSERT_TRUE(
            lay(files, pathOf("Quartum.vbn"), fourth(1, "BIANCHI ANNA").bytes() + fourth(2, "ROSSI MARIO").bytes()));
        ASSERT_TRUE(
            lay(files, pathOf("Pentium.vbn"), fifth(1, "BIANCHI ANNA").bytes() + fifth(2, "ROSSI MARIO").bytes()));
    }
    /// 11 x 12,34 = 135,74 and 5 x 15,55 = 77,75 are 213,49; 50,81, 18,15, 18,79, 0,75.
    static Person annaPaid() {
        Person paid = anna().withUsed(16);
        paid.paid[0] = {10, 3, 0};
        paid.executed = {11, 5, 0};
        paid.totEseg = 16;
        paid.amounts = {21349, 5081, 1815, 6896, 1879, 75, 1954};
        return paid;
    }
    void payFive() {
        click("cmdInserimento");
        const std::array<Three, 5> paid{{{10, 3, 0}, {0, 0, 0}, {0, 0, 0}, {1, 0, 0}, {0, 2, 0}}};
        for (int period = 1; period <= 5; ++period) {
            EXPECT_EQ(focused(), paidOf(period)[0]);
            hours(paid.at(static_cast<std::size_t>(period - 1)), paidOf(period));
            enter("txtTotale" + std::to_string(period));
            leave();
        }
        EXPECT_EQ(focused(), "cmdRicalcola");
    }
};

TEST_F(LiquidazioneVecchie, FivePeriodsAreShown) {
    layFive();
    callUp();
    EXPECT_TRUE(visible("Frame28"));
    EXPECT_TRUE(visible("Frame10"));
    const std::vector<std::pair<std::string, std::string>> shown = {
        {"txtQuartusDal", "01-06-09"},
        {"txtQuartusAl", "07-06-09"},
        {"txtAutFer4Per", "3"},
        {"txtAutFes4Per", "2"},
        {"txtNf4Per", "1"},
        {"txtTotAut4", "6"},
        {"txtPag4Df", "0"},
        {"txtTotale4", "0"},
        {"lblQuarto", "1"},
        {"lblMens4", "103"},
        {"lblMed4", "15"},
        {"Label100", "16"},
        {"lblUtil4", "12"},
        {"Label103", "91"},
        {"txtPentiumDal", "08-06-09"},
        {"txtPentiumAl", "12-06-09"},
        {"txtAutFer5Per", "4"},
        {"txtTotAut5", "4"},
        {"lblQuinto", "1"},
        {"lblMens5", "154"},
        {"lblMed5", "22"},
        {"Label131", "12"},
        {"lblUtil5", "8"},
        {"Label128", "146"},
        {"txtTotAut", "54"},
    };
    for (const auto& [control, words] : shown) EXPECT_EQ(text(control), words) << control;
    EXPECT_TRUE(visible("Frame17"));
}

TEST_F(LiquidazioneVecchie, AllFivePeriodsArePaidAndStored) {
    layFive();
    open();
    name();
    payFive();
    click("cmdRicalcola");
    EXPECT_EQ(text("txtTotAut"), "54");
    EXPECT_EQ(text("txtDovuto"), "213,49");
    click("cmdSalva");
    EXPECT_EQ(toHex(stored("07-06-09.vbn")), toHex(staffOf({annaPaid(), mario().withUsed(16)})));
    Late four = fourth(1, "BIANCHI ANNA");
    four.paid = {1, 0, 0};
    four.pay = annaPaid();
    EXPECT_EQ(toHex(stored("Quartum.vbn")), toHex(four.bytes() + fourth(2, "ROSSI MARIO").bytes()));
    Late five = fifth(1, "BIANCHI ANNA");
    five.paid = {0, 2, 0};
    five.pay = annaPaid();
    EXPECT_EQ(toHex(stored("Pentium.vbn")), toHex(five.bytes() + fifth(2, "ROSSI MARIO").bytes()));
}

TEST_F(LiquidazioneVecchie, AuthorisedHoursOfTheFourthAndFifthPeriodAreChecked) {
    layFive();
    layLimits(limitsBytes({1, 1, 1}, 0, 0));
    callUp();
    box("Ore autorizzate",
        "Le ore autorizzate superano il limite massimo individuale mensile (16 ore.), di 1 ore. Non possono essere "
        "autorizzate. Modificare i dati");
    authorise(4, {17, 0, 0});
    box("Ore autorizzate",
        "Le ore autorizzate superano il limite medio individuale mensile di 1 ore. Possono essere autorizzate in "
        "quanto rientrano nel monte ore mensile e nel limite massimo individuale delle 16 ore.");
    authorise(4, {16, 0, 0});
    EXPECT_EQ(text("lblUtil4"), "22");
    EXPECT_EQ(text("Label52"), "A4");
    click("cmdRicalcola");
    click("cmdSalva");
    EXPECT_EQ(recordFrom<LatePeriodRecord>(stored("Quartum.vbn")).authorised[0], 16);
    box("Ore autorizzate",
        "Le ore autorizzate superano il limite massimo individuale mensile (12 ore.), di 2 ore. Non possono essere "
        "autorizzate. Modificare i dati");
    authorise(5, {14, 0, 0});
    authorise(5, {12, 0, 0});
    EXPECT_EQ(text("Label52"), "A5");
}

TEST_F(LiquidazioneVecchie, TheListShowsTheFourthAndFifthPeriod) {
    layFive();
    open();
    name();
    click("cmdRicerca2");
    EXPECT_TRUE(operable("Option4"));
    click("Option4");
    EXPECT_THAT(screen->MSFlexGrid1.cells()[1], ElementsAre("BIANCHI ANNA", "3", "2", "1", "6"));
    EXPECT_THAT(screen->MSFlexGrid1.cells()[3], ElementsAre("Totali", "6", "4", "2", "12"));
    click("Option5");
    EXPECT_THAT(screen->MSFlexGrid1.cells()[3], ElementsAre("Totali", "8", "0", "0", "8"));
}

TEST_F(LiquidazioneVecchie, MissingRecordsOfTheLatePeriodsAreMade) {
    layFive();
    ASSERT_TRUE(lay(files, pathOf("Quartum.vbn"), ""));
    ASSERT_TRUE(lay(files, pathOf("Pentium.vbn"), fifth(1, "BIANCHI ANNA").bytes()));
    callUp("2");
    EXPECT_EQ(stored("Quartum.vbn").size(), 2U * 241);
    EXPECT_EQ(stored("Pentium.vbn").size(), 2U * 241);
    EXPECT_EQ(text("txtQuartusDal"), "//");
    EXPECT_EQ(text("txtPentiumDal"), "08-06-09");
    EXPECT_EQ(text("txtAutFer5Per"), "0");
    box("Modifica 4° Periodo", "Periodo non incluso nel conteggio");
    press("Frame28");
    press("Frame10");
    EXPECT_EQ(focused(), "txtPag5Df");
}

TEST_F(LiquidazioneVecchie, DatesOfAFourthPeriodThatAreMissingGoToEveryRecord) {
    layFive();
    Late one = fourth(1, "BIANCHI ANNA");
    Late two = fourth(2, "ROSSI MARIO");
    one.dates = two.dates = {"01-06-09", "        "};
    ASSERT_TRUE(lay(files, pathOf("Quartum.vbn"), one.bytes() + two.bytes()));
    callUp();
    box("Errore", "Date dei periodi incompleti");
    press("Frame28");
    EXPECT_EQ(focused(), "txtQuartusAl");
    type("txtQuartusAl", "7/6/09");
    leave();
    EXPECT_EQ(toHex(stored("Quartum.vbn")),
              toHex(fourth(1, "BIANCHI ANNA").bytes() + fourth(2, "ROSSI MARIO").bytes()));
}

TEST_F(LiquidazioneVecchie, ASingleElectionHasFourPeriods) {
    type_ = "Europee";
    layFive();
    callUp();
    EXPECT_TRUE(visible("Frame28"));
    EXPECT_FALSE(visible("Frame10"));
    EXPECT_FALSE(visible("Frame17"));
    click("cmdAnnulla3");
    menu("mnuAutoriz");
    EXPECT_TRUE(visible("Check12"));
    EXPECT_FALSE(visible("Check3"));
}

TEST_F(LiquidazioneVecchie, MunicipalElectionsAndThoseFrom2014OnHaveThree) {
    type_ = "Comunali";
    layFive();
    callUp();
    EXPECT_FALSE(visible("Frame28"));
    type_ = "Europee_Comunali";
    date_ = "25-05-14";
    layFive();
    callUp();
    EXPECT_FALSE(visible("Frame28"));
    EXPECT_FALSE(visible("Frame10"));
}

TEST_F(LiquidazioneVecchie, TheStatementTakesTheFourthPeriodIn) {
    layFive();
    std::string statement;
    for (int at = 0; at < 19; ++at) statement += amount(0, at == 1 || at == 12 || at == 14 ? 10000 : 0);
    ASSERT_TRUE(lay(files, pathOf("Rendi.vbn"), statement));
    open();
    name();
    payFive();
    click("cmdRicalcola");
    click("cmdSalva");
    // 213,49 + 50,81 + 18,15 = 282,45, and once more from the fourth period.
    EXPECT_EQ(toHex(stored("Rendi.vbn").substr(8, 8)), toHex(amount(564, 90)));
}

}  // namespace
}  // namespace vorbano::test
