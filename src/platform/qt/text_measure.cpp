#include "platform/qt/text_measure.h"

#include <QFontDatabase>
#include <QPainter>

namespace vorbano {

namespace {

QFont fineFont(const QString& family, double size, bool bold) {
    QFont font(family);
    font.setPixelSize(qRound(size * TextMeasure::fineness));
    font.setBold(bold);
    font.setKerning(false);
    font.setStyleStrategy(static_cast<QFont::StyleStrategy>(QFont::PreferOutline | QFont::PreferNoShaping));
    font.setHintingPreference(QFont::PreferNoHinting);
    return font;
}

}  // namespace

QString firstFamily(const std::vector<std::string>& families) {
    const QStringList there = QFontDatabase::families();
    for (const std::string& family : families) {
        QString name = QString::fromStdString(family);
        if (there.contains(name, Qt::CaseInsensitive)) return name;
    }
    return QFontDatabase::systemFont(QFontDatabase::GeneralFont).family();
}

TextMeasure::TextMeasure(const QString& family, double size, bool bold)
    : font_(fineFont(family, size, bold)),
      metrics_(font_),
      ascent_(metrics_.ascent() / fineness),
      lineHeight_((metrics_.ascent() + metrics_.descent()) / fineness) {
    for (std::size_t code = ' '; code < advances_.size(); ++code) {
        advances_[code] = metrics_.horizontalAdvance(QChar(static_cast<char16_t>(code))) / fineness;
    }
}

double TextMeasure::width(std::string_view text) const {
    double width = 0;
    for (const char byte : text) {
        const auto code = static_cast<unsigned char>(byte);
        if (code >= advances_.size()) {
            const auto whole = QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
            return metrics_.horizontalAdvance(whole) / fineness;
        }
        width += advances_[code];
    }
    return width;
}

void TextMeasure::use(QPainter& painter) const { painter.setFont(font_); }

void TextMeasure::draw(QPainter& painter, double x, double y, std::string_view text) const {
    painter.drawText(QPointF(x * fineness, y * fineness),
                     QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size())));
}

}  // namespace vorbano
