#include "platform/qt/qt_printer.h"

#include <QDir>
#include <QFileDialog>
#include <QPdfWriter>
#include <QPrinter>
#include <QPrinterInfo>
#include <QStandardPaths>

#include "platform/qt/report_document.h"

namespace vorbano {

namespace {

/// Takes everything and keeps nothing.
class Nowhere : public QIODevice {
  public:
    Nowhere() { setOpenMode(QIODevice::WriteOnly); }

  protected:
    qint64 readData(char* /*data*/, qint64 /*most*/) override { return -1; }
    qint64 writeData(const char* /*data*/, qint64 length) override { return length; }
};

}  // namespace

QString proposedPdfName(const QString& title) {
    QString name;
    for (const QChar c : title) name += QStringLiteral("/\\:*?\"<>|\n\t").contains(c) ? QChar(' ') : c;
    name = name.simplified();
    return (name.isEmpty() ? QStringLiteral("Documento") : name) + ".pdf";
}

QString askPdfFile(QWidget* above, const QString& proposed) {
    const QString folder = QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
    QFileDialog dialog(above, QStringLiteral("Salva il documento in PDF"), folder,
                       QStringLiteral("Documento PDF (*.pdf)"));
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    dialog.setDefaultSuffix("pdf");
    dialog.selectFile(proposed);
    dialog.setLabelText(QFileDialog::Accept, QStringLiteral("Salva"));
    dialog.setLabelText(QFileDialog::Reject, QStringLiteral("Annulla"));
    dialog.setLabelText(QFileDialog::FileName, QStringLiteral("Nome del file:"));
    dialog.setLabelText(QFileDialog::FileType, QStringLiteral("Tipo di file:"));
    dialog.setLabelText(QFileDialog::LookIn, QStringLiteral("Cartella:"));
    if (dialog.exec() != QDialog::Accepted || dialog.selectedFiles().isEmpty()) return {};
    return dialog.selectedFiles().constFirst();
}

bool QtPrinter::hasDefaultPrinter() { return !QPrinterInfo::defaultPrinter().isNull(); }

OpenedPrinter openDefaultPrinter(const QString& title) {
    auto printer = std::make_unique<QPrinter>(QPrinterInfo::defaultPrinter(), QPrinter::HighResolution);
    printer->setDocName(title);
    printer->setFullPage(true);
    const std::string name = printer->printerName().toStdString();
    return {std::move(printer), name};
}

/// What a spooler was given cannot be taken back on every system. So all pages are painted once for nobody, which the
/// clerk can stop, and only then for the printer.
Result<> QtPrinter::paint(const ReportDocument& document, const QString& title, JobWatch& watch) const {
    const int pages = document.pages();
    {
        Nowhere nowhere;
        QPdfWriter rehearsal(&nowhere);
        const auto painted = document.paintOn(rehearsal, title.toStdString(), watch, 0, 2 * pages);
        if (!painted) return painted.error();
        if (!*painted) return {};
    }
    watch.cannotStopNow();
    const OpenedPrinter printer = open_(title);
    const auto printed = document.paintOn(*printer.device, printer.name, watch, pages, 2 * pages);
    return printed ? Result<>() : printed.error();
}

Result<> QtPrinter::print(Document& document, std::string_view title) {
    const auto words = QString::fromUtf8(title.data(), static_cast<qsizetype>(title.size()));
    QWidget* above = above_ ? above_() : nullptr;
    const auto* report = dynamic_cast<const ReportDocument*>(&document);
    if (report != nullptr && hasPrinter_()) return paint(*report, words, *watch_(above, words));
    const QString path = ask_(above, proposedPdfName(words));
    if (path.isEmpty()) return {};
    if (report == nullptr) return document.savePdf(path.toStdString());
    const auto written = report->writePdf(path.toStdString(), *watch_(above, words));
    return written ? Result<>() : written.error();
}

}  // namespace vorbano
