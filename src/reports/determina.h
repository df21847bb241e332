#pragma once

// "LIQUIDAZIONE PER DETERMINAZIONE": the act by which the office liquidates the overtime of one period, or of all.

#include "reports/overtime_document.h"

namespace vorbano {

/// What stands for "Tutti" where a period from 1 to 5 is asked for.
inline constexpr int allPeriods = 0;

/// Layout and title. Of one period they go by its number; of all, by how many the election has.
[[nodiscard]] PrintJob determinaJob(int period, LatePeriods late);

/// Fills the tables, shows the preview, clears the tables. Every employee is in the tables whatever `period` says: the
/// layout chooses what it shows. Writes no record file.
[[nodiscard]] Result<> printDetermina(const Workplace& desk, const Election& election, LatePeriods late, int period,
                                      const Heading& heading);

}  // namespace vorbano
