#pragma once

// The last step of every document: its rows leave the staging tables, by a routine of its own.

#include <cstdint>

#include "platform/database.h"

namespace vorbano {

/// The routines by their names. They do not clear alike, which is deliberate.
enum class Clearing : std::uint8_t {
    Cancella1,
    Cancella2,
    Cancella3,
    Cancella4,
    Cancella5,
    Cancella6,
    Cancella7,
    Deletebase,  ///< of the payments: all rows of the tables of their list
    VedoElenco,  ///< of the payments: all rows of `Tabella11`
    Anteprimac,  ///< of the payments of an adjustment: the first row of `Tabella5`, all rows of `Tabella11`
    none,        ///< the rows stay for the next document
};

/// Clears what `routine` clears. `dipendenti` is the number of employees that record 1 of the election gives:
/// `Cancella1`, `Cancella2` and `Cancella7` delete so many rows of the employee table and leave a surplus for the next
/// document. A table that cannot be cleared does not keep the others from it; the first failure is given back.
[[nodiscard]] Result<> clearTables(Database& staging, Clearing routine, int dipendenti);

}  // namespace vorbano
