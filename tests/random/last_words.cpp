#include "random/last_words.h"

#include <unistd.h>

#include <algorithm>
#include <array>
#include <csignal>
#include <fstream>
#include <iostream>

// There when the program is built with a sanitizer.
extern "C" __attribute__((weak)) void __sanitizer_set_death_callback(void (*callback)());

namespace vorbano::test {

namespace {

const LastWords* speaker = nullptr;

/// A sitting takes far less; one that takes longer hangs.
constexpr unsigned longestSitting = 120;
constexpr int lastGestures = 30;

void died() {
    if (speaker != nullptr) speaker->say("the program fell");
    speaker = nullptr;
}

void struck(int signal) {
    if (speaker != nullptr) speaker->say(signal == SIGALRM ? "the program hangs" : "the program fell");
    speaker = nullptr;
    std::_Exit(1);
}

/// Where the last lines of the log begin.
std::size_t beginningOfLast(const std::string& log) {
    std::size_t at = log.size();
    for (int line = 0; line <= lastGestures && at != std::string::npos && at > 0; ++line) at = log.rfind('\n', at - 1);
    return at == std::string::npos ? 0 : at;
}

}  // namespace

LastWords::LastWords(std::uint64_t seed, std::uint64_t sitting, const std::string& log, std::string out)
    : seed_(seed), sitting_(sitting), log_(log), out_(std::move(out)) {
    speaker = this;
    alarm(longestSitting);
    std::signal(SIGALRM, struck);
    std::signal(SIGABRT, struck);
    if (__sanitizer_set_death_callback != nullptr) {
        __sanitizer_set_death_callback(died);
    } else {
        std::signal(SIGSEGV, struck);
        std::signal(SIGFPE, struck);
    }
}

LastWords::~LastWords() {
    speaker = nullptr;
    alarm(0);
}

void LastWords::say(std::string_view trouble) const {
    std::ofstream(out_, std::ios::binary) << "# seed " << seed_ << ", sitting " << sitting_ << ": " << trouble << "\n"
                                          << log_;
    std::cerr << "seed " << seed_ << ", sitting " << sitting_ << ": " << trouble << "\n(all of it in " << out_
              << ")\n..." << std::string_view(log_).substr(beginningOfLast(log_)) << std::endl;
}

}  // namespace vorbano::test
