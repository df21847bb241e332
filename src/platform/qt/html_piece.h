#pragma once

#include <QString>
#include <QTextDocument>
#include <memory>

#include "platform/qt/document_piece.h"

class QTextFrame;

namespace vorbano {

/// Flowing text and small tables, laid out as HTML in a given width.
class HtmlPiece : public DocumentPiece {
  public:
    struct Style {
        QString family;
        double textSize = 12;
        QString sheet;
    };
    /// `together`: one box, never split.
    HtmlPiece(const QString& html, const Style& style, double width, bool together);

    [[nodiscard]] std::vector<FlowBox> boxes() const override;
    void paint(QPainter& painter, int first, int end) const override;

  private:
    /// A stretch of the text that is not split: a line, a row of a table.
    struct Band {
        double top = 0;
        double bottom = 0;
    };
    void findBands();
    void addRows(QTextFrame* frame, std::vector<Band>& bands) const;

    std::unique_ptr<QTextDocument> document_;
    std::vector<Band> bands_;
};

}  // namespace vorbano
