#include "storage/memory_file_system.h"

#include <gmock/gmock.h>

#include <string>

#include "support/bytes.h"
#include "support/results.h"

namespace vorbano {
namespace {

using test::asBytes;
using test::contentOf;
using test::Fails;
using test::lay;
using test::noFile;
using test::Succeeds;

TEST(PowerCut, TakesWhatWasNotFlushed) {
    MemoryFileSystem files;
    ASSERT_TRUE(lay(files, "x", "old"));
    auto file = files.open("x");
    ASSERT_THAT(file, Succeeds());
    ASSERT_THAT((*file)->write(0, asBytes("newer")), Succeeds());
    EXPECT_EQ(contentOf(files, "x"), "newer");
    files.cutPower();
    EXPECT_EQ(contentOf(files, "x"), "old");
}

TEST(PowerCut, LeavesWhatWasFlushed) {
    MemoryFileSystem files;
    auto file = files.open("x");
    ASSERT_THAT(file, Succeeds());
    ASSERT_THAT((*file)->write(0, asBytes("kept")), Succeeds());
    ASSERT_THAT((*file)->flush(), Succeeds());
    ASSERT_THAT((*file)->write(4, asBytes(" lost")), Succeeds());
    files.cutPower();
    EXPECT_EQ(contentOf(files, "x"), "kept");
}

TEST(PowerCut, LeavesANewFileThatWasNotFlushedEmpty) {
    MemoryFileSystem files;
    auto file = files.open("x");
    ASSERT_THAT(file, Succeeds());
    ASSERT_THAT((*file)->write(0, asBytes("lost")), Succeeds());
    files.cutPower();
    EXPECT_EQ(contentOf(files, "x"), "");
}

TEST(PowerCut, LeavesAReplacementWithTheFlushedContentOnly) {
    MemoryFileSystem files;
    ASSERT_TRUE(lay(files, "x", "old"));
    {
        auto file = files.open("companion");
        ASSERT_THAT(file, Succeeds());
        ASSERT_THAT((*file)->write(0, asBytes("never flushed")), Succeeds());
    }
    ASSERT_THAT(files.replace("companion", "x"), Succeeds());
    files.cutPower();
    EXPECT_EQ(contentOf(files, "x"), "") << "this is what flushing before the replacement is for";
    EXPECT_EQ(contentOf(files, "companion"), noFile);
}

class ReadOnly : public ::testing::Test {
  protected:
    void SetUp() override {
        ASSERT_TRUE(lay(files, "Params/Ente.dat", "Roma"));
        ASSERT_TRUE(lay(files, "Params/Dipend.dat", "Rossi"));
        ASSERT_TRUE(lay(files, "free", "free"));
        ASSERT_THAT(files.makeFolder("Params/empty"), Succeeds());
    }
    MemoryFileSystem files;
};

TEST_F(ReadOnly, AFileIsReadAndNotChanged) {
    auto before = files.open("Params/Ente.dat");
    ASSERT_THAT(before, Succeeds());
    files.makeReadOnly("params/ente.dat");
    EXPECT_THAT(files.open("Params/Ente.dat"), Fails(Failure::refused));
    EXPECT_THAT((*before)->write(0, asBytes("x")), Fails(Failure::refused));
    EXPECT_THAT(files.remove("Params/Ente.dat"), Fails(Failure::refused));
    EXPECT_THAT(files.replace("free", "Params/Ente.dat"), Fails(Failure::refused));
    EXPECT_THAT(files.replace("Params/Ente.dat", "free"), Fails(Failure::refused));
    EXPECT_EQ(contentOf(files, "Params/Ente.dat"), "Roma");
    EXPECT_THAT(files.open("Params/Dipend.dat"), Succeeds()) << "the one beside it is not concerned";
}

TEST_F(ReadOnly, AFolderKeepsItsFilesAndTakesNoNewOnes) {
    files.makeReadOnly("Params");
    EXPECT_THAT(files.open("Params/Ente.dat"), Fails(Failure::refused));
    EXPECT_THAT(files.open("Params/new"), Fails(Failure::refused));
    EXPECT_THAT(files.makeFolder("Params/new"), Fails(Failure::refused));
    EXPECT_THAT(files.makeFolder("Params/empty"), Succeeds()) << "it is there";
    EXPECT_THAT(files.makeFolder("Params/empty/new"), Fails(Failure::refused));
    EXPECT_THAT(files.removeFolder("Params/empty"), Fails(Failure::refused));
    EXPECT_THAT(files.replace("free", "Params/new"), Fails(Failure::refused));
    EXPECT_EQ(contentOf(files, "Params/Dipend.dat"), "Rossi");
    EXPECT_EQ(contentOf(files, "free"), "free");
}

TEST_F(ReadOnly, TheRootIsEverything) {
    files.makeReadOnly("");
    EXPECT_THAT(files.open("free"), Fails(Failure::refused));
    EXPECT_THAT(files.open("new"), Fails(Failure::refused));
    EXPECT_THAT(files.makeFolder("Elezioni"), Fails(Failure::refused));
    EXPECT_EQ(contentOf(files, "free"), "free");
}

}  // namespace
}  // namespace vorbano
