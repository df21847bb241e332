#pragma once

#include <optional>
#include <string_view>

#include "storage/record_file.h"

namespace vorbano {

/// Record 1 of a file that holds one record or none (Ente.dat, Conprev.dat, Meirin.vbn); nothing when it is empty. A
/// disk that does not answer is a failure and not an empty file: a document must not be printed with a part left out.
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

}  // namespace vorbano
