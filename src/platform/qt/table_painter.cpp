#include "platform/qt/table_painter.h"

#include <QPainter>
#include <algorithm>

#include "platform/qt/layout_reader.h"

namespace vorbano {

namespace {

constexpr double pxInMillimetre = 96 / 25.4;
constexpr double leastShareMillimetres = 20;
/// More lines than this in one cell are cut: the text is no name any more.
constexpr int mostLines = 40;

const QColor ink(0x00, 0x00, 0x00);
const QColor headBack(0xe9, 0xec, 0xef);
const QColor totalBack(0xf4, 0xf5, 0xf7);
const QColor fineRule(0xc4, 0xc8, 0xcc);
const QColor strongRule(0x40, 0x44, 0x48);

bool wraps(Alignment alignment) { return alignment == Alignment::left || alignment == Alignment::centre; }

double fine(double length) { return length * TextMeasure::fineness; }

}  // namespace

TablePiece::TablePiece(const QString& family, double textSize)
    : font_(family, textSize, false),
      bold_(family, textSize, true),
      headFont_(family, textSize * 0.94, true),
      padding_(textSize * 0.28) {}

Result<std::unique_ptr<TablePiece>> TablePiece::make(const TableSection& section, const LayoutData& data,
                                                     const QString& family, double width) {
    std::unique_ptr<TablePiece> table(new TablePiece(family, section.textSize));
    table->width_ = width;
    table->rows_ = data.find(section.query);
    if (table->rows_ == nullptr) {
        return layoutError(section.origin, "interrogazione sconosciuta: " + section.query);
    }
    if (Result<> columns = table->addColumns(section, data, width); !columns) return columns.error();
    if (Result<> groups = table->addGroups(section, data); !groups) return groups.error();
    if (Result<> totals = table->addTotals(section, data); !totals) return totals.error();
    table->measureRows();
    table->measureCommas();
    return table;
}

Result<> TablePiece::addColumns(const TableSection& section, const LayoutData& data, double width) {
    std::vector<double> wishes;
    for (const TableColumn& column : section.columns) wishes.push_back(column.width * pxInMillimetre);
    const auto widths = columnWidths(wishes, width, leastShareMillimetres * pxInMillimetre);
    double x = 0;
    std::size_t titleLines = 1;
    for (std::size_t at = 0; at < section.columns.size(); ++at) {
        const TableColumn& from = section.columns[at];
        ColumnBox column;
        column.x = x;
        column.width = widths[at];
        column.alignment = from.alignment;
        column.group = from.group;
        auto cell = BoundText::bind(from.cell, data, rows_, from.origin);
        if (!cell) return cell.error();
        column.cell = std::move(*cell);
        const auto title = BoundText::bind(from.title, data, nullptr, from.origin);
        if (!title) return title.error();
        column.title = breakIntoLines(title->filled(), column.width - 2 * padding_,
                                      [this](std::string_view text) { return headFont_.width(text); });
        titleLines = std::max(titleLines, column.title.size());
        x += column.width;
        columns_.push_back(std::move(column));
    }
    titleHeight_ = rowHeight(static_cast<int>(titleLines), headFont_) + padding_;
    return {};
}

Result<> TablePiece::addGroups(const TableSection& section, const LayoutData& data) {
    std::size_t lines = 0;
    for (std::size_t at = 0; at < section.groups.size(); ++at) {
        const auto title = BoundText::bind(section.groups[at], data, nullptr, section.groupOrigins[at]);
        if (!title) return title.error();
        GroupBox group;
        group.x = -1;
        for (const ColumnBox& column : columns_) {
            if (column.group != static_cast<int>(at)) continue;
            if (group.x < 0) group.x = column.x;
            group.width = column.x + column.width - group.x;
        }
        group.title = breakIntoLines(title->filled(), std::max(group.width - 2 * padding_, 1.0),
                                     [this](std::string_view text) { return headFont_.width(text); });
        if (group.x >= 0) lines = std::max(lines, group.title.size());
        groups_.push_back(std::move(group));
    }
    if (lines > 0) groupHeight_ = rowHeight(static_cast<int>(lines), headFont_) + padding_;
    return {};
}

Result<> TablePiece::addTotals(const TableSection& section, const LayoutData& data) {
    if (section.totals.empty()) return {};
    const QueryResult* totals = data.find(section.totals);
    if (totals == nullptr || !totals->single()) {
        return layoutError(section.origin, "la riga dei totali vuole un'interrogazione [row]: " + section.totals);
    }
    totalLines_ = 1;
    for (std::size_t at = 0; at < columns_.size(); ++at) {
        const auto total = BoundText::bind(section.columns[at].total, data, totals, section.columns[at].origin);
        if (!total) return total.error();
        columns_[at].total = total->filled();
        totalLines_ = std::max(totalLines_, linesOf(columns_[at], columns_[at].total, bold_));
    }
    return {};
}

int TablePiece::linesOf(const ColumnBox& column, std::string_view text, const TextMeasure& font) const {
    if (text.empty() || !wraps(column.alignment)) return 1;
    const double room = column.width - 2 * padding_;
    if (text.find('\n') == std::string_view::npos && font.width(text) <= room) return 1;
    const auto lines = breakIntoLines(text, room, [&font](std::string_view part) { return font.width(part); });
    return std::min(static_cast<int>(lines.size()), mostLines);
}

void TablePiece::measureRows() {
    lines_.assign(static_cast<std::size_t>(rows_->rows()), 1);
    std::string text;
    for (const ColumnBox& column : columns_) {
        if (!wraps(column.alignment)) continue;
        for (std::size_t row = 0; row < lines_.size(); ++row) {
            column.cell.fill(text, static_cast<int>(row));
            lines_[row] = std::max(lines_[row], static_cast<unsigned char>(linesOf(column, text, font_)));
        }
    }
}

void TablePiece::measureCommas() {
    std::string text;
    for (ColumnBox& column : columns_) {
        if (column.alignment != Alignment::comma) continue;
        const auto widen = [&](std::string_view number, const TextMeasure& font) {
            const auto comma = number.find(',');
            if (comma != std::string_view::npos) {
                column.behindComma = std::max(column.behindComma, font.width(number.substr(comma)));
            }
        };
        for (std::size_t row = 0; row < lines_.size(); ++row) {
            column.cell.fill(text, static_cast<int>(row));
            widen(text, font_);
        }
        widen(column.total, bold_);
    }
}

double TablePiece::rowHeight(int lines, const TextMeasure& font) const {
    return lines * font.lineHeight() + 2 * padding_ * 0.9;
}

double TablePiece::boxHeight(int box) const {
    if (box == 0) return headingHeight();
    const auto row = static_cast<std::size_t>(box) - 1;
    return row < lines_.size() ? rowHeight(lines_[row], font_) : rowHeight(totalLines_, bold_) + padding_;
}

std::vector<FlowBox> TablePiece::boxes() const {
    const int rows = static_cast<int>(lines_.size());
    std::vector<FlowBox> boxes;
    boxes.reserve(lines_.size() + 2);
    boxes.push_back({headingHeight(), true});
    for (int row = 0; row < rows; ++row) {
        // The first row does not stand alone below the headings, nor the last one alone above or without the totals.
        const bool first = row == 0 && rows > 1;
        const bool last = row == rows - 2 || (row == rows - 1 && hasTotals());
        boxes.push_back({boxHeight(row + 1), first || last, false, 0});
    }
    if (hasTotals()) boxes.push_back({boxHeight(rows + 1), false, false, 0});
    return boxes;
}

void TablePiece::line(QPainter& painter, double x1, double y1, double x2, double y2) const {
    painter.drawLine(QPointF(fine(x1), fine(y1)), QPointF(fine(x2), fine(y2)));
}

void TablePiece::paintLine(QPainter& painter, const ColumnBox& column, std::string_view text, double baseline,
                           const TextMeasure& font) const {
    if (text.empty()) return;
    const double left = column.x + padding_;
    const double room = column.width - 2 * padding_;
    const double width = font.width(text);
    // A number is never cut: one that is too wide for its column is narrowed.
    if (width > room) {
        painter.save();
        painter.translate(fine(left), 0);
        painter.scale(room / width, 1);
        font.draw(painter, 0, baseline, text);
        painter.restore();
        return;
    }
    double x = left;
    if (column.alignment == Alignment::right) x = left + room - width;
    if (column.alignment == Alignment::centre) x = left + (room - width) / 2;
    if (column.alignment == Alignment::comma) {
        const auto comma = std::min(text.find(','), text.size());
        x = std::max(left, left + room - column.behindComma - font.width(text.substr(0, comma)));
    }
    font.draw(painter, x, baseline, text);
}

void TablePiece::paintCell(QPainter& painter, const ColumnBox& column, std::string_view text, double top,
                           const TextMeasure& font) const {
    double baseline = top + padding_ * 0.9 + font.ascent();
    if (linesOf(column, text, font) == 1) {
        paintLine(painter, column, text, baseline, font);
        return;
    }
    auto lines =
        breakIntoLines(text, column.width - 2 * padding_, [&font](std::string_view part) { return font.width(part); });
    if (lines.size() > mostLines) lines.resize(mostLines);
    for (const std::string& one : lines) {
        paintLine(painter, column, one, baseline, font);
        baseline += font.lineHeight();
    }
}

void TablePiece::paintTextsOfBox(QPainter& painter, int box, double top) const {
    const int row = box - 1;
    const bool total = row >= static_cast<int>(lines_.size());
    const TextMeasure& font = total ? bold_ : font_;
    font.use(painter);
    std::string text;
    for (const ColumnBox& column : columns_) {
        if (!total) column.cell.fill(text, row);
        paintCell(painter, column, total ? column.total : text, top + (total ? padding_ / 2 : 0), font);
    }
}

void TablePiece::paintEdges(QPainter& painter, double height) const {
    painter.setPen(QPen(fineRule, fine(0.5)));
    for (std::size_t at = 1; at < columns_.size(); ++at) {
        const bool edge = columns_[at].group != columns_[at - 1].group;
        if (edge) line(painter, columns_[at].x, 0, columns_[at].x, height);
    }
}

/// Fine lines below the rows and strong ones around the totals; upright ones at the edges of the groups.
void TablePiece::paintRules(QPainter& painter, int first, int end, double height) const {
    painter.setPen(QPen(fineRule, fine(0.5)));
    double y = 0;
    for (int box = first; box < end; ++box) {
        y += boxHeight(box);
        if (box > 0) line(painter, 0, y, width_, y);
    }
    paintEdges(painter, height);
    painter.setPen(QPen(strongRule, fine(0.8)));
    if (hasTotals() && end == static_cast<int>(lines_.size()) + 2) {
        const double top = y - boxHeight(end - 1);
        line(painter, 0, top, width_, top);
        line(painter, 0, y, width_, y);
    }
}

void TablePiece::paintTitles(QPainter& painter) const {
    painter.fillRect(QRectF(0, 0, fine(width_), fine(headingHeight())), headBack);
    painter.setPen(QPen(strongRule, fine(0.8)));
    line(painter, 0, 0, width_, 0);
    line(painter, 0, headingHeight(), width_, headingHeight());
    paintEdges(painter, headingHeight());
    painter.setPen(ink);
    headFont_.use(painter);
    for (const GroupBox& group : groups_) {
        if (group.x < 0) continue;
        ColumnBox box;
        box.x = group.x;
        box.width = group.width;
        box.alignment = Alignment::centre;
        const double room = groupHeight_ - headFont_.lineHeight() * static_cast<double>(group.title.size());
        double baseline = room / 2 + headFont_.ascent();
        for (const std::string& one : group.title) {
            paintLine(painter, box, one, baseline, headFont_);
            baseline += headFont_.lineHeight();
        }
        painter.setPen(QPen(strongRule, fine(0.4)));
        line(painter, group.x + padding_, groupHeight_, group.x + group.width - padding_, groupHeight_);
        painter.setPen(ink);
    }
    for (const ColumnBox& column : columns_) {
        ColumnBox box = column;
        if (box.alignment == Alignment::comma) box.alignment = Alignment::right;
        // Titles stand on the lower edge, whatever their number of lines.
        double baseline = headingHeight() - padding_ -
                          headFont_.lineHeight() * static_cast<double>(column.title.size()) + headFont_.ascent();
        for (const std::string& one : column.title) {
            paintLine(painter, box, one, baseline, headFont_);
            baseline += headFont_.lineHeight();
        }
    }
}

void TablePiece::paintHeading(QPainter& painter, int /*heading*/) const {
    painter.save();
    painter.scale(1 / TextMeasure::fineness, 1 / TextMeasure::fineness);
    paintTitles(painter);
    painter.restore();
}

void TablePiece::paint(QPainter& painter, int first, int end) const {
    painter.save();
    painter.scale(1 / TextMeasure::fineness, 1 / TextMeasure::fineness);
    double height = 0;
    for (int box = first; box < end; ++box) height += boxHeight(box);
    const bool totals = hasTotals() && end == static_cast<int>(lines_.size()) + 2;
    if (totals) {
        const double last = boxHeight(end - 1);
        painter.fillRect(QRectF(0, fine(height - last), fine(width_), fine(last)), totalBack);
    }
    if (first == 0) paintTitles(painter);
    paintRules(painter, first, end, height);
    painter.setPen(ink);
    double top = 0;
    for (int box = first; box < end; ++box) {
        if (box > 0) paintTextsOfBox(painter, box, top);
        top += boxHeight(box);
    }
    painter.restore();
}

}  // namespace vorbano
