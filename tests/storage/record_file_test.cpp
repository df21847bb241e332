#include "storage/record_file.h"

#include <gmock/gmock.h>

#include <string>
#include <vector>

#include "any_file_system.h"
#include "storage/fields.h"
#include "support/bytes.h"
#include "support/results.h"

namespace vorbano {
namespace {

using test::contentOf;
using test::Fails;
using test::Gives;
using test::lay;
using test::le16;
using test::nuls;
using test::padded;
using test::Succeeds;

struct Worker {
    Text<8> name;
    Integer hours;
};
constexpr std::size_t width = 10;
static_assert(sizeof(Worker) == width);

Worker worker(std::string_view name, std::int16_t hours) { return {Text<8>(name), hours}; }
std::string workerBytes(std::string_view name, int hours) { return padded(name, 8) + le16(hours); }

/// `number` workers, each with its own hours.
std::string manyWorkers(int number) {
    std::string bytes;
    for (int n = 1; n <= number; ++n) bytes += workerBytes("w", n);
    return bytes;
}

class Records : public test::AnyFileSystem {
  protected:
    Result<RecordFile<Worker>> openWorkers() { return RecordFile<Worker>::open(files(), "Workers.vbn"); }
};
ON_EVERY_FILE_SYSTEM(Records);

TEST_P(Records, OpeningCreatesAnEmptyFileOfCountZero) {
    auto workers = openWorkers();
    ASSERT_THAT(workers, Succeeds());
    EXPECT_THAT(workers->count(), Gives(0));
    EXPECT_EQ(workers->size(), 0);
    EXPECT_FALSE(workers->last());
    EXPECT_EQ(contentOf(files(), "Workers.vbn"), "");
}

TEST_P(Records, OpeningInAMissingFolderFails) {
    EXPECT_THAT(RecordFile<Worker>::open(files(), "Elezioni/Europee/09-06-24/09-06-24.vbn"),
                Fails(Failure::missingFolder));
}

TEST_P(Records, AppendingWritesBehindTheLast) {
    auto workers = openWorkers();
    ASSERT_THAT(workers, Succeeds());
    EXPECT_THAT(workers->append(worker("Rossi", 12)), Succeeds());
    EXPECT_THAT(workers->append(worker("Bianchi", 40)), Succeeds());
    EXPECT_THAT(workers->count(), Gives(2));
    EXPECT_EQ(contentOf(files(), "Workers.vbn"), workerBytes("Rossi", 12) + workerBytes("Bianchi", 40));
    ASSERT_TRUE(workers->last());
    EXPECT_EQ(workers->last()->name.trimmed(), "Bianchi");
}

TEST_P(Records, OverwritingLeavesTheOthers) {
    ASSERT_TRUE(lay(files(), "Workers.vbn", manyWorkers(3)));
    auto workers = openWorkers();
    ASSERT_THAT(workers, Succeeds());
    EXPECT_THAT(workers->write(2, worker("Rossi", -5)), Succeeds());
    EXPECT_EQ(contentOf(files(), "Workers.vbn"), workerBytes("w", 1) + workerBytes("Rossi", -5) + workerBytes("w", 3));
}

TEST_P(Records, ReadingGivesTheFieldsBack) {
    ASSERT_TRUE(lay(files(), "Workers.vbn", workerBytes("Rossi", 12) + workerBytes("Bianchi", 40)));
    auto workers = openWorkers();
    ASSERT_THAT(workers, Succeeds());
    const auto second = workers->read(2);
    ASSERT_THAT(second, Succeeds());
    EXPECT_EQ(second->name.trimmed(), "Bianchi");
    EXPECT_EQ(second->hours, 40);
}

TEST_P(Records, ThereIsNoRecordBeyondTheEndOrBeforeTheFirst) {
    ASSERT_TRUE(lay(files(), "Workers.vbn", manyWorkers(2)));
    auto workers = openWorkers();
    ASSERT_THAT(workers, Succeeds());
    for (const int number : {3, 40'000, 0, -1}) EXPECT_THAT(workers->read(number), Fails(Failure::notFound)) << number;
    for (const int number : {0, -1}) EXPECT_THAT(workers->write(number, {}), Fails(Failure::notFound)) << number;
    EXPECT_EQ(contentOf(files(), "Workers.vbn"), manyWorkers(2));
}

TEST_P(Records, AScanSeesEveryRecordOnceInOrder) {
    ASSERT_TRUE(lay(files(), "Workers.vbn", manyWorkers(5)));
    auto workers = openWorkers();
    ASSERT_THAT(workers, Succeeds());
    std::vector<int> seen;
    EXPECT_THAT(workers->scan([&](int number, const Worker& each) { seen.push_back(number * 100 + each.hours); }),
                Succeeds());
    EXPECT_THAT(seen, ::testing::ElementsAre(101, 202, 303, 404, 505));
}

TEST_P(Records, AScanOfAnEmptyFileSeesNothing) {
    auto workers = openWorkers();
    ASSERT_THAT(workers, Succeeds());
    EXPECT_THAT(workers->scan([](int, const Worker&) { FAIL(); }), Succeeds());
}

TEST_P(Records, AScanOfManyBlocksSeesEveryRecordOnce) {
    ASSERT_TRUE(lay(files(), "Workers.vbn", manyWorkers(maxRecords)));
    auto workers = openWorkers();
    ASSERT_THAT(workers, Succeeds());
    int expected = 0;
    int wrong = 0;
    EXPECT_THAT(workers->scan([&](int number, const Worker& each) {
        ++expected;
        if (number != expected || each.hours != expected) ++wrong;
    }),
                Succeeds());
    EXPECT_EQ(expected, 32'767);
    EXPECT_EQ(wrong, 0);
}

TEST_P(Records, AScanDoesNotSeeWhatIsAppendedMeanwhile) {
    ASSERT_TRUE(lay(files(), "Workers.vbn", manyWorkers(3)));
    auto workers = openWorkers();
    ASSERT_THAT(workers, Succeeds());
    int seen = 0;
    EXPECT_THAT(workers->scan([&](int, const Worker& each) {
        ++seen;
        workers->append(each).ignore();
    }),
                Succeeds());
    EXPECT_EQ(seen, 3);
    EXPECT_EQ(workers->size(), 6);
}

TEST_P(Records, AFileHoldsThirtyTwoThousandSevenHundredAndSixtySevenRecordsAndNoMore) {
    ASSERT_TRUE(lay(files(), "Workers.vbn", manyWorkers(maxRecords - 1)));
    auto workers = openWorkers();
    ASSERT_THAT(workers, Succeeds());
    EXPECT_THAT(workers->append(worker("last", 1)), Succeeds());
    EXPECT_THAT(workers->append(worker("too many", 1)), Fails(Failure::full));
    EXPECT_THAT(workers->write(40'000, worker("too many", 1)), Fails(Failure::full));
    EXPECT_EQ(workers->size(), maxRecords);
    EXPECT_EQ(contentOf(files(), "Workers.vbn"), manyWorkers(maxRecords - 1) + workerBytes("last", 1));
    EXPECT_THAT(workers->write(maxRecords, worker("again", 2)), Succeeds()) << "the last can still be overwritten";
}

TEST_P(Records, AnOverlongFileCountsNoMoreThanItsNumbersReach) {
    ASSERT_TRUE(lay(files(), "Workers.vbn", manyWorkers(maxRecords) + workerBytes("beyond", 1)));
    auto workers = openWorkers();
    ASSERT_THAT(workers, Succeeds());
    EXPECT_EQ(workers->size(), maxRecords);
    int seen = 0;
    EXPECT_THAT(workers->scan([&](int, const Worker&) { ++seen; }), Succeeds());
    EXPECT_EQ(seen, maxRecords);
    EXPECT_THAT(workers->append(worker("too many", 1)), Fails(Failure::full));
}

TEST(RecordCount, IsTheLengthOverTheWidthHalfToEven) {
    EXPECT_EQ(recordCount(0, 86), 0);
    EXPECT_EQ(recordCount(86, 86), 1);
    EXPECT_EQ(recordCount(62, 86), 1) << "0,72";
    EXPECT_EQ(recordCount(43, 86), 0) << "a half goes to 0, the even one";
    EXPECT_EQ(recordCount(44, 86), 1);
    EXPECT_EQ(recordCount(42, 86), 0);
    EXPECT_EQ(recordCount(86 + 43, 86), 2) << "one and a half goes to 2";
    EXPECT_EQ(recordCount(2 * 86 + 43, 86), 2) << "two and a half goes to 2";
    EXPECT_EQ(recordCount(2 * 86 + 44, 86), 3);
    EXPECT_EQ(recordCount(1, 1), 1);
    EXPECT_EQ(recordCount(49 + 24, 49), 1) << "an odd width has no half";
    EXPECT_EQ(recordCount(49 + 25, 49), 2);
}

TEST(RecordCount, NeverExceedsASixteenBitNumber) {
    EXPECT_EQ(recordCount(std::uint64_t{32'767} * 86, 86), 32'767);
    EXPECT_EQ(recordCount(std::uint64_t{32'767} * 86 + 85, 86), 32'767);
    EXPECT_EQ(recordCount(std::uint64_t{40'000} * 86, 86), 32'767);
    EXPECT_EQ(recordCount(~std::uint64_t{0}, 1), 32'767);
}

/// The limits of the periods have 86 bytes; older files, and those after a removal, hold 62 of them.
struct Limits {
    Text<62> old;
    Currency amounts[3];
};
static_assert(sizeof(Limits) == 86);

class ShortFile : public ::testing::Test {
  protected:
    void layBytes(std::string_view bytes) { ASSERT_TRUE(lay(files, "Meirin.vbn", bytes)); }
    MemoryFileSystem files;
};

TEST_F(ShortFile, OfSixtyTwoBytesIsOneRecordWithZerosBehind) {
    layBytes(std::string(62, 'x'));
    auto limits = RecordFile<Limits>::open(files, "Meirin.vbn");
    ASSERT_THAT(limits, Succeeds());
    EXPECT_EQ(limits->size(), 1);
    const auto record = limits->read(1);
    ASSERT_THAT(record, Succeeds());
    EXPECT_EQ(test::bytesOf(*record), std::string(62, 'x') + nuls(24));
    int seen = 0;
    EXPECT_THAT(limits->scan([&](int, const Limits& each) {
        ++seen;
        EXPECT_EQ(test::bytesOf(each), std::string(62, 'x') + nuls(24));
    }),
                Succeeds());
    EXPECT_EQ(seen, 1);
}

TEST_F(ShortFile, IsWholeAfterTheNextWrite) {
    layBytes(std::string(62, 'x'));
    auto limits = RecordFile<Limits>::open(files, "Meirin.vbn");
    ASSERT_THAT(limits, Succeeds());
    auto record = limits->read(1);
    ASSERT_THAT(record, Succeeds());
    ASSERT_THAT(limits->write(1, *record), Succeeds());
    EXPECT_EQ(contentOf(files, "Meirin.vbn"), std::string(62, 'x') + nuls(24));
}

TEST_F(ShortFile, WithATailTooShortToCountIsScannedWithoutIt) {
    layBytes(manyWorkers(3) + "tail");
    auto workers = RecordFile<Worker>::open(files, "Meirin.vbn");
    ASSERT_THAT(workers, Succeeds());
    EXPECT_EQ(workers->size(), 3);
    int seen = 0;
    EXPECT_THAT(workers->scan([&](int, const Worker&) { ++seen; }), Succeeds());
    EXPECT_EQ(seen, 3);
}

TEST(Blocks, AreReadAndWrittenByConsecutiveNumbers) {
    MemoryFileSystem files;
    auto raw = RawRecordFile::open(files, "x", 2);
    ASSERT_THAT(raw, Succeeds());
    const std::string three = "aabbcc";
    ASSERT_THAT(raw->writeBlock(2, std::as_bytes(std::span(three))), Succeeds());
    EXPECT_EQ(contentOf(files, "x"), nuls(2) + "aabbcc");
    std::string into(8, '-');
    EXPECT_THAT(raw->readBlock(3, std::as_writable_bytes(std::span(into))), Gives(2));
    EXPECT_EQ(into.substr(0, 4), "bbcc");
    EXPECT_THAT(raw->readBlock(5, std::as_writable_bytes(std::span(into))), Gives(0));
    EXPECT_THAT(raw->readBlock(0, std::as_writable_bytes(std::span(into))), Gives(0));
    EXPECT_THAT(raw->writeBlock(32'766, std::as_bytes(std::span(three))), Fails(Failure::full))
        << "32,768 would be the third";
    EXPECT_EQ(contentOf(files, "x").size(), 8U);
}

TEST(Blocks, CountAShortLastRecordAsTheWholeFileDoes) {
    const auto readFrom = [](int first, int tail) {
        MemoryFileSystem files;
        EXPECT_TRUE(lay(files, "x", manyWorkers(3) + std::string(static_cast<std::size_t>(tail), 't')));
        auto raw = RawRecordFile::open(files, "x", width);
        EXPECT_THAT(raw, Succeeds());
        std::string into(10 * width, '-');
        return raw->readBlock(first, std::as_writable_bytes(std::span(into))).valueOr(-1);
    };
    EXPECT_EQ(readFrom(1, 4), 3);
    EXPECT_EQ(readFrom(1, 5), 4) << "three and a half goes to 4";
    EXPECT_EQ(readFrom(3, 4), 1);
    EXPECT_EQ(readFrom(3, 6), 2);
    EXPECT_EQ(readFrom(4, 4), 0);
    EXPECT_EQ(readFrom(4, 5), 1) << "and from its own number on it still counts";
}

TEST(RecordWrites, AreSafeWhenTheyReturn) {
    MemoryFileSystem files;
    auto workers = RecordFile<Worker>::open(files, "x");
    ASSERT_THAT(workers, Succeeds());
    ASSERT_THAT(workers->append(worker("Rossi", 12)), Succeeds());
    files.cutPower();
    EXPECT_EQ(contentOf(files, "x"), workerBytes("Rossi", 12));
}

TEST(RecordWrites, LeaveTheOldOrTheNewRecordWhereverTheyFail) {
    const std::string before = manyWorkers(3);
    const std::string after = workerBytes("w", 1) + workerBytes("Rossi", 99) + workerBytes("w", 3);
    const auto run = [](FileSystem& files) -> Result<> {
        auto workers = RecordFile<Worker>::open(files, "x");
        if (!workers) return workers.error();
        return workers->write(2, worker("Rossi", 99));
    };
    constexpr int all = 3;  // open, write, flush
    for (const bool stops : {false, true}) {
        for (int n = 1; n <= all + 1; ++n) {
            SCOPED_TRACE(n);
            MemoryFileSystem memory;
            ASSERT_TRUE(lay(memory, "x", before));
            FailingFileSystem files(memory);
            stops ? files.stopAt(n) : files.failOnce(n);
            EXPECT_EQ(run(files).ok(), n > all);
            memory.cutPower();
            EXPECT_EQ(contentOf(memory, "x"), n > all ? after : before);
        }
    }
}

TEST(RecordReads, TellThatTheDiskFailed) {
    MemoryFileSystem memory;
    ASSERT_TRUE(lay(memory, "x", manyWorkers(3)));
    FailingFileSystem files(memory);
    auto workers = RecordFile<Worker>::open(files, "x");
    ASSERT_THAT(workers, Succeeds());
    files.stopAt(1);
    EXPECT_THAT(workers->count(), Fails(Failure::device));
    EXPECT_EQ(workers->size(), 0) << "nothing is there as far as the program can tell";
    EXPECT_THAT(workers->read(1), Fails(Failure::device));
    EXPECT_THAT(workers->append({}), Fails(Failure::device));
    EXPECT_FALSE(workers->last());
    EXPECT_THAT(workers->scan([](int, const Worker&) { FAIL(); }), Fails(Failure::device));
}

}  // namespace
}  // namespace vorbano
