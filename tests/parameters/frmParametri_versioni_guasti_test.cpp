// The disk fails or stops at every operation of a version command: each file is whole afterwards, old or new, and the
// command can be given again.

#include "support/fault_stage.h"
#include "versions_desk.h"

namespace vorbano::test {
namespace {

using ::testing::AnyOf;

/// The files that a command changes, before and after.
struct Change {
    std::string path, before, after;
};

class VersionFaults : public VersionsDesk {
  protected:
    FailingFileSystem failing{files};

    void prepare(const std::vector<Change>& changes) {
        failing.failOnce(0);
        files.remove("Elezioni/Europee/09-06-24/Reverse.vbn").ignore();
        layVersions();
        for (const Change& each : changes) {
            ASSERT_TRUE(lay(files, each.path, each.before));
        }
        openOn(failing, staging, printing);
    }
    void expectWhole(const std::vector<Change>& changes) {
        for (const Change& each : changes)
            EXPECT_THAT(contentOf(files, each.path), AnyOf(each.before, each.after)) << each.path;
    }
    void expectDone(const std::vector<Change>& changes) {
        for (const Change& each : changes)
            EXPECT_EQ(toHex(contentOf(files, each.path)), toHex(each.after)) << each.path;
    }

    /// Plays the command on a disk that fails once, then on one that stops for good, at every operation that it has,
    /// and once more on the disk mended. `getReady` are the gestures before it.
    template <class GetReady, class Give>
    void underEveryFault(const FaultCase& of, const std::vector<Change>& changes, const GetReady& getReady,
                         const Give& give) {
        prepare(changes);
        getReady();
        const int operations = operationsOf(failing, give);
        EXPECT_GE(operations, 3);
        expectDone(changes);
        for (const Fault fault : bothFaults) {
            atEveryOperation(of, operations, [&](int n) {
                prepare(changes);
                getReady();
                strike(failing, fault, n);
                give();
                failing.failOnce(0);
                if (fault == Fault::once) {
                    EXPECT_THAT(desktop.finish(), onlyAnError());
                } else {
                    EXPECT_THAT(desktop.finish(), ::testing::Not(::testing::IsEmpty()));
                    files.cutPower();
                }
                expectWhole(changes);
                if (fault == Fault::forGood) {
                    openOn(failing, staging, printing);
                    getReady();
                }
                give();
                expectDone(changes);
            });
        }
    }
};

TEST_F(VersionFaults, TheNewTariffsComeIntoForce) {
    underEveryFault(
        {"frmParametri.cmdTarNuove", "the table"}, {{"Params/PmDip.dat", inForce, newVersion}}, [] {},
        [&] { click("cmdTarNuove"); });
}

TEST_F(VersionFaults, TheOldTariffsComeIntoForce) {
    underEveryFault(
        {"frmParametri.cmdTarVecchie", "the table"}, {{"Params/PmDip.dat", newVersion, oldVersion}}, [] {},
        [&] { click("cmdTarVecchie"); });
}

/// The statement with the overtime of one employee and 78,90 INAIL.
std::string statementOf(int cents) {
    RendiRecord record = statement();
    record.Straordinario = cent(cents);
    record.Totale = cent(100'000 + cents);
    record.Differenza = cent(100'000 + cents - 150'000);
    return bytesOf(record);
}

TEST_F(VersionFaults, AnElectionIsRewritten) {
    ASSERT_TRUE(lay(files, pathIn(europee, meirinFile), meirinBytes()));
    underEveryFault(
        {"frmParametri.cmdTarNuove", "an election"},
        {{employeesOf(europee), oldB6, newB6},
         {pathIn(europee, rendiFile), statementOf(12'345), statementOf(62'457 + 7'890)}},
        [&] { chooseElection(); }, [&] { click("cmdTarNuove"); });
}

TEST_F(VersionFaults, AnElectionIsRewrittenBack) {
    ASSERT_TRUE(lay(files, pathIn(europee, meirinFile), meirinBytes()));
    underEveryFault(
        {"frmParametri.cmdTarVecchie", "an election"},
        {{employeesOf(europee), newB6, oldB6},
         {pathIn(europee, rendiFile), statementOf(12'345), statementOf(59'744 + 7'890)}},
        [&] { chooseElection(); }, [&] { click("cmdTarVecchie"); });
}

TEST_F(VersionFaults, AVersionNeverSavedLeavesTheTableWithoutMark) {
    underEveryFault(
        {"frmParametri.cmdTarNuove", "no version yet"},
        {{"Params/PmDip.dat", inForce, tariffBytes("", oldCents)}, {"Params/NewPmDip.dat", "", ""}}, [] {},
        [&] { click("cmdTarNuove"); });
}

TEST_F(VersionFaults, TheNewTariffsBegin) {
    underEveryFault(
        {"frmParametri.cmdSalvaNuove", "the table"}, {{"Params/NewPmDip.dat", "", tariffBytes("/", oldCents)}}, [] {},
        [&] { click("cmdSalvaNuove"); });
}

TEST_F(VersionFaults, TheOldTariffsBegin) {
    underEveryFault(
        {"frmParametri.cmdSalvaVecchie", "the table"}, {{"Params/OldPmDip.dat", "", oldVersion}}, [] {},
        [&] { click("cmdSalvaVecchie"); });
}

TEST_F(VersionFaults, AVersionThatCannotBeLookedIntoDoesNotBeginAnew) {
    layVersions();
    ASSERT_TRUE(lay(files, "Params/NewPmDip.dat", ""));
    // The types of elections are listed first; then the new version is opened and measured.
    for (const int n : {2, 3}) {
        failing.failOnce(n);
        openOn(failing, staging, printing);
        failing.failOnce(0);
        EXPECT_FALSE(visible("cmdSalvaNuove"));
    }
    openOn(failing, staging, printing);
    EXPECT_TRUE(visible("cmdSalvaNuove"));
}

TEST_F(VersionFaults, TheAnnouncementOfAnUpdateIsNotMadeWhenTheOldTariffsCannotBeRead) {
    ASSERT_TRUE(files.makeFolder("Elezioni").ok());
    ASSERT_TRUE(files.makeFolder("Elezioni/Europee").ok());
    ASSERT_TRUE(files.makeFolder("Elezioni/Europee/09-06-24").ok());
    prepare({});
    tick("Check45");
    choose("Combo1", "Europee");
    choose("Combo2", "09-06-24");
    desktop.box("Aggiornamento tariffe compenso lavoro straordinario",
                "ATTENZIONE!\nSTATE PER ATTIVARE L'AGGIORNAMENTO DELLE TARIFFE PER LE ELEZIONI: EUROPEE DEL 09-06-24" +
                    std::string(67, ' ') + "\nVOLETE AVVIARE IL PROCEDIMENTO?",
                ScriptedDesktop::Answer::yes);
    failing.failOnce(1);
    click("cmdAggTar");
    failing.failOnce(0);
    EXPECT_THAT(desktop.finish(), onlyAnError());
    EXPECT_TRUE(ticked("Check45"));
}

TEST_F(VersionFaults, AReadOnlyEmployeeFileIsToldAndNothingChanges) {
    layVersions();
    layEmployees(oldB6);
    files.makeReadOnly(employeesOf(europee));
    open();
    chooseElection();
    desktop.box("Errore",
                "Il file Elezioni/Europee/09-06-24/09-06-24.vbn non può essere letto o scritto: controllare "
                "che non sia di sola lettura.");
    click("cmdTarNuove");
    EXPECT_EQ(employees(), oldB6);
    EXPECT_EQ(bytesOf(statementNow()), bytesOf(statement()));
}

}  // namespace
}  // namespace vorbano::test
