// The disk fails or stops at every operation of a save: each file is whole afterwards, old or new.

#include "parameters_desk.h"
#include "support/fault_stage.h"

namespace vorbano::test {
namespace {

constexpr const char* readOnlyWords =
    "Il file Params/PmDip.dat non può essere letto o scritto: controllare che non "
    "sia di sola lettura.";

class Faults : public ParametriTest {
  protected:
    static int changedCents(int number, int kind) {
        return number == 5 && kind == 0 ? 9999 : distinctCents(number, kind);
    }
    const std::string before = tariffBytes("/", distinctCents);
    const std::string after = tariffBytes("/", changedCents);

    /// Both files as before, the screen on the failing disk with a changed row.
    void prepare() {
        failing.failOnce(0);
        ASSERT_TRUE(lay(files, "Params/PmDip.dat", before));
        ASSERT_TRUE(lay(files, "Params/NewPmDip.dat", before));
        openOn(failing, staging, printing);
        tick("Check5");
        type("txtD2Day", "99,99");
    }
    int operationsOfASave() {
        prepare();
        return operationsOf(failing, [&] { click("cmdSalva"); });
    }
    const FaultCase inTable{"frmParametri.cmdSalva", "a rate"};
    void expectWhole(const char* name) {
        EXPECT_THAT(file(name), ::testing::AnyOf(before, after)) << name << " is neither old nor new";
    }

