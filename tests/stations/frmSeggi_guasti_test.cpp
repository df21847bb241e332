// The disk fails or stops at every operation of every command of both entry screens: the file is whole afterwards, old
// or new, the clerk is told, and what was typed stays so that the command can be given again.

#include "seggi_desk.h"
#include "support/fault_stage.h"

namespace vorbano::test {
namespace {

using ::testing::AnyOf;
using ::testing::IsEmpty;
using ::testing::Not;

constexpr const char* seggiRevPath = "Elezioni/Europee/09-06-24/SeggiRev.vbn";

class SeggiFaults : public SeggiTest {
  protected:
    /// The election as `stored` on a failing disk; the entry is taken up again after member `place` of station 1.
    void prepare(const std::string& stored, int place) {
        failing.failOnce(0);
        ASSERT_TRUE(lay(files, seggiPath, stored));
        openOn(failing);
        resume(1, place);
    }
    void prepareNew() {
        failing.failOnce(0);
        files.remove(seggiPath).ignore();
        openOn(failing);
        chooseElection();
        click("cmdAttiva");
        beginStation("3");
        typeMember({.size = 3});
    }
    void expectTold() { EXPECT_THAT(desktop.finish(), onlyAnError()); }

    FailingFileSystem failing{files};
    const MemberOnPaper first{.size = 3};
    const MemberOnPaper second{.size = 3, .place = 2, .role = "Segretario", .surname = "Verdi", .fee = 11'900};
};

TEST_F(SeggiFaults, AMemberThatCannotBeStoredStaysOnTheScreenAndIsNeverStoredTwice) {
    const std::string before = memberBytes(first);
    const std::string after = before + memberBytes(second);
    const auto ready = [&] {
        prepare(before, 1);
        typeMember(second);
    };
    ready();
    const int operations = operationsOf(failing, [&] { click("cmdSalva"); });
    EXPECT_EQ(toHex(file(seggiPath)), toHex(after));
    // Three folders, and the file: opened, counted, written, flushed.
    EXPECT_GE(operations, 7);
    atEveryOperation({"frmSeggi.cmdSalva", "second member"}, operations, [&](int n) {
        ready();
        failingOnce(failing, n, [&] { click("cmdSalva"); });
        expectTold();
        EXPECT_THAT(toHex(file(seggiPath)), AnyOf(toHex(before), toHex(after)));
        EXPECT_EQ(text("txtCompo1"), "Verdi");
        EXPECT_EQ(text("txtCodFisc1"), "RSSMRA80A01H501U");
        EXPECT_EQ(text("txtOnor1"), "119,00");
        EXPECT_EQ(readyMember(), "2 Segretario");
        EXPECT_EQ(cell("MSFlexGrid1", 2, 1), "");
        click("cmdSalva");
        EXPECT_THAT(desktop.finish(), IsEmpty());
        EXPECT_EQ(toHex(file(seggiPath)), toHex(after));
        EXPECT_EQ(readyMember(), "3 Scrutatore");
    });
}

TEST_F(SeggiFaults, ACompleteCycleStoppedAnywhereLeavesWholeRecords) {
    const std::string before = memberBytes(first);
    prepare(before, 1);
    typeMember(second);
    const int operations = operationsOf(failing, [&] { click("cmdSalva"); });
    atEveryOperation({"frmSeggi.cmdSalva", "second member"}, operations, [&](int n) {
        prepare(before, 1);
        typeMember(second);
        cuttingPower(failing, files, n, [&] { click("cmdSalva"); });
        EXPECT_THAT(desktop.finish(), Not(IsEmpty()));
        EXPECT_THAT(toHex(file(seggiPath)), AnyOf(toHex(before), toHex(before + memberBytes(second))));
    });
}

TEST_F(SeggiFaults, AMemberThatCouldNotBeStoredIsNotStoredTwiceAfterACorrection) {
    const std::string after = memberBytes(first) + memberBytes(second);
    for (int n = 1; n <= 8; ++n) {
        SCOPED_TRACE(n);
        prepare(memberBytes(first), 1);
        typeMember(second);
        failingOnce(failing, n, [&] { click("cmdSalva"); });
        // Behind the last operation of a save nothing fails any more.
        if (desktop.finish().empty()) break;
        tick("Check1");
        pick("MSFlexGrid1", 1, 1);
        click("cmdSalva");
        EXPECT_EQ(text("txtCompo1"), "Verdi");
        click("cmdSalva");
        EXPECT_EQ(toHex(file(seggiPath)), toHex(after));
    }
}

TEST_F(SeggiFaults, TheFirstMemberOfAnElectionIsStoredAtTheNextAttempt) {
    prepareNew();
    const int operations = operationsOf(failing, [&] { click("cmdSalva"); });
    atEveryOperation({"frmSeggi.cmdSalva", "first member"}, operations, [&](int n) {
        prepareNew();
        failingOnce(failing, n, [&] { click("cmdSalva"); });
        expectTold();
        click("cmdSalva");
        EXPECT_EQ(toHex(file(seggiPath)), toHex(memberBytes(first)));
    });
}

TEST_F(SeggiFaults, ACorrectionThatFailsStaysOpenAndCanBeRepeated) {
    const std::string before = memberBytes(first) + memberBytes(second);
    MemberOnPaper changed = first;
    changed.address = "Via Adda, 9";
    const std::string after = memberBytes(changed) + memberBytes(second);
    const auto ready = [&] {
        prepare(before, 2);
        tick("Check1");
        pick("MSFlexGrid1", 1, 1);
        type("txtIndi1", "Via Adda, 9");
    };
    ready();
    const int operations = operationsOf(failing, [&] { click("cmdSalva"); });
    // The last ones only read the station into the grid again: opened, counted, read.
    EXPECT_GE(operations, 7);
    atEveryOperation({"frmSeggi.cmdSalva", "correction"}, operations, [&](int n) {
        ready();
        failingOnce(failing, n, [&] { click("cmdSalva"); });
        expectTold();
        EXPECT_THAT(toHex(file(seggiPath)), AnyOf(toHex(before), toHex(after)));
        if (!ticked("Check1")) {
            EXPECT_EQ(toHex(file(seggiPath)), toHex(after));
            return;
        }
        EXPECT_EQ(text("txtIndi1"), "Via Adda, 9");
        EXPECT_EQ(readyMember(), "1 Presidente");
        click("cmdSalva");
        EXPECT_EQ(toHex(file(seggiPath)), toHex(after));
        EXPECT_FALSE(ticked("Check1"));
    });
}

TEST_F(SeggiFaults, ARowThatCannotBeReadIsToldAndNobodyIsCalledUp) {
    prepare(memberBytes(first) + memberBytes(second), 2);
    tick("Check1");
    for (int n = 1; n <= 3; ++n) {
        SCOPED_TRACE(n);
        failing.failOnce(n);
        pick("MSFlexGrid1", 1, 1);
        expectTold();
        EXPECT_EQ(text("txtCompo1"), "");
    }
}

TEST_F(SeggiFaults, AReductionChangesAllRecordsOrNone) {
    const auto stored = [&](int stations) {
        MemberOnPaper one = first;
        MemberOnPaper two = second;
        one.stations = stations;
        two.stations = stations;
        return memberBytes(one) + memberBytes(two);
    };
    const auto ready = [&] {
        failing.failOnce(0);
        ASSERT_TRUE(lay(files, seggiPath, stored(5)));
        openOn(failing);
        chooseElection("3");
        box("inserimento seggi", fewerStations(5), Answer::yes);
    };
    ready();
    const int operations = operationsOf(failing, [&] { click("cmdAttiva"); });
    EXPECT_EQ(toHex(file(seggiPath)), toHex(stored(3)));
    int told = 0;
    for (const bool stops : {false, true}) {
        atEveryOperation({"frmSeggi.cmdAttiva", "fewer stations"}, operations, [&](int n) {
            ready();
            const auto activate = [&] { click("cmdAttiva"); };
            if (stops) {
                cuttingPower(failing, files, n, activate);
            } else {
                failingOnce(failing, n, activate);
            }
            told += desktop.finish().empty() ? 0 : 1;
            EXPECT_THAT(toHex(file(seggiPath)), AnyOf(toHex(stored(5)), toHex(stored(3))));
            const bool goesOn = text("cmdAttiva") == "ATTIVATO";
            EXPECT_TRUE(!goesOn || file(seggiPath) == stored(3));
            files.remove(seggiRevPath).ignore();
        });
    }
    // Only the folder of all elections and the removal of an older companion may fail unseen.
    EXPECT_GE(told, 2 * operations - 4);
}

TEST_F(SeggiFaults, AnElectionThatCannotBeReadIsNotTakenForANewOne) {
    failing.failOnce(0);
    ASSERT_TRUE(lay(files, seggiPath, memberBytes(first)));
    openOn(failing);
    chooseElection();
    // The first operation is the folder of all elections, which may fail unseen.
    for (int n = 2; n <= 4; ++n) {
        SCOPED_TRACE(n);
        failing.failOnce(n);
        click("cmdAttiva");
        expectTold();
        EXPECT_EQ(text("cmdAttiva"), "Attiva");
        EXPECT_FALSE(enabled("txtCompo1"));
    }
}

class SpecialFaults : public SeggiSpecialiTest {
  protected:
    void expectTold() { EXPECT_THAT(desktop.finish(), onlyAnError()); }

