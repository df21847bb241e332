#pragma once

#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace vorbano {

/// What vorbano-scenario was asked to do.
struct Orders {
    bool window = false;  ///< on real windows
    bool watch = false;   ///< slowly, on a screen; goes with `window`
    bool help = false;    ///< only how to use it
    std::string root;     ///< "" is a fresh temporary one for each file
    std::string out;      ///< "" is a fresh temporary one
    std::vector<std::string> files;
};

/// Nothing when the words are no orders.
[[nodiscard]] std::optional<Orders> readOrders(std::span<const std::string> words);

[[nodiscard]] std::string_view usage();

}  // namespace vorbano
