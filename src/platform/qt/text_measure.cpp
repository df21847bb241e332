#include "platform/qt/text_measure.h"

#include <QFontDatabase>
#include <QGlyphRun>
#include <QPaintEngine>
#include <QPainter>
#include <algorithm>

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

constexpr std::size_t latin = 256;
/// What the documents write beyond Latin-1.
constexpr std::array<char16_t, 8> furtherCharacters = {u'–', u'—', u'‘', u'’', u'“', u'”', u'…', u'€'};

QString toQt(std::string_view text) { return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size())); }

/// Takes a character of up to three bytes off the front of a UTF-8 text; 0 for a longer or damaged one.
char16_t takeCharacter(std::string_view& text) {
    const auto byte = [&text](std::size_t at) -> unsigned {
        return at < text.size() ? static_cast<unsigned char>(text[at]) : 0U;
    };
    const auto follows = [](unsigned one) { return (one & 0xC0U) == 0x80U; };
    const unsigned lead = byte(0);
    unsigned code = 0;
    std::size_t length = 1;
    if (lead < 0x80) {
        code = lead;
    } else if (lead >= 0xC2 && lead < 0xE0 && follows(byte(1))) {
        code = (lead & 0x1FU) << 6U | (byte(1) & 0x3FU);
        length = 2;
    } else if (lead >= 0xE1 && lead < 0xED && follows(byte(1)) && follows(byte(2))) {
        code = (lead & 0x0FU) << 12U | (byte(1) & 0x3FU) << 6U | (byte(2) & 0x3FU);
        length = 3;
    }
    text.remove_prefix(length);
    return static_cast<char16_t>(code);
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
      raw_(QRawFont::fromFont(font_)),
      ascent_(metrics_.ascent() / fineness),
      lineHeight_((metrics_.ascent() + metrics_.descent()) / fineness) {
    // Control characters and the soft hyphen are left to the toolkit.
    constexpr char16_t softHyphen = 0xAD;
    QString characters(glyphs_.size(), u' ');
    for (char16_t code = ' '; code < latin; ++code) {
        if ((code < 0x7F || code >= 0xA0) && code != softHyphen) characters[code] = code;
    }
    qsizetype behindLatin = latin;
    for (const char16_t code : furtherCharacters) characters[behindLatin++] = code;
    const QList<quint32> indexes = raw_.glyphIndexesForString(characters);
    const QList<QPointF> advances = raw_.advancesForGlyphIndexes(indexes);
    if (indexes.size() != characters.size() || advances.size() != characters.size()) return;
    for (qsizetype at = ' '; at < indexes.size(); ++at) {
        if (characters[at] == u' ' && at != u' ') continue;
        glyphs_[static_cast<std::size_t>(at)] = {indexes[at], advances[at].x() / fineness};
    }
}

/// Takes the next character off the text. nullptr for one that is not in the table.
const TextMeasure::Glyph* TextMeasure::nextGlyph(std::string_view& text) const {
    const char16_t code = takeCharacter(text);
    std::size_t at = code;
    if (at >= latin) {
        const auto* const found = std::find(furtherCharacters.begin(), furtherCharacters.end(), code);
        if (found == furtherCharacters.end()) return nullptr;
        at = latin + static_cast<std::size_t>(found - furtherCharacters.begin());
    }
    return glyphs_[at].index == 0 ? nullptr : &glyphs_[at];
}

double TextMeasure::width(std::string_view text) const {
    double width = 0;
    for (std::string_view rest = text; !rest.empty();) {
        const Glyph* glyph = nextGlyph(rest);
        if (glyph == nullptr) return metrics_.horizontalAdvance(toQt(text)) / fineness;
        width += glyph->advance;
    }
    return width;
}

void TextMeasure::use(QPainter& painter) const { painter.setFont(font_); }

void TextMeasure::draw(QPainter& painter, double x, double y, std::string_view text) const {
    TextRun(painter, *this).add(x, y, text);
}

TextRun::TextRun(QPainter& painter, const TextMeasure& font)
    : painter_(painter), font_(font), inOneStroke_(painter.paintEngine()->type() == QPaintEngine::Pdf) {}

void TextRun::add(double x, double y, std::string_view text) {
    if (inOneStroke_ && addGlyphs(x, y, text)) return;
    painter_.drawText(QPointF(x * TextMeasure::fineness, y * TextMeasure::fineness), toQt(text));
}

/// Adds nothing when the text has a character that is not in the table.
bool TextRun::addGlyphs(double x, double y, std::string_view text) {
    const auto before = glyphs_.size();
    while (!text.empty()) {
        const TextMeasure::Glyph* glyph = font_.nextGlyph(text);
        if (glyph == nullptr) {
            glyphs_.resize(before);
            places_.resize(before);
            return false;
        }
        glyphs_.push_back(glyph->index);
        places_.emplace_back(x * TextMeasure::fineness, y * TextMeasure::fineness);
        x += glyph->advance;
    }
    return true;
}

TextRun::~TextRun() {
    if (glyphs_.isEmpty()) return;
    QGlyphRun run;
    run.setRawFont(font_.raw_);
    run.setGlyphIndexes(glyphs_);
    run.setPositions(places_);
    painter_.drawGlyphRun(QPointF(0, 0), run);
}

}  // namespace vorbano
