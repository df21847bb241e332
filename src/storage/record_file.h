#pragma once

// Files of fixed-length records: nothing but records one after another, numbered from 1.

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <memory>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <type_traits>
#include <utility>
#include <vector>

#include "base/result.h"
#include "storage/file_system.h"

namespace vorbano {

/// A record number is a 16-bit integer.
inline constexpr int maxRecords = 32767;

/// Length / width, to the nearest whole number, half to even: so a file cut to 62 of 86 bytes still counts 1. Never
/// above maxRecords.
[[nodiscard]] int recordCount(std::uint64_t length, std::size_t width);

/// The operations that need not know the type of the record.
class RawRecordFile {
  public:
    static Result<RawRecordFile> open(FileSystem& files, std::string_view path, std::size_t width);

    [[nodiscard]] Result<int> count() const;
    /// Bytes beyond the end of the file are zeros; `notFound` when not a single byte of the record is there.
    [[nodiscard]] Result<> read(int number, std::span<std::byte> record) const;
    /// Writes in place and flushes. `full` above maxRecords.
    [[nodiscard]] Result<> write(int number, std::span<const std::byte> record);
    /// Writes consecutive records without flushing; for the filling of companions.
    [[nodiscard]] Result<> writeBlock(int first, std::span<const std::byte> records);
    /// Reads up to `records.size() / width` records from `first`; the number read. A short last record is completed
    /// with zeros, and counts as it does in count().
    [[nodiscard]] Result<int> readBlock(int first, std::span<std::byte> records) const;
    [[nodiscard]] Result<> flush();
    [[nodiscard]] const std::string& path() const { return path_; }

  private:
    RawRecordFile(std::unique_ptr<File> file, std::string path, std::size_t width)
        : file_(std::move(file)), path_(std::move(path)), width_(width) {}
    std::unique_ptr<File> file_;
    std::string path_;
    std::size_t width_;
};

/// A file of `Record`s, a trivially copyable struct of field types. Opening creates the file when its folder is there;
/// so "exists" always means count() > 0. Closed by its destructor.
template <class Record>
class RecordFile {
    static_assert(std::is_trivially_copyable_v<Record> && alignof(Record) == 1);

  public:
    static constexpr std::size_t width = sizeof(Record);

    /// `missingFolder` when the folder of `path` is not there.
    static Result<RecordFile> open(FileSystem& files, std::string_view path) {
        auto raw = RawRecordFile::open(files, path, width);
        if (!raw) return raw.error();
        return RecordFile(std::move(*raw));
    }

    /// Number of records; 0 means new or empty.
    [[nodiscard]] Result<int> count() const { return raw_.count(); }
    /// Number of records, 0 when the disk does not answer: the program's universal test for "nothing stored yet".
    [[nodiscard]] int size() const { return raw_.count().valueOr(0); }

    /// Record `number` (from 1). Bytes that a short file does not hold read as zeros.
    [[nodiscard]] Result<Record> read(int number) const {
        Record record{};
        if (auto done = raw_.read(number, bytesOf(record)); !done) return done.error();
        return record;
    }
    /// Nothing when the file is empty.
    [[nodiscard]] std::optional<Record> last() const {
        const int n = size();
        if (n == 0) return std::nullopt;
        auto record = read(n);
        return record ? std::optional(*record) : std::nullopt;
    }
    /// Writes record `number`; count + 1 appends. Flushed when it returns.
    [[nodiscard]] Result<> write(int number, const Record& record) { return raw_.write(number, bytesOf(record)); }
    [[nodiscard]] Result<> append(const Record& record) {
        auto n = count();
        if (!n) return n.error();
        return write(*n + 1, record);
    }

    /// All records in order, read in large blocks; those appended meanwhile are not seen. `see(number, record)`.
    template <class See>
    [[nodiscard]] Result<> scan(See&& see) const {
        auto n = count();
        if (!n) return n.error();
        std::vector<Record> block(static_cast<std::size_t>(std::min(*n, recordsInBlock)));
        for (int first = 1; first <= *n; first += recordsInBlock) {
            const auto wanted = static_cast<std::size_t>(std::min(*n - first + 1, recordsInBlock));
            auto got = raw_.readBlock(first, std::as_writable_bytes(std::span(block).first(wanted)));
            if (!got) return got.error();
            for (int at = 0; at < *got; ++at) see(first + at, block[static_cast<std::size_t>(at)]);
            if (*got == 0) break;
        }
        return {};
    }

    [[nodiscard]] RawRecordFile& raw() { return raw_; }

  private:
    static constexpr int recordsInBlock = static_cast<int>(std::max<std::size_t>(1, (std::size_t{1} << 18) / width));

    explicit RecordFile(RawRecordFile raw) : raw_(std::move(raw)) {}
    static std::span<std::byte> bytesOf(Record& record) { return std::as_writable_bytes(std::span(&record, 1)); }
    static std::span<const std::byte> bytesOf(const Record& record) { return std::as_bytes(std::span(&record, 1)); }

    RawRecordFile raw_;
};

/// The first half of `rewrite`: what is kept goes to the companion, which is then flushed.
template <class Record, class Change>
[[nodiscard]] Result<> fillCompanion(FileSystem& files, std::string_view path, std::string_view companion,
                                     Change&& change) {
    auto from = RecordFile<Record>::open(files, path);
    if (!from) return from.error();
    auto to = RecordFile<Record>::open(files, companion);
    if (!to) return to.error();
    std::vector<Record> kept;
    int written = 0;
    Result<> trouble;
    const auto put = [&] {
        if (!trouble || kept.empty()) return;
        trouble = to->raw().writeBlock(written + 1, std::as_bytes(std::span(kept)));
        written += static_cast<int>(kept.size());
        kept.clear();
    };
    auto done = from->scan([&](int number, Record record) {
        if (!change(number, record)) return;
        kept.push_back(record);
        if (kept.size() == 1024) put();
    });
    if (!done) return done;
    put();
    if (!trouble) return trouble;
    return to->raw().flush();
}

/// The rewrite: every record of `path` goes through `change(number, record)` into `companion`, with consecutive new
/// numbers; a record for which it answers false is left out. The companion is then flushed and put in the place of the
/// file in one step, so a power cut leaves the file old or new, never half. The caller holds no handle of the file.
template <class Record, class Change>
[[nodiscard]] Result<> rewrite(FileSystem& files, std::string_view path, std::string_view companion, Change&& change) {
    if (auto old = files.remove(companion); !old && old.error().kind != Failure::notFound) return old;
    if (auto filled = fillCompanion<Record>(files, path, companion, std::forward<Change>(change)); !filled) {
        // On a full disk the half companion would take the room that the next command needs.
        files.remove(companion).ignore();
        return filled;
    }
    return files.replace(companion, path);
}

}  // namespace vorbano
