#include "platform/qt/report_engine.h"

#include "platform/qt/plain_document.h"
#include "platform/qt/preview_window.h"

namespace vorbano {

Result<> QtPrintEngine::run(const PrintJob& job) {
    const auto document = renderer_.document(job.layout, job.title);
    if (!document) return document.error();
    if (job.destination == Destination::printer) return printer_.print(**document, (*document)->title().toStdString());
    PreviewWindow window(**document, printer_, QString::fromStdString(job.title), above_ ? above_() : nullptr);
    window.exec();
    return {};
}

Result<> QtPrintEngine::printPage(const PlainPage& page) { return printer_.print(*plainDocument(page), page.title); }

}  // namespace vorbano
