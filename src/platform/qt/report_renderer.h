#pragma once

#include <memory>

#include "platform/print_engine.h"
#include "platform/qt/layout.h"
#include "platform/qt/report_document.h"
#include "platform/qt/sqlite_database.h"

namespace vorbano {

/// Makes documents from the layouts of a folder and what is in the staging database now.
class QtRenderer : public Renderer {
  public:
    QtRenderer(SqliteDatabase& database, LayoutSource layouts) : database_(database), layouts_(std::move(layouts)) {}

    Result<std::unique_ptr<Document>> render(std::string_view layout, std::string_view title) override;
    /// The same, for who wants to paint the pages. A document without a title is called by its layout's foot.
    Result<std::unique_ptr<ReportDocument>> document(std::string_view layout, std::string_view title);

  private:
    SqliteDatabase& database_;
    LayoutSource layouts_;
};

}  // namespace vorbano
