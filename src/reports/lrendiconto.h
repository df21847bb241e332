#pragma once

// "LIQUIDAZIONE PER RENDICONTO": the liquidation for the statement. The cost of a combined election is divided between
// its two bodies: the first (C) takes a share rounded to cents, the second (P) the exact remainder.

#include <string>

#include "reports/overtime_document.h"
#include "statement/sharing.h"

namespace vorbano {

/// What the first body bears.
struct BodyDivision {
    BodyPart pay;            ///< of the amount due, and of INAIL
    BodyPart contributions;  ///< of the contributions of the body, and of IRAP
};
/// Halves, but for one referendum whose two parts deliberately do not agree.
[[nodiscard]] BodyDivision divisionOf(const Election& election);

/// An amount between the two bodies.
struct BodyShares {
    Currency C;
    Currency P;
};
/// The first share is the exact fraction rounded once to cents, half away from zero, so the odd cent of a half is with
/// the first body: 100,01 is 50,01 and 50,00.
[[nodiscard]] BodyShares betweenBodies(Currency whole, BodyPart part);

/// What the body pays on the performed hours of one period alone, at the rates and percentages of the employee.
struct PeriodCharges {
    Currency CpStato;
    Currency Irap;
};
[[nodiscard]] PeriodCharges chargesOn(const PeriodBlock& period, const Pay& pay);

/// The layout of the kind of election. Only elections with a fourth period have layouts of their own; from 2014 on
/// there is none, and it is always the plain one.
[[nodiscard]] std::string lrendicontoLayout(std::string_view kind, bool fourthPeriod);

/// Fills the tables, shows the preview, clears the tables. Writes no record file.
[[nodiscard]] Result<> printLRendiconto(const Workplace& desk, const Election& election, LatePeriods late,
                                        const Heading& heading);

}  // namespace vorbano
