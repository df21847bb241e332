#pragma once

#include "platform/database.h"
#include "storage/currency.h"

namespace vorbano {

/// Money on its way into a staging table.
[[nodiscard]] inline Value amountValue(Currency amount) { return Amount{amount.units()}; }

}  // namespace vorbano
