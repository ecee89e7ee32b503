#pragma once

#include <cstddef>
#include <cstdint>
#include <string_view>

/// The narrow form of text: UTF-8 both ways, no input refused.
namespace Utf8 {

inline constexpr std::uint32_t kReplacement = 0xFFFD;

/// The character at the front of a text that is not empty, and the bytes it takes. A byte that belongs to no
/// well-formed character counts as U+FFFD by itself.
struct Decoded {
    std::uint32_t code;
    int bytes;
};
Decoded First(std::string_view text) noexcept;

/// Writes the text as UTF-16 and returns the units needed; `units` may be null to count only.
std::size_t ToUtf16(std::string_view text, char16_t* units) noexcept;

/// Writes the text as UTF-8 and returns the bytes needed; `bytes` may be null to count only. Half a surrogate
/// pair is written as U+FFFD.
std::size_t FromUtf16(std::u16string_view text, char* bytes) noexcept;

} // namespace Utf8
