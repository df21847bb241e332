#pragma once

#include <memory>

#include "platform/qt/report_document.h"

namespace vorbano {

/// A plain page as a document on upright A4.
[[nodiscard]] std::unique_ptr<ReportDocument> plainDocument(const PlainPage& page);

}  // namespace vorbano
