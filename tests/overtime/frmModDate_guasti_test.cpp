// The disk fails once or stops for good at every operation of every command of the screen of the dates.

#include "mod_date_desk.h"
#include "support/fault_stage.h"

namespace vorbano::test::moddate {
namespace {

using ::testing::AnyOf;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

const std::string folder13 = "Elezioni/Europee_Comunali/26-05-13/";
constexpr Span fourth = {"21-05-13", "26-05-13"};
constexpr std::array<Span, 3> early = {{{"27-03-13", "25-04-13"}, {"26-04-13", "10-05-13"}, {"11-05-13", "20-05-13"}}};

/// All files of the election.
struct Files {
    std::string employees, quartum, meirin, duedate;
};

Files laidFiles(const LaidPools& pools, const Span& fifth, std::array<int, 5> averages, std::array<int, 5> limits,
                std::string acts) {
    Files files;
    for (int number = 1; number <= 2; ++number) {
        const char* name = number == 1 ? "CONTI ALDO" : "LEONE PAOLA";
        files.employees += staffBytes(pools, number, name, early, {{{20, 10, 5}, {10, 5, 1}, {6, 2, 1}}});
        files.quartum += lateBytes(pools, number, name, fifth, {4, 2, 0});
    }
    files.meirin = limitBytes(averages, limits);
    files.duedate = std::move(acts);
    return files;
}

/// One fresh disk, desk and screen. A fifth period is there and left out.
struct Stage : FaultStage<frmModDate> {
    Stage() {
        const Files files = before();
        EXPECT_TRUE(lay(disk, folder13 + "26-05-13.vbn", files.employees));
        EXPECT_TRUE(lay(disk, folder13 + "Quartum.vbn", files.quartum));
        EXPECT_TRUE(lay(disk, folder13 + "Meirin.vbn", files.meirin));
        EXPECT_TRUE(lay(disk, folder13 + "Duedate.vbn", files.duedate));
        EXPECT_TRUE(lay(disk, "Params/Ente.dat", padded("Lesa", 60)));
    }

