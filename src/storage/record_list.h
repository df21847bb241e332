#pragma once

// A record file as a list in memory, for the commands that change many of its records, or add and leave out some.

#include <span>
#include <string_view>
#include <vector>

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

/// Puts `records` in the place of the file in one step, through `companion`: the file is old or new, never half. The
/// caller holds no handle of it.
template <class Record>
[[nodiscard]] Result<> replaceAll(FileSystem& files, std::string_view path, std::string_view companion,
                                  const std::vector<Record>& records) {
    if (auto filled = fillCompanion(files, companion, records); !filled) {
        // On a full disk the half companion would take the room that the next command needs.
        files.remove(companion).ignore();
        return filled;
    }
    return files.replace(companion, path);
}

}  // namespace vorbano
