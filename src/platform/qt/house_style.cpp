#include "platform/qt/house_style.h"

#include <QPainter>
#include <QProxyStyle>
#include <QStyleFactory>
#include <QStyleOption>

#include "platform/qt/window_icons.h"

namespace vorbano {

namespace {

/// The style sheet draws the ring of the focus but for the combo box, whose arrow it cannot draw without a picture.
class HouseStyle : public QProxyStyle {
  public:
    explicit HouseStyle(bool compact)
        : QProxyStyle(QStyleFactory::create(QStringLiteral("Fusion"))), compact_(compact) {}

    int pixelMetric(PixelMetric metric, const QStyleOption* option, const QWidget* widget) const override {
        const int usual = QProxyStyle::pixelMetric(metric, option, widget);
        const bool air =
            metric == PM_LayoutTopMargin || metric == PM_LayoutBottomMargin || metric == PM_LayoutVerticalSpacing;
        return compact_ && air ? usual / 2 : usual;
    }

    /// Every menu bar asks at once for the arrow behind entries that find no room. The toolkit has it in a file, and
    /// would load all that it knows of kinds of pictures to read it.
    QIcon standardIcon(StandardPixmap which, const QStyleOption* option, const QWidget* widget) const override {
        if (which == SP_ToolBarHorizontalExtensionButton) return drawnIcon(QStringLiteral("more"));
        return QProxyStyle::standardIcon(which, option, widget);
    }

    void drawComplexControl(ComplexControl control, const QStyleOptionComplex* option, QPainter* painter,
                            const QWidget* widget) const override {
        QProxyStyle::drawComplexControl(control, option, painter, widget);
        if (control != CC_ComboBox || !option->state.testFlag(State_HasFocus)) return;
        painter->save();
        painter->setRenderHint(QPainter::Antialiasing);
        painter->setPen(QPen(option->palette.color(QPalette::Highlight), 2));
        painter->setBrush(Qt::NoBrush);
        painter->drawRoundedRect(QRectF(option->rect).adjusted(1, 1, -1, -1), 3, 3);
        painter->restore();
    }

  private:
    bool compact_;
};

}  // namespace

QStyle* makeHouseStyle(bool compact) { return new HouseStyle(compact); }

}  // namespace vorbano
