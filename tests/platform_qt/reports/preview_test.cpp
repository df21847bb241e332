#include <QApplication>
#include <QFileInfo>
#include <QLabel>
#include <QPushButton>
#include <QScrollBar>
#include <QTest>
#include <QTimer>

#include "platform/qt/preview_window.h"
#include "platform/qt/report_engine.h"
#include "report_desk.h"

namespace vorbano::test {

namespace {

class NotedPrinter : public Printer {
  public:
    Result<> print(Document& /*document*/, std::string_view title) override {
        titles.emplace_back(title);
        return answer;
    }
    std::vector<std::string> titles;
    Result<> answer;
};

}  // namespace

class PreviewTest : public ReportDesk {
  protected:
    PreviewTest() {
        auto made = render("[page]\nfoot = Atto\n[html]\n<p>uno</p>\n[new-page]\n[html]\n<p>due</p>\n");
        EXPECT_THAT(made, Succeeds());
        document_ = std::move(*made);
    }
    static void click(const QWidget& window, const char* name) {
        auto* button = window.findChild<QAbstractButton*>(name);
        ASSERT_NE(button, nullptr) << name;
        button->click();
    }

    std::unique_ptr<ReportDocument> document_;
    NotedPrinter printer_;
};

TEST_F(PreviewTest, IsCalledByTheTitleOfTheDocument) {
    const PreviewWindow titled(*document_, printer_, "IMPEGNO DI SPESA");
    EXPECT_EQ(titled.windowTitle(), "IMPEGNO DI SPESA");
    EXPECT_EQ(titled.objectName(), "anteprima");
    EXPECT_EQ(&titled.document(), document_.get());
    EXPECT_EQ(PreviewWindow(*document_, printer_, "").windowTitle(), "Anteprima di stampa");
}

TEST_F(PreviewTest, SpeaksItalian) {
    const PreviewWindow window(*document_, printer_, "");
    EXPECT_EQ(window.findChild<QPushButton*>("cmdSalvaPdf")->text(), "Salva PDF");
    EXPECT_EQ(window.findChild<QPushButton*>("cmdStampa")->text(), "Stampa");
    EXPECT_EQ(window.findChild<QPushButton*>("cmdChiudi")->text(), "Chiudi");
    EXPECT_EQ(window.findChild<QLabel*>("lblPagina")->text(), "Pagina 1 di 2");
}

TEST_F(PreviewTest, ShowsPaperAndInk) {
    PreviewWindow window(*document_, printer_, "");
    window.show();
    const auto* pages = window.findChild<PageView*>();
    const QImage image = const_cast<PageView*>(pages)->viewport()->grab().toImage();
    int paper = 0;
    int ink = 0;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            const QColor colour = image.pixelColor(x, y);
            if (colour == Qt::white) ++paper;
            if (colour.lightness() < 60) ++ink;
        }
    }
    EXPECT_GT(paper, image.width() * image.height() / 3);
    EXPECT_GT(ink, 10);
}

TEST_F(PreviewTest, CountsThePagesAsTheyAreTurned) {
    PreviewWindow window(*document_, printer_, "");
    window.show();
    auto* pages = window.findChild<PageView*>();
    QTest::keyClick(pages, Qt::Key_PageDown);
    EXPECT_EQ(window.findChild<QLabel*>("lblPagina")->text(), "Pagina 2 di 2");
    QTest::keyClick(pages, Qt::Key_Home);
    EXPECT_EQ(window.findChild<QLabel*>("lblPagina")->text(), "Pagina 1 di 2");
}

TEST_F(PreviewTest, OpensAtTheWidthOfThePageAndStaysSoWhenTheWindowGrows) {
    PreviewWindow window(*document_, printer_, "");
    window.show();
    QApplication::processEvents();
    const auto* pages = window.findChild<PageView*>();
    const auto paperAcross = [pages] {
        const QImage image = const_cast<PageView*>(pages)->viewport()->grab().toImage();
        int across = 0;
        for (int x = 0; x < image.width(); ++x) across += image.pixelColor(x, 30) == Qt::white ? 1 : 0;
        return image.width() - across;
    };
    // What is left of the desk on both sides of the paper.
    EXPECT_NEAR(paperAcross(), 32, 2);
    EXPECT_EQ(pages->horizontalScrollBar()->maximum(), 0);
    window.resize(window.width() - 200, window.height());
    QApplication::processEvents();
    EXPECT_NEAR(paperAcross(), 32, 2);
}

TEST_F(PreviewTest, GrowsAndShrinksThePages) {
    PreviewWindow window(*document_, printer_, "");
    window.show();
    const auto* bar = window.findChild<PageView*>()->verticalScrollBar();
    const int fitting = bar->maximum();
    click(window, "cmdIngrandisci");
    EXPECT_GT(bar->maximum(), fitting);
    click(window, "cmdLarghezza");
    EXPECT_EQ(bar->maximum(), fitting);
    click(window, "cmdRimpicciolisci");
    EXPECT_LT(bar->maximum(), fitting);
}

