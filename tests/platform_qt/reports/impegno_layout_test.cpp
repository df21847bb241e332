#include "report_desk.h"

namespace vorbano::test {

using ::testing::HasSubstr;
using ::testing::Not;

class ImpegnoLayout : public ReportDesk {
  protected:
    std::unique_ptr<ReportDocument> made(std::string_view layout, int employees) {
        appendHeading();
        appendEmployees(employees);
        return made(layout);
    }
    std::unique_ptr<ReportDocument> made(std::string_view layout) {
        auto document = renderDelivered(layout, "IMPEGNO DI SPESA");
        if (!document) {
            ADD_FAILURE() << document.error().subject;
            return nullptr;
        }
        return std::move(*document);
    }
};

TEST_F(ImpegnoLayout, HeadsTheActWithMunicipalityElectionAndDate) {
    const auto document = made("impstr.rpt", 3);
    const std::string text = pageText(*document, 0);
    EXPECT_THAT(text, HasSubstr("Comune di CASTELFRANCO VENETO"));
    EXPECT_THAT(text, HasSubstr("IMPEGNO DI SPESA"));
    EXPECT_THAT(text, HasSubstr("Europee e Comunali del 9 Giugno 2024"));
    EXPECT_THAT(text, HasSubstr("{Vorbano 3.9 edizione 2014}"));
}

TEST_F(ImpegnoLayout, NamesAnEnteThatIsCalledMunicipalityAlreadyOnce) {
    appendHeading("COMUNE DI FORLI'");
    appendEmployees(1);
    EXPECT_THAT(pageText(*made("impstr.rpt"), 0), Not(HasSubstr("Comune di COMUNE")));
}

TEST_F(ImpegnoLayout, ShowsEachEmployeeAndTheTotals) {
    const auto document = made("impstr.rpt", 3);
    EXPECT_EQ(timesOn(*document, 0, "DIPENDENTE 3"), 1);
    EXPECT_EQ(timesOn(*document, 0, "TOTALE (3)"), 1);
    EXPECT_EQ(timesOn(*document, 0, "20,00"), 3);
    // Three times 20,00, 4,76, 1,70, 26,46, 1,77 and 0,07.
    for (const char* total : {"60,00", "14,28", "5,10", "79,38", "5,31", "0,21"}) {
        EXPECT_EQ(timesOn(*document, 0, total), 1) << total;
    }
    // In each row 2 hours of the first kind and 2 in all; in the totals 6 and 6.
    EXPECT_EQ(timesOn(*document, 0, "6"), 2);
    std::string text = pageText(*document, 0);
    EXPECT_THAT(text, HasSubstr("in numero di 3"));
    EXPECT_THAT(text, HasSubstr("\u00a079,38"));
    EXPECT_THAT(text, HasSubstr("\u00a019,38")) << "contributions and IRAP together";
}

TEST_F(ImpegnoLayout, ShowsTheDatesOfThePeriodsAndWhichOneIsExcluded) {
    const auto document = made("impstrp.rpt", 1);
    EXPECT_EQ(timesOn(*document, 0, "dal 15/04/24"), 1);
    EXPECT_EQ(timesOn(*document, 0, "al 09/06/24"), 1);
    EXPECT_EQ(timesOn(*document, 0, "periodo escluso"), 3);
    EXPECT_EQ(timesOn(*document, 0, "5° periodo"), 1);
}

TEST_F(ImpegnoLayout, HasAsManyPeriodsAsItsName) {
    const auto three = made("impstr.rpt", 1);
    EXPECT_EQ(timesOn(*three, 0, "3° periodo"), 1);
    EXPECT_EQ(timesOn(*three, 0, "4° periodo"), 0);
    const auto four = made("impstrq.rpt");
    EXPECT_EQ(timesOn(*four, 0, "4° periodo"), 1);
    EXPECT_EQ(timesOn(*four, 0, "5° periodo"), 0);
}

TEST_F(ImpegnoLayout, ShowsTheRatesOfContributionsWhenTheyAreThere) {
    const auto without = made("impstr.rpt", 1);
    EXPECT_THAT(pageText(*without, 0), Not(HasSubstr("Aliquote applicate")));
    append("Tabella10", Row()
                            .set("ContrPrev", Amount{238000})
                            .set("IrapEnte", Amount{85000})
                            .set("ContrDip", Amount{88500})
                            .set("foncred", Amount{3500}));
    const std::string text = pageText(*made("impstr.rpt"), 0);
    for (const char* rate : {"23,80%", "8,50%", "8,85%", "0,35%"}) EXPECT_THAT(text, HasSubstr(rate));
}

TEST_F(ImpegnoLayout, ShowsThePoolsOfThePeriodsThatHaveOne) {
    append("Tabella4", Row()
                           .setWhole("Mensile1", 180)
                           .setWhole("Medio1", 60)
                           .setWhole("Mensile2", 0)
                           .setWhole("Medio2", 0)
                           .setWhole("Mensile3", 120)
                           .setWhole("Medio3", 40));
    const std::string text = pageText(*made("impstr.rpt", 3), 0);
    EXPECT_THAT(text, HasSubstr("1° periodo 180 ore (60); 3° periodo 120 ore (40)."));
}

TEST_F(ImpegnoLayout, IsMadeOfEmptyTablesToo) {
    const auto document = made("impstr.rpt");
    ASSERT_NE(document, nullptr);
    EXPECT_EQ(document->pages(), 1);
    EXPECT_EQ(timesOn(*document, 0, "TOTALE (0)"), 1);
}

TEST_F(ImpegnoLayout, NeverShowsTheLegalDatesThatAreNoDatesOfTheElection) {
    append("Tabella6", Row().setText("DataA", "01-12-00").setText("DataB", "31-12-00"));
    EXPECT_THAT(pageText(*made("impstr.rpt", 1), 0), Not(HasSubstr("12-00")));
}

/// Whatever the number of employees, the totals and the signatures stand on one page, with an employee above them.
TEST_F(ImpegnoLayout, KeepsTheSignaturesWithTheTotals) {
    appendHeading();
    for (int employees = 1; employees <= 60; ++employees) {
        ASSERT_THAT(database_.removeAll("Tabella3"), Succeeds());
        appendEmployees(employees);
        const auto document = made("impstr.rpt");
        const int last = document->pages() - 1;
        EXPECT_EQ(timesOn(*document, last, "Il Segretario Comunale"), 1) << employees;
        EXPECT_EQ(timesOn(*document, last, "TOTALE (" + std::to_string(employees) + ")"), 1) << employees;
        EXPECT_EQ(timesOn(*document, last, "DIPENDENTE " + std::to_string(employees)), 1) << employees;
    }
}

TEST_F(ImpegnoLayout, RunsOverManyPagesForThreeHundredEmployees) {
    for (const char* layout : {"impstr.rpt", "impstrq.rpt", "impstrp.rpt"}) {
        ASSERT_THAT(database_.removeAll("Tabella3"), Succeeds());
        const auto document = made(layout, 300);
        EXPECT_GE(document->pages(), 6) << layout;
        EXPECT_LE(document->pages(), 14) << layout;
        for (int page = 0; page < document->pages(); ++page) {
            EXPECT_EQ(timesOn(*document, page, "Dipendente"), 1) << layout << " page " << page;
        }
        EXPECT_THAT(allText(*document), HasSubstr("DIPENDENTE 300\n"));
    }
}

}  // namespace vorbano::test
