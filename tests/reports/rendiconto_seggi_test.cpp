// Statements rebuilt from the stations. Fees of the first round, in every election here:
//   normal stations   150,00 + 120,00 + 100,01 + 0,00 of members and 33,33 of a substitute: 403,34
//   special stations  90,00 + 61,01 of members and 5,00 of a substitute: 156,01
// Quotas of 30,00 for a president, 20,55 for a secretary and for a scrutineer with a fee: 71,10; in special stations
// 15,03 and 9,01: 24,04. In the run-off a president and a scrutineer: 50,55; a special scrutineer: 9,01.

#include "reports/rendiconto.h"
#include "stampe_desk.h"
#include "statement_files.h"

namespace vorbano::test {
namespace {

const LaidRendi laid{.onorari = 50'034,
                     .straordinario = 200'003,
                     .speciali = 16'602,
                     .carico = 4'007,
                     .indennita = 5'009,
                     .sixth = 611,
                     .stampanti = 7'013,
                     .trasporti = 8'015,
                     .disciplina = 917,
                     .at72 = 10'019,
                     .at80 = 1'121,
                     .missioni = 1'223,
                     .totale = 399'999,
                     .acconti = 500'000,
                     .differenza = -100'001,
                     .at120 = 13'027,
                     .at128 = 1'429,
                     .cartRegione = 531,
                     .cartStato = 590};

class RendicontoSeggi : public StampeDesk {
  protected:
    using Cells = std::vector<std::pair<std::string_view, std::string>>;

    void lays(const std::string& name, const std::string& bytes) {
        ASSERT_TRUE(lay(files, "Elezioni/" + kind_ + "/" + date_ + "/" + name, bytes));
    }
    /// Lays the election with stations, parts of a body (1,00 and 11,03) and printed matter by hand (20,00 and 30,00).
    void layStations(const std::string& kind, const std::string& date) {
        kind_ = kind;
        date_ = date;
        lays("Rendi.vbn", laid.bytes());
        lays("Seggi.vbn", stationMember("Presidente", 15000) + stationMember("Segretario", 12000) +
                              stationMember("Scrutatore", 10001) + stationMember("Scrutatore", 0));
        lays("SosSeggi.vbn", stationSubstitute("Scrutatore", 3333));
        lays("SegSuf.vbn", runOffMember("Presidente", 1, 30) + runOffMember("Scrutatore", 1, 30));
        lays("Speciale.vbn", stationMember("Presidente", 9000) + stationMember("Scrutatore", 6101));
        lays("SosSpec.vbn", stationSubstitute("Scrutatore", 500));
        lays("SpecSufr.vbn", runOffMember("Scrutatore", 1, 8));
        lays("Tprov.vbn", amount(1) + amount(11, 3));
        lays("DivSt.vbn", amount(20) + amount(30));
        ASSERT_TRUE(lay(files, "Params/Ente.dat", padded("Pratofiorito", 60)));
        ASSERT_TRUE(lay(files, "Params/Tarmag.dat", normalQuota("Altro", 100, 100) + normalQuota(kind, 3000, 2055)));
        ASSERT_TRUE(lay(files, "Params/Tarmagsp.dat", specialQuota(kind, 1503, 901)));
    }
    void print() {
        open();
        search(kind_, date_);
        click(screen().cmdRendiconto);
        ASSERT_EQ(printing.jobs.size(), 1U);
        EXPECT_EQ(seen.rows("Tabella9"), 1);
        EXPECT_EQ(seen.rows("Tabella5"), 1);
        expectEmptyTables();
    }
    void expectCells(const Cells& cells) {
        for (const auto& [field, value] : cells) EXPECT_EQ(seen.cell("Tabella9", 1, field), value) << field;
    }
    /// What every statement of the stations takes over whole.
    void expectWholeAmounts() {
        expectCells(
            {{"onorari", "403,34"},  {"Magonorari", "71,10"},   {"onorariB", "97,00"},         {"MagonorariB", "50,55"},
             {"speciale", "156,01"}, {"MagSpeciale", "24,04"},  {"specialeB", "10,01"},        {"MagSpecialeB", "9,01"},
             {"indennità", "39,06"}, {"MagIndennità", "11,03"}, {"straordinario", "2.000,03"}, {"ata", "6,11"},
             {"stampanti", "70,13"}, {"trasporti", "80,15"},    {"disciplina", "9,17"},        {"assunzioni", "100,19"},
             {"necessità", "11,21"}, {"missioni", "12,23"},     {"carico", "40,07"},           {"cabine", "130,27"},
             {"totale", "3.999,99"}, {"acconti", "5.000,00"},   {"differenza", "-1.000,01"}});
    }
    void expectHalvesOfTheOffices() {
        expectCells({{"Stato2", "1.000,02"},
                     {"Straordinario1", "1.000,01"},
                     {"Stato5", "3,06"},
                     {"Ata1", "3,05"},
                     {"Stato6", "35,07"},
                     {"Stampanti1", "35,06"},
                     {"Stato7", "40,08"},
                     {"Trasporti1", "40,07"},
                     {"Stato8", "4,59"},
                     {"Disciplina1", "4,58"},
                     {"Stato9", "50,10"},
                     {"Assunzioni1", "50,09"},
                     {"Stato10", "5,61"},
                     {"Necessità1", "5,60"},
                     {"Stato11", "6,12"},
                     {"Missioni1", "6,11"}});
    }
    /// In every voice share and remainder are what was shared.
    void expectSharesAddUp() {
        const std::array<std::array<std::string_view, 4>, 13> lines = {
            {{"onorari", "Magonorari", "Stato1", "Onorari1"},
             {"onorariB", "MagonorariB", "Stato1B", "Onorari1B"},
             {"speciale", "MagSpeciale", "Stato3", "Speciale1"},
             {"specialeB", "MagSpecialeB", "Stato3B", "Speciale1B"},
             {"indennità", "", "Stato4", "Indennità1"},
             {"straordinario", "", "Stato2", "Straordinario1"},
             {"ata", "", "Stato5", "Ata1"},
             {"stampanti", "", "Stato6", "Stampanti1"},
             {"trasporti", "", "Stato7", "Trasporti1"},
             {"disciplina", "", "Stato8", "Disciplina1"},
             {"assunzioni", "", "Stato9", "Assunzioni1"},
             {"necessità", "", "Stato10", "Necessità1"},
             {"missioni", "", "Stato11", "Missioni1"}}};
        for (const auto& [whole, quota, first, second] : lines) {
            const std::int64_t off = quota.empty() ? 0 : seen.units("Tabella9", 1, quota);
            EXPECT_EQ(seen.units("Tabella9", 1, whole) - off,
                      seen.units("Tabella9", 1, first) + seen.units("Tabella9", 1, second))
                << whole;
        }
    }

