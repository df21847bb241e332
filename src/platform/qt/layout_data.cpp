#include "platform/qt/layout_data.h"

#include <QSqlError>
#include <QSqlQuery>
#include <QSqlRecord>
#include <QVariant>
#include <algorithm>
#include <cmath>

#include "platform/qt/layout_reader.h"
#include "platform/qt/layout_text.h"

namespace vorbano {

namespace {

constexpr std::int64_t unitsInOne = 10000;

/// While it lives the database only answers: a layout reads the tables and cannot change them.
class OnlyReading {
  public:
    explicit OnlyReading(const QSqlDatabase& database) : database_(database) {
        QSqlQuery(database_).exec("PRAGMA query_only = ON");
    }
    ~OnlyReading() { QSqlQuery(database_).exec("PRAGMA query_only = OFF"); }
    OnlyReading(const OnlyReading&) = delete;
    OnlyReading& operator=(const OnlyReading&) = delete;

  private:
    QSqlDatabase database_;
};

/// How one column of a result becomes text.
struct ColumnDisplay {
    std::string name;
    AmountColumns namedAmounts = AmountColumns::unknown;
    ResultDisplay said;

    /// Whether a whole number in it is an amount; no value when nobody says so.
    [[nodiscard]] std::optional<bool> isAmount() const {
        if (said.kind != ResultDisplay::Kind::unsaid) return said.kind == ResultDisplay::Kind::amount;
        if (namedAmounts == AmountColumns::all) return true;
        if (namedAmounts == AmountColumns::none) return false;
        return std::nullopt;
    }
    [[nodiscard]] std::optional<std::string> shown(const QVariant& value) const;
};

std::optional<std::string> ColumnDisplay::shown(const QVariant& value) const {
    if (value.isNull()) return std::string();
    switch (value.typeId()) {
        case QMetaType::LongLong:
        case QMetaType::Int: {
            const auto amount = isAmount();
            if (!amount) return std::nullopt;
            if (*amount) return said.mask.value_or(amountMask()).shown(value.toLongLong());
            return said.mask.value_or(wholeMask()).shown(value.toLongLong() * unitsInOne);
        }
        case QMetaType::Double:
            return said.mask.value_or(amountMask()).shown(std::llround(value.toDouble() * unitsInOne));
        default:
            return value.toString().trimmed().toStdString();
    }
}

std::vector<ColumnDisplay> displaysOf(const QSqlRecord& record, const LayoutQuery& query,
                                      const SqliteDatabase& database) {
    std::vector<ColumnDisplay> columns;
    for (int at = 0; at < record.count(); ++at) {
        ColumnDisplay column;
        column.name = record.fieldName(at).toStdString();
        column.namedAmounts = database.amountsNamed(column.name);
        for (const auto& [name, said] : query.displays) {
            if (name == column.name) column.said = said;
        }
        columns.push_back(std::move(column));
    }
    return columns;
}

Result<> runQuery(const LayoutQuery& query, SqliteDatabase& database, const QSqlDatabase& connection,
                  QueryResult& result) {
    QSqlQuery sql(connection);
    sql.setForwardOnly(true);
    if (!sql.prepare(QString::fromStdString(query.sql)) || !sql.exec() || !sql.isSelect()) {
        const QString words = sql.lastError().databaseText();
        return layoutError(query.origin, "interrogazione " + query.name + ": " +
                                             (words.isEmpty() ? "non è una SELECT" : words.toStdString()));
    }
    const auto columns = displaysOf(sql.record(), query, database);
    for (const auto& [name, said] : query.displays) {
        const bool known = std::any_of(columns.begin(), columns.end(),
                                       [&name = name](const ColumnDisplay& column) { return column.name == name; });
        if (!known) return layoutError(query.origin, "interrogazione " + query.name + ": campo sconosciuto " + name);
    }
    std::vector<std::string> names;
    names.reserve(columns.size());
    for (const ColumnDisplay& column : columns) names.push_back(column.name);
    result.setColumns(std::move(names));
    while (sql.next()) {
        for (std::size_t at = 0; at < columns.size(); ++at) {
            const auto shown = columns[at].shown(sql.value(static_cast<int>(at)));
            if (!shown) {
                return layoutError(query.origin, "interrogazione " + query.name + ": dichiarare con @amount o @whole " +
                                                     columns[at].name);
            }
            result.add(*shown);
        }
        if (query.single) break;
    }
    return {};
}

}  // namespace

int QueryResult::column(std::string_view name) const {
    const auto at = std::find(columns_.begin(), columns_.end(), name);
    return at == columns_.end() ? -1 : static_cast<int>(at - columns_.begin());
}

std::string_view QueryResult::cell(int row, int column) const {
    if (row < 0 || row >= rows()) return {};
    const std::size_t at = static_cast<std::size_t>(row) * columns_.size() + static_cast<std::size_t>(column);
    const std::uint32_t start = at == 0 ? 0 : ends_[at - 1];
    return std::string_view(texts_).substr(start, ends_[at] - start);
}

void QueryResult::add(std::string_view cell) {
    texts_ += cell;
    ends_.push_back(static_cast<std::uint32_t>(texts_.size()));
}

Result<LayoutData> LayoutData::run(const Layout& layout, SqliteDatabase& database) {
    const auto connection = database.connection();
    if (!connection) return connection.error();
    const OnlyReading onlyReading(*connection);
    LayoutData data;
    for (const LayoutQuery& query : layout.queries) {
        auto named = std::make_unique<Named>();
        named->name = query.name;
        named->result = QueryResult(query.single);
        if (Result<> done = runQuery(query, database, *connection, named->result); !done) return done.error();
        data.results_.push_back(std::move(named));
    }
    return data;
}

const QueryResult* LayoutData::find(std::string_view name) const {
    for (const auto& one : results_) {
        if (one->name == name) return &one->result;
    }
    return nullptr;
}

Result<BoundText> BoundText::bind(const TextTemplate& text, const LayoutData& data, const QueryResult* rows,
                                  const Origin& origin) {
    BoundText bound;
    for (const TextTemplate::Part& part : text.parts) {
        Part& made = bound.parts_.emplace_back(Part{part.literal});
        if (part.name.empty()) continue;
        const auto point = part.name.find('.');
        const bool qualified = point != std::string::npos;
        const QueryResult* from = qualified ? data.find(part.name.substr(0, point)) : rows;
        if (from != nullptr) made.column = from->column(qualified ? part.name.substr(point + 1) : part.name);
        if (from == nullptr || made.column < 0 || (qualified && !from->single())) {
            return layoutError(origin, "campo sconosciuto: {{" + part.name + "}}");
        }
        made.from = from;
        made.ofRow = from == rows && !from->single();
    }
    return bound;
}

void BoundText::fill(std::string& into, int row) const {
    into.clear();
    for (const Part& part : parts_) {
        into += part.literal;
        if (part.from != nullptr) into += part.from->cell(part.ofRow ? row : 0, part.column);
    }
}

std::string BoundText::filled(int row) const {
    std::string text;
    fill(text, row);
    return text;
}

}  // namespace vorbano
