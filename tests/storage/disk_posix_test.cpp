// What the disk does in its own way where names that differ in case are two names.

#include <gmock/gmock.h>

#include "storage/disk_file_system.h"
#include "support/by_hand.h"
#include "support/bytes.h"
#include "support/environment.h"
#include "support/results.h"
#include "support/temporary_folder.h"

namespace vorbano {
namespace {

TEST(Disk, TheExactNameGoesBeforeOneThatDiffersInCase) {
    const test::TemporaryFolder folder;
    test::writeByHand(folder.path() / "MEIRIN.VBN", "capitals");
    test::writeByHand(folder.path() / "Meirin.vbn", "exact");
    DiskFileSystem files(folder.path());
    EXPECT_EQ(test::contentOf(files, "Meirin.vbn"), "exact");
    EXPECT_EQ(test::contentOf(files, "MEIRIN.VBN"), "capitals");
}

TEST(InstallationRoot, IsElseInTheDataFolderOfTheUser) {
    const test::Variable root("VORBANET_ROOT", nullptr);
    const test::Variable home("HOME", "/home/anna");
    {
        const test::Variable data("XDG_DATA_HOME", "/data/anna");
        EXPECT_EQ(installationRoot(), std::filesystem::path("/data/anna/Vorbanet"));
    }
    {
        const test::Variable data("XDG_DATA_HOME", "data");
        EXPECT_EQ(installationRoot(), std::filesystem::path("/home/anna/.local/share/Vorbanet"))
            << "a relative one does not count";
    }
    const test::Variable data("XDG_DATA_HOME", nullptr);
    EXPECT_EQ(installationRoot(), std::filesystem::path("/home/anna/.local/share/Vorbanet"));
}

}  // namespace
}  // namespace vorbano
