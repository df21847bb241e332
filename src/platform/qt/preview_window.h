#pragma once

#include <QDialog>

#include "platform/qt/page_view.h"
#include "platform/qt/qt_printer.h"
#include "platform/qt/report_document.h"

class QLabel;
class QLayout;
class QToolButton;

namespace vorbano {

/// Shows a document before it is printed, with "Salva PDF", "Stampa" and "Chiudi". The dialog is called "anteprima".
class PreviewWindow : public QDialog {
    Q_OBJECT
  public:
    /// An empty title is "Anteprima di stampa".
    PreviewWindow(ReportDocument& document, Printer& printer, const QString& title, QWidget* above = nullptr,
                  AskPdfFile ask = askPdfFile);

    [[nodiscard]] ReportDocument& document() const { return document_; }

  public slots:
    /// Asks for a name and writes the file; what fails is told at the foot of the window.
    void savePdf();
    void print();

  private:
    QLayout* makeTools();
    QToolButton* makeTool(const QString& text, const QString& hint, const QString& name);
    void tell(const QString& words, bool failure);
    void showPageNumber(int page);

    ReportDocument& document_;
    Printer& printer_;
    AskPdfFile ask_;
    PageView* pages_;
    QLabel* number_;
    QLabel* words_;
};

}  // namespace vorbano
