// Liquidations by the thousand against arithmetic in whole numbers, and saves in any order. The numbers come from a
// generator with a fixed seed, the same everywhere.

#include <cstdint>
#include <random>

#include "overtime/liquidation_save.h"
#include "overtime/meirin_periods.h"
#include "overtime/pay.h"
#include "overtime/rendi_kontrol.h"
#include "stored_election.h"

namespace vorbano::test {
namespace {

/// Whole numbers from 0 up to and without `bound`.
class Dice {
  public:
    explicit Dice(std::uint32_t seed) : generator_(seed) {}
    int below(int bound) { return static_cast<int>(generator_() % static_cast<std::uint32_t>(bound)); }

  private:
    std::mt19937 generator_;
};

/// What the office works out on paper, all in units of 1/10,000 or in cents as told; no number is negative.
namespace paper {

/// From units to cents, half up.
std::int64_t toCents(std::int64_t units) { return units / 100 + (units % 100 >= 50 ? 1 : 0); }

/// `percentage` (in units) of an amount in cents, held to units (half to even), then in cents.
std::int64_t share(std::int64_t cents, std::int64_t percentage) {
    const std::int64_t product = cents * percentage;  // 10,000 of it are a unit
    std::int64_t units = product / 10'000;
    const std::int64_t rest = product % 10'000;
    if (rest > 5'000 || (rest == 5'000 && units % 2 != 0)) ++units;
    return toCents(units);
}

struct Pay {
    std::int64_t dovuto = 0, cpStato = 0, irap = 0, spesa = 0, cpDip = 0, fonCre = 0, contr = 0;
};
Pay of(const std::array<int, 3>& hours, const std::array<int, 3>& rates, const std::array<int, 4>& percentages) {
    Pay pay;
    for (std::size_t kind = 0; kind < 3; ++kind) pay.dovuto += toCents(std::int64_t{hours[kind]} * rates[kind]);
    pay.cpStato = share(pay.dovuto, percentages[0]);
    pay.irap = share(pay.dovuto, percentages[1]);
    pay.spesa = pay.cpStato + pay.irap;
    pay.cpDip = share(pay.dovuto, percentages[2]);
    pay.fonCre = share(pay.dovuto, percentages[3]);
    pay.contr = pay.cpDip + pay.fonCre;
    return pay;
}

}  // namespace paper

/// Hours, rates and percentages of an employee as a clerk would type them.
struct Typed {
    std::array<int, 3> hours{};
    std::array<int, 3> rates{};        ///< units, to the cent
    std::array<int, 4> percentages{};  ///< units, to the hundredth
};

Typed typedBy(Dice& dice, int most) {
    Typed typed;
    for (int& each : typed.hours) each = dice.below(most + 1);
    for (int& each : typed.rates) each = 100 * dice.below(4'000);
    for (int& each : typed.percentages) each = 100 * dice.below(3'000);
    return typed;
}

/// Puts what was typed through the rules of the pay into the values that are saved; all hours in the first period.
Liquidation liquidated(const StoredEmployee& employee, const Typed& typed) {
    Liquidation values = liquidationOf(employee);
    values.periods[1] = {};
    for (std::size_t kind = 0; kind < 3; ++kind) {
        values.periods[0].paid[kind] = static_cast<std::int16_t>(typed.hours[kind]);
        values.executed[kind] = static_cast<std::int16_t>(typed.hours[kind]);
        values.pay.rates[kind] = Currency::fromUnits(typed.rates[kind]);
    }
    const int total = typed.hours[0] + typed.hours[1] + typed.hours[2];
    values.periods[0].totalPaid = static_cast<std::int16_t>(total);
    values.totEseg = static_cast<std::int16_t>(total);
    const auto percentage = [&](std::size_t at) { return Currency::fromUnits(typed.percentages[at]); };
    const Amounts amounts =
        liquidate(typed.hours, values.pay.rates,
                  {.CpStato = percentage(0), .Irap = percentage(1), .CpDip = percentage(2), .FonCre = percentage(3)});
    values.pay.Dovuto = amounts.Dovuto;
    values.pay.AliCpStato = percentage(0);
    values.pay.CpStato = amounts.CpStato;
    values.pay.AliIrap = percentage(1);
    values.pay.Irap = amounts.Irap;
    values.pay.TotaleSpesa = amounts.TotaleSpesa;
    values.pay.AliCpDip = percentage(2);
    values.pay.CpDip = amounts.CpDip;
    values.pay.AliFonCre = percentage(3);
    values.pay.FonCre = amounts.FonCre;
    values.pay.TotaleContr = amounts.TotaleContr;
    return values;
}

void save(FileSystem& files, int number, const Typed& typed) {
    const auto employee = readEmployee(files, europee, noLate, number);
    ASSERT_THAT(employee, Succeeds());
    ASSERT_THAT(saveLiquidation(files, europee, noLate, number, liquidated(*employee, typed)), Succeeds());
}

/// An election just authorised: nothing executed, nothing used, nothing due.
void layAuthorised(FileSystem& files, int count) {
    layElection(files, europee, count);
    std::string bytes;
    for (EmployeeRecord record : staffOf(files, europee)) {
        record.pools.MoUtil = 0;
        record.executed = {};
        record.totEseg = 0;
        record.pay = {};
        bytes += bytesOf(record);
    }
    ASSERT_TRUE(lay(files, employeesOf(europee), bytes));
}

/// The amounts of a record, in cents, in its order behind the rates.
std::vector<std::int64_t> amountsIn(const EmployeeRecord& record) {
    std::vector<std::int64_t> cents;
    for (const Currency each : {record.pay.Dovuto, record.pay.CpStato, record.pay.Irap, record.pay.TotaleSpesa,
                                record.pay.CpDip, record.pay.FonCre, record.pay.TotaleContr}) {
        EXPECT_EQ(each.units() % 100, 0);
        cents.push_back(each.units() / 100);
    }
    return cents;
}

TEST(Liquidations, OfAThousandEmployeesStoreWhatWholeNumbersGive) {
    constexpr int count = 1000;
    Dice dice(20'240'609);
    MemoryFileSystem files;
    layAuthorised(files, count);
    std::vector<Typed> typed;
    // Up to ten hours a kind: 30,000 in all, which 16 bits hold.
    for (int n = 1; n <= count; ++n) typed.push_back(typedBy(dice, 10));
    // From the last to the first, every third one first with other hours.
    for (int n = count; n >= 1; --n) {
        if (n % 3 == 0) save(files, n, typedBy(dice, 10));
        save(files, n, typed[static_cast<std::size_t>(n) - 1]);
    }
    ASSERT_THAT(RendiKontrol(files, europee), Succeeds());

    const auto staff = staffOf(files, europee);
    ASSERT_EQ(staff.size(), typed.size());
    int used = 0;
    std::int64_t cost = 7'890;
    for (std::size_t at = 0; at < typed.size(); ++at) {
        SCOPED_TRACE(at + 1);
        const auto expected = paper::of(typed[at].hours, typed[at].rates, typed[at].percentages);
        ASSERT_THAT(amountsIn(staff[at]),
                    ::testing::ElementsAre(expected.dovuto, expected.cpStato, expected.irap, expected.spesa,
                                           expected.cpDip, expected.fonCre, expected.contr));
        used += typed[at].hours[0] + typed[at].hours[1] + typed[at].hours[2];
        ASSERT_EQ(staff[at].pools.MoUtil, used);
        cost += expected.dovuto + expected.cpStato + expected.irap;
    }
    const auto statements = recordsIn<RendiRecord>(files, pathIn(europee, rendiFile));
    ASSERT_EQ(statements.size(), 1U);
    EXPECT_EQ(statements[0].Straordinario.units(), cost * 100);
    EXPECT_EQ(statements[0].Totale.units(), (100'000 + cost) * 100);
    EXPECT_EQ(statements[0].Differenza.units(), (100'000 + cost - 150'000) * 100);
}

/// The worked example of the office: 10 weekday hours at 12,34 and 3 night hours at 15,55.
TEST(Liquidations, OfTheOfficesExampleAreStoredToTheCent) {
    MemoryFileSystem files;
    layAuthorised(files, 1);
    save(files, 1,
         {.hours = {10, 3, 0}, .rates = {123'400, 155'500, 179'000}, .percentages = {238'000, 85'000, 88'000, 3'500}});
    const std::string bytes = contentOf(files, employeesOf(europee));
    // Rates, 170,05, 23,80 % and 40,47, 8,50 % and 14,45, 54,92, 8,80 % and 14,96, 0,35 % and 0,60, 15,56.
    EXPECT_EQ(toHex(bytes.substr(189)),
              toHex(Sheet(112)
                        .amountsAt(0, {1234, 1555, 1790, 17005, 2380, 4047, 850, 1445, 5492, 880, 1496, 35, 60, 1556})
                        .bytes()));
    EXPECT_EQ(toHex(bytes.substr(162, 10)), toHex(le16(25) + le16(10) + le16(3) + le16(0) + le16(13)));
    EXPECT_EQ(toHex(bytes.substr(2, 2)), toHex(le16(13)));
    // 170,05 + 40,47 + 14,45 and the INAIL amount of 78,90.
    ASSERT_THAT(RendiKontrol(files, europee), Succeeds());
    EXPECT_EQ(toHex(contentOf(files, pathIn(europee, rendiFile)).substr(8, 8)), toHex(amount(303, 87)));
}

TEST(Liquidations, RoundEachProductAndHoldASharePartlyTwice) {
    MemoryFileSystem files;
    layAuthorised(files, 2);
    // Rates are kept to the cent, so a product is rounded only by them: 141,42, of which 0,35 percent is 0,494970, held
    // as 0,4950, which is 0,50.
    save(files, 1, {.hours = {1, 0, 0}, .rates = {1'414'200, 0, 0}, .percentages = {0, 0, 0, 3'500}});
    // 1,00, of which 0,50 percent is half a cent, twice: 0,01 and 0,01, and their sum 0,02 though the whole is 0,01.
    save(files, 2, {.hours = {1, 0, 0}, .rates = {10'000, 0, 0}, .percentages = {5'000, 5'000, 0, 0}});
    const auto staff = staffOf(files, europee);
    EXPECT_EQ(staff[0].pay.FonCre, cent(50));
    EXPECT_EQ(staff[1].pay.CpStato, cent(1));
    EXPECT_EQ(staff[1].pay.Irap, cent(1));
    EXPECT_EQ(staff[1].pay.TotaleSpesa, cent(2));
}

TEST(Liquidations, WithoutHoursAreZeroThroughout) {
    MemoryFileSystem files;
    layAuthorised(files, 1);
    save(files, 1, {.hours = {7, 7, 7}, .rates = {1'414'200, 900, 800}, .percentages = {100, 200, 300, 3'500}});
    save(files, 1, {.hours = {}, .rates = {1'414'200, 900, 800}, .percentages = {100, 200, 300, 3'500}});
    const auto staff = staffOf(files, europee);
    EXPECT_THAT(amountsIn(staff[0]), ::testing::Each(0));
    EXPECT_EQ(staff[0].pools.MoUtil, 0);
    EXPECT_EQ(staff[0].totEseg, 0);
    EXPECT_EQ(staff[0].pay.rates[0].units(), 1'414'200);
}

/// Whatever is saved in whatever order, an employee's hours used are those of all up to it, and the statement's line is
/// what all cost.
TEST(HoursUsed, StayCumulativeAfterAnySequenceOfSaves) {
    Dice dice(4'711);
    for (int sequence = 0; sequence < 300; ++sequence) {
        SCOPED_TRACE(sequence);
        const int count = 1 + dice.below(9);
        MemoryFileSystem files;
        layAuthorised(files, count);
        std::vector<Typed> last(static_cast<std::size_t>(count));
        for (int saves = dice.below(25); saves > 0; --saves) {
            const int number = 1 + dice.below(count);
            Typed& typed = last[static_cast<std::size_t>(number) - 1];
            if (dice.below(4) != 0) typed = typedBy(dice, 60);
            save(files, number, typed);
            if (dice.below(3) == 0) {
                ASSERT_THAT(RendiKontrol(files, europee), Succeeds());
            }
        }
        ASSERT_THAT(RendiKontrol(files, europee), Succeeds());
        int used = 0;
        std::int64_t cost = 7'890;
        const auto staff = staffOf(files, europee);
        ASSERT_EQ(staff.size(), last.size());
        for (std::size_t at = 0; at < last.size(); ++at) {
            used += last[at].hours[0] + last[at].hours[1] + last[at].hours[2];
            ASSERT_EQ(staff[at].pools.MoUtil, used) << at + 1;
            const auto pay = paper::of(last[at].hours, last[at].rates, last[at].percentages);
            cost += pay.dovuto + pay.cpStato + pay.irap;
        }
        const auto statements = recordsIn<RendiRecord>(files, pathIn(europee, rendiFile));
        ASSERT_EQ(statements.size(), 1U);
        ASSERT_EQ(statements[0].Straordinario.units(), cost * 100);
        ASSERT_EQ(statements[0].Totale.units(), (100'000 + cost) * 100);
        ASSERT_EQ(statements[0].Differenza.units(), (cost - 50'000) * 100);
    }
}

}  // namespace
}  // namespace vorbano::test
