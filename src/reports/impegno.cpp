#include "reports/impegno.h"

#include <cstddef>

#include "overtime/pay.h"
#include "screens/staging_value.h"
#include "storage/numbers.h"

namespace vorbano {

namespace {

/// `TotaleContr` stays as the record has it.
void addCost(Row& row, const Employee& employee) {
    const Commitment cost = commitmentFor(employee.periods, employee.record.pay);
    row.set("Dovuto", amountValue(cost.Dovuto))
        .set("CpStato", amountValue(cost.CpStato))
        .set("Irap", amountValue(cost.Irap))
        .set("TotaleSpesa", amountValue(cost.TotaleSpesa))
        .set("CpDip", amountValue(cost.CpDip))
        .set("FonCre", amountValue(cost.FonCre));
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
    return printOvertime(desk, election, late, heading,
                         {.job = {layoutFor(late), "IMPEGNO DI SPESA", Destination::preview},
                          .dates = fixedLegalDates,
                          .clearing = Clearing::Cancella1,
                          .addToEmployee = addCost});
}

}  // namespace vorbano
