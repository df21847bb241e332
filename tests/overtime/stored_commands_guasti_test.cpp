// The disk fails once or stops for good at every operation of every command that changes a stored election: each file
// is whole afterwards, old or new, and the same command once more brings everything to its end, nothing twice.

#include "overtime/date_changes.h"
#include "overtime/employee_removal.h"
#include "overtime/liquidation_save.h"
#include "overtime/meirin_periods.h"
#include "overtime/rendi_kontrol.h"
#include "stored_election.h"
#include "support/fault_stage.h"

namespace vorbano::test {
namespace {

using Files = std::map<std::string, std::string>;

/// A command on an election of six employees. What it stores is proven byte by byte by its own tests.
struct Command {
    const char* name;
    const char* command;  ///< whose work it is
    Election election;
    Result<> (*act)(FileSystem&);
    /// The files that it changes.
    std::vector<std::string> changes;
    [[nodiscard]] FaultCase inTable() const { return {command, std::string("rule ") + name}; }
};
void PrintTo(const Command& command, std::ostream* out) { *out << command.name; }

/// The third employee with 21 hours instead of 9.
Liquidation moreHours(const StoredEmployee& employee) {
    Liquidation values = liquidationOf(employee);
    values.periods[0].paid = {9, 5, 4};
    values.periods[0].totalPaid = 18;
    values.periods[3].paid = {2, 2, 2};
    values.totEseg = 21;
    values.pay.Dovuto = cent(30'303);
    values.pay.CpStato = cent(7'212);
    return values;
}

/// All that "Salva" stores: the employee, the amounts of the election, the statement in step.
Result<> salva(FileSystem& files, const Election& election, const LateInUse& late, bool fourPeriods) {
    const auto employee = readEmployee(files, election, late, 3);
    if (!employee) return employee.error();
    if (auto saved = saveLiquidation(files, election, late, 3, moreHours(*employee)); !saved) return saved;
    const ElectionAmounts amounts{.irpef = cent(1), .inail = cent(2), .inailUno = cent(3), .inailDue = cent(4)};
    if (auto stored = storeElectionAmounts(files, election, amounts); !stored) return stored;
    return fourPeriods ? Rendikontrol2(files, election) : RendiKontrol(files, election);
}

ElectionFigures figuresOf(int pool) {
    ElectionFigures figures;
    for (auto& each : figures) each = PeriodFigures{.limit = 60, .pool = pool, .average = 8};
    return figures;
}

DateChange otherDates(bool late) {
    DateChange change;
    for (std::size_t at = 0; at < (late ? 5U : 3U); ++at) {
        change.spans[at] = PeriodSpan{.from = "01-06-13", .to = "06-06-13"};
        change.figures[at] = PeriodFigures{.limit = 14, .pool = 60, .average = 10};
    }
    change.employees = 6;
    return change;
}

const Removal theSecond{.number = 2, .recordsBefore = 6, .employeesLeft = 5, .figures = figuresOf(77)};
/// As a screen that cannot tell how many employees there were.
const Removal theSecondUncounted{.number = 2, .recordsBefore = 0, .employeesLeft = 5, .figures = figuresOf(77)};

const std::vector<Command>& commands() {
    static const std::vector<Command> all = {
        {"Salva",
         "frmModStraord.cmdSalva",
         europee,
         [](FileSystem& files) { return salva(files, europee, noLate, false); },
         {"09-06-24.vbn", "Meirin.vbn", "Rendi.vbn"}},
        {"SalvaWithFivePeriods",
         "frmModStraord.cmdSalva",
         fivePeriods,
         [](FileSystem& files) { return salva(files, fivePeriods, bothLate, true); },
         {"09-06-13.vbn", "Meirin.vbn", "Rendi.vbn", "Quartum.vbn", "Pentium.vbn"}},
        {"ANameAlone",
         "frmModStraord.cmdSalva2",
         europee,
         [](FileSystem& files) { return storeEmployeeName(files, europee, 4, "NERI LUCA"); },
         {"09-06-24.vbn"}},
        {"ChangeOfState",
         "frmModStraord.cmdAttiva2",
         europee,
         [](FileSystem& files) {
             return storePeriodStates(files, europee, {true, false, true}, PeriodState::authorisation);
         },
         {"Meirin.vbn"}},
        {"RendiKontrol",
         "frmModStraord.cmdSalva",
         europee,
         [](FileSystem& files) { return RendiKontrol(files, europee); },
         {"Rendi.vbn"}},
        {"ChangeOfDates",
         "frmModDate.cmdSalva",
         europee,
         [](FileSystem& files) { return changeDates(files, europee, otherDates(false)); },
         {"09-06-24.vbn", "Meirin.vbn"}},
        {"ChangeOfFiveDates",
         "frmModDate.cmdSalva",
         fivePeriods,
         [](FileSystem& files) { return changeDates(files, fivePeriods, otherDates(true)); },
         {"09-06-13.vbn", "Meirin.vbn", "Quartum.vbn", "Pentium.vbn"}},
        {"DatesOfTheActs",
         "frmModDate.cmdSalva2",
         europee,
         [](FileSystem& files) { return storeActDates(files, europee, "20-04-24", "21-04-24"); },
         {"Duedate.vbn"}},
        {"Removal",
         "frmElimina.cmdElimina",
         europee,
         [](FileSystem& files) { return removeEmployee(files, europee, noLate, theSecond); },
         {"09-06-24.vbn", "Meirin.vbn"}},
        {"RemovalWithFivePeriods",
         "frmElimina.cmdElimina",
         fivePeriods,
         [](FileSystem& files) { return removeEmployee(files, fivePeriods, bothLate, theSecond); },
         {"09-06-13.vbn", "Meirin.vbn", "Quartum.vbn", "Pentium.vbn"}},
        {"RemovalUncounted",
         "frmElimina.cmdElimina",
         fivePeriods,
         [](FileSystem& files) { return removeEmployee(files, fivePeriods, bothLate, theSecondUncounted); },
         {"09-06-13.vbn", "Meirin.vbn", "Quartum.vbn", "Pentium.vbn"}},
    };
    return all;
}

bool isRemoval(const Command& command) { return std::string(command.name).starts_with("Removal"); }

/// One fresh disk with the election.
struct Stage {
    MemoryFileSystem disk;
    FailingFileSystem failing{disk};
    explicit Stage(const Command& command) { layElection(disk, command.election, 6); }
};

class StoredCommand : public ::testing::TestWithParam<Command> {
  protected:
    Files before, after;
    int operations = 0;

    void SetUp() override {
        Stage stage(GetParam());
        before = filesOf(stage.disk, GetParam().election);
        operations = operationsOf(stage.failing, [&] { ASSERT_THAT(GetParam().act(stage.failing), Succeeds()); });
        after = filesOf(stage.disk, GetParam().election);
        ASSERT_GE(operations, 3);
        std::vector<std::string> changed;
        for (const auto& [name, content] : after) {
            if (!before.contains(name) || before.at(name) != content) changed.push_back(name);
        }
        ASSERT_THAT(changed, ::testing::UnorderedElementsAreArray(GetParam().changes));
        ASSERT_EQ(after.size(), before.size());
    }
    /// Every operation counts.
    static void failAsADisk(Stage& stage) { EXPECT_THAT(GetParam().act(stage.failing), Fails(Failure::device)); }
    void expectWhole(Stage& stage) {
        const Files now = filesOf(stage.disk, GetParam().election);
        for (const auto& [name, content] : before) {
            ASSERT_TRUE(now.contains(name)) << name;
            EXPECT_TRUE(now.at(name) == content || now.at(name) == after.at(name)) << name << " is neither old nor new";
        }
    }
    /// All files of a removal belong together once the election was searched for.
    void expectOneOfBoth(Stage& stage) {
        EXPECT_THAT(searchElection(stage.disk, GetParam().election), Succeeds());
        const Files now = filesOf(stage.disk, GetParam().election);
        EXPECT_TRUE(now == before || now == after);
    }
    void expectTheEnd(Stage& stage) {
        EXPECT_THAT(GetParam().act(stage.failing), Succeeds());
        const Files now = filesOf(stage.disk, GetParam().election);
        for (const auto& [name, content] : after) EXPECT_EQ(toHex(now.at(name)), toHex(content)) << name;
        // A companion of another rewrite can be left and is overwritten by the next.
        if (isRemoval(GetParam())) {
            EXPECT_EQ(now.size(), after.size());
        }
    }
};

TEST_P(StoredCommand, FailsAtAnyOperationAndIsGivenAgain) {
    atEveryOperation(GetParam().inTable(), operations, [&](int n) {
        Stage stage(GetParam());
        failingOnce(stage.failing, n, [&] {
            failAsADisk(stage);
            ASSERT_GE(stage.failing.operations(), n);
        });
        expectWhole(stage);
        expectTheEnd(stage);
    });
}

TEST_P(StoredCommand, StopsAtAnyOperationAndIsGivenAgain) {
    atEveryOperation(GetParam().inTable(), operations, [&](int n) {
        Stage stage(GetParam());
        stopping(stage.failing, n, [&] { failAsADisk(stage); });
        expectWhole(stage);
        expectTheEnd(stage);
    });
}

TEST_P(StoredCommand, IsGivenAgainAfterAPowerCutAtAnyOperation) {
    atEveryOperation(GetParam().inTable(), operations, [&](int n) {
        Stage stage(GetParam());
        cuttingPower(stage.failing, stage.disk, n, [&] { failAsADisk(stage); });
        expectWhole(stage);
        expectTheEnd(stage);
    });
}

TEST_P(StoredCommand, ThatRemovesLeavesFilesOfOneElectionAfterTheSearch) {
    if (!isRemoval(GetParam())) return;
    atEveryOperation(GetParam().inTable(), operations, [&](int n) {
        Stage stage(GetParam());
        cuttingPower(stage.failing, stage.disk, n, [&] { failAsADisk(stage); });
        expectOneOfBoth(stage);
        // And a second failure while the first is being mended.
        Stage again(GetParam());
        stopping(again.failing, n, [&] { failAsADisk(again); });
        stopping(again.failing, 3, [&] { searchElection(again.failing, GetParam().election).ignore(); });
        expectOneOfBoth(again);
    });
}

INSTANTIATE_TEST_SUITE_P(Of, StoredCommand, ::testing::ValuesIn(commands()),
                         [](const auto& each) { return std::string(each.param.name); });

}  // namespace
}  // namespace vorbano::test
