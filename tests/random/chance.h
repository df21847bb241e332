#pragma once

#include <cstddef>
#include <cstdint>
#include <iterator>
#include <random>

namespace vorbano::test {

/// Dice that fall alike on every machine for the same seed.
class Chance {
  public:
    explicit Chance(std::uint64_t seed) : dice_(seed) {}

    /// 0 to `count` - 1; `count` is at least 1.
    int below(int count) { return static_cast<int>(dice_() % static_cast<std::uint64_t>(count)); }
    bool percent(int chances) { return below(100) < chances; }
    /// One of a list that is not empty.
    template <class List>
    const auto& oneOf(const List& list) {
        return list[static_cast<std::size_t>(below(static_cast<int>(std::size(list))))];
    }

  private:
    std::mt19937_64 dice_;
};

}  // namespace vorbano::test
