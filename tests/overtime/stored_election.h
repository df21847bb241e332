#pragma once

// Elections laid on a disk in memory, for the commands that change what is stored. Employee n is told from the others
// by every number it has.

#include <gmock/gmock.h>

#include <array>
#include <map>
#include <string>
#include <vector>

#include "overtime/staff.h"
#include "records/overtime_records.h"
#include "records/statement_records.h"
#include "storage/memory_file_system.h"
#include "support/bytes.h"
#include "support/cent.h"
#include "support/laid_out_records.h"
#include "support/results.h"

namespace vorbano::test {

/// Three periods, the third left out.
inline const Election europee{"Europee", "09-06-24"};
/// Before 2014: five periods on every screen.
inline const Election fivePeriods{"Europee_Comunali", "09-06-13"};
inline constexpr LateInUse noLate = {false, false};
inline constexpr LateInUse bothLate = {true, true};

[[nodiscard]] inline std::string pathIn(const Election& election, std::string_view name) {
    return election.folder().valueOr("(no folder)") + "/" + std::string(name);
}
[[nodiscard]] inline std::string employeesOf(const Election& election) {
    return pathIn(election, election.date + ".vbn");
}

/// The pay of employee n: 12,01 an hour and so on, and amounts that are no sums of each other.
[[nodiscard]] inline Pay payOf(int n) {
    Pay pay;
    pay.rates = {cent(1200 + n), cent(1500 + n), cent(1700 + n)};
    pay.Dovuto = cent(10000 + n);
    pay.AliCpStato = cent(2380);
    pay.CpStato = cent(2000 + n);
    pay.AliIrap = cent(850);
    pay.Irap = cent(800 + n);
    pay.TotaleSpesa = cent(2800 + 2 * n);
    pay.AliCpDip = cent(880);
    pay.CpDip = cent(900 + n);
    pay.AliFonCre = cent(35);
    pay.FonCre = cent(30 + n);
    pay.TotaleContr = cent(930 + 2 * n);
    return pay;
}

/// Employee n of `count`: n + 9, 4, 2 hours authorised in the first period and 5, 3, n in the second; 3, 2, 1 and 2, 1,
/// 0 paid, 9 in all; 9 n hours used up to this one.
[[nodiscard]] inline EmployeeRecord employeeOf(int n, int count) {
    const auto whole = [](int number) { return static_cast<std::int16_t>(number); };
    EmployeeRecord record{};
    record.pools = {.MonteOre = 40,
                    .MoUtil = whole(9 * n),
                    .MoGlob = whole(40 * count),
                    .Globo = 373,
                    .SonoDip = whole(n),
                    .NumDip = whole(count)};
    record.name = "DIPENDENTE " + std::to_string(n);
    record.periods[0] = {.from = Text<8>("15-04-24"),
                         .to = Text<8>("14-05-24"),
                         .authorised = {whole(n + 9), 4, 2},
                         .paid = {3, 2, 1},
                         .totalPaid = 6};
    record.periods[1] = {.from = Text<8>("15-05-24"),
                         .to = Text<8>("24-05-24"),
                         .authorised = {5, 3, whole(n)},
                         .paid = {2, 1, 0},
                         .totalPaid = 3};
    record.periods[2].from = "//";
    record.periods[2].to = "//";
    record.totAut = whole(2 * n + 23);
    record.executed = {5, 3, 1};
    record.totEseg = 9;
    record.lblCat = "G    B6";
    record.lblCat2 = "-";
    record.pay = payOf(n);
    return record;
}

/// Its fourth (0) or fifth (1) period: 7 + late, n, 1 hours authorised and 1, 0, 1 paid.
[[nodiscard]] inline LatePeriodRecord lateOf(int n, int count, int late) {
    const EmployeeRecord employee = employeeOf(n, count);
    LatePeriodRecord record{};
    record.pools = employee.pools;
    record.name = employee.name;
    record.from = late == 0 ? "25-05-13" : "03-06-13";
    record.to = late == 0 ? "02-06-13" : "12-06-13";
    record.authorised = {static_cast<std::int16_t>(7 + late), static_cast<std::int16_t>(n), 1};
    record.paid = {1, 0, 1};
    record.totalPaid = 2;
    record.totalAuthorised = employee.totAut;
    record.executed = employee.executed;
    record.totalExecuted = employee.totEseg;
    record.lblCat = employee.lblCat;
    record.lblCat2 = employee.lblCat2;
    record.pay = employee.pay;
    return record;
}

/// The records of all employees from 1 to `count`.
template <class Make>
[[nodiscard]] std::string recordsUpTo(int count, const Make& make) {
    std::string bytes;
    for (int n = 1; n <= count; ++n) bytes += bytesOf(make(n));
    return bytes;
}
[[nodiscard]] inline std::string employeesBytes(int count) {
    return recordsUpTo(count, [&](int n) { return employeeOf(n, count); });
}
[[nodiscard]] inline std::string lateBytes(int count, int late) {
    return recordsUpTo(count, [&](int n) { return lateOf(n, count, late); });
}

/// The overtime line is out of step, the total 1.000,00 more than it, the advances 1.500,00.
[[nodiscard]] inline RendiRecord statement() {
    RendiRecord record{};
    record.Onorari = cent(100'000);
    record.Straordinario = cent(12'345);
    record.Totale = cent(112'345);
    record.Acconti = cent(150'000);
    record.Differenza = cent(-37'655);
    record.Necessita = cent(7);
    return record;
}

/// Lays an election of `count` employees with limits, acts and a statement; the old one with its late periods.
inline void layElection(FileSystem& files, const Election& election, int count) {
    EXPECT_TRUE(lay(files, employeesOf(election), employeesBytes(count)));
    EXPECT_TRUE(lay(files, pathIn(election, meirinFile), meirinBytes()));
    EXPECT_TRUE(lay(files, pathIn(election, duedateFile), duedateBytes()));
    EXPECT_TRUE(lay(files, pathIn(election, rendiFile), bytesOf(statement())));
    if (election.date != fivePeriods.date) return;
    EXPECT_TRUE(lay(files, pathIn(election, quartumFile), lateBytes(count, 0)));
    EXPECT_TRUE(lay(files, pathIn(election, pentiumFile), lateBytes(count, 1)));
}

template <class Record>
[[nodiscard]] std::vector<Record> recordsIn(FileSystem& files, const std::string& path) {
    const std::string content = contentOf(files, path);
    EXPECT_EQ(content.size() % sizeof(Record), 0U) << path;
    std::vector<Record> records;
    for (std::size_t at = 0; at + sizeof(Record) <= content.size(); at += sizeof(Record))
        records.push_back(recordFrom<Record>(std::string_view(content).substr(at, sizeof(Record))));
    return records;
}
[[nodiscard]] inline std::vector<EmployeeRecord> staffOf(FileSystem& files, const Election& election) {
    return recordsIn<EmployeeRecord>(files, employeesOf(election));
}

/// All files of an election's folder by name.
[[nodiscard]] inline std::map<std::string, std::string> filesOf(FileSystem& files, const Election& election) {
    std::map<std::string, std::string> contents;
    const auto entries = files.list(election.folder().valueOr(""));
    EXPECT_THAT(entries, Succeeds());
    if (!entries) return contents;
    for (const Entry& each : *entries) contents[each.name] = contentOf(files, pathIn(election, each.name));
    return contents;
}

}  // namespace vorbano::test
