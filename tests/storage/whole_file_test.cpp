#include <gmock/gmock.h>

#include <string>

#include "any_file_system.h"
#include "storage/file_system.h"
#include "support/bytes.h"
#include "support/results.h"

namespace vorbano {
namespace {

using test::contentOf;
using test::Fails;
using test::Gives;
using test::lay;
using test::Succeeds;

class WholeFile : public test::AnyFileSystem {};
ON_EVERY_FILE_SYSTEM(WholeFile);

TEST_P(WholeFile, IsReadAsItWasWritten) {
    const std::string content = std::string(100'000, 'x') + test::fromHex("00 0a 0d ff");
    EXPECT_THAT(writeWhole(files(), "x.txt", content), Succeeds());
    EXPECT_THAT(readWhole(files(), "x.txt"), Gives(content));
}

TEST_P(WholeFile, CanBeEmpty) {
    EXPECT_THAT(writeWhole(files(), "x.txt", ""), Succeeds());
    EXPECT_THAT(readWhole(files(), "x.txt"), Gives(std::string()));
}

TEST_P(WholeFile, ReplacesALongerOneAndLeavesNothingBesideIt) {
    ASSERT_TRUE(lay(files(), "x.txt.tmp", "left over by a run that was cut short"));
    ASSERT_THAT(writeWhole(files(), "x.txt", "long content"), Succeeds());
    EXPECT_THAT(writeWhole(files(), "x.txt", "short"), Succeeds());
    EXPECT_THAT(readWhole(files(), "x.txt"), Gives(std::string("short")));
    const auto entries = files().list("");
    ASSERT_THAT(entries, Succeeds());
    EXPECT_EQ(entries->size(), 1U);
}

TEST_P(WholeFile, FailsWhereItCannotBe) {
    EXPECT_THAT(readWhole(files(), "x.txt"), Fails(Failure::notFound));
    EXPECT_THAT(writeWhole(files(), "d/x.txt", "x"), Fails(Failure::missingFolder));
    EXPECT_THAT(writeWhole(files(), "../x.txt", "x"), Fails(Failure::badName));
    EXPECT_THAT(writeWhole(files(), "", "x"), Fails(Failure::badName));
    EXPECT_THAT(writeWhole(files(), "d/", "x"), Fails(Failure::badName));
    ASSERT_THAT(files().makeFolder("folder"), Succeeds());
    EXPECT_THAT(writeWhole(files(), "folder", "x"), Fails(Failure::refused));
    EXPECT_THAT(readWhole(files(), "folder"), Fails(Failure::refused));
    const auto entries = files().list("");
    ASSERT_THAT(entries, Succeeds());
    EXPECT_EQ(entries->size(), 1U) << "a failure leaves nothing behind";
}

TEST(WholeFileUnderFaults, IsOldOrNewWhereverItFails) {
    constexpr int all = 5;  // remove, open, write, flush, replace
    for (const bool stops : {false, true}) {
        for (int n = 1; n <= all + 1; ++n) {
            SCOPED_TRACE(::testing::Message() << (stops ? "stop at " : "failure of ") << n);
            MemoryFileSystem memory;
            ASSERT_TRUE(lay(memory, "x", "old"));
            FailingFileSystem files(memory);
            stops ? files.stopAt(n) : files.failOnce(n);
            EXPECT_EQ(writeWhole(files, "x", "new").ok(), n > all);
            memory.cutPower();
            EXPECT_EQ(contentOf(memory, "x"), n > all ? "new" : "old");
            EXPECT_THAT(writeWhole(memory, "x", "newer"), Succeeds());
            EXPECT_EQ(contentOf(memory, "x"), "newer");
        }
    }
}

TEST(WholeFileUnderFaults, IsNotReadByHalves) {
    MemoryFileSystem memory;
    ASSERT_TRUE(lay(memory, "x", "whole"));
    FailingFileSystem files(memory);
    for (int n = 1; n <= 3; ++n) {  // open, size, read
        files.failOnce(n);
        EXPECT_THAT(readWhole(files, "x"), Fails(Failure::device)) << n;
    }
    EXPECT_THAT(readWhole(files, "x"), Gives(std::string("whole")));
}

}  // namespace
}  // namespace vorbano
