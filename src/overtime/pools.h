#pragma once

// Pools of hours and limits: from the size of the staff and the dates of a period follow how many hours the staff and
// each employee may be authorised. Pure rules; all figures are whole hours unless told otherwise.

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "platform/desktop.h"
#include "storage/election.h"

namespace vorbano {

/// What a field of hours takes.
inline constexpr int hourDigits = 4;

/// The periods that every election has.
inline constexpr std::size_t earlyPeriods = 3;

/// Hours per employee and month of a new authorisation: 60 up to five employees, 40 above.
[[nodiscard]] int monteOre(int employees);
/// The same when new dates are stored: 70 up to five employees, 50 above. Deliberately another pair.
[[nodiscard]] int monteOreOfNewDates(int employees);
/// The same for the copies that a removal makes: 70 when exactly five employees are left, otherwise as stored.
[[nodiscard]] int monteOreAfterRemoval(int employeesLeft, int stored);

/// Days that a period counts for, from its first to its last date (both "dd-mm-yy"), both included. A month has 30:
/// more count 30, and a period that begins in February counts 30 from its 28th day on, wherever it ends; only the month
/// of the first date decides. Nothing when either is no date.
[[nodiscard]] std::optional<int> countedDays(std::string_view from, std::string_view to);

/// What a period allows.
struct PeriodFigures {
    int limit = 0;    ///< "Limite massimo individuale", absolute, per employee
    int pool = 0;     ///< "mensile", for the whole staff
    int average = 0;  ///< "medio", per employee

    friend bool operator==(const PeriodFigures&, const PeriodFigures&) = default;
};
/// `period` 1 to 5: the absolute limit deliberately takes 60 hours a month for the first three and 70 for the others.
/// The pool is rounded half away from zero, the average half to even.
[[nodiscard]] PeriodFigures periodFigures(int period, int days, int monteOre, int employees);

/// Which screen asks: they deliberately take different hours a month for the absolute limit.
enum class LimitRule : std::uint8_t {
    authorisation,  ///< authorisation and liquidation: 60 for periods 1 to 3, 70 for 4 and 5
    dates,          ///< changes of dates: 70 for elections before 2014, 60 from then on
    removal,        ///< removal of an employee: as for dates, but always 70 for periods 4 and 5
};
/// Hours a month of the absolute limit of a period, 1 to 5. `yearOfCentury` as `Election::yearOfCentury`.
[[nodiscard]] int limitByMonth(LimitRule rule, int period, int yearOfCentury);

/// The two dates of a period as a field or a record holds them.
struct PeriodSpan {
    std::string from;  ///< "dd-mm-yy", or the excluded mark
    std::string to;
    /// Both dates hold the excluded mark.
    [[nodiscard]] bool isExcluded() const;
};
/// By period from 0; nothing for a period that the election does not have on the screen that asks.
using ElectionSpans = std::array<std::optional<PeriodSpan>, maxPeriods>;
/// By period from 0; zeros for an excluded period, nothing for one that is not there or whose dates are no dates.
using ElectionFigures = std::array<std::optional<PeriodFigures>, maxPeriods>;

/// What binds all periods of an election alike.
struct PoolTerms {
    LimitRule rule = LimitRule::authorisation;
    int yearOfCentury = 0;
    int monteOre = 0;  ///< hours per employee and month
    int employees = 0;
};
[[nodiscard]] ElectionFigures electionFigures(const ElectionSpans& spans, const PoolTerms& terms);
/// `Globo`: the sum of the pools of all periods that are there.
[[nodiscard]] std::int64_t sumOfPools(const ElectionFigures& figures);

/// What becomes of the hours of an employee in a period.
enum class Verdict : std::uint8_t {
    accepted,  ///< the hours stand
    noticed,   ///< the hours stand, and the clerk is told that they are above the average
    refused,   ///< the clerk must change them
};
struct Judgement {
    Verdict verdict = Verdict::accepted;
    std::optional<Message> message;
};
/// At authorisation. `hours`: the sum of the employee's three kinds; `used`: the hours of all stored employees and
/// these.
[[nodiscard]] Judgement judgeHours(int hours, int used, const PeriodFigures& figures);

/// On the liquidation screen, which deliberately asks in another order: individual limit, average (a notice while the
/// pool is not used up), average and pool together, pool.
[[nodiscard]] Judgement judgeCorrectedHours(int hours, int used, const PeriodFigures& figures);
/// Authorised hours are corrected below those already paid; nothing when they are not.
[[nodiscard]] std::optional<Message> authorisedBelowPaid(std::int64_t authorised, std::int64_t paid);
/// More hours paid than authorised, at the total of the period; nothing when there are not.
[[nodiscard]] std::optional<Message> paidAboveAuthorised(std::int64_t paid, std::int64_t authorised);
/// The same, found on leaving the period's panel.
[[nodiscard]] std::optional<Message> paidAboveAuthorisedOnLeaving(std::int64_t paid, std::int64_t authorised);

/// More hours used than the pools of the election hold: a warning that stops nothing.
[[nodiscard]] Message poolExceeded();

}  // namespace vorbano
