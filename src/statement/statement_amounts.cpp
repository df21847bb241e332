#include "statement/statement_amounts.h"

#include "statement/sharing.h"

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

Currency fiveSixths(Currency amount) { return partOf(amount, fiveOfSix); }

Currency partOfStato(const StatementAmounts& amounts) {
    Currency sum = amounts.postali + amounts.cabine;
    for (const auto line : dividedLines) sum += fiveSixths(amounts.*line);
    return sum;
}

std::string_view differenceCaption(Currency due, Currency advances) {
    return advances <= due ? "Differenza a credito" : "Differenza a debito";
}

}  // namespace vorbano
