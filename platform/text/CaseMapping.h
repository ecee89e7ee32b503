#pragma once

/// Unicode simple case mappings of a UTF-16 text, unit by unit or pair by pair. None changes a length.
namespace CaseMapping {

/// Two texts of one length: 2 when they are identical, 1 when they are equal once their letters are folded, 0
/// otherwise.
int Compare(const char16_t* left, const char16_t* right, int length) noexcept;
void ToUpper(char16_t* units, int length) noexcept;
void ToLower(char16_t* units, int length) noexcept;

} // namespace CaseMapping
