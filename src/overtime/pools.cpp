#include "overtime/pools.h"

#include <algorithm>
#include <chrono>
#include <limits>
#include <string>

#include "storage/dates.h"

namespace vorbano {

namespace {

/// Wide enough for days times hours times employees, whatever was typed.
__extension__ typedef __int128 Wide;

constexpr int daysInMonth = 30;

/// Up to this size the staff is on the higher number of hours.
constexpr int smallStaff = 5;

enum class Half : std::uint8_t { toEven, away };

/// The thirtieth part of hours by month times days, to a whole number.
int thirtieth(Wide product, Half half) {
    const bool negative = product < 0;
    const Wide size = negative ? -product : product;
    Wide quotient = size / daysInMonth;
    const Wide twiceRest = size % daysInMonth * 2;
    const bool tieGoesUp = half == Half::away || quotient % 2 == 1;
    if (twiceRest > daysInMonth || (twiceRest == daysInMonth && tieGoesUp)) ++quotient;
    using Limits = std::numeric_limits<int>;
    return static_cast<int>(std::clamp<Wide>(negative ? -quotient : quotient, Limits::min(), Limits::max()));
}

/// The two figures that the absolute limit is taken from.
constexpr int lowerLimit = 60;
constexpr int higherLimit = 70;
/// Below this year the changes of dates and the removal take the higher limit.
constexpr int yearOfLowerLimit = 14;

PeriodFigures figuresOf(int limitHours, int days, int monteOre, int employees) {
    return {.limit = thirtieth(Wide{days} * limitHours, Half::away),
            .pool = thirtieth(Wide{days} * monteOre * employees, Half::away),
            .average = thirtieth(Wide{days} * monteOre, Half::toEven)};
}

std::string number(std::int64_t hours) { return std::to_string(hours); }

Judgement refused(std::string title, std::string text) {
    return {Verdict::refused, Message{std::move(text), std::move(title), Icon::error}};
}

Judgement abovePool(std::int64_t excess) {
    return refused("Errore",
                   "Le ore autorizzate superano il limite mensile di " + number(excess) + " ore. Modificare i dati");
}

Judgement aboveLimit(const PeriodFigures& figures, std::int64_t excess) {
    return refused("Ore autorizzate", "Le ore autorizzate superano il limite massimo individuale mensile (" +
                                          number(figures.limit) + " ore.), di " + number(excess) +
                                          " ore. Non possono essere autorizzate. Modificare i dati");
}

Judgement aboveAverage(const PeriodFigures& figures, std::int64_t excess) {
    return {Verdict::noticed,
            Message{"Le ore autorizzate superano il limite medio individuale mensile di " + number(excess) +
                        " ore. Possono essere autorizzate in quanto rientrano nel monte ore mensile e nel limite "
                        "massimo individuale delle " +
                        number(figures.limit) + " ore.",
                    "Ore autorizzate", Icon::information}};
}

/// The words, down to "delle" without a blank and, at authorisation only, the literal "diffmonte" before the last
/// "ore", are deliberately the office's own.
Judgement aboveAverageAndPool(const PeriodFigures& figures, std::int64_t excess, std::string_view beforeOre) {
    return refused("Errore", "Le ore autorizzate superano non solo il limite medio mensile di " +
                                 number(figures.average) + " ore, ma anche il limite del monte ore mensile delle" +
                                 number(figures.pool) + " ore, di n." + number(excess) + std::string(beforeOre) +
                                 "ore. Modificare i dati");
}

}  // namespace

int monteOre(int employees) { return employees <= smallStaff ? 60 : 40; }

int monteOreOfNewDates(int employees) { return employees <= smallStaff ? 70 : 50; }

int monteOreAfterRemoval(int employeesLeft, int stored) { return employeesLeft == smallStaff ? 70 : stored; }

std::optional<int> countedDays(std::string_view from, std::string_view to) {
    const auto first = parseDate(from);
    const auto between = daysBetween(from, to);
    if (!first || !between) return std::nullopt;
    const int days = *between + 1;
    const int fullMonth = first->month() == std::chrono::February ? 28 : daysInMonth;
    return days >= fullMonth ? daysInMonth : days;
}

int limitByMonth(LimitRule rule, int period, int yearOfCentury) {
    const bool late = period > static_cast<int>(earlyPeriods);
    if (rule == LimitRule::authorisation) return late ? higherLimit : lowerLimit;
    if (rule == LimitRule::removal && late) return higherLimit;
    return yearOfCentury < yearOfLowerLimit ? higherLimit : lowerLimit;
}

PeriodFigures periodFigures(int period, int days, int monteOre, int employees) {
    return figuresOf(limitByMonth(LimitRule::authorisation, period, 0), days, monteOre, employees);
}

bool PeriodSpan::isExcluded() const { return vorbano::isExcluded(from) && vorbano::isExcluded(to); }

ElectionFigures electionFigures(const ElectionSpans& spans, const PoolTerms& terms) {
    ElectionFigures figures;
    for (std::size_t at = 0; at < spans.size(); ++at) {
        if (!spans[at]) continue;
        if (spans[at]->isExcluded()) {
            figures[at] = PeriodFigures{};
            continue;
        }
        const auto days = countedDays(spans[at]->from, spans[at]->to);
        if (!days) continue;
        const int limitHours = limitByMonth(terms.rule, static_cast<int>(at) + 1, terms.yearOfCentury);
        figures[at] = figuresOf(limitHours, *days, terms.monteOre, terms.employees);
    }
    return figures;
}

std::int64_t sumOfPools(const ElectionFigures& figures) {
    std::int64_t sum = 0;
    for (const auto& period : figures) sum += period ? period->pool : 0;
    return sum;
}

Judgement judgeHours(int hours, int used, const PeriodFigures& figures) {
    const std::int64_t overPool = std::int64_t{used} - figures.pool;
    const std::int64_t overLimit = std::int64_t{hours} - figures.limit;
    const std::int64_t overAverage = std::int64_t{hours} - figures.average;
    if (overPool > 0) return abovePool(overPool);
    if (overLimit > 0) return aboveLimit(figures, overLimit);
    // With the pool used up to the last hour the hours stand and nothing is said.
    if (overAverage > 0 && overPool < 0) return aboveAverage(figures, overAverage);
    // Never reached: the first test already stops hours above the pool. It stands here deliberately, as the last of the
    // office's four checks, so that their list and their order can be read in one place.
    if (overAverage > 0 && overPool > 0) return aboveAverageAndPool(figures, overPool, " diffmonte ");
    return {};
}

Judgement judgeCorrectedHours(int hours, int used, const PeriodFigures& figures) {
    const std::int64_t overPool = std::int64_t{used} - figures.pool;
    const std::int64_t overLimit = std::int64_t{hours} - figures.limit;
    const std::int64_t overAverage = std::int64_t{hours} - figures.average;
    if (overLimit > 0) return aboveLimit(figures, overLimit);
    if (overAverage > 0 && overPool < 0) return aboveAverage(figures, overAverage);
    if (overAverage > 0 && overPool > 0) return aboveAverageAndPool(figures, overPool, "");
    if (overPool > 0) return abovePool(overPool);
    return {};
}

std::optional<Message> authorisedBelowPaid(std::int64_t authorised, std::int64_t paid) {
    if (paid <= authorised) return std::nullopt;
    return Message{"Le ore autorizzate sono inferiori a quelle liquidate di " + number(paid - authorised) +
                       " ore, modificare i dati",
                   "Errore!", Icon::error};
}

std::optional<Message> paidAboveAuthorised(std::int64_t paid, std::int64_t authorised) {
    if (paid <= authorised) return std::nullopt;
    return Message{
        "Attenzione, il numero delle ore fatte supera quelle autorizzate di " + number(paid - authorised) + " ore",
        "Liquidazione ore", Icon::warning};
}

std::optional<Message> paidAboveAuthorisedOnLeaving(std::int64_t paid, std::int64_t authorised) {
    if (paid <= authorised) return std::nullopt;
    return Message{"Le ore liquidate superano le ore autorizzate", "inserimento dati", Icon::warning};
}

Message poolExceeded() {
    return {
        "E' Stato superato il monte ore! I dati verranno comunque inseriti e memorizzati. Dopo aver Finito di "
        "inserire i dati lanciare una stampa dal menu principale 'File'>'Stampa'>Compenso straordinario. Aprite "
        "poi la finestra dal menu principale 'Straordinario' > 'Modifica' per le rettifiche.",
        "Attenzione!", Icon::warning};
}

}  // namespace vorbano
