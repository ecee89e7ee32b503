#pragma once

#include <cstddef>
#include <cstdint>
#include <string_view>

/// Conversion between UTF-8 and UTF-16. Ill-formed input is replaced, never rejected.
namespace Utf8 {

/// The character that replaces ill-formed input, U+FFFD.
inline constexpr std::uint32_t kReplacement = 0xFFFD;

/// A decoded character and the number of bytes that encode it.
struct Decoded {
    std::uint32_t code;
    int bytes;
};
/// Decodes the first character of `text`, which must not be empty. A byte that is no part of a well-formed character
/// counts as one U+FFFD.
[[nodiscard]] Decoded First(std::string_view text) noexcept;

/// Converts UTF-8 to UTF-16. Returns the number of code units needed. If `units` is null, only counts; otherwise
/// `units` must have room for them.
std::size_t ToUtf16(std::string_view text, char16_t* units) noexcept;

/// Converts UTF-16 to UTF-8. Half a surrogate pair becomes U+FFFD. Returns the number of bytes needed. If `bytes` is
/// null, only counts; otherwise `bytes` must have room for them.
std::size_t FromUtf16(std::u16string_view text, char* bytes) noexcept;

} // namespace Utf8
