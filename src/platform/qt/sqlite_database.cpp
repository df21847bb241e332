#include "platform/qt/sqlite_database.h"

#include <QFile>
#include <QFileInfo>
#include <QSqlError>
#include <QSqlQuery>
#include <QUrl>
#include <QVariant>
#include <algorithm>
#include <atomic>

#include "platform/column_value.h"
#include "platform/qt/file_names.h"

namespace vorbano {

namespace {

const QByteArray ourMark("SQLite format 3\0", 16);
/// The two marks of the format of older installations, the elder and the younger.
const QByteArray olderMarks[] = {QByteArray("\0\1\0\0Standard Jet DB\0", 20),
                                 QByteArray("\0\1\0\0Standard ACE DB\0", 20)};

QString newConnectionName() {
    static std::atomic<int> number = 0;
    return QStringLiteral("vorbano-%1").arg(++number);
}

ColumnType declaredType(const QString& declaration) {
    if (declaration.compare("AMOUNT", Qt::CaseInsensitive) == 0) return ColumnType::amount;
    if (declaration.compare("INTEGER", Qt::CaseInsensitive) == 0) return ColumnType::whole;
    if (declaration.compare("REAL", Qt::CaseInsensitive) == 0) return ColumnType::number;
    return ColumnType::text;
}

/// An identifier, taken from the file's own schema, as a statement writes it.
QString quoted(const QString& identifier) { return '"' + QString(identifier).replace('"', "\"\"") + '"'; }

struct ToVariant {
    QVariant operator()(std::monostate) const { return {}; }
    QVariant operator()(std::int64_t number) const { return QVariant::fromValue<qlonglong>(number); }
    QVariant operator()(double number) const { return number; }
    QVariant operator()(Amount amount) const { return QVariant::fromValue<qlonglong>(amount.units); }
    QVariant operator()(const std::string& text) const { return QString::fromStdString(text); }
};

Value fromVariant(const QVariant& value, ColumnType type) {
    switch (type) {
        case ColumnType::text:
            return value.toString().toStdString();
        case ColumnType::whole:
            return std::int64_t{value.toLongLong()};
        case ColumnType::number:
            return value.toDouble();
        case ColumnType::amount:
            return Amount{value.toLongLong()};
    }
    return {};
}

/// What the database's own number of an error means to the program.
Failure meaning(const QSqlError& error) {
    enum : std::uint8_t {
        permission = 3,
        busy = 5,
        locked = 6,
        readOnly = 8,
        corrupt = 11,
        full = 13,
        cannotOpen = 14,
        notDatabase = 26
    };
    switch (error.nativeErrorCode().toInt() & 0xff) {
        case permission:
        case busy:
        case locked:
        case readOnly:
        case cannotOpen:
            return Failure::refused;
        case corrupt:
        case notDatabase:
            return Failure::damaged;
        case full:
            return Failure::diskFull;
        default:
            return Failure::device;
    }
}

}  // namespace

DatabaseKind databaseKind(const std::string& path) {
    const QFileInfo info(asOnDisk(QString::fromStdString(path)));
    if (!info.exists()) return DatabaseKind::missing;
    QFile file(info.filePath());
    if (info.isDir() || !file.open(QIODevice::ReadOnly)) return DatabaseKind::unreadable;
    const QByteArray start = file.read(32);
    if (start.startsWith(ourMark)) return DatabaseKind::ours;
    for (const QByteArray& mark : olderMarks) {
        if (start.startsWith(mark)) return DatabaseKind::older;
    }
    return DatabaseKind::foreign;
}

struct SqliteDatabase::Table {
    QString name;
    std::vector<QString> columns;
    std::vector<std::string> columnNames;
    std::vector<ColumnType> types;
    /// Prepared at the first append, and the names of its values: given by number, the toolkit makes each name anew.
    std::optional<QSqlQuery> insertion;
    std::vector<QString> valueNames;
    /// Column of each field of the row appended last. Rows of a document are alike, and the next one mostly has its
    /// fields in the same order.
    std::vector<std::size_t> lastColumns;

    /// The row that the query stands on; its columns are the table's.
    [[nodiscard]] Row rowOf(const QSqlQuery& query) const {
        Row row;
        for (std::size_t at = 0; at < columns.size(); ++at) {
            const QVariant value = query.value(static_cast<int>(at));
            if (!value.isNull()) row.set(columnNames[at], fromVariant(value, types[at]));
        }
        return row;
    }

    /// Column of the field that stands at `place` in a row, -1 when there is none.
    [[nodiscard]] int columnOf(std::size_t place, std::string_view field) {
        if (place < lastColumns.size() && sameTableName(columnNames[lastColumns[place]], field)) {
            return static_cast<int>(lastColumns[place]);
        }
        const int at = find(field);
        lastColumns.resize(std::min(lastColumns.size(), place));
        if (at >= 0 && lastColumns.size() == place) lastColumns.push_back(static_cast<std::size_t>(at));
        return at;
    }

