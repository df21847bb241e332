#include "reports/rendiconto.h"
#include "stampe_desk.h"
#include "statement_files.h"

namespace vorbano::test {
namespace {

/// No two amounts alike and most of them odd, so that a voice in the wrong field or a cent on the wrong side shows.
const LaidRendi odd{.onorari = 100'001,
                    .straordinario = 200'003,
                    .speciali = 30'005,
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
                    .acconti = 100'000,
                    .differenza = 299'999,
                    .at120 = 13'027,
                    .at128 = 1'429,
                    .cartRegione = 531,
                    .cartStato = 590};

class Rendiconto : public StampeDesk {
  protected:
    using Cells = std::vector<std::pair<std::string_view, std::string>>;

    void lays(const std::string& kind, const std::string& date, const std::string& name, const std::string& bytes) {
        ASSERT_TRUE(lay(files, "Elezioni/" + kind + "/" + date + "/" + name, bytes));
    }
    void SetUp() override { ASSERT_TRUE(lay(files, "Params/Ente.dat", padded("Pratofiorito", 60))); }
    /// Searches for the election and asks for its statement; `seen` is then what stood in the tables.
    void print(const std::string& kind, const std::string& date, const LaidRendi& rendi = odd) {
        lays(kind, date, "Rendi.vbn", rendi.bytes());
        open();
        search(kind, date);
        click(screen().cmdRendiconto);
        ASSERT_EQ(printing.jobs.size(), 1U);
        EXPECT_EQ(printing.jobs[0].title, "RENDICONTO");
        EXPECT_EQ(printing.jobs[0].destination, Destination::preview);
        EXPECT_EQ(seen.rows("Tabella9"), 1);
        EXPECT_EQ(seen.rows("Tabella5"), 1);
        expectEmptyTables();
    }
    void expectCells(const Cells& cells) {
        for (const auto& [field, value] : cells) EXPECT_EQ(seen.cell("Tabella9", 1, field), value) << field;
    }
    /// Whole, share and remainder of a voice.
    void expectVoice(std::string_view whole, const std::string& amount, std::string_view first,
                     const std::string& share, std::string_view second, const std::string& rest) {
        expectCells({{whole, amount}, {first, share}, {second, rest}});
    }
    /// What no path but one writes stays empty.
    void expectUnset(std::initializer_list<std::string_view> fields) {
        for (const std::string_view field : fields) EXPECT_EQ(seen.cell("Tabella9", 1, field), "(not there)") << field;
    }
};

TEST_F(Rendiconto, CommonPathHalvesEveryVoice) {
    print("Politiche", "25-09-22");
    EXPECT_EQ(printing.jobs[0].layout, "rendstamp.rpt");
    expectVoice("onorari", "1.000,01", "Stato1", "500,01", "Onorari1", "500,00");
    expectVoice("straordinario", "2.000,03", "Stato2", "1.000,02", "Straordinario1", "1.000,01");
    expectVoice("speciale", "300,05", "Stato3", "150,03", "Speciale1", "150,02");
    expectVoice("indennità", "50,09", "Stato4", "25,05", "Indennità1", "25,04");
    expectVoice("ata", "6,11", "Stato5", "3,06", "Ata1", "3,05");
    expectVoice("stampanti", "70,13", "Stato6", "35,07", "Stampanti1", "35,06");
    expectVoice("trasporti", "80,15", "Stato7", "40,08", "Trasporti1", "40,07");
    expectVoice("disciplina", "9,17", "Stato8", "4,59", "Disciplina1", "4,58");
    expectVoice("assunzioni", "100,19", "Stato9", "50,10", "Assunzioni1", "50,09");
    expectVoice("necessità", "11,21", "Stato10", "5,61", "Necessità1", "5,60");
    expectVoice("missioni", "12,23", "Stato11", "6,12", "Missioni1", "6,11");
    expectCells({{"carico", "40,07"},
                 {"cabine", "130,27"},
                 {"TotProv", "35,07"},
                 {"totale", "3.999,99"},
                 {"acconti", "1.000,00"},
                 {"differenza", "2.999,99"}});
}

TEST_F(Rendiconto, CommonPathLeavesTheFieldsOfOtherPathsEmpty) {
    print("Referendum", "12-06-22");
    expectVoice("onorari", "1.000,01", "Stato1", "500,01", "Onorari1", "500,00");
    expectUnset({"Magonorari",      "onorariB",  "Stato1B",      "Onorari1B",   "MagonorariB",
                 "MagSpeciale",     "specialeB", "MagIndennità", "carico2",     "CartStat",
                 "CartReg",         "TotCom",    "Conguaglio",   "Conguaglio1", "Conguaglio2",
                 "ConguaglioStato", "Comune",    "Elezione",     "Data",        "Databall"});
}

TEST_F(Rendiconto, EuropeanElectionsGiveTheStaffTakenOnToTheStateWhole) {
    print("Europee", "09-06-24");
    expectVoice("assunzioni", "100,19", "Stato9", "100,19", "Assunzioni1", "0,00");
    expectVoice("trasporti", "80,15", "Stato7", "40,08", "Trasporti1", "40,07");
    expectCells({{"cabine", "130,27"}});
}

TEST_F(Rendiconto, PrintedMatterDividedByHandStandsAsItIs) {
    // 30,00 and 12,34 are not the 70,13 of the voice.
    lays("Politiche", "25-09-22", "DivSt.vbn", amount(30) + amount(12, 34));
    print("Politiche", "25-09-22");
    expectVoice("stampanti", "70,13", "Stato6", "30,00", "Stampanti1", "12,34");
    expectCells({{"TotProv", "35,07"}});
}

TEST_F(Rendiconto, EmptyDivisionIsNone) {
    lays("Politiche", "25-09-22", "DivSt.vbn", "");
    print("Politiche", "25-09-22");
    expectVoice("stampanti", "70,13", "Stato6", "35,07", "Stampanti1", "35,06");
}

TEST_F(Rendiconto, OneCentIsTheStates) {
    print("Politiche", "25-09-22", {.onorari = 1, .trasporti = 9'999'999'999, .missioni = -1, .differenza = -1});
    expectVoice("onorari", "0,01", "Stato1", "0,01", "Onorari1", "0,00");
    expectVoice("trasporti", "99.999.999,99", "Stato7", "50.000.000,00", "Trasporti1", "49.999.999,99");
    expectVoice("missioni", "-0,01", "Stato11", "-0,01", "Missioni1", "0,00");
    expectVoice("disciplina", "0,00", "Stato8", "0,00", "Disciplina1", "0,00");
    expectCells({{"differenza", "-0,01"}});
}

TEST_F(Rendiconto, CombinedElectionsHaveTheHeadingInTheRowToo) {
    print("Regionali_Comunali", "20-09-20");
    EXPECT_EQ(printing.jobs[0].layout, "rendstamp.rpt");
    for (const char* table : {"Tabella5", "Tabella9"}) {
        EXPECT_EQ(seen.cell(table, 1, "Comune"), "Pratofiorito") << table;
        EXPECT_EQ(seen.cell(table, 1, "Elezione"), "Regionali e Comunali") << table;
        EXPECT_EQ(seen.cell(table, 1, "Data"), "del 20 Settembre 2020") << table;
        EXPECT_EQ(seen.cell(table, 1, "Databall"), "{Vorbano 3.9 edizione 2014}") << table;
    }
}

TEST_F(Rendiconto, EuroComHalvesAndKeepsThePostalShares) {
    print("Europee_Comunali", "26-05-19");
    EXPECT_EQ(printing.jobs[0].layout, "rendripe.rpt");
    expectVoice("onorari", "1.000,01", "Stato1", "500,01", "Onorari1", "500,00");
    expectVoice("missioni", "12,23", "Stato11", "6,12", "Missioni1", "6,11");
    expectVoice("assunzioni", "100,19", "Stato9", "100,19", "Assunzioni1", "0,00");
    expectVoice("necessità", "11,21", "Stato10", "5,61", "Necessità1", "5,60");
    // The booths, 130,27, in two fields.
    expectCells({{"carico", "40,07"},
                 {"carico2", "0,00"},
                 {"CartStat", "5,90"},
                 {"CartReg", "5,31"},
                 {"cabine", "65,14"},
                 {"MagonorariB", "65,13"},
                 {"Elezione", "Europee e Comunali"}});
}

TEST_F(Rendiconto, OneReferendumIsSharedInSixths) {
    // 1.000,01 x 5 / 6 = 833,3417; 2.000,03 = 1.666,6917; 300,05 = 250,0417; 50,09 = 41,7417; 6,11 = 5,0917;
    // 70,13 = 58,4417; 80,15 = 66,7917; 9,17 = 7,6417; 100,19 = 83,4917; 12,23 = 10,1917; 40,07 = 33,3917
    print("Referendum_Comunali", "12-06-22");
    EXPECT_EQ(printing.jobs[0].layout, "rendrippcong.rpt");
    expectVoice("onorari", "1.000,01", "Stato1", "833,34", "Onorari1", "166,67");
    expectVoice("straordinario", "2.000,03", "Stato2", "1.666,69", "Straordinario1", "333,34");
    expectVoice("speciale", "300,05", "Stato3", "250,04", "Speciale1", "50,01");
    expectVoice("indennità", "50,09", "Stato4", "41,74", "Indennità1", "8,35");
    expectVoice("ata", "6,11", "Stato5", "5,09", "Ata1", "1,02");
    expectVoice("stampanti", "70,13", "Stato6", "58,44", "Stampanti1", "11,69");
    expectVoice("trasporti", "80,15", "Stato7", "66,79", "Trasporti1", "13,36");
    expectVoice("disciplina", "9,17", "Stato8", "7,64", "Disciplina1", "1,53");
    expectVoice("assunzioni", "100,19", "Stato9", "83,49", "Assunzioni1", "16,70");
    expectVoice("missioni", "12,23", "Stato11", "10,19", "Missioni1", "2,04");
    // Not divided: the claim is five sixths, and these whole.
    expectVoice("necessità", "11,21", "Stato10", "11,21", "Necessità1", "0,00");
    expectCells({{"cabine", "130,27"}, {"carico", "40,07"}, {"carico2", "6,68"}});
    expectUnset({"MagonorariB"});
}

TEST_F(Rendiconto, ThatReferendumRoundsATieAwayFromZero) {
    // 0,03 / 6 x 5 = 0,025 and 0,09 / 6 x 5 = 0,075
    print("Referendum_Comunali", "12-06-22", {.onorari = 3, .trasporti = 9, .missioni = -3});
    expectVoice("onorari", "0,03", "Stato1", "0,03", "Onorari1", "0,00");
    expectVoice("trasporti", "0,09", "Stato7", "0,08", "Trasporti1", "0,01");
    expectVoice("missioni", "-0,03", "Stato11", "-0,03", "Missioni1", "0,00");
}

TEST_F(Rendiconto, TheDaysBesideThatReferendumAreHalved) {
    for (const char* date : {"11-06-22", "13-06-22"}) {
        lays("Referendum_Comunali", date, "Rendi.vbn", odd.bytes());
    }
    open();
    for (const char* date : {"11-06-22", "13-06-22"}) {
        search("Referendum_Comunali", date);
        click(screen().cmdRendiconto);
        expectVoice("onorari", "1.000,01", "Stato1", "500,01", "Onorari1", "500,00");
        expectVoice("necessità", "11,21", "Stato10", "5,61", "Necessità1", "5,60");
        expectVoice("assunzioni", "100,19", "Stato9", "50,10", "Assunzioni1", "50,09");
        expectCells({{"carico2", "0,00"}, {"cabine", "130,27"}});
        click(screen().cmdRiavvia);
    }
}

TEST_F(Rendiconto, WithoutAMunicipalityTheHeadingHasNone) {
    ASSERT_TRUE(lay(files, "Params/Ente.dat", ""));
    print("Europee_Comunali", "26-05-19");
    EXPECT_EQ(seen.cell("Tabella9", 1, "Comune"), "");
    EXPECT_EQ(seen.cell("Tabella5", 1, "Comune"), "");
}

TEST_F(Rendiconto, ElectionWithoutAStatementHasNoCommand) {
    ASSERT_TRUE(layElection("Europee", "09-06-24"));
    open();
    EXPECT_FALSE(screen().cmdRendiconto.enabled());
    search("Europee", "09-06-24");
    EXPECT_FALSE(screen().cmdRendiconto.enabled());
    // Asked for all the same it does nothing.
    EXPECT_THAT(printRendiconto(desk, {"Europee", "09-06-24"}, {}), Succeeds());
    EXPECT_TRUE(printing.jobs.empty());
    expectEmptyTables();
}

TEST_F(Rendiconto, TheCommandGoesOutWithTheSearch) {
    lays("Europee", "09-06-24", "Rendi.vbn", odd.bytes());
    open();
    search("Europee", "09-06-24");
    EXPECT_TRUE(screen().cmdRendiconto.enabled());
    EXPECT_FALSE(screen().cmdImpegno.enabled());
    click(screen().cmdRiavvia);
    EXPECT_FALSE(screen().cmdRendiconto.enabled());
}

TEST_F(Rendiconto, ShortRecordIsReadWithZeros) {
    lays("Europee", "09-06-24", "Rendi.vbn", odd.bytes().substr(0, 120));
    open();
    search("Europee", "09-06-24");
    click(screen().cmdRendiconto);
    expectCells({{"differenza", "2.999,99"}, {"cabine", "0,00"}});
}

TEST_F(Rendiconto, ClearsOneRowOfItsTables) {
    // A row that an interruption left is shown, and the first row goes.
    ASSERT_THAT(staging.append("Tabella9", Row().set("totale", Amount{1})), Succeeds());
    lays("Europee", "09-06-24", "Rendi.vbn", odd.bytes());
    open();
    search("Europee", "09-06-24");
    click(screen().cmdRendiconto);
    EXPECT_EQ(seen.rows("Tabella9"), 2);
    EXPECT_EQ(tables().rows("Tabella9"), 1);
    EXPECT_EQ(tables().rows("Tabella5"), 0);
}

}  // namespace
}  // namespace vorbano::test
