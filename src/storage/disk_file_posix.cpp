#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstdio>
#include <utility>

#include "storage/disk_file.h"

namespace vorbano {

namespace {

Error lastError(std::string_view subject) {
    return {failureOf(std::error_code(errno, std::generic_category())), std::string(subject)};
}

/// Calls again as long as a signal comes between.
template <class Call>
auto uninterrupted(Call&& call) {
    for (;;) {
        const auto result = call();
        if (result >= 0 || errno != EINTR) return result;
    }
}

class PosixFile : public DiskFile {
  public:
    /// `newIn`: the folder whose list of names has yet to be flushed, empty when the file was there before.
    PosixFile(int descriptor, std::filesystem::path newIn, std::string subject)
        : descriptor_(descriptor), newIn_(std::move(newIn)), subject_(std::move(subject)) {}
    PosixFile(const PosixFile&) = delete;
    PosixFile& operator=(const PosixFile&) = delete;
    ~PosixFile() override { ::close(descriptor_); }

    Result<std::uint64_t> size() override {
        struct stat status {};
        if (::fstat(descriptor_, &status) != 0) return lastError(subject_);
        return static_cast<std::uint64_t>(status.st_size);
    }

    Result<> flush() override {
        if (uninterrupted([&] { return ::fsync(descriptor_); }) != 0) return lastError(subject_);
        if (newIn_.empty()) return {};
        auto done = flushFolder(newIn_, subject_);
        if (done) newIn_.clear();
        return done;
    }

  protected:
    Result<std::size_t> readSome(std::uint64_t offset, std::span<std::byte> into) override {
        return moved(
            uninterrupted([&] { return ::pread(descriptor_, into.data(), into.size(), static_cast<off_t>(offset)); }));
    }

    Result<std::size_t> writeSome(std::uint64_t offset, std::span<const std::byte> bytes) override {
        return moved(uninterrupted(
            [&] { return ::pwrite(descriptor_, bytes.data(), bytes.size(), static_cast<off_t>(offset)); }));
    }

    Result<> cutAt(std::uint64_t length) override {
        if (uninterrupted([&] { return ::ftruncate(descriptor_, static_cast<off_t>(length)); }) != 0) {
            return lastError(subject_);
        }
        return {};
    }

  private:
    [[nodiscard]] Result<std::size_t> moved(ssize_t bytes) const {
        if (bytes < 0) return lastError(subject_);
        return static_cast<std::size_t>(bytes);
    }

    int descriptor_;
    std::filesystem::path newIn_;
    std::string subject_;
};

int flagsOf(OpenMode mode) {
    switch (mode) {
        case OpenMode::create:
            return O_RDWR | O_CREAT | O_CLOEXEC;
        case OpenMode::readAndWrite:
            return O_RDWR | O_CLOEXEC;
        case OpenMode::readOnly:
            break;
    }
    return O_RDONLY | O_CLOEXEC;
}

}  // namespace

Failure failureOf(std::error_code error) {
    switch (error.value()) {
        case ENOENT:
        case ENOTDIR:
            return Failure::notFound;
        case EACCES:
        case EPERM:
        case EROFS:
        case EISDIR:
        case EEXIST:
        case ENOTEMPTY:
        case EBUSY:
        case ETXTBSY:
        case EBADF:
            return Failure::refused;
        case ENAMETOOLONG:
            return Failure::badName;
        case ENOSPC:
        case EDQUOT:
        case EFBIG:
            return Failure::diskFull;
        default:
            return Failure::device;
    }
}

Result<std::unique_ptr<File>> openDiskFile(const std::filesystem::path& path, OpenMode mode, std::string_view subject) {
    constexpr mode_t readableByAll = 0666;  // less what the user's mask takes away
    const int descriptor = uninterrupted([&] { return ::open(path.c_str(), flagsOf(mode), readableByAll); });
    if (descriptor < 0) return lastError(subject);
    auto file = std::make_unique<PosixFile>(descriptor, mode == OpenMode::create ? path.parent_path() : "",
                                            std::string(subject));
    struct stat status {};
    if (::fstat(descriptor, &status) != 0) return lastError(subject);
    // A folder can be opened for reading like a file; only its reading would fail.
    if (!S_ISREG(status.st_mode)) return Error{Failure::refused, std::string(subject)};
    return std::unique_ptr<File>(std::move(file));
}

Result<> replaceDiskFile(const std::filesystem::path& from, const std::filesystem::path& to, std::string_view subject) {
    if (std::rename(from.c_str(), to.c_str()) != 0) return lastError(subject);
    if (auto done = flushFolder(to.parent_path(), subject); !done) return done;
    if (from.parent_path() == to.parent_path()) return {};
    return flushFolder(from.parent_path(), subject);
}

Result<> flushFolder(const std::filesystem::path& folder, std::string_view subject) {
    const int descriptor = uninterrupted([&] { return ::open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC); });
    if (descriptor < 0) return lastError(subject);
    const int failed = uninterrupted([&] { return ::fsync(descriptor); });
    const int reason = errno;
    ::close(descriptor);
    // Some file systems keep their names safe by themselves and know no flushing of folders.
    if (failed == 0 || reason == EINVAL) return {};
    errno = reason;
    return lastError(subject);
}

}  // namespace vorbano
