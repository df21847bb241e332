#include "storage/noticing_file_system.h"

#include <utility>

namespace vorbano {

namespace {

bool isOfTheDisk(Failure kind) {
    return kind == Failure::diskFull || kind == Failure::refused || kind == Failure::device;
}

Result<> noticed(Result<> result, const NoticingFileSystem::Notice& notice, bool isFolder = false) {
    if (!result && isOfTheDisk(result.error().kind)) notice({result.error(), isFolder});
    return result;
}

class NoticingFile : public File {
  public:
    NoticingFile(std::unique_ptr<File> real, const NoticingFileSystem::Notice& notice)
        : real_(std::move(real)), notice_(notice) {}

    Result<std::size_t> read(std::uint64_t offset, std::span<std::byte> into) override {
        return real_->read(offset, into);
    }
    Result<> write(std::uint64_t offset, std::span<const std::byte> bytes) override {
        return noticed(real_->write(offset, bytes), notice_);
    }
    Result<std::uint64_t> size() override { return real_->size(); }
    Result<> flush() override { return noticed(real_->flush(), notice_); }

  private:
    std::unique_ptr<File> real_;
    const NoticingFileSystem::Notice& notice_;
};

}  // namespace

Result<std::unique_ptr<File>> NoticingFileSystem::open(std::string_view path) {
    auto file = real_.open(path);
    if (!file) {
        if (isOfTheDisk(file.error().kind)) notice_({file.error()});
        return file;
    }
    return std::unique_ptr<File>(std::make_unique<NoticingFile>(std::move(*file), notice_));
}

Result<std::unique_ptr<File>> NoticingFileSystem::openExisting(std::string_view path) {
    return real_.openExisting(path);
}

Result<> NoticingFileSystem::replace(std::string_view from, std::string_view to) {
    return noticed(real_.replace(from, to), notice_);
}

Result<> NoticingFileSystem::remove(std::string_view path) { return noticed(real_.remove(path), notice_); }

Result<std::vector<Entry>> NoticingFileSystem::list(std::string_view folder) { return real_.list(folder); }

Result<> NoticingFileSystem::makeFolder(std::string_view path) {
    return noticed(real_.makeFolder(path), notice_, true);
}

Result<> NoticingFileSystem::removeFolder(std::string_view path) {
    auto done = real_.removeFolder(path);
    if (done) return done;
    // A folder with something left in it stays, as it should.
    const auto content = real_.list(path);
    if (content && !content->empty()) return done;
    return noticed(std::move(done), notice_, true);
}

}  // namespace vorbano