    static Files before() {
        return laidFiles({60, 180, 366, 3}, fourth, {60, 30, 20, 12, 0}, {180, 90, 60, 36, 0}, "25-03-1326-03-13");
    }
    void identify() {
        openScreen();
        choose("Combo1", "Europee_Comunali");
        type("txtDataEle", "26/05/13");
    }
    void search() {
        identify();
        click("cmdRicerca");
    }
    [[nodiscard]] std::string stored(const char* name) { return contentOf(disk, folder13 + std::string(name)); }
};

/// A command, what leads up to it, and all files afterwards.
struct Command {
    const char* name;
    void (*prepare)(Stage&);
    const char* button;
    bool (*isDone)(Stage&);
    Files after;
    [[nodiscard]] FaultCase inTable() const { return {std::string("frmModDate.") + button, name}; }
};
void PrintTo(const Command& command, std::ostream* out) { *out << command.name; }

const std::vector<Command>& commands() {
    static const std::vector<Command> all = {
        {"Search", [](Stage& stage) { stage.identify(); }, "cmdRicerca",
         [](Stage& stage) { return stage.screen->txtNumDip.text() == "3" && stage.screen->Frame2.enabled(); },
         Stage::before()},
        {"Situation", [](Stage& stage) { stage.search(); }, "cmdModifica",
         [](Stage& stage) { return stage.control("cmdSalva").isOperable(); }, Stage::before()},
        {"Summary",
         [](Stage& stage) {
             stage.search();
             stage.click("cmdModifica");
         },
         "cmdStampa", [](Stage& stage) { return stage.printing.pages.size() == 1; }, Stage::before()},
        {"Acts",
         [](Stage& stage) {
             stage.search();
             stage.tick("Check7");
             stage.type("txtDataDetermina", "04/04/13");
         },
         "cmdSalva2", [](Stage& stage) { return !stage.screen->Check7.checked(); },
         laidFiles({60, 180, 366, 3}, fourth, {60, 30, 20, 12, 0}, {180, 90, 60, 36, 0}, "25-03-1304-04-13")},
        {"Dates",
         [](Stage& stage) {
             stage.search();
             stage.tick("Check4");
             stage.type("txtQuartusAlM", "23/05/13");
             stage.click("cmdModifica");
         },
         "cmdSalva", [](Stage& stage) { return !stage.control("cmdSalva").isOperable(); },
         laidFiles({70, 210, 348, 3}, {"21-05-13", "23-05-13"}, {60, 30, 20, 6, 0}, {180, 90, 60, 18, 0},
                   "25-03-1326-03-13")},
    };
    return all;
}

class ModDateGuasti : public ::testing::TestWithParam<Command> {
  protected:
    static int operations() {
        Stage stage;
        GetParam().prepare(stage);
        const int seen = operationsOf(stage.failing, [&] { stage.click(GetParam().button); });
        EXPECT_TRUE(GetParam().isDone(stage));
        expectAfter(stage);
        return seen;
    }
    static void expectAfter(Stage& stage) {
        EXPECT_EQ(toHex(stage.stored("26-05-13.vbn")), toHex(GetParam().after.employees));
        EXPECT_EQ(toHex(stage.stored("Quartum.vbn")), toHex(GetParam().after.quartum));
        EXPECT_EQ(toHex(stage.stored("Meirin.vbn")), toHex(GetParam().after.meirin));
        EXPECT_EQ(stage.stored("Duedate.vbn"), GetParam().after.duedate);
    }
    /// Each file is old or new, and the employees change last.
    static void expectWhole(Stage& stage) {
        const Files before = Stage::before();
        const Files& after = GetParam().after;
        EXPECT_THAT(stage.stored("26-05-13.vbn"), AnyOf(before.employees, after.employees));
        EXPECT_THAT(stage.stored("Quartum.vbn"), AnyOf(before.quartum, after.quartum));
        EXPECT_THAT(stage.stored("Meirin.vbn"), AnyOf(before.meirin, after.meirin));
        EXPECT_THAT(stage.stored("Duedate.vbn"), AnyOf(before.duedate, after.duedate));
        if (before.employees != after.employees && stage.stored("26-05-13.vbn") == after.employees) expectAfter(stage);
    }
};

TEST_P(ModDateGuasti, OneFailureIsToldAndTheCommandGivenAgainEndsIt) {
    const int all = operations();
    ASSERT_GE(all, 2);
    atEveryOperation(GetParam().inTable(), all, [&](int n) {
        Stage stage;
        GetParam().prepare(stage);
        stage.desk.told.clear();
        failingOnce(stage.failing, n, [&] { stage.click(GetParam().button); });
        expectWhole(stage);
        if (!GetParam().isDone(stage)) {
            EXPECT_THAT(stage.desk.told, ElementsAre("Errore"));
            stage.click(GetParam().button);
        }
        EXPECT_TRUE(GetParam().isDone(stage));
        expectAfter(stage);
    });
}

TEST_P(ModDateGuasti, APowerCutLeavesEachFileOldOrNewAndTheElectionIsFoundAgain) {
    const int all = operations();
    atEveryOperation(GetParam().inTable(), all, [&](int n) {
        Stage stage;
        GetParam().prepare(stage);
        cuttingPower(stage.failing, stage.disk, n, [&] { stage.click(GetParam().button); });
        expectWhole(stage);
        stage.desk.told.clear();
        stage.search();
        EXPECT_THAT(stage.desk.told, IsEmpty());
        EXPECT_EQ(stage.screen->txtNumDip.text(), "3");
    });
}

TEST_P(ModDateGuasti, WhatFailedDoesNotLeaveTheClerkWithHalfAScreen) {
    const int all = operations();
    atEveryOperation(GetParam().inTable(), all, [&](int n) {
        Stage stage;
        GetParam().prepare(stage);
        failingOnce(stage.failing, n, [&] { stage.click(GetParam().button); });
        if (GetParam().isDone(stage)) return;
        EXPECT_TRUE(stage.control(GetParam().button).isOperable());
        if (!stage.control("Frame2").isEnabled()) {
            EXPECT_EQ(stage.screen->txtNumDip.text(), "");
            EXPECT_EQ(stage.control("txtMens1").shownText(), "");
        }
    });
}

INSTANTIATE_TEST_SUITE_P(Of, ModDateGuasti, ::testing::ValuesIn(commands()),
                         [](const auto& command) { return std::string(command.param.name); });

/// The printer that does not answer.
class BrokenPrinter : public RecordingPrintEngine {
  public:
    Result<> printPage(const PlainPage&) override { return Error{Failure::refused, "Ufficio"}; }
};

TEST(ModDateResocontoGuasti, APrinterThatDoesNotAnswerIsTold) {
    Stage stage;
    BrokenPrinter broken;
    AgreeingDesk desk;
    frmModDate screen(Workplace{stage.disk, desk, stage.staging, broken, stage.screens, stage.places});
    desk.open(screen.form);
    Operator clerk(screen.form);
    EXPECT_EQ(clerk.choose(screen.Combo1, "Europee_Comunali"), Refusal::none);
    EXPECT_EQ(clerk.type(screen.txtDataEle, "26/05/13"), Refusal::none);
    EXPECT_EQ(clerk.click(screen.cmdRicerca), Refusal::none);
    EXPECT_EQ(clerk.click(screen.cmdModifica), Refusal::none);
    EXPECT_THAT(desk.told, IsEmpty());
    EXPECT_EQ(clerk.click(screen.cmdStampa), Refusal::none);
    EXPECT_THAT(desk.told, ElementsAre("Errore"));
    EXPECT_TRUE(screen.cmdStampa.enabled());
    desk.shut(screen.form);
}

}  // namespace
}  // namespace vorbano::test::moddate