    std::string kind_;
    std::string date_;
};

TEST_F(RendicontoSeggi, ProvincialAndMunicipalElectionsAreHalved) {
    layStations("Provinciali_Comunali", "06-05-12");
    print();
    EXPECT_EQ(printing.jobs[0].layout, "rendprocom.rpt");
    expectWholeAmounts();
    expectHalvesOfTheOffices();
    expectSharesAddUp();
    // 332,24, 46,45, 131,97, 1,00 and 39,06 in two
    expectCells({{"Stato1", "166,12"},
                 {"Onorari1", "166,12"},
                 {"Stato1B", "23,23"},
                 {"Onorari1B", "23,22"},
                 {"Stato3", "65,99"},
                 {"Speciale1", "65,98"},
                 {"Stato3B", "0,50"},
                 {"Speciale1B", "0,50"},
                 {"Stato4", "19,53"},
                 {"Indennità1", "19,53"},
                 {"TotProv", "1,00"},
                 {"TotCom", "30,00"},
                 {"Comune", "Pratofiorito"},
                 {"Elezione", "Provinciali e Comunali"},
                 {"Data", "del 6 Maggio 2012"}});
    EXPECT_EQ(seen.cell("Tabella9", 1, "carico2"), "(not there)");
}

TEST_F(RendicontoSeggi, GeneralAndMunicipalElectionsGiveTwoThirdsToTheState) {
    layStations("Politiche_Comunali", "13-04-08");
    print();
    EXPECT_EQ(printing.jobs[0].layout, "rendripp.rpt");
    expectWholeAmounts();
    expectSharesAddUp();
    // 332,24 x 2 / 3 = 221,4933; 46,45: 30,9667; 131,97: 87,98; 1,00: 0,6667; 39,06: 26,04; 2.000,03: 1.333,3533;
    // 6,11: 4,0733; 70,13: 46,7533; 80,15: 53,4333; 9,17: 6,1133; 100,19: 66,7933; 11,21: 7,4733; 12,23: 8,1533
    expectCells({{"Stato1", "221,49"}, {"Onorari1", "110,75"},   {"Stato1B", "30,97"},   {"Onorari1B", "15,48"},
                 {"Stato3", "87,98"},  {"Speciale1", "43,99"},   {"Stato3B", "0,67"},    {"Speciale1B", "0,33"},
                 {"Stato4", "26,04"},  {"Indennità1", "13,02"},  {"Stato2", "1.333,35"}, {"Straordinario1", "666,68"},
                 {"Stato5", "4,07"},   {"Ata1", "2,04"},         {"Stato6", "46,75"},    {"Stampanti1", "23,38"},
                 {"Stato7", "53,43"},  {"Trasporti1", "26,72"},  {"Stato8", "6,11"},     {"Disciplina1", "3,06"},
                 {"Stato9", "66,79"},  {"Assunzioni1", "33,40"}, {"Stato10", "7,47"},    {"Necessità1", "3,74"},
                 {"Stato11", "8,15"},  {"Missioni1", "4,08"},    {"TotProv", "20,00"},   {"TotCom", "30,00"}});
}

TEST_F(RendicontoSeggi, GeneralAndRegionalElectionsAddTheOvertimeOfTheSecondBody) {
    layStations("Politiche_Regionali", "24-02-13");
    print();
    EXPECT_EQ(printing.jobs[0].layout, "rendripr.rpt");
    expectWholeAmounts();
    expectSharesAddUp();
    expectCells({{"Stato1", "221,49"},
                 {"Onorari1", "110,75"},
                 {"Stato2", "1.333,35"},
                 {"Stato11", "8,15"},
                 {"carico2", "14,29"},
                 {"CartStat", "5,90"},
                 {"CartReg", "5,31"},
                 {"Elezione", "Politiche e Regionali"}});
}

class RendicontoOfOneBody : public RendicontoSeggi, public testing::WithParamInterface<const char*> {};

TEST_P(RendicontoOfOneBody, HasFeesAndRefundsWholeAndTheRestInHalves) {
    layStations(GetParam(), "07-06-09");
    print();
    expectWholeAmounts();
    expectHalvesOfTheOffices();
    expectSharesAddUp();
    expectCells({{"Stato1", "332,24"},
                 {"Onorari1", "0,00"},
                 {"Stato1B", "46,45"},
                 {"Onorari1B", "0,00"},
                 {"Stato3", "131,97"},
                 {"Speciale1", "0,00"},
                 {"Stato3B", "1,00"},
                 {"Speciale1B", "0,00"},
                 {"Stato4", "39,06"},
                 {"Indennità1", "0,00"},
                 {"TotProv", "20,00"},
                 {"TotCom", "30,00"}});
    EXPECT_EQ(seen.cell("Tabella9", 1, "Elezione"), "(not there)");
}

INSTANTIATE_TEST_SUITE_P(Kinds, RendicontoOfOneBody, testing::Values("Provinciali", "Comunali", "Regionali"),
                         [](const auto& one) { return std::string(one.param); });

TEST_F(RendicontoSeggi, KindWithoutARowHasNoQuota) {
    layStations("Comunali", "14-05-23");
    ASSERT_TRUE(lay(files, "Params/Tarmag.dat", normalQuota("Provinciali", 3000, 2055)));
    ASSERT_TRUE(lay(files, "Params/Tarmagsp.dat", ""));
    print();
    EXPECT_EQ(printing.jobs[0].layout, "rendcomc19.rpt");
    expectCells({{"Magonorari", "0,00"}, {"MagSpeciale", "0,00"}, {"Stato1", "403,34"}, {"Stato3", "156,01"}});
}

TEST_F(RendicontoSeggi, OneRowOfQuotasIsEnough) {
    // A row in the file of the normal stations, none in that of the special ones.
    layStations("Regionali", "25-06-23");
    ASSERT_TRUE(lay(files, "Params/Tarmagsp.dat", specialQuota("Provinciali", 1503, 901)));
    print();
    EXPECT_EQ(printing.jobs[0].layout, "rendregc19.rpt");
    expectCells({{"Magonorari", "71,10"}, {"MagSpeciale", "0,00"}, {"MagSpecialeB", "0,00"}});
}

TEST_F(RendicontoSeggi, WithoutStationsTheWholeFeesCountAsRunOff) {
    kind_ = "Provinciali_Comunali";
    date_ = "06-05-12";
    lays("Rendi.vbn", laid.bytes());
    ASSERT_TRUE(lay(files, "Params/Ente.dat", padded("Pratofiorito", 60)));
    print();
    // 500,34 in two
    expectCells({{"onorari", "0,00"},
                 {"Stato1", "0,00"},
                 {"onorariB", "500,34"},
                 {"Stato1B", "250,17"},
                 {"Onorari1B", "250,17"},
                 {"specialeB", "166,02"},
                 {"MagIndennità", "0,00"},
                 {"indennità", "50,09"},
                 {"TotCom", "0,00"},
                 {"TotProv", "0,00"}});
    expectSharesAddUp();
}

TEST_F(RendicontoSeggi, FeesRaisedAfterTheStatementMakeTheRunOffNegative) {
    layStations("Provinciali_Comunali", "06-05-12");
    lays("Seggi.vbn", stationMember("Presidente", 60001));
    print();
    // 600,01 + 33,33 = 633,34; 500,34 less that is -133,00; less 50,55 is -183,55: -91,775 away from zero
    expectCells({{"onorari", "633,34"}, {"onorariB", "-133,00"}, {"Stato1B", "-91,78"}, {"Onorari1B", "-91,77"}});
    expectSharesAddUp();
}

TEST_F(RendicontoSeggi, WritesNoRecordFile) {
    layStations("Politiche_Regionali", "24-02-13");
    const std::string folder = "Elezioni/Politiche_Regionali/24-02-13/";
    std::string before;
    std::string after;
    const std::array names = {"Rendi.vbn", "Seggi.vbn", "SosSeggi.vbn", "SegSuf.vbn",
                              "Tprov.vbn", "DivSt.vbn", "Speciale.vbn"};
    for (const char* name : names) before += contentOf(files, folder + name);
    print();
    for (const char* name : names) after += contentOf(files, folder + name);
    EXPECT_EQ(before, after);
    EXPECT_EQ(before.size(), 152U + 4 * 216 + 218 + 2 * 246 + 16 + 16 + 2 * 216);
}

}  // namespace
}  // namespace vorbano::test
