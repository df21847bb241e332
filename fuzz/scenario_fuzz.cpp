// Any bytes are a scenario or are refused with words; the reader never falls.

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string_view>

#include "scenario/scenario_reader.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string_view text(reinterpret_cast<const char*>(data), size);
    const vorbano::Scenario scenario = vorbano::readScenario(text, "fuzz.scenario");
    int last = 0;
    for (const vorbano::Line& line : scenario.lines) {
        // In order, and each from a line of its own.
        if (line.number <= last || line.count < 0 || line.column < 0) std::abort();
        last = line.number;
    }
    for (const std::string& error : scenario.errors) {
        if (!error.starts_with("fuzz.scenario:")) std::abort();
    }
    return 0;
}
