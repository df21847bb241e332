#pragma once

// From the lines of a statement to its record and back, by type of election.

#include "base/result.h"
#include "records/statement_records.h"
#include "statement/statement_amounts.h"
#include "statement/statement_terms.h"
#include "storage/file_system.h"

namespace vorbano {

/// Which parts are typed.
struct TypedParts {
    bool printed = false;  ///< `txtTotStato` is enabled
    bool postal = false;   ///< `txtCartRegione` is enabled
};

/// `before` is the record as it stands (zeros in a first save): what the type does not use stays as it is there.
[[nodiscard]] RendiRecord recordOf(const StatementTerms& terms, const StatementAmounts& amounts,
                                   const TypedParts& typed, const RendiRecord& before);
/// The lines as they were saved. What the type keeps in other files, or nowhere, is 0.
[[nodiscard]] StatementAmounts amountsOf(const StatementTerms& terms, const RendiRecord& record);

/// A statement with what its two small files hold; those that the type does not use are not opened.
struct StoredStatement {
    StatementAmounts amounts;
    bool printedTyped = false;  ///< the parts of the printed matter were typed
    bool postalTyped = false;   ///< and those of the postal expenses
};
/// Record 1 of Rendi.vbn, DivSt.vbn, Tprov.vbn; `notFound` when the election has no statement. Small files that are
/// empty leave their amounts at 0.
[[nodiscard]] Result<StoredStatement> readStatement(FileSystem& files, const Election& election,
                                                    const StatementTerms& terms);
/// Whether the election has a statement. `missingFolder` when it is not there.
[[nodiscard]] Result<bool> hasStatement(FileSystem& files, const Election& election);
/// Overwrites record 1 of Rendi.vbn, then the small files (`DivStamp`, `majormis`, `TotProv`) as the type and what is
/// typed ask for. Given again after a failure it stores all.
[[nodiscard]] Result<> storeStatement(FileSystem& files, const Election& election, const StatementTerms& terms,
                                      const StatementAmounts& amounts, const TypedParts& typed);

}  // namespace vorbano
