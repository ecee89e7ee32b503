#pragma once

#include "text/ZFXUnicodeString.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <string_view>

/// How long a name may be, and which characters it must not contain. All of these characters are ASCII.
namespace NameRules {

/// The length of the longest legal name, in UTF-16 code units.
inline constexpr int MaxNameLength = 72;
/// The characters that the solver reserves. In file names only the first two are reserved.
inline constexpr std::u16string_view NameReservedChars = u"\".\\";
/// The characters that are illegal in file names, in addition to the reserved ones.
inline constexpr std::u16string_view FileNameIllegalChars = u" $*?,#!&~()[]{}|:;'`/><";
/// The characters that CheckForIllegalCharacters rejects: FileNameIllegalChars without the leading space.
inline constexpr std::u16string_view IllegalChars = FileNameIllegalChars.substr(1);
static_assert(FileNameIllegalChars.front() == u' ');

/// A set of rules as bits.
using Rules = std::uint8_t;
inline constexpr Rules kReservedInNames = 1;     ///< forbids NameReservedChars
inline constexpr Rules kReservedInFileNames = 2; ///< forbids the first two of NameReservedChars
inline constexpr Rules kIllegalInFileNames = 4;  ///< forbids FileNameIllegalChars
inline constexpr Rules kIllegal = 8;             ///< forbids IllegalChars

/// The rules that forbid each ASCII character. Other characters in one of the sets are a compile-time error.
inline constexpr std::array<Rules, 128> kRulesAgainst = [] {
    std::array<Rules, 128> rulesAgainst{};
    const auto forbid = [&rulesAgainst](std::u16string_view characters, Rules rule) {
        for (const char16_t c : characters)
            rulesAgainst[c] |= rule;
    };
    forbid(NameReservedChars, kReservedInNames);
    forbid(NameReservedChars.substr(0, 2), kReservedInFileNames);
    forbid(FileNameIllegalChars, kIllegalInFileNames);
    forbid(IllegalChars, kIllegal);
    return rulesAgainst;
}();

/// Returns true if one of the rules forbids the unit.
[[nodiscard]] constexpr bool Breaks(char16_t unit, Rules rules) noexcept {
    return unit < kRulesAgainst.size() && (kRulesAgainst[unit] & rules) != 0;
}

/// Returns true if one of the rules forbids a unit of the text.
[[nodiscard]] inline bool Breaks(const ZFXUnicodeString& text, Rules rules) noexcept {
    return std::ranges::any_of(text.Units(), [rules](char16_t unit) { return Breaks(unit, rules); });
}

} // namespace NameRules
