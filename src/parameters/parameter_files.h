#pragma once

// The parameter files hold one record each, which is read and written as a whole.

#include <optional>
#include <string_view>

#include "storage/record_file.h"

namespace vorbano {

/// Record 1 of the file; nothing when the file has no data yet. Opening creates the file empty.
template <class Record>
[[nodiscard]] Result<std::optional<Record>> loadParameters(FileSystem& files, std::string_view path) {
    const auto file = RecordFile<Record>::open(files, path);
    if (!file) return file.error();
    const auto count = file->count();
    if (!count) return count.error();
    if (*count == 0) return std::optional<Record>();
    const auto record = file->read(1);
    if (!record) return record.error();
    return std::optional<Record>(*record);
}

/// Writes record 1.
template <class Record>
[[nodiscard]] Result<> storeParameters(FileSystem& files, std::string_view path, const Record& record) {
    auto file = RecordFile<Record>::open(files, path);
    if (!file) return file.error();
    return file->write(1, record);
}

}  // namespace vorbano
