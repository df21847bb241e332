// Installations as they come: elections of before 2014 with five periods, names in another case, files that may not be
// written.

#include "authorisation_desk.h"

namespace vorbano::test {
namespace {

class Vecchie : public AuthorisationTest {
  protected:
    static constexpr const char* folder = "Elezioni/Europee_Comunali/26-05-13/";

    /// Two of three employees of an election with five periods: pools of 180, 90 and 60 hours, 54 of the fourth and 30
    /// of the fifth period, 414 in all.
    static std::string oldEmployee(int number, std::string_view name, int globo = 414, int used = 0) {
        return Sheet(301)
            .integersAt(0, {60, used, 180, globo, number, 3})
            .at(12, padded(name, 60))
            .at(72, "01-04-13")
            .at(80, "30-04-13")
            .integersAt(88, {10, 4, 2, 0, 0, 0, 0})
            .at(102, "01-05-13")
            .at(110, "15-05-13")
            .integersAt(118, {5, 3, 1, 0, 0, 0, 0})
            .at(132, "16-05-13")
            .at(140, "25-05-13")
            .integersAt(148, {2, 1, 0, 0, 0, 0, 0})
            .integersAt(162, {28, 0, 0, 0, 0})
            .at(172, padded("D3", 7))
            .at(179, padded("-", 10))
            .amountsAt(189, {1004, 2004, 3004, 0, 2380, 0, 850, 0, 0, 880, 0, 35, 0, 0})
            .bytes();
    }
    static std::string oldMeirin() {
        return Sheet(86)
            .amountsAt(0, {123456})
            .at(8, "16-07-13")
            .amountsAt(16, {7890})
            .integersAt(24, {60, 30, 20})
            .integersAt(30, {180, 90, 60})
            .integersAt(36, {1, 1, 1})
            .integersAt(42, {18, 54, 1})
            .amountsAt(48, {4321})
            .integersAt(56, {10, 30, 1})
            .amountsAt(62, {98765})
            .at(70, "16-08-13")
            .amountsAt(78, {3569})
            .bytes();
    }
    void layOldElection() {
        const std::string path(folder);
        ASSERT_TRUE(lay(files, path + "26-05-13.vbn", oldEmployee(1, "PRIMO") + oldEmployee(2, "SECONDO")));
        ASSERT_TRUE(lay(files, path + "Meirin.vbn", oldMeirin()));
        ASSERT_TRUE(lay(files, path + "Duedate.vbn", "28-03-1329-03-13"));
        ASSERT_TRUE(lay(files, path + "Quartum.vbn", std::string(482, 'q')));
        ASSERT_TRUE(lay(files, path + "Pentium.vbn", std::string(482, 'p')));
    }
    void takeUp(const char* number = "3") {
        open();
        identify("Europee_Comunali", "26/5/13", number);
        box("Inserimento Dipendenti", alreadyStored(2, "SECONDO"), Answer::yes);
        click("cmdAttiva");
    }
    std::string old(const char* name) { return contentOf(files, folder + std::string(name)); }
};

TEST_F(Vecchie, FivePeriodsAreTakenUpWithTheThreeThatTheScreenShows) {
    layOldElection();
    takeUp();
    EXPECT_EQ(text("txtSonoDip"), "3");
    EXPECT_EQ(text("txtTerDal") + " " + text("txtTerAl"), "16-05-13 25-05-13");
    EXPECT_EQ(figures(1), "60 180 60");
    EXPECT_EQ(figures(2), "30 90 30");
    EXPECT_EQ(figures(3), "20 60 20");
    EXPECT_EQ(text("txtGlobo"), "414") << "the pools of the fourth and fifth period still count";
    EXPECT_FALSE(visible("Frame13"));
    EXPECT_FALSE(visible("Frame18"));
}

TEST_F(Vecchie, FivePeriodsAreContinuedWithoutTouchingTheLaterOnes) {
    layOldElection();
    takeUp();
    type("txtNameDip", "TERZO");
    hours(1, "10", "4", "2");
    hours(2, "5", "3", "1");
    hours(3, "2", "1", "0");
    chooseRate(4);
    click("cmdSalva");
    EXPECT_EQ(toHex(old("26-05-13.vbn")),
              toHex(oldEmployee(1, "PRIMO") + oldEmployee(2, "SECONDO") + oldEmployee(3, "TERZO")));
    EXPECT_EQ(toHex(old("Meirin.vbn")), toHex(oldMeirin()));
    EXPECT_EQ(old("Quartum.vbn"), std::string(482, 'q'));
    EXPECT_EQ(old("Pentium.vbn"), std::string(482, 'p'));
    EXPECT_EQ(old("Duedate.vbn"), "28-03-1329-03-13");
}

TEST_F(Vecchie, NewDatesKeepThePoolsOfTheLaterPeriods) {
    layOldElection();
    takeUp();
    menu("mnuDate");
    type("txtTreal", "20/05/13");
    click("Command1");
    // Five days instead of ten: 30 hours less.
    std::string first = oldEmployee(1, "PRIMO", 384);
    std::string second = oldEmployee(2, "SECONDO", 384);
    first.replace(140, 8, "20-05-13");
    second.replace(140, 8, "20-05-13");
    EXPECT_EQ(toHex(old("26-05-13.vbn")), toHex(first + second));
    EXPECT_EQ(old("Meirin.vbn").substr(42), oldMeirin().substr(42));
}

TEST_F(Vecchie, NamesInAnotherCaseAreFoundAndKept) {
    toName();
    saveEmployee("IMPIEGATO 1");
    const std::string employees = stored("09-06-24.vbn");
    const std::string limits = stored("Meirin.vbn");
    MemoryFileSystem other;
    ASSERT_TRUE(lay(other, "PARAMS/PMDIP.DAT", pmDipBytes()));
    ASSERT_TRUE(lay(other, "PARAMS/conprev.dat ", conprevBytes()));
    ASSERT_TRUE(lay(other, "PARAMS/DIPEND.DAT", padded("VERDI ALDO", 60)));
    ASSERT_TRUE(lay(other, "ELEZIONI/EUROPEE/09-06-24/09-06-24.VBN", employees));
    ASSERT_TRUE(lay(other, "ELEZIONI/EUROPEE/09-06-24/MEIRIN.VBN", limits));
    ASSERT_TRUE(lay(other, "ELEZIONI/EUROPEE/09-06-24/DUEDATE.VBN", "15-04-2418-04-24"));
    openOn(other);
    identify("Europee", "09/06/24", "6");
    box("Inserimento Dipendenti", alreadyStored(1, "IMPIEGATO 1"), Answer::yes);
    click("cmdAttiva");
    EXPECT_EQ(text("Label93"), "15-04-24");
    saveEmployee("VERDI ALDO");
    EXPECT_EQ(contentOf(other, "Elezioni/Europee/09-06-24/09-06-24.vbn").size(), 602U);
    const auto entries = other.list("Elezioni/Europee/09-06-24").valueOr({});
    std::vector<std::string> found;
    for (const Entry& entry : entries) found.push_back(entry.name);
    EXPECT_THAT(found, ::testing::UnorderedElementsAre("09-06-24.VBN", "MEIRIN.VBN", "DUEDATE.VBN"));
    EXPECT_EQ(contentOf(other, "Params/Dipend.dat"), padded("VERDI ALDO", 60));
    desktop.shut(screen->form);
    screen.reset();
}

class SolaLettura : public AuthorisationTest {
  protected:
    static std::string refusedWords(const std::string& path) {
        return "Il file " + path + " non può essere letto o scritto: controllare che non sia di sola lettura.";
    }
};

TEST_F(SolaLettura, AnInstallationIsToldAtOnce) {
    files.makeReadOnly("");
    box("Errore", refusedWords("Params/Conprev.dat"));
    open();
    EXPECT_FALSE(screen->mnuModifica.enabled());
    EXPECT_FALSE(screen->mnuDipendenti.enabled());
}

TEST_F(SolaLettura, AMissingFolderOfParametersIsToldAtOnce) {
    MemoryFileSystem empty;
    box("Errore", "Manca la cartella del file Params/Conprev.dat.");
    openOn(empty);
    desktop.shut(screen->form);
    screen.reset();
}

TEST_F(SolaLettura, AFolderOfElectionsIsToldAtSalvaAndNothingIsLost) {
    ASSERT_TRUE(files.makeFolder("Elezioni"));
    files.makeReadOnly("Elezioni");
    toName();
    enterEmployee();
    box("Errore", refusedWords("Elezioni/Europee"));
    click("cmdSalva");
    EXPECT_TRUE(operable("cmdSalva"));
    EXPECT_EQ(text("txtNameDip"), "ROSSI MARIA");
    EXPECT_EQ(text("txtAutFer1Per"), "10");
}

TEST_F(SolaLettura, AListOfNamesIsToldAtSalvaAndNothingIsStoredTwice) {
    toName();
    ASSERT_TRUE(lay(files, "Params/Dipend.dat", ""));
    files.makeReadOnly("Params/Dipend.dat");
    enterEmployee();
    box("Errore", refusedWords("Params/Dipend.dat"));
    click("cmdSalva");
    EXPECT_TRUE(operable("cmdSalva"));
    box("Errore", refusedWords("Params/Dipend.dat"));
    click("cmdSalva");
    EXPECT_EQ(stored("09-06-24.vbn"), "") << "the employee comes last";
}

TEST_F(SolaLettura, LimitsThatCannotBeReadStopTheTakingUp) {
    toName();
    saveEmployee();
    files.makeReadOnly(pathOf("Meirin.vbn"));
    open();
    identify("Europee", "09/06/24", "6");
    box("Inserimento Dipendenti", alreadyStored(1, "ROSSI MARIA"), Answer::yes);
    box("Errore", refusedWords(pathOf("Meirin.vbn")));
    click("cmdAttiva");
    EXPECT_EQ(text("cmdAttiva"), "Attiva");
    EXPECT_EQ(text("txtSonoDip"), "");
}

TEST_F(SolaLettura, RatesThatCannotBeReadAreTold) {
    toName();
    type("txtNameDip", "ROSSI MARIA");
    hours(1, "10", "4", "2");
    hours(2, "5", "3", "1");
    click("CmdRiepilogo");
    files.makeReadOnly("Params/PmDip.dat");
    tick("Check2");
    box("Errore", refusedWords("Params/PmDip.dat"));
    click("cmdTariffe");
    EXPECT_EQ(screen->MSFlexGrid1.rows(), 0);
}

}  // namespace
}  // namespace vorbano::test
