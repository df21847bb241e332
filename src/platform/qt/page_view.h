#pragma once

#include <QAbstractScrollArea>
#include <QPixmap>
#include <map>

#include "platform/qt/report_document.h"

namespace vorbano {

/// The pages of a document one below the other. A page is painted when it comes into view, so the first of a thousand
/// pages is there at once.
class PageView : public QAbstractScrollArea {
    Q_OBJECT
  public:
    explicit PageView(const ReportDocument& document, QWidget* parent = nullptr);

    /// The page at the top of the view, from 0.
    [[nodiscard]] int currentPage() const;
    void showPage(int page);

  public slots:
    void zoomIn() { setZoom(zoom_ * 1.25); }
    void zoomOut() { setZoom(zoom_ / 1.25); }
    /// The whole width of the page fills the view, and does so when the window grows.
    void fitWidth();

  signals:
    void currentPageChanged(int page);

  protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

  private:
    void setZoom(double zoom);
    void layOut();
    [[nodiscard]] QSize pageSize() const;
    [[nodiscard]] int pageTop(int page) const;
    const QPixmap& painted(int page);

    const ReportDocument& document_;
    double zoom_ = 1;
    bool fits_ = true;
    std::map<int, QPixmap> painted_;  ///< of the pages in view and those beside them
};

}  // namespace vorbano
