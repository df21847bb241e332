#include "page_texts.h"

#include <QPaintDevice>
#include <QPaintEngine>
#include <QPainter>
#include <algorithm>

namespace vorbano::test {

namespace {

/// Takes down every text that is painted, and paints nothing.
class TextEngine : public QPaintEngine {
  public:
    TextEngine() : QPaintEngine(QPaintEngine::AllFeatures) {}

    bool begin(QPaintDevice* /*device*/) override { return true; }
    bool end() override { return true; }
    void updateState(const QPaintEngineState& /*state*/) override {}
    void drawPixmap(const QRectF& /*to*/, const QPixmap& /*pixmap*/, const QRectF& /*from*/) override {}
    void drawPath(const QPainterPath& /*path*/) override {}
    void drawPolygon(const QPointF* /*points*/, int /*count*/, PolygonDrawMode /*mode*/) override {}
    void drawPolygon(const QPoint* /*points*/, int /*count*/, PolygonDrawMode /*mode*/) override {}
    void drawTextItem(const QPointF& point, const QTextItem& item) override {
        const QPointF place = painter()->worldTransform().map(point);
        texts.push_back({place.x(), place.y(), item.text().toStdString()});
    }
    [[nodiscard]] Type type() const override { return QPaintEngine::User; }

    std::vector<PageText> texts;
};

class TextDevice : public QPaintDevice {
  public:
    [[nodiscard]] QPaintEngine* paintEngine() const override { return &engine; }
    mutable TextEngine engine;

  protected:
    [[nodiscard]] int metric(PaintDeviceMetric metric) const override {
        switch (metric) {
            case PdmWidth:
            case PdmHeight:
                return 10000;
            case PdmDpiX:
            case PdmDpiY:
            case PdmPhysicalDpiX:
            case PdmPhysicalDpiY:
                return 96;
            case PdmDevicePixelRatio:
                return 1;
            default:
                return QPaintDevice::metric(metric);
        }
    }
};

}  // namespace

std::vector<PageText> textsOf(const ReportDocument& document, int page) {
    TextDevice device;
    QPainter painter(&device);
    document.paintPage(page, painter);
    painter.end();
    return std::move(device.engine.texts);
}

std::string pageText(const ReportDocument& document, int page) {
    std::string all;
    for (const PageText& text : textsOf(document, page)) all += text.text + '\n';
    return all;
}

std::string allText(const ReportDocument& document) {
    std::string all;
    for (int page = 0; page < document.pages(); ++page) all += pageText(document, page);
    return all;
}

int timesOn(const ReportDocument& document, int page, const std::string& text) {
    const auto texts = textsOf(document, page);
    return static_cast<int>(
        std::count_if(texts.begin(), texts.end(), [&](const PageText& one) { return one.text == text; }));
}

}  // namespace vorbano::test
