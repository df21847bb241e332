#include "storage/noticing_file_system.h"

#include <utility>

namespace vorbano {

namespace {

bool isOfTheDisk(Failure kind) {
    return kind == Failure::diskFull || kind == Failure::refused || kind == Failure::device;
}

}  // namespace

class NoticingFile : public File {
  public:
    NoticingFile(std::unique_ptr<File> real, const NoticingFileSystem::Notices& notices)
        : real_(std::move(real)), notices_(notices) {}

    Result<std::size_t> read(std::uint64_t offset, std::span<std::byte> into) override {
        return real_->read(offset, into);
    }
    Result<> write(std::uint64_t offset, std::span<const std::byte> bytes) override {
        return notices_.of(real_->write(offset, bytes));
    }
    Result<std::uint64_t> size() override { return real_->size(); }
    Result<> flush() override { return notices_.of(real_->flush()); }

  private:
    std::unique_ptr<File> real_;
    const NoticingFileSystem::Notices& notices_;
};

Result<> NoticingFileSystem::Notices::of(Result<> result, bool isFolder) const {
    if (result) {
        if (changed && !isFolder) changed();
    } else if (isOfTheDisk(result.error().kind)) {
        unwritten({.error = result.error(), .isFolder = isFolder});
    }
    return result;
}

Result<std::unique_ptr<File>> NoticingFileSystem::open(std::string_view path) {
    auto file = real_.open(path);
    if (!file) {
        if (isOfTheDisk(file.error().kind)) notices_.unwritten({.error = file.error(), .isOpening = true});
        return file;
    }
    return std::unique_ptr<File>(std::make_unique<NoticingFile>(std::move(*file), notices_));
}

Result<std::unique_ptr<File>> NoticingFileSystem::openExisting(std::string_view path) {
    return real_.openExisting(path);
}

Result<> NoticingFileSystem::replace(std::string_view from, std::string_view to) {
    return notices_.of(real_.replace(from, to));
}

Result<> NoticingFileSystem::remove(std::string_view path) {
    auto removed = real_.remove(path);
    if (removed && notices_.changed) notices_.changed();
    return removed;
}

Result<std::vector<Entry>> NoticingFileSystem::list(std::string_view folder) { return real_.list(folder); }

Result<> NoticingFileSystem::makeFolder(std::string_view path) { return notices_.of(real_.makeFolder(path), true); }

Result<> NoticingFileSystem::removeFolder(std::string_view path) { return real_.removeFolder(path); }

}  // namespace vorbano
