#include "storage/disk_file.h"

#include <algorithm>
#include <vector>

namespace vorbano {

Result<std::size_t> DiskFile::read(std::uint64_t offset, std::span<std::byte> into) {
    std::size_t done = 0;
    while (done < into.size()) {
        const auto got = readSome(offset + done, into.subspan(done));
        if (!got) return got.error();
        if (*got == 0) break;
        done += *got;
    }
    return done;
}

// A full disk takes the first part of a record and refuses the rest; a part of a record must not stay behind.
Result<> DiskFile::write(std::uint64_t offset, std::span<const std::byte> bytes) {
    const auto length = size();
    if (!length) return length.error();
    std::vector<std::byte> old(static_cast<std::size_t>(
        offset < *length ? std::min<std::uint64_t>(bytes.size(), *length - offset) : std::uint64_t{0}));
    if (const auto known = read(offset, old); !known) return known.error();
    auto done = put(offset, bytes);
    if (done) return {};
    // What cannot be taken back either is told with the failure itself.
    put(offset, old).ignore();
    cutAt(*length).ignore();
    return done;
}

Result<> DiskFile::put(std::uint64_t offset, std::span<const std::byte> bytes) {
    for (std::size_t done = 0; done < bytes.size();) {
        const auto count = writeSome(offset + done, bytes.subspan(done));
        if (!count) return count.error();
        done += *count;
    }
    return {};
}

}  // namespace vorbano
