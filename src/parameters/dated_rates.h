#pragma once

// PmDipc.dat: the rates by date of effect that an adjustment is made at, a block of 32 records for each date.

#include <array>
#include <optional>
#include <string>
#include <string_view>

#include "base/result.h"
#include "records/tariff_records.h"
#include "storage/file_system.h"

namespace vorbano {

/// The rates of all rows, in record order.
using RateTable = std::array<Rates, tariffRowCount>;

/// A block as it stands in the file.
struct DatedRates {
    std::string deco;  ///< the date of effect as stored
    RateTable rates;
};

/// Stores the 32 rows, held to cents, as the block of `date`. A date that the file already has is written over. A new
/// one deliberately begins on the last record of the file, so the block before it loses its last row; in an empty file
/// it is the first block. The file is old or new, never half.
[[nodiscard]] Result<> storeDatedRates(FileSystem& files, std::string_view date, const RateTable& rates);

/// The 32 records from the first one of `date` on; nothing when the file has none, or the date is empty. Rows beyond
/// the end of the file are zero.
[[nodiscard]] Result<std::optional<DatedRates>> loadDatedRates(FileSystem& files, std::string_view date);

}  // namespace vorbano
