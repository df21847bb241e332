// How a version of the tariffs begins: the table on show is saved as the old or as the new tariffs.

#include "versions_desk.h"

namespace vorbano::test {
namespace {

class FirstVersions : public VersionsDesk {
  protected:
    void expectOffered(bool old, bool fresh) {
        EXPECT_EQ(visible("cmdSalvaVecchie"), old);
        EXPECT_EQ(visible("cmdSalvaNuove"), fresh);
    }
};

TEST_F(FirstVersions, EachBeginsAsTheTableOnShowAndIsThenNoLongerOffered) {
    openWithRates("", oldCents);
    expectOffered(true, true);
    EXPECT_EQ(text("cmdSalvaVecchie"), "Salva come vecchie tariffe");
    EXPECT_EQ(text("cmdSalvaNuove"), "Salva come nuove tariffe");
    click("cmdSalvaVecchie");
    expectOffered(false, true);
    EXPECT_EQ(toHex(file("OldPmDip.dat")), toHex(oldVersion));
    EXPECT_EQ(file("NewPmDip.dat"), noFile);
    click("cmdSalvaNuove");
    expectOffered(false, false);
    EXPECT_EQ(toHex(file("NewPmDip.dat")), toHex(tariffBytes("/", oldCents)));
    EXPECT_EQ(toHex(file("OldPmDip.dat")), toHex(oldVersion));
}

TEST_F(FirstVersions, NeitherComesIntoForceByBeingSaved) {
    openWithRates("", oldCents);
    click("cmdSalvaVecchie");
    click("cmdSalvaNuove");
    EXPECT_EQ(toHex(file("PmDip.dat")), toHex(tariffBytes("", oldCents)));
    for (const char* label : {"Label26", "Label30", "Label31"}) EXPECT_EQ(text(label), "") << label;
    EXPECT_EQ(screen->cmdTarNuove.tone(), Tone::plain);
    EXPECT_EQ(screen->cmdTarVecchie.tone(), Tone::plain);
    click("cmdTarVecchie");
    EXPECT_EQ(toHex(file("PmDip.dat")), toHex(oldVersion));
    EXPECT_EQ(text("Label26"), "\nSONO APPLICATE LE VECCHIE TARIFFE");
}

TEST_F(FirstVersions, WhatIsTypedIsOfTheVersionAndTheTabStaysOpen) {
    openWithRates("", oldCents);
    tick("Check5");
    type("txtD2Day", "99,99");
    click("cmdSalvaNuove");
    const auto typed = [](int number, int kind) { return number == 5 && kind == 0 ? 9999 : oldCents(number, kind); };
    EXPECT_EQ(toHex(file("NewPmDip.dat")), toHex(tariffBytes("/", typed)));
    EXPECT_EQ(toHex(file("PmDip.dat")), toHex(tariffBytes("", oldCents)));
    EXPECT_TRUE(ticked("Check5"));
    EXPECT_TRUE(enabled("cmdSalva"));
    EXPECT_EQ(text("txtD2Day"), "99,99");
}

TEST_F(FirstVersions, OfTheFirstEntryComesIntoForceByItsCommand) {
    desktop.box(title, noStaffRates);
    open();
    expectOffered(true, true);
    type("txtD5Day", "10.27");
    click("cmdSalvaNuove");
    click("cmdTarNuove");
    const auto typed = [](int number, int kind) { return number == 1 && kind == 0 ? 1027 : 0; };
    EXPECT_EQ(toHex(file("PmDip.dat")), toHex(tariffBytes("/", typed)));
    EXPECT_EQ(toHex(file("NewPmDip.dat")), toHex(tariffBytes("/", typed)));
    EXPECT_FALSE(ticked("Check20"));
    EXPECT_FALSE(enabled("cmdSalva"));
}

TEST_F(FirstVersions, AreOfferedWhileTheirFilesHoldNoRecord) {
    layVersions();
    open();
    expectOffered(false, false);
    ASSERT_TRUE(lay(files, "Params/NewPmDip.dat", ""));
    open();
    expectOffered(false, true);
    EXPECT_EQ(file("NewPmDip.dat"), "");
    // Half a record is none; more than half is one.
    ASSERT_TRUE(lay(files, "Params/NewPmDip.dat", newVersion));
    ASSERT_TRUE(lay(files, "Params/OldPmDip.dat", oldVersion.substr(0, 744)));
    open();
    expectOffered(true, false);
    ASSERT_TRUE(lay(files, "Params/OldPmDip.dat", oldVersion.substr(0, 745)));
    open();
    expectOffered(false, false);
}

TEST_F(FirstVersions, AreLookedForWithoutMakingTheirFiles) {
    openWithRates("", oldCents);
    expectOffered(true, true);
    EXPECT_EQ(file("NewPmDip.dat"), noFile);
    EXPECT_EQ(file("OldPmDip.dat"), noFile);
}

TEST_F(FirstVersions, ASaveOfTheTableInForceIsOneToo) {
    openWithRates("/", oldCents);
    expectOffered(true, true);
    tick("Check6");
    click("cmdSalva");
    expectOffered(true, false);
}

TEST_F(FirstVersions, AreNotForAnUpdateOrAnAdjustment) {
    openWithRates("", oldCents);
    for (const char* box : {"Check45", "Check46"}) {
        tick(box);
        expectOffered(true, true);
        for (const char* name : {"cmdSalvaVecchie", "cmdSalvaNuove"}) EXPECT_FALSE(enabled(name)) << box << " " << name;
        tick(box, false);
        for (const char* name : {"cmdSalvaVecchie", "cmdSalvaNuove"}) EXPECT_TRUE(enabled(name)) << box << " " << name;
    }
}

TEST_F(FirstVersions, ATextThatIsNoNumberIsNoVersion) {
    openWithRates("", oldCents);
    tick("Check5");
    type("txtD2Fn", "abc");
    desktop.box(title,
                "Riga D2, colonna Festive: il testo \"abc\" non è un numero. Correggerlo e ripetere l'operazione.");
    click("cmdSalvaVecchie");
    EXPECT_EQ(focused(), "txtD2Fn");
    EXPECT_EQ(file("OldPmDip.dat"), noFile);
    expectOffered(true, true);
}

}  // namespace
}  // namespace vorbano::test
