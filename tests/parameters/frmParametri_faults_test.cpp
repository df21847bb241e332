// The disk fails or stops at every operation of a save: each file is whole afterwards, old or new.

#include "parameters_desk.h"
#include "storage/failing_file_system.h"

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
        failing.failOnce(0);
        click("cmdSalva");
        return failing.operations();
    }
    void expectWhole(const char* name) {
        EXPECT_THAT(file(name), ::testing::AnyOf(before, after)) << name << " is neither old nor new";
    }

    FailingFileSystem failing{files};
};

TEST_F(Faults, ASaveThatFailsAtOneOperationLeavesWholeFilesAndIsTold) {
    const int operations = operationsOfASave();
    EXPECT_GE(operations, 4);
    for (int n = 1; n <= operations; ++n) {
        SCOPED_TRACE(n);
        prepare();
        failing.failOnce(n);
        click("cmdSalva");
        failing.failOnce(0);
        EXPECT_THAT(desktop.finish(),
                    ::testing::ElementsAre(::testing::HasSubstr("nobody expected the box \"Errore\"")));
        expectWhole("PmDip.dat");
        expectWhole("NewPmDip.dat");
    }
}

TEST_F(Faults, ASaveThatStopsAndLosesThePowerLeavesWholeFiles) {
    const int operations = operationsOfASave();
    for (int n = 1; n <= operations; ++n) {
        SCOPED_TRACE(n);
        prepare();
        failing.stopAt(n);
        click("cmdSalva");
        failing.stopAt(0);
        files.cutPower();
        EXPECT_THAT(desktop.finish(), ::testing::Not(::testing::IsEmpty()));
        expectWhole("PmDip.dat");
        expectWhole("NewPmDip.dat");
    }
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

}  // namespace
}  // namespace vorbano::test
