#include "statement/statement_amounts.h"

namespace vorbano {

namespace {

/// The lines that both sums have.
constexpr Currency StatementAmounts::*dividedLines[] = {
    &StatementAmounts::straordinario, &StatementAmounts::onorari,    &StatementAmounts::speciali,
    &StatementAmounts::carico,        &StatementAmounts::indennita,  &StatementAmounts::stampanti,
    &StatementAmounts::trasporti,     &StatementAmounts::disciplina, &StatementAmounts::tempoDeterminato,
    &StatementAmounts::missioni,
};

}  // namespace

Currency totalOf(const StatementAmounts& amounts, bool hasSecondBody) {
    Currency sum = amounts.postali + amounts.cabine;
    for (const auto line : dividedLines) sum += amounts.*line;
    return hasSecondBody ? sum + amounts.carico2 : sum;
}

Currency fiveSixths(Currency amount) {
    constexpr std::int64_t unitsInCent = 100;
    constexpr std::int64_t six = 6 * unitsInCent;
    const std::int64_t units = amount.units();
    // Whole sixths first, so that no amount on file can run over.
    const std::int64_t rest = units % six * 5;
    const std::int64_t half = rest < 0 ? -six / 2 : six / 2;
    return Currency::fromUnits((units / six * 5 + (rest + half) / six) * unitsInCent);
}

Currency partOfStato(const StatementAmounts& amounts) {
    Currency sum = amounts.postali + amounts.cabine;
    for (const auto line : dividedLines) sum += fiveSixths(amounts.*line);
    return sum;
}

std::string_view differenceCaption(Currency due, Currency advances) {
    return advances <= due ? "Differenza a credito" : "Differenza a debito";
}

}  // namespace vorbano
