#pragma once

// What the system already knows of the costs of an election: the fees of the members of the stations, and the overtime
// with its charges. Files that are not there yet are made empty and give 0; a missing folder of the election fails.

#include <array>

#include "base/result.h"
#include "records/overtime_records.h"
#include "storage/election.h"

namespace vorbano {

/// Fees of the members and substitutes of both rounds, in the normal stations and in the special ones. The run-off has
/// readers only.
[[nodiscard]] Result<Currency> onorari(FileSystem& files, const Election& election);
[[nodiscard]] Result<Currency> Speciali(FileSystem& files, const Election& election);

/// What the paid hours of a period (1 to 3) cost: the hours of each kind at their rate, and the first and second
/// percentage of the record on their sum. Each product is rounded to cents before it is added.
[[nodiscard]] Currency costOfPeriod(const EmployeeRecord& employee, int period);

struct OvertimeCost {
    Currency whole;                   ///< due amounts, contributions, IRAP and INAIL
    std::array<Currency, 2> periods;  ///< `straordinari2`, `Straordinari4`: cost of periods 1 and 2
    std::array<Currency, 2> inail;    ///< of each of them
};
/// Reads the employees (as many as the first record tells, or as there are) and Meirin.vbn.
[[nodiscard]] Result<OvertimeCost> readOvertimeCost(FileSystem& files, const Election& election);

/// The overtime of two bodies, and what is left for both. The rest can be some cents, or negative: it is not mended.
struct DividedOvertime {
    Currency first;
    Currency second;
    Currency common;
};
[[nodiscard]] DividedOvertime divideByPeriod(const OvertimeCost& cost);

}  // namespace vorbano
