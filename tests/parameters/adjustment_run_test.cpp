// The run over an election, byte by byte: which records are written, and which stay as they are.

#include "parameters/adjustment_run.h"

#include <gmock/gmock.h>

#include <string>
#include <vector>

#include "adjusted_employees.h"
#include "storage/memory_file_system.h"
#include "storage/record_file.h"
#include "support/fault_stage.h"
#include "support/laid_out_records.h"
#include "support/results.h"

namespace vorbano {
namespace {

using test::euro;
using test::liquidatedEmployee;
using test::Sheet;
using test::toHex;

const Election election{"Politiche_Comunali", "13-04-08"};
constexpr const char* folder = "Elezioni/Politiche_Comunali/13-04-08/";

/// Row n (from 1) has the rates n,01 n,02 n,03.
RateTable distinctRates() {
    RateTable table;
    for (int number = 1; number <= tariffRowCount; ++number) {
        const auto rate = [&](int kind) { return Currency::fromCents(number * 100 + kind); };
        table[static_cast<std::size_t>(number) - 1] = {rate(1), rate(2), rate(3)};
    }
    return table;
}

/// The employee of `employeeBytes`, grade "G    B6", row 11: 25 x 11,01 + 15 x 11,02 + 11,03 = 451,58 against 559,65.
/// Of -108,07: 25,7207 and 9,1860, together 34,9067; 9,5102 and 0,3782, together 9,8884.
std::string overAllPeriods() {
    return Sheet(145)
        .integersAt(0, {2, 25, 15, 1})
        .at(8, test::nuls(17))
        .amountsAt(25, {1101, 1102, 1103, 45158, -10807, 2380, -2572, 850, -919, -3491, 880, -951, 35, -38, -989})
        .bytes();
}

/// 18 x 11,01 + 10 x 11,02 + 11,03 = 319,41 against 18 x 12,34 + 10 x 15,55 + 17,90 = 395,52. Of -76,11: 18,1142 and
/// 6,4694, together 24,5836; 6,6977 and 0,2664, together 6,9641.
std::string overTheFirstPeriod() {
    return Sheet(145)
        .integersAt(0, {2, 18, 10, 1})
        .at(8, test::nuls(17))
        .amountsAt(25, {1101, 1102, 1103, 31941, -7611, 2380, -1811, 850, -647, -2458, 880, -670, 35, -27, -696})
        .bytes();
}

class AdjustmentRunOver : public ::testing::Test {
  protected:
    void layEmployees(const std::string& bytes) {
        ASSERT_TRUE(test::lay(files, std::string(folder) + "13-04-08.vbn", bytes));
    }
    void layResult(std::string_view name, const std::string& bytes) {
        ASSERT_TRUE(test::lay(files, folder + std::string(name), bytes));
    }
    void run(const AdjustmentRun& which) {
        EXPECT_THAT(runAdjustment(files, election, distinctRates(), which), test::Succeeds());
    }
    std::string file(std::string_view name) { return test::contentOf(files, folder + std::string(name)); }

