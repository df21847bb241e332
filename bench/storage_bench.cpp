// Work on the largest employee file there can be, 32,767 records of 301 bytes, on the disk of the system's folder for
// temporary files (TMPDIR names another one). What waits for the disk does so on both sides of a comparison.

#include <benchmark/benchmark.h>
#include <fcntl.h>
#include <unistd.h>

#include <filesystem>
#include <span>
#include <string>
#include <vector>

#include "employee_database.h"
#include "overtime/liquidation_save.h"
#include "overtime/pools.h"
#include "records/overtime_records.h"
#include "storage/disk_file_system.h"
#include "storage/record_file.h"
#include "support/temporary_folder.h"

namespace vorbano::bench {
namespace {

const Election election{"Europee", "09-06-24"};
constexpr std::string_view employeeFile = "Elezioni/Europee/09-06-24/09-06-24.vbn";
constexpr std::string_view companionFile = "Elezioni/Europee/09-06-24/Reverse.vbn";
/// In an empty folder.
constexpr std::string_view newFile = "09-06-24.vbn";
constexpr std::size_t fileLength = std::size_t{maxRecords} * sizeof(EmployeeRecord);

EmployeeRecord employee(int number) {
    EmployeeRecord record{};
    record.pools = {.MonteOre = 40, .MoUtil = 0, .MoGlob = 0, .Globo = 0, .SonoDip = 0, .NumDip = maxRecords};
    record.pools.SonoDip = static_cast<std::int16_t>(number);
    record.name = "ROSSI MARIO";
    for (PeriodBlock& period : record.periods) {
        period.from = "15-04-24";
        period.to = "14-05-24";
        period.authorised = {20, 11, 3};
    }
    return record;
}

/// A folder on disk with a full employee file in it.
class FullElection {
  public:
    FullElection() : files(folder.path()) {
        if (!makeElectionFolder(files, election)) return;
        std::vector<EmployeeRecord> records;
        for (int number = 1; number <= maxRecords; ++number) records.push_back(employee(number));
        auto file = RecordFile<EmployeeRecord>::open(files, employeeFile);
        ready = file && file->raw().writeBlock(1, std::as_bytes(std::span(records))) && file->raw().flush();
    }

    [[nodiscard]] std::string path() const { return (folder.path() / employeeFile).string(); }

    test::TemporaryFolder folder;
    DiskFileSystem files;
    bool ready = false;
};

/// A file handle of the system, for what is measured without the record files.
class RawFile {
  public:
    RawFile(const std::string& path, int flags) : handle_(::open(path.c_str(), flags, 0600)) {}
    RawFile(const RawFile&) = delete;
    RawFile& operator=(const RawFile&) = delete;
    ~RawFile() {
        if (handle_ >= 0) ::close(handle_);
    }

    bool readAll(std::span<std::byte> into) const {
        return ::read(handle_, into.data(), into.size()) == static_cast<ssize_t>(into.size());
    }
    bool writeAndWait(std::span<const std::byte> bytes) const {
        return ::write(handle_, bytes.data(), bytes.size()) == static_cast<ssize_t>(bytes.size()) &&
               ::fsync(handle_) == 0;
    }

