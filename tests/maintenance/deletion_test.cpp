// What is removed of an election: the groups and their files, what tells that a group is there, the whole election.

#include "maintenance/deletion.h"

#include "cancella_desk.h"
#include "storage/disk_file_system.h"
#include "support/temporary_folder.h"

namespace vorbano::test {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;
using ::testing::UnorderedElementsAre;
using ::testing::UnorderedElementsAreArray;

const Election europee{"Europee", "09-06-24"};

class Groups : public ::testing::Test {
  protected:
    MemoryFileSystem files;
    [[nodiscard]] GroupsInUse inUse() { return groupsInUse(files, europee).valueOr({}); }
};

TEST_F(Groups, AreThereWhenTheirFirstFileHasARecord) {
    for (std::size_t at = 0; at < toldGroups().size(); ++at) {
        SCOPED_TRACE(toldGroups()[at].box);
        MemoryFileSystem disk;
        layFile(disk, toldGroups()[at].files.front(), toldGroups()[at].width);
        GroupsInUse expected{};
        expected[at] = true;
        EXPECT_EQ(groupsInUse(disk, europee).valueOr({}), expected);
    }
}

TEST_F(Groups, AreNotThereForTheirOtherFiles) {
    for (const ToldGroup& group : toldGroups()) {
        for (std::size_t at = 1; at < group.files.size(); ++at) layFile(files, group.files[at], 400);
    }
    for (const std::string& name : ungrouped) layFile(files, name, 400);
    EXPECT_EQ(inUse(), GroupsInUse{});
}

// The count is the length over the width to the nearest whole number, so just above half a record counts, and half a
// record does not.
TEST_F(Groups, AreCountedByTheWidthOfTheirRecords) {
    for (std::size_t at = 0; at < toldGroups().size(); ++at) {
        const ToldGroup& group = toldGroups()[at];
        SCOPED_TRACE(group.box);
        MemoryFileSystem disk;
        layFile(disk, group.files.front(), group.width / 2);
        EXPECT_EQ(groupsInUse(disk, europee).valueOr({}), GroupsInUse{});
        layFile(disk, group.files.front(), group.width / 2 + 1);
        EXPECT_TRUE(groupsInUse(disk, europee).valueOr({})[at]);
    }
}

/// Remembers the names that were opened.
class OpeningDisk : public MemoryFileSystem {
  public:
    Names opened;
    Result<std::unique_ptr<File>> open(std::string_view path) override {
        opened.emplace_back(path.substr(path.rfind('/') + 1));
        return MemoryFileSystem::open(path);
    }
};

TEST(TheSearch, OpensTheFilesInTheOrderOfTheOfficeAndLeavesThemEmpty) {
    OpeningDisk disk;
    ASSERT_TRUE(lay(disk, electionFolder + "/appunti.txt", "x"));
    disk.opened.clear();
    EXPECT_EQ(groupsInUse(disk, europee).valueOr({true}), GroupsInUse{});
    EXPECT_THAT(disk.opened, ElementsAre("SpecSufr.vbn", "SegSuf.vbn", "09-06-24.vbn", "Congs.vbn", "Seggi.vbn",
                                         "Rendi.vbn", "Versum.vbn", "Speciale.vbn"));
    for (const std::string& name : Names(disk.opened))
        EXPECT_EQ(contentOf(disk, electionFolder + "/" + name), "") << name;
}

TEST(TheSearch, MakesNoFolder) {
    MemoryFileSystem disk;
    ASSERT_TRUE(disk.makeFolder("Elezioni").ok());
    const auto inUse = groupsInUse(disk, europee);
    ASSERT_FALSE(inUse.ok());
    EXPECT_EQ(inUse.error().kind, Failure::missingFolder);
    EXPECT_THAT(namesIn(disk, "Elezioni"), IsEmpty());
    EXPECT_EQ(groupsInUse(disk, {"..", "09-06-24"}).error().kind, Failure::badName);
}

TEST_F(Groups, RemoveTheirFilesAndNoOther) {
    for (std::size_t at = 0; at < toldGroups().size(); ++at) {
        SCOPED_TRACE(toldGroups()[at].box);
        MemoryFileSystem disk;
        layAll(disk);
        Names left = namesIn(disk);
        for (const std::string& name : toldGroups()[at].files) std::erase(left, name);
        deleteGroup(disk, europee, deletionGroups[at]);
        EXPECT_THAT(namesIn(disk), UnorderedElementsAreArray(left));
    }
}

TEST_F(Groups, GoOnWithTheNextFileWhenOneIsMissing) {
    layFile(files, "Tprov.vbn", 16);
    layFile(files, "Seggi.vbn", 216);
    deleteGroup(files, europee, deletionGroups[7]);
    EXPECT_THAT(namesIn(files), ElementsAre("Seggi.vbn"));
}

TEST_F(Groups, GoOnWithTheNextFileWhenOneCannotBeRemoved) {
    layGroup(files, toldGroups()[7]);
    files.makeReadOnly(electionFolder + "/Rendi.vbn");
    deleteGroup(files, europee, deletionGroups[7]);
    EXPECT_THAT(namesIn(files), ElementsAre("Rendi.vbn"));
}

TEST_F(Groups, LeaveAFolderUnderTheNameOfAFile) {
    layFile(files, "nota.txt", 3, electionFolder + "/DivSt.vbn");
    layFile(files, "Rendi.vbn", 152);
    layFile(files, "Tprov.vbn", 16);
    deleteGroup(files, europee, deletionGroups[7]);
    EXPECT_THAT(namesIn(files), ElementsAre("DivSt.vbn"));
    EXPECT_THAT(namesIn(files, electionFolder + "/DivSt.vbn"), ElementsAre("nota.txt"));
}

TEST(TheWholeElection, GoesWithItsFolderAndNotThatOfTheType) {
    MemoryFileSystem disk;
    layAll(disk);
    deleteWhole(disk, europee);
    EXPECT_THAT(namesIn(disk, "Elezioni/Europee"), IsEmpty());
    EXPECT_THAT(namesIn(disk, "Elezioni"), ElementsAre("Europee"));
}

TEST(TheWholeElection, LeavesTheOtherElections) {
    MemoryFileSystem disk;
    layAll(disk);
    layFile(disk, "Seggi.vbn", 216, "Elezioni/Europee/26-05-19");
    layFile(disk, "Seggi.vbn", 216, "Elezioni/Comunali/09-06-24");
    deleteWhole(disk, europee);
    EXPECT_THAT(namesIn(disk, "Elezioni/Europee"), ElementsAre("26-05-19"));
    EXPECT_THAT(namesIn(disk, "Elezioni/Europee/26-05-19"), ElementsAre("Seggi.vbn"));
    EXPECT_THAT(namesIn(disk, "Elezioni/Comunali/09-06-24"), ElementsAre("Seggi.vbn"));
}

TEST(TheWholeElection, LeavesWhatIsNoRecordFileAndThenTheFolder) {
    MemoryFileSystem disk;
    layAll(disk);
    layFile(disk, "appunti.txt", 3);
    layFile(disk, "copia.vbn.bak", 3);
    layFile(disk, "vbn", 3);
    ASSERT_TRUE(disk.makeFolder(electionFolder + "/vecchi.vbn").ok());
    deleteWhole(disk, europee);
    EXPECT_THAT(namesIn(disk), UnorderedElementsAre("appunti.txt", "copia.vbn.bak", "vbn", "vecchi.vbn"));
}

TEST(TheWholeElection, LeavesAFileThatCannotBeRemoved) {
    MemoryFileSystem disk;
    layAll(disk);
    disk.makeReadOnly(electionFolder + "/Meirin.vbn");
    deleteWhole(disk, europee);
    EXPECT_THAT(namesIn(disk), ElementsAre("Meirin.vbn"));
}

TEST(TheWholeElection, OfNoFolderIsNothing) {
    MemoryFileSystem disk;
    layFile(disk, "Seggi.vbn", 216);
    deleteWhole(disk, {"Europee", "26-05-19"});
    deleteWhole(disk, {"Europee", ".."});
    deleteWhole(disk, {"", ""});
    EXPECT_THAT(namesIn(disk), ElementsAre("Seggi.vbn"));
}

// An installation copied from another machine keeps its spelling.
TEST(OnTheDisk, NamesInAnyCaseAreTheSameFiles) {
    const TemporaryFolder folder;
    DiskFileSystem disk(folder.path());
    const std::string there = "ELEZIONI/europee/09-06-24";
    for (const char* name : {"09-06-24.VBN", "MEIRIN.VBN", "duedate.Vbn", "SEGGI.VBN", "congs.vbn"})
        layFile(disk, name, 400, there);
    GroupsInUse expected{};
    expected[0] = expected[1] = expected[2] = true;
    EXPECT_EQ(groupsInUse(disk, europee).valueOr({}), expected);
    deleteGroup(disk, europee, deletionGroups[0]);
    EXPECT_THAT(namesIn(disk, there), UnorderedElementsAre("SEGGI.VBN", "congs.vbn", "SpecSufr.vbn", "SegSuf.vbn",
                                                           "Rendi.vbn", "Versum.vbn", "Speciale.vbn"));
    deleteWhole(disk, europee);
    EXPECT_THAT(namesIn(disk, "ELEZIONI"), ElementsAre("europee"));
    EXPECT_THAT(namesIn(disk, "ELEZIONI/europee"), IsEmpty());
}

}  // namespace
}  // namespace vorbano::test
