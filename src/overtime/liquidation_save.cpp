#include "overtime/liquidation_save.h"

#include "overtime/employee_removal.h"
#include "overtime/late_records.h"
#include "storage/numbers.h"

namespace vorbano {

namespace {

/// Every amount, rate and percentage passes through two decimals on its way to the file.
Pay inCents(Pay pay) {
    for (Currency& rate : pay.rates) rate = cents(rate);
    for (Currency* amount : {&pay.Dovuto, &pay.AliCpStato, &pay.CpStato, &pay.AliIrap, &pay.Irap, &pay.TotaleSpesa,
                             &pay.AliCpDip, &pay.CpDip, &pay.AliFonCre, &pay.FonCre, &pay.TotaleContr}) {
        *amount = cents(*amount);
    }
    return pay;
}

void fill(EmployeeRecord& record, const Liquidation& values) {
    record.name = values.name;
    for (std::size_t at = 0; at < earlyPeriods; ++at) {
        PeriodBlock& block = record.periods[at];
        block.authorised = values.periods[at].authorised;
        block.paid = values.periods[at].paid;
        block.totalPaid = values.periods[at].totalPaid;
    }
    record.totAut = values.totAut;
    record.executed = values.executed;
    record.totEseg = values.totEseg;
    record.lblCat = values.lblCat;
    record.lblCat2 = values.lblCat2;
    record.pay = inCents(values.pay);
}

/// Name, pools and dates of the record stay.
void fill(LatePeriodRecord& record, const Liquidation& values, std::size_t period) {
    record.authorised = values.periods[period].authorised;
    record.paid = values.periods[period].paid;
    record.totalPaid = values.periods[period].totalPaid;
    record.totalAuthorised = values.totAut;
    record.executed = values.executed;
    record.totalExecuted = values.totEseg;
    record.lblCat = values.lblCat;
    record.lblCat2 = values.lblCat2;
    record.pay = inCents(values.pay);
}

Result<> saveLate(FileSystem& files, const std::string& path, int number, const Liquidation& values,
                  std::size_t period) {
    auto file = RecordFile<LatePeriodRecord>::open(files, path);
    if (!file) return file.error();
    auto record = file->read(number);
    if (!record) return record.error();
    fill(*record, values, period);
    return file->write(number, *record);
}

}  // namespace

Liquidation liquidationOf(const StoredEmployee& employee) {
    const EmployeeRecord& record = employee.record;
    Liquidation values{.name = record.name,
                       .periods = {},
                       .totAut = record.totAut,
                       .executed = record.executed,
                       .totEseg = record.totEseg,
                       .lblCat = record.lblCat,
                       .lblCat2 = record.lblCat2,
                       .pay = record.pay};
    for (std::size_t at = 0; at < values.periods.size(); ++at) {
        const PeriodBlock block = employee.period(static_cast<int>(at) + 1);
        values.periods[at] = {.authorised = block.authorised, .paid = block.paid, .totalPaid = block.totalPaid};
    }
    return values;
}

Result<> saveLiquidation(FileSystem& files, const Election& election, const LateInUse& late, int number,
                         const Liquidation& values) {
    if (auto settled = settleRemoval(files, election); !settled) return settled.error();
    if (const auto known = readEmployee(files, election, {}, number); !known) return known.error();
    const auto paths = overtimePaths(election);
    if (!paths) return paths.error();
    if (auto created = createLateRecords(files, election, late); !created) return created;
    for (std::size_t at = 0; at < latePeriods; ++at) {
        if (!late[at]) continue;
        auto saved = saveLate(files, paths->late[at], number, values, earlyPeriods + at);
        if (!saved) return saved;
    }
    // Zero up to the employee's own record. It is taken from the file that changes with it, so a command given again
    // finds it at zero throughout.
    int difference = 0;
    return rewriteEmployees(files, election, [&](int at, EmployeeRecord& record) {
        if (at == number) {
            difference = int{record.totEseg} - int{values.totEseg};
            fill(record, values);
        }
        put(record.pools.MoUtil, std::int64_t{record.pools.MoUtil} - difference);
        return true;
    });
}

Result<> storeEmployeeName(FileSystem& files, const Election& election, int number, std::string_view name) {
    auto employee = readEmployee(files, election, {}, number);
    if (!employee) return employee.error();
    const auto path = election.employeeFile();
    if (!path) return path.error();
    auto file = RecordFile<EmployeeRecord>::open(files, *path);
    if (!file) return file.error();
    employee->record.name = trim(name);
    return file->write(number, employee->record);
}

}  // namespace vorbano
