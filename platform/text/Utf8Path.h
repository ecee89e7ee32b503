#pragma once

#include <filesystem>
#include <string>
#include <string_view>

/// Paths from UTF-8 text and back, whatever the process's locale and the system's own encoding.
namespace Utf8 {

inline std::filesystem::path ToPath(std::string_view text) {
    return std::filesystem::path(std::u8string(text.begin(), text.end()));
}

inline std::string FromPath(const std::filesystem::path& path) {
    const std::u8string text = path.u8string();
    return {text.begin(), text.end()};
}

} // namespace Utf8
