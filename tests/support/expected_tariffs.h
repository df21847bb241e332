#pragma once

// The rate table as it must stand on file, laid out by hand and apart from the program's own tables.

#include <array>
#include <cstddef>
#include <functional>
#include <string>
#include <string_view>

#include "support/bytes.h"

namespace vorbano::test {

struct ExpectedRow {
    std::string_view key;
    std::string_view grade;
    std::size_t gradeAt, gradeWidth, markAt, markWidth, dayAt, fnAt, nfAt;
};
inline constexpr std::array<ExpectedRow, 32> expectedRows = {{
    {"D5", "B8", 0, 15, 15, 15, 30, 38, 46},
    {"D4", "C6", 54, 15, 69, 15, 84, 92, 100},
    {"D3a", "D7", 108, 15, 123, 15, 138, 146, 154},
    {"D3b", "D3", 162, 10, 172, 10, 182, 190, 198},
    {"D2", "D2", 206, 10, 216, 10, 226, 234, 242},
    {"D1", "D1", 250, 10, 260, 10, 270, 278, 286},
    {"C4", "C4", 294, 10, 304, 10, 314, 322, 330},
    {"C3", "C3", 338, 10, 348, 10, 358, 366, 374},
    {"C2", "C2", 382, 10, 392, 10, 402, 410, 418},
    {"C1", "C1", 426, 10, 436, 10, 446, 454, 462},
    {"B6", "    G    B6", 470, 15, 485, 15, 500, 508, 516},
    {"B5", "    G    B5", 524, 15, 539, 15, 554, 562, 570},
    {"B4a", "    G    B4", 578, 15, 593, 15, 608, 616, 624},
    {"B3a", "    G    B3", 632, 15, 647, 15, 662, 670, 678},
    {"B4b", "B4", 686, 10, 696, 10, 706, 714, 722},
    {"B3b", "B3", 730, 10, 740, 10, 750, 758, 766},
    {"B2", "B2", 774, 10, 784, 10, 794, 802, 810},
    {"B1", "B1", 818, 10, 828, 10, 838, 846, 854},
    {"A4", "A4", 862, 10, 872, 10, 882, 890, 898},
    {"A3", "A3", 906, 10, 916, 10, 926, 934, 942},
    {"A2", "A2", 950, 10, 960, 10, 970, 978, 986},
    {"A1", "A1", 994, 10, 1004, 10, 1014, 1022, 1030},
    {"D6a", "A6", 1038, 15, 1053, 10, 1063, 1071, 1079},
    {"D6b", "D6", 1087, 10, 1097, 10, 1107, 1115, 1123},
    {"D5b", "D5", 1131, 10, 1141, 10, 1151, 1159, 1167},
    {"D4b", "D4", 1175, 10, 1185, 10, 1195, 1203, 1211},
    {"C5", "C5", 1219, 10, 1229, 10, 1239, 1247, 1255},
    {"B7a", "    G    B7", 1263, 15, 1278, 10, 1288, 1296, 1304},
    {"B7b", "B7", 1312, 10, 1322, 10, 1332, 1340, 1348},
    {"B6b", "B6", 1356, 10, 1366, 10, 1376, 1384, 1392},
    {"B5b", "B5", 1400, 10, 1410, 10, 1420, 1428, 1436},
    {"A5", "A5", 1444, 10, 1454, 10, 1464, 1472, 1480},
}};

/// A rate in whole cents, for row `number` (from 1) and `kind` 0 Day, 1 Fn, 2 Nf.
using CentsOf = std::function<int(int number, int kind)>;

/// Row 7 has the rates 7,01 7,02 7,03: every rate of the table is another one.
inline int distinctCents(int number, int kind) { return number * 100 + kind + 1; }
inline int noCents(int, int) { return 0; }

/// The bytes of the record: each field put at its offset.
inline std::string tariffBytes(std::string_view mark, const CentsOf& centsOf) {
    std::string bytes(1488, '?');
    const auto put = [&](std::size_t at, const std::string& field) { bytes.replace(at, field.size(), field); };
    for (int number = 1; number <= 32; ++number) {
        const ExpectedRow& row = expectedRows[static_cast<std::size_t>(number) - 1];
        put(row.gradeAt, padded(row.grade, row.gradeWidth));
        put(row.markAt, padded(mark, row.markWidth));
        put(row.dayAt, amount(0, centsOf(number, 0)));
        put(row.fnAt, amount(0, centsOf(number, 1)));
        put(row.nfAt, amount(0, centsOf(number, 2)));
    }
    return bytes;
}

/// The bytes of PmSeg.dat: row n (from 1) has the rates n,01 n,02 n,03.
inline std::string secretaryBytes(const CentsOf& centsOf) {
    std::string bytes;
    int number = 1;
    for (const char* caption : {"8^ q.f.", "9^ q.f. 2 anni", "9^ q.f. 5 anni", "9^ q.f. 10 anni", "9^ q.f. 15 anni"}) {
        bytes += padded(caption, 70);
        for (int kind = 0; kind < 3; ++kind) bytes += amount(0, centsOf(number, kind));
        ++number;
    }
    return bytes;
}

}  // namespace vorbano::test
