#include "platform/qt/older_places.h"

#include <QDir>
#include <QFileInfo>
#include <QSqlDatabase>
#include <QSqlError>
#include <QSqlField>
#include <QSqlQuery>
#include <QSqlRecord>
#include <QVariant>
#include <algorithm>
#include <atomic>
#include <utility>

#include "platform/qt/file_names.h"
#include "platform/qt/sqlite_database.h"

namespace vorbano {

namespace {

QString newConnectionName() {
    static std::atomic<int> number = 0;
    return QStringLiteral("vorbano-older-%1").arg(++number);
}

/// A value of a connection text: one that holds a sign of its grammar stands in braces.
QString attributeValue(QString value) {
    if (!value.contains(';') && !value.contains('{') && !value.contains('}')) return value;
    return '{' + value.replace('}', "}}") + '}';
}

Value fromVariant(const QVariant& value) {
    switch (value.typeId()) {
        case QMetaType::Bool:
        case QMetaType::Int:
        case QMetaType::UInt:
        case QMetaType::Short:
        case QMetaType::LongLong:
        case QMetaType::ULongLong:
            return std::int64_t{value.toLongLong()};
        case QMetaType::Float:
        case QMetaType::Double:
            return value.toDouble();
        default:
            return value.toString().toStdString();
    }
}

/// The row that the query stands on. A field without a value stays unset.
Row rowOf(const QSqlQuery& query, const std::vector<std::string>& columns) {
    Row row;
    for (std::size_t at = 0; at < columns.size(); ++at) {
        const QVariant value = query.value(static_cast<int>(at));
        if (!value.isNull()) row.set(columns[at], fromVariant(value));
    }
    return row;
}

/// The name as the file itself has it; nothing when it has no such table.
QString nameInFile(const QSqlDatabase& database, std::string_view table) {
    for (const QString& name : database.tables()) {
        if (sameTableName(name.toStdString(), table) && !name.contains(']')) return name;
    }
    return {};
}

}  // namespace

struct OlderPlaces::Table {
    /// A text of the field by which rows were sought last, and its row.
    struct Entry {
        std::string text;
        std::size_t row;
    };

    std::string name;
    std::vector<std::string> columns;
    std::vector<Row> rows;
    std::string orderedBy;
    std::vector<Entry> entries;

    [[nodiscard]] const std::string* column(std::string_view field) const {
        const auto same = [&](const std::string& one) { return sameTableName(one, field); };
        const auto at = std::find_if(columns.begin(), columns.end(), same);
        return at == columns.end() ? nullptr : &*at;
    }

