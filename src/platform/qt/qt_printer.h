#pragma once

#include <QString>
#include <functional>

#include "platform/print_engine.h"

class QWidget;

namespace vorbano {

/// Asks the clerk where to put a PDF: the window above which to ask, and the name proposed. "" when he thinks better of
/// it.
using AskPdfFile = std::function<QString(QWidget* above, const QString& proposed)>;
/// The file dialog, in Italian.
[[nodiscard]] QString askPdfFile(QWidget* above, const QString& proposed);

/// The name of a file proposed for a document: its title, without what a name of a file cannot hold.
[[nodiscard]] QString proposedPdfName(const QString& title);

/// The default printer of the machine; where there is none, a PDF under the name that the clerk chooses.
class QtPrinter : public Printer {
  public:
    /// `above` as for the preview. The last two are replaced where nobody is there to be asked.
    explicit QtPrinter(std::function<QWidget*()> above, AskPdfFile ask = askPdfFile,
                       std::function<bool()> hasPrinter = hasDefaultPrinter)
        : above_(std::move(above)), ask_(std::move(ask)), hasPrinter_(std::move(hasPrinter)) {}

    /// Succeeds, having done nothing, when the clerk chooses no file.
    Result<> print(Document& document, std::string_view title) override;
    [[nodiscard]] static bool hasDefaultPrinter();

  private:
    std::function<QWidget*()> above_;
    AskPdfFile ask_;
    std::function<bool()> hasPrinter_;
};

}  // namespace vorbano