TEST_F(PreviewTest, SavesUnderTheNameThatTheClerkChooses) {
    const QString path = QString::fromStdString((folder_.path() / "scelto.pdf").string());
    QString proposed;
    PreviewWindow window(*document_, printer_, "", nullptr, [&](QWidget*, const QString& name) {
        proposed = name;
        return path;
    });
    click(window, "cmdSalvaPdf");
    EXPECT_EQ(proposed, "Atto.pdf");
    EXPECT_TRUE(QFileInfo::exists(path));
    EXPECT_TRUE(window.findChild<QLabel*>("lblEsito")->text().startsWith("Documento salvato"));
}

TEST_F(PreviewTest, SavesNothingWhenTheClerkThinksBetterOfIt) {
    PreviewWindow window(*document_, printer_, "", nullptr, [](QWidget*, const QString&) { return QString(); });
    click(window, "cmdSalvaPdf");
    EXPECT_TRUE(window.findChild<QLabel*>("lblEsito")->text().isEmpty());
}

TEST_F(PreviewTest, TellsWhenTheFileCannotBeWritten) {
    const QString path = QString::fromStdString((folder_.path() / "manca" / "atto.pdf").string());
    PreviewWindow window(*document_, printer_, "", nullptr, [&](QWidget*, const QString&) { return path; });
    click(window, "cmdSalvaPdf");
    EXPECT_TRUE(window.findChild<QLabel*>("lblEsito")->text().contains("atto.pdf non può essere"));
}

TEST_F(PreviewTest, HandsTheDocumentToThePrinterAndTellsWhatFails) {
    PreviewWindow window(*document_, printer_, "");
    click(window, "cmdStampa");
    EXPECT_THAT(printer_.titles, ::testing::ElementsAre("Atto"));
    EXPECT_TRUE(window.findChild<QLabel*>("lblEsito")->text().isEmpty());
    printer_.answer = Error{Failure::refused, "Ufficio"};
    click(window, "cmdStampa");
    EXPECT_TRUE(window.findChild<QLabel*>("lblEsito")->text().contains("Ufficio"));
}

class EngineTest : public ReportDesk {
  protected:
    QtRenderer renderer_{
        database_, sourceOf({{"atto.rpt", "[page]\nfoot = Atto\n[html]\n<p>uno</p>\n"}, {"rotto.rpt", "[tabel]\n"}})};
    NotedPrinter printer_;
    QtPrintEngine engine_{renderer_, printer_, [] { return nullptr; }};
};

TEST_F(EngineTest, ReturnsWhenThePreviewIsClosed) {
    QString title;
    QTimer::singleShot(0, [&title] {
        auto* window = qobject_cast<PreviewWindow*>(QApplication::activeModalWidget());
        if (window == nullptr) return;
        title = window->windowTitle();
        window->findChild<QPushButton*>("cmdChiudi")->click();
    });
    EXPECT_THAT(engine_.run({"atto.rpt", "IMPEGNO DI SPESA", Destination::preview}), Succeeds());
    EXPECT_EQ(title, "IMPEGNO DI SPESA");
    EXPECT_TRUE(printer_.titles.empty());
}

TEST_F(EngineTest, SendsADocumentStraightToThePrinter) {
    EXPECT_THAT(engine_.run({"atto.rpt", "", Destination::printer}), Succeeds());
    EXPECT_THAT(printer_.titles, ::testing::ElementsAre("Atto")) << "a document without a title is called by its foot";
}

TEST_F(EngineTest, GivesBackWhatIsWrongAndShowsNothing) {
    EXPECT_THAT(engine_.run({"manca.rpt", "", Destination::preview}), Fails(Failure::notFound));
    const auto broken = engine_.run({"rotto.rpt", "", Destination::printer});
    ASSERT_THAT(broken, Fails(Failure::damaged));
    EXPECT_EQ(broken.error().subject, "rotto.rpt:1: sezione sconosciuta: [tabel]");
    EXPECT_TRUE(printer_.titles.empty());
}

class PrinterTest : public PreviewTest {
  protected:
    /// Prints on a machine without a printer; the clerk chooses `path`.
    Result<> print(const QString& path) {
        QtPrinter printer([] { return nullptr; },
                          [&](QWidget*, const QString& proposed) {
                              proposed_ = proposed;
                              return path;
                          },
                          [] { return false; });
        return printer.print(*document_, "CONTRIBUTI E RITENUTE (Allegato A): 1/2");
    }
    QString proposed_;
};

TEST_F(PrinterTest, AsksForAPdfWhereThereIsNoPrinter) {
    const QString path = QString::fromStdString((folder_.path() / "stampa.pdf").string());
    EXPECT_THAT(print(path), Succeeds());
    EXPECT_EQ(proposed_, "CONTRIBUTI E RITENUTE (Allegato A) 1 2.pdf");
    EXPECT_TRUE(QFileInfo::exists(path));
}

TEST_F(PrinterTest, DoesNothingWhenNoFileIsChosen) {
    EXPECT_THAT(print(QString()), Succeeds());
    EXPECT_FALSE(proposed_.isEmpty());
    const auto files = std::filesystem::directory_iterator(folder_.path());
    EXPECT_EQ(std::distance(begin(files), end(files)), 1) << "the installation and nothing else";
}

TEST_F(PrinterTest, GivesBackWhatFails) {
    EXPECT_THAT(print(QString::fromStdString((folder_.path() / "manca" / "x.pdf").string())), Fails(Failure::refused));
}

TEST(PdfNames, AreNeverEmpty) { EXPECT_EQ(proposedPdfName(" / "), "Documento.pdf"); }

}  // namespace vorbano::test
