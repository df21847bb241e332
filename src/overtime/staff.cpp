#include "overtime/staff.h"

#include "overtime/employee_removal.h"
#include "overtime/late_records.h"
#include "storage/dates.h"

namespace vorbano {

namespace {

/// The names of a late period's files, all in the election's folder.
struct LateNames {
    std::string_view file, reverse, rewrite;
};
constexpr std::array<LateNames, latePeriods> lateNames = {{
    {quartumFile, rQuartumFile, nQuartumFile},
    {pentiumFile, rPentiumFile, nPentiumFile},
}};

PeriodBlock blockOf(const LatePeriodRecord& record) {
    return {.from = record.from,
            .to = record.to,
            .authorised = record.authorised,
            .paid = record.paid,
            .totalPaid = record.totalPaid};
}

PeriodBlock noPeriod() {
    PeriodBlock block{};
    block.from = excludedMark;
    block.to = excludedMark;
    return block;
}

/// Record `number` of a late period; nothing when the file has none.
Result<std::optional<LatePeriodRecord>> lateRecord(FileSystem& files, const std::string& path, int number) {
    const auto file = RecordFile<LatePeriodRecord>::open(files, path);
    if (!file) return file.error();
    const auto count = file->count();
    if (!count) return count.error();
    if (number > *count) return std::optional<LatePeriodRecord>();
    const auto record = file->read(number);
    if (!record) return record.error();
    return std::optional(*record);
}

}  // namespace

LateInUse lateInUse(const Election& election, PeriodRule rule) {
    return {election.hasPeriod(4, rule), election.hasPeriod(5, rule)};
}

Result<OvertimePaths> overtimePaths(const Election& election) {
    const auto folder = election.folder();
    if (!folder) return folder.error();
    const auto employees = election.employeeFile();
    if (!employees) return employees.error();
    const auto in = [&](std::string_view name) { return (*folder + "/").append(name); };
    OvertimePaths paths{.employees = *employees,
                        .reverse = in(reverseFile),
                        .meirin = in(meirinFile),
                        .revMeirin = in(revMeirinFile),
                        .duedate = in(duedateFile),
                        .late = {},
                        .lateReverse = {},
                        .lateNew = {}};
    for (std::size_t at = 0; at < latePeriods; ++at) {
        paths.late[at] = in(lateNames[at].file);
        paths.lateReverse[at] = in(lateNames[at].reverse);
        paths.lateNew[at] = in(lateNames[at].rewrite);
    }
    return paths;
}

PeriodBlock StoredEmployee::period(int period) const {
    const auto at = static_cast<std::size_t>(period) - 1;
    if (at < earlyPeriods) return record.periods[at];
    const auto& stored = late[at - earlyPeriods];
    return stored ? blockOf(*stored) : noPeriod();
}

ElectionSpans spansOf(const StoredEmployee& employee, const LateInUse& late) {
    ElectionSpans spans;
    for (std::size_t at = 0; at < spans.size(); ++at) {
        if (at >= earlyPeriods && !late[at - earlyPeriods]) continue;
        const PeriodBlock block = employee.period(static_cast<int>(at) + 1);
        spans[at] = PeriodSpan{.from = block.from.trimmed(), .to = block.to.trimmed()};
    }
    return spans;
}

Result<int> searchElection(FileSystem& files, const Election& election) {
    const auto settled = settleRemoval(files, election);
    if (!settled) return settled.error();
    const auto paths = overtimePaths(election);
    if (!paths) return paths.error();
    const auto file = RecordFile<EmployeeRecord>::open(files, paths->employees);
    if (!file) return file.error();
    return file->count();
}

Result<StoredEmployee> readEmployee(FileSystem& files, const Election& election, const LateInUse& late, int number) {
    const auto paths = overtimePaths(election);
    if (!paths) return paths.error();
    const auto file = RecordFile<EmployeeRecord>::open(files, paths->employees);
    if (!file) return file.error();
    const auto count = file->count();
    if (!count) return count.error();
    if (number < 1 || number > *count) return Error{Failure::notFound, paths->employees};
    const auto record = file->read(number);
    if (!record) return record.error();
    StoredEmployee employee{.record = *record, .late = {}};
    for (std::size_t at = 0; at < latePeriods; ++at) {
        if (!late[at]) continue;
        const auto stored = lateRecord(files, paths->late[at], number);
        if (!stored) return stored.error();
        employee.late[at] = *stored;
    }
    return employee;
}

Result<std::vector<StoredEmployee>> readStaff(FileSystem& files, const Election& election, const LateInUse& late) {
    const auto paths = overtimePaths(election);
    if (!paths) return paths.error();
    const auto records = readAll<EmployeeRecord>(files, paths->employees);
    if (!records) return records.error();
    std::vector<StoredEmployee> staff;
    staff.reserve(records->size());
    for (const EmployeeRecord& record : *records) staff.push_back({.record = record, .late = {}});
    for (std::size_t at = 0; at < latePeriods; ++at) {
        if (!late[at]) continue;
        const auto stored = readAll<LatePeriodRecord>(files, paths->late[at]);
        if (!stored) return stored.error();
        for (std::size_t one = 0; one < staff.size() && one < stored->size(); ++one) {
            staff[one].late[at] = (*stored)[one];
        }
    }
    return staff;
}

Result<> createLateRecords(FileSystem& files, const Election& election, const LateInUse& late) {
    if (!late[0] && !late[1]) return {};
    const auto paths = overtimePaths(election);
    if (!paths) return paths.error();
    const auto staff = readAll<EmployeeRecord>(files, paths->employees);
    if (!staff) return staff.error();
    for (std::size_t at = 0; at < latePeriods; ++at) {
        if (!late[at]) continue;
        auto stored = readAll<LatePeriodRecord>(files, paths->late[at]);
        if (!stored) return stored.error();
        if (stored->size() >= staff->size()) continue;
        auto done = replaceLate(files, *paths, at, completed(std::move(*stored), *staff));
        if (!done) return done;
    }
    return {};
}

std::int64_t sumOf(const HoursByKind& hours) {
    std::int64_t sum = 0;
    for (const Integer each : hours) sum += each;
    return sum;
}

Result<PeriodTotals> usedHours(FileSystem& files, const Election& election, const LateInUse& late, int leftOut,
                               const PeriodTotals& instead) {
    const auto paths = overtimePaths(election);
    if (!paths) return paths.error();
    PeriodTotals totals = instead;
    const auto employees = RecordFile<EmployeeRecord>::open(files, paths->employees);
    if (!employees) return employees.error();
    const auto added = employees->scan([&](int number, const EmployeeRecord& record) {
        if (number == leftOut) return;
        for (std::size_t at = 0; at < earlyPeriods; ++at) totals[at] += sumOf(record.periods[at].authorised);
    });
    if (!added) return added.error();
    for (std::size_t at = 0; at < latePeriods; ++at) {
        if (!late[at]) continue;
        const auto file = RecordFile<LatePeriodRecord>::open(files, paths->late[at]);
        if (!file) return file.error();
        const auto done = file->scan([&](int number, const LatePeriodRecord& record) {
            if (number != leftOut) totals[earlyPeriods + at] += sumOf(record.authorised);
        });
        if (!done) return done.error();
    }
    return totals;
}

Result<std::vector<HoursLine>> elencami(FileSystem& files, const Election& election, const LateInUse& late, int period,
                                        HoursShown shown) {
    const auto staff = readStaff(files, election, late);
    if (!staff) return staff.error();
    std::vector<HoursLine> lines;
    HoursLine totals{.name = "Totali"};
    for (const StoredEmployee& employee : *staff) {
        const PeriodBlock block = employee.period(period);
        const HoursByKind& hours = shown == HoursShown::paid ? block.paid : block.authorised;
        HoursLine line{.name = employee.record.name.trimmed(), .hours = {}, .total = sumOf(hours)};
        for (std::size_t kind = 0; kind < hourKinds; ++kind) {
            line.hours[kind] = hours[kind];
            totals.hours[kind] += hours[kind];
        }
        totals.total += line.total;
        lines.push_back(std::move(line));
    }
    lines.push_back(std::move(totals));
    return lines;
}

}  // namespace vorbano
