#pragma once

// "IMPEGNO DI SPESA": what the authorised hours of an election will cost.

#include "reports/overtime_document.h"

namespace vorbano {

/// What the authorised hours of one employee cost, all periods together. Unlike the amounts that the liquidation
/// stores, the whole includes what the employee is paid.
struct Commitment {
    Currency Dovuto;
    Currency CpStato, Irap;
    Currency TotaleSpesa;    ///< Dovuto + CpStato + Irap
    Currency CpDip, FonCre;  ///< held to 1/10,000 and deliberately not rounded to cents
};
/// At the rates and percentages kept with the employee.
[[nodiscard]] Commitment commitmentFor(const std::array<PeriodBlock, maxPeriods>& periods, const Pay& pay);

/// Fills the tables, shows the preview, clears the tables. Writes no record file.
[[nodiscard]] Result<> printImpegno(const Workplace& desk, const Election& election, LatePeriods late,
                                    const Heading& heading);

}  // namespace vorbano
