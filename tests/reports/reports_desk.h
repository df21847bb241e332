#pragma once

// A desk for the tests of the documents: a disk and a staging database in memory, a print engine that keeps what was in
// the tables when it ran.

#include <gtest/gtest.h>

#include <map>
#include <string>
#include <utility>
#include <vector>

#include "platform/memory_database.h"
#include "platform/scripted_desktop.h"
#include "platform/staging_tables.h"
#include "screens/workplace.h"
#include "storage/memory_file_system.h"
#include "support/places.h"

namespace vorbano::test {

/// All rows of all staging tables at one moment.
class Snapshot {
  public:
    Snapshot() = default;
    explicit Snapshot(Database& database) {
        for (const TableInfo& table : stagingTables()) {
            auto& rows = rows_[std::string(table.name)];
            const int count = database.count(table.name).valueOr(0);
            for (int number = 1; number <= count; ++number)
                rows.push_back(database.read(table.name, number).valueOr({}));
        }
    }
    [[nodiscard]] int rows(const std::string& table) const { return static_cast<int>(rowsOf(table).size()); }
    /// As the clerk reads it; row from 1. A row or field that is not there says so.
    [[nodiscard]] std::string cell(const std::string& table, int row, std::string_view field) const {
        const Value* value = find(table, row, field);
        return value == nullptr ? "(not there)" : shownValue(*value);
    }
    /// An amount in units of 1/10,000; -1 when it is no amount.
    [[nodiscard]] std::int64_t units(const std::string& table, int row, std::string_view field) const {
        const Value* value = find(table, row, field);
        const auto* amount = value == nullptr ? nullptr : std::get_if<Amount>(value);
        return amount == nullptr ? -1 : amount->units;
    }

  private:
    [[nodiscard]] const std::vector<Row>& rowsOf(const std::string& table) const {
        static const std::vector<Row> none;
        const auto at = rows_.find(table);
        return at == rows_.end() ? none : at->second;
    }
    [[nodiscard]] const Value* find(const std::string& table, int row, std::string_view field) const {
        const auto& rows = rowsOf(table);
        if (row < 1 || row > static_cast<int>(rows.size())) return nullptr;
        return rows[static_cast<std::size_t>(row) - 1].find(field);
    }
    std::map<std::string, std::vector<Row>> rows_;
};

class NoOtherScreens : public Screens {
  public:
    [[nodiscard]] bool has(std::string_view) const override { return false; }
    void open(std::string_view) override {}
};

class ReportsDesk : public testing::Test {
  protected:
    ReportsDesk() {
        printing.whileTablesAreFull = [this](const PrintJob&) { seen = Snapshot(staging); };
    }
    /// Every box that was laid down came, and no other.
    void TearDown() override { EXPECT_EQ(desktop.finish(), std::vector<std::string>{}); }

    /// The tables now.
    [[nodiscard]] Snapshot tables() { return Snapshot(staging); }
    void expectEmptyTables() {
        const Snapshot now = tables();
        for (const TableInfo& table : stagingTables()) EXPECT_EQ(now.rows(std::string(table.name)), 0) << table.name;
    }

    MemoryFileSystem files;
    ScriptedDesktop desktop;
    MemoryDatabase staging{stagingTables()};
    MemoryDatabase places{placeTables()};
    RecordingPrintEngine printing;
    NoOtherScreens screens;
    Workplace desk{files, desktop, staging, printing, screens, places};
    /// What stood in the tables when the last layout ran.
    Snapshot seen;
};

}  // namespace vorbano::test
