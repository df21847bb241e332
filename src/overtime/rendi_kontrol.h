#pragma once

// Keeps the overtime line of the statement of costs in step with the employees after a correction.

#include "storage/election.h"

namespace vorbano {

/// The overtime of the election is the sum of `Dovuto`, `CpStato` and `Irap` of all employees and the INAIL amount of
/// Meirin.vbn (deliberately the first one only: the two others are shares of it). When the statement's overtime line
/// differs, it becomes that sum, the statement's total grows by the difference, and its difference is the new total
/// less the advances. Nothing is done without a statement. Deliberately the same for all types of election: for a
/// Politiche_Regionali, whose line holds only the common part, the shares of the two bodies come in again; for the
/// referendum of 12-06-22 the difference is taken from the whole total.
[[nodiscard]] Result<> RendiKontrol(FileSystem& files, const Election& election);
/// The same for an election with a fourth period: adds the amounts of Quartum.vbn, though they are copies of the
/// employees' totals and so count twice. Deliberately kept; elections before 2014 only.
[[nodiscard]] Result<> Rendikontrol2(FileSystem& files, const Election& election);

}  // namespace vorbano
