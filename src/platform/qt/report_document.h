#pragma once

#include <QPageLayout>
#include <QString>
#include <memory>
#include <span>
#include <string>
#include <vector>

#include "platform/print_engine.h"
#include "platform/qt/document_piece.h"
#include "platform/qt/job_watch.h"
#include "platform/qt/text_measure.h"

class QPagedPaintDevice;
class QPainter;

namespace vorbano {

/// A document broken into pages, which can be painted on anything: the preview, a printer, a file. Lengths are px, 96
/// to the inch.
class ReportDocument : public Document {
  public:
    struct Setup {
        QPageLayout layout;  ///< size, orientation and margins of the page
        QString family;      ///< of the page's foot
        QString title;       ///< of the document, as the file tells it
        std::string foot;    ///< at the left of the foot; the number of the page stands at the right
    };
    /// A piece of the document and how it stands to the piece before it.
    struct Item {
        std::unique_ptr<DocumentPiece> piece;
        bool withPrevious = false;
        bool breakBefore = false;
    };
    /// `keptAlive`: what the pieces point into.
    ReportDocument(Setup setup, std::vector<Item> items, std::shared_ptr<const void> keptAlive);

    [[nodiscard]] int pages() const override { return static_cast<int>(ranges_.size()); }
    Result<> savePdf(const std::string& path) override;

    [[nodiscard]] const QPageLayout& pageLayout() const { return setup_.layout; }
    [[nodiscard]] const QString& title() const { return setup_.title; }
    /// Paints a page (from 0) with its margins; the painter's unit is 1/96 inch.
    void paintPage(int page, QPainter& painter) const;
    /// Paints all pages on a printer or file that is ready to begin, and gives back whether it went on to the end;
    /// `refused` when the device does not let itself be painted on. `watch` is told of every page, counted from
    /// `before` of `all`, and may stop it.
    Result<bool> paintOn(QPagedPaintDevice& device, const std::string& name, JobWatch& watch, int before,
                         int all) const;
    /// As `savePdf`, watched: gives back whether the file was written. A job that was stopped leaves the place as it
    /// was.
    Result<bool> writePdf(const std::string& path, JobWatch& watch) const;

    /// Width and height of what is between the margins and above the foot.
    [[nodiscard]] static QSizeF contentSize(const QPageLayout& layout);

  private:
    void collectBoxes();
    void paintFoot(int page, QPainter& painter) const;
    void paintBoxes(const PageRange& range, QPainter& painter) const;

    Setup setup_;
    TextMeasure footFont_;
    std::shared_ptr<const void> keptAlive_;
    std::vector<Item> items_;
    std::vector<FlowBox> boxes_;
    std::vector<int> firstBox_;                      ///< of each piece
    std::vector<double> headings_;                   ///< heights
    std::vector<std::pair<int, int>> headingOwner_;  ///< piece, and which heading of it
    std::vector<PageRange> ranges_;
};

/// An empty stretch between two pieces.
class SpacePiece : public DocumentPiece {
  public:
    explicit SpacePiece(double height) : height_(height) {}
    [[nodiscard]] std::vector<FlowBox> boxes() const override { return {{height_}}; }
    void paint(QPainter& /*painter*/, int /*first*/, int /*end*/) const override {}

  private:
    double height_;
};

}  // namespace vorbano
