#include "reports/overtime_document.h"

#include <vector>

#include "overtime/meirin_periods.h"

namespace vorbano {

namespace {

Result<> fill(const Workplace& desk, const Election& election, const std::vector<Employee>& employees,
              const Heading& heading, const OvertimeDocument& document) {
    for (const Employee& employee : employees) {
        Row row = Database1(employee.record);
        addLatePeriods(row, employee);
        if (document.addToEmployee) document.addToEmployee(row, employee);
        if (auto appended = desk.staging.append("Tabella3", row); !appended) return appended;
    }
    const auto meirin = readMeirin(desk.files, election);
    if (!meirin) return meirin.error();
    Row totals = totalsFrom(*meirin);
    if (document.addToTotals) document.addToTotals(totals, *meirin);
    auto done = appendCompanions(desk.files, desk.staging, totals, heading, document.dates);
    return done && document.more ? document.more() : done;
}

}  // namespace

Result<> printOvertime(const Workplace& desk, const Election& election, LatePeriods late, const Heading& heading,
                       const OvertimeDocument& document) {
    const auto employees = readEmployees(desk.files, election, late);
    if (!employees) return employees.error();
    return produce(desk, {.fill = [&] { return fill(desk, election, *employees, heading, document); },
                          .job = document.job,
                          .clearing = document.clearing,
                          .dipendenti = dipendentiOf(*employees)});
}

}  // namespace vorbano
