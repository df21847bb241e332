#pragma once

// What hours already stored come to at other rates, and the contributions on an amount at the percentages that were
// stored with the employee.

#include "records/overtime_records.h"
#include "records/tariff_records.h"

namespace vorbano {

/// Hours times rates, added up, with all four decimals of the rates.
[[nodiscard]] Currency priced(const HoursByKind& hours, const Rates& rates);

/// Contributions on an amount, each in cents.
struct Contributions {
    Currency CpStato;
    Currency Irap;
    Currency TotaleSpesa;
    Currency CpDip;
    Currency FonCre;
    Currency TotaleContr;
};
/// At the percentages of `pay`. Both totals are added up before their parts are held to cents, unlike those of the
/// liquidation, so a total can be a cent away from what its parts show. The amount may be negative.
[[nodiscard]] Contributions contributionsOn(Currency amount, const Pay& pay);

}  // namespace vorbano
