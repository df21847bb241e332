#pragma once

// Pools of hours and limits: from the size of the staff and the dates of a period follow how many hours the staff and
// each employee may be authorised. Pure rules; all figures are whole hours unless told otherwise.

#include <cstdint>
#include <optional>
#include <string_view>

#include "platform/desktop.h"

namespace vorbano {

/// Hours per employee and month: 60 up to five employees, 40 above.
[[nodiscard]] int monteOre(int employees);

/// Days that a period counts for, from its first to its last date (both "dd-mm-yy"), both included. A month has 30:
/// more count 30, and a period that begins in February counts 30 from its 28th day on, wherever it ends; only the month
/// of the first date decides. Nothing when either is no date.
[[nodiscard]] std::optional<int> countedDays(std::string_view from, std::string_view to);

/// What a period allows.
struct PeriodFigures {
    int limit = 0;    ///< "Limite massimo individuale", absolute, per employee
    int pool = 0;     ///< "mensile", for the whole staff
    int average = 0;  ///< "medio", per employee
};
/// `period` 1 to 5: the absolute limit deliberately takes 60 hours a month for the first three and 70 for the others.
/// The pool is rounded half away from zero, the average half to even.
[[nodiscard]] PeriodFigures periodFigures(int period, int days, int monteOre, int employees);

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
/// `hours`: the sum of the employee's three kinds; `used`: the hours of all stored employees and these.
[[nodiscard]] Judgement judgeHours(int hours, int used, const PeriodFigures& figures);

/// More hours used than the pools of the election hold: a warning that stops nothing.
[[nodiscard]] Message poolExceeded();

}  // namespace vorbano
