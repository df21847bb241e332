// The layouts of an adjustment over rows laid out by hand. Every employee has 491,59 liquidated and 518,46 at the new
// rates, so 26,87 more, with 6,40 of contributions, 2,28 of IRAP, 8,68 together, 2,38 and 0,09 withheld. With INAIL
// 6,15 two employees cost 53,74 + 12,80 + 4,56 + 6,15 = 77,25 more.

#include "report_desk.h"

namespace vorbano::test {
namespace {

using ::testing::AllOf;
using ::testing::HasSubstr;
using ::testing::Not;

using Amounts = std::vector<std::pair<std::string, std::int64_t>>;

Row adjusted(int number, const std::string& name) {
    Row row;
    row.setWhole("NDip", number).setWhole("Dipendenti", 2).setText("Nome", name);
    row.setText("Categoria", "C1").setText("Livello", "-");
    row.setText("PrimoDal", "01-03-08").setText("PrimoAl", "12-04-08").setText("SecDal", "13-04-08");
    row.setText("SecAl", "14-04-08").setText("TerDal", "//").setText("TerAl", "//");
    row.setText("QuartusDal", "").setText("QuartusAl", "");
    row.setWhole("P1df", 10).setWhole("P1nf", 5).setWhole("P1nef", 2).setWhole("P2df", 13).setWhole("P2nf", 6);
    row.setWhole("EsegDf", 23).setWhole("EsegNof", 11).setWhole("EsegNef", 4).setWhole("TotEseg", 38);
    const Amounts amounts = {{"CompDf", 12'76}, {"CompNof", 14'42}, {"CompNef", 16'59},   {"Dovuto", 518'46},
                             {"Pagato", 26'87}, {"CpStato", 6'40},  {"Irap", 2'28},       {"TotaleSpesa", 8'68},
                             {"CpDip", 2'38},   {"FonCre", 9},      {"TotaleContr", 2'47}};
    for (const auto& [field, cents] : amounts) row.set(field, Amount{cents * 100});
    return row;
}

class ConguaglioLayout : public ReportDesk {
  protected:
    void heading(const std::string& election, const std::string& comune = "CASTELFRANCO VENETO") {
        append("Tabella5", Row()
                               .setText("Comune", comune)
                               .setText("Elezione", election)
                               .setText("Data", "del 13 Aprile 2008")
                               .setText("Databall", "{Vorbano 3.9 edizione 2014}"));
    }
    void totals() {
        append("Tabella4",
               Row().set("Irpef", Amount{98100}).set("inail", Amount{61500}).setText("datainail", "16-09-08"));
    }
    void statement(const Amounts& amounts) {
        Row row;
        for (const auto& [field, cents] : amounts) row.set(field, Amount{cents * 100});
        append("Tabella9", row);
    }
    std::unique_ptr<ReportDocument> made(std::string_view layout) {
        auto document = renderDelivered(layout);
        if (!document) {
            ADD_FAILURE() << document.error().subject;
            return nullptr;
        }
        return std::move(*document);
    }
    /// All its words in one line, wherever the lines end.
    std::string text(std::string_view layout, int pages = 1) {
        const auto document = made(layout);
        if (!document) return {};
        EXPECT_EQ(document->pages(), pages) << layout;
        std::string line;
        for (const char one : allText(*document)) {
            const char blank = one == '\n' ? ' ' : one;
            if (blank != ' ' || !line.ends_with(' ')) line += blank;
        }
        return line;
    }
};

TEST_F(ConguaglioLayout, TheLiquidationSetsWhatIsPaidMoreBesideWhatWasPaid) {
    heading("Politiche e Comunali");
    append("Tabella3", adjusted(1, "ROSSI MARIA"));
    append("Tabella3", adjusted(2, "VERDI GIUSEPPE"));
    totals();
    const auto document = made("liqstrc.rpt");
    ASSERT_NE(document, nullptr);
    ASSERT_EQ(document->pages(), 2);
    for (const char* first : {"Comune di CASTELFRANCO VENETO", "CONGUAGLIO LIQUIDAZIONE PER RENDICONTO", "12,76",
                              "TOTALE (2)", "periodo escluso"}) {
        EXPECT_THAT(pageText(*document, 0), HasSubstr(first));
    }
    for (const auto& [words, times] : {std::pair{"491,59", 2},
                                       {"518,46", 2},
                                       {"26,87", 2},
                                       {"983,18", 1},
                                       {"1.036,92", 1},
                                       {"53,74", 2},
                                       {"12,80", 2},
                                       {"4,56", 2},
                                       {"17,36", 1},
                                       {"71,10", 1},
                                       {"35,55", 2},
                                       {"6,15", 1},
                                       {"77,25", 1}}) {
        EXPECT_EQ(timesOn(*document, 1, words), times) << words;
    }
    EXPECT_THAT(text("liqstrc.rpt", 2), AllOf(HasSubstr("complessive 76 ore"), HasSubstr("Già liquidato"),
                                              HasSubstr("16/09/08"), HasSubstr("l'IRPEF per €\u00a09,81"),
                                              HasSubstr("Il Segretario Comunale"), Not(HasSubstr("4° periodo"))));
}

TEST_F(ConguaglioLayout, TheLiquidationTellsOfAFourthPeriod) {
    heading("Politiche e Comunali");
    append("Tabella3", adjusted(1, "ROSSI MARIA").setText("QuartusDal", "15-04-08").setText("QuartusAl", "30-04-08"));
    EXPECT_THAT(text("liqstrc.rpt", 2), AllOf(HasSubstr("4° periodo, dal 15/04/08 al 30/04/08"),
                                              Not(HasSubstr("IRPEF per")), Not(HasSubstr("versamento INAIL"))));
}

TEST_F(ConguaglioLayout, LongNamesAreNotCut) {
    heading("Politiche e Comunali", "San Vittore in Valle Superiore del Monte Grande e Frazioni U");
    const std::string name = "DELLA VALLE MONTEFIORITO-CASTELLAZZI MARIA ANTONIETTA LUISA X";
    append("Tabella3", adjusted(1, name));
    const std::string all = text("liqstrc.rpt", 2);
    for (const char* word : {"MONTEFIORITO-", "ANTONIETTA", "LUISA X", "Frazioni U"}) EXPECT_THAT(all, HasSubstr(word));
}

TEST_F(ConguaglioLayout, AllAreMadeOfEmptyTablesToo) {
    for (const char* layout : {"versc.rpt", "Rendcong.rpt", "rendrippcong.rpt"})
        EXPECT_THAT(text(layout), HasSubstr("Il Segretario Comunale")) << layout;
    EXPECT_THAT(text("liqstrc.rpt", 2), HasSubstr("Il Segretario Comunale"));
}

TEST_F(ConguaglioLayout, ThePaymentsAreListedVoiceByVoice) {
    heading("Politiche");
    const auto document = [this](const char* key, const char* kind, const char* percent, std::int64_t cents, int number,
                                 const char* date) {
        append("Tabella11", Row()
                                .setText("Mother", key)
                                .setText("Son", kind)
                                .setText("Percent", percent)
                                .set("Importo", Amount{cents * 100})
                                .setWhole("Numero", number)
                                .setText("Data", date)
                                .setText("Sonocosi", "in originale e copia autenticata"));
    };
    document("Inail", "data entro la quale sarà effetuato il versamento ", "", 615, 0, "16-09-08");
    document("Coprdi", "Mandato di pagamento", "8,85%", 362, 412, "01-09-08");
    const std::string all = text("versc.rpt");
    EXPECT_THAT(all, AllOf(HasSubstr("CONTRIBUTI E RITENUTE SUL CONGUAGLIO"), HasSubstr("Allegato A"), HasSubstr("412"),
                           HasSubstr("data entro la quale sarà effetuato il versamento"), HasSubstr("6,15"),
                           HasSubstr("con i documenti che seguono")));
    EXPECT_LT(all.find("412"), all.find("16/09/08"));
}

TEST_F(ConguaglioLayout, WithoutPaymentsItSaysSo) {
    heading("Politiche");
    EXPECT_THAT(text("versc.rpt"), AllOf(HasSubstr("non risultano documenti"), Not(HasSubstr("Aliquota"))));
}

TEST_F(ConguaglioLayout, TheStatementOfGeneralAndMunicipalElectionsHasTheSharesAlone) {
    heading("Politiche e Comunali");
    statement({{"Conguaglio", 805'91}, {"ConguaglioStato", 395'24}, {"Conguaglio1", 273'78}, {"Conguaglio2", 136'89}});
    EXPECT_THAT(
        text("rendrippcong.rpt"),
        AllOf(HasSubstr("RENDICONTO A CONGUAGLIO della spesa"), HasSubstr("RENDICONTO A CONGUAGLIO – Politiche"),
              HasSubstr("805,91"), HasSubstr("395,24"), HasSubstr("273,78"), HasSubstr("136,89"),
              HasSubstr("due terzi allo Stato"), Not(HasSubstr("RENDICONTO DELLE SPESE")),
              Not(HasSubstr("VOCI DI SPESA")), Not(HasSubstr("Acconti"))));
}

TEST_F(ConguaglioLayout, TheSameLayoutIsTheStatementOfAReferendumWithMunicipalElections) {
    heading("Referendum e Comunali");
    statement({{"straordinario", 100'00}, {"totale", 100'00}, {"acconti", 0}, {"differenza", 100'00}});
    EXPECT_THAT(text("rendrippcong.rpt"),
                AllOf(HasSubstr("RENDICONTO DELLE SPESE"), HasSubstr("VOCI DI SPESA"), HasSubstr("Acconti"),
                      HasSubstr("parti uguali"), Not(HasSubstr("CONGUAGLIO"))));
}

TEST_F(ConguaglioLayout, TheStatementOfAnyOtherElectionIsOneLine) {
    heading("Europee");
    statement({{"straordinario", 60'27}});
    EXPECT_THAT(text("Rendcong.rpt"),
                AllOf(HasSubstr("RENDICONTO A CONGUAGLIO della spesa"), HasSubstr("RENDICONTO A CONGUAGLIO – Europee"),
                      HasSubstr("dello Stato"), HasSubstr("TOTALE A CONGUAGLIO"), HasSubstr("€\u00a060,27")));
}

/// The liquidation of an adjustment leaves its heading behind, perhaps that of another election.
TEST_F(ConguaglioLayout, OfTwoHeadingsTheLastIsThatOfTheDocument) {
    heading("Politiche e Comunali");
    heading("Europee");
    statement({{"straordinario", 60'27}});
    EXPECT_THAT(text("Rendcong.rpt"), AllOf(HasSubstr("Europee del 13 Aprile 2008"), HasSubstr("a totale carico"),
                                            Not(HasSubstr("Politiche"))));
}

/// What a statement of costs says of the adjustment: the shares only where it is shared in the same way.
TEST_F(ConguaglioLayout, TheStatementOfCostsEndsWithTheAdjustment) {
    const Amounts costs = {{"straordinario", 1004'63}, {"totale", 1004'63}, {"differenza", 1004'63}};
    struct Case {
        const char* election;
        const char* layout;
        Amounts amounts;
        bool shares;
    };
    const Case cases[] = {
        {"Politiche e Comunali",
         "rendripp.rpt",
         {{"Conguaglio", 805'91}, {"ConguaglioStato", 395'24}, {"Conguaglio1", 273'78}, {"Conguaglio2", 136'89}},
         true},
        {"Europee e Comunali",
         "rendripe.rpt",
         {{"Conguaglio", 805'91}, {"ConguaglioStato", 395'24}, {"Conguaglio1", 273'78}, {"Conguaglio2", 136'89}},
         true},
        {"Politiche e Regionali",
         "rendripr.rpt",
         {{"Conguaglio", 805'91}, {"Conguaglio1", 273'78}, {"Conguaglio2", 136'89}},
         true},
        {"Referendum e Comunali",
         "rendrippcong.rpt",
         {{"Conguaglio", 805'91}, {"Conguaglio1", 273'78}, {"Conguaglio2", 136'89}},
         false},
        {"Provinciali",
         "rendprov.rpt",
         {{"Conguaglio", 805'91}, {"Conguaglio1", 273'78}, {"Conguaglio2", 136'89}},
         false},
        {"Europee", "rendstamp.rpt", {{"Conguaglio", 805'91}}, false},
    };
    for (const Case& one : cases) {
        ASSERT_THAT(database_.removeAll("Tabella5"), Succeeds());
        ASSERT_THAT(database_.removeAll("Tabella9"), Succeeds());
        heading(one.election);
        Amounts all = costs;
        all.insert(all.end(), one.amounts.begin(), one.amounts.end());
        statement(all);
        const std::string words = text(one.layout);
        EXPECT_THAT(words, AllOf(HasSubstr("CONGUAGLIO DEL COMPENSO"), HasSubstr("805,91"), HasSubstr("1.004,63")))
            << one.layout;
        EXPECT_EQ(words.find("273,78") != std::string::npos, one.shares) << one.layout;
        EXPECT_EQ(words.find("136,89") != std::string::npos, one.shares) << one.layout;
        EXPECT_EQ(words.find("Maggiore spesa") != std::string::npos, one.amounts.size() == 3) << one.layout;
    }
}

}  // namespace
}  // namespace vorbano::test
