#pragma once

#include <functional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

// How a document falls into lines, columns and pages: plain arithmetic that knows no font and no printer. Lengths are
// in any one unit.

namespace vorbano {

/// A piece of a document that no page break goes through: a line of text, a row of a table.
struct FlowBox {
    double height = 0;
    /// The next box has to stand on the same page, unless the boxes that hold together so are longer than a page.
    bool withNext = false;
    /// Begins a new page.
    bool breakBefore = false;
    /// Which heading is repeated when a page begins with this box; -1 none. A heading itself has none.
    int heading = -1;
};

/// The boxes from `first` up to but not including `end`, below the repeated heading if there is one.
struct PageRange {
    int first = 0;
    int end = 0;
    int heading = -1;
    friend bool operator==(const PageRange&, const PageRange&) = default;
};

/// Breaks a flow of boxes into pages. `headings` are the heights of the headings that a page repeats. There is always
/// at least one page. A box higher than a page has a page of its own.
[[nodiscard]] std::vector<PageRange> breakIntoPages(std::span<const FlowBox> boxes, std::span<const double> headings,
                                                    double pageHeight);

/// Widths of the columns of a table: those wished for, where 0 takes an equal share of what the others leave. Columns
/// that wish for more than there is are all narrowed alike; a share is never less than `leastShare`.
[[nodiscard]] std::vector<double> columnWidths(std::span<const double> wishes, double width, double leastShare);

/// Breaks a text into lines: at "\n", at blanks where a line would be too wide, and inside a word that is wider than a
/// line. There is always at least one line. Bytes of one UTF-8 character stay together.
[[nodiscard]] std::vector<std::string> breakIntoLines(std::string_view text, double width,
                                                      const std::function<double(std::string_view)>& measure);

}  // namespace vorbano
