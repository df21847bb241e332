#include "storage/record_file.h"

namespace vorbano {

namespace {

std::uint64_t offsetOf(int number, std::size_t width) { return static_cast<std::uint64_t>(number - 1) * width; }

/// How many records may still stand from number `first` on.
std::size_t roomFrom(int first) { return static_cast<std::size_t>(maxRecords) + 1 - static_cast<std::size_t>(first); }

}  // namespace

int recordCount(std::uint64_t length, std::size_t width) {
    const std::uint64_t whole = length / width;
    if (whole >= static_cast<std::uint64_t>(maxRecords)) return maxRecords;
    const std::uint64_t rest = length % width;
    const std::uint64_t missing = width - rest;
    const bool up = rest > missing || (rest == missing && whole % 2 == 1);
    return static_cast<int>(up ? whole + 1 : whole);
}

Result<RawRecordFile> RawRecordFile::open(FileSystem& files, std::string_view path, std::size_t width) {
    auto file = files.open(path);
    if (!file) return file.error();
    return RawRecordFile(std::move(*file), std::string(path), width);
}

Result<int> RawRecordFile::count() const {
    const auto length = file_->size();
    if (!length) return length.error();
    return recordCount(*length, width_);
}

Result<> RawRecordFile::read(int number, std::span<std::byte> record) const {
    if (number < 1 || number > maxRecords) return Error{Failure::notFound, path_};
    const auto got = file_->read(offsetOf(number, width_), record);
    if (!got) return got.error();
    if (*got == 0) return Error{Failure::notFound, path_};
    std::ranges::fill(record.subspan(*got), std::byte{});
    return {};
}

Result<> RawRecordFile::write(int number, std::span<const std::byte> record) {
    if (auto written = writeBlock(number, record); !written) return written;
    return flush();
}

Result<> RawRecordFile::writeBlock(int first, std::span<const std::byte> records) {
    if (first < 1) return Error{Failure::notFound, path_};
    if (first > maxRecords || records.size() / width_ > roomFrom(first)) return Error{Failure::full, path_};
    return file_->write(offsetOf(first, width_), records);
}

Result<int> RawRecordFile::readBlock(int first, std::span<std::byte> records) const {
    if (first < 1 || first > maxRecords) return 0;
    const std::size_t wanted = std::min(records.size() / width_, roomFrom(first)) * width_;
    const auto block = records.first(wanted);
    const auto got = file_->read(offsetOf(first, width_), block);
    if (!got) return got.error();
    std::ranges::fill(block.subspan(*got), std::byte{});
    // A short last record counts here as it counts for the whole file.
    return std::max(0, recordCount(offsetOf(first, width_) + *got, width_) - (first - 1));
}

Result<> RawRecordFile::flush() { return file_->flush(); }

}  // namespace vorbano
