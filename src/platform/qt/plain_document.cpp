#include "platform/qt/plain_document.h"

#include <QPainter>
#include <algorithm>

#include "platform/qt/text_measure.h"

namespace vorbano {

namespace {

constexpr double textSize = 13.5;
constexpr double headingSize = 20;
constexpr double lineSpacing = 1.45;
constexpr double margin = 20;  // mm

const std::vector<std::string> fixedPitch = {"Liberation Mono", "Courier New", "DejaVu Sans Mono"};
const std::vector<std::string> proportional = {"Liberation Sans", "Arial", "DejaVu Sans"};

/// Lines one below the other, each a box of its own.
class LinesPiece : public DocumentPiece {
  public:
    LinesPiece(std::vector<std::string> lines, const QString& family, double size, bool bold, double width)
        : lines_(std::move(lines)), font_(family, size, bold) {
        double widest = 0;
        for (const std::string& line : lines_) widest = std::max(widest, font_.width(line));
        // The widest line decides for all of them, or the columns would no longer stand below each other.
        if (widest > width) scale_ = width / widest;
        height_ = font_.lineHeight() * lineSpacing * scale_;
    }

    [[nodiscard]] std::vector<FlowBox> boxes() const override {
        return std::vector<FlowBox>(lines_.size(), FlowBox{height_});
    }
    void paint(QPainter& painter, int first, int end) const override {
        painter.scale(scale_ / TextMeasure::fineness, scale_ / TextMeasure::fineness);
        font_.use(painter);
        double baseline = font_.ascent();
        for (int at = first; at < end; ++at) {
            font_.draw(painter, 0, baseline, lines_[static_cast<std::size_t>(at)]);
            baseline += font_.lineHeight() * lineSpacing;
        }
    }

  private:
    std::vector<std::string> lines_;
    TextMeasure font_;
    double scale_ = 1;
    double height_ = 0;
};

}  // namespace

std::unique_ptr<ReportDocument> plainDocument(const PlainPage& page) {
    const QPageLayout layout(QPageSize(QPageSize::A4), QPageLayout::Portrait, QMarginsF(margin, margin, margin, margin),
                             QPageLayout::Millimeter);
    const double width = ReportDocument::contentSize(layout).width();
    const QString family = firstFamily(proportional);
    std::vector<ReportDocument::Item> items;
    if (!page.heading.empty()) {
        items.push_back({std::make_unique<LinesPiece>(std::vector{page.heading}, family, headingSize, true, width)});
        items.push_back({std::make_unique<SpacePiece>(headingSize), true});
    }
    items.push_back({std::make_unique<LinesPiece>(page.lines, firstFamily(fixedPitch), textSize, false, width)});
    return std::make_unique<ReportDocument>(
        ReportDocument::Setup{layout, family, QString::fromStdString(page.title), page.title}, std::move(items),
        nullptr);
}

}  // namespace vorbano
