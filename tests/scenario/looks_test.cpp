// Every look: when it holds, and what it says when it does not.

#include <filesystem>
#include <fstream>

#include "playing.h"

namespace vorbano::test {
namespace {

class Looks : public Playing {
  protected:
    /// A file beside the scenario.
    void laid(const std::filesystem::path& name, const std::string& content) {
        std::filesystem::create_directories((folder.path() / name).parent_path());
        std::ofstream(folder.path() / name, std::ios::binary) << content;
    }
};
INSTANTIATE_TEST_SUITE_P(BothWays, Looks, testing::Values(Way::bare, Way::windows), testing::PrintToStringParamName());

TEST_P(Looks, TextsOfControls) {
    prova->txtNome.text = std::string("  Rossi ");
    EXPECT_EQ(play("expect txtNome = Rossi\nexpect txtNome = \"  Rossi \"\nexpect Label1 = Totale\nexpect Label28 = N\n"
                   "expect cmdSalva = Salva\nexpect Combo1 =\nexpect SSTab1 = 0\n"),
              "");
    EXPECT_EQ(failureAt(1, "expect txtNome = rossi\n"), "expected txtNome = \"rossi\", was \"  Rossi \"");
    EXPECT_EQ(failureAt(1, "expect txtNome =\n"), "expected txtNome = \"\", was \"  Rossi \"");
    EXPECT_EQ(failureAt(1, "expect txtNiente = a\n"),
              "expected a control txtNiente on frmProva, was none of that name");
}

TEST_P(Looks, Captions) {
    EXPECT_EQ(play("expect caption = Modulo  di prova\n"), "");
    EXPECT_EQ(failureAt(1, "expect caption = Modulo di prova\n"),
              "expected caption = \"Modulo di prova\", was \"Modulo  di prova\"");
}

TEST_P(Looks, StatesThatHold) {
    prova->txtNome.locked = true;
    prova->Frame1.enabled = false;
    prova->Option2.checked = true;
    prova->mnuFile.enabled = false;
    EXPECT_EQ(play("expect cmdSalva enabled\nexpect txtNome disabled\nexpect Option1 disabled\nexpect Option1 visible\n"
                   "expect Option2 ticked\nexpect Option1 unticked\nexpect Check1 unticked\nexpect txtPrima visible\n"
                   "expect txtSeconda hidden\nexpect Label28 hidden\nexpect mnu1°Turno disabled\n"
                   "expect mnu1°Turno visible\nexpect txtIndennità focused\n"),
              "");
}

struct State {
    const char* line;
    const char* failure;
};

TEST_P(Looks, StatesThatDoNotHold) {
    prova->txtNome.locked = true;
    prova->Frame1.visible = false;
    prova->mnuFile.visible = false;
    prova->mnuTurno.enabled = false;
    const State states[] = {{"expect txtNome enabled", "expected txtNome enabled, was locked"},
                            {"expect mnu1°Turno enabled", "expected mnu1°Turno enabled, was disabled"},
                            {"expect cmdSalva disabled", "expected cmdSalva disabled, was enabled"},
                            {"expect Option1 visible", "expected Option1 visible, was hidden"},
                            {"expect mnu1°Turno visible", "expected mnu1°Turno visible, was hidden"},
                            {"expect Label28 visible", "expected Label28 visible, was hidden"},
                            {"expect cmdSalva hidden", "expected cmdSalva hidden, was visible"},
                            {"expect Check1 ticked", "expected Check1 ticked, was unticked"},
                            {"expect cmdSalva unticked", "expected cmdSalva unticked, was no box and no option"},
                            {"expect cmdSalva focused", "expected cmdSalva focused, was txtIndennità focused"}};
    for (const State& state : states) EXPECT_EQ(failureAt(1, std::string(state.line) + "\n"), state.failure);
}

TEST_P(Looks, CellsOfAGrid) {
    EXPECT_EQ(play("expect MSFlexGrid1 0 1 = Ore\nexpect MSFlexGrid1 1 2 = 170,05\nexpect MSFlexGrid1 2 0 = Bianchi\n"),
              "");
    EXPECT_EQ(failureAt(1, "expect MSFlexGrid1 1 1 = 20,00\n"), "expected MSFlexGrid1 1 1 = \"20,00\", was \"20\"");
    EXPECT_EQ(failureAt(1, "expect MSFlexGrid1 3 0 = x\n"),
              "expected MSFlexGrid1 3 0 = \"x\", was a grid of 2 rows without that cell");
    EXPECT_EQ(failureAt(1, "expect List1 0 0 = x\n"), "expected List1 0 0 = \"x\", was no grid");
}

TEST_P(Looks, NumbersOfItems) {
    EXPECT_EQ(play("expect items Combo1 = 3\nexpect items List1 = 2\nexpect items MSFlexGrid1 = 2\n"), "");
    EXPECT_EQ(failureAt(1, "expect items Combo1 = 2\n"), "expected 2 items in Combo1, was 3");
    EXPECT_EQ(failureAt(1, "expect items txtNome = 1\n"), "expected 1 items in txtNome, was no list and no grid");
}

TEST_P(Looks, SizesOfFiles) {
    EXPECT_TRUE(files.makeFolder("Params"));
    EXPECT_TRUE(writeWhole(files, "Params/Ore.dat", "0123456789"));
    EXPECT_EQ(play("file Params/Ore.dat = 10\nfile params/ORE.DAT = 10\nfile Params/Ente.dat = missing\n"
                   "file Elezioni/a.dat = missing\n"),
              "");
    EXPECT_EQ(failureAt(1, "file Params/Ore.dat = 11\n"), "expected Params/Ore.dat = 11 bytes, was 10 bytes");
    EXPECT_EQ(failureAt(1, "file Params/Ore.dat = missing\n"), "expected Params/Ore.dat = missing, was 10 bytes");
    EXPECT_EQ(failureAt(1, "file Params/Ente.dat = 0\n"), "expected Params/Ente.dat = 0 bytes, was missing");
    EXPECT_THAT(failureAt(1, "file ../Ente.dat = missing\n"), testing::HasSubstr("no name below the root"));
    EXPECT_THAT(failureAt(1, "file Params = missing\n"), testing::HasSubstr("refused"));
}

TEST_P(Looks, BytesOfFiles) {
    EXPECT_TRUE(writeWhole(files, "a.dat", std::string("AB\0\xE0", 4)));
    EXPECT_EQ(play("bytes a.dat 0 = 4142\nbytes a.dat 1 = 42 00 E0\n"), "");
    EXPECT_EQ(failureAt(1, "bytes a.dat 2 = 00E1\n"), "expected a.dat 2 = 00e1, was 00e0");
    EXPECT_EQ(failureAt(1, "bytes a.dat 3 = e000\n"),
              "expected a.dat 3 = e000, was e0 and the end of a file of 4 bytes");
    EXPECT_EQ(failureAt(1, "bytes a.dat 9 = 00\n"), "expected a.dat 9 = 00, was  and the end of a file of 4 bytes");
    EXPECT_EQ(failureAt(1, "bytes b.dat 0 = 00\n"), "expected b.dat 0 = 00, was missing");
}

TEST_P(Looks, FieldsOfRecords) {
    const std::string first = "Rossi     " + std::string("\x14\0", 2) + std::string("\x04\xF3\x19\0\0\0\0\0", 8);
    const std::string second = "Bianchi   " + std::string("\x0A\0", 2) + std::string(8, '\0');
    ASSERT_TRUE(files.makeFolder("09-06-24"));
    ASSERT_TRUE(writeWhole(files, "09-06-24/09-06-24.vbn", first + second));
    ASSERT_TRUE(writeWhole(files, "Ore.dat", first));
    ASSERT_TRUE(writeWhole(files, "Altro.dat", first));
    // 0x19F304 are 1,700,612 units of 1/10,000.
    EXPECT_EQ(play("record 09-06-24/09-06-24.vbn 1 Nome = Rossi\nrecord 09-06-24/09-06-24.vbn 2 txtNome = Bianchi\n"
                   "record 09-06-24/09-06-24.vbn 2 Ore = 10,00\nrecord ore.dat 1 Dovuto = 170,06\n"
                   "record Ore.dat 1 txtDovuto = 170,0612\n"),
              "");
    EXPECT_EQ(failureAt(1, "record Ore.dat 1 Nome = Verdi\n"), "expected Ore.dat 1 Nome = \"Verdi\", was \"Rossi\"");
    EXPECT_EQ(failureAt(1, "record Ore.dat 2 Nome = Rossi\n"),
              "expected Ore.dat 2 Nome = \"Rossi\", was a file of 1 records");
    EXPECT_EQ(failureAt(1, "record Ore.dat 1 Cognome = Rossi\n"),
              "expected a field Cognome in Ore.dat, was none of that name");
    EXPECT_EQ(failureAt(1, "record Altro.dat 1 Nome = Rossi\n"),
              "expected a record file, was Altro.dat, which is none that is known");
    EXPECT_EQ(failureAt(1, "record 09-06-24/08-06-24.vbn 1 Nome = Rossi\n"),
              "expected a record file, was 09-06-24/08-06-24.vbn, which is none that is known");
    EXPECT_EQ(failureAt(1, "record Params/Ore.dat 1 Nome = Rossi\n"),
              "expected Params/Ore.dat 1 Nome = \"Rossi\", was missing");
}

TEST_P(Looks, AShortLastRecordIsCompletedWithZeros) {
    // Twelve bytes of twenty count as a record; its amount was never written.
    ASSERT_TRUE(writeWhole(files, "Ore.dat", "Rossi     " + std::string("\x14\0", 2)));
    EXPECT_EQ(play("record Ore.dat 1 Ore = 20\nrecord Ore.dat 1 Dovuto = 0\n"), "");
}

TEST_P(Looks, AFolderIsLaidBeforeTheStart) {
    laid("anno/Params/Ore.dat", "0123456789");
    laid("anno/Elezioni/Europee/a.vbn", "abc");
    ASSERT_TRUE(files.makeFolder("PARAMS"));
    ASSERT_TRUE(writeWhole(files, "PARAMS/ore.dat", "x"));
    ASSERT_TRUE(writeWhole(files, "PARAMS/resta.dat", "y"));
    std::string atStart;
    beforeStart = [&] { atStart = readWhole(files, "Params/Ore.dat").valueOr("none"); };
    EXPECT_EQ(play("# files of a year\ncopy anno\n\ntoday 2024-06-10\nfile Elezioni/Europee/a.vbn = 3\n"
                   "file Params/resta.dat = 1\n"),
              "");
    EXPECT_EQ(atStart, "0123456789");
}

TEST_P(Looks, AFolderCanBeLaidLater) {
    laid("dopo/Ore.dat", "0123456789");
    EXPECT_EQ(play("leave\nfile Ore.dat = missing\ncopy dopo\nfile Ore.dat = 10\n"), "");
}

TEST_P(Looks, AFolderThatIsNotThereFails) {
    EXPECT_THAT(failureAt(1, "copy niente\nleave\n"), testing::StartsWith("expected `copy niente`, was a folder that"));
    EXPECT_THAT(failureAt(2, "leave\ncopy niente\n"), testing::StartsWith("expected `copy niente`, was a folder that"));
}

TEST_P(Looks, PicturesStayInsideTheirFolder) {
    EXPECT_EQ(play("screenshot prova.png\nscreenshot cap 1/prova.png\n"), "");
    EXPECT_EQ(std::filesystem::exists(folder.path() / "out/prova.png"), GetParam() == Way::windows);
    EXPECT_EQ(std::filesystem::exists(folder.path() / "out/cap 1/prova.png"), GetParam() == Way::windows);
    for (const char* name :
         {"../prova.png", "/tmp/prova.png", "a/../../prova.png", "..", "C:\\prova.png", "a\\b.png"}) {
        EXPECT_EQ(failureAt(1, std::string("screenshot ") + name + "\n"),
                  std::string("expected a name inside the folder for pictures, was ") + name);
    }
}

}  // namespace
}  // namespace vorbano::test
