#pragma once

// The amounts of a statement of costs and what is computed from them. Amounts are in cents, as a field shows them.

#include <cstdint>
#include <string_view>

#include "storage/currency.h"

namespace vorbano {

/// The lines of a statement, under the names that the office gives them.
struct StatementAmounts {
    Currency onorari;
    Currency straordinario;
    Currency speciali;
    Currency carico;   ///< overtime or other expense of the first body
    Currency carico2;  ///< overtime of the second body
    Currency indennita;
    Currency magMis;  ///< "Maggiorazione"
    Currency stampanti;
    Currency totStato, totComune, totProv;  ///< parts of the printed matter
    Currency trasporti;
    Currency disciplina;
    Currency tempoDeterminato;        ///< `Text1`
    Currency postali;                 ///< `txtAssunzioni`, whose name is not what it holds
    Currency cartRegione, cartStato;  ///< parts of the postal expenses
    Currency cabine;                  ///< `txtNecessità`
    Currency missioni;
    Currency totale;
    Currency acconti;
    Currency differenza;
};

/// The sum of the lines. The parts of a line and the "Maggiorazione" say how a line divides and add nothing; the
/// overtime of the second body adds only where there is one.
[[nodiscard]] Currency totalOf(const StatementAmounts& amounts, bool hasSecondBody);

/// Five sixths, to cents, half away from zero: 0,03 gives 0,03 (0,025) and 0,09 gives 0,08 (0,075).
[[nodiscard]] Currency fiveSixths(Currency amount);
/// What the Stato pays of the referendum of 12-06-22: five sixths of ten lines, each rounded by itself, with the postal
/// expenses and the booths whole.
[[nodiscard]] Currency partOfStato(const StatementAmounts& amounts);

/// Caption of the difference. Advances that are equal to what is due are a credit.
[[nodiscard]] std::string_view differenceCaption(Currency due, Currency advances);

}  // namespace vorbano
