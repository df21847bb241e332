// Every file of an installation damaged in every way, and every screen that reads it used on it: it must give a clear
// answer and leave all other files whole.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <set>
#include <string>
#include <tuple>
#include <vector>

#include "random/damage.h"
#include "random/invariants.h"
#include "random/walk.h"
#include "random/watched_files.h"
#include "storage/disk_file_system.h"
#include "storage/memory_file_system.h"
#include "support/temporary_folder.h"

namespace vorbano::test {
namespace {

using ::testing::AnyOf;
using ::testing::Contains;
using ::testing::HasSubstr;

const StoredState& whole() {
    static const StoredState state = wholeInstallation(VORBANO_SOURCE_DIR "/scenarios");
    return state;
}

/// One with every file and an accounted statement, one whose statement is still to be drawn up.
std::vector<Election> theElections() {
    return {{std::string(wholeType), std::string(wholeDate)}, {"Europee", "09-06-24"}};
}

/// The laid files that the screen opens when nothing is damaged.
std::set<std::string> filesOf(const std::string& screen, const Election& election) {
    MemoryFileSystem disk;
    lay(whole(), disk);
    WatchedFiles files(disk);
    Walk(files, election).through(screen);
    std::set<std::string> read;
    for (const auto& [path, content] : whole().files) {
        for (const std::string& touched : files.touched()) {
            if (sameName(touched, path)) read.insert(path);
        }
    }
    return read;
}

/// The screen is used on a disk with that one file damaged.
void useDamaged(FileSystem& disk, const std::string& screen, const Election& election, const std::string& path,
                Damage damage) {
    lay(whole(), disk);
    hurt(disk, path, damage);
    WatchedFiles files(disk);
    Walk walk(files, election);
    EXPECT_NO_THROW(walk.through(screen));
    for (const std::string& touched : files.touched()) {
        if (sameName(touched, path)) continue;
        EXPECT_EQ(wrongIn(disk, touched), "");
    }
    if (damage != Damage::folder) return;
    // What cannot be opened at all is told by its name, by the statement in its own words; nothing is put in its place.
    EXPECT_THAT(walk.boxes(), Contains(AnyOf(HasSubstr(path), HasSubstr("per la compilazione del rendiconto"))));
    EXPECT_TRUE(disk.list(path).ok());
}

class DamagedFiles : public ::testing::TestWithParam<std::tuple<std::string, Damage>> {};

TEST_P(DamagedFiles, GetAClearAnswer) {
    const auto& [screen, damage] = GetParam();
    int cases = 0;
    for (const Election& election : theElections()) {
        for (const std::string& path : filesOf(screen, election)) {
            SCOPED_TRACE(path);
            MemoryFileSystem disk;
            useDamaged(disk, screen, election, path, damage);
            ++cases;
        }
    }
    RecordProperty("cases", cases);
}

INSTANTIATE_TEST_SUITE_P(OfAScreen, DamagedFiles,
                         ::testing::Combine(::testing::ValuesIn(Walk::screens()), ::testing::ValuesIn(damages)),
                         [](const auto& test) {
                             return std::get<0>(test.param) + "_" + std::string(nameOf(std::get<1>(test.param)));
                         });

/// Those that every screen of the overtime reads, on the real disk.
class DamagedOnDisk : public ::testing::TestWithParam<Damage> {};

TEST_P(DamagedOnDisk, GetAClearAnswer) {
    const Election election = theElections().front();
    for (const std::string& path : {election.employeeFile().valueOr(""), election.file("Meirin.vbn").valueOr("")}) {
        for (const char* screen : {"frmTutteStampe", "frmModStraord", "frmElimina"}) {
            SCOPED_TRACE(std::string(screen) + " " + path);
            const TemporaryFolder root;
            DiskFileSystem disk(root.path());
            useDamaged(disk, screen, election, path, GetParam());
        }
    }
}

INSTANTIATE_TEST_SUITE_P(Disk, DamagedOnDisk, ::testing::ValuesIn(damages),
                         [](const auto& test) { return std::string(nameOf(test.param)); });

}  // namespace
}  // namespace vorbano::test
