#pragma once

#include <QFont>
#include <QFontMetricsF>
#include <QList>
#include <QPointF>
#include <QRawFont>
#include <array>
#include <string>
#include <string_view>
#include <vector>

class QPainter;

namespace vorbano {

/// The first of these families that the machine has; the system's own when it has none.
[[nodiscard]] QString firstFamily(const std::vector<std::string>& families);

/// A font for the cells of long tables: sizes in px, widths from a table of the characters' advances, without kerning,
/// so that a million of cells can be measured.
class TextMeasure {
  public:
    TextMeasure(const QString& family, double size, bool bold);

    /// Width of a line of UTF-8 text.
    [[nodiscard]] double width(std::string_view text) const;
    [[nodiscard]] double ascent() const { return ascent_; }
    [[nodiscard]] double lineHeight() const { return lineHeight_; }

    /// Sets up a painter that is already `scaled` for painting texts with `draw` or a `TextRun`.
    void use(QPainter& painter) const;
    /// Paints a line with its baseline at (x, y).
    void draw(QPainter& painter, double x, double y, std::string_view text) const;

    /// Fonts have whole sizes, so they are taken this many times larger and painted that much smaller.
    static constexpr double fineness = 16;

  private:
    friend class TextRun;
    struct Glyph {
        quint32 index = 0;  ///< 0: the font has none, or the toolkit does more with the character than to paint it
        double advance = 0;
    };
    [[nodiscard]] const Glyph* nextGlyph(std::string_view& text) const;

    QFont font_;
    QFontMetricsF metrics_;
    QRawFont raw_;
    /// Of the characters of Latin-1, and behind them those of `furtherCharacters`.
    std::array<Glyph, 256 + 8> glyphs_{};
    double ascent_;
    double lineHeight_;
};

/// Texts of one font, such as the cells of a row. On their way into a file they are painted in one stroke, when the run
/// ends: what is written for each stroke would be most of a table of twenty columns.
class TextRun {
  public:
    /// The painter was handed to `font.use`, and keeps its scale and pen as long as the run lives.
    TextRun(QPainter& painter, const TextMeasure& font);
    ~TextRun();
    TextRun(const TextRun&) = delete;
    TextRun& operator=(const TextRun&) = delete;

    [[nodiscard]] const TextMeasure& font() const { return font_; }
    /// A line with its baseline at (x, y).
    void add(double x, double y, std::string_view text);

  private:
    bool addGlyphs(double x, double y, std::string_view text);

    QPainter& painter_;
    const TextMeasure& font_;
    bool inOneStroke_;
    QList<quint32> glyphs_;
    QList<QPointF> places_;
};

}  // namespace vorbano
