#include "statement/statement_sources.h"

#include "overtime/meirin_periods.h"
#include "overtime/pay.h"
#include "overtime/staff.h"
#include "records/station_files.h"
#include "storage/numbers.h"
#include "storage/record_file.h"

namespace vorbano {

namespace {

Result<Currency> feesOf(FileSystem& files, const Election& election, StationKind kind) {
    Currency sum;
    for (const Round round : {Round::first, Round::runOff}) {
        const auto members = readMembers(files, election, kind, round);
        if (!members) return members.error();
        for (const MemberRecord& member : *members) sum += member.person.Onorario;
        const auto substitutes = readSubstitutes(files, election, kind, round);
        if (!substitutes) return substitutes.error();
        for (const SubstituteRecord& substitute : *substitutes) sum += substitute.person.Onorario;
    }
    return cents(sum);
}

}  // namespace

Result<Currency> onorari(FileSystem& files, const Election& election) {
    return feesOf(files, election, StationKind::normal);
}

Result<Currency> Speciali(FileSystem& files, const Election& election) {
    return feesOf(files, election, StationKind::special);
}

Currency costOfPeriod(const EmployeeRecord& employee, int period) {
    const PeriodBlock& block = employee.periods[static_cast<std::size_t>(period) - 1];
    Hours hours{};
    for (std::size_t kind = 0; kind < hours.size(); ++kind) hours[kind] = block.paid[kind];
    const Currency due = dueFor(hours, employee.pay.rates);
    return due + cents(percentOf(due, employee.pay.AliCpStato)) + cents(percentOf(due, employee.pay.AliIrap));
}

Result<OvertimeCost> readOvertimeCost(FileSystem& files, const Election& election) {
    // A removal that was interrupted is brought to its end first.
    if (const auto found = searchElection(files, election); !found) return found.error();
    const auto path = election.employeeFile();
    if (!path) return path.error();
    const auto file = RecordFile<EmployeeRecord>::open(files, *path);
    if (!file) return file.error();
    OvertimeCost cost;
    int employees = 0;
    const auto done = file->scan([&](int number, const EmployeeRecord& record) {
        if (number == 1) employees = record.pools.NumDip;
        if (number > employees) return;
        cost.whole += record.pay.Dovuto + record.pay.CpStato + record.pay.Irap;
        for (int period = 1; period <= 2; ++period)
            cost.periods[static_cast<std::size_t>(period) - 1] += costOfPeriod(record, period);
    });
    if (!done) return done.error();
    const auto meirin = readMeirin(files, election);
    if (!meirin) return meirin.error();
    cost.whole = cents(cost.whole + meirin->inail);
    cost.inail = {meirin->inailUno, meirin->inailDue};
    return cost;
}

DividedOvertime divideByPeriod(const OvertimeCost& cost) {
    const Currency first = cents(cost.periods[0] + cost.inail[0]);
    const Currency second = cents(cost.periods[1] + cost.inail[1]);
    return {.first = first, .second = second, .common = cost.whole - first - second};
}

}  // namespace vorbano
