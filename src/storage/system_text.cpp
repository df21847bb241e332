#include "storage/system_text.h"

#include <algorithm>

#ifdef _WIN32
#include <windows.h>
// After it, as it builds on it.
#include <shellapi.h>
#else
#include <cstdlib>
#endif

namespace vorbano {

std::filesystem::path pathOf(std::string_view text) { return std::u8string(text.begin(), text.end()); }

std::string utf8(const std::filesystem::path& path) {
    const std::u8string text = path.generic_u8string();
    return {text.begin(), text.end()};
}

#ifdef _WIN32

// The narrow environment and the narrow arguments have lost what their code page does not know.

namespace {
std::string utf8(const wchar_t* text) {
    const std::u8string bytes = std::filesystem::path(text).u8string();
    return {bytes.begin(), bytes.end()};
}
}  // namespace

std::optional<std::string> setting(std::string_view name) {
    const wchar_t* const value = ::_wgetenv(std::wstring(name.begin(), name.end()).c_str());
    if (value == nullptr || *value == L'\0') return std::nullopt;
    return utf8(value);
}

std::vector<std::string> arguments(int /*argc*/, char** /*argv*/) {
    int count = 0;
    wchar_t** const words = ::CommandLineToArgvW(::GetCommandLineW(), &count);
    std::vector<std::string> told;
    for (int at = 1; at < count; ++at) told.push_back(utf8(words[at]));
    ::LocalFree(words);
    return told;
}

#else

std::optional<std::string> setting(std::string_view name) {
    const char* const value = std::getenv(std::string(name).c_str());
    if (value == nullptr || *value == '\0') return std::nullopt;
    return value;
}

std::vector<std::string> arguments(int argc, char** argv) { return {argv + std::min(argc, 1), argv + argc}; }

#endif

}  // namespace vorbano
