#include "stampe_desk.h"

namespace vorbano::test {
namespace {

/// What the document says of an employee.
struct Line {
    const char* name;
    const char* dovuto;
    const char* cpStato;
    const char* irap;
    const char* totaleSpesa;
};

class Impegno : public StampeDesk {
  protected:
    /// Lays the election, searches for it, asks for the document.
    void print(const std::string& kind, const std::string& date, int periodsLaid) {
        ASSERT_TRUE(layOvertime(files, kind, date, periodsLaid));
        open();
        search(kind, date);
        click(screen().cmdImpegno);
    }
    void expectJob(const std::string& layout) {
        ASSERT_EQ(printing.jobs.size(), 1U);
        EXPECT_EQ(printing.jobs[0].layout, layout);
        EXPECT_EQ(printing.jobs[0].title, "IMPEGNO DI SPESA");
        EXPECT_EQ(printing.jobs[0].destination, Destination::preview);
    }
    void expectLines(const std::array<Line, 3>& lines) {
        ASSERT_EQ(seen.rows("Tabella3"), 3);
        for (int row = 1; row <= 3; ++row) {
            const Line& line = lines[static_cast<std::size_t>(row) - 1];
            EXPECT_EQ(seen.cell("Tabella3", row, "Nome"), line.name);
            EXPECT_EQ(seen.cell("Tabella3", row, "Dovuto"), line.dovuto) << line.name;
            EXPECT_EQ(seen.cell("Tabella3", row, "CpStato"), line.cpStato) << line.name;
            EXPECT_EQ(seen.cell("Tabella3", row, "Irap"), line.irap) << line.name;
            EXPECT_EQ(seen.cell("Tabella3", row, "TotaleSpesa"), line.totaleSpesa) << line.name;
        }
    }
};

TEST_F(Impegno, OfFivePeriodsCostsAllTheirHours) {
    print("Europee_Comunali", "26-05-13", 5);
    expectJob("impstrp.rpt");
    // ROSSI: 33 h x 12,33 + 14 h x 13,95 + 5 h x 16,09; VERDI: 29 h x 11,47 + 9 h x 12,97 + 4 h x 14,96;
    // BIANCHI: 20 h x 13,00 + 10 h x 14,72 + 4 h x 16,43
    expectLines({{{"ROSSI MARIA", "682,64", "162,47", "58,02", "903,13"},
                  {"VERDI GIUSEPPE", "509,20", "121,19", "43,28", "673,67"},
                  {"BIANCHI NICCOLÒ", "472,92", "112,56", "40,20", "625,68"}}});
}

TEST_F(Impegno, OfFourPeriodsLeavesTheFifthOut) {
    print("Referendum", "09-06-13", 5);
    expectJob("impstrq.rpt");
    // ROSSI: 29 h x 12,33 = 357,57; 12 h x 13,95 = 167,40; 4 h x 16,09 = 64,36
    // VERDI: 28 h x 11,47 = 321,16; 8 h x 12,97 = 103,76; 3 h x 14,96 = 44,88
    // BIANCHI: 18 h x 13,00 = 234,00; 9 h x 14,72 = 132,48; 4 h x 16,43 = 65,72
    expectLines({{{"ROSSI MARIA", "589,33", "140,26", "50,09", "779,68"},
                  {"VERDI GIUSEPPE", "469,80", "111,81", "39,93", "621,54"},
                  {"BIANCHI NICCOLÒ", "432,20", "102,86", "36,74", "571,80"}}});
    EXPECT_EQ(seen.cell("Tabella3", 1, "QuartusDal"), "01-06-13");
    EXPECT_EQ(seen.cell("Tabella3", 1, "PentiumDal"), "00/00/00");
    EXPECT_EQ(seen.cell("Tabella3", 1, "A5Fer"), "0");
}

/// 24 h x 12,33 = 295,92; 9 h x 13,95 = 125,55; 3 h x 16,09 = 48,27
/// 21 h x 11,47 = 240,87; 6 h x 12,97 = 77,82; 3 h x 14,96 = 44,88
/// 14 h x 13,00 = 182,00; 7 h x 14,72 = 103,04; 3 h x 16,43 = 49,29
constexpr std::array<Line, 3> threePeriods = {{{"ROSSI MARIA", "469,74", "111,80", "39,93", "621,47"},
                                               {"VERDI GIUSEPPE", "363,57", "86,53", "30,90", "481,00"},
                                               {"BIANCHI NICCOLÒ", "334,33", "79,57", "28,42", "442,32"}}};

TEST_F(Impegno, OfThreePeriodsBefore2014) {
    print("Politiche", "24-02-13", 3);
    expectJob("impstr.rpt");
    expectLines(threePeriods);
}

TEST_F(Impegno, OfMunicipalElectionsBefore2014HasThreePeriodsThoughMoreAreOnFile) {
    print("Comunali", "26-05-13", 5);
    expectJob("impstr.rpt");
    expectLines(threePeriods);
    EXPECT_EQ(seen.cell("Tabella3", 1, "QuartusAl"), "00/00/00");
}

TEST_F(Impegno, From2014OnHasThreePeriodsThoughMoreAreOnFile) {
    print("Europee_Comunali", "25-05-14", 5);
    expectJob("impstr.rpt");
    expectLines(threePeriods);
    for (const std::string_view field : {"QuartusDal", "QuartusAl", "PentiumDal", "PentiumAl"}) {
        EXPECT_EQ(seen.cell("Tabella3", 1, field), "00/00/00");
    }
}

TEST_F(Impegno, KeepsFourDecimalsOfTheShareOfTheEmployee) {
    print("Europee_Comunali", "26-05-13", 5);
    // 8,85 % and 0,35 % of 682,64, 509,20 and 472,92
    EXPECT_EQ(seen.units("Tabella3", 1, "CpDip"), 604136);
    EXPECT_EQ(seen.units("Tabella3", 1, "FonCre"), 23892);
    EXPECT_EQ(seen.units("Tabella3", 2, "CpDip"), 450642);
    EXPECT_EQ(seen.units("Tabella3", 2, "FonCre"), 17822);
    EXPECT_EQ(seen.units("Tabella3", 3, "CpDip"), 418534);
    EXPECT_EQ(seen.units("Tabella3", 3, "FonCre"), 16552);
}

TEST_F(Impegno, TakesTheTotalWithheldFromTheRecord) {
    print("Europee_Comunali", "26-05-13", 5);
    EXPECT_EQ(seen.cell("Tabella3", 1, "TotaleContr"), "43,21");
    EXPECT_EQ(seen.cell("Tabella3", 2, "TotaleContr"), "0,00");
}

TEST_F(Impegno, FillsItsFourCompanionTables) {
    print("Europee_Comunali", "26-05-13", 5);
    EXPECT_EQ(seen.rows("Tabella4"), 1);
    EXPECT_EQ(seen.cell("Tabella4", 1, "Irpef"), "111,11");
    EXPECT_EQ(seen.cell("Tabella4", 1, "Mensile2"), "102");
    EXPECT_EQ(seen.rows("Tabella5"), 1);
    EXPECT_EQ(seen.cell("Tabella5", 1, "Comune"), "Pratofiorito");
    EXPECT_EQ(seen.cell("Tabella5", 1, "Elezione"), "Europee e Comunali");
    EXPECT_EQ(seen.cell("Tabella5", 1, "Data"), "del 26 Maggio 2013");
    EXPECT_EQ(seen.cell("Tabella5", 1, "Databall"), "{Vorbano 3.9 edizione 2014}");
    EXPECT_EQ(seen.rows("Tabella6"), 1);
    EXPECT_EQ(seen.cell("Tabella6", 1, "DataA"), "01-12-00");
    EXPECT_EQ(seen.cell("Tabella6", 1, "DataB"), "31-12-00");
    EXPECT_EQ(seen.rows("Tabella10"), 1);
    EXPECT_EQ(seen.cell("Tabella10", 1, "ContrDip"), "8,85");
}

TEST_F(Impegno, OfJanuaryCarriesNoDate) {
    print("Referendum", "13-01-13", 4);
    EXPECT_EQ(seen.cell("Tabella5", 1, "Elezione"), "Referendum");
    EXPECT_EQ(seen.cell("Tabella5", 1, "Data"), "");
    EXPECT_EQ(seen.cell("Tabella5", 1, "Databall"), "");
}

TEST_F(Impegno, WithoutRatesHasNoRowOfThem) {
    ASSERT_TRUE(layOvertime(files, "Politiche", "24-02-13", 3));
    ASSERT_TRUE(lay(files, "Params/Conprev.dat", ""));
    open();
    search("Politiche", "24-02-13");
    click(screen().cmdImpegno);
    EXPECT_EQ(seen.rows("Tabella10"), 0);
    EXPECT_EQ(seen.rows("Tabella3"), 3);
    expectEmptyTables();
}

TEST_F(Impegno, LeavesTheTablesEmpty) {
    print("Europee_Comunali", "26-05-13", 5);
    expectEmptyTables();
}

TEST_F(Impegno, OfFewerEmployeesThanTheNumberSaysShowsThoseThereAre) {
    ASSERT_TRUE(layOvertime(files, "Politiche", "24-02-13", 3, 40));
    open();
    search("Politiche", "24-02-13");
    click(screen().cmdImpegno);
    EXPECT_EQ(seen.rows("Tabella3"), 3);
    EXPECT_EQ(seen.cell("Tabella3", 3, "Dipendenti"), "40");
    expectEmptyTables();
}

TEST_F(Impegno, CanBeAskedForTwice) {
    print("Politiche", "24-02-13", 3);
    click(screen().cmdImpegno);
    EXPECT_EQ(printing.jobs.size(), 2U);
    EXPECT_EQ(seen.rows("Tabella3"), 3);
    EXPECT_EQ(seen.rows("Tabella5"), 1);
    expectEmptyTables();
}

TEST_F(Impegno, ClearsAsManyRowsAsThereAreEmployeesAndLeavesTheSurplus) {
    for (int number = 0; number < 2; ++number) {
        ASSERT_THAT(staging.append("Tabella3", Row().setText("Nome", "RIMASTO")), Succeeds());
    }
    print("Politiche", "24-02-13", 3);
    EXPECT_EQ(seen.rows("Tabella3"), 5);
    EXPECT_EQ(seen.cell("Tabella3", 1, "Nome"), "RIMASTO");
    // Three from the first row on: the two that were there and the first employee.
    EXPECT_EQ(tables().rows("Tabella3"), 2);
    EXPECT_EQ(tables().cell("Tabella3", 1, "Nome"), "VERDI GIUSEPPE");
}

TEST_F(Impegno, WritesNoRecordFile) {
    ASSERT_TRUE(layOvertime(files, "Europee_Comunali", "26-05-13", 5));
    std::map<std::string, std::string> before;
    const std::string folder = "Elezioni/Europee_Comunali/26-05-13/";
    for (const std::string name : {"26-05-13.vbn", "Meirin.vbn", "Quartum.vbn", "Pentium.vbn"}) {
        before[folder + name] = contentOf(files, folder + name);
    }
    open();
    search("Europee_Comunali", "26-05-13");
    click(screen().cmdImpegno);
    for (const auto& [name, content] : before) EXPECT_EQ(contentOf(files, name), content) << name;
}

}  // namespace
}  // namespace vorbano::test
