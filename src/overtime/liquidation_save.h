#pragma once

// Storing of an employee on the liquidation screen.

#include <array>
#include <string_view>

#include "overtime/staff.h"

namespace vorbano {

/// What the screen puts into the records of an employee. Pools and dates are not among it: they stay as stored.
struct Liquidation {
    struct Period {
        HoursByKind authorised;
        HoursByKind paid;
        Integer totalPaid;
    };
    Text<60> name;
    std::array<Period, maxPeriods> periods;
    Integer totAut;
    HoursByKind executed;
    Integer totEseg;
    Text<7> lblCat;
    Text<10> lblCat2;
    Pay pay;
};
/// As stored: what the screen starts from, so that a field that cannot be converted keeps its value.
[[nodiscard]] Liquidation liquidationOf(const StoredEmployee& employee);

/// `cmdSalva` as far as the employees go: stores employee `number`, whose `MoUtil` grows by the hours that `totEseg` is
/// above the stored total, as does that of every following employee; so it stays cumulative. A `MoUtil` beyond 16 bits
/// keeps its value. The employee file goes last and in one step, so the command can be given again after any failure
/// and counts nothing twice. `notFound` when there is no such employee.
[[nodiscard]] Result<> saveLiquidation(FileSystem& files, const Election& election, const LateInUse& late, int number,
                                       const Liquidation& values);

/// `cmdSalva2`: the name alone.
[[nodiscard]] Result<> storeEmployeeName(FileSystem& files, const Election& election, int number,
                                         std::string_view name);

}  // namespace vorbano
