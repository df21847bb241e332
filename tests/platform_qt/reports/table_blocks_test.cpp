#include "report_desk.h"

namespace vorbano::test {

namespace {

const std::string head =
    "[page]\nfont = Liberation Sans, DejaVu Sans\n[row testata]\nSELECT Comune FROM Tabella5 LIMIT 1\n"
    "[rows r]\nSELECT SonoSeggio, Componente, onorario, sum(onorario) OVER (PARTITION BY SonoSeggio) AS Totale\n"
    "FROM Tabella7 ORDER BY rowid\n@amount Totale\n";
const std::string columns =
    "column * left | Nome | {{Componente}} | | Totale del seggio\n"
    "column 30 comma | Euro | {{onorario}} | | {{Totale}}\n";

/// Where a text begins; the test fails when it is not on the page.
double heightOf(const ReportDocument& document, int page, const std::string& text) {
    for (const PageText& one : textsOf(document, page)) {
        if (one.text == text) return one.y;
    }
    ADD_FAILURE() << text << " is not on page " << page;
    return 0;
}

}  // namespace

class TableBlocks : public ReportDesk {
  protected:
    void SetUp() override { appendHeading("VORBANO"); }
    void appendPerson(int station, const std::string& name, int cents) {
        append("Tabella7", Row()
                               .setWhole("SonoSeggio", station)
                               .setText("Componente", name)
                               .set("onorario", Amount{std::int64_t{cents} * 100}));
    }
    void appendTwoStations() {
        appendPerson(4, "ROSSI", 15000);
        appendPerson(4, "BIANCHI", 12050);
        appendPerson(1, "VERDI", 9000);
    }
    std::unique_ptr<ReportDocument> good(const std::string& text) {
        auto document = render(text);
        if (document) return std::move(*document);
        ADD_FAILURE() << document.error().subject;
        return nullptr;
    }
};

TEST_F(TableBlocks, StandApartWithHeadingsAndTotalsOfTheirOwn) {
    appendTwoStations();
    const auto document = good(head + "[table r]\nblock = {{SonoSeggio}}\nblocks = apart\n" +
                               "above 18 bold centre | Seggio {{SonoSeggio}} di {{testata.Comune}}\n"
                               "below 12 plain right | Ultimo: {{Componente}}\n" +
                               columns);
    ASSERT_NE(document, nullptr);
    ASSERT_EQ(document->pages(), 2);
    for (const char* text : {"Seggio 4 di VORBANO", "ROSSI", "BIANCHI", "Totale del seggio", "270,50",
                             "Ultimo: BIANCHI", "Nome", "Euro"}) {
        EXPECT_EQ(timesOn(*document, 0, text), 1) << text;
    }
    for (const char* text : {"Seggio 1 di VORBANO", "VERDI", "Totale del seggio", "Ultimo: VERDI", "Nome"}) {
        EXPECT_EQ(timesOn(*document, 1, text), 1) << text;
    }
    EXPECT_EQ(timesOn(*document, 1, "90,00"), 2) << "the fee and the total";
    EXPECT_EQ(timesOn(*document, 1, "ROSSI"), 0);
    EXPECT_LT(heightOf(*document, 0, "Seggio 4 di VORBANO"), heightOf(*document, 0, "Nome"));
    EXPECT_LT(heightOf(*document, 0, "Nome"), heightOf(*document, 0, "ROSSI"));
    EXPECT_LT(heightOf(*document, 0, "BIANCHI"), heightOf(*document, 0, "270,50"));
    EXPECT_LT(heightOf(*document, 0, "270,50"), heightOf(*document, 0, "Ultimo: BIANCHI"));
}

TEST_F(TableBlocks, StandBelowEachOtherWhenNothingIsSaid) {
    appendTwoStations();
    const auto document =
        good(head + "[table r]\nblock = {{SonoSeggio}}\nabove 12 plain left | Seggio {{SonoSeggio}}\n" + columns);
    ASSERT_NE(document, nullptr);
    ASSERT_EQ(document->pages(), 1);
    EXPECT_EQ(timesOn(*document, 0, "Nome"), 2) << "the titles stand above each block";
    EXPECT_LT(heightOf(*document, 0, "270,50"), heightOf(*document, 0, "Seggio 1"));
}

TEST_F(TableBlocks, ThatGoOnOverThePageRepeatTheirHeading) {
    for (int person = 1; person <= 80; ++person) appendPerson(7, "PERSONA", 100);
    const auto document = good(head + "[table r]\nblock = {{SonoSeggio}}\nblocks = apart\n" +
                               "above 18 bold left | Seggio {{SonoSeggio}}\n" + columns);
    ASSERT_NE(document, nullptr);
    ASSERT_GT(document->pages(), 1);
    int people = 0;
    int totals = 0;
    for (int page = 0; page < document->pages(); ++page) {
        EXPECT_EQ(timesOn(*document, page, "Seggio 7"), 1) << page;
        EXPECT_EQ(timesOn(*document, page, "Nome"), 1) << page;
        people += timesOn(*document, page, "PERSONA");
        totals += timesOn(*document, page, "80,00");
    }
    EXPECT_EQ(people, 80);
    EXPECT_EQ(totals, 1) << "only at the end of the block";
}

TEST_F(TableBlocks, LinesWhoseValuesAreEmptyTakeNoRoom) {
    append("Tabella7", Row().setWhole("SonoSeggio", 1).setText("Componente", "ROSSI").setText("Indirizzo", ""));
    const auto titlesAt = [&](const std::string& line) {
        const auto document = good(
            "[page]\nfont = Liberation Sans, DejaVu Sans\n[rows r]\nSELECT SonoSeggio, Componente, Indirizzo FROM "
            "Tabella7\n[table r]\nblock = {{SonoSeggio}}\nabove 12 bold left | S\n" +
            line + "column * left | Nome | {{Componente}}\n");
        return document == nullptr ? 0 : heightOf(*document, 0, "Nome");
    };
    const double plain = titlesAt("");
    EXPECT_DOUBLE_EQ(titlesAt("above 20 bold left | {{Indirizzo}}\n"), plain);
    EXPECT_GT(titlesAt("above 20 bold left | {{Componente}}\n"), plain + 20);
    EXPECT_DOUBLE_EQ(titlesAt("above 20 bold left |\n"), titlesAt("above 20 bold left | {{Componente}}\n"))
        << "a line without a text is room left on purpose";
}

TEST_F(TableBlocks, WithoutRowsAreNone) {
    const auto document =
        good(head + "[table r]\nblock = {{SonoSeggio}}\nabove 12 plain left | Seggio {{SonoSeggio}}\n" + columns);
    ASSERT_NE(document, nullptr);
    EXPECT_EQ(document->pages(), 1);
    EXPECT_EQ(timesOn(*document, 0, "Nome"), 0);
}

TEST_F(TableBlocks, RowsCanBeHigherThanTheirText) {
    appendTwoStations();
    const auto gap = [&](const std::string& property) {
        const auto document = good(head + "[table r]\n" + property + "column * left | Nome | {{Componente}}\n");
        if (document == nullptr) return 0.0;
        return heightOf(*document, 0, "BIANCHI") - heightOf(*document, 0, "ROSSI");
    };
    // 10 mm are 37.8 px.
    EXPECT_NEAR(gap("row = 10\n"), 37.8, 0.1);
    EXPECT_LT(gap(""), 30);
}

TEST_F(TableBlocks, FieldsThatAreNotThereAreTold) {
    appendTwoStations();
    for (const char* line : {"above 12 plain left | {{Manca}}\n", "below 12 plain left | {{Manca}}\n",
                             "column 10 left | a | b | | {{Manca}}\n"}) {
        const auto document = render(head + "[table r]\nblock = {{SonoSeggio}}\n" + columns + line);
        ASSERT_THAT(document, Fails(Failure::damaged)) << line;
        EXPECT_THAT(document.error().subject, ::testing::HasSubstr("campo sconosciuto: {{Manca}}")) << line;
    }
    EXPECT_THAT(render(head + "[table r]\nblock = {{Manca}}\n" + columns), Fails(Failure::damaged));
}

}  // namespace vorbano::test
