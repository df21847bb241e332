#include "reports/station_documents.h"

#include <array>
#include <optional>
#include <span>
#include <unordered_map>
#include <utility>

#include "reports/document.h"
#include "reports/station_sums.h"
#include "screens/staging_value.h"
#include "storage/numbers.h"

namespace vorbano {

namespace {

/// The layout of one kind of election.
struct LayoutOf {
    std::string_view electionKind;
    std::string_view layout;
};

/// What one choice has of its own.
struct StationPapers {
    std::string_view summaryTitle;
    std::span<const LayoutOf> summaries;
    std::string_view otherSummary;  ///< of all other kinds
    std::span<const LayoutOf> combined;
    std::string_view plain;  ///< the members, of all other kinds
    std::string_view allTitle;
    std::string_view allQuestion;
};

constexpr std::string_view politicheComunali = "Politiche_Comunali";
constexpr std::string_view provincialiComunali = "Provinciali_Comunali";

constexpr std::array normalFirstSummaries = {LayoutOf{"Provinciali", "riepsegprov.rpt"},
                                             LayoutOf{provincialiComunali, "riepsegprocom.rpt"},
                                             LayoutOf{politicheComunali, "riepsegaltri.rpt"}};
constexpr std::array normalRunOffSummaries = {LayoutOf{"Provinciali", "rieseprosuf.rpt"},
                                              LayoutOf{provincialiComunali, "riseprcosuf.rpt"},
                                              LayoutOf{politicheComunali, "riepsegaltri.rpt"}};
constexpr std::array specialFirstSummaries = {LayoutOf{politicheComunali, "specialtri.rpt"},
                                              LayoutOf{provincialiComunali, "specialtri.rpt"}};
constexpr std::array specialRunOffSummaries = {LayoutOf{politicheComunali, "spaltrisuf.rpt"},
                                               LayoutOf{provincialiComunali, "spaltrisuf.rpt"}};

constexpr std::array combinedFirst = {LayoutOf{politicheComunali, "conaltri.rpt"},
                                      LayoutOf{provincialiComunali, "conaltri.rpt"}};
constexpr std::array combinedRunOff = {LayoutOf{politicheComunali, "conalsuf.rpt"},
                                       LayoutOf{provincialiComunali, "conalsuf.rpt"}};
constexpr std::array combinedSpecial = {LayoutOf{politicheComunali, "Speconaltri.rpt"},
                                        LayoutOf{provincialiComunali, "Speconaltri.rpt"}};
/// Here, deliberately, only one of the two kinds.
constexpr std::array combinedSpecialRunOff = {LayoutOf{provincialiComunali, "Specoalsuf.rpt"}};

constexpr std::string_view normalTitle = "RIEPILOGO SEGGI";
constexpr std::string_view specialTitle = "RIEPILOGO Speciale";
constexpr std::string_view normalQuestion = "Volete stampare i componenti di tutti i seggi?";
constexpr std::string_view specialQuestion = "Volete stampare i componenti di tutti i seggi SPECIALI?";

/// By kind of station, then by round. The normal run-off has a layout of its own for provincial elections only.
constexpr std::array<std::array<StationPapers, 2>, 2> papers = {{
    {{{normalTitle, normalFirstSummaries, "riepseg.rpt", combinedFirst, "seggi.rpt", "Stampa seggi normali - 1° turno",
       normalQuestion},
      {normalTitle, normalRunOffSummaries, "riepseg.rpt", combinedRunOff, "segsuf.rpt",
       "Stampa seggi normali - BALLOTTAGGIO", normalQuestion}}},
    {{{specialTitle, specialFirstSummaries, "riepspec.rpt", combinedSpecial, "SegSpeciale.rpt",
       "Stampa seggi SPECIALI - 1° turno", specialQuestion},
      {specialTitle, specialRunOffSummaries, "riespesuf.rpt", combinedSpecialRunOff, "SegSpecsuf.rpt",
       "Stampa seggi SPECIALI - BALLOTTAGGIO", specialQuestion}}},
}};

const StationPapers& papersOf(StationChoice choice) {
    return papers[static_cast<std::size_t>(choice.kind)][static_cast<std::size_t>(choice.round)];
}

std::string layoutFor(std::span<const LayoutOf> layouts, std::string_view electionKind, std::string_view otherwise) {
    for (const LayoutOf& one : layouts) {
        if (one.electionKind == electionKind) return std::string(one.layout);
    }
    return std::string(otherwise);
}

Result<std::optional<NormalTariff>> quotasFor(FileSystem& files, std::string_view electionKind) {
    const auto file = RecordFile<NormalTariff>::open(files, tarmagFile);
    if (!file) return file.error();
    const auto found = findTariff(*file, electionKind);
    if (!found) return found.error();
    if (!*found) return std::optional<NormalTariff>();
    return std::optional<NormalTariff>((*found)->row);
}

/// The number of the station stands in both `Seggi` and `NSeggio`. No file holds an allowance for travel, so
/// `missioni` is 0. Of special stations only the number and the fees are written.
Row summaryRow(const StationSum& sum, StationKind kind, std::string_view electionKind) {
    Row row;
    row.setWhole("NSeggio", sum.station).set("onorario", amountValue(sum.onorario));
    if (kind == StationKind::special) return row;
    const StationShares shares = sharesOf(sum, electionKind);
    row.setWhole("Seggi", sum.station)
        .set("missioni", amountValue({}))
        .set("MCom", amountValue(shares.MCom))
        .set("MProv", amountValue(shares.MProv))
        .set("MagMis", amountValue(sum.quota));
    if (shares.Prov) row.set("Prov", amountValue(*shares.Prov));
    return row;
}

/// A member, or a substitute: the same fields of both.
template <class Record>
Row personRow(const Record& record, const Heading& heading) {
    const StationPerson& person = record.person;
    Row row;
    row.setText("Elezione", heading.Elezione).setText("Data", heading.Data);
    row.setWhole("Seggio", record.station.Seggi)
        .setWhole("SonoSeggio", record.station.SonoSeggio)
        .setWhole("CompoNum", record.Ordine);
    row.setText("Componente", person.Cognome.trimmed() + " " + person.Nome.trimmed())
        .setText("Indirizzo", person.Indirizzo.trimmed())
        .setText("Qualifica", person.Qualifica.trimmed())
        .setText("Partecipazione", person.SiNo.trimmed())
        .setText("CodiceFiscale", person.CodFisc.trimmed())
        .set("onorario", amountValue(cents(person.Onorario)));
    return row;
}

template <class Record>
Result<> appendPeople(Database& staging, std::span<const Record> people, const Heading& heading) {
    for (const Record& person : people) {
        if (auto appended = staging.append("Tabella7", personRow(person, heading)); !appended) return appended;
    }
    return {};
}

using SubstitutesOf = std::unordered_map<int, std::vector<SubstituteRecord>>;

SubstitutesOf byStation(std::span<const SubstituteRecord> substitutes) {
    SubstitutesOf grouped;
    for (const SubstituteRecord& one : substitutes) grouped[one.station.SonoSeggio].push_back(one);
    return grouped;
}

/// Station after station in the order of the file, each with its substitutes behind its members.
Result<> appendStations(Database& staging, const Stations& stations, const Heading& heading) {
    SubstitutesOf substitutes = byStation(stations.substitutes);
    const std::span<const MemberRecord> members = stations.members;
    for (std::size_t first = 0; first < members.size();) {
        const int number = members[first].station.SonoSeggio;
        std::size_t end = first;
        while (end < members.size() && members[end].station.SonoSeggio == number) ++end;
        auto done = appendPeople(staging, members.subspan(first, end - first), heading);
        // A number that comes again later finds its substitutes taken.
        const auto own = std::exchange(substitutes[number], {});
        if (done) done = appendPeople(staging, std::span<const SubstituteRecord>(own), heading);
        if (!done) return done;
        first = end;
    }
    return {};
}

Result<> produceMembers(const Workplace& desk, const PrintJob& job, const Heading& heading, const Stations& stations) {
    const auto fill = [&]() -> Result<> {
        if (auto done = appendStations(desk.staging, stations, heading); !done) return done;
        return appendHeading(desk.files, desk.staging, heading);
    };
    return produce(desk, {.fill = fill, .job = job, .clearing = Clearing::Cancella5});
}

}  // namespace

Message allStationsQuestion(StationChoice choice) {
    const StationPapers& own = papersOf(choice);
    return {std::string(own.allQuestion), std::string(own.allTitle), Icon::question};
}

PrintJob summaryJob(StationChoice choice, std::string_view electionKind) {
    const StationPapers& own = papersOf(choice);
    return {layoutFor(own.summaries, electionKind, own.otherSummary), std::string(own.summaryTitle),
            Destination::preview};
}

PrintJob oneStationJob(StationChoice choice, std::string_view electionKind) {
    const StationPapers& own = papersOf(choice);
    return {layoutFor(own.combined, electionKind, own.plain), "COMPONENTI SEGGIO", Destination::preview};
}

PrintJob allStationsJob(StationChoice choice) {
    return {std::string(papersOf(choice).plain), "", Destination::printer};
}

Result<Stations> readStations(FileSystem& files, const Election& election, StationChoice choice) {
    auto members = readMembers(files, election, choice.kind, choice.round);
    if (!members) return members.error();
    auto substitutes = readSubstitutes(files, election, choice.kind, choice.round);
    if (!substitutes) return substitutes.error();
    return Stations{std::move(*members), std::move(*substitutes)};
}

Result<> printStationSummary(const Workplace& desk, const Election& election, StationChoice choice,
                             const Heading& heading) {
    const auto stations = readStations(desk.files, election, choice);
    if (!stations) return stations.error();
    std::optional<NormalTariff> quotas;
    if (choice.kind == StationKind::normal) {
        const auto found = quotasFor(desk.files, election.type);
        if (!found) return found.error();
        quotas = *found;
    }
    const auto fill = [&]() -> Result<> {
        for (const StationSum& sum : stationSums(stations->members, stations->substitutes, quotas)) {
            auto done = desk.staging.append("Tabella8", summaryRow(sum, choice.kind, election.type));
            if (!done) return done;
        }
        return appendHeading(desk.files, desk.staging, heading);
    };
    return produce(desk, {.fill = fill, .job = summaryJob(choice, election.type), .clearing = Clearing::Cancella4});
}

Result<> printStation(const Workplace& desk, const Election& election, StationChoice choice, const Heading& heading,
                      const Stations& stations, int number) {
    Stations one = stations;
    const auto ofAnother = [number](const auto& record) { return record.station.SonoSeggio != number; };
    std::erase_if(one.members, ofAnother);
    std::erase_if(one.substitutes, ofAnother);
    return produceMembers(desk, oneStationJob(choice, election.type), heading, one);
}

Result<> printAllStations(const Workplace& desk, const Election& election, StationChoice choice,
                          const Heading& heading) {
    const auto stations = readStations(desk.files, election, choice);
    if (!stations) return stations.error();
    return produceMembers(desk, allStationsJob(choice), heading, *stations);
}

}  // namespace vorbano
