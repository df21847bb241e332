#include "platform/qt/html_text.h"

#include "platform/qt/layout_reader.h"
#include "report_desk.h"

namespace vorbano::test {

class HtmlTextTest : public ReportDesk {
  protected:
    HtmlTextTest() {
        append("Tabella5", Row().setText("Comune", "ROMA").setText("Data", ""));
        append("Tabella3", Row().setText("Nome", "<b>O'Neil & figli\"").set("Dovuto", Amount{100500}));
        append("Tabella3", Row().setText("Nome", "BIANCHI").set("Dovuto", Amount{200000}));
    }
    /// The text of an html section, or what is wrong with it.
    std::string html(const std::string& section) {
        const auto layout = readLayout("prova.rpt", sourceOf({{"prova.rpt", queries_ + "[html]\n" + section}}));
        if (!layout) return layout.error().subject;
        const auto data = LayoutData::run(*layout, database_);
        if (!data) return data.error().subject;
        const auto text = htmlText(std::get<HtmlSection>(layout->sections.at(0)), *data);
        return text ? *text : text.error().subject;
    }

    const std::string queries_ =
        "[row t]\nSELECT Comune, Data FROM Tabella5\n[rows d]\nSELECT Nome, Dovuto FROM Tabella3\n"
        "[row vuota]\nSELECT DataA FROM Tabella6\n[rows nessuno]\nSELECT Mother FROM Tabella11\n";
};

TEST_F(HtmlTextTest, FillsInTheFieldsOfAOneRowQuery) {
    EXPECT_EQ(html("<p>{{t.Comune}}</p>"), "<p>ROMA</p>\n");
    EXPECT_EQ(html("{{#t}}<p>{{Comune}}</p>{{/t}}"), "<p>ROMA</p>\n");
}

TEST_F(HtmlTextTest, RepeatsASectionForEveryRowAndEscapesNames) {
    EXPECT_EQ(html("{{#d}}<li>{{Nome}}: {{Dovuto}}</li>{{/d}}"),
              "<li>&lt;b&gt;O&apos;Neil &amp; figli&quot;: 10,05</li><li>BIANCHI: 20,00</li>\n");
}

TEST_F(HtmlTextTest, ShutsTheSectionsOfWhatIsEmpty) {
    EXPECT_EQ(html("a{{#t.Data}}, {{t.Data}}{{/t.Data}}{{#t.Comune}}, {{t.Comune}}{{/t.Comune}}"), "a, ROMA\n");
    EXPECT_EQ(html("{{#vuota}}x{{/vuota}}{{^vuota}}mancano le date{{/vuota}}"), "mancano le date\n");
    EXPECT_EQ(html("{{#nessuno}}x{{/nessuno}}{{^nessuno}}nessuno{{/nessuno}}"), "nessuno\n");
    EXPECT_EQ(html("({{vuota.DataA}})"), "()\n");
}

TEST_F(HtmlTextTest, SeesTheRowAroundTheRow) {
    EXPECT_EQ(html("{{#t}}{{#d}}{{Dovuto}} {{Comune}} {{/d}}{{/t}}"), "10,05 ROMA 20,00 ROMA \n");
}

TEST_F(HtmlTextTest, TellsUnknownNamesWithTheirLineEvenWhereNoRowWouldShowThem) {
    EXPECT_EQ(html("<p>\n{{t.Sindaco}}</p>"), "prova.rpt:11: campo sconosciuto: {{t.Sindaco}}");
    EXPECT_EQ(html("{{Comune}}"), "prova.rpt:10: campo sconosciuto: {{Comune}}");
    EXPECT_EQ(html("{{#altri}}{{/altri}}"), "prova.rpt:10: campo sconosciuto: {{altri}}");
    EXPECT_EQ(html("{{#nessuno}}\n{{Figlio}}\n{{/nessuno}}"), "prova.rpt:11: campo sconosciuto: {{Figlio}}");
    EXPECT_EQ(html("{{d.Nome}}"), "prova.rpt:10: campo sconosciuto: {{d.Nome}}");
    EXPECT_EQ(html("{{t}}"), "prova.rpt:10: campo sconosciuto: {{t}}");
}

TEST_F(HtmlTextTest, LeavesCommentsOut) { EXPECT_EQ(html("a{{! non ancora }}b"), "ab\n"); }

}  // namespace vorbano::test
