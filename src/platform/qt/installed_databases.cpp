#include "platform/qt/installed_databases.h"

#include <QFileInfo>
#include <QSqlDatabase>
#include <QSqlQuery>
#include <QStringList>
#include <QVariant>

#include "platform/staging_tables.h"

namespace vorbano {

namespace {

const QString connectionName = QStringLiteral("vorbano-installation");

const char* declaration(ColumnType type) {
    switch (type) {
        case ColumnType::text:
            return "TEXT";
        case ColumnType::whole:
            return "INTEGER";
        case ColumnType::number:
            return "REAL";
        case ColumnType::amount:
            return "AMOUNT";
    }
    return "";
}

/// Fills a new database in one transaction; `fill` answers whether every statement went well.
template <class Fill>
Result<> makeDatabase(const QString& path, const Fill& fill) {
    bool done = false;
    {
        QSqlDatabase database = QSqlDatabase::addDatabase("QSQLITE", connectionName);
        database.setDatabaseName(path);
        done = database.open() && database.transaction() && fill(database) && database.commit();
        database.close();
    }
    QSqlDatabase::removeDatabase(connectionName);
    return done ? Result<>() : Error{Failure::device, QFileInfo(path).completeBaseName().toStdString()};
}

QString creation(const TableInfo& table) {
    QStringList columns;
    for (const Column& column : table.columns) {
        const auto name = QString::fromUtf8(column.name.data(), static_cast<qsizetype>(column.name.size()));
        columns << QStringLiteral("\"%1\" %2").arg(name, QLatin1String(declaration(column.type)));
    }
    const auto name = QString::fromUtf8(table.name.data(), static_cast<qsizetype>(table.name.size()));
    return QStringLiteral("CREATE TABLE \"%1\" (%2)").arg(name, columns.join(", "));
}

/// A table of the reference database: its name and the beginning of the names of its columns.
bool fillPlaces(const QSqlDatabase& database, const QString& table, const QString& prefix, const QString& index,
                const std::vector<Place>& places) {
    QSqlQuery query(database);
    const QString columns = "%1_DESCR TEXT, %1_PROV TEXT, %1_COD TEXT, ATTIVO INTEGER";
    if (!query.exec("CREATE TABLE " + table + " (" + columns.arg(prefix) + ")")) return false;
    // By name: given by number, the toolkit makes the name of each value anew.
    const QString name = ":name";
    const QString province = ":province";
    const QString code = ":code";
    const QString inForce = ":inForce";
    if (!query.prepare("INSERT INTO " + table + " VALUES (:name, :province, :code, :inForce)")) return false;
    for (const Place& place : places) {
        query.bindValue(name, place.name);
        query.bindValue(province, place.province);
        query.bindValue(code, place.code);
        query.bindValue(inForce, place.inForce ? 1 : 0);
        if (!query.exec()) return false;
    }
    QSqlQuery indexing(database);
    return indexing.exec("CREATE INDEX " + index + " ON " + table + " (" + prefix + "_DESCR)") &&
           indexing.exec("CREATE INDEX " + table + "Codice ON " + table + " (" + prefix + "_COD)");
}

}  // namespace

Result<> makeTables(const QString& path, const std::vector<TableInfo>& tables) {
    return makeDatabase(path, [&tables](const QSqlDatabase& database) {
        for (const TableInfo& table : tables) {
            if (!QSqlQuery(database).exec(creation(table))) return false;
        }
        return true;
    });
}

Result<> makeStagingDatabase(const QString& path) { return makeTables(path, stagingTables()); }

Result<> makePlaces(const QString& path, const std::vector<Place>& municipalities, const std::vector<Place>& states) {
    return makeDatabase(path, [&](const QSqlDatabase& database) {
        return fillPlaces(database, "Comuni", "COMU", "COMUNI2L", municipalities) &&
               fillPlaces(database, "Stati", "STATI", "STATI2L", states);
    });
}

}  // namespace vorbano
