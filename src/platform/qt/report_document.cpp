#include "platform/qt/report_document.h"

#include <QFileInfo>
#include <QPainter>
#include <QPdfWriter>
#include <QSaveFile>
#include <algorithm>

#include "platform/qt/text_measure.h"

namespace vorbano {

namespace {

constexpr double pxInInch = 96;
/// The foot stands below the text, inside the margins.
constexpr double footHeight = 22;
constexpr double footTextSize = 9.5;

class Unwatched : public JobWatch {
  public:
    bool goesOn(int /*done*/, int /*all*/) override { return true; }
    void cannotStopNow() override {}
};

QRectF contentRect(const QPageLayout& layout) {
    const QRectF inches = layout.paintRect(QPageLayout::Inch);
    return {inches.x() * pxInInch, inches.y() * pxInInch, inches.width() * pxInInch, inches.height() * pxInInch};
}

}  // namespace

ReportDocument::ReportDocument(Setup setup, std::vector<Item> items, std::shared_ptr<const void> keptAlive)
    : setup_(std::move(setup)),
      footFont_(setup_.family, footTextSize, false),
      keptAlive_(std::move(keptAlive)),
      items_(std::move(items)) {
    collectBoxes();
    ranges_ = breakIntoPages(boxes_, headings_, contentSize(setup_.layout).height());
}

QSizeF ReportDocument::contentSize(const QPageLayout& layout) {
    return contentRect(layout).size() - QSizeF(0, footHeight);
}

void ReportDocument::collectBoxes() {
    for (std::size_t at = 0; at < items_.size(); ++at) {
        const Item& item = items_[at];
        const int heading = static_cast<int>(headings_.size());
        const auto heights = item.piece->headings();
        for (std::size_t own = 0; own < heights.size(); ++own) {
            headings_.push_back(heights[own]);
            headingOwner_.emplace_back(static_cast<int>(at), static_cast<int>(own));
        }
        if (item.withPrevious && !boxes_.empty()) boxes_.back().withNext = true;
        firstBox_.push_back(static_cast<int>(boxes_.size()));
        auto boxes = item.piece->boxes();
        if (!boxes.empty()) boxes.front().breakBefore = item.breakBefore;
        for (FlowBox& box : boxes) {
            if (box.heading >= 0) box.heading += heading;
            boxes_.push_back(box);
        }
    }
}

void ReportDocument::paintPage(int page, QPainter& painter) const {
    const QRectF content = contentRect(setup_.layout);
    painter.save();
    painter.translate(content.topLeft());
    paintBoxes(ranges_[static_cast<std::size_t>(page)], painter);
    painter.restore();
    paintFoot(page, painter);
}

void ReportDocument::paintBoxes(const PageRange& range, QPainter& painter) const {
    if (range.heading >= 0) {
        const auto heading = static_cast<std::size_t>(range.heading);
        const auto [piece, own] = headingOwner_[heading];
        items_[static_cast<std::size_t>(piece)].piece->paintHeading(painter, own);
        painter.translate(0, headings_[heading]);
    }
    for (int at = range.first; at < range.end;) {
        const auto next = std::upper_bound(firstBox_.begin(), firstBox_.end(), at);
        const auto piece = static_cast<std::size_t>(next - firstBox_.begin()) - 1;
        const int end = next == firstBox_.end() ? range.end : std::min(range.end, *next);
        painter.save();
        items_[piece].piece->paint(painter, at - firstBox_[piece], end - firstBox_[piece]);
        painter.restore();
        for (; at < end; ++at) painter.translate(0, boxes_[static_cast<std::size_t>(at)].height);
    }
}

void ReportDocument::paintFoot(int page, QPainter& painter) const {
    const QRectF content = contentRect(setup_.layout);
    const std::string number = QStringLiteral("Pagina %1 di %2").arg(page + 1).arg(pages()).toStdString();
    const double rule = content.bottom() - footFont_.lineHeight() - 4;
    const double baseline = rule + 4 + footFont_.ascent();
    painter.save();
    painter.setPen(QPen(QColor(0x80, 0x84, 0x88), 0.5));
    painter.drawLine(QPointF(content.left(), rule), QPointF(content.right(), rule));
    painter.setPen(QColor(0x30, 0x34, 0x38));
    painter.scale(1 / TextMeasure::fineness, 1 / TextMeasure::fineness);
    footFont_.use(painter);
    footFont_.draw(painter, content.left(), baseline, setup_.foot);
    footFont_.draw(painter, content.right() - footFont_.width(number), baseline, number);
    painter.restore();
}

Result<bool> ReportDocument::paintOn(QPagedPaintDevice& device, const std::string& name, JobWatch& watch, int before,
                                     int all) const {
    device.setPageLayout(setup_.layout);
    // The margins are ours: what is painted begins at the corner of the sheet.
    device.setPageMargins(QMarginsF(0, 0, 0, 0));
    QPainter painter;
    if (!painter.begin(&device)) return Error{Failure::refused, name};
    for (int page = 0; page < pages(); ++page) {
        if (page > 0 && !device.newPage()) return Error{Failure::device, name};
        painter.save();
        painter.scale(painter.device()->logicalDpiX() / pxInInch, painter.device()->logicalDpiY() / pxInInch);
        paintPage(page, painter);
        painter.restore();
        if (!watch.goesOn(before + page + 1, all)) return false;
    }
    if (!painter.end()) return Error{Failure::device, name};
    return true;
}

Result<> ReportDocument::savePdf(const std::string& path) {
    Unwatched unwatched;
    const auto written = writePdf(path, unwatched);
    return written ? Result<>() : written.error();
}

Result<bool> ReportDocument::writePdf(const std::string& path, JobWatch& watch) const {
    const QString target = QString::fromStdString(path);
    const std::string name = QFileInfo(target).fileName().toStdString();
    // Written beside its place: a disk that fills up does not leave half an act under the name of a whole one.
    QSaveFile file(target);
    if (!file.open(QIODevice::WriteOnly)) return Error{Failure::refused, name};
    {
        QPdfWriter writer(&file);
        writer.setPdfVersion(QPagedPaintDevice::PdfVersion_A1b);
        writer.setTitle(setup_.title);
        writer.setCreator(QStringLiteral("Vorbano"));
        auto painted = paintOn(writer, name, watch, 0, pages());
        if (!painted || !*painted) return painted;
    }
    if (!file.commit()) return Error{Failure::device, name};
    return true;
}

}  // namespace vorbano
