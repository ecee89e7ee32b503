#pragma once

#include <cassert>
#include <cstdint>

/// UTF-16 surrogate pairs: two code units that encode one character above U+FFFF, the high surrogate first.
namespace Surrogates {

/// The first character that is encoded as a pair.
inline constexpr std::uint32_t kFirstCode = 0x10000;

/// Returns true if `code` is one half of a pair, high or low.
constexpr bool IsHalf(std::uint32_t code) noexcept { return (code & ~0x7FFU) == 0xD800; }
constexpr bool IsHigh(std::uint32_t code) noexcept { return (code & ~0x3FFU) == 0xD800; }
constexpr bool IsLow(std::uint32_t code) noexcept { return (code & ~0x3FFU) == 0xDC00; }
constexpr bool IsPair(char16_t first, char16_t second) noexcept { return IsHigh(first) && IsLow(second); }

/// Returns the character that a pair encodes.
constexpr std::uint32_t Decode(char16_t high, char16_t low) noexcept {
    assert(IsPair(high, low));
    return kFirstCode + ((high & 0x3FFU) << 10) + (low & 0x3FFU);
}

/// Returns the high half of the pair that encodes the character.
constexpr char16_t HighOf(std::uint32_t code) noexcept {
    assert(code >= kFirstCode);
    return static_cast<char16_t>(0xD800U + ((code - kFirstCode) >> 10));
}
/// Returns the low half of the pair that encodes the character.
constexpr char16_t LowOf(std::uint32_t code) noexcept {
    assert(code >= kFirstCode);
    return static_cast<char16_t>(0xDC00U + (code & 0x3FFU));
}

} // namespace Surrogates
