#include "surface_list.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

using namespace vorbano::test;
using testing::ElementsAre;
using testing::IsEmpty;

TEST(TheWordsOfASource, AreItsLiteralsOfTwoWordsJoinedWhereTheyFollowEachOther) {
    EXPECT_THAT(wordsIn("tell({\"Dati incompleti \" // why\n  \"per la ricerca\", \"Errore\"});"),
                ElementsAre("Dati incompleti per la ricerca"));
    EXPECT_THAT(wordsIn("f('\"', \"con \\\"virgolette\\\" dentro\"); // \"un commento lungo\""),
                ElementsAre("con \"virgolette\" dentro"));
    EXPECT_THAT(wordsIn("#include \"storage/numbers.h\"\nx = \"cmdSalva\";"), IsEmpty());
}

TEST(TheCheckOfTheSurfaces, AsksForEverySurfaceAndIsContentWithWhatWasMet) {
    SurfaceList all;
    all.screens = {"frmUno"};
    all.controls = {"frmUno.cmdSalva"};
    all.layouts = {"uno.rpt"};
    all.files = {"Uno.dat", "<data>.vbn"};
    all.texts = {"Prima riga\nseconda"};
    EXPECT_THAT(notMet(all, {}), ElementsAre("screen frmUno", "control frmUno.cmdSalva", "layout uno.rpt",
                                             "text Prima riga\\nseconda", "file <data>.vbn", "file Uno.dat"));
    EXPECT_THAT(notMet(all, {"screen frmUno", "control frmUno.cmdSalva", "layout uno.rpt", "file Params/Uno.dat",
                             "file Elezioni/Europee/09-06-24/09-06-24.vbn", "box A. Prima riga\\nseconda e terza"}),
                IsEmpty());
    EXPECT_THAT(notMet(all, {"screen frmUno", "control frmUno.cmdSalv", "layout uno.rpt", "file Params/Uno.dat",
                             "file Elezioni/Europee/09-06-24/09-06-24.vbn", "box Prima riga"}),
                ElementsAre("control frmUno.cmdSalva", "text Prima riga\\nseconda"));
}

TEST(TheListOfSurfaces, ComesFromTheProgram) {
    const SurfaceList all = listSurfaces(VORBANO_SOURCE_DIR);
    EXPECT_TRUE(all.screens.contains("Form1"));
    EXPECT_TRUE(all.screens.contains("frmCompStraord"));
    EXPECT_TRUE(all.controls.contains("frmCompStraord.cmdSalva"));
    EXPECT_TRUE(all.controls.contains("Form1.mnuInsert"));
    // A menu that only holds entries, and a box that stands closed for good.
    EXPECT_FALSE(all.controls.contains("Form1.mnuFile"));
    EXPECT_FALSE(all.controls.contains("frmTariffeSeggi.Check4"));
    EXPECT_TRUE(all.layouts.contains("impstr.rpt"));
    EXPECT_TRUE(all.files.contains("Meirin.vbn"));
    EXPECT_TRUE(all.texts.contains("Dati incompleti per la ricerca"));
}
