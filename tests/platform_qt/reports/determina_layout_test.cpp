#include <algorithm>

#include "report_desk.h"

namespace vorbano::test {

using ::testing::HasSubstr;
using ::testing::Not;

namespace {

using ThreeHours = std::array<int, 3>;

/// Rates in cents.
struct Worker {
    std::string name;
    ThreeHours rates{};
    std::array<ThreeHours, 5> performed{};
    ThreeHours authorised{};  ///< in each of the five periods
};

struct PeriodNames {
    const char* from;
    const char* to;
    const char* authorised[3];
    const char* performed[3];
    const char* total;
};
constexpr PeriodNames periodNames[] = {
    {"PrimoDal", "PrimoAl", {"A1fer", "A1fes", "A1Nf"}, {"P1df", "P1nf", "P1nef"}, "tot1"},
    {"SecDal", "SecAl", {"A2fer", "A2fes", "A2Nf"}, {"P2df", "P2nf", "P2nef"}, "tot2"},
    {"TerDal", "TerAl", {"A3fer", "A3fes", "A3Nf"}, {"P3df", "P3nf", "P3nef"}, "tot3"},
    {"QuartusDal", "QuartusAl", {"A4Fer", "A4Fes", "A4Nf"}, {"P4Df", "P4Nf", "P4Nef"}, "tot4"},
    {"PentiumDal", "PentiumAl", {"A5Fer", "A5Fes", "A5Nf"}, {"P5Df", "P5Nf", "P5Nef"}, "tot5"},
};
constexpr const char* starts[] = {"02-04-13", "01-05-13", "27-05-13", "01-06-13", "11-06-13"};
constexpr const char* ends[] = {"30-04-13", "26-05-13", "31-05-13", "10-06-13", "15-06-13"};

/// Two employees of whom the second earns an amount that falls on half a cent: 34 hours, 472,92.
std::vector<Worker> twoWorkers() {
    return {{"ROSSI MARIA", {1233, 1395, 1609}, {{{9, 4, 1}}}, {10, 5, 2}},
            {"BIANCHI LUCA", {1300, 1472, 1643}, {{{20, 10, 4}}}, {20, 10, 4}}};
}

}  // namespace

class DeterminaLayout : public ReportDesk {
  protected:
    /// A row of the employee table as the liquidation left it: 100,00 due, 23,80 and 8,50 of the body, 8,85 and 0,35 of
    /// the employee.
    void appendWorker(int number, const Worker& worker, std::string_view excluded = {}) {
        Row row;
        row.setWhole("NDip", number).setText("Nome", worker.name).setText("Categoria", "C1").setText("Livello", "-");
        std::array<int, 3> executed{};
        for (std::size_t at = 0; at < worker.performed.size(); ++at) {
            const PeriodNames& names = periodNames[at];
            const bool out = names.from == excluded;
            row.setText(names.from, out ? "//" : starts[at]).setText(names.to, out ? "//" : ends[at]);
            int total = 0;
            for (std::size_t kind = 0; kind < 3; ++kind) {
                row.setWhole(names.authorised[kind], worker.authorised[kind]);
                row.setWhole(names.performed[kind], worker.performed[at][kind]);
                total += worker.performed[at][kind];
                executed[kind] += worker.performed[at][kind];
            }
            row.setWhole(names.total, total);
        }
        row.setWhole("EsegDf", executed[0]).setWhole("EsegNof", executed[1]).setWhole("EsegNef", executed[2]);
        row.setWhole("TotEseg", executed[0] + executed[1] + executed[2]);
        const char* rates[] = {"CompDf", "CompNof", "CompNef"};
        for (std::size_t kind = 0; kind < 3; ++kind) row.set(rates[kind], Amount{worker.rates[kind] * 100});
        row.set("AliCpStato", Amount{238000}).set("AliIrap", Amount{85000});
        row.set("AliCpDip", Amount{88500}).set("AliFonCre", Amount{3500});
        row.set("Dovuto", Amount{1000000}).set("CpStato", Amount{238000}).set("Irap", Amount{85000});
        row.set("CpDip", Amount{88500}).set("FonCre", Amount{3500});
        append("Tabella3", row);
    }
    void appendWorkers(const std::vector<Worker>& workers, std::string_view excluded = {}) {
        int number = 0;
        for (const Worker& worker : workers) appendWorker(++number, worker, excluded);
    }
    /// "DIPENDENTE n", each with an hour of every kind in every period.
    void appendMany(int count) {
        EXPECT_THAT(database_.begin(), Succeeds());
        for (int number = 1; number <= count; ++number) {
            const ThreeHours one{1, 1, 1};
            appendWorker(number,
                         {"DIPENDENTE " + std::to_string(number), {1000, 1100, 1200}, {one, one, one, one, one}, one});
        }
        EXPECT_THAT(database_.commit(), Succeeds());
    }
    void appendTotals(std::int64_t irpef, std::int64_t inail) {
        append("Tabella4", Row().set("Irpef", Amount{irpef}).set("inail", Amount{inail}));
    }
    std::unique_ptr<ReportDocument> made(std::string_view layout) {
        auto document = renderDelivered(layout, "LIQUIDAZIONE PER DETERMINAZIONE");
        if (!document) {
            ADD_FAILURE() << document.error().subject;
            return nullptr;
        }
        return std::move(*document);
    }
    /// The text of the first page, line ends and hard blanks as single blanks.
    std::string words(std::string_view layout) {
        std::string text = pageText(*made(layout), 0);
        for (std::size_t at = text.find("\u00a0"); at != std::string::npos; at = text.find("\u00a0", at)) {
            text.replace(at, 2, " ");
        }
        std::replace(text.begin(), text.end(), '\n', ' ');
        const auto bothBlank = [](char one, char next) { return one == ' ' && next == ' '; };
        text.erase(std::unique(text.begin(), text.end(), bothBlank), text.end());
        return text;
    }
};

const std::array allLayouts = {"strvideo.rpt",  "strvideoq.rpt", "strvideop.rpt", "strvideo1.rpt",
                               "strvideo2.rpt", "strvideo3.rpt", "strvideo4.rpt", "strvideo5.rpt"};
const std::array layoutsOfOnePeriod = {"strvideo1.rpt", "strvideo2.rpt", "strvideo3.rpt", "strvideo4.rpt",
                                       "strvideo5.rpt"};

TEST_F(DeterminaLayout, HeadsTheActWithMunicipalityElectionAndDate) {
    appendHeading();
    appendWorkers(twoWorkers());
    for (const char* layout : allLayouts) {
        const std::string text = words(layout);
        EXPECT_THAT(text, HasSubstr("Comune di CASTELFRANCO VENETO")) << layout;
        EXPECT_THAT(text, HasSubstr("LIQUIDAZIONE PER DETERMINAZIONE")) << layout;
        EXPECT_THAT(text, HasSubstr("Europee e Comunali del 9 Giugno 2024")) << layout;
        EXPECT_THAT(text, HasSubstr("DETERMINA ")) << layout;
        EXPECT_THAT(text, HasSubstr("in numero di 2")) << layout;
        EXPECT_THAT(text, HasSubstr("{Vorbano 3.9 edizione 2014}")) << layout;
    }
}

TEST_F(DeterminaLayout, OfOnePeriodSaysWhichAndWhen) {
    appendWorkers(twoWorkers());
    const char* dates[] = {"1° periodo, dal 02/04/13 al 30/04/13", "2° periodo, dal 01/05/13 al 26/05/13",
                           "3° periodo, dal 27/05/13 al 31/05/13", "4° periodo, dal 01/06/13 al 10/06/13",
                           "5° periodo, dal 11/06/13 al 15/06/13"};
    for (std::size_t at = 0; at < layoutsOfOnePeriod.size(); ++at) {
        const std::string text = words(layoutsOfOnePeriod[at]);
        EXPECT_THAT(text, HasSubstr(dates[at]));
        EXPECT_THAT(text, HasSubstr("DETERMINAZIONE " + std::to_string(at + 1) + "° PERIODO"));
    }
}

TEST_F(DeterminaLayout, OfOnePeriodComputesItsAmountsFromThePerformedHours) {
    appendWorkers(twoWorkers());
    const auto document = made("strvideo1.rpt");
    // 9 h x 12,33 + 4 h x 13,95 + 1 h x 16,09; 8,85 %, 0,35 %, what is left; 23,80 %, 8,50 %, both.
    for (const char* amount : {"182,86", "16,18", "0,64", "166,04", "43,52", "15,54", "59,06"}) {
        EXPECT_EQ(timesOn(*document, 0, amount), 1) << amount;
    }
    // 472,92; 23,80 % is 112,55496, held to 1/10,000 and then to cents.
    for (const char* amount : {"472,92", "41,85", "1,66", "429,41", "112,56", "40,20", "152,76"}) {
        EXPECT_EQ(timesOn(*document, 0, amount), 1) << amount;
    }
    for (const char* amount : {"655,78", "58,03", "2,30", "595,45", "156,08", "55,74", "211,82", "TOTALE (2)"}) {
        EXPECT_EQ(timesOn(*document, 0, amount), 1) << amount;
    }
    const std::string text = words("strvideo1.rpt");
    EXPECT_THAT(text, HasSubstr("per le 48 ore"));
    EXPECT_THAT(text, HasSubstr("a fronte delle 51 autorizzate"));
    EXPECT_THAT(text, HasSubstr("oneri di € 211,82"));
    EXPECT_THAT(text, HasSubstr("periodo è di € 867,60"));
}

TEST_F(DeterminaLayout, OfOnePeriodShowsThatPeriodAndNoOther) {
    // n hours in the n-th period at 11,11.
    appendWorkers({{"ROSSI MARIA", {1111, 0, 0}, {{{1, 0, 0}, {2, 0, 0}, {3, 0, 0}, {4, 0, 0}, {5, 0, 0}}}, {}}});
    const char* due[] = {"11,11", "22,22", "33,33", "44,44", "55,55"};
    for (std::size_t shown = 0; shown < layoutsOfOnePeriod.size(); ++shown) {
        const auto document = made(layoutsOfOnePeriod[shown]);
        for (std::size_t one = 0; one < std::size(due); ++one) {
            // In the row and in the totals; 11,11 is the rate of an hour as well.
            const int expected = (one == shown ? 2 : 0) + (one == 0 ? 1 : 0);
            EXPECT_EQ(timesOn(*document, 0, due[one]), expected) << layoutsOfOnePeriod[shown] << " " << due[one];
        }
    }
}

TEST_F(DeterminaLayout, OfAPeriodWithoutHoursStillListsTheEmployees) {
    appendWorkers(twoWorkers());
    const auto document = made("strvideo3.rpt");
    EXPECT_EQ(timesOn(*document, 0, "ROSSI MARIA"), 1);
    EXPECT_EQ(timesOn(*document, 0, "BIANCHI LUCA"), 1);
    // Seven amounts of each and of the totals.
    EXPECT_EQ(timesOn(*document, 0, "0,00"), 21);
}

TEST_F(DeterminaLayout, OfAnExcludedPeriodSaysSoAndLiquidatesNothing) {
    appendWorkers(twoWorkers(), "TerDal");
    const std::string excluded = words("strvideo3.rpt");
    EXPECT_THAT(excluded, HasSubstr("Il 3° periodo è escluso: non vi sono compensi da liquidare."));
    EXPECT_THAT(excluded, Not(HasSubstr("DETERMINA ")));
    EXPECT_THAT(words("strvideo2.rpt"), Not(HasSubstr("escluso")));
    EXPECT_EQ(timesOn(*made("strvideo.rpt"), 0, "escluso") + timesOn(*made("strvideo.rpt"), 0, "periodo escluso"), 1);
}

TEST_F(DeterminaLayout, OfOnePeriodTakesTheInailOfThatPeriod) {
    appendWorkers(twoWorkers());
    append("Tabella4", Row().set("Irpef", Amount{0}).set("inail", Amount{999900}).set("InailPrimo", Amount{333300}));
    const std::string first = words("strvideo1.rpt");
    EXPECT_THAT(first, HasSubstr("INAIL del periodo € 33,33"));
    EXPECT_THAT(first, HasSubstr("oneri di € 245,15"));
    EXPECT_THAT(first, HasSubstr("periodo è di € 900,93"));
    EXPECT_THAT(words("strvideo2.rpt"), Not(HasSubstr("INAIL")));
    ASSERT_THAT(database_.removeAll("Tabella4"), Succeeds());
    append("Tabella4", Row().set("InailSecondo", Amount{444400}).set("inail", Amount{999900}));
    EXPECT_THAT(words("strvideo1.rpt"), Not(HasSubstr("INAIL")));
    EXPECT_THAT(words("strvideo2.rpt"), HasSubstr("INAIL del periodo € 44,44"));
    for (const char* layout : {"strvideo3.rpt", "strvideo4.rpt", "strvideo5.rpt"}) {
        EXPECT_THAT(words(layout), Not(HasSubstr("INAIL"))) << layout;
    }
}

TEST_F(DeterminaLayout, OfOnePeriodNamesTheIrpefOfTheElectionAndLeavesItOutOfTheNet) {
    appendWorkers(twoWorkers());
    appendTotals(1111100, 0);
    const std::string text = words("strvideo1.rpt");
    EXPECT_THAT(text,
                HasSubstr("netto di € 595,45, salva l'IRPEF, che per tutti i periodi dell'elezione è di € 111,11"));
}

TEST_F(DeterminaLayout, OfAllPeriodsTakesTheAmountsOfTheLiquidation) {
    appendWorkers(twoWorkers());
    appendTotals(150000, 222200);
    for (const char* layout : {"strvideo.rpt", "strvideoq.rpt", "strvideop.rpt"}) {
        const auto document = made(layout);
        for (const char* amount : {"200,00", "17,70", "0,70", "181,60", "47,60", "17,00", "64,60"}) {
            EXPECT_EQ(timesOn(*document, 0, amount), 1) << layout << " " << amount;
        }
        const std::string text = words(layout);
        EXPECT_THAT(text, HasSubstr("per le 48 ore"));
        EXPECT_THAT(text, HasSubstr("IRPEF € 15,00"));
        EXPECT_THAT(text, HasSubstr("netto di € 166,60;"));
        EXPECT_THAT(text, HasSubstr("INAIL € 22,22"));
        EXPECT_THAT(text, HasSubstr("oneri di € 86,82"));
        EXPECT_THAT(text, HasSubstr("liquidazione è di € 286,82"));
    }
}

TEST_F(DeterminaLayout, OfAllPeriodsWithoutIrpefAndInailDoesNotNameThem) {
    appendWorkers(twoWorkers());
    appendTotals(0, 0);
    const std::string text = words("strvideo.rpt");
    EXPECT_THAT(text, HasSubstr("netto di € 181,60, salva l'IRPEF"));
    EXPECT_THAT(text, Not(HasSubstr("INAIL")));
    EXPECT_THAT(text, HasSubstr("liquidazione è di € 264,60"));
}

TEST_F(DeterminaLayout, OfAllPeriodsHasAsManyAsItsName) {
    appendWorkers(twoWorkers());
    const std::pair<const char*, int> layouts[] = {{"strvideo.rpt", 3}, {"strvideoq.rpt", 4}, {"strvideop.rpt", 5}};
    for (const auto& [layout, periods] : layouts) {
        const auto document = made(layout);
        EXPECT_EQ(timesOn(*document, 0, "Aut."), periods) << layout;
        EXPECT_EQ(timesOn(*document, 0, "Eff."), periods) << layout;
        for (int period = 1; period <= 5; ++period) {
            EXPECT_EQ(timesOn(*document, 0, std::to_string(period) + "° periodo"), period <= periods ? 1 : 0)
                << layout << " " << period;
        }
        // The dates stand on one line each.
        EXPECT_EQ(timesOn(*document, 0, "dal 02/04/13"), 1) << layout;
        EXPECT_EQ(timesOn(*document, 0, "al 10/06/13"), periods > 3 ? 1 : 0) << layout;
    }
}

TEST_F(DeterminaLayout, ShowsTheRatesOfContributionsWhenTheyAreThere) {
    appendWorkers(twoWorkers());
    EXPECT_THAT(words("strvideo1.rpt"), Not(HasSubstr("Aliquote applicate")));
    append("Tabella10", Row()
                            .set("ContrPrev", Amount{238000})
                            .set("IrapEnte", Amount{85000})
                            .set("ContrDip", Amount{88500})
                            .set("foncred", Amount{3500}));
    for (const char* layout : {"strvideo.rpt", "strvideo1.rpt"}) {
        for (const char* rate : {"23,80%", "8,50%", "8,85%", "0,35%"}) EXPECT_THAT(words(layout), HasSubstr(rate));
    }
}

TEST_F(DeterminaLayout, IsMadeOfEmptyTablesToo) {
    for (const char* layout : allLayouts) {
        const auto document = made(layout);
        ASSERT_NE(document, nullptr) << layout;
        EXPECT_EQ(document->pages(), 1) << layout;
        EXPECT_EQ(timesOn(*document, 0, "TOTALE (0)"), 1) << layout;
    }
}

TEST_F(DeterminaLayout, NeverShowsTheLegalDatesThatAreNoDatesOfTheElection) {
    appendWorkers(twoWorkers());
    append("Tabella6", Row().setText("DataA", "01-12-00").setText("DataB", "31-12-00"));
    for (const char* layout : allLayouts) EXPECT_THAT(words(layout), Not(HasSubstr("12-00"))) << layout;
}

TEST_F(DeterminaLayout, LongNameFallsIntoLinesOfItsColumn) {
    auto workers = twoWorkers();
    workers[0].name = "MONTEMAGGIORE DELLA ROVERE MARIA ANTONIETTA IMMACOLATA LUISA";
    workers[1].name = std::string(60, 'W');
    appendWorkers(workers);
    for (const char* layout : allLayouts) {
        const auto document = made(layout);
        double nameAt = 0;
        double gradeAt = 0;
        std::string pieces;
        for (const PageText& one : textsOf(*document, 0)) {
            if (one.text == "Dipendente") nameAt = one.x;
            if (one.text == "Cat.") gradeAt = one.x;
            if (one.text.find("WW") != std::string::npos) {
                EXPECT_NEAR(one.x, nameAt, 1) << layout;
                pieces += one.text;
            }
            EXPECT_NE(one.text, workers[0].name) << layout;
        }
        EXPECT_LT(nameAt, gradeAt) << layout;
        EXPECT_EQ(pieces, workers[1].name) << layout << ": nothing is cut";
    }
}

/// Whatever the number of employees, the totals and the signatures stand on one page, with an employee above them.
TEST_F(DeterminaLayout, KeepsTheSignaturesWithTheTotals) {
    appendHeading();
    for (int employees = 1; employees <= 60; ++employees) {
        ASSERT_THAT(database_.removeAll("Tabella3"), Succeeds());
        appendMany(employees);
        for (const char* layout : {"strvideop.rpt", "strvideo1.rpt"}) {
            const auto document = made(layout);
            const int last = document->pages() - 1;
            EXPECT_LE(document->pages(), employees <= 12 ? 2 : 3) << layout << employees;
            EXPECT_EQ(timesOn(*document, last, "Il Segretario Comunale"), 1) << layout << employees;
            EXPECT_EQ(timesOn(*document, last, "TOTALE (" + std::to_string(employees) + ")"), 1) << layout << employees;
            EXPECT_EQ(timesOn(*document, last, "DIPENDENTE " + std::to_string(employees)), 1) << layout << employees;
        }
    }
}

TEST_F(DeterminaLayout, RunsOverManyPagesForThreeHundredEmployees) {
    appendMany(300);
    for (const char* layout : allLayouts) {
        const auto document = made(layout);
        EXPECT_GE(document->pages(), 6) << layout;
        EXPECT_LE(document->pages(), 14) << layout;
        for (int page = 0; page < document->pages(); ++page) {
            EXPECT_EQ(timesOn(*document, page, "Dipendente"), 1) << layout << " page " << page;
        }
        EXPECT_THAT(allText(*document), HasSubstr("DIPENDENTE 300\n"));
    }
}

}  // namespace vorbano::test
