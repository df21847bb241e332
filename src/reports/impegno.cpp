#include "reports/impegno.h"

#include <cstddef>

#include "overtime/pay.h"
#include "screens/staging_value.h"
#include "storage/numbers.h"

namespace vorbano {

namespace {

/// `TotaleContr` stays as the record has it.
Row rowFor(const Employee& employee) {
    Row row = Database1(employee.record);
    addLatePeriods(row, employee);
    const Commitment cost = commitmentFor(employee.periods, employee.record.pay);
    row.set("Dovuto", amountValue(cost.Dovuto))
        .set("CpStato", amountValue(cost.CpStato))
        .set("Irap", amountValue(cost.Irap))
        .set("TotaleSpesa", amountValue(cost.TotaleSpesa))
        .set("CpDip", amountValue(cost.CpDip))
        .set("FonCre", amountValue(cost.FonCre));
    return row;
}

Result<> fill(const Workplace& desk, const Election& election, const std::vector<Employee>& employees,
              const Heading& heading) {
    for (const Employee& employee : employees) {
        if (auto appended = desk.staging.append("Tabella3", rowFor(employee)); !appended) return appended;
    }
    const auto totals = electionTotals(desk.files, election);
    if (!totals) return totals.error();
    // The act has always carried these two dates, whatever the election.
    return appendCompanions(desk.files, desk.staging, *totals, heading, {"01-12-00", "31-12-00"});
}

std::string layoutFor(LatePeriods late) {
    if (late.fifth) return "impstrp.rpt";
    return late.fourth ? "impstrq.rpt" : "impstr.rpt";
}

}  // namespace

Commitment commitmentFor(const std::array<PeriodBlock, maxPeriods>& periods, const Pay& pay) {
    Hours hours{};
    for (const PeriodBlock& period : periods) {
        for (std::size_t kind = 0; kind < hours.size(); ++kind) hours[kind] += period.authorised[kind];
    }
    Commitment cost;
    cost.Dovuto = dueFor(hours, pay.rates);
    cost.CpStato = cents(percentOf(cost.Dovuto, pay.AliCpStato));
    cost.Irap = cents(percentOf(cost.Dovuto, pay.AliIrap));
    cost.TotaleSpesa = cost.Dovuto + cost.CpStato + cost.Irap;
    cost.CpDip = percentOf(cost.Dovuto, pay.AliCpDip);
    cost.FonCre = percentOf(cost.Dovuto, pay.AliFonCre);
    return cost;
}

Result<> printImpegno(const Workplace& desk, const Election& election, LatePeriods late, const Heading& heading) {
    const auto employees = readEmployees(desk.files, election, late);
    if (!employees) return employees.error();
    return produce(desk, {.fill = [&] { return fill(desk, election, *employees, heading); },
                          .job = {layoutFor(late), "IMPEGNO DI SPESA", Destination::preview},
                          .clearing = Clearing::Cancella1,
                          .dipendenti = dipendentiOf(*employees)});
}

}  // namespace vorbano
