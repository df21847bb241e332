#pragma once

#include <QPagedPaintDevice>
#include <QString>
#include <functional>

#include "platform/print_engine.h"
#include "platform/qt/progress_window.h"

class QWidget;

namespace vorbano {

class ReportDocument;

/// Asks the clerk where to put a PDF: the window above which to ask, and the name proposed. "" when he thinks better of
/// it.
using AskPdfFile = std::function<QString(QWidget* above, const QString& proposed)>;
/// The file dialog, in Italian.
[[nodiscard]] QString askPdfFile(QWidget* above, const QString& proposed);

/// The name of a file proposed for a document: its title, without what a name of a file cannot hold.
[[nodiscard]] QString proposedPdfName(const QString& title);

/// A printer ready to begin with a document of this title, and what it is called.
struct OpenedPrinter {
    std::unique_ptr<QPagedPaintDevice> device;
    std::string name;
};
using OpenPrinter = std::function<OpenedPrinter(const QString& title)>;
[[nodiscard]] OpenedPrinter openDefaultPrinter(const QString& title);

/// The default printer of the machine; where there is none, a PDF under the name that the clerk chooses.
class QtPrinter : public Printer {
  public:
    /// `above` as for the preview. The others are replaced where nobody is there to be asked, and no printer either.
    explicit QtPrinter(std::function<QWidget*()> above, AskPdfFile ask = askPdfFile,
                       std::function<bool()> hasPrinter = hasDefaultPrinter, OpenPrinter open = openDefaultPrinter,
                       MakeWatch watch = progressWindow)
        : above_(std::move(above)),
          ask_(std::move(ask)),
          hasPrinter_(std::move(hasPrinter)),
          open_(std::move(open)),
          watch_(std::move(watch)) {}

    /// Succeeds, having done nothing, when the clerk chooses no file, or stops a job that takes long.
    Result<> print(Document& document, std::string_view title) override;
    [[nodiscard]] static bool hasDefaultPrinter();

  private:
    Result<> paint(const ReportDocument& document, const QString& title, JobWatch& watch) const;

    std::function<QWidget*()> above_;
    AskPdfFile ask_;
    std::function<bool()> hasPrinter_;
    OpenPrinter open_;
    MakeWatch watch_;
};

}  // namespace vorbano
