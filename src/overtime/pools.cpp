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

/// Hours a month of the absolute limit. The difference between the periods is intended.
constexpr int limitByMonth(int period) { return period <= 3 ? 60 : 70; }

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

/// The words, down to "delle" without a blank and the literal "diffmonte", are deliberately the office's own.
Judgement aboveAverageAndPool(const PeriodFigures& figures, std::int64_t excess) {
    return refused("Errore", "Le ore autorizzate superano non solo il limite medio mensile di " +
                                 number(figures.average) + " ore, ma anche il limite del monte ore mensile delle" +
                                 number(figures.pool) + " ore, di n." + number(excess) + " diffmonte " +
                                 "ore. Modificare i dati");
}

}  // namespace

int monteOre(int employees) { return employees <= smallStaff ? 60 : 40; }

std::optional<int> countedDays(std::string_view from, std::string_view to) {
    const auto first = parseDate(from);
    const auto between = daysBetween(from, to);
    if (!first || !between) return std::nullopt;
    const int days = *between + 1;
    const int fullMonth = first->month() == std::chrono::February ? 28 : daysInMonth;
    return days >= fullMonth ? daysInMonth : days;
}

PeriodFigures periodFigures(int period, int days, int monteOre, int employees) {
    return {.limit = thirtieth(Wide{days} * limitByMonth(period), Half::away),
            .pool = thirtieth(Wide{days} * monteOre * employees, Half::away),
            .average = thirtieth(Wide{days} * monteOre, Half::toEven)};
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
    if (overAverage > 0 && overPool > 0) return aboveAverageAndPool(figures, overPool);
    return {};
}

Message poolExceeded() {
    return {
        "E' Stato superato il monte ore! I dati verranno comunque inseriti e memorizzati. Dopo aver Finito di "
        "inserire i dati lanciare una stampa dal menu principale 'File'>'Stampa'>Compenso straordinario. Aprite "
        "poi la finestra dal menu principale 'Straordinario' > 'Modifica' per le rettifiche.",
        "Attenzione!", Icon::warning};
}

}  // namespace vorbano
