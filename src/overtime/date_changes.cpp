#include "overtime/date_changes.h"

#include "overtime/employee_removal.h"
#include "overtime/late_records.h"
#include "overtime/meirin_periods.h"
#include "storage/dates.h"
#include "storage/only_record.h"

namespace vorbano {

namespace {

void putPools(Pools& pools, const DateChange& change) {
    const int hours = monteOreOfNewDates(change.employees);
    put(pools.MonteOre, hours);
    put(pools.MoGlob, std::int64_t{hours} * change.employees);
    put(pools.Globo, sumOfPools(change.figures));
}

/// The dates of a block of the employee's record or of a late record.
template <class Block>
void putDates(Block& block, const PeriodSpan& span) {
    block.from = reformatDate(span.from);
    block.to = reformatDate(span.to);
}

Result<> changeLate(FileSystem& files, const OvertimePaths& paths, std::size_t late, const DateChange& change) {
    const PeriodSpan& span = *change.spans[earlyPeriods + late];
    auto records = readAll<LatePeriodRecord>(files, paths.late[late]);
    if (!records) return records.error();
    if (!span.isExcluded()) {
        const auto staff = readAll<EmployeeRecord>(files, paths.employees);
        if (!staff) return staff.error();
        *records = completed(std::move(*records), *staff);
    }
    for (LatePeriodRecord& record : *records) {
        putDates(record, span);
        putPools(record.pools, change);
    }
    return replaceLate(files, paths, late, *records);
}

}  // namespace

Result<> changeDates(FileSystem& files, const Election& election, const DateChange& change) {
    if (auto settled = settleRemoval(files, election); !settled) return settled.error();
    const auto paths = overtimePaths(election);
    if (!paths) return paths.error();
    // The employees last: the hours per month from which the figures are worked out change only with them.
    auto figures = [&change](MeirinRecord& meirin) { setMeirinFigures(meirin, change.figures); };
    if (auto changed = changeMeirin(files, election, figures); !changed) return changed;
    for (std::size_t at = 0; at < latePeriods; ++at) {
        if (!change.spans[earlyPeriods + at]) continue;
        if (auto changed = changeLate(files, *paths, at, change); !changed) return changed;
    }
    return rewriteEmployees(files, election, [&](int, EmployeeRecord& record) {
        for (std::size_t at = 0; at < earlyPeriods; ++at) {
            if (change.spans[at]) putDates(record.periods[at], *change.spans[at]);
        }
        putPools(record.pools, change);
        return true;
    });
}

Result<> storeActDates(FileSystem& files, const Election& election, std::string_view decreto,
                       std::string_view determina) {
    const auto path = election.file(duedateFile);
    if (!path) return path.error();
    DuedateRecord record;
    record.decreto = reformatDate(decreto);
    record.determina = reformatDate(determina);
    return storeOnlyRecord(files, *path, record);
}

}  // namespace vorbano
