#pragma once

// What the documents stand on when it fails.

#include <string>

#include "platform/memory_database.h"
#include "platform/scripted_desktop.h"
#include "platform/staging_tables.h"

namespace vorbano::test {

/// A print engine whose layout is not there.
class NoLayout : public RecordingPrintEngine {
  public:
    Result<> run(const PrintJob& job) override { return Error{Failure::notFound, job.layout}; }
};

/// A database that fails at its n-th appending.
class FailingDatabase : public MemoryDatabase {
  public:
    FailingDatabase() : MemoryDatabase(stagingTables()) {}
    int failAt = 0;
    int appends = 0;
    int begun = 0;
    int committed = 0;

    Result<> append(std::string_view table, const Row& row) override {
        if (++appends == failAt) return Error{Failure::device, "dbStampa.mdb"};
        return MemoryDatabase::append(table, row);
    }
    Result<> begin() override {
        ++begun;
        return {};
    }
    Result<> commit() override {
        ++committed;
        return {};
    }
};

}  // namespace vorbano::test
