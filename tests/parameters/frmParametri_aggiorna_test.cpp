// A stored election is rewritten at the rates of the other version, and rewritten back.

#include "versions_desk.h"

namespace vorbano::test {
namespace {

class Update : public VersionsDesk {
  protected:
    void openWith(const std::string& bytes) {
        layVersions();
        layEmployees(bytes);
        open();
        chooseElection();
    }
};

TEST_F(Update, ToTheNewTariffsReachesEveryEmployeeOfTheOldOnes) {
    openWith(oldB6 + stranger + oldC5);
    click("cmdTarNuove");
    EXPECT_EQ(toHex(employees()), toHex(newB6 + stranger + newC5));
    EXPECT_EQ(text("Label26"), "\nSONO APPLICATE LE    NUOVE TARIFFE");
    EXPECT_EQ(text("Label31"), "/");
    EXPECT_EQ(toHex(file("PmDip.dat")), toHex(inForce)) << "the table in force is another matter";
}

TEST_F(Update, BackToTheOldTariffsLeavesTheRowsAddedLater) {
    openWith(newB6 + stranger + newC5);
    click("cmdTarVecchie");
    EXPECT_EQ(toHex(employees()), toHex(oldB6 + stranger + newC5));
    EXPECT_EQ(text("Label26"), "\nSONO APPLICATE LE VECCHIE TARIFFE");
    EXPECT_EQ(text("Label31"), "\\");
}

TEST_F(Update, ASecondTimeChangesNoByte) {
    openWith(oldB6 + stranger + oldC5);
    click("cmdTarNuove");
    const auto once = filesOf(files, europee);
    click("cmdTarNuove");
    EXPECT_EQ(filesOf(files, europee), once);
    click("cmdTarVecchie");
    const auto back = filesOf(files, europee);
    click("cmdTarVecchie");
    EXPECT_EQ(filesOf(files, europee), back);
}

TEST_F(Update, KeepsTheStatementInStep) {
    openWith(oldB6 + stranger);
    click("cmdTarNuove");
    // 472,08 + 112,36 + 40,13, the stranger's 559,65 + 133,20 + 47,57, and 78,90 INAIL.
    EXPECT_EQ(statementNow().Straordinario, cent(144'389));
    EXPECT_EQ(statementNow().Totale, cent(112'345 - 12'345 + 144'389));
    EXPECT_EQ(statementNow().Differenza, cent(244'389 - 150'000));
    click("cmdTarVecchie");
    // 451,58 + 107,48 + 38,38.
    EXPECT_EQ(statementNow().Straordinario, cent(59'744 + 74'042 + 7'890));
    EXPECT_EQ(statementNow().Totale, cent(241'676));
}

TEST_F(Update, LeavesTheOtherFilesOfTheElection) {
    layVersions();
    layElection(files, fivePeriods, 2);
    const std::string path = employeesOf(fivePeriods);
    ASSERT_TRUE(lay(files, path, oldB6));
    const auto before = filesOf(files, fivePeriods);
    open();
    tick("Check46");
    tick("Check45");
    choose("Combo1", "Europee_Comunali");
    type("txtDataEle", "9/6/13");
    tick("Check45", false);
    EXPECT_EQ(text("txtDataEle"), "09-06-13");
    click("cmdTarNuove");
    EXPECT_EQ(toHex(contentOf(files, path)), toHex(newB6));
    for (const std::string_view name : {meirinFile, quartumFile, pentiumFile, duedateFile})
        EXPECT_EQ(contentOf(files, pathIn(fivePeriods, name)), before.at(std::string(name))) << name;
}

TEST_F(Update, TakesTheHiddenLabelsFromTheOtherVersion) {
    openWith(oldB6);
    EXPECT_EQ(text("Label33"), "");
    click("cmdTarVecchie");
    EXPECT_EQ(text("Label33"), "1,51");
    EXPECT_EQ(text("Label57"), "6,51") << "row D1";
    EXPECT_EQ(text("Label73"), "22,51") << "row A1, the last that is listed";
    for (const char* added :
         {"Label3", "Label42", "Label36", "Label32", "Label75", "Label77", "Label46", "Label81", "Label79", "Label6"})
        EXPECT_EQ(text(added), "") << added;
    click("cmdTarNuove");
    EXPECT_EQ(text("Label33"), "1,01");
    EXPECT_EQ(text("Label73"), "22,01");
    EXPECT_EQ(text("Label3"), "23,01");
    EXPECT_EQ(text("Label6"), "32,01");
    click("cmdTarVecchie");
    EXPECT_EQ(text("Label33"), "1,51");
    EXPECT_EQ(text("Label6"), "32,01") << "they keep what they had";
}

TEST_F(Update, EveryRowHasALabelOfItsOwnInItsOrder) {
    openWithVersions();
    ASSERT_TRUE(screen->listaold());
    constexpr std::array<int, 32> numbers = {33, 53, 54, 55, 56, 57, 58, 59, 60, 61, 62, 63, 64, 65, 66, 67,
                                             68, 69, 70, 71, 72, 73, 3,  42, 36, 32, 75, 77, 46, 81, 79, 6};
    for (int n = 1; n <= 32; ++n) {
        const std::string name = "Label" + std::to_string(numbers[static_cast<std::size_t>(n) - 1]);
        EXPECT_EQ(text(name), std::to_string(n) + ",01") << name;
    }
}

TEST_F(Update, OfNobodyIsNoneWhenTheOtherVersionWasNeverSaved) {
    openWith(oldB6 + employeeWith("D2", {0, 0, 0, 0}));
    const std::string before = employees();
    ASSERT_TRUE(lay(files, "Params/OldPmDip.dat", ""));
    click("cmdTarNuove");
    EXPECT_EQ(employees(), before);
}

TEST_F(Update, OfARateOfZeroFollowsTheFirstRowThatHasZero) {
    layVersions();
    const auto oneZero = [](int number, int kind) { return number == 5 ? 0 : oldCents(number, kind); };
    ASSERT_TRUE(lay(files, "Params/OldPmDip.dat", tariffBytes("\\", oneZero)));
    layEmployees(employeeWith("A6", {0, 0, 0, 0}));
    open();
    chooseElection();
    click("cmdTarNuove");
    // Row 5 of the new tariffs: 25 x 5,51 + 15 x 5,52 + 5,53 = 226,08.
    const auto record = recordFrom<EmployeeRecord>(employees());
    EXPECT_EQ(record.pay.rates[0], cent(551));
    EXPECT_EQ(record.pay.Dovuto, cent(22'608));
}

TEST_F(Update, WithoutADateOnlyShowsTheVersion) {
    layVersions();
    layEmployees(oldB6);
    open();
    tick("Check45");
    choose("Combo1", "Europee");
    tick("Check45", false);
    desktop.box(ofElections, insufficient);
    click("cmdTarNuove");
    EXPECT_EQ(text("txtD5Day"), "1,51");
    EXPECT_EQ(text("Label26"), "\nSONO APPLICATE LE    NUOVE TARIFFE");
    EXPECT_EQ(screen->cmdTarNuove.tone(), Tone::active);
    desktop.box(ofElections, insufficient);
    click("cmdTarVecchie");
    EXPECT_EQ(text("txtD5Day"), "1,01");
    EXPECT_EQ(employees(), oldB6);
    EXPECT_EQ(file("PmDip.dat"), inForce);
}

TEST_F(Update, OfAnElectionNotEnteredIsTold) {
    openWith("");
    const std::string shownBefore = "\\";
    desktop.box("Elezioni Europee", "Elezione non ancora inserita");
    click("cmdTarVecchie");
    EXPECT_EQ(text("Label31"), shownBefore);
    for (const char* date : {"10-06-24", "99-99-99"}) {
        type("txtDataEle", date);
        desktop.box("Elezioni Europee", "Elezione non ancora inserita");
        click("cmdTarNuove");
        EXPECT_EQ(contentOf(files, "Elezioni/Europee/" + std::string(date) + "/" + date + ".vbn"), noFile);
    }
    EXPECT_EQ(bytesOf(statementNow()), bytesOf(statement()));
}

TEST_F(Update, ADateThatNamesNoFolderOfTheTypeIsToldTheSameWay) {
    openWith(oldB6);
    for (const char* date : {"//", "09/06", "/Params"}) {
        type("txtDataEle", date);
        desktop.box("Elezioni Europee", "Elezione non ancora inserita");
        click("cmdTarNuove");
    }
    EXPECT_EQ(employees(), oldB6);
}

TEST_F(Update, AskedForIsAnnouncedAndThenDoneByTheVersion) {
    layVersions();
    layEmployees(oldB6);
    open();
    tick("Check45");
    choose("Combo1", "Europee");
    choose("Combo2", "09-06-24");
    const std::string question =
        "ATTENZIONE!\nSTATE PER ATTIVARE L'AGGIORNAMENTO DELLE TARIFFE PER LE ELEZIONI: "
        "EUROPEE DEL 09-06-24                                                               "
        "    \nVOLETE AVVIARE IL PROCEDIMENTO?";
    ASSERT_EQ(std::count(question.begin() + 80, question.end(), ' '), 2 + 67 + 3) << "counted by hand";
    desktop.box("Aggiornamento tariffe compenso lavoro straordinario", question, ScriptedDesktop::Answer::yes);
    desktop.box("Tariffe", "Aggiornamento effettuato");
    click("cmdAggTar");
    EXPECT_FALSE(ticked("Check45"));
    EXPECT_EQ(text("Label33"), "1,01");
    EXPECT_EQ(text("Label6"), "32,01");
    EXPECT_EQ(employees(), oldB6) << "not yet";
    EXPECT_EQ(text("Combo1"), "Europee");
    EXPECT_EQ(text("txtDataEle"), "09-06-24");
    click("cmdTarNuove");
    EXPECT_EQ(toHex(employees()), toHex(newB6));
}

TEST_F(Update, DeclinedLeavesTheChoiceOpen) {
    layVersions();
    layEmployees(oldB6);
    open();
    tick("Check45");
    choose("Combo1", "Europee");
    choose("Combo2", "09-06-24");
    desktop.box("Aggiornamento tariffe compenso lavoro straordinario",
                "ATTENZIONE!\nSTATE PER ATTIVARE L'AGGIORNAMENTO DELLE TARIFFE PER LE ELEZIONI: EUROPEE DEL 09-06-24" +
                    std::string(67, ' ') + "\nVOLETE AVVIARE IL PROCEDIMENTO?",
                ScriptedDesktop::Answer::no);
    click("cmdAggTar");
    EXPECT_TRUE(ticked("Check45"));
    EXPECT_EQ(text("Label33"), "");
}

TEST_F(Update, OfNoElectionCannotBeAskedFor) {
    layVersions();
    layEmployees(oldB6);
    open();
    tick("Check45");
    desktop.box(ofElections, insufficient);
    click("cmdAggTar");
    choose("Combo1", "Europee");
    desktop.box(ofElections, insufficient);
    click("cmdAggTar");
    EXPECT_TRUE(ticked("Check45"));
}

}  // namespace
}  // namespace vorbano::test
