// The two tables of rates on paper.

#include "parameters_desk.h"

namespace vorbano::test {
namespace {

/// A print engine whose layout is not there.
class BrokenPrintEngine : public RecordingPrintEngine {
  public:
    Result<> run(const PrintJob& job) override { return Error{Failure::notFound, job.layout}; }
};

class Prints : public ParametriTest {
  protected:
    void openOnBothFiles(const CentsOf& centsOf = distinctCents) {
        ASSERT_TRUE(lay(files, "Params/PmSeg.dat", secretaryBytes(centsOf)));
        openWithRates("", centsOf);
    }
    std::string textOf(std::string_view table, int row, std::string_view field) {
        const auto read = staging.read(table, row);
        const Value* value = read ? read->find(field) : nullptr;
        const auto* found = value == nullptr ? nullptr : std::get_if<std::string>(value);
        return found == nullptr ? "(no text)" : *found;
    }
    double numberOf(std::string_view table, int row, std::string_view field) {
        const auto read = staging.read(table, row);
        const Value* value = read ? read->find(field) : nullptr;
        const auto* found = value == nullptr ? nullptr : std::get_if<double>(value);
        return found == nullptr ? -1 : *found;
    }
    int rowsIn(std::string_view table) { return staging.count(table).valueOr(-1); }
};

TEST_F(Prints, TheStaffRatesArePrintedInTheOrderOfTheGrades) {
    openOnBothFiles();
    // Number of the row in the record, from 1: D3a D6b D5b D4b D3b D2 D1 D4 C5 C4 C3 C2 C1 D5 B7b ... A1.
    constexpr std::array<int, 27> numbers = {3,  24, 25, 26, 4,  5,  6,  2,  27, 7,  8,  9,  10, 1,
                                             29, 30, 31, 15, 16, 17, 18, 23, 32, 19, 20, 21, 22};
    constexpr std::array<const char*, 27> labels = {"D7", "D6", "D5", "D4", "D3", "D2", "D1", "C6", "C5",
                                                    "C4", "C3", "C2", "C1", "B8", "B7", "B6", "B5", "B4",
                                                    "B3", "B2", "B1", "A6", "A5", "A4", "A3", "A2", "A1"};
    bool seen = false;
    printing.whileTablesAreFull = [&](const PrintJob&) {
        seen = true;
        EXPECT_EQ(rowsIn("Tabella1"), 27);
        for (int row = 1; row <= 27; ++row) {
            const auto at = static_cast<std::size_t>(row) - 1;
            EXPECT_EQ(textOf("Tabella1", row, "Categoria"), labels.at(at));
            EXPECT_EQ(textOf("Tabella1", row, "Exqualifica"), "-");
            EXPECT_DOUBLE_EQ(numberOf("Tabella1", row, "Diurno"), numbers.at(at) + 0.01);
            EXPECT_DOUBLE_EQ(numberOf("Tabella1", row, "FestNo"), numbers.at(at) + 0.02);
            EXPECT_DOUBLE_EQ(numberOf("Tabella1", row, "NottFe"), numbers.at(at) + 0.03);
        }
    };
    click("cmdStampa");
    EXPECT_TRUE(seen);
}

TEST_F(Prints, TheStaffRatesGoToThePreviewAndTheTableIsEmptyAfterwards) {
    openOnBothFiles();
    click("cmdStampa");
    ASSERT_EQ(printing.jobs.size(), 1U);
    EXPECT_EQ(printing.jobs[0].layout, "tariffe.rpt");
    EXPECT_EQ(printing.jobs[0].title, "");
    EXPECT_EQ(printing.jobs[0].destination, Destination::preview);
    EXPECT_EQ(rowsIn("Tabella1"), 0);
}

TEST_F(Prints, ARateOfThousandsIsPrintedAsItsNumber) {
    openOnBothFiles([](int, int) { return 123'450; });
    printing.whileTablesAreFull = [&](const PrintJob&) { EXPECT_DOUBLE_EQ(numberOf("Tabella1", 1, "Diurno"), 1234.5); };
    click("cmdStampa");
    EXPECT_EQ(printing.jobs.size(), 1U);
}

TEST_F(Prints, TheSecretariesRatesArePrintedRowByRow) {
    openOnBothFiles();
    tab(1);
    constexpr std::array<const char*, 5> captions = {"8^ q.f.", "9^ q.f. 2 anni", "9^ q.f. 5 anni", "9^ q.f. 10 anni",
                                                     "9^ q.f. 15 anni"};
    printing.whileTablesAreFull = [&](const PrintJob&) {
        EXPECT_EQ(rowsIn("Tabella2"), 5);
        for (int row = 1; row <= 5; ++row) {
            EXPECT_EQ(textOf("Tabella2", row, "Qualifica"), captions.at(static_cast<std::size_t>(row) - 1));
            EXPECT_DOUBLE_EQ(numberOf("Tabella2", row, "DiurnaFer"), row + 0.01);
            EXPECT_DOUBLE_EQ(numberOf("Tabella2", row, "NottorFes"), row + 0.02);
            EXPECT_DOUBLE_EQ(numberOf("Tabella2", row, "NottendFes"), row + 0.03);
        }
    };
    click("cmdStampa1");
    ASSERT_EQ(printing.jobs.size(), 1U);
    EXPECT_EQ(printing.jobs[0].layout, "tariffe2.rpt");
    EXPECT_EQ(printing.jobs[0].title, "");
    EXPECT_EQ(printing.jobs[0].destination, Destination::preview);
    EXPECT_EQ(rowsIn("Tabella2"), 0);
}

TEST_F(Prints, AMissingLayoutIsToldAndTheRowsAreTakenAway) {
    openOnBothFiles();
    BrokenPrintEngine broken;
    openOn(files, staging, broken);
    desktop.box("Errore", "Manca il file tariffe.rpt.");
    click("cmdStampa");
    EXPECT_EQ(rowsIn("Tabella1"), 0);
    tab(1);
    desktop.box("Errore", "Manca il file tariffe2.rpt.");
    click("cmdStampa1");
    EXPECT_EQ(rowsIn("Tabella2"), 0);
}

TEST_F(Prints, ADatabaseWithoutTheTableIsToldOnceAndNothingIsPrinted) {
    openOnBothFiles();
    MemoryDatabase bare({});
    openOn(files, bare, printing);
    desktop.box("Errore", "Manca il file Tabella1.");
    click("cmdStampa");
    EXPECT_THAT(printing.jobs, ::testing::IsEmpty());
}

TEST_F(Prints, RowsLeftFromBeforeAreTakenAwayToo) {
    openOnBothFiles();
    ASSERT_TRUE(staging.append("Tabella1", Row().setText("Categoria", "Z9")).ok());
    click("cmdStampa");
    EXPECT_EQ(rowsIn("Tabella1"), 0);
}

TEST_F(Prints, LettersInAFieldAreToldAndNothingIsPrinted) {
    openOnBothFiles();
    tick("Check5");
    type("txtD2Day", "abc");
    tick("Check5", false);
    desktop.box(title,
                "Riga D2, colonna Feriali: il testo \"abc\" non è un numero. Correggerlo e ripetere l'operazione.");
    click("cmdStampa");
    EXPECT_THAT(printing.jobs, ::testing::IsEmpty());
    EXPECT_EQ(rowsIn("Tabella1"), 0);
    EXPECT_EQ(focused(), "txtD2Day");
}

}  // namespace
}  // namespace vorbano::test
