#pragma once

// "RENDICONTO": the statement of costs of an election, with the share of each body. It is the claim by which the
// municipality has its expenses back.

#include "reports/document.h"
#include "reports/heading.h"
#include "storage/election.h"

namespace vorbano {

/// Fills the tables, shows the preview, clears the tables. Writes no record file, and does nothing at all when the
/// election has no statement. `adjusted`: the election has an adjustment of rates, whose amounts the row then has too.
[[nodiscard]] Result<> printRendiconto(const Workplace& desk, const Election& election, const Heading& heading,
                                       bool adjusted = false);

}  // namespace vorbano
