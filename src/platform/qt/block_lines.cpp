#include "platform/qt/block_lines.h"

#include <QPainter>

#include "platform/qt/table_layout.h"

namespace vorbano {

Result<BlockLines> BlockLines::make(const std::vector<BlockLine>& lines, const LayoutData& data,
                                    const QueryResult& rows, const QString& family, double width) {
    BlockLines made;
    made.width_ = width;
    for (const BlockLine& line : lines) {
        auto text = BoundText::bind(line.text, data, &rows, line.origin);
        if (!text) return text.error();
        made.lines_.push_back({TextMeasure(family, line.textSize, line.bold), line.alignment, std::move(*text)});
    }
    return made;
}

std::vector<std::string> BlockLines::wrapped(const Line& line, int row) const {
    const std::string text = line.text.filled(row);
    if (text.empty() && !line.text.empty()) return {};
    return breakIntoLines(text, width_, [&line](std::string_view part) { return line.font.width(part); });
}

double BlockLines::height(int row) const {
    double height = 0;
    for (const Line& line : lines_) {
        height += line.font.lineHeight() * static_cast<double>(wrapped(line, row).size());
    }
    return height;
}

void BlockLines::paint(QPainter& painter, int row, double top) const {
    for (const Line& line : lines_) {
        line.font.use(painter);
        for (const std::string& text : wrapped(line, row)) {
            const double left = width_ - line.font.width(text);
            double x = 0;
            if (line.alignment == Alignment::right) x = left;
            if (line.alignment == Alignment::centre) x = left / 2;
            if (!text.empty()) line.font.draw(painter, x, top + line.font.ascent(), text);
            top += line.font.lineHeight();
        }
    }
}

}  // namespace vorbano
