#include "stampe_desk.h"

namespace vorbano::test {
namespace {

/// Three employees whose sums cannot be halved: 100,01, 0,01 and 33,33 due, contributions 23,81, 0,01 and 7,93, IRAP
/// 8,50, 0,00 and 2,83.
std::vector<LaidEmployee> oddCents() {
    auto employees = threeEmployees();
    const int amounts[3][3] = {{10001, 2381, 850}, {1, 1, 0}, {3333, 793, 283}};
    for (std::size_t at = 0; at < employees.size(); ++at) {
        employees[at].dovuto = amounts[at][0];
        employees[at].cpStato = amounts[at][1];
        employees[at].irap = amounts[at][2];
    }
    return employees;
}

class LRendiconto : public StampeDesk {
  protected:
    void print(const std::string& kind, const std::string& date, int periodsLaid = 3) {
        ASSERT_TRUE(layOvertime(files, kind, date, periodsLaid, 0, oddCents()));
        open();
        search(kind, date);
        click(screen().cmdLRendiconto);
    }
    using Cells = std::vector<std::pair<std::string_view, std::string>>;
    void expectRow(const std::string& table, int row, const Cells& cells) {
        for (const auto& [field, value] : cells) EXPECT_EQ(seen.cell(table, row, field), value) << row << " " << field;
    }
    void expectHalves() {
        expectRow("Tabella3", 1, {{"MetaC", "50,01"}, {"MetaP", "50,00"}});
        expectRow("Tabella3", 2, {{"MetaC", "0,01"}, {"MetaP", "0,00"}});
        expectRow("Tabella3", 3, {{"MetaC", "16,67"}, {"MetaP", "16,66"}});
        // 31,75, 11,33 and 22,22 in two
        expectRow("Tabella4", 1,
                  {{"Com", "15,88"},
                   {"Prov", "15,87"},
                   {"MCom", "5,67"},
                   {"MProv", "5,66"},
                   {"InailC", "11,11"},
                   {"InailP", "11,11"}});
    }
};

TEST_F(LRendiconto, DividesInHalves) {
    print("Provinciali_Comunali", "26-05-13", 4);
    ASSERT_EQ(seen.rows("Tabella3"), 3);
    expectHalves();
}

TEST_F(LRendiconto, OfOneReferendumTakesASixthOfThePayAndFiveSixthsOfTheContributions) {
    print("Referendum_Comunali", "12-06-22");
    expectRow("Tabella3", 1, {{"MetaC", "16,67"}, {"MetaP", "83,34"}});
    expectRow("Tabella3", 2, {{"MetaC", "0,00"}, {"MetaP", "0,01"}});
    expectRow("Tabella3", 3, {{"MetaC", "5,56"}, {"MetaP", "27,77"}});
    // 31,75 / 6 x 5 = 26,4583; 11,33 / 6 x 5 = 9,4417; 22,22 / 6 = 3,7033
    expectRow("Tabella4", 1,
              {{"Com", "26,46"},
               {"Prov", "5,29"},
               {"MCom", "9,44"},
               {"MProv", "1,89"},
               {"InailC", "3,70"},
               {"InailP", "18,52"}});
    EXPECT_EQ(printing.jobs.back().layout, "liqstr.rpt");
}

TEST_F(LRendiconto, OfTheDaysBesideThatReferendumDividesInHalves) {
    for (const std::string date : {"11-06-22", "13-06-22"}) {
        ASSERT_TRUE(layOvertime(files, "Referendum_Comunali", date, 3, 0, oddCents()));
    }
    ASSERT_TRUE(layOvertime(files, "Referendum", "12-06-22", 3, 0, oddCents()));
    open();
    const std::pair<std::string, std::string> elections[] = {
        {"Referendum_Comunali", "11-06-22"}, {"Referendum_Comunali", "13-06-22"}, {"Referendum", "12-06-22"}};
    for (const auto& [kind, date] : elections) {
        search(kind, date);
        click(screen().cmdLRendiconto);
        expectHalves();
        click(screen().cmdRiavvia);
    }
}

TEST_F(LRendiconto, CostsTheFirstTwoPeriodsAlone) {
    print("Politiche_Regionali", "24-02-13", 5);
    // 9 h x 12,33 + 4 h x 13,95 + 1 h x 16,09 = 182,86: 43,52068 and 15,5431; 7 h x 12,33 + 3 h x 13,95 = 128,16:
    // 30,50208 and 10,8936
    expectRow(
        "Tabella3", 1,
        {{"CpStatoPrimo", "43,52"}, {"CpIrapPrimo", "15,54"}, {"CpStatoSecondo", "30,50"}, {"CpIrapSecondo", "10,89"}});
    expectRow(
        "Tabella3", 2,
        {{"CpStatoPrimo", "0,00"}, {"CpIrapPrimo", "0,00"}, {"CpStatoSecondo", "0,00"}, {"CpIrapSecondo", "0,00"}});
}

TEST_F(LRendiconto, WritesBothPartsOfInailAndTheRecordAsItIs) {
    print("Europee_Comunali", "26-05-13", 5);
    expectRow("Tabella4", 1,
              {{"InailPrimo", "33,33"},
               {"InailSecondo", "44,44"},
               {"inail", "22,22"},
               {"Irpef", "111,11"},
               {"Mensile1", "101"}});
    expectRow("Tabella3", 1, {{"Dovuto", "100,01"}, {"CpStato", "23,81"}, {"P4Df", "4"}, {"TotaleContr", "43,21"}});
}

TEST_F(LRendiconto, LeavesTheLegalDatesEmpty) {
    print("Europee_Comunali", "26-05-13", 5);
    EXPECT_EQ(seen.rows("Tabella6"), 1);
    expectRow("Tabella6", 1, {{"DataA", ""}, {"DataB", ""}});
    EXPECT_EQ(seen.rows("Tabella5"), 1);
    EXPECT_EQ(seen.rows("Tabella10"), 1);
    expectEmptyTables();
}

TEST_F(LRendiconto, GoesByTheRunningTotalsOfTheEmployeesInTheLoop) {
    // NumDip 2: the third employee is not in the loop, nor in the totals. 23,82 and 8,50 in two.
    ASSERT_TRUE(layOvertime(files, "Europee_Comunali", "26-05-13", 5, 2, oddCents()));
    open();
    search("Europee_Comunali", "26-05-13");
    click(screen().cmdLRendiconto);
    EXPECT_EQ(seen.rows("Tabella3"), 2);
    expectRow("Tabella4", 1, {{"Com", "11,91"}, {"Prov", "11,91"}, {"MCom", "4,25"}, {"MProv", "4,25"}});
}

TEST_F(LRendiconto, AskedForTwiceDoesNotAddUp) {
    print("Provinciali_Comunali", "26-05-13", 4);
    click(screen().cmdLRendiconto);
    EXPECT_EQ(printing.jobs.size(), 2U);
    EXPECT_EQ(seen.rows("Tabella3"), 3);
    expectHalves();
}

TEST_F(LRendiconto, ClearsAlsoTheRowsThatItDidNotPut) {
    for (int number = 0; number < 2; ++number) {
        ASSERT_THAT(staging.append("Tabella3", Row().setText("Nome", "RIMASTO")), Succeeds());
    }
    print("Politiche", "24-02-13");
    EXPECT_EQ(seen.rows("Tabella3"), 5);
    expectEmptyTables();
}

TEST_F(LRendiconto, WithoutRatesHasNoRowOfThem) {
    ASSERT_TRUE(layOvertime(files, "Politiche", "24-02-13", 3));
    ASSERT_TRUE(lay(files, "Params/Conprev.dat", ""));
    open();
    search("Politiche", "24-02-13");
    click(screen().cmdLRendiconto);
    EXPECT_EQ(seen.rows("Tabella10"), 0);
    EXPECT_EQ(seen.rows("Tabella4"), 1);
    expectEmptyTables();
}

TEST_F(LRendiconto, PeriodBoxesMakeNoDifference) {
    ASSERT_TRUE(layOvertime(files, "Europee_Comunali", "26-05-13", 5));
    open();
    search("Europee_Comunali", "26-05-13");
    tick(screen().Check10);
    click(screen().cmdLRendiconto);
    EXPECT_EQ(printing.jobs.back().layout, "liqstrqec.rpt");
    EXPECT_EQ(printing.jobs.back().title, "LIQUIDAZIONE PER RENDICONTO");
    EXPECT_EQ(printing.jobs.back().destination, Destination::preview);
    EXPECT_TRUE(printing.jobs.size() == 1);
}

struct Choice {
    std::string kind;
    std::string date;
    std::string layout;
};

class LRendicontoLayouts : public LRendiconto, public testing::WithParamInterface<Choice> {};

TEST_P(LRendicontoLayouts, GoByKindAndYear) {
    print(GetParam().kind, GetParam().date, 5);
    ASSERT_EQ(printing.jobs.size(), 1U);
    EXPECT_EQ(printing.jobs[0].layout, GetParam().layout);
}

INSTANTIATE_TEST_SUITE_P(
    Kinds, LRendicontoLayouts,
    testing::Values(
        Choice{"Provinciali_Comunali", "31-12-13", "liqstrq_p.rpt"},
        Choice{"Regionali_Comunali", "31-12-13", "liqstrq_r.rpt"}, Choice{"Provinciali", "31-12-13", "liqstr_p_r.rpt"},
        Choice{"Regionali", "31-12-13", "liqstr_p_r.rpt"}, Choice{"Europee", "31-12-13", "liqstr_p_r.rpt"},
        Choice{"Politiche_Comunali", "31-12-13", "liqstrqpc.rpt"},
        Choice{"Politiche_Regionali", "31-12-13", "liqstrapr.rpt"},
        Choice{"Europee_Comunali", "31-12-13", "liqstrqec.rpt"}, Choice{"Referendum", "31-12-13", "liqstrre.rpt"},
        Choice{"Referendum_Comunali", "31-12-13", "liqstrr_c.rpt"}, Choice{"Comunali", "31-12-13", "liqstr.rpt"},
        Choice{"Politiche", "31-12-13", "liqstr.rpt"}, Choice{"Provinciali_Comunali", "02-02-14", "liqstr.rpt"},
        Choice{"Regionali_Comunali", "02-02-14", "liqstr.rpt"}, Choice{"Provinciali", "02-02-14", "liqstr.rpt"},
        Choice{"Europee", "02-02-14", "liqstr.rpt"}, Choice{"Politiche_Comunali", "02-02-14", "liqstr.rpt"},
        Choice{"Politiche_Regionali", "02-02-14", "liqstr.rpt"}, Choice{"Europee_Comunali", "02-02-14", "liqstr.rpt"},
        Choice{"Referendum", "02-02-14", "liqstr.rpt"}, Choice{"Referendum_Comunali", "02-02-14", "liqstr.rpt"},
        Choice{"Comunali", "02-02-14", "liqstr.rpt"}),
    [](const auto& one) { return one.param.kind + "_" + one.param.date.substr(6); });

}  // namespace
}  // namespace vorbano::test
