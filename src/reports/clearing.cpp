#include "reports/clearing.h"

#include <array>
#include <span>
#include <string_view>

namespace vorbano {

namespace {

enum class Rows : std::uint8_t {
    dipendenti,  ///< as many as the election has employees
    first,       ///< the first one
    all,         ///< by the table's own count
};

struct Step {
    std::string_view table;
    Rows rows;
};

constexpr std::array byEmployees = {Step{"Tabella3", Rows::dipendenti}, Step{"Tabella4", Rows::first},
                                    Step{"Tabella5", Rows::first}, Step{"Tabella6", Rows::first},
                                    Step{"Tabella10", Rows::first}};
constexpr std::array byRows = {Step{"Tabella3", Rows::all}, Step{"Tabella4", Rows::first},
                               Step{"Tabella5", Rows::first}, Step{"Tabella6", Rows::first},
                               Step{"Tabella10", Rows::first}};
constexpr std::array stationTotals = {Step{"Tabella8", Rows::all}, Step{"Tabella5", Rows::first}};
constexpr std::array stationMembers = {Step{"Tabella7", Rows::all}, Step{"Tabella5", Rows::first}};
constexpr std::array statementOnly = {Step{"Tabella9", Rows::first}, Step{"Tabella5", Rows::first}};
constexpr std::array contributions = {Step{"Tabella3", Rows::dipendenti}, Step{"Tabella4", Rows::first},
                                      Step{"Tabella5", Rows::first},      Step{"Tabella6", Rows::first},
                                      Step{"Tabella10", Rows::first},     Step{"Tabella11", Rows::all},
                                      Step{"Tabella8", Rows::all}};

constexpr std::array paymentList = {Step{"Tabella3", Rows::all},  Step{"Tabella4", Rows::all},
                                    Step{"Tabella5", Rows::all},  Step{"Tabella6", Rows::all},
                                    Step{"Tabella10", Rows::all}, Step{"Tabella11", Rows::all}};
constexpr std::array paymentRows = {Step{"Tabella11", Rows::all}};
constexpr std::array adjustmentPayments = {Step{"Tabella5", Rows::first}, Step{"Tabella11", Rows::all}};

/// In the order of `Clearing`.
constexpr std::array<std::span<const Step>, 11> routines = {
    byEmployees, byEmployees,        byRows, stationTotals, stationMembers, statementOnly, contributions, paymentList,
    paymentRows, adjustmentPayments, {}};

Result<> take(Database& staging, const Step& step, int dipendenti) {
    switch (step.rows) {
        case Rows::dipendenti:
            return staging.removeFirst(step.table, dipendenti);
        case Rows::first:
            return staging.removeFirst(step.table, 1);
        case Rows::all:
            return staging.removeAll(step.table);
    }
    return {};
}

}  // namespace

Result<> clearTables(Database& staging, Clearing routine, int dipendenti) {
    Result<> outcome;
    for (const Step& step : routines[static_cast<std::size_t>(routine)]) {
        Result<> taken = take(staging, step, dipendenti);
        if (outcome) outcome = std::move(taken);
    }
    return outcome;
}

}  // namespace vorbano
