#pragma once

// Employees as they are stored after a liquidation, for the tests of the adjustment.

#include <string>
#include <string_view>

#include "records/overtime_records.h"
#include "records/tariff_records.h"
#include "storage/numbers.h"
#include "support/bytes.h"

namespace vorbano::test {

/// An amount as the clerk writes it; a mistake in the test shows as a number that nobody expects.
[[nodiscard]] inline Currency euro(std::string_view text) { return toCurrency(text).value_or(Currency::fromUnits(-1)); }

/// Liquidated at 10,00, 11,50 and 13,00, with the percentages 23,80, 8,50, 8,80 and 0,35.
[[nodiscard]] inline EmployeeRecord liquidatedEmployee(std::string_view grade, HoursByKind executed,
                                                       std::string_view dovuto) {
    EmployeeRecord employee{};
    employee.pools.SonoDip = 7;
    employee.executed = executed;
    employee.lblCat = grade;
    employee.pay.rates = {euro("10,00"), euro("11,50"), euro("13,00")};
    employee.pay.Dovuto = euro(dovuto);
    employee.pay.AliCpStato = euro("23,80");
    employee.pay.AliIrap = euro("8,50");
    employee.pay.AliCpDip = euro("8,80");
    employee.pay.AliFonCre = euro("0,35");
    return employee;
}

[[nodiscard]] inline Rates ratesOf(std::string_view day, std::string_view fn, std::string_view nf) {
    return {euro(day), euro(fn), euro(nf)};
}

}  // namespace vorbano::test
