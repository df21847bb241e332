#include "reports/clearing.h"

#include "reports_desk.h"
#include "support/results.h"

namespace vorbano::test {
namespace {

struct Routine {
    Clearing clearing;
    std::string_view name;
    /// Rows that are left of four in each table, with two employees.
    std::map<std::string, int> left;
};

void PrintTo(const Routine& routine, std::ostream* out) { *out << routine.name; }

class EveryClearing : public ReportsDesk, public testing::WithParamInterface<Routine> {};

TEST_P(EveryClearing, TakesItsRowsAndNoOthers) {
    for (const TableInfo& table : stagingTables()) {
        for (int number = 0; number < 4; ++number) ASSERT_THAT(staging.append(table.name, Row{}), Succeeds());
    }
    EXPECT_THAT(clearTables(staging, GetParam().clearing, 2), Succeeds());
    const Snapshot now = tables();
    for (const TableInfo& table : stagingTables()) {
        const std::string name(table.name);
        const auto told = GetParam().left.find(name);
        EXPECT_EQ(now.rows(name), told == GetParam().left.end() ? 4 : told->second) << name;
    }
}

const std::map<std::string, int> byEmployees = {
    {"Tabella3", 2}, {"Tabella4", 3}, {"Tabella5", 3}, {"Tabella6", 3}, {"Tabella10", 3}};

INSTANTIATE_TEST_SUITE_P(
    Routines, EveryClearing,
    testing::Values(Routine{Clearing::Cancella1, "Cancella1", byEmployees},
                    Routine{Clearing::Cancella2, "Cancella2", byEmployees},
                    Routine{Clearing::Cancella3,
                            "Cancella3",
                            {{"Tabella3", 0}, {"Tabella4", 3}, {"Tabella5", 3}, {"Tabella6", 3}, {"Tabella10", 3}}},
                    Routine{Clearing::Cancella4, "Cancella4", {{"Tabella8", 0}, {"Tabella5", 3}}},
                    Routine{Clearing::Cancella5, "Cancella5", {{"Tabella7", 0}, {"Tabella5", 3}}},
                    Routine{Clearing::Cancella6, "Cancella6", {{"Tabella9", 3}, {"Tabella5", 3}}},
                    Routine{Clearing::Cancella7,
                            "Cancella7",
                            {{"Tabella3", 2},
                             {"Tabella4", 3},
                             {"Tabella5", 3},
                             {"Tabella6", 3},
                             {"Tabella10", 3},
                             {"Tabella11", 0},
                             {"Tabella8", 0}}}),
    [](const auto& one) { return std::string(one.param.name); });

class ClearingOfAnyTables : public ReportsDesk {};

TEST_F(ClearingOfAnyTables, EmptyTablesAreNoFailure) {
    EXPECT_THAT(clearTables(staging, Clearing::Cancella7, 12), Succeeds());
    expectEmptyTables();
}

TEST_F(ClearingOfAnyTables, MoreEmployeesThanRowsTakeAllRows) {
    ASSERT_THAT(staging.append("Tabella3", Row{}), Succeeds());
    EXPECT_THAT(clearTables(staging, Clearing::Cancella1, 300), Succeeds());
    EXPECT_EQ(tables().rows("Tabella3"), 0);
}

TEST_F(ClearingOfAnyTables, TableThatIsNotThereKeepsNoOtherFromBeingCleared) {
    MemoryDatabase partial({{"Tabella3", {}}, {"Tabella5", {}}, {"Tabella10", {}}});
    ASSERT_THAT(partial.append("Tabella10", Row{}), Succeeds());
    const auto cleared = clearTables(partial, Clearing::Cancella1, 3);
    ASSERT_THAT(cleared, Fails(Failure::notFound));
    EXPECT_EQ(cleared.error().subject, "Tabella4");
    EXPECT_THAT(partial.count("Tabella10"), Gives(0));
}

}  // namespace
}  // namespace vorbano::test
