#include "platform/staging_tables.h"

#include <initializer_list>

namespace vorbano {

namespace {

void add(std::vector<Column>& columns, ColumnType type, std::initializer_list<std::string_view> names) {
    for (const std::string_view name : names) columns.push_back({name, type});
}

/// A period of the employee table: its two dates, then three kinds of authorised hours, three of performed ones, the
/// total. The names of the fields follow no rule that could be computed, not even in their capitals.
struct PeriodFields {
    std::string_view from, to;
    std::string_view hours[7];
};

constexpr PeriodFields periods[] = {
    {"PrimoDal", "PrimoAl", {"A1fer", "A1fes", "A1Nf", "P1df", "P1nf", "P1nef", "tot1"}},
    {"SecDal", "SecAl", {"A2fer", "A2fes", "A2Nf", "P2df", "P2nf", "P2nef", "tot2"}},
    {"TerDal", "TerAl", {"A3fer", "A3fes", "A3Nf", "P3df", "P3nf", "P3nef", "tot3"}},
    {"QuartusDal", "QuartusAl", {"A4Fer", "A4Fes", "A4Nf", "P4Df", "P4Nf", "P4Nef", "tot4"}},
    {"PentiumDal", "PentiumAl", {"A5Fer", "A5Fes", "A5Nf", "P5Df", "P5Nf", "P5Nef", "tot5"}},
};

/// The rates of the staff and those of the municipal secretaries, for the two tariff prints.
TableInfo staffRates() {
    TableInfo table{"Tabella1", {}};
    add(table.columns, ColumnType::text, {"Categoria", "Exqualifica"});
    add(table.columns, ColumnType::number, {"Diurno", "FestNo", "NottFe"});
    return table;
}

TableInfo secretaryRates() {
    TableInfo table{"Tabella2", {}};
    add(table.columns, ColumnType::text, {"Qualifica"});
    add(table.columns, ColumnType::number, {"DiurnaFer", "NottorFes", "NottendFes"});
    return table;
}

/// One row per employee of the election.
TableInfo employees() {
    TableInfo table{"Tabella3", {}};
    auto& columns = table.columns;
    add(columns, ColumnType::whole, {"NDip", "Dipendenti"});
    add(columns, ColumnType::text, {"Nome"});
    add(columns, ColumnType::whole, {"MonteOre", "MoUtil", "globo", "MoGlob"});
    for (const PeriodFields& period : periods) {
        add(columns, ColumnType::text, {period.from, period.to});
        for (const std::string_view hours : period.hours) add(columns, ColumnType::whole, {hours});
    }
    add(columns, ColumnType::whole, {"TotAut", "EsegDf", "EsegNof", "EsegNef", "TotEseg"});
    add(columns, ColumnType::text, {"Categoria", "Livello"});
    add(columns, ColumnType::amount,
        {"CompDf",      "CompNof", "CompNef",     "Dovuto",       "Pagato",      "AliCpStato",     "CpStato",
         "AliIrap",     "Irap",    "TotaleSpesa", "AliCpDip",     "CpDip",       "AliFonCre",      "FonCre",
         "TotaleContr", "MetaC",   "MetaP",       "CpStatoPrimo", "CpIrapPrimo", "CpStatoSecondo", "CpIrapSecondo"});
    return table;
}

/// The totals of the election, one row.
TableInfo electionTotals() {
    TableInfo table{"Tabella4", {}};
    auto& columns = table.columns;
    add(columns, ColumnType::amount, {"Irpef", "inail"});
    add(columns, ColumnType::text, {"datainail"});
    add(columns, ColumnType::whole, {"Medio1", "Medio2", "Medio3", "Mensile1", "Mensile2", "Mensile3"});
    add(columns, ColumnType::amount,
        {"InailPrimo", "InailSecondo", "InailC", "InailP", "Com", "Prov", "MCom", "MProv"});
    return table;
}

/// The heading, the legal dates: one row each.
TableInfo heading() {
    TableInfo table{"Tabella5", {}};
    add(table.columns, ColumnType::text, {"Comune", "Elezione", "Data", "Databall"});
    return table;
}

TableInfo legalDates() {
    TableInfo table{"Tabella6", {}};
    add(table.columns, ColumnType::text, {"DataA", "DataB"});
    return table;
}

/// One row per member of a polling station.
TableInfo stationMembers() {
    TableInfo table{"Tabella7", {}};
    auto& columns = table.columns;
    add(columns, ColumnType::text, {"Elezione", "Data"});
    add(columns, ColumnType::whole, {"Seggio", "SonoSeggio", "CompoNum"});
    add(columns, ColumnType::text, {"Componente", "Indirizzo", "Qualifica", "Partecipazione", "CodiceFiscale"});
    add(columns, ColumnType::amount, {"onorario"});
    return table;
}

/// One row per station or group of stations.
TableInfo stationTotals() {
    TableInfo table{"Tabella8", {}};
    add(table.columns, ColumnType::whole, {"Seggi", "NSeggio"});
    add(table.columns, ColumnType::amount, {"onorario", "Prov", "missioni", "MCom", "MProv", "MagMis"});
    return table;
}

/// The statement, one row of amounts; some combined elections write a second copy of the heading into it.
TableInfo statement() {
    TableInfo table{"Tabella9", {}};
    auto& columns = table.columns;
    const auto amounts = ColumnType::amount;
    add(columns, amounts, {"onorari", "Onorari1", "Stato1", "Magonorari"});
    add(columns, amounts, {"onorariB", "Stato1B", "Onorari1B", "MagonorariB"});
    add(columns, amounts, {"straordinario", "Stato2", "Straordinario1"});
    add(columns, amounts, {"speciale", "Speciale1", "Stato3", "MagSpeciale"});
    add(columns, amounts, {"specialeB", "Speciale1B", "Stato3B", "MagSpecialeB"});
    add(columns, amounts, {"carico", "carico2"});
    add(columns, amounts, {"indennità", "Indennità1", "Stato4", "MagIndennità"});
    add(columns, amounts, {"ata", "Ata1", "Stato5"});
    add(columns, amounts, {"stampanti", "Stampanti1", "Stato6"});
    add(columns, amounts, {"trasporti", "Trasporti1", "Stato7"});
    add(columns, amounts, {"disciplina", "Disciplina1", "Stato8"});
    add(columns, amounts, {"assunzioni", "Assunzioni1", "Stato9"});
    add(columns, amounts, {"necessità", "Necessità1", "Stato10", "cabine", "CartStat", "CartReg"});
    add(columns, amounts, {"missioni", "Missioni1", "Stato11"});
    add(columns, amounts, {"TotCom", "TotProv", "totale", "acconti", "differenza"});
    add(columns, amounts, {"Conguaglio", "Conguaglio1", "Conguaglio2", "ConguaglioStato"});
    add(columns, ColumnType::text, {"Comune", "Elezione", "Data", "Databall"});
    return table;
}

/// The contribution rates, one row.
TableInfo contributionRates() {
    TableInfo table{"Tabella10", {}};
    add(table.columns, ColumnType::amount, {"ContrPrev", "IrapEnte", "ContrDip", "foncred"});
    return table;
}

/// One row per payment document, and closing rows per voice.
TableInfo payments() {
    TableInfo table{"Tabella11", {}};
    auto& columns = table.columns;
    add(columns, ColumnType::text, {"Comune", "Elezioni", "dataE", "Mother", "Percent", "Son"});
    add(columns, ColumnType::amount, {"Importo"});
    add(columns, ColumnType::whole, {"Numero"});
    add(columns, ColumnType::text, {"Data", "Sonocosi"});
    return table;
}

/// No field of the twelfth table is ever written by name; one column lets it exist.
TableInfo unused() { return TableInfo{"tabella12", {{"Campo1", ColumnType::text}}}; }

}  // namespace

const std::vector<TableInfo>& stagingTables() {
    static const std::vector<TableInfo> tables = {
        staffRates(),     secretaryRates(), employees(), electionTotals(),    heading(),  legalDates(),
        stationMembers(), stationTotals(),  statement(), contributionRates(), payments(), unused(),
    };
    return tables;
}

}  // namespace vorbano
