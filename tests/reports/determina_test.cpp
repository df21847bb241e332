#include "reports/determina.h"

#include "stampe_desk.h"

namespace vorbano::test {
namespace {

class Determina : public StampeDesk {
  protected:
    /// Lays the election and searches for it.
    void find(const std::string& kind, const std::string& date, int periodsLaid) {
        ASSERT_TRUE(layOvertime(files, kind, date, periodsLaid));
        open();
        search(kind, date);
    }
    void print(const std::string& kind, const std::string& date, int periodsLaid) {
        find(kind, date, periodsLaid);
        click(screen().cmdDetermina);
    }
    void expectJob(const std::string& layout, const std::string& title) {
        ASSERT_FALSE(printing.jobs.empty());
        EXPECT_EQ(printing.jobs.back().layout, layout);
        EXPECT_EQ(printing.jobs.back().title, title);
        EXPECT_EQ(printing.jobs.back().destination, Destination::preview);
    }
    bool inTotals(std::string_view field) { return seen.cell("Tabella4", 1, field) != "(not there)"; }
};

const std::string determinaTitle = "LIQUIDAZIONE PER DETERMINAZIONE";

TEST_F(Determina, OfAllPeriodsGoesByTheirNumber) {
    print("Europee_Comunali", "26-05-13", 5);
    expectJob("strvideop.rpt", determinaTitle);
}

TEST_F(Determina, OfAllPeriodsOfAnElectionWithFour) {
    print("Referendum", "09-06-13", 5);
    expectJob("strvideoq.rpt", determinaTitle);
    EXPECT_EQ(seen.cell("Tabella3", 1, "P4Df"), "4");
    EXPECT_EQ(seen.cell("Tabella3", 1, "PentiumAl"), "00/00/00");
    EXPECT_EQ(seen.cell("Tabella3", 1, "tot5"), "0");
}

TEST_F(Determina, OfAllPeriodsOfAnElectionWithThree) {
    print("Politiche", "24-02-13", 3);
    expectJob("strvideo.rpt", determinaTitle);
}

TEST_F(Determina, From2014OnHasThreePeriodsThoughMoreAreOnFile) {
    print("Europee_Comunali", "25-05-14", 5);
    expectJob("strvideo.rpt", determinaTitle);
    for (const std::string_view field : {"QuartusDal", "QuartusAl", "PentiumDal", "PentiumAl"}) {
        EXPECT_EQ(seen.cell("Tabella3", 1, field), "00/00/00");
    }
    EXPECT_EQ(seen.cell("Tabella3", 1, "P4Df"), "0");
}

TEST_F(Determina, OfOnePeriodHasALayoutAndATitleOfItsOwn) {
    find("Europee_Comunali", "26-05-13", 5);
    const std::array boxes = {&screen().Check6, &screen().Check7, &screen().Check8, &screen().Check9,
                              &screen().Check10};
    const std::array expected = {std::pair{"strvideo1.rpt", "LIQUIDAZIONE PER DETERMINAZIONE 1° PERIODO"},
                                 std::pair{"strvideo2.rpt", "LIQUIDAZIONE PER DETERMINAZIONE 2° PERIODO"},
                                 std::pair{"strvideo3.rpt", "LIQUIDAZIONE PER DETERMINAZIONE 3° PERIODO"},
                                 std::pair{"strvideo4.rpt", "LIQUIDAZIONE PER DETERMINAZIONE 4° PERIODO"},
                                 std::pair{"strvideo5.rpt", "LIQUIDAZIONE PER DETERMINAZIONE 5° PERIODO"}};
    for (std::size_t at = 0; at < boxes.size(); ++at) {
        tick(*boxes[at]);
        click(screen().cmdDetermina);
        expectJob(expected[at].first, expected[at].second);
        EXPECT_EQ(seen.rows("Tabella3"), 3) << "all employees, whatever the period";
        EXPECT_EQ(seen.cell("Tabella3", 1, "P5Df"), "3") << "all periods, whatever the period";
        expectEmptyTables();
    }
    tick(screen().Check5);
    click(screen().cmdDetermina);
    expectJob("strvideop.rpt", determinaTitle);
}

TEST_F(Determina, WithNoBoxTickedIsOfAllPeriods) {
    find("Politiche", "24-02-13", 3);
    tick(screen().Check5, false);
    click(screen().cmdDetermina);
    expectJob("strvideo.rpt", determinaTitle);
}

TEST_F(Determina, InailGoesWithTheFirstTwoPeriodsOnly) {
    find("Europee_Comunali", "26-05-13", 5);
    const std::array boxes = {&screen().Check5, &screen().Check6, &screen().Check7,
                              &screen().Check8, &screen().Check9, &screen().Check10};
    for (std::size_t period = 0; period < boxes.size(); ++period) {
        tick(*boxes[period]);
        click(screen().cmdDetermina);
        EXPECT_EQ(inTotals("InailPrimo"), period == 1) << period;
        EXPECT_EQ(inTotals("InailSecondo"), period == 2) << period;
        if (period == 1) {
            EXPECT_EQ(seen.cell("Tabella4", 1, "InailPrimo"), "33,33");
        }
        if (period == 2) {
            EXPECT_EQ(seen.cell("Tabella4", 1, "InailSecondo"), "44,44");
        }
        EXPECT_EQ(seen.cell("Tabella4", 1, "inail"), "22,22");
        EXPECT_FALSE(inTotals("InailC") || inTotals("Com") || inTotals("MCom")) << "no division here";
    }
}

TEST_F(Determina, TakesTheAmountsThatTheLiquidationStored) {
    print("Europee_Comunali", "26-05-13", 5);
    ASSERT_EQ(seen.rows("Tabella3"), 3);
    const std::pair<std::string_view, std::string_view> cells[] = {
        {"NDip", "1"},           {"Dipendenti", "3"},     {"Nome", "ROSSI MARIA"}, {"P1df", "9"},
        {"P4Df", "4"},           {"P5Nf", "2"},           {"tot5", "6"},           {"EsegDf", "31"},
        {"TotEseg", "63"},       {"CompNof", "13,95"},    {"Dovuto", "1,00"},      {"CpStato", "2,00"},
        {"Irap", "3,00"},        {"TotaleSpesa", "5,00"}, {"CpDip", "6,00"},       {"FonCre", "7,00"},
        {"TotaleContr", "43,21"}};
    for (const auto& [field, value] : cells) EXPECT_EQ(seen.cell("Tabella3", 1, field), value) << field;
    EXPECT_EQ(seen.cell("Tabella3", 1, "MetaC"), "(not there)");
    EXPECT_EQ(seen.cell("Tabella3", 1, "CpStatoPrimo"), "(not there)");
}

TEST_F(Determina, FillsItsCompanionTablesAndClearsThem) {
    print("Europee_Comunali", "26-05-13", 5);
    for (const std::string table : {"Tabella4", "Tabella5", "Tabella6", "Tabella10"}) {
        EXPECT_EQ(seen.rows(table), 1) << table;
    }
    EXPECT_EQ(seen.cell("Tabella4", 1, "Irpef"), "111,11");
    EXPECT_EQ(seen.cell("Tabella4", 1, "datainail"), "30-06-13");
    EXPECT_EQ(seen.cell("Tabella5", 1, "Elezione"), "Europee e Comunali");
    EXPECT_EQ(seen.cell("Tabella6", 1, "DataA"), "01-12-00");
    EXPECT_EQ(seen.cell("Tabella6", 1, "DataB"), "31-12-00");
    EXPECT_EQ(seen.cell("Tabella10", 1, "IrapEnte"), "8,50");
    expectEmptyTables();
}

TEST_F(Determina, WithoutRatesHasNoRowOfThem) {
    find("Politiche", "24-02-13", 3);
    ASSERT_TRUE(lay(files, "Params/Conprev.dat", ""));
    click(screen().cmdDetermina);
    EXPECT_EQ(seen.rows("Tabella10"), 0);
    EXPECT_EQ(seen.rows("Tabella3"), 3);
    expectEmptyTables();
}

TEST_F(Determina, EmployeeWithoutCounterpartHasEmptyFields) {
    find("Europee_Comunali", "26-05-13", 5);
    const std::string folder = "Elezioni/Europee_Comunali/26-05-13/";
    ASSERT_TRUE(lay(files, folder + "Quartum.vbn", latePeriodBytes(threeEmployees()[0], 4, 3)));
    tick(screen().Check9);
    click(screen().cmdDetermina);
    expectJob("strvideo4.rpt", determinaTitle + " 4° PERIODO");
    EXPECT_EQ(seen.cell("Tabella3", 1, "QuartusDal"), "01-06-13");
    EXPECT_EQ(seen.cell("Tabella3", 2, "QuartusDal"), "");
    EXPECT_EQ(seen.cell("Tabella3", 2, "P4Df"), "0");
    EXPECT_EQ(seen.cell("Tabella3", 2, "PentiumDal"), "11-06-13");
}

TEST_F(Determina, ClearsAsManyRowsAsThereAreEmployeesAndLeavesTheSurplus) {
    for (int number = 0; number < 2; ++number) {
        ASSERT_THAT(staging.append("Tabella3", Row().setText("Nome", "RIMASTO")), Succeeds());
    }
    print("Politiche", "24-02-13", 3);
    EXPECT_EQ(seen.rows("Tabella3"), 5);
    EXPECT_EQ(tables().rows("Tabella3"), 2);
}

TEST_F(Determina, WithoutKindOrDateSaysWhatIsMissing) {
    ASSERT_TRUE(layOvertime(files, "Politiche", "24-02-13", 3));
    auto& stampe = open();
    stampe.form.focus(stampe.txtDataEle);
    desktop.box("Errore", "dati insufficienti per la ricerca");
    stampe.cmdDetermina_Click();
    EXPECT_EQ(stampe.form.focused(), &stampe.Combo1);
    choose(stampe.Combo1, "Politiche");
    stampe.form.focus(stampe.txtDataEle);
    desktop.box("Errore", "dati insufficienti per la ricerca");
    stampe.cmdDetermina_Click();
    EXPECT_EQ(stampe.form.focused(), &stampe.Combo1);
    EXPECT_TRUE(printing.jobs.empty());
}

TEST_F(Determina, CanBeAskedForWhenThereAreEmployees) {
    find("Politiche", "24-02-13", 3);
    EXPECT_TRUE(screen().cmdDetermina.isOperable());
    EXPECT_TRUE(screen().cmdLRendiconto.isOperable());
    EXPECT_EQ(screen().cmdDetermina.text(), "LIQUIDAZIONE PER DETERMINAZIONE");
    EXPECT_EQ(screen().cmdLRendiconto.text(), "LIQUIDAZIONE PER RENDICONTO");
    click(screen().cmdRiavvia);
    EXPECT_FALSE(screen().cmdDetermina.isEnabled());
    EXPECT_FALSE(screen().cmdLRendiconto.isEnabled());
}

TEST_F(Determina, CannotBeAskedForWithoutEmployees) {
    ASSERT_TRUE(layElection("Politiche", "24-02-13"));
    open();
    EXPECT_FALSE(screen().cmdDetermina.isEnabled());
    EXPECT_FALSE(screen().cmdLRendiconto.isEnabled());
    search("Politiche", "24-02-13");
    EXPECT_FALSE(screen().cmdDetermina.isEnabled());
    EXPECT_FALSE(screen().cmdLRendiconto.isEnabled());
}

TEST_F(Determina, WritesNoRecordFile) {
    find("Europee_Comunali", "26-05-13", 5);
    const std::string folder = "Elezioni/Europee_Comunali/26-05-13/";
    std::map<std::string, std::string> before;
    for (const std::string name : {"26-05-13.vbn", "Meirin.vbn", "Quartum.vbn", "Pentium.vbn"}) {
        before[folder + name] = contentOf(files, folder + name);
    }
    click(screen().cmdDetermina);
    click(screen().cmdLRendiconto);
    EXPECT_EQ(printing.jobs.size(), 2U);
    for (const auto& [name, content] : before) EXPECT_EQ(contentOf(files, name), content) << name;
}

}  // namespace
}  // namespace vorbano::test
