#include "reports/document.h"

#include <utility>

namespace vorbano {

namespace {

/// The rows stand in the tables before the layout runs, also those of a filling that broke off.
Result<> fillTables(Database& staging, const std::function<Result<>()>& fill) {
    if (auto begun = staging.begin(); !begun) return begun;
    Result<> filled = fill();
    Result<> committed = staging.commit();
    return filled ? committed : filled;
}

}  // namespace

Result<> produce(const Workplace& desk, const DocumentRun& document) {
    Result<> outcome = fillTables(desk.staging, document.fill);
    if (outcome) outcome = desk.printing.run(document.job);
    Result<> cleared = clearTables(desk.staging, document.clearing, document.dipendenti);
    return outcome ? cleared : outcome;
}

}  // namespace vorbano
