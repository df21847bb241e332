#pragma once

// What an adjustment of rates adds to the statement of costs: in the statement itself, and in a document of its own.

#include "reports/document.h"
#include "reports/heading.h"
#include "storage/election.h"

namespace vorbano {

/// `Conguaglio`: the pay at the new rates with contributions and IRAP, over Congs.vbn. Of the two joint elections that
/// have the first period apart, what Congs1.vbn says of it (`ConguaglioStato`) is the State's, and the rest is shared:
/// the first share rounded, the second what remains. Every other election has the whole amount only.
[[nodiscard]] Result<> Conguaglio(FileSystem& files, const Election& election, Row& statement);

/// `RiservaConguaglio`: what is paid more, with its charges, over Congs.vbn, and the INAIL of Meirinc.vbn. The share of
/// two thirds is held to 1/10,000 and not to cents; a statement shared otherwise does not show it.
[[nodiscard]] Result<> RiservaConguaglio(FileSystem& files, const Election& election, Row& statement);

/// Adds to the statement of an election that was adjusted what the one or the other says, by kind.
[[nodiscard]] Result<> addAdjustment(FileSystem& files, const Election& election, Row& statement);

/// `cmdCongRend`: fills the tables, shows the preview, clears the tables. Writes no record file.
[[nodiscard]] Result<> printCongRend(const Workplace& desk, const Election& election, const Heading& heading);

}  // namespace vorbano
