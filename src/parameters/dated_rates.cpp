#include "parameters/dated_rates.h"

#include <algorithm>
#include <cstddef>
#include <vector>

#include "storage/numbers.h"
#include "storage/record_list.h"

namespace vorbano {

namespace {

using Rows = std::vector<DatedTariffRow>;

constexpr std::string_view companion = "Params/RevPmDipc.dat";

/// Index of the first record of the date; the number of records when there is none.
std::size_t firstOf(const Rows& rows, std::string_view date) {
    const auto found =
        std::ranges::find_if(rows, [&](const DatedTariffRow& row) { return row.Deco.trimmed() == date; });
    return static_cast<std::size_t>(found - rows.begin());
}

/// Where a block is written: a search without success ends on the last record and not behind it.
std::size_t placeFor(const Rows& rows, std::string_view date) {
    return rows.empty() ? 0 : std::min(firstOf(rows, date), rows.size() - 1);
}

}  // namespace

Result<> storeDatedRates(FileSystem& files, std::string_view date, const RateTable& rates) {
    auto rows = readAll<DatedTariffRow>(files, pmDipcFile);
    if (!rows) return rows.error();
    const std::size_t first = placeFor(*rows, trim(date));
    rows->resize(std::max(rows->size(), first + rates.size()));
    for (std::size_t at = 0; at < rates.size(); ++at) {
        DatedTariffRow& row = (*rows)[first + at];
        row.Grade = tariffRows[at].grade;
        row.Deco = trim(date);
        row.rates = {cents(rates[at].Day), cents(rates[at].Fn), cents(rates[at].Nf)};
    }
    return replaceAll(files, pmDipcFile, companion, *rows);
}

Result<std::optional<DatedRates>> loadDatedRates(FileSystem& files, std::string_view date) {
    const auto rows = readAll<DatedTariffRow>(files, pmDipcFile);
    if (!rows) return rows.error();
    const std::size_t first = firstOf(*rows, trim(date));
    if (trim(date).empty() || first == rows->size()) return std::optional<DatedRates>();
    DatedRates block{(*rows)[first].Deco.whole(), {}};
    const std::size_t there = std::min(block.rates.size(), rows->size() - first);
    for (std::size_t at = 0; at < there; ++at) block.rates[at] = (*rows)[first + at].rates;
    return std::optional(block);
}

}  // namespace vorbano
