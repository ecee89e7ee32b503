#pragma once

#include <filesystem>
#include <string>
#include <string_view>

/// Conversion between UTF-8 and paths, independent of the process locale and of the system's encoding.
namespace Utf8 {

/// Returns the path that the UTF-8 text names.
[[nodiscard]] inline std::filesystem::path ToPath(std::string_view text) {
#ifdef __cpp_char8_t
    return std::filesystem::path(std::u8string(text.begin(), text.end()));
#else
    return std::filesystem::u8path(text.begin(), text.end());
#endif
}

/// Returns the path as UTF-8 text.
[[nodiscard]] inline std::string FromPath(const std::filesystem::path& path) {
    const auto text = path.u8string();
    return {text.begin(), text.end()};
}

} // namespace Utf8
