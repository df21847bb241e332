#pragma once

#include <vector>

#include "platform/qt/table_layout.h"

class QPainter;

namespace vorbano {

inline constexpr double pxInMillimetre = 96 / 25.4;

/// A part of a finished document: some text, or a table. It knows the boxes it falls into and can paint any of them.
/// Lengths are px, 96 to the inch.
class DocumentPiece {
  public:
    virtual ~DocumentPiece() = default;
    /// Its boxes from top to bottom. `heading` of a box counts the headings of this piece, from 0.
    [[nodiscard]] virtual std::vector<FlowBox> boxes() const = 0;
    /// The heights of the headings that it repeats on every page.
    [[nodiscard]] virtual std::vector<double> headings() const { return {}; }
    /// Paints the boxes from `first` up to but not including `end`, the top left of the first at the origin.
    virtual void paint(QPainter& painter, int first, int end) const = 0;
    virtual void paintHeading(QPainter& /*painter*/, int /*heading*/) const {}
};

}  // namespace vorbano