    FailingFileSystem failing{files};
};

TEST_F(Faults, ASaveThatFailsAtOneOperationLeavesWholeFilesAndIsTold) {
    const int operations = operationsOfASave();
    EXPECT_GE(operations, 4);
    atEveryOperation(inTable, operations, [&](int n) {
        prepare();
        failingOnce(failing, n, [&] { click("cmdSalva"); });
        EXPECT_THAT(desktop.finish(), onlyAnError());
        expectWhole("PmDip.dat");
        expectWhole("NewPmDip.dat");
    });
}

TEST_F(Faults, ASaveThatStopsAndLosesThePowerLeavesWholeFiles) {
    const int operations = operationsOfASave();
    atEveryOperation(inTable, operations, [&](int n) {
        prepare();
        cuttingPower(failing, files, n, [&] { click("cmdSalva"); });
        EXPECT_THAT(desktop.finish(), ::testing::Not(::testing::IsEmpty()));
        expectWhole("PmDip.dat");
        expectWhole("NewPmDip.dat");
    });
}

TEST_F(Faults, WhatWasNotStoredStaysOpenAndCanBeSavedAgain) {
    prepare();
    failing.failOnce(1);
    click("cmdSalva");
    EXPECT_THAT(desktop.finish(), ::testing::SizeIs(1));
    EXPECT_TRUE(enabled("txtD2Day"));
    EXPECT_TRUE(enabled("cmdSalva"));
    EXPECT_EQ(file("PmDip.dat"), before);
    click("cmdSalva");
    EXPECT_EQ(toHex(file("PmDip.dat")), toHex(after));
    EXPECT_EQ(toHex(file("NewPmDip.dat")), toHex(after));
}

TEST_F(Faults, AReadOnlyFileIsToldWhenItsTabOpens) {
    ASSERT_TRUE(lay(files, "Params/PmDip.dat", before));
    files.makeReadOnly("Params/PmDip.dat");
    desktop.box("Errore", readOnlyWords);
    open();
    EXPECT_FALSE(enabled("cmdSalva"));
    EXPECT_FALSE(enabled("txtD5Day"));
}

TEST_F(Faults, AFileThatBecameReadOnlyIsToldWhenItIsSaved) {
    openWithRates("/");
    tick("Check5");
    files.makeReadOnly("Params/PmDip.dat");
    desktop.box("Errore", readOnlyWords);
    click("cmdSalva");
    EXPECT_EQ(file("PmDip.dat"), before);
    EXPECT_TRUE(ticked("Check5"));
}

TEST_F(Faults, AMissingFolderIsToldOnEveryTab) {
    ASSERT_TRUE(files.removeFolder("Params").ok());
    desktop.box("Errore", "Manca la cartella del file Params/PmDip.dat.");
    open();
    desktop.box("Errore", "Manca la cartella del file Params/PmSeg.dat.");
    tab(1);
    desktop.box("Errore", "Manca la cartella del file Params/Conprev.dat.");
    tab(2);
    EXPECT_FALSE(ticked("Check20"));
    EXPECT_FALSE(ticked("Check21"));
    EXPECT_FALSE(ticked("Check26"));
}

TEST_F(Faults, TheOtherTwoSavesTellTheirFailureToo) {
    ASSERT_TRUE(lay(files, "Params/PmDip.dat", before));
    openOn(failing, staging, printing);
    desktop.box(title, noSecretaryRates);
    tab(1);
    failing.failOnce(1);
    click("cmdSalva1");
    EXPECT_THAT(desktop.finish(), ::testing::ElementsAre(::testing::HasSubstr("\"Errore\"")));
    failing.failOnce(0);
    desktop.box(title, noPercentages);
    tab(2);
    failing.failOnce(1);
    click("cmdSalva2");
    EXPECT_THAT(desktop.finish(), ::testing::ElementsAre(::testing::HasSubstr("\"Errore\"")));
    EXPECT_EQ(file("PmSeg.dat"), "");
    EXPECT_EQ(file("Conprev.dat"), "");
}

/// The saves of the other two tabs: one field is changed.
struct TabCase {
    const char* command;
    const char* path;
    int page;
    const char* box;
    const char* field;
    const char* typed;
    std::string before, after;
};
void PrintTo(const TabCase& each, std::ostream* out) { *out << each.command; }

int changedSecretary(int number, int kind) { return number == 1 && kind == 0 ? 9999 : distinctCents(number, kind); }
const std::string otherPercentages = amount(8, 50) + amount(8, 80) + amount(0, 35);

class TabFaults : public Faults, public ::testing::WithParamInterface<TabCase> {};

TEST_P(TabFaults, OfASaveLeaveAWholeFileAndTheSaveCanBeGivenAgain) {
    const TabCase& of = GetParam();
    const auto ready = [&] {
        failing.failOnce(0);
        ASSERT_TRUE(lay(files, "Params/PmDip.dat", before));
        ASSERT_TRUE(lay(files, of.path, of.before));
        openOn(failing, staging, printing);
        tab(of.page);
        tick(of.box);
        type(of.field, of.typed);
    };
    ready();
    const int operations = operationsOf(failing, [&] { click(of.command); });
    EXPECT_EQ(toHex(contentOf(files, of.path)), toHex(of.after));
    EXPECT_EQ(operations, 3) << "opened, written, flushed";
    for (const Fault fault : bothFaults) {
        atEveryOperation({std::string("frmParametri.") + of.command, "one field"}, operations, [&](int n) {
            ready();
            strike(failing, fault, n);
            click(of.command);
            failing.failOnce(0);
            if (fault == Fault::forGood) files.cutPower();
            EXPECT_THAT(desktop.finish(), onlyAnError());
            EXPECT_THAT(contentOf(files, of.path), ::testing::AnyOf(of.before, of.after));
            click(of.command);
            EXPECT_EQ(toHex(contentOf(files, of.path)), toHex(of.after));
        });
    }
}

INSTANTIATE_TEST_SUITE_P(
    Of, TabFaults,
    ::testing::Values(TabCase{"cmdSalva1", "Params/PmSeg.dat", 1, "Check15", "txtSc8qfDay", "99,99",
                              secretaryBytes(distinctCents), secretaryBytes(changedSecretary)},
                      TabCase{"cmdSalva2", "Params/Conprev.dat", 2, "Check22", "txtContrPrev", "24",
                              amount(23, 80) + otherPercentages, amount(24) + otherPercentages}),
    [](const auto& each) { return std::string(each.param.command); });

}  // namespace
}  // namespace vorbano::test