    void orderBy(const std::string& field) {
        if (orderedBy == field) return;
        orderedBy = field;
        entries.clear();
        for (std::size_t at = 0; at < rows.size(); ++at) {
            const Value* value = rows[at].find(field);
            const auto* text = value == nullptr ? nullptr : std::get_if<std::string>(value);
            if (text != nullptr) entries.push_back({*text, at});
        }
        std::stable_sort(entries.begin(), entries.end(),
                         [](const Entry& one, const Entry& other) { return one.text < other.text; });
    }
};

OlderDoors odbcDoors(const QString& path) {
    OlderDoors doors{QStringLiteral("QODBC"), {}};
    for (const char* driver : {"Microsoft Access Driver (*.mdb, *.accdb)", "Microsoft Access Driver (*.mdb)"}) {
        doors.texts.push_back(QStringLiteral("DRIVER={%1};DBQ=").arg(QLatin1String(driver)) +
                              attributeValue(QDir::toNativeSeparators(path)) + QStringLiteral(";ReadOnly=1"));
    }
    return doors;
}

OlderPlaces::OlderPlaces(const std::string& path)
    : OlderPlaces(path, odbcDoors(asOnDisk(QString::fromStdString(path)))) {}

OlderPlaces::OlderPlaces(const std::string& path, OlderDoors doors)
    : path_(asOnDisk(QString::fromStdString(path))),
      fileName_(QFileInfo(QString::fromStdString(path)).fileName().toStdString()),
      doors_(std::move(doors)) {}

OlderPlaces::~OlderPlaces() = default;

template <class Use>
Result<> OlderPlaces::opened(const Use& use) const {
    const DatabaseKind kind = databaseKind(path_.toStdString());
    if (kind == DatabaseKind::missing) return failure(Failure::notFound);
    if (kind == DatabaseKind::unreadable) return failure(Failure::refused);
    if (!QSqlDatabase::isDriverAvailable(doors_.driver)) return failure(Failure::damaged);
    Result<> used = failure(Failure::damaged);
    const QString connection = newConnectionName();
    {
        QSqlDatabase database = QSqlDatabase::addDatabase(doors_.driver, connection);
        const bool open = std::any_of(doors_.texts.begin(), doors_.texts.end(), [&](const QString& text) {
            database.setDatabaseName(text);
            return database.open();
        });
        if (open) used = use(database);
        database.close();
    }
    QSqlDatabase::removeDatabase(connection);
    return used;
}

Result<> OlderPlaces::load(std::string_view name, Table& table) const {
    return opened([&](const QSqlDatabase& database) -> Result<> {
        const QString inFile = nameInFile(database, name);
        if (inFile.isEmpty()) return Error{Failure::notFound, std::string(name)};
        QSqlQuery query(database);
        query.setForwardOnly(true);
        if (!query.exec("SELECT * FROM [" + inFile + "]")) return failure(Failure::device);
        const QSqlRecord columns = query.record();
        for (int at = 0; at < columns.count(); ++at) table.columns.push_back(columns.fieldName(at).toStdString());
        while (query.next()) table.rows.push_back(rowOf(query, table.columns));
        // Half a list would pass for a whole one.
        return query.lastError().isValid() ? failure(Failure::device) : Result<>();
    });
}

Result<OlderPlaces::Table*> OlderPlaces::table(std::string_view name) {
    for (const auto& one : tables_) {
        if (sameTableName(one->name, name)) return one.get();
    }
    auto table = std::make_unique<Table>();
    table->name = name;
    if (const Result<> loaded = load(name, *table); !loaded) return loaded.error();
    tables_.push_back(std::move(table));
    return tables_.back().get();
}

Result<> OlderPlaces::check() {
    if (!tables_.empty()) return {};
    return opened([](const QSqlDatabase&) { return Result<>(); });
}

Result<int> OlderPlaces::count(std::string_view name) {
    const auto found = table(name);
    if (!found) return found.error();
    return static_cast<int>((*found)->rows.size());
}

Result<Row> OlderPlaces::read(std::string_view name, int number) {
    const auto found = table(name);
    if (!found) return found.error();
    const std::vector<Row>& rows = (*found)->rows;
    if (number < 1 || static_cast<std::size_t>(number) > rows.size())
        return Error{Failure::notFound, std::string(name)};
    return rows[static_cast<std::size_t>(number) - 1];
}

Result<std::vector<Row>> OlderPlaces::seek(std::string_view name, std::string_view field, std::string_view text,
                                           int rows) {
    const auto found = table(name);
    if (!found) return found.error();
    Table& in = **found;
    const std::string* column = in.column(field);
    if (column == nullptr) return Error{Failure::notFound, std::string(name) + "." + std::string(field)};
    in.orderBy(*column);
    auto at = std::lower_bound(in.entries.begin(), in.entries.end(), text,
                               [](const Table::Entry& entry, std::string_view sought) { return entry.text < sought; });
    std::vector<Row> sought;
    for (; at != in.entries.end() && static_cast<int>(sought.size()) < rows; ++at) sought.push_back(in.rows[at->row]);
    return sought;
}

Result<> OlderPlaces::append(std::string_view, const Row&) { return failure(Failure::refused); }
Result<> OlderPlaces::removeFirst(std::string_view, int) { return failure(Failure::refused); }
Result<> OlderPlaces::removeAll(std::string_view) { return failure(Failure::refused); }
Result<> OlderPlaces::begin() { return failure(Failure::refused); }
Result<> OlderPlaces::commit() { return failure(Failure::refused); }

}  // namespace vorbano
