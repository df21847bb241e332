#pragma once

#include <functional>

#include "platform/print_engine.h"
#include "platform/qt/report_renderer.h"

class QWidget;

namespace vorbano {

/// Renders a document, then shows it in the preview window, or hands it to the printer. What fails is given back and
/// told by whoever asked for the document.
class QtPrintEngine : public PrintEngine {
  public:
    /// `above`: the window that the preview stands above; it may give nullptr.
    QtPrintEngine(QtRenderer& renderer, Printer& printer, std::function<QWidget*()> above)
        : renderer_(renderer), printer_(printer), above_(std::move(above)) {}

    Result<> run(const PrintJob& job) override;
    Result<> printPage(const PlainPage& page) override;

  private:
    QtRenderer& renderer_;
    Printer& printer_;
    std::function<QWidget*()> above_;
};

}  // namespace vorbano
