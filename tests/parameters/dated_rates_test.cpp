// PmDipc.dat: where a block of rates goes and which one is found, byte by byte.

#include "parameters/dated_rates.h"

#include <gmock/gmock.h>

#include <string>

#include "adjusted_employees.h"
#include "storage/memory_file_system.h"
#include "support/expected_tariffs.h"
#include "support/results.h"

namespace vorbano {
namespace {

using test::CentsOf;
using test::toHex;

constexpr std::string_view april = "01/04/2008";
constexpr std::string_view january = "01/01/2009";
constexpr const char* path = "Params/PmDipc.dat";

/// One record as it must stand on file: row `number` from 1.
std::string rowBytes(std::string_view date, int number, const CentsOf& centsOf) {
    const auto& row = test::expectedRows.at(static_cast<std::size_t>(number) - 1);
    return test::padded(row.grade, 15) + test::padded(date, 10) + test::amount(0, centsOf(number, 0)) +
           test::amount(0, centsOf(number, 1)) + test::amount(0, centsOf(number, 2));
}
std::string rowsBytes(std::string_view date, int first, int last, const CentsOf& centsOf) {
    std::string bytes;
    for (int number = first; number <= last; ++number) bytes += rowBytes(date, number, centsOf);
    return bytes;
}
std::string blockBytes(std::string_view date, const CentsOf& centsOf = test::distinctCents) {
    return rowsBytes(date, 1, 32, centsOf);
}

RateTable tableOf(const CentsOf& centsOf) {
    RateTable table;
    for (int number = 1; number <= tariffRowCount; ++number) {
        table[static_cast<std::size_t>(number) - 1] = {Currency::fromCents(centsOf(number, 0)),
                                                       Currency::fromCents(centsOf(number, 1)),
                                                       Currency::fromCents(centsOf(number, 2))};
    }
    return table;
}

/// Another rate in every row.
int otherCents(int number, int kind) { return number * 100 + kind + 51; }

class DatedRatesFile : public ::testing::Test {
  protected:
    DatedRatesFile() { EXPECT_TRUE(files.makeFolder("Params").ok()); }

    void expectFile(const std::string& bytes) { EXPECT_EQ(toHex(test::contentOf(files, path)), toHex(bytes)); }
    void expectLoaded(std::string_view date, const CentsOf& centsOf) {
        const auto block = loadDatedRates(files, date);
        ASSERT_THAT(block, test::Succeeds());
        ASSERT_TRUE(block->has_value());
        const RateTable expected = tableOf(centsOf);
        EXPECT_EQ((*block)->deco, date);
        for (std::size_t row = 0; row < expected.size(); ++row) {
            EXPECT_EQ((*block)->rates[row].Day, expected[row].Day) << row;
            EXPECT_EQ((*block)->rates[row].Fn, expected[row].Fn) << row;
            EXPECT_EQ((*block)->rates[row].Nf, expected[row].Nf) << row;
        }
    }
    void expectNone(std::string_view date) {
        const auto block = loadDatedRates(files, date);
        ASSERT_THAT(block, test::Succeeds());
        EXPECT_FALSE(block->has_value());
    }

