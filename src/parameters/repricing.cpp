#include "parameters/repricing.h"

#include "storage/numbers.h"

namespace vorbano {

namespace {

/// A hundred percent of the rate for each hour: exact, and held at the limit where a damaged record goes beyond it.
Currency times(int hours, Currency rate) { return percentOf(rate, Currency::fromCents(std::int64_t{hours} * 10'000)); }

}  // namespace

Currency priced(const HoursByKind& hours, const Rates& rates) {
    return times(hours[0], rates.Day) + times(hours[1], rates.Fn) + times(hours[2], rates.Nf);
}

Contributions contributionsOn(Currency amount, const Pay& pay) {
    const Currency cpStato = percentOf(amount, pay.AliCpStato);
    const Currency irap = percentOf(amount, pay.AliIrap);
    const Currency cpDip = percentOf(amount, pay.AliCpDip);
    const Currency fonCre = percentOf(amount, pay.AliFonCre);
    return {cents(cpStato), cents(irap), cents(cpStato + irap), cents(cpDip), cents(fonCre), cents(cpDip + fonCre)};
}

}  // namespace vorbano
