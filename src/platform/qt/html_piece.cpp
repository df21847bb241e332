#include "platform/qt/html_piece.h"

#include <QAbstractTextDocumentLayout>
#include <QPainter>
#include <QTextBlock>
#include <QTextFrame>
#include <QTextLayout>
#include <QTextTable>
#include <algorithm>

namespace vorbano {

HtmlPiece::HtmlPiece(const QString& html, const Style& style, double width, bool together)
    : document_(std::make_unique<QTextDocument>()) {
    QFont font(style.family);
    font.setPixelSize(qRound(style.textSize));
    font.setHintingPreference(QFont::PreferNoHinting);
    document_->setUndoRedoEnabled(false);
    document_->setDocumentMargin(0);
    document_->setDefaultFont(font);
    document_->setDefaultStyleSheet(style.sheet);
    // Widths as designed, not rounded to the dots of a screen: the same lines on paper, in the preview and in the file.
    document_->setUseDesignMetrics(true);
    document_->setHtml(html.trimmed());
    document_->setTextWidth(width);
    if (together) {
        bands_.push_back({0, document_->size().height()});
    } else {
        findBands();
    }
}

void HtmlPiece::addRows(QTextFrame* frame, std::vector<Band>& bands) const {
    const auto* layout = document_->documentLayout();
    for (QTextFrame* child : frame->childFrames()) {
        const auto* table = qobject_cast<QTextTable*>(child);
        for (int row = 0; table != nullptr && row < table->rows(); ++row) {
            QRectF extent;
            for (int column = 0; column < table->columns(); ++column) {
                const QTextTableCell cell = table->cellAt(row, column);
                for (QTextBlock block = document_->findBlock(cell.firstPosition());
                     block.isValid() && block.position() <= cell.lastPosition(); block = block.next()) {
                    extent |= layout->blockBoundingRect(block);
                }
            }
            bands.push_back({extent.top(), extent.bottom()});
        }
        addRows(child, bands);
    }
}

void HtmlPiece::findBands() {
    constexpr double touching = 0.01;
    std::vector<Band> found;
    const auto* layout = document_->documentLayout();
    for (QTextBlock block = document_->begin(); block.isValid(); block = block.next()) {
        const double top = layout->blockBoundingRect(block).top();
        for (int at = 0; at < block.layout()->lineCount(); ++at) {
            const QRectF line = block.layout()->lineAt(at).rect();
            found.push_back({top + line.top(), top + line.bottom()});
        }
    }
    addRows(document_->rootFrame(), found);
    std::sort(found.begin(), found.end(), [](const Band& a, const Band& b) { return a.top < b.top; });
    for (const Band& band : found) {
        if (bands_.empty() || band.top >= bands_.back().bottom - touching) {
            bands_.push_back(band);
        } else {
            bands_.back().bottom = std::max(bands_.back().bottom, band.bottom);
        }
    }
    // The space between two bands belongs to the upper one, so that a page does not begin with it.
    if (bands_.empty()) bands_.emplace_back();
    bands_.front().top = 0;
    for (std::size_t at = 0; at + 1 < bands_.size(); ++at) bands_[at].bottom = bands_[at + 1].top;
    bands_.back().bottom = std::max(bands_.back().bottom, document_->size().height());
}

std::vector<FlowBox> HtmlPiece::boxes() const {
    std::vector<FlowBox> boxes;
    for (const Band& band : bands_) boxes.push_back({band.bottom - band.top});
    // No line of a paragraph is left alone below or above a break.
    if (boxes.size() > 1) {
        boxes.front().withNext = true;
        boxes[boxes.size() - 2].withNext = true;
    }
    return boxes;
}

void HtmlPiece::paint(QPainter& painter, int first, int end) const {
    const double top = bands_[static_cast<std::size_t>(first)].top;
    const double bottom = bands_[static_cast<std::size_t>(end) - 1].bottom;
    QAbstractTextDocumentLayout::PaintContext context;
    context.palette.setColor(QPalette::Text, Qt::black);
    painter.save();
    painter.translate(0, -top);
    const bool whole = end - first == static_cast<int>(bands_.size());
    if (!whole) {
        // What only touches the stretch from outside belongs to another page.
        constexpr double touching = 0.1;
        const QRectF stretch(0, top, document_->textWidth(), bottom - top);
        context.clip = stretch.adjusted(0, touching, 0, -touching);
        painter.setClipRect(stretch);
    }
    document_->documentLayout()->draw(&painter, context);
    painter.restore();
}

}  // namespace vorbano
