#include "storage/failing_file_system.h"

#include <utility>

namespace vorbano {

namespace {

class FailingFile : public File {
  public:
    FailingFile(FailingFileSystem& owner, std::unique_ptr<File> real, std::string path)
        : owner_(owner), real_(std::move(real)), path_(std::move(path)) {}

    Result<std::size_t> read(std::uint64_t offset, std::span<std::byte> into) override {
        if (owner_.strikes()) return broken();
        return real_->read(offset, into);
    }
    Result<> write(std::uint64_t offset, std::span<const std::byte> bytes) override {
        if (owner_.strikes()) return broken();
        return real_->write(offset, bytes);
    }
    Result<std::uint64_t> size() override {
        if (owner_.strikes()) return broken();
        return real_->size();
    }
    Result<> flush() override {
        if (owner_.strikes()) return broken();
        return real_->flush();
    }

  private:
    [[nodiscard]] Error broken() const { return {Failure::device, path_}; }

    FailingFileSystem& owner_;
    std::unique_ptr<File> real_;
    std::string path_;
};

Error broken(std::string_view path) { return {Failure::device, std::string(path)}; }

}  // namespace

void FailingFileSystem::failOnce(int n) {
    at_ = n;
    seen_ = 0;
    stays_ = false;
}

void FailingFileSystem::stopAt(int n) {
    failOnce(n);
    stays_ = true;
}

bool FailingFileSystem::strikes() {
    ++seen_;
    return at_ > 0 && (seen_ == at_ || (stays_ && seen_ > at_));
}

Result<std::unique_ptr<File>> FailingFileSystem::open(std::string_view path) {
    if (strikes()) return broken(path);
    auto file = real_.open(path);
    if (!file) return file;
    return std::unique_ptr<File>(std::make_unique<FailingFile>(*this, std::move(*file), std::string(path)));
}

Result<std::unique_ptr<File>> FailingFileSystem::openExisting(std::string_view path) {
    if (strikes()) return broken(path);
    auto file = real_.openExisting(path);
    if (!file) return file;
    return std::unique_ptr<File>(std::make_unique<FailingFile>(*this, std::move(*file), std::string(path)));
}

Result<> FailingFileSystem::replace(std::string_view from, std::string_view to) {
    if (strikes()) return broken(to);
    return real_.replace(from, to);
}

Result<> FailingFileSystem::remove(std::string_view path) {
    if (strikes()) return broken(path);
    return real_.remove(path);
}

Result<std::vector<Entry>> FailingFileSystem::list(std::string_view folder) {
    if (strikes()) return broken(folder);
    return real_.list(folder);
}

Result<> FailingFileSystem::makeFolder(std::string_view path) {
    if (strikes()) return broken(path);
    return real_.makeFolder(path);
}

Result<> FailingFileSystem::removeFolder(std::string_view path) {
    if (strikes()) return broken(path);
    return real_.removeFolder(path);
}

}  // namespace vorbano
