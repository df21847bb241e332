#pragma once

// What an operation that can fail gives back. A result cannot be dropped silently: the compiler refuses, and where
// the office's procedures go on "with errors ignored" the word `ignore()` says so and can be counted.

#include <cstdint>
#include <optional>
#include <string>
#include <utility>

namespace vorbano {

/// The closed set of reasons for which an operation can fail.
enum class Failure : std::uint8_t {
    notFound,       ///< the file, table or layout is not there
    missingFolder,  ///< the folder that should hold it is not there
    refused,        ///< it is there, and the system does not let it be used so (read-only, locked, a folder)
    device,         ///< the disk or the database failed half way
    badName,        ///< a name that would leave the root, or that names nothing
    damaged,        ///< it is there, and its content is not what it should be
    full,           ///< no further record number is left (32,767 records)
    diskFull,       ///< no room is left for it: a full disk, or all that this user may fill of it
};

/// Why, and which file, table or layout.
struct Error {
    Failure kind;
    std::string subject;
};

/// Success without a value, or an Error.
template <class T = void>
class [[nodiscard]] Result;

template <>
class [[nodiscard]] Result<void> {
  public:
    Result() = default;
    Result(Error error) : error_(std::move(error)) {}

    [[nodiscard]] bool ok() const { return !error_; }
    explicit operator bool() const { return ok(); }
    /// Only when not ok().
    [[nodiscard]] const Error& error() const { return *error_; }
    /// The office's procedures go on here whatever happened.
    void ignore() const {}

  private:
    std::optional<Error> error_;
};

template <class T>
class [[nodiscard]] Result {
  public:
    Result(T value) : value_(std::move(value)) {}
    Result(Error error) : error_(std::move(error)) {}

    [[nodiscard]] bool ok() const { return value_.has_value(); }
    explicit operator bool() const { return ok(); }
    /// Only when ok().
    [[nodiscard]] T& value() { return *value_; }
    [[nodiscard]] const T& value() const { return *value_; }
    [[nodiscard]] T valueOr(T otherwise) const { return value_ ? *value_ : std::move(otherwise); }
    T& operator*() { return *value_; }
    const T& operator*() const { return *value_; }
    T* operator->() { return &*value_; }
    const T* operator->() const { return &*value_; }
    /// Only when not ok().
    [[nodiscard]] const Error& error() const { return *error_; }
    void ignore() const {}

  private:
    std::optional<T> value_;
    std::optional<Error> error_;
};

}  // namespace vorbano
