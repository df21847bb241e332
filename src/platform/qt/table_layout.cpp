#include "platform/qt/table_layout.h"

#include <algorithm>
#include <numeric>

namespace vorbano {

namespace {

/// Room for sums of many heights that should fill a page exactly.
constexpr double tolerance = 1e-6;

/// One past the last box that has to stand on the page of the box at `first`.
int endOfGroup(std::span<const FlowBox> boxes, int first) {
    int at = first;
    const int last = static_cast<int>(boxes.size()) - 1;
    while (at < last && boxes[static_cast<std::size_t>(at)].withNext &&
           !boxes[static_cast<std::size_t>(at) + 1].breakBefore) {
        ++at;
    }
    return at + 1;
}

double heightOf(std::span<const FlowBox> boxes, int first, int end) {
    double height = 0;
    for (int at = first; at < end; ++at) height += boxes[static_cast<std::size_t>(at)].height;
    return height;
}

/// Fills page after page with groups of boxes.
class PageFiller {
  public:
    PageFiller(std::span<const FlowBox> boxes, std::span<const double> headings, double height)
        : boxes_(boxes), headings_(headings), height_(height) {}

    std::vector<PageRange> fill() {
        const int count = static_cast<int>(boxes_.size());
        for (int at = 0; at < count;) {
            const int end = endOfGroup(boxes_, at);
            if (box(at).breakBefore && used_) beginPage(at);
            const double group = heightOf(boxes_, at, end);
            if (group > room() && used_) beginPage(at);
            if (group <= room()) {
                take(at, end);
                at = end;
            } else {
                takeApart(at, end);
                at = end;
            }
        }
        return std::move(pages_);
    }

  private:
    [[nodiscard]] const FlowBox& box(int at) const { return boxes_[static_cast<std::size_t>(at)]; }
    [[nodiscard]] double room() const { return height_ - filled_ + tolerance; }

    void beginPage(int at) {
        const int heading = box(at).heading;
        pages_.push_back({at, at, heading});
        filled_ = heading < 0 ? 0 : headings_[static_cast<std::size_t>(heading)];
        used_ = false;
    }

    void take(int at, int end) {
        pages_.back().end = end;
        filled_ += heightOf(boxes_, at, end);
        used_ = true;
    }

    /// A group longer than a page holds together as little as it must.
    void takeApart(int at, int end) {
        for (; at < end; ++at) {
            if (box(at).height > room() && used_) beginPage(at);
            take(at, at + 1);
        }
    }

    std::span<const FlowBox> boxes_;
    std::span<const double> headings_;
    double height_;
    std::vector<PageRange> pages_{PageRange{}};
    double filled_ = 0;
    bool used_ = false;
};

/// Bytes of the UTF-8 character that begins with this byte.
std::size_t characterLength(char lead) {
    const auto byte = static_cast<unsigned char>(lead);
    if (byte < 0xC0) return 1;
    if (byte < 0xE0) return 2;
    return byte < 0xF0 ? 3 : 4;
}

/// The longest beginning of `text` that is not wider than `width`, at least one character.
std::size_t fittingBytes(std::string_view text, double width, const std::function<double(std::string_view)>& measure) {
    std::size_t fitting = std::min(characterLength(text.front()), text.size());
    while (fitting < text.size()) {
        const std::size_t longer = std::min(fitting + characterLength(text[fitting]), text.size());
        if (measure(text.substr(0, longer)) > width) break;
        fitting = longer;
    }
    return fitting;
}

/// Breaks a paragraph, a text without line breaks, behind the lines there are.
void breakParagraph(std::vector<std::string>& lines, std::string_view text, double width,
                    const std::function<double(std::string_view)>& measure) {
    std::string line;
    while (!text.empty()) {
        const auto end = std::min(text.find(' '), text.size());
        std::string_view word = text.substr(0, end);
        text.remove_prefix(std::min(end + 1, text.size()));
        if (word.empty()) continue;
        const std::string longer = line.empty() ? std::string(word) : line + ' ' + std::string(word);
        if (measure(longer) <= width) {
            line = longer;
            continue;
        }
        if (!line.empty()) lines.push_back(std::move(line));
        while (measure(word) > width) {
            const std::size_t fitting = fittingBytes(word, width, measure);
            if (fitting == word.size()) break;
            lines.emplace_back(word.substr(0, fitting));
            word.remove_prefix(fitting);
        }
        line = std::string(word);
    }
    lines.push_back(std::move(line));
}

}  // namespace

std::vector<PageRange> breakIntoPages(std::span<const FlowBox> boxes, std::span<const double> headings,
                                      double pageHeight) {
    return PageFiller(boxes, headings, pageHeight).fill();
}

std::vector<double> columnWidths(std::span<const double> wishes, double width, double leastShare) {
    std::vector<double> widths(wishes.begin(), wishes.end());
    const auto shares = static_cast<double>(std::count(widths.begin(), widths.end(), 0.0));
    const double wished = std::accumulate(widths.begin(), widths.end(), 0.0);
    if (shares > 0) {
        const double share = std::max(leastShare, (width - wished) / shares);
        std::replace(widths.begin(), widths.end(), 0.0, share);
    }
    const double all = std::accumulate(widths.begin(), widths.end(), 0.0);
    if (all > width) {
        for (double& one : widths) one *= width / all;
    }
    return widths;
}

std::vector<std::string> breakIntoLines(std::string_view text, double width,
                                        const std::function<double(std::string_view)>& measure) {
    std::vector<std::string> lines;
    while (true) {
        const auto end = text.find('\n');
        breakParagraph(lines, text.substr(0, end), width, measure);
        if (end == std::string_view::npos) return lines;
        text.remove_prefix(end + 1);
    }
}

}  // namespace vorbano
