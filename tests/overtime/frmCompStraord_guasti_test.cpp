// The disk fails once or stops for good at every operation of every command that stores: each file is whole afterwards,
// old or new; what failed is told, and the same command once more brings everything to its end, nothing twice.

#include "authorisation_desk.h"
#include "support/fault_stage.h"

namespace vorbano::test {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

/// One fresh disk, desk and screen.
struct Stage : FaultStage<frmCompStraord> {
    Stage() {
        EXPECT_TRUE(lay(disk, "Params/PmDip.dat", pmDipBytes()));
        EXPECT_TRUE(lay(disk, "Params/Conprev.dat", conprevBytes()));
        EXPECT_TRUE(lay(disk, "Params/Dipend.dat", padded("VERDI ALDO", 60)));
    }
    /// The next employee up to "Salva": 10, 4, 2 hours and 5, 3, 1, grade D3.
    void enterEmployee(const char* name) {
        type("txtNameDip", name);
        enterHours("1", {"10", "4", "2"});
        enterHours("2", {"5", "3", "1"});
        click("CmdRiepilogo");
        tick("Check2");
        click("cmdTariffe");
        pick("MSFlexGrid1", 4, 0);
    }
    void enterHours(const std::string& period, std::array<const char*, 3> hours) {
        type("txtAutFer" + period + "Per", hours[0]);
        type("txtAutFes" + period + "Per", hours[1]);
        type("txtNf" + period + "Per", hours[2]);
        leave();
    }
    void identify(const char* number) {
        choose("Combo1", "Europee");
        type("txtDataEle", "09/06/24");
        type("txtNumDip", number);
    }
    /// The name of the first employee of six.
    void toName() {
        openScreen();
        identify("6");
        click("cmdAttiva");
        type("txtDataDecreto", "15/04/24");
        type("txtDataDetermina", "18/04/24");
        click("cmdConferma");
        type("txtUnodal", "20/04/24");
        type("txtUnoal", "19/05/24");
        type("txtDuedal", "20/05/24");
        type("txtDueal", "29/05/24");
        click("Command1");
    }
    void storeTwo() {
        toName();
        enterEmployee("PRIMO");
        click("cmdSalva");
        click("cmdAggiungi");
        enterEmployee("SECONDO");
        click("cmdSalva");
    }
    std::string stored(const char* name) { return contentOf(disk, "Elezioni/Europee/09-06-24/" + std::string(name)); }
    std::string names() { return contentOf(disk, "Params/Dipend.dat"); }
};

/// A command, what leads up to it, and all files before and after.
struct Command {
    const char* name;
    void (*prepare)(Stage&);
    const char* button;
    struct Files {
        std::string employees, meirin, duedate, names;
    } before, after;
    void act(Stage& stage) const { stage.click(button); }
    /// The command can be given (again).
    [[nodiscard]] bool canAct(Stage& stage) const { return stage.operable(button); }
    [[nodiscard]] FaultCase inTable() const { return {std::string("frmCompStraord.") + button, name}; }
};
void PrintTo(const Command& command, std::ostream* out) { *out << command.name; }

std::string onlyVerdi() { return padded("VERDI ALDO", 60); }
std::string twoNames() { return onlyVerdi() + padded("PRIMO", 60); }
std::string threeNames() { return twoNames() + padded("SECONDO", 60); }
std::string two(int employees = 6) {
    return authorisedBytes(1, "PRIMO", employees) + authorisedBytes(2, "SECONDO", employees);
}
const std::string acts = "15-04-2418-04-24";

std::string twoWithNewDates() {
    std::string bytes = two();
    for (const std::size_t at : {std::size_t{0}, std::size_t{301}}) {
        bytes.replace(at + 6, 2, le16(280));
        bytes.replace(at + 110, 8, "24-05-24");
    }
    return bytes;
}

const std::vector<Command>& commands() {
    static const std::vector<Command> all = {
        {"TheFirstSalva",
         [](Stage& stage) {
             stage.toName();
             stage.enterEmployee("PRIMO");
         },
         "cmdSalva",
         {std::string(noFile), std::string(noFile), std::string(noFile), onlyVerdi()},
         {authorisedBytes(1, "PRIMO"), freshMeirin(), acts, twoNames()}},
        {"TheSecondSalva",
         [](Stage& stage) {
             stage.toName();
             stage.enterEmployee("PRIMO");
             stage.click("cmdSalva");
             stage.click("cmdAggiungi");
             stage.enterEmployee("SECONDO");
         },
         "cmdSalva",
         {authorisedBytes(1, "PRIMO"), freshMeirin(), acts, twoNames()},
         {two(), freshMeirin(), acts, threeNames()}},
        {"ANewNumber",
         [](Stage& stage) {
             stage.storeTwo();
             stage.menu("mnuNumero");
             stage.type("txtNumDip", "9");
         },
         "cmdAttiva",
         {two(), freshMeirin(), acts, threeNames()},
         {two(9), freshMeirin({40, 13, 0}, {360, 120, 0}), acts, threeNames()}},
        {"NewDates",
         [](Stage& stage) {
             stage.storeTwo();
             stage.menu("mnuDate");
             stage.type("txtDueal", "24/05/24");
         },
         "Command1",
         {two(), freshMeirin(), acts, threeNames()},
         // Five days of the second period: 40 hours for the staff, 7 on average.
         {twoWithNewDates(), freshMeirin({40, 7, 0}, {240, 40, 0}), acts, threeNames()}},
        {"ACorrectedName",
         [](Stage& stage) {
             stage.storeTwo();
             stage.menu("mnuDipendenti");
             stage.chooseIndex("List1", 1);
             stage.type("txtNominativo", "PRIMA");
         },
         "Command2",
         {two(), freshMeirin(), acts, threeNames()},
         {two(), freshMeirin(), acts, onlyVerdi() + padded("PRIMA", 60) + padded("SECONDO", 60)}},
    };
    return all;
}

class Guasti : public ::testing::TestWithParam<Command> {
  protected:
    int operations() {
        Stage stage;
        GetParam().prepare(stage);
        expectFiles(stage, GetParam().before);
        const int seen = operationsOf(stage.failing, [&] { GetParam().act(stage); });
        expectFiles(stage, GetParam().after);
        return seen;
    }
    static void expectFiles(Stage& stage, const Command::Files& files) {
        EXPECT_EQ(toHex(stage.stored("09-06-24.vbn")), toHex(files.employees));
        EXPECT_EQ(toHex(stage.stored("Meirin.vbn")), toHex(files.meirin));
        EXPECT_EQ(stage.stored("Duedate.vbn"), files.duedate);
        EXPECT_EQ(stage.names(), files.names);
    }
    /// Opening makes a file that was not there, empty.
    static void expectWhole(Stage& stage) {
        const Command::Files& before = GetParam().before;
        const Command::Files& after = GetParam().after;
        EXPECT_THAT(stage.stored("09-06-24.vbn"), oldOrNew(before.employees, after.employees));
        EXPECT_THAT(stage.stored("Meirin.vbn"), oldOrNew(before.meirin, after.meirin));
        EXPECT_THAT(stage.stored("Duedate.vbn"), oldOrNew(before.duedate, after.duedate));
        EXPECT_THAT(stage.names(), oldOrNew(before.names, after.names));
    }
};

TEST_P(Guasti, OneFailureIsToldAndTheCommandGivenAgainEndsIt) {
    const int all = operations();
    ASSERT_GE(all, 3);
    atEveryOperation(GetParam().inTable(), all, [&](int n) {
        Stage stage;
        GetParam().prepare(stage);
        stage.desk.told.clear();
        failingOnce(stage.failing, n, [&] { GetParam().act(stage); });
        expectWhole(stage);
        if (GetParam().canAct(stage)) {
            EXPECT_FALSE(stage.desk.told.empty()) << "it failed without a word";
            EXPECT_THAT(stage.desk.told, ::testing::Contains("Errore"));
            GetParam().act(stage);
        }
        expectFiles(stage, GetParam().after);
        EXPECT_FALSE(GetParam().canAct(stage));
    });
}

TEST_P(Guasti, APowerCutLeavesEachFileOldOrNew) {
    const int all = operations();
    atEveryOperation(GetParam().inTable(), all, [&](int n) {
        Stage stage;
        GetParam().prepare(stage);
        cuttingPower(stage.failing, stage.disk, n, [&] { GetParam().act(stage); });
        expectWhole(stage);
    });
}

TEST_P(Guasti, AfterAPowerCutTheElectionIsTakenUpAgain) {
    const int all = operations();
    atEveryOperation(GetParam().inTable(), all, [&](int n) {
        Stage stage;
        GetParam().prepare(stage);
        cuttingPower(stage.failing, stage.disk, n, [&] { GetParam().act(stage); });
        stage.desk.told.clear();
        stage.openScreen();
        stage.identify("9");
        stage.click("cmdAttiva");
        EXPECT_THAT(stage.desk.told, IsEmpty());
        const bool isNew = stage.stored("09-06-24.vbn").size() < 301;
        EXPECT_EQ(stage.control("Frame9").isVisible(), isNew) << "without an employee the acts are asked for again";
        EXPECT_EQ(stage.control("txtNameDip").isOperable(), !isNew);
    });
}

INSTANTIATE_TEST_SUITE_P(Of, Guasti, ::testing::ValuesIn(commands()),
                         [](const auto& command) { return std::string(command.param.name); });

/// The commands that only read: a failure is told and leaves the screen where it was.
class Letture : public ::testing::Test {
  protected:
    template <class Prepare, class Act, class Through>
    static void everyFailureIsTold(const char* command, const Prepare& prepare, const Act& act,
                                   const Through& isThrough) {
        int all = 0;
        {
            Stage stage;
            prepare(stage);
            all = operationsOf(stage.failing, [&] { act(stage); });
            ASSERT_TRUE(isThrough(stage));
        }
        ASSERT_GE(all, 2);
        const FaultCase reading{std::string("frmCompStraord.") + command, "reads"};
        atEveryOperation(reading, all, [&](int n) {
            Stage stage;
            prepare(stage);
            const std::string before = stage.stored("09-06-24.vbn");
            stage.desk.told.clear();
            failingOnce(stage.failing, n, [&] { act(stage); });
            EXPECT_EQ(stage.stored("09-06-24.vbn"), before);
            if (isThrough(stage)) return;
            EXPECT_THAT(stage.desk.told, ElementsAre("Errore"));
            act(stage);
            EXPECT_TRUE(isThrough(stage));
        });
    }
};

TEST_F(Letture, AStoredElectionIsNeverTakenForANewOne) {
    everyFailureIsTold(
        "cmdAttiva",
        [](Stage& stage) {
            stage.storeTwo();
            stage.openScreen();
            stage.identify("6");
        },
        [](Stage& stage) {
            stage.click("cmdAttiva");
            EXPECT_FALSE(stage.control("Frame9").isVisible());
        },
        [](Stage& stage) { return stage.screen->cmdAttiva.text() == "ATTIVATO"; });
}

TEST_F(Letture, HoursAreNotAcceptedAgainstAPoolThatCouldNotBeRead) {
    everyFailureIsTold(
        "txtNf1Per",
        [](Stage& stage) {
            stage.storeTwo();
            stage.click("cmdAggiungi");
            stage.type("txtNameDip", "TERZO");
        },
        [](Stage& stage) {
            stage.enterHours("1", {"10", "4", "2"});
        },
        [](Stage& stage) { return stage.screen->txtNameDip.form().focused()->name() == "txtAutFer2Per"; });
}

TEST_F(Letture, ContinuaWaitsForTheDisk) {
    everyFailureIsTold(
        "cmdAggiungi", [](Stage& stage) { stage.storeTwo(); }, [](Stage& stage) { stage.click("cmdAggiungi"); },
        [](Stage& stage) { return stage.control("txtNameDip").isOperable(); });
}

TEST_F(Letture, TheListOfNamesWaitsForTheDisk) {
    everyFailureIsTold(
        "mnuDipendenti", [](Stage& stage) { stage.openScreen(); }, [](Stage& stage) { stage.menu("mnuDipendenti"); },
        [](Stage& stage) { return stage.control("Frame7").isVisible(); });
}

TEST_F(Letture, AChosenNameWaitsForTheDisk) {
    everyFailureIsTold(
        "cboDipendenti", [](Stage& stage) { stage.toName(); },
        [](Stage& stage) { stage.chooseIndex("cboDipendenti", 0); },
        [](Stage& stage) { return stage.screen->txtNameDip.text() == "VERDI ALDO"; });
}

TEST_F(Letture, TheTariffsWaitForTheDisk) {
    everyFailureIsTold(
        "cmdTariffe",
        [](Stage& stage) {
            stage.toName();
            stage.type("txtNameDip", "PRIMO");
            stage.enterHours("1", {"10", "4", "2"});
            stage.enterHours("2", {"5", "3", "1"});
            stage.click("CmdRiepilogo");
            stage.tick("Check2");
        },
        [](Stage& stage) { stage.click("cmdTariffe"); },
        [](Stage& stage) { return stage.screen->MSFlexGrid1.rows() == 32; });
}

TEST_F(Letture, PercentagesThatCannotBeReadAreNotTakenForMissing) {
    Stage counting;
    const int all = operationsOf(counting.failing, [&] { counting.openScreen(); });
    ASSERT_GE(all, 4);
    int told = 0;
    atEveryOperation({"frmCompStraord", "opens"}, all, [&](int n) {
        Stage stage;
        stage.failing.failOnce(n);
        stage.openScreen();
        if (stage.screen->Label37.text() == "23,80") {
            EXPECT_THAT(stage.desk.told, IsEmpty());
            return;
        }
        EXPECT_THAT(stage.desk.told, ElementsAre("Errore"));
        EXPECT_FALSE(stage.screen->mnuModifica.enabled());
        ++told;
    });
    EXPECT_GE(told, 3);
}

}  // namespace
}  // namespace vorbano::test
