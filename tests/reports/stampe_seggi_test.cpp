// The boxes, the counts and the panels of the stations.

#include "stampe_seggi_desk.h"

namespace vorbano::test {
namespace {

class StampeSeggi : public StampeSeggiDesk {};

TEST_F(StampeSeggi, HaveTheirCaptionsAndWaitForTheSearch) {
    auto& stampe = open();
    EXPECT_EQ(stampe.Check1.text(), "Normali");
    EXPECT_EQ(stampe.Check2.text(), "Speciali");
    EXPECT_EQ(stampe.Check3.text(), "1° Turno");
    EXPECT_EQ(stampe.Check4.text(), "Ballottaggio");
    EXPECT_EQ(stampe.cmdRSeggi.text(), "RIEPILOGO SEGGI");
    EXPECT_EQ(stampe.cmdSSeggio.text(), "ANTEPRIMA SINGOLO SEGGIO");
    EXPECT_EQ(stampe.cmdTSeggi.text(), "STAMPA TUTTI I SEGGI");
    for (const Control* control : {static_cast<Control*>(&stampe.Check1), static_cast<Control*>(&stampe.Check4),
                                   static_cast<Control*>(&stampe.cmdRSeggi), static_cast<Control*>(&stampe.cmdSSeggio),
                                   static_cast<Control*>(&stampe.cmdTSeggi)}) {
        EXPECT_TRUE(control->isVisible()) << control->name();
        EXPECT_FALSE(control->isEnabled()) << control->name();
    }
    EXPECT_FALSE(stampe.Frame1.isVisible());
    EXPECT_FALSE(stampe.Frame2.isVisible());
}

TEST_F(StampeSeggi, ASearchThatFindsThemLightsAndTicks) {
    find("Comunali");
    auto& stampe = screen();
    EXPECT_TRUE(stampe.Check1.checked());
    EXPECT_TRUE(stampe.Check3.checked());
    EXPECT_FALSE(stampe.Check2.checked());
    EXPECT_FALSE(stampe.Check4.checked());
    for (const Button* command : {&stampe.cmdRSeggi, &stampe.cmdSSeggio, &stampe.cmdTSeggi}) {
        EXPECT_TRUE(command->isOperable()) << command->name();
    }
    EXPECT_EQ(stampe.txtSeggiSu.text(), "3");
    EXPECT_EQ(stampe.txtSpeciali.text(), "2");
    EXPECT_TRUE(stampe.txtSeggiSu.isLocked());
    EXPECT_TRUE(stampe.txtSpeciali.isLocked());
}

TEST_F(StampeSeggi, BoxesOfAPairExcludeEachOther) {
    find("Comunali");
    auto& stampe = screen();
    tick(stampe.Check2);
    EXPECT_FALSE(stampe.Check1.checked());
    EXPECT_TRUE(stampe.Check3.checked()) << "the other pair stays";
    tick(stampe.Check4);
    EXPECT_FALSE(stampe.Check3.checked());
    EXPECT_TRUE(stampe.Check2.checked());
    tick(stampe.Check1);
    tick(stampe.Check3);
    EXPECT_FALSE(stampe.Check2.checked());
    EXPECT_FALSE(stampe.Check4.checked());
    tick(stampe.Check3, false);
    EXPECT_FALSE(stampe.Check4.checked()) << "a box that is cleared ticks no other";
}

TEST_F(StampeSeggi, CountsAreThoseOfTheRound) {
    ASSERT_TRUE(layStations(files, "Comunali"));
    // In the run-off the first records tell five and one.
    const std::string folder = "Elezioni/Comunali/09-06-24/";
    ASSERT_TRUE(lay(files, folder + "SegSuf.vbn", stationBytes({1, 5, 2}, "B", 100, 100, normalRunOff)));
    ASSERT_TRUE(lay(files, folder + "SpecSufr.vbn", stationBytes({1, 1, 2}, "R", 100, 100, specialRunOff)));
    open();
    search("Comunali", "09-06-24");
    auto& stampe = screen();
    tick(stampe.Check4);
    EXPECT_EQ(stampe.txtSeggiSu.text(), "5");
    EXPECT_EQ(stampe.txtSpeciali.text(), "1");
    tick(stampe.Check2);
    EXPECT_EQ(stampe.txtSpeciali.text(), "1");
    tick(stampe.Check3);
    EXPECT_EQ(stampe.txtSeggiSu.text(), "3");
    EXPECT_EQ(stampe.txtSpeciali.text(), "2");
    tick(stampe.Check3, false);
    EXPECT_EQ(stampe.txtSeggiSu.text(), "");
    EXPECT_EQ(stampe.txtSpeciali.text(), "");
}

TEST_F(StampeSeggi, EveryCommandWantsBothPairs) {
    find("Comunali");
    auto& stampe = screen();
    const std::array commands = {&stampe.cmdRSeggi, &stampe.cmdSSeggio, &stampe.cmdTSeggi};
    const auto refused = [&] {
        for (Button* command : commands) {
            desktop.box("Stampa Seggi", "Selezionare il tipo di seggi da stampare");
            click(*command);
        }
        EXPECT_TRUE(printing.jobs.empty());
        EXPECT_FALSE(stampe.Frame1.isVisible() || stampe.Frame2.isVisible());
    };
    tick(stampe.Check3, false);
    refused();
    tick(stampe.Check3);
    tick(stampe.Check1, false);
    refused();
    tick(stampe.Check3, false);
    refused();
}

TEST_F(StampeSeggi, OneStationIsChosenOnThePanelOfItsKind) {
    find("Comunali");
    auto& stampe = screen();
    click(stampe.cmdSSeggio);
    EXPECT_TRUE(stampe.Frame1.isVisible());
    EXPECT_FALSE(stampe.Frame2.isVisible());
    EXPECT_EQ(stampe.Combo3.items(), (Lines{"1", "2", "3"}));
    EXPECT_EQ(stampe.form.focused(), &stampe.Combo3);
    tick(stampe.Check2);
    EXPECT_FALSE(stampe.Frame1.isVisible()) << "the list belonged to another choice";
    click(stampe.cmdSSeggio);
    EXPECT_FALSE(stampe.Frame1.isVisible());
    EXPECT_TRUE(stampe.Frame2.isVisible());
    EXPECT_EQ(stampe.Combo2.items(), (Lines{"4", "1"})) << "in the order of the file";
}

TEST_F(StampeSeggi, TheListIsOfTheRoundChosen) {
    ASSERT_TRUE(layStations(files, "Comunali"));
    ASSERT_TRUE(lay(files, "Elezioni/Comunali/09-06-24/SegSuf.vbn",
                    stationBytes({2, 3, 2}, "B", 100, 100, normalRunOff) +
                        stationBytes({5, 3, 1}, "B", 100, 100, normalRunOff) +
                        stationBytes({2, 3, 1}, "B", 100, 100, normalRunOff)));
    open();
    search("Comunali", "09-06-24");
    tick(screen().Check4);
    click(screen().cmdSSeggio);
    EXPECT_EQ(screen().Combo3.items(), (Lines{"2", "5", "2"})) << "a number is taken when it differs from the last";
    tick(screen().Check3);
    click(screen().cmdSSeggio);
    EXPECT_EQ(screen().Combo3.items(), (Lines{"1", "2", "3"}));
    EXPECT_EQ(screen().Combo3.text(), "");
}

TEST_F(StampeSeggi, SearchTakenBackPutsEverythingBack) {
    find("Comunali");
    auto& stampe = screen();
    click(stampe.cmdSSeggio);
    click(stampe.cmdRiavvia);
    EXPECT_FALSE(stampe.Frame1.isVisible());
    EXPECT_EQ(stampe.txtSeggiSu.text(), "");
    EXPECT_EQ(stampe.txtSpeciali.text(), "");
    for (const Control* control :
         {static_cast<Control*>(&stampe.Check1), static_cast<Control*>(&stampe.Check3),
          static_cast<Control*>(&stampe.cmdRSeggi), static_cast<Control*>(&stampe.cmdTSeggi)}) {
        EXPECT_FALSE(control->isEnabled()) << control->name();
    }
    EXPECT_FALSE(stampe.Check1.checked() || stampe.Check3.checked());
}

class OneStationNumber : public StampeSeggiDesk {
  protected:
    /// The message for this number in the panel of the normal stations.
    void refused(int number, const std::string& title, const std::string& text) {
        click(screen().cmdSSeggio);
        if (number >= 0) choose(screen().Combo3, std::to_string(number));
        desktop.box(title, text);
        click(screen().cmdStampa);
        EXPECT_EQ(screen().form.focused(), &screen().Combo3);
        EXPECT_TRUE(printing.jobs.empty());
        expectEmptyTables();
    }
    void findStations(std::initializer_list<int> numbers, int stations) {
        std::string bytes;
        for (const int number : numbers) bytes += stationBytes({number, stations, 2}, "N", 15000, 12000);
        ASSERT_TRUE(lay(files, "Elezioni/Comunali/09-06-24/Seggi.vbn", bytes));
        open();
        search("Comunali", "09-06-24");
    }
};

TEST_F(OneStationNumber, MissingIsRefusedWithTheFirstOfItsTwoTexts) {
    findStations({1, 2}, 2);
    refused(-1, "Errore", "Non è stato inserito il numero di seggio da stampare!");
}

TEST_F(OneStationNumber, ZeroIsWrong) {
    findStations({0, 1}, 2);
    refused(0, "Errore!", "E' stato inserito un numero di seggio errato");
}

TEST_F(OneStationNumber, AboveTheCountOnTheScreenIsRefusedThoughTheFileHasIt) {
    findStations({1, 2, 3}, 2);
    refused(3, "Errore", "E' stato inserito un numero superiore a quello dei seggi!");
}

TEST_F(OneStationNumber, NotInTheFileAnyMoreIsTold) {
    findStations({1, 2}, 2);
    click(screen().cmdSSeggio);
    choose(screen().Combo3, "2");
    ASSERT_TRUE(lay(files, "Elezioni/Comunali/09-06-24/Seggi.vbn", stationBytes({1, 2, 2}, "N", 15000, 12000)));
    desktop.box("Anteprima stampa seggi", "Seggio non ancora inserito");
    click(screen().cmdStampa);
    EXPECT_TRUE(printing.jobs.empty());
}

TEST_F(OneStationNumber, OfASpecialStationIsMeasuredByTheCountToo) {
    find("Comunali");
    tick(screen().Check2);
    click(screen().cmdSSeggio);
    desktop.box("Errore", "Non è stato inserito il numero di seggio da stampare!");
    click(screen().cmdStampaSpeciali);
    EXPECT_EQ(screen().form.focused(), &screen().Combo2);
    // There are two special stations, and this one is number 4.
    choose(screen().Combo2, "4");
    desktop.box("Errore", "E' stato inserito un numero superiore a quello dei seggi!");
    click(screen().cmdStampaSpeciali);
    choose(screen().Combo2, "1");
    click(screen().cmdStampaSpeciali);
    expectJob("SegSpeciale.rpt", "COMPONENTI SEGGIO", Destination::preview);
}

}  // namespace
}  // namespace vorbano::test
