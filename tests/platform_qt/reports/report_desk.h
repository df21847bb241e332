#pragma once

#include <gmock/gmock.h>

#include <map>
#include <string>

#include "page_texts.h"
#include "platform/qt/layout.h"
#include "platform/qt/report_renderer.h"
#include "platform/qt/sqlite_database.h"
#include "support/results.h"
#include "support/temporary_folder.h"

namespace vorbano::test {

/// Layouts that stand in a map instead of a folder.
using Layouts = std::map<std::string, std::string, std::less<>>;
[[nodiscard]] LayoutSource sourceOf(Layouts layouts);
/// The layouts as they were laid under a root.
[[nodiscard]] LayoutSource sourceUnder(const std::string& root);

/// A new installation and its staging database.
class ReportDesk : public ::testing::Test {
  protected:
    ReportDesk();

    /// Renders the layout "prova.rpt" with this text.
    Result<std::unique_ptr<ReportDocument>> render(const std::string& text, Layouts parts = {});
    /// Renders a delivered layout.
    Result<std::unique_ptr<ReportDocument>> renderDelivered(std::string_view layout, std::string_view title = "");
    void append(std::string_view table, const Row& row);
    /// The row of headings.
    void appendHeading(const std::string& municipality = "CASTELFRANCO VENETO");
    /// Employees 1 to `count`, called "DIPENDENTE n", each with 2 hours of the first kind in the first period, 10,00 an
    /// hour, 20,00 due, 4,76 of contributions, 1,70 of IRAP.
    void appendEmployees(int count);

    TemporaryFolder folder_;
    std::string root_;
    SqliteDatabase database_;
};

}  // namespace vorbano::test
