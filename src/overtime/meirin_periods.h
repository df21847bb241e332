#pragma once

// The one record of Meirin.vbn by period. The figures of the five periods stand at places of their own in it.

#include <array>
#include <cstdint>
#include <functional>
#include <optional>

#include "overtime/pools.h"
#include "records/overtime_records.h"
#include "storage/election.h"

namespace vorbano {

/// What the record holds of a period.
struct MeirinPeriod {
    Integer average;  ///< individual average limit, hours
    Integer pool;     ///< monthly pool, hours
    Integer state;    ///< 0 authorisation, 1 liquidation
};
/// `period` 1 to 5.
[[nodiscard]] MeirinPeriod meirinPeriod(const MeirinRecord& record, int period);
/// Puts average and pool of the periods that are there into the record; a figure beyond 16 bits leaves what was there.
void setMeirinFigures(MeirinRecord& record, const ElectionFigures& figures);

/// In which the hours of a period can be changed.
enum class PeriodState : std::uint8_t { authorisation = 0, liquidation = 1 };
using PeriodChoice = std::array<bool, maxPeriods>;

/// Record 1 of the election's Meirin.vbn; zeros when it is empty.
[[nodiscard]] Result<MeirinRecord> readMeirin(FileSystem& files, const Election& election);
/// Reads it, lets `change` at it and writes it back.
[[nodiscard]] Result<> changeMeirin(FileSystem& files, const Election& election,
                                    const std::function<void(MeirinRecord&)>& change);
/// `cmdAttiva`, `cmdAttiva2`: sets the state of the chosen periods (from 0); all else stays.
[[nodiscard]] Result<> storePeriodStates(FileSystem& files, const Election& election, const PeriodChoice& chosen,
                                         PeriodState state);

/// The amounts that are entered once for an election, in cents.
struct ElectionAmounts {
    Currency irpef;
    Currency inail;
    Currency inailUno;
    Currency inailDue;
};
[[nodiscard]] ElectionAmounts electionAmounts(const MeirinRecord& record);
/// Each is rounded to cents; all else stays.
[[nodiscard]] Result<> storeElectionAmounts(FileSystem& files, const Election& election,
                                            const ElectionAmounts& amounts);

}  // namespace vorbano
