#pragma once

#include <QFont>
#include <QFontMetricsF>
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

    /// Sets up a painter that is already `scaled` for painting texts with `draw`.
    void use(QPainter& painter) const;
    /// Paints a line with its baseline at (x, y).
    void draw(QPainter& painter, double x, double y, std::string_view text) const;

    /// Fonts have whole sizes, so they are taken this many times larger and painted that much smaller.
    static constexpr double fineness = 16;

  private:
    QFont font_;
    QFontMetricsF metrics_;
    std::array<double, 128> advances_{};
    double ascent_;
    double lineHeight_;
};

}  // namespace vorbano
