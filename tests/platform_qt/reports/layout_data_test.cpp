#include "platform/qt/layout_data.h"

#include "platform/qt/layout_reader.h"
#include "report_desk.h"

namespace vorbano::test {

class LayoutDataTest : public ReportDesk {
  protected:
    Result<LayoutData> run(const std::string& text) {
        const auto layout = readLayout("prova.rpt", sourceOf({{"prova.rpt", text}}));
        EXPECT_THAT(layout, Succeeds());
        return LayoutData::run(*layout, database_);
    }
    /// The one field of the one row of a query.
    std::string only(const std::string& query) {
        const auto data = run("[row r]\n" + query + "\n");
        if (!data) return data.error().subject;
        return std::string(data->find("r")->cell(0, 0));
    }
    void appendAmounts(std::initializer_list<std::int64_t> amounts) {
        for (const std::int64_t units : amounts) append("Tabella3", Row().set("Dovuto", Amount{units}));
    }
};

TEST_F(LayoutDataTest, ShowsColumnsOfAmountsAsAmounts) {
    appendAmounts({12345600});
    EXPECT_EQ(only("SELECT Dovuto FROM Tabella3"), "1.234,56");
    EXPECT_EQ(only("SELECT SUM(Dovuto) AS Dovuto FROM Tabella3"), "1.234,56");
    EXPECT_EQ(only("SELECT Dovuto FROM Tabella3\n@mask 0.0000 Dovuto"), "1234,5600");
}

TEST_F(LayoutDataTest, AddsAmountsWithoutLosingAUnit) {
    appendAmounts({1, 2, 90071992547409920});
    EXPECT_EQ(only("SELECT SUM(Dovuto) AS Dovuto FROM Tabella3\n@mask 0.0000 Dovuto"), "9007199254740,9923");
}

TEST_F(LayoutDataTest, WantsToBeToldWhetherAResultIsAnAmount) {
    appendAmounts({12345600});
    EXPECT_EQ(only("SELECT SUM(Dovuto) AS Somma FROM Tabella3"),
              "prova.rpt:1: interrogazione r: dichiarare con @amount o @whole Somma");
    EXPECT_EQ(only("SELECT SUM(Dovuto) AS Somma FROM Tabella3\n@amount Somma"), "1.234,56");
    EXPECT_EQ(only("SELECT COUNT(*) AS Quanti FROM Tabella3\n@whole Quanti"), "1");
}

TEST_F(LayoutDataTest, ShowsOtherValuesAsTheyAre) {
    append("Tabella1", Row().setText("Categoria", "  D3  ").set("Diurno", 13.195));
    EXPECT_EQ(only("SELECT Categoria FROM Tabella1"), "D3");
    EXPECT_EQ(only("SELECT Diurno FROM Tabella1"), "13,20");
    EXPECT_EQ(only("SELECT Exqualifica FROM Tabella1"), "") << "nothing was set";
    append("Tabella3", Row().setWhole("NDip", 1200));
    EXPECT_EQ(only("SELECT NDip FROM Tabella3"), "1200");
    EXPECT_EQ(only("SELECT NDip FROM Tabella3\n@mask #,##0 NDip"), "1.200");
}

TEST_F(LayoutDataTest, KeepsOneRowOfAOneRowQuery) {
    appendAmounts({10000, 20000});
    const auto data = run("[row uno]\nSELECT Dovuto FROM Tabella3\n[rows tutti]\nSELECT Dovuto FROM Tabella3\n");
    ASSERT_THAT(data, Succeeds());
    EXPECT_EQ(data->find("uno")->rows(), 1);
    EXPECT_EQ(data->find("tutti")->rows(), 2);
    EXPECT_EQ(data->find("tutti")->cell(1, 0), "2,00");
    EXPECT_EQ(data->find("altri"), nullptr);
}

TEST_F(LayoutDataTest, KnowsTheColumnsOfAQueryWithoutRows) {
    const auto data = run("[row r]\nSELECT Nome, Dovuto FROM Tabella3\n");
    ASSERT_THAT(data, Succeeds());
    EXPECT_EQ(data->find("r")->rows(), 0);
    EXPECT_EQ(data->find("r")->column("Dovuto"), 1);
    EXPECT_EQ(data->find("r")->column("dovuto"), -1) << "names are compared as written";
    EXPECT_EQ(data->find("r")->cell(0, 1), "");
}

TEST_F(LayoutDataTest, TellsAWrongQueryWithItsPlace) {
    const auto wrong = run("\n[row r]\nSELECT Cognome FROM Tabella3\n");
    ASSERT_THAT(wrong, Fails(Failure::damaged));
    EXPECT_THAT(wrong.error().subject, ::testing::StartsWith("prova.rpt:2: interrogazione r: "));
    EXPECT_THAT(wrong.error().subject, ::testing::HasSubstr("Cognome"));
    EXPECT_EQ(only("SELECT Nome FROM Tabella3\n@whole Quanti"),
              "prova.rpt:1: interrogazione r: campo sconosciuto Quanti");
}

TEST_F(LayoutDataTest, NeverChangesTheTables) {
    appendAmounts({10000});
    EXPECT_THAT(run("[row r]\nDELETE FROM Tabella3\n"), Fails(Failure::damaged));
    EXPECT_THAT(run("[row r]\nDROP TABLE Tabella3\n"), Fails(Failure::damaged));
    EXPECT_THAT(database_.count("Tabella3"), Gives(1));
    EXPECT_THAT(database_.removeAll("Tabella3"), Succeeds()) << "the program itself can, afterwards";
}

TEST_F(LayoutDataTest, BindsTextsToTheRowAtHandAndToOneRowQueries) {
    append("Tabella5", Row().setText("Comune", "ROMA"));
    append("Tabella3", Row().setText("Nome", "ROSSI"));
    append("Tabella3", Row().setText("Nome", "BIANCHI"));
    const auto data = run("[row t]\nSELECT Comune FROM Tabella5\n[rows d]\nSELECT Nome FROM Tabella3\n");
    ASSERT_THAT(data, Succeeds());
    const auto bind = [&](const char* text) {
        return BoundText::bind(*TextTemplate::read(text), *data, data->find("d"), {"prova.rpt", 9});
    };
    const auto text = bind("{{Nome}} di {{t.Comune}}.");
    ASSERT_THAT(text, Succeeds());
    EXPECT_EQ(text->filled(1), "BIANCHI di ROMA.");
    for (const char* wrong : {"{{Cognome}}", "{{d.Nome}}", "{{t.Nome}}", "{{x.Nome}}", "{{Comune}}"}) {
        const auto bound = bind(wrong);
        ASSERT_THAT(bound, Fails(Failure::damaged)) << wrong;
        EXPECT_EQ(bound.error().subject, std::string("prova.rpt:9: campo sconosciuto: ") + wrong);
    }
}

}  // namespace vorbano::test
