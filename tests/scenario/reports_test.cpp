// Documents: the report line, and what is looked at while the tables are full.

#include <filesystem>

#include "playing.h"

namespace vorbano::test {
namespace {

class Reports : public Playing {
  protected:
    void SetUp() override {
        prova->cmdSalva.clicked.calls([this] { printList(); });
    }
    /// As the office's procedures do: fill, run, empty.
    void printList() {
        for (const char* name : {"Rossi", "Bianchi"}) {
            Row row;
            row.setText("Nome", name).set("Dovuto", Amount{1700500}).setWhole("NDip", 7);
            EXPECT_TRUE(staging.append("Tabella3", row));
        }
        const auto done = print(layout, title, where);
        staging.removeAll("Tabella3").ignore();
        if (!done) tell("Stampa", "Non riuscita");
    }

    std::string layout = "prova.rpt";
    std::string title = "ELENCO";
    Destination where = Destination::preview;
};
INSTANTIATE_TEST_SUITE_P(BothWays, Reports, testing::Values(Way::bare, Way::windows),
                         testing::PrintToStringParamName());

TEST_P(Reports, ThePreviewIsLookedAtWhileTheTablesAreFull) {
    EXPECT_EQ(play("click cmdSalva\nreport PROVA.rpt \"ELENCO\" preview\n  rows tabella3 = 2\n"
                   "  cell Tabella3 1 Nome = Rossi\n  cell Tabella3 2 DOVUTO = 170,05\n"
                   "  cell Tabella3 2 NDip = 7,00\n  cell Tabella3 1 TotaleSpesa =\n  rows Tabella1 = 0\n"
                   "  save cap1/elenco.pdf\nend\nscreen frmProva\nleave\n"),
              "");
    EXPECT_TRUE(std::filesystem::exists(folder.path() / "out/cap1/elenco.pdf"));
    EXPECT_EQ(rendered, 1);
}

TEST_P(Reports, ThePrinterIsAnotherDestination) {
    where = Destination::printer;
    EXPECT_EQ(
        play("click cmdSalva\nreport prova.rpt \"ELENCO\" print\nrows Tabella3 = 2\nsave elenco.pdf\nend\nleave\n"),
        "");
    EXPECT_TRUE(std::filesystem::exists(folder.path() / "out/elenco.pdf"));
    EXPECT_EQ(failureAt(2, "click cmdSalva\nreport prova.rpt \"ELENCO\" preview\nend\n"),
              "expected the report prova.rpt \"ELENCO\" preview, was the report prova.rpt \"ELENCO\" print");
}

TEST_P(Reports, ATitleThatIsNotSetCanBeLeftOut) {
    title = "";
    EXPECT_EQ(
        play("click cmdSalva\nreport prova.rpt preview\nend\nclick cmdSalva\nreport prova.rpt \"\" preview\nend\n"),
        "");
    EXPECT_EQ(failureAt(2, "click cmdSalva\nreport prova.rpt \"ELENCO\" preview\nend\n"),
              "expected the report prova.rpt \"ELENCO\" preview, was the report prova.rpt \"\" preview");
}

TEST_P(Reports, TwoInOneGesture) {
    prova->cmdSalva.clicked.calls([this] { printList(); });
    EXPECT_EQ(play("click cmdSalva\nreport prova.rpt \"ELENCO\" preview\nend\n"
                   "report prova.rpt \"ELENCO\" preview\nend\nleave\n"),
              "");
    prova->cmdSalva.clicked.calls([this] { tell("a", "b"); });
    EXPECT_EQ(play("click cmdSalva\nreport prova.rpt \"ELENCO\" preview\nend\n"
                   "report prova.rpt \"ELENCO\" preview\nend\nbox \"a\" \"b\" -> OK\n"),
              "");
}

TEST_P(Reports, WhatDoesNotHoldInTheTables) {
    const std::string start = "click cmdSalva\nreport prova.rpt \"ELENCO\" preview\n";
    EXPECT_EQ(failureAt(3, start + "rows Tabella3 = 3\nend\n"), "expected 3 rows in Tabella3, was 2");
    EXPECT_EQ(failureAt(3, start + "rows Tabella99 = 3\nend\n"),
              "expected a table Tabella99, was not found: Tabella99");
    EXPECT_EQ(failureAt(3, start + "cell Tabella3 1 Dovuto = 170,06\nend\n"),
              "expected Tabella3 1 Dovuto = \"170,06\", was \"170,05\"");
    EXPECT_EQ(failureAt(3, start + "cell Tabella3 3 Dovuto = 170,05\nend\n"),
              "expected Tabella3 3 Dovuto = \"170,05\", was a table of 2 rows");
    EXPECT_EQ(failureAt(3, start + "cell Tabella3 1 Niente =\nend\n"),
              "expected a field Niente in Tabella3, was none of that name");
}

TEST_P(Reports, AReportThatNoLineExpectsFails) {
    EXPECT_EQ(failureAt(2, "click cmdSalva\nleave\n"), "expected `leave`, was the report prova.rpt \"ELENCO\" preview");
    EXPECT_EQ(failureAt(1, "click cmdSalva\n"),
              "expected the end of the scenario, was the report prova.rpt \"ELENCO\" preview");
    where = Destination::printer;
    EXPECT_EQ(failureAt(2, "click cmdSalva\nleave\n"), "expected `leave`, was the report prova.rpt \"ELENCO\" print");
}

TEST_P(Reports, AReportThatDoesNotComeFails) {
    EXPECT_EQ(failureAt(1, "report prova.rpt \"ELENCO\" preview\nend\n"),
              "expected `report prova.rpt \"ELENCO\" preview`, was the window frmProva");
}

TEST_P(Reports, ABoxInsteadOfAReportFails) {
    prova = std::make_unique<frmProva>();
    prova->cmdSalva.clicked.calls([this] { tell("a", "b"); });
    EXPECT_EQ(failureAt(2, "click cmdSalva\nreport prova.rpt \"ELENCO\" preview\nend\n"),
              "expected `report prova.rpt \"ELENCO\" preview`, was the box \"a\" \"b\"");
}

TEST_P(Reports, ABrokenLayoutFailsTheReport) {
    layout = "guasto.rpt";
    EXPECT_THAT(failureAt(2, "click cmdSalva\nreport guasto.rpt \"ELENCO\" preview\nend\n"),
                testing::StartsWith("expected `report guasto.rpt \"ELENCO\" preview`, was a document that cannot be "
                                    "made, damaged: guasto.rpt:3: "));
}

TEST_P(Reports, WhatTheProgramSaysOfABrokenLayoutCanBeExpected) {
    layout = "manca.rpt";
    EXPECT_EQ(play("click cmdSalva\nbox \"Stampa\" \"Non riuscita\" -> OK\nleave\n"), "");
}

TEST_P(Reports, DocumentsStayInsideTheirFolder) {
    EXPECT_EQ(failureAt(3, "click cmdSalva\nreport prova.rpt \"ELENCO\" preview\nsave ../elenco.pdf\nend\n"),
              "expected a name inside the folder for documents, was ../elenco.pdf");
    EXPECT_FALSE(std::filesystem::exists(folder.path() / "elenco.pdf"));
}

TEST_P(Reports, TheWindowBehindAPreviewCanBeLookedAt) {
    EXPECT_EQ(play("click cmdSalva\nscreenshot a.png\nreport prova.rpt \"ELENCO\" preview\nexpect cmdSalva enabled\n"
                   "screenshot b.png\nend\n"),
              "");
    EXPECT_EQ(std::filesystem::exists(folder.path() / "out/b.png"), GetParam() == Way::windows);
}

class PlainPages : public Playing {
  protected:
    void SetUp() override {
        prova->cmdSalva.clicked.calls([this] {
            EXPECT_TRUE(printing->printPage({"Resoconto", "Comune di Lesa", {"uno"}}).ok());
        });
    }
};
INSTANTIATE_TEST_SUITE_P(BothWays, PlainPages, testing::Values(Way::bare, Way::windows),
                         testing::PrintToStringParamName());

TEST_P(PlainPages, NeedNoLineAndAreKeptInTheirOrder) {
    EXPECT_EQ(play("click cmdSalva\nclick cmdSalva\nscreen frmProva\n"), "");
    EXPECT_TRUE(std::filesystem::exists(folder.path() / "out/pagina-1.pdf"));
    EXPECT_TRUE(std::filesystem::exists(folder.path() / "out/pagina-2.pdf"));
    EXPECT_FALSE(std::filesystem::exists(folder.path() / "out/pagina-3.pdf"));
    EXPECT_EQ(rendered, 0);
}

TEST_P(PlainPages, AreNoReport) {
    EXPECT_EQ(failureAt(2, "click cmdSalva\nreport prova.rpt \"Resoconto\" print\nend\n"),
              "expected `report prova.rpt \"Resoconto\" print`, was the window frmProva");
}

}  // namespace
}  // namespace vorbano::test
