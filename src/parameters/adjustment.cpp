#include "parameters/adjustment.h"

#include <algorithm>
#include <array>
#include <string>

#include "parameters/repricing.h"
#include "storage/numbers.h"

namespace vorbano {

namespace {

/// `Day` rates of two earlier tables, as shown; both empty where the grade alone decides.
using OldRates = std::array<std::string_view, 2>;
inline constexpr OldRates anyRate = {};

/// An employee of the grade, paid at one of the rates, has the row of the key.
struct RowTest {
    std::string_view grade;
    OldRates rates;
    std::string_view key;
};

/// The first that holds decides, so a grade with old rates stands before the same grade alone.
constexpr std::array rowTests = {
    RowTest{"B8", anyRate, "D5"},
    RowTest{"D5", {"16,37", "17,20"}, "D5"},
    RowTest{"C6", anyRate, "D4"},
    RowTest{"D4", {"15,62", "16,45"}, "D4"},
    RowTest{"D7", anyRate, "D3a"},
    RowTest{"D3", {"14,92", "15,75"}, "D3a"},
    RowTest{"D3", anyRate, "D3b"},
    RowTest{"D2", anyRate, "D2"},
    RowTest{"D1", anyRate, "D1"},
    RowTest{"C4", anyRate, "C4"},
    RowTest{"C3", anyRate, "C3"},
    RowTest{"C2", anyRate, "C2"},
    RowTest{"C1", anyRate, "C1"},
    RowTest{"G    B6", anyRate, "B6"},
    RowTest{"B6", {"11,68", "12,33"}, "B6"},
    RowTest{"G    B5", anyRate, "B5"},
    RowTest{"B5", {"11,46", "12,11"}, "B5"},
    RowTest{"G    B4", anyRate, "B4a"},
    RowTest{"B4", {"11,25", "11,90"}, "B4a"},
    RowTest{"G    B3", anyRate, "B3a"},
    RowTest{"B3", {"11,07", "11,72"}, "B3a"},
    RowTest{"B4", anyRate, "B4b"},
    RowTest{"B3", anyRate, "B3b"},
    RowTest{"B2", anyRate, "B2"},
    RowTest{"B1", anyRate, "B1"},
    RowTest{"A4", anyRate, "A4"},
    RowTest{"A3", anyRate, "A3"},
    RowTest{"A2", anyRate, "A2"},
    RowTest{"A1", anyRate, "A1"},
    RowTest{"A6", anyRate, "D6a"},
    RowTest{"D6", {"17,41", "18,36"}, "D6a"},
    RowTest{"D6", anyRate, "D6b"},
    RowTest{"D5", anyRate, "D5b"},
    RowTest{"D4", anyRate, "D4b"},
    RowTest{"C5", anyRate, "C5"},
    RowTest{"G    B7", anyRate, "B7a"},
    RowTest{"B7", {"12,02", "12,76"}, "B7a"},
    RowTest{"B7", anyRate, "B7b"},
    RowTest{"B6", anyRate, "B6b"},
    RowTest{"B5", anyRate, "B5b"},
    RowTest{"A5", anyRate, "A5"},
};
static_assert(std::ranges::all_of(rowTests, [](const RowTest& test) { return tariffRowOf(test.key) >= 0; }));

/// The test that only one of the two runs makes.
constexpr std::string_view gradeToldByRun = "D3";

bool holds(const RowTest& test, std::string_view grade, std::string_view dayRate, const AdjustmentRun& run) {
    if (test.grade != grade) return false;
    if (test.rates == anyRate) return true;
    if (grade == gradeToldByRun && !run.tellsD3ByRate) return false;
    return std::ranges::find(test.rates, dayRate) != test.rates.end();
}

HoursByKind liquidated(const EmployeeRecord& employee) { return employee.executed; }
HoursByKind paidInFirstPeriod(const EmployeeRecord& employee) { return employee.periods[0].paid; }

Currency storedAmount(const EmployeeRecord& employee) { return employee.pay.Dovuto; }
Currency firstPeriodAtStoredRates(const EmployeeRecord& employee) {
    const auto& stored = employee.pay.rates;
    return priced(paidInFirstPeriod(employee), {stored[0], stored[1], stored[2]});
}

}  // namespace

const AdjustmentRun allPeriods = {congsFile,    revCongsFile, liquidated,
                                  storedAmount, true,         "Calcolo conguaglio effettuato"};
const AdjustmentRun firstPeriod = {congs1File, revCongs1File, paidInFirstPeriod, firstPeriodAtStoredRates, false, {}};

bool hasSecondRun(std::string_view type) { return type == "Politiche_Comunali" || type == "Europee_Comunali"; }

int adjustmentRow(const EmployeeRecord& employee, const AdjustmentRun& run) {
    const std::string grade = employee.lblCat.trimmed();
    const std::string dayRate = format(employee.pay.rates[0], Mask::amount);
    const auto found =
        std::ranges::find_if(rowTests, [&](const RowTest& test) { return holds(test, grade, dayRate, run); });
    return found == rowTests.end() ? -1 : tariffRowOf(found->key);
}

AdjustmentRecord adjusted(const EmployeeRecord& employee, const Rates& asTyped, const AdjustmentRun& run) {
    const Pay& pay = employee.pay;
    AdjustmentRecord record{};
    record.SonoDip = employee.pools.SonoDip;
    record.hours = run.hours(employee);
    const Currency amount = priced(record.hours, asTyped);
    record.rates = {cents(asTyped.Day), cents(asTyped.Fn), cents(asTyped.Nf)};
    record.Dovuto = cents(amount);
    record.Pagato = amount - run.oldAmount(employee);
    const Contributions on = contributionsOn(record.Pagato, pay);
    record.AliCpStato = pay.AliCpStato;
    record.CpStato = on.CpStato;
    record.AliIrap = pay.AliIrap;
    record.Irap = on.Irap;
    record.TotaleSpesa = on.TotaleSpesa;
    record.AliCpDip = pay.AliCpDip;
    record.CpDip = on.CpDip;
    record.AliFonCre = pay.AliFonCre;
    record.FonCre = on.FonCre;
    record.TotaleContr = on.TotaleContr;
    return record;
}

}  // namespace vorbano
