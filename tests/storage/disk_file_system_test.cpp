#include "storage/disk_file_system.h"

#include <gmock/gmock.h>

#include <cstdlib>
#include <fstream>
#include <optional>
#include <string>

#include "support/bytes.h"
#include "support/results.h"
#include "support/temporary_folder.h"

namespace vorbano {
namespace {

namespace fs = std::filesystem;
using test::contentOf;
using test::Fails;
using test::lay;
using test::Succeeds;

/// Sets a variable of the environment and puts it back.
class Variable {
  public:
    Variable(const char* name, const char* value) : name_(name) {
        if (const char* before = std::getenv(name)) before_ = before;
        set(value);
    }
    Variable(const Variable&) = delete;
    Variable& operator=(const Variable&) = delete;
    ~Variable() { set(before_ ? before_->c_str() : nullptr); }

  private:
    void set(const char* value) {
        if (value == nullptr) {
            ::unsetenv(name_);
        } else {
            ::setenv(name_, value, 1);
        }
    }
    const char* name_;
    std::optional<std::string> before_;
};

void writeByHand(const fs::path& path, std::string_view content) {
    fs::create_directories(path.parent_path());
    std::ofstream(path, std::ios::binary) << content;
}

std::string readByHand(const fs::path& path) {
    std::string content(fs::file_size(path), '\0');
    std::ifstream(path, std::ios::binary).read(content.data(), static_cast<std::streamsize>(content.size()));
    return content;
}

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

TEST(Disk, TheExactNameGoesBeforeOneThatDiffersInCase) {
    const test::TemporaryFolder folder;
    writeByHand(folder.path() / "MEIRIN.VBN", "capitals");
    writeByHand(folder.path() / "Meirin.vbn", "exact");
    DiskFileSystem files(folder.path());
    EXPECT_EQ(contentOf(files, "Meirin.vbn"), "exact");
    EXPECT_EQ(contentOf(files, "MEIRIN.VBN"), "capitals");
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

TEST(InstallationRoot, IsElseInTheDataFolderOfTheUser) {
    const Variable root("VORBANET_ROOT", nullptr);
    const Variable home("HOME", "/home/anna");
    {
        const Variable data("XDG_DATA_HOME", "/data/anna");
        EXPECT_EQ(installationRoot(), fs::path("/data/anna/Vorbanet"));
    }
    {
        const Variable data("XDG_DATA_HOME", "data");
        EXPECT_EQ(installationRoot(), fs::path("/home/anna/.local/share/Vorbanet")) << "a relative one does not count";
    }
    const Variable data("XDG_DATA_HOME", nullptr);
    EXPECT_EQ(installationRoot(), fs::path("/home/anna/.local/share/Vorbanet"));
}

}  // namespace
}  // namespace vorbano
