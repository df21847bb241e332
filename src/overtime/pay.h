#pragma once

// What executed hours are paid. Every amount is rounded to cents as it is computed (first held to 1/10,000, half to
// even, then to cents, half away from zero), so sums are sums of rounded amounts.

#include <array>
#include <optional>
#include <string_view>

#include "records/overtime_records.h"

namespace vorbano {

/// The four percentages that are kept with every employee.
struct Percentages {
    Currency CpStato;  ///< `Label37`, social contributions of the body
    Currency Irap;     ///< `Label38`
    Currency CpDip;    ///< `Label43`, social contributions of the employee
    Currency FonCre;   ///< `Label47`, credit fund
};

/// Whole hours by kind.
using Hours = std::array<int, hourKinds>;

/// What the hours are paid at the three rates: each product rounded, then summed.
[[nodiscard]] Currency dueFor(const Hours& hours, const std::array<Currency, hourKinds>& rates);

struct Amounts {
    Currency Dovuto;
    Currency CpStato, Irap;
    Currency TotaleSpesa;  ///< CpStato + Irap
    Currency Complessivo;  ///< Dovuto + TotaleSpesa
    Currency CpDip, FonCre;
    Currency TotaleContr;  ///< CpDip + FonCre
};
/// All amounts are zero when no hour was executed.
[[nodiscard]] Amounts liquidate(const Hours& executed, const std::array<Currency, hourKinds>& rates,
                                const Percentages& percentages);

/// A rate as typed, held to two decimals; nothing when the text is no number.
[[nodiscard]] std::optional<Currency> rateFrom(std::string_view text);

}  // namespace vorbano
