#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace vorbano::test {

/// Tells what the operator did last when the program falls, hangs or is stopped by a sanitizer. One at a time.
class LastWords {
  public:
    /// `log` is the sitting as a scenario, which grows; `out` is the file that it is written to.
    LastWords(std::uint64_t seed, std::uint64_t sitting, const std::string& log, std::string out);
    ~LastWords();
    LastWords(const LastWords&) = delete;
    LastWords& operator=(const LastWords&) = delete;

    void say(std::string_view trouble) const;

  private:
    std::uint64_t seed_;
    std::uint64_t sitting_;
    const std::string& log_;
    std::string out_;
};

}  // namespace vorbano::test
