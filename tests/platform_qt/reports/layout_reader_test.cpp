#include "platform/qt/layout_reader.h"

#include "report_desk.h"

namespace vorbano::test {

namespace {

Result<Layout> read(const std::string& text, Layouts parts = {}) {
    parts["prova.rpt"] = text;
    return readLayout("prova.rpt", sourceOf(std::move(parts)));
}

/// What is said of a layout that cannot be read.
std::string mistake(const std::string& text, Layouts parts = {}) {
    const auto layout = read(text, std::move(parts));
    if (layout) return "no mistake";
    return layout.error().kind == Failure::damaged ? layout.error().subject : "not damaged";
}

constexpr const char* query = "[rows r]\nSELECT Nome FROM Tabella3\n";

}  // namespace

TEST(LayoutReader, ReadsThePage) {
    const auto layout = read(
        "# prova\n[page]\nsize = A3\norientation = landscape\nmargins = 10 11.5 12 13\ntext = 14\n"
        "font = Liberation Sans, DejaVu Sans\nfoot = Atto di {{testata.Comune}}\n");
    ASSERT_THAT(layout, Succeeds());
    const PageSetup& page = layout->page;
    EXPECT_EQ(page.size, "A3");
    EXPECT_TRUE(page.landscape);
    EXPECT_EQ(page.left, 10);
    EXPECT_EQ(page.top, 11.5);
    EXPECT_EQ(page.right, 12);
    EXPECT_EQ(page.bottom, 13);
    EXPECT_EQ(page.textSize, 14);
    EXPECT_THAT(page.fonts, ::testing::ElementsAre("Liberation Sans", "DejaVu Sans"));
    ASSERT_EQ(page.foot.parts.size(), 1U);
    EXPECT_EQ(page.foot.parts[0].literal, "Atto di ");
    EXPECT_EQ(page.foot.parts[0].name, "testata.Comune");
}

TEST(LayoutReader, ReadsQueriesWithTheirMasks) {
    const auto layout = read(
        "[row totali]\nSELECT SUM(Dovuto) AS Somma,\n       COUNT(*) AS Quanti\nFROM Tabella3\n"
        "@amount Somma\n@whole Quanti\n@mask #,##0;– Quanti\n");
    ASSERT_THAT(layout, Succeeds());
    ASSERT_EQ(layout->queries.size(), 1U);
    const LayoutQuery& totals = layout->queries[0];
    EXPECT_EQ(totals.name, "totali");
    EXPECT_TRUE(totals.single);
    EXPECT_EQ(totals.sql, "SELECT SUM(Dovuto) AS Somma,\n       COUNT(*) AS Quanti\nFROM Tabella3\n");
    EXPECT_EQ(totals.origin.line, 1);
    ASSERT_EQ(totals.displays.size(), 2U);
    EXPECT_EQ(totals.displays[0].second.kind, ResultDisplay::Kind::amount);
    EXPECT_EQ(totals.displays[1].second.kind, ResultDisplay::Kind::whole);
    EXPECT_TRUE(totals.displays[1].second.mask.has_value());
}

TEST(LayoutReader, ReadsATable) {
    const auto layout = read(std::string(query) +
                             "[table r]\ntotals = t\ntext = 9.5\ncolumn 8 right | N. | {{NDip}}\n"
                             "group 1° periodo\\n{{periodi.Primo}}\n  column * left | Nome | {{Nome}} | TOTALE\nend\n"
                             "column 12 comma | Aliquota | {{AliIrap}}%\n");
    ASSERT_THAT(layout, Succeeds());
    const auto& table = std::get<TableSection>(layout->sections.at(0));
    EXPECT_EQ(table.query, "r");
    EXPECT_EQ(table.totals, "t");
    EXPECT_EQ(table.textSize, 9.5);
    ASSERT_EQ(table.columns.size(), 3U);
    EXPECT_EQ(table.columns[0].width, 8);
    EXPECT_EQ(table.columns[0].alignment, Alignment::right);
    EXPECT_EQ(table.columns[0].group, -1);
    EXPECT_EQ(table.columns[1].width, 0) << "a star is a share of what is left";
    EXPECT_EQ(table.columns[1].group, 0);
    EXPECT_EQ(table.columns[1].total.parts.at(0).literal, "TOTALE");
    EXPECT_EQ(table.columns[2].alignment, Alignment::comma);
    EXPECT_EQ(table.columns[2].group, -1);
    ASSERT_EQ(table.groups.size(), 1U);
    EXPECT_EQ(table.groups[0].parts.at(0).literal, "1° periodo\n");
}

TEST(LayoutReader, ReadsHtmlLineByLineWithoutTheComments) {
    const auto layout =
        read("[html together with-previous]\n<p>uno</p>\n# nota\n\n<p>due</p>\n[space 4.5]\n[new-page]\n");
    ASSERT_THAT(layout, Succeeds());
    ASSERT_EQ(layout->sections.size(), 3U);
    const auto& html = std::get<HtmlSection>(layout->sections[0]);
    EXPECT_EQ(html.text, "<p>uno</p>\n\n<p>due</p>\n");
    EXPECT_TRUE(html.together);
    EXPECT_TRUE(html.withPrevious);
    EXPECT_EQ(std::get<SpaceSection>(layout->sections[1]).height, 4.5);
    EXPECT_TRUE(std::holds_alternative<NewPageSection>(layout->sections[2]));
}

TEST(LayoutReader, TakesAnyLineEndsAndAByteOrderMark) {
    const auto layout = read("\xEF\xBB\xBF[page]\r\nsize = A5\r\n[html]\r\n<p>uno</p>\r\n");
    ASSERT_THAT(layout, Succeeds());
    EXPECT_EQ(layout->page.size, "A5");
    EXPECT_EQ(std::get<HtmlSection>(layout->sections[0]).text, "<p>uno</p>\n");
}

TEST(LayoutReader, PutsThePartsInPlaceOfTheirInclusion) {
    const auto layout =
        read("[include pagina]\n[html]\nprima\n[include coda]\n", {{"parti/pagina.part", "[page]\nsize = A5\n"},
                                                                   {"parti/coda.part", "dopo\n[include fine]"},
                                                                   {"parti/fine.part", "fine\n"}});
    ASSERT_THAT(layout, Succeeds());
    EXPECT_EQ(layout->page.size, "A5");
    EXPECT_EQ(std::get<HtmlSection>(layout->sections[0]).text, "prima\ndopo\nfine\n");
}

TEST(LayoutReader, FailsForALayoutThatIsNotThere) {
    EXPECT_THAT(readLayout("manca.rpt", sourceOf({})), Fails(Failure::notFound));
}

struct Mistake {
    const char* name;
    std::string text;
    std::string said;
};
void PrintTo(const Mistake& mistake, std::ostream* out) { *out << mistake.name; }

class LayoutMistakes : public ::testing::TestWithParam<Mistake> {};

TEST_P(LayoutMistakes, AreToldWithFileAndLine) { EXPECT_EQ(mistake(GetParam().text), GetParam().said); }

INSTANTIATE_TEST_SUITE_P(
    All, LayoutMistakes,
    ::testing::Values(
        Mistake{"BlockLine", std::string(query) + "[table r]\nabove 12 left | Seggio\n",
                "prova.rpt:4: riga non valida: above o below ALTEZZA bold|plain ALLINEAMENTO | testo"},
        Mistake{"BlockLineWithoutText", std::string(query) + "[table r]\nbelow 12 plain left\n",
                "prova.rpt:4: riga non valida: above o below ALTEZZA bold|plain ALLINEAMENTO | testo"},
        Mistake{"BlockLineByTheComma", std::string(query) + "[table r]\nbelow 12 plain comma | a\n",
                "prova.rpt:4: riga non valida: above o below ALTEZZA bold|plain ALLINEAMENTO | testo"},
        Mistake{"BlockLineSize", std::string(query) + "[table r]\nabove 2 bold left | a\n",
                "prova.rpt:4: altezza del testo non valida: 2"},
        Mistake{"RowHeight", std::string(query) + "[table r]\nrow = alta\n",
                "prova.rpt:4: altezza della riga non valida: alta"},
        Mistake{"BlocksInAnotherWay", std::string(query) + "[table r]\nblocks = uniti\n",
                "prova.rpt:4: riga fuori posto: blocks = uniti"},
        Mistake{"LinesWithoutABlock", std::string(query) + "[table r]\nabove 12 bold left | a\ncolumn * left | a | b\n",
                "prova.rpt:3: manca block = testo del blocco"},
        Mistake{"TotalsWithoutABlock", std::string(query) + "[table r]\ncolumn * left | a | b | | c\n",
                "prova.rpt:3: manca block = testo del blocco"},
        Mistake{"UnknownSection", "# a\n\n[tabel r]\n", "prova.rpt:3: sezione sconosciuta: [tabel r]"},
        Mistake{"SectionNotClosed", "[page\n", "prova.rpt:1: manca la parentesi ] alla fine della riga"},
        Mistake{"EmptyHeading", "[]\n", "prova.rpt:1: sezione sconosciuta: []"},
        Mistake{"LineBeforeSections", "titolo\n", "prova.rpt:1: riga fuori posto: titolo"},
        Mistake{"LineInSpace", "[space 3]\naltro\n", "prova.rpt:2: riga fuori posto: altro"},
        Mistake{"PageOption", "[page A4]\n", "prova.rpt:1: [page] non ha opzioni"},
        Mistake{"PageLine", "[page]\nA4\n", "prova.rpt:2: riga fuori posto: A4"},
        Mistake{"PageProperty", "[page]\ncolore = rosso\n", "prova.rpt:2: proprietà di pagina sconosciuta: colore"},
        Mistake{"Orientation", "[page]\norientation = storto\n", "prova.rpt:2: orientamento sconosciuto: storto"},
        Mistake{"ThreeMargins", "[page]\nmargins = 1 2 3\n",
                "prova.rpt:2: i margini sono quattro, in mm: sinistro alto destro basso"},
        Mistake{"Margin", "[page]\nmargins = 1 2 -3 4\n", "prova.rpt:2: margine non valido: -3"},
        Mistake{"TextSize", "[page]\ntext = grande\n", "prova.rpt:2: altezza del testo non valida: grande"},
        Mistake{"Foot", "[page]\nfoot = {{testata\n", "prova.rpt:2: segnaposto non valido in: {{testata"},
        Mistake{"StyleOption", "[style x]\n", "prova.rpt:1: [style] non ha opzioni"},
        Mistake{"QueryWithoutName", "[rows]\n", "prova.rpt:1: manca il nome dell'interrogazione"},
        Mistake{"QueryTwice", "[row r]\nSELECT 1\n[rows r]\n", "prova.rpt:3: interrogazione già presente: r"},
        Mistake{"QueryName", "[row a.b]\n", "prova.rpt:1: nome non valido: a.b"},
        Mistake{"QueryEmpty", "[row r]\n\n[html]\n", "prova.rpt:1: manca l'interrogazione SQL"},
        Mistake{"Directive", "[row r]\nSELECT 1\n@euro x\n", "prova.rpt:3: direttiva sconosciuta: @euro"},
        Mistake{"DirectiveWithoutNames", "[row r]\nSELECT 1\n@amount\n",
                "prova.rpt:3: mancano i nomi dei campi dopo @amount"},
        Mistake{"MaskWrong", "[row r]\nSELECT 1\n@mask 0.0.0 x\n", "prova.rpt:3: maschera non valida: 0.0.0"},
        Mistake{"HtmlOption", "[html insieme]\n", "prova.rpt:1: opzione sconosciuta: insieme"},
        Mistake{"TagNotClosed", "[html]\n<p>\n{{Nome</p>\n", "prova.rpt:3: manca la chiusura }} del segnaposto"},
        Mistake{"TagUnescaped", "[html]\n<p>{{{Nome}}}</p>\n", "prova.rpt:2: segnaposto non valido: {{{Nome}}"},
        Mistake{"TagAmpersand", "[html]\n\n{{&Nome}}\n", "prova.rpt:3: segnaposto non valido: {{&Nome}}"},
        Mistake{"SectionOpen", "[html]\n{{#r}}\n<p>x</p>\n", "prova.rpt:2: la sezione {{#r}} non è chiusa"},
        Mistake{"SectionCrossed", "[html]\n{{#r}}\n{{/s}}\n", "prova.rpt:3: {{/s}} non chiude nessuna sezione aperta"},
        Mistake{"TableWithoutQuery", "[table]\n", "prova.rpt:1: manca il nome dell'interrogazione della tabella"},
        Mistake{"TableWithoutColumns", "[table r]\n\n[space 1]\n", "prova.rpt:1: la tabella non ha colonne"},
        Mistake{"ColumnShort", "[table r]\ncolumn 8 right\n",
                "prova.rpt:2: colonna non valida: column LARGHEZZA ALLINEAMENTO | titolo | testo | totale | totale del "
                "blocco"},
        Mistake{"ColumnWidth", "[table r]\ncolumn 0 right | a | b\n", "prova.rpt:2: larghezza non valida: 0"},
        Mistake{"ColumnAlignment", "[table r]\ncolumn 8 destra | a | b\n",
                "prova.rpt:2: allineamento sconosciuto: destra"},
        Mistake{"ColumnTag", "[table r]\ncolumn 8 left | a | {{#b}}\n",
                "prova.rpt:2: segnaposto non valido in: {{#b}}"},
        Mistake{"GroupTwice", "[table r]\ngroup a\ngroup b\n",
                "prova.rpt:3: il gruppo precedente non è chiuso con end"},
        Mistake{"GroupOpen", "[table r]\ngroup a\ncolumn 8 left | a | b\n",
                "prova.rpt:2: il gruppo non è chiuso con end"},
        Mistake{"EndAlone", "[table r]\nend\n", "prova.rpt:2: end senza group"},
        Mistake{"WhenEmpty", "[table r]\nwhen =\n", "prova.rpt:2: riga fuori posto: when ="},
        Mistake{"TableLine", "[table r]\nrighe = r\n", "prova.rpt:2: riga fuori posto: righe = r"},
        Mistake{"Space", "[space poco]\n", "prova.rpt:1: altezza non valida: [space mm]"},
        Mistake{"NewPage", "[new-page 2]\n", "prova.rpt:1: [new-page] non ha opzioni"},
        Mistake{"PartMissing", "[html]\n[include manca]\n", "prova.rpt:2: non trovato: parti/manca.part"},
        Mistake{"PartOutside", "[include ../../segreto]\n", "prova.rpt:1: nome di parte non valido: ../../segreto"}),
    [](const auto& one) { return std::string(one.param.name); });

TEST(LayoutReader, TellsAMistakeInAPartWithThePartsOwnLine) {
    EXPECT_EQ(mistake("[page]\n\n[include coda]\n", {{"parti/coda.part", "# uno\n# due\n[tabel]\n"}}),
              "parti/coda.part:3: sezione sconosciuta: [tabel]");
    EXPECT_EQ(mistake("[html]\n<p>\n[include coda]\n", {{"parti/coda.part", "# uno\n{{#aperta}}\n"}}),
              "parti/coda.part:2: la sezione {{#aperta}} non è chiusa");
}

TEST(LayoutReader, TellsOfPartsThatIncludeOneAnother) {
    EXPECT_EQ(mistake("[include a]\n", {{"parti/a.part", "\n[include b]"}, {"parti/b.part", "[include a]"}}),
              "parti/b.part:1: le parti si includono a vicenda: parti/a.part");
}

}  // namespace vorbano::test
