#pragma once

#include <string>
#include <vector>

#include "platform/qt/block_lines.h"
#include "platform/qt/document_piece.h"
#include "platform/qt/layout.h"
#include "platform/qt/layout_data.h"
#include "platform/qt/table_flow.h"
#include "platform/qt/text_measure.h"

namespace vorbano {

/// A long table, painted row by row straight from the result of a query. The cost of a row is the same in a table of
/// three rows and in one of 32,767, and in one that falls into thousands of blocks.
class TablePiece : public DocumentPiece {
  public:
    /// `damaged` for a query or field that is not there. `data` must outlive the piece.
    static Result<std::unique_ptr<TablePiece>> make(const TableSection& section, const LayoutData& data,
                                                    const QString& family, double width);

    [[nodiscard]] std::vector<FlowBox> boxes() const override;
    /// One for each block.
    [[nodiscard]] std::vector<double> headings() const override;
    void paint(QPainter& painter, int first, int end) const override;
    void paintHeading(QPainter& painter, int heading) const override;

  private:
    /// Where a line of text stands.
    struct Place {
        double x = 0;
        double width = 0;
        Alignment alignment = Alignment::left;
        double behindComma = 0;  ///< room for what stands behind the comma, and the comma
    };
    struct ColumnBox {
        Place place;
        int group = -1;
        BoundText cell;
        std::string total;
        BoundText blockTotal;
        std::vector<std::string> title;
    };
    struct GroupBox {
        Place place{-1, 0, Alignment::centre};
        std::vector<std::string> title;
    };
    /// What a block needs: its rows, and the heights of what stands around them.
    struct Block {
        int first = 0;
        int last = 0;  ///< of an empty table it is before `first`
        double above = 0;
        double below = 0;
        double total = 0;
    };

    TablePiece(const QString& family, const TableSection& section, double width);
    Result<> addColumns(const TableSection& section, const LayoutData& data);
    Result<> addTotals(const TableSection& section, const LayoutData& data);
    Result<> addGroups(const TableSection& section, const LayoutData& data);
    Result<> addBlocks(const TableSection& section, const LayoutData& data, const QString& family);
    void measureRows();
    void measureCommas();
    void measureBlocks();
    [[nodiscard]] int linesOf(const ColumnBox& column, std::string_view text, const TextMeasure& font) const;
    [[nodiscard]] double rowHeight(int lines, const TextMeasure& font) const;
    [[nodiscard]] double titlesHeight() const { return groupHeight_ + titleHeight_; }
    [[nodiscard]] bool hasTotals() const { return totalLines_ > 0; }
    [[nodiscard]] double boxHeight(const TableBox& box) const;
    [[nodiscard]] const Block& blockOf(const TableBox& box) const {
        return blocks_[static_cast<std::size_t>(box.block)];
    }

    void paintHeadingOf(QPainter& painter, const Block& block, double top) const;
    void paintTitles(QPainter& painter, double top) const;
    void paintGroups(QPainter& painter, double top) const;
    void paintCell(QPainter& painter, TextRun& run, const ColumnBox& column, std::string_view text, double top) const;
    void paintLine(QPainter& painter, TextRun& run, const Place& place, std::string_view text, double baseline) const;
    void paintGround(QPainter& painter, int first, int end) const;
    void paintRules(QPainter& painter, int first, int end) const;
    void paintTexts(QPainter& painter, const TableBox& box, double top) const;
    void paintEdges(QPainter& painter, double top, double bottom) const;
    void line(QPainter& painter, double x1, double y1, double x2, double y2) const;

    TextMeasure font_;
    TextMeasure bold_;
    TextMeasure headFont_;
    double padding_;
    double width_;
    double leastRow_;
    const QueryResult* rows_ = nullptr;
    std::vector<ColumnBox> columns_;
    std::vector<GroupBox> groups_;
    std::vector<unsigned char> lines_;  ///< of each row
    int totalLines_ = 0;                ///< 0: no line of totals
    bool blockTotals_ = false;
    double groupHeight_ = 0;
    double titleHeight_ = 0;
    BlockLines above_;
    BlockLines below_;
    std::vector<Block> blocks_;
    std::vector<TableBox> boxes_;
};

}  // namespace vorbano
