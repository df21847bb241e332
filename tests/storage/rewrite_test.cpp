#include <gmock/gmock.h>

#include <set>
#include <string>

#include "any_file_system.h"
#include "storage/fields.h"
#include "storage/record_file.h"
#include "support/bytes.h"
#include "support/results.h"

namespace vorbano {
namespace {

using test::contentOf;
using test::Fails;
using test::lay;
using test::le16;
using test::noFile;
using test::padded;
using test::Succeeds;

constexpr std::string_view file = "d/Seggi.vbn";
constexpr std::string_view companion = "d/SeggiRev.vbn";

/// A record that holds a text and its own number, as those of the employees do.
struct Member {
    Text<4> name;
    Integer number;
};

std::string bytes(std::string_view name, int number) { return padded(name, 4) + le16(number); }

const std::string three = bytes("a", 1) + bytes("b", 2) + bytes("c", 3);

/// Takes the numbers in `out` away and gives the others their new number.
Result<> takeOut(FileSystem& files, const std::set<int>& out) {
    std::int16_t next = 0;
    return rewrite<Member>(files, file, companion, [&](int number, Member& member) {
        if (out.contains(number)) return false;
        member.number = ++next;
        return true;
    });
}

class Rewrite : public test::AnyFileSystem {
  protected:
    void expectAfter(const std::string& before, const std::set<int>& out, const std::string& after) {
        ASSERT_TRUE(lay(files(), file, before));
        EXPECT_THAT(takeOut(files(), out), Succeeds());
        EXPECT_EQ(contentOf(files(), file), after);
        EXPECT_EQ(contentOf(files(), companion), noFile);
    }
};
ON_EVERY_FILE_SYSTEM(Rewrite);

TEST_P(Rewrite, TakesTheFirstRecordOut) { expectAfter(three, {1}, bytes("b", 1) + bytes("c", 2)); }
TEST_P(Rewrite, TakesARecordInTheMiddleOut) { expectAfter(three, {2}, bytes("a", 1) + bytes("c", 2)); }
TEST_P(Rewrite, TakesTheLastRecordOut) { expectAfter(three, {3}, bytes("a", 1) + bytes("b", 2)); }
TEST_P(Rewrite, OfTheOnlyRecordLeavesAnEmptyFile) { expectAfter(bytes("a", 1), {1}, ""); }
TEST_P(Rewrite, OfAllRecordsLeavesAnEmptyFile) { expectAfter(three, {1, 2, 3}, ""); }
TEST_P(Rewrite, ThatTakesNothingOutKeepsEverything) { expectAfter(three, {}, three); }
TEST_P(Rewrite, OfAnEmptyFileLeavesItEmpty) { expectAfter("", {1}, ""); }

TEST_P(Rewrite, CompletesAShortLastRecord) { expectAfter(bytes("a", 1) + "bbbb", {1}, bytes("bbbb", 1)); }

TEST_P(Rewrite, IsNotDisturbedByACompanionLeftOver) {
    ASSERT_TRUE(lay(files(), companion, three + three + three));
    expectAfter(three, {2}, bytes("a", 1) + bytes("c", 2));
}

TEST_P(Rewrite, KeepsTheSpellingOfTheFile) {
    ASSERT_TRUE(lay(files(), "d/SEGGI.VBN", three));
    EXPECT_THAT(takeOut(files(), {1}), Succeeds());
    const auto entries = files().list("d");
    ASSERT_THAT(entries, Succeeds());
    ASSERT_EQ(entries->size(), 1U);
    EXPECT_EQ(entries->front().name, "SEGGI.VBN");
}

TEST_P(Rewrite, OfAFileThatFillsManyBlocksKeepsTheOrder) {
    std::string before;
    std::string after;
    for (int n = 1; n <= maxRecords; ++n) {
        before += bytes("w", n);
        if (n > 1) after += bytes("w", n - 1);
    }
    expectAfter(before, {1}, after);
}

TEST_P(Rewrite, InAMissingFolderFails) { EXPECT_THAT(takeOut(files(), {1}), Fails(Failure::missingFolder)); }

/// How a run ended after the n-th operation failed.
struct Outcome {
    bool ok = false;
    std::string atOnce;    ///< the file as the program finds it then
    std::string afterCut;  ///< and after a power cut
    std::string again;     ///< and after the same command has run once more without trouble
};

Outcome runWithFault(int n, bool stops) {
    MemoryFileSystem memory;
    EXPECT_TRUE(lay(memory, file, three));
    FailingFileSystem files(memory);
    stops ? files.stopAt(n) : files.failOnce(n);
    Outcome outcome;
    outcome.ok = takeOut(files, {2}).ok();
    outcome.atOnce = contentOf(memory, file);
    memory.cutPower();
    outcome.afterCut = contentOf(memory, file);
    EXPECT_TRUE(lay(memory, file, three));
    EXPECT_THAT(takeOut(memory, {2}), Succeeds());
    outcome.again = contentOf(memory, file);
    return outcome;
}

TEST(RewriteUnderFaults, LeavesTheFileWholeAndOldOrNewWhereverItFails) {
    MemoryFileSystem memory;
    ASSERT_TRUE(lay(memory, file, three));
    FailingFileSystem counting(memory);
    ASSERT_THAT(takeOut(counting, {2}), Succeeds());
    const int all = counting.operations();
    ASSERT_GE(all, 8) << "remove, two opens, size, read, write, flush, replace";

    const std::string after = bytes("a", 1) + bytes("c", 2);
    for (const bool stops : {false, true}) {
        for (int n = 1; n <= all + 1; ++n) {
            SCOPED_TRACE(::testing::Message() << (stops ? "stop at " : "failure of ") << n << " of " << all);
            const Outcome outcome = runWithFault(n, stops);
            EXPECT_EQ(outcome.ok, n > all) << "no failure is hidden";
            EXPECT_EQ(outcome.atOnce, outcome.ok ? after : three);
            EXPECT_EQ(outcome.afterCut, outcome.ok ? after : three);
            EXPECT_EQ(outcome.again, after) << "what is left over does no harm";
        }
    }
}

}  // namespace
}  // namespace vorbano
