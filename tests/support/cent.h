#pragma once

// Amounts as the tests speak of them.

#include <cstdint>

#include "storage/currency.h"

namespace vorbano::test {

/// `cent(123456)` is 1.234,56.
[[nodiscard]] constexpr Currency cent(std::int64_t cents) { return Currency::fromCents(cents); }

}  // namespace vorbano::test
