// The documents of an adjustment, on the screen.
//
// Two of three employees are adjusted. New amounts 857,77 and 142,23, together 1.000,00; contributions 8,01 and 1,07,
// IRAP 2,86 and 0,38: with both 1.012,32. Of the first period 193,00 + 2,41 + 0,86 = 196,27. What is left, 816,05, is
// 544,03 and 272,02 in thirds, 408,03 and 408,02 in halves.
// Paid more 33,6525 + 4,5000, charges 10,87 + 1,45, INAIL 5,00: 55,4725, of which two thirds are 36,9817.

#include <gmock/gmock.h>

#include "adjustment_files.h"
#include "reports/conguaglio_rendiconto.h"
#include "stampe_desk.h"
#include "statement_files.h"

namespace vorbano::test {
namespace {

using ::testing::SizeIs;

class ConguaglioDesk : public StampeDesk {
  protected:
    std::string folder(const std::string& kind, const std::string& date) const {
        return "Elezioni/" + kind + "/" + date + "/";
    }
    void layElectionWithAdjustment(const std::string& kind, const std::string& date, int periods = 3) {
        ASSERT_TRUE(layOvertime(files, kind, date, periods));
        const LaidAdjustment first{.number = 1,
                                   .rates = {1300, 1475, 1700},
                                   .dovuto = 85777,
                                   .pagato = 336525,
                                   .cpStato = 801,
                                   .irap = 286,
                                   .totaleSpesa = 1087,
                                   .cpDip = 298,
                                   .fonCre = 12,
                                   .totaleContr = 310};
        const LaidAdjustment second{
            .number = 2, .dovuto = 14223, .pagato = 45000, .cpStato = 107, .irap = 38, .totaleSpesa = 145};
        ASSERT_TRUE(lay(files, folder(kind, date) + "Congs.vbn", first.bytes() + second.bytes()));
        ASSERT_TRUE(lay(files, folder(kind, date) + "Meirinc.vbn", meirincBytes()));
    }
    void layFirstPeriod(const std::string& kind, const std::string& date) {
        const LaidAdjustment only{.dovuto = 19300, .cpStato = 241, .irap = 86};
        ASSERT_TRUE(lay(files, folder(kind, date) + "Congs1.vbn", only.bytes()));
    }
    void layStatement(const std::string& kind, const std::string& date) {
        ASSERT_TRUE(lay(files, folder(kind, date) + "Rendi.vbn",
                        LaidRendi{.straordinario = 10000, .totale = 10000, .differenza = 10000}.bytes()));
    }
    /// Opens the screen and searches for the election of that kind and date.
    void openAt(const std::string& kind, const std::string& date) {
        open();
        search(kind, date);
    }
    void expectOffered(bool documents, bool statement) {
        EXPECT_EQ(screen().Frame3.visible(), documents);
        EXPECT_EQ(screen().cmdConguaglio.visible(), documents);
        EXPECT_EQ(screen().cmdCongA.visible(), documents);
        EXPECT_EQ(screen().cmdCongRend.visible(), statement);
    }
};

TEST_F(ConguaglioDesk, IsOfferedWhereThereIsAnAdjustmentAndOnlyThere) {
    layElectionWithAdjustment("Politiche_Comunali", "13-04-08");
    ASSERT_TRUE(layOvertime(files, "Europee", "26-05-13", 3));
    open();
    expectOffered(false, false);
    search("Politiche_Comunali", "13-04-08");
    expectOffered(true, true);
    click(screen().cmdRiavvia);
    expectOffered(false, false);
    search("Europee", "26-05-13");
    expectOffered(false, false);
    EXPECT_EQ(contentOf(files, folder("Europee", "26-05-13") + "Congs.vbn"), "") << "opening leaves an empty file";
}

TEST_F(ConguaglioDesk, ItsStatementIsNotOfferedInAYearThatEndsInNine) {
    for (const char* date : {"06-06-09", "25-05-19"}) layElectionWithAdjustment("Europee_Comunali", date);
    layElectionWithAdjustment("Europee_Comunali", "09-06-14");
    open();
    for (const auto& [date, offered] : {std::pair{"06-06-09", false}, {"09-06-14", true}, {"25-05-19", false}}) {
        search("Europee_Comunali", date);
        expectOffered(true, offered);
        click(screen().cmdRiavvia);
    }
}

TEST_F(ConguaglioDesk, TheLiquidationTakesTheHoursFromTheEmployeesAndTheAmountsFromTheAdjustment) {
    layElectionWithAdjustment("Politiche_Comunali", "13-04-08", 4);
    openAt("Politiche_Comunali", "13-04-08");
    click(screen().cmdConguaglio);
    ASSERT_THAT(printing.jobs, SizeIs(1));
    EXPECT_EQ(printing.jobs[0].layout, "liqstrc.rpt");
    EXPECT_EQ(printing.jobs[0].title, "CONGUAGLIO LIQUIDAZIONE PER RENDICONTO");
    EXPECT_EQ(printing.jobs[0].destination, Destination::preview);
    ASSERT_EQ(seen.rows("Tabella3"), 3);
    const std::pair<const char*, const char*> cells[] = {{"NDip", "1"},
                                                         {"Dipendenti", "3"},
                                                         {"Nome", "ROSSI MARIA"},
                                                         {"PrimoDal", "02-04-13"},
                                                         {"P1df", "9"},
                                                         {"tot2", "10"},
                                                         {"EsegDf", "31"},
                                                         {"TotEseg", "63"},
                                                         {"Categoria", "C1"},
                                                         {"CompDf", "13,00"},
                                                         {"CompNof", "14,75"},
                                                         {"CompNef", "17,00"},
                                                         {"Dovuto", "857,77"},
                                                         {"AliCpStato", "23,80"},
                                                         {"CpStato", "8,01"},
                                                         {"AliIrap", "8,50"},
                                                         {"Irap", "2,86"},
                                                         {"TotaleSpesa", "10,87"},
                                                         {"AliCpDip", "8,85"},
                                                         {"CpDip", "2,98"},
                                                         {"AliFonCre", "0,35"},
                                                         {"FonCre", "0,12"},
                                                         {"TotaleContr", "3,10"},
                                                         {"QuartusDal", "01-06-13"},
                                                         {"QuartusAl", "10-06-13"},
                                                         {"P4Df", "(not there)"},
                                                         {"MetaC", "(not there)"}};
    for (const auto& [field, text] : cells) EXPECT_EQ(seen.cell("Tabella3", 1, field), text) << field;
    EXPECT_EQ(seen.units("Tabella3", 1, "Pagato"), 336525) << "the difference is not held to cents";
    // 9, 4 and 1 hours: 193,00 at the new rates, 110,97 + 55,80 + 16,09 = 182,86 at the old; 23,80 % of 10,14.
    EXPECT_EQ(seen.cell("Tabella3", 1, "CpStatoPrimo"), "2,41");
    EXPECT_EQ(seen.cell("Tabella3", 2, "Dovuto"), "142,23");
}

TEST_F(ConguaglioDesk, AnEmployeeWithoutAdjustmentHasZeros) {
    layElectionWithAdjustment("Politiche", "13-04-08");
    openAt("Politiche", "13-04-08");
    click(screen().cmdConguaglio);
    EXPECT_EQ(seen.cell("Tabella3", 3, "Nome"), "BIANCHI NICCOLÒ");
    for (const char* field : {"CompDf", "Dovuto", "Pagato", "CpStato", "TotaleContr", "CpStatoPrimo"})
        EXPECT_EQ(seen.units("Tabella3", 3, field), 0) << field;
    EXPECT_EQ(seen.cell("Tabella3", 3, "QuartusDal"), "") << "no fourth period on file";
}

TEST_F(ConguaglioDesk, ItsTotalsAreThoseOfTheAdjustmentWithTheLimitsOfTheElection) {
    layElectionWithAdjustment("Politiche", "13-04-08");
    openAt("Politiche", "13-04-08");
    click(screen().cmdConguaglio);
    EXPECT_EQ(seen.rows("Tabella4"), 1);
    const std::pair<const char*, const char*> cells[] = {{"Irpef", "9,81"},
                                                         {"datainail", "16-09-13"},
                                                         {"inail", "5,00"},
                                                         {"Medio1", "11"},
                                                         {"Mensile3", "103"},
                                                         {"InailPrimo", "33,33"},
                                                         {"InailSecondo", "(not there)"}};
    for (const auto& [field, text] : cells) EXPECT_EQ(seen.cell("Tabella4", 1, field), text) << field;
    EXPECT_EQ(seen.cell("Tabella5", 1, "Comune"), "Pratofiorito");
    EXPECT_EQ(seen.cell("Tabella5", 1, "Data"), "del 13 Aprile 2008");
    EXPECT_EQ(seen.cell("Tabella6", 1, "DataA"), "");
    EXPECT_EQ(seen.cell("Tabella10", 1, "foncred"), "0,35");
}

TEST_F(ConguaglioDesk, WithoutDataOfItsPaymentsTheTotalsAreZeros) {
    layElectionWithAdjustment("Politiche", "13-04-08");
    ASSERT_TRUE(lay(files, folder("Politiche", "13-04-08") + "Meirinc.vbn", ""));
    openAt("Politiche", "13-04-08");
    click(screen().cmdConguaglio);
    EXPECT_EQ(seen.cell("Tabella4", 1, "Irpef"), "0,00");
    EXPECT_EQ(seen.cell("Tabella4", 1, "inail"), "0,00");
    EXPECT_EQ(seen.cell("Tabella4", 1, "datainail"), "");
}

TEST_F(ConguaglioDesk, ItsRowsStayForTheNextDocumentOfTheVisit) {
    layElectionWithAdjustment("Politiche", "13-04-08");
    openAt("Politiche", "13-04-08");
    click(screen().cmdConguaglio);
    for (const char* table : {"Tabella4", "Tabella5", "Tabella6", "Tabella10"}) EXPECT_EQ(tables().rows(table), 1);
    EXPECT_EQ(tables().rows("Tabella3"), 3);
    click(screen().cmdLRendiconto);
    EXPECT_EQ(seen.rows("Tabella3"), 6);
    EXPECT_EQ(seen.cell("Tabella3", 1, "Dovuto"), "857,77");
    EXPECT_EQ(seen.cell("Tabella3", 4, "Dovuto"), "1,00");
    for (const char* table : {"Tabella4", "Tabella5", "Tabella6", "Tabella10"}) EXPECT_EQ(seen.rows(table), 2);
    EXPECT_EQ(tables().rows("Tabella3"), 0);
    EXPECT_EQ(tables().rows("Tabella5"), 1) << "the later document takes one of two away";
}

TEST_F(ConguaglioDesk, ThePaymentsAreListedAsTheyWereEntered) {
    const std::string path = folder("Politiche", "13-04-08") + "Versumc.vbn";
    layElectionWithAdjustment("Politiche", "13-04-08");
    const std::string documents =
        paymentBytes("Coprdi", "Mandato di pagamento", "8,85%", 298, 412, "in duplice copia autenticata") +
        paymentBytes("Inail", "", "", 500, 0, "") + paymentBytes("Inps", "Mod. F24", "", 7, 0, "");
    ASSERT_TRUE(lay(files, path, documents));
    openAt("Politiche", "13-04-08");
    click(screen().cmdCongA);
    ASSERT_THAT(printing.jobs, SizeIs(1));
    EXPECT_EQ(printing.jobs[0].layout, "versc.rpt");
    EXPECT_EQ(printing.jobs[0].title, "");
    EXPECT_EQ(printing.jobs[0].destination, Destination::preview);
    ASSERT_EQ(seen.rows("Tabella11"), 3) << "no closing rows";
    const std::pair<const char*, const char*> cells[] = {{"Comune", "Pratofiorito"},
                                                         {"Elezioni", "Politiche"},
                                                         {"dataE", "del 13 Aprile 2008"},
                                                         {"Mother", "Coprdi"},
                                                         {"Son", "Mandato di pagamento"},
                                                         {"Percent", "8,85%"},
                                                         {"Importo", "2,98"},
                                                         {"Numero", "412"},
                                                         {"Data", "01-09-13"},
                                                         {"Sonocosi", "in duplice copia autenticata"}};
    for (const auto& [field, text] : cells) EXPECT_EQ(seen.cell("Tabella11", 1, field), text) << field;
    EXPECT_EQ(seen.cell("Tabella11", 2, "Son"), "data entro la quale sarà effetuato il versamento");
    EXPECT_EQ(seen.cell("Tabella11", 3, "Importo"), "0,07");
    EXPECT_EQ(seen.cell("Tabella5", 1, "Databall"), "{Vorbano 3.9 edizione 2014}");
    EXPECT_EQ(toHex(contentOf(files, path)), toHex(documents)) << "no document follows what is due";
    expectEmptyTables();
}

TEST_F(ConguaglioDesk, ThePaymentsTakeAwayOneHeadingAndAllTheirRows) {
    layElectionWithAdjustment("Politiche", "13-04-08");
    ASSERT_TRUE(lay(files, folder("Politiche", "13-04-08") + "Versumc.vbn", paymentBytes("Inail", "", "", 500, 0, "")));
    openAt("Politiche", "13-04-08");
    click(screen().cmdConguaglio);
    click(screen().cmdCongA);
    EXPECT_EQ(seen.rows("Tabella5"), 2);
    EXPECT_EQ(tables().rows("Tabella5"), 1);
    EXPECT_EQ(tables().rows("Tabella11"), 0);
    EXPECT_EQ(tables().rows("Tabella3"), 3);
}

TEST_F(ConguaglioDesk, TheStatementOfGeneralAndMunicipalElectionsIsSharedInThirds) {
    layElectionWithAdjustment("Politiche_Comunali", "13-04-08");
    layFirstPeriod("Politiche_Comunali", "13-04-08");
    openAt("Politiche_Comunali", "13-04-08");
    click(screen().cmdCongRend);
    ASSERT_THAT(printing.jobs, SizeIs(1));
    EXPECT_EQ(printing.jobs[0].layout, "Rendrippcong.rpt");
    EXPECT_EQ(printing.jobs[0].title, "RENDICONTO A CONGUAGLIO");
    ASSERT_EQ(seen.rows("Tabella9"), 1);
    EXPECT_EQ(seen.cell("Tabella9", 1, "Conguaglio"), "1.012,32");
    EXPECT_EQ(seen.cell("Tabella9", 1, "ConguaglioStato"), "196,27");
    EXPECT_EQ(seen.cell("Tabella9", 1, "Conguaglio1"), "544,03");
    EXPECT_EQ(seen.cell("Tabella9", 1, "Conguaglio2"), "272,02");
    EXPECT_EQ(seen.cell("Tabella9", 1, "straordinario"), "(not there)");
    EXPECT_EQ(seen.cell("Tabella5", 1, "Elezione"), "Politiche e Comunali");
    expectEmptyTables();
}

TEST_F(ConguaglioDesk, WithoutTheFirstPeriodAllOfItIsShared) {
    layElectionWithAdjustment("Politiche_Comunali", "13-04-08");
    openAt("Politiche_Comunali", "13-04-08");
    click(screen().cmdCongRend);
    EXPECT_EQ(contentOf(files, folder("Politiche_Comunali", "13-04-08") + "Congs1.vbn"), "");
    EXPECT_EQ(seen.cell("Tabella9", 1, "ConguaglioStato"), "0,00");
    EXPECT_EQ(seen.cell("Tabella9", 1, "Conguaglio1"), "674,88");
    EXPECT_EQ(seen.cell("Tabella9", 1, "Conguaglio2"), "337,44");
}

TEST_F(ConguaglioDesk, TheStatementOfAnyOtherElectionIsWhatIsPaidMore) {
    for (const char* kind : {"Europee_Comunali", "Politiche", "Regionali"}) {
        layElectionWithAdjustment(kind, "13-04-08");
        openAt(kind, "13-04-08");
        click(screen().cmdCongRend);
        ASSERT_FALSE(printing.jobs.empty());
        EXPECT_EQ(printing.jobs.back().layout, "Rendcong.rpt");
        EXPECT_EQ(printing.jobs.back().title, "RENDICONTO A CONGUAGLIO");
        EXPECT_EQ(seen.units("Tabella9", 1, "straordinario"), 554725) << kind;
        EXPECT_EQ(seen.cell("Tabella9", 1, "Conguaglio"), "(not there)");
        expectEmptyTables();
        desktop.shut(screen().form);
    }
    open();
}

/// What the statement of costs of a kind says of the adjustment; "" is nothing.
struct InStatement {
    const char* kind;
    const char* whole;
    const char* first;
    const char* second;
    const char* state;
};

TEST_F(ConguaglioDesk, TheStatementOfCostsHasTheAdjustmentByKind) {
    const char* none = "(not there)";
    const InStatement cases[] = {
        {"Politiche_Comunali", "1.012,32", "544,03", "272,02", "196,27"},
        {"Europee_Comunali", "1.012,32", "408,03", "408,02", "196,27"},
        {"Europee", "1.012,32", none, none, none},
        {"Referendum", "1.012,32", none, none, none},
    };
    for (const InStatement& one : cases) {
        layElectionWithAdjustment(one.kind, "13-04-08");
        layFirstPeriod(one.kind, "13-04-08");
        layStatement(one.kind, "13-04-08");
        openAt(one.kind, "13-04-08");
        click(screen().cmdRendiconto);
        EXPECT_EQ(seen.cell("Tabella9", 1, "Conguaglio"), one.whole) << one.kind;
        EXPECT_EQ(seen.cell("Tabella9", 1, "Conguaglio1"), one.first) << one.kind;
        EXPECT_EQ(seen.cell("Tabella9", 1, "Conguaglio2"), one.second) << one.kind;
        EXPECT_EQ(seen.cell("Tabella9", 1, "ConguaglioStato"), one.state) << one.kind;
        EXPECT_EQ(seen.cell("Tabella9", 1, "totale"), "100,00");
        EXPECT_EQ(seen.rows("Tabella5"), 1);
        expectEmptyTables();
        desktop.shut(screen().form);
    }
    open();
}

TEST_F(ConguaglioDesk, InTheStatementOfElectionsOfOtherBodiesItIsWhatIsPaidMore) {
    for (const char* kind : {"Provinciali", "Regionali", "Politiche_Regionali", "Referendum_Comunali"}) {
        layElectionWithAdjustment(kind, "13-04-08");
        layStatement(kind, "13-04-08");
        openAt(kind, "13-04-08");
        click(screen().cmdRendiconto);
        EXPECT_EQ(seen.units("Tabella9", 1, "Conguaglio"), 554725) << kind;
        EXPECT_EQ(seen.units("Tabella9", 1, "Conguaglio1"), 369817) << kind;
        EXPECT_EQ(seen.units("Tabella9", 1, "Conguaglio2"), 184908) << kind;
        EXPECT_EQ(seen.cell("Tabella9", 1, "ConguaglioStato"), "(not there)");
        desktop.shut(screen().form);
    }
    open();
}

TEST_F(ConguaglioDesk, WithoutAdjustmentTheStatementOfCostsHasNothingOfIt) {
    ASSERT_TRUE(layOvertime(files, "Politiche_Comunali", "13-04-08", 3));
    layStatement("Politiche_Comunali", "13-04-08");
    openAt("Politiche_Comunali", "13-04-08");
    click(screen().cmdRendiconto);
    for (const char* field : {"Conguaglio", "Conguaglio1", "Conguaglio2", "ConguaglioStato"})
        EXPECT_EQ(seen.cell("Tabella9", 1, field), "(not there)") << field;
}

TEST_F(ConguaglioDesk, ALessAmountIsSharedAwayFromZero) {
    const Election election{"Politiche_Comunali", "13-04-08"};
    layElectionWithAdjustment(election.type, election.date);
    ASSERT_TRUE(lay(files, folder(election.type, election.date) + "Congs.vbn", LaidAdjustment{.dovuto = -4}.bytes()));
    Row row;
    ASSERT_THAT(Conguaglio(files, election, row), Succeeds());
    // Two thirds of -0,04 are -0,0267.
    EXPECT_EQ(shownValue(*row.find("Conguaglio1")), "-0,03");
    EXPECT_EQ(shownValue(*row.find("Conguaglio2")), "-0,01");
    ASSERT_TRUE(
        lay(files, folder(election.type, election.date) + "Congs.vbn", LaidAdjustment{.pagato = -50004}.bytes()));
    Row reserve;
    ASSERT_THAT(RiservaConguaglio(files, election, reserve), Succeeds());
    // With INAIL 5,00: -0,0004, of which two thirds are -0,00027.
    EXPECT_EQ(*reserve.find("Conguaglio1"), Value(Amount{-3}));
    EXPECT_EQ(*reserve.find("Conguaglio2"), Value(Amount{-1}));
}

}  // namespace
}  // namespace vorbano::test
