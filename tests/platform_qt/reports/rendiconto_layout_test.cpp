// The thirteen layouts of RENDICONTO over a row laid out by hand.
//
// As the common path fills it, in halves: 100,01 200,03 30,05 4,07 5,09 7,13 8,15 9,17 10,19 11,21 13,27 12,23,
// together 410,60. With what is not shared (4,07 and 13,27) the first body bears 214,02 and the second 196,58.
//
// As the paths of the stations fill it: fees 403,34 and of the run-off 97,00, special ones 156,01 and 10,01, refunds
// 50,09, of which the State's quota is 71,10 50,55 24,04 9,01 11,03, together 165,73; all voices 991,90. The halves of
// what is left are 421,80 and 404,37.

#include "report_desk.h"

namespace vorbano::test {

using ::testing::AllOf;
using ::testing::HasSubstr;
using ::testing::Not;
using ::testing::Values;

namespace {

using Amounts = std::vector<std::pair<std::string, std::int64_t>>;

const Amounts offices = {
    {"straordinario", 200'03}, {"Stato2", 100'02},    {"Straordinario1", 100'01}, {"ata", 888'88},
    {"Stato5", 444'44},        {"Ata1", 444'44},      {"stampanti", 7'13},        {"Stato6", 3'57},
    {"Stampanti1", 3'56},      {"trasporti", 8'15},   {"Stato7", 4'08},           {"Trasporti1", 4'07},
    {"disciplina", 9'17},      {"Stato8", 4'59},      {"Disciplina1", 4'58},      {"assunzioni", 10'19},
    {"Stato9", 5'10},          {"Assunzioni1", 5'09}, {"necessità", 11'21},       {"Stato10", 5'61},
    {"Necessità1", 5'60},      {"missioni", 12'23},   {"Stato11", 6'12},          {"Missioni1", 6'11},
    {"carico", 4'07},          {"cabine", 13'27}};

const Amounts fromRecord = {{"onorari", 100'01},   {"Stato1", 50'01},    {"Onorari1", 50'00}, {"speciale", 30'05},
                            {"Stato3", 15'03},     {"Speciale1", 15'02}, {"indennità", 5'09}, {"Stato4", 2'55},
                            {"Indennità1", 2'54},  {"TotProv", 3'57},    {"totale", 410'60},  {"acconti", 100'00},
                            {"differenza", 310'60}};

const Amounts fromStations = {{"onorari", 403'34},   {"Magonorari", 71'10},   {"Stato1", 166'12}, {"Onorari1", 166'12},
                              {"onorariB", 97'00},   {"MagonorariB", 50'55},  {"Stato1B", 23'23}, {"Onorari1B", 23'22},
                              {"speciale", 156'01},  {"MagSpeciale", 24'04},  {"Stato3", 65'99},  {"Speciale1", 65'98},
                              {"specialeB", 10'01},  {"MagSpecialeB", 9'01},  {"Stato3B", 50},    {"Speciale1B", 50},
                              {"indennità", 39'06},  {"MagIndennità", 11'03}, {"Stato4", 19'53},  {"Indennità1", 19'53},
                              {"TotCom", 0},         {"TotProv", 0},          {"totale", 991'90}, {"acconti", 100'00},
                              {"differenza", 891'90}};

const Amounts noQuota = {{"Magonorari", 0},   {"MagonorariB", 0},   {"MagSpeciale", 0},
                         {"MagSpecialeB", 0}, {"indennità", 50'09}, {"MagIndennità", 0}};

const char* const ofOneBody[] = {"rendcom.rpt",  "rendcomc19.rpt", "rendprovC.rpt",
                                 "rendprov.rpt", "rendreg.rpt",    "rendregc19.rpt"};
const char* const ofTwoByStations[] = {"rendripp.rpt", "rendripr.rpt", "rendprocom.rpt"};
const char* const ofTwoByRecord[] = {"rendripe.rpt", "rendrippcong.rpt", "rendrip.rpt"};

/// A layout, the heading it is made under, and words that must be there.
struct Wording {
    const char* layout;
    const char* election;
    const char* date;
    const char* words;
};
void PrintTo(const Wording& one, std::ostream* out) { *out << one.layout << " " << one.election << " " << one.words; }

}  // namespace

class RendicontoLayout : public ReportDesk {
  protected:
    void heading(const std::string& election, const std::string& date = "del 26 Maggio 2013") {
        append("Tabella5", Row()
                               .setText("Comune", "CASTELFRANCO VENETO")
                               .setText("Elezione", election)
                               .setText("Data", date)
                               .setText("Databall", "{Vorbano 3.9 edizione 2014}"));
    }
    void statement(const std::vector<Amounts>& parts) {
        Row row;
        for (const Amounts& part : parts) {
            for (const auto& [field, cents] : part) row.set(field, Amount{cents * 100});
        }
        append("Tabella9", row);
    }
    std::unique_ptr<ReportDocument> made(std::string_view layout) {
        auto document = renderDelivered(layout, "RENDICONTO");
        if (!document) {
            ADD_FAILURE() << document.error().subject;
            return nullptr;
        }
        return std::move(*document);
    }
    /// All its words in one line, whatever is bold and wherever the lines end.
    std::string text(std::string_view layout) {
        const auto document = made(layout);
        std::string line;
        for (const char one : document ? allText(*document) : std::string()) {
            const char blank = one == '\n' ? ' ' : one;
            if (blank != ' ' || !line.ends_with(' ')) line += blank;
        }
        return line;
    }
    void expectTimes(std::string_view layout, std::initializer_list<std::pair<const char*, int>> texts) {
        const auto document = made(layout);
        ASSERT_NE(document, nullptr) << layout;
        for (const auto& [words, count] : texts)
            EXPECT_EQ(timesOn(*document, 0, words), count) << layout << ": " << words;
    }
};

TEST_F(RendicontoLayout, EveryOneIsOnePageHeadedAndSigned) {
    heading("Europee e Comunali");
    statement({offices, fromStations});
    for (const auto& layouts : {std::span<const char* const>(ofOneBody), std::span<const char* const>(ofTwoByStations),
                                std::span<const char* const>(ofTwoByRecord)}) {
        for (const char* layout : layouts) {
            const auto document = made(layout);
            ASSERT_NE(document, nullptr) << layout;
            EXPECT_EQ(document->pages(), 1) << layout;
            EXPECT_THAT(
                allText(*document),
                AllOf(HasSubstr("Comune di CASTELFRANCO VENETO"), HasSubstr("RENDICONTO DELLE SPESE ELETTORALI"),
                      HasSubstr("Europee e Comunali del 26 Maggio 2013"), HasSubstr("CASTELFRANCO VENETO, lì"),
                      HasSubstr("Il Responsabile del Servizio Finanziario"), HasSubstr("Il Segretario Comunale"),
                      HasSubstr("Acconti già corrisposti"), HasSubstr("100,00"), HasSubstr("TOTALE"),
                      Not(HasSubstr("888,88")), Not(HasSubstr("444,44"))))
                << layout;
        }
    }
}

TEST_F(RendicontoLayout, AnElectionOfTheStateAloneShowsWholeAmountsOnly) {
    heading("Europee");
    statement({offices, fromRecord});
    expectTimes("rendstamp.rpt", {{"100,01", 1},
                                  {"200,03", 1},
                                  {"30,05", 1},
                                  {"4,07", 1},
                                  {"5,09", 1},
                                  {"7,13", 1},
                                  {"8,15", 1},
                                  {"9,17", 1},
                                  {"10,19", 1},
                                  {"11,21", 1},
                                  {"13,27", 1},
                                  {"12,23", 1},
                                  {"410,60", 2},
                                  {"310,60", 1},
                                  {"50,01", 0},
                                  {"214,02", 0},
                                  {"196,58", 0},
                                  {"Differenza a credito", 1}});
    EXPECT_THAT(text("rendstamp.rpt"), Not(HasSubstr("quota")));
}

TEST_F(RendicontoLayout, ACombinationNobodyForesawHasTwoQuotas) {
    heading("Regionali e Comunali");
    statement({offices, fromRecord});
    expectTimes("rendstamp.rpt", {{"50,01", 1}, {"50,00", 1}, {"214,02", 1}, {"196,58", 1}, {"Prima quota", 1}});
    EXPECT_THAT(text("rendstamp.rpt"), AllOf(HasSubstr("due quote"), Not(HasSubstr("a totale carico"))));
}

TEST_F(RendicontoLayout, TwoBodiesHaveTheirSharesVoiceByVoice) {
    heading("Politiche e Comunali");
    statement({offices, fromRecord});
    for (const char* layout : ofTwoByRecord) {
        expectTimes(layout, {{"100,01", 2}, {"50,01", 1},  {"50,00", 1},  {"100,02", 1}, {"15,03", 1}, {"15,02", 1},
                             {"2,55", 1},   {"2,54", 1},   {"3,57", 1},   {"3,56", 1},   {"4,08", 1},  {"4,59", 1},
                             {"4,58", 1},   {"5,10", 1},   {"5,61", 1},   {"5,60", 1},   {"6,12", 1},  {"6,11", 1},
                             {"13,27", 2},  {"214,02", 1}, {"196,58", 1}, {"410,60", 2}, {"310,60", 1}});
        EXPECT_THAT(text(layout), Not(HasSubstr("non ripartito"))) << layout;
    }
}

TEST_F(RendicontoLayout, TheFirstShareStandsLeftOfTheSecond) {
    heading("Europee e Comunali");
    statement({offices, fromRecord});
    const auto document = made("rendripe.rpt");
    std::map<std::string, double> at;
    for (const PageText& one : textsOf(*document, 0)) at.try_emplace(one.text, one.x);
    ASSERT_TRUE(at.contains("50,01") && at.contains("50,00") && at.contains("Stato") && at.contains("Comune"));
    EXPECT_LT(at["50,01"], at["50,00"]);
    EXPECT_LT(at["Stato"], at["Comune"]);
    EXPECT_LT(at["Stato"], at["50,00"]);
}

/// With European elections half of the booths stands in the field that is a quota elsewhere.
TEST_F(RendicontoLayout, TheBoothsOfEuropeanElectionsAreHalved) {
    heading("Europee e Comunali");
    statement({offices, fromRecord, {{"cabine", 6'64}, {"MagonorariB", 6'63}}});
    expectTimes("rendripe.rpt", {{"13,27", 1}, {"6,64", 1}, {"6,63", 1}, {"207,39", 1}, {"203,21", 1}});
}

TEST_F(RendicontoLayout, TheReferendumInSixthsClaimsTheStatesShare) {
    heading("Referendum e Comunali", "del 12 Giugno 2022");
    // Of the 4,07 the State bears 3,39; its 213,34 less 100,00 of advances.
    statement({offices, fromRecord, {{"carico2", 68}, {"differenza", 113'34}}});
    expectTimes("rendrippcong.rpt",
                {{"3,39", 1}, {"0,68", 1}, {"213,34", 2}, {"197,26", 1}, {"113,34", 1}, {"410,60", 1}});
    EXPECT_THAT(text("rendrippcong.rpt"),
                AllOf(HasSubstr("di cui importo totale 5/6 Stato + Spese postali + cabine elettorali"),
                      HasSubstr("cinque sesti allo Stato"), HasSubstr("Covid 19"), Not(HasSubstr("parti uguali"))));
}

TEST_F(RendicontoLayout, PostalExpensesTypedByBodyTakeThePlaceOfTheHalves) {
    heading("Europee e Comunali");
    statement({offices, fromRecord, {{"CartStat", 7'00}, {"CartReg", 4'21}}});
    for (const char* layout : ofTwoByRecord) {
        expectTimes(layout, {{"7,00", 1}, {"4,21", 1}, {"5,61", 0}, {"5,60", 0}, {"215,41", 1}, {"195,19", 1}});
    }
}

TEST_F(RendicontoLayout, PrintedMatterTypedByBodyTakesThePlaceOfTheShares) {
    heading("Provinciali e Comunali");
    statement({offices, fromStations, {{"TotProv", 5'00}, {"TotCom", 2'13}}});
    for (const char* layout : ofTwoByStations) {
        expectTimes(layout, {{"5,00", 1}, {"2,13", 1}, {"3,57", 0}, {"3,56", 0}});
    }
}

/// 5,00 and 1,00 of 7,13: a part that no body was given must be seen.
TEST_F(RendicontoLayout, WhatNoBodyWasGivenIsSaid) {
    heading("Provinciali e Comunali");
    statement({offices, fromStations, {{"TotProv", 5'00}, {"TotCom", 1'00}}});
    expectTimes("rendprocom.rpt", {{"di cui non ripartito tra gli enti", 1}, {"1,13", 1}});
}

TEST_F(RendicontoLayout, APartOfTheTotalThatIsInNoVoiceIsSaid) {
    heading("Europee");
    statement({offices, fromRecord, {{"totale", 411'61}}});
    expectTimes("rendstamp.rpt", {{"Altri importi compresi nel totale", 1}, {"1,01", 1}, {"411,61", 2}});
}

TEST_F(RendicontoLayout, TheStatesQuotaHasAColumnWhereTheStateIsNeitherBody) {
    heading("Provinciali e Comunali");
    statement({offices, fromStations});
    expectTimes("rendprocom.rpt", {{"403,34", 1},
                                   {"166,12", 2},
                                   {"71,10", 1},
                                   {"50,55", 1},
                                   {"24,04", 1},
                                   {"9,01", 1},
                                   {"11,03", 1},
                                   {"50,09", 1},
                                   {"421,80", 1},
                                   {"404,37", 1},
                                   {"165,73", 1},
                                   {"991,90", 2},
                                   {"891,90", 1},
                                   {"Provincia", 1},
                                   {"Comune", 1},
                                   {"Stato", 1}});
}

TEST_F(RendicontoLayout, TheStatesQuotaIsInItsColumnWhereItIsTheFirstBody) {
    heading("Politiche e Comunali");
    statement({offices, fromStations});
    for (const char* layout : {"rendripp.rpt", "rendripr.rpt"}) {
        // 166,12 + 71,10, 23,23 + 50,55, 65,99 + 24,04, 0,50 + 9,01, 19,53 + 11,03
        expectTimes(layout, {{"237,22", 1},
                             {"73,78", 1},
                             {"90,03", 1},
                             {"9,51", 1},
                             {"30,56", 1},
                             {"587,53", 1},
                             {"404,37", 1},
                             {"991,90", 2},
                             {"71,10", 0}});
        EXPECT_THAT(text(layout), HasSubstr("€\u00a0165,73 di quota")) << layout;
    }
}

TEST_F(RendicontoLayout, OneBodyBearsAllButTheStatesQuota) {
    heading("Provinciali");
    statement({offices, fromStations});
    for (const char* layout : ofOneBody) {
        expectTimes(layout, {{"403,34", 1},
                             {"332,24", 1},
                             {"71,10", 1},
                             {"46,45", 1},
                             {"50,55", 1},
                             {"200,03", 2},
                             {"826,17", 1},
                             {"165,73", 1},
                             {"991,90", 2},
                             {"Stato (quota)", 1},
                             {"166,12", 0},
                             {"100,02", 0}});
        EXPECT_THAT(text(layout), HasSubstr("€\u00a0165,73")) << layout;
    }
    EXPECT_THAT(text("rendprov.rpt"), HasSubstr("alla Provincia e allo Stato, ciascuno per la propria parte,"));
}

TEST_F(RendicontoLayout, WithoutAQuotaOneBodyHasOneColumn) {
    heading("Provinciali");
    statement({offices, fromStations, noQuota});
    for (const char* layout : ofOneBody) {
        expectTimes(layout, {{"403,34", 1}, {"200,03", 1}, {"50,09", 1}, {"991,90", 2}, {"Stato (quota)", 0}});
        EXPECT_THAT(text(layout), Not(HasSubstr("quota"))) << layout;
    }
    EXPECT_THAT(text("rendprov.rpt"), HasSubstr("Si chiede alla Provincia il rimborso"));
}

TEST_F(RendicontoLayout, TheRunOffIsShownWhenThereWasOneAndAlwaysInTheYearOfOne) {
    heading("Comunali");
    statement({offices, fromStations, noQuota});
    expectTimes("rendprovC.rpt", {{"– turno di ballottaggio", 2}, {"97,00", 1}, {"10,01", 1}});
}

TEST_F(RendicontoLayout, WithoutARunOffItHasNoLine) {
    heading("Comunali");
    statement({offices, fromStations, noQuota, {{"onorariB", 0}, {"specialeB", 0}, {"totale", 884'89}}});
    expectTimes("rendprovC.rpt", {{"– turno di ballottaggio", 0}, {"884,89", 2}});
    expectTimes("rendcom.rpt", {{"– turno di ballottaggio", 2}});
}

TEST_F(RendicontoLayout, TheOvertimeOfTheSecondBodyIsTheRegions) {
    heading("Politiche e Regionali");
    statement({offices, fromStations, {{"carico2", 14'29}, {"totale", 1'006'19}}});
    // 404,37 + 14,29
    expectTimes("rendripr.rpt", {{"14,29", 2}, {"418,66", 1}, {"587,53", 1}, {"1.006,19", 2}});
}

/// Provincial elections keep three voices in another order.
TEST_F(RendicontoLayout, ProvincialElectionsNameThreeVoicesByTheirOwnOrder) {
    heading("Provinciali e Comunali");
    statement({offices, fromStations});
    for (const char* layout : {"rendprov.rpt", "rendprocom.rpt"}) {
        const auto document = made(layout);
        std::map<std::string, double> at;
        for (const PageText& one : textsOf(*document, 0)) at.try_emplace(one.text, one.y);
        EXPECT_NEAR(at["Spese per altre necessità"], at["10,19"], 2) << layout;
        EXPECT_NEAR(at["Cabine elettorali"], at["11,21"], 2) << layout;
        EXPECT_NEAR(at["Assunzioni a tempo determinato"], at["13,27"], 2) << layout;
        EXPECT_THAT(allText(*document), HasSubstr("Stampati non forniti dalla Provincia")) << layout;
    }
}

TEST_F(RendicontoLayout, AdvancesAboveTheClaimLeaveADebt) {
    heading("Europee");
    statement({offices, fromRecord, {{"acconti", 500'00}, {"differenza", -89'40}}});
    expectTimes("rendstamp.rpt",
                {{"Differenza a debito", 1}, {"Differenza a credito", 0}, {"89,40", 1}, {"-89,40", 0}});
    EXPECT_THAT(text("rendstamp.rpt"), HasSubstr("sarà restituita allo Stato"));
}

TEST_F(RendicontoLayout, EqualAdvancesAreACreditOfNothing) {
    heading("Europee");
    statement({offices, fromRecord, {{"acconti", 410'60}, {"differenza", 0}}});
    expectTimes("rendstamp.rpt", {{"Differenza a credito", 1}, {"410,60", 3}});
}

TEST_F(RendicontoLayout, LongAmountsStayOnOneLine) {
    heading("Provinciali e Comunali");
    statement({offices,
               fromStations,
               {{"trasporti", 99'999'999'99}, {"Stato7", 50'000'000'00}, {"Trasporti1", 49'999'999'99}}});
    expectTimes("rendprocom.rpt", {{"99.999.999,99", 1}, {"50.000.000,00", 1}, {"49.999.999,99", 1}});
}

TEST_F(RendicontoLayout, EmptyTablesMakeAnEmptyStatement) {
    EXPECT_THAT(text("rendstamp.rpt"), HasSubstr("RENDICONTO"));
    EXPECT_THAT(text("rendripr.rpt"), HasSubstr("Differenza a credito"));
}

class RendicontoWording : public RendicontoLayout, public ::testing::WithParamInterface<Wording> {};

TEST_P(RendicontoWording, SaysWhoBearsWhat) {
    heading(GetParam().election, GetParam().date);
    statement({offices, fromRecord});
    EXPECT_THAT(text(GetParam().layout), HasSubstr(GetParam().words));
}

constexpr const char* aDay = "del 26 Maggio 2013";
constexpr const char* june12 = "del 12 Giugno 2022";
INSTANTIATE_TEST_SUITE_P(All, RendicontoWording,
                         Values(Wording{"rendstamp.rpt", "Politiche", aDay, "a totale carico dello Stato"},
                                Wording{"rendstamp.rpt", "Referendum", june12, "Covid 19"},
                                Wording{"rendstamp.rpt", "Europee", aDay, "Spese di viaggio presidenti di seggio"},
                                Wording{"rendcom.rpt", "Comunali", aDay, "per ciascuno dei due turni"},
                                Wording{"rendcomc19.rpt", "Comunali", aDay, "Spese straordinarie per fronteggiare"},
                                Wording{"rendprovC.rpt", "Comunali", aDay, "a carico del Comune"},
                                Wording{"rendprov.rpt", "Provinciali", aDay, "a carico della Provincia"},
                                Wording{"rendreg.rpt", "Regionali", aDay, "a carico della Regione"},
                                Wording{"rendregc19.rpt", "Regionali", aDay, "Spese straordinarie per fronteggiare"},
                                Wording{"rendprocom.rpt", "Provinciali e Comunali", aDay, "la Provincia"},
                                Wording{"rendripp.rpt", "Politiche e Comunali", aDay, "due terzi allo"},
                                Wording{"rendripp.rpt", "Politiche e Comunali", aDay, "un terzo al Comune"},
                                Wording{"rendripr.rpt", "Politiche e Regionali", aDay, "un terzo alla Regione"},
                                Wording{"rendripr.rpt", "Politiche e Regionali", aDay, "spedizione cartoline"},
                                Wording{"rendripe.rpt", "Europee e Comunali", aDay, "parti uguali"},
                                Wording{"rendrippcong.rpt", "Referendum e Comunali", aDay, "parti uguali"},
                                Wording{"rendrippcong.rpt", "Referendum e Comunali", june12, "cinque sesti allo Stato"},
                                Wording{"rendrip.rpt", "Politiche e Comunali", aDay, "lo Stato"},
                                Wording{"rendrip.rpt", "Provinciali e Comunali", aDay, "la Provincia"}));

}  // namespace vorbano::test
