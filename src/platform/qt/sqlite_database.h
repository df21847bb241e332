#pragma once

#include <QSqlDatabase>
#include <QString>
#include <memory>
#include <string>

#include "platform/database.h"

class QSqlQuery;

namespace vorbano {

/// What stands under the name of a database, told by its first bytes and never by the name.
enum class DatabaseKind : std::uint8_t {
    missing,     ///< no such file
    unreadable,  ///< it is there and cannot be opened, or is a folder
    ours,        ///< one that this program can use
    older,       ///< the format of an older installation; a list of places in it is read by OlderPlaces
    foreign,     ///< anything else
};

/// How many of the columns that share a name are amounts; `unknown` when no column has the name.
enum class AmountColumns : std::uint8_t { unknown, none, some, all };

/// Looks at the first bytes of a file (path UTF-8, found without regard to case).
[[nodiscard]] DatabaseKind databaseKind(const std::string& path);

/// A database in one SQLite file. Nothing is opened before it is needed, and a file that is not there is never made.
/// Whole numbers stand in columns declared INTEGER, fractions in REAL, texts in TEXT and amounts in AMOUNT: units of
/// 1/10,000 as whole numbers, so that the sums of a query are exact. The order of appending is the order of the rows.
/// Failures name the file without its folder: `notFound`, `damaged` (not a database of ours), `refused` (read-only or
/// held by another program; a text in a column of numbers), `device`.
class SqliteDatabase : public Database {
  public:
    /// The file, an absolute path in UTF-8; names are compared without regard to case.
    explicit SqliteDatabase(const std::string& path);
    ~SqliteDatabase() override;
    SqliteDatabase(const SqliteDatabase&) = delete;
    SqliteDatabase& operator=(const SqliteDatabase&) = delete;

    Result<> check() override;
    Result<int> count(std::string_view table) override;
    Result<> append(std::string_view table, const Row& row) override;
    Result<Row> read(std::string_view table, int number) override;
    Result<std::vector<Row>> seek(std::string_view table, std::string_view field, std::string_view text,
                                  int rows) override;
    Result<> removeFirst(std::string_view table, int rows) override;
    Result<> removeAll(std::string_view table) override;
    Result<> begin() override;
    Result<> commit() override;

    /// The open database, for the queries of a layout.
    Result<QSqlDatabase> connection();
    /// Of the columns of that name, in whatever table; only while the database is open.
    [[nodiscard]] AmountColumns amountsNamed(std::string_view column) const;

  private:
    struct Table;
    struct Tables;
    Result<> open();
    void close();
    Result<> loadTables();
    Result<Table*> table(std::string_view name);
    Result<> endTransaction();
    [[nodiscard]] Result<> fail(const QSqlQuery& query) const;

    QString path_;
    QString connectionName_;
    std::string fileName_;
    std::unique_ptr<Tables> tables_;
    bool open_ = false;
    bool begun_ = false;
};

}  // namespace vorbano
