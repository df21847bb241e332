#include "platform/memory_database.h"

#include <algorithm>
#include <cstddef>
#include <iterator>

#include "platform/column_value.h"

namespace vorbano {

MemoryDatabase::MemoryDatabase(std::vector<TableInfo> tables) {
    for (TableInfo& info : tables) tables_.push_back({std::move(info), {}});
}

MemoryDatabase::Table* MemoryDatabase::find(std::string_view name) {
    const auto at = std::find_if(tables_.begin(), tables_.end(),
                                 [&](const Table& one) { return sameTableName(one.info.name, name); });
    return at == tables_.end() ? nullptr : &*at;
}

Result<int> MemoryDatabase::count(std::string_view table) {
    const Table* found = find(table);
    if (found == nullptr) return Error{Failure::notFound, std::string(table)};
    return static_cast<int>(found->rows.size());
}

Result<> MemoryDatabase::append(std::string_view table, const Row& row) {
    Table* found = find(table);
    if (found == nullptr) return Error{Failure::notFound, std::string(table)};
    Row kept;
    for (const auto& cell : row.fields()) {
        const std::string& field = cell.first;
        const Value& value = cell.second;
        const auto& columns = found->info.columns;
        const auto column = std::find_if(columns.begin(), columns.end(),
                                         [&](const Column& one) { return sameTableName(one.name, field); });
        if (column == columns.end()) return Error{Failure::notFound, std::string(table) + "." + field};
        const auto asKept = asColumnKeeps(value, column->type);
        if (!asKept) return Error{Failure::refused, std::string(table) + "." + field};
        if (!std::holds_alternative<std::monostate>(*asKept)) kept.set(column->name, *asKept);
    }
    found->rows.push_back(std::move(kept));
    return {};
}

Result<Row> MemoryDatabase::read(std::string_view table, int number) {
    const Table* found = find(table);
    if (found == nullptr || number < 1 || number > static_cast<int>(found->rows.size())) {
        return Error{Failure::notFound, std::string(table)};
    }
    return found->rows[static_cast<std::size_t>(number) - 1];
}

Result<std::vector<Row>> MemoryDatabase::seek(std::string_view table, std::string_view field, std::string_view text,
                                              int rows) {
    const Table* found = find(table);
    if (found == nullptr) return Error{Failure::notFound, std::string(table)};
    const auto& columns = found->info.columns;
    if (std::none_of(columns.begin(), columns.end(),
                     [&](const Column& one) { return sameTableName(one.name, field); })) {
        return Error{Failure::notFound, std::string(table) + "." + std::string(field)};
    }
    const auto textOf = [&](const Row& row) {
        const Value* value = row.find(field);
        const auto* words = value == nullptr ? nullptr : std::get_if<std::string>(value);
        return words == nullptr ? std::string() : *words;
    };
    std::vector<Row> sought;
    std::copy_if(found->rows.begin(), found->rows.end(), std::back_inserter(sought),
                 [&](const Row& row) { return row.find(field) != nullptr && textOf(row) >= text; });
    std::stable_sort(sought.begin(), sought.end(),
                     [&](const Row& one, const Row& other) { return textOf(one) < textOf(other); });
    sought.resize(std::min(sought.size(), static_cast<std::size_t>(std::max(rows, 0))));
    return sought;
}

Result<> MemoryDatabase::removeFirst(std::string_view table, int rows) {
    Table* found = find(table);
    if (found == nullptr) return Error{Failure::notFound, std::string(table)};
    const auto gone = std::clamp(rows, 0, static_cast<int>(found->rows.size()));
    found->rows.erase(found->rows.begin(), found->rows.begin() + gone);
    return {};
}

Result<> MemoryDatabase::removeAll(std::string_view table) {
    return removeFirst(table, static_cast<int>(count(table).valueOr(0)));
}

}  // namespace vorbano
