#pragma once

// The staff of an election in an SQLite file: what the record files are measured against.

#include <sqlite3.h>

#include <filesystem>
#include <memory>

#include "records/overtime_records.h"

namespace vorbano::bench {

class EmployeeDatabase {
  public:
    /// Makes a new file of `count` employees, numbered from 1. Every commit waits for the disk (synchronous=FULL).
    EmployeeDatabase(const std::filesystem::path& path, int count, const EmployeeRecord& employee);

    /// Everything went well up to here.
    [[nodiscard]] bool ok() const { return ok_; }
    /// Stores the first employee and adds `hours` to the running total of all, in one transaction.
    bool saveFirst(const EmployeeRecord& employee, int hours);
    /// Running total of the last employee, -1 when it cannot be read.
    [[nodiscard]] int lastRunningTotal();

  private:
    struct Close {
        void operator()(sqlite3* database) const { sqlite3_close(database); }
    };
    struct Finish {
        void operator()(sqlite3_stmt* statement) const { sqlite3_finalize(statement); }
    };
    using Statement = std::unique_ptr<sqlite3_stmt, Finish>;

    bool run(const char* sql);
    [[nodiscard]] Statement prepare(const char* sql);
    bool fill(int count, const EmployeeRecord& employee);

    std::unique_ptr<sqlite3, Close> database_;
    bool ok_ = false;
};

}  // namespace vorbano::bench
