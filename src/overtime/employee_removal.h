#pragma once

// Taking an employee out of an election.

#include <functional>

#include "overtime/staff.h"

namespace vorbano {

/// What the removal stores.
struct Removal {
    int number = 0;           ///< record of the employee, from 1
    int recordsBefore = 0;    ///< records of the file when the employee was chosen; 0: not known
    int employeesLeft = 0;    ///< `txtNumDipD`
    ElectionFigures figures;  ///< after the removal; nothing for a period that is not in use
};
/// `cmdElimina` after the question: rewrites the employees without the one, the files of the late periods in use in
/// step, and the first 62 bytes of Meirin.vbn (deliberately: INPS and the second INAIL amount do not survive a
/// removal). All companions are on disk before the first takes its place. Given again after a failure or a stop half
/// way it ends what was begun; when that was done already, which `recordsBefore` tells, it removes nobody else.
/// `notFound` when there is no such employee.
[[nodiscard]] Result<> removeEmployee(FileSystem& files, const Election& election, const LateInUse& late,
                                      const Removal& removal);

/// What became of the traces of a removal that did not come to its end.
enum class Settled : std::uint8_t {
    nothing,    ///< there were none
    discarded,  ///< no file had changed: the companions are gone, the employee is still there
    finished,   ///< the employee was gone already: the other files have followed
};
/// To be called before the files of an election are worked on (`searchElection` does).
[[nodiscard]] Result<Settled> settleRemoval(FileSystem& files, const Election& election);

/// The rewrite of all employees in one step, through Reverse.vbn; `change(number, record)` as in `rewrite`. Settles a
/// removal first, since the companion is the one by which an interrupted removal is told.
[[nodiscard]] Result<> rewriteEmployees(FileSystem& files, const Election& election,
                                        const std::function<bool(int, EmployeeRecord&)>& change);

}  // namespace vorbano