    MemoryFileSystem files;
};

TEST_F(DatedRatesFile, TakesItsFirstBlockAtTheFirstRecord) {
    ASSERT_THAT(storeDatedRates(files, april, tableOf(test::distinctCents)), test::Succeeds());
    expectFile(blockBytes(april));
    expectLoaded(april, test::distinctCents);
}

TEST_F(DatedRatesFile, ABlockOfTheSameDateIsWrittenOver) {
    ASSERT_TRUE(test::lay(files, path, blockBytes(april) + blockBytes(january)));
    ASSERT_THAT(storeDatedRates(files, april, tableOf(otherCents)), test::Succeeds());
    expectFile(blockBytes(april, otherCents) + blockBytes(january));
    ASSERT_THAT(storeDatedRates(files, january, tableOf(otherCents)), test::Succeeds());
    expectFile(blockBytes(april, otherCents) + blockBytes(january, otherCents));
}

TEST_F(DatedRatesFile, ANewDateBeginsOnTheLastRecordOfTheFile) {
    ASSERT_TRUE(test::lay(files, path, blockBytes(april)));
    ASSERT_THAT(storeDatedRates(files, january, tableOf(otherCents)), test::Succeeds());
    expectFile(rowsBytes(april, 1, 31, test::distinctCents) + blockBytes(january, otherCents));
    expectLoaded(january, otherCents);
}

/// Its last row is the first of the block that was put upon it.
TEST_F(DatedRatesFile, ABlockThatLostItsLastRowShowsTheNextRecordThere) {
    ASSERT_TRUE(test::lay(files, path, rowsBytes(april, 1, 31, test::distinctCents) + blockBytes(january, otherCents)));
    expectLoaded(april, [](int number, int kind) {
        return number == 32 ? otherCents(1, kind) : test::distinctCents(number, kind);
    });
}

/// Saved again, the first block takes back its last row, and the second begins one record later from then on: read now
/// it would be a row out of step. Saved again too it is whole.
TEST_F(DatedRatesFile, BothBlocksAreWholeWhenBothAreSavedAgain) {
    ASSERT_TRUE(test::lay(files, path, rowsBytes(april, 1, 31, otherCents) + blockBytes(january, otherCents)));
    ASSERT_THAT(storeDatedRates(files, april, tableOf(test::distinctCents)), test::Succeeds());
    expectFile(blockBytes(april) + rowsBytes(january, 2, 32, otherCents));
    expectLoaded(january, [](int number, int kind) { return number == 32 ? 0 : otherCents(number + 1, kind); });
    ASSERT_THAT(storeDatedRates(files, january, tableOf(otherCents)), test::Succeeds());
    expectFile(blockBytes(april) + blockBytes(january, otherCents));
}

TEST_F(DatedRatesFile, OneRecordOfAnInstallationIsWrittenOver) {
    ASSERT_TRUE(test::lay(files, path, test::nuls(49)));
    ASSERT_THAT(storeDatedRates(files, april, tableOf(test::distinctCents)), test::Succeeds());
    expectFile(blockBytes(april));
}

TEST_F(DatedRatesFile, HoldsRatesToCentsAndTheDateTrimmed) {
    RateTable table{};
    table[4] = test::ratesOf("10,1249", "10,125", "-0,005");
    ASSERT_THAT(storeDatedRates(files, " 01/04/2008 ", table), test::Succeeds());
    expectFile(blockBytes(april, [](int number, int kind) {
        constexpr int rounded[] = {1012, 1013, -1};
        return number == 5 ? rounded[kind] : 0;
    }));
}

TEST_F(DatedRatesFile, OfADateThatItDoesNotHoldLoadsNothing) {
    expectNone(april);
    ASSERT_TRUE(test::lay(files, path, test::nuls(49) + blockBytes(april)));
    expectNone(january);
    expectNone("");
    expectNone("01/04/200");
}

TEST_F(DatedRatesFile, ABlockThatEndsWithTheFileHasZerosBehindIt) {
    ASSERT_TRUE(test::lay(files, path, rowsBytes(april, 1, 3, test::distinctCents)));
    expectLoaded(april, [](int number, int kind) { return number <= 3 ? test::distinctCents(number, kind) : 0; });
}

TEST_F(DatedRatesFile, WithoutItsFolderIsAFailure) {
    ASSERT_TRUE(files.removeFolder("Params").ok());
    EXPECT_THAT(storeDatedRates(files, april, RateTable{}), test::Fails(Failure::missingFolder));
    EXPECT_THAT(loadDatedRates(files, april), test::Fails(Failure::missingFolder));
}

}  // namespace
}  // namespace vorbano
