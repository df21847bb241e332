// A disk that takes the first bytes of what is written and refuses the rest. The real one is made full for this process
// alone, by the length that the system lets a file of it have; so nobody needs the rights to mount anything.

#include <gmock/gmock.h>

#include <optional>

#ifndef _WIN32
#include <sys/resource.h>

#include <csignal>
#endif

#include "storage/disk_file_system.h"
#include "storage/memory_file_system.h"
#include "storage/record_file.h"
#include "support/bytes.h"
#include "support/results.h"
#include "support/temporary_folder.h"

namespace vorbano {
namespace {

using test::contentOf;
using test::Fails;
using test::Gives;
using test::lay;
using test::noFile;
using test::Succeeds;

enum class Where { disk, memory };

#ifdef _WIN32
/// This system sets no such end.
class LongestFile {
  public:
    explicit LongestFile(std::uint64_t /*bytes*/) {}
};
constexpr Where places[] = {Where::memory};
#else
constexpr Where places[] = {Where::disk, Where::memory};

/// No file of this process may become longer, as long as this object is there.
class LongestFile {
  public:
    explicit LongestFile(rlim_t bytes) : before_(std::signal(SIGXFSZ, SIG_IGN)) {
        ::getrlimit(RLIMIT_FSIZE, &old_);
        const rlimit limit{bytes, old_.rlim_max};
        ::setrlimit(RLIMIT_FSIZE, &limit);
    }
    LongestFile(const LongestFile&) = delete;
    LongestFile& operator=(const LongestFile&) = delete;
    ~LongestFile() {
        ::setrlimit(RLIMIT_FSIZE, &old_);
        std::signal(SIGXFSZ, before_);
    }

  private:
    rlimit old_{};
    void (*before_)(int);
};
#endif

struct Eight {
    char bytes[8];
};

class FullDisk : public ::testing::TestWithParam<Where> {
  protected:
    FileSystem& files() { return GetParam() == Where::disk ? static_cast<FileSystem&>(disk_) : memory_; }
    /// From here on the longest file may grow by `room`, and no other beyond it.
    void fill(std::uint64_t longest, std::uint64_t room) {
        if (GetParam() == Where::disk) {
            limit_.emplace(longest + room);
        } else {
            memory_.leaveRoom(room);
        }
    }
    void makeRoom() {
        limit_.reset();
        memory_.leaveRoom(1'000'000);
    }

  private:
    test::TemporaryFolder folder_;
    DiskFileSystem disk_{folder_.path()};
    MemoryFileSystem memory_;
    std::optional<LongestFile> limit_;
};
INSTANTIATE_TEST_SUITE_P(On, FullDisk, ::testing::ValuesIn(places),
                         [](const auto& where) { return std::string(where.param == Where::disk ? "Disk" : "Memory"); });

TEST_P(FullDisk, TakesNoPartOfARecord) {
    ASSERT_TRUE(lay(files(), "x.vbn",
                    "11111111"
                    "22222222"));
    fill(16, 5);
    auto file = RecordFile<Eight>::open(files(), "x.vbn");
    ASSERT_THAT(file, Succeeds());
    EXPECT_THAT(file->append({{'3', '3', '3', '3', '3', '3', '3', '3'}}), Fails(Failure::diskFull));
    EXPECT_EQ(contentOf(files(), "x.vbn"),
              "11111111"
              "22222222");
    EXPECT_THAT(file->count(), Gives(2)) << "five bytes of eight would count as a record";
    makeRoom();
    EXPECT_THAT(file->append({{'3', '3', '3', '3', '3', '3', '3', '3'}}), Succeeds());
    EXPECT_EQ(contentOf(files(), "x.vbn"),
              "11111111"
              "22222222"
              "33333333");
}

TEST_P(FullDisk, KeepsWhatARefusedWriteBeganToReplace) {
    ASSERT_TRUE(lay(files(), "x", "0123456789"));
    fill(10, 2);
    auto file = files().open("x");
    ASSERT_THAT(file, Succeeds());
    const std::string longer = "abcdefgh";
    EXPECT_THAT((*file)->write(6, std::as_bytes(std::span(longer))), Fails(Failure::diskFull));
    EXPECT_EQ(contentOf(files(), "x"), "0123456789");
}

TEST_P(FullDisk, StillTakesARecordInThePlaceOfAnother) {
    ASSERT_TRUE(lay(files(), "x.vbn",
                    "11111111"
                    "22222222"));
    fill(16, 0);
    auto file = RecordFile<Eight>::open(files(), "x.vbn");
    ASSERT_THAT(file, Succeeds());
    EXPECT_THAT(file->write(1, {{'3', '3', '3', '3', '3', '3', '3', '3'}}), Succeeds());
    EXPECT_EQ(contentOf(files(), "x.vbn"),
              "33333333"
              "22222222");
}

TEST_P(FullDisk, LeavesTheFileOldAndNoCompanionWhenARewriteDoesNotFit) {
    ASSERT_TRUE(lay(files(), "x.vbn",
                    "11111111"
                    "22222222"
                    "33333333"));
    fill(0, 12);
    const auto all = [](int, Eight&) { return true; };
    EXPECT_THAT(rewrite<Eight>(files(), "x.vbn", "new.vbn", all), Fails(Failure::diskFull));
    EXPECT_EQ(contentOf(files(), "x.vbn"),
              "11111111"
              "22222222"
              "33333333");
    EXPECT_EQ(contentOf(files(), "new.vbn"), noFile);
}

TEST_P(FullDisk, LeavesASmallFileThatIsWrittenAsAWholeOld) {
    ASSERT_TRUE(lay(files(), "x", "old"));
    fill(0, 4);
    EXPECT_THAT(writeWhole(files(), "x", "longer"), Fails(Failure::diskFull));
    EXPECT_EQ(contentOf(files(), "x"), "old");
    EXPECT_EQ(contentOf(files(), "x.tmp"), noFile);
}

TEST(AFullDiskInMemory, HasRoomAgainForWhatWasGivenUp) {
    MemoryFileSystem files;
    ASSERT_TRUE(lay(files, "x", "12345678"));
    files.leaveRoom(0);
    EXPECT_THAT(writeWhole(files, "y", "1234"), Fails(Failure::diskFull));
    ASSERT_THAT(files.remove("x"), Succeeds());
    EXPECT_THAT(writeWhole(files, "y", "1234"), Succeeds());
    EXPECT_THAT(writeWhole(files, "y", "56789"), Fails(Failure::diskFull)) << "both lie there for a moment";
    EXPECT_THAT(writeWhole(files, "y", "5678"), Succeeds());
    EXPECT_EQ(contentOf(files, "y"), "5678");
}

}  // namespace
}  // namespace vorbano
