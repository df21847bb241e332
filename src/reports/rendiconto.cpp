#include "reports/rendiconto.h"

#include <string>

#include "reports/conguaglio_rendiconto.h"
#include "reports/rendiconto_layout.h"
#include "reports/rendiconto_row.h"
#include "statement/station_quotas.h"
#include "storage/only_record.h"

namespace vorbano {

namespace {

template <class Record>
Result<std::optional<Record>> onlyRecordOf(FileSystem& files, const Election& election, std::string_view name) {
    const auto path = election.file(name);
    if (!path) return path.error();
    return onlyRecord<Record>(files, *path);
}

Result<StationCosts> stationCosts(FileSystem& files, const Election& election, StationKind kind) {
    const auto fees = firstRoundFees(files, election, kind);
    if (!fees) return fees.error();
    const auto quota = stationQuotas(files, election, kind, Round::first);
    if (!quota) return quota.error();
    const auto runOff = stationQuotas(files, election, kind, Round::runOff);
    if (!runOff) return runOff.error();
    return StationCosts{*fees, *quota, *runOff};
}

Result<BodyFiles> bodyFiles(FileSystem& files, const Election& election) {
    const auto normal = stationCosts(files, election, StationKind::normal);
    if (!normal) return normal.error();
    const auto special = stationCosts(files, election, StationKind::special);
    if (!special) return special.error();
    const auto tprov = onlyRecordOf<TprovRecord>(files, election, tprovFile);
    if (!tprov) return tprov.error();
    return BodyFiles{tprov->value_or(TprovRecord{}), *normal, *special};
}

Result<Row> statementRow(FileSystem& files, const Election& election, RendicontoPath path, const RendiRecord& rendi) {
    const auto divSt = onlyRecordOf<DivStRecord>(files, election, divStFile);
    if (!divSt) return divSt.error();
    const StatementFiles statement{rendi, *divSt};
    if (path == RendicontoPath::common) return commonRow(election, statement);
    if (path == RendicontoPath::EuroCom) return EuroComRow(election, statement);
    const auto bodies = bodyFiles(files, election);
    if (!bodies) return bodies.error();
    return path == RendicontoPath::PolRegSub ? PolRegSubRow(election, statement, *bodies)
                                             : ProvSubRow(election, statement, *bodies);
}

/// Two elections held together have the heading in the row of the statement as well.
void addHeading(Row& row, const Election& election, const Row& heading) {
    if (election.type.find('_') == std::string::npos) return;
    for (const auto& [field, value] : heading.fields()) row.set(field, value);
}

}  // namespace

Result<> printRendiconto(const Workplace& desk, const Election& election, const Heading& heading, bool adjusted) {
    const auto rendi = onlyRecordOf<RendiRecord>(desk.files, election, rendiFile);
    if (!rendi) return rendi.error();
    if (!*rendi) return {};
    const RendicontoPath path = rendicontoPath(election.type);
    const auto layout = rendicontoLayout(path, election);
    if (!layout) {
        desk.desktop.tell({"c'è un errore!!!", "Errore!", Icon::error});
        return {};
    }
    auto row = statementRow(desk.files, election, path, **rendi);
    if (!row) return row.error();
    if (adjusted) {
        if (auto added = addAdjustment(desk.files, election, *row); !added) return added;
    }
    const auto headingOf = headingRow(desk.files, heading);
    if (!headingOf) return headingOf.error();
    addHeading(*row, election, *headingOf);
    return produce(desk, {.fill = [&]() -> Result<> {
                              if (auto appended = desk.staging.append("Tabella9", *row); !appended) return appended;
                              return desk.staging.append("Tabella5", *headingOf);
                          },
                          .job = {std::string(*layout), "RENDICONTO", Destination::preview},
                          .clearing = Clearing::Cancella6});
}

}  // namespace vorbano
