#pragma once

#include "text/ZFXUnicodeString.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <string_view>

/// The characters that names must not hold, by rule. All of them are ASCII.
namespace CharacterClasses {

/// A set of the rules below, as bits.
using Rules = std::uint8_t;
/// Reserved by the solver, in feature names and in file names.
inline constexpr Rules kReserved = 1;
/// Reserved in feature names only.
inline constexpr Rules kReservedInNames = 2;
inline constexpr Rules kIllegalInFileNames = 4;
/// What the quiet check asks for: the same without the space.
inline constexpr Rules kIllegal = 8;

struct Row {
    Rules rules;
    std::u16string_view characters;
};

inline constexpr Row kRows[] = {
    {kReserved, u"\"."},
    {kReservedInNames, u"\\"},
    {kIllegalInFileNames, u" "},
    {kIllegalInFileNames | kIllegal, u"$*?,#!&~()[]{}|:;'`/><"},
};

inline constexpr std::array<Rules, 128> kRulesOf = [] {
    std::array<Rules, 128> rulesOf{};
    for (const Row& row : kRows)
        for (const char16_t c : row.characters)
            rulesOf[c] = row.rules;
    return rulesOf;
}();

constexpr bool Breaks(char16_t unit, Rules rules) noexcept {
    return unit < kRulesOf.size() && (kRulesOf[unit] & rules);
}

/// Whether a text holds a character that one of the rules forbids.
inline bool Holds(const ZFXUnicodeString& text, Rules rules) noexcept {
    return std::ranges::any_of(text.Units(), [rules](char16_t unit) { return Breaks(unit, rules); });
}

} // namespace CharacterClasses
