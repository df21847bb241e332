// The disk fails or stops at every operation of a block of rates, and of a run: each file is whole afterwards, old or
// new, and the clerk is told.

#include "parameters_desk.h"
#include "support/laid_out_records.h"

namespace vorbano::test {
namespace {

constexpr const char* folder = "Elezioni/Politiche_Comunali/13-04-08/";

class AdjustmentFaults : public ParametriTest {
  protected:
    std::string result(std::string_view name) { return contentOf(files, folder + std::string(name)); }
    void layResult(std::string_view name, const std::string& bytes) {
        ASSERT_TRUE(lay(files, folder + std::string(name), bytes));
    }
    void expectTold() { EXPECT_THAT(desktop.finish(), ::testing::Contains(::testing::HasSubstr("\"Errore\""))); }
    /// The screen on the failing disk, the election and a date of effect chosen.
    void prepare() {
        failing.failOnce(0);
        ASSERT_TRUE(lay(files, "Params/PmDip.dat", tariffBytes("/", distinctCents)));
        ASSERT_TRUE(lay(files, "Params/PmDipc.dat", blockBefore));
        layResult("13-04-08.vbn", employeeBytes());
        layResult("Congs.vbn", resultBefore);
        layResult("Congs1.vbn", resultBefore);
        openOn(failing, staging, printing);
        tick("Check46");
        EXPECT_EQ(clerk().choose(control("Combo1"), "Politiche_Comunali"), Refusal::none);
        EXPECT_EQ(clerk().choose(control("Combo2"), "13-04-08"), Refusal::none);
        EXPECT_EQ(clerk().choose(control("cboDeco"), "01/04/2008"), Refusal::none);
        tick("Check5");
    }
    void save() {
        desktop.box("SALVATAGGIO", "FATTO!!");
        click("cmdSalva");
    }
    void run() {
        desktop.box("Conguaglio", question, ScriptedDesktop::Answer::yes)
            .box("Conguaglio", "Calcolo conguaglio effettuato");
        click("cmdCrea");
    }
    /// Plays `command` on a disk that fails once, then on one that stops for good, at every operation that it has, and
    /// once more on the disk mended.
    template <class Command, class Look>
    void underEveryFault(const FaultCase& of, Command&& command, Look&& look) {
        prepare();
        const int operations = operationsOf(failing, command);
        EXPECT_GE(operations, 6);
        for (const Fault fault : bothFaults) {
            atEveryOperation(of, operations, [&](int n) {
                prepare();
                strike(failing, fault, n);
                command();
                failing.failOnce(0);
                if (fault == Fault::forGood) files.cutPower();
                expectTold();
                look();
                command();
            });
        }
    }

    const std::string question =
        "State per effettuare il conguaglio delle competenze liquidate\nper Elezioni : Politiche_Comunali  del "
        "13-04-08\nVolete continuare?";
    const std::string blockBefore = [] {
        std::string bytes;
        for (const ExpectedRow& row : expectedRows)
            bytes += padded(row.grade, 15) + padded("01/04/2008", 10) + amount(1) + amount(2) + amount(3);
        return bytes;
    }();
    const std::string resultBefore = std::string(145, 'x');
    FailingFileSystem failing{files};
};

TEST_F(AdjustmentFaults, ABlockOfRatesIsOldOrNew) {
    const auto saveAnother = [&] {
        type("txtD2Day", "99,99");
        save();
    };
    std::string after = blockBefore;
    after.replace(std::size_t{4} * 49 + 25, 8, amount(99, 99));
    underEveryFault({"frmParametri.cmdSalva", "rates of a date of effect"}, saveAnother,
                    [&] { EXPECT_THAT(file("PmDipc.dat"), ::testing::AnyOf(blockBefore, after)); });
    EXPECT_EQ(toHex(file("PmDipc.dat")), toHex(after));
}

TEST_F(AdjustmentFaults, TheResultsOfARunAreOldOrNew) {
    prepare();
    run();
    const std::string after = result("Congs.vbn");
    const std::string after1 = result("Congs1.vbn");
    // Row B6 at 1,00, 2,00 and 3,00: 25 + 30 + 3 = 58,00, and 18 + 20 + 3 = 41,00.
    ASSERT_EQ(toHex(after.substr(49, 8)), toHex(amount(58)));
    ASSERT_EQ(toHex(after1.substr(49, 8)), toHex(amount(41)));
    underEveryFault(
        {"frmParametri.cmdCrea", "a joint election"}, [&] { run(); },
        [&] {
            EXPECT_THAT(result("Congs.vbn"), ::testing::AnyOf(resultBefore, after));
            EXPECT_THAT(result("Congs1.vbn"), ::testing::AnyOf(resultBefore, after1));
            EXPECT_EQ(toHex(result("13-04-08.vbn")), toHex(employeeBytes()));
        });
    EXPECT_EQ(toHex(result("Congs.vbn")), toHex(after));
    EXPECT_EQ(toHex(result("Congs1.vbn")), toHex(after1));
}

TEST_F(AdjustmentFaults, TheRatesOfADateThatCannotBeReadAreNotInUse) {
    prepare();
    failing.failOnce(1);
    desktop.box("Errore", "Il disco non ha completato l'operazione sul file Params/PmDipc.dat.");
    EXPECT_EQ(clerk().choose(control("cboDeco"), "01/04/2008"), Refusal::none);
    EXPECT_EQ(text("lblDeco"), "");
    EXPECT_EQ(text("txtD2Day"), "1,00");
}

/// The second run does not begin when the first one could not be stored.
TEST_F(AdjustmentFaults, AReadOnlyResultEndsTheRun) {
    prepare();
    files.makeReadOnly(folder + std::string("Congs1.vbn"));
    desktop.box("Conguaglio", question, ScriptedDesktop::Answer::yes);
    desktop.box("Errore",
                "Il file Elezioni/Politiche_Comunali/13-04-08/Congs1.vbn non può essere letto o scritto: "
                "controllare che non sia di sola lettura.");
    click("cmdCrea");
    EXPECT_EQ(result("Congs.vbn"), resultBefore);
}

}  // namespace
}  // namespace vorbano::test