    MemoryFileSystem files;
};

TEST_F(AdjustmentRunOver, AllPeriodsWritesCongs) {
    layEmployees(test::employeeBytes());
    run(allPeriods);
    EXPECT_EQ(toHex(file("Congs.vbn")), toHex(overAllPeriods()));
    EXPECT_EQ(file("Congs1.vbn"), test::noFile);
    EXPECT_EQ(file("RevCongs.vbn"), test::noFile);
    EXPECT_EQ(toHex(file("13-04-08.vbn")), toHex(test::employeeBytes()));
}

TEST_F(AdjustmentRunOver, TheFirstPeriodWritesCongs1) {
    layEmployees(test::employeeBytes());
    run(firstPeriod);
    EXPECT_EQ(toHex(file("Congs1.vbn")), toHex(overTheFirstPeriod()));
    EXPECT_EQ(file("Congs.vbn"), test::noFile);
    EXPECT_EQ(file("RevCongs1.vbn"), test::noFile);
    EXPECT_EQ(toHex(file("13-04-08.vbn")), toHex(test::employeeBytes()));
}

TEST_F(AdjustmentRunOver, AnElectionAgainWritesTheSameBytes) {
    layEmployees(test::employeeBytes() + test::employeeBytes());
    run(allPeriods);
    const std::string once = file("Congs.vbn");
    run(allPeriods);
    EXPECT_EQ(toHex(file("Congs.vbn")), toHex(once));
    EXPECT_EQ(toHex(once), toHex(overAllPeriods() + overAllPeriods()));
}

TEST_F(AdjustmentRunOver, EmployeesWithoutARowLeavesZeroBytesBeforeTheNext) {
    const std::string unknown = test::bytesOf(liquidatedEmployee("SEGR", {9, 9, 9}, "99,99"));
    layEmployees(unknown + test::employeeBytes() + unknown + test::employeeBytes() + unknown);
    run(allPeriods);
    EXPECT_EQ(toHex(file("Congs.vbn")), toHex(test::nuls(145) + overAllPeriods() + test::nuls(145) + overAllPeriods()));
}

TEST_F(AdjustmentRunOver, EmployeesWithoutARowLeavesTheRecordsOfAnEarlierRun) {
    const std::string unknown = test::bytesOf(liquidatedEmployee("SEGR", {9, 9, 9}, "99,99"));
    layEmployees(unknown + test::employeeBytes());
    const std::string earlier(145, 'x');
    layResult("Congs.vbn", earlier + earlier);
    run(allPeriods);
    EXPECT_EQ(toHex(file("Congs.vbn")), toHex(earlier + overAllPeriods()));
}

TEST_F(AdjustmentRunOver, AShorterListLeavesTheRecordsBehindIt) {
    layEmployees(test::employeeBytes());
    const std::string earlier(145, 'x');
    layResult("Congs.vbn", earlier + earlier + earlier);
    run(allPeriods);
    EXPECT_EQ(toHex(file("Congs.vbn")), toHex(overAllPeriods() + earlier + earlier));
}

TEST_F(AdjustmentRunOver, NobodyMakesAnEmptyFile) {
    layEmployees("");
    run(allPeriods);
    EXPECT_EQ(file("Congs.vbn"), "");
}

TEST_F(AdjustmentRunOver, AnElectionThatIsNotThereFails) {
    EXPECT_THAT(runAdjustment(files, election, distinctRates(), allPeriods), test::Fails(Failure::missingFolder));
    EXPECT_THAT(runAdjustment(files, {"Europee", "../01"}, distinctRates(), allPeriods), test::Fails(Failure::badName));
}

TEST_F(AdjustmentRunOver, AFullListWritesEveryRecord) {
    const std::string one = test::employeeBytes();
    std::string employees;
    for (int number = 1; number <= maxRecords; ++number) employees += one;
    layEmployees(employees);
    run(allPeriods);
    const std::string result = file("Congs.vbn");
    ASSERT_EQ(result.size(), std::size_t{145} * maxRecords);
    EXPECT_EQ(result.substr(result.size() - 145), overAllPeriods());
}

/// The disk fails once, or the power goes, at every operation: the result is old or new.
TEST_F(AdjustmentRunOver, FaultsOfTheDiskLeaveWholeFiles) {
    layEmployees(test::employeeBytes());
    const std::string before(145, 'x');
    FailingFileSystem failing{files};
    layResult("Congs.vbn", before);
    const int operations = test::operationsOf(
        failing, [&] { ASSERT_THAT(runAdjustment(failing, election, distinctRates(), allPeriods), test::Succeeds()); });
    ASSERT_GE(operations, 8);
    for (const test::Fault fault : test::bothFaults) {
        test::atEveryOperation({"frmParametri.cmdCrea", "rule"}, operations, [&](int n) {
            layResult("Congs.vbn", before);
            test::strike(failing, fault, n);
            const auto done = runAdjustment(failing, election, distinctRates(), allPeriods);
            failing.failOnce(0);
            if (fault == test::Fault::forGood) files.cutPower();
            EXPECT_THAT(done, ::testing::Not(test::Succeeds()));
            EXPECT_THAT(file("Congs.vbn"), ::testing::AnyOf(before, overAllPeriods()));
            EXPECT_EQ(toHex(file("13-04-08.vbn")), toHex(test::employeeBytes()));
            run(allPeriods);
            EXPECT_EQ(toHex(file("Congs.vbn")), toHex(overAllPeriods()));
        });
    }
}

}  // namespace
}  // namespace vorbano
