// The mark of the table in force: the banner, and the version file that a save writes too.

#include "parameters_desk.h"

namespace vorbano::test {
namespace {

class Versions : public ParametriTest {};

TEST_F(Versions, TheOldTariffsAreAnnouncedInBlue) {
    openWithRates("\\");
    EXPECT_EQ(text("Label31"), "\\");
    EXPECT_EQ(text("Label26"), "\nSONO APPLICATE LE VECCHIE TARIFFE");
    EXPECT_EQ(screen->Label26.tone(), Tone::oldTariffs);
}

TEST_F(Versions, TheNewTariffsAreAnnouncedInDarkRed) {
    for (const char* mark : {"/", "-"}) {
        openWithRates(mark);
        EXPECT_EQ(text("Label31"), mark);
        EXPECT_EQ(text("Label26"), "\nSONO APPLICATE LE    NUOVE TARIFFE");
        EXPECT_EQ(screen->Label26.tone(), Tone::newTariffs);
    }
}

TEST_F(Versions, ATableWithoutMarkHasNoBanner) {
    openWithRates("");
    EXPECT_EQ(text("Label26"), "");
    EXPECT_EQ(screen->Label26.tone(), Tone::plain);
}

TEST_F(Versions, AnyOtherMarkLeavesTheBanner) {
    openWithRates("/");
    screen->Label31.text = std::string("x");
    EXPECT_EQ(text("Label26"), "\nSONO APPLICATE LE    NUOVE TARIFFE");
    screen->Label31.text = std::string(" \\ ");
    EXPECT_EQ(text("Label26"), "\nSONO APPLICATE LE VECCHIE TARIFFE");
    screen->Label31.text = std::string();
    EXPECT_EQ(text("Label26"), "\nSONO APPLICATE LE VECCHIE TARIFFE");
}

TEST_F(Versions, TheMarkIsThatOfTheFirstRow) {
    std::string bytes = tariffBytes("/", distinctCents);
    bytes.replace(15, 1, "\\");
    ASSERT_TRUE(lay(files, "Params/PmDip.dat", bytes));
    open();
    EXPECT_EQ(text("Label31"), "\\");
}

TEST_F(Versions, SavingTheNewTariffsWritesTheirFileToo) {
    openWithRates("/");
    tick("Check6");
    type("txtD1Day", "12,34");
    click("cmdSalva");
    const auto changed = [](int number, int kind) {
        return number == 6 && kind == 0 ? 1234 : distinctCents(number, kind);
    };
    EXPECT_EQ(toHex(file("PmDip.dat")), toHex(tariffBytes("/", changed)));
    EXPECT_EQ(toHex(file("NewPmDip.dat")), toHex(tariffBytes("/", changed)));
    EXPECT_EQ(file("OldPmDip.dat"), noFile);
}

TEST_F(Versions, SavingTheOldTariffsWritesTheirFileToo) {
    openWithRates("\\");
    tick("Check6");
    click("cmdSalva");
    EXPECT_EQ(toHex(file("PmDip.dat")), toHex(tariffBytes("\\", distinctCents)));
    EXPECT_EQ(toHex(file("OldPmDip.dat")), toHex(tariffBytes("\\", distinctCents)));
    EXPECT_EQ(file("NewPmDip.dat"), noFile);
}

TEST_F(Versions, SavingATableOfNoVersionWritesNeitherFile) {
    for (const char* mark : {"", "-", "x"}) {
        openWithRates(mark);
        tick("Check6");
        click("cmdSalva");
        EXPECT_EQ(toHex(file("PmDip.dat")), toHex(tariffBytes(mark, distinctCents)));
        EXPECT_EQ(file("NewPmDip.dat"), noFile);
        EXPECT_EQ(file("OldPmDip.dat"), noFile);
    }
}

TEST_F(Versions, EverySaveWritesTheMarkOfTheFirstRowToAllRows) {
    std::string bytes = tariffBytes("x", distinctCents);
    bytes.replace(15, 1, "/");
    ASSERT_TRUE(lay(files, "Params/PmDip.dat", bytes));
    open();
    tick("Check6");
    click("cmdSalva");
    EXPECT_EQ(toHex(file("PmDip.dat")), toHex(tariffBytes("/", distinctCents)));
}

TEST_F(Versions, TheMarkIsStoredTrimmed) {
    openWithRates("");
    screen->Label31.text = std::string("  / ");
    tick("Check6");
    click("cmdSalva");
    EXPECT_EQ(toHex(file("PmDip.dat")), toHex(tariffBytes("/", distinctCents)));
}

TEST_F(Versions, TheVersionFilesCarryTheirOwnMarkWhateverIsOnShow) {
    openWithRates("");
    screen->salvanuove();
    screen->salvavecchie();
    EXPECT_EQ(toHex(file("NewPmDip.dat")), toHex(tariffBytes("/", distinctCents)));
    EXPECT_EQ(toHex(file("OldPmDip.dat")), toHex(tariffBytes("\\", distinctCents)));
    EXPECT_EQ(toHex(file("PmDip.dat")), toHex(tariffBytes("", distinctCents)));
}

}  // namespace
}  // namespace vorbano::test
