// The disk fails once or stops for good at every operation of every command that stores: each file is whole afterwards,
// old or new; what failed is told and what was typed stays; the same command once more brings the station to one state,
// and nothing is done twice.

#include "correction_desk.h"
#include "support/fault_stage.h"

namespace vorbano::test {
namespace {

using ::testing::AnyOf;
using ::testing::Contains;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

std::vector<Who> withFee(std::size_t at, int cents) {
    std::vector<Who> people = threeStations;
    people[at].cents = cents;
    return people;
}

struct Stage;

/// A command: the files before and after it, and what the clerk does before "Salva Modifiche".
struct Command {
    const char* name;
    std::vector<Who> membersBefore, membersAfter;
    std::string substitutesBefore, substitutesAfter;
    void (*prepare)(Stage&);
    const char* typedField;  ///< one that must still hold what was typed after a failure
    const char* done;        ///< title of the message at the end
    bool special = false;    ///< on the screen and the files of the special stations
    [[nodiscard]] std::string members() const { return folder + (special ? "Speciale.vbn" : "Seggi.vbn"); }
    [[nodiscard]] std::string substitutes() const { return folder + (special ? "SosSpec.vbn" : "SosSeggi.vbn"); }
    [[nodiscard]] FaultCase inTable() const {
        return {special ? "frmModSpeciale.cmdSalva" : "frmModSeggi.cmdSalva", name};
    }
};
void PrintTo(const Command& command, std::ostream* out) { *out << command.name; }

/// One fresh disk, desk and screen, at station 1.
struct Stage : FaultStage<StationCorrection> {
    explicit Stage(const Command& command) {
        EXPECT_TRUE(lay(disk, "Params/Tarseg.dat", feesBytes("Europee", {13'800, 11'040, 9'600})));
        EXPECT_TRUE(lay(disk, "Params/TarSpec.dat", feesBytes("Europee", {13'800, 9'600})));
        EXPECT_TRUE(lay(disk, command.members(), membersBytes(command.membersBefore)));
        EXPECT_TRUE(lay(disk, command.substitutes(), command.substitutesBefore));
        if (command.special) {
            openScreen<frmModSpeciale>();
        } else {
            openScreen<frmModSeggi>();
        }
        choose("Combo1", "Europee");
        type("txtDataEle", "09-06-24");
        type("txtSeggio", "1");
        click("cmdRicerca");
        click("cmdAttiva");
        command.prepare(*this);
    }
    void pickMember(int row) { pick("MSFlexGrid1", row, 1); }
    std::string stored(const std::string& path) { return contentOf(disk, path); }
    void save() { click("cmdSalva"); }
};

void correctMember(Stage& stage) {
    stage.tick("Check3");
    stage.pickMember(3);
    stage.type("txtImporto", "77");
    stage.type("txtNome", "NICOL\xC3\x92");
}
void giveSubstitute(Stage& stage) {
    stage.tick("Check3");
    stage.pickMember(3);
    stage.tick("Check1");
    stage.type("txtImporto2", "48");
    stage.type("txtSostituto", "SARTI");
    stage.type("txtNomeS", "DINA");
    stage.type("txtIndirizzo2", "Via Nera 1");
    stage.type("txtFisc2", "SRTDNI79A41H501L");
}
void takeSubstitute(Stage& stage) {
    stage.tick("Check3");
    stage.pickMember(3);
    stage.type("txtNome", "NICOL\xC3\x92");
    stage.tick("Check2");
}
void addOne(Stage& stage) {
    stage.tick("Check4");
    stage.type("Text2", "MARINI");
    stage.type("Text8", "96");
}
void removeOne(Stage& stage) {
    stage.tick("Check5");
    stage.pickMember(3);
}

std::vector<Who> oneMore() {
    std::vector<Who> people = threeStations;
    people.insert(people.begin() + 4, {1, 5, 5, "MARINI", "", "", "Scrutatore", "", 9'600});
    for (Who& who : people) {
        if (who.station == 1) who.composto = 5;
    }
    return people;
}
std::vector<Who> oneLess() {
    std::vector<Who> people = threeStations;
    people.erase(people.begin() + 2);
    for (Who& who : people) {
        if (who.station == 1) who.composto = 3;
    }
    people[2].ordine = 3;
    return people;
}

std::vector<Command> commands() {
    Who moved = tosi;
    moved.ordine = 5;
    const std::string both = substituteBytes(sarti, 3) + substituteBytes(tosi, 2);
    Who second = sarti;
    second.ordine = 6;
    Who first = tosi;
    first.ordine = 5;
    return {
        {"Correction", threeStations, withFee(2, 7'700), "", "", correctMember, "txtNome", "Componenti seggi"},
        {"NewSubstitute", threeStations, withFee(2, 4'800), substituteBytes(first, 2),
         substituteBytes(first, 2) + substituteBytes(second, 3), giveSubstitute, "txtSostituto", "Componenti seggi"},
        {"RemovedSubstitute", withFee(2, 4'800), threeStations, both, substituteBytes(moved, 2), takeSubstitute,
         "txtNome", "Componenti seggi"},
        {"NewSubstituteOfASpecialStation", threeStations, withFee(2, 4'800), substituteBytes(first, 2),
         substituteBytes(first, 2) + substituteBytes(second, 3), giveSubstitute, "txtSostituto", "Componenti seggi",
         true},
        {"RemovedSubstituteOfASpecialStation", withFee(2, 4'800), threeStations, both, substituteBytes(moved, 2),
         takeSubstitute, "txtNome", "Componenti seggi", true},
        {"NewMember", threeStations, oneMore(), both, both, addOne, "Text2", "Aggiungi componente"},
        {"RemovedMember", threeStations, oneLess(), both, both, removeOne, "Text10", "Cancella componente"},
    };
}

class ModSeggiGuasti : public ::testing::TestWithParam<Command> {
  protected:
    static void expectFiles(Stage& stage, const std::vector<Who>& members, const std::string& substitutes) {
        EXPECT_EQ(toHex(stage.stored(GetParam().members())), toHex(membersBytes(members)));
        EXPECT_EQ(toHex(stage.stored(GetParam().substitutes())), toHex(substitutes));
        for (const char* companion : {"SeggiRev.vbn", "RevSosSeggi.vbn", "RevSosSpec.vbn"})
            EXPECT_EQ(stage.stored(folder + companion), noFile) << companion;
    }
    static void expectDone(Stage& stage) { expectFiles(stage, GetParam().membersAfter, GetParam().substitutesAfter); }
    static void expectWhole(Stage& stage) {
        EXPECT_THAT(toHex(stage.stored(GetParam().members())),
                    AnyOf(toHex(membersBytes(GetParam().membersBefore)), toHex(membersBytes(GetParam().membersAfter))));
        EXPECT_THAT(toHex(stage.stored(GetParam().substitutes())),
                    AnyOf(toHex(GetParam().substitutesBefore), toHex(GetParam().substitutesAfter)));
    }
    static int operations() {
        Stage stage(GetParam());
        const int all = operationsOf(stage.failing, [&] { stage.save(); });
        EXPECT_THAT(stage.desk.told, ElementsAre(GetParam().done));
        expectDone(stage);
        return all;
    }
};

TEST_P(ModSeggiGuasti, OneFailureIsToldAndTheCommandGivenAgainEndsIt) {
    const int all = operations();
    int failed = 0;
    atEveryOperation(GetParam().inTable(), all, [&](int n) {
        Stage stage(GetParam());
        const std::string typed = stage.control(GetParam().typedField).shownText();
        ASSERT_FALSE(typed.empty());
        failingOnce(stage.failing, n, [&] { stage.save(); });
        EXPECT_THAT(stage.desk.told, Contains("Errore"));
        expectWhole(stage);
        if (stage.control("cmdSalva").isOperable()) {
            ++failed;
            EXPECT_THAT(stage.desk.told, ElementsAre("Errore"));
            EXPECT_EQ(stage.control(GetParam().typedField).shownText(), typed);
            stage.desk.told.clear();
            stage.save();
            EXPECT_THAT(stage.desk.told, ElementsAre(GetParam().done));
        } else {
            // It was stored; only the station could not be read again, and then nothing of it is on show.
            EXPECT_THAT(stage.desk.told, ElementsAre(GetParam().done, "Errore"));
            EXPECT_EQ(stage.screen->MSFlexGrid1.rows(), 0);
            EXPECT_FALSE(stage.control("cmdAttiva").isOperable());
        }
        expectDone(stage);
    });
    // A change in place is opened, written and flushed; a rebuild reads, writes, flushes and replaces as well.
    EXPECT_GE(failed, 3);
    // Both files are read again.
    EXPECT_GE(all - failed, 5);
}

TEST_P(ModSeggiGuasti, AfterAPowerCutEachFileIsWholeAndTheStationCanBeSearched) {
    const int all = operations();
    atEveryOperation(GetParam().inTable(), all, [&](int n) {
        Stage stage(GetParam());
        cuttingPower(stage.failing, stage.disk, n, [&] { stage.save(); });
        expectWhole(stage);
        stage.desk.told.clear();
        if (stage.control("cmdAnnulla1").isOperable()) stage.click("cmdAnnulla1");
        stage.type("txtSeggio", "1");
        stage.click("cmdRicerca");
        EXPECT_THAT(stage.desk.told, IsEmpty());
        EXPECT_GE(stage.screen->MSFlexGrid1.rows(), 3);
    });
}

INSTANTIATE_TEST_SUITE_P(All, ModSeggiGuasti, ::testing::ValuesIn(commands()),
                         [](const auto& each) { return std::string(each.param.name); });

struct ModSeggiDisco : ModSeggiTest {
    FailingFileSystem failing{files};
};

TEST_F(ModSeggiDisco, ASearchThatFailsIsToldAndShowsNothing) {
    openOn(failing);
    name("1");
    const int all = operationsOf(failing, [&] { click("cmdRicerca"); });
    ASSERT_GE(all, 5);
    atEveryOperation({"frmModSeggi.cmdRicerca", "reads"}, all, [&](int n) {
        failingOnce(failing, n, [&] { click("cmdRicerca"); });
        EXPECT_THAT(desktop.finish(), onlyAnError());
        EXPECT_EQ(rows(), 0);
        EXPECT_FALSE(operable("cmdAttiva"));
        click("cmdRicerca");
        EXPECT_EQ(rows(), 4);
    });
}

TEST_F(ModSeggiDisco, ATariffThatCannotBeReadIsToldAndTheFeeStays) {
    openOn(failing);
    search("1");
    begin("Check3");
    pick("MSFlexGrid1", 1, 1);
    failing.failOnce(1);
    box("Errore", "Il disco non ha completato l'operazione sul file Params/Tarseg.dat.");
    enter("txtImporto");
    EXPECT_EQ(text("txtImporto"), "138,00");
}

TEST_F(ModSeggiDisco, AReadOnlyFileIsToldAndTheCorrectionStays) {
    openMember(1);
    type("txtNome", "LUCIA");
    files.makeReadOnly(folder + "Seggi.vbn");
    box("Errore",
        "Il file " + folder + "Seggi.vbn non può essere letto o scritto: controllare che non sia di sola lettura.");
    click("cmdSalva");
    EXPECT_EQ(text("txtNome"), "LUCIA");
    EXPECT_TRUE(operable("cmdSalva"));
}

}  // namespace
}  // namespace vorbano::test
