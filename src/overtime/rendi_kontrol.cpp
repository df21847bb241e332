#include "overtime/rendi_kontrol.h"

#include "overtime/meirin_periods.h"
#include "records/overtime_records.h"
#include "records/statement_records.h"
#include "storage/numbers.h"
#include "storage/only_record.h"

namespace vorbano {

namespace {

/// What the pay of all records of a file costs.
template <class Record>
Result<Currency> costOf(FileSystem& files, const Result<std::string>& path) {
    if (!path) return path.error();
    const auto file = RecordFile<Record>::open(files, *path);
    if (!file) return file.error();
    Currency sum;
    const auto done =
        file->scan([&](int, const Record& record) { sum += record.pay.Dovuto + record.pay.CpStato + record.pay.Irap; });
    if (!done) return done.error();
    return sum;
}

Result<Currency> overtimeOf(FileSystem& files, const Election& election, bool withQuartum) {
    const auto meirin = readMeirin(files, election);
    if (!meirin) return meirin.error();
    const auto employees = costOf<EmployeeRecord>(files, election.employeeFile());
    if (!employees) return employees.error();
    Currency sum = *employees + meirin->inail;
    if (!withQuartum) return sum;
    const auto quartum = costOf<LatePeriodRecord>(files, election.file(quartumFile));
    if (!quartum) return quartum.error();
    return sum + *quartum;
}

Result<> keepInStep(FileSystem& files, const Election& election, bool withQuartum) {
    const auto path = election.file(rendiFile);
    if (!path) return path.error();
    auto stored = onlyRecord<RendiRecord>(files, *path);
    if (!stored) return stored.error();
    if (!*stored) return {};
    const auto overtime = overtimeOf(files, election, withQuartum);
    if (!overtime) return overtime.error();
    RendiRecord& statement = **stored;
    if (statement.Straordinario == *overtime) return {};
    statement.Totale = statement.Totale - statement.Straordinario + *overtime;
    statement.Differenza = statement.Totale - statement.Acconti;
    statement.Straordinario = cents(*overtime);
    return storeOnlyRecord(files, *path, statement);
}

}  // namespace

Result<> RendiKontrol(FileSystem& files, const Election& election) { return keepInStep(files, election, false); }

Result<> Rendikontrol2(FileSystem& files, const Election& election) { return keepInStep(files, election, true); }

}  // namespace vorbano
