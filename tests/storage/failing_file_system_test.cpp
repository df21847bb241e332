#include "storage/failing_file_system.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <string>
#include <vector>

#include "storage/memory_file_system.h"
#include "support/bytes.h"
#include "support/results.h"

namespace vorbano {
namespace {

using test::Fails;
using test::Succeeds;

class Failing : public ::testing::Test {
  protected:
    /// Eleven operations, one of each kind; what each of them answered.
    std::vector<bool> runAll() {
        std::vector<bool> answers;
        const auto note = [&](bool ok) { answers.push_back(ok); };
        note(files.makeFolder("d").ok());
        note(files.open("d/x").ok());
        note(files.openExisting("y").ok());
        note((*file)->write(0, {}).ok());
        note((*file)->flush().ok());
        note((*file)->size().ok());
        note((*file)->read(0, {}).ok());
        note(files.list("").ok());
        note(files.replace("y", "y").ok());
        note(files.remove("z").ok());
        note(files.removeFolder("e").ok());
        return answers;
    }
    void SetUp() override {
        for (const char* folder : {"d", "e"}) ASSERT_THAT(memory.makeFolder(folder), Succeeds());
        for (const char* name : {"y", "z"}) ASSERT_TRUE(test::lay(memory, name, "x"));
        file = files.open("open");
        ASSERT_THAT(file, Succeeds());
        files.failOnce(0);
    }

    static constexpr int kinds = 11;
    MemoryFileSystem memory;
    FailingFileSystem files{memory};
    Result<std::unique_ptr<File>> file = Error{Failure::notFound, ""};
};

TEST_F(Failing, CountsEveryKindOfOperationOnce) {
    EXPECT_THAT(runAll(), ::testing::Each(true));
    EXPECT_EQ(files.operations(), kinds);
}

TEST_F(Failing, FailsTheOneOperationAndNoOther) {
    for (int n = 1; n <= kinds; ++n) {
        SCOPED_TRACE(n);
        ASSERT_TRUE(test::lay(memory, "z", "x"));
        ASSERT_THAT(memory.makeFolder("e"), Succeeds());
        files.failOnce(n);
        std::vector<bool> expected(kinds, true);
        expected[static_cast<std::size_t>(n - 1)] = false;
        EXPECT_EQ(runAll(), expected);
    }
}

TEST_F(Failing, StopsAtTheOperationForGood) {
    for (int n = kinds; n >= 1; --n) {
        SCOPED_TRACE(n);
        ASSERT_TRUE(test::lay(memory, "z", "x"));
        ASSERT_THAT(memory.makeFolder("e"), Succeeds());
        files.stopAt(n);
        std::vector<bool> expected(kinds, false);
        std::fill_n(expected.begin(), n - 1, true);
        EXPECT_EQ(runAll(), expected);
    }
}

TEST_F(Failing, LeavesTheDiskAsItWasWhereItFails) {
    files.failOnce(1);
    const auto done = files.remove("z");
    EXPECT_THAT(done, Fails(Failure::device));
    EXPECT_EQ(done.error().subject, "z");
    EXPECT_EQ(test::contentOf(memory, "z"), "x");
    EXPECT_THAT(files.remove("z"), Succeeds());
}

TEST_F(Failing, AnswersAsTheRealOneDoesOtherwise) {
    EXPECT_THAT(files.openExisting("nowhere"), Fails(Failure::notFound));
    EXPECT_THAT(files.open("nowhere/x"), Fails(Failure::missingFolder));
}

}  // namespace
}  // namespace vorbano
