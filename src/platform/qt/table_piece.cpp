#include <algorithm>

#include "platform/qt/layout_reader.h"
#include "platform/qt/table_painter.h"

// What a table is made of, and how high each part of it is.

namespace vorbano {

namespace {

constexpr double leastShareMillimetres = 20;
/// More lines than this in one cell are cut: the text is no name any more.
constexpr int mostLines = 40;
/// Between a table and the lines above and below it.
constexpr double besideLines = 5;

bool wraps(Alignment alignment) { return alignment == Alignment::left || alignment == Alignment::centre; }

}  // namespace

TablePiece::TablePiece(const QString& family, const TableSection& section, double width)
    : font_(family, section.textSize, false),
      bold_(family, section.textSize, true),
      headFont_(family, section.textSize * 0.94, true),
      padding_(section.textSize * 0.28),
      width_(width),
      leastRow_(section.leastRow * pxInMillimetre) {}

Result<std::unique_ptr<TablePiece>> TablePiece::make(const TableSection& section, const LayoutData& data,
                                                     const QString& family, double width) {
    std::unique_ptr<TablePiece> table(new TablePiece(family, section, width));
    table->rows_ = data.find(section.query);
    if (table->rows_ == nullptr) {
        return layoutError(section.origin, "interrogazione sconosciuta: " + section.query);
    }
    if (Result<> columns = table->addColumns(section, data); !columns) return columns.error();
    if (Result<> groups = table->addGroups(section, data); !groups) return groups.error();
    if (Result<> totals = table->addTotals(section, data); !totals) return totals.error();
    table->measureRows();
    if (Result<> blocks = table->addBlocks(section, data, family); !blocks) return blocks.error();
    table->measureCommas();
    table->measureBlocks();
    return table;
}

Result<> TablePiece::addColumns(const TableSection& section, const LayoutData& data) {
    std::vector<double> wishes;
    for (const TableColumn& column : section.columns) wishes.push_back(column.width * pxInMillimetre);
    const auto widths = columnWidths(wishes, width_, leastShareMillimetres * pxInMillimetre);
    double x = 0;
    std::size_t titleLines = 1;
    for (std::size_t at = 0; at < section.columns.size(); ++at) {
        const TableColumn& from = section.columns[at];
        ColumnBox column;
        column.place.x = x;
        column.place.width = widths[at];
        column.place.alignment = from.alignment;
        column.group = from.group;
        auto cell = BoundText::bind(from.cell, data, rows_, from.origin);
        if (!cell) return cell.error();
        column.cell = std::move(*cell);
        auto blockTotal = BoundText::bind(from.blockTotal, data, rows_, from.origin);
        if (!blockTotal) return blockTotal.error();
        column.blockTotal = std::move(*blockTotal);
        blockTotals_ = blockTotals_ || !column.blockTotal.empty();
        const auto title = BoundText::bind(from.title, data, nullptr, from.origin);
        if (!title) return title.error();
        column.title = breakIntoLines(title->filled(), column.place.width - 2 * padding_,
                                      [this](std::string_view text) { return headFont_.width(text); });
        titleLines = std::max(titleLines, column.title.size());
        x += column.place.width;
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
        for (const ColumnBox& column : columns_) {
            if (column.group != static_cast<int>(at)) continue;
            if (group.place.x < 0) group.place.x = column.place.x;
            group.place.width = column.place.x + column.place.width - group.place.x;
        }
        group.title = breakIntoLines(title->filled(), std::max(group.place.width - 2 * padding_, 1.0),
                                     [this](std::string_view text) { return headFont_.width(text); });
        if (group.place.x >= 0) lines = std::max(lines, group.title.size());
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

/// A block is told by its text alone: a text that comes again after another one begins a block again.
Result<> TablePiece::addBlocks(const TableSection& section, const LayoutData& data, const QString& family) {
    const auto text = BoundText::bind(section.block, data, rows_, section.blockOrigin);
    if (!text) return text.error();
    auto above = BlockLines::make(section.above, data, *rows_, family, width_);
    if (!above) return above.error();
    auto below = BlockLines::make(section.below, data, *rows_, family, width_);
    if (!below) return below.error();
    above_ = std::move(*above);
    below_ = std::move(*below);

    TableShape shape{.rows = rows_->rows(),
                     .blockTotals = blockTotals_,
                     .below = !section.below.empty(),
                     .totals = hasTotals(),
                     .apart = section.apart};
    if (!text->empty()) {
        std::string present;
        shape.blocks = blockStarts(shape.rows, [&](int row) {
            text->fill(present, row);
            return present != text->filled(row - 1);
        });
    }
    for (std::size_t at = 0; at < shape.blocks.size(); ++at) {
        const int end = at + 1 < shape.blocks.size() ? shape.blocks[at + 1] : shape.rows;
        blocks_.push_back({shape.blocks[at], end - 1});
    }
    boxes_ = tableBoxes(shape);
    return {};
}

int TablePiece::linesOf(const ColumnBox& column, std::string_view text, const TextMeasure& font) const {
    if (text.empty() || !wraps(column.place.alignment)) return 1;
    const double room = column.place.width - 2 * padding_;
    if (text.find('\n') == std::string_view::npos && font.width(text) <= room) return 1;
    const auto lines = breakIntoLines(text, room, [&font](std::string_view part) { return font.width(part); });
    return std::min(static_cast<int>(lines.size()), mostLines);
}

void TablePiece::measureRows() {
    lines_.assign(static_cast<std::size_t>(rows_->rows()), 1);
    std::string text;
    for (const ColumnBox& column : columns_) {
        if (!wraps(column.place.alignment)) continue;
        for (std::size_t row = 0; row < lines_.size(); ++row) {
            column.cell.fill(text, static_cast<int>(row));
            lines_[row] = std::max(lines_[row], static_cast<unsigned char>(linesOf(column, text, font_)));
        }
    }
}

void TablePiece::measureCommas() {
    std::string text;
    for (ColumnBox& column : columns_) {
        if (column.place.alignment != Alignment::comma) continue;
        const auto widen = [&](std::string_view number, const TextMeasure& font) {
            const auto comma = number.find(',');
            if (comma != std::string_view::npos) {
                column.place.behindComma = std::max(column.place.behindComma, font.width(number.substr(comma)));
            }
        };
        for (std::size_t row = 0; row < lines_.size(); ++row) {
            column.cell.fill(text, static_cast<int>(row));
            widen(text, font_);
        }
        for (const Block& block : blocks_) {
            column.blockTotal.fill(text, block.last);
            widen(text, bold_);
        }
        widen(column.total, bold_);
    }
}

void TablePiece::measureBlocks() {
    std::string text;
    for (Block& block : blocks_) {
        block.above = above_.height(block.first);
        if (block.above > 0) block.above += besideLines;
        block.below = below_.height(block.last);
        if (block.below > 0) block.below += besideLines;
        int lines = 1;
        for (const ColumnBox& column : columns_) {
            column.blockTotal.fill(text, block.last);
            lines = std::max(lines, linesOf(column, text, bold_));
        }
        block.total = rowHeight(lines, bold_) + padding_;
    }
}

double TablePiece::rowHeight(int lines, const TextMeasure& font) const {
    return lines * font.lineHeight() + 2 * padding_ * 0.9;
}

double TablePiece::boxHeight(const TableBox& box) const {
    switch (box.kind) {
        case TableBox::Kind::heading:
            return blockOf(box).above + titlesHeight();
        case TableBox::Kind::row:
            return std::max(leastRow_, rowHeight(lines_[static_cast<std::size_t>(box.row)], font_));
        case TableBox::Kind::blockTotal:
            return blockOf(box).total;
        case TableBox::Kind::below:
            return blockOf(box).below;
        case TableBox::Kind::totals:
            return rowHeight(totalLines_, bold_) + padding_;
    }
    return 0;
}

std::vector<FlowBox> TablePiece::boxes() const {
    std::vector<FlowBox> boxes;
    boxes.reserve(boxes_.size());
    for (const TableBox& box : boxes_) {
        const bool heading = box.kind == TableBox::Kind::heading;
        boxes.push_back({boxHeight(box), box.withNext, box.breakBefore, heading || blocks_.empty() ? -1 : box.block});
    }
    return boxes;
}

std::vector<double> TablePiece::headings() const {
    std::vector<double> heights;
    heights.reserve(blocks_.size());
    for (const Block& block : blocks_) heights.push_back(block.above + titlesHeight());
    return heights;
}

}  // namespace vorbano
