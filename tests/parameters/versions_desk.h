#pragma once

// Both versions of the tariffs, of which the old one is in force, and elections to be rewritten.

#include <chrono>
#include <initializer_list>
#include <string>
#include <string_view>

#include "overtime/stored_election.h"
#include "parameters_desk.h"

namespace vorbano::test {

/// Row 7 has 7,01 7,02 7,03 in the old version and 7,51 7,52 7,53 in the new one.
inline int oldCents(int number, int kind) { return distinctCents(number, kind); }
inline int newCents(int number, int kind) { return distinctCents(number, kind) + 50; }

inline constexpr const char* insufficient = "Dati insufficienti";
inline constexpr const char* ofElections = "Tipo di elezioni";

/// The bytes of an employee of the grade with these rates and amounts, in cents; 25, 15 and 1 hours were executed.
[[nodiscard]] inline std::string employeeWith(std::string_view grade, std::initializer_list<int> pay) {
    std::string bytes = employeeBytes();
    bytes.replace(172, 7, padded(grade, 7));
    std::size_t at = 189;
    for (const int cents : pay) {
        bytes.replace(at, 8, amount(0, cents));
        at += 8;
    }
    return bytes;
}

// Of row 11, "G    B6". At the old rates: 25 x 11,01 + 15 x 11,02 + 11,03 = 451,58. At the new ones: 472,08, of which
// 23,80 % is 112,3550, 8,50 % is 40,1268 (together 152,4818), 8,80 % is 41,5430 and 0,35 % is 1,6523 (43,1953).
inline const std::string oldB6 =
    employeeWith("G    B6", {1101, 1102, 1103, 45'158, 2380, 10'748, 850, 3'838, 14'586, 880, 3'974, 35, 158, 4'132});
inline const std::string newB6 =
    employeeWith("G    B6", {1151, 1152, 1153, 47'208, 2380, 11'236, 850, 4'013, 15'248, 880, 4'154, 35, 165, 4'320});
// Of row 27, "C5", which was added later. Old: 25 x 27,01 + 15 x 27,02 + 27,03 = 1.107,58. New: 1.128,08, of which
// 268,4830, 95,8868 (364,3698), 99,2710 and 3,9483 (103,2193).
inline const std::string oldC5 =
    employeeWith("C5", {2701, 2702, 2703, 110'758, 2380, 26'360, 850, 9'414, 35'775, 880, 9'747, 35, 388, 10'134});
inline const std::string newC5 =
    employeeWith("C5", {2751, 2752, 2753, 112'808, 2380, 26'848, 850, 9'589, 36'437, 880, 9'927, 35, 395, 10'322});
/// Paid by neither version: 559,65, 133,20 and 47,57.
inline const std::string stranger = employeeBytes();

class VersionsDesk : public ParametriTest {
  protected:
    VersionsDesk() { desktop.setToday(std::chrono::year(2024) / 6 / 10); }

    const std::string inForce = tariffBytes("\\", oldCents);
    const std::string oldVersion = tariffBytes("\\", oldCents);
    const std::string newVersion = tariffBytes("/", newCents);

    void layVersions() {
        ASSERT_TRUE(lay(files, "Params/PmDip.dat", inForce));
        ASSERT_TRUE(lay(files, "Params/OldPmDip.dat", oldVersion));
        ASSERT_TRUE(lay(files, "Params/NewPmDip.dat", newVersion));
    }
    void openWithVersions() {
        layVersions();
        open();
    }
    void layEmployees(const std::string& bytes) {
        ASSERT_TRUE(lay(files, employeesOf(europee), bytes));
        ASSERT_TRUE(lay(files, pathIn(europee, meirinFile), meirinBytes()));
        ASSERT_TRUE(lay(files, pathIn(europee, rendiFile), bytesOf(statement())));
    }
    /// The election stays chosen when the box is cleared.
    void chooseElection() {
        tick("Check45");
        choose("Combo1", "Europee");
        choose("Combo2", "09-06-24");
        tick("Check45", false);
    }
    std::string employees() { return contentOf(files, employeesOf(europee)); }
    RendiRecord statementNow() { return recordFrom<RendiRecord>(contentOf(files, pathIn(europee, rendiFile))); }
};

}  // namespace vorbano::test
