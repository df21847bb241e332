// What the disk of a Windows machine does in its own way.

#include <gmock/gmock.h>
#include <windows.h>

#include "storage/disk_file_system.h"
#include "support/by_hand.h"
#include "support/bytes.h"
#include "support/environment.h"
#include "support/results.h"
#include "support/temporary_folder.h"

namespace vorbano {
namespace {

/// As a program that checks for viruses or makes copies holds a file: nobody else may use it meanwhile.
class HeldFile {
  public:
    explicit HeldFile(const std::filesystem::path& path)
        : handle_(::CreateFileW(path.c_str(), GENERIC_READ, 0, nullptr, OPEN_EXISTING, 0, nullptr)) {}
    HeldFile(const HeldFile&) = delete;
    HeldFile& operator=(const HeldFile&) = delete;
    ~HeldFile() { ::CloseHandle(handle_); }

  private:
    HANDLE handle_;
};

TEST(InstallationRoot, IsElseInTheFolderOfThePrograms) {
    const test::Variable root("VORBANET_ROOT", nullptr);
    EXPECT_EQ(installationRoot(), std::filesystem::path(L"C:\\Program Files\\Vorbanet"));
}

TEST(Disk, ARootWithAccentsHoldsFilesWithAccents) {
    const test::TemporaryFolder folder;
    DiskFileSystem files(folder.path() / u8"Città œ €");
    ASSERT_THAT(files.makeFolder(""), test::Succeeds());
    ASSERT_TRUE(test::lay(files, "Forlì/Cantù.dat", "x"));
    EXPECT_EQ(test::readByHand(folder.path() / u8"Città œ €" / u8"Forlì" / u8"Cantù.dat"), "x");
    EXPECT_EQ(test::contentOf(files, "FORLÌ/CANTÙ.DAT"), "x");
}

TEST(Disk, TheNameOfADeviceIsNoFile) {
    const test::TemporaryFolder folder;
    DiskFileSystem files(folder.path());
    EXPECT_THAT(files.open("NUL"), test::Fails(Failure::refused));
}

TEST(Disk, AFileThatAnotherProgramHoldsIsRefusedAndStaysWhole) {
    const test::TemporaryFolder folder;
    DiskFileSystem files(folder.path());
    ASSERT_TRUE(test::lay(files, "Meirin.vbn", "old"));
    ASSERT_TRUE(test::lay(files, "new.vbn", "new"));
    {
        const HeldFile held(folder.path() / "Meirin.vbn");
        EXPECT_THAT(files.open("Meirin.vbn"), test::Fails(Failure::refused));
        EXPECT_THAT(files.openExisting("Meirin.vbn"), test::Fails(Failure::refused));
        EXPECT_THAT(files.replace("new.vbn", "Meirin.vbn"), test::Fails(Failure::refused));
        EXPECT_THAT(files.remove("Meirin.vbn"), test::Fails(Failure::refused));
    }
    EXPECT_EQ(test::contentOf(files, "Meirin.vbn"), "old");
    EXPECT_EQ(test::contentOf(files, "new.vbn"), "new");
}

}  // namespace
}  // namespace vorbano
