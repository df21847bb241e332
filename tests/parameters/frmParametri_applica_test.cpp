// A version of the tariffs is declared to be the table in force.

#include "versions_desk.h"

namespace vorbano::test {
namespace {

class Apply : public VersionsDesk {};

constexpr const char* noNumber =
    "Riga D2, colonna Festive: il testo \"abc\" non è un numero. Correggerlo e ripetere l'operazione.";

TEST_F(Apply, TheNewTariffsComeIntoForce) {
    openWithVersions();
    click("cmdTarNuove");
    EXPECT_EQ(text("txtD5Day"), "1,51");
    EXPECT_EQ(text("txtA5Nf"), "32,53");
    EXPECT_EQ(text("txtB6Fn"), "11,52") << "the grades with a G follow too";
    EXPECT_EQ(text("Label30"), "/");
    EXPECT_EQ(text("Label31"), "/");
    EXPECT_EQ(text("Label26"), "\nSONO APPLICATE LE    NUOVE TARIFFE");
    EXPECT_EQ(screen->Label26.tone(), Tone::newTariffs);
    EXPECT_EQ(toHex(file("PmDip.dat")), toHex(newVersion));
    EXPECT_EQ(file("NewPmDip.dat"), newVersion);
    EXPECT_EQ(file("OldPmDip.dat"), oldVersion);
}

TEST_F(Apply, TheOldTariffsComeBackIntoForce) {
    openWithVersions();
    ASSERT_TRUE(lay(files, "Params/PmDip.dat", newVersion));
    open();
    EXPECT_EQ(text("Label31"), "/");
    click("cmdTarVecchie");
    EXPECT_EQ(text("txtD5Day"), "1,01");
    EXPECT_EQ(text("Label30"), "\\");
    EXPECT_EQ(text("Label31"), "\\");
    EXPECT_EQ(text("Label26"), "\nSONO APPLICATE LE VECCHIE TARIFFE");
    EXPECT_EQ(screen->Label26.tone(), Tone::oldTariffs);
    EXPECT_EQ(toHex(file("PmDip.dat")), toHex(oldVersion));
}

TEST_F(Apply, TheButtonOfTheVersionOnShowIsMarked) {
    openWithVersions();
    EXPECT_EQ(screen->cmdTarNuove.tone(), Tone::plain);
    EXPECT_EQ(screen->cmdTarVecchie.tone(), Tone::plain);
    click("cmdTarNuove");
    EXPECT_EQ(screen->cmdTarNuove.tone(), Tone::active);
    EXPECT_EQ(screen->cmdTarVecchie.tone(), Tone::plain);
    click("cmdTarVecchie");
    EXPECT_EQ(screen->cmdTarNuove.tone(), Tone::plain);
    EXPECT_EQ(screen->cmdTarVecchie.tone(), Tone::active);
}

TEST_F(Apply, TheNewVersionAlwaysHasItsOwnMark) {
    layVersions();
    ASSERT_TRUE(lay(files, "Params/NewPmDip.dat", tariffBytes("x", newCents)));
    open();
    click("cmdTarNuove");
    EXPECT_EQ(text("Label31"), "/");
    EXPECT_EQ(toHex(file("PmDip.dat")), toHex(newVersion));
}

TEST_F(Apply, TheOldVersionHasTheMarkOfItsFirstRow) {
    layVersions();
    std::string bytes = tariffBytes("x", oldCents);
    bytes.replace(15, 1, "y");
    ASSERT_TRUE(lay(files, "Params/OldPmDip.dat", bytes));
    open();
    click("cmdTarVecchie");
    EXPECT_EQ(text("Label30"), "y");
    EXPECT_EQ(toHex(file("PmDip.dat")), toHex(tariffBytes("y", oldCents)));
    EXPECT_EQ(text("Label26"), "\nSONO APPLICATE LE VECCHIE TARIFFE") << "as it stood";
}

TEST_F(Apply, WhatWasTypedAndNotSavedGoesAndTheTabIsLocked) {
    openWithVersions();
    tick("Check5");
    type("txtD2Day", "99,99");
    tick("Check20");
    click("cmdTarNuove");
    EXPECT_FALSE(ticked("Check20"));
    EXPECT_FALSE(ticked("Check5"));
    EXPECT_FALSE(enabled("txtD2Day"));
    EXPECT_FALSE(enabled("cmdSalva"));
    EXPECT_TRUE(enabled("cmdStampa"));
    EXPECT_EQ(text("txtD2Day"), "5,51");
}

TEST_F(Apply, ARowOpenedAloneIsLockedToo) {
    openWithVersions();
    tick("Check5");
    click("cmdTarVecchie");
    EXPECT_FALSE(ticked("Check5"));
    EXPECT_FALSE(enabled("cmdSalva"));
}

TEST_F(Apply, AVersionInForceIsSavedWithTheTable) {
    openWithVersions();
    click("cmdTarNuove");
    tick("Check5");
    type("txtD2Day", "99,99");
    click("cmdSalva");
    const auto changed = [](int number, int kind) { return number == 5 && kind == 0 ? 9999 : newCents(number, kind); };
    EXPECT_EQ(toHex(file("PmDip.dat")), toHex(tariffBytes("/", changed)));
    EXPECT_EQ(toHex(file("NewPmDip.dat")), toHex(tariffBytes("/", changed)));
    EXPECT_EQ(file("OldPmDip.dat"), oldVersion);
}

TEST_F(Apply, NoElectionIsTouched) {
    layVersions();
    layEmployees(oldB6);
    open();
    click("cmdTarNuove");
    EXPECT_EQ(employees(), oldB6);
    EXPECT_EQ(bytesOf(statementNow()), bytesOf(statement()));
}

TEST_F(Apply, AVersionNeverSavedLeavesTheTableInForceWithoutMark) {
    openWithRates("\\", oldCents);
    click("cmdTarNuove");
    EXPECT_EQ(text("txtD5Day"), "1,01");
    EXPECT_EQ(text("Label30"), "");
    EXPECT_EQ(text("Label31"), "");
    EXPECT_EQ(text("Label26"), "\nSONO APPLICATE LE VECCHIE TARIFFE") << "as it stood";
    EXPECT_EQ(screen->cmdTarNuove.tone(), Tone::active);
    EXPECT_EQ(screen->cmdTarVecchie.tone(), Tone::plain);
    EXPECT_EQ(toHex(file("PmDip.dat")), toHex(tariffBytes("", oldCents)));
    EXPECT_EQ(file("NewPmDip.dat"), "");
    EXPECT_EQ(file("OldPmDip.dat"), noFile);
}

TEST_F(Apply, AVersionNeverSavedKeepsTheMarkOfTheVersionLastLoaded) {
    layVersions();
    ASSERT_TRUE(lay(files, "Params/OldPmDip.dat", ""));
    open();
    click("cmdTarNuove");
    click("cmdTarVecchie");
    EXPECT_EQ(text("Label31"), "/");
    EXPECT_EQ(screen->cmdTarVecchie.tone(), Tone::active);
    EXPECT_EQ(toHex(file("PmDip.dat")), toHex(newVersion));
    EXPECT_EQ(file("OldPmDip.dat"), "");
}

TEST_F(Apply, AVersionNeverSavedLeavesARowOpen) {
    openWithRates("", oldCents);
    tick("Check5");
    type("txtD2Day", "99,99");
    click("cmdTarNuove");
    EXPECT_TRUE(ticked("Check5"));
    EXPECT_EQ(text("txtD2Day"), "99,99");
    const auto typed = [](int number, int kind) { return number == 5 && kind == 0 ? 9999 : oldCents(number, kind); };
    EXPECT_EQ(toHex(file("PmDip.dat")), toHex(tariffBytes("", typed)));
}

TEST_F(Apply, ATextThatIsNoNumberDoesNotComeIntoForce) {
    openWithRates("\\", oldCents);
    tick("Check5");
    type("txtD2Fn", "abc");
    desktop.box(title, noNumber);
    click("cmdTarNuove");
    EXPECT_EQ(focused(), "txtD2Fn");
    EXPECT_EQ(text("Label31"), "\\");
    EXPECT_EQ(toHex(file("PmDip.dat")), toHex(tariffBytes("\\", oldCents)));
}

}  // namespace
}  // namespace vorbano::test