  private:
    int handle_;
};

/// Runs `work` as often as is needed; it answers whether it went well.
template <class Work>
void measure(benchmark::State& state, bool ready, Work&& work) {
    if (!ready) {
        state.SkipWithError("the file could not be laid");
        return;
    }
    for (auto _ : state) {
        if (work()) continue;
        state.SkipWithError("the disk did not answer");
        break;
    }
}

void bytesMoved(benchmark::State& state, std::size_t each) {
    state.SetBytesProcessed(static_cast<std::int64_t>(state.iterations() * each));
}

/// Authorised hours of one period over the whole file; -1 when it cannot be read.
int authorisedHours(FileSystem& files, std::size_t period) {
    const auto file = RecordFile<EmployeeRecord>::open(files, employeeFile);
    if (!file) return -1;
    int sum = 0;
    const auto done = file->scan([&](int, const EmployeeRecord& record) {
        for (const Integer hours : record.periods[period].authorised) sum += hours;
    });
    return done ? sum : -1;
}

void ScanOfAllRecords_RecordFile(benchmark::State& state) {
    FullElection full;
    measure(state, full.ready, [&] { return authorisedHours(full.files, 0) == maxRecords * 34; });
    bytesMoved(state, fileLength);
}

void ScanOfAllRecords_SameBytesReadOnce(benchmark::State& state) {
    const FullElection full;
    std::vector<std::byte> content(fileLength);
    measure(state, full.ready, [&] {
        const bool read = RawFile(full.path(), O_RDONLY).readAll(content);
        benchmark::DoNotOptimize(content.data());
        benchmark::ClobberMemory();
        return read;
    });
    bytesMoved(state, fileLength);
}

void AppendOfOneRecord_RecordFile(benchmark::State& state) {
    const test::TemporaryFolder folder;
    DiskFileSystem files(folder.path());
    const EmployeeRecord record = employee(1);
    measure(state, true, [&] {
        auto file = RecordFile<EmployeeRecord>::open(files, newFile);
        // A full file begins anew.
        const bool full = file && file->size() == maxRecords;
        return file && (full ? file->write(1, record) : file->append(record)).ok();
    });
}

void AppendOfOneRecord_SameBytesWrittenOnce(benchmark::State& state) {
    const test::TemporaryFolder folder;
    const std::string path = (folder.path() / newFile).string();
    const EmployeeRecord record = employee(1);
    measure(state, true, [&] {
        return RawFile(path, O_WRONLY | O_CREAT | O_APPEND).writeAndWait(std::as_bytes(std::span(&record, 1)));
    });
}

void RewriteOfAllRecords_RecordFile(benchmark::State& state) {
    FullElection full;
    measure(state, full.ready, [&] {
        return rewrite<EmployeeRecord>(full.files, employeeFile, companionFile,
                                       [](int, EmployeeRecord&) { return true; })
            .ok();
    });
    bytesMoved(state, fileLength);
}

void RewriteOfAllRecords_SameBytesCopiedOnce(benchmark::State& state) {
    const FullElection full;
    const std::string companion = (full.folder.path() / companionFile).string();
    std::vector<std::byte> content(fileLength);
    measure(state, full.ready, [&] {
        const bool copied = RawFile(full.path(), O_RDONLY).readAll(content) &&
                            RawFile(companion, O_WRONLY | O_CREAT | O_TRUNC).writeAndWait(content);
        std::error_code trouble;
        std::filesystem::rename(companion, full.path(), trouble);
        return copied && !trouble;
    });
    bytesMoved(state, fileLength);
}

/// "Salva" of the first employee with an hour more each time, as the liquidation does it: its own record, and the new
/// running total in every record behind it; the file is old or new.
void SaveOfALiquidation_RecordFile(benchmark::State& state) {
    FullElection full;
    int hours = 0;
    measure(state, full.ready, [&] {
        const auto first = readEmployee(full.files, election, {}, 1);
        if (!first) return false;
        Liquidation values = liquidationOf(*first);
        values.totEseg = static_cast<std::int16_t>(++hours);
        return saveLiquidation(full.files, election, {}, 1, values).ok();
    });
    const auto file = RecordFile<EmployeeRecord>::open(full.files, employeeFile);
    const auto last = file ? file->last() : std::nullopt;
    if (!last || last->pools.MoUtil != static_cast<std::int16_t>(state.iterations()))
        state.SkipWithError("the running totals are wrong");
}

/// The same update: the first row as a whole, the running total in every row, one transaction.
void SaveOfALiquidation_SqliteTransaction(benchmark::State& state) {
    const test::TemporaryFolder folder;
    EmployeeDatabase database(folder.path() / "employees.sqlite", maxRecords, employee(1));
    EmployeeRecord first = employee(1);
    int hours = 0;
    measure(state, database.ok(), [&] {
        first.totEseg = static_cast<std::int16_t>(++hours);
        return database.saveFirst(first, 1);
    });
    if (database.lastRunningTotal() != static_cast<int>(state.iterations()))
        state.SkipWithError("the running totals are wrong");
}

/// What a change of a period's last date works out before the clerk sees the next letter.
void KeystrokeInADateField_FiguresAndHoursOfAllRecords(benchmark::State& state) {
    FullElection full;
    measure(state, full.ready, [&] {
        const auto days = countedDays("15-04-24", "14-05-24");
        const PeriodFigures figures = periodFigures(1, days.value_or(0), 40, maxRecords);
        const int used = authorisedHours(full.files, 0);
        const Judgement judgement = judgeHours(34, used, figures);
        benchmark::DoNotOptimize(judgement.verdict);
        return used >= 0;
    });
    state.SetLabel("a frame is 16 ms");
}

void inMilliseconds(benchmark::internal::Benchmark* each) { each->Unit(benchmark::kMillisecond)->UseRealTime(); }

BENCHMARK(ScanOfAllRecords_RecordFile)->Apply(inMilliseconds);
BENCHMARK(ScanOfAllRecords_SameBytesReadOnce)->Apply(inMilliseconds);
BENCHMARK(AppendOfOneRecord_RecordFile)->Apply(inMilliseconds);
BENCHMARK(AppendOfOneRecord_SameBytesWrittenOnce)->Apply(inMilliseconds);
BENCHMARK(RewriteOfAllRecords_RecordFile)->Apply(inMilliseconds);
BENCHMARK(RewriteOfAllRecords_SameBytesCopiedOnce)->Apply(inMilliseconds);
BENCHMARK(SaveOfALiquidation_RecordFile)->Apply(inMilliseconds);
BENCHMARK(SaveOfALiquidation_SqliteTransaction)->Apply(inMilliseconds);
BENCHMARK(KeystrokeInADateField_FiguresAndHoursOfAllRecords)->Apply(inMilliseconds);

}  // namespace
}  // namespace vorbano::bench
