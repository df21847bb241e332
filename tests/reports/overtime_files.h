#pragma once

// The record files of an election's overtime, laid out byte by byte, and three employees whose amounts are worked out
// by hand in the tests.

#include <array>
#include <string>
#include <string_view>
#include <vector>

#include "support/bytes.h"

namespace vorbano::test {

/// Hours of one kind each: weekday, night or holiday, night holiday.
using ThreeHours = std::array<int, 3>;

struct LaidPeriod {
    std::string from;
    std::string to;
    ThreeHours authorised{};
    ThreeHours paid{};
    int totalPaid = 0;
};

/// Amounts and rates in cents.
struct LaidEmployee {
    int number = 1;
    std::string name;
    std::string grade;
    std::array<int, 3> rates{};
    std::array<LaidPeriod, 5> periods{};
    int totaleContr = 0;
    int dovuto = 100;
    int cpStato = 200;
    int irap = 300;
};

inline std::string threeIntegers(const ThreeHours& hours) { return le16(hours[0]) + le16(hours[1]) + le16(hours[2]); }

inline std::string cents64(int cents) { return le64(std::int64_t{cents} * 100); }

/// 30 bytes: dates, hours by kind, the total paid.
inline std::string periodBytes(const LaidPeriod& period) {
    return padded(period.from, 8) + padded(period.to, 8) + threeIntegers(period.authorised) +
           threeIntegers(period.paid) + le16(period.totalPaid);
}

/// Hours per employee and month 70, used 9, of the staff 210, of the periods 250; employee `number` of `dipendenti`.
inline std::string poolBytes(int number, int dipendenti) {
    return le16(70) + le16(9) + le16(210) + le16(250) + le16(number) + le16(dipendenti);
}

/// The amounts are those of a liquidation (1,00 due unless the employee says otherwise, and so on), which no commitment
/// may take over; the percentages are 23,80, 8,50, 8,85 and 0,35.
inline std::string payBytes(const LaidEmployee& employee) {
    return cents64(employee.rates[0]) + cents64(employee.rates[1]) + cents64(employee.rates[2]) +
           cents64(employee.dovuto) + amount(23, 80) + cents64(employee.cpStato) + amount(8, 50) +
           cents64(employee.irap) + amount(5) + amount(8, 85) + amount(6) + amount(0, 35) + amount(7) +
           cents64(employee.totaleContr);
}

/// 301 bytes.
inline std::string employeeBytes(const LaidEmployee& employee, int dipendenti) {
    return poolBytes(employee.number, dipendenti) + padded(employee.name, 60) + periodBytes(employee.periods[0]) +
           periodBytes(employee.periods[1]) + periodBytes(employee.periods[2]) + le16(41) + le16(31) + le16(21) +
           le16(11) + le16(63) + padded(employee.grade, 7) + padded("-", 10) + payBytes(employee);
}

/// 241 bytes of Quartum.vbn (`period` 4) or Pentium.vbn (5).
inline std::string latePeriodBytes(const LaidEmployee& employee, int period, int dipendenti) {
    return poolBytes(employee.number, dipendenti) + padded(employee.name, 60) +
           periodBytes(employee.periods.at(static_cast<std::size_t>(period) - 1)) + le16(41) + le16(31) + le16(21) +
           le16(11) + le16(63) + padded(employee.grade, 7) + padded("-", 10) + payBytes(employee);
}

/// 86 bytes: IRPEF 111,11, INAIL 22,22 paid on 30-06-13, averages 11 to 13, pools 101 to 103, INAIL of the liquidation
/// 33,33 and 44,44.
inline std::string meirinBytes() {
    return amount(111, 11) + "30-06-13" + amount(22, 22) + le16(11) + le16(12) + le16(13) + le16(101) + le16(102) +
           le16(103) + le16(1) + le16(1) + le16(1) + le16(14) + le16(104) + le16(1) + amount(33, 33) + le16(15) +
           le16(105) + le16(1) + amount(0) + "        " + amount(44, 44);
}

inline std::vector<LaidEmployee> threeEmployees() {
    return {{1,
             "ROSSI MARIA",
             "C1",
             {1233, 1395, 1609},
             {{{"02-04-13", "30-04-13", {10, 5, 2}, {9, 4, 1}, 14},
               {"01-05-13", "26-05-13", {8, 4, 1}, {7, 3, 0}, 10},
               {"27-05-13", "31-05-13", {6, 0, 0}, {5, 0, 0}, 5},
               {"01-06-13", "10-06-13", {5, 3, 1}, {4, 2, 1}, 7},
               {"11-06-13", "15-06-13", {4, 2, 1}, {3, 2, 1}, 6}}},
             4321},
            {2,
             "VERDI GIUSEPPE",
             "G    B6",
             {1147, 1297, 1496},
             {{{"02-04-13", "30-04-13", {12, 6, 0}, {}, 0},
               {"01-05-13", "26-05-13", {9, 0, 3}, {}, 0},
               {"//", "//", {0, 0, 0}, {}, 0},
               {"01-06-13", "10-06-13", {7, 2, 0}, {}, 0},
               {"11-06-13", "15-06-13", {1, 1, 1}, {}, 0}}},
             0},
            {3,
             "BIANCHI NICCOL\xD2",  // with an accent, in code page 1252
             "D3",
             {1300, 1472, 1643},
             {{{"02-04-13", "30-04-13", {8, 4, 2}, {}, 0},
               {"01-05-13", "26-05-13", {4, 2, 1}, {}, 0},
               {"27-05-13", "31-05-13", {2, 1, 0}, {}, 0},
               {"01-06-13", "10-06-13", {4, 2, 1}, {}, 0},
               {"11-06-13", "15-06-13", {2, 1, 0}, {}, 0}}},
             0}};
}

/// Lays the overtime of an election with Ente.dat and Conprev.dat; with Quartum.vbn and Pentium.vbn as `periods` tells.
/// `dipendenti` 0 is the number of employees laid. False when a file could not be laid.
inline bool layOvertime(FileSystem& files, const std::string& kind, const std::string& date, int periods,
                        int dipendenti = 0, const std::vector<LaidEmployee>& employees = threeEmployees()) {
    const int told = dipendenti == 0 ? static_cast<int>(employees.size()) : dipendenti;
    const std::string folder = "Elezioni/" + kind + "/" + date + "/";
    std::string main;
    std::array<std::string, 2> late;
    for (const LaidEmployee& employee : employees) {
        main += employeeBytes(employee, told);
        late[0] += latePeriodBytes(employee, 4, told);
        late[1] += latePeriodBytes(employee, 5, told);
    }
    bool laid = lay(files, folder + date + ".vbn", main) && lay(files, folder + "Meirin.vbn", meirinBytes());
    if (periods > 3) laid = laid && lay(files, folder + "Quartum.vbn", late[0]);
    if (periods > 4) laid = laid && lay(files, folder + "Pentium.vbn", late[1]);
    return laid && lay(files, "Params/Ente.dat", padded("Pratofiorito", 60)) &&
           lay(files, "Params/Conprev.dat", amount(23, 80) + amount(8, 50) + amount(8, 85) + amount(0, 35));
}

}  // namespace vorbano::test
