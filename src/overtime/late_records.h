#pragma once

// The files of periods four and five as a whole, for the commands that change all of their records.

#include <optional>
#include <string>
#include <vector>

#include "overtime/staff.h"
#include "storage/record_file.h"

namespace vorbano {

/// All records of a file, in order.
template <class Record>
[[nodiscard]] Result<std::vector<Record>> readAll(FileSystem& files, std::string_view path) {
    const auto file = RecordFile<Record>::open(files, path);
    if (!file) return file.error();
    std::vector<Record> records;
    const auto done = file->scan([&](int, const Record& record) { records.push_back(record); });
    if (!done) return done.error();
    return records;
}

/// Writes `records` into `companion`, flushed.
template <class Record>
[[nodiscard]] Result<> fillCompanion(FileSystem& files, std::string_view companion,
                                     const std::vector<Record>& records) {
    if (auto old = files.remove(companion); !old && old.error().kind != Failure::notFound) return old;
    auto file = RecordFile<Record>::open(files, companion);
    if (!file) return file.error();
    if (!records.empty()) {
        const auto written = file->raw().writeBlock(1, std::as_bytes(std::span(records)));
        if (!written) return written;
    }
    return file->raw().flush();
}

/// The records of a late period with those added that the staff lacks.
[[nodiscard]] std::vector<LatePeriodRecord> completed(std::vector<LatePeriodRecord> stored,
                                                      const std::vector<EmployeeRecord>& staff);

/// Puts `records` in the place of a late period's file (0: fourth, 1: fifth) in one step.
[[nodiscard]] Result<> replaceLate(FileSystem& files, const OvertimePaths& paths, std::size_t late,
                                   const std::vector<LatePeriodRecord>& records);

/// Whether a figure can be stored.
[[nodiscard]] bool fits(std::int64_t figure);
/// A figure beyond 16 bits leaves what the field held.
void put(Integer& field, std::int64_t figure);

}  // namespace vorbano
