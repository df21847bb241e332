// A plain page: lines in a fixed pitch, a heading, nothing cut.

#include "platform/qt/plain_document.h"

#include <QFileInfo>
#include <QRectF>

#include "platform/qt/report_engine.h"
#include "report_desk.h"

namespace vorbano::test {
namespace {

using ::testing::ElementsAre;

/// Where on the page a text begins; the test fails when it is not there.
PageText find(const ReportDocument& document, int page, const std::string& text) {
    for (const PageText& one : textsOf(document, page)) {
        if (one.text == text) return one;
    }
    ADD_FAILURE() << text << " is not on page " << page;
    return {};
}

double rightEdge(const ReportDocument& document) {
    const QPageLayout& layout = document.pageLayout();
    return layout.paintRect(QPageLayout::Inch).right() * 96;
}

TEST(PlainDocument, ShowsHeadingAndLinesInTheirOrder) {
    const auto document = plainDocument({"Resoconto", "Comune di Lesa", {"PRIMA", "", "DOPO"}});
    ASSERT_EQ(document->pages(), 1);
    const PageText heading = find(*document, 0, "Comune di Lesa");
    const PageText first = find(*document, 0, "PRIMA");
    const PageText last = find(*document, 0, "DOPO");
    EXPECT_LT(heading.y, first.y);
    EXPECT_LT(first.y, last.y);
    EXPECT_EQ(first.x, last.x);
    EXPECT_EQ(timesOn(*document, 0, "Pagina 1 di 1"), 1);
    EXPECT_EQ(timesOn(*document, 0, "Resoconto"), 1) << "the title stands at the foot";
}

TEST(PlainDocument, AnEmptyLineTakesTheRoomOfALine) {
    const auto document = plainDocument({"Resoconto", "", {"uno", "due", "", "tre"}});
    const double step = find(*document, 0, "due").y - find(*document, 0, "uno").y;
    EXPECT_GT(step, 0);
    EXPECT_NEAR(find(*document, 0, "tre").y - find(*document, 0, "due").y, 2 * step, 0.5);
}

TEST(PlainDocument, ALineTooWideMakesAllOfThemSmaller) {
    const std::string wide(300, 'M');
    const auto usual = plainDocument({"Resoconto", "", {"uno", "due"}});
    const auto narrowed = plainDocument({"Resoconto", "", {"uno", "due", wide}});
    const auto step = [](const ReportDocument& document) {
        return find(document, 0, "due").y - find(document, 0, "uno").y;
    };
    // Three hundred letters of a fixed pitch, 0.6 of their size wide each, in the width between the margins.
    const double width = rightEdge(*narrowed) - find(*narrowed, 0, "uno").x;
    EXPECT_LT(step(*narrowed), step(*usual));
    EXPECT_LT(step(*narrowed), width / 300 / 0.6 * 1.8);
    EXPECT_EQ(timesOn(*narrowed, 0, wide), 1);
}

TEST(PlainDocument, LinesTooManyForOneSheetGoOnOnTheNext) {
    PlainPage page{"Resoconto", "Comune di Lesa", {}};
    for (int number = 1; number <= 100; ++number) page.lines.push_back("riga " + std::to_string(number));
    const auto document = plainDocument(page);
    ASSERT_GT(document->pages(), 1);
    const std::string all = allText(*document);
    for (const std::string& line : page.lines) EXPECT_NE(all.find(line + "\n"), std::string::npos) << line;
}

class PagePrinter : public Printer {
  public:
    Result<> print(Document& document, std::string_view title) override {
        titles.emplace_back(title);
        pages = document.pages();
        return answer;
    }
    std::vector<std::string> titles;
    int pages = 0;
    Result<> answer;
};

class PlainPagePrinting : public ReportDesk {
  protected:
    QtRenderer renderer_{database_, sourceOf({})};
    PagePrinter printer_;
    QtPrintEngine engine_{renderer_, printer_, [] { return nullptr; }};
};

TEST_F(PlainPagePrinting, GoesStraightToThePrinter) {
    EXPECT_THAT(engine_.printPage({"Resoconto", "", {"uno"}}), Succeeds());
    EXPECT_THAT(printer_.titles, ElementsAre("Resoconto"));
    EXPECT_EQ(printer_.pages, 1);
    printer_.answer = Error{Failure::refused, "Ufficio"};
    EXPECT_THAT(engine_.printPage({"Resoconto", "", {"uno"}}), Fails(Failure::refused));
}

TEST_F(PlainPagePrinting, IsSavedAsAPdf) {
    const std::string path = (folder_.path() / "resoconto.pdf").string();
    EXPECT_THAT(plainDocument({"Resoconto", "", {"uno"}})->savePdf(path), Succeeds());
    EXPECT_GT(QFileInfo(QString::fromStdString(path)).size(), 1000);
}

}  // namespace
}  // namespace vorbano::test
