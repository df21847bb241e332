#include <windows.h>

#include <algorithm>
#include <utility>

#include "storage/disk_file.h"

namespace vorbano {

namespace {

constexpr int diskQuotaExceeded = 1295;  // the compiler's headers do not know it

Error lastError(std::string_view subject) {
    return {failureOf(std::error_code(static_cast<int>(::GetLastError()), std::system_category())),
            std::string(subject)};
}

/// The place in a file from which one call reads or to which it writes.
OVERLAPPED placeAt(std::uint64_t offset) {
    OVERLAPPED place{};
    place.Offset = static_cast<DWORD>(offset);
    place.OffsetHigh = static_cast<DWORD>(offset >> 32U);
    return place;
}

/// What one call can move at most.
DWORD piece(std::size_t bytes) {
    constexpr std::size_t most = std::size_t{1} << 30U;
    return static_cast<DWORD>(std::min(bytes, most));
}

class WindowsFile : public DiskFile {
  public:
    WindowsFile(HANDLE handle, std::string subject) : handle_(handle), subject_(std::move(subject)) {}
    WindowsFile(const WindowsFile&) = delete;
    WindowsFile& operator=(const WindowsFile&) = delete;
    ~WindowsFile() override { ::CloseHandle(handle_); }

    Result<std::uint64_t> size() override {
        LARGE_INTEGER length{};
        if (::GetFileSizeEx(handle_, &length) == 0) return lastError(subject_);
        return static_cast<std::uint64_t>(length.QuadPart);
    }

    Result<> flush() override {
        if (::FlushFileBuffers(handle_) == 0) return lastError(subject_);
        return {};
    }

  protected:
    Result<std::size_t> readSome(std::uint64_t offset, std::span<std::byte> into) override {
        OVERLAPPED place = placeAt(offset);
        DWORD got = 0;
        if (::ReadFile(handle_, into.data(), piece(into.size()), &got, &place) == 0 &&
            ::GetLastError() != ERROR_HANDLE_EOF) {
            return lastError(subject_);
        }
        return std::size_t{got};
    }

    Result<std::size_t> writeSome(std::uint64_t offset, std::span<const std::byte> bytes) override {
        OVERLAPPED place = placeAt(offset);
        DWORD count = 0;
        if (::WriteFile(handle_, bytes.data(), piece(bytes.size()), &count, &place) == 0) return lastError(subject_);
        return std::size_t{count};
    }

    Result<> cutAt(std::uint64_t length) override {
        FILE_END_OF_FILE_INFO end{};
        end.EndOfFile.QuadPart = static_cast<LONGLONG>(length);
        if (::SetFileInformationByHandle(handle_, FileEndOfFileInfo, &end, sizeof end) == 0) return lastError(subject_);
        return {};
    }

  private:
    HANDLE handle_;
    std::string subject_;
};

}  // namespace

Failure failureOf(std::error_code error) {
    if (error.category() != std::system_category()) {
        // The standard library tells a few of its failures by the names of the C library.
        if (error == std::errc::no_such_file_or_directory) return Failure::notFound;
        if (error == std::errc::filename_too_long) return Failure::badName;
        if (error == std::errc::no_space_on_device) return Failure::diskFull;
        return error == std::errc::io_error ? Failure::device : Failure::refused;
    }
    switch (error.value()) {
        case ERROR_FILE_NOT_FOUND:
        case ERROR_PATH_NOT_FOUND:
            return Failure::notFound;
        case ERROR_ACCESS_DENIED:
        case ERROR_SHARING_VIOLATION:
        case ERROR_LOCK_VIOLATION:
        case ERROR_WRITE_PROTECT:
        case ERROR_ALREADY_EXISTS:
        case ERROR_FILE_EXISTS:
        case ERROR_DIR_NOT_EMPTY:
        case ERROR_USER_MAPPED_FILE:
        case ERROR_DIRECTORY:
            return Failure::refused;
        case ERROR_INVALID_NAME:
        case ERROR_BAD_PATHNAME:
        case ERROR_FILENAME_EXCED_RANGE:
            return Failure::badName;
        case ERROR_DISK_FULL:
        case ERROR_HANDLE_DISK_FULL:
        case diskQuotaExceeded:
            return Failure::diskFull;
        default:
            return Failure::device;
    }
}

Result<std::unique_ptr<File>> openDiskFile(const std::filesystem::path& path, OpenMode mode, std::string_view subject) {
    // Without FILE_SHARE_DELETE: a name that is taken away while the file is open would stay until it is closed, and
    // nothing else could have it.
    constexpr DWORD shared = FILE_SHARE_READ | FILE_SHARE_WRITE;
    const DWORD access = mode == OpenMode::readOnly ? GENERIC_READ : GENERIC_READ | GENERIC_WRITE;
    const DWORD there = mode == OpenMode::create ? OPEN_ALWAYS : OPEN_EXISTING;
    const HANDLE handle = ::CreateFileW(path.c_str(), access, shared, nullptr, there, FILE_ATTRIBUTE_NORMAL, nullptr);
    if (handle == INVALID_HANDLE_VALUE) return lastError(subject);
    auto file = std::make_unique<WindowsFile>(handle, std::string(subject));
    // "NUL" and "PRN" are no files, whatever folder they are asked of.
    if (::GetFileType(handle) != FILE_TYPE_DISK) return Error{Failure::refused, std::string(subject)};
    return std::unique_ptr<File>(std::move(file));
}

Result<> replaceDiskFile(const std::filesystem::path& from, const std::filesystem::path& to, std::string_view subject) {
    constexpr DWORD inOneStep = MOVEFILE_REPLACE_EXISTING | MOVEFILE_WRITE_THROUGH;
    if (::MoveFileExW(from.c_str(), to.c_str(), inOneStep) == 0) return lastError(subject);
    return {};
}

/// The system writes the names of its folders in order and into a journal; a folder has nothing to flush.
Result<> flushFolder(const std::filesystem::path& /*folder*/, std::string_view /*subject*/) { return {}; }

}  // namespace vorbano
