#include "reports/lrendiconto.h"

#include <array>
#include <cstddef>
#include <cstdint>

#include "overtime/pay.h"
#include "screens/staging_value.h"
#include "storage/numbers.h"

namespace vorbano {

namespace {

/// One line of the choice of a layout; the first that holds is taken.
struct LayoutRule {
    enum class Kind : std::uint8_t { is, contains };
    Kind kind;
    std::string_view name;
    std::string_view layout;
    [[nodiscard]] bool holdsFor(std::string_view election) const {
        return kind == Kind::is ? election == name : election.find(name) != std::string_view::npos;
    }
};
using enum LayoutRule::Kind;
constexpr std::array layoutRules = {
    LayoutRule{contains, "Provinciali_", "liqstrq_p.rpt"}, LayoutRule{contains, "Regionali_", "liqstrq_r.rpt"},
    LayoutRule{is, "Provinciali", "liqstr_p_r.rpt"},       LayoutRule{is, "Regionali", "liqstr_p_r.rpt"},
    LayoutRule{is, "Politiche_Comunali", "liqstrqpc.rpt"}, LayoutRule{is, "Politiche_Regionali", "liqstrapr.rpt"},
    LayoutRule{is, "Europee_Comunali", "liqstrqec.rpt"},   LayoutRule{is, "Europee", "liqstr_p_r.rpt"},
    LayoutRule{is, "Referendum", "liqstrre.rpt"},          LayoutRule{is, "Referendum_Comunali", "liqstrr_c.rpt"},
};

/// Sums over the employees of what the body pays.
struct RunningTotals {
    Currency CpStato;
    Currency Irap;
};

/// The fields of the costs of the first two periods, each taken alone.
struct ChargeFields {
    std::string_view CpStato;
    std::string_view Irap;
};
constexpr std::array<ChargeFields, 2> chargeFields = {{
    {"CpStatoPrimo", "CpIrapPrimo"},
    {"CpStatoSecondo", "CpIrapSecondo"},
}};

void addShares(Row& row, std::string_view first, std::string_view second, const BodyShares& shares) {
    row.set(first, amountValue(shares.C)).set(second, amountValue(shares.P));
}

void addToEmployee(Row& row, const Employee& employee, const BodyDivision& division, RunningTotals& sums) {
    const Pay& pay = employee.record.pay;
    for (std::size_t period = 0; period < chargeFields.size(); ++period) {
        const PeriodCharges charges = chargesOn(employee.periods[period], pay);
        row.set(chargeFields[period].CpStato, amountValue(charges.CpStato))
            .set(chargeFields[period].Irap, amountValue(charges.Irap));
    }
    addShares(row, "MetaC", "MetaP", betweenBodies(pay.Dovuto, division.pay));
    sums.CpStato += pay.CpStato;
    sums.Irap += pay.Irap;
}

void addToTotals(Row& totals, const MeirinRecord& meirin, const BodyDivision& division, const RunningTotals& sums) {
    addShares(totals, "Com", "Prov", betweenBodies(sums.CpStato, division.contributions));
    addShares(totals, "MCom", "MProv", betweenBodies(sums.Irap, division.contributions));
    addShares(totals, "InailC", "InailP", betweenBodies(meirin.inail, division.pay));
    totals.set("InailPrimo", amountValue(meirin.inailUno)).set("InailSecondo", amountValue(meirin.inailDue));
}

}  // namespace

BodyDivision divisionOf(const Election& election) {
    // The referendum held with the municipal elections of 12 June 2022: a sixth of pay and INAIL, but five sixths of
    // contributions and IRAP. So the two bodies accounted for it, and the two parts must not be brought to agree.
    if (election.type == "Referendum_Comunali" && election.date == "12-06-22") return {{1, 6}, {5, 6}};
    return {{1, 2}, {1, 2}};
}

BodyShares betweenBodies(Currency whole, BodyPart part) {
    const Shares shares = divide(whole, part);
    return {shares.first, cents(shares.second)};
}

PeriodCharges chargesOn(const PeriodBlock& period, const Pay& pay) {
    Hours performed{};
    for (std::size_t kind = 0; kind < performed.size(); ++kind) performed[kind] = period.paid[kind];
    const Currency due = dueFor(performed, pay.rates);
    return {cents(percentOf(due, pay.AliCpStato)), cents(percentOf(due, pay.AliIrap))};
}

std::string lrendicontoLayout(std::string_view kind, bool fourthPeriod) {
    if (fourthPeriod) {
        for (const LayoutRule& rule : layoutRules) {
            if (rule.holdsFor(kind)) return std::string(rule.layout);
        }
    }
    return "liqstr.rpt";
}

Result<> printLRendiconto(const Workplace& desk, const Election& election, LatePeriods late, const Heading& heading) {
    const BodyDivision division = divisionOf(election);
    RunningTotals sums;
    return printOvertime(
        desk, election, late, heading,
        {.job = {lrendicontoLayout(election.type, late.fourth), "LIQUIDAZIONE PER RENDICONTO", Destination::preview},
         .dates = {},
         .clearing = Clearing::Cancella3,
         .addToEmployee = [&](Row& row, const Employee& employee) { addToEmployee(row, employee, division, sums); },
         .addToTotals = [&](Row& totals, const MeirinRecord& meirin) { addToTotals(totals, meirin, division, sums); }});
}

}  // namespace vorbano