    FailingFileSystem failing{files};
};

TEST_F(SpecialFaults, AMemberThatCannotBeStoredStaysOnTheScreenAndIsNeverStoredTwice) {
    const MemberOnPaper first{.station = 4, .size = 3, .fee = 9'000};
    const MemberOnPaper second{
        .station = 4, .size = 3, .place = 2, .role = "Scrutatore", .surname = "Verdi", .fee = 6'100};
    const std::string before = memberBytes(first);
    const std::string after = before + memberBytes(second);
    const auto ready = [&] {
        failing.failOnce(0);
        ASSERT_TRUE(lay(files, specialePath, before));
        openScreenOn(failing);
        resume(specialAlreadyStored(1, " n.4", 4, 1));
        typeMember(second);
    };
    ready();
    const int operations = operationsOf(failing, [&] { click("cmdSalva"); });
    EXPECT_GE(operations, 7);
    EXPECT_EQ(toHex(file(specialePath)), toHex(after));
    atEveryOperation({"frmSeggiSpeciali.cmdSalva", "second member"}, operations, [&](int n) {
        ready();
        failingOnce(failing, n, [&] { click("cmdSalva"); });
        expectTold();
        EXPECT_THAT(toHex(file(specialePath)), AnyOf(toHex(before), toHex(after)));
        EXPECT_EQ(text("txtCompo1"), "Verdi");
        click("cmdSalva");
        EXPECT_EQ(toHex(file(specialePath)), toHex(after));
    });
    atEveryOperation({"frmSeggiSpeciali.cmdSalva", "second member"}, operations, [&](int n) {
        ready();
        cuttingPower(failing, files, n, [&] { click("cmdSalva"); });
        EXPECT_THAT(desktop.finish(), Not(IsEmpty()));
        EXPECT_THAT(toHex(file(specialePath)), AnyOf(toHex(before), toHex(after)));
    });
}

TEST_F(SpecialFaults, AReductionChangesAllRecordsOrNone) {
    const auto stored = [](int stations) {
        std::string bytes;
        for (const int station : {4, 7, 12}) {
            MemberOnPaper member{.station = station, .size = 1, .fee = 9'000};
            member.stations = stations;
            bytes += memberBytes(member);
        }
        return bytes;
    };
    const auto ready = [&] {
        failing.failOnce(0);
        files.remove(seggiRevPath).ignore();
        ASSERT_TRUE(lay(files, specialePath, stored(3)));
        openScreenOn(failing);
        chooseElection("2");
        box("inserimento seggi", fewerStations(3), Answer::yes);
    };
    ready();
    const int operations = operationsOf(failing, [&] { click("cmdAttiva"); });
    EXPECT_EQ(toHex(file(specialePath)), toHex(stored(2)));
    int told = 0;
    for (const Fault fault : bothFaults) {
        atEveryOperation({"frmSeggiSpeciali.cmdAttiva", "fewer stations"}, operations, [&](int n) {
            ready();
            strike(failing, fault, n);
            click("cmdAttiva");
            failing.failOnce(0);
            if (fault == Fault::forGood) files.cutPower();
            told += desktop.finish().empty() ? 0 : 1;
            EXPECT_THAT(toHex(file(specialePath)), AnyOf(toHex(stored(3)), toHex(stored(2))));
        });
    }
    // As with the normal stations.
    EXPECT_GE(told, 2 * operations - 4);
}

TEST_F(SpecialFaults, AListOfStationsThatCannotBeReadIsToldAndTheEntryGoesOn) {
    openScreenOn(failing);
    chooseElection();
    click("cmdAttiva");
    beginStation("4", "1");
    typeMember({});
    // Four for the folders and the opening, three for counting, writing and flushing; then the list is read.
    failing.failOnce(8);
    click("cmdSalva");
    failing.failOnce(0);
    EXPECT_EQ(desktop.finish().size(), 3U);
    EXPECT_EQ(toHex(file(specialePath)), toHex(memberBytes({.station = 4, .fee = 9'000})));
    EXPECT_EQ(text("Label62"), "2");
    EXPECT_EQ(focused(), "txtSonoSeggio");
}

}  // namespace
}  // namespace vorbano::test