    void prepareInsertion(const QSqlDatabase& database) {
        QStringList names;
        for (std::size_t at = 0; at < columns.size(); ++at) {
            names << QStringLiteral(":c%1").arg(at);
            valueNames.push_back(names.back());
        }
        insertion.emplace(database);
        insertion->prepare("INSERT INTO " + quoted(name) + " VALUES (" + names.join(',') + ")");
    }

    [[nodiscard]] int find(std::string_view column) const {
        for (std::size_t at = 0; at < columnNames.size(); ++at) {
            if (sameTableName(columnNames[at], column)) return static_cast<int>(at);
        }
        return -1;
    }
};

struct SqliteDatabase::Tables {
    std::vector<std::unique_ptr<Table>> all;
};

SqliteDatabase::SqliteDatabase(const std::string& path)
    : path_(QString::fromStdString(path)),
      connectionName_(newConnectionName()),
      fileName_(QFileInfo(path_).fileName().toStdString()),
      tables_(std::make_unique<Tables>()) {}

SqliteDatabase::~SqliteDatabase() { close(); }

void SqliteDatabase::close() {
    if (!open_) return;
    tables_->all.clear();
    endTransaction().ignore();
    QSqlDatabase::database(connectionName_, false).close();
    QSqlDatabase::removeDatabase(connectionName_);
    open_ = begun_ = false;
}

Result<> SqliteDatabase::check() {
    switch (databaseKind(path_.toStdString())) {
        case DatabaseKind::ours:
            return open();
        case DatabaseKind::missing:
            close();
            return Error{Failure::notFound, fileName_};
        case DatabaseKind::unreadable:
            return Error{Failure::refused, fileName_};
        case DatabaseKind::older:
        case DatabaseKind::foreign:
            close();
            return Error{Failure::damaged, fileName_};
    }
    return {};
}

Result<> SqliteDatabase::open() {
    if (open_) return {};
    {
        QSqlDatabase database = QSqlDatabase::addDatabase("QSQLITE", connectionName_);
        open_ = true;
        // Opened by an address with "rw", the file is not made even if it went away a moment ago.
        database.setConnectOptions("QSQLITE_OPEN_URI;QSQLITE_BUSY_TIMEOUT=2000");
        const QUrl address = QUrl::fromLocalFile(asOnDisk(path_));
        database.setDatabaseName(QString::fromLatin1(address.toEncoded()) + "?mode=rw");
        if (!database.open()) {
            const Error error{meaning(database.lastError()), fileName_};
            database = QSqlDatabase();
            close();
            return error;
        }
        // Scratch space: it is emptied at every start, so no row of it is worth waiting for the disk.
        QSqlQuery(database).exec("PRAGMA journal_mode = MEMORY");
        QSqlQuery(database).exec("PRAGMA synchronous = OFF");
    }
    if (Result<> loaded = loadTables(); !loaded) {
        close();
        return loaded;
    }
    return {};
}

Result<> SqliteDatabase::loadTables() {
    QSqlQuery query(QSqlDatabase::database(connectionName_, false));
    query.setForwardOnly(true);
    if (!query.exec("SELECT t.name, c.name, c.type FROM sqlite_master t, pragma_table_info(t.name) c "
                    "WHERE t.type = 'table' AND t.name NOT LIKE 'sqlite\\_%' ESCAPE '\\' ORDER BY t.rowid, c.cid")) {
        return fail(query);
    }
    while (query.next()) {
        const QString name = query.value(0).toString();
        if (tables_->all.empty() || tables_->all.back()->name != name) {
            tables_->all.push_back(std::make_unique<Table>());
            tables_->all.back()->name = name;
        }
        Table& table = *tables_->all.back();
        table.columns.push_back(query.value(1).toString());
        table.columnNames.push_back(table.columns.back().toStdString());
        table.types.push_back(declaredType(query.value(2).toString()));
    }
    return {};
}

Result<> SqliteDatabase::fail(const QSqlQuery& query) const { return Error{meaning(query.lastError()), fileName_}; }

Result<QSqlDatabase> SqliteDatabase::connection() {
    if (!open_) {
        if (Result<> usable = check(); !usable) return usable.error();
    }
    return QSqlDatabase::database(connectionName_, false);
}

AmountColumns SqliteDatabase::amountsNamed(std::string_view column) const {
    int amounts = 0;
    int others = 0;
    for (const auto& table : tables_->all) {
        const int at = table->find(column);
        if (at >= 0) ++(table->types[static_cast<std::size_t>(at)] == ColumnType::amount ? amounts : others);
    }
    if (amounts == 0) return others == 0 ? AmountColumns::unknown : AmountColumns::none;
    return others == 0 ? AmountColumns::all : AmountColumns::some;
}

Result<SqliteDatabase::Table*> SqliteDatabase::table(std::string_view name) {
    if (const auto usable = connection(); !usable) return usable.error();
    for (const auto& one : tables_->all) {
        if (sameTableName(one->name.toStdString(), name)) return one.get();
    }
    return Error{Failure::notFound, std::string(name)};
}

Result<int> SqliteDatabase::count(std::string_view name) {
    const auto found = table(name);
    if (!found) return found.error();
    QSqlQuery query(QSqlDatabase::database(connectionName_, false));
    if (!query.exec("SELECT COUNT(*) FROM " + quoted((*found)->name)) || !query.next()) return fail(query).error();
    return query.value(0).toInt();
}

Result<> SqliteDatabase::append(std::string_view name, const Row& row) {
    const auto found = table(name);
    if (!found) return found.error();
    Table& into = **found;
    std::vector<QVariant> values(into.columns.size());
    for (std::size_t place = 0; place < row.fields().size(); ++place) {
        const auto& [field, value] = row.fields()[place];
        const int at = into.columnOf(place, field);
        if (at < 0) return Error{Failure::notFound, std::string(name) + "." + field};
        const auto kept = asColumnKeeps(value, into.types[static_cast<std::size_t>(at)]);
        if (!kept) return Error{Failure::refused, std::string(name) + "." + field};
        values[static_cast<std::size_t>(at)] = std::visit(ToVariant{}, *kept);
    }
    if (!into.insertion) into.prepareInsertion(QSqlDatabase::database(connectionName_, false));
    for (std::size_t at = 0; at < values.size(); ++at) into.insertion->bindValue(into.valueNames[at], values[at]);
    return into.insertion->exec() ? Result<>() : fail(*into.insertion);
}

Result<Row> SqliteDatabase::read(std::string_view name, int number) {
    const auto found = table(name);
    if (!found) return found.error();
    const Table& from = **found;
    QSqlQuery query(QSqlDatabase::database(connectionName_, false));
    query.setForwardOnly(true);
    query.prepare("SELECT * FROM " + quoted(from.name) + " ORDER BY rowid LIMIT 1 OFFSET ?");
    query.bindValue(0, number - 1);
    if (!query.exec()) return fail(query).error();
    if (number < 1 || !query.next()) return Error{Failure::notFound, std::string(name)};
    return from.rowOf(query);
}

Result<std::vector<Row>> SqliteDatabase::seek(std::string_view name, std::string_view field, std::string_view text,
                                              int rows) {
    const auto found = table(name);
    if (!found) return found.error();
    const Table& from = **found;
    const int at = from.find(field);
    if (at < 0) return Error{Failure::notFound, std::string(name) + "." + std::string(field)};
    const QString column = quoted(from.columns[static_cast<std::size_t>(at)]);
    QSqlQuery query(QSqlDatabase::database(connectionName_, false));
    query.setForwardOnly(true);
    query.prepare("SELECT * FROM " + quoted(from.name) + " WHERE " + column + " >= ? ORDER BY " + column +
                  ", rowid LIMIT ?");
    query.bindValue(0, QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size())));
    query.bindValue(1, std::max(rows, 0));
    if (!query.exec()) return fail(query).error();
    std::vector<Row> sought;
    while (query.next()) sought.push_back(from.rowOf(query));
    return sought;
}

