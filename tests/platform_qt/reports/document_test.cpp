#include <QProcess>

#include "file_content.h"
#include "platform/qt/text_measure.h"
#include "report_desk.h"

namespace vorbano::test {

using ::testing::HasSubstr;
using ::testing::Not;

namespace {

const std::string head = "[page]\nfont = Liberation Sans, DejaVu Sans\nfoot = Prova\n";
const std::string employees =
    head + "[rows d]\nSELECT NDip, Nome, Dovuto, AliIrap FROM Tabella3\n@mask 0.00## AliIrap\n";

std::string numbered(const char* word, int number) {
    return QStringLiteral("%1%2").arg(QLatin1String(word)).arg(number).toStdString();
}

/// Where on the page a text begins; the test fails when it is not there.
PageText find(const ReportDocument& document, int page, const std::string& text) {
    for (const PageText& one : textsOf(document, page)) {
        if (one.text == text) return one;
    }
    ADD_FAILURE() << text << " is not on page " << page;
    return {};
}

}  // namespace

class DocumentTest : public ReportDesk {
  protected:
    std::unique_ptr<ReportDocument> good(const std::string& text) {
        auto document = render(text);
        if (!document) {
            ADD_FAILURE() << document.error().subject;
            return nullptr;
        }
        return std::move(*document);
    }
};

TEST_F(DocumentTest, NumbersItsPagesAtTheFoot) {
    const auto document = good(head + "[html]\n<p>uno</p>\n[new-page]\n[html]\n<p>due</p>\n");
    ASSERT_EQ(document->pages(), 2);
    EXPECT_EQ(timesOn(*document, 0, "Pagina 1 di 2"), 1);
    EXPECT_EQ(timesOn(*document, 1, "Pagina 2 di 2"), 1);
    EXPECT_EQ(timesOn(*document, 1, "Prova"), 1);
    EXPECT_EQ(timesOn(*document, 0, "uno"), 1);
    EXPECT_EQ(timesOn(*document, 1, "uno"), 0);
}

TEST_F(DocumentTest, ShowsNamesAsTheyAreInTextAndTable) {
    append("Tabella3", Row().setText("Nome", "<b>O'Neil & figli"));
    const auto document =
        good(employees + "[html]\n{{#d}}<p>{{Nome}}</p>{{/d}}\n[table d]\ncolumn 90 left | Nome | {{Nome}}\n");
    EXPECT_EQ(timesOn(*document, 0, "<b>O'Neil & figli"), 2);
}

TEST_F(DocumentTest, RepeatsTheHeadingsOfATableOnEveryPageAndLosesNoRow) {
    appendEmployees(300);
    const auto document =
        good(employees + "[table d]\ncolumn 20 right | Numero | {{NDip}}\ncolumn * left | Nome | {{Nome}}\n");
    ASSERT_GT(document->pages(), 3);
    int next = 1;
    for (int page = 0; page < document->pages(); ++page) {
        EXPECT_EQ(timesOn(*document, page, "Numero"), 1) << "page " << page;
        for (const PageText& text : textsOf(*document, page)) {
            if (text.text == std::to_string(next)) ++next;
        }
    }
    EXPECT_EQ(next, 301) << "1 to 300 in their order";
}

TEST_F(DocumentTest, KeepsEveryRowAboveTheFoot) {
    appendEmployees(200);
    const auto document = good(employees + "[table d]\ncolumn 20 right | Numero | {{NDip}}\n");
    for (int page = 0; page < document->pages(); ++page) {
        const double foot = find(*document, page, "Prova").y;
        for (const PageText& text : textsOf(*document, page)) {
            if (text.text != "Prova" && !text.text.starts_with("Pagina")) {
                EXPECT_LT(text.y, foot - 10) << text.text;
            }
        }
    }
}

TEST_F(DocumentTest, AlignsAmountsAtTheRightAndRatesAtTheComma) {
    append("Tabella3", Row().set("Dovuto", Amount{50000}).set("AliIrap", Amount{85000}));
    append("Tabella3", Row().set("Dovuto", Amount{12345600}).set("AliIrap", Amount{238512}));
    const auto document = good(employees +
                               "[table d]\ntext = 12\ncolumn 40 right | Dovuto | {{Dovuto}}\n"
                               "column 40 comma | Aliquota | {{AliIrap}}\n");
    const TextMeasure font(firstFamily({"Liberation Sans", "DejaVu Sans"}), 12, false);
    const auto small = find(*document, 0, "5,00");
    const auto large = find(*document, 0, "1.234,56");
    EXPECT_NEAR(small.x + font.width("5,00"), large.x + font.width("1.234,56"), 0.1);
    const auto shortRate = find(*document, 0, "8,50");
    const auto longRate = find(*document, 0, "23,8512");
    EXPECT_NEAR(shortRate.x + font.width("8"), longRate.x + font.width("23"), 0.1);
    EXPECT_GT(shortRate.y, 0);
}

TEST_F(DocumentTest, BreaksALongNameInItsColumn) {
    append("Tabella3", Row().setText("Nome", "CASTELLANO PIGNATELLI FRANCESCO SAVERIO"));
    const auto document = good(employees + "[table d]\ntext = 12\ncolumn 30 left | Nome | {{Nome}}\n");
    const auto first = find(*document, 0, "CASTELLANO");
    const auto last = find(*document, 0, "SAVERIO");
    EXPECT_NEAR(first.x, last.x, 0.1);
    EXPECT_GT(last.y, first.y + 20) << "at least two lines further down";
}

TEST_F(DocumentTest, ShowsATableWithoutRowsWithItsHeadings) {
    const auto document =
        good(employees +
             "[row t]\nSELECT coalesce(SUM(Dovuto), 0) AS Dovuto FROM Tabella3\n[table d]\ntotals = t\n"
             "column 40 left | Nome | {{Nome}} | TOTALE\ncolumn 40 right | Dovuto | {{Dovuto}} | {{Dovuto}}\n");
    ASSERT_EQ(document->pages(), 1);
    EXPECT_EQ(timesOn(*document, 0, "Nome"), 1);
    EXPECT_EQ(timesOn(*document, 0, "TOTALE"), 1);
    EXPECT_EQ(timesOn(*document, 0, "0,00"), 1);
}

TEST_F(DocumentTest, LeavesATableOutWhenItsConditionIsEmpty) {
    append("Tabella3", Row().setText("Nome", "ROSSI"));
    append("Tabella5", Row().setText("Comune", "Borgo"));
    const auto document = good(employees +
                               "[row t]\nSELECT Comune, Data FROM Tabella5\n"
                               "[table d]\nwhen = {{t.Comune}}\ncolumn 40 left | Nome | {{Nome}}\n"
                               "[table d]\nwhen = {{t.Data}}\ncolumn 40 left | Cognome | {{Nome}}\n");
    EXPECT_EQ(timesOn(*document, 0, "Nome"), 1);
    EXPECT_EQ(timesOn(*document, 0, "Cognome"), 0);
    EXPECT_EQ(timesOn(*document, 0, "ROSSI"), 1);
}

TEST_F(DocumentTest, BreaksLongTextsBetweenLines) {
    std::string text = head + "[html]\n";
    for (int line = 1; line <= 200; ++line) text += QStringLiteral("<p>riga %1</p>\n").arg(line).toStdString();
    const auto document = good(text);
    ASSERT_GT(document->pages(), 2);
    for (int line = 1; line <= 200; ++line) {
        int times = 0;
        for (int page = 0; page < document->pages(); ++page) {
            times += timesOn(*document, page, numbered("riga ", line));
        }
        EXPECT_EQ(times, 1) << "riga " << line;
    }
}

TEST_F(DocumentTest, KeepsTheRowsOfASmallTableWhole) {
    std::string text = head + "[html]\n<table>\n";
    for (int row = 1; row <= 60; ++row) {
        text += QStringLiteral("<tr><td>a%1</td><td>uno<br/>due<br/>b%1</td></tr>\n").arg(row).toStdString();
    }
    const auto document = good(text + "</table>\n");
    ASSERT_GT(document->pages(), 1);
    for (int row = 1; row <= 60; ++row) {
        int page = 0;
        while (page < document->pages() && timesOn(*document, page, numbered("a", row)) == 0) ++page;
        ASSERT_LT(page, document->pages()) << row;
        EXPECT_EQ(timesOn(*document, page, numbered("b", row)), 1) << "both ends of row " << row;
    }
}

TEST_F(DocumentTest, TellsWhatIsWrongWithALayout) {
    const auto mistake = [this](const std::string& text) {
        const auto document = render(text);
        return document ? "no mistake" : document.error().subject;
    };
    EXPECT_EQ(mistake("[page]\nsize = Protocollo\n"), "prova.rpt:1: formato di pagina sconosciuto: Protocollo");
    EXPECT_EQ(mistake("[page]\nmargins = 100 10 100 10\n"), "prova.rpt:1: margini troppo larghi per la pagina");
    EXPECT_EQ(mistake("[table d]\ncolumn 9 left | a | b\n"), "prova.rpt:1: interrogazione sconosciuta: d");
    EXPECT_EQ(mistake(employees + "[table d]\ntotals = d\ncolumn 9 left | a | b\n"),
              "prova.rpt:7: la riga dei totali vuole un'interrogazione [row]: d");
    EXPECT_EQ(mistake(employees + "[table d]\ncolumn 9 left | a | b\ncolumn 9 left | a | {{Cognome}}\n"),
              "prova.rpt:9: campo sconosciuto: {{Cognome}}");
    EXPECT_EQ(mistake(employees + "[table d]\ngroup {{Nome}}\ncolumn 9 left | a | b\nend\n"),
              "prova.rpt:8: campo sconosciuto: {{Nome}}");
    EXPECT_EQ(mistake(employees + "[table d]\nwhen = {{t.Data}}\ncolumn 9 left | a | b\n"),
              "prova.rpt:7: campo sconosciuto: {{t.Data}}");
    EXPECT_EQ(mistake("[page]\nfoot = {{testata.Comune}}\n"), "prova.rpt:1: campo sconosciuto: {{testata.Comune}}");
}

TEST_F(DocumentTest, FailsWhenTheDatabaseIsNotThere) {
    SqliteDatabase missing(root_ + "/Stampe/altro.mdb");
    QtRenderer renderer(missing, sourceOf({{"prova.rpt", "[row r]\nSELECT 1\n"}}));
    EXPECT_THAT(renderer.render("prova.rpt", ""), Fails(Failure::notFound));
    EXPECT_THAT(renderer.render("manca.rpt", ""), Fails(Failure::notFound));
}

TEST_F(DocumentTest, IsSavedForTheArchiveWithItsTitle) {
    const auto document = good(head + "[html]\n<p>uno</p>\n");
    const std::string path = (folder_.path() / "atto di prova.pdf").string();
    ASSERT_THAT(document->savePdf(path), Succeeds());
    const std::string pdf = fileContent(path);
    EXPECT_TRUE(pdf.starts_with("%PDF-1.4"));
    EXPECT_THAT(pdf, HasSubstr("pdfaid:part=\"1\""));
    EXPECT_THAT(pdf, HasSubstr("pdfaid:conformance=\"B\""));
    EXPECT_THAT(pdf, HasSubstr("/OutputIntents"));
    EXPECT_THAT(pdf, HasSubstr("/FontFile2")) << "fonts travel with the act";
    EXPECT_THAT(pdf, HasSubstr("Prova"));
}

TEST_F(DocumentTest, APdfHoldsEveryLetterOfTheCellsAsText) {
    append("Tabella3", Row().setText("Nome", "NICOLÒ D’ANGELO – però «sì»").set("Dovuto", Amount{12345600}));
    // Letters that no Italian text has, among others that every one has.
    append("Tabella3", Row().setText("Nome", "Łukasz ŐRY àéîõü 50 €").set("Dovuto", Amount{-50000}));
    append("Tabella3", Row().setText("Nome", std::string("senza\xC2\xAD") + "sillaba"));
    const auto document = good(employees +
                               "[table d]\ntext = 12\ncolumn 90 left | Nome | {{Nome}}\n"
                               "column 40 right | Dovuto | {{Dovuto}}\ncolumn 6 right | Stretta | {{Dovuto}}\n");
    const std::string path = (folder_.path() / "lettere.pdf").string();
    ASSERT_THAT(document->savePdf(path), Succeeds());
    QProcess reader;
    reader.start("pdftotext", {"-layout", QString::fromStdString(path), "-"});
    ASSERT_TRUE(reader.waitForFinished());
    const std::string text = reader.readAllStandardOutput().toStdString();
    EXPECT_THAT(text, HasSubstr("NICOLÒ D’ANGELO – però «sì»"));
    EXPECT_THAT(text, HasSubstr("Łukasz ŐRY àéîõü 50 €"));
    EXPECT_THAT(text, HasSubstr("sillaba"));
    EXPECT_THAT(text, HasSubstr("1.234,56"));
    EXPECT_THAT(text, HasSubstr("-5,00"));
    EXPECT_THAT(text, HasSubstr("Pagina 1 di 1"));
}

TEST_F(DocumentTest, IsNotSavedWhereItCannotBeWritten) {
    const auto document = good(head + "[html]\n<p>uno</p>\n");
    const auto saved = document->savePdf((folder_.path() / "manca" / "atto.pdf").string());
    ASSERT_THAT(saved, Fails(Failure::refused));
    EXPECT_EQ(saved.error().subject, "atto.pdf");
}

}  // namespace vorbano::test
