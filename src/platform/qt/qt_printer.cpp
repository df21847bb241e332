#include "platform/qt/qt_printer.h"

#include <QDir>
#include <QFileDialog>
#include <QPrinter>
#include <QPrinterInfo>
#include <QStandardPaths>

#include "platform/qt/report_document.h"

namespace vorbano {

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

Result<> QtPrinter::print(Document& document, std::string_view title) {
    const auto words = QString::fromUtf8(title.data(), static_cast<qsizetype>(title.size()));
    const auto* report = dynamic_cast<const ReportDocument*>(&document);
    if (report != nullptr && hasPrinter_()) {
        QPrinter printer(QPrinterInfo::defaultPrinter(), QPrinter::HighResolution);
        printer.setDocName(words);
        printer.setFullPage(true);
        return report->paintOn(printer, printer.printerName().toStdString());
    }
    const QString path = ask_(above_ ? above_() : nullptr, proposedPdfName(words));
    return path.isEmpty() ? Result<>() : document.savePdf(path.toStdString());
}

}  // namespace vorbano
