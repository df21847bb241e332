#include "platform/qt/window_icons.h"

#include <QApplication>
#include <QIconEngine>
#include <QPainter>
#include <QPainterPath>
#include <QPalette>
#include <map>

namespace vorbano {

namespace {

// All pictures are lines of one width on a field of 16 by 16.

QPainterPath save() {
    QPainterPath path;
    path.moveTo(2.5, 2.5);
    path.lineTo(11, 2.5);
    path.lineTo(13.5, 5);
    path.lineTo(13.5, 13.5);
    path.lineTo(2.5, 13.5);
    path.closeSubpath();
    path.addRect(QRectF(5, 9, 6, 4.5));
    path.addRect(QRectF(5, 2.5, 5, 3));
    return path;
}

QPainterPath search() {
    QPainterPath path;
    path.addEllipse(QPointF(6.5, 6.5), 4, 4);
    path.moveTo(9.5, 9.5);
    path.lineTo(13.5, 13.5);
    return path;
}

QPainterPath print() {
    QPainterPath path;
    path.addRect(QRectF(4.5, 2.5, 7, 3.5));
    path.addRect(QRectF(2.5, 6, 11, 5));
    path.addRect(QRectF(4.5, 9, 7, 4.5));
    return path;
}

QPainterPath add() {
    QPainterPath path;
    path.moveTo(8, 3);
    path.lineTo(8, 13);
    path.moveTo(3, 8);
    path.lineTo(13, 8);
    return path;
}

QPainterPath close() {
    QPainterPath path;
    path.addRect(QRectF(2.5, 2.5, 6, 11));
    path.moveTo(6, 8);
    path.lineTo(13.5, 8);
    path.moveTo(11, 5.5);
    path.lineTo(13.5, 8);
    path.lineTo(11, 10.5);
    return path;
}

QPainterPath confirm() {
    QPainterPath path;
    path.moveTo(3, 8.5);
    path.lineTo(6.5, 12);
    path.lineTo(13, 4.5);
    return path;
}

QPainterPath cancel() {
    QPainterPath path;
    path.moveTo(4, 4);
    path.lineTo(12, 12);
    path.moveTo(12, 4);
    path.lineTo(4, 12);
    return path;
}

QPainterPath more() {
    QPainterPath path;
    for (const qreal left : {4.0, 8.5}) {
        path.moveTo(left, 4);
        path.lineTo(left + 4, 8);
        path.lineTo(left, 12);
    }
    return path;
}

QPainterPath calculate() {
    QPainterPath path;
    path.addRoundedRect(QRectF(3.5, 2, 9, 12), 1, 1);
    path.addRect(QRectF(5.5, 4, 5, 2));
    for (const double y : {8.5, 11.0}) {
        for (const double x : {5.8, 8.0, 10.2}) {
            path.moveTo(x - 0.3, y);
            path.lineTo(x + 0.3, y);
        }
    }
    return path;
}

class DrawnIcon : public QIconEngine {
  public:
    explicit DrawnIcon(const QPainterPath& path) : path_(path) {}

    void paint(QPainter* painter, const QRect& rect, QIcon::Mode mode, QIcon::State state) override {
        (void)state;
        const auto group = mode == QIcon::Disabled ? QPalette::Disabled : QPalette::Active;
        painter->save();
        painter->setRenderHint(QPainter::Antialiasing);
        painter->translate(rect.topLeft());
        painter->scale(rect.width() / 16.0, rect.height() / 16.0);
        const QColor colour = QGuiApplication::palette().color(group, QPalette::ButtonText);
        painter->setPen(QPen(colour, 1.4, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
        painter->drawPath(path_);
        painter->restore();
    }

    QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) override {
        QPixmap picture(size);
        picture.fill(Qt::transparent);
        QPainter painter(&picture);
        paint(&painter, QRect(QPoint(), size), mode, state);
        return picture;
    }

    [[nodiscard]] QIconEngine* clone() const override { return new DrawnIcon(path_); }

  private:
    QPainterPath path_;
};

/// A picture that is not read before somebody asks for it: many desktops have a picture of the program of their own.
class LateIcon : public QIconEngine {
  public:
    explicit LateIcon(QString path) : path_(std::move(path)) {}

    void paint(QPainter* painter, const QRect& rect, QIcon::Mode mode, QIcon::State state) override {
        icon().paint(painter, rect, Qt::AlignCenter, mode, state);
    }
    QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) override {
        return icon().pixmap(size, mode, state);
    }
    QSize actualSize(const QSize& size, QIcon::Mode mode, QIcon::State state) override {
        return icon().actualSize(size, mode, state);
    }
    QList<QSize> availableSizes(QIcon::Mode mode, QIcon::State state) override {
        return icon().availableSizes(mode, state);
    }
    [[nodiscard]] QIconEngine* clone() const override { return new LateIcon(path_); }

  private:
    const QIcon& icon() {
        if (icon_.isNull()) icon_ = QIcon(path_);
        return icon_;
    }

    QString path_;
    QIcon icon_;
};

}  // namespace

QIcon programIcon() { return QIcon(new LateIcon(QStringLiteral(":/windows/vorbano.png"))); }

QIcon drawnIcon(const QString& name) {
    static const std::map<QString, QPainterPath (*)()> pictures{
        {"save", save},       {"search", search}, {"print", print},         {"add", add},   {"close", close},
        {"confirm", confirm}, {"cancel", cancel}, {"calculate", calculate}, {"more", more},
    };
    const auto at = pictures.find(name);
    return at == pictures.end() ? QIcon() : QIcon(new DrawnIcon(at->second()));
}

QPixmap drawnSign(Icon icon, int size, qreal pixelRatio) {
    static const std::map<Icon, std::pair<const char*, const char*>> signs{
        {Icon::information, {"#2b5d8c", "i"}},
        {Icon::question, {"#2b5d8c", "?"}},
        {Icon::warning, {"#b8741a", "!"}},
        {Icon::error, {"#9b2c2c", "\u00d7"}},
    };
    const auto at = signs.find(icon);
    if (at == signs.end()) return {};
    QPixmap picture(QSize(size, size) * pixelRatio);
    picture.setDevicePixelRatio(pixelRatio);
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor(at->second.first));
    const QRectF field(1, 1, size - 2, size - 2);
    painter.drawEllipse(field);
    QFont font = QApplication::font();
    font.setBold(true);
    font.setPixelSize(size * 6 / 10);
    painter.setFont(font);
    painter.setPen(Qt::white);
    painter.drawText(field, Qt::AlignCenter, QString::fromUtf8(at->second.second));
    return picture;
}

}  // namespace vorbano
