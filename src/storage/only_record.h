#pragma once

// Many files hold exactly one record, or none yet: Ente.dat, the parameter files, Meirin.vbn, Duedate.vbn. It is read
// and written as a whole.

#include <optional>
#include <string_view>

#include "storage/record_file.h"

namespace vorbano {

/// Record 1; nothing when the file has no data yet (opening creates it empty). A disk that does not answer is a failure
/// and not an empty file: nothing must be printed or stored with a part left out.
template <class Record>
[[nodiscard]] Result<std::optional<Record>> onlyRecord(FileSystem& files, std::string_view path) {
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
[[nodiscard]] Result<> storeOnlyRecord(FileSystem& files, std::string_view path, const Record& record) {
    auto file = RecordFile<Record>::open(files, path);
    if (!file) return file.error();
    return file->write(1, record);
}

}  // namespace vorbano
