#pragma once

#include <string>
#include <vector>

#include "platform/qt/report_document.h"

namespace vorbano::test {

/// A piece of text on a page and where it begins, in px from the corner of the sheet.
struct PageText {
    double x = 0;
    double y = 0;
    std::string text;
};

/// What a page (from 0) shows, in the order of painting.
[[nodiscard]] std::vector<PageText> textsOf(const ReportDocument& document, int page);

/// The texts of a page, one a line.
[[nodiscard]] std::string pageText(const ReportDocument& document, int page);
/// The same of all pages.
[[nodiscard]] std::string allText(const ReportDocument& document);
/// How often a text stands on a page by itself.
[[nodiscard]] int timesOn(const ReportDocument& document, int page, const std::string& text);

}  // namespace vorbano::test
