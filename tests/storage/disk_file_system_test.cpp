#include "storage/disk_file_system.h"

#include <gmock/gmock.h>

#include <string>

#include "support/by_hand.h"
#include "support/bytes.h"
#include "support/environment.h"
#include "support/results.h"
#include "support/temporary_folder.h"

namespace vorbano {
namespace {

namespace fs = std::filesystem;
using test::contentOf;
using test::Fails;
using test::lay;
using test::readByHand;
using test::Succeeds;
using test::Variable;
using test::writeByHand;

TEST(Disk, TheFirstStartMakesTheRootAndTheSecondFindsIt) {
    const test::TemporaryFolder folder;
    DiskFileSystem files(folder.path() / "data" / "Vorbanet");
    EXPECT_THAT(files.makeFolder("Params"), Fails(Failure::missingFolder)) << "the root is not there yet";
    for (int start = 1; start <= 2; ++start) {
        EXPECT_THAT(files.makeFolder(""), Succeeds());
        EXPECT_THAT(files.makeFolder("Params"), Succeeds());
    }
    EXPECT_TRUE(fs::is_directory(folder.path() / "data" / "Vorbanet" / "Params"));
}

TEST(Disk, ARootWithASeparatorAtTheEndIsTheSameRoot) {
    const test::TemporaryFolder folder;
    DiskFileSystem files(folder.path() / "Vorbanet" / "");
    EXPECT_THAT(files.makeFolder(""), Succeeds());
    EXPECT_TRUE(lay(files, "Params/Ente.dat", "Roma"));
    EXPECT_EQ(readByHand(folder.path() / "Vorbanet" / "Params" / "Ente.dat"), "Roma");
}

TEST(Disk, AFileInThePlaceOfTheRootIsRefused) {
    const test::TemporaryFolder folder;
    writeByHand(folder.path() / "Vorbanet", "");
    DiskFileSystem files(folder.path() / "Vorbanet");
    EXPECT_THAT(files.makeFolder(""), Fails(Failure::refused));
    EXPECT_THAT(files.list(""), Fails(Failure::missingFolder));
}

TEST(Disk, AnInstallationWithOtherSpellingsIsFoundAsItStands) {
    const test::TemporaryFolder folder;
    writeByHand(folder.path() / "ELEZIONI" / "europee" / "09-06-24" / "MEIRIN.VBN", "limits");
    DiskFileSystem files(folder.path());
    EXPECT_EQ(contentOf(files, "Elezioni/Europee/09-06-24/Meirin.vbn"), "limits");
    EXPECT_TRUE(lay(files, "Elezioni/Europee/09-06-24/Meirin.vbn", "others"));
    EXPECT_EQ(readByHand(folder.path() / "ELEZIONI" / "europee" / "09-06-24" / "MEIRIN.VBN"), "others");
}

TEST(Disk, AFileIsWrittenWithNothingBesideItsBytes) {
    const test::TemporaryFolder folder;
    DiskFileSystem files(folder.path());
    const std::string all = test::fromHex("00 0a 0d 1a ff");
    ASSERT_TRUE(lay(files, "Params/x.dat", all));
    EXPECT_EQ(readByHand(folder.path() / "Params" / "x.dat"), all);
}

TEST(Disk, NothingOutsideTheRootIsTouched) {
    const test::TemporaryFolder folder;
    writeByHand(folder.path() / "other.txt", "mine");
    fs::create_directory(folder.path() / "root");
    DiskFileSystem files(folder.path() / "root");
    EXPECT_THAT(files.remove("../other.txt"), Fails(Failure::badName));
    EXPECT_THAT(files.openExisting((folder.path() / "other.txt").string()), Fails(Failure::badName));
    EXPECT_EQ(readByHand(folder.path() / "other.txt"), "mine");
}

TEST(InstallationRoot, IsWhatTheEnvironmentNames) {
    const Variable root("VORBANET_ROOT", "/srv/ufficio/Vorbanet");
    EXPECT_EQ(installationRoot(), fs::path("/srv/ufficio/Vorbanet"));
}

TEST(InstallationRoot, MayHaveAccentsWhateverTheNarrowTextsOfTheSystemAre) {
    const Variable root("VORBANET_ROOT", "/srv/Forlì/Città œ €");
    EXPECT_EQ(installationRoot(), fs::path(u8"/srv/Forlì/Città œ €"));
}

}  // namespace
}  // namespace vorbano
