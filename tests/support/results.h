#pragma once

// Matchers for Result: EXPECT_THAT(files.remove("x"), Fails(Failure::notFound)).

#include <gmock/gmock.h>

#include <array>
#include <ostream>
#include <string_view>

#include "base/result.h"

namespace vorbano {

/// Found by the test framework.
inline void PrintTo(Failure kind, std::ostream* out) {
    constexpr std::array<std::string_view, 8> names = {"notFound", "missingFolder", "refused", "device",
                                                       "badName",  "damaged",       "full",    "diskFull"};
    *out << names.at(static_cast<std::size_t>(kind));
}
inline void PrintTo(const Error& error, std::ostream* out) {
    PrintTo(error.kind, out);
    *out << " (" << error.subject << ")";
}
template <class T>
void PrintTo(const Result<T>& result, std::ostream* out) {
    if (result.ok()) {
        *out << "success";
    } else {
        PrintTo(result.error(), out);
    }
}

namespace test {

MATCHER(Succeeds, negation ? "fails" : "succeeds") { return arg.ok(); }
MATCHER_P(Fails, kind, "fails with " + ::testing::PrintToString(kind)) { return !arg.ok() && arg.error().kind == kind; }
MATCHER_P(Gives, value, "gives " + ::testing::PrintToString(value)) {
    if (!arg.ok()) return false;
    *result_listener << "which gives " << ::testing::PrintToString(*arg);
    return *arg == value;
}

}  // namespace test
}  // namespace vorbano
