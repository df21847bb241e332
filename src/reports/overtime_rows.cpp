#include "reports/overtime_rows.h"

#include <algorithm>
#include <cstddef>
#include <string_view>
#include <utility>

#include "overtime/meirin_periods.h"
#include "records/tariff_records.h"
#include "screens/staging_value.h"
#include "storage/only_record.h"

namespace vorbano {

namespace {

/// The fields of one period in `Tabella3`.
struct PeriodFields {
    std::string_view from;
    std::string_view to;
    std::array<std::string_view, hourKinds> authorised;
    std::array<std::string_view, hourKinds> performed;
    std::string_view total;
};

constexpr std::array<PeriodFields, maxPeriods> periodFields = {{
    {"PrimoDal", "PrimoAl", {"A1fer", "A1fes", "A1Nf"}, {"P1df", "P1nf", "P1nef"}, "tot1"},
    {"SecDal", "SecAl", {"A2fer", "A2fes", "A2Nf"}, {"P2df", "P2nf", "P2nef"}, "tot2"},
    {"TerDal", "TerAl", {"A3fer", "A3fes", "A3Nf"}, {"P3df", "P3nf", "P3nef"}, "tot3"},
    {"QuartusDal", "QuartusAl", {"A4Fer", "A4Fes", "A4Nf"}, {"P4Df", "P4Nf", "P4Nef"}, "tot4"},
    {"PentiumDal", "PentiumAl", {"A5Fer", "A5Fes", "A5Nf"}, {"P5Df", "P5Nf", "P5Nef"}, "tot5"},
}};
constexpr std::size_t fourth = 3;
constexpr std::size_t fifth = 4;

void addPeriod(Row& row, const PeriodFields& fields, const PeriodBlock& period) {
    row.setText(fields.from, period.from.trimmed()).setText(fields.to, period.to.trimmed());
    for (std::size_t kind = 0; kind < hourKinds; ++kind) {
        row.setWhole(fields.authorised[kind], period.authorised[kind]);
        row.setWhole(fields.performed[kind], period.paid[kind]);
    }
    row.setWhole(fields.total, period.totalPaid);
}

/// What a document shows of a period that the screen does not: these dates, not the mark of a period left out.
PeriodBlock periodNotShown() {
    PeriodBlock period{};
    period.from = "00/00/00";
    period.to = "00/00/00";
    return period;
}

PeriodBlock blockOf(const LatePeriodRecord& record) {
    return {record.from, record.to, record.authorised, record.paid, record.totalPaid};
}

/// Puts a late period beside each employee, from the record of the same number.
Result<> readLatePeriod(FileSystem& files, const Election& election, std::string_view name, std::size_t period,
                        std::vector<Employee>& employees) {
    const auto path = election.file(name);
    if (!path) return path.error();
    const auto file = RecordFile<LatePeriodRecord>::open(files, *path);
    if (!file) return file.error();
    return file->scan([&](int number, const LatePeriodRecord& record) {
        const auto at = static_cast<std::size_t>(number) - 1;
        if (at < employees.size()) employees[at].periods[period] = blockOf(record);
    });
}

Result<> appendRates(FileSystem& files, Database& staging) {
    const auto rates = onlyRecord<ContribRates>(files, conprevFile);
    if (!rates) return rates.error();
    if (!*rates) return {};
    const ContribRates& record = **rates;
    Row row;
    row.set("ContrPrev", amountValue(record.ContrPrev))
        .set("IrapEnte", amountValue(record.IrapEnte))
        .set("ContrDip", amountValue(record.ContrDip))
        .set("foncred", amountValue(record.FonCre));
    return staging.append("Tabella10", row);
}

}  // namespace

Result<std::vector<Employee>> readEmployees(FileSystem& files, const Election& election, LatePeriods late) {
    const auto path = election.employeeFile();
    if (!path) return path.error();
    const auto file = RecordFile<EmployeeRecord>::open(files, *path);
    if (!file) return file.error();

    std::vector<Employee> employees;
    int dipendenti = 0;
    auto read = file->scan([&](int number, const EmployeeRecord& record) {
        if (number == 1) dipendenti = record.pools.NumDip;
        if (number > dipendenti) return;
        Employee employee{record, {}};
        std::ranges::copy(record.periods, employee.periods.begin());
        if (!late.fourth) employee.periods[fourth] = periodNotShown();
        if (!late.fifth) employee.periods[fifth] = periodNotShown();
        employees.push_back(employee);
    });
    if (read && late.fourth) read = readLatePeriod(files, election, quartumFile, fourth, employees);
    if (read && late.fifth) read = readLatePeriod(files, election, pentiumFile, fifth, employees);
    if (!read) return read.error();
    return employees;
}

int dipendentiOf(const std::vector<Employee>& employees) {
    return employees.empty() ? 0 : int{employees.front().record.pools.NumDip};
}

Row Database1(const EmployeeRecord& record) {
    const Pools& pools = record.pools;
    const Pay& pay = record.pay;
    Row row;
    row.setWhole("NDip", pools.SonoDip).setWhole("Dipendenti", pools.NumDip).setText("Nome", record.name.trimmed());
    row.setWhole("MonteOre", pools.MonteOre)
        .setWhole("MoUtil", pools.MoUtil)
        .setWhole("globo", pools.Globo)
        .setWhole("MoGlob", pools.MoGlob);
    for (std::size_t at = 0; at < record.periods.size(); ++at) addPeriod(row, periodFields[at], record.periods[at]);
    row.setWhole("TotAut", record.totAut)
        .setWhole("EsegDf", record.executed[0])
        .setWhole("EsegNof", record.executed[1])
        .setWhole("EsegNef", record.executed[2])
        .setWhole("TotEseg", record.totEseg);
    row.setText("Categoria", record.lblCat.trimmed()).setText("Livello", record.lblCat2.trimmed());
    const std::pair<std::string_view, Currency> amounts[] = {
        {"CompDf", pay.rates[0]},
        {"CompNof", pay.rates[1]},
        {"CompNef", pay.rates[2]},
        {"Dovuto", pay.Dovuto},
        {"AliCpStato", pay.AliCpStato},
        {"CpStato", pay.CpStato},
        {"AliIrap", pay.AliIrap},
        {"Irap", pay.Irap},
        {"TotaleSpesa", pay.TotaleSpesa},
        {"AliCpDip", pay.AliCpDip},
        {"CpDip", pay.CpDip},
        {"AliFonCre", pay.AliFonCre},
        {"FonCre", pay.FonCre},
        {"TotaleContr", pay.TotaleContr},
    };
    for (const auto& [field, amount] : amounts) row.set(field, amountValue(amount));
    return row;
}

void addLatePeriods(Row& row, const Employee& employee) {
    for (const std::size_t at : {fourth, fifth}) addPeriod(row, periodFields[at], employee.periods[at]);
}

Result<Row> electionTotals(FileSystem& files, const Election& election) {
    const auto meirin = readMeirin(files, election);
    if (!meirin) return meirin.error();
    return totalsFrom(*meirin);
}

Row totalsFrom(const MeirinRecord& meirin) {
    Row row;
    row.set("Irpef", amountValue(meirin.irpef)).set("inail", amountValue(meirin.inail));
    row.setText("datainail", meirin.inailDate.trimmed());
    for (std::size_t at = 0; at < meirin.average.size(); ++at) {
        const std::string number = std::to_string(at + 1);
        row.setWhole("Medio" + number, meirin.average[at]).setWhole("Mensile" + number, meirin.pool[at]);
    }
    return row;
}

Result<> appendCompanions(FileSystem& files, Database& staging, const Row& totals, const Heading& heading,
                          const LegalDates& dates) {
    if (auto done = staging.append("Tabella4", totals); !done) return done;
    if (auto done = appendHeading(files, staging, heading); !done) return done;
    Row legal;
    legal.setText("DataA", dates.DataA).setText("DataB", dates.DataB);
    if (auto done = staging.append("Tabella6", legal); !done) return done;
    return appendRates(files, staging);
}

}  // namespace vorbano
