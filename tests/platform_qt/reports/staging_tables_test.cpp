#include "platform/staging_tables.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <set>

namespace vorbano::test {

namespace {

const TableInfo& table(std::string_view name) {
    const auto& all = stagingTables();
    return *std::find_if(all.begin(), all.end(), [&](const TableInfo& one) { return one.name == name; });
}

std::vector<std::string_view> names(const TableInfo& info) {
    std::vector<std::string_view> names;
    for (const Column& column : info.columns) names.push_back(column.name);
    return names;
}

bool has(std::string_view tableName, std::string_view column, ColumnType type) {
    const auto& columns = table(tableName).columns;
    return std::any_of(columns.begin(), columns.end(),
                       [&](const Column& one) { return one.name == column && one.type == type; });
}

}  // namespace

TEST(StagingTables, AreTwelveAndTheLastOneIsWrittenSmall) {
    std::vector<std::string_view> all;
    for (const TableInfo& info : stagingTables()) all.push_back(info.name);
    EXPECT_THAT(all, ::testing::ElementsAre("Tabella1", "Tabella2", "Tabella3", "Tabella4", "Tabella5", "Tabella6",
                                            "Tabella7", "Tabella8", "Tabella9", "Tabella10", "Tabella11", "tabella12"));
}

TEST(StagingTables, HaveNoNameTwice) {
    for (const TableInfo& info : stagingTables()) {
        std::set<std::string> seen;
        for (const Column& column : info.columns) {
            std::string name(column.name);
            std::transform(name.begin(), name.end(), name.begin(), [](unsigned char c) { return std::tolower(c); });
            EXPECT_TRUE(seen.insert(name).second) << info.name << "." << column.name;
        }
    }
}

TEST(StagingTables, HoldFivePeriodsOfSevenHourFieldsForEachEmployee) {
    // 2 + 1 + 4 before the periods, 9 in each of the five, 5 totals, 2 of the grade, 21 amounts.
    EXPECT_EQ(table("Tabella3").columns.size(), 7 + 5 * 9 + 5 + 2 + 21);
    EXPECT_TRUE(has("Tabella3", "tot5", ColumnType::whole));
    EXPECT_TRUE(has("Tabella3", "PentiumAl", ColumnType::text));
    EXPECT_TRUE(has("Tabella3", "AliCpStato", ColumnType::amount));
    EXPECT_TRUE(has("Tabella3", "CpIrapSecondo", ColumnType::amount));
}

TEST(StagingTables, NameTheSmallTablesFieldByField) {
    using ::testing::ElementsAre;
    EXPECT_THAT(names(table("Tabella1")), ElementsAre("Categoria", "Exqualifica", "Diurno", "FestNo", "NottFe"));
    EXPECT_THAT(names(table("Tabella2")), ElementsAre("Qualifica", "DiurnaFer", "NottorFes", "NottendFes"));
    EXPECT_THAT(names(table("Tabella4")), ElementsAre("Irpef", "inail", "datainail", "Medio1", "Medio2", "Medio3",
                                                      "Mensile1", "Mensile2", "Mensile3", "InailPrimo", "InailSecondo",
                                                      "InailC", "InailP", "Com", "Prov", "MCom", "MProv"));
    EXPECT_THAT(names(table("Tabella5")), ElementsAre("Comune", "Elezione", "Data", "Databall"));
    EXPECT_THAT(names(table("Tabella6")), ElementsAre("DataA", "DataB"));
    EXPECT_THAT(names(table("Tabella8")),
                ElementsAre("Seggi", "NSeggio", "onorario", "Prov", "missioni", "MCom", "MProv", "MagMis"));
    EXPECT_THAT(names(table("Tabella10")), ElementsAre("ContrPrev", "IrapEnte", "ContrDip", "foncred"));
    EXPECT_EQ(table("tabella12").columns.size(), 1U);
}

TEST(StagingTables, KnowTheSupplementOfTheAllowancesInTheStatement) {
    EXPECT_TRUE(has("Tabella9", "MagIndennità", ColumnType::amount));
    EXPECT_TRUE(has("Tabella9", "necessità", ColumnType::amount));
    EXPECT_TRUE(has("Tabella9", "Databall", ColumnType::text));
    EXPECT_TRUE(has("Tabella7", "Partecipazione", ColumnType::text));
    EXPECT_TRUE(has("Tabella11", "Importo", ColumnType::amount));
    EXPECT_TRUE(has("Tabella11", "Numero", ColumnType::whole));
}

}  // namespace vorbano::test
