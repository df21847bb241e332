#include "platform/qt/table_painter.h"

#include <QPainter>
#include <algorithm>

// How a table is painted.

namespace vorbano {

namespace {

const QColor ink(0x00, 0x00, 0x00);
const QColor headBack(0xe9, 0xec, 0xef);
const QColor totalBack(0xf4, 0xf5, 0xf7);
const QColor fineRule(0xc4, 0xc8, 0xcc);
const QColor strongRule(0x40, 0x44, 0x48);

double fine(double length) { return length * TextMeasure::fineness; }

}  // namespace

void TablePiece::line(QPainter& painter, double x1, double y1, double x2, double y2) const {
    painter.drawLine(QPointF(fine(x1), fine(y1)), QPointF(fine(x2), fine(y2)));
}

void TablePiece::paintLine(QPainter& painter, TextRun& run, const Place& place, std::string_view text,
                           double baseline) const {
    if (text.empty()) return;
    const TextMeasure& font = run.font();
    const double left = place.x + padding_;
    const double room = place.width - 2 * padding_;
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
    if (place.alignment == Alignment::right) x = left + room - width;
    if (place.alignment == Alignment::centre) x = left + (room - width) / 2;
    if (place.alignment == Alignment::comma) {
        const auto comma = std::min(text.find(','), text.size());
        x = std::max(left, left + room - place.behindComma - font.width(text.substr(0, comma)));
    }
    run.add(x, baseline, text);
}

void TablePiece::paintCell(QPainter& painter, TextRun& run, const ColumnBox& column, std::string_view text,
                           double top) const {
    const TextMeasure& font = run.font();
    double baseline = top + padding_ * 0.9 + font.ascent();
    const int count = linesOf(column, text, font);
    if (count == 1) {
        paintLine(painter, run, column.place, text, baseline);
        return;
    }
    auto lines = breakIntoLines(text, column.place.width - 2 * padding_,
                                [&font](std::string_view part) { return font.width(part); });
    lines.resize(static_cast<std::size_t>(count));
    for (const std::string& one : lines) {
        paintLine(painter, run, column.place, one, baseline);
        baseline += font.lineHeight();
    }
}

void TablePiece::paintTexts(QPainter& painter, const TableBox& box, double top) const {
    const bool row = box.kind == TableBox::Kind::row;
    const TextMeasure& font = row ? font_ : bold_;
    font.use(painter);
    // In a row that is higher than its text, the text stands in the middle.
    const double above =
        row ? (boxHeight(box) - rowHeight(lines_[static_cast<std::size_t>(box.row)], font_)) / 2 : padding_ / 2;
    std::string text;
    TextRun run(painter, font);
    for (const ColumnBox& column : columns_) {
        if (row) column.cell.fill(text, box.row);
        if (box.kind == TableBox::Kind::blockTotal) column.blockTotal.fill(text, blockOf(box).last);
        if (box.kind == TableBox::Kind::totals) text = column.total;
        paintCell(painter, run, column, text, top + above);
    }
}

void TablePiece::paintEdges(QPainter& painter, double top, double bottom) const {
    painter.setPen(QPen(fineRule, fine(0.5)));
    for (std::size_t at = 1; at < columns_.size(); ++at) {
        const bool edge = columns_[at].group != columns_[at - 1].group;
        const double x = columns_[at].place.x;
        if (edge) line(painter, x, top, x, bottom);
    }
}

/// The ground of the totals, and the upright lines at the edges of the groups of columns, from one text to the next.
void TablePiece::paintGround(QPainter& painter, int first, int end) const {
    double top = 0;
    double from = 0;
    for (int at = first; at < end; ++at) {
        const TableBox& box = boxes_[static_cast<std::size_t>(at)];
        const double bottom = top + boxHeight(box);
        const bool lines = box.kind == TableBox::Kind::heading || box.kind == TableBox::Kind::below;
        if (box.kind == TableBox::Kind::blockTotal || box.kind == TableBox::Kind::totals) {
            painter.fillRect(QRectF(0, fine(top), fine(width_), fine(bottom - top)), totalBack);
        }
        if (lines && top > from) paintEdges(painter, from, top);
        if (lines) from = bottom;
        top = bottom;
    }
    if (top > from) paintEdges(painter, from, top);
}

/// Fine lines below the rows and strong ones around the totals.
void TablePiece::paintRules(QPainter& painter, int first, int end) const {
    double top = 0;
    painter.setPen(QPen(fineRule, fine(0.5)));
    for (int at = first; at < end; ++at) {
        const TableBox& box = boxes_[static_cast<std::size_t>(at)];
        top += boxHeight(box);
        if (box.kind == TableBox::Kind::row) line(painter, 0, top, width_, top);
    }
    top = 0;
    painter.setPen(QPen(strongRule, fine(0.8)));
    for (int at = first; at < end; ++at) {
        const TableBox& box = boxes_[static_cast<std::size_t>(at)];
        const double bottom = top + boxHeight(box);
        if (box.kind == TableBox::Kind::blockTotal || box.kind == TableBox::Kind::totals) {
            line(painter, 0, top, width_, top);
            line(painter, 0, bottom, width_, bottom);
        }
        top = bottom;
    }
}

void TablePiece::paintGroups(QPainter& painter, double top) const {
    TextRun run(painter, headFont_);
    for (const GroupBox& group : groups_) {
        const Place& place = group.place;
        if (place.x < 0) continue;
        const double room = groupHeight_ - headFont_.lineHeight() * static_cast<double>(group.title.size());
        double baseline = top + room / 2 + headFont_.ascent();
        for (const std::string& one : group.title) {
            paintLine(painter, run, place, one, baseline);
            baseline += headFont_.lineHeight();
        }
        painter.setPen(QPen(strongRule, fine(0.4)));
        const double under = top + groupHeight_;
        line(painter, place.x + padding_, under, place.x + place.width - padding_, under);
        painter.setPen(ink);
    }
}

void TablePiece::paintTitles(QPainter& painter, double top) const {
    const double bottom = top + titlesHeight();
    painter.fillRect(QRectF(0, fine(top), fine(width_), fine(titlesHeight())), headBack);
    painter.setPen(QPen(strongRule, fine(0.8)));
    line(painter, 0, top, width_, top);
    line(painter, 0, bottom, width_, bottom);
    paintEdges(painter, top, bottom);
    painter.setPen(ink);
    headFont_.use(painter);
    paintGroups(painter, top);
    TextRun run(painter, headFont_);
    for (const ColumnBox& column : columns_) {
        Place place = column.place;
        if (place.alignment == Alignment::comma) place.alignment = Alignment::right;
        // Titles stand on the lower edge, whatever their number of lines.
        double baseline =
            bottom - padding_ - headFont_.lineHeight() * static_cast<double>(column.title.size()) + headFont_.ascent();
        for (const std::string& one : column.title) {
            paintLine(painter, run, place, one, baseline);
            baseline += headFont_.lineHeight();
        }
    }
}

void TablePiece::paintHeadingOf(QPainter& painter, const Block& block, double top) const {
    painter.setPen(ink);
    if (block.above > 0) above_.paint(painter, block.first, top);
    paintTitles(painter, top + block.above);
}

void TablePiece::paintHeading(QPainter& painter, int heading) const {
    painter.save();
    painter.scale(1 / TextMeasure::fineness, 1 / TextMeasure::fineness);
    paintHeadingOf(painter, blocks_[static_cast<std::size_t>(heading)], 0);
    painter.restore();
}

void TablePiece::paint(QPainter& painter, int first, int end) const {
    painter.save();
    painter.scale(1 / TextMeasure::fineness, 1 / TextMeasure::fineness);
    paintGround(painter, first, end);
    paintRules(painter, first, end);
    double top = 0;
    for (int at = first; at < end; ++at) {
        const TableBox& box = boxes_[static_cast<std::size_t>(at)];
        const double height = boxHeight(box);
        painter.setPen(ink);
        if (box.kind == TableBox::Kind::heading) {
            paintHeadingOf(painter, blockOf(box), top);
        } else if (box.kind == TableBox::Kind::below) {
            if (height > 0) below_.paint(painter, blockOf(box).last, top + height - below_.height(blockOf(box).last));
        } else {
            paintTexts(painter, box, top);
        }
        top += height;
    }
    painter.restore();
}

}  // namespace vorbano