Result<> SqliteDatabase::removeFirst(std::string_view name, int rows) {
    const auto found = table(name);
    if (!found) return found.error();
    if (rows <= 0) return {};
    const QString from = quoted((*found)->name);
    QSqlQuery query(QSqlDatabase::database(connectionName_, false));
    query.prepare("DELETE FROM " + from + " WHERE rowid IN (SELECT rowid FROM " + from + " ORDER BY rowid LIMIT ?)");
    query.bindValue(0, rows);
    return query.exec() ? Result<>() : fail(query);
}

Result<> SqliteDatabase::removeAll(std::string_view name) {
    const auto found = table(name);
    if (!found) return found.error();
    QSqlQuery query(QSqlDatabase::database(connectionName_, false));
    return query.exec("DELETE FROM " + quoted((*found)->name)) ? Result<>() : fail(query);
}

// A document that failed between begin and commit leaves its rows behind, as it would without a transaction; so a
// second begin goes on in the one that is open.
Result<> SqliteDatabase::begin() {
    if (const auto usable = connection(); !usable) return usable.error();
    if (begun_) return {};
    QSqlQuery query(QSqlDatabase::database(connectionName_, false));
    if (!query.exec("BEGIN")) return fail(query);
    begun_ = true;
    return {};
}

Result<> SqliteDatabase::commit() {
    if (const auto usable = connection(); !usable) return usable.error();
    return endTransaction();
}

Result<> SqliteDatabase::endTransaction() {
    if (!begun_) return {};
    QSqlQuery query(QSqlDatabase::database(connectionName_, false));
    if (!query.exec("COMMIT")) return fail(query);
    begun_ = false;
    return {};
}

}  // namespace vorbano
