#include "overtime/pay.h"

#include <numeric>

#include "storage/numbers.h"

namespace vorbano {

namespace {

Currency share(Currency base, Currency percentage) { return cents(percentOf(base, percentage)); }

}  // namespace

Currency dueFor(const Hours& hours, const std::array<Currency, hourKinds>& rates) {
    Currency due;
    for (std::size_t kind = 0; kind < hours.size(); ++kind) due += payFor(hours[kind], rates[kind]);
    return due;
}

Amounts liquidate(const Hours& executed, const std::array<Currency, hourKinds>& rates, const Percentages& percentages) {
    Amounts amounts;
    if (std::accumulate(executed.begin(), executed.end(), std::int64_t{0}) == 0) return amounts;
    amounts.Dovuto = dueFor(executed, rates);
    amounts.CpStato = share(amounts.Dovuto, percentages.CpStato);
    amounts.Irap = share(amounts.Dovuto, percentages.Irap);
    amounts.TotaleSpesa = amounts.CpStato + amounts.Irap;
    amounts.Complessivo = amounts.Dovuto + amounts.TotaleSpesa;
    amounts.CpDip = share(amounts.Dovuto, percentages.CpDip);
    amounts.FonCre = share(amounts.Dovuto, percentages.FonCre);
    amounts.TotaleContr = amounts.CpDip + amounts.FonCre;
    return amounts;
}

std::optional<Currency> rateFrom(std::string_view text) {
    const auto rate = toCurrency(text);
    if (!rate) return std::nullopt;
    return cents(*rate);
}

}  // namespace vorbano
