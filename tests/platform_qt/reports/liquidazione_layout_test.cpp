// The nine layouts of LIQUIDAZIONE PER RENDICONTO over tables laid out by hand. Every employee has
//   12,34  13,95  16,09 an hour; 10 weekday hours in the first period, 5 of night or holiday in the second, 3 weekday
//   hours in the fourth: 13 x 12,34 = 160,42 and 5 x 13,95 = 69,75, together 230,17
//   first period 123,40, second 69,75, the others 37,02
//   23,80 % = 54,78 (29,37 16,60 8,81)   8,50 % = 19,56 (10,49 5,93 3,14)   8,85 % = 20,37   0,35 % = 0,81

#include "report_desk.h"

namespace vorbano::test {

using ::testing::AllOf;
using ::testing::HasSubstr;
using ::testing::Not;
using ::testing::Values;

namespace {

Row liquidated(int number, int count) {
    Row row;
    row.setWhole("NDip", number).setWhole("Dipendenti", count).setText("Nome", "DIPENDENTE " + std::to_string(number));
    row.setText("Categoria", "C1").setText("Livello", "-");
    const std::pair<const char*, const char*> periods[] = {{"Primo", "01-03-13"},
                                                           {"Sec", "01-04-13"},
                                                           {"Ter", "//      "},
                                                           {"Quartus", "01-05-13"},
                                                           {"Pentium", "//      "}};
    for (const auto& [period, day] : periods) {
        row.setText(std::string(period) + "Dal", day).setText(std::string(period) + "Al", day);
    }
    for (const char* hours : {"P1nf", "P1nef", "P2df", "P2nef", "P3df", "P3nf", "P3nef", "P4Nf", "P4Nef", "P5Df",
                              "P5Nf", "P5Nef", "EsegNef"}) {
        row.setWhole(hours, 0);
    }
    row.setWhole("P1df", 10).setWhole("P2nf", 5).setWhole("P4Df", 3);
    row.setWhole("EsegDf", 13).setWhole("EsegNof", 5).setWhole("TotEseg", 18);
    const std::pair<const char*, std::int64_t> amounts[] = {
        {"CompDf", 12'34},       {"CompNof", 13'95},     {"CompNef", 16'09},
        {"Dovuto", 230'17},      {"MetaC", 115'09},      {"MetaP", 115'08},
        {"CpStato", 54'78},      {"Irap", 19'56},        {"TotaleSpesa", 74'34},
        {"CpDip", 20'37},        {"FonCre", 81},         {"TotaleContr", 21'18},
        {"CpStatoPrimo", 29'37}, {"CpIrapPrimo", 10'49}, {"CpStatoSecondo", 16'60},
        {"CpIrapSecondo", 5'93}};
    for (const auto& [field, cents] : amounts) row.set(field, Amount{cents * 100});
    return row;
}

struct Wording {
    const char* layout;
    const char* election;
    const char* words;
};
void PrintTo(const Wording& one, std::ostream* out) { *out << one.layout << " " << one.election; }

const char* const layouts[] = {"liqstr.rpt",    "liqstrq_p.rpt", "liqstrq_r.rpt", "liqstr_p_r.rpt", "liqstrqpc.rpt",
                               "liqstrapr.rpt", "liqstrqec.rpt", "liqstrre.rpt",  "liqstrr_c.rpt"};

}  // namespace

class LiquidazioneLayout : public ReportDesk {
  protected:
    void appendElection(const std::string& election, int employees) {
        append("Tabella5", Row()
                               .setText("Comune", "CASTELFRANCO VENETO")
                               .setText("Elezione", election)
                               .setText("Data", "del 26 Maggio 2013")
                               .setText("Databall", "{Vorbano 3.9 edizione 2014}"));
        append("Tabella6", Row().setText("DataA", "").setText("DataB", ""));
        EXPECT_THAT(database_.begin(), Succeeds());
        for (int number = 1; number <= employees; ++number) append("Tabella3", liquidated(number, employees));
        EXPECT_THAT(database_.commit(), Succeeds());
    }
    /// INAIL 10,01; of three employees 164,34 of contributions and 58,68 of IRAP, each in two halves.
    void appendTotals() {
        Row row;
        const std::pair<const char*, std::int64_t> amounts[] = {
            {"Irpef", 111'11},      {"inail", 10'01}, {"InailC", 5'01}, {"InailP", 5'00}, {"InailPrimo", 4'00},
            {"InailSecondo", 3'00}, {"Com", 82'17},   {"Prov", 82'17},  {"MCom", 29'34},  {"MProv", 29'34}};
        for (const auto& [field, cents] : amounts) row.set(field, Amount{cents * 100});
        append("Tabella4", row.setText("datainail", "30-06-13"));
    }
    std::unique_ptr<ReportDocument> made(std::string_view layout) {
        auto document = renderDelivered(layout, "LIQUIDAZIONE PER RENDICONTO");
        if (!document) {
            ADD_FAILURE() << document.error().subject;
            return nullptr;
        }
        return std::move(*document);
    }
    std::string text(std::string_view layout) {
        const auto document = made(layout);
        return document ? allText(*document) : std::string();
    }
    /// How often a text stands in the document by itself.
    static int times(const ReportDocument& document, const std::string& text) {
        int count = 0;
        for (int page = 0; page < document.pages(); ++page) count += timesOn(document, page, text);
        return count;
    }
};

TEST_F(LiquidazioneLayout, EveryOneIsHeadedAndSigned) {
    appendElection("Europee e Comunali", 3);
    appendTotals();
    for (const char* layout : layouts) {
        EXPECT_THAT(text(layout),
                    AllOf(HasSubstr("Comune di CASTELFRANCO VENETO"), HasSubstr("LIQUIDAZIONE PER RENDICONTO\n"),
                          HasSubstr("Europee e Comunali del 26 Maggio 2013"), HasSubstr("Il Segretario Comunale"),
                          HasSubstr("{Vorbano 3.9 edizione 2014}")))
            << layout;
    }
}

TEST_F(LiquidazioneLayout, EveryOneShowsHoursPayChargesAndWithholdings) {
    appendElection("Europee", 3);
    appendTotals();
    for (const char* layout : layouts) {
        const auto document = made(layout);
        ASSERT_NE(document, nullptr) << layout;
        EXPECT_EQ(times(*document, "DIPENDENTE 2"), 2) << layout << ": in both prospects";
        EXPECT_EQ(times(*document, "TOTALE (3)"), 2) << layout;
        for (const char* of : {"18", "12,34", "230,17", "54,78", "19,56", "304,51", "20,37", "0,81", "21,18"}) {
            EXPECT_EQ(times(*document, of), 3) << layout << ": " << of << " of each employee";
        }
        for (const char* total : {"54", "913,53", "61,11", "2,43", "63,54"}) {
            EXPECT_EQ(times(*document, total), 1) << layout << ": " << total;
        }
        for (const char* total : {"690,51", "164,34", "58,68"}) {
            EXPECT_EQ(times(*document, total), 2)
                << layout << ": " << total << " below the employees and in the summary";
        }
        EXPECT_EQ(times(*document, "10,01"), 1) << layout << ": INAIL";
        EXPECT_EQ(times(*document, "923,54"), 1) << layout << ": the whole cost";
        EXPECT_THAT(allText(*document), AllOf(HasSubstr("complessive 54 ore"), HasSubstr("30/06/13"),
                                              HasSubstr("\u00a0111,11"), HasSubstr("\u00a0923,54")))
            << layout;
    }
}

TEST_F(LiquidazioneLayout, TheSharesOfTwoBodiesAddUpToTheWhole) {
    appendElection("Provinciali e Comunali", 3);
    appendTotals();
    for (const char* layout :
         {"liqstr.rpt", "liqstrq_p.rpt", "liqstrq_r.rpt", "liqstrqpc.rpt", "liqstrqec.rpt", "liqstrr_c.rpt"}) {
        const auto document = made(layout);
        ASSERT_NE(document, nullptr) << layout;
        EXPECT_EQ(times(*document, "115,09"), 3) << layout;
        EXPECT_EQ(times(*document, "115,08"), 3) << layout;
        EXPECT_EQ(times(*document, "345,27"), 2) << layout << ": pay";
        EXPECT_EQ(times(*document, "345,24"), 2) << layout;
        EXPECT_EQ(times(*document, "82,17"), 2) << layout << ": contributions";
        EXPECT_EQ(times(*document, "29,34"), 2) << layout << ": IRAP";
        EXPECT_EQ(times(*document, "5,01"), 1) << layout << ": INAIL";
        EXPECT_EQ(times(*document, "5,00"), 1) << layout;
        EXPECT_EQ(times(*document, "461,79"), 1) << layout << ": 345,27 + 82,17 + 29,34 + 5,01";
        EXPECT_EQ(times(*document, "461,75"), 1) << layout << ": 345,24 + 82,17 + 29,34 + 5,00";
    }
}

/// The share of the Comune is the first one of the tables and takes the odd cent.
TEST_F(LiquidazioneLayout, GivesTheFirstShareToTheComune) {
    appendElection("Provinciali e Comunali", 1);
    const auto document = made("liqstrq_p.rpt");
    std::map<std::string, double> at;
    for (int page = 0; page < document->pages(); ++page) {
        for (const PageText& one : textsOf(*document, page)) at.try_emplace(one.text, one.x);
    }
    ASSERT_TRUE(at.contains("115,09") && at.contains("115,08") && at.contains("Comune"));
    EXPECT_LT(at["115,09"], at["115,08"]) << "Comune, then Provincia";
    EXPECT_LT(at["Comune"], at["115,08"]);
    EXPECT_LT(at["115,09"], at["Provincia"]);
}

/// The State bears the first period, the Region the second; what is left is common: 923,54 in all.
TEST_F(LiquidazioneLayout, KeepsTheFirstTwoPeriodsOfGeneralAndRegionalElectionsApart) {
    appendElection("Politiche e Regionali", 3);
    appendTotals();
    const auto document = made("liqstrapr.rpt");
    ASSERT_NE(document, nullptr);
    for (const char* of : {"123,40", "29,37", "10,49", "69,75", "16,60", "5,93", "37,02", "8,81", "3,14"}) {
        EXPECT_EQ(times(*document, of), 3) << of;
    }
    for (const char* total : {"370,20", "88,11", "31,47", "209,25", "49,80", "17,79", "111,06", "26,43", "9,42"}) {
        EXPECT_EQ(times(*document, total), 2) << total;
    }
    for (const char* whole : {"4,00", "3,00", "3,01", "493,78", "279,84", "149,92"}) {
        EXPECT_EQ(times(*document, whole), 1) << whole;
    }
    EXPECT_EQ(times(*document, "115,09"), 0) << "no halves";
    EXPECT_THAT(allText(*document), AllOf(HasSubstr("a carico dello Stato"), HasSubstr("a carico della Regione")));
}

class LiquidazioneWording : public LiquidazioneLayout, public ::testing::WithParamInterface<Wording> {};

TEST_P(LiquidazioneWording, SaysWhoBearsTheCost) {
    appendElection(GetParam().election, 1);
    EXPECT_THAT(text(GetParam().layout), HasSubstr(GetParam().words));
}

INSTANTIATE_TEST_SUITE_P(All, LiquidazioneWording,
                         Values(Wording{"liqstr.rpt", "Comunali", "del Comune"},
                                Wording{"liqstr.rpt", "Politiche", "dello Stato"},
                                Wording{"liqstr.rpt", "Europee e Comunali", "due quote"},
                                Wording{"liqstr_p_r.rpt", "Provinciali", "della Provincia"},
                                Wording{"liqstr_p_r.rpt", "Regionali", "della Regione"},
                                Wording{"liqstr_p_r.rpt", "Europee", "dello Stato"},
                                Wording{"liqstrre.rpt", "Referendum", "dello Stato"},
                                Wording{"liqstrq_p.rpt", "Provinciali e Comunali", "la Provincia"},
                                Wording{"liqstrq_r.rpt", "Regionali e Comunali", "il Comune"},
                                Wording{"liqstrq_r.rpt", "Regionali e Provinciali", "l'altro ente interessato"},
                                Wording{"liqstrqpc.rpt", "Politiche e Comunali", "lo Stato"},
                                Wording{"liqstrqec.rpt", "Europee e Comunali", "lo Stato"},
                                Wording{"liqstrr_c.rpt", "Referendum e Comunali", "lo Stato"},
                                Wording{"liqstrapr.rpt", "Politiche e Regionali", "della Regione"}));

/// The tables hold halves for an election held alone too; they mean nothing there.
TEST_F(LiquidazioneLayout, ShowsNoSharesOfAnElectionHeldAlone) {
    appendElection("Europee", 3);
    appendTotals();
    for (const char* layout : {"liqstr.rpt", "liqstr_p_r.rpt", "liqstrre.rpt"}) {
        EXPECT_THAT(text(layout), AllOf(Not(HasSubstr("115,0")), Not(HasSubstr("quota")), Not(HasSubstr("82,17"))))
            << layout;
    }
}

TEST_F(LiquidazioneLayout, HasAsManyPeriodsAsItsElection) {
    appendElection("Europee e Comunali", 1);
    const std::map<std::string_view, int> periods = {{"liqstr.rpt", 3}, {"liqstrapr.rpt", 5}, {"liqstrqec.rpt", 5}};
    for (const char* layout : layouts) {
        const auto document = made(layout);
        const auto known = periods.find(layout);
        const int count = known == periods.end() ? 4 : known->second;
        for (int period = 1; period <= 5; ++period) {
            const std::string title = std::to_string(period) + "° periodo";
            const bool shown = timesOn(*document, 0, title) > 0;
            EXPECT_EQ(shown, period <= count) << layout << " " << title;
        }
        EXPECT_EQ(timesOn(*document, 0, "al 01/05/13"), count >= 4 ? 1 : 0) << layout;
    }
}

TEST_F(LiquidazioneLayout, IsMadeOfEmptyTablesToo) {
    for (const char* layout : layouts) {
        const auto document = made(layout);
        ASSERT_NE(document, nullptr) << layout;
        EXPECT_EQ(times(*document, "TOTALE (0)"), 2) << layout;
        EXPECT_THAT(allText(*document), Not(HasSubstr("IRPEF"))) << layout;
    }
}

TEST_F(LiquidazioneLayout, ShowsTheRatesOfContributionsWhenTheyAreThere) {
    appendElection("Europee", 1);
    for (const char* layout : layouts) EXPECT_THAT(text(layout), Not(HasSubstr("Aliquote applicate"))) << layout;
    append("Tabella10", Row()
                            .set("ContrPrev", Amount{238000})
                            .set("IrapEnte", Amount{85000})
                            .set("ContrDip", Amount{88500})
                            .set("foncred", Amount{3500}));
    for (const char* layout : layouts) {
        for (const char* rate : {"23,80%", "8,50%", "8,85%", "0,35%"}) {
            EXPECT_THAT(text(layout), HasSubstr(rate)) << layout;
        }
    }
}

/// Whatever the number of employees, the summary and the signatures stand on one page with the end of the prospect.
TEST_F(LiquidazioneLayout, KeepsSummaryAndSignaturesWithTheTotals) {
    appendElection("Europee e Comunali", 0);
    appendTotals();
    for (int employees = 1; employees <= 60; ++employees) {
        append("Tabella3", liquidated(employees, employees));
        for (const char* layout : {"liqstr.rpt", "liqstrapr.rpt"}) {
            const auto document = made(layout);
            const int last = document->pages() - 1;
            EXPECT_EQ(timesOn(*document, last, "Il Segretario Comunale"), 1) << layout << employees;
            EXPECT_EQ(timesOn(*document, last, "SPESA COMPLESSIVA"), 1) << layout << employees;
            EXPECT_GE(timesOn(*document, last, "TOTALE (" + std::to_string(employees) + ")"), 1) << layout << employees;
            EXPECT_GE(timesOn(*document, last, "DIPENDENTE " + std::to_string(employees)), 1) << layout << employees;
        }
    }
}

TEST_F(LiquidazioneLayout, RunsOverManyPagesWithoutLosingAnEmployee) {
    appendElection("Europee e Comunali", 300);
    for (const char* layout : layouts) {
        const auto document = made(layout);
        ASSERT_NE(document, nullptr) << layout;
        for (int page = 0; page + 1 < document->pages(); ++page) {
            EXPECT_GE(timesOn(*document, page, "Dipendente"), 1) << layout << " page " << page;
        }
        for (int employee = 1; employee <= 300; employee += 13) {
            EXPECT_EQ(times(*document, "DIPENDENTE " + std::to_string(employee)), 2) << layout;
        }
    }
}

}  // namespace vorbano::test
