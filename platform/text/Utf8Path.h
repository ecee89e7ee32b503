#pragma once

#include <filesystem>
#include <string>
#include <string_view>

/// Paths from UTF-8 text and back, whatever the process's locale and the system's own encoding.
namespace Utf8 {

/// The path that UTF-8 text names.
inline std::filesystem::path ToPath(std::string_view text) {
#ifdef __cpp_char8_t
    return std::filesystem::path(std::u8string(text.begin(), text.end()));
#else
    return std::filesystem::u8path(text.begin(), text.end());
#endif
}

/// The path as UTF-8 text.
inline std::string FromPath(const std::filesystem::path& path) {
    const auto text = path.u8string();
    return {text.begin(), text.end()};
}

} // namespace Utf8
