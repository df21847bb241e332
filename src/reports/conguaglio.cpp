#include "reports/conguaglio.h"

#include <cstddef>
#include <utility>
#include <vector>

#include "overtime/meirin_periods.h"
#include "reports/overtime_rows.h"
#include "reports/payments_due.h"
#include "screens/staging_value.h"
#include "storage/numbers.h"
#include "storage/record_file.h"

namespace vorbano {

namespace {

template <class Record>
Result<std::vector<Record>> readAll(FileSystem& files, const Result<std::string>& path) {
    if (!path) return path.error();
    const auto file = RecordFile<Record>::open(files, *path);
    if (!file) return file.error();
    std::vector<Record> records;
    if (auto read = file->scan([&](int, const Record& record) { records.push_back(record); }); !read) {
        return read.error();
    }
    return records;
}

/// The record of the same number, or one of zeros where the file has none.
template <class Record>
Record recordAt(const std::vector<Record>& records, std::size_t at) {
    return at < records.size() ? records[at] : Record{};
}

/// The adjustment takes the place of what was liquidated; `Pagato` is what is still to be paid.
void putAdjustment(Row& row, const AdjustmentRecord& adjustment) {
    const std::pair<std::string_view, Currency> amounts[] = {
        {"CompDf", adjustment.rates[0]},
        {"CompNof", adjustment.rates[1]},
        {"CompNef", adjustment.rates[2]},
        {"Dovuto", adjustment.Dovuto},
        {"Pagato", adjustment.Pagato},
        {"AliCpStato", adjustment.AliCpStato},
        {"CpStato", adjustment.CpStato},
        {"AliIrap", adjustment.AliIrap},
        {"Irap", adjustment.Irap},
        {"TotaleSpesa", adjustment.TotaleSpesa},
        {"AliCpDip", adjustment.AliCpDip},
        {"CpDip", adjustment.CpDip},
        {"AliFonCre", adjustment.AliFonCre},
        {"FonCre", adjustment.FonCre},
        {"TotaleContr", adjustment.TotaleContr},
    };
    for (const auto& [field, amount] : amounts) row.set(field, amountValue(amount));
}

/// IRPEF and INAIL of the adjustment, the limits and the INAIL of the first period of the election.
Result<Row> totalsOf(FileSystem& files, const Election& election) {
    auto meirin = readMeirin(files, election);
    if (!meirin) return meirin.error();
    const auto meirinc = readMeirinc(files, election);
    if (!meirinc) return meirinc.error();
    MeirinRecord both = *meirin;
    both.irpef = meirinc->irpef;
    both.inailDate = meirinc->inailDate;
    both.inail = meirinc->inail;
    Row totals = totalsFrom(both);
    totals.set("InailPrimo", amountValue(meirin->inailUno));
    return totals;
}

struct ElectionFiles {
    std::vector<EmployeeRecord> employees;
    std::vector<AdjustmentRecord> adjustments;
    std::vector<LatePeriodRecord> fourthPeriods;
    Row totals;
};

Result<ElectionFiles> readFiles(FileSystem& files, const Election& election) {
    auto employees = readAll<EmployeeRecord>(files, election.employeeFile());
    if (!employees) return employees.error();
    auto adjustments = readAll<AdjustmentRecord>(files, election.file(congsFile));
    if (!adjustments) return adjustments.error();
    auto fourth = readAll<LatePeriodRecord>(files, election.file(quartumFile));
    if (!fourth) return fourth.error();
    auto totals = totalsOf(files, election);
    if (!totals) return totals.error();
    return ElectionFiles{std::move(*employees), std::move(*adjustments), std::move(*fourth), std::move(*totals)};
}

Result<> fill(const Workplace& desk, const ElectionFiles& records, const Heading& heading) {
    for (std::size_t at = 0; at < records.employees.size(); ++at) {
        const EmployeeRecord& employee = records.employees[at];
        const AdjustmentRecord adjustment = recordAt(records.adjustments, at);
        const LatePeriodRecord fourth = recordAt(records.fourthPeriods, at);
        Row row = Database1(employee);
        putAdjustment(row, adjustment);
        row.set("CpStatoPrimo", amountValue(firstPeriodCharge(employee, adjustment)));
        row.setText("QuartusDal", fourth.from.trimmed()).setText("QuartusAl", fourth.to.trimmed());
        if (auto appended = desk.staging.append("Tabella3", row); !appended) return appended;
    }
    return appendCompanions(desk.files, desk.staging, records.totals, heading, {});
}

}  // namespace

Currency firstPeriodCharge(const EmployeeRecord& employee, const AdjustmentRecord& adjustment) {
    Hours performed{};
    for (std::size_t kind = 0; kind < performed.size(); ++kind) performed[kind] = employee.periods[0].paid[kind];
    const Currency more = dueFor(performed, adjustment.rates) - dueFor(performed, employee.pay.rates);
    return cents(percentOf(more, adjustment.AliCpStato));
}

Result<> printConguaglio(const Workplace& desk, const Election& election, const Heading& heading) {
    const auto records = readFiles(desk.files, election);
    if (!records) return records.error();
    auto shown = produce(desk, {.fill = [&] { return fill(desk, *records, heading); },
                                .job = {"liqstrc.rpt", "CONGUAGLIO LIQUIDAZIONE PER RENDICONTO", Destination::preview},
                                .clearing = Clearing::none});
    if (!shown) clearTables(desk.staging, Clearing::Deletebase, 0).ignore();
    return shown;
}

}  // namespace vorbano
