#include "reports/overtime_rows.h"

#include "overtime_files.h"
#include "reports_desk.h"
#include "support/results.h"

namespace vorbano::test {
namespace {

const Election fivePeriods{"Europee_Comunali", "26-05-13"};

class OvertimeRows : public ReportsDesk {
  protected:
    /// Reads the employees and appends their common rows.
    void append(LatePeriods late, const Election& election = fivePeriods) {
        const auto employees = readEmployees(files, election, late);
        ASSERT_THAT(employees, Succeeds());
        for (const Employee& employee : *employees) {
            Row row = Database1(employee.record);
            addLatePeriods(row, employee);
            ASSERT_THAT(staging.append("Tabella3", row), Succeeds());
        }
        seen = tables();
    }
    void expectRow(int row, const std::vector<std::pair<std::string_view, std::string>>& cells) {
        for (const auto& [field, value] : cells) EXPECT_EQ(seen.cell("Tabella3", row, field), value) << field;
    }
};

TEST_F(OvertimeRows, EmployeeIsCopiedFieldByField) {
    ASSERT_TRUE(layOvertime(files, "Europee_Comunali", "26-05-13", 5));
    append({true, true});
    ASSERT_EQ(seen.rows("Tabella3"), 3);
    expectRow(1, {{"NDip", "1"},        {"Dipendenti", "3"},   {"Nome", "ROSSI MARIA"}, {"MonteOre", "70"},
                  {"MoUtil", "9"},      {"globo", "250"},      {"MoGlob", "210"},       {"TotAut", "41"},
                  {"EsegDf", "31"},     {"EsegNof", "21"},     {"EsegNef", "11"},       {"TotEseg", "63"},
                  {"Categoria", "C1"},  {"Livello", "-"},      {"CompDf", "12,33"},     {"CompNof", "13,95"},
                  {"CompNef", "16,09"}, {"Dovuto", "1,00"},    {"AliCpStato", "23,80"}, {"CpStato", "2,00"},
                  {"AliIrap", "8,50"},  {"Irap", "3,00"},      {"TotaleSpesa", "5,00"}, {"AliCpDip", "8,85"},
                  {"CpDip", "6,00"},    {"AliFonCre", "0,35"}, {"FonCre", "7,00"},      {"TotaleContr", "43,21"}});
    expectRow(2, {{"NDip", "2"}, {"Nome", "VERDI GIUSEPPE"}, {"Categoria", "G    B6"}});
    expectRow(3, {{"NDip", "3"}, {"Nome", "BIANCHI NICCOLÒ"}, {"Categoria", "D3"}});
}

TEST_F(OvertimeRows, EveryPeriodHasItsOwnFields) {
    ASSERT_TRUE(layOvertime(files, "Europee_Comunali", "26-05-13", 5));
    append({true, true});
    expectRow(1, {{"PrimoDal", "02-04-13"},
                  {"PrimoAl", "30-04-13"},
                  {"A1fer", "10"},
                  {"A1fes", "5"},
                  {"A1Nf", "2"},
                  {"P1df", "9"},
                  {"P1nf", "4"},
                  {"P1nef", "1"},
                  {"tot1", "14"}});
    expectRow(1, {{"SecDal", "01-05-13"},
                  {"SecAl", "26-05-13"},
                  {"A2fer", "8"},
                  {"A2fes", "4"},
                  {"A2Nf", "1"},
                  {"P2df", "7"},
                  {"P2nf", "3"},
                  {"P2nef", "0"},
                  {"tot2", "10"}});
    expectRow(1, {{"TerDal", "27-05-13"},
                  {"TerAl", "31-05-13"},
                  {"A3fer", "6"},
                  {"A3fes", "0"},
                  {"A3Nf", "0"},
                  {"P3df", "5"},
                  {"P3nf", "0"},
                  {"P3nef", "0"},
                  {"tot3", "5"}});
    expectRow(1, {{"QuartusDal", "01-06-13"},
                  {"QuartusAl", "10-06-13"},
                  {"A4Fer", "5"},
                  {"A4Fes", "3"},
                  {"A4Nf", "1"},
                  {"P4Df", "4"},
                  {"P4Nf", "2"},
                  {"P4Nef", "1"},
                  {"tot4", "7"}});
    expectRow(1, {{"PentiumDal", "11-06-13"},
                  {"PentiumAl", "15-06-13"},
                  {"A5Fer", "4"},
                  {"A5Fes", "2"},
                  {"A5Nf", "1"},
                  {"P5Df", "3"},
                  {"P5Nf", "2"},
                  {"P5Nef", "1"},
                  {"tot5", "6"}});
}

TEST_F(OvertimeRows, PeriodLeftOutKeepsItsMark) {
    ASSERT_TRUE(layOvertime(files, "Europee_Comunali", "26-05-13", 5));
    append({true, true});
    expectRow(2, {{"TerDal", "//"}, {"TerAl", "//"}, {"A3fer", "0"}, {"tot3", "0"}});
}

TEST_F(OvertimeRows, PeriodThatIsNotShownHasZeroDatesAlsoWhereItsFileIsThere) {
    ASSERT_TRUE(layOvertime(files, "Europee_Comunali", "26-05-13", 5));
    append({});
    for (int row = 1; row <= 3; ++row) {
        expectRow(row, {{"QuartusDal", "00/00/00"},
                        {"QuartusAl", "00/00/00"},
                        {"A4Fer", "0"},
                        {"A4Fes", "0"},
                        {"A4Nf", "0"},
                        {"P4Df", "0"},
                        {"P4Nf", "0"},
                        {"P4Nef", "0"},
                        {"tot4", "0"}});
        expectRow(row, {{"PentiumDal", "00/00/00"},
                        {"PentiumAl", "00/00/00"},
                        {"A5Fer", "0"},
                        {"A5Fes", "0"},
                        {"A5Nf", "0"},
                        {"P5Df", "0"},
                        {"P5Nf", "0"},
                        {"P5Nef", "0"},
                        {"tot5", "0"}});
    }
}

TEST_F(OvertimeRows, EmployeeWithoutCounterpartHasEmptyFields) {
    ASSERT_TRUE(layOvertime(files, "Europee_Comunali", "26-05-13", 5));
    const auto employees = threeEmployees();
    ASSERT_TRUE(lay(files, "Elezioni/Europee_Comunali/26-05-13/Quartum.vbn", latePeriodBytes(employees[0], 4, 3)));
    ASSERT_TRUE(lay(files, "Elezioni/Europee_Comunali/26-05-13/Pentium.vbn", ""));
    append({true, true});
    expectRow(1, {{"QuartusDal", "01-06-13"}, {"A4Fer", "5"}, {"PentiumDal", ""}, {"PentiumAl", ""}, {"A5Fer", "0"}});
    expectRow(2, {{"QuartusDal", ""}, {"QuartusAl", ""}, {"A4Fer", "0"}, {"tot4", "0"}});
}

TEST_F(OvertimeRows, LoopGoesToTheNumberOfTheFirstRecord) {
    ASSERT_TRUE(layOvertime(files, "Europee_Comunali", "26-05-13", 5, 2));
    append({true, true});
    EXPECT_EQ(seen.rows("Tabella3"), 2);
    expectRow(2, {{"Nome", "VERDI GIUSEPPE"}, {"Dipendenti", "2"}});
}

TEST_F(OvertimeRows, LoopStopsAtTheEndOfTheFileThoughTheNumberSaysMore) {
    ASSERT_TRUE(layOvertime(files, "Europee_Comunali", "26-05-13", 5, 40));
    append({true, true});
    EXPECT_EQ(seen.rows("Tabella3"), 3);
    expectRow(3, {{"Nome", "BIANCHI NICCOLÒ"}, {"Dipendenti", "40"}});
}

TEST_F(OvertimeRows, EmptyFileHasNoEmployees) {
    ASSERT_TRUE(lay(files, "Elezioni/Europee/09-06-24/09-06-24.vbn", ""));
    const auto employees = readEmployees(files, {"Europee", "09-06-24"}, {});
    ASSERT_THAT(employees, Succeeds());
    EXPECT_TRUE(employees->empty());
    EXPECT_EQ(dipendentiOf(*employees), 0);
}

TEST_F(OvertimeRows, MissingElectionIsAFailure) {
    EXPECT_THAT(readEmployees(files, fivePeriods, {}), Fails(Failure::missingFolder));
}

TEST_F(OvertimeRows, TotalsComeFromTheLimitsOfThePeriods) {
    ASSERT_TRUE(layOvertime(files, "Europee_Comunali", "26-05-13", 5));
    const auto totals = electionTotals(files, fivePeriods);
    ASSERT_THAT(totals, Succeeds());
    ASSERT_THAT(staging.append("Tabella4", *totals), Succeeds());
    const Snapshot now = tables();
    const std::pair<std::string_view, std::string_view> cells[] = {
        {"Irpef", "111,11"}, {"inail", "22,22"},  {"datainail", "30-06-13"}, {"Medio1", "11"},   {"Medio2", "12"},
        {"Medio3", "13"},    {"Mensile1", "101"}, {"Mensile2", "102"},       {"Mensile3", "103"}};
    for (const auto& [field, value] : cells) EXPECT_EQ(now.cell("Tabella4", 1, field), value) << field;
    EXPECT_EQ(totals->find("InailPrimo"), nullptr);
}

TEST_F(OvertimeRows, TotalsOfAnElectionCutByARemovalAreThere) {
    ASSERT_TRUE(lay(files, "Elezioni/Europee_Comunali/26-05-13/Meirin.vbn", meirinBytes().substr(0, 62)));
    const auto totals = electionTotals(files, fivePeriods);
    ASSERT_THAT(totals, Succeeds());
    EXPECT_EQ(shownValue(*totals->find("Mensile3")), "103");
}

TEST_F(OvertimeRows, TotalsOfAnEmptyFileAreZero) {
    ASSERT_TRUE(lay(files, "Elezioni/Europee_Comunali/26-05-13/26-05-13.vbn", ""));
    const auto totals = electionTotals(files, fivePeriods);
    ASSERT_THAT(totals, Succeeds());
    EXPECT_EQ(shownValue(*totals->find("Irpef")), "0,00");
    EXPECT_EQ(shownValue(*totals->find("datainail")), "");
    EXPECT_EQ(shownValue(*totals->find("Medio1")), "0");
}

TEST_F(OvertimeRows, CompanionsAreHeadingDatesAndRates) {
    ASSERT_TRUE(layOvertime(files, "Europee_Comunali", "26-05-13", 5));
    EXPECT_THAT(appendCompanions(files, staging, Row{}, {"Europee", "del 9", "{e}"}, {"01-12-00", "31-12-00"}),
                Succeeds());
    const Snapshot now = tables();
    for (const std::string table : {"Tabella4", "Tabella5", "Tabella6", "Tabella10"}) EXPECT_EQ(now.rows(table), 1);
    EXPECT_EQ(now.cell("Tabella5", 1, "Comune"), "Pratofiorito");
    EXPECT_EQ(now.cell("Tabella6", 1, "DataA"), "01-12-00");
    EXPECT_EQ(now.cell("Tabella6", 1, "DataB"), "31-12-00");
    EXPECT_EQ(now.cell("Tabella10", 1, "ContrPrev"), "23,80");
    EXPECT_EQ(now.cell("Tabella10", 1, "IrapEnte"), "8,50");
    EXPECT_EQ(now.cell("Tabella10", 1, "ContrDip"), "8,85");
    EXPECT_EQ(now.cell("Tabella10", 1, "foncred"), "0,35");
}

TEST_F(OvertimeRows, EmptyConprevGivesNoRowOfRates) {
    ASSERT_TRUE(layOvertime(files, "Europee_Comunali", "26-05-13", 5));
    ASSERT_TRUE(lay(files, "Params/Conprev.dat", ""));
    EXPECT_THAT(appendCompanions(files, staging, Row{}, {}, {}), Succeeds());
    EXPECT_EQ(tables().rows("Tabella10"), 0);
    EXPECT_EQ(tables().rows("Tabella6"), 1);
}

}  // namespace
}  // namespace vorbano::test
