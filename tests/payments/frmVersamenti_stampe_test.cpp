// The three lists.

#include "versamenti_desk.h"

namespace vorbano::test {
namespace {

using ::testing::IsEmpty;
using ::testing::SizeIs;

using ClosingRows = std::array<std::array<std::string_view, 3>, 6>;
constexpr ClosingRows closingOfLiquidation = {{{"Coprdi", "8,85% ", "19,03"},
                                               {"Cofocrdi", "0,3% ", "0,75"},
                                               {"Copren", "24,2% ", "150,15"},
                                               {"Coirap", "8,5% ", "60,07"},
                                               {"Irpef", "-", "1.234,56"},
                                               {"Inail", "-", "78,90"}}};
constexpr ClosingRows closingOfAdjustment = {{{"Coprdi", "8,9% ", "4,44"},
                                              {"Cofocrdi", "0,4% ", "0,15"},
                                              {"Copren", "23,9% ", "16,16"},
                                              {"Coirap", "8,6% ", "6,06"},
                                              {"Irpef", "-", "321,00"},
                                              {"Inail", "-", "6,50"}}};

class VersamentiStampe : public VersamentiTest {
  protected:
    void expectRow(int row, const std::vector<std::pair<std::string_view, std::string_view>>& cells) {
        for (const auto& [field, value] : cells) EXPECT_EQ(cellOf("Tabella11", row, field), value) << row << field;
    }
    void expectJob(const std::string& layout, Destination destination) {
        ASSERT_THAT(printing.jobs, SizeIs(1));
        EXPECT_EQ(printing.jobs[0].layout, layout);
        EXPECT_EQ(printing.jobs[0].title, "");
        EXPECT_EQ(printing.jobs[0].destination, destination);
        expectEmptyTables();
        printing.jobs.clear();
    }
    /// The closing rows from row `first` on.
    void expectClosingRows(std::size_t first, const ClosingRows& rows = closingOfLiquidation) {
        ASSERT_EQ(full["Tabella11"].size(), first + 5);
        for (std::size_t at = 0; at < rows.size(); ++at) {
            const Row& row = full["Tabella11"][first - 1 + at];
            EXPECT_EQ(*row.find("Mother"), Value(std::string(rows[at][0])));
            EXPECT_EQ(*row.find("Percent"), Value(std::string(rows[at][1])));
            EXPECT_EQ(shownValue(*row.find("Importo")), rows[at][2]);
            for (const char* field : {"Comune", "Elezioni", "dataE", "Son", "Numero", "Data", "Sonocosi"})
                EXPECT_EQ(row.find(field), nullptr) << field;
        }
    }
};

TEST_F(VersamentiStampe, AListMustBeChosen) {
    search({mandate1});
    box("Anteprima Elenco", "Selezionare il tipo di elenco da stampare");
    click("cmdVideo");
    box("Stampa Elenco", "Selezionare il tipo di elenco da stampare");
    click("cmdStampa");
    EXPECT_THAT(printing.jobs, IsEmpty());
    tick("Check15");
    tick("Check16");
    EXPECT_FALSE(ticked("Check15"));
    tick("Check15");
    EXPECT_FALSE(ticked("Check16"));
}

TEST_F(VersamentiStampe, WithoutDocumentsNoListIsPrinted) {
    search();
    tick("Check15");
    for (const char* command : {"cmdVideo", "cmdStampa", "cmdSoloElenco"}) {
        box("Versamenti", "Per questo tipo di elezione non sono stati inseriti dati");
        click(command);
    }
    EXPECT_THAT(printing.jobs, IsEmpty());
}

TEST_F(VersamentiStampe, TheWholeListHasARowForEachDocumentAndSixAtTheEnd) {
    search({mandate1, inailPaid, inpsForm});
    tick("Check15");
    click("cmdVideo");
    expectJob("ElenVers.rpt", Destination::preview);
    expectRow(1, {{"Comune", "Pratofiorito"},
                  {"Elezioni", "Europee"},
                  {"dataE", "del 9 Giugno 2024"},
                  {"Mother", "Coprdi"},
                  {"Son", "Mandato di pagamento"},
                  {"Percent", "8,85%"},
                  {"Importo", "19,03"},
                  {"Numero", "101"},
                  {"Data", "01-07-24"},
                  {"Sonocosi", "in originale e copia autenticata"}});
    expectRow(2, {{"Mother", "Inail"},
                  {"Son", "Il versamento sarà effettuato entro il"},
                  {"Percent", ""},
                  {"Importo", "78,90"},
                  {"Numero", "0"},
                  {"Data", "16-08-24"},
                  {"Sonocosi", ""}});
    expectRow(3, {{"Mother", "Inps"}, {"Son", "Mod. F24"}, {"Importo", "45,00"}});
    expectClosingRows(4);
    for (const auto& [table, rows] : full) EXPECT_EQ(table, "Tabella11");
    click("cmdStampa");
    expectJob("ElenVers.rpt", Destination::printer);
}

TEST_F(VersamentiStampe, TheListAloneGoesToThePrinterWithItsOwnWordsForInail) {
    search({inailPaid});
    click("cmdSoloElenco");
    expectJob("ElenVers.rpt", Destination::printer);
    EXPECT_EQ(*full["Tabella11"][0].find("Son"),
              Value(std::string("data entro la quale sarà effetuato il versamento ")));
    expectClosingRows(2);
}

TEST_F(VersamentiStampe, TheListOfWhatWasEnteredComesWithTheOvertime) {
    search({mandate1, inailPaid});
    ASSERT_TRUE(lay(files, "Params/Conprev.dat", amount(23, 80) + amount(8, 50) + amount(8, 85) + amount(0, 35)));
    tick("Check16");
    click("cmdVideo");
    expectJob("Vers.rpt", Destination::preview);
    EXPECT_THAT(full["Tabella3"], SizeIs(2));
    EXPECT_EQ(cellOf("Tabella3", 2, "CpDip"), "7,02");
    EXPECT_EQ(cellOf("Tabella4", 1, "inail"), "78,90");
    EXPECT_EQ(cellOf("Tabella5", 1, "Comune"), "Pratofiorito");
    EXPECT_EQ(cellOf("Tabella5", 1, "Elezione"), "Europee");
    EXPECT_EQ(cellOf("Tabella5", 1, "Data"), "del 9 Giugno 2024");
    EXPECT_EQ(cellOf("Tabella5", 1, "Databall"), "(not set)");
    EXPECT_EQ(cellOf("Tabella6", 1, "DataA"), "15-04-24");
    EXPECT_EQ(cellOf("Tabella6", 1, "DataB"), "24-05-24");
    EXPECT_EQ(cellOf("Tabella10", 1, "ContrPrev"), "23,80");
    EXPECT_THAT(full["Tabella11"], SizeIs(2));
    expectRow(2, {{"Son", "Il versamento sarà effettuato entro il"}});
    expectDocuments({mandate1, inailPaid});
}

TEST_F(VersamentiStampe, AllPeriodsLeftOutIsADateThatIsNotThere) {
    layPayments(files, {mandate1});
    // The second period too.
    std::string employees = laidEmployees("//      ");
    for (const std::size_t employee : {0U, 301U}) {
        employees.replace(employee + 102, 16, "//      //      ");
    }
    ASSERT_TRUE(lay(files, paymentPath("09-06-24.vbn"), employees));
    open();
    identify();
    click("cmdAnteprima");
    tick("Check16");
    box("Errore!", "Data di Elezione inesistente!");
    click("cmdVideo");
    EXPECT_THAT(printing.jobs, IsEmpty());
    expectEmptyTables();
}

TEST_F(VersamentiStampe, SurplusRowsOfAnInterruptedDocumentGoToo) {
    search({mandate1});
    Row left;
    left.setText("Mother", "Irpef");
    ASSERT_THAT(staging.append("Tabella11", left), Succeeds());
    Row employee;
    employee.setText("Nome", "X");
    ASSERT_THAT(staging.append("Tabella3", employee), Succeeds());
    tick("Check16");
    click("cmdStampa");
    EXPECT_THAT(full["Tabella3"], SizeIs(3));
    expectJob("Vers.rpt", Destination::printer);
}

TEST_F(VersamentiStampe, OfTheAdjustmentAListMustBeChosenToo) {
    searchAdjustment({adjusted1});
    box("Anteprima Elenco", "Selezionare il tipo di elenco da stampare");
    click("cmdVideo");
    box("Stampa Elenco", "Selezionare il tipo di elenco da stampare");
    click("cmdStampa");
    EXPECT_THAT(printing.jobs, IsEmpty());
}

TEST_F(VersamentiStampe, WithoutDocumentsOfTheAdjustmentNoListOfItIsPrinted) {
    searchAdjustment({}, {mandate1});
    tick("Check15");
    for (const char* command : {"cmdVideo", "cmdStampa", "cmdSoloElenco"}) {
        box("Versamenti", "Per questo tipo di elezione non sono stati inseriti dati");
        click(command);
    }
    EXPECT_THAT(printing.jobs, IsEmpty());
}

TEST_F(VersamentiStampe, TheAdjustmentHasOneListWithoutClosingRowsWhicheverIsTicked) {
    searchAdjustment({adjusted2, adjustedInail, adjustedInps}, {mandate1});
    const std::pair<const char*, Destination> commands[] = {{"cmdVideo", Destination::preview},
                                                            {"cmdStampa", Destination::printer}};
    for (const char* list : {"Check15", "Check16"}) {
        tick(list);
        for (const auto& [command, destination] : commands) {
            SCOPED_TRACE(std::string(list) + command);
            click(command);
            ASSERT_THAT(full["Tabella11"], SizeIs(3));
            expectRow(1, {{"Comune", "Pratofiorito"},
                          {"Elezioni", "Europee"},
                          {"dataE", "del 9 Giugno 2024"},
                          {"Mother", "Coprdi"},
                          {"Son", "Mandato di pagamento"},
                          {"Percent", "8,9%"},
                          {"Importo", "4,44"},
                          {"Numero", "202"},
                          {"Data", "02-10-24"},
                          {"Sonocosi", "in duplice copia autenticata"}});
            expectRow(2, {{"Mother", "Inail"}, {"Importo", "6,50"}, {"Data", "16-11-24"}});
            // Nothing trims the cell: the blank at the end is the office's.
            EXPECT_EQ(*full["Tabella11"][1].find("Son"),
                      Value(std::string("data entro la quale sarà effetuato il versamento ")));
            expectRow(3, {{"Mother", "Inps"}, {"Son", "Mod. F24"}, {"Importo", "4,10"}});
            EXPECT_THAT(full["Tabella5"], SizeIs(1));
            EXPECT_EQ(cellOf("Tabella5", 1, "Comune"), "Pratofiorito");
            EXPECT_EQ(cellOf("Tabella5", 1, "Elezione"), "Europee");
            EXPECT_EQ(cellOf("Tabella5", 1, "Data"), "del 9 Giugno 2024");
            EXPECT_EQ(full.size(), 2U) << "no other table is filled";
            expectJob("versc.rpt", destination);
        }
    }
    expectDocuments({adjusted2, adjustedInail, adjustedInps}, versumcFile);
    expectLiquidationUntouched();
}

TEST_F(VersamentiStampe, TheListAloneOfTheAdjustmentEndsWithWhatTheAdjustmentAdds) {
    searchAdjustment({adjusted2, adjustedInail}, {mandate1});
    click("cmdSoloElenco");
    expectJob("ElenVers.rpt", Destination::printer);
    ASSERT_THAT(full["Tabella11"], SizeIs(2 + 6));
    expectRow(1, {{"Mother", "Coprdi"}, {"Importo", "4,44"}, {"Numero", "202"}});
    EXPECT_EQ(*full["Tabella11"][1].find("Son"),
              Value(std::string("data entro la quale sarà effetuato il versamento ")));
    expectClosingRows(3, closingOfAdjustment);
}

TEST_F(VersamentiStampe, BackFromTheAdjustmentTheListsAreThoseOfTheLiquidation) {
    searchAdjustment({adjusted2}, {mandate1, inailPaid});
    click("cmdConguaglio");
    tick("Check15");
    click("cmdVideo");
    expectJob("ElenVers.rpt", Destination::preview);
    expectRow(2, {{"Son", "Il versamento sarà effettuato entro il"}});
    expectClosingRows(3);
}

}  // namespace
}  // namespace vorbano::test
