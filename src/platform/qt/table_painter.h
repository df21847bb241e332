#pragma once

#include <string>
#include <vector>

#include "platform/qt/document_piece.h"
#include "platform/qt/layout.h"
#include "platform/qt/layout_data.h"
#include "platform/qt/text_measure.h"

namespace vorbano {

/// A long table, painted row by row straight from the result of a query. The cost of a row is the same in a table of
/// three rows and in one of 32,767.
class TablePiece : public DocumentPiece {
  public:
    /// `damaged` for a query or field that is not there. `data` must outlive the piece.
    static Result<std::unique_ptr<TablePiece>> make(const TableSection& section, const LayoutData& data,
                                                    const QString& family, double width);

    [[nodiscard]] std::vector<FlowBox> boxes() const override;
    [[nodiscard]] std::vector<double> headings() const override { return {headingHeight()}; }
    void paint(QPainter& painter, int first, int end) const override;
    void paintHeading(QPainter& painter, int heading) const override;

  private:
    struct ColumnBox {
        double x = 0;
        double width = 0;
        Alignment alignment = Alignment::left;
        int group = -1;
        BoundText cell;
        std::string total;
        std::vector<std::string> title;
        double behindComma = 0;  ///< room for what stands behind the comma, and the comma
    };
    struct GroupBox {
        double x = 0;
        double width = 0;
        std::vector<std::string> title;
    };

    TablePiece(const QString& family, double textSize);
    Result<> addColumns(const TableSection& section, const LayoutData& data, double width);
    Result<> addTotals(const TableSection& section, const LayoutData& data);
    Result<> addGroups(const TableSection& section, const LayoutData& data);
    void measureRows();
    void measureCommas();
    [[nodiscard]] int linesOf(const ColumnBox& column, std::string_view text, const TextMeasure& font) const;
    [[nodiscard]] double rowHeight(int lines, const TextMeasure& font) const;
    [[nodiscard]] double headingHeight() const { return groupHeight_ + titleHeight_; }
    [[nodiscard]] bool hasTotals() const { return totalLines_ > 0; }
    [[nodiscard]] double boxHeight(int box) const;

    void paintTitles(QPainter& painter) const;
    void paintCell(QPainter& painter, const ColumnBox& column, std::string_view text, double top,
                   const TextMeasure& font) const;
    void paintLine(QPainter& painter, const ColumnBox& column, std::string_view text, double baseline,
                   const TextMeasure& font) const;
    void paintTextsOfBox(QPainter& painter, int box, double top) const;
    void paintEdges(QPainter& painter, double height) const;
    void paintRules(QPainter& painter, int first, int end, double height) const;
    void line(QPainter& painter, double x1, double y1, double x2, double y2) const;

    TextMeasure font_;
    TextMeasure bold_;
    TextMeasure headFont_;
    double padding_;
    double width_ = 0;
    const QueryResult* rows_ = nullptr;
    std::vector<ColumnBox> columns_;
    std::vector<GroupBox> groups_;
    std::vector<unsigned char> lines_;  ///< of each row
    int totalLines_ = 0;                ///< 0: no line of totals
    double groupHeight_ = 0;
    double titleHeight_ = 0;
};

}  // namespace vorbano
