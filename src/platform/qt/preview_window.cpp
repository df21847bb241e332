#include "platform/qt/preview_window.h"

#include <QDir>
#include <QGuiApplication>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QScreen>
#include <QToolButton>
#include <QVBoxLayout>

#include "platform/failure_words.h"

namespace vorbano {

namespace {

QPushButton* makeButton(const QString& text, const QString& name) {
    auto* button = new QPushButton(text);
    button->setObjectName(name);
    button->setAutoDefault(false);
    return button;
}

}  // namespace

PreviewWindow::PreviewWindow(ReportDocument& document, Printer& printer, const QString& title, QWidget* above,
                             AskPdfFile ask)
    : QDialog(above),
      document_(document),
      printer_(printer),
      ask_(std::move(ask)),
      pages_(new PageView(document)),
      number_(new QLabel),
      words_(new QLabel) {
    setObjectName("anteprima");
    setWindowTitle(title.isEmpty() ? QStringLiteral("Anteprima di stampa") : title);
    setWindowFlags(windowFlags() | Qt::WindowMaximizeButtonHint);
    setModal(true);
    words_->setObjectName("lblEsito");
    words_->setTextFormat(Qt::PlainText);
    words_->setWordWrap(true);
    number_->setObjectName("lblPagina");

    auto* column = new QVBoxLayout(this);
    column->addLayout(makeTools());
    column->addWidget(pages_, 1);
    column->addWidget(words_);
    words_->hide();
    connect(pages_, &PageView::currentPageChanged, this, &PreviewWindow::showPageNumber);
    showPageNumber(0);
    const QRect screen = (above != nullptr ? above->screen() : QGuiApplication::primaryScreen())->availableGeometry();
    resize(qMin(1180, screen.width() - 40), qMin(860, screen.height() - 60));
    pages_->setFocus();
}

QToolButton* PreviewWindow::makeTool(const QString& text, const QString& hint, const QString& name) {
    auto* tool = new QToolButton;
    tool->setText(text);
    tool->setToolTip(hint);
    tool->setAccessibleName(hint);
    tool->setObjectName(name);
    return tool;
}

QLayout* PreviewWindow::makeTools() {
    auto* save = makeButton(QStringLiteral("Salva PDF"), "cmdSalvaPdf");
    auto* print = makeButton(QStringLiteral("Stampa"), "cmdStampa");
    auto* close = makeButton(QStringLiteral("Chiudi"), "cmdChiudi");
    auto* smaller = makeTool(QStringLiteral("−"), QStringLiteral("Rimpicciolisci"), "cmdRimpicciolisci");
    auto* larger = makeTool(QStringLiteral("+"), QStringLiteral("Ingrandisci"), "cmdIngrandisci");
    auto* width = makeTool(QStringLiteral("Larghezza pagina"), QStringLiteral("Adatta alla larghezza della finestra"),
                           "cmdLarghezza");
    connect(save, &QPushButton::clicked, this, &PreviewWindow::savePdf);
    connect(print, &QPushButton::clicked, this, &PreviewWindow::print);
    connect(close, &QPushButton::clicked, this, &QDialog::reject);
    connect(smaller, &QToolButton::clicked, pages_, &PageView::zoomOut);
    connect(larger, &QToolButton::clicked, pages_, &PageView::zoomIn);
    connect(width, &QToolButton::clicked, pages_, &PageView::fitWidth);
    auto* row = new QHBoxLayout;
    row->addWidget(save);
    row->addWidget(print);
    row->addSpacing(24);
    for (QToolButton* tool : {smaller, larger, width}) row->addWidget(tool);
    row->addSpacing(24);
    row->addWidget(number_);
    row->addStretch(1);
    row->addWidget(close);
    return row;
}

void PreviewWindow::showPageNumber(int page) {
    number_->setText(QStringLiteral("Pagina %1 di %2").arg(page + 1).arg(document_.pages()));
}

void PreviewWindow::tell(const QString& words, bool failure) {
    words_->setText(words);
    words_->setStyleSheet(failure ? "color: #a01818" : "");
    words_->show();
}

void PreviewWindow::savePdf() {
    const QString path = ask_(this, proposedPdfName(document_.title()));
    if (path.isEmpty()) return;
    const auto saved = document_.writePdf(path.toStdString(), *progressWindow(this, document_.title()));
    if (!saved) {
        tell(QString::fromStdString(inItalian(saved.error())), true);
    } else if (*saved) {
        tell(QStringLiteral("Documento salvato: ") + QDir::toNativeSeparators(path), false);
    } else {
        tell(QStringLiteral("Salvataggio annullato."), false);
    }
}

void PreviewWindow::print() {
    const Result<> printed = printer_.print(document_, document_.title().toStdString());
    if (!printed) tell(QString::fromStdString(inItalian(printed.error())), true);
}

}  // namespace vorbano
