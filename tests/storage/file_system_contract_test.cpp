#include <gmock/gmock.h>

#include <array>
#include <string>
#include <vector>

#include "any_file_system.h"
#include "support/bytes.h"
#include "support/results.h"

namespace vorbano {
namespace {

using test::asBytes;
using test::contentOf;
using test::Fails;
using test::Gives;
using test::lay;
using test::noFile;
using test::nuls;
using test::Succeeds;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

class EveryFileSystem : public test::AnyFileSystem {
  protected:
    /// "Params" for folders, "Ente.dat" for files, a "/" behind a folder.
    std::vector<std::string> namesIn(std::string_view folder) {
        std::vector<std::string> names;
        const auto entries = files().list(folder);
        if (!entries) return {"(not listed)"};
        for (const Entry& entry : *entries) names.push_back(entry.name + (entry.isFolder ? "/" : ""));
        return names;
    }
};
ON_EVERY_FILE_SYSTEM(EveryFileSystem);

TEST_P(EveryFileSystem, OpeningCreatesTheFileEmpty) {
    ASSERT_THAT(files().makeFolder("Params"), Succeeds());
    auto file = files().open("Params/Ente.dat");
    ASSERT_THAT(file, Succeeds());
    EXPECT_THAT((*file)->size(), Gives(std::uint64_t{0}));
    EXPECT_EQ(contentOf(files(), "Params/Ente.dat"), "");
}

TEST_P(EveryFileSystem, OpeningLeavesAnExistingFileAsItIs) {
    ASSERT_TRUE(lay(files(), "Params/Ente.dat", "Roma"));
    EXPECT_THAT(files().open("Params/Ente.dat"), Succeeds());
    EXPECT_EQ(contentOf(files(), "Params/Ente.dat"), "Roma");
}

TEST_P(EveryFileSystem, OpeningInAMissingFolderFailsAndMakesNoFolder) {
    EXPECT_THAT(files().open("Params/Ente.dat"), Fails(Failure::missingFolder));
    EXPECT_THAT(files().open("Elezioni/Europee/09-06-24/09-06-24.vbn"), Fails(Failure::missingFolder));
    EXPECT_THAT(namesIn(""), IsEmpty());
}

TEST_P(EveryFileSystem, AFileIsNoFolder) {
    ASSERT_TRUE(lay(files(), "Params", "a file"));
    EXPECT_THAT(files().open("Params/Ente.dat"), Fails(Failure::missingFolder));
    EXPECT_THAT(files().makeFolder("Params/x"), Fails(Failure::missingFolder));
    EXPECT_THAT(files().makeFolder("Params"), Fails(Failure::refused));
    EXPECT_THAT(files().list("Params"), Fails(Failure::missingFolder));
    EXPECT_THAT(files().removeFolder("Params"), Fails(Failure::refused));
    EXPECT_THAT(files().openExisting("Params/Ente.dat"), Fails(Failure::notFound));
    EXPECT_THAT(files().remove("Params/Ente.dat"), Fails(Failure::notFound));
    EXPECT_EQ(contentOf(files(), "Params"), "a file");
}

TEST_P(EveryFileSystem, AFolderIsNoFile) {
    ASSERT_TRUE(lay(files(), "Params/Ente.dat", "Roma"));
    EXPECT_THAT(files().open("Params"), Fails(Failure::refused));
    EXPECT_THAT(files().openExisting("Params"), Fails(Failure::refused));
    EXPECT_THAT(files().remove("Params"), Fails(Failure::refused));
    ASSERT_TRUE(lay(files(), "x", "x"));
    EXPECT_THAT(files().replace("Params", "x"), Fails(Failure::refused));
    EXPECT_THAT(files().replace("x", "Params"), Fails(Failure::refused));
    EXPECT_THAT(namesIn(""), ElementsAre("Params/", "x"));
    EXPECT_THAT(namesIn("Params"), ElementsAre("Ente.dat"));
}

TEST_P(EveryFileSystem, OpeningAnExistingFileDoesNotCreateIt) {
    EXPECT_THAT(files().openExisting("Ente.dat"), Fails(Failure::notFound));
    EXPECT_THAT(files().openExisting("Params/Ente.dat"), Fails(Failure::notFound));
    EXPECT_THAT(namesIn(""), IsEmpty());
}

TEST_P(EveryFileSystem, AFileOpenedForReadingCannotBeWritten) {
    ASSERT_TRUE(lay(files(), "x", "old"));
    auto file = files().openExisting("x");
    ASSERT_THAT(file, Succeeds());
    EXPECT_THAT((*file)->write(0, asBytes("new")), Fails(Failure::refused));
    EXPECT_EQ(contentOf(files(), "x"), "old");
}

TEST_P(EveryFileSystem, WritingPutsBytesWhereTheyBelong) {
    auto file = files().open("x");
    ASSERT_THAT(file, Succeeds());
    EXPECT_THAT((*file)->write(0, asBytes("Roma")), Succeeds());
    EXPECT_THAT((*file)->write(2, asBytes("ssi")), Succeeds());
    EXPECT_THAT((*file)->write(0, asBytes("")), Succeeds());
    EXPECT_THAT((*file)->flush(), Succeeds());
    EXPECT_THAT((*file)->size(), Gives(std::uint64_t{5}));
    EXPECT_EQ(contentOf(files(), "x"), "Rossi");
}

TEST_P(EveryFileSystem, AGapIsFilledWithZeros) {
    auto file = files().open("x");
    ASSERT_THAT(file, Succeeds());
    EXPECT_THAT((*file)->write(3, asBytes("a")), Succeeds());
    EXPECT_EQ(contentOf(files(), "x"), nuls(3) + "a");
}

TEST_P(EveryFileSystem, ReadingEndsAtTheEndOfTheFileAndLeavesTheRestAsItWas) {
    ASSERT_TRUE(lay(files(), "x", "Roma"));
    auto file = files().openExisting("x");
    ASSERT_THAT(file, Succeeds());
    std::string into = "-----";
    EXPECT_THAT((*file)->read(1, std::as_writable_bytes(std::span(into))), Gives(std::size_t{3}));
    EXPECT_EQ(into, "oma--");
    EXPECT_THAT((*file)->read(4, std::as_writable_bytes(std::span(into))), Gives(std::size_t{0}));
    EXPECT_THAT((*file)->read(400, std::as_writable_bytes(std::span(into))), Gives(std::size_t{0}));
    EXPECT_EQ(into, "oma--");
}

TEST_P(EveryFileSystem, WhatOneHandleWritesTheOtherReads) {
    auto one = files().open("x");
    auto other = files().open("X");
    ASSERT_TRUE(one && other);
    ASSERT_THAT((*one)->write(0, asBytes("Roma")), Succeeds());
    EXPECT_THAT((*other)->size(), Gives(std::uint64_t{4}));
}

TEST_P(EveryFileSystem, NamesAreFoundWithoutRegardToCaseFolderByFolder) {
    ASSERT_TRUE(lay(files(), "Elezioni/Europee/09-06-24/Meirin.vbn", "limits"));
    EXPECT_EQ(contentOf(files(), "elezioni/EUROPEE/09-06-24/meirin.VBN"), "limits");
    EXPECT_THAT(files().open("ELEZIONI/europee/09-06-24/MEIRIN.vbn"), Succeeds());
    EXPECT_THAT(files().makeFolder("ELEZIONI"), Succeeds());
    EXPECT_THAT(namesIn(""), ElementsAre("Elezioni/"));
    EXPECT_THAT(namesIn("elezioni/europee/09-06-24"), ElementsAre("Meirin.vbn"));
}

TEST_P(EveryFileSystem, AccentedNamesAreFoundWithoutRegardToCase) {
    ASSERT_TRUE(lay(files(), "Città/Forlì.dat", "x"));
    EXPECT_EQ(contentOf(files(), "CITTÀ/FORLÌ.DAT"), "x");
    EXPECT_THAT(namesIn(""), ElementsAre("Città/"));
}

TEST_P(EveryFileSystem, BlanksBehindANameAreDropped) {
    ASSERT_TRUE(lay(files(), "Params /Comuni.dat ", "Roma"));
    EXPECT_THAT(namesIn(""), ElementsAre("Params/"));
    EXPECT_THAT(namesIn("Params"), ElementsAre("Comuni.dat"));
    EXPECT_EQ(contentOf(files(), "Params/Comuni.dat"), "Roma");
    EXPECT_EQ(contentOf(files(), "Params/Comuni.dat  "), "Roma");
}

TEST_P(EveryFileSystem, ANewNameIsSpelledAsItIsGiven) {
    ASSERT_TRUE(lay(files(), "params/SEGSUF.vbn", ""));
    EXPECT_THAT(namesIn(""), ElementsAre("params/"));
    EXPECT_THAT(namesIn("Params"), ElementsAre("SEGSUF.vbn"));
}

TEST_P(EveryFileSystem, APathThatLeavesTheRootOrNamesNothingIsRefusedByEveryOperation) {
    for (const char* path : {"..", "../x", "a/../../x", "/etc/passwd", "a//b", "C:/x", "a\\b", "a*"}) {
        EXPECT_THAT(files().open(path), Fails(Failure::badName)) << path;
        EXPECT_THAT(files().openExisting(path), Fails(Failure::badName)) << path;
        EXPECT_THAT(files().replace(path, "x"), Fails(Failure::badName)) << path;
        EXPECT_THAT(files().replace("x", path), Fails(Failure::badName)) << path;
        EXPECT_THAT(files().remove(path), Fails(Failure::badName)) << path;
        EXPECT_THAT(files().list(path), Fails(Failure::badName)) << path;
        EXPECT_THAT(files().makeFolder(path), Fails(Failure::badName)) << path;
        EXPECT_THAT(files().removeFolder(path), Fails(Failure::badName)) << path;
    }
    EXPECT_THAT(namesIn(""), IsEmpty());
}

TEST_P(EveryFileSystem, TheRootItselfIsNoFileAndIsNotRemoved) {
    EXPECT_THAT(files().open(""), Fails(Failure::badName));
    EXPECT_THAT(files().openExisting(""), Fails(Failure::refused));
    EXPECT_THAT(files().remove(""), Fails(Failure::badName));
    EXPECT_THAT(files().removeFolder(""), Fails(Failure::badName));
    EXPECT_THAT(files().replace("", "x"), Fails(Failure::badName));
    EXPECT_THAT(files().replace("x", ""), Fails(Failure::badName));
    EXPECT_THAT(files().makeFolder(""), Succeeds());
}

TEST_P(EveryFileSystem, ReplacingPutsAFileInThePlaceOfAnother) {
    ASSERT_TRUE(lay(files(), "d/Seggi.vbn", "old"));
    ASSERT_TRUE(lay(files(), "d/SeggiRev.vbn", "new"));
    EXPECT_THAT(files().replace("d/SeggiRev.vbn", "d/Seggi.vbn"), Succeeds());
    EXPECT_EQ(contentOf(files(), "d/Seggi.vbn"), "new");
    EXPECT_THAT(namesIn("d"), ElementsAre("Seggi.vbn"));
}

TEST_P(EveryFileSystem, ReplacingKeepsTheSpellingThatStandsOnDisk) {
    ASSERT_TRUE(lay(files(), "d/seggi.VBN", "old"));
    ASSERT_TRUE(lay(files(), "d/Seggirev.vbn", "new"));
    EXPECT_THAT(files().replace("d/SeggiRev.vbn", "D/Seggi.vbn"), Succeeds());
    EXPECT_THAT(namesIn("d"), ElementsAre("seggi.VBN"));
    EXPECT_EQ(contentOf(files(), "d/seggi.VBN"), "new");
}

TEST_P(EveryFileSystem, ReplacingWhatIsNotThereGivesItTheName) {
    ASSERT_TRUE(lay(files(), "d/a", "new"));
    ASSERT_THAT(files().makeFolder("e"), Succeeds());
    EXPECT_THAT(files().replace("d/a", "e/B"), Succeeds());
    EXPECT_THAT(namesIn("d"), IsEmpty());
    EXPECT_THAT(namesIn("e"), ElementsAre("B"));
    EXPECT_EQ(contentOf(files(), "e/b"), "new");
}

TEST_P(EveryFileSystem, ReplacingByWhatIsNotThereLeavesTheOldFile) {
    ASSERT_TRUE(lay(files(), "d/Seggi.vbn", "old"));
    EXPECT_THAT(files().replace("d/SeggiRev.vbn", "d/Seggi.vbn"), Fails(Failure::notFound));
    EXPECT_THAT(files().replace("e/SeggiRev.vbn", "d/Seggi.vbn"), Fails(Failure::notFound));
    EXPECT_THAT(files().replace("d/Seggi.vbn", "e/Seggi.vbn"), Fails(Failure::missingFolder));
    EXPECT_EQ(contentOf(files(), "d/Seggi.vbn"), "old");
}

TEST_P(EveryFileSystem, ReplacingAFileByItselfChangesNothing) {
    ASSERT_TRUE(lay(files(), "Seggi.vbn", "old"));
    EXPECT_THAT(files().replace("seggi.vbn", "SEGGI.vbn"), Succeeds());
    EXPECT_THAT(namesIn(""), ElementsAre("Seggi.vbn"));
    EXPECT_EQ(contentOf(files(), "Seggi.vbn"), "old");
}

/// Those that keep open files from being taken away. The disk of some systems lets it pass.
class KeepingFileSystem : public test::AnyFileSystem {};
#ifdef _WIN32
constexpr test::Kind keeping[] = {test::Kind::disk, test::Kind::memory};
#else
constexpr test::Kind keeping[] = {test::Kind::memory};
#endif
INSTANTIATE_TEST_SUITE_P(Storage, KeepingFileSystem, ::testing::ValuesIn(keeping), test::nameOf);

TEST_P(KeepingFileSystem, AnOpenFileIsNeitherReplacedNorRemoved) {
    ASSERT_TRUE(lay(files(), "a", "old"));
    ASSERT_TRUE(lay(files(), "b", "new"));
    {
        const auto readers = files().openExisting("a");
        ASSERT_THAT(readers, Succeeds());
        EXPECT_THAT(files().replace("b", "a"), Fails(Failure::refused));
        EXPECT_THAT(files().replace("a", "c"), Fails(Failure::refused));
        EXPECT_THAT(files().remove("a"), Fails(Failure::refused));
        EXPECT_EQ(contentOf(files(), "a"), "old");
        EXPECT_EQ(contentOf(files(), "b"), "new");
    }
    EXPECT_THAT(files().replace("b", "a"), Succeeds());
    EXPECT_EQ(contentOf(files(), "a"), "new");
    EXPECT_THAT(files().remove("a"), Succeeds());
}

TEST_P(EveryFileSystem, RemovingDeletesOneFile) {
    ASSERT_TRUE(lay(files(), "d/a", "1"));
    ASSERT_TRUE(lay(files(), "d/b", "2"));
    EXPECT_THAT(files().remove("D/A"), Succeeds());
    EXPECT_THAT(namesIn("d"), ElementsAre("b"));
    EXPECT_THAT(files().remove("d/a"), Fails(Failure::notFound));
    EXPECT_THAT(files().remove("e/a"), Fails(Failure::notFound));
}

TEST_P(EveryFileSystem, ListingGivesFilesAndFoldersInTheOrderOfTheirNames) {
    for (const char* name : {"Regionali", "comunali", "Europee", "Europee_Comunali"}) {
        ASSERT_THAT(files().makeFolder(name), Succeeds());
    }
    ASSERT_TRUE(lay(files(), "leggimi.txt", ""));
    EXPECT_THAT(namesIn(""), ElementsAre("comunali/", "Europee/", "Europee_Comunali/", "leggimi.txt", "Regionali/"));
    EXPECT_THAT(namesIn("Europee"), IsEmpty());
    EXPECT_THAT(files().list("Politiche"), Fails(Failure::missingFolder));
}

TEST_P(EveryFileSystem, MakingAFolderTwiceIsNoFailure) {
    EXPECT_THAT(files().makeFolder("Elezioni"), Succeeds());
    EXPECT_THAT(files().makeFolder("Elezioni"), Succeeds());
    EXPECT_THAT(files().makeFolder("Elezioni/Europee"), Succeeds());
    EXPECT_THAT(files().makeFolder("Elezioni/Comunali/09-06-24"), Fails(Failure::missingFolder));
    EXPECT_THAT(namesIn("Elezioni"), ElementsAre("Europee/"));
}

TEST_P(EveryFileSystem, OnlyAnEmptyFolderIsRemoved) {
    ASSERT_TRUE(lay(files(), "Elezioni/Europee/a", "1"));
    EXPECT_THAT(files().removeFolder("Elezioni/Europee"), Fails(Failure::refused));
    EXPECT_EQ(contentOf(files(), "Elezioni/Europee/a"), "1");
    ASSERT_THAT(files().remove("Elezioni/Europee/a"), Succeeds());
    EXPECT_THAT(files().removeFolder("Elezioni/EUROPEE"), Succeeds());
    EXPECT_THAT(files().removeFolder("Elezioni/Europee"), Fails(Failure::notFound));
    EXPECT_THAT(namesIn("Elezioni"), IsEmpty());
}

TEST_P(EveryFileSystem, AFailureNamesTheFile) {
    const auto done = files().remove("Params/Ente.dat");
    ASSERT_FALSE(done);
    EXPECT_EQ(done.error().subject, "Params/Ente.dat");
}

}  // namespace
}  // namespace vorbano
