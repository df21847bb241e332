#include "platform/qt/page_view.h"

#include <QKeyEvent>
#include <QPainter>
#include <QScrollBar>
#include <QWheelEvent>
#include <algorithm>

namespace vorbano {

namespace {
constexpr int gap = 16;  ///< around the pages
constexpr double leastZoom = 0.3;
constexpr double mostZoom = 4;
const QColor desk(0x8a, 0x90, 0x96);
const QColor shadow(0x5c, 0x62, 0x68);
}  // namespace

PageView::PageView(const ReportDocument& document, QWidget* parent) : QAbstractScrollArea(parent), document_(document) {
    setFocusPolicy(Qt::StrongFocus);
    setAccessibleName(QStringLiteral("Pagine del documento"));
    setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
    connect(verticalScrollBar(), &QScrollBar::valueChanged, this, [this] {
        viewport()->update();
        emit currentPageChanged(currentPage());
    });
}

QSize PageView::pageSize() const {
    const QSizeF points = document_.pageLayout().fullRect(QPageLayout::Point).size();
    return (points * (zoom_ * 96 / 72)).toSize();
}

int PageView::pageTop(int page) const { return gap + page * (pageSize().height() + gap); }

int PageView::currentPage() const {
    // A page counts as the current one while a third of the view still shows it.
    const int middle = verticalScrollBar()->value() + viewport()->height() / 3;
    return std::clamp((middle - gap) / (pageSize().height() + gap), 0, std::max(0, document_.pages() - 1));
}

void PageView::showPage(int page) { verticalScrollBar()->setValue(pageTop(page) - gap / 2); }

void PageView::fitWidth() {
    fits_ = true;
    layOut();
}

void PageView::setZoom(double zoom) {
    const int page = currentPage();
    fits_ = false;
    zoom_ = std::clamp(zoom, leastZoom, mostZoom);
    layOut();
    showPage(page);
}

void PageView::layOut() {
    const QSize room = viewport()->size();
    if (fits_) {
        const double width = document_.pageLayout().fullRect(QPageLayout::Point).width() * 96 / 72;
        zoom_ = std::clamp((room.width() - 2 * gap) / width, leastZoom, mostZoom);
    }
    painted_.clear();
    const QSize page = pageSize();
    verticalScrollBar()->setRange(0, std::max(0, pageTop(document_.pages()) - room.height()));
    verticalScrollBar()->setPageStep(room.height());
    verticalScrollBar()->setSingleStep(40);
    horizontalScrollBar()->setRange(0, std::max(0, page.width() + 2 * gap - room.width()));
    horizontalScrollBar()->setPageStep(room.width());
    viewport()->update();
}

const QPixmap& PageView::painted(int page) {
    const auto known = painted_.find(page);
    if (known != painted_.end()) return known->second;
    const double ratio = devicePixelRatioF();
    QPixmap pixmap(pageSize() * ratio);
    pixmap.setDevicePixelRatio(ratio);
    pixmap.fill(Qt::white);
    QPainter painter(&pixmap);
    painter.setRenderHints(QPainter::Antialiasing | QPainter::TextAntialiasing);
    painter.scale(zoom_, zoom_);
    document_.paintPage(page, painter);
    return painted_[page] = pixmap;
}

void PageView::paintEvent(QPaintEvent* /*event*/) {
    QPainter painter(viewport());
    painter.fillRect(viewport()->rect(), desk);
    const QSize size = pageSize();
    const int top = verticalScrollBar()->value();
    const int first = std::max(0, (top - gap) / (size.height() + gap));
    const int left = std::max(gap, (viewport()->width() - size.width()) / 2) - horizontalScrollBar()->value();
    int page = first;
    for (; page < document_.pages() && pageTop(page) < top + viewport()->height(); ++page) {
        const QPoint corner(left, pageTop(page) - top);
        painter.fillRect(QRect(corner + QPoint(3, 3), size), shadow);
        painter.drawPixmap(corner, painted(page));
    }
    std::erase_if(painted_, [first, page](const auto& one) { return one.first < first - 1 || one.first > page; });
}

void PageView::resizeEvent(QResizeEvent* event) {
    QAbstractScrollArea::resizeEvent(event);
    const int page = currentPage();
    layOut();
    if (fits_ && page > 0) showPage(page);
}

void PageView::wheelEvent(QWheelEvent* event) {
    if (!event->modifiers().testFlag(Qt::ControlModifier)) {
        QAbstractScrollArea::wheelEvent(event);
        return;
    }
    event->angleDelta().y() > 0 ? zoomIn() : zoomOut();
}

void PageView::keyPressEvent(QKeyEvent* event) {
    switch (event->key()) {
        case Qt::Key_Plus:
            return zoomIn();
        case Qt::Key_Minus:
            return zoomOut();
        case Qt::Key_Home:
            return verticalScrollBar()->setValue(0);
        case Qt::Key_End:
            return verticalScrollBar()->setValue(verticalScrollBar()->maximum());
        case Qt::Key_PageDown:
            return showPage(std::min(currentPage() + 1, document_.pages() - 1));
        case Qt::Key_PageUp:
            return showPage(std::max(currentPage() - 1, 0));
        default:
            QAbstractScrollArea::keyPressEvent(event);
    }
}

}  // namespace vorbano
