#include "storage/system_text.h"

#include <cstdlib>

namespace vorbano {

std::filesystem::path pathOf(std::string_view text) { return std::u8string(text.begin(), text.end()); }

std::string utf8(const std::filesystem::path& path) {
    const std::u8string text = path.generic_u8string();
    return {text.begin(), text.end()};
}

std::optional<std::string> setting(std::string_view name) {
#ifdef _WIN32
    // The narrow environment has lost what its code page does not know.
    const wchar_t* const value = ::_wgetenv(std::wstring(name.begin(), name.end()).c_str());
    if (value == nullptr || *value == L'\0') return std::nullopt;
    const std::u8string text = std::filesystem::path(value).u8string();
    return std::string(text.begin(), text.end());
#else
    const char* const value = std::getenv(std::string(name).c_str());
    if (value == nullptr || *value == '\0') return std::nullopt;
    return value;
#endif
}

}  // namespace vorbano
