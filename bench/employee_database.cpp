#include "employee_database.h"

#include <cstddef>

namespace vorbano::bench {

EmployeeDatabase::EmployeeDatabase(const std::filesystem::path& path, int count, const EmployeeRecord& employee) {
    sqlite3* database = nullptr;
    const int opened = sqlite3_open(path.string().c_str(), &database);
    database_.reset(database);
    ok_ = opened == SQLITE_OK && run("PRAGMA synchronous=FULL") &&
          run("CREATE TABLE employees (number INTEGER PRIMARY KEY, MoUtil INTEGER, rest BLOB)") && run("BEGIN") &&
          fill(count, employee) && run("COMMIT");
}

bool EmployeeDatabase::run(const char* sql) {
    return sqlite3_exec(database_.get(), sql, nullptr, nullptr, nullptr) == SQLITE_OK;
}

EmployeeDatabase::Statement EmployeeDatabase::prepare(const char* sql) {
    sqlite3_stmt* statement = nullptr;
    sqlite3_prepare_v2(database_.get(), sql, -1, &statement, nullptr);
    return Statement(statement);
}

/// All of a record but the running total stands in one blob, so that a row is as long as a record.
bool EmployeeDatabase::fill(int count, const EmployeeRecord& employee) {
    const Statement insert = prepare("INSERT INTO employees VALUES (?, ?, ?)");
    if (!insert) return false;
    for (int number = 1; number <= count; ++number) {
        sqlite3_bind_int(insert.get(), 1, number);
        sqlite3_bind_int(insert.get(), 2, employee.pools.MoUtil);
        sqlite3_bind_blob(insert.get(), 3, &employee, sizeof(employee) - sizeof(Integer), SQLITE_STATIC);
        if (sqlite3_step(insert.get()) != SQLITE_DONE || sqlite3_reset(insert.get()) != SQLITE_OK) return false;
    }
    return true;
}

bool EmployeeDatabase::saveFirst(const EmployeeRecord& employee, int hours) {
    const Statement own = prepare("UPDATE employees SET rest = ? WHERE number = 1");
    const Statement totals = prepare("UPDATE employees SET MoUtil = MoUtil + ?");
    if (!own || !totals || !run("BEGIN")) return false;
    sqlite3_bind_blob(own.get(), 1, &employee, sizeof(employee) - sizeof(Integer), SQLITE_STATIC);
    sqlite3_bind_int(totals.get(), 1, hours);
    return sqlite3_step(own.get()) == SQLITE_DONE && sqlite3_step(totals.get()) == SQLITE_DONE && run("COMMIT");
}

int EmployeeDatabase::lastRunningTotal() {
    const Statement query = prepare("SELECT MoUtil FROM employees ORDER BY number DESC LIMIT 1");
    if (!query || sqlite3_step(query.get()) != SQLITE_ROW) return -1;
    return sqlite3_column_int(query.get(), 0);
}

}  // namespace vorbano::bench
