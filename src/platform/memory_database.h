#pragma once

#include <map>
#include <vector>

#include "platform/database.h"

namespace vorbano {

/// A database in memory with given tables, for fast tests.
class MemoryDatabase : public Database {
  public:
    explicit MemoryDatabase(std::vector<TableInfo> tables);

    Result<> check() override { return {}; }
    Result<int> count(std::string_view table) override;
    Result<> append(std::string_view table, const Row& row) override;
    Result<Row> read(std::string_view table, int number) override;
    Result<std::vector<Row>> seek(std::string_view table, std::string_view field, std::string_view text,
                                  int rows) override;
    Result<> removeFirst(std::string_view table, int rows) override;
    Result<> removeAll(std::string_view table) override;
    Result<> begin() override { return {}; }
    Result<> commit() override { return {}; }

  private:
    struct Table {
        TableInfo info;
        std::vector<Row> rows;
    };
    Table* find(std::string_view name);
    std::vector<Table> tables_;
};

}  // namespace vorbano
