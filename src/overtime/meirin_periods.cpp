#include "overtime/meirin_periods.h"

#include "overtime/late_records.h"
#include "storage/numbers.h"
#include "storage/only_record.h"

namespace vorbano {

namespace {

/// Where the record holds the figures of a period, from 0; `Record` may be const.
template <class Record>
auto placesOf(Record& record, std::size_t at) {
    struct Places {
        decltype(&record.average4) average, pool, state;
    };
    if (at < record.average.size()) return Places{&record.average[at], &record.pool[at], &record.state[at]};
    if (at == record.average.size()) return Places{&record.average4, &record.pool4, &record.state4};
    return Places{&record.average5, &record.pool5, &record.state5};
}

}  // namespace

MeirinPeriod meirinPeriod(const MeirinRecord& record, int period) {
    const auto places = placesOf(record, static_cast<std::size_t>(period) - 1);
    return {.average = *places.average, .pool = *places.pool, .state = *places.state};
}

void setMeirinFigures(MeirinRecord& record, const ElectionFigures& figures) {
    for (std::size_t at = 0; at < figures.size(); ++at) {
        if (!figures[at]) continue;
        const auto places = placesOf(record, at);
        put(*places.average, figures[at]->average);
        put(*places.pool, figures[at]->pool);
    }
}

Result<MeirinRecord> readMeirin(FileSystem& files, const Election& election) {
    const auto path = election.file(meirinFile);
    if (!path) return path.error();
    const auto stored = onlyRecord<MeirinRecord>(files, *path);
    if (!stored) return stored.error();
    return stored->value_or(MeirinRecord{});
}

Result<> changeMeirin(FileSystem& files, const Election& election, const std::function<void(MeirinRecord&)>& change) {
    auto record = readMeirin(files, election);
    if (!record) return record.error();
    change(*record);
    const auto path = election.file(meirinFile);
    if (!path) return path.error();
    return storeOnlyRecord(files, *path, *record);
}

Result<> storePeriodStates(FileSystem& files, const Election& election, const PeriodChoice& chosen, PeriodState state) {
    return changeMeirin(files, election, [&](MeirinRecord& record) {
        for (std::size_t at = 0; at < chosen.size(); ++at) {
            if (chosen[at]) *placesOf(record, at).state = static_cast<std::int16_t>(state);
        }
    });
}

ElectionAmounts electionAmounts(const MeirinRecord& record) {
    return {.irpef = record.irpef, .inail = record.inail, .inailUno = record.inailUno, .inailDue = record.inailDue};
}

Result<> storeElectionAmounts(FileSystem& files, const Election& election, const ElectionAmounts& amounts) {
    return changeMeirin(files, election, [&](MeirinRecord& record) {
        record.irpef = cents(amounts.irpef);
        record.inail = cents(amounts.inail);
        record.inailUno = cents(amounts.inailUno);
        record.inailDue = cents(amounts.inailDue);
    });
}

}  // namespace vorbano
