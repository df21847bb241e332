#pragma once

// Storing of new dates of an election that is there already.

#include <string_view>

#include "overtime/staff.h"

namespace vorbano {

/// What "Salva modifiche" stores.
struct DateChange {
    ElectionSpans spans;      ///< new dates; nothing for a period that is not in use
    ElectionFigures figures;  ///< figures after the change, of the same periods
    int employees = 0;        ///< `txtNumDip`
};
/// Every employee takes the dates, `MonteOre` (70 or 50), `MoGlob` and `Globo`; the files of the late periods in
/// `spans` likewise, and their missing records are made when the period is not excluded; Meirin.vbn takes the figures.
/// Each file changes in one step and the employees come last, so after a failure the command can be given again.
[[nodiscard]] Result<> changeDates(FileSystem& files, const Election& election, const DateChange& change);

/// `cmdSalva2`: the dates of the two acts, "dd-mm-yy", in record 1 of Duedate.vbn.
[[nodiscard]] Result<> storeActDates(FileSystem& files, const Election& election, std::string_view decreto,
                                     std::string_view determina);

}  // namespace vorbano
