#pragma once

#include <cstdint>
#include <cstdlib>
#include <string>
#include <string_view>

namespace vorbano::fuzzing {

/// What must hold whatever the input is.
inline void require(bool holds) {
    if (!holds) std::abort();
}

/// Takes an input apart from its front.
class Input {
  public:
    Input(const std::uint8_t* data, std::size_t size) : rest_(reinterpret_cast<const char*>(data), size) {}

    /// 0 at the end.
    std::uint8_t byte() {
        if (rest_.empty()) return 0;
        const auto first = static_cast<std::uint8_t>(rest_.front());
        rest_.remove_prefix(1);
        return first;
    }
    /// What comes before the next `mark`, which is taken too; all when there is none.
    std::string_view until(char mark) {
        const std::size_t at = rest_.find(mark);
        const std::string_view part = rest_.substr(0, at);
        rest_.remove_prefix(at == std::string_view::npos ? rest_.size() : at + 1);
        return part;
    }
    [[nodiscard]] std::string_view rest() const { return rest_; }

  private:
    std::string_view rest_;
};

}  // namespace vorbano::fuzzing
