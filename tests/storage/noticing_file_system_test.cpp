#include "storage/noticing_file_system.h"

#include <gmock/gmock.h>

#include "storage/failing_file_system.h"
#include "storage/memory_file_system.h"
#include "support/bytes.h"
#include "support/results.h"

namespace vorbano {
namespace {

using test::asBytes;
using test::contentOf;
using test::Fails;
using test::lay;
using test::Succeeds;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

struct Noticing : ::testing::Test {
    MemoryFileSystem disk;
    FailingFileSystem failing{disk};
    std::vector<std::string> noticed;
    NoticingFileSystem files{
        failing, [this](const Unwritten& one) { noticed.push_back(one.error.subject + (one.isFolder ? "/" : "")); }};
};

TEST_F(Noticing, TellsOfWhatAReadOnlyDiskDoesNotTake) {
    ASSERT_TRUE(lay(disk, "x", "old"));
    ASSERT_TRUE(lay(disk, "y", "old"));
    disk.makeReadOnly("");
    EXPECT_THAT(files.open("x"), Fails(Failure::refused));
    EXPECT_THAT(files.replace("y", "z"), Fails(Failure::refused));
    EXPECT_THAT(files.makeFolder("new"), Fails(Failure::refused));
    EXPECT_THAT(noticed, ElementsAre("x", "z", "new/"));
    EXPECT_EQ(contentOf(disk, "x"), "old");
}

TEST_F(Noticing, TellsOfAWriteThatAFullDiskRefuses) {
    auto file = files.open("x");
    ASSERT_THAT(file, Succeeds());
    disk.leaveRoom(2);
    EXPECT_THAT((*file)->write(0, asBytes("ab")), Succeeds());
    EXPECT_THAT(noticed, IsEmpty());
    EXPECT_THAT((*file)->write(2, asBytes("c")), Fails(Failure::diskFull));
    EXPECT_THAT(noticed, ElementsAre("x"));
}

TEST_F(Noticing, TellsOfWhatCouldNotBeFlushed) {
    auto file = files.open("x");
    ASSERT_THAT(file, Succeeds());
    failing.failOnce(1);
    EXPECT_THAT((*file)->flush(), Fails(Failure::device));
    EXPECT_THAT(noticed, ElementsAre("x"));
}

TEST_F(Noticing, PassesOverWhatIsOnlyNotThere) {
    EXPECT_THAT(files.open("folder/x"), Fails(Failure::missingFolder));
    EXPECT_THAT(files.openExisting("x"), Fails(Failure::notFound));
    EXPECT_THAT(files.remove("x"), Fails(Failure::notFound));
    EXPECT_THAT(files.replace("x", "y"), Fails(Failure::notFound));
    EXPECT_THAT(files.removeFolder("x"), Fails(Failure::notFound));
    EXPECT_THAT(files.makeFolder("a/b"), Fails(Failure::missingFolder));
    EXPECT_THAT(files.open("../x"), Fails(Failure::badName));
    EXPECT_THAT(noticed, IsEmpty());
}

TEST_F(Noticing, PassesOverWhatCouldNotBeRemoved) {
    ASSERT_TRUE(lay(disk, "folder/x", "old"));
    ASSERT_THAT(disk.makeFolder("empty"), Succeeds());
    EXPECT_THAT(files.removeFolder("folder"), Fails(Failure::refused));
    disk.makeReadOnly("");
    EXPECT_THAT(files.remove("folder/x"), Fails(Failure::refused));
    EXPECT_THAT(files.removeFolder("empty"), Fails(Failure::refused));
    failing.stopAt(1);
    EXPECT_THAT(files.remove("folder/x"), Fails(Failure::device));
    EXPECT_THAT(files.removeFolder("empty"), Fails(Failure::device));
    EXPECT_THAT(noticed, IsEmpty());
}

TEST(NoticingOfChanges, TellsOfWhatWasWrittenReplacedOrRemoved) {
    MemoryFileSystem disk;
    int changes = 0;
    NoticingFileSystem files(
        disk, [](const Unwritten&) { ADD_FAILURE(); }, [&changes] { ++changes; });
    ASSERT_THAT(files.makeFolder("folder"), Succeeds());
    {
        auto file = files.open("folder/x");
        ASSERT_THAT(file, Succeeds());
        EXPECT_EQ(changes, 0) << "an opening is no change";
        EXPECT_THAT((*file)->write(0, asBytes("x")), Succeeds());
    }
    EXPECT_EQ(changes, 1);
    EXPECT_THAT(files.replace("folder/x", "folder/y"), Succeeds());
    EXPECT_EQ(changes, 2);
    EXPECT_THAT(files.remove("folder/x"), Fails(Failure::notFound));
    EXPECT_EQ(changes, 2);
    EXPECT_THAT(files.remove("folder/y"), Succeeds());
    EXPECT_EQ(changes, 3);
}

TEST_F(Noticing, PassesOverWhatCouldNotBeRead) {
    ASSERT_TRUE(lay(disk, "x", "old"));
    auto file = files.open("x");
    ASSERT_THAT(file, Succeeds());
    failing.stopAt(1);
    std::array<std::byte, 3> into{};
    EXPECT_THAT((*file)->read(0, into), Fails(Failure::device));
    EXPECT_THAT((*file)->size(), Fails(Failure::device));
    EXPECT_THAT(files.list(""), Fails(Failure::device));
    EXPECT_THAT(files.openExisting("x"), Fails(Failure::device));
    EXPECT_THAT(noticed, IsEmpty());
}

}  // namespace
}  // namespace vorbano
