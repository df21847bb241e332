#pragma once

#include <vector>

#include "platform/qt/layout.h"
#include "platform/qt/layout_data.h"
#include "platform/qt/text_measure.h"

class QPainter;

namespace vorbano {

/// The lines of text above or below a block of a table. A text too wide for the page goes on on the next line. Lengths
/// are px, 96 to the inch.
class BlockLines {
  public:
    /// `damaged` for a field that is not there. `rows` are those of the table.
    static Result<BlockLines> make(const std::vector<BlockLine>& lines, const LayoutData& data, const QueryResult& rows,
                                   const QString& family, double width);

    /// Height with the values of this row; 0 when there is nothing to show.
    [[nodiscard]] double height(int row) const;
    /// The upper edge at `top`; the painter is `scaled` for TextMeasure.
    void paint(QPainter& painter, int row, double top) const;

  private:
    struct Line {
        TextMeasure font;
        Alignment alignment = Alignment::left;
        BoundText text;
    };
    [[nodiscard]] std::vector<std::string> wrapped(const Line& line, int row) const;

    double width_ = 0;
    std::vector<Line> lines_;
};

}  // namespace vorbano
