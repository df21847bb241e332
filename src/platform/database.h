#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <variant>
#include <vector>

#include "base/result.h"

namespace vorbano {

/// An amount in a table, in units of 1/10,000: kept whole so that sums are exact.
struct Amount {
    std::int64_t units = 0;
    friend bool operator==(Amount, Amount) = default;
};

/// What a field of a table can hold; monostate is "nothing was set".
using Value = std::variant<std::monostate, std::int64_t, double, Amount, std::string>;

/// A row as it is appended or read: fields by name, names without regard to case.
class Row {
  public:
    Row& set(std::string_view field, Value value);
    Row& setText(std::string_view field, std::string value) { return set(field, Value(std::move(value))); }
    Row& setWhole(std::string_view field, int value) { return set(field, Value(std::int64_t{value})); }
    /// nullptr when the field was not set or is not there.
    [[nodiscard]] const Value* find(std::string_view field) const;
    [[nodiscard]] const std::vector<std::pair<std::string, Value>>& fields() const { return fields_; }

  private:
    std::vector<std::pair<std::string, Value>> fields_;
};

/// The value as the clerk reads it: whole numbers plain, amounts and fractions in Italian form with two decimals, texts
/// trimmed, nothing for nothing.
[[nodiscard]] std::string shownValue(const Value& value);

/// Names of tables and fields are compared without regard to case.
[[nodiscard]] bool sameTableName(std::string_view a, std::string_view b);

/// One database file: the staging tables of the documents, or the reference list of places. Tables are opened by name;
/// a table or field that is not there fails with `notFound`, a file that is not there too, a file that is no database
/// of ours (one of an older installation, in another format) with `damaged`.
class Database {
  public:
    virtual ~Database() = default;
    /// Whether the file is there and can be used; the message of the failure names it.
    virtual Result<> check() = 0;
    virtual Result<int> count(std::string_view table) = 0;
    /// Appends one row; fields not set stay empty.
    virtual Result<> append(std::string_view table, const Row& row) = 0;
    /// Row `number` from 1 in order of appending.
    virtual Result<Row> read(std::string_view table, int number) = 0;
    /// Up to `rows` rows whose text in `field` is `text` or comes after it, in the order of that field (bytes, and for
    /// equal texts the order of appending). With an index on the field it costs the same in a table of any size.
    virtual Result<std::vector<Row>> seek(std::string_view table, std::string_view field, std::string_view text,
                                          int rows) = 0;
    /// Deletes row after row from the first one, up to `rows`; stops at the end of the table.
    virtual Result<> removeFirst(std::string_view table, int rows) = 0;
    virtual Result<> removeAll(std::string_view table) = 0;
    /// Many appends in one go; between `begin` and `commit` nothing is slow.
    virtual Result<> begin() = 0;
    virtual Result<> commit() = 0;
};

/// A field of a staging table and what it holds.
enum class ColumnType : std::uint8_t { text, whole, number, amount };
struct Column {
    std::string_view name;
    ColumnType type;
};
struct TableInfo {
    std::string_view name;
    std::vector<Column> columns;
};

}  // namespace vorbano
