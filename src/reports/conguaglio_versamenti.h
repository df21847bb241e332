#pragma once

// "CONTRIBUTI E RITENUTE CONGUAGLIO (Allegato A)": the list of the documents by which contributions and withholdings on
// the adjustment of an election are paid.

#include "reports/document.h"
#include "reports/heading.h"
#include "storage/election.h"

namespace vorbano {

/// A row for each record of Versumc.vbn, none of them a closing one, under the heading; shown or printed without a
/// title (versc.rpt), then cleared. Writes no record file, and unlike the list of the election it brings no document
/// into line with what is due: `cmdCongA` and `Anteprimac` ask for it alike.
[[nodiscard]] Result<> printContributiConguaglio(const Workplace& desk, const Election& election,
                                                 const Heading& heading,
                                                 Destination destination = Destination::preview);

}  // namespace vorbano
