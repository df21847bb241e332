#include "parameters/election_rewrite.h"

#include <algorithm>

#include "overtime/employee_removal.h"
#include "parameters/repricing.h"
#include "storage/numbers.h"

namespace vorbano {

namespace {

/// Rows whose `Day` rate may be that of a neighbour, so that the grade decides with it.
constexpr std::array<std::string_view, 2> toldByGrade = {"D1", "C4"};
static_assert(std::ranges::all_of(toldByGrade, [](std::string_view key) { return tariffRowOf(key) >= 0; }));

bool isForGrade(std::size_t row, std::string_view grade) {
    const TariffRow& layout = tariffRows[row];
    return std::ranges::find(toldByGrade, layout.key) == toldByGrade.end() || layout.grade == grade;
}

}  // namespace

std::optional<std::size_t> rowPaidBy(const EmployeeRecord& employee, const DayRates& paidSoFar,
                                     const RewriteDirection& direction) {
    const std::string grade = employee.lblCat.trimmed();
    for (std::size_t row = 0; row < direction.rows; ++row) {
        if (paidSoFar[row] != employee.pay.rates[0]) continue;
        if (!direction.looksAtGrades || isForGrade(row, grade)) return row;
    }
    return std::nullopt;
}

EmployeeRecord atRates(EmployeeRecord employee, const Rates& rates) {
    Pay& pay = employee.pay;
    const Currency due = priced(employee.executed, rates);
    const Contributions on = contributionsOn(due, pay);
    pay.rates = {cents(rates.Day), cents(rates.Fn), cents(rates.Nf)};
    pay.Dovuto = cents(due);
    pay.CpStato = on.CpStato;
    pay.Irap = on.Irap;
    pay.TotaleSpesa = on.TotaleSpesa;
    pay.CpDip = on.CpDip;
    pay.FonCre = on.FonCre;
    pay.TotaleContr = on.TotaleContr;
    return employee;
}

Result<> rewriteElection(FileSystem& files, const Election& election, const DayRates& paidSoFar, const RateTable& rates,
                         const RewriteDirection& direction) {
    return rewriteEmployees(files, election, [&](int, EmployeeRecord& employee) {
        if (const auto row = rowPaidBy(employee, paidSoFar, direction)) employee = atRates(employee, rates[*row]);
        return true;
    });
}

}  // namespace vorbano
