#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "base/result.h"
#include "platform/qt/layout.h"
#include "platform/qt/sqlite_database.h"

namespace vorbano {

/// What a query gave, every value as the document shows it. The texts of all cells lie one behind the other in one
/// string: a document of 32,767 rows has a million of them.
class QueryResult {
  public:
    explicit QueryResult(bool single) : single_(single) {}

    /// A one-row query; of more rows only the first is kept.
    [[nodiscard]] bool single() const { return single_; }
    [[nodiscard]] int rows() const { return columns_.empty() ? 0 : static_cast<int>(ends_.size() / columns_.size()); }
    /// -1 when the query has no such column; names are compared as written.
    [[nodiscard]] int column(std::string_view name) const;
    [[nodiscard]] const std::vector<std::string>& columns() const { return columns_; }
    /// "" before the first and beyond the last row, so that a query without rows shows as blanks.
    [[nodiscard]] std::string_view cell(int row, int column) const;

    void setColumns(std::vector<std::string> columns) { columns_ = std::move(columns); }
    /// Cells follow one another, row by row.
    void add(std::string_view cell);

  private:
    bool single_;
    std::vector<std::string> columns_;
    std::string texts_;
    std::vector<std::uint32_t> ends_;
};

/// The results of all queries of a layout.
class LayoutData {
  public:
    /// Runs them. `damaged` with file, line and the database's words for a query that is none, and for a whole number
    /// of which nobody says whether it is an amount.
    static Result<LayoutData> run(const Layout& layout, SqliteDatabase& database);

    /// nullptr when the layout has no such query.
    [[nodiscard]] const QueryResult* find(std::string_view name) const;

  private:
    struct Named {
        std::string name;
        QueryResult result{false};
    };
    /// Each in its own place, as the rest of a document points into them.
    std::vector<std::unique_ptr<Named>> results_;
};

/// A text whose values are known: each one a column of a one-row query, or of the row at hand.
class BoundText {
  public:
    BoundText() = default;
    /// Unqualified names are columns of `rows` (which may be nullptr), "query.Field" of a one-row query. `damaged` at
    /// `origin` for a name that is neither.
    static Result<BoundText> bind(const TextTemplate& text, const LayoutData& data, const QueryResult* rows,
                                  const Origin& origin);

    [[nodiscard]] bool empty() const { return parts_.empty(); }
    /// The text for one row; it is put into `into`, whose room is used again from row to row.
    void fill(std::string& into, int row) const;
    [[nodiscard]] std::string filled(int row = 0) const;

  private:
    struct Part {
        std::string literal;
        const QueryResult* from = nullptr;
        int column = 0;
        bool ofRow = false;
    };
    std::vector<Part> parts_;
};

}  // namespace vorbano
